#include "families/taucs/files/number_parser.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "families/taucs/files/decimal.hpp"

namespace quorin::taucs {
namespace {

constexpr int kExponentLimit = 1 << 24;

bool is_digit(char c) noexcept { return static_cast<unsigned char>(c - '0') < 10; }
char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool is_letter_at(const char* p, const char* end, char letter) noexcept { return p != end && lower(*p) == letter; }

// The sign, if there is one. Signs come at random, so nothing branches on them.
bool take_sign(const char*& p, const char* end) noexcept {
  const char c = p != end ? *p : '0';
  p += static_cast<int>(c == '-') | static_cast<int>(c == '+');
  return c == '-';
}

double with_sign(double value, bool is_negative) noexcept {
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) ^ (std::uint64_t{is_negative} << 63));
}

const char* skip_digits(const char* p, const char* end) noexcept { return std::find_if_not(p, end, is_digit); }

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

// Any number without a sign.
const char* parse_unsigned(const char* const begin, const char* end, double& value) noexcept {
  const char* p = skip_digits(begin, end);
  auto count = p - begin;
  if (count == 1 && *begin == '0' && is_letter_at(p, end, 'x')) return parse_hexadecimal(p + 1, end, value);
  if (p != end && *p == '.') {
    const char* const first = ++p;
    p = skip_digits(first, end);
    count += p - first;
  }
  if (count == 0) return parse_word(begin, end, value);
  int exponent = 0;
  if (is_letter_at(p, end, 'e') && !take_exponent(++p, end, exponent)) return nullptr;
  value = convert(begin, p);
  return p;
}

// Appends the digits at p to `number`, but no more than 24. Where they end, eight characters must be there to look at.
[[gnu::always_inline]] inline int append_digits(const char*& p, std::uint64_t& number) noexcept {
  constexpr std::array<std::uint32_t, 9> kPowers{1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
  int count = 0;
  for (bool is_full = true; is_full && count < 24;) {
    const Digits digits = leading_digits(p);
    number = number * kPowers[static_cast<std::size_t>(digits.count)] + digits.value;
    p += digits.count;
    count += digits.count;
    is_full = digits.count == 8;
  }
  return count;
}

// A number as files have it, of up to 19 digits; null for any other. Looks at no more than kUsualText characters.
constexpr std::ptrdiff_t kUsualText = 3 * 24 + 3 + 8;
const char* parse_usual(const char* p, double& value) noexcept {
  constexpr int kMostDigits = 19;  // that 64 bits hold
  std::uint64_t number = 0;
  int count = append_digits(p, number);
  if (*p <= ' ' && count > 0 && count < 10) {  // most are indices
    value = static_cast<int>(number);
    return p;
  }
  int exponent = 0;
  if (*p == '.') {
    const int places = append_digits(++p, number);
    count += places;
    exponent = -places;
  }
  if (count == 0 || count > kMostDigits || lower(*p) == 'x') return nullptr;
  if (lower(*p) == 'e') {
    const bool is_negative = *++p == '-';
    p += is_negative || *p == '+' ? 1 : 0;
    std::uint64_t written = 0;
    const int size = append_digits(p, written);
    if (size == 0 || size > 8) return nullptr;
    exponent += is_negative ? -static_cast<int>(written) : static_cast<int>(written);
  }
  return scale_by_power_of_ten(number, exponent, value) ? p : nullptr;
}

}  // namespace

const char* parse_number(const char* begin, const char* end, double& value) noexcept {
  const bool is_negative = take_sign(begin, end);
  const char* stop = nullptr;
  if (end - begin >= kUsualText) {
    stop = parse_usual(begin, value);
  } else {
    std::array<char, kUsualText> text{};  // no digits behind the end
    std::copy(begin, end, text.data());
    if (const char* const last = parse_usual(text.data(), value)) stop = begin + (last - text.data());
  }
  if (stop == nullptr) stop = parse_unsigned(begin, end, value);
  value = with_sign(value, is_negative);
  return stop;
}

const char* parse_number(const char* begin, const char* end, int& value) noexcept {
  if (begin != end && *begin == '+') {
    ++begin;
    if (begin == end || !is_digit(*begin)) return nullptr;
  }
  const std::from_chars_result result = std::from_chars(begin, end, value);
  return result.ec == std::errc() ? result.ptr : nullptr;
}

}  // namespace quorin::taucs
