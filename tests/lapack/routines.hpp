// Every routine of the LAPACK table as data: what its arguments are, how large its arrays, and how long its workspaces
// have to be.
#pragma once

#include "quorin/lapack.h"
#include "tests/support/standard.hpp"

namespace quorin::test {

enum class Kind { kScalar, kArray, kPlainArray, kPairedScalar, kSelection };
enum class Element { kChar, kInt, kFloat, kComplex };
enum class Direction { kIn, kOut, kInout };

struct Values;  // the scalar integers and characters of a call, by name

struct Extent {
  int rows, columns;
};

struct Argument {
  const char* name;
  Kind kind;
  Element element;
  Direction direction = Direction::kIn;
  Extent (*shape)(const Values&) = nullptr;  // of an array; null: the minimum is its length
  int Values::*member = nullptr;
  std::span<const int> options = {};
  int (*minimum)(const Values&) = nullptr;  // of a length, or of an array's

  bool is_array() const { return kind == Kind::kArray || kind == Kind::kPlainArray; }
  bool has_index() const { return kind == Kind::kArray || kind == Kind::kPairedScalar; }
  bool is_output() const { return direction != Direction::kIn; }
  bool is_floating() const { return element == Element::kFloat || element == Element::kComplex; }
  std::size_t element_size() const {
    constexpr std::size_t kSizes[] = {1, 4, 4, 8};
    return kSizes[static_cast<int>(element)];
  }
};

using Address = void (*)();

template <class Function>
Address address(Function* function) {
  return reinterpret_cast<Address>(function);
}

struct Routine {
  const char* name;
  Address plain, indexed;
  std::span<const Argument> arguments;
};

// Levels of the divide and conquer in gelsd: max(0, trunc(log2(min(m,n) / 26)) + 1).
inline int levels(int m, int n) {
  const int order = std::min(m, n);
  return order < 26 ? (order > 13 ? 1 : 0) : std::bit_width(static_cast<unsigned>(order / 26));
}

#include "routines.inc"

// Arguments fill one slot each on both targets, and a callee does not look at further ones.
inline constexpr std::size_t kSlots = 64;

inline void call(Address function, const std::uintptr_t (&slots)[kSlots]) {
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    using Function = void (*)(std::remove_cvref_t<decltype(slots[I])>...);
    reinterpret_cast<Function>(function)(slots[I]...);
  }
  (std::make_index_sequence<kSlots>{});
}

}  // namespace quorin::test
