// Index forms, called with the arguments of the plain forms.
#pragma once

#include "tests/support/standard.hpp"

namespace quorin::test {

// The base from which an array begins at `index`. It may be none that a pointer could reach; a null array stays null as
// what the index form computes.
template <class T>
T* base(T* array, int index) {
  return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(array) - static_cast<std::uintptr_t>(index) * sizeof(T));
}

// Every array, that is whatever has data(), becomes a base and an index of its own; the rest is passed on.
template <class Form, class... Arguments>
auto call_index_form(Form* form, Arguments&&... arguments) {
  int index = 0;
  const auto expand = [&index](auto& argument) {
    if constexpr (requires { argument.data(); }) {
      ++index;
      return std::tuple(base(argument.data(), index), index);
    } else {
      return std::tuple(argument);
    }
  };
  return std::apply(form, std::tuple_cat(expand(arguments)...));
}

}  // namespace quorin::test
