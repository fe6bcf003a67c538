// How an operation is cut into parts for the worker threads.
#pragma once

#include <algorithm>
#include <cstdint>

#include "base/scalar.hpp"

namespace quorin::dense {

struct Range {
  int first;
  int count;
};

// Part `i` of `parts` nearly equal parts of 0..total-1; boundaries are multiples of `multiple`, so that kernels see
// whole tiles.
constexpr Range part_range(int total, int parts, int i, int multiple) {
  if (parts == 1) return {0, total};
  const auto boundary = [&](int k) {
    const std::int64_t tiles = (std::int64_t{total} + multiple - 1) / multiple;
    return static_cast<int>(std::min<std::int64_t>(total, tiles * k / parts * multiple));
  };
  return {boundary(i), boundary(i + 1) - boundary(i)};
}

// The number of threads that `work` pays for, when a thread should have at least `work_per_thread`.
constexpr int threads_for(double work, double work_per_thread, int most) {
  if (most <= 1) return 1;
  return static_cast<int>(std::clamp(work / work_per_thread, 1.0, static_cast<double>(most)));
}

// A thread should have this many multiplications of reals, some ten microseconds: those that still spin (base/parallel)
// come within one.
inline constexpr double kMultiplicationsPerThread = 1 << 18;

// The number of threads, at most `most`, that an operation of level 3 pays for.
template <Scalar T>
constexpr int threads_for_products(double multiplications, int most) {
  return threads_for(multiplications * (kIsComplex<T> ? 4 : 1), kMultiplicationsPerThread, most);
}

// The multiplications of an m by n product of k terms.
constexpr double product_work(int m, int n, int k) { return static_cast<double>(m) * n * k; }

// The multiplications that count when one triangle of a product is made, n by n with k terms: half of those there are,
// because the parts of a triangle pack more than others for what they multiply.
constexpr double triangle_work(int n, int k) { return 0.25 * n * n * k; }

// A grid of row parts and column parts of an m-by-n matrix with at most `threads` cells, as square as it can be.
struct Grid {
  int rows = 1;
  int columns = 1;
};

constexpr Grid make_grid(int m, int n, int threads) {
  if (threads == 1) return {1, 1};
  Grid best{1, threads};
  double best_perimeter = 1e300;
  for (int rows = 1; rows <= threads; ++rows) {
    if (threads % rows != 0) continue;
    const double perimeter = static_cast<double>(m) / rows + static_cast<double>(n) * rows / threads;
    if (perimeter < best_perimeter) {
      best_perimeter = perimeter;
      best = {rows, threads / rows};
    }
  }
  return best;
}

}  // namespace quorin::dense
