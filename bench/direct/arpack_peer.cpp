#include "bench/direct/arpack_peer.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace quorin::bench {

#if defined(QUORIN_HAS_ARPACK)

extern "C" {
// Without the lengths of strings that Fortran passes last, which are 1 or 2, and are not read.
void dsaupd_(std::int32_t* ido, const char* bmat, const std::int32_t* n, const char* which, const std::int32_t* nev,
             const double* tol, double* resid, const std::int32_t* ncv, double* v, const std::int32_t* ldv,
             std::int32_t* iparam, std::int32_t* ipntr, double* workd, double* workl, const std::int32_t* lworkl,
             std::int32_t* info, std::size_t, std::size_t);
void dseupd_(const std::int32_t* rvec, const char* howmny, std::int32_t* select, double* d, double* z,
             const std::int32_t* ldz, const double* sigma, const char* bmat, const std::int32_t* n, const char* which,
             const std::int32_t* nev, const double* tol, double* resid, const std::int32_t* ncv, double* v,
             const std::int32_t* ldv, std::int32_t* iparam, std::int32_t* ipntr, double* workd, double* workl,
             const std::int32_t* lworkl, std::int32_t* info, std::size_t, std::size_t, std::size_t);
}

bool has_arpack() { return true; }

std::vector<double> arpack_eigenvalues(int n, int count, double shift, const std::function<void(double*)>& solve) {
  const std::int32_t basis = std::min(n, 2 * count + 10), work = basis * (basis + 8), vectors = 1;
  const double tolerance = 1e-9;
  const auto length = static_cast<std::size_t>(n), columns = static_cast<std::size_t>(basis);
  std::vector<double> residual(length), v(length * columns), workd(3 * length), workl(static_cast<std::size_t>(work)),
      values(static_cast<std::size_t>(count));
  std::vector<std::int32_t> chosen(columns);
  std::int32_t parameters[11] = {1, 0, 300, 1, 0, 0, 3}, pointers[11] = {}, request = 0, info = 0;
  for (;;) {
    dsaupd_(&request, "I", &n, "LM", &count, &tolerance, residual.data(), &basis, v.data(), &n, parameters, pointers,
            workd.data(), workl.data(), &work, &info, 1, 2);
    if (request != -1 && request != 1) break;
    double* const y = workd.data() + pointers[1] - 1;
    std::copy_n(workd.data() + pointers[0] - 1, n, y);
    solve(y);
  }
  if (info != 0) throw std::runtime_error("ARPACK returns " + std::to_string(info));
  dseupd_(&vectors, "A", chosen.data(), values.data(), v.data(), &n, &shift, "I", &n, "LM", &count, &tolerance,
          residual.data(), &basis, v.data(), &n, parameters, pointers, workd.data(), workl.data(), &work, &info, 1, 1,
          2);
  if (info != 0) throw std::runtime_error("ARPACK returns " + std::to_string(info));
  std::sort(values.begin(), values.end());
  return values;
}

#else

bool has_arpack() { return false; }
std::vector<double> arpack_eigenvalues(int, int, double, const std::function<void(double*)>&) {
  throw std::logic_error("this program was built without ARPACK");
}

#endif

}  // namespace quorin::bench
