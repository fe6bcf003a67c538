#include "families/taucs/files/fortran_format.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>

#include "families/taucs/files/number_parser.hpp"

namespace quorin::taucs {
namespace {

constexpr int kWidest = 100;
constexpr int kTooLarge = 100000;  // a repetition
constexpr std::size_t kFar = 1 << 20;

char upper(char c) noexcept { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string_view trimmed(std::string_view text) noexcept {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

}  // namespace

// Recursive descent over the characters without blanks.
class FortranFormat::Parser {
 public:
  Parser(std::string_view text, FortranFormat& format) noexcept : text_(text), format_(format) { skip_blanks(); }

  // A list in brackets, behind its opening one.
  bool parse_list(int depth) noexcept {
    for (bool is_first = true; !take(')'); is_first = false) {
      // Between items a comma, which a slash, a colon and a scale may do without.
      const bool may_follow = take(',') ? !is_first : is_first || is_separated_ || peek() == '/' || peek() == ':';
      if (!may_follow || !parse_item(depth)) return false;
    }
    return true;
  }
  bool take(char c) noexcept {
    const bool is_there = peek() == c;
    if (is_there) drop();
    return is_there;
  }

 private:
  static constexpr int kDeepest = 8;

  char peek() const noexcept { return text_.empty() ? '\0' : upper(text_.front()); }
  void drop() noexcept {
    text_.remove_prefix(1);
    skip_blanks();
  }
  void skip_blanks() noexcept {
    while (text_.starts_with(' ')) text_.remove_prefix(1);
  }
  // A number without a sign, saturated at kTooLarge; -1 if there is none.
  int take_number() noexcept {
    int number = -1;
    for (; peek() >= '0' && peek() <= '9'; drop()) {
      number = std::min(10 * std::max(number, 0) + (peek() - '0'), kTooLarge);
    }
    return number;
  }

  bool parse_item(int depth) noexcept {
    is_separated_ = false;
    const bool is_negative = take('-'), is_signed = is_negative || take('+');
    const int number = take_number();
    if (take('P')) {
      is_separated_ = true;
      return number >= 0 && number <= kWidest && format_.add({Kind::kScale, is_negative ? -number : number});
    }
    if (is_signed || number == 0 || number == kTooLarge) return false;
    const bool is_counted = number > 0;
    const int count = is_counted ? number : 1;
    if (take('X')) return format_.add({Kind::kSkip, count});
    if (take('/')) return is_separated_ = format_.add({Kind::kLine, count});
    if (take('(')) return parse_group(count, depth);
    if (!is_counted && take(':')) return is_separated_ = true;
    if (!is_counted && take('T')) return parse_position();
    if (!is_counted && take('S')) return take('P') || take('S') || true;
    if (!is_counted && take('B')) return take('N') || take('Z');
    return parse_number(count);
  }

  bool parse_group(int count, int depth) noexcept {
    const std::size_t open = format_.count_;
    if (depth == kDeepest || !format_.add({Kind::kOpen, count}) || !parse_list(depth + 1)) return false;
    if (depth == 0) format_.restart_ = open;
    return format_.add({.kind = Kind::kClose, .count = 1, .partner = open});
  }

  bool parse_position() noexcept {
    const bool is_left = take('L'), is_relative = is_left || take('R');
    const int columns = take_number();
    if (columns <= 0 || columns == kTooLarge) return false;
    return format_.add({is_relative ? Kind::kSkip : Kind::kColumn, is_left ? -columns : columns});
  }

  bool parse_number(int count) noexcept {
    const bool is_integer = take('I');
    if (!is_integer && take('E')) {
      take('S') || take('N');
    } else if (!is_integer && !take('F') && !take('D') && !take('G')) {
      return false;
    }
    const int width = take_number(), digits = take('.') ? take_number() : 0;
    if (!is_integer && take('E') && take_number() < 0) return false;  // digits of the exponent
    format_.is_integer_ = format_.is_integer_ && is_integer;
    return width > 0 && width <= kWidest && digits >= 0 && digits <= kWidest &&
           format_.add({Kind::kNumber, count, width, is_integer ? 0 : digits});
  }

  std::string_view text_;
  FortranFormat& format_;
  bool is_separated_ = false;
};

bool FortranFormat::parse(std::string_view text) noexcept {
  *this = {};
  Parser parser(text, *this);
  return parser.take('(') && parser.parse_list(0) &&
         std::any_of(items_.begin() + restart_, items_.begin() + count_,
                     [](const Item& item) { return item.kind == Kind::kNumber; });
}

bool FieldReader::advance() noexcept {
  using Kind = FortranFormat::Kind;
  constexpr int kSteps = 1 << 20;
  if (!has_line_) {
    if (!text_.next_line(line_)) return false;
    has_line_ = true;
  }
  for (int step = 0; step < kSteps; ++step) {
    if (at_ == format_.count_) {
      at_ = format_.restart_;
      column_ = 0;
      if (!text_.next_line(line_)) return false;
    }
    const FortranFormat::Item& item = format_.items_[at_];
    switch (item.kind) {
      case Kind::kNumber:
        left_ = item.count;
        return true;
      case Kind::kSkip:
        move(item.count);
        break;
      case Kind::kColumn:
        column_ = static_cast<std::size_t>(item.count) - 1;
        break;
      case Kind::kLine:
        column_ = 0;
        for (int line = 0; line < item.count; ++line) {
          if (!text_.next_line(line_)) return false;
        }
        break;
      case Kind::kScale:
        scale_ = item.count;
        break;
      case Kind::kOpen:
        rounds_[at_] = item.count;
        break;
      case Kind::kClose:
        if (--rounds_[item.partner] > 0) at_ = item.partner;
        break;
    }
    ++at_;
  }
  return false;
}

// Not in front of the line, and not so far behind it that the sum could overflow.
void FieldReader::move(int columns) noexcept {
  const auto distance = static_cast<std::size_t>(std::abs(columns));
  column_ = columns > 0 ? std::min(column_ + distance, kFar) : column_ - std::min(column_, distance);
}

bool parse_field(std::string_view text, int& number) noexcept {
  const std::string_view field = trimmed(text);
  const char* const end = field.data() + field.size();
  return !field.empty() && parse_number(field.data(), end, number) == end;
}

bool parse_field(const Field& field, double& number) noexcept {
  const std::string_view written = trimmed(field.text);
  if (written.empty() || written.size() > kWidest) return false;
  // The mantissa goes to `text` as it is, and behind it the exponent in the form that the parser knows.
  const std::size_t mark = written.find_first_of("EeDdQq+-", 1);
  const std::string_view mantissa = written.substr(0, mark);
  if (mantissa.find_first_not_of("+-.0123456789") != std::string_view::npos) return false;
  int exponent = 0;
  if (mark != std::string_view::npos) {
    std::string_view power = written.substr(mark);
    if (power.front() != '+' && power.front() != '-') power.remove_prefix(1);
    if (!parse_field(power, exponent) || exponent > 100000 || exponent < -100000) return false;
  } else {
    exponent = -field.scale;
  }
  if (mantissa.find('.') == std::string_view::npos) exponent -= field.decimals;
  std::array<char, kWidest + 16> text{};
  char* end = std::copy(mantissa.begin(), mantissa.end(), text.data());
  if (exponent != 0) {
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), exponent).ptr;
  }
  return parse_number(text.data(), end, number) == end;
}

}  // namespace quorin::taucs
