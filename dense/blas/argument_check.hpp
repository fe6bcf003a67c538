// Checks of the published BLAS argument rules.
#pragma once

#include <algorithm>

#include "base/argument_error.hpp"
#include "base/scalar.hpp"

namespace quorin::dense {

constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

constexpr bool is_one_of(char option, const char* upper_case_options) {
  for (; *upper_case_options != '\0'; ++upper_case_options) {
    if (upper(option) == *upper_case_options) return true;
  }
  return false;
}

constexpr int least_leading_dimension(int rows) { return std::max(1, rows); }

// Finds the first wrong argument of a routine and reports it:
//   if (!ArgumentCheck<T>("GEMV").require(2, m >= 0).require(3, n >= 0).passed()) return;
template <Scalar T>
class ArgumentCheck {
 public:
  // `operation` is the routine's name without its type letter.
  constexpr explicit ArgumentCheck(const char* operation) : operation_(operation) {}

  constexpr ArgumentCheck& require(int position, bool holds) {
    if (!holds && wrong_ == 0) wrong_ = position;
    return *this;
  }

  // The position of the wrong argument, which it reports; 0 if all hold.
  int reported() const {
    if (wrong_ != 0) report(operation_, wrong_);
    return wrong_;
  }
  bool passed() const { return reported() == 0; }

  static void report(const char* operation, int code) {
    char name[8] = {ScalarTraits<T>::kLetter};
    int length = 1;
    while (operation[length - 1] != '\0') {
      name[length] = operation[length - 1];
      ++length;
    }
    base::report_argument_error(name, length, code);
  }

 private:
  const char* operation_;
  int wrong_ = 0;
};

}  // namespace quorin::dense
