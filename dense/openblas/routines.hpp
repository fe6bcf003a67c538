// OpenBLAS's routines by operation and scalar type: Routines<T>::gemm and so on, in the Fortran convention.
//
// They are the private copies that third_party/ makes: single-threaded, and named openblas_sgemm_ where the library has
// a routine of its own under the name sgemm_ (which LAPACK then calls).
#pragma once

#include <complex>

#include "base/scalar.hpp"
#include "dense/openblas/fortran.hpp"

namespace quorin::dense::openblas {

template <class T>
using Axpy = void(const int* n, const T* a, const T* x, const int* incx, T* y, const int* incy);
template <class T>
using Copy = void(const int* n, const T* x, const int* incx, T* y, const int* incy);
template <class T>
using Swap = void(const int* n, T* x, const int* incx, T* y, const int* incy);
template <class T, class Result>
using Dot = Result(const int* n, const T* x, const int* incx, const T* y, const int* incy);
template <class T>
using Norm = RealOf<T>(const int* n, const T* x, const int* incx);
template <class T>
using Rotate = void(const int* n, T* x, const int* incx, T* y, const int* incy, const RealOf<T>* c, const RealOf<T>* s);
template <class T>
using RotateModified = void(const int* n, T* x, const int* incx, T* y, const int* incy, const T* param);
template <class T>
using MakeRotationModified = void(T* d1, T* d2, T* x1, const T* y1, T* param);

template <class T>
using Gemv = void(const char* trans, const int* m, const int* n, const T* alpha, const T* a, const int* lda, const T* x,
                  const int* incx, const T* beta, T* y, const int* incy);
template <class T>
using Triangular2 = void(const char* uplo, const char* trans, const char* diag, const int* n, const T* a,
                         const int* lda, T* x, const int* incx);
template <class T>
using Symv = void(const char* uplo, const int* n, const T* alpha, const T* a, const int* lda, const T* x,
                  const int* incx, const T* beta, T* y, const int* incy);
template <class T>
using Ger = void(const int* m, const int* n, const T* alpha, const T* x, const int* incx, const T* y, const int* incy,
                 T* a, const int* lda);
template <class T>
using Rank1 = void(const char* uplo, const int* n, const RealOf<T>* alpha, const T* x, const int* incx, T* a,
                   const int* lda);
template <class T>
using Rank2 = void(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx, const T* y,
                   const int* incy, T* a, const int* lda);

template <class T>
using Gemm = void(const char* transa, const char* transb, const int* m, const int* n, const int* k, const T* alpha,
                  const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c, const int* ldc);
template <class T>
using Symm = void(const char* side, const char* uplo, const int* m, const int* n, const T* alpha, const T* a,
                  const int* lda, const T* b, const int* ldb, const T* beta, T* c, const int* ldc);
template <class T, class Factor>
using RankK = void(const char* uplo, const char* trans, const int* n, const int* k, const Factor* alpha, const T* a,
                   const int* lda, const Factor* beta, T* c, const int* ldc);
template <class T, class BetaFactor>
using Rank2K = void(const char* uplo, const char* trans, const int* n, const int* k, const T* alpha, const T* a,
                    const int* lda, const T* b, const int* ldb, const BetaFactor* beta, T* c, const int* ldc);
template <class T>
using Triangular3 = void(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                         const int* n, const T* alpha, const T* a, const int* lda, T* b, const int* ldb);

using Complex = std::complex<float>;

extern "C" {
Axpy<float> openblas_saxpy_;
Axpy<Complex> openblas_caxpy_;
Copy<float> openblas_scopy_;
Copy<Complex> openblas_ccopy_;
Swap<float> openblas_sswap_;
Swap<Complex> openblas_cswap_;
Dot<float, float> openblas_sdot_;
Dot<Complex, ComplexResult> openblas_cdotc_;
Dot<Complex, ComplexResult> openblas_cdotu_;
Norm<float> openblas_snrm2_;
Norm<Complex> openblas_scnrm2_;
Rotate<float> openblas_srot_;
Rotate<Complex> openblas_csrot_;
RotateModified<float> openblas_srotm_;
MakeRotationModified<float> openblas_srotmg_;

Gemv<float> openblas_sgemv_;
Gemv<Complex> openblas_cgemv_;
Triangular2<float> openblas_strmv_;
Triangular2<Complex> openblas_ctrmv_;
Triangular2<float> openblas_strsv_;
Triangular2<Complex> openblas_ctrsv_;
Symv<float> openblas_ssymv_;
Symv<Complex> openblas_chemv_;
Ger<float> openblas_sger_;
Ger<Complex> openblas_cgeru_;
Ger<Complex> openblas_cgerc_;
Rank1<float> openblas_ssyr_;
Rank1<Complex> openblas_cher_;
Rank2<float> openblas_ssyr2_;
Rank2<Complex> openblas_cher2_;

Gemm<float> openblas_sgemm_;
Gemm<Complex> openblas_cgemm_;
Symm<float> openblas_ssymm_;
Symm<Complex> openblas_csymm_;
Symm<Complex> openblas_chemm_;
RankK<float, float> openblas_ssyrk_;
RankK<Complex, Complex> openblas_csyrk_;
RankK<Complex, float> openblas_cherk_;
Rank2K<float, float> openblas_ssyr2k_;
Rank2K<Complex, Complex> openblas_csyr2k_;
Rank2K<Complex, float> openblas_cher2k_;
Triangular3<float> openblas_strmm_;
Triangular3<Complex> openblas_ctrmm_;
Triangular3<float> openblas_strsm_;
Triangular3<Complex> openblas_ctrsm_;
}

template <Scalar T>
struct Routines;

template <>
struct Routines<float> {
  static constexpr auto* axpy = openblas_saxpy_;
  static constexpr auto* copy = openblas_scopy_;
  static constexpr auto* swap = openblas_sswap_;
  static constexpr auto* dotu = openblas_sdot_;
  static constexpr auto* nrm2 = openblas_snrm2_;
  static constexpr auto* rot = openblas_srot_;
  static constexpr auto* rotm = openblas_srotm_;
  static constexpr auto* rotmg = openblas_srotmg_;

  static constexpr auto* gemv = openblas_sgemv_;
  static constexpr auto* trmv = openblas_strmv_;
  static constexpr auto* trsv = openblas_strsv_;
  static constexpr auto* hemv = openblas_ssymv_;
  static constexpr auto* geru = openblas_sger_;
  static constexpr auto* gerc = openblas_sger_;
  static constexpr auto* her = openblas_ssyr_;
  static constexpr auto* her2 = openblas_ssyr2_;

  static constexpr auto* gemm = openblas_sgemm_;
  static constexpr auto* symm = openblas_ssymm_;
  static constexpr auto* hemm = openblas_ssymm_;
  static constexpr auto* syrk = openblas_ssyrk_;
  static constexpr auto* herk = openblas_ssyrk_;
  static constexpr auto* syr2k = openblas_ssyr2k_;
  static constexpr auto* her2k = openblas_ssyr2k_;
  static constexpr auto* trmm = openblas_strmm_;
  static constexpr auto* trsm = openblas_strsm_;
};

template <>
struct Routines<Complex> {
  static constexpr auto* axpy = openblas_caxpy_;
  static constexpr auto* copy = openblas_ccopy_;
  static constexpr auto* swap = openblas_cswap_;
  static constexpr auto* dotc = openblas_cdotc_;
  static constexpr auto* dotu = openblas_cdotu_;
  static constexpr auto* nrm2 = openblas_scnrm2_;
  static constexpr auto* rot = openblas_csrot_;

  static constexpr auto* gemv = openblas_cgemv_;
  static constexpr auto* trmv = openblas_ctrmv_;
  static constexpr auto* trsv = openblas_ctrsv_;
  static constexpr auto* hemv = openblas_chemv_;
  static constexpr auto* geru = openblas_cgeru_;
  static constexpr auto* gerc = openblas_cgerc_;
  static constexpr auto* her = openblas_cher_;
  static constexpr auto* her2 = openblas_cher2_;

  static constexpr auto* gemm = openblas_cgemm_;
  static constexpr auto* symm = openblas_csymm_;
  static constexpr auto* hemm = openblas_chemm_;
  static constexpr auto* syrk = openblas_csyrk_;
  static constexpr auto* herk = openblas_cherk_;
  static constexpr auto* syr2k = openblas_csyr2k_;
  static constexpr auto* her2k = openblas_cher2k_;
  static constexpr auto* trmm = openblas_ctrmm_;
  static constexpr auto* trsm = openblas_ctrsm_;
};

}  // namespace quorin::dense::openblas
