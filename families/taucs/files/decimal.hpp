// The two steps of reading a decimal number that take the time: its digits, eight at once, and the rounding of
// digits times a power of ten.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace quorin::taucs {

// The decimal digits at the start of eight characters.
struct Digits {
  std::uint32_t value;
  int count;
};

inline Digits leading_digits(const char* p) noexcept {
  static_assert(std::endian::native == std::endian::little);
  constexpr std::uint64_t kBytes = 0x0101010101010101;
  std::uint64_t text = 0;
  std::memcpy(&text, p, sizeof text);
  text ^= '0' * kBytes;
  // The high bit of each byte that is no digit; carries only spoil bytes behind the first.
  const std::uint64_t others = (text | (text + (0x80 - 10) * kBytes)) & (0x80 * kBytes);
  const int count = std::countr_zero(others) / 8;
  if (count == 0) return {0, 0};
  // As if zeros stood before them; then neighbours are joined to numbers below 100, below 10^4, below 10^8.
  text <<= 8 * (8 - count);
  text = (text * (1 + (10U << 8)) >> 8) & 0x00FF00FF00FF00FF;
  text = (text * (1 + (100U << 16)) >> 16) & 0x0000FFFF0000FFFF;
  text = text * (1 + (std::uint64_t{10000} << 32)) >> 32;
  return {static_cast<std::uint32_t>(text), count};
}

// x * y is product + the result, exactly: T. J. Dekker, Numer. Math. 18 (1971) 224-242.
constexpr double product_error(double x, double y, double product) noexcept {
  const auto high_part = [](double a) {
    const double c = 134217729 * a;
    return c - (c - a);
  };
  const double x1 = high_part(x), y1 = high_part(y), x2 = x - x1, y2 = y - y1;
  return ((x1 * y1 - product) + x1 * y2 + x2 * y1) + x2 * y2;
}

constexpr std::array<double, 23> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                              1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// A positive number to 106 bits, the sum of two doubles.
struct TwoDoubles {
  double high, low;
};
constexpr auto kInversePowersOfTen = [] {
  std::array<TwoDoubles, kPowersOfTen.size()> inverses{};
  for (std::size_t k = 0; k < inverses.size(); ++k) {
    const double power = kPowersOfTen[k], inverse = 1 / power, product = inverse * power;
    inverses[k] = {inverse, ((1 - product) - product_error(inverse, power, product)) / power};
  }
  return inverses;
}();

// value <- whole * 10^exponent, correctly rounded; false if that is hard to tell. Where the number and the power of
// ten are both exact, one operation is enough: W. D. Clinger, How to read floating point numbers accurately, PLDI
// (1990) 92-101. Else a product of twice the precision tells, unless it is as good as half-way between two doubles.
inline bool scale_by_power_of_ten(std::uint64_t whole, int exponent, double& value) noexcept {
  const auto size = static_cast<std::size_t>(std::abs(exponent));
  if (size >= kPowersOfTen.size()) return false;
  const double upper = 4294967296.0 * static_cast<std::uint32_t>(whole >> 32);
  const double lower = static_cast<std::uint32_t>(whole);
  const double number = upper + lower, rest = lower - (number - upper);  // their sum is whole
  if (rest == 0) {
    value = exponent < 0 ? number / kPowersOfTen[size] : number * kPowersOfTen[size];
    return true;
  }
  const TwoDoubles scale = exponent < 0 ? kInversePowersOfTen[size] : TwoDoubles{kPowersOfTen[size], 0};
  const double nearest = number * scale.high;
  const double error = product_error(number, scale.high, nearest) + (number * scale.low + rest * scale.high);
  const double doubt = 0x1p-96 * nearest;  // the sum of the two is good to 2^-100
  value = nearest + (error - doubt);
  return value == nearest + (error + doubt);
}

}  // namespace quorin::taucs
