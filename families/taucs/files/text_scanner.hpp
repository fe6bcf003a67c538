// Numbers and lines from a file, through a buffer of fixed size: files may be of any size.
#pragma once

#include <complex>
#include <cstddef>
#include <string_view>

#include "base/workspace.hpp"
#include "families/taucs/files/number_parser.hpp"
#include "platform/platform.hpp"

namespace quorin::taucs {

class TextScanner {
 public:
  explicit TextScanner(platform::File& file) noexcept : file_(file), buffer_(kSize) {
    position_ = end_ = buffer_.data();
  }

  // False if there is no memory for the buffer; then there is nothing to read.
  explicit operator bool() const noexcept { return static_cast<bool>(buffer_); }

  // The next number, an int or a double, behind any blanks and line ends. False at the end of the file and where
  // something else stands.
  template <class Number>
  bool next(Number& number) noexcept {
    skip_blanks();
    if (end_ - position_ < kLongNumber) refill();
    const char* stop = parse_number(position_, end_, number);
    // The rest of it may be in the file still.
    if ((stop == nullptr || stop == end_) && refill()) stop = parse_number(position_, end_, number);
    if (stop == nullptr || (stop == end_ && !is_at_end_)) return false;
    position_ = stop;
    return true;
  }

  // A complex number: its real part, then its imaginary part.
  bool next(std::complex<double>& number) noexcept {
    double real = 0, imaginary = 0;
    const bool is_there = next(real) && next(imaginary);
    number = {real, imaginary};
    return is_there;
  }

  // The next line without its end, valid until the next call. False at the end of the file, or if the line is longer
  // than the buffer.
  bool next_line(std::string_view& line) noexcept;

 private:
  static constexpr std::size_t kSize = std::size_t{1} << 16;
  static constexpr std::ptrdiff_t kLongNumber = 512;

  static bool is_blank(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }
  void skip_blanks() noexcept {
    do {
      while (position_ != end_ && is_blank(*position_)) ++position_;
    } while (position_ == end_ && refill());
  }
  // Moves what is left to the front and fills the rest of the buffer; whether anything was added.
  bool refill() noexcept;

  platform::File& file_;
  base::Workspace<char> buffer_;
  const char* position_ = nullptr;
  const char* end_ = nullptr;
  bool is_at_end_ = false;
};

}  // namespace quorin::taucs
