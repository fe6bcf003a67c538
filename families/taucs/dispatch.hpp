// From the type bits of a flag word to the typed routine.
#pragma once

#include "families/taucs/matrix.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {

// Source names that the assertion handler shows.
inline constexpr const char* kOperationsSource = "src\\taucs_ccs_ops";
inline constexpr const char* kFilesSource = "src\\taucs_ccs_io";

enum class Type { kNeither, kReal, kComplex };

// The element type that the flags name. Where they name both it is complex: that result would replace the other.
inline Type type_of(int flags) {
  if ((flags & kDcomplex) != 0) return Type::kComplex;
  return (flags & kDouble) != 0 ? Type::kReal : Type::kNeither;
}

// Calls routine.operator()<T>() for that type, if there is one.
template <class Routine>
void dispatch(int flags, Routine routine) {
  switch (type_of(flags)) {
    case Type::kReal:
      return routine.template operator()<double>();
    case Type::kComplex:
      return routine.template operator()<Complex>();
    case Type::kNeither:
      return;
  }
}

// Whether the flags name complex elements. Flags without a type stop the process, which then shows `source` and the
// line of the call.
inline bool is_complex_or_stop(int flags, const char* source, unsigned line = __builtin_LINE()) {
  const Type type = type_of(flags);
  if (type == Type::kNeither) platform::fail_assertion("0", source, line);
  return type == Type::kComplex;
}

}  // namespace quorin::taucs
