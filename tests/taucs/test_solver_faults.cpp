// The k-th allocation of each solver's call fails, for each k: null or the status, and nothing is left behind.
#include "tests/support/failing_host.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

class SolverFaults : public testing::Test {
 protected:
  SolverFaults() {
    constexpr int kSide = 6, kOrder = kSide * kSide;
    A_ = host->taucs_ccs_create(kOrder, kOrder, 3 * kOrder, kFlags);
    int k = 0;
    for (int j = 0; j < kOrder; ++j) {
      A_->colptr[j] = k;
      const auto put = [&](int i, double value) {
        A_->rowind[k] = i;
        A_->values.d[k++] = value;
      };
      put(j, 4.5);
      if (j % kSide + 1 < kSide) put(j + 1, -1);
      if (j + kSide < kOrder) put(j + kSide, -1);
    }
    A_->colptr[kOrder] = k;
    for (int j = 0; j < kOrder; ++j) perm_.push_back(kOrder - 1 - j);
    b_.assign(kOrder, 1);
    x_.assign(kOrder, 0);
  }
  ~SolverFaults() override {
    host->taucs_ccs_free(A_);
    host->sMKL_FreeBuffers();
    EXPECT_EQ(host.live_blocks(), 0);
  }

  // `call()` is whether it succeeded, and gives back what it made. One that `may_recover` goes on with less memory.
  template <class Call>
  void run(const char* name, const Call& call, bool may_recover = false) {
    SCOPED_TRACE(name);
    constexpr int kMost = 400;
    host->sMKL_FreeBuffers();
    const int before = host.live_blocks();
    for (const int failures : {1, kMost}) {
      int k = 1;
      for (bool is_noticed = true; is_noticed && k < kMost; ++k) {
        bool succeeded = false;
        is_noticed = host.run_failing(k, failures, [&] { succeeded = call(); });
        EXPECT_TRUE(succeeded == !is_noticed || (succeeded && may_recover)) << "allocation " << k;
        host->sMKL_FreeBuffers();
        EXPECT_EQ(host.live_blocks(), before) << "allocation " << k << " left memory behind";
      }
      EXPECT_GT(k, 2) << "nothing was ever allocated";
      EXPECT_LT(k, kMost);
    }
  }
  bool is_made(taucs_ccs_matrix* made) {
    host->taucs_ccs_free(made);
    return made != nullptr;
  }

  static constexpr int kFlags = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;
  const quorin::test::FailingHost host;
  taucs_ccs_matrix* A_;
  std::vector<int> perm_;
  std::vector<double> b_, x_;
};

TEST_F(SolverFaults, LeaveNothingBehind) {
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
TEST_F(SolverFaults, OfTheDriverReleaseEverything) {
  const std::vector<std::vector<const char*>> calls = {
      {"taucs.factor.LLT=true"},
      {"taucs.factor.LLT=true", "taucs.factor.mf=true", "taucs.factor.ordering=genmmd"},
      {"taucs.factor.LLT=true", "taucs.factor.indefinite=true", "taucs.factor.ordering=identity"},
      {"taucs.factor.LLT=true", "taucs.factor.ordering=camd", "taucs.solve.cg=true", "taucs.approximate.amwb=true"},
      {"taucs.factor=false", "taucs.solve.minres=true"},
      {"taucs.factor.LU=true", "taucs.factor.ordering=identity"}};
  for (const auto& call : calls) {
    std::vector<char*> options;
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
