// Numbers in columns of fixed width, as Fortran's formatted output leaves them.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorin::taucs {

// A format descriptor of one repeated kind of field: "(16I5)", "(1P,4E20.12)", "(3D26.17E3)".
struct FieldFormat {
  int repeat = 0;  // fields in a line
  int width = 0;   // characters in a field
  int decimals = 0;
  int scale = 0;     // of "1P"
  char kind = '\0';  // I, F, E, D or G

  // False for other descriptors.
  bool parse(std::string_view text) noexcept;
  bool is_integer() const noexcept { return kind == 'I'; }
};

// The number in a field, blanks around it ignored; false for an empty field and for anything else than a number.
bool parse_field(std::string_view field, int& number) noexcept;

// The same for a real number: its exponent may have the letter E, D or Q, or a sign alone; without a point the last
// `decimals` digits stand behind it, and without an exponent it is divided by 10^scale.
bool parse_field(std::string_view field, const FieldFormat& format, double& number) noexcept;

}  // namespace quorin::taucs
