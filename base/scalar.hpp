// What generic code needs to know about the four scalar types of the BLAS.
#pragma once

#include <complex>
#include <concepts>

namespace quorin {

template <class T>
struct ScalarTraits;

template <>
struct ScalarTraits<float> {
  using Real = float;
  static constexpr char kLetter = 'S';
};
template <>
struct ScalarTraits<double> {
  using Real = double;
  static constexpr char kLetter = 'D';
};
template <>
struct ScalarTraits<std::complex<float>> {
  using Real = float;
  static constexpr char kLetter = 'C';
};
template <>
struct ScalarTraits<std::complex<double>> {
  using Real = double;
  static constexpr char kLetter = 'Z';
};

template <class T>
concept Scalar = requires {
  ScalarTraits<T>::kLetter;
};

template <Scalar T>
using RealOf = typename ScalarTraits<T>::Real;

template <class T>
inline constexpr bool kIsComplex = !std::same_as<T, RealOf<T>>;

// a b by the plain formula, as the published routines multiply; the operator of std::complex also repairs infinities.
template <Scalar T>
constexpr T product(T a, T b) {
  if constexpr (kIsComplex<T>) {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
  } else {
    return a * b;
  }
}

template <Scalar T>
constexpr T conjugate(T x) {
  if constexpr (kIsComplex<T>) {
    return std::conj(x);
  } else {
    return x;
  }
}

template <Scalar T>
constexpr RealOf<T> real_part(T x) {
  if constexpr (kIsComplex<T>) {
    return x.real();
  } else {
    return x;
  }
}

template <Scalar T>
constexpr RealOf<T> imaginary_part(T x) {
  if constexpr (kIsComplex<T>) {
    return x.imag();
  } else {
    return 0;
  }
}

}  // namespace quorin
