// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ... until the call no longer notices.
// UMFPACK recovers from some failures itself, so a call may succeed all the same.
#include "tests/support/failing_host.hpp"
#include "tests/support/standard.hpp"

namespace quorin::test {
namespace {

// A band matrix, wide enough for fronts that need the BLAS, and the calls of a host that has it.
struct Problem : FailingHost {
  Problem() {
    for (int j = 0; j < n; ++j) {
      for (int i = j % 3; i < n; i += 3) {
        Ai.push_back(i);
        Ax.push_back(i == j ? 50.0F : static_cast<float>(i % 7 - j % 5));
      }
      Ap.push_back(static_cast<int>(Ai.size()));
    }
  }
  int make_symbolic() {
    return (*this)->umfpack_zi_symbolic(n, n, Ap.data(), Ai.data(), Ax.data(), Ax.data(), &Symbolic, nullptr, nullptr);
  }
  int make_numeric() {
    return (*this)->umfpack_zi_numeric(Ap.data(), Ai.data(), Ax.data(), Ax.data(), Symbolic, &Numeric, nullptr,
                                       nullptr);
  }
  int solve() {
    return (*this)->umfpack_zi_solve(0, Ap.data(), Ai.data(), Ax.data(), Ax.data(), x.data(), x.data() + n, b.data(),
                                     b.data(), Numeric, nullptr, nullptr);
  }
  int get_diagonal_and_scale() {
    return (*this)->umfpack_zi_get_numeric(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                           nullptr, nullptr, x.data(), x.data() + n, nullptr, b.data(), Numeric);
  }
  int transpose() {
    std::vector<int> Rp(Ap.size()), Ri(Ai.size());
    std::vector<float> Rx(Ax.size()), Rz(Ax.size());
    return (*this)->umfpack_zi_transpose(n, n, Ap.data(), Ai.data(), Ax.data(), Ax.data(), nullptr, nullptr, Rp.data(),
                                         Ri.data(), Rx.data(), Rz.data(), 0);
  }
  void free_symbolic() { (*this)->umfpack_zi_free_symbolic(&Symbolic); }
  void free_numeric() { (*this)->umfpack_zi_free_numeric(&Numeric); }
  void free_buffers() const { (*this)->sMKL_FreeBuffers(); }

  int n = 120;
  std::vector<int> Ap{0}, Ai;
  std::vector<float> Ax, x = std::vector<float>(240, -1), b = std::vector<float>(120, 1);
  void *Symbolic = nullptr, *Numeric = nullptr;
};

// `object` is what the call makes, if it makes one, and is freed by `release`.
void expect_survival(
    const Problem& p, int failures, const std::function<int()>& call, void* const* object = nullptr,
    const std::function<void()>& release = [] {}) {
  constexpr int kMostAllocations = 500;
  int k = 1, refusals = 0;
  for (bool failed = true; failed && k < kMostAllocations; ++k) {
    SCOPED_TRACE("allocation " + std::to_string(k));
    p.free_buffers();
    const int live = p.live_blocks();
    int status = 7;
    failed = p.run_failing(k, failures, [&] { status = call(); });
    ASSERT_TRUE(status == 0 || status == -1) << status;
    refusals += status == -1 ? 1 : 0;
    EXPECT_TRUE(object == nullptr || (*object == nullptr) == (status == -1));
    release();
    p.free_buffers();
    EXPECT_EQ(p.live_blocks(), live);
  }
  EXPECT_LT(k, kMostAllocations);
  EXPECT_GE(k, 4) << "the call allocates";
  EXPECT_GE(refusals, (k - 2) / 2) << "most allocations are needed";
}

TEST(UmfpackFaults, GiveTheStatusAndLeaveNothing) {
  Problem p;
  for (const int failures : {1, 1000}) {
    SCOPED_TRACE(failures);
    const int live = p.live_blocks();
    expect_survival(
        p, failures, [&] { return p.make_symbolic(); }, &p.Symbolic, [&] { p.free_symbolic(); });
    ASSERT_EQ(p.make_symbolic(), 0);
    expect_survival(
        p, failures, [&] { return p.make_numeric(); }, &p.Numeric, [&] { p.free_numeric(); });
    ASSERT_EQ(p.make_numeric(), 0);
    ASSERT_EQ(p.solve(), 0);
    const std::vector<float> solution = p.x, untouched(p.x.size(), -1);
    expect_survival(p, failures, [&] {
      p.x = untouched;
      const int status = p.solve();
      EXPECT_EQ(p.x, status == 0 ? solution : untouched);
      return status;
    });
    expect_survival(p, failures, [&] {
      p.x = untouched;
      const int status = p.get_diagonal_and_scale();
      EXPECT_EQ(p.x == untouched, status != 0);
      return status;
    });
    std::fill(p.b.begin(), p.b.end(), 1.0F);
    expect_survival(p, failures, [&] { return p.transpose(); });
    p.free_symbolic();
    p.free_numeric();
    p.free_buffers();
    EXPECT_EQ(p.live_blocks(), live);
  }
}

}  // namespace
}  // namespace quorin::test
