// What the solvers tell in words, when the host wants it: whole lines, to the screen or to a file of the family.
#pragma once

#include <span>

#include "families/rci/parameters.hpp"
#include "generated/rci_status_texts.hpp"

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

  // `texts`: what the routine's statuses mean.
  Messages(const char* routine, std::span<const StatusText> texts, Files files, ConstIpar ipar)
      : routine_(routine),
        texts_(texts),
        files_(files),
        to_screen_(ipar.message_destination() == kScreen),
        errors_wanted_(ipar.print_errors() != 0),
        warnings_wanted_(ipar.print_warnings() != 0) {}

  // The error message of a code that is one.
  template <class Code>
  void report(Code code) {
    if (errors_wanted_ && static_cast<int>(code) < 0) print("error", static_cast<int>(code), nullptr, files_.errors);
  }
  // A warning, in the words of its status or in others. `code` is what the routine returns; 0 is left out of the text.
  template <class Code>
  void warning(Code code, const char* text = nullptr) {
    if (warnings_wanted_) print("warning", static_cast<int>(code), text, files_.warnings);
  }

 private:
  // Without `text`, in the words of the status.
  void print(const char* kind, int code, const char* text, const char* file);

  const char* routine_;
  std::span<const StatusText> texts_;
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
