#include "families/umfpack_single/contents.hpp"

#include "families/umfpack_single/objects.hpp"

namespace quorin::umfpack_single {

template <class E>
int get_numeric(const Factors& to, const void* Numeric) {
  void* const numeric = contents(Numeric, kNumericOf<E>);
  int lnz = 0, unz = 0, n_row = 0, n_col = 0, nz_udiag = 0;
  const int found = E::kGetLunz(&lnz, &unz, &n_row, &n_col, &nz_udiag, numeric);
  if (found != UMFPACK_OK) return found;
  // A factor is stored only if there are arrays for all of it.
  const bool wants_L = to.Lp != nullptr && to.Lj != nullptr && to.Lx;
  const bool wants_U = to.Up != nullptr && to.Ui != nullptr && to.Ux;
  Doubles<E> Lx(wants_L, length(lnz)), Ux(wants_U, length(unz));
  Doubles<E> Dx(static_cast<bool>(to.Dx), length(n_row < n_col ? n_row : n_col));
  Doubles<Real> Rs(to.Rs != nullptr, length(n_row));
  if (Lx.has_failed() || Ux.has_failed() || Dx.has_failed() || Rs.has_failed()) return UMFPACK_ERROR_out_of_memory;
  const int status = call<E>(E::kGetNumeric, to.Lp, to.Lj, Lx.output(), to.Up, to.Ui, Ux.output(), to.P, to.Q,
                             Dx.output(), to.do_recip, Rs.output().x, numeric);
  if (status != UMFPACK_OK) return status;
  Lx.narrow_to(to.Lx);
  Ux.narrow_to(to.Ux);
  Dx.narrow_to(to.Dx);
  Rs.narrow_to({to.Rs});
  return status;
}

template int get_numeric<Real>(const Factors&, const void*);
template int get_numeric<Complex>(const Factors&, const void*);

}  // namespace quorin::umfpack_single
