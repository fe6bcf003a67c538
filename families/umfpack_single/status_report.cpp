#include "base/text_output.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/settings.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {
namespace {

struct Message {
  int status;
  const char* text;
};

constexpr Message kMessages[] = {
    {UMFPACK_OK, "OK\n"},
    {UMFPACK_WARNING_singular_matrix, "WARNING: matrix is singular\n"},
    {UMFPACK_ERROR_out_of_memory, "ERROR: out of memory\n"},
    {UMFPACK_ERROR_invalid_Numeric_object, "ERROR: Numeric object is invalid\n"},
    {UMFPACK_ERROR_invalid_Symbolic_object, "ERROR: Symbolic object is invalid\n"},
    {UMFPACK_ERROR_argument_missing, "ERROR: required argument(s) missing\n"},
    {UMFPACK_ERROR_n_nonpositive, "ERROR: dimension (n_row or n_col) must be > 0\n"},
    {UMFPACK_ERROR_invalid_matrix, "ERROR: input matrix is invalid\n"},
    {UMFPACK_ERROR_different_pattern, "ERROR: pattern of matrix (Ap and/or Ai) has changed\n"},
    {UMFPACK_ERROR_invalid_system, "ERROR: system argument invalid\n"},
    {UMFPACK_ERROR_invalid_permutation, "ERROR: invalid permutation\n"},
    {UMFPACK_ERROR_internal_error,
     "INTERNAL ERROR!\n"
     "Input arguments might be corrupted or aliased, or an internal\n"
     "error has occurred.  Check your input arguments with the\n"
     "umfpack_*_report_* routines before calling the umfpack_*\n"
     "computational routines.  Rebuild with debugging enabled, and\n"
     "look for failed assertions.\n"},
};

void print_message(int status) {
  for (const Message& message : kMessages) {
    if (message.status == status) {
      base::print("%s", message.text);
      return;
    }
  }
  base::print("ERROR: Unrecognized error code: %d\n", status);
}

}  // namespace

void report_status(const float* Control, int status) noexcept {
  constexpr int kBannerLevel = 4, kTermsLevel = 6;
  const int level = print_level(Control);
  if (level < 1 || (status == UMFPACK_OK && level < 2)) return;
  base::print("\n");
  if (level >= kBannerLevel) base::print("%s\n", UMFPACK_COPYRIGHT);
  if (level >= kTermsLevel) {
    for (const char* const part : {UMFPACK_LICENSE_PART1, UMFPACK_LICENSE_PART2, UMFPACK_LICENSE_PART3}) {
      base::print("%s", part);
    }
  }
  base::print("UMFPACK V%d.%d.%d (%s): ", kMainVersion, kSubVersion, kSubSubVersion, kVersionDate);
  print_message(status);
  base::print("\n");
}

}  // namespace quorin::umfpack_single
