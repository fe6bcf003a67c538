// The error handler of the dense routines, known to hosts as XERBLA.
#pragma once

namespace quorin::base {

// Values of `code` that are no argument's position.
inline constexpr int kInsufficientWorkspace = 1000;
inline constexpr int kIncompatibleOptions = 1001;

// Writes one line to standard output that names the routine and what was wrong, then returns: the process goes on.
// `routine` need not be terminated; at most 20 of its `length` characters are used. Nothing happens if `routine` is
// null or `length` negative.
void report_argument_error(const char* routine, int length, int code);

}  // namespace quorin::base
