#include "families/slap/driver.hpp"

#include <algorithm>
#include <cstdint>

#include "families/slap/column_matrix.hpp"
#include "families/slap/diagonal.hpp"
#include "families/slap/incomplete_cholesky.hpp"
#include "families/slap/incomplete_lu.hpp"
#include "families/slap/iterations.hpp"
#include "families/slap/lower_triangle.hpp"
#include "families/slap/slap.hpp"

namespace quorin::slap {
namespace {

// Hands out the host's work arrays: integers behind the header, and reals.
class WorkArrays {
 public:
  explicit WorkArrays(const Call& call)
      : call_(call), integers_used_(call.is_diagonal_gmres() ? 30 : 10), reals_used_(0) {}

  int* integers(std::int64_t count) { return call_.iwork + claim(integers_used_, count); }
  float* reals(std::int64_t count) { return call_.rwork + claim(reals_used_, count); }
  // One-based places of the next pieces.
  int next_integer() const { return static_cast<int>(integers_used_ + 1); }
  int next_real() const { return static_cast<int>(reals_used_ + 1); }

  // Header words are one-based.
  void set_header(int word, int value) {
    if (call_.sets_up) call_.iwork[word - 1] = value;
  }

 private:
  static std::ptrdiff_t claim(std::int64_t& used, std::int64_t count) {
    const auto begin = static_cast<std::ptrdiff_t>(used);
    used += count;
    return begin;
  }

  const Call& call_;
  std::int64_t integers_used_, reals_used_;
};

// How many reals the published lengths leave to the iteration, behind the preconditioner.
std::int64_t iteration_reals(const Call& call) {
  const std::int64_t n = call.n, s = call.nsave;
  switch (call.iteration) {
    case Iteration::kCg:
      return 4 * n;
    case Iteration::kCgNormal:
    case Iteration::kBicg:
    case Iteration::kCgs:
      return 7 * n;
    case Iteration::kGmres:
      return n * (s + 5) + s * (s + 3) + 1;
    case Iteration::kOrthomin:
      return (call.preconditioning == Preconditioning::kDiagonal ? 6 : 3) * n + s * (3 * n + 1);
    case Iteration::kRefinement:
      // Gauss and Seidel's length counts the diagonal entries that the matrix has; there may be n less.
      return call.preconditioning == Preconditioning::kLowerTriangle ? 2 * n : 3 * n;
  }
  return 0;
}

// GMRES without a host's test of its own: 0 asks for the residual that the iteration knows.
StoppingArguments stopping_arguments(const Call& call) {
  StoppingArguments stopping = call.stopping;
  if (call.iteration == Iteration::kGmres && stopping.itol == 0) stopping.itol = kResidual;
  return stopping;
}

void run_iteration(const Call&, const System<double>& system, Progress& progress, float* vectors) {
  normal_equations(system, progress, vectors);
}

void run_iteration(const Call& call, const System<float>& system, Progress& progress, float* vectors) {
  // More directions than iterations are not needed, whatever the host has room for.
  const int most = std::max(call.stopping.itmax, 1);
  switch (call.iteration) {
    case Iteration::kCg:
      return conjugate_gradients(system, progress, vectors);
    case Iteration::kCgNormal:
      return;  // runs in double
    case Iteration::kBicg:
      return biconjugate_gradients(system, progress, vectors);
    case Iteration::kCgs:
      return conjugate_gradients_squared(system, progress, vectors);
    case Iteration::kGmres:
      return minimal_residuals(system, std::min({call.nsave, call.n, most}), progress, vectors);
    case Iteration::kOrthomin:
      return orthomin(system, std::min(call.nsave, most), progress, vectors);
    case Iteration::kRefinement:
      return refinement(system, progress, vectors);
  }
}

// T is the type that the iteration computes in.
template <class T>
void iterate(const Call& call, const ColumnMatrix& matrix, const Preconditioner<T>& preconditioner,
             const Preconditioner<T>& transposed, WorkArrays& work) {
  float* const vectors = work.reals(iteration_reals(call));
  work.set_header(kIworkEnd, work.next_integer());
  work.set_header(kRworkEnd, work.next_real());
  Progress progress(stopping_arguments(call));
  run_iteration(call, System<T>{matrix, preconditioner, transposed, call.b, call.x}, progress, vectors);
}

void solve_with_diagonal(const Call& call, const ColumnMatrix& matrix) {
  WorkArrays work(call);
  work.set_header(4, work.next_real());
  float* const inverse = work.reals(call.n);
  if (call.iteration == Iteration::kCgNormal) {
    invert_row_squares(matrix, inverse);
    const Diagonal<double> diagonal(call.n, inverse);
    return iterate<double>(call, matrix, diagonal, diagonal, work);
  }
  invert_diagonal(matrix, inverse);
  const Diagonal<float> diagonal(call.n, inverse);
  iterate<float>(call, matrix, diagonal, diagonal, work);
}

// A strict triangle with room for `count` entries, and the header words where its columns, starts and values are.
struct HeaderWords {
  int columns, starts, values;
};
TriangularRows claim_rows(const Call& call, int count, HeaderWords words, WorkArrays& work) {
  work.set_header(words.columns, work.next_integer());
  int* const columns = work.integers(count);
  work.set_header(words.starts, work.next_integer());
  int* const starts = work.integers(call.n + std::int64_t{1});
  work.set_header(words.values, work.next_real());
  return {call.n, starts, columns, work.reals(count)};
}

void solve_with_lower_triangle(const Call& call, const ColumnMatrix& matrix) {
  WorkArrays work(call);
  const int count = count_lower(matrix);
  work.set_header(1, count);
  const TriangularRows rows = claim_rows(call, count, {2, 3, 4}, work);
  work.set_header(5, work.next_real());
  const LowerTriangle triangle(matrix, rows, work.reals(call.n));
  iterate<float>(call, matrix, triangle, triangle, work);
}

void solve_with_incomplete_cholesky(const Call& call, const ColumnMatrix& matrix) {
  WorkArrays work(call);
  // Room for the diagonal too, which is kept elsewhere. Full storage is taken to be symmetric.
  const int count = call.isym != 0 ? call.nelt : static_cast<int>((std::int64_t{call.nelt} + call.n) / 2);
  work.set_header(1, count);
  const TriangularRows l = claim_rows(call, count, {2, 3, 4}, work);
  work.set_header(5, work.next_real());
  float* const inverse = work.reals(call.n);
  if (call.sets_up) {
    float* const scratch = call.rwork + (work.next_real() - 1);  // the first vector of the iteration
    factor_cholesky(matrix, count, l, inverse, scratch);
  }
  const IncompleteCholesky cholesky(l, inverse);
  iterate<float>(call, matrix, cholesky, cholesky, work);
}

void solve_with_incomplete_lu(const Call& call, const ColumnMatrix& matrix) {
  WorkArrays work(call);
  const TriangleSizes sizes = count_triangles(matrix);
  LduFactors factors{};
  factors.l = claim_rows(call, sizes.lower, {1, 2, 5}, work);
  work.set_header(6, work.next_real());
  factors.inverse = work.reals(call.n);
  factors.u = claim_rows(call, sizes.upper, {3, 4, 7}, work);
  factor_ldu(matrix, factors, work.integers(2 * std::int64_t{call.n}));
  if (call.iteration == Iteration::kCgNormal) {
    const NormalIncompleteLu lu(factors);
    return iterate<double>(call, matrix, lu, lu, work);
  }
  iterate<float>(call, matrix, IncompleteLu(factors), TransposedIncompleteLu(factors), work);
}

bool has_bad_sizes(const Call& call) {
  if (call.n < 1 || call.nelt < 1) return true;
  if (call.iteration == Iteration::kGmres) return call.nsave < (call.is_diagonal_gmres() ? 2 : 1);
  return call.nsave < 0;
}

}  // namespace

void run(const Call& call) {
  const auto set_status = [&](Status status) { *call.stopping.ierr = static_cast<int>(status); };
  set_status(kConverged);
  if (call.is_diagonal_gmres()) *call.stopping.err = 0;
  if (has_bad_sizes(call)) {
    return set_status(kBadInput);
  }
  const ColumnMatrix matrix{call.n, call.nelt, call.ia, call.ja, call.a, call.isym != 0};
  if (!bring_to_columns(call.n, call.nelt, call.ia, call.ja, call.a) || !matrix.is_sound()) {
    return set_status(kBadInput);
  }
  switch (call.preconditioning) {
    case Preconditioning::kDiagonal:
      solve_with_diagonal(call, matrix);
      break;
    case Preconditioning::kLowerTriangle:
      solve_with_lower_triangle(call, matrix);
      break;
    case Preconditioning::kIncompleteCholesky:
      solve_with_incomplete_cholesky(call, matrix);
      break;
    case Preconditioning::kIncompleteLu:
      solve_with_incomplete_lu(call, matrix);
      break;
  }
  // These two report a limit that was passed before anything else that happened.
  const bool prefers_limit = call.is_diagonal_gmres() || call.is(Iteration::kCgNormal, Preconditioning::kDiagonal);
  if (prefers_limit && *call.stopping.iter > call.stopping.itmax) set_status(kNotConverged);
}

}  // namespace quorin::slap
