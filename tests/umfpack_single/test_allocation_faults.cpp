// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ... until the call no longer notices.
// UMFPACK recovers from some failures itself, so a call may succeed all the same.
#include "tests/support/failing_host.hpp"
#include "tests/support/standard.hpp"

namespace quorin::test {
namespace {

// A band matrix, wide enough for fronts that need the BLAS.
constexpr int n = 120;
std::vector<int> Ap{0}, Ai;
std::vector<float> Ax;

// Fails the k-th allocation of the call, and `failures` - 1 after it, for every k. What the call makes is freed by
// `release`; `is_whole(status)` tells whether it is there, or nothing of it.
void expect_survival(const FailingHost& host, int failures, const std::function<int()>& call,
                     const std::function<bool(int)>& is_whole, const std::function<void()>& release) {
  constexpr int kMostAllocations = 500;
  int k = 1, refusals = 0;
  for (bool failed = true; failed && k < kMostAllocations; ++k) {
    SCOPED_TRACE("allocation " + std::to_string(k));
    host->sMKL_FreeBuffers();
    const int live = host.live_blocks();
    int status = 7;
    failed = host.run_failing(k, failures, [&] { status = call(); });
    ASSERT_TRUE(status == 0 || status == -1) << status;
    refusals += status == -1 ? 1 : 0;
    EXPECT_TRUE(is_whole(status));
    release();
    host->sMKL_FreeBuffers();
    EXPECT_EQ(host.live_blocks(), live);
  }
  EXPECT_LT(k, kMostAllocations);
  EXPECT_GE(k, 4) << "the call allocates";
  EXPECT_GE(refusals, (k - 2) / 2) << "most allocations are needed";
}

TEST(UmfpackFaults, GiveTheStatusAndLeaveNothing) {
  for (int j = 0; j < n; ++j) {
    for (int i = j % 3; i < n; i += 3) {
      Ai.push_back(i);
      Ax.push_back(i == j ? 50.0F : static_cast<float>(i % 7 - j % 5));
    }
    Ap.push_back(static_cast<int>(Ai.size()));
  }
  const int *const p = Ap.data(), *const i = Ai.data();
  const float* const a = Ax.data();
  const FailingHost host;
  void *Symbolic = nullptr, *Numeric = nullptr;
  const std::vector<float> b(n, 1), untouched(2 * n, -1);
  std::vector<float> x, scale(n), solution;
  const auto symbolic = [&] { return host->umfpack_zi_symbolic(n, n, p, i, a, a, &Symbolic, nullptr, nullptr); };
  const auto numeric = [&] { return host->umfpack_zi_numeric(p, i, a, a, Symbolic, &Numeric, nullptr, nullptr); };
  const auto solve = [&] {
    x = untouched;
    return host->umfpack_zi_solve(0, p, i, a, a, x.data(), x.data() + n, b.data(), b.data(), Numeric, nullptr, nullptr);
  };
  const auto diagonal_and_scale = [&] {
    x = untouched;
    return host->umfpack_zi_get_numeric(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                        nullptr, x.data(), x.data() + n, nullptr, scale.data(), Numeric);
  };
  const auto transpose = [&] {
    std::vector<int> Rp(Ap.size()), Ri(Ai.size());
    std::vector<float> Rx(Ax.size()), Rz(Ax.size());
    return host->umfpack_zi_transpose(n, n, p, i, a, a, nullptr, nullptr, Rp.data(), Ri.data(), Rx.data(), Rz.data(),
                                      0);
  };
  const auto nothing = [] {};
  const auto free_symbolic = [&] { host->umfpack_zi_free_symbolic(&Symbolic); };
  const auto free_numeric = [&] { host->umfpack_zi_free_numeric(&Numeric); };
  for (const int failures : {1, 1000}) {
    SCOPED_TRACE(failures);
    const int live = host.live_blocks();
    expect_survival(
        host, failures, symbolic, [&](int s) { return (Symbolic == nullptr) == (s == -1); }, free_symbolic);
    ASSERT_EQ(symbolic(), 0);
    expect_survival(
        host, failures, numeric, [&](int s) { return (Numeric == nullptr) == (s == -1); }, free_numeric);
    ASSERT_EQ(numeric(), 0);
    ASSERT_EQ(solve(), 0);
    solution = x;
    expect_survival(
        host, failures, solve, [&](int s) { return x == (s == 0 ? solution : untouched); }, nothing);
    expect_survival(
        host, failures, diagonal_and_scale, [&](int s) { return (x == untouched) == (s != 0); }, nothing);
    expect_survival(
        host, failures, transpose, [](int) { return true; }, nothing);
    free_symbolic();
    free_numeric();
    host->sMKL_FreeBuffers();
    EXPECT_EQ(host.live_blocks(), live);
  }
}

}  // namespace
}  // namespace quorin::test
