#include "families/signal/toeplitz.hpp"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <iterator>
#include <limits>
#include <type_traits>

#include "base/lanes.hpp"
#include "base/scalar.hpp"
#include "base/workspace.hpp"

namespace quorin::signal {
namespace {

using std::ptrdiff_t;
template <Scalar T>
using Wide = std::conditional_t<kIsComplex<T>, std::complex<double>, double>;

template <Scalar T>
Wide<T> widen(T v) {
  return v;
}

template <Scalar T>
T narrow(Wide<T> v) {
  return static_cast<T>(v);
}

// How far the forward and backward vectors of order k miss the matrix of order k + 1, and the solution its right-hand
// side.
template <class W>
struct Misses {
  W forward{}, backward{}, solution{};
};

// Sums over i < n of c(i) f(i), r(i) g(i) and c(i) x(i). Those of wide numbers are made in registers, each in several
// partial sums: for speed and for accuracy.
template <class Row, class Column, class Work>
auto sum_products(ptrdiff_t n, Row r, Column c, const Work* f, const Work* g, const Work* x) {
  Misses<Wide<Work>> sums;
  ptrdiff_t i = 0;
  if constexpr (std::same_as<Work, Wide<Work>>) {
    // As many as eight registers have room for.
    constexpr int kSums = kIsComplex<Work> ? 1 : 2, kStep = kElements<Work>;
    ProductSum<Work> forward[kSums], backward[kSums], solution[kSums];
    for (; i + kSums * kStep <= n; i += kSums * kStep) {
      for (int l = 0; l < kSums; ++l) {
        const ptrdiff_t k = i + l * kStep;
        const auto column = load(c + k);
        forward[l].add(column, load(f + k));
        backward[l].add(load(r + k), load(g + k));
        solution[l].add(column, load(x + k));
      }
    }
    for (int l = 0; l < kSums; ++l) {
      sums.forward += forward[l].template value<false>();
      sums.backward += backward[l].template value<false>();
      sums.solution += solution[l].template value<false>();
    }
  }
  for (; i < n; ++i) {
    const auto column = widen(c[i]);
    sums.forward += product(column, widen(f[i]));
    sums.backward += product(widen(r[i]), widen(g[i]));
    sums.solution += product(column, widen(x[i]));
  }
  return sums;
}

// f <- f - p g, g <- g - q f, x <- x + s g (with the new g), element by element.
template <class Work>
void update(ptrdiff_t n, Wide<Work> p, Wide<Work> q, Wide<Work> s, Work* f, Work* g, Work* x) {
  ptrdiff_t i = 0;
  if constexpr (std::same_as<Work, Wide<Work>>) {
    const Factor<Work> by_p(p), by_q(q), by_s(s);
    for (constexpr int kStep = kElements<Work>; i + kStep <= n; i += kStep) {
      const auto fi = load(f + i), gi = load(g + i);
      const auto next = gi - by_q(fi);
      store(f + i, fi - by_p(gi));
      store(g + i, next);
      store(x + i, load(x + i) + by_s(next));
    }
  }
  for (; i < n; ++i) {
    const auto fi = widen(f[i]);
    const auto gi = widen(g[i]);
    const auto next = gi - product(q, fi);
    f[i] = narrow<Work>(fi - product(p, gi));
    g[i] = narrow<Work>(next);
    x[i] = narrow<Work>(widen(x[i]) + product(s, next));
  }
}

// The recursion. At order k the vectors F = (1, f) and G = (g, 1) of length k satisfy
//
//   T_k F = e first unit vector,   T_k G = e last unit vector,   T_k x = b(1:k),
//
// with one and the same number e, the ratio of the determinants of T_k and T_(k-1). One more row and column gives
//
//   T (F, 0) = (e, 0, ..., 0, u),   T (0, G) = (v, 0, ..., 0, e),   so
//   F' = (F, 0) - (u/e) (0, G),   G' = (0, G) - (v/e) (F, 0),   e' = e - u v / e,   x' = (x, 0) + (b(k) - w)/e' G'.
//
// g is kept at the end of its array, so that G shifted by one meets F in the same place.
// `column` runs backwards, from the last element to the second. Returns false at a singular leading minor.
template <class T, class Row, class Column, class Work>
bool run_recursion(Row row, Column column, const T* b, Work* x, Work* f, Work* g, ptrdiff_t m) {
  using W = Wide<T>;
  W e = widen(row[0]);
  if (e == W{}) return false;
  x[0] = narrow<Work>(widen(b[0]) / e);
  for (ptrdiff_t k = 1; k < m; ++k) {
    const W corner_above = widen(row[k]);
    const W corner_below = widen(column[m - 1 - k]);
    auto miss = sum_products(k - 1, row + 1, column + (m - k), f, g + (m - k), x + 1);
    miss.forward += corner_below;
    miss.backward += corner_above;
    miss.solution += product(corner_below, widen(x[0]));

    const W p = miss.forward / e;
    const W q = miss.backward / e;
    const W shrink = W{1} - product(p, q);
    if (std::abs(shrink) <= static_cast<double>(k) * std::numeric_limits<RealOf<Work>>::epsilon()) return false;
    e = product(e, shrink);
    const W s = (widen(b[k]) - miss.solution) / e;

    update(k - 1, p, q, s, f, g + (m - k), x + 1);
    f[k - 1] = narrow<Work>(-p);
    g[m - 1 - k] = narrow<Work>(-q);
    x[0] = narrow<Work>(widen(x[0]) - product(s, q));
    x[k] = narrow<Work>(s);
  }
  return true;
}

template <class T>
bool solve_wide(const T* row, const T* column, const T* b, T* x, ptrdiff_t m, Wide<T>* memory) {
  Wide<T>* const wide_row = memory;
  Wide<T>* const wide_column = wide_row + m;
  Wide<T>* const wide_x = wide_column + m;
  Wide<T>* const f = wide_x + m;
  Wide<T>* const g = f + m;
  const auto wider = [](T v) { return widen(v); };
  std::transform(row, row + m, wide_row, wider);
  if (m > 1)
    std::transform(std::make_reverse_iterator(column + m - 1), std::make_reverse_iterator(column), wide_column, wider);
  if (!run_recursion(wide_row, wide_column, b, wide_x, f, g, m)) return false;
  std::transform(wide_x, wide_x + m, x, narrow<T>);
  return true;
}

// The same without memory of its own: the vectors stay in x, work1 and work2. False, with x unusable, at a singular
// minor.
template <class T>
bool solve_in_place(const T* row, const T* column, const T* b, T* x, T* work1, T* work2, int m) {
  return run_recursion(row, std::make_reverse_iterator(column + (m - 1)), b, x, work1, work2, m);
}

}  // namespace

template <class T>
void solve_toeplitz(const T* row, const T* column, const T* b, T* x, T* work1, T* work2, int m) noexcept {
  if (m <= 0) return;
  constexpr std::size_t kVectors = 5;
  base::Workspace<Wide<T>> memory(base::saturating_product(kVectors, static_cast<std::size_t>(m)));
  const bool solved =
      memory ? solve_wide(row, column, b, x, m, memory.data()) : solve_in_place(row, column, b, x, work1, work2, m);
  if (!solved) std::fill_n(x, m, T(std::numeric_limits<float>::quiet_NaN()));
}

template void solve_toeplitz(const float*, const float*, const float*, float*, float*, float*, int) noexcept;
template void solve_toeplitz(const std::complex<float>*, const std::complex<float>*, const std::complex<float>*,
                             std::complex<float>*, std::complex<float>*, std::complex<float>*, int) noexcept;

}  // namespace quorin::signal
