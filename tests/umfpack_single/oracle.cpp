#include "tests/umfpack_single/oracle.hpp"

#include <umfpack_double.h>

namespace umfpack_test {

OracleResult oracle_solve(const Matrix& A, const Doubles& Bx, const Doubles& Bz) {
  OracleResult result;
  void *Symbolic = nullptr, *Numeric = nullptr;
  double* const info = result.info.data();
  const int *Ap = A.Ap.data(), *Ai = A.Ai.data();
  const double *Ax = A.Ax.data(), *Az = A.Az.data();
  const bool is_complex = A.is_complex();
  result.symbolic = is_complex ? umfpack_zi_symbolic(A.n_row, A.n_col, Ap, Ai, Ax, Az, &Symbolic, nullptr, info)
                               : umfpack_di_symbolic(A.n_row, A.n_col, Ap, Ai, Ax, &Symbolic, nullptr, info);
  result.numeric = is_complex ? umfpack_zi_numeric(Ap, Ai, Ax, Az, Symbolic, &Numeric, nullptr, info)
                              : umfpack_di_numeric(Ap, Ai, Ax, Symbolic, &Numeric, nullptr, info);
  result.Xx.resize(A.order());
  result.Xz.resize(A.order());
  result.solve = is_complex
                     ? umfpack_zi_solve(UMFPACK_A, Ap, Ai, Ax, Az, result.Xx.data(), result.Xz.data(), Bx.data(),
                                        Bz.data(), Numeric, nullptr, info)
                     : umfpack_di_solve(UMFPACK_A, Ap, Ai, Ax, result.Xx.data(), Bx.data(), Numeric, nullptr, info);
  umfpack_di_free_symbolic(&Symbolic);
  umfpack_di_free_numeric(&Numeric);
  return result;
}

}  // namespace umfpack_test
