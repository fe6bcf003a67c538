#include "families/taucs/vectors.hpp"

#include <cstddef>
#include <limits>

#include "base/sums.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"

namespace quorin::taucs {

template <Element T>
T* create_vector(std::int32_t n) noexcept {
  return n < 0 ? nullptr : new_array<T>(static_cast<std::size_t>(n));
}

template <Element T>
void axpby(std::int32_t n, double a, const T* x, double b, const T* y, T* r) noexcept {
  for (int i = 0; i < n; ++i) r[i] = a * x[i] + b * y[i];
}

template <Element T>
void permute(std::int32_t n, const T* v, T* pv, const std::int32_t* p) noexcept {
  if (are_indices(p, n, n)) sparse::permute(n, p, v, pv);
}

template <Element T>
void permute_back(std::int32_t n, const T* v, T* pv, const std::int32_t* p) noexcept {
  if (are_indices(p, n, n)) sparse::permute_back(n, p, v, pv);
}

template double* create_vector(std::int32_t) noexcept;
template Complex* create_vector(std::int32_t) noexcept;
template void axpby(std::int32_t, double, const double*, double, const double*, double*) noexcept;
template void axpby(std::int32_t, double, const Complex*, double, const Complex*, Complex*) noexcept;
template void permute(std::int32_t, const double*, double*, const std::int32_t*) noexcept;
template void permute(std::int32_t, const Complex*, Complex*, const std::int32_t*) noexcept;
template void permute_back(std::int32_t, const double*, double*, const std::int32_t*) noexcept;
template void permute_back(std::int32_t, const Complex*, Complex*, const std::int32_t*) noexcept;

void* vec_create(std::int32_t n, std::int32_t flags) noexcept {
  void* vector = nullptr;
  dispatch(flags, [&]<class T>() { vector = create_vector<T>(n); });
  return vector;
}

void vec_axpby(std::int32_t n, std::int32_t flags, double a, const void* x, double b, const void* y, void* r) noexcept {
  dispatch(flags,
           [&]<class T>() { axpby(n, a, static_cast<const T*>(x), b, static_cast<const T*>(y), static_cast<T*>(r)); });
}

void vec_permute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept {
  dispatch(flags, [&]<class T>() { permute(n, static_cast<const T*>(v), static_cast<T*>(pv), p); });
}

void vec_ipermute(std::int32_t n, std::int32_t flags, const void* v, void* pv, const std::int32_t* p) noexcept {
  dispatch(flags, [&]<class T>() { permute_back(n, static_cast<const T*>(v), static_cast<T*>(pv), p); });
}

double vec_norm2(std::int32_t n, std::int32_t flags, const void* v) noexcept {
  double norm = std::numeric_limits<double>::quiet_NaN();
  dispatch(flags, [&]<class T>() {
    // A complex vector's norm is that of its parts.
    const std::size_t count = n > 0 ? static_cast<std::size_t>(n) * kParts<T> : 0;
    norm = base::norm(count, static_cast<const double*>(v));
  });
  return norm;
}

}  // namespace quorin::taucs
