// libFuzzer's target for the matrix readers and for operations on what they have read; tests/taucs/fuzz builds and runs
// it. The environment variable QUORIN_FUZZ_READER names the reader.
#include <algorithm>
#include <complex>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include "families/taucs/taucs.hpp"

namespace {

using quorin::taucs::CcsMatrix;
constexpr int kAny = quorin::taucs::kDouble | quorin::taucs::kDcomplex;

CcsMatrix* read(std::string_view reader, const char* name) {
  if (reader == "ijv") return quorin::taucs::ccs_read_ijv(name, quorin::taucs::kDouble);
  if (reader == "ijv_zero_based") return quorin::taucs::ccs_read_ijv_zero_based(name, kAny | quorin::taucs::kHermitian);
  if (reader == "mtx") return quorin::taucs::ccs_read_mtx(name, quorin::taucs::kDouble | quorin::taucs::kSymmetric);
  if (reader == "ccs") return quorin::taucs::ccs_read_ccs(name, quorin::taucs::kDouble);
  if (reader == "binary") return quorin::taucs::ccs_read_binary(name);
  if (reader == "hb") return quorin::taucs::ccs_read_hb(name, kAny);
  std::abort();
}

// All that can be done with a record, with arrays as long as its fields say.
void operate(CcsMatrix* A) {
  namespace taucs = quorin::taucs;
  const auto n = static_cast<std::size_t>(A->n), m = static_cast<std::size_t>(A->m);
  const std::vector<std::complex<double>> x(std::max(n, m));
  std::vector<std::complex<double>> b(x.size());
  taucs::ccs_times_vec(A, x.data(), b.data());

  CcsMatrix* const transposed = taucs::ccs_transpose(A);
  if (transposed != nullptr) taucs::ccs_free(taucs::ccs_transpose(transposed));
  taucs::ccs_free(transposed);
  std::vector<int> order(n), rows(m);
  for (std::size_t k = 0; k < n; ++k) order[k] = static_cast<int>(n - 1 - k);
  for (std::size_t k = 0; k < m; ++k) rows[k] = static_cast<int>(m - 1 - k);
  taucs::ccs_free(taucs::ccs_permute_symmetrically(A, order.data(), order.data()));
  taucs::ccs_free(taucs::ccs_augment_nonpositive_offdiagonals(A));
  CcsMatrix *left = nullptr, *right = nullptr;
  taucs::ccs_split(A, &left, &right, A->n / 2);
  for (CcsMatrix* const part : {left, right}) {
    if (part != nullptr) taucs::ccs_free(taucs::ccs_transpose(part));
    taucs::ccs_free(part);
  }
  for (const char* const name : {"camd", "metis", "genmmd", "tree", "colamd", "random", "identity"}) {
    int *permutation = nullptr, *inverse = nullptr;
    taucs::ccs_order(A, &permutation, &inverse, name);
    quorin::base::release(permutation);
    quorin::base::release(inverse);
  }
  taucs::ccs_permute_rows_inplace(A, rows.data());
  taucs::ccs_free(taucs::ccs_transpose(A));
}

}  // namespace

// The linker leads the library's allocations here. A matrix that says it is larger than this gets no memory, or the
// fuzzer would spend its time on clearing arrays.
extern "C" {
void* __real_malloc(std::size_t);
void* __real_realloc(void*, std::size_t);
constexpr std::size_t kMost = std::size_t{1} << 20;
void* __wrap_malloc(std::size_t size) { return size > kMost ? nullptr : __real_malloc(size); }
void* __wrap_realloc(void* block, std::size_t size) { return size > kMost ? nullptr : __real_realloc(block, size); }
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static const char* const kReader = std::getenv("QUORIN_FUZZ_READER");
  static const int kFile = memfd_create("matrix", 0);
  static const std::string kName = "/proc/self/fd/" + std::to_string(kFile);
  if (kReader == nullptr || ftruncate(kFile, 0) != 0 || pwrite(kFile, data, size, 0) != static_cast<ssize_t>(size)) {
    std::abort();
  }
  CcsMatrix* const A = read(kReader, kName.c_str());
  if (A != nullptr && A->n < 10000 && A->m < 10000) operate(A);
  quorin::taucs::ccs_free(A);
  return 0;
}
