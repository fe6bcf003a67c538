#include "taucs/number_parser.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace quorin::taucs {
namespace {

constexpr std::array<double, 23> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                              1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::int64_t kMostExact = std::int64_t{1} << 53;
constexpr int kMostDigits = 18;  // that cannot overflow 63 bits
constexpr int kExponentLimit = 1 << 24;

bool is_digit(char c) noexcept { return static_cast<unsigned char>(c - '0') < 10; }
char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool is_letter_at(const char* p, const char* end, char letter) noexcept { return p != end && lower(*p) == letter; }

// The sign, if there is one.
bool take_sign(const char*& p, const char* end) noexcept {
  const bool is_negative = p != end && *p == '-';
  if (is_negative || (p != end && *p == '+')) ++p;
  return is_negative;
}

// Decimal digits are appended to `number`, which wraps when there are too many.
const char* take_digits(const char* p, const char* end, std::uint64_t& number) noexcept {
  for (; p != end && is_digit(*p); ++p) number = 10 * number + static_cast<std::uint64_t>(*p - '0');
  return p;
}

// The exponent behind its letter, saturated; false if it has no digits.
bool take_exponent(const char*& p, const char* end, int& exponent) noexcept {
  const bool is_negative = take_sign(p, end);
  const char* const first = p;
  int size = 0;
  for (; p != end && is_digit(*p); ++p) size = std::min(10 * size + (*p - '0'), kExponentLimit);
  exponent = is_negative ? -size : size;
  return p != first;
}

// The longest word of which [p, end) starts with all letters; null unless it has any, or if more letters of `word`
// than `required` follow, but not all.
const char* take_word(const char* p, const char* end, std::string_view word, std::size_t required) noexcept {
  std::size_t length = 0;
  while (length < word.size() && is_letter_at(p + length, end, word[length])) ++length;
  return length == required || length == word.size() ? p + length : nullptr;
}

// "inf", "infinity", "nan" or "nan(letters)".
const char* parse_word(const char* p, const char* end, double& value) noexcept {
  if (const char* const stop = take_word(p, end, "infinity", 3)) {
    value = std::numeric_limits<double>::infinity();
    return stop;
  }
  const char* stop = take_word(p, end, "nan", 3);
  if (stop == nullptr) return nullptr;
  value = std::numeric_limits<double>::quiet_NaN();
  if (stop == end || *stop != '(') return stop;
  const auto is_inside = [](char c) { return is_digit(c) || (lower(c) >= 'a' && lower(c) <= 'z') || c == '_'; };
  stop = std::find_if_not(stop + 1, end, is_inside);
  return stop != end && *stop == ')' ? stop + 1 : nullptr;
}

// A number that is no finite double: infinite if its first digit that is not zero stands high enough.
double beyond_range(const char* p, const char* end, bool is_hexadecimal) noexcept {
  const auto is_exponent = [&](char c) { return lower(c) == (is_hexadecimal ? 'p' : 'e'); };
  const char* const mark = std::find_if(p, end, is_exponent);
  int exponent = 0;
  if (const char* q = mark; q != end) take_exponent(++q, end, exponent);
  const char* const point = std::find(p, mark, '.');
  const char* const first = std::find_if(p, mark, [](char c) { return c != '0' && c != '.'; });
  const auto places = static_cast<std::int64_t>(first < point ? point - first : point - first + 1);
  return (is_hexadecimal ? 4 : 1) * places + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// [p, stop) holds a complete decimal number without a sign.
double convert(const char* p, const char* stop) noexcept {
  double value = 0;
  const std::from_chars_result result = std::from_chars(p, stop, value);
  return result.ec == std::errc() ? value : beyond_range(p, stop, false);
}

// Hexadecimal digits behind "0x".
const char* parse_hexadecimal(const char* p, const char* end, double& value) noexcept {
  const std::from_chars_result result = std::from_chars(p, end, value, std::chars_format::hex);
  if (result.ec == std::errc::invalid_argument || is_letter_at(result.ptr, end, 'p')) return nullptr;
  const bool starts_with_digit = p != end && *p != '-' && lower(*p) != 'i' && lower(*p) != 'n';
  if (!starts_with_digit) return nullptr;
  if (result.ec != std::errc()) value = beyond_range(p, result.ptr, true);
  return result.ptr;
}

const char* parse_unsigned(const char* const begin, const char* end, double& value) noexcept {
  std::uint64_t digits = 0;
  int exponent = 0;
  const char* p = take_digits(begin, end, digits);
  auto count = p - begin;
  if (count == 1 && digits == 0 && is_letter_at(p, end, 'x')) return parse_hexadecimal(p + 1, end, value);
  if (p != end && *p == '.') {
    const char* const first = ++p;
    p = take_digits(first, end, digits);
    count += p - first;
    exponent = static_cast<int>(std::max<std::ptrdiff_t>(first - p, -kExponentLimit));
  }
  if (count == 0) return parse_word(begin, end, value);
  if (is_letter_at(p, end, 'e')) {
    int written = 0;
    if (!take_exponent(++p, end, written)) return nullptr;
    exponent += written;
  }
  const auto whole = static_cast<std::int64_t>(digits);
  if (count > kMostDigits || whole > kMostExact || std::abs(exponent) >= static_cast<int>(kPowersOfTen.size())) {
    value = convert(begin, p);
  } else {
    const double power = kPowersOfTen[static_cast<std::size_t>(std::abs(exponent))];
    value = exponent < 0 ? static_cast<double>(whole) / power : static_cast<double>(whole) * power;
  }
  return p;
}

}  // namespace

const char* parse_number(const char* begin, const char* end, double& value) noexcept {
  const bool is_negative = take_sign(begin, end);
  const char* const stop = parse_unsigned(begin, end, value);
  if (is_negative) value = -value;
  return stop;
}

const char* parse_number(const char* begin, const char* end, std::int32_t& value) noexcept {
  if (begin != end && *begin == '+') {
    ++begin;
    if (begin == end || !is_digit(*begin)) return nullptr;
  }
  const std::from_chars_result result = std::from_chars(begin, end, value);
  return result.ec == std::errc() ? result.ptr : nullptr;
}

}  // namespace quorin::taucs
