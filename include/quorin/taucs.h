/* TAUCS sparse matrices.
 *
 * Compressed-column matrices in the record taucs_ccs_matrix, and dense vectors as bare arrays, of doubles
 * (TAUCS_DOUBLE) or double complex numbers (TAUCS_DCOMPLEX). Every routine looks at the type in the matrix's flags or
 * in its argument flags; if both are named, complex counts. TAUCS_SINGLE and the other types are no type for a matrix:
 * routines that return a matrix then stop the process through the C runtime's assertion handler, and the others do
 * nothing.
 *
 * taucs_dccs_... and taucs_dvec_... are the routines for doubles, taucs_zccs_... and taucs_zvec_... those for double
 * complex numbers. For a matrix of another type they return null, or do nothing.
 *
 * Scalars are passed by value here and arrays by their address. A matrix that is returned belongs to the caller, who
 * gives it back with taucs_ccs_free; no routine frees its input. Vectors and permutations come from the library's
 * allocator, which is the C runtime's unless the host has put another one under the library, and are given back to
 * that: free, or i_free_dll.
 *
 * Null (a status of -1 where a routine has one) means out of memory, a wrong structure, or a file that cannot be read.
 * Which of them it was, a program that is being looked into can see: if the environment variable QUORIN_TAUCS_LOG names
 * a file, a line for each refusal is added to it, and for each step of taucs_linsolve. taucs_printf itself drops what
 * it gets.
 *
 * Permutations are zero-based: perm[i] is the old index that moves to position i, and invperm[perm[i]] = i.
 *
 * Generated from exports/tables/taucs.table. Do not edit. */
#ifndef QUORIN_TAUCS_H
#define QUORIN_TAUCS_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The compressed-column matrix of the TAUCS routines. Column j has the entries colptr[j], ..., colptr[j + 1] - 1 of
 * rowind (zero-based) and values, in any order; colptr[0] is 0. A symmetric or Hermitian matrix holds one triangle with
 * its diagonal, the lower one. */
typedef struct taucs_ccs_matrix {
  int32_t n; /* columns */
  int32_t m; /* rows */
  int32_t flags; /* TAUCS_DOUBLE, TAUCS_LOWER, ..., added up */
  int32_t* colptr; /* where columns begin */
  int32_t* rowind; /* rows */
  union {
    void* v; /* the entries, whatever their type */
    double* d; /* the entries of a TAUCS_DOUBLE matrix */
    quorin_double_complex* z; /* the entries of a TAUCS_DCOMPLEX matrix */
  } values;
} taucs_ccs_matrix;

/* Solves M x = b for one right-hand side, with what belongs to M at factor; 0, or anything else to end the iteration.
 * The routines that solve with a factor, taucs_supernodal_solve_llt and its like, are such functions. */
typedef int32_t(QUORIN_CDECL* quorin_preconditioner)(void* factor, void* x, const void* b);

/* The bits of flags. A matrix has elements of TAUCS_DOUBLE or TAUCS_DCOMPLEX only. */
enum {
  TAUCS_LOWER = 1, /* only the lower triangle is stored */
  TAUCS_UPPER = 2, /* only the upper triangle is stored */
  TAUCS_TRIANGULAR = 4, /* the matrix is triangular */
  TAUCS_SYMMETRIC = 8, /* symmetric, stored as one triangle */
  TAUCS_HERMITIAN = 16, /* Hermitian, stored as one triangle */
  TAUCS_PATTERN = 32, /* only the pattern has a meaning */
  TAUCS_INT = 1024, /* elements are integers */
  TAUCS_DOUBLE = 2048, /* elements are doubles */
  TAUCS_SINGLE = 4096, /* elements are floats */
  TAUCS_DCOMPLEX = 8192, /* elements are double complex */
  TAUCS_SCOMPLEX = 16384 /* elements are single complex */
};

/* How a solution ended. */
enum quorin_taucs_status {
  TAUCS_SUCCESS = 0, /* done */
  TAUCS_ERROR = -1, /* a factorization, a solution or a preconditioner failed */
  TAUCS_ERROR_NOMEM = -2, /* no memory */
  TAUCS_ERROR_BADARGS = -3, /* an argument, or options, that cannot be */
  TAUCS_ITERATION_LIMIT = 1, /* the limit was reached; X is the last iterate */
  TAUCS_BREAKDOWN = 2, /* a matrix or preconditioner is not positive definite that should be, or singular; X is the last
      iterate */
  TAUCS_NOT_FINITE = 3 /* a NaN or an infinity; X is nothing */
};

/* ---- Matrices ---- */

/* A new m-by-n matrix with room for nnz entries, whose arrays are not cleared, and with these flags.
     m: rows
     n: columns of a matrix, elements of a vector
     nnz: entries that there is room for
     flags: the type of the elements, and for a matrix what is stored */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_create(int32_t m, int32_t n, int32_t nnz, int32_t flags);

/* Frees a matrix and its arrays; null does nothing.
     A: may be null: a matrix */
QUORIN_API void QUORIN_CDECL taucs_ccs_free(taucs_ccs_matrix* A);

/* A^T, rows ascending in each column. A stored triangle becomes the other one, with TAUCS_LOWER and TAUCS_UPPER
   exchanged; nothing is conjugated. A record whose n and m are exchanged (as taucs_ccs_read_ijv leaves them) gets as
   many columns as its rows need; null for an entry outside of both.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_transpose(const taucs_ccs_matrix* A);

/* P A P^T for a symmetric or Hermitian matrix; entry (i, j) goes to (invperm[i], invperm[j]). Null if an entry lies
   outside of the n-by-n matrix, or a number of invperm does not lie from 0 to n-1.
     A: the matrix, its lower triangle stored; so is that of the result
     perm: [A.n]: a permutation of n elements
     invperm: [A.n]: its inverse, n elements */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_permute_symmetrically(const taucs_ccs_matrix* A,
                                                                          const int32_t* perm, const int32_t* invperm);

/* Row i becomes row perm[i]. Matrices of doubles only; others stay as they are, and so does one with an entry outside
   of its m rows, or with one that would get there.
     A: a matrix
     perm: [A.m]: the new place of each row */
QUORIN_API void QUORIN_CDECL taucs_ccs_permute_rows_inplace(taucs_ccs_matrix* A, const int32_t* perm);

/* Cuts a lower-stored matrix behind its first p columns: L, n-by-p, takes these as they are, as a general matrix
   flagged TAUCS_LOWER; R, of order n-p and with A's flags, takes the other columns, renumbered from zero. Both are null
   if there is no memory, for a wrong p, or if an entry lies above the diagonal.
     A: a matrix of which the lower triangle is stored
     L: out: the first columns; null if there is none
     R: out: the other columns; null if there is none
     p: number of columns of L, from 0 to n */
QUORIN_API void QUORIN_CDECL taucs_ccs_split(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R,
                                             int32_t p);

/* b <- A x; symmetric and Hermitian matrices act as the full matrix. Products, unlike the other routines, take the
   indices of A on trust.
     A: a matrix
     x: n elements
     b: the product, max(m, n) elements: the first n are set, and beyond them those in whose rows A has entries */
QUORIN_API void QUORIN_CDECL taucs_ccs_times_vec(const taucs_ccs_matrix* A, const void* x, void* b);

/* B <- A X, as taucs_ccs_times_vec for each of the columns, which are n elements apart; for m <= n.
     A: a matrix
     count: number of vectors
     X: the vectors, n x count elements
     B: the products, n x count elements */
QUORIN_API void QUORIN_CDECL taucs_ccs_times_vec_many(const taucs_ccs_matrix* A, int32_t count, const void* X, void* B);

/* For a symmetric or Hermitian lower-stored A = D + N + P (diagonal, off-diagonal entries of non-positive and of
   positive real part) the matrix M = [D+N, -P; -P, D+N] of order 2n, which has no positive off-diagonal entry: M [x;
   -x] = [A x; -A x]. Null for another structure.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_augment_nonpositive_offdiagonals(const taucs_ccs_matrix* A);

/* ---- Vectors ---- */

/* A new vector of n elements, not cleared.
     n: columns of a matrix, elements of a vector
     flags: the type of the elements, and for a matrix what is stored */
QUORIN_API void* QUORIN_CDECL taucs_vec_create(int32_t n, int32_t flags);

/* r <- a x + b y; a and b are real for complex vectors, too.
     n: columns of a matrix, elements of a vector
     flags: the type of the elements, and for a matrix what is stored
     a: factor of x
     x: a vector of n elements
     b: factor of y
     y: a vector of n elements
     r: the sum, n elements; may be x or y */
QUORIN_API void QUORIN_CDECL taucs_vec_axpby(int32_t n, int32_t flags, double a, const void* x, double b, const void* y,
                                             void* r);

/* pv[i] <- v[p[i]]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     flags: the type of the elements, and for a matrix what is stored
     v: a vector of n elements
     pv: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_vec_permute(int32_t n, int32_t flags, const void* v, void* pv, const int32_t* p);

/* pv[p[i]] <- v[i]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     flags: the type of the elements, and for a matrix what is stored
     v: a vector of n elements
     pv: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_vec_ipermute(int32_t n, int32_t flags, const void* v, void* pv, const int32_t* p);

/* The Euclidean norm, without overflow or underflow on the way.
     n: columns of a matrix, elements of a vector
     flags: the type of the elements, and for a matrix what is stored
     v: a vector of n elements */
QUORIN_API double QUORIN_CDECL taucs_vec_norm2(int32_t n, int32_t flags, const void* v);

/* ---- Matrices and vectors of one type ---- */

/* A new m-by-n matrix of doubles with room for nnz entries, whose arrays are not cleared; its flags are TAUCS_DOUBLE
   alone. Null without memory.
     m: rows
     n: columns of a matrix, elements of a vector
     nnz: entries that there is room for */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_dccs_create(int32_t m, int32_t n, int32_t nnz);

/* As taucs_ccs_free, for matrices of either type.
     A: may be null: a matrix */
QUORIN_API void QUORIN_CDECL taucs_dccs_free(taucs_ccs_matrix* A);

/* A^T, rows ascending in each column. A stored triangle becomes the other one, with TAUCS_LOWER and TAUCS_UPPER
   exchanged; nothing is conjugated. A record whose n and m are exchanged (as taucs_ccs_read_ijv leaves them) gets as
   many columns as its rows need; null for an entry outside of both.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_dccs_transpose(const taucs_ccs_matrix* A);

/* P A P^T for a symmetric or Hermitian matrix; entry (i, j) goes to (invperm[i], invperm[j]). Null if an entry lies
   outside of the n-by-n matrix, or a number of invperm does not lie from 0 to n-1.
     A: the matrix, its lower triangle stored; so is that of the result
     perm: [A.n]: a permutation of n elements
     invperm: [A.n]: its inverse, n elements */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_dccs_permute_symmetrically(const taucs_ccs_matrix* A,
                                                                           const int32_t* perm, const int32_t* invperm);

/* Cuts a lower-stored matrix behind its first p columns: L, n-by-p, takes these as they are, as a general matrix
   flagged TAUCS_LOWER; R, of order n-p and with A's flags, takes the other columns, renumbered from zero. Both are null
   if there is no memory, for a wrong p, or if an entry lies above the diagonal.
     A: a matrix of which the lower triangle is stored
     L: out: the first columns; null if there is none
     R: out: the other columns; null if there is none
     p: number of columns of L, from 0 to n */
QUORIN_API void QUORIN_CDECL taucs_dccs_split(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R,
                                              int32_t p);

/* b <- A x; symmetric and Hermitian matrices act as the full matrix. Products, unlike the other routines, take the
   indices of A on trust.
     A: a matrix
     x: [A.n]: n elements
     b: out, [max(A.m,A.n)]: the product, max(m, n) elements: the first n are set, and beyond them those in whose rows A
         has entries */
QUORIN_API void QUORIN_CDECL taucs_dccs_times_vec(const taucs_ccs_matrix* A, const double* x, double* b);

/* B <- A X, as taucs_ccs_times_vec for each of the columns, which are n elements apart; for m <= n.
     A: a matrix
     count: number of vectors
     X: [A.n x count]: the vectors, n x count elements
     B: out, [A.n x count]: the products, n x count elements */
QUORIN_API void QUORIN_CDECL taucs_dccs_times_vec_many(const taucs_ccs_matrix* A, int32_t count, const double* X,
                                                       double* B);

/* For a symmetric or Hermitian lower-stored A = D + N + P (diagonal, off-diagonal entries of non-positive and of
   positive real part) the matrix M = [D+N, -P; -P, D+N] of order 2n, which has no positive off-diagonal entry: M [x;
   -x] = [A x; -A x]. Null for another structure.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_dccs_augment_nonpositive_offdiagonals(const taucs_ccs_matrix* A);

/* A new vector of n doubles, not cleared; null without memory.
     n: columns of a matrix, elements of a vector */
QUORIN_API double* QUORIN_CDECL taucs_dvec_create(int32_t n);

/* r <- a x + b y; a and b are real for complex vectors, too.
     n: columns of a matrix, elements of a vector
     a: factor of x
     x: [n]: a vector of n elements
     b: factor of y
     y: [n]: a vector of n elements
     r: out, [n]: the sum, n elements; may be x or y */
QUORIN_API void QUORIN_CDECL taucs_dvec_axpby(int32_t n, double a, const double* x, double b, const double* y,
                                              double* r);

/* pv[i] <- v[p[i]]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     v: [n]: a vector of n elements
     pv: out, [n]: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_dvec_permute(int32_t n, const double* v, double* pv, const int32_t* p);

/* pv[p[i]] <- v[i]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     v: [n]: a vector of n elements
     pv: out, [n]: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_dvec_ipermute(int32_t n, const double* v, double* pv, const int32_t* p);

/* As taucs_dccs_create, for double complex numbers and TAUCS_DCOMPLEX.
     m: rows
     n: columns of a matrix, elements of a vector
     nnz: entries that there is room for */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_zccs_create(int32_t m, int32_t n, int32_t nnz);

/* A^T, rows ascending in each column. A stored triangle becomes the other one, with TAUCS_LOWER and TAUCS_UPPER
   exchanged; nothing is conjugated. A record whose n and m are exchanged (as taucs_ccs_read_ijv leaves them) gets as
   many columns as its rows need; null for an entry outside of both.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_zccs_transpose(const taucs_ccs_matrix* A);

/* P A P^T for a symmetric or Hermitian matrix; entry (i, j) goes to (invperm[i], invperm[j]). Null if an entry lies
   outside of the n-by-n matrix, or a number of invperm does not lie from 0 to n-1.
     A: the matrix, its lower triangle stored; so is that of the result
     perm: [A.n]: a permutation of n elements
     invperm: [A.n]: its inverse, n elements */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_zccs_permute_symmetrically(const taucs_ccs_matrix* A,
                                                                           const int32_t* perm, const int32_t* invperm);

/* Cuts a lower-stored matrix behind its first p columns: L, n-by-p, takes these as they are, as a general matrix
   flagged TAUCS_LOWER; R, of order n-p and with A's flags, takes the other columns, renumbered from zero. Both are null
   if there is no memory, for a wrong p, or if an entry lies above the diagonal.
     A: a matrix of which the lower triangle is stored
     L: out: the first columns; null if there is none
     R: out: the other columns; null if there is none
     p: number of columns of L, from 0 to n */
QUORIN_API void QUORIN_CDECL taucs_zccs_split(const taucs_ccs_matrix* A, taucs_ccs_matrix** L, taucs_ccs_matrix** R,
                                              int32_t p);

/* b <- A x; symmetric and Hermitian matrices act as the full matrix. Products, unlike the other routines, take the
   indices of A on trust.
     A: a matrix
     x: [A.n]: n elements
     b: out, [max(A.m,A.n)]: the product, max(m, n) elements: the first n are set, and beyond them those in whose rows A
         has entries */
QUORIN_API void QUORIN_CDECL taucs_zccs_times_vec(const taucs_ccs_matrix* A, const quorin_double_complex* x,
                                                  quorin_double_complex* b);

/* B <- A X, as taucs_ccs_times_vec for each of the columns, which are n elements apart; for m <= n.
     A: a matrix
     count: number of vectors
     X: [A.n x count]: the vectors, n x count elements
     B: out, [A.n x count]: the products, n x count elements */
QUORIN_API void QUORIN_CDECL taucs_zccs_times_vec_many(const taucs_ccs_matrix* A, int32_t count,
                                                       const quorin_double_complex* X, quorin_double_complex* B);

/* For a symmetric or Hermitian lower-stored A = D + N + P (diagonal, off-diagonal entries of non-positive and of
   positive real part) the matrix M = [D+N, -P; -P, D+N] of order 2n, which has no positive off-diagonal entry: M [x;
   -x] = [A x; -A x]. Null for another structure.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_zccs_augment_nonpositive_offdiagonals(const taucs_ccs_matrix* A);

/* A new vector of n double complex numbers, not cleared; null without memory.
     n: columns of a matrix, elements of a vector */
QUORIN_API quorin_double_complex* QUORIN_CDECL taucs_zvec_create(int32_t n);

/* r <- a x + b y; a and b are real for complex vectors, too.
     n: columns of a matrix, elements of a vector
     a: factor of x
     x: [n]: a vector of n elements
     b: factor of y
     y: [n]: a vector of n elements
     r: out, [n]: the sum, n elements; may be x or y */
QUORIN_API void QUORIN_CDECL taucs_zvec_axpby(int32_t n, double a, const quorin_double_complex* x, double b,
                                              const quorin_double_complex* y, quorin_double_complex* r);

/* pv[i] <- v[p[i]]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     v: [n]: a vector of n elements
     pv: out, [n]: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_zvec_permute(int32_t n, const quorin_double_complex* v, quorin_double_complex* pv,
                                                const int32_t* p);

/* pv[p[i]] <- v[i]. Nothing is done if a number of p does not lie from 0 to n-1.
     n: columns of a matrix, elements of a vector
     v: [n]: a vector of n elements
     pv: out, [n]: v permuted, n elements, another array than v
     p: [n]: a permutation */
QUORIN_API void QUORIN_CDECL taucs_zvec_ipermute(int32_t n, const quorin_double_complex* v, quorin_double_complex* pv,
                                                 const int32_t* p);

/* ---- Time, memory, text ---- */

/* Keeps the name of a log file, which nothing is ever written to; stderr, stdout and none change nothing. To be called
   before any concurrent use.
     name: the name, ended by a zero, of which 511 characters are kept */
QUORIN_API void QUORIN_CDECL taucs_logfile(const char* name);

/* Seconds since midnight, universal time, so that an interval across midnight is negative. */
QUORIN_API double QUORIN_CDECL taucs_wtime(void);

/* Always 0: processor time is not measured. */
QUORIN_API double QUORIN_CDECL taucs_ctime(void);

/* Bytes of physical memory; on 32-bit Windows never 4 GiB or more. */
QUORIN_API double QUORIN_CDECL taucs_system_memory_size(void);

/* Bytes that a computation may plan to use: the largest block that the allocator grants (found to one part in 64, and
   given back at once), but not more than the physical memory that is free. */
QUORIN_API double QUORIN_CDECL taucs_available_memory_size(void);

/* Not supported. */
QUORIN_API int32_t QUORIN_CDECL taucs_maximize_stacksize(void);

/* ---- Orderings ---- */

/* A permutation that keeps factors sparse, and its inverse, in new arrays of n. Both are null for another name (amd,
   amdbar and md among them), for a matrix of another structure or with an index outside of it, and without memory; but
   colamd stops the process if there is none for the two arrays.
     A: a matrix
     perm: out: the permutation
     invperm: out: its inverse, n elements
     name: the method, ended by a zero, exactly (metis, genmmd, camd, tree, colamd, random, identity) */
QUORIN_API void QUORIN_CDECL taucs_ccs_order(const taucs_ccs_matrix* A, int32_t** perm, int32_t** invperm,
                                             const char* name);

/* ---- The driver ---- */

/* Orders, factors and solves, as the options say: each is a text 'key=value', or 'key=#k' for what stands at
   opt_arg[k]. With all defaults nothing is solved: taucs.factor.LLT, taucs.factor.LU, taucs.solve.cg or
   taucs.solve.minres has to be true. A text that sets nothing is reported and ignored; the last one for a key counts.
   With A null and nrhs 0, *F is released and becomes null.
     A: may be null: the matrix; for all but LU symmetric of doubles or Hermitian (with taucs.factor.indefinite also
         complex symmetric), its lower triangle stored
     F: in, out, may be null: the factor object. Null in *F at first; a call that factors leaves a new one there, and
         releases the one that was; one with taucs.factor=false solves with what is there; one with taucs.factor.mf and
         taucs.factor.symbolic=false puts new numbers of the same pattern into it. It points to n, flags, kind (0 none,
         1 LLT, 4 out of core, 6 LDLT, 8 LU: 32-bit integers), perm, invperm and the factor (addresses). Null: the
         factor is released at the end
     nrhs: number of right-hand sides; 0: factor only
     X: may be null: the solutions, n x nrhs
     B: may be null: the right-hand sides, n x nrhs
     options: may be null: texts, ended by a null. The defaults are in parentheses (taucs.factor, taucs.factor.LLT,
         taucs.factor.LU, taucs.factor.indefinite, taucs.factor.mf, taucs.factor.ll, taucs.factor.symbolic,
         taucs.factor.numeric, taucs.factor.ordering, taucs.maxdepth, taucs.ooc, taucs.ooc.basename, taucs.ooc.iohandle,
         taucs.ooc.memory, taucs.solve.cg, taucs.solve.minres, taucs.solve.maxits, taucs.solve.convergetol,
         taucs.approximate.amwb, taucs.approximate.amwb.randomseed, taucs.approximate.amwb.subgraphs,
         taucs.approximate.sg, taucs.cilk.context, taucs.cilk.nproc)
     opt_arg: may be null: what '#k' counts in, ended by a null: addresses of doubles, of ints for true and false, of
         addresses, and texts themselves */
QUORIN_API int32_t QUORIN_CDECL taucs_linsolve(const taucs_ccs_matrix* A, void** F, int32_t nrhs, void* X,
                                               const void* B, char* const* options, void* const* opt_arg);

/* ---- Factors as matrices ---- */

/* The lower triangular L with L L^H = A, for a positive definite A, symmetric or Hermitian, of which the lower triangle
   is stored; in the order in which A is, computed by columns. With droptol > 0 the factor is incomplete: an entry of L
   at a place below the diagonal where A has none is dropped if it is smaller than droptol times the norm of its column;
   an infinite droptol leaves A's pattern, IC(0).
     A: a matrix
     droptol: 0 for the complete factor
     modified: not 0: what is dropped is added to the diagonal of its row and column, so that row sums stay */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_factor_llt(const taucs_ccs_matrix* A, double droptol,
                                                               int32_t modified);

/* As taucs_ccs_factor_llt, if A's elimination tree is not too deep.
     A: a matrix
     droptol: 0 for the complete factor
     modified: not 0: what is dropped is added to the diagonal of its row and column, so that row sums stay
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_factor_llt_maxdepth(const taucs_ccs_matrix* A, double droptol,
                                                                        int32_t modified, int32_t maxdepth);

/* L and D with L D L^H = A, D diagonal and L with a unit diagonal, in whose place D stands; without pivoting, for
   instance for quasidefinite matrices. A is symmetric or, if complex, Hermitian.
     A: a matrix */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_factor_ldlt(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_ldlt, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_factor_ldlt_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* x <- (L L^H)^-1 b with what taucs_ccs_factor_llt gave; x may be b.
     L: a lower triangular matrix, the diagonal entry first in each column; row indices are not checked
     x: the solution, n elements
     b: the right-hand side, n elements */
QUORIN_API int32_t QUORIN_CDECL taucs_ccs_solve_llt(void* L, void* x, const void* b);

/* x <- (L D L^H)^-1 b with what taucs_ccs_factor_ldlt gave; x may be b.
     L: a lower triangular matrix, the diagonal entry first in each column; row indices are not checked
     x: the solution, n elements
     b: the right-hand side, n elements */
QUORIN_API int32_t QUORIN_CDECL taucs_ccs_solve_ldlt(void* L, void* x, const void* b);

/* ---- Factors in panels ---- */

/* L L^H = A for a positive definite A, symmetric of doubles or Hermitian, of which the lower triangle is stored:
   left-looking, by panels of columns with the same rows, with threads. In the order in which A is: permute it first.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_ll(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_llt_ll, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_ll_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The same factor by the multifrontal method, which takes more memory on its way.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_mf(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_llt_mf, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_mf_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The analysis of A's pattern alone: a factor that taucs_ccs_factor_llt_numeric puts numbers into.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_symbolic(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_llt_symbolic, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_llt_symbolic_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The numbers of the factor of a matrix with the pattern that was analysed, or a part of it, by the multifrontal
   method. Those that L had are replaced; after a failure it has none.
     A: a matrix
     L: what taucs_ccs_factor_llt_symbolic gave, or any other factor of the kind */
QUORIN_API int32_t QUORIN_CDECL taucs_ccs_factor_llt_numeric(const taucs_ccs_matrix* A, void* L);

/* L D L^T = A for a symmetric A, real or complex, or L D L^H for a Hermitian one, of which the lower triangle is
   stored, with pivots of order 1 and 2 that are sought inside a panel; left-looking. Rows whose diagonal entries are
   too small are paired by a matching first. Where a pivot is zero all the same, those below 1e-8 times the norm of A
   are replaced by that, and solutions want refinement, as taucs_linsolve does it.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_ll(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_ldlt_ll, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_ll_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The same factor by the multifrontal method, which takes more memory on its way.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_mf(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_ldlt_mf, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_mf_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The analysis of A alone: a factor that taucs_ccs_factor_ldlt_numeric puts numbers into. Which rows are paired is told
   by the values that A has now.
     A: a matrix */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_symbolic(const taucs_ccs_matrix* A);

/* As taucs_ccs_factor_ldlt_symbolic, if A's elimination tree is not too deep.
     A: a matrix
     maxdepth: the most levels that the elimination tree may have; 0: any number */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_ldlt_symbolic_maxdepth(const taucs_ccs_matrix* A, int32_t maxdepth);

/* The numbers of the factor of a matrix with the pattern that was analysed, or a part of it, by the multifrontal
   method. Those that L had are replaced; after a failure it has none.
     A: a matrix
     L: what taucs_ccs_factor_ldlt_symbolic gave, or any other factor of the kind */
QUORIN_API int32_t QUORIN_CDECL taucs_ccs_factor_ldlt_numeric(const taucs_ccs_matrix* A, void* L);

/* x <- A^-1 b with L L^H; x may be b.
     L: a factor with numbers
     x: the solution, n elements
     b: the right-hand side, n elements */
QUORIN_API int32_t QUORIN_CDECL taucs_supernodal_solve_llt(void* L, void* x, const void* b);

/* X <- A^-1 B with L D L^T or L D L^H. X may be B if ld_X is ld_B.
     L: a factor with numbers
     n: number of right-hand sides
     X: the solutions, ld_X x n
     ld_X: elements from one column of X to the next, at least the order of A
     B: the right-hand sides, ld_B x n
     ld_B: elements from one column of B to the next, at least the order of A */
QUORIN_API int32_t QUORIN_CDECL taucs_supernodal_solve_ldlt_many(void* L, int32_t n, void* X, int32_t ld_X,
                                                                 const void* B, int32_t ld_B);

/* x <- A^-1 b with an out-of-core factor, L L^H or L D L^T, in the order of its own: that of perm in the factor object
   of taucs_linsolve, which makes it. x may be b.
     L: the factor in a factor object of kind 4
     x: the solution, n elements, permuted
     b: the right-hand side, n elements, permuted */
QUORIN_API int32_t QUORIN_CDECL taucs_ooc_solve_llt(void* L, void* x, const void* b);

/* How many pivots of L D L^T or L D L^H are zero, positive and negative; by Sylvester's law as many eigenvalues of A
   are.
     L: a factor with numbers, out of core too, not of a complex symmetric matrix
     inertia: out, [3]: zero, positive, negative */
QUORIN_API int32_t QUORIN_CDECL taucs_inertia_calc(void* L, int32_t* inertia);

/* Frees the numbers of a factor; its analysis stays, for other numbers. Null, and what is no factor any more, are left
   alone.
     L: may be null: a factor */
QUORIN_API void QUORIN_CDECL taucs_supernodal_factor_free_numeric(void* L);

/* Frees a factor. Null, and what is no factor any more, are left alone.
     L: may be null: a factor */
QUORIN_API void QUORIN_CDECL taucs_supernodal_factor_free(void* L);

/* ---- LU factors ---- */

/* LU factors of a square matrix, real or complex, by UMFPACK, with the columns in the order perm and exchanges of rows;
   a symmetric or Hermitian matrix stands for the full one.
     A: a matrix
     perm: [A.n]: the order of the columns, as taucs_ccs_order gives it for colamd
     threshold: an entry may be the pivot if it is as large as this times the largest of its column (rows are scaled); 1
         is partial pivoting */
QUORIN_API void* QUORIN_CDECL taucs_ccs_factor_lu(const taucs_ccs_matrix* A, const int32_t* perm, double threshold);

/* X <- A^-1 B with LU factors. X may be B if ldX is ldB.
     factor: a factor
     nrhs: number of right-hand sides
     X: the solutions, ldX x nrhs
     ldX: elements from one column of X to the next, at least n
     B: the right-hand sides, ldB x nrhs
     ldB: elements from one column of B to the next, at least n */
QUORIN_API int32_t QUORIN_CDECL taucs_multilu_solve_many(void* factor, int32_t nrhs, void* X, int32_t ldX,
                                                         const void* B, int32_t ldB);

/* Frees LU factors; null, and what is no factor any more, are left alone.
     factor: may be null: a factor */
QUORIN_API void QUORIN_CDECL taucs_multilu_factor_free(void* factor);

/* ---- Iterations ---- */

/* Solves A X = B for one right-hand side by preconditioned conjugate gradients, from X = 0, until ||B - A X|| <=
   convergetol ||B||. A is positive definite, symmetric or Hermitian, its lower triangle stored.
     A: a matrix
     precond_fn: may be null: solves with a preconditioner; null for none
     precond_args: may be null: what precond_fn gets as its factor
     X: the solution, n elements; not B
     B: the right-hand side, n elements
     itermax: the most steps
     convergetol: how small the residual has to become, relative to the right-hand side */
QUORIN_API int32_t QUORIN_CDECL taucs_conjugate_gradients(const taucs_ccs_matrix* A, quorin_preconditioner precond_fn,
                                                          void* precond_args, void* X, const void* B, int32_t itermax,
                                                          double convergetol);

/* Solves A X = B for one right-hand side by preconditioned MINRES, from X = 0, until ||B - A X|| <= convergetol ||B||.
   A is symmetric or Hermitian, its lower triangle stored, and may be indefinite; the preconditioner is positive
   definite.
     A: a matrix
     precond_fn: may be null: solves with a preconditioner; null for none
     precond_args: may be null: what precond_fn gets as its factor
     X: the solution, n elements; not B
     B: the right-hand side, n elements
     itermax: the most steps
     convergetol: how small the residual has to become, relative to the right-hand side */
QUORIN_API int32_t QUORIN_CDECL taucs_minres(const taucs_ccs_matrix* A, quorin_preconditioner precond_fn,
                                             void* precond_args, void* X, const void* B, int32_t itermax,
                                             double convergetol);

/* A sparser positive definite M that preconditions conjugate gradients on a real symmetric A: an augmented
   maximum-weight basis. To be factored by taucs_ccs_factor_llt_mf, in an order of its own. For diagonally dominant
   matrices; of others the positive off-diagonal entries go to the diagonal, and what then still lacks is added.
     A: a matrix of doubles, its lower triangle stored, with a positive diagonal
     rnd: chooses the vertex near which, of equal weights, edges are taken first
     subgraphs: pieces of about equal size, between which the heaviest edges are added: 1 for the basis alone, n for all
         of A; n / 10 is good on grids
     stretch_flag: 0; anything else gives null */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_amwb_preconditioner_create(const taucs_ccs_matrix* A, int32_t rnd,
                                                                           double subgraphs, int32_t stretch_flag);

/* ---- Files ---- */

/* Reads lines 'row column value' (complex: 'row column real imaginary'), one-based, until no further entry stands.
   Entries are not merged. In the result n is the largest row and m the largest column that was kept, the other way
   round than elsewhere; colptr goes on to the larger of the two. Null if that is larger than 1,000,000 and 64 times the
   number of entries, too: it must be a slip.
     filename: name of a file, ended by a zero
     flags: the type and, for a symmetric matrix, TAUCS_SYMMETRIC or TAUCS_HERMITIAN: then entries above the diagonal
         are dropped */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_ijv(const char* filename, int32_t flags);

/* As taucs_ccs_read_ijv, with zero-based indices.
     filename: name of a file, ended by a zero
     flags: the type and, for a symmetric matrix, TAUCS_SYMMETRIC or TAUCS_HERMITIAN: then entries above the diagonal
         are dropped */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_ijv_zero_based(const char* filename, int32_t flags);

/* Reads three integers (rows, columns, entries; not used), then entries as taucs_ccs_read_ijv does; there is no banner
   and no comment. Entries off the diagonal become -1, whatever the file says. With TAUCS_SYMMETRIC, entries above the
   diagonal move below it.
     filename: name of a file, ended by a zero
     flags: the type of the elements, and for a matrix what is stored */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_mtx(const char* filename, int32_t flags);

/* Reads a square matrix, zero-based: n, n+1 column pointers, row indices, values. With TAUCS_SYMMETRIC, a row above the
   diagonal stops the process.
     filename: name of a file, ended by a zero
     flags: the type of the elements, and for a matrix what is stored */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_ccs(const char* filename, int32_t flags);

/* Reads m, n, flags, colptr, rowind, values as they stand in memory, integers of 32 bits, lowest byte first.
     filename: name of a file, ended by a zero */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_binary(const char* filename);

/* Reads a Harwell-Boeing file of an assembled matrix, in any Fortran formats of I, F, E, D and G with groups, scales
   and positions; Rutherford-Boeing files of the same types, too. The entries of a pattern become 1. A real matrix is
   always double; to read a complex one without asking for TAUCS_DCOMPLEX stops the process.
     filename: name of a file, ended by a zero
     flags: the type of the elements, and for a matrix what is stored */
QUORIN_API taucs_ccs_matrix* QUORIN_CDECL taucs_ccs_read_hb(const char* filename, int32_t flags);

/* Writes lines 'row column value', one-based, with 18 significant digits. In a symmetric matrix each entry off the
   diagonal is followed by its mirror image; a Hermitian one is written as it is stored.
     A: a matrix
     filename: name of a file, ended by a zero */
QUORIN_API int32_t QUORIN_CDECL taucs_ccs_write_ijv(const taucs_ccs_matrix* A, const char* filename);

/* Reads n elements as they stand in memory into a new vector.
     n: columns of a matrix, elements of a vector
     flags: the type; TAUCS_SINGLE and TAUCS_SCOMPLEX are types here, too
     filename: name of a file, ended by a zero */
QUORIN_API void* QUORIN_CDECL taucs_vec_read_binary(int32_t n, int32_t flags, const char* filename);

/* Writes over the first n elements of a file, which is made if there is none; the rest of a longer one stays.
     n: columns of a matrix, elements of a vector
     flags: the type; TAUCS_SINGLE and TAUCS_SCOMPLEX are types here, too
     v: a vector of n elements
     filename: name of a file, ended by a zero */
QUORIN_API int32_t QUORIN_CDECL taucs_vec_write_binary(int32_t n, int32_t flags, const void* v, const char* filename);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
