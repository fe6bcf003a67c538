// A register's worth of floats or doubles, written with the compiler's vector types. Lanes are read where they lie:
// results do not depend on alignment. The width is 16 bytes, which SSE2 has, unless it is given; wider lanes are for
// translation units that are compiled for processors with such registers. All functions are inlined, so none is shared
// between translation units for different processors.
#pragma once

#include <array>
#include <complex>
#include <cstring>
#include <utility>

#include "base/scalar.hpp"

namespace quorin {

namespace lanes_detail {
template <class Real, int kBytes>
struct VectorOf {
  using Type [[gnu::vector_size(kBytes)]] = Real;
};
}  // namespace lanes_detail

// kBytes / sizeof(Real) numbers, to which the compiler applies arithmetic, comparison and ?: one by one.
template <class Real, int kBytes = 16>
using Lanes = typename lanes_detail::VectorOf<Real, kBytes>::Type;

// How many elements of type T the lanes hold; a complex number takes two lanes.
template <Scalar T, int kBytes = 16>
inline constexpr int kElements = kBytes / static_cast<int>(sizeof(T));

template <int kBytes = 16, Scalar T>
[[gnu::always_inline]] inline Lanes<RealOf<T>, kBytes> load(const T* x) {
  Lanes<RealOf<T>, kBytes> lanes;
  std::memcpy(&lanes, x, sizeof lanes);
  return lanes;
}

template <Scalar T, class Vector>
[[gnu::always_inline]] inline void store(T* x, Vector lanes) {
  std::memcpy(static_cast<void*>(x), &lanes, sizeof lanes);
}

namespace lanes_detail {
template <class Vector>
using Numbers = std::make_integer_sequence<int, static_cast<int>(sizeof(Vector) / sizeof(std::declval<Vector>()[0]))>;

template <class Vector, int... k>
[[gnu::always_inline]] inline Vector exchanged(Vector z, std::integer_sequence<int, k...>) {
  return __builtin_shufflevector(z, z, (k ^ 1)...);
}

template <class Vector, class Real, int... k>
[[gnu::always_inline]] inline Vector alternating(Real x, std::integer_sequence<int, k...>) {
  return Vector{(k % 2 == 0 ? -x : x)...};
}
}  // namespace lanes_detail

// Real and imaginary parts in each other's places.
template <class Vector>
[[gnu::always_inline]] inline Vector exchanged(Vector z) {
  return lanes_detail::exchanged(z, lanes_detail::Numbers<Vector>{});
}

// The sums of the even and of the odd lanes, so of the real and of the imaginary parts. Of more than two lanes the
// upper half is added to the lower.
template <class Real, int kBytes>
[[gnu::always_inline]] inline std::array<Real, 2> sums_of_pairs(Lanes<Real, kBytes> x) {
  if constexpr (kBytes > 16) {
    std::array<Lanes<Real, kBytes / 2>, 2> halves;
    std::memcpy(&halves, &x, sizeof x);
    return sums_of_pairs<Real, kBytes / 2>(halves[0] + halves[1]);
  } else if constexpr (sizeof(Real) == 4) {
    return {x[0] + x[2], x[1] + x[3]};
  } else {
    return {x[0], x[1]};
  }
}

// The sum of all lanes.
template <class Real, int kBytes = 16>
[[gnu::always_inline]] inline Real sum_of_lanes(Lanes<Real, kBytes> x) {
  const auto [even, odd] = sums_of_pairs<Real, kBytes>(x);
  return even + odd;
}

// Multiplies by one number.
template <Scalar T, int kBytes = 16>
class Factor {
 public:
  using Vector = Lanes<RealOf<T>, kBytes>;

  Factor() = default;
  [[gnu::always_inline]] explicit Factor(T s) : straight_(Vector{} + real_part(s)) {
    if constexpr (kIsComplex<T>) {
      crossed_ = lanes_detail::alternating<Vector>(s.imag(), lanes_detail::Numbers<Vector>{});
    }
  }
  [[gnu::always_inline]] Vector operator()(Vector x) const {
    if constexpr (kIsComplex<T>) {
      return straight_ * x + crossed_ * exchanged(x);
    } else {
      return straight_ * x;
    }
  }

 private:
  Vector straight_{}, crossed_{};
};

// Adds products, lane by lane.
template <Scalar T, int kBytes = 16>
class ProductSum {
 public:
  using Vector = Lanes<RealOf<T>, kBytes>;

  [[gnu::always_inline]] void add(Vector x, Vector y) {
    straight_ += x * y;
    if constexpr (kIsComplex<T>) crossed_ += x * exchanged(y);
  }
  [[gnu::always_inline]] void add(const ProductSum& other) {
    straight_ += other.straight_;
    crossed_ += other.crossed_;
  }
  // The sum of x y, or of conj(x) y.
  template <bool kConjugate>
  [[gnu::always_inline]] T value() const {
    const auto [rr, ii] = sums_of_pairs<RealOf<T>, kBytes>(straight_);
    if constexpr (kIsComplex<T>) {
      const auto [ri, ir] = sums_of_pairs<RealOf<T>, kBytes>(crossed_);
      return kConjugate ? T{rr + ii, ri - ir} : T{rr - ii, ri + ir};
    } else {
      return rr + ii;
    }
  }

 private:
  Vector straight_{}, crossed_{};
};

}  // namespace quorin
