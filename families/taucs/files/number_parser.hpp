// Numbers in text, read as the C library's scanf reads them, but whatever the process's locale is, and fast.
#pragma once

#include <cstdint>

namespace quorin::taucs {

// Reads the number at the start of [begin, end), where no blank stands, as "%lg" does: correctly rounded, with
// infinities, NaNs and hexadecimal digits; an overflow is infinite. Returns the position behind it, or null if there
// is none (or one that is not complete, such as "1e+").
// Up to 19 digits and powers of ten up to 22 are rounded here (decimal.hpp), all others by std::from_chars.
const char* parse_number(const char* begin, const char* end, double& value) noexcept;

// The same for "%d"; a number that does not fit is none.
const char* parse_number(const char* begin, const char* end, int& value) noexcept;

}  // namespace quorin::taucs
