#include "families/umfpack_single/solution.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "families/umfpack_single/info.hpp"
#include "families/umfpack_single/objects.hpp"
#include "families/umfpack_single/settings.hpp"
#include "sparse/sparse.hpp"

namespace quorin::umfpack_single {

namespace {

// Whether UMFPACK reads the matrix, for iterative refinement.
bool is_refined(int sys, const Object& numeric, const float* Control) {
  return sys >= UMFPACK_A && sys <= UMFPACK_Aat && whole_setting(Control, UMFPACK_IRSTEP) > 0 && !numeric.is_singular;
}

// Lengths of the double workspace of the published interface, which is that of the host's float workspace, too.
template <class E>
std::size_t work_length(std::size_t n, bool refined) {
  if (E::kParts == 1) return base::saturating_product(n, refined ? 5 : 1);
  return base::saturating_product(n, refined ? 10 : 4);
}

// The solution itself, for arguments that are all there.
template <class E>
int solve_into(int sys, const Matrix& A, FloatOutput X, FloatInput B, const Object& numeric, const float* Control,
               double* info, int* Wi, float* W) {
  const std::size_t n = length(numeric.n_row);
  const bool refined = is_refined(sys, numeric, Control);
  if (refined && !(sparse::check_compressed(numeric.n_col, numeric.n_row, A.Ap, A.Ai))) {
    return UMFPACK_ERROR_invalid_matrix;
  }
  // The right-hand side and the solution live in the caller's workspace as far as it holds them.
  const std::size_t length_of_work = work_length<E>(n, refined);
  Scratch scratch(W, length_of_work);
  Doubles<E> x(true, n, &scratch);
  const Doubles<E> b(B, n, &scratch);
  const Doubles<E> Ax(refined ? A.Ax : FloatInput{}, refined ? length(A.Ap[numeric.n_col]) : 0);
  base::Workspace<double> work(length_of_work);
  if (x.has_failed() || b.has_failed() || Ax.has_failed() || !work) return UMFPACK_ERROR_out_of_memory;
  const int status = call<E>(E::kWsolve, sys, A.Ap, A.Ai, Ax.input(), x.output(), b.input(), numeric.contents,
                             Settings(Control).data(), info, Wi, work.data());
  if (status >= 0) x.narrow_to(X);
  return status;
}

template <class E>
int solve_with(int sys, const Matrix& A, FloatOutput X, FloatInput B, const void* Numeric, const float* Control,
               float* Info, int* Wi, float* W) {
  const Object* const numeric = find(Numeric, kNumericOf<E>);
  if (numeric == nullptr) return report_status_in(Info, UMFPACK_ERROR_invalid_Numeric_object);
  InfoArray info(Info);
  info.data()[UMFPACK_NROW] = numeric->n_row;
  info.data()[UMFPACK_NCOL] = numeric->n_col;
  if (numeric->n_row != numeric->n_col || sys < UMFPACK_A || sys > UMFPACK_Uat) {
    return info.finish(UMFPACK_ERROR_invalid_system);
  }
  const bool needs_matrix = is_refined(sys, *numeric, Control);
  const bool is_complete = X && B && Wi != nullptr && (!needs_matrix || (A.Ap != nullptr && A.Ai != nullptr && A.Ax));
  if (!is_complete) return info.finish(UMFPACK_ERROR_argument_missing);
  return info.finish(solve_into<E>(sys, A, X, B, *numeric, Control, info.data(), Wi, W));
}

// Whether the determinant has an infinite factor, in U's diagonal or in the scaling.
template <class E>
int find_infinite_factors(const Object& numeric, bool& found) {
  const std::size_t n = length(std::min(numeric.n_row, numeric.n_col)), rows = length(numeric.n_row);
  Doubles<E> D(true, n);
  Doubles<Real> scales(true, rows);
  if (D.has_failed() || scales.has_failed()) return UMFPACK_ERROR_out_of_memory;
  int* const none = nullptr;
  int do_recip = 0;
  const Entries<double> no_entries;
  const int status = call<E>(E::kGetNumeric, none, none, no_entries, none, none, no_entries, none, none, D.output(),
                             &do_recip, scales.output().x, numeric.contents);
  const auto is_infinite = [](double value) { return std::isinf(value); };
  found = std::any_of(D.output().x, D.output().x + n * E::kParts, is_infinite) ||
          std::any_of(scales.output().x, scales.output().x + rows, is_infinite);
  return status;
}

}  // namespace

template <class E>
int solve(int sys, const Matrix& A, FloatOutput X, FloatInput B, const void* Numeric, const float* Control,
          float* Info) {
  const Object* const numeric = find(Numeric, kNumericOf<E>);
  base::Workspace<int> Wi(numeric != nullptr ? length(numeric->n_row) : 0);
  if (!Wi) return report_status_in(Info, UMFPACK_ERROR_out_of_memory);
  return solve_with<E>(sys, A, X, B, Numeric, Control, Info, Wi.data(), nullptr);
}

template <class E>
int wsolve(int sys, const Matrix& A, FloatOutput X, FloatInput B, const void* Numeric, const float* Control,
           float* Info, int* Wi, float* W) {
  const bool has_work = Wi != nullptr && W != nullptr;
  return solve_with<E>(sys, A, X, B, Numeric, Control, Info, has_work ? Wi : nullptr, W);
}

template <class E>
int scale(FloatOutput X, FloatInput B, const void* Numeric) {
  const Object* const numeric = find(Numeric, kNumericOf<E>);
  if (numeric == nullptr) return UMFPACK_ERROR_invalid_Numeric_object;
  if (!X || !B) return UMFPACK_ERROR_argument_missing;
  const std::size_t n = length(numeric->n_row);
  Doubles<E> x(true, n);
  const Doubles<E> b(B, n);
  if (x.has_failed() || b.has_failed()) return UMFPACK_ERROR_out_of_memory;
  const int status = call<E>(E::kScale, x.output(), b.input(), numeric->contents);
  if (status == UMFPACK_OK) x.narrow_to(X);
  return status;
}

template <class E>
int get_determinant(FloatOutput M, float* Ex, const void* Numeric, float* Info) {
  double mantissa[2] = {}, exponent = 0;
  double* const m = M ? mantissa : nullptr;
  const Object* const numeric = find(Numeric, kNumericOf<E>);
  bool is_infinite = false;
  int found = UMFPACK_OK;
  if (m != nullptr && numeric != nullptr) found = find_infinite_factors<E>(*numeric, is_infinite);
  // UMFPACK's loop that scales the mantissa would never end with an infinite one.
  if (is_infinite) mantissa[0] = std::numeric_limits<double>::quiet_NaN();
  if (found == UMFPACK_OK && !is_infinite) {
    found = call<E>(E::kGetDeterminant, Entries<double>{m}, &exponent, contents(Numeric, kNumericOf<E>),
                    static_cast<double*>(nullptr));
  }
  if (found < 0) return report_status_in(Info, found);

  // Over- and underflow are a matter of floats here.
  const double power = std::pow(10.0, exponent);
  const double value[2] = {mantissa[0] * power, mantissa[1] * power};
  const float rounded[2] = {static_cast<float>(value[0]), static_cast<float>(value[1])};
  const bool is_number = !std::isnan(mantissa[0]) && !std::isnan(mantissa[1]);
  int status = UMFPACK_OK;
  if (!is_number || (mantissa[0] == 0 && mantissa[1] == 0)) {
    status = UMFPACK_WARNING_singular_matrix;
  } else if (rounded[0] == 0 && rounded[1] == 0) {
    status = UMFPACK_WARNING_determinant_underflow;
  } else if (!std::isfinite(rounded[0]) || !std::isfinite(rounded[1])) {
    status = UMFPACK_WARNING_determinant_overflow;
  }
  // A mantissa just below 10 may become 10 as a float.
  if (static_cast<float>(std::hypot(mantissa[0], mantissa[1])) >= 10) {
    mantissa[0] /= 10;
    mantissa[1] /= 10;
    ++exponent;
  }
  narrow<E>(Ex != nullptr ? mantissa : value, 1, M);
  if (Ex != nullptr) *Ex = static_cast<float>(exponent);
  return report_status_in(Info, status);
}

template int solve<Real>(int, const Matrix&, FloatOutput, FloatInput, const void*, const float*, float*);
template int solve<Complex>(int, const Matrix&, FloatOutput, FloatInput, const void*, const float*, float*);
template int wsolve<Real>(int, const Matrix&, FloatOutput, FloatInput, const void*, const float*, float*, int*, float*);
template int wsolve<Complex>(int, const Matrix&, FloatOutput, FloatInput, const void*, const float*, float*, int*,
                             float*);
template int scale<Real>(FloatOutput, FloatInput, const void*);
template int scale<Complex>(FloatOutput, FloatInput, const void*);
template int get_determinant<Real>(FloatOutput, float*, const void*, float*);
template int get_determinant<Complex>(FloatOutput, float*, const void*, float*);

}  // namespace quorin::umfpack_single
