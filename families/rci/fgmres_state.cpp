#include "families/rci/fgmres_state.hpp"

#include <algorithm>
#include <limits>

#include "families/rci/vector_kernels.hpp"

namespace quorin::rci {

FgmresLayout::FgmresLayout(int n, int m) {
  // Beyond this the packed triangle alone passes the range of ipar; the mark in ipar(3) needs a smaller length, too.
  constexpr int kLongestCycle = 1 << 16;
  if (n <= 0 || m <= 0 || m > kLongestCycle) return;
  const std::int64_t wide_n = n, wide_m = m;
  const std::int64_t start = (wide_m + 1) * wide_n + 1;
  const std::int64_t end = start + wide_m * (wide_m + 1) / 2 + 4 * wide_m + 1 + wide_m * wide_n;
  if (end > std::numeric_limits<int>::max()) return;
  valid = true;
  cycle_length = m;
  hessenberg = static_cast<int>(start);
  cosines = hessenberg + static_cast<int>(wide_m * (wide_m + 1) / 2);
  sines = cosines + m;
  rotated_residual = sines + m;
  solution = rotated_residual + m + 1;
  preconditioned = solution + m;
}

bool FgmresLayout::matches(ConstIpar ipar) const {
  return ipar.hessenberg_start() == hessenberg && ipar.cosines_start() == cosines && ipar.sines_start() == sines &&
         ipar.rotated_residual_start() == rotated_residual && ipar.solution_start() == solution &&
         ipar.preconditioned_start() == preconditioned;
}

void FgmresLayout::store(Ipar ipar) const {
  ipar.hessenberg_start() = hessenberg;
  ipar.cosines_start() = cosines;
  ipar.sines_start() = sines;
  ipar.rotated_residual_start() = rotated_residual;
  ipar.solution_start() = solution;
  ipar.preconditioned_start() = preconditioned;
}

namespace {
constexpr int kStageBits = 4;
constexpr int kLengthShift = kStageBits + 1;
}  // namespace

FgmresMark FgmresMark::unpack(int entry) {
  if (entry < 0) return {FgmresStage{0}, false, 0};
  return {FgmresStage{entry & ((1 << kStageBits) - 1)}, ((entry >> kStageBits) & 1) != 0, entry >> kLengthShift};
}

int FgmresMark::pack() const {
  return static_cast<int>(stage) | static_cast<int>(keeps_preconditioned) << kStageBits | cycle_length << kLengthShift;
}

void add_correction(const FgmresArrays& arrays, int k, bool keeps_preconditioned, double* target) {
  double* const y = arrays.solution();
  arrays.hessenberg().solve(k, y);
  const double* z = keeps_preconditioned ? arrays.z(1) : arrays.v(1);
  add_combination(arrays.n(), z, static_cast<std::size_t>(k), y, target);
}

void clear_correction(const FgmresArrays& arrays, int k) { std::fill_n(arrays.hessenberg().g(), k, 0.0); }

}  // namespace quorin::rci
