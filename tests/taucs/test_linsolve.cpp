// The driver: every way through it, what it says, and the factor object in every state.
#include <filesystem>
#include <fstream>
#include <regex>

#include "tests/support/standard.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/taucs/log.hpp"
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

// What a host's handle points to, as the manual has it.
struct FactorObject {
  int32_t n, flags, kind;
  int32_t *perm, *invperm;
  void* factor;
};

// A factor handle that is released in the end, whatever state it is in.
class Handle {
 public:
  Handle() = default;
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { EXPECT_EQ(release(), TAUCS_SUCCESS); }
  int release() {
    const int status = taucs_linsolve(nullptr, &F, 0, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(F, nullptr);
    return status;
  }
  const FactorObject* operator->() const { return static_cast<const FactorObject*>(F); }
  void* F = nullptr;
};

using Options = std::vector<std::string>;

int call(const taucs_ccs_matrix* A, void** F, int nrhs, void* X, const void* B, const Options& options,
         std::vector<void*> arguments = {}) {
  std::vector<char*> strings;
  Options copies = options;
  for (std::string& copy : copies) strings.push_back(copy.data());
  strings.push_back(nullptr);
  arguments.push_back(nullptr);
  return taucs_linsolve(A, F, nrhs, X, B, strings.data(), arguments.data());
}

Options operator+(Options a, const Options& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

template <class T>
void expect_solved(const taucs_ccs_matrix& A, int nrhs, const std::vector<T>& X, const std::vector<T>& B,
                   double tolerance) {
  for (int c = 0; c < nrhs; ++c) {
    const std::size_t place = static_cast<std::size_t>(c) * A.n;
    EXPECT_LE(backward_error(A, X.data() + place, B.data() + place), tolerance) << "right-hand side " << c;
  }
}

template <class T>
class Linsolve : public testing::Test {
 protected:
  static constexpr bool kComplex = !std::is_same_v<T, double>;
  Matrix dominant(int n, int negative = -1) {
    return record<T>(random_triangle(n, std::min(1.0, 6.0 / (n + 1)), 1.05, kComplex, random_, negative), kLowerOf<T>);
  }
  std::vector<T> right_hand_sides(const Matrix& A, int nrhs) {
    return random_vector<T>(static_cast<std::size_t>(A->n) * nrhs, random_);
  }
  // Solves for `nrhs` right-hand sides, with and without a handle.
  void expect_solution(const Matrix& A, const Options& options, double tolerance, int nrhs = 3) {
    const auto B = right_hand_sides(A, nrhs);
    std::vector<T> X(B.size());
    EXPECT_EQ(call(A.get(), nullptr, nrhs, X.data(), B.data(), options), TAUCS_SUCCESS);
    expect_solved(*A, nrhs, X, B, tolerance);
    Handle handle;
    X.assign(B.size(), 0);
    EXPECT_EQ(call(A.get(), &handle.F, nrhs, X.data(), B.data(), options), TAUCS_SUCCESS);
    expect_solved(*A, nrhs, X, B, tolerance);
  }
  std::mt19937 random_{17};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(Linsolve, Types);

const Options kLlt = {"taucs.factor.LLT=true"}, kLdlt = {"taucs.factor.LLT=true", "taucs.factor.indefinite=true"},
              kMf = {"taucs.factor.mf=true"}, kSolveOnly = {"taucs.factor=false"}, kCg = {"taucs.solve.cg=true"};

TYPED_TEST(Linsolve, FactorsAndSolves) {
  for (const int n : {1, 2, 3, 10, 300}) {
    SCOPED_TRACE("n " + std::to_string(n));
    const Matrix A = this->dominant(n), Q = this->dominant(n, n / 2);
    for (const Options& method : {Options{}, kMf, Options{"taucs.factor.ll=true"}}) {
      this->expect_solution(A, kLlt + method, 1e-15);
      this->expect_solution(Q, kLdlt + method, 1e-15);
    }
    for (const char* const name : {"identity", "random", "genmmd", "camd", "tree", "metis"}) {
      this->expect_solution(A, kLlt + Options{std::string("taucs.factor.ordering=") + name}, 1e-15);
    }
    this->expect_solution(A, {"taucs.factor=false", "taucs.solve.cg=true", "taucs.solve.convergetol=1e-12"}, 1e-11);
    this->expect_solution(A, {"taucs.solve.cg=true", "taucs.solve.convergetol=1e-12"}, 1e-11);
    this->expect_solution(Q, {"taucs.solve.minres=true", "taucs.solve.convergetol=1e-12", "taucs.solve.maxits=2000"},
                          1e-11);
    for (const Options& method : {kLlt, kLlt + kMf, kLdlt}) {
      this->expect_solution(A, method + kCg + Options{"taucs.solve.maxits=2", "taucs.solve.convergetol=1e-13"}, 1e-13);
    }
  }
}

TYPED_TEST(Linsolve, FactorsGeneralMatrices) {
  using T = TypeParam;
  SparseMatrix wind = quorin::test::convection_diffusion(9, 30);
  wind.is_complex = this->kComplex;
  for (auto& e : wind.entries) e.value *= std::complex<double>(1, 0.3 * (e.row % 3));
  const Matrix A = record<T>(wind, 0);
  for (const Options& ordering : {Options{}, Options{"taucs.factor.ordering=identity"}}) {
    this->expect_solution(A, Options{"taucs.factor.LU=true"} + ordering, 1e-14);
  }
  Handle handle;
  EXPECT_EQ(call(A.get(), &handle.F, 0, nullptr, nullptr, {"taucs.factor.LU=true"}), TAUCS_SUCCESS);
  EXPECT_EQ(handle->kind, 8);
  const auto B = this->right_hand_sides(A, 2);
  std::vector<T> X(B.size());
  EXPECT_EQ(call(A.get(), &handle.F, 2, X.data(), B.data(), kSolveOnly), TAUCS_SUCCESS);
  expect_solved(*A, 2, X, B, 1e-14);
}

TYPED_TEST(Linsolve, KeepsAndReplacesFactors) {
  using T = TypeParam;
  const Matrix A = this->dominant(80), Q = this->dominant(80, 30);
  const auto B = this->right_hand_sides(A, 2);
  std::vector<T> X(B.size());
  for (const bool is_indefinite : {false, true}) {
    SCOPED_TRACE(is_indefinite);
    const Options kind = is_indefinite ? kLdlt : kLlt;
    const Matrix& M = is_indefinite ? Q : A;
    Handle handle;
    EXPECT_EQ(call(M.get(), &handle.F, 0, nullptr, nullptr, kind + kMf + Options{"taucs.factor.numeric=false"}),
              TAUCS_SUCCESS);
    ASSERT_NE(handle.F, nullptr);
    EXPECT_EQ(handle->n, 80);
    EXPECT_EQ(handle->flags, M->flags);
    EXPECT_EQ(handle->kind, is_indefinite ? 6 : 1);
    for (int i = 0; i < 80; ++i) EXPECT_EQ(handle->invperm[handle->perm[i]], i);
    EXPECT_NE(call(M.get(), &handle.F, 2, X.data(), B.data(), kSolveOnly), TAUCS_SUCCESS) << "no numbers";

    const Options numeric = kind + kMf + Options{"taucs.factor.symbolic=false"};
    void* object = handle.F;
    for (int round = 1; round <= 3; ++round) {
      EXPECT_EQ(call(M.get(), &handle.F, 0, nullptr, nullptr, numeric), TAUCS_SUCCESS);
      EXPECT_EQ(handle.F, object);
      for (const int nrhs : {1, 2}) {
        EXPECT_EQ(call(M.get(), &handle.F, nrhs, X.data(), B.data(), kSolveOnly), TAUCS_SUCCESS);
        expect_solved(*M, nrhs, X, B, 1e-15);
      }
      for (int k = 0; k < M->colptr[80]; ++k) values<T>(*M)[k] *= 1.5;
      EXPECT_EQ(call(M.get(), &handle.F, 1, X.data(), B.data(), numeric), TAUCS_SUCCESS);
      expect_solved(*M, 1, X, B, 1e-15);
    }
    // Numbers that fail leave the analysis.
    const T good = std::exchange(values<T>(*M)[0], std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(call(M.get(), &handle.F, 0, nullptr, nullptr, numeric), TAUCS_ERROR);
    values<T>(*M)[0] = good;
    EXPECT_EQ(call(M.get(), &handle.F, 1, X.data(), B.data(), numeric), TAUCS_SUCCESS);
    expect_solved(*M, 1, X, B, 1e-15);

    // Another factorization takes the place of this one, but only if it succeeds.
    EXPECT_EQ(call(M.get(), &handle.F, 0, nullptr, nullptr, kind + Options{"taucs.factor.ordering=nested"}),
              TAUCS_ERROR);
    EXPECT_EQ(handle.F, object);
    EXPECT_EQ(call(A.get(), &handle.F, 1, X.data(), B.data(), kLlt), TAUCS_SUCCESS);
    expect_solved(*A, 1, X, B, 1e-15);
    EXPECT_EQ(handle->kind, 1);
    EXPECT_EQ(call(A.get(), &object, 1, X.data(), B.data(), kSolveOnly), TAUCS_ERROR_BADARGS) << "replaced";
    void* stale = handle.F;
    EXPECT_EQ(handle.release(), TAUCS_SUCCESS);
    EXPECT_EQ(handle.release(), TAUCS_SUCCESS);
    EXPECT_EQ(call(nullptr, &stale, 0, nullptr, nullptr, {}), TAUCS_ERROR_BADARGS) << "released before";
    EXPECT_EQ(call(A.get(), &stale, 1, X.data(), B.data(), kSolveOnly), TAUCS_ERROR_BADARGS);
  }
}

TYPED_TEST(Linsolve, RefusesWhatCannotBe) {
  using T = TypeParam;
  const Matrix A = this->dominant(20), Q = this->dominant(20, 5), other = this->dominant(19);
  const auto B = this->right_hand_sides(A, 1);
  std::vector<T> X(B.size(), 5.0);
  Handle handle;
  const auto status = [&](const Matrix& M, const Options& options) {
    return call(M.get(), &handle.F, 1, X.data(), B.data(), options);
  };
  EXPECT_EQ(status(A, {}), TAUCS_ERROR) << "no way to solve";
  EXPECT_EQ(status(A, {"taucs.factor=false"}), TAUCS_ERROR) << "no way to solve";
  EXPECT_EQ(status(Q, kLlt), TAUCS_ERROR) << "indefinite";
  EXPECT_EQ(status(Q, kLlt + kMf), TAUCS_ERROR) << "indefinite";
  EXPECT_EQ(status(A, {"taucs.factor.LU=true", "taucs.ooc=true", "taucs.factor.ordering=identity"}),
            TAUCS_ERROR_BADARGS);
  EXPECT_EQ(status(A, {"taucs.factor.LU=true"}), TAUCS_ERROR) << "colamd refuses symmetric matrices";
  EXPECT_EQ(status(A, {"taucs.factor.LU=true", "taucs.factor.ordering=identity", "taucs.factor.symbolic=false"}),
            TAUCS_ERROR);
  EXPECT_EQ(status(A, kLlt + Options{"taucs.ooc=true"}), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(status(A, kLlt + kMf + Options{"taucs.factor.symbolic=false"}), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(status(A, kLdlt + kMf + Options{"taucs.factor.symbolic=false"}), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(status(A, kLlt + Options{"taucs.factor.ordering=amd"}), TAUCS_ERROR);
  EXPECT_EQ(status(A, kLlt + Options{"taucs.factor.ordering=colamd"}), TAUCS_ERROR);
  const T good = std::exchange(values<T>(*A)[0], std::numeric_limits<double>::infinity());
  for (const Options& options : {kLlt, kLdlt, kLlt + kMf, kLdlt + kMf, Options{"taucs.factor=false"} + kCg}) {
    EXPECT_EQ(status(A, options), TAUCS_ERROR);
  }
  values<T>(*A)[0] = good;
  EXPECT_EQ(handle.F, nullptr);
  EXPECT_EQ(call(nullptr, nullptr, 0, nullptr, nullptr, {}), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(call(nullptr, &handle.F, 1, X.data(), B.data(), {}), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(call(A.get(), nullptr, -1, X.data(), B.data(), kLlt), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(call(A.get(), nullptr, 1, nullptr, B.data(), kLlt), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(call(A.get(), nullptr, 1, X.data(), nullptr, kLlt), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(X, std::vector<T>(B.size(), 5.0));

  EXPECT_EQ(call(A.get(), &handle.F, 0, nullptr, nullptr, kLlt), TAUCS_SUCCESS);
  EXPECT_EQ(status(other, kSolveOnly), TAUCS_ERROR_BADARGS);
  EXPECT_EQ(status(A, kLdlt + kMf + Options{"taucs.factor.symbolic=false"}), TAUCS_ERROR_BADARGS) << "LLT is held";
  EXPECT_EQ(call(other.get(), &handle.F, 0, nullptr, nullptr, kLlt + kMf + Options{"taucs.factor.symbolic=false"}),
            TAUCS_ERROR_BADARGS);
  EXPECT_EQ(call(other.get(), &handle.F, 0, nullptr, nullptr, kLlt), TAUCS_SUCCESS) << "a factor of its own";
  EXPECT_EQ(handle->n, 19);
  EXPECT_EQ(status(A, kSolveOnly), TAUCS_ERROR_BADARGS) << "a smaller factor";
  using Other = std::conditional_t<std::is_same_v<T, double>, Complex, double>;
  const Matrix of_other_type = record<Other>(laplacian(19, 1, 1, 0), kLowerOf<Other>);
  EXPECT_EQ(status(of_other_type, kSolveOnly), TAUCS_ERROR_BADARGS) << "a factor of the other type";
}

// An object without a factor has an order: iterations work in that, and nothing else does.
TYPED_TEST(Linsolve, KeepsAnOrderWithoutAFactor) {
  using T = TypeParam;
  const Matrix A = this->dominant(60);
  const auto B = this->right_hand_sides(A, 2);
  std::vector<T> X(B.size());
  Handle handle;
  EXPECT_EQ(call(A.get(), &handle.F, 0, nullptr, nullptr, {"taucs.factor.ordering=genmmd"}), TAUCS_SUCCESS);
  ASSERT_NE(handle.F, nullptr);
  EXPECT_EQ(handle->kind, 0);
  EXPECT_EQ(call(A.get(), &handle.F, 2, X.data(), B.data(), kSolveOnly), TAUCS_ERROR);
  EXPECT_EQ(call(A.get(), &handle.F, 2, X.data(), B.data(), kLlt + kMf + Options{"taucs.factor.symbolic=false"}),
            TAUCS_ERROR_BADARGS);
  EXPECT_EQ(
      call(A.get(), &handle.F, 2, X.data(), B.data(), kSolveOnly + kCg + Options{"taucs.solve.convergetol=1e-12"}),
      TAUCS_SUCCESS);
  expect_solved(*A, 2, X, B, 1e-11);
}

// Where the flags name both types, complex counts; with both factorizations asked for, the second does.
TYPED_TEST(Linsolve, StandsFlagsAndOptionsThatSayTwoThings) {
  using T = TypeParam;
  const Matrix A = this->dominant(30);
  const auto B = this->right_hand_sides(A, 2);
  std::vector<T> X(B.size());
  if (this->kComplex) A->flags |= TAUCS_DOUBLE | TAUCS_SINGLE;
  EXPECT_EQ(call(A.get(), nullptr, 2, X.data(), B.data(), kLlt), TAUCS_SUCCESS);
  expect_solved(*A, 2, X, B, 1e-15);
  Handle handle;
  EXPECT_EQ(call(A.get(), &handle.F, 2, X.data(), B.data(),
                 kLlt + Options{"taucs.factor.LU=true", "taucs.factor.ordering=identity"}),
            TAUCS_SUCCESS);
  expect_solved(*A, 2, X, B, 1e-14);
  EXPECT_EQ(handle->kind, 8);
}

TYPED_TEST(Linsolve, StopsIterationsWhereOptionsSay) {
  using T = TypeParam;
  const Matrix A = record<T>(laplacian(40, 40, 1, 0), kLowerOf<T>);
  const auto B = this->right_hand_sides(A, 2);
  std::vector<T> X(B.size());
  double limit = 50;
  const Options cg = {"taucs.factor=false", "taucs.solve.cg=true"};
  const auto said = logged([&] {
    EXPECT_EQ(call(A.get(), nullptr, 2, X.data(), B.data(), cg + Options{"taucs.solve.maxits=#0"}, {&limit}),
              TAUCS_ERROR);
  });
  EXPECT_NE(said.find("right-hand side 1: the iteration ended with status 1\n"), std::string::npos) << said;
  for (const std::ptrdiff_t c : {0, 1}) {
    const auto first = X.begin() + c * A->n;
    EXPECT_GT(norm(std::vector<T>(first, first + A->n)), 0) << "the last iterate of column " << c;
  }
}

// What the driver says, with times masked: of one call all of it, of others what they end with.
TEST(LinsolveMessages, TellWhatIsDoneAndWhatFails) {
  const Matrix A = record<double>(laplacian(7, 1, 1, 1), kSymmetricLower);
  std::vector<double> B(7, 1), X(7);
  const Options identity = {"taucs.factor.ordering=identity"};
  const auto said = [&](const Options& options, int expected) {
    const std::string text = logged(
        [&] { EXPECT_EQ(call(A.get(), nullptr, 1, X.data(), B.data(), identity + options), expected) << options[0]; });
    return std::regex_replace(text, std::regex("[-0-9.]+e[-+0-9]+"), "T");
  };
  EXPECT_EQ(said(kLlt, TAUCS_SUCCESS),
            "taucs_linsolve: preparing to factor\ntaucs_linsolve: ordering (llt=1, lu=0, ordering=identity)\n"
            "taucs_linsolve: ordering time T seconds (T seconds CPU time)\n"
            "taucs_linsolve: starting LLT/LDLT factorization\ntaucs_linsolve: pre-factorization permuting of M\n"
            "taucs_linsolve: starting IC LLT factorization\ntaucs_linsolve: starting IC LLT LL factorization\n"
            "\t\tElimination tree depth is 7\ntaucs_linsolve: preparing to solve\n"
            "taucs_linsolve: solve time T seconds (T seconds CPU time)\n");
  const std::string bail = "taucs_linsolve: an error occured, releasing resources and bailing out\n";
  const struct {
    Options options;
    int status;
    std::string end;
  } cases[] = {
      {{"taucs.factor.LU=true", "taucs.ooc=true"}, TAUCS_ERROR_BADARGS, "taucs_linsolve: not yet implemented\n"},
      {kLlt + Options{"taucs.ooc=true"}, TAUCS_ERROR_BADARGS,
       "ERROR, you must specify either a basename or an iohandle for an out-of-core factorization\n"},
      {kLlt + kMf + Options{"taucs.factor.symbolic=false"}, TAUCS_ERROR_BADARGS,
       "ERROR, you need to provide a symbolic factorization for a numeric factorization\n"},
      {kLlt + Options{"taucs.factor.ordering=nested"}, TAUCS_ERROR,
       "taucs_ccs_order: invalid ordering requested (nested)\ntaucs_factor: ordering failed\n"},
      {kLlt + Options{"taucs.maxdepth=5"}, TAUCS_ERROR, "5\ntaucs_factor: factorization failed\n"},
      {kLdlt + kMf + Options{"taucs.maxdepth=6.9"}, TAUCS_ERROR, "6\ntaucs_factor: factorization failed\n"},
  };
  for (const auto& c : cases) EXPECT_TRUE(said(c.options, c.status).ends_with(c.end + bail)) << c.end;
  for (const char* const limit : {"taucs.maxdepth=7", "taucs.maxdepth=0.9"}) {
    EXPECT_NE(said(kLdlt + kMf + Options{limit}, TAUCS_SUCCESS).find("\t\tInertia: #0: 0 #+: 7 #-: 0\n"),
              std::string::npos);
  }
}

// The base name of a set of files that vanishes with the test.
class FileSet {
 public:
  FileSet() = default;
  FileSet(const FileSet&) = delete;
  FileSet& operator=(const FileSet&) = delete;
  ~FileSet() {
    for (const auto& path : files()) std::filesystem::remove(path);
  }
  std::string option() const { return std::string("taucs.ooc.basename=") + name_.name(); }
  std::vector<std::filesystem::path> files() const {
    std::vector<std::filesystem::path> found;
    const std::filesystem::path base = name_.name();
    for (const auto& entry : std::filesystem::directory_iterator(base.parent_path())) {
      if (entry.path().filename().string().rfind(base.filename().string() + ".", 0) == 0) found.push_back(entry.path());
    }
    return found;
  }

 private:
  TemporaryFile name_;
};

TYPED_TEST(Linsolve, FactorsIntoFiles) {
  using T = TypeParam;
  const Matrix A = this->dominant(150), Q = this->dominant(150, 60), other = this->dominant(149);
  const auto B = this->right_hand_sides(A, 3);
  std::vector<T> X(B.size());
  for (const bool is_indefinite : {false, true}) {
    SCOPED_TRACE(is_indefinite);
    const Matrix& M = is_indefinite ? Q : A;
    const FileSet set;
    // Less than the widest supernode.
    const Options files = {"taucs.ooc=true", set.option(), "taucs.ooc.memory=60000"},
                  factor = (is_indefinite ? kLdlt : kLlt) + files, open = kSolveOnly + files;
    const auto created = "taucs_linsolve: ooc file created?=1 opened?=0\n",
               reopened = "taucs_linsolve: ooc file created?=0 opened?=1\n";
    EXPECT_EQ(call(M.get(), nullptr, 1, X.data(), B.data(), open), TAUCS_ERROR) << "there is no set yet";
    {
      Handle handle;
      const std::string said =
          logged([&] { EXPECT_EQ(call(M.get(), &handle.F, 3, X.data(), B.data(), factor), TAUCS_SUCCESS); });
      EXPECT_NE(said.find(created), std::string::npos) << said;
      expect_solved(*M, 3, X, B, 1e-15);
      EXPECT_EQ(handle->kind, 4);
      for (int i = 0; i < 150; ++i) EXPECT_EQ(handle->invperm[handle->perm[i]], i);
      if (is_indefinite) {
        int count[3];
        EXPECT_EQ(taucs_inertia_calc(handle->factor, count), TAUCS_SUCCESS);
        EXPECT_NE(said.find("Inertia: #0: 0 #+: 60 #-: 90\n"), std::string::npos) << said;
        EXPECT_EQ(count[1], 60);
      }
      // The routine of its own, in the order of the factor object.
      std::vector<T> x(150), b(150);
      taucs_vec_permute(150, M->flags, B.data(), b.data(), handle->perm);
      EXPECT_EQ(taucs_ooc_solve_llt(handle->factor, x.data(), b.data()), TAUCS_SUCCESS);
      taucs_vec_ipermute(150, M->flags, x.data(), X.data(), handle->perm);
      expect_solved(*M, 1, X, B, 1e-14);
      EXPECT_EQ(call(M.get(), &handle.F, 1, X.data(), B.data(),
                     kSolveOnly + Options{"taucs.solve.minres=true", "taucs.solve.maxits=3"}),
                is_indefinite ? TAUCS_ERROR : TAUCS_SUCCESS);

      // The same files again, by name and by handle.
      for (int k = 0; k < M->colptr[150]; ++k) values<T>(*M)[k] *= 1.5;
      EXPECT_EQ(call(M.get(), &handle.F, 1, X.data(), B.data(), factor), TAUCS_SUCCESS);
      expect_solved(*M, 1, X, B, 1e-15);
      void* iohandle = handle->factor;
      EXPECT_EQ(call(M.get(), &handle.F, 1, X.data(), B.data(),
                     (is_indefinite ? kLdlt : kLlt) +
                         Options{"taucs.ooc=true", "taucs.ooc.iohandle=#0", "taucs.ooc.memory=60000"},
                     {is_indefinite ? iohandle : &iohandle}),
                TAUCS_SUCCESS);
      expect_solved(*M, 1, X, B, 1e-15);
    }
    // Whoever opens them solves.
    for (int round = 0; round < 2; ++round) {
      Handle handle;
      const std::string said =
          logged([&] { EXPECT_EQ(call(M.get(), &handle.F, 3, X.data(), B.data(), open), TAUCS_SUCCESS); });
      EXPECT_NE(said.find(reopened), std::string::npos) << said;
      expect_solved(*M, 3, X, B, 1e-15);
      EXPECT_EQ(call(M.get(), &handle.F, 3, X.data(), B.data(), kSolveOnly), TAUCS_SUCCESS);
      expect_solved(*M, 3, X, B, 1e-15);
    }
    EXPECT_EQ(call(other.get(), nullptr, 1, X.data(), B.data(), open), TAUCS_ERROR) << "a set of another order";

    // A factorization that fails leaves no set.
    EXPECT_EQ(call(M.get(), nullptr, 0, nullptr, nullptr, factor + Options{"taucs.maxdepth=1"}), TAUCS_ERROR);
    EXPECT_EQ(call(M.get(), nullptr, 1, X.data(), B.data(), open), TAUCS_ERROR);
    EXPECT_TRUE(set.files().empty());
  }
  EXPECT_EQ(call(A.get(), nullptr, 0, nullptr, nullptr,
                 kLlt + Options{"taucs.ooc=true", "taucs.ooc.basename=no-such-folder/factor"}),
            TAUCS_ERROR);
}

// Factors of both kinds and types in a folder: made there, or found.
template <class T>
std::vector<T> solve_from_files(const std::filesystem::path& folder, bool finds_them, void** F) {
  constexpr bool kReal = std::is_same_v<T, double>;
  std::mt19937 random(5);
  const Matrix A = record<T>(random_triangle(120, 0.05, 1.05, !kReal, random, kReal ? -1 : 50), kLowerOf<T>);
  const auto B = random_vector<T>(120, random);
  std::vector<T> X(B.size());
  const Options files = {"taucs.ooc=true", "taucs.ooc.memory=100000",
                         "taucs.ooc.basename=" + (folder / (kReal ? "real" : "complex")).string()};
  EXPECT_EQ(call(A.get(), F, 1, X.data(), B.data(),
                 (finds_them ? kSolveOnly
                  : kReal    ? kLlt
                             : kLdlt) +
                     files),
            TAUCS_SUCCESS);
  expect_solved(*A, 1, X, B, 1e-15);
  return X;
}

// What one process has factored solves in another, with the same bits, while the first one goes on or when it is done.
// This program is that process, too, when the environment names a folder.
TEST(LinsolveFiles, AreThereForAnotherProcess) {
  constexpr const char* kVariable = "QUORIN_TEST_FACTOR_FOLDER";
  const auto all = [](const std::filesystem::path& folder, bool finds_them, Handle* held) {
    void** const F = held != nullptr ? &held->F : nullptr;
    const auto x = solve_from_files<double>(folder, finds_them, nullptr);
    const auto z = solve_from_files<Complex>(folder, finds_them, F);
    return bytes_of(x.data(), x.size()) + bytes_of(z.data(), z.size());
  };
  if (const char* const folder = std::getenv(kVariable); folder != nullptr) {
    std::ofstream(std::filesystem::path(folder) / "solutions", std::ios::binary) << all(folder, true, nullptr);
    return;
  }
  const quorin::test::TemporaryFolder folder;
  Handle held;
  const std::string expected = all(folder.path(), false, &held);
  EXPECT_TRUE(quorin::test::passes_in_another_process(kVariable, folder.path().string()));
  std::ifstream in(folder.path() / "solutions", std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), expected);
}

// Zero diagonals: [H B^T; B 0], with a right-hand side for which the solution is known to be bounded.
TEST(LinsolveSaddlePoints, AreFactoredWithTheirInertia) {
  std::mt19937 random(12);
  for (const auto& [n, m] : {std::pair(2, 1), std::pair(60, 20), std::pair(400, 150)}) {
    SCOPED_TRACE("n " + std::to_string(n) + ", m " + std::to_string(m));
    SparseMatrix saddle = random_triangle(n, 3.0 / n, 1.1, false, random);
    saddle.rows = saddle.columns = n + m;
    for (int i = 0; i < m; ++i) {
      saddle.add(n + i, i, 1);
      saddle.add(n + i, (7 * i + 3) % n, 0.5);
      saddle.add(n + i, (5 * i + 1) % n, -0.3);
    }
    const Matrix A = record<double>(saddle, kSymmetricLower);
    const auto B = random_vector<double>(static_cast<std::size_t>(n + m), random);
    std::vector<double> X(B.size());
    for (const Options& method : {Options{}, kMf, Options{"taucs.factor.ordering=identity"},
                                  Options{"taucs.factor.ordering=random"}, Options{"taucs.factor.ordering=genmmd"}}) {
      const std::string said =
          logged([&] { EXPECT_EQ(call(A.get(), nullptr, 1, X.data(), B.data(), kLdlt + method), TAUCS_SUCCESS); });
      const std::string inertia = "#0: 0 #+: " + std::to_string(n) + " #-: " + std::to_string(m) + "\n";
      EXPECT_NE(said.find(inertia), std::string::npos) << said;
      EXPECT_LE(backward_error(*A, X.data(), B.data()), 1e-14);
    }
  }
}

TEST(LinsolveAmwb, PreconditionsConjugateGradients) {
  const Matrix A = record<double>(laplacian(60, 60, 1, 1e-5, 1, 0.001), kSymmetricLower);
  std::mt19937 random(3);
  const auto B = random_vector<double>(3600, random);
  std::vector<double> X(B.size());
  const Options amwb =
      kLlt + kMf + kCg +
      Options{"taucs.approximate.amwb=true", "taucs.approximate.amwb.subgraphs=100", "taucs.solve.convergetol=1e-9"};
  EXPECT_EQ(call(A.get(), nullptr, 1, X.data(), B.data(), amwb), TAUCS_SUCCESS);
  EXPECT_LE(relative_residual(*A, X, B), 1e-9);
  EXPECT_EQ(call(A.get(), nullptr, 1, X.data(), B.data(),
                 {"taucs.factor=false", "taucs.solve.cg=true", "taucs.solve.convergetol=1e-9"}),
            TAUCS_ERROR)
      << "more than 300 iterations without";
  // Where there is none, A stands in for it.
  A->values.d[0] = -A->values.d[0];
  EXPECT_NE(logged([&] {
              call(A.get(), nullptr, 1, X.data(), B.data(), amwb);
            }).find("taucs_linsolve: AMWB preconditioner construction failed, using A\n"),
            std::string::npos);
}

}  // namespace
}  // namespace taucs_test
