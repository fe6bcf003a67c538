#include "bench/umfpack_double.hpp"

#include <umfpack_double.h>

#include <cstddef>
#include <new>

// The BLAS below UMFPACK asks for a packing buffer: one that is kept, as the product keeps its own.
extern "C" {
void* blas_memory_alloc(int position);
void blas_memory_free(void* buffer);

void* blas_memory_alloc(int) {
  constexpr std::size_t kBytes = std::size_t{sizeof(void*) == 4 ? 16 : 128} << 20;
  constexpr auto kAlignment = std::align_val_t{4096};
  static void* const buffer = operator new(kBytes, kAlignment);
  return buffer;
}
void blas_memory_free(void*) {}
}

namespace quorin::bench {

int solve_with_umfpack(const test::CompressedArrays& a, const std::vector<double>& b, std::vector<double>& x,
                       std::vector<double>& z) {
  void *symbolic = nullptr, *numeric = nullptr;
  const int n = static_cast<int>(b.size()), *const starts = a.starts.data(), *const rows = a.indices.data();
  const double *const re = a.re.data(), *const im = a.im.data();
  double info[UMFPACK_INFO];
  int status = 0;
  if (!a.im.empty()) {
    umfpack_zi_symbolic(n, n, starts, rows, re, im, &symbolic, nullptr, info);
    umfpack_zi_numeric(starts, rows, re, im, symbolic, &numeric, nullptr, info);
    status = umfpack_zi_solve(UMFPACK_A, starts, rows, re, im, x.data(), z.data(), b.data(), b.data(), numeric, nullptr,
                              info);
  } else {
    umfpack_di_symbolic(n, n, starts, rows, re, &symbolic, nullptr, info);
    umfpack_di_numeric(starts, rows, re, symbolic, &numeric, nullptr, info);
    status = umfpack_di_solve(UMFPACK_A, starts, rows, re, x.data(), b.data(), numeric, nullptr, info);
  }
  umfpack_di_free_symbolic(&symbolic);
  umfpack_di_free_numeric(&numeric);
  return status;
}

}  // namespace quorin::bench
