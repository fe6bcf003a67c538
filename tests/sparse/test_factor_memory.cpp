// Memory of factorizations: the k-th allocation fails, for k = 1, 2, ...; and what is taken beside what was announced.
#include <gtest/gtest.h>

#include <functional>

#include "base/thread_settings.hpp"
#include "dense/dense.hpp"
#include "platform/platform.hpp"
#include "sparse/numeric/archive.hpp"
#include "tests/sparse/files.hpp"
#include "tests/sparse/systems.hpp"
#include "tests/sparse/watched_heap.hpp"

namespace quorin::sparse::test {
namespace {

constexpr std::uint64_t kPlenty = std::uint64_t{1} << 30;

// Runs `work` until no allocation of it fails any more. It can do without some. `clear` gives back all that it made.
void fail_each_allocation(const std::function<FactorOutcome()>& work, const std::function<void()>& clear) {
  bool failed = true;
  int k = 1, failures = 0;
  for (; failed && k < 5000; ++k) {
    heap = {};
    heap.fail_at = k;
    heap.failures = k % 2 == 0 ? 1'000'000 : 1;
    heap.watches = true;
    const FactorOutcome outcome = work();
    failed = heap.asked >= k;
    clear();
    dense::release_buffers();
    heap.watches = false;
    EXPECT_EQ(heap.live, 0) << "allocation " << k;
    if (outcome == FactorOutcome::kDone) continue;
    EXPECT_EQ(outcome, FactorOutcome::kOutOfMemory) << "allocation " << k;
    EXPECT_TRUE(failed);
    ++failures;
  }
  EXPECT_FALSE(failed);
  EXPECT_GT(failures, 3);
}

class Memory : public testing::Test {
 protected:
  // Workers that come or go while the heap is watched would be counted, and buffers that are there already.
  void SetUp() override {
    dense::start();
    base::set_block_time(platform::kForever);
    options_.threads = 3;
    ASSERT_EQ(solved_.compute(options_), FactorOutcome::kDone);
    solved_.factor.clear();
    dense::release_buffers();
    options_.threads = 1;
  }
  void TearDown() override {
    base::set_block_time(block_time_);
    dense::stop();
  }

  const int block_time_ = base::block_time();
  const System<double> system_ = dominant_system<double>(grid(25, 24, 1, false), Symmetry::kHermitian, false, 1.1, 6);
  Solved<double> solved_{system_};
  FactorOptions options_{.factorization = Factorization::kLDLH, .pivoting = Pivoting::kBunchKaufman};
  Folder folder_;
};

TEST_F(Memory, RunsOutInEitherMethod) {
  for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
    for (const int threads : {1, 3}) {
      options_.method = method;
      options_.threads = threads;
      fail_each_allocation([&] { return solved_.compute(options_); }, [&] { solved_.factor.clear(); });
    }
  }
}

TEST_F(Memory, RunsOutWithFiles) {
  const std::string name = folder_.file("factor");
  PanelFiles files;
  options_.store = &files;
  const auto close = [&] {
    solved_.factor.clear();
    files.close();
  };
  fail_each_allocation(
      [&] {
        FactorOutcome outcome = files.begin(name.c_str(), 30'000);
        if (outcome == FactorOutcome::kDone) outcome = solved_.compute(options_);
        if (outcome == FactorOutcome::kDone) outcome = Archive::complete(files, solved_.factor);
        return outcome;
      },
      close);
  Plan plan;
  Factor<double> factor;
  fail_each_allocation([&] { return Archive::open(name.c_str(), 30'000, files, plan, factor); },
                       [&] {
                         factor.clear();
                         plan = Plan();
                         files.close();
                       });
}

// What the multifrontal method says that it takes is what it takes; on one thread it is the plan's stack.
TEST(FactorMemory, OfTheMultifrontalMethodIsWhatWasPlanned) {
  for (const Matrix& pattern : {grid(80, 75, 1, false), grid(14, 13, 12, false)}) {
    const System<double> A = dominant_system<double>(pattern, Symmetry::kHermitian, true, 1.1, 6);
    Solved<double> solved(A);
    for (const int threads : {1, 2, 4}) {
      const FactorOptions options{.method = Method::kMultifrontal, .threads = threads};
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);  // workers and buffers are there now
      solved.factor.clear();
      heap = {};
      heap.watches = true;
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
      heap.watches = false;
      const auto factor = static_cast<double>(factor_bytes<double>(solved.plan, options));
      const auto peak = static_cast<double>(peak_bytes<double>(solved.plan, options));
      const auto taken = static_cast<double>(heap.most_bytes);
      EXPECT_NEAR(peak / taken, 1, 0.05) << pattern.name << ' ' << threads;
      if (threads == 1) {
        const auto stack = static_cast<double>(solved.plan.stack_elements()) * sizeof(double);
        EXPECT_GE(taken - factor, stack);
        RecordProperty(pattern.name + ": bytes of the stack as planned", std::to_string(stack));
        RecordProperty(pattern.name + ": bytes taken beside the factor", std::to_string(taken - factor));
      }
      heap.watches = true;
      solved.factor.clear();
      heap.watches = false;
      EXPECT_EQ(heap.live, 0);
    }
  }
}

}  // namespace
}  // namespace quorin::sparse::test
