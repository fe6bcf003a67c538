// Fortran's formatted input, as far as numbers in columns need it.
// Fortran 77, ANSI X3.9-1978, chapter 13; the later ES and EN read as E.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "families/taucs/files/text_scanner.hpp"

namespace quorin::taucs {

// How a field of a line is to be read.
struct Field {
  std::string_view text;
  int decimals = 0;
  int scale = 0;  // of "1P"
};

// A format such as "(16I5)", "(1P,4E20.12)", "(2(1X,E10.3)/)": the numbers I, F, E, D, G in groups to any depth, the
// positions X, T, TL, TR and /, the scale P. What does not change how a number is read (S, SP, SS, BN, BZ, :) counts
// for nothing.
class FortranFormat {
 public:
  // False for anything else, and for a format without a number where it starts over.
  [[nodiscard]] bool parse(std::string_view text) noexcept;
  bool is_integer() const noexcept { return is_integer_; }

 private:
  friend class FieldReader;
  class Parser;

  enum class Kind : char { kNumber, kSkip, kColumn, kLine, kScale, kOpen, kClose };
  struct Item {
    Kind kind;
    int count;  // repetitions; of a position columns; the scale
    int width = 0, decimals = 0;
    std::size_t partner = 0;  // of a bracket
  };
  static constexpr std::size_t kMost = 32;  // a file has room for twenty characters

  bool add(const Item& item) noexcept {
    const bool fits = count_ < kMost;
    if (fits) items_[count_++] = item;
    return fits;
  }

  std::array<Item, kMost> items_{};
  std::size_t count_ = 0;
  std::size_t restart_ = 0;  // where a further line begins: the last group that stands for itself, or the start
  bool is_integer_ = true;
};

// The fields of a section that begins on a new line.
class FieldReader {
 public:
  FieldReader(TextScanner& text, const FortranFormat& format) noexcept : text_(text), format_(format) {}

  // The next field; what a line is too short for is empty. False at the end of the file, or if the format leads
  // nowhere within a reasonable number of steps. The text is valid until the next call.
  [[nodiscard]] bool next(Field& field) noexcept {
    if (left_ == 0 && !advance()) return false;
    --left_;
    const FortranFormat::Item& number = format_.items_[at_];
    const auto width = static_cast<std::size_t>(number.width);
    field = {column_ < line_.size() ? line_.substr(column_, width) : std::string_view{}, number.decimals, scale_};
    column_ += width;
    if (left_ == 0) ++at_;
    return true;
  }

 private:
  // Goes to the next number, whose repetitions are left_ then.
  bool advance() noexcept;
  void move(int columns) noexcept;

  TextScanner& text_;
  const FortranFormat& format_;
  std::string_view line_;
  std::size_t column_ = 0;
  std::size_t at_ = 0;
  int left_ = 0;  // of the number at at_
  int scale_ = 0;
  bool has_line_ = false;
  std::array<int, FortranFormat::kMost> rounds_{};  // left of a group, at its opening bracket
};

// The number in a field, blanks around it ignored; false for an empty field and for anything else than a number.
bool parse_field(std::string_view text, int& number) noexcept;
inline bool parse_field(const Field& field, int& number) noexcept { return parse_field(field.text, number); }

// The same for a real number: its exponent may have the letter E, D or Q, or a sign alone; without a point the last
// `decimals` digits stand behind it, and without an exponent it is divided by 10^scale.
bool parse_field(const Field& field, double& number) noexcept;

}  // namespace quorin::taucs
