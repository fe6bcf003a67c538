#include "dense/blas/level1.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "base/sums.hpp"
#include "dense/kernels/vector_kernels.hpp"
#include "platform/floating_point.hpp"

namespace quorin::dense {
namespace {

using Complex = std::complex<float>;

using kernels::magnitude;

// Computes in SSE's registers, under the library's settings.
template <class Compute>
[[gnu::always_inline]] inline auto with_own_settings(const Compute& compute) {
  const platform::SseSettings settings;
  if constexpr (std::is_void_v<decltype(compute())>) {
    compute();
  } else {
    auto result = compute();
    if constexpr (std::is_same_v<decltype(result), float>) {
      asm volatile("" : "+x"(result));  // by way of memory it would come twice: 32-bit code returns it in the x87
    } else {
      asm volatile("" : "+m"(result));
    }
    return result;
  }
}

// The first position for which no other element's magnitude is larger (smaller); a NaN is better than nothing, as in
// the published loop.
template <bool kLargest, Scalar T>
int first_extreme(int n, const T* x, int incx) {
  if (n < 1 || incx < 1) return 0;
  const auto find = [=] {
    if (incx == 1) return static_cast<int>(kernels::first_extreme<kLargest>(n, x)) + 1;
    int position = 0, extreme = kernels::first_rank<kLargest>(x[0]);
    for (int i = 1; i < n; ++i) {
      const int rank = kernels::rank<kLargest>(x[static_cast<std::ptrdiff_t>(i) * incx]);
      if (rank > extreme) {
        position = i;
        extreme = rank;
      }
    }
    return position + 1;
  };
  if constexpr (kIsComplex<T>) {
    return with_own_settings(find);
  } else {
    return find();  // magnitudes of floats are compared as integers
  }
}

// For a few elements the loop is done before a kernel has begun.
bool is_short(int n) { return 0 < n && n < 4; }

bool are_contiguous(int incx, int incy) { return incx == 1 && incy == 1; }

// Calls body(x_i, y_i) for i = 0..n-1 in the published order; a negative stride starts at the far end.
template <class X, class Y, class Body>
void for_each_pair(int n, X* x, int incx, Y* y, int incy, const Body& body) {
  if (n <= 0) return;
  std::ptrdiff_t ix = incx < 0 ? static_cast<std::ptrdiff_t>(1 - n) * incx : 0;
  std::ptrdiff_t iy = incy < 0 ? static_cast<std::ptrdiff_t>(1 - n) * incy : 0;
  for (int i = 0; i < n; ++i, ix += incx, iy += incy) body(x[ix], y[iy]);
}

}  // namespace

template <Scalar T>
void in_sse::axpy(int n, T a, const T* x, int incx, T* y, int incy) {
  with_own_settings([=] {
    if (a == T{}) return;
    if (are_contiguous(incx, incy) && !is_short(n)) return kernels::axpy(n, a, x, y);
    for_each_pair(n, x, incx, y, incy, [a](const T& xi, T& yi) { yi += product(a, xi); });
  });
}

template <Scalar T>
void copy(int n, const T* x, int incx, T* y, int incy) {
  if (are_contiguous(incx, incy)) return kernels::copy(n, x, y);
  for_each_pair(n, x, incx, y, incy, [](const T& xi, T& yi) { yi = xi; });
}

template <Scalar T>
void swap(int n, T* x, int incx, T* y, int incy) {
  if (are_contiguous(incx, incy)) return kernels::swap(n, x, y);
  for_each_pair(n, x, incx, y, incy, [](T& xi, T& yi) { std::swap(xi, yi); });
}

template <bool kConjugate, Scalar T>
T in_sse::dot(int n, const T* x, int incx, const T* y, int incy) {
  return with_own_settings([=] {
    if (are_contiguous(incx, incy) && !is_short(n)) return kernels::dot<kConjugate>(n, x, y);
    T sum{};
    for_each_pair(n, x, incx, y, incy,
                  [&sum](T xi, T yi) { sum += product(kernels::maybe_conjugate<kConjugate>(xi), yi); });
    return sum;
  });
}

template <Scalar T>
RealOf<T> in_sse::nrm2(int n, const T* x, int incx) {
  constexpr std::size_t kParts = kIsComplex<T> ? 2 : 1;
  if (n <= 0) return 0;
  return with_own_settings([=] {
    if (incx == 1) {
      return base::norm(kParts * static_cast<std::size_t>(n), reinterpret_cast<const float*>(x));
    }
    double sum = 0;
    // The same elements from the other end for a negative stride.
    const std::ptrdiff_t first = incx < 0 ? static_cast<std::ptrdiff_t>(1 - n) * incx : 0;
    for (int i = 0; i < n; ++i) {
      const T value = x[first + static_cast<std::ptrdiff_t>(i) * incx];
      const double re = real_part(value), im = imaginary_part(value);
      sum += re * re + im * im;
    }
    return static_cast<RealOf<T>>(std::sqrt(sum));
  });
}

template <Scalar T>
RealOf<T> in_sse::asum(int n, const T* x, int incx) {
  if (n <= 0 || incx <= 0) return 0;
  constexpr std::ptrdiff_t kParts = kIsComplex<T> ? 2 : 1;
  return with_own_settings([=] {
    if (incx == 1) return kernels::sum_of_magnitudes(kParts * n, reinterpret_cast<const float*>(x));
    double sum = 0;
    for (int i = 0; i < n; ++i) sum += double{magnitude(x[static_cast<std::ptrdiff_t>(i) * incx])};
    return static_cast<RealOf<T>>(sum);
  });
}

template <Scalar T, class Factor>
void scal(int n, Factor a, T* x, int incx) {
  // A factor of 0 is no exception: 0 times an infinity is NaN.
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
  if (are_contiguous(incx, incy)) return kernels::rot(n, x, y, c, s);
  for_each_pair(n, x, incx, y, incy, [c, s](T& xi, T& yi) {
    const T rotated = c * xi + s * yi;
    yi = c * yi - s * xi;
    xi = rotated;
  });
}

void rotm(int n, float* x, int incx, float* y, int incy, const float* param) {
  // param[0] says which elements of H = [param[1] param[3]; param[2] param[4]] are 1, -1 or 0.
  const float flag = param[0];
  if (flag == -2) return;
  float h11 = param[1], h21 = param[2], h12 = param[3], h22 = param[4];
  if (flag == 0) h11 = h22 = 1;
  if (flag > 0) {
    h12 = 1;
    h21 = -1;
  }
  for_each_pair(n, x, incx, y, incy, [=](float& xi, float& yi) {
    const float rotated = xi * h11 + yi * h12;
    yi = xi * h21 + yi * h22;
    xi = rotated;
  });
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

namespace {

// A modified Givens rotation in the making: H, its form (param[0] of rotm), and the scales d and the vector's x.
struct ModifiedRotation {
  float form = -1, h11 = 0, h12 = 0, h21 = 0, h22 = 0;

  // Writes out the elements that the form implies.
  void make_explicit() {
    if (form == 0) {
      h11 = h22 = 1;
    } else {
      h21 = -1;
      h12 = 1;
    }
    form = -1;
  }

  // Brings a scale d into [1 / kLimit, kLimit] by even powers of kScale; the rest goes to one row of H, and to x.
  void rescale(float& d, float& h_first, float& h_second, float* x) {
    constexpr float kScale = 4096, kLimit = kScale * kScale;
    while (d != 0 && std::isfinite(d) && (std::abs(d) <= 1 / kLimit || std::abs(d) >= kLimit)) {
      make_explicit();
      const bool is_small = std::abs(d) <= 1 / kLimit;
      const float factor = is_small ? 1 / kScale : kScale;
      d = is_small ? d * kLimit : d / kLimit;
      if (x != nullptr) *x *= factor;
      h_first *= factor;
      h_second *= factor;
    }
  }
};

}  // namespace

void rotmg(float* d1, float* d2, float* x1, float y1, float* param) {
  ModifiedRotation h;
  const float p2 = *d2 * y1, p1 = *d1 * *x1, q2 = p2 * y1, q1 = p1 * *x1;
  const auto clear = [&] { *d1 = *d2 = *x1 = 0; };
  if (*d1 < 0) {  // NOLINT(bugprone-branch-clone): the published order of the cases
    clear();
  } else if (p2 == 0) {
    param[0] = -2;  // the identity
    return;
  } else if (std::abs(q1) > std::abs(q2)) {
    const float h21 = -y1 / *x1, h12 = p2 / p1, u = 1 - h12 * h21;
    if (u > 0) {
      h = {0, 0, h12, h21, 0};
      *d1 /= u;
      *d2 /= u;
      *x1 *= u;
    } else {  // by rounding errors only
      clear();
    }
  } else if (q2 < 0) {
    clear();
  } else {
    h = {1, p1 / p2, 0, 0, *x1 / y1};
    const float u = 1 + h.h11 * h.h22, exchanged = *d2 / u;
    *d2 = *d1 / u;
    *d1 = exchanged;
    *x1 = y1 * u;
  }
  h.rescale(*d1, h.h11, h.h12, x1);
  h.rescale(*d2, h.h21, h.h22, nullptr);
  // What the form implies is not stored.
  if (h.form < 0) {
    param[1] = h.h11;
    param[2] = h.h21;
    param[3] = h.h12;
    param[4] = h.h22;
  } else if (h.form == 0) {
    param[2] = h.h21;
    param[3] = h.h12;
  } else {
    param[1] = h.h11;
    param[4] = h.h22;
  }
  param[0] = h.form;
}

template <Scalar T>
int iamax(int n, const T* x, int incx) {
  return first_extreme<true>(n, x, incx);
}

template <Scalar T>
int iamin(int n, const T* x, int incx) {
  return first_extreme<false>(n, x, incx);
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

template void in_sse::axpy(int, float, const float*, int, float*, int);
template void copy(int, const float*, int, float*, int);
template void swap(int, float*, int, float*, int);
template float in_sse::dot<false>(int, const float*, int, const float*, int);
template float in_sse::nrm2(int, const float*, int);
template float in_sse::asum(int, const float*, int);
template void rot(int, float*, int, float*, int, float, float);
template int iamax(int, const float*, int);
template int iamin(int, const float*, int);
template void axpyi(int, float, const float*, const int*, float*);
template float dotui(int, const float*, const int*, const float*);
template void gthr(int, const float*, float*, const int*);
template void sctr(int, const float*, const int*, float*);

template void in_sse::axpy(int, Complex, const Complex*, int, Complex*, int);
template void copy(int, const Complex*, int, Complex*, int);
template void swap(int, Complex*, int, Complex*, int);
template Complex in_sse::dot<false>(int, const Complex*, int, const Complex*, int);
template Complex in_sse::dot<true>(int, const Complex*, int, const Complex*, int);
template float in_sse::nrm2(int, const Complex*, int);
template float in_sse::asum(int, const Complex*, int);
template void rot(int, Complex*, int, Complex*, int, float, float);
template int iamax(int, const Complex*, int);
template int iamin(int, const Complex*, int);
template void axpyi(int, Complex, const Complex*, const int*, Complex*);
template Complex dotui(int, const Complex*, const int*, const Complex*);
template void gthr(int, const Complex*, Complex*, const int*);
template void sctr(int, const Complex*, const int*, Complex*);

}  // namespace quorin::dense
