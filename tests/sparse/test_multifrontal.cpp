// The multifrontal method beside the left-looking one: the same pivots, and the same panels up to rounding.
#include "tests/sparse/systems.hpp"
#include "tests/support/system.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

constexpr int kChosen[] = {0, 1, 3, 6, 8, 11};  // kinds: one of each factorization and pivot search

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
TYPED_TEST_SUITE(Multifrontal, Scalars);

TYPED_TEST(Multifrontal, MakesTheSameFactors) {
  using T = TypeParam;
  unsigned seed = 0;
  for (const Matrix& pattern : patterns()) {
    SCOPED_TRACE(pattern.name);
    for (const int number : kChosen) {
      const Kind& kind = kKinds[number];
      SCOPED_TRACE(text(kind));
      for (const int schur_size : {0, std::min(5, pattern.columns)}) {
        // The diagonal is so large that rounding does not choose other pivots.
        const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 2, ++seed);
        Solved<T> solved(A, {.schur_size = schur_size});
        ASSERT_EQ(solved.compute(kind.options()), FactorOutcome::kDone);
        const PivotCounts counts = solved.factor.report().pivots;
        const std::vector<T> expected = elements(solved.factor);
        ASSERT_EQ(solved.compute(kind.options(Method::kMultifrontal)), FactorOutcome::kDone);
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

// Both methods, and solves with one right-hand side and with many.
TYPED_TEST(Multifrontal, AndLeftLookingHaveTheSameBitsOnAnyNumberOfThreads) {
  using T = TypeParam;
  for (const Matrix& pattern : {grid(60, 55, 1, false), grid(13, 12, 11, false)}) {
    for (const int number : kChosen) {
      const Kind& kind = kKinds[number];
      SCOPED_TRACE(text(kind));
      const System<T> A = dominant_system<T>(pattern, kind.symmetry, kind.is_definite(), 1.1, 9);
      Solved<T> solved(A);
      const std::vector<T> b(static_cast<std::size_t>(A.n) * 40, T{3});
      for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
        std::vector<T> first;
        for (const int threads : {1, 2, 3, 8}) {
          ASSERT_EQ(solved.compute(kind.options(method, threads)), FactorOutcome::kDone);
          std::vector<T> all = elements(solved.factor);
          for (const int nrhs : {1, 40}) {
            const std::vector<T> x =
                solved.solution(Operation::kPlain, {b.begin(), b.begin() + std::ptrdiff_t{nrhs} * A.n}, nrhs, threads);
            all.insert(all.end(), x.begin(), x.end());
          }
          if (threads == 1) first = all;
          EXPECT_EQ(std::memcmp(all.data(), first.data(), all.size() * sizeof(T)), 0) << threads;
        }
        EXPECT_LE(solved.error(Operation::kTransposed, 2, 3), tolerance<T>(A.n));
      }
    }
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
  constexpr int n = 1'000'000;
  const System<double> A = dominant_system<double>(grid(n, 1, 1, false), Symmetry::kHermitian, true, 1.1, 1);
  std::vector<int> order(n);
  std::iota(order.begin(), order.end(), 0);
  run_on_small_stack([&] {
    Solved<double> solved(A, {}, order.data());
    ASSERT_EQ(solved.plan.depth(), n);
    EXPECT_EQ(solved.plan.entries(), 2 * n - 1);
    for (const auto& [kind, method] :
         {std::pair(kKinds[0], Method::kLeftLooking), {kKinds[3], Method::kMultifrontal}}) {
      ASSERT_EQ(solved.compute(kind.options(method, 2)), FactorOutcome::kDone);
      EXPECT_LE(solved.error(Operation::kPlain, 1), tolerance<double>(n));
    }
  });
}

}  // namespace
}  // namespace quorin::sparse::test
