// What the solvers tell in words, when the host wants it: whole lines, to the screen or to a file of the family.
#pragma once

#include <cstddef>

#include "families/rci/parameters.hpp"

namespace quorin::rci {

// The messages of one call of `routine`. Errors and warnings each have a switch in ipar and a file for hosts that do
// not want them on the screen; the first line of a call that goes to a file makes that file anew.
class Messages {
 public:
  // Files for the errors and the warnings of a family of routines.
  struct Files {
    const char* errors;
    const char* warnings;
  };

  Messages(const char* routine, Files files, ConstIpar ipar)
      : routine_(routine),
        files_(files),
        to_screen_(ipar.message_destination() == kScreen),
        errors_wanted_(ipar.print_errors() != 0),
        warnings_wanted_(ipar.print_warnings() != 0) {}

  // What a code that a routine returns means.
  template <class Code>
  struct Meaning {
    Code code;
    const char* text;
  };

  // The error message of a code that has a meaning.
  template <class Code, std::size_t n>
  void report(Code code, const Meaning<Code> (&meanings)[n]) {
    for (const auto& [known, text] : meanings) {
      if (known == code) error(code, text);
    }
  }

  // `code` is what the routine returns; 0 is left out of the text.
  template <class Code>
  void error(Code code, const char* text) {
    if (errors_wanted_) print("error", static_cast<int>(code), text, files_.errors);
  }
  template <class Code>
  void warning(Code code, const char* text) {
    if (warnings_wanted_) print("warning", static_cast<int>(code), text, files_.warnings);
  }

 private:
  void print(const char* kind, int code, const char* text, const char* file);

  const char* routine_;
  Files files_;
  bool to_screen_;
  bool errors_wanted_;
  bool warnings_wanted_;
  const char* begun_file_ = nullptr;
};

inline constexpr Messages::Files kCgFiles{"dcg_errors.txt", "dcg_check_warnings.txt"};
inline constexpr Messages::Files kFgmresFiles{"MKL_RCI_FGMRES_Log.txt", "MKL_RCI_FGMRES_Log.txt"};
inline constexpr Messages::Files kIluFiles{"MKL_PREC_log.txt", "MKL_PREC_log.txt"};

}  // namespace quorin::rci
