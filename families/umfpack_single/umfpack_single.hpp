// UMFPACK with float entries, Control and Info, over UMFPACK in double precision.
//
// Matrices are compressed columns: Ap[0] = 0, Ap[n_col] entries, row indices ascending in each column. Complex arrays
// come split, real parts in x and imaginary parts in z, or packed in x if z is null. Every float that comes in is
// widened for the computation, every result narrowed; a routine allocates double copies of the arrays that it reads and
// writes, for the time of the call. The statuses are UMFPACK's; -1 means that memory was short, and then no object
// exists. Any number of threads may work on objects of their own, and solve with one object at once.
//
// Source: T. A. Davis, Algorithm 832: UMFPACK V4.3 -- an unsymmetric-pattern multifrontal method, ACM TOMS 30 (2004)
// 196-199; UMFPACK User Guide.
#pragma once

namespace quorin::umfpack_single {

// Called once, at load: gives UMFPACK, with AMD and COLAMD, the library's allocator and text output.
void start() noexcept;

// Of both families.
void free_symbolic(void** Symbolic) noexcept;
void free_numeric(void** Numeric) noexcept;
void defaults(float* Control) noexcept;
int col_to_triplet(int n_col, const int* Ap, int* Tj) noexcept;
void report_status(const float* Control, int status) noexcept;
void report_info(const float* Control, const float* Info) noexcept;
void report_control(const float* Control) noexcept;
int report_perm(int np, const int* Perm, const float* Control) noexcept;

// stats[0] wall clock, always 0; stats[1] processor time in seconds, since `tic` after `toc`.
void tic(double* stats) noexcept;
void toc(double* stats) noexcept;
double timer() noexcept;

namespace real {

int symbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, void** Symbolic, const float* Control,
             float* Info) noexcept;
int qsymbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const int* Qinit, void** Symbolic,
              const float* Control, float* Info) noexcept;
int numeric(const int* Ap, const int* Ai, const float* Ax, void* Symbolic, void** Numeric, const float* Control,
            float* Info) noexcept;
int solve(int sys, const int* Ap, const int* Ai, const float* Ax, float* X, const float* B, void* Numeric,
          const float* Control, float* Info) noexcept;
int wsolve(int sys, const int* Ap, const int* Ai, const float* Ax, float* X, const float* B, void* Numeric,
           const float* Control, float* Info, int* Wi, float* W) noexcept;
int scale(float* X, const float* B, void* Numeric) noexcept;
int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, void* Numeric) noexcept;
int get_numeric(int* Lp, int* Lj, float* Lx, int* Up, int* Ui, float* Ux, int* P, int* Q, float* Dx, int* do_recip,
                float* Rs, void* Numeric) noexcept;
int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q, int* Front_npivcol,
                 int* Front_parent, int* Front_1strow, int* Front_leftmostdesc, int* Chain_start, int* Chain_maxrows,
                 int* Chain_maxcols, void* Symbolic) noexcept;
int get_determinant(float* Mx, float* Ex, void* Numeric, float* Info) noexcept;
int triplet_to_col(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, int* Ap, int* Ai,
                   float* Ax, int* Map) noexcept;
int transpose(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const int* P, const int* Q, int* Rp,
              int* Ri, float* Rx) noexcept;
int report_matrix(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, int col_form,
                  const float* Control) noexcept;
int report_triplet(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx,
                   const float* Control) noexcept;
int report_vector(int n, const float* X, const float* Control) noexcept;
int report_symbolic(void* Symbolic, const float* Control) noexcept;
int report_numeric(void* Numeric, const float* Control) noexcept;

}  // namespace real

namespace complex {

int symbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, void** Symbolic,
             const float* Control, float* Info) noexcept;
int qsymbolic(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, const int* Qinit,
              void** Symbolic, const float* Control, float* Info) noexcept;
int numeric(const int* Ap, const int* Ai, const float* Ax, const float* Az, void* Symbolic, void** Numeric,
            const float* Control, float* Info) noexcept;
int solve(int sys, const int* Ap, const int* Ai, const float* Ax, const float* Az, float* Xx, float* Xz,
          const float* Bx, const float* Bz, void* Numeric, const float* Control, float* Info) noexcept;
int wsolve(int sys, const int* Ap, const int* Ai, const float* Ax, const float* Az, float* Xx, float* Xz,
           const float* Bx, const float* Bz, void* Numeric, const float* Control, float* Info, int* Wi,
           float* W) noexcept;
int scale(float* Xx, float* Xz, const float* Bx, const float* Bz, void* Numeric) noexcept;
int get_lunz(int* lnz, int* unz, int* n_row, int* n_col, int* nz_udiag, void* Numeric) noexcept;
int get_numeric(int* Lp, int* Lj, float* Lx, float* Lz, int* Up, int* Ui, float* Ux, float* Uz, int* P, int* Q,
                float* Dx, float* Dz, int* do_recip, float* Rs, void* Numeric) noexcept;
int get_symbolic(int* n_row, int* n_col, int* n1, int* nz, int* nfr, int* nchains, int* P, int* Q, int* Front_npivcol,
                 int* Front_parent, int* Front_1strow, int* Front_leftmostdesc, int* Chain_start, int* Chain_maxrows,
                 int* Chain_maxcols, void* Symbolic) noexcept;
int get_determinant(float* Mx, float* Mz, float* Ex, void* Numeric, float* Info) noexcept;
int triplet_to_col(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, const float* Tz,
                   int* Ap, int* Ai, float* Ax, float* Az, int* Map) noexcept;
int transpose(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, const int* P,
              const int* Q, int* Rp, int* Ri, float* Rx, float* Rz, int do_conjugate) noexcept;
int report_matrix(int n_row, int n_col, const int* Ap, const int* Ai, const float* Ax, const float* Az, int col_form,
                  const float* Control) noexcept;
int report_triplet(int n_row, int n_col, int nz, const int* Ti, const int* Tj, const float* Tx, const float* Tz,
                   const float* Control) noexcept;
int report_vector(int n, const float* Xx, const float* Xz, const float* Control) noexcept;
int report_symbolic(void* Symbolic, const float* Control) noexcept;
int report_numeric(void* Numeric, const float* Control) noexcept;

}  // namespace complex

}  // namespace quorin::umfpack_single
