// Records that a routine is not for, and damaged ones: all that take one triangle of a matrix refuse them alike.
#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

// What a routine looks at.
enum Spoiled : unsigned { kStructure = 1, kScalars = 2, kSize = 4, kPattern = 8, kValues = 16 };

struct Routine {
  const char* name;
  unsigned refuses;
  // Whether it took the matrix.
  std::function<bool(const taucs_ccs_matrix*)> takes;
};

bool is_made(taucs_ccs_matrix* made) { return Matrix(made) != nullptr; }
bool is_factored(void* made) {
  taucs_supernodal_factor_free(made);
  return made != nullptr;
}
bool is_ordered(const taucs_ccs_matrix* A, const char* name) {
  int *perm = nullptr, *inverse = nullptr;
  taucs_ccs_order(A, &perm, &inverse, name);
  std::free(perm);
  std::free(inverse);
  return perm != nullptr;
}

constexpr int kOrder = 9;
constexpr int kIdentity[kOrder] = {0, 1, 2, 3, 4, 5, 6, 7, 8};

template <class T>
bool is_solved(decltype(&taucs_minres) method, const taucs_ccs_matrix* A) {
  const std::vector<T> b(kOrder, T(1));
  std::vector<T> x(kOrder, T(5));
  const int status = method(A, nullptr, nullptr, x.data(), b.data(), 100, 1e-6);
  EXPECT_TRUE(status == TAUCS_SUCCESS || status == TAUCS_NOT_FINITE || status == TAUCS_ERROR_BADARGS);
  if (status == TAUCS_ERROR_BADARGS) {
    EXPECT_EQ(x, std::vector<T>(kOrder, T(5)));
  }
  return status == TAUCS_SUCCESS;
}

template <class T>
std::vector<Routine> routines() {
  using A = const taucs_ccs_matrix*;
  constexpr unsigned kFactored = kStructure | kScalars | kPattern;
  std::vector<Routine> all = {
      {"llt", kFactored | kValues, [](A M) { return is_made(taucs_ccs_factor_llt(M, 0, 0)); }},
      {"ldlt", kFactored | kValues, [](A M) { return is_made(taucs_ccs_factor_ldlt(M)); }},
      {"llt_ll", kFactored | kValues, [](A M) { return is_factored(taucs_ccs_factor_llt_ll(M)); }},
      {"llt_mf", kFactored | kValues, [](A M) { return is_factored(taucs_ccs_factor_llt_mf(M)); }},
      {"llt_symbolic", kFactored, [](A M) { return is_factored(taucs_ccs_factor_llt_symbolic(M)); }},
      {"ldlt_ll", kFactored | kValues, [](A M) { return is_factored(taucs_ccs_factor_ldlt_ll(M)); }},
      {"ldlt_mf", kFactored | kValues, [](A M) { return is_factored(taucs_ccs_factor_ldlt_mf(M)); }},
      {"ldlt_symbolic", kFactored, [](A M) { return is_factored(taucs_ccs_factor_ldlt_symbolic(M)); }},
      {"cg", kFactored | kSize | kValues, [](A M) { return is_solved<T>(taucs_conjugate_gradients, M); }},
      {"minres", kFactored | kSize | kValues, [](A M) { return is_solved<T>(taucs_minres, M); }},
      {"augment", kStructure | kPattern, [](A M) { return is_made(taucs_ccs_augment_nonpositive_offdiagonals(M)); }},
      {"permute", kStructure | kPattern,
       [](A M) { return is_made(taucs_ccs_permute_symmetrically(M, kIdentity, kIdentity)); }},
      {"transpose", kPattern, [](A M) { return is_made(taucs_ccs_transpose(M)); }},
      {"split", kPattern,
       [](A M) {
         taucs_ccs_matrix *left = nullptr, *right = nullptr;
         taucs_ccs_split(M, &left, &right, 2);
         const bool has_left = is_made(left), has_right = is_made(right);
         EXPECT_EQ(has_left, has_right);
         return has_left;
       }},
  };
  for (const char* const name : {"camd", "metis", "genmmd", "tree"}) {
    all.push_back({name, kStructure | kPattern, [name](A M) { return is_ordered(M, name); }});
  }
  if (std::is_same_v<T, double>) {
    all.push_back(
        {"amwb", kFactored | kValues, [](A M) { return is_made(taucs_amwb_preconditioner_create(M, 1, 1, 0)); }});
  }
  return all;
}

template <class T>
class Refusals : public testing::Test {};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(Refusals, Types);

TYPED_TEST(Refusals, OfOtherStructuresAndDamagedRecords) {
  using T = TypeParam;
  std::mt19937 random(11);
  const Matrix A = record<T>(random_triangle(kOrder, 0.5, 1.1, !std::is_same_v<T, double>, random), kLowerOf<T>);
  for (const Routine& routine : routines<T>()) {
    SCOPED_TRACE(routine.name);
    // One field has another value.
    const auto expect_refused = [&](unsigned spoiled, auto& field, auto value) {
      if ((routine.refuses & spoiled) == 0) return;
      const auto good = std::exchange(field, value);
      EXPECT_FALSE(routine.takes(A.get())) << value << " in the place of " << good;
      field = good;
    };
    EXPECT_TRUE(routine.takes(A.get()));
    EXPECT_FALSE(routine.takes(nullptr));
    expect_refused(kStructure, A->flags, kType<T> | TAUCS_LOWER);
    expect_refused(kStructure, A->flags, kType<T> | TAUCS_SYMMETRIC);
    expect_refused(kStructure, A->flags, kType<T> | TAUCS_SYMMETRIC | TAUCS_UPPER);
    expect_refused(kScalars, A->flags, kLowerOf<T> | TAUCS_SINGLE);
    expect_refused(kSize, A->m, kOrder + 1);
    for (const int row : {-1, kOrder, 1 << 30}) expect_refused(kPattern, A->rowind[A->colptr[kOrder] - 1], row);
    expect_refused(kPattern, A->colptr[1], A->colptr[2] + 1);
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
      expect_refused(kValues, values<T>(*A)[3], T(value));
    }
    EXPECT_TRUE(routine.takes(A.get()));
  }
}

}  // namespace
}  // namespace taucs_test
