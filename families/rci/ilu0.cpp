// ILU(0), row by row (Saad, algorithm 10.4, the IKJ variant).
#include <algorithm>
#include <cmath>

#include "base/workspace.hpp"
#include "families/rci/messages.hpp"
#include "families/rci/rci.hpp"
#include "sparse/sparse.hpp"

namespace quorin::rci {
namespace {

using enum Ilu0Status;

// What to do with small pivots.
struct PivotRule {
  bool replace;
  double threshold;
  double replacement;

  // Whether the pivot will do, perhaps replaced.
  Ilu0Status apply(double& pivot) const {
    if (!std::isfinite(pivot)) return kSmallPivot;
    const bool small = std::fabs(pivot) < threshold;
    if (replace && small) pivot = replacement;
    if (pivot == 0.0) return kZeroPivot;
    return small && !replace ? kSmallPivot : kDone;
  }
};

// Entries k of row i, 0-based.
struct RowRange {
  int begin;
  int end;
};

RowRange row_of(const int* ia, int i) { return {ia[i] - 1, ia[i + 1] - 1}; }

// The first row may begin behind the first entry. A row that ends before it begins has no diagonal either.
Ilu0Status check_pattern(int n, const int* ia, const int* ja) {
  const sparse::PatternRules rules{.base = 1, .begins_at_base = false, .ascends = true, .has_diagonal = true};
  switch (sparse::check_compressed(n, n, ia, ja, rules).fault) {
    case sparse::PatternFault::kNoFault:
      return kDone;
    case sparse::PatternFault::kDecreasingStarts:
    case sparse::PatternFault::kNoDiagonal:
      return kNoDiagonal;
    default:
      return kUnsortedColumns;
  }
}

// Row i of the factors from that of A and from the rows above it, whose diagonal entries stand at `diagonal`; its own
// is added there. `place` maps a column to 1 + the place of its last entry: in row i where that is above row.begin.
void eliminate_row(int i, RowRange row, const double* a, const int* ia, const int* ja, int* diagonal, int* place,
                   double* b) {
  for (int k = row.begin; k < row.end; ++k) {
    place[ja[k] - 1] = k + 1;
    b[k] = a[k];
  }
  const int pivot_place = diagonal[i] = place[i] - 1;
  for (int k = row.begin; k < pivot_place; ++k) {
    const int above = ja[k] - 1;
    const double multiplier = b[k] / b[diagonal[above]];
    b[k] = multiplier;
    for (int u = diagonal[above] + 1; u < ia[above + 1] - 1; ++u) {
      if (const int target = place[ja[u] - 1]; target > row.begin) b[target - 1] -= multiplier * b[u];
    }
  }
}

Ilu0Status factorize(int n, const double* a, const int* ia, const int* ja, PivotRule rule, double* b) {
  if (n <= 0) return kBadSize;
  base::Workspace<int> diagonal(static_cast<std::size_t>(n)), place(static_cast<std::size_t>(n));
  if (!diagonal || !place) return kNoMemory;
  std::fill_n(place.data(), n, 0);
  if (const Ilu0Status error = check_pattern(n, ia, ja); error != kDone) return error;
  for (int i = 0; i < n; ++i) {
    const RowRange row = row_of(ia, i);
    eliminate_row(i, row, a, ia, ja, diagonal.data(), place.data(), b);
    if (const Ilu0Status error = rule.apply(b[diagonal[i]]); error != kDone) return error;
  }
  return kDone;
}

}  // namespace

void ilu0(int n, const double* a, const int* ia, const int* ja, double* bilu0, const int* ipar, const double* dpar,
          int* ierr) noexcept {
  const ConstIpar integers(ipar);
  const ConstDpar reals(dpar);
  const PivotRule rule{integers.replace_pivots() != 0, std::fabs(reals.pivot_threshold()), reals.replacement_pivot()};
  const Ilu0Status status = factorize(n, a, ia, ja, rule, bilu0);
  Messages("dcsrilu0", kDcsrilu0Texts, kIluFiles, integers).report(status);
  *ierr = static_cast<int>(status);
}

}  // namespace quorin::rci
