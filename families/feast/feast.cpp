#include "families/feast/feast.hpp"

#include <algorithm>

#include "base/thread_settings.hpp"
#include "dense/dense.hpp"
#include "families/feast/arguments.hpp"
#include "families/feast/interval_search.hpp"

namespace quorin::feast {
namespace {

template <Scalar T>
Status search(const Arguments<T>& arguments) {
  const Status info = check(arguments);
  if (info != Status::kDone) return info;
  const dense::KernelBuffer buffers(base::region_threads(base::Domain::kSparseDirect));
  if (buffers.granted() == 0) return Status::kNoMemory;
  return IntervalSearch<T>(arguments, buffers.granted()).run();
}

// Warnings come with results, errors with none.
constexpr bool is_error(Status info) { return info < Status::kDone || info > Status::kFilteredSubspace; }

template <Scalar T>
void solve(const Arguments<T>& arguments) {
  if (arguments.info == nullptr) return;
  const Status info = search(arguments);
  *arguments.info = static_cast<int>(info);
  if (!is_error(info)) return;
  if (arguments.m != nullptr) *arguments.m = 0;
  if (arguments.loop != nullptr) *arguments.loop = 0;
}

}  // namespace

void init(std::int32_t* fpm) noexcept {
  if (fpm != nullptr) std::ranges::copy(kFpmDefaults, fpm);
}

template <Scalar T>
void solve_standard(const char* uplo, const int* n, const T* a, const int* ia, const int* ja, std::int32_t* fpm,
                    float* epsout, int* loop, const float* emin, const float* emax, int* m0, float* e, T* x, int* m,
                    float* res, int* info) noexcept {
  solve(Arguments<T>{uplo, n, {a, ia, ja}, false, {}, fpm, epsout, loop, emin, emax, m0, e, x, m, res, info});
}

template <Scalar T>
void solve_generalized(const char* uplo, const int* n, const T* a, const int* ia, const int* ja, const T* b,
                       const int* ib, const int* jb, std::int32_t* fpm, float* epsout, int* loop, const float* emin,
                       const float* emax, int* m0, float* e, T* x, int* m, float* res, int* info) noexcept {
  solve(Arguments<T>{uplo, n, {a, ia, ja}, true, {b, ib, jb}, fpm, epsout, loop, emin, emax, m0, e, x, m, res, info});
}

using Complex = std::complex<float>;
template void solve_standard(const char*, const int*, const float*, const int*, const int*, std::int32_t*, float*, int*,
                             const float*, const float*, int*, float*, float*, int*, float*, int*) noexcept;
template void solve_standard(const char*, const int*, const Complex*, const int*, const int*, std::int32_t*, float*,
                             int*, const float*, const float*, int*, float*, Complex*, int*, float*, int*) noexcept;
template void solve_generalized(const char*, const int*, const float*, const int*, const int*, const float*, const int*,
                                const int*, std::int32_t*, float*, int*, const float*, const float*, int*, float*,
                                float*, int*, float*, int*) noexcept;
template void solve_generalized(const char*, const int*, const Complex*, const int*, const int*, const Complex*,
                                const int*, const int*, std::int32_t*, float*, int*, const float*, const float*, int*,
                                float*, Complex*, int*, float*, int*) noexcept;

}  // namespace quorin::feast
