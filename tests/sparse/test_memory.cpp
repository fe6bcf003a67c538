// Memory of orderings and factorizations: the k-th allocation fails, for k = 1, 2, ... until none does any more, and
// what is taken beside what was announced. The libraries that we call ask in vain, too.
#include <csignal>

#include "base/thread_settings.hpp"
#include "dense/dense.hpp"
#include "platform/platform.hpp"
#include "sparse/numeric/archive.hpp"
#include "sparse/orderings/dissection.hpp"
#include "tests/sparse/files.hpp"
#include "tests/sparse/systems.hpp"
#include "tests/sparse/watched_heap.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

constexpr std::uint64_t kPlenty = std::uint64_t{1} << 30;

// Runs `work` until no allocation of it fails any more; each fails alone or with all after it. `work` can do without
// some. `clear` gives back all that it made.
template <class Result>
void fail_each_allocation(
    const std::function<Result()>& work, const std::function<void()>& clear = [] {}) {
  bool failed = true;
  int k = 1, failures = 0;
  for (; failed && k < 5000; ++k) {
    heap = {};
    heap.fail_at = k;
    heap.failures = k % 2 == 0 ? 1'000'000 : 1;
    heap.watches = true;
    const Result outcome = work();
    failed = heap.asked >= k;
    clear();
    dense::release_buffers();
    heap.watches = false;
    EXPECT_EQ(heap.live, 0) << "allocation " << k;
    if (outcome == Result::kDone) continue;
    EXPECT_EQ(outcome, Result::kOutOfMemory) << "allocation " << k;
    EXPECT_TRUE(failed);
    ++failures;
  }
  EXPECT_FALSE(failed);
  EXPECT_GT(failures, 1);
}

using Call = std::function<Outcome(const Matrix&, const Ordering&)>;

Call on_graph(Outcome (*order)(const Graph&, const Ordering&) noexcept) {
  return [order](const Matrix& A, const Ordering& ordering) {
    Graph graph;
    const Outcome outcome = build_graph(A.pattern(), graph);
    return outcome == Outcome::kDone ? order(graph, ordering) : outcome;
  };
}

// With pairs and scales of a symmetric matrix, or a row permutation of a general one.
Outcome preprocessed(const Matrix& A, const Ordering& ordering, Symmetry symmetry) {
  heap.watches = false;
  static std::vector<double> values;
  values.resize(A.indices.size());
  for (std::size_t k = 0; k < values.size(); ++k) values[k] = 1.0 + static_cast<double>(k % 7);
  const int last[] = {3, 70};
  heap.watches = true;
  Preprocessing<double> result;
  const ColumnMatrix<double> matrix{A.pattern(), values.data()};
  switch (preprocess(matrix, {.symmetry = symmetry, .scales = true, .matches = true, .last = last}, result)) {
    case MatchingOutcome::kDone:
      std::copy_n(result.permutation.data(), A.columns, ordering.permutation);
      std::copy_n(result.inverse.data(), A.columns, ordering.inverse);
      return Outcome::kDone;
    case MatchingOutcome::kOutOfMemory:
      return Outcome::kOutOfMemory;
    default:
      return Outcome::kFailed;
  }
}

TEST(Memory, OfOrderingsRunsOutWithoutLoss) {
  const Matrix A = grid(15, 15, 2, false);
  const std::pair<const char*, Call> calls[] = {
      {"minimum degree", on_graph(order_minimum_degree)},
      {"tree", on_graph(order_tree)},
      {"metis", on_graph(order_metis)},
      {"amd", [](const Matrix& B, const Ordering& o) { return order_amd(B.pattern(), o); }},
      {"pairs", [](const Matrix& B, const Ordering& o) { return preprocessed(B, o, Symmetry::kSymmetric); }},
      {"matching", [](const Matrix& B, const Ordering& o) { return preprocessed(B, o, Symmetry::kGeneral); }},
      {"colamd", [](const Matrix& B, const Ordering& o) { return order_colamd(B.pattern(), o); }},
  };
  for (const auto& call : calls) {
    SCOPED_TRACE(call.first);
    std::vector<int> permutation(static_cast<std::size_t>(A.columns)), inverse(permutation);
    fail_each_allocation<Outcome>([&] { return call.second(A, {permutation.data(), inverse.data()}); });
  }
}

// Of its own, METIS would lay a handler and raise the signal.
TEST(Memory, OfMetisRunsOutWithoutASignal) {
  static volatile std::sig_atomic_t caught;
  caught = 0;
  const auto handler = [](int) { caught = 1; };
  const auto before = std::signal(SIGABRT, handler);
  base::set_thread_count(base::Domain::kAll, 1);
  for (const Matrix& A : {grid(15, 15, 2, false), grid(95, 90, 1, false)}) {
    const Graph graph = graph_of(A);
    Arrays arrays(graph.size());
    for (const int k : {2, 20, 60, 500, 2000}) {
      heap = {};
      heap.watches = true;
      heap.fail_at = k;
      const Outcome outcome = order_dissection(graph, arrays.ordering());
      heap.watches = false;
      EXPECT_EQ(outcome, heap.asked >= k ? Outcome::kOutOfMemory : Outcome::kDone) << k;
      EXPECT_EQ(heap.live, 0) << k;
    }
  }
  base::set_thread_count(base::Domain::kAll, 0);
  EXPECT_EQ(caught, 0);
  EXPECT_EQ(std::signal(SIGABRT, before), static_cast<void (*)(int)>(handler));
}

class FactorMemory : public testing::Test {
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

TEST_F(FactorMemory, RunsOutInEitherMethod) {
  for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
    for (const int threads : {1, 3}) {
      options_.method = method;
      options_.threads = threads;
      fail_each_allocation<FactorOutcome>([&] { return solved_.compute(options_); }, [&] { solved_.factor.clear(); });
    }
  }
}

TEST_F(FactorMemory, RunsOutWithFiles) {
  const std::string name = folder_.file("factor");
  PanelFiles files;
  options_.store = &files;
  const auto close = [&] {
    solved_.factor.clear();
    files.close();
  };
  fail_each_allocation<FactorOutcome>(
      [&] {
        FactorOutcome outcome = files.begin(name.c_str(), 30'000);
        if (outcome == FactorOutcome::kDone) outcome = solved_.compute(options_);
        if (outcome == FactorOutcome::kDone) outcome = Archive::complete(files, solved_.factor);
        return outcome;
      },
      close);
  Plan plan;
  Factor<double> factor;
  fail_each_allocation<FactorOutcome>([&] { return Archive::open(name.c_str(), 30'000, files, plan, factor); },
                                      [&] {
                                        factor.clear();
                                        plan = Plan();
                                        files.close();
                                      });
}

// A plan, an assembly, a factorization on three threads and solves. What was there before stays usable.
TEST_F(FactorMemory, RunsOutFromThePlanToTheSolution) {
  const System<double> A = dominant_system<double>(grid(30, 31, 1, false), Symmetry::kGeneral, true, 1.1, 1);
  const Solved<double> arrays(A);
  const Graph graph = graph_of(arrays.matrix);
  Arrays order(A.n);
  order_identity(A.n, order.ordering());
  const FactorOptions options{.factorization = Factorization::kLU, .pivoting = Pivoting::kPartial, .threads = 3};
  std::vector<double> x(static_cast<std::size_t>(A.n) * 5, 1.0), before(x);
  fail_each_allocation<FactorOutcome>([&] {
    Plan plan;
    Assembly assembly;
    Factor<double> factor;
    Outcome planned = plan.build(graph, order.ordering());
    if (planned == Outcome::kDone) {
      planned = assembly.build(plan, arrays.matrix.pattern(), {.panels = PanelKind::kUnsymmetric});
    }
    if (planned == Outcome::kOutOfMemory) return FactorOutcome::kOutOfMemory;
    EXPECT_EQ(planned, Outcome::kDone);
    FactorOutcome outcome = factor.compute(plan, assembly, {arrays.values.data()}, options);
    if (outcome != FactorOutcome::kDone && heap.failures > 1) return outcome;
    if (outcome != FactorOutcome::kDone) {
      EXPECT_EQ(factor.compute(plan, assembly, {arrays.values.data()}, options), FactorOutcome::kDone);
    }
    for (const int nrhs : {1, 5}) {
      std::copy(x.begin(), x.end(), before.begin());
      const FactorOutcome solved = solve(factor, Operation::kPlain, Stage::kAll, nrhs, x.data(), A.n, 2);
      EXPECT_TRUE(solved == FactorOutcome::kDone || x == before);
      if (solved != FactorOutcome::kDone) outcome = solved;
    }
    return outcome;
  });
}

// Of the multifrontal method on one thread, what it takes beside the factor is the plan's stack.
TEST_F(FactorMemory, IsWhatWasAnnounced) {
  for (const Matrix& pattern : {grid(80, 75, 1, false), grid(14, 13, 12, false)}) {
    for (const Kind& kind : {kKinds[0], kKinds[6], kKinds[8]}) {
      const System<double> A = dominant_system<double>(pattern, kind.symmetry, true, 1.1, 6);
      Solved<double> solved(A);
      for (const int variant : {0, 1, 2, 4}) {
        SCOPED_TRACE(pattern.name + ", " + std::to_string(variant));
        const FactorOptions options = variant == 0 ? kind.options() : kind.options(Method::kMultifrontal, variant);
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);  // workers and buffers are there now
        solved.factor.clear();
        heap = {};
        heap.watches = true;
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
        heap.watches = false;
        const auto factor = static_cast<double>(factor_bytes<double>(solved.plan, options));
        const auto taken = static_cast<double>(heap.most_bytes);
        EXPECT_NEAR(static_cast<double>(heap.bytes) / factor, 1, 0.05);
        EXPECT_NEAR(static_cast<double>(peak_bytes<double>(solved.plan, options)) / taken, 1, 0.05);
        const auto stack = static_cast<double>(solved.plan.stack_elements()) * sizeof(double);
        EXPECT_TRUE(variant != 0 || taken <= 1.10 * factor);
        EXPECT_TRUE(variant != 1 || taken - factor >= stack);
        heap.watches = true;
        solved.factor.clear();
        heap.watches = false;
        EXPECT_EQ(heap.live, 0);
      }
    }
  }
}

}  // namespace
}  // namespace quorin::sparse::test
