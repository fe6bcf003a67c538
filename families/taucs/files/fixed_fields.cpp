#include "families/taucs/files/fixed_fields.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "families/taucs/files/number_parser.hpp"

namespace quorin::taucs {
namespace {

constexpr int kWidest = 100;
constexpr int kTooLarge = 100000;

char upper(char c) noexcept { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string_view trimmed(std::string_view text) noexcept {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

// The characters of a descriptor without blanks, one after the other.
class Reader {
 public:
  explicit Reader(std::string_view text) noexcept : text_(text) { skip_blanks(); }

  char peek() const noexcept { return text_.empty() ? '\0' : upper(text_.front()); }
  bool take(char c) noexcept {
    const bool is_there = peek() == c;
    if (is_there) drop();
    return is_there;
  }
  char take_any() noexcept {
    const char c = peek();
    if (c != '\0') drop();
    return c;
  }
  // A number without a sign, saturated at kTooLarge; -1 if there is none.
  int take_number() noexcept {
    int number = -1;
    for (; peek() >= '0' && peek() <= '9'; drop()) {
      number = std::min(10 * std::max(number, 0) + (peek() - '0'), kTooLarge);
    }
    return number;
  }

 private:
  void drop() noexcept {
    text_.remove_prefix(1);
    skip_blanks();
  }
  void skip_blanks() noexcept {
    while (text_.starts_with(' ')) text_.remove_prefix(1);
  }

  std::string_view text_;
};

}  // namespace

bool FieldFormat::parse(std::string_view text) noexcept {
  Reader reader(text);
  *this = {};
  if (!reader.take('(')) return false;
  const bool is_negative = reader.take('-');
  repeat = reader.take_number();
  if (reader.take('P')) {
    scale = is_negative ? -repeat : repeat;
    if (repeat < 0 || repeat > kWidest) return false;
    reader.take(',');
    repeat = reader.take_number();
  } else if (is_negative) {
    return false;
  }
  if (repeat < 0) repeat = 1;
  kind = reader.take_any();
  width = reader.take_number();
  if (reader.take('.')) decimals = reader.take_number();
  if (reader.take('E') && reader.take_number() < 0) return false;  // digits of the exponent
  constexpr std::string_view kKinds = "IFEDG";
  return reader.take(')') && kKinds.find(kind) != std::string_view::npos && repeat > 0 && repeat < kTooLarge &&
         width > 0 && width <= kWidest && decimals >= 0 && decimals <= kWidest;
}

bool parse_field(std::string_view field, int& number) noexcept {
  field = trimmed(field);
  const char* const end = field.data() + field.size();
  return !field.empty() && parse_number(field.data(), end, number) == end;
}

bool parse_field(std::string_view field, const FieldFormat& format, double& number) noexcept {
  field = trimmed(field);
  if (field.empty() || field.size() > kWidest) return false;
  // The mantissa goes to `text` as it is, and behind it the exponent in the form that the parser knows.
  const std::size_t mark = field.find_first_of("EeDdQq+-", 1);
  const std::string_view mantissa = field.substr(0, mark);
  if (mantissa.find_first_not_of("+-.0123456789") != std::string_view::npos) return false;
  int exponent = 0;
  if (mark != std::string_view::npos) {
    std::string_view written = field.substr(mark);
    if (written.front() != '+' && written.front() != '-') written.remove_prefix(1);
    if (!parse_field(written, exponent) || exponent > 100000 || exponent < -100000) return false;
  } else {
    exponent = -format.scale;
  }
  if (mantissa.find('.') == std::string_view::npos) exponent -= format.decimals;
  std::array<char, kWidest + 16> text{};
  char* end = std::copy(mantissa.begin(), mantissa.end(), text.data());
  if (exponent != 0) {
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), exponent).ptr;
  }
  return parse_number(text.data(), end, number) == end;
}

}  // namespace quorin::taucs
