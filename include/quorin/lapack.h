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
 * ^T is the transpose, ^H the conjugate transpose, which is the same for real matrices. Rows, columns, positions and
 * counts begin with 1. Arrays that a call writes must not overlap with any other of its arrays. With an empty matrix
 * nothing is computed, info is 0, counts and ranks are 0, and an estimated rcond is 1; sgels and cgels set X to zero
 * then.
 *
 * Option characters other than the ones listed are wrong arguments. Where there is an lwork, liwork or lrwork, -1 in
 * any of them asks for the best sizes: they are stored in the first elements of work, iwork and rwork, and nothing is
 * computed; the other arguments must be right. Asking is worth while: the minimum suffices, but blocks need more.
 *
 * Infinities and NaNs: routines that iterate to eigenvalues or singular values look at their input first; where it is
 * not finite, they end with the info that stands at the routine, and with NaN. All others compute with it, and their
 * results hold infinities and NaNs where these have spread.
 *
 * Additions and multiplications for order n, leading terms: getrf 2/3 n^3, potrf 1/3 n^3, geqrf 2 n^2 (m - n/3), geev
 * about 10 n^3 and 26 n^3 with right eigenvectors, gesdd about 8/3 n^3 and 20/3 n^3 with vectors, four times as many
 * for complex numbers.
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

/* A host function that selects eigenvalues: non-zero for one that is to lead. It gets the real and the imaginary
 * part. */
typedef int32_t(QUORIN_CDECL* quorin_select_real)(const float* re, const float* im);

/* The same, for complex numbers. */
typedef int32_t(QUORIN_CDECL* quorin_select_complex)(const quorin_complex* w);

/* The same for generalized problems, where the eigenvalue is alpha / beta. */
typedef int32_t(QUORIN_CDECL* quorin_select_real_pair)(const float* alpha_re, const float* alpha_im, const float* beta);

/* The same for generalized problems with complex numbers. */
typedef int32_t(QUORIN_CDECL* quorin_select_complex_pair)(const quorin_complex* alpha, const quorin_complex* beta);

/* ---- Linear systems, general ---- */

/* LU factorization A = P L U of a general matrix with partial pivoting.
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return U on and above the diagonal, L without its diagonal of ones below it
     lda: leading dimension of a, at least max(1,m)
     ipiv: out, [min(m,n)]: row i was exchanged with row ipiv(i), in the order i = 1, 2, ...
     info: out: status */
QUORIN_API void QUORIN_CDECL sgetrf(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* ipiv,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL sgetrf_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrf(const int32_t* m, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ipiv, int32_t* info);
QUORIN_API void QUORIN_CDECL cgetrf_Idx(const int32_t* m, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, int32_t* info);

/* Solves A X = B, A^T X = B or A^H X = B with the factors of getrf.
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: L and U, as stored by getrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: row exchanges, as stored by getrf; one that leads outside of the matrix is refused
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry L and U, as stored by getrf; on return the inverse of A
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: row exchanges, as stored by getrf; one that leads outside of the matrix is refused
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     n: order of A, at least 0
     a: [lda x n]: L and U, as stored by getrf
     lda: leading dimension of a, at least max(1,n)
     anorm: norm of A itself, before it was factored, in the same norm
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [4*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL sgecon(const char* norm, const int32_t* n, const float* a, const int32_t* lda,
                                    const float* anorm, float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgecon_Idx(const char* norm, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a matrix, in the 1- or the infinity-norm, from the factors of getrf.
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     n: order of A, at least 0
     a: [lda x n]: L and U, as stored by getrf
     lda: leading dimension of a, at least max(1,n)
     anorm: norm of A itself, before it was factored, in the same norm
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     rwork: out, [2*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL cgecon(const char* norm, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cgecon_Idx(const char* norm, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Refines the solution of a general system iteratively; forward and backward error bounds for each right-hand side.
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: A, as it was before getrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: L and U, as stored by getrf
     ldaf: leading dimension of af, at least max(1,n)
     ipiv: [n]: row exchanges, as stored by getrf; one that leads outside of the matrix is refused
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: A, as it was before getrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: L and U, as stored by getrf
     ldaf: leading dimension of af, at least max(1,n)
     ipiv: [n]: row exchanges, as stored by getrf; one that leads outside of the matrix is refused
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kl+ku+1+i-j of column j, rows 1 to kl being free; on return U in
         rows 1 to kl+ku+1, the multipliers of L below
     ldab: leading dimension of ab, at least 2*kl+ku+1
     ipiv: out, [min(m,n)]: row i was exchanged with row ipiv(i), in the order i = 1, 2, ...
     info: out: status */
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
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: L and U, as stored by gbtrf
     ldab: leading dimension of ab, at least 2*kl+ku+1
     ipiv: [n]: row exchanges, as stored by gbtrf
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     n: order of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     ab: [ldab x n]: L and U, as stored by gbtrf
     ldab: leading dimension of ab, at least 2*kl+ku+1
     ipiv: [n]: row exchanges, as stored by gbtrf
     anorm: norm of A itself, before it was factored, in the same norm
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL sgbcon(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                    const float* ab, const int32_t* ldab, const int32_t* ipiv, const float* anorm,
                                    float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgbcon_Idx(const char* norm, const int32_t* n, const int32_t* kl, const int32_t* ku,
                                        const float* ab, int32_t ab_index, const int32_t* ldab, const int32_t* ipiv,
                                        int32_t ipiv_index, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a band matrix from the factors of gbtrf.
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     n: order of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     ab: [ldab x n]: L and U, as stored by gbtrf
     ldab: leading dimension of ab, at least 2*kl+ku+1
     ipiv: [n]: row exchanges, as stored by gbtrf
     anorm: norm of A itself, before it was factored, in the same norm
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: A, as it was before gbtrf, but A(i,j) in row ku+1+i-j of column j
     ldab: leading dimension of ab, at least kl+ku+1
     afb: [ldafb x n]: L and U, as stored by gbtrf
     ldafb: leading dimension of afb, at least 2*kl+ku+1
     ipiv: [n]: row exchanges, as stored by gbtrf
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     n: order of A, at least 0
     kl: diagonals below the main one, at least 0
     ku: diagonals above the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: A, as it was before gbtrf, but A(i,j) in row ku+1+i-j of column j
     ldab: leading dimension of ab, at least kl+ku+1
     afb: [ldafb x n]: L and U, as stored by gbtrf
     ldafb: leading dimension of afb, at least 2*kl+ku+1
     ipiv: [n]: row exchanges, as stored by gbtrf
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return the factor U of A = U^H U or L of A = L L^H in its
         place
     lda: leading dimension of a, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL spotrf(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL spotrf_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrf(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpotrf_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);

/* Solves A X = B with the Cholesky factor of potrf.
     uplo: triangle that holds the factor (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: the factor U or L, as stored by potrf
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     uplo: triangle that holds the factor (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the factor U or L, as stored by potrf; on return the same triangle of the inverse
         of A
     lda: leading dimension of a, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL spotri(const char* uplo, const int32_t* n, float* a, const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL spotri_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL cpotri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpotri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);

/* Estimates the reciprocal condition number of a positive definite matrix from the Cholesky factor of potrf.
     uplo: triangle that holds the factor (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     a: [lda x n]: the factor U or L, as stored by potrf
     lda: leading dimension of a, at least max(1,n)
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL spocon(const char* uplo, const int32_t* n, const float* a, const int32_t* lda,
                                    const float* anorm, float* rcond, float* work, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL spocon_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a positive definite matrix from the Cholesky factor of potrf.
     uplo: triangle that holds the factor (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     a: [lda x n]: the factor U or L, as stored by potrf
     lda: leading dimension of a, at least max(1,n)
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL cpocon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const float* anorm, float* rcond, quorin_complex* work, float* rwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cpocon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const float* anorm, float* rcond, quorin_complex* work,
                                        int32_t work_index, float* rwork, int32_t rwork_index, int32_t* info);

/* Refines the solution of a positive definite system iteratively, with error bounds for each right-hand side.
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: triangle of A, as it was before potrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: the factor U or L, as stored by potrf
     ldaf: leading dimension of af, at least max(1,n)
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: triangle of A, as it was before potrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: the factor U or L, as stored by potrf
     ldaf: leading dimension of af, at least max(1,n)
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return the
         factor U of A = U^H U or L of A = L L^H in its place
     ldab: leading dimension of ab, at least kd+1
     info: out: status */
QUORIN_API void QUORIN_CDECL spbtrf(const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                    const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL spbtrf_Idx(const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                        int32_t ab_index, const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrf(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                                    const int32_t* ldab, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbtrf_Idx(const char* uplo, const int32_t* n, const int32_t* kd, quorin_complex* ab,
                                        int32_t ab_index, const int32_t* ldab, int32_t* info);

/* Solves A X = B with the band Cholesky factor of pbtrf.
     uplo: which factor is stored (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: the factor U or L, as stored by pbtrf
     ldab: leading dimension of ab, at least kd+1
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     uplo: which factor is stored (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: [ldab x n]: the factor U or L, as stored by pbtrf
     ldab: leading dimension of ab, at least kd+1
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL spbcon(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                                    const int32_t* ldab, const float* anorm, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL spbcon_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const float* ab,
                                        int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond,
                                        float* work, int32_t work_index, int32_t* iwork, int32_t iwork_index,
                                        int32_t* info);

/* Estimates the reciprocal condition number of a positive definite band matrix from the factor of pbtrf.
     uplo: which factor is stored (U upper, A = U^H U; L lower, A = L L^H)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: [ldab x n]: the factor U or L, as stored by pbtrf
     ldab: leading dimension of ab, at least kd+1
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL cpbcon(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                                    const int32_t* ldab, const float* anorm, float* rcond, quorin_complex* work,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cpbcon_Idx(const char* uplo, const int32_t* n, const int32_t* kd, const quorin_complex* ab,
                                        int32_t ab_index, const int32_t* ldab, const float* anorm, float* rcond,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Refines the solution of a positive definite band system iteratively, with error bounds for each right-hand side.
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: triangle of A, as it was before pbtrf: A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column
         j
     ldab: leading dimension of ab, at least kd+1
     afb: [ldafb x n]: the factor U or L, as stored by pbtrf
     ldafb: leading dimension of afb, at least kd+1
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     ab: [ldab x n]: triangle of A, as it was before pbtrf: A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column
         j
     ldab: leading dimension of ab, at least kd+1
     afb: [ldafb x n]: the factor U or L, as stored by pbtrf
     ldafb: leading dimension of afb, at least kd+1
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return D and the multipliers of U or L in its place
     lda: leading dimension of a, at least max(1,n)
     ipiv: out, [n]: ipiv(k) > 0: D(k,k) stands alone, and rows and columns k and ipiv(k) were exchanged; ipiv(k) =
         ipiv(k+1) < 0: a 2 x 2 block, and its first (uplo U) or second (uplo L) row and column were exchanged with
         -ipiv(k)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     uplo: triangle that holds the factors (U upper, A = U D U^T; L lower, A = L D L^T)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: D and the multipliers, as stored by sytrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     uplo: triangle that holds the factors (U upper, A = U D U^T; L lower, A = L D L^T)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry D and the multipliers, as stored by sytrf; on return the same triangle of the
         inverse of A
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     work: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL ssytri(const char* uplo, const int32_t* n, float* a, const int32_t* lda,
                                    const int32_t* ipiv, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL ssytri_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, float* work,
                                        int32_t work_index, int32_t* info);

/* Inverse of a symmetric matrix from the factors of sytrf.
     uplo: triangle that holds the factors (U upper, A = U D U^T; L lower, A = L D L^T)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry D and the multipliers, as stored by sytrf; on return the same triangle of the
         inverse of A
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     work: out, [2*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL csytri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, quorin_complex* work, int32_t* info);
QUORIN_API void QUORIN_CDECL csytri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        quorin_complex* work, int32_t work_index, int32_t* info);

/* Estimates the reciprocal condition number of a symmetric matrix from the factors of sytrf.
     uplo: triangle that holds the factors (U upper, A = U D U^T; L lower, A = L D L^T)
     n: order of A, at least 0
     a: [lda x n]: D and the multipliers, as stored by sytrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL ssycon(const char* uplo, const int32_t* n, const float* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL ssycon_Idx(const char* uplo, const int32_t* n, const float* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, float* work, int32_t work_index, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a symmetric matrix from the factors of sytrf.
     uplo: triangle that holds the factors (U upper, A = U D U^T; L lower, A = L D L^T)
     n: order of A, at least 0
     a: [lda x n]: D and the multipliers, as stored by sytrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL csycon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL csycon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);

/* Refines the solution of a symmetric system iteratively, with error bounds for each right-hand side.
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: triangle of A, as it was before sytrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: D and the multipliers, as stored by sytrf
     ldaf: leading dimension of af, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: triangle of A, as it was before sytrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: D and the multipliers, as stored by sytrf
     ldaf: leading dimension of af, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by sytrf
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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

/* Factorization A = U D U^T or L D L^T of a symmetric matrix with diagonal pivoting (Bunch-Kaufman).
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return D and the multipliers of U or L in its place
     lda: leading dimension of a, at least max(1,n)
     ipiv: out, [n]: ipiv(k) > 0: D(k,k) stands alone, and rows and columns k and ipiv(k) were exchanged; ipiv(k) =
         ipiv(k+1) < 0: a 2 x 2 block, and its first (uplo U) or second (uplo L) row and column were exchanged with
         -ipiv(k)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL chetrf(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    int32_t* ipiv, quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chetrf_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, int32_t* ipiv, int32_t ipiv_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Solves A X = B with the factors of hetrf.
     uplo: triangle that holds the factors (U upper, A = U D U^H; L lower, A = L D L^H)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: D and the multipliers, as stored by hetrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by hetrf
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL chetrs(const char* uplo, const int32_t* n, const int32_t* nrhs, const quorin_complex* a,
                                    const int32_t* lda, const int32_t* ipiv, quorin_complex* b, const int32_t* ldb,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL chetrs_Idx(const char* uplo, const int32_t* n, const int32_t* nrhs,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const int32_t* ipiv, int32_t ipiv_index, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Inverse of a Hermitian matrix from the factors of hetrf.
     uplo: triangle that holds the factors (U upper, A = U D U^H; L lower, A = L D L^H)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry D and the multipliers, as stored by hetrf; on return the same triangle of the
         inverse of A
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by hetrf
     work: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL chetri(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, quorin_complex* work, int32_t* info);
QUORIN_API void QUORIN_CDECL chetri_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index,
                                        quorin_complex* work, int32_t work_index, int32_t* info);

/* Estimates the reciprocal condition number of a Hermitian matrix from the factors of hetrf.
     uplo: triangle that holds the factors (U upper, A = U D U^H; L lower, A = L D L^H)
     n: order of A, at least 0
     a: [lda x n]: D and the multipliers, as stored by hetrf
     lda: leading dimension of a, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by hetrf
     anorm: 1-norm of A itself, before it was factored
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL checon(const char* uplo, const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const int32_t* ipiv, const float* anorm, float* rcond, quorin_complex* work,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL checon_Idx(const char* uplo, const int32_t* n, const quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const int32_t* ipiv, int32_t ipiv_index, const float* anorm,
                                        float* rcond, quorin_complex* work, int32_t work_index, int32_t* info);

/* Refines the solution of a Hermitian system iteratively, with error bounds for each right-hand side.
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: triangle of A, as it was before hetrf
     lda: leading dimension of a, at least max(1,n)
     af: [ldaf x n]: D and the multipliers, as stored by hetrf
     ldaf: leading dimension of af, at least max(1,n)
     ipiv: [n]: exchanges and blocks, as stored by hetrf
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: in, out, [ldx x nrhs]: on entry the solution X that the factors gave; on return the refined one
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: the matrix A
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x nrhs]: on entry B; on return the solution X
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
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
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangular matrix A; on return its inverse in its place
     lda: leading dimension of a, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL strtri(const char* uplo, const char* diag, const int32_t* n, float* a, const int32_t* lda,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL strtri_Idx(const char* uplo, const char* diag, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtri(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                                    const int32_t* lda, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrtri_Idx(const char* uplo, const char* diag, const int32_t* n, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, int32_t* info);

/* Estimates the reciprocal condition number of a triangular matrix.
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     a: [lda x n]: the matrix A
     lda: leading dimension of a, at least max(1,n)
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL strcon(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                    const float* a, const int32_t* lda, float* rcond, float* work, int32_t* iwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL strcon_Idx(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                        const float* a, int32_t a_index, const int32_t* lda, float* rcond, float* work,
                                        int32_t work_index, int32_t* iwork, int32_t iwork_index, int32_t* info);

/* Estimates the reciprocal condition number of a triangular matrix.
     norm: norm of which the condition number is estimated (1 1-norm; O 1-norm, too; I infinity-norm)
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     a: [lda x n]: the matrix A
     lda: leading dimension of a, at least max(1,n)
     rcond: out: reciprocal of the estimated condition number, 1 / (norm of A times norm of its inverse); 0 if A is
         singular
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL ctrcon(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                    const quorin_complex* a, const int32_t* lda, float* rcond, quorin_complex* work,
                                    float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ctrcon_Idx(const char* norm, const char* uplo, const char* diag, const int32_t* n,
                                        const quorin_complex* a, int32_t a_index, const int32_t* lda, float* rcond,
                                        quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                        int32_t* info);

/* Error bounds for the solution of a triangular system.
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: the matrix A
     lda: leading dimension of a, at least max(1,n)
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: [ldx x nrhs]: solution X, for example of trtrs
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [3*n]: workspace
     iwork: out, [n]: workspace
     info: out: status */
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
     uplo: triangle of a that holds A; the other one is not touched (U upper; L lower)
     trans: the system to solve (N A X = B; T A^T X = B; C A^H X = B)
     diag: diagonal of A (N as stored; U all ones; the stored one is not read)
     n: order of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: [lda x n]: the matrix A
     lda: leading dimension of a, at least max(1,n)
     b: [ldb x nrhs]: right-hand sides B
     ldb: leading dimension of b, at least max(1,n)
     x: [ldx x nrhs]: solution X, for example of trtrs
     ldx: leading dimension of x, at least max(1,n)
     ferr: out, [nrhs]: for each column of X a bound of its largest error, relative to its largest element; an estimate,
         almost always a little too large
     berr: out, [nrhs]: for each column of X the least relative change of an element of A or B that makes it exact
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     trans: the system (N A X = B; T A^T X = B)
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its QR factors as geqrf stores them (m >= n) or its LQ factors as
         gelqf does
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows (trans N) or n rows; on return X in its first n rows
         (trans N) or m rows; for more equations than unknowns, the squares of the rows below sum up to the squared norm
         of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgels(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                   const int32_t* lda, float* b, const int32_t* ldb, float* work, const int32_t* lwork,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL sgels_Idx(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                       float* a, int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                       const int32_t* ldb, float* work, int32_t work_index, const int32_t* lwork,
                                       int32_t* info);

/* Least-squares or minimum-norm solution of a full-rank system by QR or LQ factorization.
     trans: the system (N A X = B; C A^H X = B)
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its QR factors as geqrf stores them (m >= n) or its LQ factors as
         gelqf does
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows (trans N) or n rows; on return X in its first n rows
         (trans N) or m rows; for more equations than unknowns, the squares of the rows below sum up to the squared norm
         of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL cgels(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                   quorin_complex* a, const int32_t* lda, quorin_complex* b, const int32_t* ldb,
                                   quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cgels_Idx(const char* trans, const int32_t* m, const int32_t* n, const int32_t* nrhs,
                                       quorin_complex* a, int32_t a_index, const int32_t* lda, quorin_complex* b,
                                       int32_t b_index, const int32_t* ldb, quorin_complex* work, int32_t work_index,
                                       const int32_t* lwork, int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the singular value decomposition.
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its right singular vectors in its first min(m,n) rows
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows; if m >= n and rank = n,
         the squares of rows n+1 to m sum up to the squared norm of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     s: out, [min(m,n)]: singular values in descending order
     rcond: singular values up to rcond times the largest one count as zero; a negative rcond stands for the machine
         precision
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgelss(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, float* s, const float* rcond,
                                    int32_t* rank, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelss_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* s, int32_t s_index, const float* rcond,
                                        int32_t* rank, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by the singular value decomposition.
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its right singular vectors in its first min(m,n) rows
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows; if m >= n and rank = n,
         the squares of rows n+1 to m sum up to the squared norm of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     s: out, [min(m,n)]: singular values in descending order
     rcond: singular values up to rcond times the largest one count as zero; a negative rcond stands for the machine
         precision
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [5*min(m,n)]: workspace
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its complete orthogonal factorization
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows
     ldb: leading dimension of b, at least max(1,m,n)
     jpvt: in, out, [n]: on entry not 0 for a column that is to come first, 0 for a free one; on return the i-th column
         of A P was the jpvt(i)-th of A
     rcond: rank is the order of the largest leading triangle of the pivoted QR factorization whose estimated condition
         number is below 1/rcond
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgelsy(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                    const int32_t* lda, float* b, const int32_t* ldb, int32_t* jpvt, const float* rcond,
                                    int32_t* rank, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgelsy_Idx(const int32_t* m, const int32_t* n, const int32_t* nrhs, float* a,
                                        int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* jpvt, int32_t jpvt_index, const float* rcond,
                                        int32_t* rank, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Minimum-norm least-squares solution of a system of any rank by a complete orthogonal factorization.
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B, at least 0
     a: in, out, [lda x n]: on entry A; on return its complete orthogonal factorization
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows
     ldb: leading dimension of b, at least max(1,m,n)
     jpvt: in, out, [n]: on entry not 0 for a column that is to come first, 0 for a free one; on return the i-th column
         of A P was the jpvt(i)-th of A
     rcond: rank is the order of the largest leading triangle of the pivoted QR factorization whose estimated condition
         number is below 1/rcond
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [2*n]: workspace
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B; 0 is refused with info = -4 unless A is empty
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows; if m >= n and rank = n,
         the squares of rows n+1 to m sum up to the squared norm of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     s: out, [min(m,n)]: singular values in descending order
     rcond: singular values up to rcond times the largest one count as zero; a negative rcond stands for the machine
         precision
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out: workspace; a query stores its least length in its first element
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     nrhs: right-hand sides, the columns of B; 0 is refused with info = -4 unless A is empty
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x nrhs]: on entry B in its first m rows; on return X in its first n rows; if m >= n and rank = n,
         the squares of rows n+1 to m sum up to the squared norm of each residual
     ldb: leading dimension of b, at least max(1,m,n)
     s: out, [min(m,n)]: singular values in descending order
     rcond: singular values up to rcond times the largest one count as zero; a negative rcond stands for the machine
         precision
     rank: out: effective rank of A
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out: workspace; a query stores its least length in its first element
     iwork: out: workspace; a query stores its least length in its first element
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A and B, at least 0
     p: rows of B, 0 <= p <= n <= m+p
     a: in, out, [lda x n]: on entry A; on return the triangular factor T of the generalized RQ factorization
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x n]: on entry B; on return the triangular factor R in its last p columns
     ldb: leading dimension of b, at least max(1,p)
     c: in, out, [m]: on entry the vector c; on return the squares of elements n-p+1 to m sum up to the squared norm of
         the residual
     d: in, out, [p]: on entry the vector d; on return destroyed
     x: out, [n]: the solution
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     n: rows of A and B, at least 0
     m: columns of A, 0 <= m <= n
     p: columns of B, at least n-m
     a: in, out, [lda x m]: on entry A; on return the triangular factor R of the generalized QR factorization
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x p]: on entry B; on return the factor T
     ldb: leading dimension of b, at least max(1,n)
     d: in, out, [n]: on entry the vector d; on return destroyed
     x: out, [m]: the solution x
     y: out, [p]: the solution y
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return R on and above the diagonal, below it the vectors of the min(m,n)
         reflectors whose product is Q
     lda: leading dimension of a, at least max(1,m)
     tau: out, [min(m,n)]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return R on and above the diagonal, below it the vectors of the min(m,n)
         reflectors whose product is Q
     lda: leading dimension of a, at least max(1,m)
     jpvt: in, out, [n]: on entry not 0 for a column that is to come first, 0 for a free one; on return the i-th column
         of A P was the jpvt(i)-th of A
     tau: out, [min(m,n)]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgeqp3(const int32_t* m, const int32_t* n, float* a, const int32_t* lda, int32_t* jpvt,
                                    float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeqp3_Idx(const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, int32_t* jpvt, int32_t jpvt_index, float* tau,
                                        int32_t tau_index, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Forms the orthogonal or unitary Q of geqrf.
     m: rows of Q, at least n
     n: columns of Q, 0 <= n <= m
     k: reflectors, 0 <= k <= n
     a: in, out, [lda x n]: on entry the vectors of the reflectors in the first k columns, as stored by geqrf or geqp3;
         on return Q
     lda: leading dimension of a, at least max(1,m)
     tau: [k]: scalar factors of the reflectors, as stored by geqrf or geqp3
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     side: side from which Q is applied (L from the left; R from the right)
     trans: what is applied (N Q; T Q^T)
     m: rows of C, at least 0
     n: columns of C, at least 0
     k: reflectors, 0 <= k <= m (side L) or n (side R)
     a: [lda x k]: vectors of the reflectors in its columns, as stored by geqrf or geqp3; written to during the call,
         and restored
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     tau: [k]: scalar factors of the reflectors, as stored by geqrf or geqp3
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sormqr(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormqr_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Multiplies a matrix by the Q of geqrf or its (conjugate) transpose, from the left or the right.
     side: side from which Q is applied (L from the left; R from the right)
     trans: what is applied (N Q; C Q^H)
     m: rows of C, at least 0
     n: columns of C, at least 0
     k: reflectors, 0 <= k <= m (side L) or n (side R)
     a: [lda x k]: vectors of the reflectors in its columns, as stored by geqrf or geqp3; written to during the call,
         and restored
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     tau: [k]: scalar factors of the reflectors, as stored by geqrf or geqp3
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return L on and below the diagonal, right of it the vectors of the min(m,n)
         reflectors whose product is Q
     lda: leading dimension of a, at least max(1,m)
     tau: out, [min(m,n)]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     m: rows of Q, at least 0
     n: columns of Q, at least m
     k: reflectors, 0 <= k <= m
     a: in, out, [lda x n]: on entry the vectors of the reflectors in the first k rows, as stored by gelqf; on return Q
     lda: leading dimension of a, at least max(1,m)
     tau: [k]: scalar factors of the reflectors, as stored by gelqf
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     side: side from which Q is applied (L from the left; R from the right)
     trans: what is applied (N Q; T Q^T)
     m: rows of C, at least 0
     n: columns of C, at least 0
     k: reflectors, 0 <= k <= m (side L) or n (side R)
     a: [lda x m or n]: vectors of the reflectors in its rows, of m (side L) or n (side R) elements, as stored by gelqf;
         written to during the call, and restored
     lda: leading dimension of a, at least max(1,k)
     tau: [k]: scalar factors of the reflectors, as stored by gelqf
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sormlq(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                    const int32_t* k, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormlq_Idx(const char* side, const char* trans, const int32_t* m, const int32_t* n,
                                        const int32_t* k, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Multiplies a matrix by the Q of gelqf or its (conjugate) transpose, from the left or the right.
     side: side from which Q is applied (L from the left; R from the right)
     trans: what is applied (N Q; C Q^H)
     m: rows of C, at least 0
     n: columns of C, at least 0
     k: reflectors, 0 <= k <= m (side L) or n (side R)
     a: [lda x m or n]: vectors of the reflectors in its rows, of m (side L) or n (side R) elements, as stored by gelqf;
         written to during the call, and restored
     lda: leading dimension of a, at least max(1,k)
     tau: [k]: scalar factors of the reflectors, as stored by gelqf
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return B on the diagonal and above (m >= n) or below it, and the vectors of
         the reflectors of Q (below B) and P (right of B)
     lda: leading dimension of a, at least max(1,m)
     d: out, [min(m,n)]: diagonal of B
     e: out, [min(m,n)-1]: superdiagonal (m >= n) or subdiagonal of B
     tauq: out, [min(m,n)]: scalar factors of the reflectors of Q
     taup: out, [min(m,n)]: scalar factors of the reflectors of P
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     vect: what is formed (Q Q; P P^H)
     m: rows of the result, at least 0
     n: columns of the result; vect Q: m >= n >= min(m,k), vect P: n >= m >= min(n,k)
     k: vect Q: columns of the matrix that gebrd reduced; vect P: its rows
     a: in, out, [lda x n]: on entry the vectors of the reflectors, as stored by gebrd; on return Q or P^H
     lda: leading dimension of a, at least max(1,m)
     tau: [min(m,k)]: tauq (vect Q) or taup (vect P) of gebrd, min(m,k) or min(n,k) elements
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     vect: what is applied (Q Q; P P)
     side: side from which it is applied (L from the left; R from the right)
     trans: form in which it is applied (N as it is; T transposed)
     m: rows of C, at least 0
     n: columns of C, at least 0
     k: vect Q: columns of the matrix that gebrd reduced; vect P: its rows
     a: [lda x m or n]: vectors of the reflectors, as stored by gebrd, min(q,k) columns (vect Q) or q columns (vect P)
         with q = m (side L) or n (side R); written to during the call, and restored
     lda: leading dimension of a; vect Q: at least max(1,q), vect P: max(1,min(q,k)), with q = m (side L) or n (side R)
     tau: [min(m or n,k)]: tauq (vect Q) or taup (vect P) of gebrd
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return T on its diagonal and next to it, and the vectors of
         the reflectors whose product is Q
     lda: leading dimension of a, at least max(1,n)
     d: out, [n]: diagonal of T
     e: out, [n-1]: off-diagonal of T
     tau: out, [n-1]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL ssytrd(const char* uplo, const int32_t* n, float* a, const int32_t* lda, float* d,
                                    float* e, float* tau, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssytrd_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        float* tau, int32_t tau_index, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Forms the orthogonal or unitary Q of the reduction to tridiagonal form.
     uplo: as for the reduction (U upper; L lower)
     n: order of Q, at least 0
     a: in, out, [lda x n]: on entry the vectors of the reflectors, as stored by sytrd; on return Q
     lda: leading dimension of a, at least max(1,n)
     tau: [n-1]: scalar factors of the reflectors, as stored by sytrd
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sorgtr(const char* uplo, const int32_t* n, float* a, const int32_t* lda, const float* tau,
                                    float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sorgtr_Idx(const char* uplo, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, const float* tau, int32_t tau_index, float* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Forms the orthogonal or unitary Q of the reduction to tridiagonal form.
     uplo: as for the reduction (U upper; L lower)
     n: order of Q, at least 0
     a: in, out, [lda x n]: on entry the vectors of the reflectors, as stored by hetrd; on return Q
     lda: leading dimension of a, at least max(1,n)
     tau: [n-1]: scalar factors of the reflectors, as stored by hetrd
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL cungtr(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL cungtr_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, const quorin_complex* tau, int32_t tau_index,
                                        quorin_complex* work, int32_t work_index, const int32_t* lwork, int32_t* info);

/* Multiplies a matrix by the Q of the reduction to tridiagonal form, from the left or the right.
     side: side from which Q is applied (L from the left; R from the right)
     uplo: as for the reduction (U upper; L lower)
     trans: what is applied (N Q; T Q^T)
     m: rows of C, at least 0
     n: columns of C, at least 0
     a: [lda x m or n]: vectors of the reflectors, as stored by sytrd, m (side L) or n (side R) columns; written to
         during the call, and restored
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     tau: [m or n-1]: scalar factors of the reflectors, as stored by sytrd, m-1 (side L) or n-1 (side R)
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sormtr(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                    const int32_t* n, const float* a, const int32_t* lda, const float* tau, float* c,
                                    const int32_t* ldc, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sormtr_Idx(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                        const int32_t* n, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* tau, int32_t tau_index, float* c, int32_t c_index,
                                        const int32_t* ldc, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Multiplies a matrix by the Q of the reduction to tridiagonal form, from the left or the right.
     side: side from which Q is applied (L from the left; R from the right)
     uplo: as for the reduction (U upper; L lower)
     trans: what is applied (N Q; C Q^H)
     m: rows of C, at least 0
     n: columns of C, at least 0
     a: [lda x m or n]: vectors of the reflectors, as stored by hetrd, m (side L) or n (side R) columns; written to
         during the call, and restored
     lda: leading dimension of a, at least max(1,m) (side L) or max(1,n) (side R)
     tau: [m or n-1]: scalar factors of the reflectors, as stored by hetrd, m-1 (side L) or n-1 (side R)
     c: in, out, [ldc x n]: on entry C; on return the product
     ldc: leading dimension of c, at least max(1,m)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL cunmtr(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                    const int32_t* n, const quorin_complex* a, const int32_t* lda,
                                    const quorin_complex* tau, quorin_complex* c, const int32_t* ldc,
                                    quorin_complex* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL cunmtr_Idx(const char* side, const char* uplo, const char* trans, const int32_t* m,
                                        const int32_t* n, const quorin_complex* a, int32_t a_index, const int32_t* lda,
                                        const quorin_complex* tau, int32_t tau_index, quorin_complex* c,
                                        int32_t c_index, const int32_t* ldc, quorin_complex* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* info);

/* Reduces a symmetric matrix to tridiagonal form, T = Q^T A Q.
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return T on its diagonal and next to it, and the vectors of
         the reflectors whose product is Q
     lda: leading dimension of a, at least max(1,n)
     d: out, [n]: diagonal of T
     e: out, [n-1]: off-diagonal of T
     tau: out, [n-1]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL chetrd(const char* uplo, const int32_t* n, quorin_complex* a, const int32_t* lda, float* d,
                                    float* e, quorin_complex* tau, quorin_complex* work, const int32_t* lwork,
                                    int32_t* info);
QUORIN_API void QUORIN_CDECL chetrd_Idx(const char* uplo, const int32_t* n, quorin_complex* a, int32_t a_index,
                                        const int32_t* lda, float* d, int32_t d_index, float* e, int32_t e_index,
                                        quorin_complex* tau, int32_t tau_index, quorin_complex* work,
                                        int32_t work_index, const int32_t* lwork, int32_t* info);

/* Reduces a general matrix to upper Hessenberg form, H = Q^H A Q.
     n: order of A, at least 0
     ilo: rows and columns before ilo are triangular already; from gebal, or 1
     ihi: rows and columns behind ihi are triangular already; from gebal, or n; 1 <= ilo <= ihi <= n (ilo = 1, ihi = 0
         if n = 0)
     a: in, out, [lda x n]: on entry A; on return H on, above and just below the diagonal, and the vectors of the
         reflectors whose product is Q below
     lda: leading dimension of a, at least max(1,n)
     tau: out, [n-1]: scalar factors of the reflectors
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     n: order of Q, at least 0
     ilo: as for gehrd
     ihi: as for gehrd
     a: in, out, [lda x n]: on entry the vectors of the reflectors, as stored by gehrd; on return Q
     lda: leading dimension of a, at least max(1,n)
     tau: [n-1]: scalar factors of the reflectors, as stored by gehrd
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     itype: form of the problem (1 A x = lambda B x: inv(U^H) A inv(U) or inv(L) A inv(L^H); 2 A B x = lambda x: U A U^H
         or L^H A L; 3 B A x = lambda x: U A U^H or L^H A L)
     uplo: triangle of A that is stored, and factor of B that potrf stored (U upper, B = U^H U; L lower, B = L L^H)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return that of the transformed matrix
     lda: leading dimension of a, at least max(1,n)
     b: [ldb x n]: the factor U or L, as stored by potrf
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL ssygst(const int32_t* itype, const char* uplo, const int32_t* n, float* a,
                                    const int32_t* lda, const float* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL ssygst_Idx(const int32_t* itype, const char* uplo, const int32_t* n, float* a,
                                        int32_t a_index, const int32_t* lda, const float* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Reduces a symmetric-definite generalized eigenproblem to standard form; B comes factored by potrf.
     itype: form of the problem (1 A x = lambda B x: inv(U^H) A inv(U) or inv(L) A inv(L^H); 2 A B x = lambda x: U A U^H
         or L^H A L; 3 B A x = lambda x: U A U^H or L^H A L)
     uplo: triangle of A that is stored, and factor of B that potrf stored (U upper, B = U^H U; L lower, B = L L^H)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return that of the transformed matrix
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: the factor U or L, as stored by potrf; written to during the call, and restored
     ldb: leading dimension of b, at least max(1,n)
     info: out: status */
QUORIN_API void QUORIN_CDECL chegst(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                                    const int32_t* lda, quorin_complex* b, const int32_t* ldb, int32_t* info);
QUORIN_API void QUORIN_CDECL chegst_Idx(const int32_t* itype, const char* uplo, const int32_t* n, quorin_complex* a,
                                        int32_t a_index, const int32_t* lda, quorin_complex* b, int32_t b_index,
                                        const int32_t* ldb, int32_t* info);

/* Balances a matrix for eigenvalue computations by permutation and scaling.
     job: what is done (N nothing; ilo, ihi and scale are set; P permutation; S scaling; B permutation and scaling)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return the balanced matrix (not touched if job is N)
     lda: leading dimension of a, at least max(1,n)
     ilo: out: rows and columns before ilo are triangular
     ihi: out: rows and columns behind ihi are triangular
     scale: out, [n]: rows and columns j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with scale(j); those from
         ilo to ihi were scaled by scale(j)
     info: out: status */
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
     job: as for gebal (N nothing is done; P permutation; S scaling; B permutation and scaling)
     side: kind of eigenvectors (R right; L left)
     n: rows of V, at least 0
     ilo: as stored by gebal
     ihi: as stored by gebal
     scale: [n]: as stored by gebal
     m: columns of V, at least 0
     v: in, out, [ldv x m]: on entry eigenvectors of the balanced matrix; on return those of the original one
     ldv: leading dimension of v, at least max(1,n)
     info: out: status */
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
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     isuppz: out, [2*max(1,m)]: elements 2*i-1 and 2*i: first and last element of eigenvector i that is not zero; only
         if all eigenvalues are wanted (range A, or I with all)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
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

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric matrix by bisection and inverse iteration.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [7*n]: workspace
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric matrix by relatively robust representations.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     isuppz: out, [2*max(1,m)]: elements 2*i-1 and 2*i: first and last element of eigenvector i that is not zero; only
         if all eigenvalues are wanted (range A, or I with all)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [lrwork]: workspace; on return its first element holds the least lrwork
     lrwork: length of rwork; -1 asks for the best sizes of all workspaces
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
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
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     w: out, [n]: eigenvalues in ascending order
     z: out, [ldz x n]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [max(1,3*n-2)]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL ssbev(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                   const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work,
                                   int32_t* info);
QUORIN_API void QUORIN_CDECL ssbev_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                       float* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                       float* z, int32_t z_index, const int32_t* ldz, float* work, int32_t work_index,
                                       int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric band matrix by divide and conquer.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     w: out, [n]: eigenvalues in ascending order
     z: out, [ldz x n]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
QUORIN_API void QUORIN_CDECL ssbevd(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd, float* ab,
                                    const int32_t* ldab, float* w, float* z, const int32_t* ldz, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssbevd_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                        float* ab, int32_t ab_index, const int32_t* ldab, float* w, int32_t w_index,
                                        float* z, int32_t z_index, const int32_t* ldz, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric band matrix.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     q: out, [ldq x n]: if jobz is V: the orthogonal or unitary matrix of the reduction to tridiagonal form; not touched
         if jobz is N
     ldq: leading dimension of q, at least max(1,n) if jobz is V
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [7*n]: workspace
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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

/* Eigenvalues, and optionally eigenvectors, of a symmetric band matrix.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     w: out, [n]: eigenvalues in ascending order
     z: out, [ldz x n]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [n]: workspace
     rwork: out, [max(1,3*n-2)]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL chbev(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                   quorin_complex* ab, const int32_t* ldab, float* w, quorin_complex* z,
                                   const int32_t* ldz, quorin_complex* work, float* rwork, int32_t* info);
QUORIN_API void QUORIN_CDECL chbev_Idx(const char* jobz, const char* uplo, const int32_t* n, const int32_t* kd,
                                       quorin_complex* ab, int32_t ab_index, const int32_t* ldab, float* w,
                                       int32_t w_index, quorin_complex* z, int32_t z_index, const int32_t* ldz,
                                       quorin_complex* work, int32_t work_index, float* rwork, int32_t rwork_index,
                                       int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric band matrix by divide and conquer.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     w: out, [n]: eigenvalues in ascending order
     z: out, [ldz x n]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [lrwork]: workspace; on return its first element holds the least lrwork
     lrwork: length of rwork; -1 asks for the best sizes of all workspaces
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
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

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric band matrix.
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A that is stored and read; the other one is not touched (U upper; L lower)
     n: order of A, at least 0
     kd: diagonals above (uplo U) or below (uplo L) the main one, at least 0
     ab: in, out, [ldab x n]: on entry A(i,j) in row kd+1+i-j (uplo U) or 1+i-j (uplo L) of column j; on return
         destroyed
     ldab: leading dimension of ab, at least kd+1
     q: out, [ldq x n]: if jobz is V: the orthogonal or unitary matrix of the reduction to tridiagonal form; not touched
         if jobz is N
     ldq: leading dimension of q, at least max(1,n) if jobz is V
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i), of norm 1; with range V, offer as
         many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [n]: workspace
     rwork: out, [7*n]: workspace
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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
     itype: form of the problem (1 A x = lambda B x; 2 A B x = lambda x; 3 B A x = lambda x)
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A and B that is stored and read (U upper; L lower)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return the eigenvectors Z in its columns (jobz V; Z^H B Z =
         I, for itype 3 Z^H inv(B) Z = I), or destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry the triangle of B; on return its factor U of B = U^H U or L of B = L L^H
     ldb: leading dimension of b, at least max(1,n)
     w: out, [n]: eigenvalues in ascending order
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
QUORIN_API void QUORIN_CDECL ssygvd(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                    float* a, const int32_t* lda, float* b, const int32_t* ldb, float* w, float* work,
                                    const int32_t* lwork, int32_t* iwork, const int32_t* liwork, int32_t* info);
QUORIN_API void QUORIN_CDECL ssygvd_Idx(const int32_t* itype, const char* jobz, const char* uplo, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, float* b, int32_t b_index,
                                        const int32_t* ldb, float* w, int32_t w_index, float* work, int32_t work_index,
                                        const int32_t* lwork, int32_t* iwork, int32_t iwork_index,
                                        const int32_t* liwork, int32_t* info);

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric-definite generalized problem.
     itype: form of the problem (1 A x = lambda B x; 2 A B x = lambda x; 3 B A x = lambda x)
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A and B that is stored and read (U upper; L lower)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry the triangle of B; on return its factor U of B = U^H U or L of B = L L^H
     ldb: leading dimension of b, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i); Z^H B Z = I, for itype 3 Z^H inv(B)
         Z = I; with range V, offer as many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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

/* Eigenvalues, and optionally eigenvectors, of a symmetric-definite generalized problem by divide and conquer.
     itype: form of the problem (1 A x = lambda B x; 2 A B x = lambda x; 3 B A x = lambda x)
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     uplo: triangle of A and B that is stored and read (U upper; L lower)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return the eigenvectors Z in its columns (jobz V; Z^H B Z =
         I, for itype 3 Z^H inv(B) Z = I), or destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry the triangle of B; on return its factor U of B = U^H U or L of B = L L^H
     ldb: leading dimension of b, at least max(1,n)
     w: out, [n]: eigenvalues in ascending order
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [lrwork]: workspace; on return its first element holds the least lrwork
     lrwork: length of rwork; -1 asks for the best sizes of all workspaces
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     info: out: status */
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

/* Selected eigenvalues, and optionally eigenvectors, of a symmetric-definite generalized problem.
     itype: form of the problem (1 A x = lambda B x; 2 A B x = lambda x; 3 B A x = lambda x)
     jobz: what is computed (N eigenvalues only; V eigenvalues and eigenvectors)
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     uplo: triangle of A and B that is stored and read (U upper; L lower)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry the triangle of A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry the triangle of B; on return its factor U of B = U^H U or L of B = L L^H
     ldb: leading dimension of b, at least max(1,n)
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue in [a,b] is accepted when b-a <= abstol + eps max(|a|,|b|); 0 or less stands for eps times
         the norm of the tridiagonal form; 2.4e-38 is the most accurate choice
     m: out: number of eigenvalues found; iu-il+1 if range is I
     w: out, [n]: its first m elements: the eigenvalues in ascending order
     z: out, [ldz x max(1,m)]: if jobz is V: column i holds the eigenvector of w(i); Z^H B Z = I, for itype 3 Z^H inv(B)
         Z = I; with range V, offer as many columns as there may be eigenvalues; not touched if jobz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if jobz is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [7*n]: workspace
     iwork: out, [5*n]: workspace
     ifail: out, [n]: if jobz is V: zeros, or with info > 0 the numbers of the eigenvectors that did not converge, in
         the first m elements; else not touched
     info: out: status */
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
     n: order of T, at least 0
     d: in, out, [n]: on entry the diagonal of T; on return the eigenvalues in ascending order
     e: in, out, [n-1]: on entry the off-diagonal of T; on return destroyed
     info: out: status */
QUORIN_API void QUORIN_CDECL ssterf(const int32_t* n, float* d, float* e, int32_t* info);
QUORIN_API void QUORIN_CDECL ssterf_Idx(const int32_t* n, float* d, int32_t d_index, float* e, int32_t e_index,
                                        int32_t* info);

/* Eigenvalues, and optionally eigenvectors, of a symmetric tridiagonal matrix by implicit QL or QR.
     compz: eigenvectors (N none; V those of the matrix that was reduced to T, z holding the Q of the reduction; I those
         of T)
     n: order of T, at least 0
     d: in, out, [n]: on entry the diagonal of T; on return the eigenvalues in ascending order
     e: in, out, [n-1]: on entry the off-diagonal of T; on return destroyed
     z: in, out, [ldz x n]: on entry Q (compz V); on return the eigenvectors in its columns; not touched if compz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if compz is V or I
     work: out, [max(1,2*n-2)]: workspace; not touched if compz is N
     info: out: status */
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
     compz: eigenvectors (N none; V those of the matrix that was reduced to T, z holding the Q of the reduction; I those
         of T)
     n: order of T, at least 0
     d: in, out, [n]: on entry the diagonal of T; on return the eigenvalues in descending order
     e: in, out, [n-1]: on entry the off-diagonal of T; on return destroyed
     z: in, out, [ldz x n]: on entry Q (compz V); on return the eigenvectors in its columns; not touched if compz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if compz is V or I
     work: out, [4*n]: workspace
     info: out: status */
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
     range: which eigenvalues (A all; V those in the half-open interval (vl, vu]; I the il-th to the iu-th, the smallest
         being the first)
     order: order of the eigenvalues in w (B ascending within each block of T, as stein wants them; E ascending
         throughout)
     n: order of T, at least 0
     vl: lower end of the interval; read only if range is V, then less than vu
     vu: upper end of the interval; read only if range is V
     il: first wanted eigenvalue, 1 <= il <= iu (1 if n = 0); read only if range is I
     iu: last wanted eigenvalue, il <= iu <= n (0 if n = 0); read only if range is I
     abstol: an eigenvalue is accepted once it lies in an interval of this width; 0 or less stands for eps times the
         1-norm of T; 2.4e-38 is the most accurate choice
     d: [n]: diagonal of T
     e: [n-1]: off-diagonal of T
     m: out: number of eigenvalues found
     nsplit: out: number of diagonal blocks into which T falls apart
     w: out, [n]: its first m elements: the eigenvalues
     iblock: out, [n]: block to which each eigenvalue belongs, counted from 1
     isplit: out, [n]: last row of each block, in its first nsplit elements
     work: out, [4*n]: workspace
     iwork: out, [3*n]: workspace
     info: out: status */
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
     n: order of T, at least 0
     d: [n]: diagonal of T
     e: [n-1]: off-diagonal of T
     m: number of eigenvectors, 0 <= m <= n
     w: [n]: its first m elements: the eigenvalues, ascending within each block of T, as stebz stores them with order B
     iblock: [n]: block to which each eigenvalue belongs, as stored by stebz
     isplit: [n]: last row of each block, as stored by stebz
     z: out, [ldz x m]: column i holds the eigenvector of w(i), of norm 1
     ldz: leading dimension of z, at least max(1,n)
     work: out, [5*n]: workspace
     iwork: out, [n]: workspace
     ifail: out, [m]: zeros, or the numbers of the eigenvectors that did not converge
     info: out: status */
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
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     wr: out, [n]: real parts of the eigenvalues
     wi: out, [n]: imaginary parts of the eigenvalues; a complex pair stands together, the positive imaginary part first
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H of Euclidean norm 1 in the order of the
         eigenvalues; a complex pair has the real part in the first and the imaginary part in the second of two columns,
         for the eigenvalue with positive imaginary part
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgeev(const char* jobvl, const char* jobvr, const int32_t* n, float* a, const int32_t* lda,
                                   float* wr, float* wi, float* vl, const int32_t* ldvl, float* vr, const int32_t* ldvr,
                                   float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgeev_Idx(const char* jobvl, const char* jobvr, const int32_t* n, float* a,
                                       int32_t a_index, const int32_t* lda, float* wr, int32_t wr_index, float* wi,
                                       int32_t wi_index, float* vl, int32_t vl_index, const int32_t* ldvl, float* vr,
                                       int32_t vr_index, const int32_t* ldvr, float* work, int32_t work_index,
                                       const int32_t* lwork, int32_t* info);

/* Eigenvalues, and optionally left and right eigenvectors, of a general matrix.
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     w: out, [n]: eigenvalues
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H of Euclidean norm 1 in the order of the
         eigenvalues
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors of Euclidean norm 1 in the order of the eigenvalues
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [2*n]: workspace
     info: out: status */
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
     balanc: balancing (N none; P permutation; S scaling; B permutation and scaling)
     jobvl: left eigenvectors; V if sense is E or B (N not computed; V computed)
     jobvr: right eigenvectors; V if sense is E or B (N not computed; V computed)
     sense: condition numbers to compute (N none; E of eigenvalues; V of right eigenvectors; B of both)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return the Schur form of the balanced matrix if eigenvectors were computed,
         else destroyed
     lda: leading dimension of a, at least max(1,n)
     wr: out, [n]: real parts of the eigenvalues
     wi: out, [n]: imaginary parts of the eigenvalues; a complex pair stands together, the positive imaginary part first
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H of Euclidean norm 1 in the order of the
         eigenvalues; a complex pair has the real part in the first and the imaginary part in the second of two columns,
         for the eigenvalue with positive imaginary part
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     ilo: out: rows and columns before ilo of the balanced matrix are triangular
     ihi: out: rows and columns behind ihi of the balanced matrix are triangular
     scale: out, [n]: rows and columns j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with scale(j); those from
         ilo to ihi were scaled by scale(j)
     abnrm: out: 1-norm of the balanced matrix
     rconde: out, [n]: reciprocal condition numbers of the eigenvalues (sense E, B)
     rcondv: out, [n]: reciprocal condition numbers of the right eigenvectors (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [2*n-2]: workspace; not touched if sense is N or E
     info: out: status */
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
     balanc: balancing (N none; P permutation; S scaling; B permutation and scaling)
     jobvl: left eigenvectors; V if sense is E or B (N not computed; V computed)
     jobvr: right eigenvectors; V if sense is E or B (N not computed; V computed)
     sense: condition numbers to compute (N none; E of eigenvalues; V of right eigenvectors; B of both)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return the Schur form of the balanced matrix if eigenvectors were computed,
         else destroyed
     lda: leading dimension of a, at least max(1,n)
     w: out, [n]: eigenvalues
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H of Euclidean norm 1 in the order of the
         eigenvalues
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors of Euclidean norm 1 in the order of the eigenvalues
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     ilo: out: rows and columns before ilo of the balanced matrix are triangular
     ihi: out: rows and columns behind ihi of the balanced matrix are triangular
     scale: out, [n]: rows and columns j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with scale(j); those from
         ilo to ihi were scaled by scale(j)
     abnrm: out: 1-norm of the balanced matrix
     rconde: out, [n]: reciprocal condition numbers of the eigenvalues (sense E, B)
     rcondv: out, [n]: reciprocal condition numbers of the right eigenvectors (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [2*n]: workspace
     info: out: status */
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
     jobvs: Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     select: a host function (see Types): not 0 for an eigenvalue that is to come first; one of a complex pair takes
         both; called only if sort is S
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return its real Schur form T (2 x 2 blocks on the diagonal for complex pairs)
     lda: leading dimension of a, at least max(1,n)
     sdim: out: number of selected eigenvalues, complex pairs counted as 2; 0 if sort is N
     wr: out, [n]: real parts of the eigenvalues, in the order of T
     wi: out, [n]: imaginary parts of the eigenvalues; a complex pair stands together, the positive imaginary part first
     vs: out, [ldvs x n]: if jobvs is V: the orthogonal Z of A = Z T Z^T
     ldvs: leading dimension of vs, at least 1, and n if jobvs is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvs: Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     select: a host function (see Types): not 0 for an eigenvalue that is to come first; called only if sort is S
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return its Schur form T
     lda: leading dimension of a, at least max(1,n)
     sdim: out: number of selected eigenvalues; 0 if sort is N
     w: out, [n]: eigenvalues, in the order of T
     vs: out, [ldvs x n]: if jobvs is V: the unitary Z of A = Z T Z^H
     ldvs: leading dimension of vs, at least 1, and n if jobvs is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [n]: workspace
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvs: Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     select: a host function (see Types): not 0 for an eigenvalue that is to come first; one of a complex pair takes
         both; called only if sort is S
     sense: condition numbers to compute; other than N only with sort S (N none; E of the average of the selected
         eigenvalues; V of the right invariant subspace of the selected eigenvalues; B of both)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return its real Schur form T (2 x 2 blocks on the diagonal for complex pairs)
     lda: leading dimension of a, at least max(1,n)
     sdim: out: number of selected eigenvalues, complex pairs counted as 2; 0 if sort is N
     wr: out, [n]: real parts of the eigenvalues, in the order of T
     wi: out, [n]: imaginary parts of the eigenvalues; a complex pair stands together, the positive imaginary part first
     vs: out, [ldvs x n]: if jobvs is V: the orthogonal Z of A = Z T Z^T
     ldvs: leading dimension of vs, at least 1, and n if jobvs is V
     rconde: out: reciprocal condition number of the average of the selected eigenvalues (sense E, B)
     rcondv: out: reciprocal condition number of their right invariant subspace (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one; n+n*n/2 is enough for every sdim, and with less than the minimum
         info is -16 after the Schur form is computed
     iwork: out, [liwork]: workspace
     liwork: length of iwork; -1 asks for the best sizes of all workspaces; n*n/4 is enough for every sdim, and with
         less than the minimum info is -18 after the Schur form is computed
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvs: Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     select: a host function (see Types): not 0 for an eigenvalue that is to come first; called only if sort is S
     sense: condition numbers to compute; other than N only with sort S (N none; E of the average of the selected
         eigenvalues; V of the right invariant subspace of the selected eigenvalues; B of both)
     n: order of A, at least 0
     a: in, out, [lda x n]: on entry A; on return its Schur form T
     lda: leading dimension of a, at least max(1,n)
     sdim: out: number of selected eigenvalues; 0 if sort is N
     w: out, [n]: eigenvalues, in the order of T
     vs: out, [ldvs x n]: if jobvs is V: the unitary Z of A = Z T Z^H
     ldvs: leading dimension of vs, at least 1, and n if jobvs is V
     rconde: out: reciprocal condition number of the average of the selected eigenvalues (sense E, B)
     rcondv: out: reciprocal condition number of their right invariant subspace (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one; n*n/2 is enough for every sdim, and with less than the minimum
         info is -15 after the Schur form is computed
     rwork: out, [n]: workspace
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     job: what is computed (E eigenvalues only; S eigenvalues and the Schur form T)
     compz: Schur vectors (N none; I those of H; V Q times those of H, z holding Q)
     n: order of H, at least 0
     ilo: rows and columns before ilo are triangular already; from gebal, or 1
     ihi: rows and columns behind ihi are triangular already; from gebal, or n; 1 <= ilo <= ihi <= n (ilo = 1, ihi = 0
         if n = 0)
     h: in, out, [ldh x n]: on entry the upper Hessenberg matrix H; on return T (job S; 2 x 2 blocks on the diagonal for
         complex pairs) or destroyed
     ldh: leading dimension of h, at least max(1,n)
     wr: out, [n]: real parts of the eigenvalues
     wi: out, [n]: imaginary parts of the eigenvalues; a complex pair stands together, the positive imaginary part first
     z: in, out, [ldz x n]: on entry Q of orghr (compz V); on return the Schur vectors; not touched if compz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if compz is I or V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL shseqr(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                    const int32_t* ihi, float* h, const int32_t* ldh, float* wr, float* wi, float* z,
                                    const int32_t* ldz, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL shseqr_Idx(const char* job, const char* compz, const int32_t* n, const int32_t* ilo,
                                        const int32_t* ihi, float* h, int32_t h_index, const int32_t* ldh, float* wr,
                                        int32_t wr_index, float* wi, int32_t wi_index, float* z, int32_t z_index,
                                        const int32_t* ldz, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Eigenvalues, and optionally the Schur form, of an upper Hessenberg matrix.
     job: what is computed (E eigenvalues only; S eigenvalues and the Schur form T)
     compz: Schur vectors (N none; I those of H; V Q times those of H, z holding Q)
     n: order of H, at least 0
     ilo: rows and columns before ilo are triangular already; from gebal, or 1
     ihi: rows and columns behind ihi are triangular already; from gebal, or n; 1 <= ilo <= ihi <= n (ilo = 1, ihi = 0
         if n = 0)
     h: in, out, [ldh x n]: on entry the upper Hessenberg matrix H; on return T (job S) or destroyed
     ldh: leading dimension of h, at least max(1,n)
     w: out, [n]: eigenvalues; in the order of T if job is S
     z: in, out, [ldz x n]: on entry Q of unghr (compz V); on return the Schur vectors; not touched if compz is N
     ldz: leading dimension of z, at least 1, and max(1,n) if compz is I or V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     side: eigenvectors to compute (R right; L left; B both)
     howmny: how many (A all those of T; B all, multiplied by the matrices in vr and vl; S those that select names)
     select: in, out, [n]: read if howmny is S: not 0 for a wanted eigenvector; one of a complex pair takes both, and on
         return its first is 1, its second 0
     n: order of T, at least 0
     t: [ldt x n]: the quasi-triangular Schur form T of hseqr
     ldt: leading dimension of t, at least max(1,n)
     vl: in, out, [ldvl x mm]: on entry Q (side L or B, howmny B); on return the left eigenvectors; a complex one takes
         two columns, real and imaginary part; not touched if side is R
     ldvl: leading dimension of vl, at least 1, and n if side is L or B
     vr: in, out, [ldvr x mm]: on entry Q (side R or B, howmny B); on return the right eigenvectors; a complex one takes
         two columns, real and imaginary part; not touched if side is L
     ldvr: leading dimension of vr, at least 1, and n if side is R or B
     mm: columns of vl and vr, at least as many as will be used (n for howmny A and B)
     m: out: number of columns used
     work: out, [3*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL strevc(const char* side, const char* howmny, int32_t* select, const int32_t* n,
                                    const float* t, const int32_t* ldt, float* vl, const int32_t* ldvl, float* vr,
                                    const int32_t* ldvr, const int32_t* mm, int32_t* m, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL strevc_Idx(const char* side, const char* howmny, int32_t* select, const int32_t* n,
                                        const float* t, int32_t t_index, const int32_t* ldt, float* vl,
                                        int32_t vl_index, const int32_t* ldvl, float* vr, int32_t vr_index,
                                        const int32_t* ldvr, const int32_t* mm, int32_t* m, float* work,
                                        int32_t work_index, int32_t* info);

/* Eigenvectors of a (quasi-)triangular Schur form.
     side: eigenvectors to compute (R right; L left; B both)
     howmny: how many (A all those of T; B all, multiplied by the matrices in vr and vl; S those that select names)
     select: [n]: read if howmny is S: not 0 for a wanted eigenvector
     n: order of T, at least 0
     t: in, out, [ldt x n]: the triangular Schur form T of hseqr; written to during the call, and restored
     ldt: leading dimension of t, at least max(1,n)
     vl: in, out, [ldvl x mm]: on entry Q (side L or B, howmny B); on return the left eigenvectors; not touched if side
         is R
     ldvl: leading dimension of vl, at least 1, and n if side is L or B
     vr: in, out, [ldvr x mm]: on entry Q (side R or B, howmny B); on return the right eigenvectors; not touched if side
         is L
     ldvr: leading dimension of vr, at least 1, and n if side is R or B
     mm: columns of vl and vr, at least as many as will be used (n for howmny A and B)
     m: out: number of columns used
     work: out, [2*n]: workspace
     rwork: out, [n]: workspace
     info: out: status */
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
     job: what is computed (E condition numbers of eigenvalues; V condition numbers of eigenvectors; B both)
     howmny: for which (A all; S those that select names)
     select: [n]: read if howmny is S: not 0 for a wanted eigenvalue; one of a complex pair takes both
     n: order of T, at least 0
     t: [ldt x n]: the quasi-triangular Schur form T of hseqr
     ldt: leading dimension of t, at least max(1,n)
     vl: [ldvl x m]: if job is E or B: left eigenvectors of the wanted eigenvalues, as stored by trevc; else not read
     ldvl: leading dimension of vl, at least 1, and n if job is E or B
     vr: [ldvr x m]: if job is E or B: right eigenvectors of the wanted eigenvalues, as stored by trevc; else not read
     ldvr: leading dimension of vr, at least 1, and n if job is E or B
     s: out, [mm]: reciprocal condition numbers of the eigenvalues (job E, B); a complex pair has two equal ones
     sep: out, [mm]: estimated reciprocal condition numbers of the right eigenvectors (job V, B); 0 if the eigenvalues
         could not be reordered
     mm: elements of s and sep, at least as many as will be used (n for howmny A)
     m: out: number of elements used
     work: out, [ldwork x n+6]: workspace; not touched if job is E
     ldwork: leading dimension of work, at least 1, and n if job is V or B
     iwork: out, [2*(n-1)]: workspace; not touched if job is E
     info: out: status */
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
     job: what is computed (E condition numbers of eigenvalues; V condition numbers of eigenvectors; B both)
     howmny: for which (A all; S those that select names)
     select: [n]: read if howmny is S: not 0 for a wanted eigenvalue
     n: order of T, at least 0
     t: [ldt x n]: the triangular Schur form T of hseqr
     ldt: leading dimension of t, at least max(1,n)
     vl: [ldvl x m]: if job is E or B: left eigenvectors of the wanted eigenvalues, as stored by trevc; else not read
     ldvl: leading dimension of vl, at least 1, and n if job is E or B
     vr: [ldvr x m]: if job is E or B: right eigenvectors of the wanted eigenvalues, as stored by trevc; else not read
     ldvr: leading dimension of vr, at least 1, and n if job is E or B
     s: out, [mm]: reciprocal condition numbers of the eigenvalues (job E, B)
     sep: out, [mm]: estimated reciprocal condition numbers of the right eigenvectors (job V, B); 0 if the eigenvalues
         could not be reordered
     mm: elements of s and sep, at least as many as will be used (n for howmny A)
     m: out: number of elements used
     work: out, [ldwork x n+6]: workspace; not touched if job is E
     ldwork: leading dimension of work, at least 1, and n if job is V or B
     rwork: out, [n]: workspace; not touched if job is E
     info: out: status */
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
     trana: op(A) (N A; T A^T; C A^T, too)
     tranb: op(B) (N B; T B^T; C B^T, too)
     isgn: sign in the equation (1 op(A) X + X op(B) = scale C; -1 op(A) X - X op(B) = scale C)
     m: order of A, rows of X and C, at least 0
     n: order of B, columns of X and C, at least 0
     a: [lda x m]: the quasi-triangular matrix A, a real Schur form
     lda: leading dimension of a, at least max(1,m)
     b: [ldb x n]: the quasi-triangular matrix B, a real Schur form
     ldb: leading dimension of b, at least max(1,n)
     c: in, out, [ldc x n]: on entry C; on return X
     ldc: leading dimension of c, at least max(1,m)
     scale: out: factor of at most 1 that avoids overflow of X
     info: out: status */
QUORIN_API void QUORIN_CDECL strsyl(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                    const int32_t* n, const float* a, const int32_t* lda, const float* b,
                                    const int32_t* ldb, float* c, const int32_t* ldc, float* scale, int32_t* info);
QUORIN_API void QUORIN_CDECL strsyl_Idx(const char* trana, const char* tranb, const int32_t* isgn, const int32_t* m,
                                        const int32_t* n, const float* a, int32_t a_index, const int32_t* lda,
                                        const float* b, int32_t b_index, const int32_t* ldb, float* c, int32_t c_index,
                                        const int32_t* ldc, float* scale, int32_t* info);

/* Solves the Sylvester equation op(A) X + X op(B) = scale C or op(A) X - X op(B) = scale C for (quasi-)triangular A and
   B.
     trana: op(A) (N A; C A^H)
     tranb: op(B) (N B; C B^H)
     isgn: sign in the equation (1 op(A) X + X op(B) = scale C; -1 op(A) X - X op(B) = scale C)
     m: order of A, rows of X and C, at least 0
     n: order of B, columns of X and C, at least 0
     a: [lda x m]: the upper triangular matrix A
     lda: leading dimension of a, at least max(1,m)
     b: [ldb x n]: the upper triangular matrix B
     ldb: leading dimension of b, at least max(1,n)
     c: in, out, [ldc x n]: on entry C; on return X
     ldc: leading dimension of c, at least max(1,m)
     scale: out: factor of at most 1 that avoids overflow of X
     info: out: status */
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
     jobu: left singular vectors U (A all m columns, in u; S the first min(m,n) columns, in u; O the first min(m,n)
         columns, in a; not with jobvt O; N none)
     jobvt: right singular vectors, as V^H (A all n rows, in vt; S the first min(m,n) rows, in vt; O the first min(m,n)
         rows, in a; not with jobu O; N none)
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return what jobu O or jobvt O stores here, else destroyed
     lda: leading dimension of a, at least max(1,m)
     s: out, [min(m,n)]: singular values in descending order
     u: out, [ldu x m]: left singular vectors in its columns: m (jobu A) or min(m,n) (jobu S); not touched if jobu is O
         or N
     ldu: leading dimension of u, at least 1, and m if jobu is A or S
     vt: out, [ldvt x n]: right singular vectors, conjugated, in its rows: n (jobvt A) or min(m,n) (jobvt S); not
         touched if jobvt is O or N
     ldvt: leading dimension of vt, at least 1; n if jobvt is A, min(m,n) if jobvt is S
     work: out, [lwork]: workspace; with info > 0, elements 2 to min(m,n) are the superdiagonal of a bidiagonal form
         that did not converge
     lwork: length of work; -1 asks for the best one
     info: out: status */
QUORIN_API void QUORIN_CDECL sgesvd(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n, float* a,
                                    const int32_t* lda, float* s, float* u, const int32_t* ldu, float* vt,
                                    const int32_t* ldvt, float* work, const int32_t* lwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgesvd_Idx(const char* jobu, const char* jobvt, const int32_t* m, const int32_t* n,
                                        float* a, int32_t a_index, const int32_t* lda, float* s, int32_t s_index,
                                        float* u, int32_t u_index, const int32_t* ldu, float* vt, int32_t vt_index,
                                        const int32_t* ldvt, float* work, int32_t work_index, const int32_t* lwork,
                                        int32_t* info);

/* Singular values, and optionally singular vectors, of a general matrix by implicit QR.
     jobu: left singular vectors U (A all m columns, in u; S the first min(m,n) columns, in u; O the first min(m,n)
         columns, in a; not with jobvt O; N none)
     jobvt: right singular vectors, as V^H (A all n rows, in vt; S the first min(m,n) rows, in vt; O the first min(m,n)
         rows, in a; not with jobu O; N none)
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return what jobu O or jobvt O stores here, else destroyed
     lda: leading dimension of a, at least max(1,m)
     s: out, [min(m,n)]: singular values in descending order
     u: out, [ldu x m]: left singular vectors in its columns: m (jobu A) or min(m,n) (jobu S); not touched if jobu is O
         or N
     ldu: leading dimension of u, at least 1, and m if jobu is A or S
     vt: out, [ldvt x n]: right singular vectors, conjugated, in its rows: n (jobvt A) or min(m,n) (jobvt S); not
         touched if jobvt is O or N
     ldvt: leading dimension of vt, at least 1; n if jobvt is A, min(m,n) if jobvt is S
     work: out, [lwork]: workspace; with info > 0, elements 2 to min(m,n) are the superdiagonal of a bidiagonal form
         that did not converge
     lwork: length of work; -1 asks for the best one
     rwork: out, [5*min(m,n)]: workspace; with info > 0, its first min(m,n)-1 elements are the superdiagonal of a
         bidiagonal form that did not converge
     info: out: status */
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
     jobz: singular vectors U and V^H (A, S, O, N)
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return what jobz O stores here, else destroyed
     lda: leading dimension of a, at least max(1,m)
     s: out, [min(m,n)]: singular values in descending order
     u: out, [ldu x m]: left singular vectors in its columns: m (jobz A, or O with m < n) or min(m,n) (jobz S); else not
         touched
     ldu: leading dimension of u, at least 1, and m if jobz is A or S, or O with m < n
     vt: out, [ldvt x n]: right singular vectors, conjugated, in its rows: n (jobz A, or O with m >= n) or min(m,n)
         (jobz S); else not touched
     ldvt: leading dimension of vt, at least 1; n if jobz is A, or O with m >= n; min(m,n) if jobz is S
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one, which for nearly square matrices may be less than the minimum
         stated here
     iwork: out, [8*min(m,n)]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL sgesdd(const char* jobz, const int32_t* m, const int32_t* n, float* a, const int32_t* lda,
                                    float* s, float* u, const int32_t* ldu, float* vt, const int32_t* ldvt, float* work,
                                    const int32_t* lwork, int32_t* iwork, int32_t* info);
QUORIN_API void QUORIN_CDECL sgesdd_Idx(const char* jobz, const int32_t* m, const int32_t* n, float* a, int32_t a_index,
                                        const int32_t* lda, float* s, int32_t s_index, float* u, int32_t u_index,
                                        const int32_t* ldu, float* vt, int32_t vt_index, const int32_t* ldvt,
                                        float* work, int32_t work_index, const int32_t* lwork, int32_t* iwork,
                                        int32_t iwork_index, int32_t* info);

/* Singular values, and optionally singular vectors, of a general matrix by divide and conquer.
     jobz: singular vectors U and V^H (A, S, O, N)
     m: rows of A, at least 0
     n: columns of A, at least 0
     a: in, out, [lda x n]: on entry A; on return what jobz O stores here, else destroyed
     lda: leading dimension of a, at least max(1,m)
     s: out, [min(m,n)]: singular values in descending order
     u: out, [ldu x m]: left singular vectors in its columns: m (jobz A, or O with m < n) or min(m,n) (jobz S); else not
         touched
     ldu: leading dimension of u, at least 1, and m if jobz is A or S, or O with m < n
     vt: out, [ldvt x n]: right singular vectors, conjugated, in its rows: n (jobz A, or O with m >= n) or min(m,n)
         (jobz S); else not touched
     ldvt: leading dimension of vt, at least 1; n if jobz is A, or O with m >= n; min(m,n) if jobz is S
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one, which for nearly square matrices may be less than the minimum
         stated here
     rwork: out: workspace
     iwork: out, [8*min(m,n)]: workspace
     info: out: status */
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
     uplo: form of the bidiagonal matrix B (U upper; L lower)
     n: order of B, at least 0
     ncvt: columns of VT, at least 0
     nru: rows of U, at least 0
     ncc: columns of C, at least 0
     d: in, out, [n]: on entry the diagonal of B = Q S P^T; on return the singular values in descending order
     e: in, out, [n-1]: on entry the off-diagonal of B; on return destroyed
     vt: in, out, [ldvt x ncvt]: on entry VT; on return P^T VT; not touched if ncvt = 0
     ldvt: leading dimension of vt, at least 1, and max(1,n) if ncvt > 0
     u: in, out, [ldu x n]: on entry U; on return U Q; not touched if nru = 0
     ldu: leading dimension of u, at least max(1,nru)
     c: in, out, [ldc x ncc]: on entry C; on return Q^T C; not touched if ncc = 0
     ldc: leading dimension of c, at least 1, and max(1,n) if ncc > 0
     work: out, [4*n]: workspace
     info: out: status */
QUORIN_API void QUORIN_CDECL sbdsqr(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                    const int32_t* ncc, float* d, float* e, float* vt, const int32_t* ldvt, float* u,
                                    const int32_t* ldu, float* c, const int32_t* ldc, float* work, int32_t* info);
QUORIN_API void QUORIN_CDECL sbdsqr_Idx(const char* uplo, const int32_t* n, const int32_t* ncvt, const int32_t* nru,
                                        const int32_t* ncc, float* d, int32_t d_index, float* e, int32_t e_index,
                                        float* vt, int32_t vt_index, const int32_t* ldvt, float* u, int32_t u_index,
                                        const int32_t* ldu, float* c, int32_t c_index, const int32_t* ldc, float* work,
                                        int32_t work_index, int32_t* info);

/* Singular values, and optionally singular vectors, of a real bidiagonal matrix.
     uplo: form of the bidiagonal matrix B (U upper; L lower)
     n: order of B, at least 0
     ncvt: columns of VT, at least 0
     nru: rows of U, at least 0
     ncc: columns of C, at least 0
     d: in, out, [n]: on entry the diagonal of B = Q S P^T; on return the singular values in descending order
     e: in, out, [n-1]: on entry the off-diagonal of B; on return destroyed
     vt: in, out, [ldvt x ncvt]: on entry VT; on return P^T VT; not touched if ncvt = 0
     ldvt: leading dimension of vt, at least 1, and max(1,n) if ncvt > 0
     u: in, out, [ldu x n]: on entry U; on return U Q; not touched if nru = 0
     ldu: leading dimension of u, at least max(1,nru)
     c: in, out, [ldc x ncc]: on entry C; on return Q^T C; not touched if ncc = 0
     ldc: leading dimension of c, at least 1, and max(1,n) if ncc > 0
     rwork: out, [4*n]: workspace
     info: out: status */
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

/* Generalized singular value decomposition of a pair of matrices. U^H A Q = D1 (0 R), V^H B Q = D2 (0 R) with U, V, Q
   orthogonal or unitary and R upper triangular of order k+l. D1 is diagonal with I, C and zeros, D2 has S (and an
   identity if m < k+l) beginning in column k+1; C^2 + S^2 = I, and alpha / beta are the generalized singular values.
     jobu: left factor of A (U U is computed; N U is not computed)
     jobv: left factor of B (V V is computed; N V is not computed)
     jobq: right factor of both (Q Q is computed; N Q is not computed)
     m: rows of A, at least 0
     n: columns of A and B, at least 0
     p: rows of B, at least 0
     k: out: number of infinite singular values, k+l being the rank of A and B stacked
     l: out: rank of B
     a: in, out, [lda x n]: on entry A; on return R in rows 1 to k+l, columns n-k-l+1 to n, or its first m rows if m <
         k+l
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x n]: on entry B; on return, if m < k+l, the last k+l-m rows of R in rows m-k+1 to l, columns
         n+m-k-l+1 to n
     ldb: leading dimension of b, at least max(1,p)
     alpha: out, [n]: cosines: 1 in elements 1 to k, diagonal of C in elements k+1 to min(m,k+l), 0 behind
     beta: out, [n]: sines: 0 in elements 1 to k, diagonal of S in elements k+1 to min(m,k+l), 1 up to k+l, 0 behind
     u: out, [ldu x m]: if jobu is U: the m x m matrix U; else not touched
     ldu: leading dimension of u, at least 1, and max(1,m) if jobu is U
     v: out, [ldv x p]: if jobv is V: the p x p matrix V; else not touched
     ldv: leading dimension of v, at least 1, and max(1,p) if jobv is V
     q: out, [ldq x n]: if jobq is Q: the n x n matrix Q; else not touched
     ldq: leading dimension of q, at least 1, and max(1,n) if jobq is Q
     work: out, [max(3*n,m,p)+n]: workspace
     iwork: out, [n]: exchanging alpha(i) with alpha(iwork(i)) for i = k+1, ..., min(m,k+l) sorts alpha in descending
         order
     info: out: status */
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

/* Generalized singular value decomposition of a pair of matrices. U^H A Q = D1 (0 R), V^H B Q = D2 (0 R) with U, V, Q
   orthogonal or unitary and R upper triangular of order k+l. D1 is diagonal with I, C and zeros, D2 has S (and an
   identity if m < k+l) beginning in column k+1; C^2 + S^2 = I, and alpha / beta are the generalized singular values.
     jobu: left factor of A (U U is computed; N U is not computed)
     jobv: left factor of B (V V is computed; N V is not computed)
     jobq: right factor of both (Q Q is computed; N Q is not computed)
     m: rows of A, at least 0
     n: columns of A and B, at least 0
     p: rows of B, at least 0
     k: out: number of infinite singular values, k+l being the rank of A and B stacked
     l: out: rank of B
     a: in, out, [lda x n]: on entry A; on return R in rows 1 to k+l, columns n-k-l+1 to n, or its first m rows if m <
         k+l
     lda: leading dimension of a, at least max(1,m)
     b: in, out, [ldb x n]: on entry B; on return, if m < k+l, the last k+l-m rows of R in rows m-k+1 to l, columns
         n+m-k-l+1 to n
     ldb: leading dimension of b, at least max(1,p)
     alpha: out, [n]: cosines: 1 in elements 1 to k, diagonal of C in elements k+1 to min(m,k+l), 0 behind
     beta: out, [n]: sines: 0 in elements 1 to k, diagonal of S in elements k+1 to min(m,k+l), 1 up to k+l, 0 behind
     u: out, [ldu x m]: if jobu is U: the m x m matrix U; else not touched
     ldu: leading dimension of u, at least 1, and max(1,m) if jobu is U
     v: out, [ldv x p]: if jobv is V: the p x p matrix V; else not touched
     ldv: leading dimension of v, at least 1, and max(1,p) if jobv is V
     q: out, [ldq x n]: if jobq is Q: the n x n matrix Q; else not touched
     ldq: leading dimension of q, at least 1, and max(1,n) if jobq is Q
     work: out, [max(3*n,m,p)+n]: workspace
     rwork: out, [2*n]: workspace
     iwork: out, [n]: exchanging alpha(i) with alpha(iwork(i)) for i = k+1, ..., min(m,k+l) sorts alpha in descending
         order
     info: out: status */
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
     jobvsl: left Schur vectors (N not computed; V computed)
     jobvsr: right Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     selctg: a host function (see Types): not 0 for an eigenvalue that is to come first; one of a complex pair takes
         both; called only if sort is S
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the quasi-triangular S
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the upper triangular T
     ldb: leading dimension of b, at least max(1,n)
     sdim: out: number of selected eigenvalues, complex pairs counted as 2; 0 if sort is N
     alphar: out, [n]: real parts of the numerators: eigenvalue j is (alphar(j) + i alphai(j)) / beta(j)
     alphai: out, [n]: imaginary parts of the numerators; a complex pair stands together, the positive imaginary part
         first
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vsl: out, [ldvsl x n]: if jobvsl is V: the orthogonal Q of A = Q S Z^T, B = Q T Z^T; else not touched
     ldvsl: leading dimension of vsl, at least 1, and n if jobvsl is V
     vsr: out, [ldvsr x n]: if jobvsr is V: the orthogonal Z; else not touched
     ldvsr: leading dimension of vsr, at least 1, and n if jobvsr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvsl: left Schur vectors (N not computed; V computed)
     jobvsr: right Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     selctg: a host function (see Types): not 0 for an eigenvalue that is to come first; called only if sort is S
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the upper triangular S
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the upper triangular T
     ldb: leading dimension of b, at least max(1,n)
     sdim: out: number of selected eigenvalues; 0 if sort is N
     alpha: out, [n]: numerators: eigenvalue j is alpha(j) / beta(j)
     beta: out, [n]: denominators, real and not negative; 0 marks an infinite eigenvalue, and quotients may overflow
     vsl: out, [ldvsl x n]: if jobvsl is V: the unitary Q of A = Q S Z^H, B = Q T Z^H; else not touched
     ldvsl: leading dimension of vsl, at least 1, and n if jobvsl is V
     vsr: out, [ldvsr x n]: if jobvsr is V: the unitary Z; else not touched
     ldvsr: leading dimension of vsr, at least 1, and n if jobvsr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [8*n]: workspace
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvsl: left Schur vectors (N not computed; V computed)
     jobvsr: right Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     selctg: a host function (see Types): not 0 for an eigenvalue that is to come first; one of a complex pair takes
         both; called only if sort is S
     sense: condition numbers to compute; other than N only with sort S (N none; E of the average of the selected
         eigenvalues; V of the deflating subspaces of the selected eigenvalues; B of both)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the quasi-triangular S
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the upper triangular T
     ldb: leading dimension of b, at least max(1,n)
     sdim: out: number of selected eigenvalues, complex pairs counted as 2; 0 if sort is N
     alphar: out, [n]: real parts of the numerators: eigenvalue j is (alphar(j) + i alphai(j)) / beta(j)
     alphai: out, [n]: imaginary parts of the numerators; a complex pair stands together, the positive imaginary part
         first
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vsl: out, [ldvsl x n]: if jobvsl is V: the orthogonal Q of A = Q S Z^T, B = Q T Z^T; else not touched
     ldvsl: leading dimension of vsl, at least 1, and n if jobvsl is V
     vsr: out, [ldvsr x n]: if jobvsr is V: the orthogonal Z; else not touched
     ldvsr: leading dimension of vsr, at least 1, and n if jobvsr is V
     rconde: out, [2]: reciprocal condition numbers of the average of the selected eigenvalues (sense E, B)
     rcondv: out, [2]: reciprocal condition numbers of their deflating subspaces (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one; n*n/2 is enough for every sdim, and with less than the minimum
         info is -22 after the Schur form is computed
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvsl: left Schur vectors (N not computed; V computed)
     jobvsr: right Schur vectors (N not computed; V computed)
     sort: order of the eigenvalues in the Schur form (N as they come; S selected ones first)
     selctg: a host function (see Types): not 0 for an eigenvalue that is to come first; called only if sort is S
     sense: condition numbers to compute; other than N only with sort S (N none; E of the average of the selected
         eigenvalues; V of the deflating subspaces of the selected eigenvalues; B of both)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the upper triangular S
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the upper triangular T
     ldb: leading dimension of b, at least max(1,n)
     sdim: out: number of selected eigenvalues; 0 if sort is N
     alpha: out, [n]: numerators: eigenvalue j is alpha(j) / beta(j)
     beta: out, [n]: denominators, real and not negative; 0 marks an infinite eigenvalue, and quotients may overflow
     vsl: out, [ldvsl x n]: if jobvsl is V: the unitary Q of A = Q S Z^H, B = Q T Z^H; else not touched
     ldvsl: leading dimension of vsl, at least 1, and n if jobvsl is V
     vsr: out, [ldvsr x n]: if jobvsr is V: the unitary Z; else not touched
     ldvsr: leading dimension of vsr, at least 1, and n if jobvsr is V
     rconde: out, [2]: reciprocal condition numbers of the average of the selected eigenvalues (sense E, B)
     rcondv: out, [2]: reciprocal condition numbers of their deflating subspaces (sense V, B)
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one; n*n/2 is enough for every sdim, and with less than the minimum
         info is -21 after the Schur form is computed
     rwork: out, [8*n]: workspace
     iwork: out, [liwork]: workspace; on return its first element holds the least liwork
     liwork: length of iwork; -1 asks for the best sizes of all workspaces
     bwork: out, [n]: workspace; not touched if sort is N
     info: out: status */
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
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return destroyed
     ldb: leading dimension of b, at least max(1,n)
     alphar: out, [n]: real parts of the numerators: eigenvalue j is (alphar(j) + i alphai(j)) / beta(j)
     alphai: out, [n]: imaginary parts of the numerators; a complex pair stands together, the positive imaginary part
         first
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H B in the order of the eigenvalues, the
         largest |Re| + |Im| of each being 1; a complex pair has the real part in the first and the imaginary part in
         the second of two columns, for the eigenvalue with positive imaginary part
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors A v = lambda B v, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     info: out: status */
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
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return destroyed
     ldb: leading dimension of b, at least max(1,n)
     alpha: out, [n]: numerators: eigenvalue j is alpha(j) / beta(j)
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H B in the order of the eigenvalues, the
         largest |Re| + |Im| of each being 1
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors A v = lambda B v, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out, [8*n]: workspace
     info: out: status */
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
     balanc: balancing (N none; P permutation; S scaling; B permutation and scaling)
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     sense: condition numbers to compute (N none; E of eigenvalues; V of eigenvectors; B of both)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the first part of the Schur form of the balanced matrices if
         eigenvectors were computed, else destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the second part of that form, or destroyed
     ldb: leading dimension of b, at least max(1,n)
     alphar: out, [n]: real parts of the numerators: eigenvalue j is (alphar(j) + i alphai(j)) / beta(j)
     alphai: out, [n]: imaginary parts of the numerators; a complex pair stands together, the positive imaginary part
         first
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H B in the order of the eigenvalues, the
         largest |Re| + |Im| of each being 1; a complex pair has the real part in the first and the imaginary part in
         the second of two columns, for the eigenvalue with positive imaginary part
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors A v = lambda B v, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     ilo: out: rows and columns before ilo of the balanced matrices are triangular
     ihi: out: rows and columns behind ihi of the balanced matrices are triangular
     lscale: out, [n]: rows j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with lscale(j); those from ilo to ihi
         were scaled by lscale(j)
     rscale: out, [n]: columns j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with rscale(j); those from ilo to
         ihi were scaled by rscale(j)
     abnrm: out: 1-norm of the balanced A
     bbnrm: out: 1-norm of the balanced B
     rconde: out, [n]: reciprocal condition numbers of the eigenvalues (sense E, B)
     rcondv: out, [n]: estimated reciprocal condition numbers of the eigenvectors (sense V, B); 0 if the eigenvalues
         could not be reordered
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     iwork: out, [n+6]: workspace; not touched if sense is E
     bwork: out, [n]: workspace; not touched if sense is N
     info: out: status */
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
     balanc: balancing (N none; P permutation; S scaling; B permutation and scaling)
     jobvl: left eigenvectors (N not computed; V computed)
     jobvr: right eigenvectors (N not computed; V computed)
     sense: condition numbers to compute (N none; E of eigenvalues; V of eigenvectors; B of both)
     n: order of A and B, at least 0
     a: in, out, [lda x n]: on entry A; on return the first part of the Schur form of the balanced matrices if
         eigenvectors were computed, else destroyed
     lda: leading dimension of a, at least max(1,n)
     b: in, out, [ldb x n]: on entry B; on return the second part of that form, or destroyed
     ldb: leading dimension of b, at least max(1,n)
     alpha: out, [n]: numerators: eigenvalue j is alpha(j) / beta(j)
     beta: out, [n]: denominators; 0 marks an infinite eigenvalue, and quotients may overflow
     vl: out, [ldvl x n]: if jobvl is V: left eigenvectors u^H A = lambda u^H B in the order of the eigenvalues, the
         largest |Re| + |Im| of each being 1
     ldvl: leading dimension of vl, at least 1, and n if jobvl is V
     vr: out, [ldvr x n]: if jobvr is V: right eigenvectors A v = lambda B v, stored like the left ones
     ldvr: leading dimension of vr, at least 1, and n if jobvr is V
     ilo: out: rows and columns before ilo of the balanced matrices are triangular
     ihi: out: rows and columns behind ihi of the balanced matrices are triangular
     lscale: out, [n]: rows j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with lscale(j); those from ilo to ihi
         were scaled by lscale(j)
     rscale: out, [n]: columns j = n, ..., ihi+1, then 1, ..., ilo-1 were exchanged with rscale(j); those from ilo to
         ihi were scaled by rscale(j)
     abnrm: out: 1-norm of the balanced A
     bbnrm: out: 1-norm of the balanced B
     rconde: out, [n]: reciprocal condition numbers of the eigenvalues (sense E, B)
     rcondv: out, [n]: estimated reciprocal condition numbers of the eigenvectors (sense V, B); 0 if the eigenvalues
         could not be reordered
     work: out, [lwork]: workspace
     lwork: length of work; -1 asks for the best one
     rwork: out: workspace
     iwork: out, [n+2]: workspace; not touched if sense is E
     bwork: out, [n]: workspace; not touched if sense is N
     info: out: status */
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
