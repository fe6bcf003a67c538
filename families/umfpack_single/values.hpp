// Values on their way between the host's float arrays and UMFPACK's double arrays.
#pragma once

#include <cstddef>

#include "base/workspace.hpp"
#include "families/umfpack_single/double_umfpack.hpp"

namespace quorin::umfpack_single {

// An array of entries of the host, or none if x is null. Complex entries have their imaginary parts in z or, if z is
// null, behind each real part in x.
template <class T>
struct Floats {
  T* x = nullptr;
  T* z = nullptr;
  explicit operator bool() const { return x != nullptr; }
};
using FloatInput = Floats<const float>;
using FloatOutput = Floats<float>;

constexpr std::size_t length(int n) { return n > 0 ? static_cast<std::size_t>(n) : 0; }

template <class E>
void widen(FloatInput from, std::size_t count, double* to) {
  if (E::kParts == 1 || from.z == nullptr) {
    for (std::size_t k = 0; k < E::kParts * count; ++k) to[k] = static_cast<double>(from.x[k]);
    return;
  }
  for (std::size_t k = 0; k < count; ++k) {
    to[2 * k] = static_cast<double>(from.x[k]);
    to[2 * k + 1] = static_cast<double>(from.z[k]);
  }
}

template <class E>
void narrow(const double* from, std::size_t count, FloatOutput to) {
  if (E::kParts == 1 || to.z == nullptr) {
    for (std::size_t k = 0; k < E::kParts * count; ++k) to.x[k] = static_cast<float>(from[k]);
    return;
  }
  for (std::size_t k = 0; k < count; ++k) {
    to.x[k] = static_cast<float>(from[2 * k]);
    to.z[k] = static_cast<float>(from[2 * k + 1]);
  }
}

// Room for `count` entries in double precision for the time of one call. Taken from `scratch` if it is large enough,
// else from the allocator.
class Scratch {
 public:
  Scratch() = default;
  Scratch(float* memory, std::size_t floats) : memory_(memory), bytes_(memory ? floats * sizeof(float) : 0) {}

  // Null if less is left.
  [[nodiscard]] double* take(std::size_t doubles);

 private:
  void* memory_ = nullptr;
  std::size_t bytes_ = 0;
};

template <class E>
class Doubles {
 public:
  Doubles() = default;
  // No entries, and no memory, if not `wanted`.
  Doubles(bool wanted, std::size_t count, Scratch* scratch = nullptr) : count_(wanted ? count : 0) {
    if (!wanted) return;
    const std::size_t doubles = base::saturating_product(E::kParts, count);
    if (scratch != nullptr) data_ = scratch->take(doubles);
    if (data_ != nullptr) return;
    own_ = base::Workspace<double>(doubles);
    data_ = own_.data();
    has_failed_ = !own_;
  }
  // A widened copy of `from`, if there is one.
  Doubles(FloatInput from, std::size_t count, Scratch* scratch = nullptr)
      : Doubles(static_cast<bool>(from), count, scratch) {
    if (data_ != nullptr) widen<E>(from, count, data_);
  }

  [[nodiscard]] bool has_failed() const { return has_failed_; }
  Entries<const double> input() const { return {data_}; }
  Entries<double> output() { return {data_}; }
  // The first `count` entries, into an array that may be missing.
  void narrow_to(FloatOutput to, std::size_t count) const {
    if (to && data_ != nullptr) narrow<E>(data_, count, to);
  }
  void narrow_to(FloatOutput to) const { narrow_to(to, count_); }

 private:
  base::Workspace<double> own_;
  double* data_ = nullptr;
  std::size_t count_ = 0;
  bool has_failed_ = false;
};

}  // namespace quorin::umfpack_single
