#include <cstring>

#include "base/workspace.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/files/files.hpp"

namespace quorin::taucs {
namespace {

// Bytes of n elements of the type that the flags name; without one the process stops.
std::size_t vector_bytes(int n, int flags) noexcept {
  std::size_t element = 0;
  if ((flags & kDouble) != 0) element = sizeof(double);
  if ((flags & kSingle) != 0) element = sizeof(float);
  if ((flags & kDcomplex) != 0) element = sizeof(Complex);
  if ((flags & kScomplex) != 0) element = sizeof(std::complex<float>);
  if (element == 0) platform::fail_assertion("0", kFilesSource, __LINE__);
  return base::saturating_product(static_cast<std::size_t>(n), element);
}

}  // namespace

void* vec_read_binary(std::int32_t n, std::int32_t flags, const char* filename) noexcept {
  if (n < 0) return nullptr;
  const std::size_t bytes = vector_bytes(n, flags);
  platform::File file;
  file.open_for_reading(filename);
  if (file && file.size() < bytes) return nullptr;
  void* const v = base::allocate(bytes == 0 ? 1 : bytes);
  if (v == nullptr) return nullptr;
  if (!file) {
    std::memset(v, 0, bytes);
  } else if (file.read(v, bytes) < bytes) {
    base::release(v);
    return nullptr;
  }
  return v;
}

std::int32_t vec_write_binary(std::int32_t n, std::int32_t flags, const void* v, const char* filename) noexcept {
  const std::size_t bytes = vector_bytes(n < 0 ? 0 : n, flags);
  platform::File file;
  file.open_for_overwriting(filename);
  file.write(v, bytes);
  return 0;
}

}  // namespace quorin::taucs
