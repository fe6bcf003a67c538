// Loops over one or a few columns in registers of four floats, for panels that are too small for the BLAS to pay.
// T is float or std::complex<float>; columns need no alignment beyond that of a float.
#pragma once

#include <array>
#include <complex>
#include <cstring>
#include <type_traits>

#include "dense/backend/scalar.hpp"
#include "dense/matrix.hpp"

namespace quorin::dense {

using Lane [[gnu::vector_size(16)]] = float;

template <Scalar T>
inline constexpr int kPerLane = sizeof(Lane) / sizeof(T);

// The columns that are worked on at once, so that sums and factors stay in the eight registers of 32-bit processors.
template <Scalar T>
inline constexpr int kColumnsAtOnce = kIsComplex<T> ? 2 : 4;

// Calls body(count, k) for groups of columns k, ..., k + count - 1, `count` being a constant.
template <Scalar T, class Body>
void for_column_groups(int columns, const Body& body) {
  int k = 0;
  for (; k + kColumnsAtOnce<T> <= columns; k += kColumnsAtOnce<T>) {
    body(std::integral_constant<int, kColumnsAtOnce<T>>{}, k);
  }
  for (; k < columns; ++k) body(std::integral_constant<int, 1>{}, k);
}

template <Scalar T>
Lane load(const T* x) {
  Lane lane;
  std::memcpy(&lane, x, sizeof lane);
  return lane;
}

template <Scalar T>
void store(T* x, Lane lane) {
  std::memcpy(static_cast<void*>(x), &lane, sizeof lane);
}

inline Lane broadcast(float x) { return Lane{x, x, x, x}; }
inline Lane with_parts_exchanged(Lane z) { return __builtin_shufflevector(z, z, 1, 0, 3, 2); }
inline float sum_of(Lane x) { return (x[0] + x[2]) + (x[1] + x[3]); }

// The sum of conj(x_i) y_i over whole lanes.
template <Scalar T>
class LaneSum {
 public:
  void add(Lane x, Lane y) {
    straight_ += x * y;
    if constexpr (kIsComplex<T>) crossed_ += x * with_parts_exchanged(y);
  }
  T total() const {
    if constexpr (kIsComplex<T>) {
      return {sum_of(straight_), (crossed_[0] + crossed_[2]) - (crossed_[1] + crossed_[3])};
    } else {
      return sum_of(straight_);
    }
  }

 private:
  Lane straight_{}, crossed_{};
};

// A scalar that multiplies whole lanes.
template <Scalar T>
class LaneFactor {
 public:
  LaneFactor() = default;
  explicit LaneFactor(T factor) : real_(broadcast(real_part(factor))) {
    if constexpr (kIsComplex<T>) imaginary_ = Lane{-factor.imag(), factor.imag(), -factor.imag(), factor.imag()};
  }
  Lane operator*(Lane x) const {
    if constexpr (kIsComplex<T>) {
      return real_ * x + imaginary_ * with_parts_exchanged(x);
    } else {
      return real_ * x;
    }
  }

 private:
  Lane real_{}, imaginary_{};
};

// x^H c_k for the first kColumns columns of c.
template <int kColumns, Scalar T>
std::array<T, kColumns> project(int rows, const T* x, Matrix<T> c) {
  std::array<LaneSum<T>, kColumns> sums;
  int i = 0;
  for (; i + kPerLane<T> <= rows; i += kPerLane<T>) {
    const Lane xi = load(x + i);
    for (int k = 0; k < kColumns; ++k) sums[k].add(xi, load(c.column(k) + i));
  }
  std::array<T, kColumns> totals;
  for (int k = 0; k < kColumns; ++k) totals[k] = sums[k].total();
  for (; i < rows; ++i) {
    for (int k = 0; k < kColumns; ++k) totals[k] += product(conjugate(x[i]), c(i, k));
  }
  return totals;
}

// c_k -= f_k x for the first kColumns columns of c.
template <int kColumns, Scalar T>
void subtract_multiples(int rows, const T* x, const std::array<T, kColumns>& f, Matrix<T> c) {
  std::array<LaneFactor<T>, kColumns> factors;
  for (int k = 0; k < kColumns; ++k) factors[k] = LaneFactor<T>(f[k]);
  int i = 0;
  for (; i + kPerLane<T> <= rows; i += kPerLane<T>) {
    const Lane xi = load(x + i);
    for (int k = 0; k < kColumns; ++k) {
      T* const target = c.column(k) + i;
      store(target, load(target) - factors[k] * xi);
    }
  }
  for (; i < rows; ++i) {
    for (int k = 0; k < kColumns; ++k) c(i, k) -= product(f[k], x[i]);
  }
}

// x <- f x
template <Scalar T>
void scale_column(int rows, T f, T* x) {
  const LaneFactor<T> factor(f);
  int i = 0;
  for (; i + kPerLane<T> <= rows; i += kPerLane<T>) store(x + i, factor * load(x + i));
  for (; i < rows; ++i) x[i] = product(f, x[i]);
}

// The square of the Euclidean norm, in plain floats: for sums far from overflow and underflow.
template <Scalar T>
float sum_of_squares(int rows, const T* x) {
  constexpr int kUnroll = 4, kStep = kUnroll * kPerLane<T>;
  Lane sums[kUnroll] = {};
  int i = 0;
  for (; i + kStep <= rows; i += kStep) {
    for (int u = 0; u < kUnroll; ++u) {
      const Lane xi = load(x + i + u * kPerLane<T>);
      sums[u] += xi * xi;
    }
  }
  float total = sum_of((sums[0] + sums[1]) + (sums[2] + sums[3]));
  for (; i < rows; ++i) {
    total += real_part(x[i]) * real_part(x[i]);
    if constexpr (kIsComplex<T>) total += x[i].imag() * x[i].imag();
  }
  return total;
}

}  // namespace quorin::dense
