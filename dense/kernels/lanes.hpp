// Four floats at a time, written with the compiler's vector types, in the width that SSE2 has. Vectors are read where
// they lie: results do not depend on alignment.
#pragma once

#include <complex>
#include <cstring>

#include "base/scalar.hpp"

namespace quorin::dense {

using Lanes = float __attribute__((vector_size(16)));

// How many elements four lanes hold.
template <Scalar T>
inline constexpr int kElements = kIsComplex<T> ? 2 : 4;

template <Scalar T>
Lanes load(const T* x) noexcept {
  Lanes lanes;
  std::memcpy(&lanes, x, sizeof lanes);
  return lanes;
}

template <Scalar T>
void store(T* x, Lanes lanes) noexcept {
  // Through floats: an array of complex numbers is one of floats as well.
  std::memcpy(reinterpret_cast<float*>(x), &lanes, sizeof lanes);
}

// Real and imaginary parts in each other's places.
inline Lanes exchanged(Lanes z) noexcept { return __builtin_shufflevector(z, z, 1, 0, 3, 2); }

// Multiplies by one number.
template <Scalar T>
class Factor {
 public:
  Factor() noexcept = default;
  explicit Factor(T s) noexcept : straight_(Lanes{} + std::real(s)), crossed_{} {
    if constexpr (kIsComplex<T>) crossed_ = Lanes{-s.imag(), s.imag(), -s.imag(), s.imag()};
  }
  Lanes operator()(Lanes x) const noexcept {
    if constexpr (kIsComplex<T>) {
      return straight_ * x + crossed_ * exchanged(x);
    } else {
      return straight_ * x;
    }
  }

 private:
  Lanes straight_{}, crossed_{};
};

// Adds products, lane by lane.
template <Scalar T>
class ProductSum {
 public:
  void add(Lanes x, Lanes y) noexcept {
    straight_ += x * y;
    if constexpr (kIsComplex<T>) crossed_ += x * exchanged(y);
  }
  void add(const ProductSum& other) noexcept {
    straight_ += other.straight_;
    crossed_ += other.crossed_;
  }
  // The sum of x y, or of conj(x) y.
  template <bool kConjugate>
  T value() const noexcept {
    if constexpr (kIsComplex<T>) {
      const float rr = straight_[0] + straight_[2], ii = straight_[1] + straight_[3];
      const float ri = crossed_[0] + crossed_[2], ir = crossed_[1] + crossed_[3];
      return kConjugate ? T{rr + ii, ri - ir} : T{rr - ii, ri + ir};
    } else {
      return (straight_[0] + straight_[1]) + (straight_[2] + straight_[3]);
    }
  }

 private:
  Lanes straight_{}, crossed_{};
};

}  // namespace quorin::dense
