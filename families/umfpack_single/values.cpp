#include "families/umfpack_single/values.hpp"

#include <cstdint>

namespace quorin::umfpack_single {

double* Scratch::take(std::size_t doubles) {
  const auto address = reinterpret_cast<std::uintptr_t>(memory_);
  const std::size_t gap = (0U - address) % alignof(double), bytes = base::saturating_product(doubles, sizeof(double));
  if (memory_ == nullptr || bytes_ < gap || bytes_ - gap < bytes) return nullptr;
  memory_ = reinterpret_cast<void*>(address + gap + bytes);
  bytes_ -= gap + bytes;
  return reinterpret_cast<double*>(address + gap);
}

}  // namespace quorin::umfpack_single
