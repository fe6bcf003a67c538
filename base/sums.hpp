// Sums over vectors of doubles, and sweeps over vectors in registers. Arrays may be aligned to 4 bytes only.
//
// Sums run in eight interleaved partial sums, so that no addition waits for the one before and rounding errors grow
// with n / 8. They are always added up in the same order: results depend neither on alignment nor on threads. Sweeps
// are inlined by force, so that what a body captures stays in registers.
#pragma once

#include <cstddef>

#include "base/lanes.hpp"

namespace quorin::base {

// x . y
[[nodiscard]] double dot(std::size_t n, const double* x, const double* y);

// The sum of squares of floats, which neither overflow nor underflow in double precision.
[[nodiscard]] double sum_of_squares(std::size_t n, const float* x);

// ||x||, without overflow or harmful underflow.
[[nodiscard]] double norm(std::size_t n, const double* x);
[[nodiscard]] float norm(std::size_t n, const float* x);

// How the body of a sweep reaches memory: by whole lanes, and entry by entry for the rest.
struct ByLanes {
  template <class Real>
  static Lanes<Real> get(const Real* x) {
    return load(x);
  }
  template <class Real>
  static void put(Real* x, Lanes<Real> lanes) {
    store(x, lanes);
  }
};
struct ByEntries {
  template <class Real>
  static Real get(const Real* x) {
    return *x;
  }
  template <class Real>
  static void put(Real* x, Real entry) {
    *x = entry;
  }
};

// Runs body(i, access) for all entries i < n of vectors of type Real, several at once; access.get and access.put read
// and write them.
template <class Real = double, class Body>
[[gnu::always_inline]] inline void sweep(std::size_t n, const Body& body) {
  constexpr std::size_t kWidth = kElements<Real>;
  std::size_t i = 0;
  for (; i + kWidth <= n; i += kWidth) body(i, ByLanes{});
  for (; i < n; ++i) body(i, ByEntries{});
}

// A sweep over doubles that adds up the terms that body returns.
template <class Body>
[[nodiscard, gnu::always_inline]] inline double sum_over(std::size_t n, const Body& body) {
  constexpr std::size_t kWidth = kElements<double>;
  Lanes<double> sum0{}, sum1{}, sum2{}, sum3{};  // an array would not stay in registers
  std::size_t i = 0;
  for (; i + 4 * kWidth <= n; i += 4 * kWidth) {
    sum0 += body(i, ByLanes{});
    sum1 += body(i + kWidth, ByLanes{});
    sum2 += body(i + 2 * kWidth, ByLanes{});
    sum3 += body(i + 3 * kWidth, ByLanes{});
  }
  for (; i + kWidth <= n; i += kWidth) sum0 += body(i, ByLanes{});
  const double last = i < n ? body(i, ByEntries{}) : 0.0;
  return sum_of_lanes<double>((sum0 + sum1) + (sum2 + sum3)) + last;
}

// y <- y + a x
inline void add_multiple(std::size_t n, double a, const double* x, double* y) {
  sweep(n, [=](std::size_t i, auto access) { access.put(y + i, access.get(y + i) + a * access.get(x + i)); });
}

}  // namespace quorin::base
