#include "families/feast/hermitian_eigensolver.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>

extern "C" {
using Int = std::int32_t;
using Complex = std::complex<double>;
void dsyevd_(const char* jobz, const char* uplo, const Int* n, double* a, const Int* lda, double* w, double* work,
             const Int* lwork, Int* iwork, const Int* liwork, Int* info, std::size_t, std::size_t) noexcept;
void zheevd_(const char* jobz, const char* uplo, const Int* n, Complex* a, const Int* lda, double* w, Complex* work,
             const Int* lwork, double* rwork, const Int* lrwork, Int* iwork, const Int* liwork, Int* info, std::size_t,
             std::size_t) noexcept;
}

namespace quorin::feast {

// The lengths are LAPACK's documented least ones.
template <Scalar T>
bool HermitianEigensolver<T>::reserve(int n) {
  const auto k = static_cast<std::size_t>(n);
  work_ = base::Workspace<T>(kIsComplex<T> ? 2 * k + k * k : 1 + 6 * k + 2 * k * k);
  real_work_ = base::Workspace<double>(kIsComplex<T> ? 1 + 5 * k + 2 * k * k : 0);
  integer_work_ = base::Workspace<std::int32_t>(3 + 5 * k);
  return work_ && real_work_ && integer_work_;
}

template <Scalar T>
bool HermitianEigensolver<T>::decompose(int n, T* M, double* values) {
  for (int j = 0; j < n; ++j) {
    const T* const column = M + static_cast<std::ptrdiff_t>(j) * n;
    const auto is_finite = [](T x) { return std::isfinite(real_part(x)) && std::isfinite(imaginary_part(x)); };
    if (!std::all_of(column + j, column + n, is_finite)) return false;
  }
  const auto length = [](const auto& work) { return static_cast<Int>(work.size()); };
  const Int lwork = length(work_), lrwork = length(real_work_), liwork = length(integer_work_);
  Int info = 0;
  if constexpr (kIsComplex<T>) {
    zheevd_("V", "L", &n, M, &n, values, work_.data(), &lwork, real_work_.data(), &lrwork, integer_work_.data(),
            &liwork, &info, 1, 1);
  } else {
    dsyevd_("V", "L", &n, M, &n, values, work_.data(), &lwork, integer_work_.data(), &liwork, &info, 1, 1);
  }
  return info == 0;
}

template class HermitianEigensolver<double>;
template class HermitianEigensolver<std::complex<double>>;

}  // namespace quorin::feast
