// Why a routine refused or failed, and what the driver does, for whoever looks for a fault in a program that calls
// them.
#pragma once

#include <cstddef>

namespace quorin::taucs {

// Appends the formatted text to the file that the environment variable QUORIN_TAUCS_LOG names; without one, or if it
// cannot be opened, nothing is written. The texts are the documented ones where there are such.
[[gnu::format(printf, 1, 2)]] void message(const char* format, ...) noexcept;

// The same, for a routine that returns null.
[[nodiscard, gnu::format(printf, 1, 2)]] std::nullptr_t refuse(const char* format, ...) noexcept;

}  // namespace quorin::taucs
