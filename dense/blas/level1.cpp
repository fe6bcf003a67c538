#include "dense/blas/level1.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/sums.hpp"
#include "dense/kernels/vector_kernels.hpp"
#include "dense/openblas/routines.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;
using openblas::Routines;

using kernels::magnitude;

// The first position for which no other element is `better`; a NaN is better than nothing, as in the published loop.
template <Scalar T, class Better>
int first_extreme(int n, const T* x, int incx, Better better) {
  if (n < 1 || incx < 1) return 0;
  if (incx == 1) return static_cast<int>(kernels::first_extreme(n, x, better)) + 1;
  int position = 0;
  RealOf<T> extreme = magnitude(x[0]);
  for (int i = 1; i < n; ++i) {
    const RealOf<T> value = magnitude(x[static_cast<std::ptrdiff_t>(i) * incx]);
    if (better(value, extreme)) {
      position = i;
      extreme = value;
    }
  }
  return position + 1;
}

// A stride of 0 uses one element over and over. OpenBLAS has its own ideas of what that means; the published
// loops say it, so such calls run them.
bool repeats_an_element(int incx, int incy) { return incx == 0 || incy == 0; }

// For a few elements the loop is done before a kernel has begun.
bool is_short(int n) { return 0 < n && n <= 8; }

bool are_contiguous(int incx, int incy) { return incx == 1 && incy == 1; }

// Calls body(x_i, y_i) for i = 0..n-1 in the published order; a negative stride starts at the far end.
template <class X, class Y, class Body>
void for_each_pair(int n, X* x, int incx, Y* y, int incy, const Body& body) {
  std::ptrdiff_t ix = incx < 0 ? static_cast<std::ptrdiff_t>(1 - n) * incx : 0;
  std::ptrdiff_t iy = incy < 0 ? static_cast<std::ptrdiff_t>(1 - n) * incy : 0;
  for (int i = 0; i < n; ++i, ix += incx, iy += incy) body(x[ix], y[iy]);
}

Complex to_complex(openblas::ComplexResult z) { return {__real__ z, __imag__ z}; }

}  // namespace

template <Scalar T>
void axpy(int n, T a, const T* x, int incx, T* y, int incy) {
  if (a == T{}) return;
  if (is_short(n) || repeats_an_element(incx, incy)) {
    return for_each_pair(n, x, incx, y, incy, [a](const T& xi, T& yi) { yi += product(a, xi); });
  }
  if (are_contiguous(incx, incy)) return kernels::axpy(n, a, x, y);
  Routines<T>::axpy(&n, &a, x, &incx, y, &incy);
}

template <Scalar T>
void copy(int n, const T* x, int incx, T* y, int incy) {
  if (is_short(n) || repeats_an_element(incx, incy)) {
    return for_each_pair(n, x, incx, y, incy, [](const T& xi, T& yi) { yi = xi; });
  }
  if (are_contiguous(incx, incy)) {
    std::copy(x, x + std::max(n, 0), y);
    return;
  }
  Routines<T>::copy(&n, x, &incx, y, &incy);
}

template <Scalar T>
void swap(int n, T* x, int incx, T* y, int incy) {
  if (is_short(n) || repeats_an_element(incx, incy)) {
    return for_each_pair(n, x, incx, y, incy, [](T& xi, T& yi) { std::swap(xi, yi); });
  }
  if (are_contiguous(incx, incy)) {
    std::swap_ranges(x, x + std::max(n, 0), y);
    return;
  }
  Routines<T>::swap(&n, x, &incx, y, &incy);
}

template <Scalar T>
T dotu(int n, const T* x, int incx, const T* y, int incy) {
  if (is_short(n)) {
    T sum{};
    for_each_pair(n, x, incx, y, incy, [&sum](T xi, T yi) { sum += product(xi, yi); });
    return sum;
  }
  if (are_contiguous(incx, incy)) return kernels::dot<false>(n, x, y);
  if constexpr (kIsComplex<T>) {
    return to_complex(Routines<T>::dotu(&n, x, &incx, y, &incy));
  } else {
    return Routines<T>::dotu(&n, x, &incx, y, &incy);
  }
}

Complex dotc(int n, const Complex* x, int incx, const Complex* y, int incy) {
  if (is_short(n)) {
    Complex sum{};
    for_each_pair(n, x, incx, y, incy, [&sum](Complex xi, Complex yi) { sum += product(std::conj(xi), yi); });
    return sum;
  }
  if (are_contiguous(incx, incy)) return kernels::dot<true>(n, x, y);
  return to_complex(Routines<Complex>::dotc(&n, x, &incx, y, &incy));
}

template <Scalar T>
RealOf<T> nrm2(int n, const T* x, int incx) {
  if (n > 0 && incx == 1) {
    constexpr int kParts = kIsComplex<T> ? 2 : 1;
    return static_cast<RealOf<T>>(
        std::sqrt(base::sum_of_squares(std::size_t{kParts} * n, reinterpret_cast<const float*>(x))));
  }
  return Routines<T>::nrm2(&n, x, &incx);
}

template <Scalar T>
RealOf<T> asum(int n, const T* x, int incx) {
  // Not OpenBLAS's: release 0.3.21 loses the last element of a complex vector on some x86-64 processors.
  if (n <= 0 || incx <= 0) return 0;
  constexpr int kSums = 16;  // independent, so that additions overlap and the compiler can vectorise them
  RealOf<T> sums[kSums] = {};
  int i = 0;
  if (incx == 1) {
    for (; i + kSums <= n; i += kSums) {
      for (int j = 0; j < kSums; ++j) sums[j] += magnitude(x[i + j]);
    }
  }
  for (; i < n; ++i) sums[i % kSums] += magnitude(x[static_cast<std::ptrdiff_t>(i) * incx]);
  for (int half = kSums / 2; half > 0; half /= 2) {
    for (int j = 0; j < half; ++j) sums[j] += sums[j + half];
  }
  return sums[0];
}

template <Scalar T, class Factor>
void scal(int n, Factor a, T* x, int incx) {
  // Not OpenBLAS's: it stores zeros for a = 0 and skips a zero part of a, whatever x holds.
  if (n <= 0 || incx <= 0 || a == Factor{1}) return;
  const auto scale = [a](T& value) {
    if constexpr (std::same_as<T, Factor>) {
      value = product(a, value);
    } else {
      value = T(a * value.real(), a * value.imag());
    }
  };
  if (incx == 1) {
    for (int i = 0; i < n; ++i) scale(x[i]);  // a loop of its own, which the compiler vectorises
  } else {
    for (int i = 0; i < n; ++i) scale(x[static_cast<std::ptrdiff_t>(i) * incx]);
  }
}

template <Scalar T>
void rot(int n, T* x, int incx, T* y, int incy, RealOf<T> c, RealOf<T> s) {
  if (repeats_an_element(incx, incy)) {
    return for_each_pair(n, x, incx, y, incy, [c, s](T& xi, T& yi) {
      const T rotated = c * xi + s * yi;
      yi = c * yi - s * xi;
      xi = rotated;
    });
  }
  if (are_contiguous(incx, incy)) return kernels::rot(n, x, y, c, s);
  Routines<T>::rot(&n, x, &incx, y, &incy, &c, &s);
}

void rotm(int n, float* x, int incx, float* y, int incy, const float* param) {
  Routines<float>::rotm(&n, x, &incx, y, &incy, param);
}

void rotg(float* a, float* b, float* c, float* s) {
  // Squares of floats neither overflow nor underflow in double precision, so nothing has to be scaled.
  const double x = *a, y = *b;
  if (y == 0) {
    *c = 1;
    *s = 0;
    *b = 0;
  } else if (x == 0) {
    *c = 0;
    *s = 1;
    *a = *b;
    *b = 1;
  } else {
    const bool a_dominates = std::abs(x) > std::abs(y);
    const double r = std::copysign(std::sqrt(x * x + y * y), a_dominates ? x : y);
    *c = static_cast<float>(x / r);
    *s = static_cast<float>(y / r);
    *a = static_cast<float>(r);
    // The one number from which c and s can be recovered.
    *b = a_dominates ? *s : (*c != 0 ? 1 / *c : 1.0F);
  }
}

void rotg(Complex* a, Complex b, float* c, Complex* s) {
  const std::complex<double> f = *a, g = b;
  const double f2 = std::norm(f), g2 = std::norm(g);
  if (g2 == 0) {
    *c = 1;
    *s = 0;
  } else if (f2 == 0) {
    const double length = std::sqrt(g2);
    *c = 0;
    *s = Complex(std::conj(g) / length);
    *a = static_cast<float>(length);
  } else {
    const double h2 = f2 + g2;
    *c = static_cast<float>(std::sqrt(f2 / h2));
    *s = Complex(std::conj(g) * (f / std::sqrt(f2 * h2)));
    *a = Complex(f * std::sqrt(h2 / f2));
  }
}

void rotmg(float* d1, float* d2, float* x1, float y1, float* param) { Routines<float>::rotmg(d1, d2, x1, &y1, param); }

template <Scalar T>
int iamax(int n, const T* x, int incx) {
  return first_extreme(n, x, incx, [](auto value, auto extreme) { return value > extreme; });
}

template <Scalar T>
int iamin(int n, const T* x, int incx) {
  return first_extreme(n, x, incx, [](auto value, auto extreme) { return value < extreme; });
}

template <Scalar T>
void axpyi(int nz, T a, const T* x, const int* indx, T* y) {
  for (int k = 0; k < nz; ++k) y[indx[k] - 1] += product(a, x[k]);
}

template <Scalar T>
T dotui(int nz, const T* x, const int* indx, const T* y) {
  T sum{};
  for (int k = 0; k < nz; ++k) sum += product(x[k], y[indx[k] - 1]);
  return sum;
}

Complex dotci(int nz, const Complex* x, const int* indx, const Complex* y) {
  Complex sum{};
  for (int k = 0; k < nz; ++k) sum += product(std::conj(x[k]), y[indx[k] - 1]);
  return sum;
}

template <Scalar T>
void gthr(int nz, const T* y, T* x, const int* indx) {
  for (int k = 0; k < nz; ++k) x[k] = y[indx[k] - 1];
}

template <Scalar T>
void sctr(int nz, const T* x, const int* indx, T* y) {
  for (int k = 0; k < nz; ++k) y[indx[k] - 1] = x[k];
}

template void scal(int, float, float*, int);
template void scal(int, Complex, Complex*, int);
template void scal(int, float, Complex*, int);

template void axpy(int, float, const float*, int, float*, int);
template void copy(int, const float*, int, float*, int);
template void swap(int, float*, int, float*, int);
template float dotu(int, const float*, int, const float*, int);
template float nrm2(int, const float*, int);
template float asum(int, const float*, int);
template void rot(int, float*, int, float*, int, float, float);
template int iamax(int, const float*, int);
template int iamin(int, const float*, int);
template void axpyi(int, float, const float*, const int*, float*);
template float dotui(int, const float*, const int*, const float*);
template void gthr(int, const float*, float*, const int*);
template void sctr(int, const float*, const int*, float*);

template void axpy(int, Complex, const Complex*, int, Complex*, int);
template void copy(int, const Complex*, int, Complex*, int);
template void swap(int, Complex*, int, Complex*, int);
template Complex dotu(int, const Complex*, int, const Complex*, int);
template float nrm2(int, const Complex*, int);
template float asum(int, const Complex*, int);
template void rot(int, Complex*, int, Complex*, int, float, float);
template int iamax(int, const Complex*, int);
template int iamin(int, const Complex*, int);
template void axpyi(int, Complex, const Complex*, const int*, Complex*);
template Complex dotui(int, const Complex*, const int*, const Complex*);
template void gthr(int, const Complex*, Complex*, const int*);
template void sctr(int, const Complex*, const int*, Complex*);

}  // namespace quorin::dense
