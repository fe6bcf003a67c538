// libFuzzer's target for the matrix readers; tests/taucs/fuzz builds and runs it. The environment variable
// QUORIN_FUZZ_READER names the reader.
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
  // A product touches every entry that the record claims.
  if (A != nullptr && A->n < 100000 && A->m < 100000) {
    const std::vector<std::complex<double>> x(static_cast<std::size_t>(std::max(A->n, A->m)));
    std::vector<std::complex<double>> b(x.size());
    quorin::taucs::ccs_times_vec(A, x.data(), b.data());
  }
  quorin::taucs::ccs_free(A);
  return 0;
}
