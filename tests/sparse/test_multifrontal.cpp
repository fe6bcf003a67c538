// The multifrontal method beside the left-looking one: the same pivots, and the same panels up to rounding.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#endif

#include "tests/sparse/systems.hpp"

namespace quorin::sparse::test {
namespace {

constexpr Kind kKinds[] = {
    {Factorization::kLLT, Pivoting::kInOrder, Symmetry::kHermitian},
    {Factorization::kLDLH, Pivoting::kInOrder, Symmetry::kHermitian},
    {Factorization::kLDLH, Pivoting::kBunchKaufman, Symmetry::kHermitian},
    {Factorization::kLDLT, Pivoting::kBunchKaufman, Symmetry::kSymmetric},
    {Factorization::kLU, Pivoting::kPartial, Symmetry::kGeneral},
    {Factorization::kLU, Pivoting::kComplete, Symmetry::kHermitian},
};

std::vector<Matrix> patterns() {
  Edges path(200), arrow(50);
  for (int i = 0; i + 1 < 200; ++i) path.add(i, i + 1);
  for (int i = 1; i < 50; ++i) arrow.add(i, 0);
  return {Edges(0).matrix("none"),  Edges(1).matrix("one"),     Edges(30).matrix("diagonal"), path.matrix("path"),
          arrow.matrix("arrow"),    complete_bipartite(12, 30), grid(40, 23, 1, false),       grid(9, 8, 7, false),
          random_matrix(90, 60, 1), random_matrix(90, 700, 3),  random_forest(80, 5, 3, 2)};
}

// What stands in the panels and means something: of a symmetric one the lower triangle.
template <Scalar T>
std::vector<T> elements(const Factor<T>& factor) {
  const Plan& plan = factor.plan();
  const PanelKind kind = factor.panels().kind();
  std::vector<T> all;
  for (int s = 0; s < plan.supernodes(); ++s) {
    const PinnedPanel<T> panel(factor.panels(), s);
    const int height = plan.height(kind, s);
    for (int k = 0; k < plan.columns(s); ++k) {
      const T* const column = panel.data() + std::ptrdiff_t{k} * height;
      all.insert(all.end(), column + (kind == PanelKind::kSymmetric ? k : 0), column + height);
    }
  }
  return all;
}

template <class T>
class Multifrontal : public testing::Test {};
using Scalars = testing::Types<float, double, std::complex<float>, std::complex<double>>;
TYPED_TEST_SUITE(Multifrontal, Scalars);

TYPED_TEST(Multifrontal, MakesTheSameFactors) {
  using T = TypeParam;
  unsigned seed = 0;
  for (const Matrix& pattern : patterns()) {
    SCOPED_TRACE(pattern.name);
    for (const Kind& kind : kKinds) {
      SCOPED_TRACE("kind " + std::to_string(&kind - kKinds));
      for (const int schur_size : {0, std::min(5, pattern.columns)}) {
        // The diagonal is so large that rounding does not choose other pivots.
        const bool is_definite = kind.factorization == Factorization::kLLT;
        const System<T> A = dominant_system<T>(pattern, kind.symmetry, is_definite, 2, ++seed);
        Solved<T> solved(A, {.schur_size = schur_size});
        FactorOptions options{.factorization = kind.factorization, .pivoting = kind.pivoting};
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
        const PivotCounts counts = solved.factor.report().pivots;
        const std::vector<T> expected = elements(solved.factor);
        options.method = Method::kMultifrontal;
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
        const std::vector<T> made = elements(solved.factor);
        EXPECT_EQ(solved.factor.report().pivots.positive, counts.positive);
        EXPECT_EQ(solved.factor.report().pivots.negative, counts.negative);
        double largest = 0, difference = 0;
        for (std::size_t i = 0; i < expected.size(); ++i) {
          largest = std::max<double>(largest, std::abs(expected[i]));
          difference = std::max<double>(difference, std::abs(made[i] - expected[i]));
        }
        EXPECT_LE(difference, tolerance<T>(A.n) * largest);
        if (schur_size == 0) {
          EXPECT_LE(solved.error(Operation::kPlain, 3), tolerance<T>(A.n));
        }
      }
    }
  }
}

TYPED_TEST(Multifrontal, HasTheSameBitsOnAnyNumberOfThreads) {
  using T = TypeParam;
  for (const Matrix& pattern : {grid(60, 55, 1, false), grid(13, 12, 11, false)}) {
    for (const Kind& kind : kKinds) {
      const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.factorization == Factorization::kLLT, 1.1, 9);
      Solved<T> solved(A);
      std::vector<T> first;
      for (const int threads : {1, 2, 3, 8}) {
        const FactorOptions options{.factorization = kind.factorization,
                                    .method = Method::kMultifrontal,
                                    .pivoting = kind.pivoting,
                                    .threads = threads};
        ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
        const std::vector<T> all = elements(solved.factor);
        if (threads == 1) first = all;
        EXPECT_EQ(std::memcmp(all.data(), first.data(), all.size() * sizeof(T)), 0) << threads;
      }
      EXPECT_LE(solved.error(Operation::kPlain, 1), tolerance<T>(A.n));
    }
  }
}

// Pivots that are not diagonal, whose number of each sign does not depend on the method.
TYPED_TEST(Multifrontal, CountsTheSameSigns) {
  using T = TypeParam;
  for (const Matrix& pattern : {grid(12, 11, 1, false), random_matrix(90, 300, 4)}) {
    System<T> A = dominant_system<T>(pattern, Symmetry::kHermitian, false, 0.3, 5);
    for (std::size_t k = 0; k < A.entries.size(); ++k) {
      if (A.entries[k].row == A.entries[k].column && k % 2 == 0) A.entries[k].value *= RealOf<T>{0.01F};
    }
    Solved<T> solved(A);
    FactorOptions options{.factorization = Factorization::kLDLH, .pivoting = Pivoting::kBunchKaufman};
    ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
    const PivotCounts counts = solved.factor.report().pivots;
    EXPECT_GT(counts.negative, 0);
    options.method = Method::kMultifrontal;
    ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
    EXPECT_EQ(solved.factor.report().pivots.positive, counts.positive);
    EXPECT_EQ(solved.factor.report().pivots.negative, counts.negative);
  }
}

TYPED_TEST(Multifrontal, NamesTheColumnThatFails) {
  using T = TypeParam;
  const int bad = 777;
  for (const int threads : {1, 3}) {
    System<T> A = dominant_system<T>(grid(40, 40, 1, false), Symmetry::kHermitian, true, 1.1, 1);
    Solved<T> solved(A);
    const FactorOptions options{.method = Method::kMultifrontal, .threads = threads};
    ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
    for (std::size_t k = 0; k < A.entries.size(); ++k) {
      if (A.entries[k].row == bad && A.entries[k].column == bad) A.entries[k].value = T{-1};
    }
    solved.values = Solved<T>(A).values;
    EXPECT_EQ(solved.compute(options), FactorOutcome::kNotPositiveDefinite);
    EXPECT_EQ(solved.factor.report().failed_column, bad);
    solved.values[0] = std::numeric_limits<RealOf<T>>::quiet_NaN();
    EXPECT_EQ(solved.compute(options), FactorOutcome::kNotFinite);
  }
}

using Work = std::function<void()>;

#if defined(_WIN32)
DWORD WINAPI run_work(void* work) {
  (*static_cast<const Work*>(work))();
  return 0;
}
#else
void* run_work(void* work) {
  (*static_cast<const Work*>(work))();
  return nullptr;
}
#endif

// Runs `work` on a thread with a small stack.
void run_on_small_stack(Work work) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  constexpr std::size_t kBytes = 256 * 1024;
#else
  constexpr std::size_t kBytes = 64 * 1024;
#endif
#if defined(_WIN32)
  HANDLE thread = CreateThread(nullptr, kBytes, run_work, &work, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  ASSERT_NE(thread, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
#else
  pthread_attr_t attributes;
  pthread_t thread{};
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, kBytes);
  const int failed = pthread_create(&thread, &attributes, run_work, &work);
  pthread_attr_destroy(&attributes);
  ASSERT_EQ(failed, 0);
  pthread_join(thread, nullptr);
#endif
}

// An elimination tree that is one path of a million steps.
TEST(DeepTree, NeedsNoDeepStack) {
  const int n = 1'000'000;
  const auto size = static_cast<std::size_t>(n);
  std::vector<int> starts(size + 1), rows, order(size), inverse(size);
  std::vector<double> values;
  for (int j = 0; j < n; ++j) {
    order[static_cast<std::size_t>(j)] = inverse[static_cast<std::size_t>(j)] = j;
    rows.push_back(j);
    values.push_back(4);
    if (j + 1 < n) {
      rows.push_back(j + 1);
      values.push_back(-1);
    }
    starts[static_cast<std::size_t>(j) + 1] = static_cast<int>(rows.size());
  }
  const Pattern pattern{n, n, starts.data(), rows.data()};
  run_on_small_stack([&] {
    Graph graph;
    Plan plan;
    Assembly assembly;
    ASSERT_EQ(build_graph(pattern, graph), Outcome::kDone);
    ASSERT_EQ(plan.build(graph, {order.data(), inverse.data()}), Outcome::kDone);
    ASSERT_EQ(plan.depth(), n);
    ASSERT_EQ(assembly.build(plan, pattern, {}), Outcome::kDone);
    for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
      Factor<double> factor;
      ASSERT_EQ(factor.compute(plan, assembly, {values.data()}, {.method = method}), FactorOutcome::kDone);
      // b = A 1: 3 at the ends, 2 between.
      std::vector<double> x(size, 2.0);
      x[0] = x[size - 1] = 3;
      std::vector<double> permuted(size);
      permute(n, plan.permutation(), x.data(), permuted.data());
      ASSERT_EQ(solve(factor, Operation::kPlain, Stage::kAll, 1, permuted.data(), n), FactorOutcome::kDone);
      for (const double value : permuted) ASSERT_NEAR(value, 1, 1e-14);
    }
  });
}

}  // namespace
}  // namespace quorin::sparse::test
