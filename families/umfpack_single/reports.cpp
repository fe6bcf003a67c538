#include "families/umfpack_single/reports.hpp"

#include <array>
#include <cstdarg>
#include <cstring>

#include "base/text_output.hpp"
#include "families/umfpack_single/info.hpp"
#include "families/umfpack_single/objects.hpp"
#include "families/umfpack_single/settings.hpp"
#include "families/umfpack_single/umfpack_single.hpp"
#include "sparse/sparse.hpp"

namespace quorin::umfpack_single {
namespace {

// What UMFPACK says of itself, and what is true of this interface.
struct Replacement {
  const char* theirs;
  const char* ours;
};
constexpr Replacement kReplacements[] = {
    {"    matrix entry defined as:          double\n", "    matrix entry defined as:          FLOATS\n"},
    {"POSIX C clock_getttime ( ) routine.\n", "ANSI C clock (may wrap around).\n"},
};
constexpr char kInfoHead[] = "UMFPACK V%d.%d.%d (%s), Info:\n";

bool is_one_of(char c, const char* set) { return c != '\0' && std::strchr(set, c) != nullptr; }

// Whether the format takes one floating-point number and nothing else.
bool takes_one_number(const char* format) {
  const char* const percent = std::strchr(format, '%');
  if (percent == nullptr) return false;
  const char* conversion = percent + 1;
  while (is_one_of(*conversion, "0123456789.-+ ")) ++conversion;
  if (!is_one_of(*conversion, "gef")) return false;
  for (const char* c = conversion + 1; *c != '\0'; ++c) {
    if (c[0] != '%') continue;
    if (c[1] != '%') return false;
    ++c;
  }
  return true;
}

// At these print levels values are shown.
constexpr int kValuesLevel = 4;

// Entries for a report; an empty array without complaint if the level does not show them.
FloatInput shown(FloatInput values, const float* Control) {
  return print_level(Control) >= kValuesLevel ? values : FloatInput{};
}

int report_no_memory() {
  base::print("ERROR: out of memory\n\n");
  return UMFPACK_ERROR_out_of_memory;
}

}  // namespace

int print_for_umfpack(const char* format, ...) noexcept {
  if (std::strcmp(format, kInfoHead) == 0) {
    return base::print(kInfoHead, kMainVersion, kSubVersion, kSubSubVersion, kVersionDate);
  }
  for (const Replacement& replacement : kReplacements) {
    if (std::strcmp(format, replacement.theirs) == 0) return base::print("%s", replacement.ours);
  }
  std::va_list arguments;
  va_start(arguments, format);
  const auto print = [&arguments](const char* text) {
    if (!takes_one_number(text)) return base::print_list(text, arguments);
    return base::print(text, static_cast<double>(static_cast<float>(va_arg(arguments, double))));
  };
  const int length = print(format);
  va_end(arguments);
  return length;
}

void report_info(const float* Control, const float* Info) noexcept {
  if (Info == nullptr) return;
  std::array<double, UMFPACK_INFO> info{};
  for (std::size_t i = 0; i < info.size(); ++i) info[i] = static_cast<double>(Info[i]);
  umfpack_di_report_info(Settings(Control).data(), info.data());
}

int report_perm(int np, const int* Perm, const float* Control) noexcept {
  return umfpack_di_report_perm(np, Perm, Settings(Control).data());
}

template <class E>
int report_matrix(int n_row, int n_col, const Matrix& A, int col_form, const float* Control) {
  const int n = col_form != 0 ? n_col : n_row;
  const bool is_readable = n_row > 0 && n_col > 0 && sparse::check_starts(n, A.Ap) && A.Ai != nullptr;
  const FloatInput values = shown(is_readable ? A.Ax : FloatInput{}, Control);
  const Doubles<E> Ax(values, values ? length(A.Ap[n]) : 0);
  if (Ax.has_failed()) return report_no_memory();
  return call<E>(E::kReportMatrix, n_row, n_col, A.Ap, A.Ai, Ax.input(), col_form, Settings(Control).data());
}

template <class E>
int report_triplet(int n_row, int n_col, const Triplets& T, const float* Control) {
  const bool is_readable = n_row > 0 && n_col > 0 && T.nz >= 0;
  const Doubles<E> Tx(shown(is_readable ? T.Tx : FloatInput{}, Control), length(T.nz));
  if (Tx.has_failed()) return report_no_memory();
  return call<E>(E::kReportTriplet, n_row, n_col, T.nz, T.Ti, T.Tj, Tx.input(), Settings(Control).data());
}

template <class E>
int report_vector(int n, FloatInput X, const float* Control) {
  const Doubles<E> x(print_level(Control) > 2 ? X : FloatInput{}, length(n));
  if (x.has_failed()) return report_no_memory();
  return call<E>(E::kReportVector, n, x.input(), Settings(Control).data());
}

template int report_matrix<Real>(int, int, const Matrix&, int, const float*);
template int report_matrix<Complex>(int, int, const Matrix&, int, const float*);
template int report_triplet<Real>(int, int, const Triplets&, const float*);
template int report_triplet<Complex>(int, int, const Triplets&, const float*);
template int report_vector<Real>(int, FloatInput, const float*);
template int report_vector<Complex>(int, FloatInput, const float*);

}  // namespace quorin::umfpack_single
