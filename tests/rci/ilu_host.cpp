#include "tests/rci/ilu_host.hpp"

#include "tests/support/standard.hpp"

namespace rci_test {

Settings::Settings(double threshold, bool replaces, double value) : ipar(128), dpar(128) {
  ipar[30] = replaces ? 1 : 0;
  dpar[30] = threshold;
  dpar[31] = value;
}

Ilu0::Ilu0(const Csr& A, const Settings& s) : factors(A), values(A.a.size(), -7.0) {
  call_index_form(sDCSRILU0_Idx, &A.n, A.a, A.ia, A.ja, values, s.ipar, s.dpar, &ierr);
  guarded = values.intact();
  for (std::size_t k = 0; k < A.a.size(); ++k) factors.a[k] = values[k];
}

Ilut::Ilut(const Csr& A, double tol, int fill, const Settings& s) {
  const int p = std::max(0, std::min(fill, A.n - 1));
  const auto length = static_cast<std::size_t>((2 * p + 1) * A.n - p * (p + 1) + 1);
  Guarded<double> values(length, -7.0);
  Guarded<int> starts(A.n + 1, -7), columns(length, -7);
  call_index_form(sDCSRILUT_Idx, &A.n, A.a, A.ia, A.ja, values, starts, columns, &tol, &fill, s.ipar, s.dpar, &ierr);
  guarded = values.intact() && starts.intact() && columns.intact();
  if (ierr < 0) return;
  factors.n = A.n;
  factors.ia.assign(starts.data(), starts.data() + A.n + 1);
  const int count = factors.ia[A.n] - 1;
  factors.ja.assign(columns.data(), columns.data() + count);
  factors.a.assign(values.data(), values.data() + count);
}

}  // namespace rci_test
