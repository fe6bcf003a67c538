/* The sparse direct solver PARDISO.
 *
 * Solves A X = B for a sparse A by factorization: A in compressed rows, real or complex, single or double precision;
 * nine kinds of matrices by mtype, from positive definite to unsymmetric. All work is done by calls of one routine, in
 * phases: analysis of the pattern, factorization, solution, release. pt holds all between them: 64 words of zeros
 * before the first call, which no host changes. Its 16 arguments are addresses; those that a phase does not read may be
 * null.
 *
 * A phase of two digits runs the stages from the first to the second: 11 analyses, 22 factorizes, 33 solves, 13 does
 * all. One analysis serves any number of factorizations of matrices with the same pattern, of which maxfct may live at
 * a time; each serves any number of solutions. Phase 0 frees the factors of mnum, phase -1 everything. What does not
 * agree with earlier phases gets -1 and changes nothing.
 *
 * Index forms: sPARDISO_32f_Idx for single precision, _32fc single complex, _64f double, _64fc double complex; they
 * differ in the bytes by which an index moves a, b and x, and mtype and iparm(28) alone tell the type. Any number of
 * handles may work at once on several threads, a handle on one. Threads: those of domain 4
 * (sMKL_Domain_Set_Num_Threads). Results are the same bits on any number of threads.
 *
 * Generated from exports/tables/pardiso.table. Do not edit. */
#ifndef QUORIN_PARDISO_H
#define QUORIN_PARDISO_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Sizes. */
enum {
  QUORIN_PARDISO_HANDLE_WORDS = 64, /* words of pt, each as large as a pointer */
  QUORIN_PARDISO_PARAMETERS = 64 /* entries of iparm */
};

/* How a call ended. */
enum quorin_pardiso_error {
  QUORIN_PARDISO_DONE = 0, /* done */
  QUORIN_PARDISO_INCONSISTENT = -1, /* an argument is wrong, or does not agree with an earlier phase, which may be
      missing; nothing was changed */
  QUORIN_PARDISO_NO_MEMORY = -2, /* not enough memory */
  QUORIN_PARDISO_REORDERING_FAILED = -3, /* the ordering failed */
  QUORIN_PARDISO_NUMERIC_FAILED = -4, /* a pivot is not positive (mtype 2, 4: iparm(30)), A is zero, a value is not
      finite, or refinement or iteration does not converge */
  QUORIN_PARDISO_INTERNAL = -5, /* an internal error */
  QUORIN_PARDISO_MATCHING_FAILED = -6, /* structurally singular (mtype 11, 13 with iparm(13) = 1) */
  QUORIN_PARDISO_DIAGONAL_SINGULAR = -7, /* A is diagonal with a zero on the diagonal */
  QUORIN_PARDISO_TOO_LARGE = -8, /* a count of entries exceeds 32 bits */
  QUORIN_PARDISO_CORE_TOO_SMALL = -9, /* out of core: not enough memory in MKL_PARDISO_OOC_MAX_CORE_SIZE */
  QUORIN_PARDISO_CANNOT_OPEN = -10, /* a file cannot be opened; of delete: there is none, or it cannot be deleted */
  QUORIN_PARDISO_FILE_FAILED = -11, /* a file cannot be read or written */
  QUORIN_PARDISO_WRONG_FILE = -13 /* the file is none of this library's, of another version, or damaged; of store: pt
      holds nothing */
};

/* Values of mtype: the kind of matrix; of symmetric and Hermitian ones only the upper triangle with its diagonal is
 * given. */
enum {
  QUORIN_PARDISO_REAL_STRUCTURALLY_SYMMETRIC = 1, /* real, structurally symmetric */
  QUORIN_PARDISO_REAL_POSITIVE_DEFINITE = 2, /* real, symmetric positive definite */
  QUORIN_PARDISO_REAL_SYMMETRIC = -2, /* real, symmetric indefinite */
  QUORIN_PARDISO_COMPLEX_STRUCTURALLY_SYMMETRIC = 3, /* complex, structurally symmetric */
  QUORIN_PARDISO_HERMITIAN_POSITIVE_DEFINITE = 4, /* complex, Hermitian positive definite */
  QUORIN_PARDISO_HERMITIAN = -4, /* complex, Hermitian indefinite */
  QUORIN_PARDISO_COMPLEX_SYMMETRIC = 6, /* complex, symmetric */
  QUORIN_PARDISO_REAL_UNSYMMETRIC = 11, /* real, unsymmetric */
  QUORIN_PARDISO_COMPLEX_UNSYMMETRIC = 13 /* complex, unsymmetric */
};

/* Values of phase: what is to be done. */
enum {
  QUORIN_PARDISO_ANALYSE = 11, /* analysis */
  QUORIN_PARDISO_ANALYSE_FACTORIZE = 12, /* analysis and factorization */
  QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE = 13, /* analysis, factorization and solution */
  QUORIN_PARDISO_FACTORIZE = 22, /* factorization */
  QUORIN_PARDISO_FACTORIZE_SOLVE = 23, /* factorization and solution */
  QUORIN_PARDISO_SOLVE = 33, /* solution and refinement */
  QUORIN_PARDISO_SOLVE_FORWARD = 331, /* forward substitution only, without refinement */
  QUORIN_PARDISO_SOLVE_DIAGONAL = 332, /* diagonal substitution only; b is copied where the factors have no D */
  QUORIN_PARDISO_SOLVE_BACKWARD = 333, /* backward substitution only */
  QUORIN_PARDISO_FREE_FACTORS = 0, /* frees the factors of mnum */
  QUORIN_PARDISO_FREE_ALL = -1 /* frees everything; reads only pt, and clears it */
};

/* Values of msglvl: what is written to standard output. */
enum {
  QUORIN_PARDISO_SILENT = 0, /* nothing */
  QUORIN_PARDISO_STATISTICS = 1 /* statistics of the call */
};

/* Positions in iparm, one-based: the first is iparm[0] in C. */
enum {
  QUORIN_PARDISO_IPARM_SUPPLIED = 1, /* 0: this call sets all the others to their defaults first, in iparm itself; else
      they are the host's */
  QUORIN_PARDISO_IPARM_ORDERING = 2, /* ordering: 0 minimum degree, 2 or 3 nested dissection */
  QUORIN_PARDISO_IPARM_ITERATION = 4, /* 10 L + K: iteration with the last factors as preconditioner in place of a
      factorization, until the step has fallen below 10^-L of the first one. K = 1 CGS, 2 CG (mtype 2, 4), 0 none. Phase
      23 factorizes if the iteration fails, phase 33 answers -4 */
  QUORIN_PARDISO_IPARM_PERMUTATION = 5, /* 1: perm holds the order of elimination; 2: analysis writes it there. Row and
      column perm(i) of A are eliminated in step i; with iparm(37) > 0 block row and column perm(i), which analysis may
      take apart: then where it begins with one */
  QUORIN_PARDISO_IPARM_SOLUTION_IN_B = 6, /* 1: the solution overwrites b; x may be used on the way */
  QUORIN_PARDISO_IPARM_REFINEMENTS = 7, /* result: refinement steps of the last solution, the most of its columns */
  QUORIN_PARDISO_IPARM_REFINEMENT_LIMIT = 8, /* most refinement steps; negative: with residuals of twice the precision;
      0: two, if pivots were perturbed, or if entries of the factors grew so much that solutions want it */
  QUORIN_PARDISO_IPARM_PERTURBATION = 10, /* pivots below 10^-iparm(10) ||A|| are replaced by that; in single precision,
      below 1.9e-6 ||A|| if that is more */
  QUORIN_PARDISO_IPARM_SCALING = 11, /* 1: A is scaled such that matched entries have magnitude 1 and others at most
      that; of symmetric kinds only together with iparm(13) */
  QUORIN_PARDISO_IPARM_TRANSPOSED = 12, /* 0: A X = B, 1: A^H X = B, 2: A^T X = B */
  QUORIN_PARDISO_IPARM_MATCHING = 13, /* 1: large entries are brought to the diagonal (mtype 11, 13), or into pivots of
      order 2 (-2, -4, 6). A factorization of other values than the analysis had does that anew if pivots were
      perturbed, no other factors live in the handle, and perm is not used */
  QUORIN_PARDISO_IPARM_PERTURBED = 14, /* result of factorization: perturbed pivots */
  QUORIN_PARDISO_IPARM_ANALYSIS_PEAK = 15, /* result of analysis: its peak of memory, KB */
  QUORIN_PARDISO_IPARM_ANALYSIS_MEMORY = 16, /* result of analysis: memory that it keeps, KB */
  QUORIN_PARDISO_IPARM_FACTOR_MEMORY = 17, /* result of analysis: memory of factorization and solution, KB. All in all
      the larger one of (15) and (16) + (17) */
  QUORIN_PARDISO_IPARM_FACTOR_ENTRIES = 18, /* negative: analysis puts the entries of the factors here; at most 2^31 -
      1 */
  QUORIN_PARDISO_IPARM_OPERATIONS = 19, /* negative: analysis puts the operations of a factorization here, in
      millions */
  QUORIN_PARDISO_IPARM_ITERATIONS = 20, /* result of iteration: steps; or - (10 steps + cause): 1 the residual grew, 2
      slow at half the limit of 150, 3 the limit, 4 the factors have perturbed pivots */
  QUORIN_PARDISO_IPARM_PIVOTING = 21, /* mtype -2, -4, 6: pivots of order 1 (0, 2), or of order 1 and 2 (1, 3); 2 and 3
      without the automatic refinement */
  QUORIN_PARDISO_IPARM_POSITIVE = 22, /* result of factorization, mtype -2, -4: positive eigenvalues */
  QUORIN_PARDISO_IPARM_NEGATIVE = 23, /* result of factorization, mtype -2, -4: negative eigenvalues */
  QUORIN_PARDISO_IPARM_SCHEDULE = 24, /* schedule of the factorization; accepted, and of no effect */
  QUORIN_PARDISO_IPARM_SOLVE_SCHEDULE = 25, /* 1: solution on one thread */
  QUORIN_PARDISO_IPARM_CHECK = 27, /* 1: analysis answers -1 for a matrix that breaks a rule; 0: it sorts rows, adds up
      repeated entries, takes a missing diagonal entry for zero and leaves out entries below the diagonal of symmetric
      kinds */
  QUORIN_PARDISO_IPARM_SINGLE = 28, /* 1: a, b, x are of single precision, 0: double */
  QUORIN_PARDISO_IPARM_BAD_PIVOT = 30, /* result of factorization, mtype 2, 4: the equation, from 1, whose pivot is not
      positive; 0: none */
  QUORIN_PARDISO_IPARM_PARTIAL = 31, /* partial solution. perm flags equations with 1, and analysis puts the order of
      elimination there, flagged ones last. 1: b is zero and x is wanted only where flagged; 2: b is zero elsewhere, all
      of x is wanted; 3: all of b counts, x is wanted only where flagged. Refined as iparm(8) = 0 says, or not at all */
  QUORIN_PARDISO_IPARM_REPRODUCIBLE = 34, /* threads for results that are the same in each run, which they always are;
      of no effect */
  QUORIN_PARDISO_IPARM_ZERO_BASED = 35, /* 1: ia, ja and perm count from 0; 0: from 1 */
  QUORIN_PARDISO_IPARM_SCHUR = 36, /* 1: factorization puts the Schur complement of the equations that perm flags with 1
      into x, dense, row by row, in ascending order; 2: and keeps the factors for solution */
  QUORIN_PARDISO_IPARM_BLOCKS = 37, /* size of the dense blocks of which A is made; 0 for none. Negative, that is blocks
      of different size to be found: accepted, and of no effect */
  QUORIN_PARDISO_IPARM_LOW_RANK = 39, /* update of a factorization by few changed entries; accepted, and done anew */
  QUORIN_PARDISO_IPARM_DIAGONAL = 56, /* 1: pardiso_getdiag may be called after factorization */
  QUORIN_PARDISO_IPARM_OUT_OF_CORE = 60, /* factors: 0 in memory, 2 in files, 1 in files if they are larger than
      MKL_PARDISO_OOC_MAX_CORE_SIZE + MAX_SWAP_SIZE */
  QUORIN_PARDISO_IPARM_LEAST_MEMORY = 63 /* result of analysis: least memory of factorization and solution with factors
      in files, KB */
};

/* ---- Solver ---- */

/* Analyses, factorizes, solves or frees, as phase tells.
     pt: in, out, [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     maxfct: may be null: how many factorizations of the same pattern may live in the handle
     mnum: may be null: which of them this call is about, from 1 to maxfct
     mtype: may be null: the kind of matrix; of symmetric and Hermitian ones only the upper triangle with its diagonal
         is given (QUORIN_PARDISO_REAL_STRUCTURALLY_SYMMETRIC, QUORIN_PARDISO_REAL_POSITIVE_DEFINITE,
         QUORIN_PARDISO_REAL_SYMMETRIC, QUORIN_PARDISO_COMPLEX_STRUCTURALLY_SYMMETRIC,
         QUORIN_PARDISO_HERMITIAN_POSITIVE_DEFINITE, QUORIN_PARDISO_HERMITIAN, QUORIN_PARDISO_COMPLEX_SYMMETRIC,
         QUORIN_PARDISO_REAL_UNSYMMETRIC, QUORIN_PARDISO_COMPLEX_UNSYMMETRIC)
     phase: what is to be done (QUORIN_PARDISO_ANALYSE, QUORIN_PARDISO_ANALYSE_FACTORIZE,
         QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, QUORIN_PARDISO_FACTORIZE, QUORIN_PARDISO_FACTORIZE_SOLVE,
         QUORIN_PARDISO_SOLVE, QUORIN_PARDISO_SOLVE_FORWARD, QUORIN_PARDISO_SOLVE_DIAGONAL,
         QUORIN_PARDISO_SOLVE_BACKWARD, QUORIN_PARDISO_FREE_FACTORS, QUORIN_PARDISO_FREE_ALL)
     n: may be null: number of equations; of block rows with iparm(37) > 0
     a: may be null: the entries of A, row by row, nza numbers: read by factorization, by analysis with scaling or
         matching, by solution with refinement or iteration
     ia: [n+1], may be null: where the rows begin in a and ja; the last one tells where they end. Read by analysis;
         later phases only compare
     ja: [nnz], may be null: columns of the entries, ascending in each row. Read by analysis; later phases only compare
     perm: in, out, [n], may be null: by iparm(5) a permutation, by iparm(31) or iparm(36) flags; else not touched
     nrhs: may be null: number of right-hand sides; read by solution alone
     iparm: in, out, [64], may be null: parameters and results
     msglvl: may be null: what is written to standard output (0 nothing; 1 statistics of the call)
     b: may be null: right-hand sides, n x nrhs, column-major; the solutions afterwards with iparm(6) = 1. Read by
         solution alone
     x: may be null: solutions, n x nrhs, written by solution; by factorization the Schur complement with iparm(36)
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL PARDISO(void** pt, const int32_t* maxfct, const int32_t* mnum, const int32_t* mtype,
                                     const int32_t* phase, const int32_t* n, const void* a, const int32_t* ia,
                                     const int32_t* ja, int32_t* perm, const int32_t* nrhs, int32_t* iparm,
                                     const int32_t* msglvl, void* b, void* x, int32_t* error);

/* Analyses, factorizes, solves or frees, as phase tells.
     pt: in, out, [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     maxfct: may be null: how many factorizations of the same pattern may live in the handle
     mnum: may be null: which of them this call is about, from 1 to maxfct
     mtype: may be null: the kind of matrix; of symmetric and Hermitian ones only the upper triangle with its diagonal
         is given (QUORIN_PARDISO_REAL_STRUCTURALLY_SYMMETRIC, QUORIN_PARDISO_REAL_POSITIVE_DEFINITE,
         QUORIN_PARDISO_REAL_SYMMETRIC, QUORIN_PARDISO_COMPLEX_STRUCTURALLY_SYMMETRIC,
         QUORIN_PARDISO_HERMITIAN_POSITIVE_DEFINITE, QUORIN_PARDISO_HERMITIAN, QUORIN_PARDISO_COMPLEX_SYMMETRIC,
         QUORIN_PARDISO_REAL_UNSYMMETRIC, QUORIN_PARDISO_COMPLEX_UNSYMMETRIC)
     phase: what is to be done (QUORIN_PARDISO_ANALYSE, QUORIN_PARDISO_ANALYSE_FACTORIZE,
         QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, QUORIN_PARDISO_FACTORIZE, QUORIN_PARDISO_FACTORIZE_SOLVE,
         QUORIN_PARDISO_SOLVE, QUORIN_PARDISO_SOLVE_FORWARD, QUORIN_PARDISO_SOLVE_DIAGONAL,
         QUORIN_PARDISO_SOLVE_BACKWARD, QUORIN_PARDISO_FREE_FACTORS, QUORIN_PARDISO_FREE_ALL)
     n: may be null: number of equations; of block rows with iparm(37) > 0
     a: [nza], may be null: the entries of A, row by row, nza numbers: read by factorization, by analysis with scaling
         or matching, by solution with refinement or iteration
     ia: [n+1], may be null: where the rows begin in a and ja; the last one tells where they end. Read by analysis;
         later phases only compare
     ja: [nnz], may be null: columns of the entries, ascending in each row. Read by analysis; later phases only compare
     perm: in, out, [n], may be null: by iparm(5) a permutation, by iparm(31) or iparm(36) flags; else not touched
     nrhs: may be null: number of right-hand sides; read by solution alone
     iparm: in, out, [64], may be null: parameters and results
     msglvl: may be null: what is written to standard output (0 nothing; 1 statistics of the call)
     b: in, out, [n x nrhs], may be null: right-hand sides, n x nrhs, column-major; the solutions afterwards with
         iparm(6) = 1. Read by solution alone
     x: in, out, [n x nrhs], may be null: solutions, n x nrhs, written by solution; by factorization the Schur
         complement with iparm(36)
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL sPARDISO_32f_Idx(void** pt, const int32_t* maxfct, const int32_t* mnum,
                                              const int32_t* mtype, const int32_t* phase, const int32_t* n,
                                              const float* a, int32_t a_index, const int32_t* ia, int32_t ia_index,
                                              const int32_t* ja, int32_t ja_index, int32_t* perm, int32_t perm_index,
                                              const int32_t* nrhs, int32_t* iparm, int32_t iparm_index,
                                              const int32_t* msglvl, float* b, int32_t b_index, float* x,
                                              int32_t x_index, int32_t* error);
QUORIN_API void QUORIN_CDECL sPARDISO_32fc_Idx(void** pt, const int32_t* maxfct, const int32_t* mnum,
                                               const int32_t* mtype, const int32_t* phase, const int32_t* n,
                                               const quorin_complex* a, int32_t a_index, const int32_t* ia,
                                               int32_t ia_index, const int32_t* ja, int32_t ja_index, int32_t* perm,
                                               int32_t perm_index, const int32_t* nrhs, int32_t* iparm,
                                               int32_t iparm_index, const int32_t* msglvl, quorin_complex* b,
                                               int32_t b_index, quorin_complex* x, int32_t x_index, int32_t* error);
QUORIN_API void QUORIN_CDECL sPARDISO_64f_Idx(void** pt, const int32_t* maxfct, const int32_t* mnum,
                                              const int32_t* mtype, const int32_t* phase, const int32_t* n,
                                              const double* a, int32_t a_index, const int32_t* ia, int32_t ia_index,
                                              const int32_t* ja, int32_t ja_index, int32_t* perm, int32_t perm_index,
                                              const int32_t* nrhs, int32_t* iparm, int32_t iparm_index,
                                              const int32_t* msglvl, double* b, int32_t b_index, double* x,
                                              int32_t x_index, int32_t* error);
QUORIN_API void QUORIN_CDECL sPARDISO_64fc_Idx(void** pt, const int32_t* maxfct, const int32_t* mnum,
                                               const int32_t* mtype, const int32_t* phase, const int32_t* n,
                                               const quorin_double_complex* a, int32_t a_index, const int32_t* ia,
                                               int32_t ia_index, const int32_t* ja, int32_t ja_index, int32_t* perm,
                                               int32_t perm_index, const int32_t* nrhs, int32_t* iparm,
                                               int32_t iparm_index, const int32_t* msglvl, quorin_double_complex* b,
                                               int32_t b_index, quorin_double_complex* x, int32_t x_index,
                                               int32_t* error);

/* ---- Defaults, diagonals ---- */

/* Clears pt and sets iparm to the defaults of mtype, with iparm(1) = 1 so that changes count; those of mtype 11 for a
   wrong mtype. Frees nothing: a handle in use is to be freed first.
     pt: out, [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     mtype: the kind of matrix; of symmetric and Hermitian ones only the upper triangle with its diagonal is given
         (QUORIN_PARDISO_REAL_STRUCTURALLY_SYMMETRIC, QUORIN_PARDISO_REAL_POSITIVE_DEFINITE,
         QUORIN_PARDISO_REAL_SYMMETRIC, QUORIN_PARDISO_COMPLEX_STRUCTURALLY_SYMMETRIC,
         QUORIN_PARDISO_HERMITIAN_POSITIVE_DEFINITE, QUORIN_PARDISO_HERMITIAN, QUORIN_PARDISO_COMPLEX_SYMMETRIC,
         QUORIN_PARDISO_REAL_UNSYMMETRIC, QUORIN_PARDISO_COMPLEX_UNSYMMETRIC)
     iparm: out, [64], may be null: parameters and results */
QUORIN_API void QUORIN_CDECL sPARDISOINIT(void** pt, const int32_t* mtype, int32_t* iparm);

/* The diagonals of A and of its factor, in the type of a: of L for mtype 2 and 4, of D for -2, -4, 6, of U for the
   others. Wants iparm(56) = 1 in the analysis, and a factorization.
     pt: [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     df: may be null: the diagonal of the factor, neq numbers, in the order of elimination; null if it is not wanted
     da: may be null: the diagonal of A, neq numbers; null if it is not wanted
     mnum: which of them this call is about, from 1 to maxfct
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL pardiso_getdiag(void* const* pt, void* df, void* da, const int32_t* mnum, int32_t* error);

/* The diagonals of A and of its factor, in the type of a: of L for mtype 2 and 4, of D for -2, -4, 6, of U for the
   others. Wants iparm(56) = 1 in the analysis, and a factorization.
     pt: [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     df: out, [neq], may be null: the diagonal of the factor, neq numbers, in the order of elimination; null if it is
         not wanted
     da: out, [neq], may be null: the diagonal of A, neq numbers; null if it is not wanted
     mnum: which of them this call is about, from 1 to maxfct
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL sPARDISO_GETDIAG_32f_Idx(void* const* pt, float* df, int32_t df_index, float* da,
                                                      int32_t da_index, const int32_t* mnum, int32_t* error);
QUORIN_API void QUORIN_CDECL sPARDISO_GETDIAG_32fc_Idx(void* const* pt, quorin_complex* df, int32_t df_index,
                                                       quorin_complex* da, int32_t da_index, const int32_t* mnum,
                                                       int32_t* error);

/* ---- Files ---- */

/* Writes all that the handle holds to the file handle.pds of a folder, in place of one that is there. The handle stays
   as it is.
     pt: [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     dirname: may be null: folder of the file handle.pds, ended by a zero; empty for the current one
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL sPARDISO_HANDLE_STORE(void* const* pt, const char* dirname, int32_t* error);

/* Makes a handle from that file, in another process if need be. What pt holds is overwritten, not freed. The matrix,
   iparm, b and x are the host's to give again.
     pt: out, [64], may be null: the handle: zeros before the first call, and not changed by the host afterwards
     dirname: may be null: folder of the file handle.pds, ended by a zero; empty for the current one
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL sPARDISO_HANDLE_RESTORE(void** pt, const char* dirname, int32_t* error);

/* Deletes that file.
     dirname: may be null: folder of the file handle.pds, ended by a zero; empty for the current one
     error: out: how the call ended */
QUORIN_API void QUORIN_CDECL sPARDISO_HANDLE_DELETE(const char* dirname, int32_t* error);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
