#include "families/umfpack_single/factorization.hpp"

#include "dense/dense.hpp"
#include "families/umfpack_single/info.hpp"
#include "families/umfpack_single/objects.hpp"
#include "families/umfpack_single/pattern.hpp"
#include "families/umfpack_single/settings.hpp"
#include "families/umfpack_single/umfpack_single.hpp"
#include "sparse/sparse.hpp"

namespace quorin::umfpack_single {
namespace {

// Hands the object to the host if it holds anything; frees it otherwise.
void hand_over(Object* object, void** handle) {
  if (object->contents != nullptr && handle != nullptr) {
    *handle = publish(object);
  } else {
    destroy(object);
  }
}

// What UMFPACK makes of the matrix that was analysed before, in `object->contents`.
template <class E>
int factorize(const Matrix& A, const Object& symbolic, Object* object, const float* Control, double* info) {
  const bool has_all = A.Ap != nullptr && A.Ai != nullptr && A.Ax;
  if (has_all) {
    const bool is_same = sparse::check_starts(symbolic.n_col, A.Ap) && A.Ap[symbolic.n_col] == symbolic.nz &&
                         fingerprint(symbolic.n_col, A.Ap, A.Ai) == symbolic.fingerprint;
    if (!is_same) return UMFPACK_ERROR_different_pattern;
  }
  const Doubles<E> Ax(has_all ? A.Ax : FloatInput{}, length(symbolic.nz));
  const dense::KernelBuffer buffer(1);
  if (Ax.has_failed() || buffer.granted() == 0) return UMFPACK_ERROR_out_of_memory;
  return call<E>(E::kNumeric, A.Ap, A.Ai, Ax.input(), symbolic.contents, &object->contents, Settings(Control).data(),
                 info);
}

void free_object(void** handle, Kind real, Kind complex) {
  if (handle == nullptr) return;
  for (const Kind kind : {real, complex}) {
    if (Object* const object = withdraw(*handle, kind)) {
      destroy(object);
      *handle = nullptr;
      return;
    }
  }
}

}  // namespace

template <class E>
int qsymbolic(int n_row, int n_col, const Matrix& A, const int* Qinit, void** Symbolic, const float* Control,
              float* Info) {
  InfoArray info(Info);
  info.clear();
  if (Symbolic != nullptr) *Symbolic = nullptr;
  Object* const object = create_object(kSymbolicOf<E>);
  const Starts Ap(n_row, n_col, A.Ap, A.Ai);
  const int nz = Ap.are_sound() ? A.Ap[n_col] : 0;
  const Doubles<E> Ax(Ap.are_sound() ? A.Ax : FloatInput{}, length(nz));
  int status = UMFPACK_ERROR_out_of_memory;
  if (object != nullptr && !Ap.has_failed() && !Ax.has_failed()) {
    status = call<E>(E::kQsymbolic, n_row, n_col, Ap.data(), A.Ai, Ax.input(), Qinit,
                     Symbolic != nullptr ? &object->contents : nullptr, Settings(Control).data(), info.data());
  }
  info.describe(n_row, n_col, A.Ap);
  if (object != nullptr) {
    object->n_row = n_row;
    object->n_col = n_col;
    object->nz = nz;
    if (object->contents != nullptr) object->fingerprint = fingerprint(n_col, A.Ap, A.Ai);
    hand_over(object, Symbolic);
  }
  return info.finish(status);
}

template <class E>
int numeric(const Matrix& A, const void* Symbolic, void** Numeric, const float* Control, float* Info) {
  if (Numeric != nullptr) *Numeric = nullptr;
  const Object* const symbolic = find(Symbolic, kSymbolicOf<E>);
  if (symbolic == nullptr) return report_status_in(Info, UMFPACK_ERROR_invalid_Symbolic_object);
  if (Numeric == nullptr) return report_status_in(Info, UMFPACK_ERROR_argument_missing);
  InfoArray info(Info);
  Object* const object = create_object(kNumericOf<E>);
  if (object == nullptr) return info.finish(UMFPACK_ERROR_out_of_memory);
  const int status = factorize<E>(A, *symbolic, object, Control, info.data());
  object->n_row = symbolic->n_row;
  object->n_col = symbolic->n_col;
  object->is_singular = status == UMFPACK_WARNING_singular_matrix;
  hand_over(object, Numeric);
  return info.finish(status);
}

void free_symbolic(void** Symbolic) noexcept { free_object(Symbolic, kSymbolicOf<Real>, kSymbolicOf<Complex>); }

void free_numeric(void** Numeric) noexcept { free_object(Numeric, kNumericOf<Real>, kNumericOf<Complex>); }

template int qsymbolic<Real>(int, int, const Matrix&, const int*, void**, const float*, float*);
template int qsymbolic<Complex>(int, int, const Matrix&, const int*, void**, const float*, float*);
template int numeric<Real>(const Matrix&, const void*, void**, const float*, float*);
template int numeric<Complex>(const Matrix&, const void*, void**, const float*, float*);

}  // namespace quorin::umfpack_single
