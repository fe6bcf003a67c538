// The k-th allocation of a call fails, alone or with all after it, for each k: null or the status, and nothing is left
// behind.
#include "tests/support/failing_host.hpp"
#include "tests/support/sparse.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

class Faults : public testing::Test {
 protected:
  // A grid that is large enough for METIS to cut it.
  Faults() {
    constexpr int kSide = 13, kOrder = kSide * kSide;
    const auto columns = compressed_columns(quorin::test::grid(kSide, kSide, 1));
    const auto entries = static_cast<int>(columns.indices.size());
    A_ = host->taucs_ccs_create(kOrder, kOrder, entries, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER);
    std::copy(columns.starts.begin(), columns.starts.end(), A_->colptr);
    std::copy(columns.indices.begin(), columns.indices.end(), A_->rowind);
    std::fill_n(A_->values.d, entries, -1);
    for (int j = 0; j < kOrder; ++j) {
      for (int k = A_->colptr[j]; k < A_->colptr[j + 1]; ++k) {
        if (A_->rowind[k] == j) A_->values.d[k] = 4.5;
      }
      perm_.push_back(kOrder - 1 - j);
    }
    b_.assign(kOrder, 1);
    x_.assign(kOrder, 0);
  }
  ~Faults() override {
    host->taucs_ccs_free(A_);
    host->sMKL_FreeBuffers();
    EXPECT_EQ(host.live_blocks(), 0);
  }

  // `call()` is whether it succeeded, and gives back what it made. One that `may_recover` goes on with less memory. The
  // allocations before `first` are those without which the process stops.
  template <class Call>
  void run(const std::string& name, const Call& call, bool may_recover = false, int first = 1) {
    SCOPED_TRACE(name);
    constexpr int kMost = 2000;
    host->sMKL_FreeBuffers();
    const int before = host.live_blocks();
    for (const int failures : {1, kMost}) {
      int k = first;
      for (bool is_noticed = true; is_noticed && k < kMost; ++k) {
        bool succeeded = false;
        is_noticed = host.run_failing(k, failures, [&] { succeeded = call(); });
        EXPECT_TRUE(succeeded == !is_noticed || (succeeded && may_recover)) << "allocation " << k;
        host->sMKL_FreeBuffers();
        EXPECT_EQ(host.live_blocks(), before) << "allocation " << k << " left memory behind";
      }
      EXPECT_GT(k, first + 1) << "nothing was ever allocated";
      EXPECT_LT(k, kMost);
    }
  }
  bool is_made(taucs_ccs_matrix* made) {
    host->taucs_ccs_free(made);
    return made != nullptr;
  }

  const quorin::test::FailingHost host;
  taucs_ccs_matrix* A_;
  std::vector<int> perm_;
  std::vector<double> b_, x_;
};

TEST_F(Faults, OfMatricesAndVectors) {
  run("create", [&] { return is_made(host->taucs_ccs_create(3, 3, 3, TAUCS_DCOMPLEX)); });
  run("transpose", [&] { return is_made(host->taucs_ccs_transpose(A_)); });
  run("permute", [&] { return is_made(host->taucs_ccs_permute_symmetrically(A_, perm_.data(), perm_.data())); });
  run("augment", [&] { return is_made(host->taucs_ccs_augment_nonpositive_offdiagonals(A_)); });
  run("split", [&] {
    taucs_ccs_matrix *L = nullptr, *R = nullptr;
    host->taucs_ccs_split(A_, &L, &R, 1);
    const bool is_left_made = is_made(L), is_right_made = is_made(R);
    EXPECT_EQ(is_left_made, is_right_made);
    return is_left_made;
  });
  host.run_failing(1, 1, [&] { EXPECT_EQ(host->taucs_vec_create(2, TAUCS_DOUBLE), nullptr); });
}

TEST_F(Faults, OfReaders) {
  std::string triplets;
  for (int k = 1; k <= 13000; ++k) triplets += std::to_string(k) + " 1 1\n";
  const struct {
    const char* name;
    decltype(host->taucs_ccs_read_ijv) read;
    std::string content;
  } texts[] = {{"ijv", host->taucs_ccs_read_ijv, triplets},
               {"ijv_zero_based", host->taucs_ccs_read_ijv_zero_based, triplets},
               {"mtx", host->taucs_ccs_read_mtx, "1 1 1\n" + triplets},
               {"ccs", host->taucs_ccs_read_ccs, "2 0 1 2 0 1 1.5 2.5"}};
  for (const auto& text : texts) {
    const TemporaryFile file(text.content);
    run(text.name, [&] { return is_made(text.read(file.name(), TAUCS_DOUBLE)); });
  }
  const std::string hb = std::string(QUORIN_MATRICES_DIR) + "/cholmod/bcsstk01.rsa";
  run("hb", [&] { return is_made(host->taucs_ccs_read_hb(hb.c_str(), TAUCS_DOUBLE)); });
  const int head[] = {2, 2, TAUCS_DOUBLE, 0, 1, 2, 0, 1};
  const double entries[] = {2, 1};
  const TemporaryFile binary(bytes_of(head, 8) + bytes_of(entries, 2));
  run(
      "binary", [&] { return is_made(host->taucs_ccs_read_binary(binary.name())); }, false, 2);
  host.run_failing(1, 1, [&] { EXPECT_EQ(host->taucs_vec_read_binary(2, TAUCS_DOUBLE, binary.name()), nullptr); });
}

TEST_F(Faults, OfOrderings) {
  const int lower = A_->flags;
  for (const std::string name : {"camd", "metis", "genmmd", "tree", "random", "identity", "colamd"}) {
    const bool is_colamd = name == "colamd";
    A_->flags = is_colamd ? TAUCS_DOUBLE : lower;
    const auto order = [&] {
      int *perm = nullptr, *inverse = nullptr;
      host->taucs_ccs_order(A_, &perm, &inverse, name.c_str());
      EXPECT_EQ(perm == nullptr, inverse == nullptr);
      EXPECT_TRUE(perm == nullptr || perm != inverse);
      host.release(perm);
      host.release(inverse);
      return perm != nullptr;
    };
    run(name, order, false, is_colamd ? 3 : 1);
  }
}

TEST_F(Faults, OfSolvers) {
  run("llt", [&] { return is_made(host->taucs_ccs_factor_llt(A_, 0, 0)); });
  run("llt, incomplete", [&] { return is_made(host->taucs_ccs_factor_llt(A_, 1e-3, 1)); });
  run("ldlt", [&] { return is_made(host->taucs_ccs_factor_ldlt(A_)); });
  run("amwb", [&] { return is_made(host->taucs_amwb_preconditioner_create(A_, 1, 4, 0)); });
  for (const auto method : {host->taucs_conjugate_gradients, host->taucs_minres}) {
    run("iteration", [&] {
      const int status = method(A_, nullptr, nullptr, x_.data(), b_.data(), 100, 1e-9);
      EXPECT_TRUE(status == TAUCS_SUCCESS || status == TAUCS_ERROR_NOMEM);
      return status == TAUCS_SUCCESS;
    });
  }
  run(
      "lu",
      [&] {
        void* const factor = host->taucs_ccs_factor_lu(A_, perm_.data(), 1);
        host->taucs_multilu_factor_free(factor);
        return factor != nullptr;
      },
      true);
  void* const factor = host->taucs_ccs_factor_lu(A_, perm_.data(), 1);
  run("lu solve", [&] {
    const int status = host->taucs_multilu_solve_many(factor, 1, x_.data(), A_->n, b_.data(), A_->n);
    EXPECT_TRUE(status == TAUCS_SUCCESS || status == TAUCS_ERROR_NOMEM);
    return status == TAUCS_SUCCESS;
  });
  host->taucs_multilu_factor_free(factor);
}

// Of the whole driver, which has a factor object in the end or none.
TEST_F(Faults, OfTheDriver) {
  const std::vector<std::vector<const char*>> calls = {
      {"taucs.factor.LLT=true"},
      {"taucs.factor.LLT=true", "taucs.factor.mf=true", "taucs.factor.ordering=genmmd"},
      {"taucs.factor.LLT=true", "taucs.factor.indefinite=true", "taucs.factor.ordering=identity"},
      {"taucs.factor.LLT=true", "taucs.factor.ordering=camd", "taucs.solve.cg=true", "taucs.approximate.amwb=true"},
      {"taucs.factor=false", "taucs.solve.minres=true"},
      {"taucs.factor.LU=true", "taucs.factor.ordering=identity"}};
  for (const auto& call : calls) {
    std::vector<char*> options;
    options.reserve(call.size() + 1);
    for (const char* const option : call) options.push_back(const_cast<char*>(option));
    options.push_back(nullptr);
    run(
        call.front(),
        [&] {
          void* F = nullptr;
          const int status = host->taucs_linsolve(A_, &F, 1, x_.data(), b_.data(), options.data(), nullptr);
          EXPECT_TRUE(status == TAUCS_SUCCESS || F == nullptr);
          EXPECT_EQ(host->taucs_linsolve(nullptr, &F, 0, nullptr, nullptr, nullptr, nullptr), TAUCS_SUCCESS);
          return status == TAUCS_SUCCESS;
        },
        true);
  }
  // The numbers alone: the analysis survives.
  const char* symbolic[] = {"taucs.factor.LLT=true", "taucs.factor.mf=true", "taucs.factor.numeric=false", nullptr};
  const char* numeric[] = {"taucs.factor.LLT=true", "taucs.factor.mf=true", "taucs.factor.symbolic=false", nullptr};
  const auto drive = [&](void** F, int nrhs, const char** options) {
    return host->taucs_linsolve(A_, F, nrhs, x_.data(), b_.data(), const_cast<char**>(options), nullptr);
  };
  void* F = nullptr;
  ASSERT_EQ(drive(&F, 0, symbolic), TAUCS_SUCCESS);
  for (int k = 1;; ++k) {
    int status = TAUCS_SUCCESS;
    const bool is_noticed = host.run_failing(k, 1, [&] { status = drive(&F, 1, numeric); });
    EXPECT_TRUE(is_noticed || status == TAUCS_SUCCESS);
    if (!is_noticed) break;
    ASSERT_EQ(drive(&F, 1, numeric), TAUCS_SUCCESS) << "after allocation " << k;
  }
  EXPECT_EQ(host->taucs_linsolve(nullptr, &F, 0, nullptr, nullptr, nullptr, nullptr), TAUCS_SUCCESS);
}

}  // namespace
}  // namespace taucs_test
