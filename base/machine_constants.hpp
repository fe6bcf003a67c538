// The constants of single-precision arithmetic under their published numbers.
#pragma once

#include <array>
#include <cstdint>
#include <limits>

namespace quorin::base {

// 1 smallest normal, 2 largest, 3 half epsilon, 4 epsilon, 5 log10(2); any other index gives a NaN.
// P. A. Fox, A. D. Hall, N. L. Schryer, ACM Trans. Math. Softw. 4 (1978) 177-188.
inline float machine_constant(std::int32_t i) {
  using Limits = std::numeric_limits<float>;
  constexpr std::array<float, 5> kConstants{Limits::min(), Limits::max(), Limits::epsilon() / 2, Limits::epsilon(),
                                            0.30103F};
  return i >= 1 && i <= 5 ? kConstants[static_cast<std::size_t>(i) - 1] : Limits::quiet_NaN();
}

}  // namespace quorin::base
