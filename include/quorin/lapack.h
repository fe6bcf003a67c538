/* LAPACK.
 *
 * Linear systems, least squares, eigenvalues and singular values in single (s) and single-complex (c) precision, with
 * the meaning of every argument as published (Anderson et al., LAPACK Users' Guide, 3rd ed., SIAM 1999). Every argument
 * is passed by reference; matrices are column-major with a leading dimension; an option is one character, upper or
 * lower case, with no hidden length; a logical is a 32-bit integer, zero for false.
 *
 * The index form of a routine takes each array as its base address and an element index by value, and works in place
 * from that element on.
 *
 * info: 0 success; -i argument i is wrong (XERBLA has reported it, and nothing else was touched); positive: a numerical
 * failure, as published; -1000: no memory for the work buffers (XERBLA has reported code 1000, and nothing was
 * touched). Where there is an lwork, -1 asks for the best size: it is stored in the first element of work, and nothing
 * is computed.
 *
 * Threads: the BLAS operations inside use several when they are large enough (see the services page). Calls from
 * several host threads on separate data are independent.
 *
 * Generated from exports/tables/lapack.table. Do not edit. */
#ifndef QUORIN_LAPACK_H
#define QUORIN_LAPACK_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A host function that selects eigenvalues: non-zero for one that is to lead. It gets the real and the imaginary part.
 * */
typedef int32_t(QUORIN_CDECL* quorin_select_real)(const float* re, const float* im);

/* The same, for complex numbers. */
typedef int32_t(QUORIN_CDECL* quorin_select_complex)(const quorin_complex* w);

/* The same for generalized problems, where the eigenvalue is alpha / beta. */
typedef int32_t(QUORIN_CDECL* quorin_select_real_pair)(const float* alpha_re, const float* alpha_im, const float* beta);

/* The same for generalized problems with complex numbers. */
typedef int32_t(QUORIN_CDECL* quorin_select_complex_pair)(const quorin_complex* alpha, const quorin_complex* beta);

/* ---- Linear systems, general ---- */

/* LU factorization A = P L U of a general matrix with partial pivoting.
     a: in, out, [lda x n]
     ipiv: out, [min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL sgetrf(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* ipiv,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgetrf_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrf(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ipiv, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrf_Idx(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, int32_t* info);

/* Solves A X = B, A^T X = B or A^H X = B with the factors of getrf.
     a: [lda x n]
     ipiv: [n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL sgetrs(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, const int32_t* ipiv, float* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgetrs_Idx(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        float* b, int32_t b_index, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrs(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrs_Idx(const char* trans, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Inverse of a matrix from the factors of getrf.
     a: in, out, [lda x n]
     ipiv: [n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgetri(const int32_t* n, float* a, const int32_t* lda, const int32_t* ipiv, float* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgetri_Idx(const int32_t* n, float* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetri(const int32_t* n, quorin_complex* a, const int32_t* lda, const int32_t* ipiv,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetri_Idx(const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Estimates the reciprocal condition number of a matrix, in the 1- or the infinity-norm, from the factors of getrf.
     a: [lda x n]
     rcond: out
     work: out, [4*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgecon(const char* norm, const int32_t* n, const float* a, const int32_t* lda,
                                    const float* anorm, float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgecon_Idx(const char* norm, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a matrix, in the 1- or the infinity-norm, from the factors of getrf.
     a: [lda x n]
     rcond: out
     work: out, [2*n]
     rwork: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL cgecon(const char* norm, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgecon_Idx(const char* norm, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Refines the solution of a general system iteratively; forward and backward error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgerfs(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, const float* af, const int32_t* ldaf, const int32_t* ipiv,
                                    const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr,
                                    float* berr, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgerfs_Idx(const char* trans, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                        const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const float* b,
                                        int32_t b_index, const int32_t* ldb, float* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, float* work, int32_t work_index,
                                        int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Refines the solution of a general system iteratively; forward and backward error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgerfs(const char* trans, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* af, const int32_t* ldaf,
                                    const int32_t* ipiv, const quorin_complex* b, const int32_t* ldb, quorin_complex* x,
                                    const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgerfs_Idx(const char* trans, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* af, int32_t af_index, const int32_t* ldaf,
                                        const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* ---- Linear systems, general band ---- */

/* LU factorization of a band matrix with partial pivoting.
     ab: in, out, [ldab x n]
     ipiv: out, [min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL sgbtrf(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku, float* ab,
                                    const int32_t* ldab, int32_t* ipiv, int32_t* info);
QUORIN_API void QUORIN_CDECL sgbtrf_Idx(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        float* ab, int32_t ab_index, const int32_t* ldab, int32_t* ipiv,
                                        int32_t ipiv_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cgbtrf(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    quorin_complex* ab, const int32_t* ldab, int32_t* ipiv, int32_t* info);
QUORIN_API void QUORIN_CDECL cgbtrf_Idx(const int32_t* m, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        quorin_complex* ab, int32_t ab_index, const int32_t* ldab, int32_t* ipiv,
                                        int32_t ipiv_index, int32_t* info);

/* Solves a band system with the factors of gbtrf.
     ab: [ldab x n]
     ipiv: [n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL sgbtrs(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const int32_t* nrhs, const float* ab, const int32_t* ldab, const int32_t* ipiv,
                                    float* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL sgbtrs_Idx(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const int32_t* nrhs, const float* ab, int32_t ab_index, const int32_t* ldab,
                                        const int32_t* ipiv, int32_t ipiv_index, float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cgbtrs(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const int32_t* nrhs, const quorin_complex* ab, const int32_t* ldab,
                                    const int32_t* ipiv, quorin_complex* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cgbtrs_Idx(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const int32_t* nrhs, const quorin_complex* ab, int32_t ab_index,
                                        const int32_t* ldab, const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, int32_t* info);

/* Estimates the reciprocal condition number of a band matrix from the factors of gbtrf.
     ab: [ldab x n]
     ipiv: [n]
     rcond: out
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgbcon(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const float* ab, const int32_t* ldab, const int32_t* ipiv, const float* anorm,
                                    float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgbcon_Idx(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const float* ab, int32_t ab_index, const int32_t* ldab, const int32_t* ipiv,
                                        int32_t ipiv_index, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a band matrix from the factors of gbtrf.
     ab: [ldab x n]
     ipiv: [n]
     rcond: out
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgbcon(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const quorin_complex* ab, const int32_t* ldab, const int32_t* ipiv,
                                    const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgbcon_Idx(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                        const int32_t* ipiv, int32_t ipiv_index, const float* anorm, float* rcond,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Refines the solution of a band system iteratively, with error bounds for each right-hand side.
     ab: [ldab x n]
     afb: [ldafb x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgbrfs(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const int32_t* nrhs, const float* ab, const int32_t* ldab, const float* afb,
                                    const int32_t* ldafb, const int32_t* ipiv, const float* b, const int32_t* ldb,
                                    float* x, const int32_t* ldx, float* ferr, float* berr, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgbrfs_Idx(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const int32_t* nrhs, const float* ab, int32_t ab_index, const int32_t* ldab,
                                        const float* afb, int32_t afb_index, const int32_t* ldafb, const int32_t* ipiv,
                                        int32_t ipiv_index, const float* b, int32_t b_index, const int32_t* ldb,
                                        float* x, int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                        float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* Refines the solution of a band system iteratively, with error bounds for each right-hand side.
     ab: [ldab x n]
     afb: [ldafb x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgbrfs(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const int32_t* nrhs, const quorin_complex* ab, const int32_t* ldab,
                                    const quorin_complex* afb, const int32_t* ldafb, const int32_t* ipiv,
                                    const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                                    float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgbrfs_Idx(const char* trans, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const int32_t* nrhs, const quorin_complex* ab, int32_t ab_index,
                                        const int32_t* ldab, const quorin_complex* afb, int32_t afb_index,
                                        const int32_t* ldafb, const int32_t* ipiv, int32_t ipiv_index,
                                        const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* x,
                                        int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* ---- Linear systems, symmetric or Hermitian positive definite ---- */

/* Cholesky factorization of a positive definite matrix.
     a: in, out, [lda x n]
     info: out */
QUORIN_API void QUORIN_CDECL spotrf(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL spotrf_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrf(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrf_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);

/* Solves A X = B with the Cholesky factor of potrf.
     a: [lda x n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL spotrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL spotrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, int32_t* info);

/* Inverse of a positive definite matrix from the Cholesky factor of potrf.
     a: in, out, [lda x n]
     info: out */
QUORIN_API void QUORIN_CDECL spotri(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL spotri_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpotri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);

/* Estimates the reciprocal condition number of a positive definite matrix from the Cholesky factor of potrf.
     a: [lda x n]
     rcond: out
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL spocon(const char* uplo, const int32_t* n, const float* a, const int32_t* lda,
                                    const float* anorm, float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL spocon_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a positive definite matrix from the Cholesky factor of potrf.
     a: [lda x n]
     rcond: out
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cpocon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpocon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Refines the solution of a positive definite system iteratively, with error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sporfs(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, const float* af, const int32_t* ldaf, const float* b,
                                    const int32_t* ldb, float* x, const int32_t* ldx, float* ferr, float* berr,
                                    float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sporfs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                        const int32_t* ldaf, const float* b, int32_t b_index, const int32_t* ldb,
                                        float* x, int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                        float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* Refines the solution of a positive definite system iteratively, with error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cporfs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* af, const int32_t* ldaf,
                                    const quorin_complex* b, const int32_t* ldb, quorin_complex* x, const int32_t* ldx,
                                    float* ferr, float* berr, quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cporfs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* af, int32_t af_index, const int32_t* ldaf,
                                        const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* x,
                                        int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* ---- Linear systems, symmetric or Hermitian positive definite: band ---- */

/* Cholesky factorization of a positive definite band matrix.
     ab: in, out, [ldab x n]
     info: out */
QUORIN_API void QUORIN_CDECL spbtrf(const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                    const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL spbtrf_Idx(const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                        int32_t ab_index, const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrf(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                                    const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrf_Idx(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                                        int32_t ab_index, const int32_t* ldab, int32_t* info);

/* Solves A X = B with the band Cholesky factor of pbtrf.
     ab: [ldab x n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL spbtrs(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                    const float* ab, const int32_t* ldab, float* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL spbtrs_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                        const float* ab, int32_t ab_index, const int32_t* ldab, float* b,
                                        int32_t b_index, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrs(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                    const quorin_complex* ab, const int32_t* ldab, quorin_complex* b,
                                    const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrs_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                        const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                        quorin_complex* b, int32_t b_index, const int32_t* ldb, int32_t* info);

/* Estimates the reciprocal condition number of a positive definite band matrix from the factor of pbtrf.
     ab: [ldab x n]
     rcond: out
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL spbcon(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                                    const int32_t* ldab, const float* anorm, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL spbcon_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                                        int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond,
                                        float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* Estimates the reciprocal condition number of a positive definite band matrix from the factor of pbtrf.
     ab: [ldab x n]
     rcond: out
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cpbcon(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                                    const int32_t* ldab, const float* anorm, float* rcond, quorin_complex* work,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbcon_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                                        int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Refines the solution of a positive definite band system iteratively, with error bounds for each right-hand side.
     ab: [ldab x n]
     afb: [ldafb x n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL spbrfs(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                    const float* ab, const int32_t* ldab, const float* afb, const int32_t* ldafb,
                                    const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr,
                                    float* berr, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL spbrfs_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                        const float* ab, int32_t ab_index, const int32_t* ldab, const float* afb,
                                        int32_t afb_index, const int32_t* ldafb, const float* b, int32_t b_index,
                                        const int32_t* ldb, float* x, int32_t x_index, const int32_t* ldx, float* ferr,
                                        float* berr, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Refines the solution of a positive definite band system iteratively, with error bounds for each right-hand side.
     ab: [ldab x n]
     afb: [ldafb x n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cpbrfs(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                    const quorin_complex* ab, const int32_t* ldab, const quorin_complex* afb,
                                    const int32_t* ldafb, const quorin_complex* b, const int32_t* ldb,
                                    quorin_complex* x, const int32_t* ldx, float* ferr, float* berr,
                                    quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbrfs_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const int32_t* nrhs,
                                        const quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                        const quorin_complex* afb, int32_t afb_index, const int32_t* ldafb,
                                        const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* x,
                                        int32_t x_index, const int32_t* ldx, float* ferr, float* berr,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* ---- Linear systems, symmetric indefinite and Hermitian indefinite ---- */

/* Factorization A = U D U^T or L D L^T of a symmetric matrix with diagonal pivoting (Bunch-Kaufman).
     a: in, out, [lda x n]
     ipiv: out, [n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL ssytrf(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* ipiv,
                                    float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssytrf_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL csytrf(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ipiv, quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL csytrf_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Solves A X = B with the factors of sytrf.
     a: [lda x n]
     ipiv: [n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL ssytrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, const int32_t* ipiv, float* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL ssytrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        float* b, int32_t b_index, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL csytrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL csytrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Inverse of a symmetric matrix from the factors of sytrf.
     a: in, out, [lda x n]
     ipiv: [n]
     work: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssytri(const char* uplo, const int32_t* n, float* a, const int32_t* lda,
                                    const int32_t* ipiv, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL ssytri_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, float* work,
                                        int32_t work_index, int32_t* info);

/* Inverse of a symmetric matrix from the factors of sytrf.
     a: in, out, [lda x n]
     ipiv: [n]
     work: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL csytri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, quorin_complex* work, int32_t* info);
QUORIN_API void QUORIN_CDECL csytri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        quorin_complex* work, int32_t work_index, int32_t* info);

/* Estimates the reciprocal condition number of a symmetric matrix from the factors of sytrf.
     a: [lda x n]
     ipiv: [n]
     rcond: out
     work: out, [2*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssycon(const char* uplo, const int32_t* n, const float* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL ssycon_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a symmetric matrix from the factors of sytrf.
     a: [lda x n]
     ipiv: [n]
     rcond: out
     work: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL csycon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL csycon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);

/* Refines the solution of a symmetric system iteratively, with error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssyrfs(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                    const int32_t* lda, const float* af, const int32_t* ldaf, const int32_t* ipiv,
                                    const float* b, const int32_t* ldb, float* x, const int32_t* ldx, float* ferr,
                                    float* berr, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssyrfs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs, const float* a,
                                        int32_t a_index, const int32_t* lda, const float* af, int32_t af_index,
                                        const int32_t* ldaf, const int32_t* ipiv, int32_t ipiv_index, const float* b,
                                        int32_t b_index, const int32_t* ldb, float* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, float* work, int32_t work_index,
                                        int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Refines the solution of a symmetric system iteratively, with error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL csyrfs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* af, const int32_t* ldaf,
                                    const int32_t* ipiv, const quorin_complex* b, const int32_t* ldb, quorin_complex* x,
                                    const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL csyrfs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* af, int32_t af_index, const int32_t* ldaf,
                                        const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Factorization A = U D U^H or L D L^H of a Hermitian matrix with diagonal pivoting (Bunch-Kaufman).
     a: in, out, [lda x n]
     ipiv: out, [n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL chetrf(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ipiv, quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chetrf_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Solves A X = B with the factors of hetrf.
     a: [lda x n]
     ipiv: [n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL chetrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL chetrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Inverse of a Hermitian matrix from the factors of hetrf.
     a: in, out, [lda x n]
     ipiv: [n]
     work: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL chetri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, quorin_complex* work, int32_t* info);
QUORIN_API void QUORIN_CDECL chetri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        quorin_complex* work, int32_t work_index, int32_t* info);

/* Estimates the reciprocal condition number of a Hermitian matrix from the factors of hetrf.
     a: [lda x n]
     ipiv: [n]
     rcond: out
     work: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL checon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL checon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);

/* Refines the solution of a Hermitian system iteratively, with error bounds for each right-hand side.
     a: [lda x n]
     af: [ldaf x n]
     ipiv: [n]
     b: [ldb x nrhs]
     x: in, out, [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cherfs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* af, const int32_t* ldaf,
                                    const int32_t* ipiv, const quorin_complex* b, const int32_t* ldb, quorin_complex* x,
                                    const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cherfs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* af, int32_t af_index, const int32_t* ldaf,
                                        const int32_t* ipiv, int32_t ipiv_index, const quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, quorin_complex* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* ---- Triangular ---- */

/* Solves a triangular system with many right-hand sides, after a check for singularity.
     a: [lda x n]
     b: in, out, [ldb x nrhs]
     info: out */
QUORIN_API void QUORIN_CDECL strtrs(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                    const int32_t* nrhs, const float* a, const int32_t* lda, float* b,
                                    const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL strtrs_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                        const int32_t* nrhs, const float* a, int32_t a_index, const int32_t* lda,
                                        float* b, int32_t b_index, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtrs(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                    const int32_t* nrhs, const quorin_complex* a, const int32_t* lda, quorin_complex* b,
                                    const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtrs_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                        const int32_t* nrhs, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, quorin_complex* b, int32_t b_index, const int32_t* ldb,
                                        int32_t* info);

/* Inverse of a triangular matrix.
     a: in, out, [lda x n]
     info: out */
QUORIN_API void QUORIN_CDECL strtri(const char* uplo, const char* diag, const int32_t* n, float* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL strtri_Idx(const char* uplo, const char* diag, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtri(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                                    const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtri_Idx(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, int32_t* info);

/* Estimates the reciprocal condition number of a triangular matrix.
     a: [lda x n]
     rcond: out
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL strcon(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                    const float* a, const int32_t* lda, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL strcon_Idx(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                        const float* a, int32_t a_index, const int32_t* lda, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a triangular matrix.
     a: [lda x n]
     rcond: out
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ctrcon(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                    const quorin_complex* a, const int32_t* lda, float* rcond, quorin_complex* work,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrcon_Idx(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda, float* rcond,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Error bounds for the solution of a triangular system.
     a: [lda x n]
     b: [ldb x nrhs]
     x: [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [3*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL strrfs(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                    const int32_t* nrhs, const float* a, const int32_t* lda, const float* b,
                                    const int32_t* ldb, const float* x, const int32_t* ldx, float* ferr, float* berr,
                                    float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL strrfs_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                        const int32_t* nrhs, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* b, int32_t b_index, const int32_t* ldb, const float* x,
                                        int32_t x_index, const int32_t* ldx, float* ferr, float* berr, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Error bounds for the solution of a triangular system.
     a: [lda x n]
     b: [ldb x nrhs]
     x: [ldx x nrhs]
     ferr: out, [nrhs]
     berr: out, [nrhs]
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ctrrfs(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                    const int32_t* nrhs, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* b, const int32_t* ldb, const quorin_complex* x,
                                    const int32_t* ldx, float* ferr, float* berr, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL ctrrfs_Idx(const char* uplo, const char* trans, const char* diag, const int32_t* n,
                                        const int32_t* nrhs, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, const quorin_complex* x, int32_t x_index,
                                        const int32_t* ldx, float* ferr, float* berr, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* ---- Least squares ---- */

/* Least-squares or minimum-norm solution of a full-rank system by QR or LQ factorization.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgels(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                   const int32_t* lda, float* b, const int32_t* ldb, float* work, const int32_t* lwork,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL sgels_Idx(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                       float* a, int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                       const int32_t* ldb, float* work, int32_t work_index, const int32_t* lwork,
                                       int32_t* info);
QUORIN_API void QUORIN_CDECL cgels(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                   quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb,
                                   quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgels_Idx(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                       quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                       int32_t b_index, const int32_t* ldb, quorin_complex* work, int32_t work_index,
                                       const int32_t* lwork, int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the singular value decomposition.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     s: out, [min(m,n)]
     rank: out
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgelss(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, float* s, const float* rcond,
                                    int32_t* rank, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelss_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* s, int32_t s_index, const float* rcond,
                                        int32_t* rank, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the singular value decomposition.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     s: out, [min(m,n)]
     rank: out
     work: out, [lwork]
     rwork: out, [5*min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL cgelss(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* s,
                                    const float* rcond, int32_t* rank, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgelss_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, float* s, int32_t s_index, const float* rcond,
                                        int32_t* rank, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                        float* rwork, int32_t rwork_index, int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by a complete orthogonal factorization.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     jpvt: in, out, [n]
     rank: out
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgelsy(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, int32_t* jpvt, const float* rcond,
                                    int32_t* rank, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelsy_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* jpvt, int32_t jpvt_index, const float* rcond,
                                        int32_t* rank, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by a complete orthogonal factorization.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     jpvt: in, out, [n]
     rank: out
     work: out, [lwork]
     rwork: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL cgelsy(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* jpvt,
                                    const float* rcond, int32_t* rank, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgelsy_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* jpvt, int32_t jpvt_index, const float* rcond,
                                        int32_t* rank, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                        float* rwork, int32_t rwork_index, int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the divide-and-conquer singular value decomposition. A
   query also stores the least lengths of iwork and rwork in their first elements.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     s: out, [min(m,n)]
     rank: out
     work: out, [lwork]
     iwork: out
     info: out */
QUORIN_API void QUORIN_CDECL sgelsd(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, float* s, const float* rcond,
                                    int32_t* rank, float* work, const int32_t* lwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelsd_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* s, int32_t s_index, const float* rcond,
                                        int32_t* rank, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the divide-and-conquer singular value decomposition. A
   query also stores the least lengths of iwork and rwork in their first elements.
     a: in, out, [lda x n]
     b: in, out, [ldb x nrhs]
     s: out, [min(m,n)]
     rank: out
     work: out, [lwork]
     rwork: out
     iwork: out
     info: out */
QUORIN_API void QUORIN_CDECL cgelsd(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* s,
                                    const float* rcond, int32_t* rank, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgelsd_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, float* s, int32_t s_index, const float* rcond,
                                        int32_t* rank, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                        float* rwork, int32_t rwork_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* ---- Least squares: generalized ---- */

/* Least squares with linear equality constraints: minimizes |c - A x| subject to B x = d.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     c: in, out, [m]
     d: in, out, [p]
     x: out, [n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgglse(const int32_t* m, const int32_t* n, const int32_t* p, float* a, const int32_t* lda,
                                    float* b, const int32_t* ldb, float* c, float* d, float* x, float* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgglse_Idx(const int32_t* m, const int32_t* n, const int32_t* p, float* a, int32_t a_index,
                                        const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* c,
                                        int32_t c_index, float* d, int32_t d_index, float* x, int32_t x_index,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgglse(const int32_t* m, const int32_t* n, const int32_t* p, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* c,
                                    quorin_complex* d, quorin_complex* x, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgglse_Idx(const int32_t* m, const int32_t* n, const int32_t* p, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, quorin_complex* c, int32_t c_index, quorin_complex* d,
                                        int32_t d_index, quorin_complex* x, int32_t x_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* The general Gauss-Markov linear model: minimizes |y| subject to d = A x + B y.
     a: in, out, [lda x m]
     b: in, out, [ldb x p]
     d: in, out, [n]
     x: out, [m]
     y: out, [p]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sggglm(const int32_t* n, const int32_t* m, const int32_t* p, float* a, const int32_t* lda,
                                    float* b, const int32_t* ldb, float* d, float* x, float* y, float* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sggglm_Idx(const int32_t* n, const int32_t* m, const int32_t* p, float* a, int32_t a_index,
                                        const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, float* d,
                                        int32_t d_index, float* x, int32_t x_index, float* y, int32_t y_index,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cggglm(const int32_t* n, const int32_t* m, const int32_t* p, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* d,
                                    quorin_complex* x, quorin_complex* y, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cggglm_Idx(const int32_t* n, const int32_t* m, const int32_t* p, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, quorin_complex* d, int32_t d_index, quorin_complex* x,
                                        int32_t x_index, quorin_complex* y, int32_t y_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* ---- Orthogonal and unitary factorizations ---- */

/* QR factorization of a general matrix.
     a: in, out, [lda x n]
     tau: out, [min(m,n)]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgeqrf(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* tau,
                                    float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeqrf_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgeqrf(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgeqrf_Idx(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, quorin_complex* tau, int32_t tau_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);

/* QR factorization with column pivoting, A P = Q R.
     a: in, out, [lda x n]
     jpvt: in, out, [n]
     tau: out, [min(m,n)]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgeqp3(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* jpvt,
                                    float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeqp3_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* jpvt, int32_t jpvt_index, float* tau,
                                        int32_t tau_index, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Forms the orthogonal or unitary Q of geqrf.
     a: in, out, [lda x n]
     tau: [k]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sorgqr(const int32_t* m, const int32_t* n, const int32_t* k, float* a, const int32_t* lda,
                                    const float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sorgqr_Idx(const int32_t* m, const int32_t* n, const int32_t* k, float* a, int32_t a_index,
                                        const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cungqr(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* tau, quorin_complex* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cungqr_Idx(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, const quorin_complex* tau,
                                        int32_t tau_index, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Multiplies a matrix by the Q of geqrf or its (conjugate) transpose, from the left or the right.
     a: [lda x k]
     tau: [k]
     c: in, out, [ldc x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sormqr(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormqr_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);
QUORIN_API void QUORIN_CDECL cunmqr(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* c, const int32_t* ldc,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunmqr_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* tau, int32_t tau_index, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* LQ factorization of a general matrix.
     a: in, out, [lda x n]
     tau: out, [min(m,n)]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgelqf(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* tau,
                                    float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelqf_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgelqf(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    quorin_complex* tau, quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgelqf_Idx(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, quorin_complex* tau, int32_t tau_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);

/* Forms the orthogonal or unitary Q of gelqf.
     a: in, out, [lda x n]
     tau: [k]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sorglq(const int32_t* m, const int32_t* n, const int32_t* k, float* a, const int32_t* lda,
                                    const float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sorglq_Idx(const int32_t* m, const int32_t* n, const int32_t* k, float* a, int32_t a_index,
                                        const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunglq(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* tau, quorin_complex* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunglq_Idx(const int32_t* m, const int32_t* n, const int32_t* k, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, const quorin_complex* tau,
                                        int32_t tau_index, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Multiplies a matrix by the Q of gelqf or its (conjugate) transpose, from the left or the right.
     a: [lda x m]
     tau: [k]
     c: in, out, [ldc x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sormlq(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormlq_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);
QUORIN_API void QUORIN_CDECL cunmlq(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* c, const int32_t* ldc,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunmlq_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* tau, int32_t tau_index, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* ---- Reductions ---- */

/* Reduces a general matrix to bidiagonal form, B = Q^H A P.
     a: in, out, [lda x n]
     d: out, [min(m,n)]
     e: out, [min(m,n)-1]
     tauq: out, [min(m,n)]
     taup: out, [min(m,n)]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgebrd(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, float* d,
                                    float* e, float* tauq, float* taup, float* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgebrd_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        float* tauq, int32_t tauq_index, float* taup, int32_t taup_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebrd(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda, float* d,
                                    float* e, quorin_complex* tauq, quorin_complex* taup, quorin_complex* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebrd_Idx(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        quorin_complex* tauq, int32_t tauq_index, quorin_complex* taup,
                                        int32_t taup_index, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Forms the Q or P^H of gebrd.
     a: in, out, [lda x n]
     tau: [min(m,k)]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sorgbr(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k, float* a,
                                    const int32_t* lda, const float* tau, float* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sorgbr_Idx(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k,
                                        float* a, int32_t a_index, const int32_t* lda, const float* tau,
                                        int32_t tau_index, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);
QUORIN_API void QUORIN_CDECL cungbr(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k,
                                    quorin_complex* a, const int32_t* lda, const quorin_complex* tau,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cungbr_Idx(const char* vect, const int32_t* m, const int32_t* n, const int32_t* k,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Multiplies a matrix by the Q or P of gebrd, from the left or the right.
     a: [lda x min(m or n,k)]
     tau: [min(m or n,k)]
     c: in, out, [ldc x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sormbr(const char* vect, const char* side, const char* trans, const int32_t* m,
                                    const int32_t* n, const int32_t* k, const float* a, const int32_t* lda,
                                    const float* tau, float* c, const int32_t* ldc, float* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sormbr_Idx(const char* vect, const char* side, const char* trans, const int32_t* m,
                                        const int32_t* n, const int32_t* k, const float* a, int32_t a_index,
                                        const int32_t* lda, const float* tau, int32_t tau_index, float* c,
                                        int32_t c_index, const int32_t* ldc, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Reduces a symmetric matrix to tridiagonal form, T = Q^T A Q.
     a: in, out, [lda x n]
     d: out, [n]
     e: out, [n-1]
     tau: out, [n-1]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL ssytrd(const char* uplo, const int32_t* n, float* a, const int32_t* lda, float* d,
                                    float* e, float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssytrd_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        float* tau, int32_t tau_index, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Forms the orthogonal or unitary Q of the reduction to tridiagonal form.
     a: in, out, [lda x n]
     tau: [n-1]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sorgtr(const char* uplo, const int32_t* n, float* a, const int32_t* lda, const float* tau,
                                    float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sorgtr_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cungtr(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cungtr_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const quorin_complex* tau, int32_t tau_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);

/* Multiplies a matrix by the Q of the reduction to tridiagonal form, from the left or the right.
     a: [lda x m]
     tau: [m-1]
     c: in, out, [ldc x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sormtr(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                    const int32_t* n, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormtr_Idx(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                        const int32_t* n, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);
QUORIN_API void QUORIN_CDECL cunmtr(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                    const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* c, const int32_t* ldc,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunmtr_Idx(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                        const int32_t* n, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* tau, int32_t tau_index, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Reduces a Hermitian matrix to real tridiagonal form, T = Q^H A Q.
     a: in, out, [lda x n]
     d: out, [n]
     e: out, [n-1]
     tau: out, [n-1]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL chetrd(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, float* d,
                                    float* e, quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL chetrd_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Reduces a general matrix to upper Hessenberg form, H = Q^H A Q.
     a: in, out, [lda x n]
     tau: out, [n-1]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgehrd(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a,
                                    const int32_t* lda, float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgehrd_Idx(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a,
                                        int32_t a_index, const int32_t* lda, float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgehrd(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgehrd_Idx(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* tau, int32_t tau_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);

/* Forms the orthogonal or unitary Q of gehrd.
     a: in, out, [lda x n]
     tau: [n-1]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sorghr(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a,
                                    const int32_t* lda, const float* tau, float* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sorghr_Idx(const int32_t* n, const int32_t* ilo, const int32_t* ihi, float* a,
                                        int32_t a_index, const int32_t* lda, const float* tau, int32_t tau_index,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunghr(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                    const int32_t* lda, const quorin_complex* tau, quorin_complex* work,
                                    const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunghr_Idx(const int32_t* n, const int32_t* ilo, const int32_t* ihi, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, const quorin_complex* tau,
                                        int32_t tau_index, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Reduces a symmetric-definite generalized eigenproblem to standard form; B comes factored by potrf.
     a: in, out, [lda x n]
     b: [ldb x n]
     info: out */
QUORIN_API void QUORIN_CDECL ssygst(const int32_t* itype, const char* uplo, const int32_t* n, float* a,
                                    const int32_t* lda, const float* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL ssygst_Idx(const int32_t* itype, const char* uplo, const int32_t* n, float* a,
                                        int32_t a_index, const int32_t* lda, const float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Reduces a Hermitian-definite generalized eigenproblem to standard form; B comes factored by potrf.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     info: out */
QUORIN_API void QUORIN_CDECL chegst(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL chegst_Idx(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Balances a matrix for eigenvalue computations by permutation and scaling.
     a: in, out, [lda x n]
     ilo: out
     ihi: out
     scale: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgebal(const char* job, const int32_t* n, float* a, const int32_t* lda, int32_t* ilo,
                                    int32_t* ihi, float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL sgebal_Idx(const char* job, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ilo, int32_t* ihi, float* scale,
                                        int32_t scale_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebal(const char* job, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ilo, int32_t* ihi, float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebal_Idx(const char* job, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ilo, int32_t* ihi, float* scale,
                                        int32_t scale_index, int32_t* info);

/* Turns eigenvectors of a matrix balanced by gebal into those of the original matrix.
     scale: [n]
     v: in, out, [ldv x m]
     info: out */
QUORIN_API void QUORIN_CDECL sgebak(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                    const int32_t* ihi, const float* scale, const int32_t* m, float* v,
                                    const int32_t* ldv, int32_t* info);
QUORIN_API void QUORIN_CDECL sgebak_Idx(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                        const int32_t* ihi, const float* scale, int32_t scale_index, const int32_t* m,
                                        float* v, int32_t v_index, const int32_t* ldv, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebak(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                    const int32_t* ihi, const float* scale, const int32_t* m, quorin_complex* v,
                                    const int32_t* ldv, int32_t* info);
QUORIN_API void QUORIN_CDECL cgebak_Idx(const char* job, const char* side, const int32_t* n, const int32_t* ilo,
                                        const int32_t* ihi, const float* scale, int32_t scale_index, const int32_t* m,
                                        quorin_complex* v, int32_t v_index, const int32_t* ldv, int32_t* info);

/* ---- Symmetric and Hermitian eigenproblems ---- */

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric matrix by bisection and inverse iteration.
     a: in, out, [lda x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [lwork]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssyevx(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                                    const int32_t* lda, const float* vl, const float* vu, const int32_t* il,
                                    const int32_t* iu, const float* abstol, int32_t* m, float* w, float* z,
                                    const int32_t* ldz, float* work, const int32_t* lwork, int32_t* iwork,
                                    int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL ssyevx_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, const float* vl, const float* vu,
                                        const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                        int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        int32_t* ifail, int32_t ifail_index, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric matrix by relatively robust representations.
     a: in, out, [lda x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     isuppz: out, [2*max(1,m)]
     work: out, [lwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL ssyevr(const char* jobz, const char* range, const char* uplo, const int32_t* n, float* a,
                                    const int32_t* lda, const float* vl, const float* vu, const int32_t* il,
                                    const int32_t* iu, const float* abstol, int32_t* m, float* w, float* z,
                                    const int32_t* ldz, int32_t* isuppz, float* work, const int32_t* lwork,
                                    int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssyevr_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, const float* vl, const float* vu,
                                        const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                        int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, int32_t* isuppz,
                                        int32_t isuppz_index, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* iwork, int32_t iwork_index, const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a Hermitian matrix by bisection and inverse iteration.
     a: in, out, [lda x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [lwork]
     rwork: out, [7*n]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cheevx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                    quorin_complex* a, const int32_t* lda, const float* vl, const float* vu,
                                    const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                    quorin_complex* z, const int32_t* ldz, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL cheevx_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda, const float* vl,
                                        const float* vu, const int32_t* il, const int32_t* iu, const float* abstol,
                                        int32_t* m, float* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* ifail, int32_t ifail_index, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a Hermitian matrix by relatively robust representations.
     a: in, out, [lda x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     isuppz: out, [2*max(1,m)]
     work: out, [lwork]
     rwork: out, [lrwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL cheevr(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                    quorin_complex* a, const int32_t* lda, const float* vl, const float* vu,
                                    const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                    quorin_complex* z, const int32_t* ldz, int32_t* isuppz, quorin_complex* work,
                                    const int32_t* lwork, float* rwork, const int32_t* lrwork, int32_t* iwork,
                                    const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cheevr_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda, const float* vl,
                                        const float* vu, const int32_t* il, const int32_t* iu, const float* abstol,
                                        int32_t* m, float* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, int32_t* isuppz, int32_t isuppz_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                        const int32_t* lrwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric band matrix.
     ab: in, out, [ldab x n]
     w: out, [n]
     z: out, [ldz x n]
     work: out, [max(1,3*n-2)]
     info: out */
QUORIN_API void QUORIN_CDECL ssbev(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                   const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL ssbev_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                       float* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                       float* z, int32_t z_index, const int32_t* ldz, float* work, int32_t work_index,
                                       int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric band matrix by divide and conquer.
     ab: in, out, [ldab x n]
     w: out, [n]
     z: out, [ldz x n]
     work: out, [lwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL ssbevd(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                    const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssbevd_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                        float* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                        float* z, int32_t z_index, const int32_t* ldz, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric band matrix.
     ab: in, out, [ldab x n]
     q: out, [ldq x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [7*n]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssbevx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                    const int32_t* kd, float* ab, const int32_t* ldab, float* q, const int32_t* ldq,
                                    const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                                    const float* abstol, int32_t* m, float* w, float* z, const int32_t* ldz,
                                    float* work, int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL ssbevx_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        const int32_t* kd, float* ab, int32_t ab_index, const int32_t* ldab, float* q,
                                        int32_t q_index, const int32_t* ldq, const float* vl, const float* vu,
                                        const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                        int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                        int32_t ifail_index, int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a Hermitian band matrix.
     ab: in, out, [ldab x n]
     w: out, [n]
     z: out, [ldz x n]
     work: out, [n]
     rwork: out, [max(1,3*n-2)]
     info: out */
QUORIN_API void QUORIN_CDECL chbev(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                   quorin_complex* ab, const int32_t* ldab, float* w, quorin_complex* z,
                                   const int32_t* ldz, quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chbev_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                       quorin_complex* ab, int32_t ab_index, const int32_t* ldab, float* w,
                                       int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                       quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                       int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a Hermitian band matrix by divide and conquer.
     ab: in, out, [ldab x n]
     w: out, [n]
     z: out, [ldz x n]
     work: out, [lwork]
     rwork: out, [lrwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL chbevd(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                    quorin_complex* ab, const int32_t* ldab, float* w, quorin_complex* z,
                                    const int32_t* ldz, quorin_complex* work, const int32_t* lwork, float* rwork,
                                    const int32_t* lrwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chbevd_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                        quorin_complex* ab, int32_t ab_index, const int32_t* ldab, float* w,
                                        int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                        int32_t rwork_index, const int32_t* lrwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a Hermitian band matrix.
     ab: in, out, [ldab x n]
     q: out, [ldq x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [n]
     rwork: out, [7*n]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL chbevx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                    const int32_t* kd, quorin_complex* ab, const int32_t* ldab, quorin_complex* q,
                                    const int32_t* ldq, const float* vl, const float* vu, const int32_t* il,
                                    const int32_t* iu, const float* abstol, int32_t* m, float* w, quorin_complex* z,
                                    const int32_t* ldz, quorin_complex* work, float* rwork, int32_t* iwork,
                                    int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL chbevx_Idx(const char* jobz, const char* range, const char* uplo, const int32_t* n,
                                        const int32_t* kd, quorin_complex* ab, int32_t ab_index, const int32_t* ldab,
                                        quorin_complex* q, int32_t q_index, const int32_t* ldq, const float* vl,
                                        const float* vu, const int32_t* il, const int32_t* iu, const float* abstol,
                                        int32_t* m, float* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, quorin_complex* work, int32_t work_index, float* rwork,
                                        int32_t rwork_index, int32_t* iwork, int32_t iwork_index, int32_t* ifail,
                                        int32_t ifail_index, int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric-definite generalized problem by divide and conquer.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     w: out, [n]
     work: out, [lwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL ssygvd(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                    float* a, const int32_t* lda, float* b, const int32_t* ldb, float* w, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssygvd_Idx(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* w, int32_t w_index, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric-definite generalized problem.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [lwork]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ssygvx(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                    const int32_t* n, float* a, const int32_t* lda, float* b, const int32_t* ldb,
                                    const float* vl, const float* vu, const int32_t* il, const int32_t* iu,
                                    const float* abstol, int32_t* m, float* w, float* z, const int32_t* ldz,
                                    float* work, const int32_t* lwork, int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL ssygvx_Idx(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                        const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* b,
                                        int32_t b_index, const int32_t* ldb, const float* vl, const float* vu,
                                        const int32_t* il, const int32_t* iu, const float* abstol, int32_t* m, float* w,
                                        int32_t w_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        int32_t* ifail, int32_t ifail_index, int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a Hermitian-definite generalized problem by divide and conquer.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     w: out, [n]
     work: out, [lwork]
     rwork: out, [lrwork]
     iwork: out, [liwork]
     info: out */
QUORIN_API void QUORIN_CDECL chegvd(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                    quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb,
                                    float* w, quorin_complex* work, const int32_t* lwork, float* rwork,
                                    const int32_t* lrwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chegvd_Idx(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, float* w, int32_t w_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                        int32_t rwork_index, const int32_t* lrwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a Hermitian-definite generalized problem.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     m: out
     w: out, [n]
     z: out, [ldz x max(1,m)]
     work: out, [lwork]
     rwork: out, [7*n]
     iwork: out, [5*n]
     ifail: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL chegvx(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                    const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* b,
                                    const int32_t* ldb, const float* vl, const float* vu, const int32_t* il,
                                    const int32_t* iu, const float* abstol, int32_t* m, float* w, quorin_complex* z,
                                    const int32_t* ldz, quorin_complex* work, const int32_t* lwork, float* rwork,
                                    int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL chegvx_Idx(const int32_t* itype, const char* jobz, const char* range, const char* uplo,
                                        const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        quorin_complex* b, int32_t b_index, const int32_t* ldb, const float* vl,
                                        const float* vu, const int32_t* il, const int32_t* iu, const float* abstol,
                                        int32_t* m, float* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* ifail, int32_t ifail_index, int32_t* info);

/* ---- Symmetric and Hermitian eigenproblems: tridiagonal ---- */

/* Eigenvalues of a symmetric tridiagonal matrix by the root-free QL or QR algorithm.
     d: in, out, [n]
     e: in, out, [n-1]
     info: out */
QUORIN_API void QUORIN_CDECL ssterf(const int32_t* n, float* d, float* e, int32_t* info);
QUORIN_API void QUORIN_CDECL ssterf_Idx(const int32_t* n, float* d, int32_t d_index, float* e, int32_t e_index,
                                        int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric tridiagonal matrix by implicit QL or QR.
     d: in, out, [n]
     e: in, out, [n-1]
     z: in, out, [ldz x n]
     work: out, [max(1,2*n-2)]
     info: out */
QUORIN_API void QUORIN_CDECL ssteqr(const char* compz, const int32_t* n, float* d, float* e, float* z,
                                    const int32_t* ldz, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL ssteqr_Idx(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                        int32_t e_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                        int32_t work_index, int32_t* info);
QUORIN_API void QUORIN_CDECL csteqr(const char* compz, const int32_t* n, float* d, float* e, quorin_complex* z,
                                    const int32_t* ldz, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL csteqr_Idx(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                        int32_t e_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                        float* work, int32_t work_index, int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a positive definite tridiagonal matrix to high relative accuracy.
     d: in, out, [n]
     e: in, out, [n-1]
     z: in, out, [ldz x n]
     work: out, [4*n]
     info: out */
QUORIN_API void QUORIN_CDECL spteqr(const char* compz, const int32_t* n, float* d, float* e, float* z,
                                    const int32_t* ldz, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL spteqr_Idx(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                        int32_t e_index, float* z, int32_t z_index, const int32_t* ldz, float* work,
                                        int32_t work_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cpteqr(const char* compz, const int32_t* n, float* d, float* e, quorin_complex* z,
                                    const int32_t* ldz, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL cpteqr_Idx(const char* compz, const int32_t* n, float* d, int32_t d_index, float* e,
                                        int32_t e_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                        float* work, int32_t work_index, int32_t* info);

/* Selected eigenvalues of a symmetric tridiagonal matrix by bisection.
     d: [n]
     e: [n-1]
     m: out
     nsplit: out
     w: out, [n]
     iblock: out, [n]
     isplit: out, [n]
     work: out, [4*n]
     iwork: out, [3*n]
     info: out */
QUORIN_API void QUORIN_CDECL sstebz(const char* range, const char* order, const int32_t* n, const float* vl,
                                    const float* vu, const int32_t* il, const int32_t* iu, const float* abstol,
                                    const float* d, const float* e, int32_t* m, int32_t* nsplit, float* w,
                                    int32_t* iblock, int32_t* isplit, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sstebz_Idx(const char* range, const char* order, const int32_t* n, const float* vl,
                                        int32_t vl_index, const float* vu, int32_t vu_index, const int32_t* il,
                                        const int32_t* iu, const float* abstol, const float* d, int32_t d_index,
                                        const float* e, int32_t e_index, int32_t* m, int32_t* nsplit, float* w,
                                        int32_t w_index, int32_t* iblock, int32_t iblock_index, int32_t* isplit,
                                        int32_t isplit_index, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Eigenvectors of a symmetric tridiagonal matrix for given eigenvalues by inverse iteration. ifail is cleared even if
   an argument is wrong.
     d: [n]
     e: [n-1]
     w: [n]
     iblock: [n]
     isplit: [n]
     z: out, [ldz x m]
     work: out, [5*n]
     iwork: out, [n]
     ifail: out, [m]
     info: out */
QUORIN_API void QUORIN_CDECL sstein(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                                    const int32_t* iblock, const int32_t* isplit, float* z, const int32_t* ldz,
                                    float* work, int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL sstein_Idx(const int32_t* n, const float* d, const float* e, const int32_t* m,
                                        const float* w, int32_t w_index, const int32_t* iblock, int32_t iblock_index,
                                        const int32_t* isplit, int32_t isplit_index, float* z, int32_t z_index,
                                        const int32_t* ldz, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* ifail, int32_t ifail_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cstein(const int32_t* n, const float* d, const float* e, const int32_t* m, const float* w,
                                    const int32_t* iblock, const int32_t* isplit, quorin_complex* z, const int32_t* ldz,
                                    float* work, int32_t* iwork, int32_t* ifail, int32_t* info);
QUORIN_API void QUORIN_CDECL cstein_Idx(const int32_t* n, const float* d, const float* e, const int32_t* m,
                                        const float* w, int32_t w_index, const int32_t* iblock, int32_t iblock_index,
                                        const int32_t* isplit, int32_t isplit_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* ifail, int32_t ifail_index, int32_t* info);

/* ---- Non-symmetric eigenproblems ---- */

/* Eigenvalues, and optionally left and right eigenvectors, of a general matrix.
     a: in, out, [lda x n]
     wr: out, [n]
     wi: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgeev(const char* jobvl, const char* jobvr, const int32_t* n, float* a, const int32_t* lda,
                                   float* wr, float* wi, float* vl, const int32_t* ldvl, float* vr, const int32_t* ldvr,
                                   float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeev_Idx(const char* jobvl, const char* jobvr, const int32_t* n, float* a,
                                       int32_t a_index, const int32_t* lda, float* wr, int32_t wr_index, float* wi,
                                       int32_t wi_index, float* vl, int32_t vl_index, const int32_t* ldvl, float* vr,
                                       int32_t vr_index, const int32_t* ldvr, float* work, int32_t work_index,
                                       const int32_t* lwork, int32_t* info);

/* Eigenvalues, and optionally left and right eigenvectors, of a general matrix.
     a: in, out, [lda x n]
     w: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     work: out, [lwork]
     rwork: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL cgeev(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                   const int32_t* lda, quorin_complex* w, quorin_complex* vl, const int32_t* ldvl,
                                   quorin_complex* vr, const int32_t* ldvr, quorin_complex* work, const int32_t* lwork,
                                   float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgeev_Idx(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda, quorin_complex* w, int32_t w_index,
                                       quorin_complex* vl, int32_t vl_index, const int32_t* ldvl, quorin_complex* vr,
                                       int32_t vr_index, const int32_t* ldvr, quorin_complex* work, int32_t work_index,
                                       const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* info);

/* Eigenvalues, eigenvectors, balancing and reciprocal condition numbers of a general matrix.
     a: in, out, [lda x n]
     wr: out, [n]
     wi: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     ilo: out
     ihi: out
     scale: out, [n]
     abnrm: out
     rconde: out, [n]
     rcondv: out, [n]
     work: out, [lwork]
     iwork: out, [2*n-2]
     info: out */
QUORIN_API void QUORIN_CDECL sgeevx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                    const int32_t* n, float* a, const int32_t* lda, float* wr, float* wi, float* vl,
                                    const int32_t* ldvl, float* vr, const int32_t* ldvr, int32_t* ilo, int32_t* ihi,
                                    float* scale, float* abnrm, float* rconde, float* rcondv, float* work,
                                    const int32_t* lwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeevx_Idx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                        const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* wr,
                                        int32_t wr_index, float* wi, int32_t wi_index, float* vl, int32_t vl_index,
                                        const int32_t* ldvl, float* vr, int32_t vr_index, const int32_t* ldvr,
                                        int32_t* ilo, int32_t* ihi, float* scale, int32_t scale_index, float* abnrm,
                                        float* rconde, int32_t rconde_index, float* rcondv, int32_t rcondv_index,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Eigenvalues, eigenvectors, balancing and reciprocal condition numbers of a general matrix.
     a: in, out, [lda x n]
     w: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     ilo: out
     ihi: out
     scale: out, [n]
     abnrm: out
     rconde: out, [n]
     rcondv: out, [n]
     work: out, [lwork]
     rwork: out, [2*n]
     info: out */
QUORIN_API void QUORIN_CDECL cgeevx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                    const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* w,
                                    quorin_complex* vl, const int32_t* ldvl, quorin_complex* vr, const int32_t* ldvr,
                                    int32_t* ilo, int32_t* ihi, float* scale, float* abnrm, float* rconde,
                                    float* rcondv, quorin_complex* work, const int32_t* lwork, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgeevx_Idx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                        const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        quorin_complex* w, int32_t w_index, quorin_complex* vl, int32_t vl_index,
                                        const int32_t* ldvl, quorin_complex* vr, int32_t vr_index, const int32_t* ldvr,
                                        int32_t* ilo, int32_t* ihi, float* scale, int32_t scale_index, float* abnrm,
                                        float* rconde, int32_t rconde_index, float* rcondv, int32_t rcondv_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                        int32_t rwork_index, int32_t* info);

/* Schur factorization of a general matrix, optionally with selected eigenvalues leading.
     a: in, out, [lda x n]
     sdim: out
     wr: out, [n]
     wi: out, [n]
     vs: out, [ldvs x n]
     work: out, [lwork]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgees(const char* jobvs, const char* sort, quorin_select_real select, const int32_t* n,
                                   float* a, const int32_t* lda, int32_t* sdim, float* wr, float* wi, float* vs,
                                   const int32_t* ldvs, float* work, const int32_t* lwork, int32_t* bwork,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL sgees_Idx(const char* jobvs, const char* sort, quorin_select_real select, const int32_t* n,
                                       float* a, int32_t a_index, const int32_t* lda, int32_t* sdim, float* wr,
                                       int32_t wr_index, float* wi, int32_t wi_index, float* vs, int32_t vs_index,
                                       const int32_t* ldvs, float* work, int32_t work_index, const int32_t* lwork,
                                       int32_t* bwork, int32_t bwork_index, int32_t* info);

/* Schur factorization of a general matrix, optionally with selected eigenvalues leading.
     a: in, out, [lda x n]
     sdim: out
     w: out, [n]
     vs: out, [ldvs x n]
     work: out, [lwork]
     rwork: out, [n]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgees(const char* jobvs, const char* sort, quorin_select_complex select, const int32_t* n,
                                   quorin_complex* a, const int32_t* lda, int32_t* sdim, quorin_complex* w,
                                   quorin_complex* vs, const int32_t* ldvs, quorin_complex* work, const int32_t* lwork,
                                   float* rwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgees_Idx(const char* jobvs, const char* sort, quorin_select_complex select,
                                       const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                       int32_t* sdim, quorin_complex* w, int32_t w_index, quorin_complex* vs,
                                       int32_t vs_index, const int32_t* ldvs, quorin_complex* work, int32_t work_index,
                                       const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* bwork,
                                       int32_t bwork_index, int32_t* info);

/* Schur factorization with selected eigenvalues leading, and their reciprocal condition numbers.
     a: in, out, [lda x n]
     sdim: out
     wr: out, [n]
     wi: out, [n]
     vs: out, [ldvs x n]
     rconde: out
     rcondv: out
     work: out, [lwork]
     iwork: out, [liwork]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgeesx(const char* jobvs, const char* sort, quorin_select_real select, const char* sense,
                                    const int32_t* n, float* a, const int32_t* lda, int32_t* sdim, float* wr, float* wi,
                                    float* vs, const int32_t* ldvs, float* rconde, float* rcondv, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* bwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgeesx_Idx(const char* jobvs, const char* sort, quorin_select_real select,
                                        const char* sense, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* sdim, float* wr, int32_t wr_index, float* wi,
                                        int32_t wi_index, float* vs, int32_t vs_index, const int32_t* ldvs,
                                        float* rconde, float* rcondv, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* bwork, int32_t bwork_index, int32_t* info);

/* Schur factorization with selected eigenvalues leading, and their reciprocal condition numbers.
     a: in, out, [lda x n]
     sdim: out
     w: out, [n]
     vs: out, [ldvs x n]
     rconde: out
     rcondv: out
     work: out, [lwork]
     rwork: out, [n]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgeesx(const char* jobvs, const char* sort, quorin_select_complex select,
                                    const char* sense, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* sdim, quorin_complex* w, quorin_complex* vs, const int32_t* ldvs,
                                    float* rconde, float* rcondv, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgeesx_Idx(const char* jobvs, const char* sort, quorin_select_complex select,
                                        const char* sense, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* sdim, quorin_complex* w, int32_t w_index,
                                        quorin_complex* vs, int32_t vs_index, const int32_t* ldvs, float* rconde,
                                        float* rcondv, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                        float* rwork, int32_t rwork_index, int32_t* bwork, int32_t bwork_index,
                                        int32_t* info);

/* Eigenvalues, and optionally the Schur form, of an upper Hessenberg matrix.
     h: in, out, [ldh x n]
     wr: out, [n]
     wi: out, [n]
     z: in, out, [ldz x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL shseqr(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                    const int32_t* ihi, float* h, const int32_t* ldh, float* wr, float* wi, float* z,
                                    const int32_t* ldz, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL shseqr_Idx(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                        const int32_t* ihi, float* h, int32_t h_index, const int32_t* ldh, float* wr,
                                        int32_t wr_index, float* wi, int32_t wi_index, float* z, int32_t z_index,
                                        const int32_t* ldz, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Eigenvalues, and optionally the Schur form, of an upper Hessenberg matrix.
     h: in, out, [ldh x n]
     w: out, [n]
     z: in, out, [ldz x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL chseqr(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                    const int32_t* ihi, quorin_complex* h, const int32_t* ldh, quorin_complex* w,
                                    quorin_complex* z, const int32_t* ldz, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL chseqr_Idx(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                        const int32_t* ihi, quorin_complex* h, int32_t h_index, const int32_t* ldh,
                                        quorin_complex* w, int32_t w_index, quorin_complex* z, int32_t z_index,
                                        const int32_t* ldz, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Eigenvectors of a (quasi-)triangular Schur form.
     select: in, out, [n]
     t: [ldt x n]
     vl: in, out, [ldvl x mm]
     vr: in, out, [ldvr x mm]
     m: out
     work: out, [3*n]
     info: out */
QUORIN_API void QUORIN_CDECL strevc(const char* side, const char* howmny, int32_t* select, const int32_t* n,
                                    const float* t, const int32_t* ldt, float* vl, const int32_t* ldvl, float* vr,
                                    const int32_t* ldvr, const int32_t* mm, int32_t* m, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL strevc_Idx(const char* side, const char* howmny, int32_t* select, const int32_t* n,
                                        const float* t, int32_t t_index, const int32_t* ldt, float* vl,
                                        int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index,
                                        const int32_t* ldvr, const int32_t* mm, int32_t* m, float* work,
                                        int32_t work_index, int32_t* info);

/* Eigenvectors of a (quasi-)triangular Schur form.
     select: [n]
     t: in, out, [ldt x n]
     vl: in, out, [ldvl x mm]
     vr: in, out, [ldvr x mm]
     m: out
     work: out, [2*n]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ctrevc(const char* side, const char* howmny, const int32_t* select, const int32_t* n,
                                    quorin_complex* t, const int32_t* ldt, quorin_complex* vl, const int32_t* ldvl,
                                    quorin_complex* vr, const int32_t* ldvr, const int32_t* mm, int32_t* m,
                                    quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrevc_Idx(const char* side, const char* howmny, const int32_t* select, const int32_t* n,
                                        quorin_complex* t, int32_t t_index, const int32_t* ldt, quorin_complex* vl,
                                        int32_t vl_index, const int32_t* ldvl, quorin_complex* vr, int32_t vr_index,
                                        const int32_t* ldvr, const int32_t* mm, int32_t* m, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Reciprocal condition numbers of eigenvalues and eigenvectors of a (quasi-)triangular Schur form.
     select: [n]
     t: [ldt x n]
     vl: [ldvl x m]
     vr: [ldvr x m]
     s: out, [mm]
     sep: out, [mm]
     m: out
     work: out, [ldwork x n+6]
     iwork: out, [2*(n-1)]
     info: out */
QUORIN_API void QUORIN_CDECL strsna(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                    const float* t, const int32_t* ldt, const float* vl, const int32_t* ldvl,
                                    const float* vr, const int32_t* ldvr, float* s, float* sep, const int32_t* mm,
                                    int32_t* m, float* work, const int32_t* ldwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL strsna_Idx(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                        const float* t, int32_t t_index, const int32_t* ldt, const float* vl,
                                        int32_t vl_index, const int32_t* ldvl, const float* vr, int32_t vr_index,
                                        const int32_t* ldvr, float* s, int32_t s_index, float* sep, int32_t sep_index,
                                        const int32_t* mm, int32_t* m, float* work, int32_t work_index,
                                        const int32_t* ldwork, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Reciprocal condition numbers of eigenvalues and eigenvectors of a (quasi-)triangular Schur form.
     select: [n]
     t: [ldt x n]
     vl: [ldvl x m]
     vr: [ldvr x m]
     s: out, [mm]
     sep: out, [mm]
     m: out
     work: out, [ldwork x n+6]
     rwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL ctrsna(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                    const quorin_complex* t, const int32_t* ldt, const quorin_complex* vl,
                                    const int32_t* ldvl, const quorin_complex* vr, const int32_t* ldvr, float* s,
                                    float* sep, const int32_t* mm, int32_t* m, quorin_complex* work,
                                    const int32_t* ldwork, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrsna_Idx(const char* job, const char* howmny, const int32_t* select, const int32_t* n,
                                        const quorin_complex* t, int32_t t_index, const int32_t* ldt,
                                        const quorin_complex* vl, int32_t vl_index, const int32_t* ldvl,
                                        const quorin_complex* vr, int32_t vr_index, const int32_t* ldvr, float* s,
                                        int32_t s_index, float* sep, int32_t sep_index, const int32_t* mm, int32_t* m,
                                        quorin_complex* work, int32_t work_index, const int32_t* ldwork, float* rwork,
                                        int32_t rwork_index, int32_t* info);

/* Solves the Sylvester equation op(A) X + X op(B) = scale C or op(A) X - X op(B) = scale C for (quasi-)triangular A and
   B.
     a: [lda x m]
     b: [ldb x n]
     c: in, out, [ldc x n]
     scale: out
     info: out */
QUORIN_API void QUORIN_CDECL strsyl(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                    const int32_t* n, const float* a, const int32_t* lda, const float* b,
                                    const int32_t* ldb, float* c, const int32_t* ldc, float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL strsyl_Idx(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                        const int32_t* n, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* b, int32_t b_index, const int32_t* ldb, float* c, int32_t c_index,
                                        const int32_t* ldc, float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrsyl(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                    const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* b, const int32_t* ldb, quorin_complex* c, const int32_t* ldc,
                                    float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrsyl_Idx(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                        const int32_t* n, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc, float* scale, int32_t* info);

/* ---- Singular values ---- */

/* Singular values, and optionally singular vectors, of a general matrix by implicit QR.
     a: in, out, [lda x n]
     s: out, [min(m,n)]
     u: out, [ldu x m]
     vt: out, [ldvt x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sgesvd(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n, float* a,
                                    const int32_t* lda, float* s, float* u, const int32_t* ldu, float* vt,
                                    const int32_t* ldvt, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgesvd_Idx(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, float* s, int32_t s_index,
                                        float* u, int32_t u_index, const int32_t* ldu, float* vt, int32_t vt_index,
                                        const int32_t* ldvt, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Singular values, and optionally singular vectors, of a general matrix by implicit QR.
     a: in, out, [lda x n]
     s: out, [min(m,n)]
     u: out, [ldu x m]
     vt: out, [ldvt x n]
     work: out, [lwork]
     rwork: out, [5*min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL cgesvd(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n,
                                    quorin_complex* a, const int32_t* lda, float* s, quorin_complex* u,
                                    const int32_t* ldu, quorin_complex* vt, const int32_t* ldvt, quorin_complex* work,
                                    const int32_t* lwork, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgesvd_Idx(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda, float* s,
                                        int32_t s_index, quorin_complex* u, int32_t u_index, const int32_t* ldu,
                                        quorin_complex* vt, int32_t vt_index, const int32_t* ldvt, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Singular values, and optionally singular vectors, of a general matrix by divide and conquer.
     a: in, out, [lda x n]
     s: out, [min(m,n)]
     u: out, [ldu x m]
     vt: out, [ldvt x n]
     work: out, [lwork]
     iwork: out, [8*min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL sgesdd(const char* jobz, const int32_t* m, const int32_t* n, float* a, const int32_t* lda,
                                    float* s, float* u, const int32_t* ldu, float* vt, const int32_t* ldvt, float* work,
                                    const int32_t* lwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgesdd_Idx(const char* jobz, const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* s, int32_t s_index, float* u, int32_t u_index,
                                        const int32_t* ldu, float* vt, int32_t vt_index, const int32_t* ldvt,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Singular values, and optionally singular vectors, of a general matrix by divide and conquer.
     a: in, out, [lda x n]
     s: out, [min(m,n)]
     u: out, [ldu x m]
     vt: out, [ldvt x n]
     work: out, [lwork]
     rwork: out
     iwork: out, [8*min(m,n)]
     info: out */
QUORIN_API void QUORIN_CDECL cgesdd(const char* jobz, const int32_t* m, const int32_t* n, quorin_complex* a,
                                    const int32_t* lda, float* s, quorin_complex* u, const int32_t* ldu,
                                    quorin_complex* vt, const int32_t* ldvt, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgesdd_Idx(const char* jobz, const int32_t* m, const int32_t* n, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, float* s, int32_t s_index,
                                        quorin_complex* u, int32_t u_index, const int32_t* ldu, quorin_complex* vt,
                                        int32_t vt_index, const int32_t* ldvt, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Singular values, and optionally singular vectors, of a real bidiagonal matrix.
     d: in, out, [n]
     e: in, out, [n-1]
     vt: in, out, [ldvt x ncvt]
     u: in, out, [ldu x n]
     c: in, out, [ldc x ncc]
     work: out, [4*n]
     info: out */
QUORIN_API void QUORIN_CDECL sbdsqr(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                    const int32_t* ncc, float* d, float* e, float* vt, const int32_t* ldvt, float* u,
                                    const int32_t* ldu, float* c, const int32_t* ldc, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL sbdsqr_Idx(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                        const int32_t* ncc, float* d, int32_t d_index, float* e, int32_t e_index,
                                        float* vt, int32_t vt_index, const int32_t* ldvt, float* u, int32_t u_index,
                                        const int32_t* ldu, float* c, int32_t c_index, const int32_t* ldc, float* work,
                                        int32_t work_index, int32_t* info);

/* Singular values, and optionally singular vectors, of a real bidiagonal matrix.
     d: in, out, [n]
     e: in, out, [n-1]
     vt: in, out, [ldvt x ncvt]
     u: in, out, [ldu x n]
     c: in, out, [ldc x ncc]
     rwork: out, [4*n]
     info: out */
QUORIN_API void QUORIN_CDECL cbdsqr(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                    const int32_t* ncc, float* d, float* e, quorin_complex* vt, const int32_t* ldvt,
                                    quorin_complex* u, const int32_t* ldu, quorin_complex* c, const int32_t* ldc,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cbdsqr_Idx(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                        const int32_t* ncc, float* d, int32_t d_index, float* e, int32_t e_index,
                                        quorin_complex* vt, int32_t vt_index, const int32_t* ldvt, quorin_complex* u,
                                        int32_t u_index, const int32_t* ldu, quorin_complex* c, int32_t c_index,
                                        const int32_t* ldc, float* rwork, int32_t rwork_index, int32_t* info);

/* ---- Singular values: generalized ---- */

/* Generalized singular value decomposition of a pair of matrices.
     k: out
     l: out
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alpha: out, [n]
     beta: out, [n]
     u: out, [ldu x m]
     v: out, [ldv x p]
     q: out, [ldq x n]
     work: out, [max(3*n,m,p)+n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sggsvd(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                    const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, float* alpha, float* beta,
                                    float* u, const int32_t* ldu, float* v, const int32_t* ldv, float* q,
                                    const int32_t* ldq, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sggsvd_Idx(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                        const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* alpha, int32_t alpha_index, float* beta,
                                        int32_t beta_index, float* u, int32_t u_index, const int32_t* ldu, float* v,
                                        int32_t v_index, const int32_t* ldv, float* q, int32_t q_index,
                                        const int32_t* ldq, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Generalized singular value decomposition of a pair of matrices.
     k: out
     l: out
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alpha: out, [n]
     beta: out, [n]
     u: out, [ldu x m]
     v: out, [ldv x p]
     q: out, [ldq x n]
     work: out, [max(3*n,m,p)+n]
     rwork: out, [2*n]
     iwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cggsvd(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                    const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, float* alpha,
                                    float* beta, quorin_complex* u, const int32_t* ldu, quorin_complex* v,
                                    const int32_t* ldv, quorin_complex* q, const int32_t* ldq, quorin_complex* work,
                                    float* rwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cggsvd_Idx(const char* jobu, const char* jobv, const char* jobq, const int32_t* m,
                                        const int32_t* n, const int32_t* p, int32_t* k, int32_t* l, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, float* alpha, int32_t alpha_index, float* beta,
                                        int32_t beta_index, quorin_complex* u, int32_t u_index, const int32_t* ldu,
                                        quorin_complex* v, int32_t v_index, const int32_t* ldv, quorin_complex* q,
                                        int32_t q_index, const int32_t* ldq, quorin_complex* work, int32_t work_index,
                                        float* rwork, int32_t rwork_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* ---- Generalized non-symmetric eigenproblems ---- */

/* Generalized Schur form of a pair of matrices, optionally with selected eigenvalues leading.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     sdim: out
     alphar: out, [n]
     alphai: out, [n]
     beta: out, [n]
     vsl: out, [ldvsl x n]
     vsr: out, [ldvsr x n]
     work: out, [lwork]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sgges(const char* jobvsl, const char* jobvsr, const char* sort,
                                   quorin_select_real_pair selctg, const int32_t* n, float* a, const int32_t* lda,
                                   float* b, const int32_t* ldb, int32_t* sdim, float* alphar, float* alphai,
                                   float* beta, float* vsl, const int32_t* ldvsl, float* vsr, const int32_t* ldvsr,
                                   float* work, const int32_t* lwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgges_Idx(const char* jobvsl, const char* jobvsr, const char* sort,
                                       quorin_select_real_pair selctg, const int32_t* n, float* a, int32_t a_index,
                                       const int32_t* lda, float* b, int32_t b_index, const int32_t* ldb, int32_t* sdim,
                                       float* alphar, int32_t alphar_index, float* alphai, int32_t alphai_index,
                                       float* beta, int32_t beta_index, float* vsl, int32_t vsl_index,
                                       const int32_t* ldvsl, float* vsr, int32_t vsr_index, const int32_t* ldvsr,
                                       float* work, int32_t work_index, const int32_t* lwork, int32_t* bwork,
                                       int32_t bwork_index, int32_t* info);

/* Generalized Schur form of a pair of matrices, optionally with selected eigenvalues leading.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     sdim: out
     alpha: out, [n]
     beta: out, [n]
     vsl: out, [ldvsl x n]
     vsr: out, [ldvsr x n]
     work: out, [lwork]
     rwork: out, [8*n]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cgges(const char* jobvsl, const char* jobvsr, const char* sort,
                                   quorin_select_complex_pair selctg, const int32_t* n, quorin_complex* a,
                                   const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* sdim,
                                   quorin_complex* alpha, quorin_complex* beta, quorin_complex* vsl,
                                   const int32_t* ldvsl, quorin_complex* vsr, const int32_t* ldvsr,
                                   quorin_complex* work, const int32_t* lwork, float* rwork, int32_t* bwork,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL cgges_Idx(const char* jobvsl, const char* jobvsr, const char* sort,
                                       quorin_select_complex_pair selctg, const int32_t* n, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                       const int32_t* ldb, int32_t* sdim, quorin_complex* alpha, int32_t alpha_index,
                                       quorin_complex* beta, int32_t beta_index, quorin_complex* vsl, int32_t vsl_index,
                                       const int32_t* ldvsl, quorin_complex* vsr, int32_t vsr_index,
                                       const int32_t* ldvsr, quorin_complex* work, int32_t work_index,
                                       const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* bwork,
                                       int32_t bwork_index, int32_t* info);

/* Generalized Schur form with selected eigenvalues leading, and their reciprocal condition numbers.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     sdim: out
     alphar: out, [n]
     alphai: out, [n]
     beta: out, [n]
     vsl: out, [ldvsl x n]
     vsr: out, [ldvsr x n]
     rconde: out, [2]
     rcondv: out, [2]
     work: out, [lwork]
     iwork: out, [liwork]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sggesx(const char* jobvsl, const char* jobvsr, const char* sort,
                                    quorin_select_real_pair selctg, const char* sense, const int32_t* n, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, int32_t* sdim, float* alphar,
                                    float* alphai, float* beta, float* vsl, const int32_t* ldvsl, float* vsr,
                                    const int32_t* ldvsr, float* rconde, float* rcondv, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* bwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sggesx_Idx(const char* jobvsl, const char* jobvsr, const char* sort,
                                        quorin_select_real_pair selctg, const char* sense, const int32_t* n, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* sdim, float* alphar, int32_t alphar_index,
                                        float* alphai, int32_t alphai_index, float* beta, int32_t beta_index,
                                        float* vsl, int32_t vsl_index, const int32_t* ldvsl, float* vsr,
                                        int32_t vsr_index, const int32_t* ldvsr, float* rconde, float* rcondv,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* iwork,
                                        int32_t iwork_index, const int32_t* liwork, int32_t* bwork, int32_t bwork_index,
                                        int32_t* info);

/* Generalized Schur form with selected eigenvalues leading, and their reciprocal condition numbers.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     sdim: out
     alpha: out, [n]
     beta: out, [n]
     vsl: out, [ldvsl x n]
     vsr: out, [ldvsr x n]
     rconde: out, [2]
     rcondv: out, [2]
     work: out, [lwork]
     rwork: out, [8*n]
     iwork: out, [liwork]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cggesx(const char* jobvsl, const char* jobvsr, const char* sort,
                                    quorin_select_complex_pair selctg, const char* sense, const int32_t* n,
                                    quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb,
                                    int32_t* sdim, quorin_complex* alpha, quorin_complex* beta, quorin_complex* vsl,
                                    const int32_t* ldvsl, quorin_complex* vsr, const int32_t* ldvsr, float* rconde,
                                    float* rcondv, quorin_complex* work, const int32_t* lwork, float* rwork,
                                    int32_t* iwork, const int32_t* liwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cggesx_Idx(const char* jobvsl, const char* jobvsr, const char* sort,
                                        quorin_select_complex_pair selctg, const char* sense, const int32_t* n,
                                        quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                        int32_t b_index, const int32_t* ldb, int32_t* sdim, quorin_complex* alpha,
                                        int32_t alpha_index, quorin_complex* beta, int32_t beta_index,
                                        quorin_complex* vsl, int32_t vsl_index, const int32_t* ldvsl,
                                        quorin_complex* vsr, int32_t vsr_index, const int32_t* ldvsr, float* rconde,
                                        float* rcondv, quorin_complex* work, int32_t work_index, const int32_t* lwork,
                                        float* rwork, int32_t rwork_index, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* bwork, int32_t bwork_index, int32_t* info);

/* Generalized eigenvalues, and optionally eigenvectors, of a pair of matrices.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alphar: out, [n]
     alphai: out, [n]
     beta: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     work: out, [lwork]
     info: out */
QUORIN_API void QUORIN_CDECL sggev(const char* jobvl, const char* jobvr, const int32_t* n, float* a, const int32_t* lda,
                                   float* b, const int32_t* ldb, float* alphar, float* alphai, float* beta, float* vl,
                                   const int32_t* ldvl, float* vr, const int32_t* ldvr, float* work,
                                   const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sggev_Idx(const char* jobvl, const char* jobvr, const int32_t* n, float* a,
                                       int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                       const int32_t* ldb, float* alphar, int32_t alphar_index, float* alphai,
                                       int32_t alphai_index, float* beta, int32_t beta_index, float* vl,
                                       int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index,
                                       const int32_t* ldvr, float* work, int32_t work_index, const int32_t* lwork,
                                       int32_t* info);

/* Generalized eigenvalues, and optionally eigenvectors, of a pair of matrices.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alpha: out, [n]
     beta: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     work: out, [lwork]
     rwork: out, [8*n]
     info: out */
QUORIN_API void QUORIN_CDECL cggev(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                   const int32_t* lda, quorin_complex* b, const int32_t* ldb, quorin_complex* alpha,
                                   quorin_complex* beta, quorin_complex* vl, const int32_t* ldvl, quorin_complex* vr,
                                   const int32_t* ldvr, quorin_complex* work, const int32_t* lwork, float* rwork,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL cggev_Idx(const char* jobvl, const char* jobvr, const int32_t* n, quorin_complex* a,
                                       int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                       const int32_t* ldb, quorin_complex* alpha, int32_t alpha_index,
                                       quorin_complex* beta, int32_t beta_index, quorin_complex* vl, int32_t vl_index,
                                       const int32_t* ldvl, quorin_complex* vr, int32_t vr_index, const int32_t* ldvr,
                                       quorin_complex* work, int32_t work_index, const int32_t* lwork, float* rwork,
                                       int32_t rwork_index, int32_t* info);

/* Generalized eigenvalues, eigenvectors, balancing and reciprocal condition numbers of a pair of matrices.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alphar: out, [n]
     alphai: out, [n]
     beta: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     ilo: out
     ihi: out
     lscale: out, [n]
     rscale: out, [n]
     abnrm: out
     bbnrm: out
     rconde: out, [n]
     rcondv: out, [n]
     work: out, [lwork]
     iwork: out, [n+6]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL sggevx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                    const int32_t* n, float* a, const int32_t* lda, float* b, const int32_t* ldb,
                                    float* alphar, float* alphai, float* beta, float* vl, const int32_t* ldvl,
                                    float* vr, const int32_t* ldvr, int32_t* ilo, int32_t* ihi, float* lscale,
                                    float* rscale, float* abnrm, float* bbnrm, float* rconde, float* rcondv,
                                    float* work, const int32_t* lwork, int32_t* iwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sggevx_Idx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                        const int32_t* n, float* a, int32_t a_index, const int32_t* lda, float* b,
                                        int32_t b_index, const int32_t* ldb, float* alphar, int32_t alphar_index,
                                        float* alphai, int32_t alphai_index, float* beta, int32_t beta_index, float* vl,
                                        int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index,
                                        const int32_t* ldvr, int32_t* ilo, int32_t* ihi, float* lscale,
                                        int32_t lscale_index, float* rscale, int32_t rscale_index, float* abnrm,
                                        float* bbnrm, float* rconde, int32_t rconde_index, float* rcondv,
                                        int32_t rcondv_index, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* iwork, int32_t iwork_index, int32_t* bwork, int32_t bwork_index,
                                        int32_t* info);

/* Generalized eigenvalues, eigenvectors, balancing and reciprocal condition numbers of a pair of matrices.
     a: in, out, [lda x n]
     b: in, out, [ldb x n]
     alpha: out, [n]
     beta: out, [n]
     vl: out, [ldvl x n]
     vr: out, [ldvr x n]
     ilo: out
     ihi: out
     lscale: out, [n]
     rscale: out, [n]
     abnrm: out
     bbnrm: out
     rconde: out, [n]
     rcondv: out, [n]
     work: out, [lwork]
     rwork: out
     iwork: out, [n+2]
     bwork: out, [n]
     info: out */
QUORIN_API void QUORIN_CDECL cggevx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                    const int32_t* n, quorin_complex* a, const int32_t* lda, quorin_complex* b,
                                    const int32_t* ldb, quorin_complex* alpha, quorin_complex* beta, quorin_complex* vl,
                                    const int32_t* ldvl, quorin_complex* vr, const int32_t* ldvr, int32_t* ilo,
                                    int32_t* ihi, float* lscale, float* rscale, float* abnrm, float* bbnrm,
                                    float* rconde, float* rcondv, quorin_complex* work, const int32_t* lwork,
                                    float* rwork, int32_t* iwork, int32_t* bwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cggevx_Idx(const char* balanc, const char* jobvl, const char* jobvr, const char* sense,
                                        const int32_t* n, quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        quorin_complex* b, int32_t b_index, const int32_t* ldb, quorin_complex* alpha,
                                        int32_t alpha_index, quorin_complex* beta, int32_t beta_index,
                                        quorin_complex* vl, int32_t vl_index, const int32_t* ldvl, quorin_complex* vr,
                                        int32_t vr_index, const int32_t* ldvr, int32_t* ilo, int32_t* ihi,
                                        float* lscale, int32_t lscale_index, float* rscale, int32_t rscale_index,
                                        float* abnrm, float* bbnrm, float* rconde, int32_t rconde_index, float* rcondv,
                                        int32_t rcondv_index, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, float* rwork, int32_t rwork_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* bwork, int32_t bwork_index, int32_t* info);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
