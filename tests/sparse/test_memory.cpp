// The k-th allocation of an ordering fails, for k = 1, 2, ... until it no longer notices: it says so, and nothing is
// lost. The libraries that we call ask in vain, too.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>

#include "base/thread_settings.hpp"
#include "dense/dense.hpp"
#include "platform/platform.hpp"
#include "tests/sparse/systems.hpp"
#include "tests/sparse/watched_heap.hpp"

namespace quorin::sparse::test {
namespace {

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

void run(const char* name, const Call& call, const Matrix& A, int failures) {
  SCOPED_TRACE(name);
  bool succeeded = false;
  int k = 1;
  for (; !succeeded && k < 5000; ++k) {
    Arrays arrays(A.columns);
    heap = {};
    heap.watches = true;
    heap.fail_at = k;
    heap.failures = failures;
    const Outcome outcome = call(A, arrays.ordering());
    const bool failed = heap.asked >= k;
    heap.watches = false;
    EXPECT_EQ(heap.live, 0) << "allocation " << k;
    succeeded = outcome == Outcome::kDone;
    if (succeeded) {
      EXPECT_TRUE(arrays.is_valid());
    } else {
      EXPECT_EQ(outcome, Outcome::kOutOfMemory) << "allocation " << k;
      EXPECT_TRUE(failed);
    }
  }
  EXPECT_GT(k, 2) << "the first allocation is one that no ordering can do without";
  EXPECT_TRUE(succeeded);
}

TEST(Memory, RunsOutWithoutLossAndWithoutAnEnd) {
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
  for (const auto& [name, call] : calls) {
    for (const int failures : {1, 1'000'000}) run(name, call, A, failures);
  }
}

// Of its own, METIS would lay a handler and raise the signal.
TEST(Memory, OfMetisRunsOutWithoutASignal) {
  static volatile std::sig_atomic_t caught;
  caught = 0;
  const auto handler = [](int) { caught = 1; };
  const auto before = std::signal(SIGABRT, handler);
  const Graph graph = graph_of(grid(15, 15, 2, false));
  Arrays arrays(graph.size());
  heap = {};
  heap.watches = true;
  heap.fail_at = 20;
  EXPECT_EQ(order_metis(graph, arrays.ordering()), Outcome::kOutOfMemory);
  heap.watches = false;
  EXPECT_EQ(caught, 0);
  EXPECT_EQ(std::signal(SIGABRT, before), static_cast<void (*)(int)>(handler));
}

// Every allocation of a plan, an assembly, a factorization on two threads and solves fails once.
TEST(Memory, OfFactorsRunsOutWithoutLossAndThePlanStaysUsable) {
  const System<double> A = dominant_system<double>(grid(30, 31, 1, false), Symmetry::kGeneral, true, 1.1, 1);
  Solved<double> arrays(A);
  const Graph graph = graph_of(arrays.matrix);
  Arrays order(A.n);
  order_identity(A.n, order.ordering());
  const FactorOptions options{.factorization = Factorization::kLU, .pivoting = Pivoting::kPartial, .threads = 2};
  // A worker that comes or goes while the heap is watched would be counted.
  const int block_time = base::block_time();
  base::set_block_time(platform::kForever);
  ASSERT_EQ(arrays.compute(options), FactorOutcome::kDone);
  arrays.factor.clear();
  dense::release_buffers();
  std::vector<double> x(static_cast<std::size_t>(A.n) * 5, 1.0), before(x);
  bool succeeded = false;
  int k = 0;
  while (!succeeded && ++k < 1000) {
    heap = {};
    heap.watches = true;
    heap.fail_at = k;
    {
      Plan plan;
      Assembly assembly;
      Factor<double> factor;
      const bool is_planned =
          plan.build(graph, order.ordering()) == Outcome::kDone &&
          assembly.build(plan, arrays.matrix.pattern(),
                         {.panels = PanelKind::kUnsymmetric, .symmetry = Symmetry::kGeneral}) == Outcome::kDone;
      if (is_planned) {
        FactorOutcome outcome = factor.compute(plan, assembly, {arrays.values.data()}, options);
        if (outcome != FactorOutcome::kDone) {
          EXPECT_EQ(outcome, FactorOutcome::kOutOfMemory) << "allocation " << k;
          EXPECT_EQ(factor.compute(plan, assembly, {arrays.values.data()}, options), FactorOutcome::kDone);
        }
        succeeded = heap.asked < k;
        for (const int nrhs : {1, 5}) {
          std::copy(x.begin(), x.end(), before.begin());
          outcome = solve(factor, Operation::kPlain, Stage::kAll, nrhs, x.data(), A.n, 2);
          EXPECT_TRUE(outcome == FactorOutcome::kDone || (outcome == FactorOutcome::kOutOfMemory && x == before));
          succeeded = succeeded && outcome == FactorOutcome::kDone;
        }
        succeeded = succeeded && heap.asked < k;
      }
    }
    dense::release_buffers();
    heap.watches = false;
    EXPECT_EQ(heap.live, 0) << "allocation " << k;
  }
  base::set_block_time(block_time);
  EXPECT_GT(k, 20);
  EXPECT_TRUE(succeeded);
}

// The estimates before a factorization, and what it asks for.
TEST(Memory, OfFactorsIsWhatWasEstimated) {
  for (const Matrix& pattern : {grid(150, 150, 1, false), grid(17, 17, 17, false)}) {
    for (const Factorization factorization : {Factorization::kLLT, Factorization::kLDLT, Factorization::kLU}) {
      const bool is_lu = factorization == Factorization::kLU;
      const System<double> A =
          dominant_system<double>(pattern, is_lu ? Symmetry::kGeneral : Symmetry::kSymmetric, true, 1.1, 1);
      Solved<double> solved(A);
      const FactorOptions options{.factorization = factorization,
                                  .pivoting = is_lu ? Pivoting::kPartial : Pivoting::kBunchKaufman};
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);  // which leaves a buffer of the kernels to the next
      solved.factor.clear();
      heap = {};
      heap.watches = true;
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
      heap.watches = false;
      const auto factor = static_cast<double>(factor_bytes<double>(solved.plan, options));
      const auto peak = static_cast<double>(peak_bytes<double>(solved.plan, options));
      EXPECT_NEAR(static_cast<double>(heap.bytes) / factor, 1, 0.05);
      EXPECT_NEAR(static_cast<double>(heap.most_bytes) / peak, 1, 0.05);
      EXPECT_LE(static_cast<double>(heap.most_bytes) / factor, 1.10) << pattern.name;
      heap.watches = true;
      solved.factor.clear();
      heap.watches = false;
      EXPECT_EQ(heap.live, 0);
    }
  }
}

}  // namespace
}  // namespace quorin::sparse::test
