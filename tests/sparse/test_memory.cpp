// The k-th allocation of an ordering fails, for k = 1, 2, ... until it no longer notices: it says so, and nothing is
// lost. The C library's functions are wrapped at link time, so that the libraries that we call ask in vain,
// too.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <functional>

#include "tests/sparse/matrices.hpp"

namespace {

struct Heap {
  bool watches = false;
  int asked = 0, live = 0;
  int fail_at = 0, failures = 1;

  bool refuses() {
    if (!watches) return false;
    ++asked;
    return asked >= fail_at && asked < fail_at + failures;
  }
  void* count(void* block) {
    live += watches && block != nullptr;
    return block;
  }
} heap;

}  // namespace

extern "C" {
void* __real_malloc(std::size_t bytes);
void* __real_calloc(std::size_t count, std::size_t bytes);
void* __real_realloc(void* block, std::size_t bytes);
void __real_free(void* block);

void* __wrap_malloc(std::size_t bytes) { return heap.refuses() ? nullptr : heap.count(__real_malloc(bytes)); }
void* __wrap_calloc(std::size_t count, std::size_t bytes) {
  return heap.refuses() ? nullptr : heap.count(__real_calloc(count, bytes));
}
void* __wrap_realloc(void* block, std::size_t bytes) {
  if (heap.refuses()) return nullptr;
  void* const moved = __real_realloc(block, bytes);
  return block == nullptr ? heap.count(moved) : moved;
}
void __wrap_free(void* block) {
  heap.live -= heap.watches && block != nullptr;
  __real_free(block);
}
}

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
    heap = {.watches = true, .fail_at = k, .failures = failures};
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
  heap = {.watches = true, .fail_at = 20, .failures = 1};
  EXPECT_EQ(order_metis(graph, arrays.ordering()), Outcome::kOutOfMemory);
  heap.watches = false;
  EXPECT_EQ(caught, 0);
  EXPECT_EQ(std::signal(SIGABRT, before), static_cast<void (*)(int)>(handler));
}

}  // namespace
}  // namespace quorin::sparse::test
