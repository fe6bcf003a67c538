// Arithmetic that is the same text for real and complex elements.
#pragma once

#include <complex>

namespace quorin::taucs {

inline double times(double a, double b) noexcept { return a * b; }
// By its definition: the operator of std::complex also repairs products of infinities, in a function of its own.
inline std::complex<double> times(std::complex<double> a, std::complex<double> b) noexcept {
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

inline double conjugate(double a) noexcept { return a; }
inline std::complex<double> conjugate(std::complex<double> a) noexcept { return std::conj(a); }

inline double real_part(double a) noexcept { return a; }
inline double real_part(std::complex<double> a) noexcept { return a.real(); }

}  // namespace quorin::taucs
