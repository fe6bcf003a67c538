#include "bench/direct/cholmod_peer.hpp"

#include <stdexcept>

#if defined(QUORIN_HAS_CHOLMOD)
#include <cholmod.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>

#include "dense/dense.hpp"

namespace {

using Int = std::int32_t;
using Complex = std::complex<double>;
namespace blocked = quorin::dense::blocked;

template <class T>
void rank_k(char uplo, char trans, int n, int k, double alpha, const T* a, int lda, double beta, T* c, int ldc) {
  if constexpr (quorin::kIsComplex<T>) {
    blocked::herk<T>(uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
  } else {
    blocked::syrk<T>(uplo, trans, n, k, alpha, a, lda, beta, c, ldc);
  }
}

// The lower triangle of L L^H by recursion. Returns the order of the first minor that is not positive, or 0.
template <class T>
int factor(int n, T* a, int lda) {
  if (n <= 16) {
    for (int k = 0; k < n; ++k) {
      T* const x = a + static_cast<std::ptrdiff_t>(k) * lda;
      const double pivot = quorin::real_part(x[k]);
      if (!(pivot > 0)) return k + 1;
      x[k] = std::sqrt(pivot);
      for (int i = k + 1; i < n; ++i) x[i] /= x[k];
      for (int j = k + 1; j < n; ++j) {
        T* const y = a + static_cast<std::ptrdiff_t>(j) * lda;
        for (int i = j; i < n; ++i) y[i] -= quorin::product(x[i], quorin::conjugate(x[j]));
      }
    }
    return 0;
  }
  const int first = n < 64 ? n / 2 : n / 2 / 32 * 32, second = n - first;
  if (const int failed = factor(first, a, lda)) return failed;
  T* const beside = a + first;
  T* const rest = beside + static_cast<std::ptrdiff_t>(first) * lda;
  blocked::trsm('R', 'L', 'C', 'N', second, first, T{1}, a, lda, beside, lda);
  rank_k('L', 'N', second, first, -1.0, beside, lda, 1.0, rest, lda);
  const int failed = factor(second, rest, lda);
  return failed == 0 ? 0 : failed + first;
}

}  // namespace

// What CHOLMOD wants of the BLAS and LAPACK beside what UMFPACK does: over the product's kernels, too.
extern "C" {
void dsyrk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const double* a,
            const Int* lda, const double* beta, double* c, const Int* ldc);
void zherk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const Complex* a,
            const Int* lda, const double* beta, Complex* c, const Int* ldc);
void dpotrf_(const char* uplo, const Int* n, double* a, const Int* lda, Int* info);
void zpotrf_(const char* uplo, const Int* n, Complex* a, const Int* lda, Int* info);

void dsyrk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const double* a,
            const Int* lda, const double* beta, double* c, const Int* ldc) {
  const quorin::dense::KernelBuffer buffer(1);
  rank_k(*uplo, *trans, *n, *k, *alpha, a, *lda, *beta, c, *ldc);
}
void zherk_(const char* uplo, const char* trans, const Int* n, const Int* k, const double* alpha, const Complex* a,
            const Int* lda, const double* beta, Complex* c, const Int* ldc) {
  const quorin::dense::KernelBuffer buffer(1);
  rank_k(*uplo, *trans, *n, *k, *alpha, a, *lda, *beta, c, *ldc);
}
// CHOLMOD asks for lower triangles alone.
void dpotrf_(const char*, const Int* n, double* a, const Int* lda, Int* info) {
  const quorin::dense::KernelBuffer buffer(1);
  *info = *n == 0 ? 0 : factor(*n, a, *lda);
}
void zpotrf_(const char*, const Int* n, Complex* a, const Int* lda, Int* info) {
  const quorin::dense::KernelBuffer buffer(1);
  *info = *n == 0 ? 0 : factor(*n, a, *lda);
}
}
#endif

namespace quorin::bench {

#if defined(QUORIN_HAS_CHOLMOD)

struct CholmodPeer::State {
  cholmod_common common{};
  cholmod_sparse* matrix = nullptr;
  cholmod_factor* factor = nullptr;
  std::vector<int> permutation;
};

bool CholmodPeer::is_there() { return true; }

CholmodPeer::CholmodPeer(const test::CompressedArrays& lower, int n, const int* permutation)
    : state_(std::make_unique<State>()) {
  State& s = *state_;
  cholmod_start(&s.common);
  s.common.nmethods = 1;
  s.common.method[0].ordering = CHOLMOD_GIVEN;
  s.common.postorder = 1;
  s.permutation.assign(permutation, permutation + n);
  const auto size = static_cast<std::size_t>(n);
  s.matrix = cholmod_allocate_sparse(size, size, lower.indices.size(), 1, 1, -1, CHOLMOD_REAL, &s.common);
  if (s.matrix == nullptr) throw std::runtime_error("CHOLMOD has no memory");
  std::copy(lower.starts.begin(), lower.starts.end(), static_cast<int*>(s.matrix->p));
  std::copy(lower.indices.begin(), lower.indices.end(), static_cast<int*>(s.matrix->i));
  std::copy(lower.re.begin(), lower.re.end(), static_cast<double*>(s.matrix->x));
}

CholmodPeer::~CholmodPeer() {
  cholmod_free_factor(&state_->factor, &state_->common);
  cholmod_free_sparse(&state_->matrix, &state_->common);
  cholmod_finish(&state_->common);
}

void CholmodPeer::analyze() {
  cholmod_free_factor(&state_->factor, &state_->common);
  state_->factor = cholmod_analyze_p(state_->matrix, state_->permutation.data(), nullptr, 0, &state_->common);
}

void CholmodPeer::factorize() {
  cholmod_factorize(state_->matrix, state_->factor, &state_->common);
  if (state_->common.status != CHOLMOD_OK) throw std::runtime_error("CHOLMOD fails");
}

void CholmodPeer::solve(int nrhs) {
  cholmod_dense* b = cholmod_ones(state_->matrix->nrow, static_cast<std::size_t>(nrhs), CHOLMOD_REAL, &state_->common);
  cholmod_dense* x = cholmod_solve(CHOLMOD_A, state_->factor, b, &state_->common);
  cholmod_free_dense(&b, &state_->common);
  cholmod_free_dense(&x, &state_->common);
}

#else

struct CholmodPeer::State {};

bool CholmodPeer::is_there() { return false; }
CholmodPeer::CholmodPeer(const test::CompressedArrays&, int, const int*) {
  throw std::logic_error("this program was built without CHOLMOD");
}
CholmodPeer::~CholmodPeer() = default;
void CholmodPeer::analyze() {}
void CholmodPeer::factorize() {}
void CholmodPeer::solve(int) {}

#endif

}  // namespace quorin::bench
