// BLAS level 1 and the sparse level 1, for vectors with strides. T is float or std::complex<float>.
//
// Strides count elements; with a negative stride the vector is walked from its far end, as published. A count n <= 0
// does nothing (functions return 0). Nothing is checked and nothing is reported.
//
// Sources: C. L. Lawson, R. J. Hanson, D. R. Kincaid, F. T. Krogh, Basic Linear Algebra Subprograms for Fortran usage,
// ACM TOMS 5 (1979) 308-323; D. S. Dodson, R. G. Grimes, J. G. Lewis, Sparse extensions to the Fortran Basic Linear
// Algebra Subprograms, ACM TOMS 17 (1991) 253-263.
#pragma once

#include <complex>

#include "base/scalar.hpp"
#include "dense/kernels/few_floats.hpp"

namespace quorin::dense {

// The same for what is no short vector of floats, in SSE's registers.
namespace in_sse {
template <Scalar T>
void axpy(int n, T a, const T* x, int incx, T* y, int incy);
template <bool kConjugate, Scalar T>
T dot(int n, const T* x, int incx, const T* y, int incy);
template <Scalar T>
RealOf<T> nrm2(int n, const T* x, int incx);
template <Scalar T>
RealOf<T> asum(int n, const T* x, int incx);
}  // namespace in_sse

template <Scalar T>
void axpy(int n, T a, const T* x, int incx, T* y, int incy) {
  if constexpr (!kIsComplex<T>) {
    if (n < kernels::kFewFloats && incx == 1 && incy == 1) return kernels::axpy_few(n, a, x, y);
  }
  in_sse::axpy(n, a, x, incx, y, incy);
}
template <Scalar T>
void copy(int n, const T* x, int incx, T* y, int incy);
template <Scalar T>
void swap(int n, T* x, int incx, T* y, int incy);
// x^T y, and for complex vectors also x^H y.
template <Scalar T>
T dotu(int n, const T* x, int incx, const T* y, int incy) {
  if constexpr (!kIsComplex<T>) {
    if (n < kernels::kFewForDot && incx == 1 && incy == 1) return kernels::dot_few(n, x, y);
  }
  return in_sse::dot<false>(n, x, incx, y, incy);
}
inline std::complex<float> dotc(int n, const std::complex<float>* x, int incx, const std::complex<float>* y, int incy) {
  return in_sse::dot<true>(n, x, incx, y, incy);
}
// Euclidean norm without overflow or underflow on the way.
template <Scalar T>
RealOf<T> nrm2(int n, const T* x, int incx) {
  if constexpr (!kIsComplex<T>) {
    if (n < kernels::kFewForNorm && incx == 1) return kernels::norm_of_few(n, x);
  }
  return in_sse::nrm2(n, x, incx);
}
// Sum of |Re x_i| + |Im x_i|.
template <Scalar T>
RealOf<T> asum(int n, const T* x, int incx) {
  if constexpr (!kIsComplex<T>) {
    if (n < kernels::kFewFloats && incx == 1) return kernels::sum_of_few_magnitudes(n, x);
  }
  return in_sse::asum(n, x, incx);
}
// x <- a x for a of the vector's type or real. Unless a is 1, every element is multiplied: 0 makes a NaN of an
// infinity.
template <Scalar T, class Factor>
void scal(int n, Factor a, T* x, int incx);
template <Scalar T>
void rot(int n, T* x, int incx, T* y, int incy, RealOf<T> c, RealOf<T> s);
void rotm(int n, float* x, int incx, float* y, int incy, const float* param);
// Givens rotation of (a, b): E. Anderson, Algorithm 978: Safe scaling in the level 1 BLAS, ACM TOMS 44 (2017) 12.
void rotg(float* a, float* b, float* c, float* s);
void rotg(std::complex<float>* a, std::complex<float> b, float* c, std::complex<float>* s);
void rotmg(float* d1, float* d2, float* x1, float y1, float* param);
// 1-based position of the first element of largest (smallest) |Re| + |Im|; 0 for n <= 0 or incx <= 0.
template <Scalar T>
int iamax(int n, const T* x, int incx);
template <Scalar T>
int iamin(int n, const T* x, int incx);

// Sparse vectors: nz values x and their 1-based positions indx in a full vector y. Repeated positions are processed in
// order.
template <Scalar T>
void axpyi(int nz, T a, const T* x, const int* indx, T* y);
template <Scalar T>
T dotui(int nz, const T* x, const int* indx, const T* y);
std::complex<float> dotci(int nz, const std::complex<float>* x, const int* indx, const std::complex<float>* y);
template <Scalar T>
void gthr(int nz, const T* y, T* x, const int* indx);
template <Scalar T>
void sctr(int nz, const T* x, const int* indx, T* y);

}  // namespace quorin::dense
