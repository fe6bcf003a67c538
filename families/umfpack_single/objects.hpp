// The objects behind the handles that hosts keep (base/handle_table.hpp): one that was freed, is of the wrong kind or
// never was one is told from a good one without reading through the handle.
#pragma once

#include <cstdint>

#include "base/handle_table.hpp"
#include "families/umfpack_single/double_umfpack.hpp"

namespace quorin::umfpack_single {

enum class Kind { kRealSymbolic, kComplexSymbolic, kRealNumeric, kComplexNumeric };

template <class E>
inline constexpr Kind kSymbolicOf = E::kParts == 1 ? Kind::kRealSymbolic : Kind::kComplexSymbolic;
template <class E>
inline constexpr Kind kNumericOf = E::kParts == 1 ? Kind::kRealNumeric : Kind::kComplexNumeric;

struct Object : base::HandleNode {
  Kind kind = Kind::kRealSymbolic;
  void* contents = nullptr;  // UMFPACK's object
  int n_row = 0, n_col = 0;
  int nz = 0;                     // Symbolic: entries of the matrix
  std::uint64_t fingerprint = 0;  // Symbolic: of its pattern
  bool is_singular = false;       // Numeric
};

// An object that nobody can find yet, or null if there is no memory.
[[nodiscard]] Object* create_object(Kind kind);
// Gives an object a handle.
[[nodiscard]] void* publish(Object* object);
// Frees an object that has no handle, with what UMFPACK made for it.
void destroy(Object* object);

// The object of a handle, or null if there is none of this kind.
[[nodiscard]] Object* find(const void* handle, Kind kind);
// UMFPACK's object behind a handle, or null, which UMFPACK refuses.
[[nodiscard]] inline void* contents(const void* handle, Kind kind) {
  const Object* const object = find(handle, kind);
  return object != nullptr ? object->contents : nullptr;
}
// Removes the handle and returns its object, or null if there is none of this kind.
[[nodiscard]] Object* withdraw(const void* handle, Kind kind);

}  // namespace quorin::umfpack_single
