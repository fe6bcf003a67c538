// The machine constants of double arithmetic and the limits that follow from them: exponent range, region boundaries
// and argument ranges of every function of this family. D. E. Amos, SAND85-1018 (1985), derives them like this.
#pragma once

#include <cstdint>

namespace quorin::amos {

// Double-precision machine constants.
inline constexpr double kSmallestNormal = 2.2250738585072014e-308;
inline constexpr double kEpsilon = 2.220446049250313e-16;
inline constexpr double kLog10Of2 = 0.3010299956639812;
inline constexpr int kMantissaBits = 53;
inline constexpr int kExponentLimit = 1021;  // min(|smallest exponent|, largest exponent)
inline constexpr std::int32_t kLargestInteger = 2147483647;

// Relative accuracy asked of the expansions.
inline constexpr double kTol = kEpsilon;

// Results beyond exp(+-kElim) overflow or underflow.
inline constexpr double kElim = 2.303 * (kExponentLimit * kLog10Of2 - 3.0);

// Significant decimal digits of a double.
inline constexpr double kDigits = kLog10Of2 * (kMantissaBits - 1);

// Least |z| of the expansion for large argument.
inline constexpr double kLargeArgument = 1.2 * kDigits + 3.0;

// Least order of the expansions that are uniform in the argument.
inline constexpr double kLargeOrder = 10.0 + 6.0 * (kDigits - 3.0);

// |z| up to which K has its power series.
inline constexpr double kSmallArgument = 2.0;

// Below this |z| the functions that are singular at 0 overflow; at or below it a component is near underflow.
inline constexpr double kUnderflowGuard = 1000.0 * kSmallestNormal;

// |z| and order: beyond the first no digit is left, beyond the second (its square root) less than half of them.
inline constexpr double kRangeLimit = 0.5 * kLargestInteger;
inline constexpr double kHalfPrecisionLimit = 32767.9999923706055;

// The same for |z| of the Airy functions, whose exponent is z^(3/2).
inline constexpr double kAiryRangeLimit = 1048575.99967447917;
inline constexpr double kAiryHalfPrecisionLimit = 1023.99999984105428;

}  // namespace quorin::amos
