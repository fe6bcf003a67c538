// Sparse LU of a matrix from an application, read from a file, through the index forms.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

// A matrix in compressed columns as hosts without pointers hold it: all integers in one array, all floats in another.
struct Matrix {
  int32_t n = 0;
  std::vector<int32_t> integers;  // column starts, then row indices
  std::vector<float> floats;      // values
  int32_t indices_at() const { return n + 1; }
};

// The next `count` numbers, in fields of `width` characters, `per_line` to a line.
std::vector<std::string> fields(std::istream& file, std::size_t count, std::size_t per_line, std::size_t width) {
  std::vector<std::string> all;
  for (std::string line; all.size() < count && std::getline(file, line);) {
    for (std::size_t k = 0; k < per_line && all.size() < count; ++k) all.push_back(line.substr(k * width, width));
  }
  return all;
}

// FS 183 6 of the Harwell-Boeing collection: the matrix of a chemical kinetics problem by A. R. Curtis.
Matrix read_chemical_kinetics(const char* path) {
  Matrix a;
  std::ifstream file(path);
  for (std::string line; a.n < 4 && std::getline(file, line);) ++a.n;  // title, counts, sizes, formats
  if (a.n != 4) return {};
  a.n = 183;
  const std::size_t entries = 1069;
  for (const auto& field : fields(file, static_cast<std::size_t>(a.n) + 1, 11, 7)) {
    a.integers.push_back(std::stoi(field) - 1);
  }
  for (const auto& field : fields(file, entries, 15, 5)) a.integers.push_back(std::stoi(field) - 1);
  for (auto& field : fields(file, entries, 4, 20)) {
    const std::size_t exponent = field.find('D');
    if (exponent != std::string::npos) field[exponent] = 'E';
    a.floats.push_back(static_cast<float>(std::stod(field)));
  }
  return a;
}

// max |b - A x| / (max row sum |A| * max |x| + max |b|) in double precision.
double residual(const Matrix& a, const float* x, const float* b) {
  const auto n = static_cast<std::size_t>(a.n);
  std::vector<double> rest(b, b + n), row_sums(n);
  double largest_x = 0, largest_b = 0, largest_rest = 0, norm = 0;
  for (std::size_t j = 0; j < n; ++j) {
    for (auto k = static_cast<std::size_t>(a.integers[j]); k < static_cast<std::size_t>(a.integers[j + 1]); ++k) {
      const auto i = static_cast<std::size_t>(a.integers[n + 1 + k]);
      rest[i] -= static_cast<double>(a.floats[k]) * static_cast<double>(x[j]);
      row_sums[i] += std::fabs(static_cast<double>(a.floats[k]));
    }
    largest_x = std::fmax(largest_x, std::fabs(static_cast<double>(x[j])));
    largest_b = std::fmax(largest_b, std::fabs(static_cast<double>(b[j])));
  }
  for (std::size_t i = 0; i < n; ++i) {
    largest_rest = std::fmax(largest_rest, std::fabs(rest[i]));
    norm = std::fmax(norm, row_sums[i]);
  }
  return largest_rest / (norm * largest_x + largest_b);
}

void QUORIN_CALLBACK print(const char* text) { std::fputs(text, stdout); }

double solve(const Library& library, Timer& timer) {
  Matrix a = read_chemical_kinetics(QUORIN_MATRICES_DIR "/umfpack/fs_183_6.rua");
  if (a.n == 0) return kNever;
  // Control, Info, the right-hand side and the solution stand behind the values.
  const auto control = static_cast<int32_t>(a.floats.size()), info = control + 20, b = info + 90, x = b + a.n;
  a.floats.insert(a.floats.end(), std::size_t{20 + 90} + 2 * static_cast<std::size_t>(a.n), 1.0F);
  int32_t* const integers = a.integers.data();
  float* const floats = a.floats.data();
  void *symbolic_object = nullptr, *numeric_object = nullptr;
  library.umfpack_si_defaults_Idx(floats, control);
  floats[control] = 2;
  int status = -1;
  timer.time([&] {
    status = library.umfpack_si_symbolic_Idx(a.n, a.n, integers, 0, integers, a.indices_at(), floats, 0,
                                             &symbolic_object, floats, control, floats, info);
    if (status == 0) {
      status = library.umfpack_si_numeric_Idx(integers, 0, integers, a.indices_at(), floats, 0, symbolic_object,
                                              &numeric_object, floats, control, floats, info);
    }
    if (status == 0) {
      status = library.umfpack_si_solve_Idx(0, integers, 0, integers, a.indices_at(), floats, 0, floats, x, floats, b,
                                            numeric_object, floats, control, floats, info);
    }
  });
  library.set_printf_callback_32f(print);
  library.umfpack_si_report_info_Idx(floats, control, floats, info);
  library.set_printf_callback_32f(nullptr);
  library.umfpack_si_free_numeric_Idx(&numeric_object);
  library.umfpack_si_free_symbolic_Idx(&symbolic_object);
  return status == 0 ? residual(a, floats + x, floats + b) : kNever;
}

}  // namespace

void umfpack_rows(const Library& library, Report& report) {
  report.heading("Sparse LU (the library's own report first)");
  report.row("UMFPACK with floats, chemical kinetics", "183x183, 1069 entries", 1e-6,
             [&](Timer& timer) { return solve(library, timer); });
}

}  // namespace demo
