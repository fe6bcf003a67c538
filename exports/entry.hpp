// What the generated entry points are made of.
#pragma once

#include <complex>
#include <cstdint>

#include "platform/floating_point.hpp"

// On Windows the .def file gives an entry point quorin_X its public name X. Elsewhere the assembler name is the public
// one, so that names of dependencies and of the library cannot meet in C++.
#if defined(_WIN32)
#define QUORIN_EXPORT(name)
// The .def file lets both names point to the same function.
#define QUORIN_EXPORT_ALIAS(name, target)
#else
#define QUORIN_EXPORT(name) __asm__(#name) __attribute__((visibility("default")))
#define QUORIN_EXPORT_ALIAS(name, target) __asm__(#name) __attribute__((alias(#target), visibility("default")))
#endif

namespace {

// The address of element `index` of an array: base + index * size, wrapping, with nothing checked. A null base with
// index 0 stays null, so that hosts can ask for workspace sizes.
template <class T>
[[maybe_unused]] inline T* element(T* base, std::int32_t index) noexcept {
  const auto offset = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(index)) * sizeof(T);
  return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(base) + offset);
}

}  // namespace
