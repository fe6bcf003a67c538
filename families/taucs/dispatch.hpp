// From the type bits of a flag word to the typed routine.
#pragma once

#include <complex>
#include <cstdint>

#include "families/taucs/matrix.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {

// Source names that the assertion handler shows.
inline constexpr const char* kOperationsSource = "src\\taucs_ccs_ops";
inline constexpr const char* kFilesSource = "src\\taucs_ccs_io";

/// Calls routine.operator()<T>() for the type that the flags name and returns true; false if they name none. Where they
/// name both, complex numbers it is: their result would replace the other.
template <class Routine>
bool dispatch(std::int32_t flags, Routine&& routine) noexcept {
  if ((flags & kDcomplex) != 0) {
    routine.template operator()<std::complex<double>>();
  } else if ((flags & kDouble) != 0) {
    routine.template operator()<double>();
  } else {
    return false;
  }
  return true;
}

/// The same for routines that return a matrix or a status; without a type the process stops.
template <class Routine>
auto dispatch_or_stop(std::int32_t flags, const char* source, unsigned line, Routine&& routine) noexcept {
  decltype(routine.template operator()<double>()) result{};
  const bool has_type = dispatch(flags, [&]<class T>() { result = routine.template operator()<T>(); });
  if (!has_type) platform::fail_assertion("0", source, line);
  return result;
}

}  // namespace quorin::taucs
