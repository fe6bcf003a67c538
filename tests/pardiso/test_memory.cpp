// Memory that fails: each allocation of each phase in turn, alone and with all that follow.
#include "tests/pardiso/systems.hpp"
#include "tests/support/failing_host.hpp"

namespace pardiso_test {
namespace {

// The steps of a host, through the library under test.
class Steps {
 public:
  Steps(const quorin::test::FailingHost& host, const Matrix& A) : host_(host), A_(A), mtype_(A.mtype), n_(A.n()) {
    for (const Complex value : A.a) a_.push_back(value.real());
    host_->sPARDISOINIT(pt.data(), &mtype_, iparm.data());
    b_.assign(static_cast<std::size_t>(n_) * 3, 1.0);
    x_ = b_;
  }
  int call(int phase) {
    const std::int32_t one = 1, three = 3, silent = 0;
    std::int32_t error = 7;
    host_->PARDISO(pt.data(), &one, &one, &mtype_, &phase, &n_, a_.data(), A_.ia.data(), A_.ja.data(), perm.data(),
                   &three, iparm.data(), &silent, b_.data(), x_.data(), &error);
    return error;
  }
  // Blocks that the library holds, without the buffers that it keeps.
  int live_blocks() const {
    host_->sMKL_FreeBuffers();
    return host_.live_blocks();
  }
  bool is_zero() const { return pt == std::array<void*, 64>{}; }

  std::array<void*, 64> pt{};
  std::array<std::int32_t, 64> iparm{};
  std::vector<std::int32_t> perm;

 private:
  const quorin::test::FailingHost& host_;
  const Matrix& A_;
  std::int32_t mtype_, n_;
  std::vector<double> a_, b_, x_;
};

constexpr int kMost = 3000;

// Fails allocations of `phase` until it succeeds. What came before it is done once, and must still be there each time.
template <class Prepare>
void expect_no_memory(const quorin::test::FailingHost& host, const Matrix& A, int before, int phase,
                      const Prepare& prepare) {
  SCOPED_TRACE(testing::Message() << "mtype " << A.mtype << ", phase " << phase);
  for (const int failures : {1, kMost}) {
    Steps steps(host, A);
    prepare(steps);
    if (before != 0) {
      ASSERT_EQ(steps.call(before), 0);
    }
    int k = 1, error = -1;
    while (host.run_failing(k, failures, [&] { error = steps.call(phase); })) {
      if (error == 0) {  // something was done with less memory, or on fewer threads
        ASSERT_LT(++k, kMost);
        continue;
      }
      EXPECT_EQ(error, -2) << "allocation " << k;
      if (before == 0) {
        if (phase == 11) {
          EXPECT_TRUE(steps.is_zero()) << "allocation " << k;
        }
        EXPECT_EQ(steps.call(-1), 0) << "allocation " << k;
        EXPECT_EQ(steps.live_blocks(), 0) << "allocation " << k;
        prepare(steps);
      }
      if (phase == 22) {
        EXPECT_EQ(steps.call(33), -1) << "allocation " << k;
      }
      ASSERT_LT(++k, kMost);
    }
    EXPECT_GT(k, 1) << "the phase takes no memory";
    EXPECT_EQ(error, 0);
    EXPECT_EQ(steps.call(-1), 0);
    EXPECT_EQ(steps.live_blocks(), 0);
  }
}

TEST(WithoutMemory, EveryPhaseSaysSo) {
  const quorin::test::FailingHost host;
  const auto grid = quorin::test::convection_diffusion(9, 3.0);
  const auto defaults = [](Steps&) {};
  for (const int mtype : {11, 2, -2}) {
    const Matrix A = matrix_of(grid, mtype);
    expect_no_memory(host, A, 0, 11, defaults);
    expect_no_memory(host, A, 11, 22, defaults);
    expect_no_memory(host, A, 12, 33, [](Steps& steps) { steps.iparm[7] = 2; });
  }
  const auto flags = [](Steps& steps) {
    steps.perm.assign(81, 0);
    for (std::size_t i = 5; i < 81; i += 20) steps.perm[i] = 1;
  };
  const Matrix A = matrix_of(grid, 11);
  expect_no_memory(host, A, 0, 12, [&](Steps& steps) { flags(steps), steps.iparm[35] = 2; });
  expect_no_memory(host, A, 12, 33, [&](Steps& steps) { flags(steps), steps.iparm[35] = 2; });
  expect_no_memory(host, A, 0, 12, [&](Steps& steps) { flags(steps), steps.iparm[30] = 3, steps.iparm[55] = 1; });
  expect_no_memory(host, A, 13, 23, [](Steps& steps) { steps.iparm[3] = 61; });
  expect_no_memory(host, matrix_of(grid, -2), 0, 12, [](Steps& steps) { steps.iparm[10] = steps.iparm[12] = 1; });
  // Rows in disorder.
  Matrix unsorted = A;
  std::swap(unsorted.ja[0], unsorted.ja[1]);
  expect_no_memory(host, unsorted, 0, 13, defaults);
}

// iparm(15), (16), (17) beside what the allocator is asked for, of orderings on graphs with few and with many edges.
// The buffers of the kernels are not counted: they are the library's, and there from the first call on.
TEST(Memory, IsWhatTheAnalysisSays) {
  const quorin::test::FailingHost host;
  const auto dominant = [](quorin::test::SparseMatrix S) {
    for (auto& entry : S.entries) entry.value = entry.row == entry.column ? 30.0 : -1.0;
    S.mirror();
    return S;
  };
  for (const auto& S : {dominant(quorin::test::grid(60, 60, 1)), dominant(quorin::test::grid(14, 14, 14, true))}) {
    for (const int mtype : {2, -2, 11, 1}) {
      for (const int ordering : {0, 2}) {
        SCOPED_TRACE(testing::Message() << "n " << S.rows << ", mtype " << mtype << ", iparm(2) = " << ordering);
        const Matrix A = matrix_of(S, mtype);
        Steps steps(host, A);
        steps.iparm[1] = ordering;
        EXPECT_EQ(steps.call(13), 0);
        EXPECT_EQ(steps.call(-1), 0);
        const auto run = [&](int phase) { return host.measure([&] { EXPECT_EQ(steps.call(phase), 0); }); };
        const auto analysis = run(11), factorization = run(22), solution = run(33);
        const double numeric = std::max(factorization.most, factorization.kept + solution.most);
        const auto expect_cell = [&](std::size_t number, double bytes, double least, double most) {
          const double said = 1024.0 * steps.iparm[number - 1];
          EXPECT_GE(said, least * bytes) << "iparm(" << number << ")";
          EXPECT_LE(said, most * bytes + 1024) << "iparm(" << number << ")";
        };
        expect_cell(15, analysis.most, 0.85, 1.3);
        expect_cell(16, analysis.kept, 0.95, 1.05);
        expect_cell(17, numeric, 0.9, 1.3);
        EXPECT_EQ(steps.call(-1), 0);
      }
    }
  }
}

}  // namespace
}  // namespace pardiso_test
