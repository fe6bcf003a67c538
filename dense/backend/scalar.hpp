// What generic code needs to know about the four scalar types of the BLAS.
#pragma once

#include <complex>
#include <concepts>

namespace quorin::dense {

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

}  // namespace quorin::dense
