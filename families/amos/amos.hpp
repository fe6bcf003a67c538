// Bessel and Airy functions of complex argument and real order, in double precision.
//
// Every function takes `n` members of orders fnu, fnu + 1, ..., fnu + n - 1 at once; kode 1 gives the function itself,
// kode 2 the function times the factor named below, which takes the exponential growth away. Status in ierr:
//
//   0  done
//   1  input error: fnu < 0, kode not 1 or 2, n < 1, m or id out of range, z = 0 where the function has no value there
//   2  overflow: a member does not fit a double, or |z| < 2.2e-305 for H, K and Y; cy holds no result
//   3  |z| or fnu + n - 1 above 32767.99: done, with at most half of the digits
//   4  |z| or fnu + n - 1 above 1073741823.5 (or not a number): no digit would be left, nothing is computed
//   5  a method did not converge; cy holds no result (docs/accuracy-amos.md says why no input leads to it)
//
// nz counts the members set to zero by underflow. The functions keep no state and allocate nothing; they may be called
// from several threads at once. Branch cut: the negative real axis, continuous from above.
//
// D. E. Amos, Algorithm 644, ACM Trans. Math. Softw. 12 (1986) 265-273; SAND83-0086, SAND83-0643, SAND85-1018.
#pragma once

#include <complex>

#include "base/machine_constants.hpp"

namespace quorin::amos {

// Hankel functions H1 (m = 1) and H2 (m = 2); kode 2: times exp(-iz) and exp(iz).
void besh(std::complex<double> z, double fnu, int kode, int m, int n, std::complex<double>* cy, int* nz, int* ierr);

// Modified Bessel function I; kode 2: times exp(-|Re z|).
void besi(std::complex<double> z, double fnu, int kode, int n, std::complex<double>* cy, int* nz, int* ierr);

// Bessel function J; kode 2: times exp(-|Im z|).
void besj(std::complex<double> z, double fnu, int kode, int n, std::complex<double>* cy, int* nz, int* ierr);

// Modified Bessel function K; kode 2: times exp(z).
void besk(std::complex<double> z, double fnu, int kode, int n, std::complex<double>* cy, int* nz, int* ierr);

// Bessel function Y; kode 2: times exp(-|Im z|). cwrk belongs to the published interface and is not touched.
void besy(std::complex<double> z, double fnu, int kode, int n, std::complex<double>* cy, int* nz,
          std::complex<double>* cwrk, int* ierr);

// Airy function Ai (id = 0) or Ai' (id = 1); kode 2: times exp(zeta), zeta = (2/3) z sqrt(z). |z| <= 1048575.99,
// status 3 above 1023.99.
void airy(std::complex<double> z, int id, int kode, std::complex<double>* ai, int* nz, int* ierr);

// Airy function Bi (id = 0) or Bi' (id = 1); kode 2: times exp(-|Re zeta|).
void biry(std::complex<double> z, int id, int kode, std::complex<double>* bi, int* ierr);

}  // namespace quorin::amos
