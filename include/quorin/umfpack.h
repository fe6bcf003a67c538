/* Sparse LU factorization.
 *
 * UMFPACK's interface with float entries, Control and Info: the names umfpack_di_ stand for real and umfpack_zi_ for
 * complex matrices. The computation runs in double precision; floats are widened on the way in and results narrowed on
 * the way out, in double copies that live as long as the call. Matrices are compressed columns, zero-based, row indices
 * ascending in each column. Complex values are split, real parts in the array x and imaginary parts in z; if z is null,
 * both stand in x, one behind the other, and x is twice as long.
 *
 * Order of calls: symbolic or qsymbolic, numeric (again for new values of the same pattern), solve and the rest as
 * often as wanted, free_numeric, free_symbolic. Symbolic and Numeric objects belong to their family; one that was
 * freed, never made, or made by the other family is refused. Any number of threads may work on objects of their own,
 * and solve with one object at once.
 *
 * Reports go to the text-output callback: level 1 errors, 2 status, Control and Info, 3 checks of arrays and objects, 4
 * their first entries, 5 all, 6 the terms of use with the status.
 *
 * Generated from exports/tables/umfpack.table. Do not edit. */
#ifndef QUORIN_UMFPACK_H
#define QUORIN_UMFPACK_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Values of Control. */
enum {
  UMFPACK_CONTROL = 20, /* entries of Control */
  UMFPACK_INFO = 90, /* entries of Info */
  UMFPACK_STRATEGY_AUTO = 0, /* strategy: chosen by the pattern */
  UMFPACK_STRATEGY_UNSYMMETRIC = 1, /* strategy: columns ordered by COLAMD and again during the factorization, no
      preference for the diagonal */
  UMFPACK_STRATEGY_2BY2 = 2, /* strategy: taken as the symmetric one */
  UMFPACK_STRATEGY_SYMMETRIC = 3, /* strategy: ordered by AMD of A + A', pivots on the diagonal if possible */
  UMFPACK_SCALE_NONE = 0, /* scaling: none */
  UMFPACK_SCALE_SUM = 1, /* scaling: each row is divided by the sum of its magnitudes */
  UMFPACK_SCALE_MAX = 2 /* scaling: each row is divided by its largest magnitude */
};

/* Statuses, returned and stored in Info[0]. */
enum quorin_umfpack_status {
  UMFPACK_OK = 0, /* done */
  UMFPACK_WARNING_singular_matrix = 1, /* the matrix is singular; the Numeric object is usable, a solution has
      infinities or NaN */
  UMFPACK_WARNING_determinant_underflow = 2, /* the determinant underflows a float */
  UMFPACK_WARNING_determinant_overflow = 3, /* the determinant overflows a float */
  UMFPACK_ERROR_out_of_memory = -1, /* out of memory; no object is made */
  UMFPACK_ERROR_invalid_Numeric_object = -3, /* no valid Numeric object of this family */
  UMFPACK_ERROR_invalid_Symbolic_object = -4, /* no valid Symbolic object of this family */
  UMFPACK_ERROR_argument_missing = -5, /* a required argument is null */
  UMFPACK_ERROR_n_nonpositive = -6, /* n_row, n_col, n or np is not positive */
  UMFPACK_ERROR_invalid_matrix = -8, /* the matrix is invalid: column starts that are wrong, an index outside, or rows
      that do not ascend */
  UMFPACK_ERROR_different_pattern = -11, /* the pattern is not the analysed one */
  UMFPACK_ERROR_invalid_system = -13, /* no such system, or the matrix is not square */
  UMFPACK_ERROR_invalid_permutation = -15, /* a permutation is invalid */
  UMFPACK_ERROR_internal_error = -911 /* a fault of UMFPACK */
};

/* Values of sys: the system; P, Q, L, U are the factors, ' is the conjugate transpose, .' the transpose. */
enum {
  UMFPACK_A = 0, /* A x = b */
  UMFPACK_At = 1, /* A' x = b */
  UMFPACK_Aat = 2, /* A.' x = b */
  UMFPACK_Pt_L = 3, /* P' L x = b */
  UMFPACK_L = 4, /* L x = b */
  UMFPACK_Lt_P = 5, /* L' P x = b */
  UMFPACK_Lat_P = 6, /* L.' P x = b */
  UMFPACK_Lt = 7, /* L' x = b */
  UMFPACK_Lat = 8, /* L.' x = b */
  UMFPACK_U_Qt = 9, /* U Q' x = b */
  UMFPACK_U = 10, /* U x = b */
  UMFPACK_Q_Ut = 11, /* Q U' x = b */
  UMFPACK_Q_Uat = 12, /* Q U.' x = b */
  UMFPACK_Ut = 13, /* U' x = b */
  UMFPACK_Uat = 14 /* U.' x = b */
};

/* Positions in Control, zero-based. */
enum {
  UMFPACK_PRL = 0, /* print level */
  UMFPACK_DENSE_ROW = 1, /* a row with more than max(16, 16 sqrt(n_col)) times this entries is dense */
  UMFPACK_DENSE_COL = 2, /* a column with more than max(16, 16 sqrt(n_row)) times this entries is dense */
  UMFPACK_PIVOT_TOLERANCE = 3, /* a pivot's least magnitude, relative to the largest of its column */
  UMFPACK_BLOCK_SIZE = 4, /* block size of dense operations */
  UMFPACK_STRATEGY = 5, /* strategy, see above */
  UMFPACK_ALLOC_INIT = 6, /* memory taken at first, relative to the estimate; if negative, in units */
  UMFPACK_IRSTEP = 7, /* most steps of iterative refinement */
  UMFPACK_COMPILED_WITH_BLAS = 8, /* BLAS is used; to be read only */
  UMFPACK_COMPILED_FOR_MATLAB = 9, /* 0; to be read only */
  UMFPACK_COMPILED_WITH_GETRUSAGE = 10, /* 0; to be read only */
  UMFPACK_COMPILED_IN_DEBUG_MODE = 11, /* 0; to be read only */
  UMFPACK_2BY2_TOLERANCE = 12, /* not used */
  UMFPACK_FIXQ = 13, /* whether the column order stays as it was analysed: positive yes, negative no, 0 automatic */
  UMFPACK_AMD_DENSE = 14, /* a row of A + A' with more than max(16, sqrt(n)) times this entries is dense */
  UMFPACK_SYM_PIVOT_TOLERANCE = 15, /* pivot tolerance of the diagonal in the symmetric strategy */
  UMFPACK_SCALE = 16, /* scaling, see above */
  UMFPACK_FRONT_ALLOC_INIT = 17, /* size of a frontal matrix at first, relative to the largest it may need; if negative,
      in entries */
  UMFPACK_DROPTOL = 18, /* entries of L and U whose magnitude is not greater are dropped */
  UMFPACK_AGGRESSIVE = 19 /* aggressive absorption in AMD and COLAMD */
};

/* Positions in Info, zero-based. */
enum {
  UMFPACK_STATUS = 0, /* status */
  UMFPACK_NROW = 1, /* n_row */
  UMFPACK_NZ = 2, /* entries of A */
  UMFPACK_SIZE_OF_UNIT = 3, /* bytes of a unit of memory */
  UMFPACK_SIZE_OF_INT = 4, /* bytes of an int */
  UMFPACK_SIZE_OF_LONG = 5, /* bytes of a long int */
  UMFPACK_SIZE_OF_POINTER = 6, /* bytes of a pointer */
  UMFPACK_SIZE_OF_ENTRY = 7, /* bytes of a float */
  UMFPACK_NDENSE_ROW = 8, /* dense rows */
  UMFPACK_NEMPTY_ROW = 9, /* empty rows */
  UMFPACK_NDENSE_COL = 10, /* dense columns */
  UMFPACK_NEMPTY_COL = 11, /* empty columns */
  UMFPACK_SYMBOLIC_DEFRAG = 12, /* compactions of memory in the analysis */
  UMFPACK_SYMBOLIC_PEAK_MEMORY = 13, /* units of memory that the analysis used at most */
  UMFPACK_SYMBOLIC_SIZE = 14, /* units of the Symbolic object */
  UMFPACK_SYMBOLIC_TIME = 15, /* seconds of the analysis, processor time */
  UMFPACK_NCOL = 16, /* n_col */
  UMFPACK_SYMBOLIC_WALLTIME = 17, /* seconds of the analysis, wall clock */
  UMFPACK_STRATEGY_USED = 18, /* strategy that was chosen */
  UMFPACK_ORDERING_USED = 19, /* ordering: 1 AMD or COLAMD, 2 that of the host */
  UMFPACK_NUMERIC_SIZE_ESTIMATE = 20, /* estimate: units of the Numeric object */
  UMFPACK_PEAK_MEMORY_ESTIMATE = 21, /* estimate: units of memory of analysis and factorization */
  UMFPACK_FLOPS_ESTIMATE = 22, /* estimate: operations of the factorization */
  UMFPACK_LNZ_ESTIMATE = 23, /* estimate: entries of L, with its diagonal */
  UMFPACK_UNZ_ESTIMATE = 24, /* estimate: entries of U, with its diagonal */
  UMFPACK_VARIABLE_INIT_ESTIMATE = 25, /* estimate: first size of the variable part of Numeric */
  UMFPACK_VARIABLE_PEAK_ESTIMATE = 26, /* estimate: largest size of it */
  UMFPACK_VARIABLE_FINAL_ESTIMATE = 27, /* estimate: last size of it */
  UMFPACK_MAX_FRONT_SIZE_ESTIMATE = 28, /* estimate: entries of the largest frontal matrix */
  UMFPACK_MAX_FRONT_NROWS_ESTIMATE = 29, /* estimate: most rows of a frontal matrix */
  UMFPACK_MAX_FRONT_NCOLS_ESTIMATE = 30, /* estimate: most columns of a frontal matrix */
  UMFPACK_QFIXED = 31, /* whether the column order is fixed in the factorization */
  UMFPACK_DIAG_PREFERRED = 32, /* whether pivots on the diagonal are preferred */
  UMFPACK_PATTERN_SYMMETRY = 33, /* symmetry of the pattern of S, A without singletons, dense and empty rows and
      columns: 0 to 1 */
  UMFPACK_NZ_A_PLUS_AT = 34, /* entries of S + S', off the diagonal */
  UMFPACK_NZDIAG = 35, /* nonzeros on the diagonal of S */
  UMFPACK_SYMMETRIC_LUNZ = 36, /* entries of L + U with AMD */
  UMFPACK_SYMMETRIC_FLOPS = 37, /* operations with AMD */
  UMFPACK_SYMMETRIC_NDENSE = 38, /* dense rows of S + S' */
  UMFPACK_SYMMETRIC_DMAX = 39, /* most entries of a column of L with AMD */
  UMFPACK_NUMERIC_SIZE = 40, /* units of the Numeric object */
  UMFPACK_PEAK_MEMORY = 41, /* units of memory of analysis and factorization */
  UMFPACK_FLOPS = 42, /* operations of the factorization */
  UMFPACK_LNZ = 43, /* entries of L, with its diagonal */
  UMFPACK_UNZ = 44, /* entries of U, with its diagonal */
  UMFPACK_VARIABLE_INIT = 45, /* first size of the variable part of Numeric, in units */
  UMFPACK_VARIABLE_PEAK = 46, /* largest size of it */
  UMFPACK_VARIABLE_FINAL = 47, /* last size of it */
  UMFPACK_MAX_FRONT_SIZE = 48, /* entries of the largest frontal matrix */
  UMFPACK_MAX_FRONT_NROWS = 49, /* most rows of a frontal matrix */
  UMFPACK_MAX_FRONT_NCOLS = 50, /* most columns of a frontal matrix */
  UMFPACK_COL_SINGLETONS = 56, /* column singletons */
  UMFPACK_ROW_SINGLETONS = 57, /* row singletons */
  UMFPACK_N2 = 58, /* order of S */
  UMFPACK_S_SYMMETRIC = 59, /* 1 if S is square and symmetrically permuted */
  UMFPACK_NUMERIC_DEFRAG = 60, /* compactions of memory in the factorization */
  UMFPACK_NUMERIC_REALLOC = 61, /* reallocations */
  UMFPACK_NUMERIC_COSTLY_REALLOC = 62, /* reallocations that moved data */
  UMFPACK_COMPRESSED_PATTERN = 63, /* integers of the pattern of L and U */
  UMFPACK_LU_ENTRIES = 64, /* numbers in L and U */
  UMFPACK_NUMERIC_TIME = 65, /* seconds of the factorization, processor time */
  UMFPACK_UDIAG_NZ = 66, /* nonzeros on the diagonal of U */
  UMFPACK_RCOND = 67, /* estimate of the reciprocal condition: least over largest magnitude on the diagonal of U */
  UMFPACK_WAS_SCALED = 68, /* scaling that was done */
  UMFPACK_RSMIN = 69, /* least scale factor of a row */
  UMFPACK_RSMAX = 70, /* largest scale factor of a row */
  UMFPACK_UMIN = 71, /* least magnitude on the diagonal of U */
  UMFPACK_UMAX = 72, /* largest magnitude on the diagonal of U */
  UMFPACK_ALLOC_INIT_USED = 73, /* Control[6] that was used */
  UMFPACK_NUMERIC_WALLTIME = 75, /* seconds of the factorization, wall clock */
  UMFPACK_NOFF_DIAG = 76, /* pivots off the diagonal */
  UMFPACK_ALL_LNZ = 77, /* entries of L, with dropped ones */
  UMFPACK_ALL_UNZ = 78, /* entries of U, with dropped ones */
  UMFPACK_NZDROPPED = 79, /* entries that were dropped */
  UMFPACK_IR_TAKEN = 80, /* refinement steps taken */
  UMFPACK_IR_ATTEMPTED = 81, /* refinement steps attempted */
  UMFPACK_OMEGA1 = 82, /* backward error omega1 */
  UMFPACK_OMEGA2 = 83, /* backward error omega2 */
  UMFPACK_SOLVE_FLOPS = 84, /* operations of the solution */
  UMFPACK_SOLVE_TIME = 85, /* seconds of the solution, processor time */
  UMFPACK_SOLVE_WALLTIME = 86 /* seconds of the solution, wall clock */
};

/* ---- Factorization and solution ---- */

/* Analyses the pattern of a matrix and orders its columns. The values, if they are given, help to find singletons.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Symbolic: out: the analysis; null if there is none
     Control: [20], may be null: settings; null for the defaults
     Info: out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_symbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                    const float* Ax, void** Symbolic, const float* Control,
                                                    float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_symbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                        int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                        const float* Ax, int32_t Ax_index, void** Symbolic,
                                                        const float* Control, int32_t Control_index, float* Info,
                                                        int32_t Info_index);

/* Analyses the pattern of a matrix and orders its columns. The values, if they are given, help to find singletons.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     Symbolic: out: the analysis; null if there is none
     Control: [20], may be null: settings; null for the defaults
     Info: out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_symbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                    const float* Ax, const float* Az, void** Symbolic,
                                                    const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_symbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                        int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                        const float* Ax, int32_t Ax_index, const float* Az,
                                                        int32_t Az_index, void** Symbolic, const float* Control,
                                                        int32_t Control_index, float* Info, int32_t Info_index);

/* As symbolic, with a column order of the host.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Qinit: [n_col], may be null: column order; if null, the routine is symbolic
     Symbolic: out: the analysis; null if there is none
     Control: [20], may be null: settings; null for the defaults
     Info: out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_qsymbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const int32_t* Qinit, void** Symbolic,
                                                     const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_qsymbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const int32_t* Qinit,
                                                         int32_t Qinit_index, void** Symbolic, const float* Control,
                                                         int32_t Control_index, float* Info, int32_t Info_index);

/* As symbolic, with a column order of the host.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     Qinit: [n_col], may be null: column order; if null, the routine is symbolic
     Symbolic: out: the analysis; null if there is none
     Control: [20], may be null: settings; null for the defaults
     Info: out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_qsymbolic(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const float* Az, const int32_t* Qinit,
                                                     void** Symbolic, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_qsymbolic_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const float* Az,
                                                         int32_t Az_index, const int32_t* Qinit, int32_t Qinit_index,
                                                         void** Symbolic, const float* Control, int32_t Control_index,
                                                         float* Info, int32_t Info_index);

/* Factorizes a matrix of the analysed pattern: P (R A) Q = L U.
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz]: entries of A, or their real parts
     Symbolic: the analysis
     Numeric: out: the factors; null if there are none
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_numeric(const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                   void* Symbolic, void** Numeric, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_numeric_Idx(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                       int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                       void* Symbolic, void** Numeric, const float* Control,
                                                       int32_t Control_index, float* Info, int32_t Info_index);

/* Factorizes a matrix of the analysed pattern: P (R A) Q = L U.
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz]: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     Symbolic: the analysis
     Numeric: out: the factors; null if there are none
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_numeric(const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                   const float* Az, void* Symbolic, void** Numeric,
                                                   const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_numeric_Idx(const int32_t* Ap, int32_t Ap_index, const int32_t* Ai,
                                                       int32_t Ai_index, const float* Ax, int32_t Ax_index,
                                                       const float* Az, int32_t Az_index, void* Symbolic,
                                                       void** Numeric, const float* Control, int32_t Control_index,
                                                       float* Info, int32_t Info_index);

/* Solves a system with a square matrix and, for systems 0 to 2, refines the solution. The matrix is read only for that.
     sys: the system; P, Q, L, U are the factors, ' is the conjugate transpose, .' the transpose (UMFPACK_A, UMFPACK_At,
         UMFPACK_Aat, UMFPACK_Pt_L, UMFPACK_L, UMFPACK_Lt_P, UMFPACK_Lat_P, UMFPACK_Lt, UMFPACK_Lat, UMFPACK_U_Qt,
         UMFPACK_U, UMFPACK_Q_Ut, UMFPACK_Q_Uat, UMFPACK_Ut, UMFPACK_Uat)
     Ap: [n_col+1], may be null: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz], may be null: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     X: out, [n]: the solution
     B: [n]: the right-hand side
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_solve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                 float* X, const float* B, void* Numeric, const float* Control,
                                                 float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_solve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                     const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                     int32_t Ax_index, float* X, int32_t X_index, const float* B,
                                                     int32_t B_index, void* Numeric, const float* Control,
                                                     int32_t Control_index, float* Info, int32_t Info_index);

/* Solves a system with a square matrix and, for systems 0 to 2, refines the solution. The matrix is read only for that.
     sys: the system; P, Q, L, U are the factors, ' is the conjugate transpose, .' the transpose (UMFPACK_A, UMFPACK_At,
         UMFPACK_Aat, UMFPACK_Pt_L, UMFPACK_L, UMFPACK_Lt_P, UMFPACK_Lat_P, UMFPACK_Lt, UMFPACK_Lat, UMFPACK_U_Qt,
         UMFPACK_U, UMFPACK_Q_Ut, UMFPACK_Q_Uat, UMFPACK_Ut, UMFPACK_Uat)
     Ap: [n_col+1], may be null: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz], may be null: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     Xx: out, [n]: the solution, or its real parts
     Xz: out, [n], may be null: imaginary parts
     Bx: [n]: the right-hand side, or its real parts
     Bz: [n], may be null: imaginary parts
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_solve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                 const float* Az, float* Xx, float* Xz, const float* Bx,
                                                 const float* Bz, void* Numeric, const float* Control, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_solve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                     const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                     int32_t Ax_index, const float* Az, int32_t Az_index, float* Xx,
                                                     int32_t Xx_index, float* Xz, int32_t Xz_index, const float* Bx,
                                                     int32_t Bx_index, const float* Bz, int32_t Bz_index, void* Numeric,
                                                     const float* Control, int32_t Control_index, float* Info,
                                                     int32_t Info_index);

/* As solve, with work space of the host.
     sys: the system; P, Q, L, U are the factors, ' is the conjugate transpose, .' the transpose (UMFPACK_A, UMFPACK_At,
         UMFPACK_Aat, UMFPACK_Pt_L, UMFPACK_L, UMFPACK_Lt_P, UMFPACK_Lat_P, UMFPACK_Lt, UMFPACK_Lat, UMFPACK_U_Qt,
         UMFPACK_U, UMFPACK_Q_Ut, UMFPACK_Q_Uat, UMFPACK_Ut, UMFPACK_Uat)
     Ap: [n_col+1], may be null: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz], may be null: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     X: out, [n]: the solution
     B: [n]: the right-hand side
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it
     Wi: out, [n]: work space
     W: out: work space */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_wsolve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                  float* X, const float* B, void* Numeric, const float* Control,
                                                  float* Info, int32_t* Wi, float* W);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_wsolve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, float* X, int32_t X_index, const float* B,
                                                      int32_t B_index, void* Numeric, const float* Control,
                                                      int32_t Control_index, float* Info, int32_t Info_index,
                                                      int32_t* Wi, int32_t Wi_index, float* W, int32_t W_index);

/* As solve, with work space of the host.
     sys: the system; P, Q, L, U are the factors, ' is the conjugate transpose, .' the transpose (UMFPACK_A, UMFPACK_At,
         UMFPACK_Aat, UMFPACK_Pt_L, UMFPACK_L, UMFPACK_Lt_P, UMFPACK_Lat_P, UMFPACK_Lt, UMFPACK_Lat, UMFPACK_U_Qt,
         UMFPACK_U, UMFPACK_Q_Ut, UMFPACK_Q_Uat, UMFPACK_Ut, UMFPACK_Uat)
     Ap: [n_col+1], may be null: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz], may be null: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     Xx: out, [n]: the solution, or its real parts
     Xz: out, [n], may be null: imaginary parts
     Bx: [n]: the right-hand side, or its real parts
     Bz: [n], may be null: imaginary parts
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults
     Info: in, out, [90], may be null: what became of it
     Wi: out, [n]: work space
     W: out: work space */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_wsolve(int32_t sys, const int32_t* Ap, const int32_t* Ai, const float* Ax,
                                                  const float* Az, float* Xx, float* Xz, const float* Bx,
                                                  const float* Bz, void* Numeric, const float* Control, float* Info,
                                                  int32_t* Wi, float* W);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_wsolve_Idx(int32_t sys, const int32_t* Ap, int32_t Ap_index,
                                                      const int32_t* Ai, int32_t Ai_index, const float* Ax,
                                                      int32_t Ax_index, const float* Az, int32_t Az_index, float* Xx,
                                                      int32_t Xx_index, float* Xz, int32_t Xz_index, const float* Bx,
                                                      int32_t Bx_index, const float* Bz, int32_t Bz_index,
                                                      void* Numeric, const float* Control, int32_t Control_index,
                                                      float* Info, int32_t Info_index, int32_t* Wi, int32_t Wi_index,
                                                      float* W, int32_t W_index);

/* Frees an object of either family and sets its handle to null. A handle of no such object is left alone.
     Symbolic: in, out: the analysis */
QUORIN_API void QUORIN_CDECL umfpack_di_free_symbolic(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_zi_free_symbolic(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_si_free_symbolic_Idx(void** Symbolic);
QUORIN_API void QUORIN_CDECL umfpack_ci_free_symbolic_Idx(void** Symbolic);

/* Frees an object of either family and sets its handle to null. A handle of no such object is left alone.
     Numeric: in, out: the factors */
QUORIN_API void QUORIN_CDECL umfpack_di_free_numeric(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_zi_free_numeric(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_si_free_numeric_Idx(void** Numeric);
QUORIN_API void QUORIN_CDECL umfpack_ci_free_numeric_Idx(void** Numeric);

/* ---- Settings and contents ---- */

/* Stores the defaults.
     Control: out, [20], may be null: settings; null for the defaults */
QUORIN_API void QUORIN_CDECL umfpack_di_defaults(float* Control);
QUORIN_API void QUORIN_CDECL umfpack_si_defaults_Idx(float* Control, int32_t Control_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_defaults(float* Control);
QUORIN_API void QUORIN_CDECL umfpack_ci_defaults_Idx(float* Control, int32_t Control_index);

/* X <- R B, the row scaling of the factorization.
     X: out, [n]: the result
     B: [n]: a vector
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_scale(float* X, const float* B, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_scale_Idx(float* X, int32_t X_index, const float* B, int32_t B_index,
                                                     void* Numeric);

/* X <- R B, the row scaling of the factorization.
     Xx: out, [n]: the result, or its real parts
     Xz: out, [n], may be null: imaginary parts
     Bx: [n]: a vector, or its real parts
     Bz: [n], may be null: imaginary parts
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_scale(float* Xx, float* Xz, const float* Bx, const float* Bz, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_scale_Idx(float* Xx, int32_t Xx_index, float* Xz, int32_t Xz_index,
                                                     const float* Bx, int32_t Bx_index, const float* Bz,
                                                     int32_t Bz_index, void* Numeric);

/* Sizes of L and U.
     lnz: out: entries of L, with its diagonal
     unz: out: entries of U, with its diagonal
     n_row: out: rows of A
     n_col: out: columns of A
     nz_udiag: out: nonzeros on the diagonal of U
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_lunz(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                    int32_t* nz_udiag, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_lunz_Idx(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                        int32_t* nz_udiag, void* Numeric);

/* Sizes of L and U.
     lnz: out: entries of L, with its diagonal
     unz: out: entries of U, with its diagonal
     n_row: out: rows of A
     n_col: out: columns of A
     nz_udiag: out: nonzeros on the diagonal of U
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_lunz(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                    int32_t* nz_udiag, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_lunz_Idx(int32_t* lnz, int32_t* unz, int32_t* n_row, int32_t* n_col,
                                                        int32_t* nz_udiag, void* Numeric);

/* Copies the factors: L by rows, U by columns. What is null is left out.
     Lp: out, [n_row+1], may be null: where the rows of L begin
     Lj: out, [lnz], may be null: columns of its entries
     Lx: out, [lnz], may be null: its entries, or their real parts
     Up: out, [n_col+1], may be null: where the columns of U begin
     Ui: out, [unz], may be null: rows of its entries
     Ux: out, [unz], may be null: its entries, or their real parts
     P: out, [n_row], may be null: row order: row P[k] of A is row k of P A Q
     Q: out, [n_col], may be null: column order: column Q[k] of A is column k of P A Q
     Dx: out, [min(n_row,n_col)], may be null: diagonal of U, or its real parts
     do_recip: out, may be null: how rows are scaled (0 by dividing by Rs; 1 by multiplying by Rs)
     Rs: out, [n_row], may be null: row scale factors
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_numeric(int32_t* Lp, int32_t* Lj, float* Lx, int32_t* Up, int32_t* Ui,
                                                       float* Ux, int32_t* P, int32_t* Q, float* Dx, int32_t* do_recip,
                                                       float* Rs, void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_numeric_Idx(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                           float* Lx, int32_t Lx_index, int32_t* Up, int32_t Up_index,
                                                           int32_t* Ui, int32_t Ui_index, float* Ux, int32_t Ux_index,
                                                           int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index,
                                                           float* Dx, int32_t Dx_index, int32_t* do_recip, float* Rs,
                                                           int32_t Rs_index, void* Numeric);

/* Copies the factors: L by rows, U by columns. What is null is left out.
     Lp: out, [n_row+1], may be null: where the rows of L begin
     Lj: out, [lnz], may be null: columns of its entries
     Lx: out, [lnz], may be null: its entries, or their real parts
     Lz: out, [lnz], may be null: imaginary parts
     Up: out, [n_col+1], may be null: where the columns of U begin
     Ui: out, [unz], may be null: rows of its entries
     Ux: out, [unz], may be null: its entries, or their real parts
     Uz: out, [unz], may be null: imaginary parts
     P: out, [n_row], may be null: row order: row P[k] of A is row k of P A Q
     Q: out, [n_col], may be null: column order: column Q[k] of A is column k of P A Q
     Dx: out, [min(n_row,n_col)], may be null: diagonal of U, or its real parts
     Dz: out, [min(n_row,n_col)], may be null: imaginary parts
     do_recip: out, may be null: how rows are scaled (0 by dividing by Rs; 1 by multiplying by Rs)
     Rs: out, [n_row], may be null: row scale factors
     Numeric: the factors */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_numeric(int32_t* Lp, int32_t* Lj, float* Lx, float* Lz, int32_t* Up,
                                                       int32_t* Ui, float* Ux, float* Uz, int32_t* P, int32_t* Q,
                                                       float* Dx, float* Dz, int32_t* do_recip, float* Rs,
                                                       void* Numeric);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_numeric_Idx(int32_t* Lp, int32_t Lp_index, int32_t* Lj, int32_t Lj_index,
                                                           float* Lx, int32_t Lx_index, float* Lz, int32_t Lz_index,
                                                           int32_t* Up, int32_t Up_index, int32_t* Ui, int32_t Ui_index,
                                                           float* Ux, int32_t Ux_index, float* Uz, int32_t Uz_index,
                                                           int32_t* P, int32_t P_index, int32_t* Q, int32_t Q_index,
                                                           float* Dx, int32_t Dx_index, float* Dz, int32_t Dz_index,
                                                           int32_t* do_recip, float* Rs, int32_t Rs_index,
                                                           void* Numeric);

/* Copies the analysis. What is null is left out.
     n_row: out, may be null: rows of A
     n_col: out, may be null: columns of A
     n1: out, may be null: singletons
     nz: out, may be null: entries of A
     nfr: out, may be null: frontal matrices
     nchains: out, may be null: chains of frontal matrices
     P: out, [n_row], may be null: row order: row P[k] of A is row k of P A Q
     Q: out, [n_col], may be null: column order: column Q[k] of A is column k of P A Q
     Front_npivcol: out, [nfr+1], may be null: pivot columns of each frontal matrix
     Front_parent: out, [nfr+1], may be null: its parent, or -1
     Front_1strow: out, [nfr+1], may be null: row of P A Q that is its first pivot row
     Front_leftmostdesc: out, [nfr+1], may be null: its leftmost descendant
     Chain_start: out, [nchains+1], may be null: first frontal matrix of each chain
     Chain_maxrows: out, [nchains+1], may be null: most rows of the chain's frontal matrices
     Chain_maxcols: out, [nchains+1], may be null: most columns of the chain's frontal matrices
     Symbolic: the analysis */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_symbolic(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                        int32_t* nfr, int32_t* nchains, int32_t* P, int32_t* Q,
                                                        int32_t* Front_npivcol, int32_t* Front_parent,
                                                        int32_t* Front_1strow, int32_t* Front_leftmostdesc,
                                                        int32_t* Chain_start, int32_t* Chain_maxrows,
                                                        int32_t* Chain_maxcols, void* Symbolic);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_symbolic_Idx(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                            int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                            int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                            int32_t Front_npivcol_index, int32_t* Front_parent,
                                                            int32_t Front_parent_index, int32_t* Front_1strow,
                                                            int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                            int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                            int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                            int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                            int32_t Chain_maxcols_index, void* Symbolic);

/* Copies the analysis. What is null is left out.
     n_row: out, may be null: rows of A
     n_col: out, may be null: columns of A
     n1: out, may be null: singletons
     nz: out, may be null: entries of A
     nfr: out, may be null: frontal matrices
     nchains: out, may be null: chains of frontal matrices
     P: out, [n_row], may be null: row order: row P[k] of A is row k of P A Q
     Q: out, [n_col], may be null: column order: column Q[k] of A is column k of P A Q
     Front_npivcol: out, [nfr+1], may be null: pivot columns of each frontal matrix
     Front_parent: out, [nfr+1], may be null: its parent, or -1
     Front_1strow: out, [nfr+1], may be null: row of P A Q that is its first pivot row
     Front_leftmostdesc: out, [nfr+1], may be null: its leftmost descendant
     Chain_start: out, [nchains+1], may be null: first frontal matrix of each chain
     Chain_maxrows: out, [nchains+1], may be null: most rows of the chain's frontal matrices
     Chain_maxcols: out, [nchains+1], may be null: most columns of the chain's frontal matrices
     Symbolic: the analysis */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_symbolic(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                        int32_t* nfr, int32_t* nchains, int32_t* P, int32_t* Q,
                                                        int32_t* Front_npivcol, int32_t* Front_parent,
                                                        int32_t* Front_1strow, int32_t* Front_leftmostdesc,
                                                        int32_t* Chain_start, int32_t* Chain_maxrows,
                                                        int32_t* Chain_maxcols, void* Symbolic);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_symbolic_Idx(int32_t* n_row, int32_t* n_col, int32_t* n1, int32_t* nz,
                                                            int32_t* nfr, int32_t* nchains, int32_t* P, int32_t P_index,
                                                            int32_t* Q, int32_t Q_index, int32_t* Front_npivcol,
                                                            int32_t Front_npivcol_index, int32_t* Front_parent,
                                                            int32_t Front_parent_index, int32_t* Front_1strow,
                                                            int32_t Front_1strow_index, int32_t* Front_leftmostdesc,
                                                            int32_t Front_leftmostdesc_index, int32_t* Chain_start,
                                                            int32_t Chain_start_index, int32_t* Chain_maxrows,
                                                            int32_t Chain_maxrows_index, int32_t* Chain_maxcols,
                                                            int32_t Chain_maxcols_index, void* Symbolic);

/* The determinant M 10^Ex with 1 <= |M| < 10.
     Mx: out, [1]: the number in front of the power of ten, or its real part
     Ex: out, [1], may be null: exponent of ten; if null, M is the determinant itself
     Numeric: the factors
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_get_determinant(float* Mx, float* Ex, void* Numeric, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_get_determinant_Idx(float* Mx, int32_t Mx_index, float* Ex, int32_t Ex_index,
                                                               void* Numeric, float* Info, int32_t Info_index);

/* The determinant M 10^Ex with 1 <= |M| < 10.
     Mx: out, [1]: the number in front of the power of ten, or its real part
     Mz: out, [1], may be null: imaginary part; if null, Mx has two elements
     Ex: out, [1], may be null: exponent of ten; if null, M is the determinant itself
     Numeric: the factors
     Info: in, out, [90], may be null: what became of it */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_get_determinant(float* Mx, float* Mz, float* Ex, void* Numeric, float* Info);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_get_determinant_Idx(float* Mx, int32_t Mx_index, float* Mz, int32_t Mz_index,
                                                               float* Ex, int32_t Ex_index, void* Numeric, float* Info,
                                                               int32_t Info_index);

/* ---- Conversions ---- */

/* Triplets in any order to compressed columns; values of the same place are added.
     n_row: rows of A
     n_col: columns of A
     nz: number of triplets
     Ti: [nz]: rows of the triplets, zero-based
     Tj: [nz]: columns of the triplets, zero-based
     Tx: [nz], may be null: their values, or real parts
     Ap: out, [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: out, [nz]: rows of the entries, ascending in each column
     Ax: out, [nz], may be null: entries of A, or their real parts
     Map: out, [nz], may be null: place of each triplet in Ax */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_triplet_to_col(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, int32_t* Ap, int32_t* Ai,
                                                          float* Ax, int32_t* Map);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_triplet_to_col_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              int32_t* Ap, int32_t Ap_index, int32_t* Ai,
                                                              int32_t Ai_index, float* Ax, int32_t Ax_index,
                                                              int32_t* Map, int32_t Map_index);

/* Triplets in any order to compressed columns; values of the same place are added.
     n_row: rows of A
     n_col: columns of A
     nz: number of triplets
     Ti: [nz]: rows of the triplets, zero-based
     Tj: [nz]: columns of the triplets, zero-based
     Tx: [nz], may be null: their values, or real parts
     Tz: [nz], may be null: imaginary parts
     Ap: out, [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: out, [nz]: rows of the entries, ascending in each column
     Ax: out, [nz], may be null: entries of A, or their real parts
     Az: out, [nz], may be null: imaginary parts
     Map: out, [nz], may be null: place of each triplet in Ax */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_triplet_to_col(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Tz,
                                                          int32_t* Ap, int32_t* Ai, float* Ax, float* Az, int32_t* Map);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_triplet_to_col_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Tz, int32_t Tz_index, int32_t* Ap,
                                                              int32_t Ap_index, int32_t* Ai, int32_t Ai_index,
                                                              float* Ax, int32_t Ax_index, float* Az, int32_t Az_index,
                                                              int32_t* Map, int32_t Map_index);

/* The columns of a matrix's entries.
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Tj: out, [nz]: columns of the entries */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_col_to_triplet(int32_t n_col, const int32_t* Ap, int32_t* Tj);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_col_to_triplet_Idx(int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                              int32_t* Tj, int32_t Tj_index);
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_col_to_triplet(int32_t n_col, const int32_t* Ap, int32_t* Tj);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_col_to_triplet_Idx(int32_t n_col, const int32_t* Ap, int32_t Ap_index,
                                                              int32_t* Tj, int32_t Tj_index);

/* R <- (P A Q)^T, or its conjugate.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     P: [n_row], may be null: row order; null for none
     Q: [n_col], may be null: column order; null for none
     Rp: out, [n_row+1]: where the columns of R begin
     Ri: out, [nz]: rows of its entries
     Rx: out, [nz], may be null: its entries, or their real parts */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_transpose(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const int32_t* P, const int32_t* Q, int32_t* Rp,
                                                     int32_t* Ri, float* Rx);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_transpose_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const int32_t* P,
                                                         int32_t P_index, const int32_t* Q, int32_t Q_index,
                                                         int32_t* Rp, int32_t Rp_index, int32_t* Ri, int32_t Ri_index,
                                                         float* Rx, int32_t Rx_index);

/* R <- (P A Q)^T, or its conjugate.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     P: [n_row], may be null: row order; null for none
     Q: [n_col], may be null: column order; null for none
     Rp: out, [n_row+1]: where the columns of R begin
     Ri: out, [nz]: rows of its entries
     Rx: out, [nz], may be null: its entries, or their real parts
     Rz: out, [nz], may be null: imaginary parts
     do_conjugate: whether the entries are conjugated; 0 for no */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_transpose(int32_t n_row, int32_t n_col, const int32_t* Ap, const int32_t* Ai,
                                                     const float* Ax, const float* Az, const int32_t* P,
                                                     const int32_t* Q, int32_t* Rp, int32_t* Ri, float* Rx, float* Rz,
                                                     int32_t do_conjugate);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_transpose_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                         const float* Ax, int32_t Ax_index, const float* Az,
                                                         int32_t Az_index, const int32_t* P, int32_t P_index,
                                                         const int32_t* Q, int32_t Q_index, int32_t* Rp,
                                                         int32_t Rp_index, int32_t* Ri, int32_t Ri_index, float* Rx,
                                                         int32_t Rx_index, float* Rz, int32_t Rz_index,
                                                         int32_t do_conjugate);

/* ---- Reports ---- */

/* Prints the text for a status; 2 and 3 have none.
     Control: [20], may be null: settings; null for the defaults
     status: what a routine returned */
QUORIN_API void QUORIN_CDECL umfpack_di_report_status(const float* Control, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_si_report_status_Idx(const float* Control, int32_t Control_index, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_status(const float* Control, int32_t status);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_status_Idx(const float* Control, int32_t Control_index, int32_t status);

/* Prints Info, from level 2 on.
     Control: [20], may be null: settings; null for the defaults
     Info: [90], may be null: what became of it */
QUORIN_API void QUORIN_CDECL umfpack_di_report_info(const float* Control, const float* Info);
QUORIN_API void QUORIN_CDECL umfpack_si_report_info_Idx(const float* Control, int32_t Control_index, const float* Info,
                                                        int32_t Info_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_info(const float* Control, const float* Info);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_info_Idx(const float* Control, int32_t Control_index, const float* Info,
                                                        int32_t Info_index);

/* Prints Control, from level 2 on.
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API void QUORIN_CDECL umfpack_di_report_control(const float* Control);
QUORIN_API void QUORIN_CDECL umfpack_si_report_control_Idx(const float* Control, int32_t Control_index);
QUORIN_API void QUORIN_CDECL umfpack_zi_report_control(const float* Control);
QUORIN_API void QUORIN_CDECL umfpack_ci_report_control_Idx(const float* Control, int32_t Control_index);

/* Checks and prints a matrix.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     col_form: how A is stored: by columns, or by rows if 0
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_matrix(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         const int32_t* Ai, const float* Ax, int32_t col_form,
                                                         const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_matrix_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                             int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                             const float* Ax, int32_t Ax_index, int32_t col_form,
                                                             const float* Control, int32_t Control_index);

/* Checks and prints a matrix.
     n_row: rows of A
     n_col: columns of A
     Ap: [n_col+1]: where the columns begin: Ap[0] = 0, Ap[n_col] is the number of entries
     Ai: [nz]: rows of the entries, ascending in each column
     Ax: [nz], may be null: entries of A, or their real parts
     Az: [nz], may be null: imaginary parts
     col_form: how A is stored: by columns, or by rows if 0
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_matrix(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                         const int32_t* Ai, const float* Ax, const float* Az,
                                                         int32_t col_form, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_matrix_Idx(int32_t n_row, int32_t n_col, const int32_t* Ap,
                                                             int32_t Ap_index, const int32_t* Ai, int32_t Ai_index,
                                                             const float* Ax, int32_t Ax_index, const float* Az,
                                                             int32_t Az_index, int32_t col_form, const float* Control,
                                                             int32_t Control_index);

/* Checks and prints triplets.
     n_row: rows of A
     n_col: columns of A
     nz: number of triplets
     Ti: [nz]: rows of the triplets, zero-based
     Tj: [nz]: columns of the triplets, zero-based
     Tx: [nz], may be null: their values, or real parts
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_triplet(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_triplet_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Control, int32_t Control_index);

/* Checks and prints triplets.
     n_row: rows of A
     n_col: columns of A
     nz: number of triplets
     Ti: [nz]: rows of the triplets, zero-based
     Tj: [nz]: columns of the triplets, zero-based
     Tx: [nz], may be null: their values, or real parts
     Tz: [nz], may be null: imaginary parts
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_triplet(int32_t n_row, int32_t n_col, int32_t nz, const int32_t* Ti,
                                                          const int32_t* Tj, const float* Tx, const float* Tz,
                                                          const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_triplet_Idx(int32_t n_row, int32_t n_col, int32_t nz,
                                                              const int32_t* Ti, int32_t Ti_index, const int32_t* Tj,
                                                              int32_t Tj_index, const float* Tx, int32_t Tx_index,
                                                              const float* Tz, int32_t Tz_index, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a vector.
     n: length of the vector
     X: [n]: the vector
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_vector(int32_t n, const float* X, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_vector_Idx(int32_t n, const float* X, int32_t X_index,
                                                             const float* Control, int32_t Control_index);

/* Checks and prints a vector.
     n: length of the vector
     Xx: [n]: the vector, or its real parts
     Xz: [n], may be null: imaginary parts
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_vector(int32_t n, const float* Xx, const float* Xz,
                                                         const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_vector_Idx(int32_t n, const float* Xx, int32_t Xx_index,
                                                             const float* Xz, int32_t Xz_index, const float* Control,
                                                             int32_t Control_index);

/* Checks and prints a Symbolic object.
     Symbolic: the analysis
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_symbolic(void* Symbolic, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_symbolic_Idx(void* Symbolic, const float* Control,
                                                               int32_t Control_index);

/* Checks and prints a Symbolic object.
     Symbolic: the analysis
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_symbolic(void* Symbolic, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_symbolic_Idx(void* Symbolic, const float* Control,
                                                               int32_t Control_index);

/* Checks and prints a Numeric object.
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_numeric(void* Numeric, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_numeric_Idx(void* Numeric, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a Numeric object.
     Numeric: the factors
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_numeric(void* Numeric, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_numeric_Idx(void* Numeric, const float* Control,
                                                              int32_t Control_index);

/* Checks and prints a permutation.
     np: length of the permutation
     Perm: [np]: the permutation, zero-based
     Control: [20], may be null: settings; null for the defaults */
QUORIN_API int32_t QUORIN_CDECL umfpack_di_report_perm(int32_t np, const int32_t* Perm, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_si_report_perm_Idx(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                           const float* Control, int32_t Control_index);
QUORIN_API int32_t QUORIN_CDECL umfpack_zi_report_perm(int32_t np, const int32_t* Perm, const float* Control);
QUORIN_API int32_t QUORIN_CDECL umfpack_ci_report_perm_Idx(int32_t np, const int32_t* Perm, int32_t Perm_index,
                                                           const float* Control, int32_t Control_index);

/* ---- Timing ---- */

/* Begins a measurement: stats[0] <- 0, there being no wall clock; stats[1] <- processor time in seconds.
     stats: out, [2]: wall clock, always 0, and processor time, in seconds */
QUORIN_API void QUORIN_CDECL umfpack_tic(double* stats);
QUORIN_API void QUORIN_CDECL umfpack_tic_32f_Idx(double* stats, int32_t stats_index);

/* Ends it: stats[1] <- processor time since umfpack_tic.
     stats: in, out, [2]: wall clock, always 0, and processor time, in seconds */
QUORIN_API void QUORIN_CDECL umfpack_toc(double* stats);
QUORIN_API void QUORIN_CDECL umfpack_toc_32f_Idx(double* stats, int32_t stats_index);

/* Processor time in seconds. */
QUORIN_API double QUORIN_CDECL umfpack_timer(void);

#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
