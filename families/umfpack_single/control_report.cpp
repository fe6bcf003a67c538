#include <algorithm>
#include <cstdint>

#include "base/text_output.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/settings.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {
namespace {

double widened(const float* Control, int index) { return static_cast<double>(setting(Control, index)); }

// "0.2" and, below it, what is dense by it.
void print_dense(const float* Control, int index, const char* format, const char* meaning) {
  base::print(format, index, widened(Control, index));
  if (setting(Control, index) < 0) {
    base::print("        no \"dense\" rows/columns\n");
  } else {
    base::print(meaning, widened(Control, index));
  }
}

void print_strategy(const float* Control) {
  const int strategy = whole_setting(Control, UMFPACK_STRATEGY);
  base::print("    %d: strategy: %d", UMFPACK_STRATEGY, strategy);
  if (strategy == UMFPACK_STRATEGY_UNSYMMETRIC) {
    base::print(
        " (unsymmetric)\n        Q = COLAMD (A), Q refined during numerical\n"
        "        factorization, and no attempt at diagonal pivoting.\n");
  } else if (strategy == kStrategy2by2) {
    base::print(" (symmetric, with 2-by-2 block pivoting)\n        Taken as the symmetric strategy.\n");
  } else if (strategy == UMFPACK_STRATEGY_SYMMETRIC) {
    base::print(
        " (symmetric)\n        Q = AMD (A+A'), Q not refined during numerical\n"
        "        factorization, and diagonal pivoting (P=Q') attempted.\n");
  } else {
    base::print(" (auto)\n");
  }
}

// An allocation parameter: a ratio, or if it is negative a size.
void print_allocation(const float* Control, int index, const char* ratio, const char* size) {
  if (setting(Control, index) >= 0) {
    base::print(ratio, index, widened(Control, index));
  } else {
    base::print(size, index, -whole_setting(Control, index));
  }
}

const char* three_ways(float value) {
  if (value > 0) return "(yes)";
  return value < 0 ? "(no)" : "(auto)";
}

const char* scaling_text(int scaling) {
  if (scaling == UMFPACK_SCALE_NONE) return " (no)";
  return scaling == UMFPACK_SCALE_MAX ? " (divide each row by max. abs. value in each row)"
                                      : " (divide each row by sum of abs. values in each row)";
}

double tolerance(const float* Control, int index) { return std::clamp(widened(Control, index), 0.0, 1.0); }

void print_analysis(const float* Control) {
  base::print("\n    %d: print level: %d\n", UMFPACK_PRL, print_level(Control));
  print_dense(Control, UMFPACK_DENSE_ROW, "    %d: dense row parameter:    %g\n",
              "        \"dense\" rows have    > max (16, (%g)*16*sqrt(n_col) entries)\n");
  print_dense(Control, UMFPACK_DENSE_COL, "    %d: dense column parameter: %g\n",
              "        \"dense\" columns have > max (16, (%g)*16*sqrt(n_row) entries)\n");
  base::print("    %d: pivot tolerance: %g\n", UMFPACK_PIVOT_TOLERANCE, tolerance(Control, UMFPACK_PIVOT_TOLERANCE));
  base::print("    %d: block size for dense matrix kernels: %d\n", UMFPACK_BLOCK_SIZE,
              whole_setting(Control, UMFPACK_BLOCK_SIZE));
  print_strategy(Control);
}

void print_factorization(const float* Control) {
  print_allocation(Control, UMFPACK_ALLOC_INIT, "    %d: initial allocation ratio: %g\n",
                   "    %d: initial allocation (in Units): %d\n");
  base::print("    %d: max iterative refinement steps: %d\n", UMFPACK_IRSTEP,
              std::max(0, whole_setting(Control, UMFPACK_IRSTEP)));
  base::print("    %d: 2-by-2 pivot tolerance: %g\n", k2by2Tolerance, tolerance(Control, k2by2Tolerance));
  base::print("    %d: Q fixed during numerical factorization: %g %s\n", UMFPACK_FIXQ, widened(Control, UMFPACK_FIXQ),
              three_ways(setting(Control, UMFPACK_FIXQ)));
  print_dense(Control, UMFPACK_AMD_DENSE, "    %d: AMD dense row/col parameter:    %g\n",
              "       \"dense\" rows/columns have > max (16, (%g)*sqrt(n)) entries\n");
  base::print("        Only used if the AMD ordering is used.\n");
  base::print("    %d: diagonal pivot tolerance: %g\n        Only used if diagonal pivoting is attempted.\n",
              UMFPACK_SYM_PIVOT_TOLERANCE, tolerance(Control, UMFPACK_SYM_PIVOT_TOLERANCE));
  const int scaling = whole_setting(Control, UMFPACK_SCALE);
  base::print("    %d: scaling: %d%s\n", UMFPACK_SCALE, scaling, scaling_text(scaling));
  print_allocation(Control, UMFPACK_FRONT_ALLOC_INIT, "    %d: frontal matrix allocation ratio: %g\n",
                   "    %d: initial frontal matrix size (# of Entry's): %d\n");
  base::print("    %d: drop tolerance: %g\n", UMFPACK_DROPTOL, widened(Control, UMFPACK_DROPTOL));
  const float aggressive = setting(Control, UMFPACK_AGGRESSIVE);
  base::print("    %d: AMD and COLAMD aggressive absorption: %g%s\n", UMFPACK_AGGRESSIVE,
              static_cast<double>(aggressive), aggressive != 0 ? " (yes)" : " (no)");
}

void print_compile_time() {
  base::print("\n    The following options can only be changed at compile-time:\n");
  base::print("    %d: BLAS library used:  Fortran BLAS.  size of BLAS integer: %d\n", UMFPACK_COMPILED_WITH_BLAS,
              static_cast<int>(sizeof(std::int32_t)));
  base::print("    %d: compiled for ANSI C\n", kCompiledForMatlab);
  base::print("    %d: CPU timer is ANSI C clock (may wrap around).\n", kCompiledWithGetrusage);
  base::print("    %d: debugging not enabled.\n", kCompiledInDebugMode);
  base::print("    size of int: %d long: %d Int: %d pointer: %d float: %d Entry: %d (in bytes)\n\n",
              static_cast<int>(sizeof(std::int32_t)), static_cast<int>(sizeof(std::int32_t)),
              static_cast<int>(sizeof(std::int32_t)), static_cast<int>(sizeof(void*)), static_cast<int>(sizeof(float)),
              static_cast<int>(sizeof(float)));
}

}  // namespace

void report_control(const float* Control) noexcept {
  if (print_level(Control) < 2) return;
  base::print("UMFPACK V%d.%d.%d (%s), Control:\n", kMainVersion, kSubVersion, kSubSubVersion, kVersionDate);
  base::print("    Matrix entry defined as: FLOATS\n");
  base::print("    Int (generic integer) defined as: int\n");
  print_analysis(Control);
  print_factorization(Control);
  print_compile_time();
}

}  // namespace quorin::umfpack_single
