// Elimination inside a panel whose updates have all been made: the diagonal block is factored with the exchanges that
// stay within it, then the rows below are divided by it. Both methods, left-looking and multifrontal, end here.
//
// Exchanges move columns of the supernode among themselves, never rows below, so that row lists stay as planned.
//
// Sources: J. R. Bunch, L. Kaufman, Some stable methods for calculating inertia and solving symmetric linear systems,
// Math. Comp. 31 (1977) 163-179; X. S. Li, J. W. Demmel, Making sparse Gaussian elimination scalable by static
// pivoting, SC98; O. Schenk, K. Gartner, On fast factorization pivoting methods for sparse symmetric indefinite
// systems, ETNA 23 (2006) 158-179.
#pragma once

#include <cstddef>

#include "base/scalar.hpp"
#include "sparse/numeric/outcome.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// kLLT: L L^H of a positive definite matrix. kLDLT: L D L^T of a symmetric one, real or complex. kLDLH: L D L^H of a
// Hermitian one; for real scalars the same as kLDLT. kLU: L U of any other.
enum class Factorization { kLLT, kLDLT, kLDLH, kLU };

constexpr PanelKind panel_kind(Factorization factorization) noexcept {
  return factorization == Factorization::kLU ? PanelKind::kUnsymmetric : PanelKind::kSymmetric;
}

// How pivots are chosen inside a diagonal block.
enum class Pivoting {
  kInOrder,       // one after the other
  kDiagonal,      // L D L': the largest of the diagonal, with its row and column
  kBunchKaufman,  // L D L': 1x1 and 2x2 pivots
  kPartial,       // LU: the largest of the column, with its row
  kComplete,      // LU: the largest of the block, or of a part of it with 64 columns, with its row and column
};

template <Scalar T>
struct PivotRule {
  Factorization factorization;
  Pivoting pivoting;
  // A pivot of smaller magnitude is replaced by one of this magnitude and of its own sign, +1 or phase. 0: never.
  RealOf<T> least_pivot;
};

// Pivots by their kind. For L D L' with a real D the signs of its eigenvalues; a perturbed pivot counts with the sign
// that it got. Complex symmetric ones and LU have no signs: they are counted in `perturbed` and `zero` alone.
struct PivotCounts {
  int perturbed = 0, positive = 0, negative = 0, zero = 0;

  void add(const PivotCounts& other) noexcept {
    perturbed += other.perturbed;
    positive += other.positive;
    negative += other.negative;
    zero += other.zero;
  }
};

// The order of the pivots in the diagonal blocks; both arrays are of n and refer to the columns of a supernode by their
// position in it, 0, ..., columns - 1. Null where every pivot stays in its place.
struct PivotOrder {
  // Pivot k of the supernode is its column rows[first + k]; both pivots of a 2x2 block are complemented, ~rows[...].
  // For LU: its row.
  int* rows = nullptr;
  // For LU with complete pivoting: the columns.
  int* columns = nullptr;
};

struct Elimination {
  FactorOutcome outcome = FactorOutcome::kDone;
  int column = 0;  // where it failed: its position among the supernode's columns, before any exchange
  PivotCounts counts;
};

// Elements of the scratch that eliminate_panel needs for panels of up to so many columns.
std::size_t elimination_scratch(int most_columns) noexcept;

// Factors the panel of a supernode with `columns` columns, `below` rows below, in place (panels.hpp tells the layout).
// `rows` and `column_order` are the supernode's part of PivotOrder, or null, without which nothing is exchanged. The
// work is cut for at most `threads` threads, for which kernel buffers are reserved; the result has the same bits for
// any number of them.
//
// kNotPositiveDefinite, for kLLT. A zero pivot without perturbation: for kLU kSingular. For L D L' it is counted as
// zero where nothing stands below it, in which case its column of L is zero and solves give that unknown the value 0;
// otherwise kSingular. kNotFinite for a pivot that is not finite. After a failure the panel means nothing.
template <Scalar T>
Elimination eliminate_panel(const PivotRule<T>& rule, int columns, int below, T* panel, int* rows, int* column_order,
                            T* scratch, int threads) noexcept;

}  // namespace quorin::sparse
