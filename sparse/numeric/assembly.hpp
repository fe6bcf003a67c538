// Where each stored entry of a matrix goes in the panels of its factor. Found once for a pattern and used by every
// factorization of that pattern: to assemble a panel is then to gather.
#pragma once

#include <cstddef>
#include <span>

#include "base/scalar.hpp"
#include "base/workspace.hpp"
#include "sparse/pattern/column_matrix.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// The entries (i, j) of A that are read; the others are passed over.
enum class Triangle {
  kAll,
  kLower,  // i >= j
  kUpper,  // i <= j
};

struct AssemblyOptions {
  PanelKind panels = PanelKind::kSymmetric;
  // The pattern's lists are rows of A, not columns.
  bool by_rows = false;
  Triangle read = Triangle::kAll;
  // Whether an entry that is read also stands for its mirror image. Symmetric panels need one of the two kinds that do.
  Symmetry symmetry = Symmetry::kSymmetric;
  // Row i of A is row row_position[i] of the matrix that is factored, a permutation; null: row i. For kGeneral.
  const int* row_position = nullptr;
};

class Assembly {
 public:
  // A stored entry and the row of its panel that it is added to.
  struct Place {
    int entry;  // its complement ~entry where the conjugate is added
    int row;    // 0 <= row < plan.height(panels, s); those of U^T come after the rows below
  };

  // kOutOfMemory; kTooLarge for more than 2^31 - 1 places; kBadPattern for a pattern that is broken or has an entry
  // where the plan has none. The plan is the one that the factorization will use. `options.row_position` is copied, the
  // pattern is not kept. Time: O(n + entries + row lists).
  Outcome build(const Plan& plan, const Pattern& pattern, const AssemblyOptions& options) noexcept;

  PanelKind panels() const noexcept { return panels_; }
  Symmetry symmetry() const noexcept { return symmetry_; }
  // What is added to column k of the plan's order, in the panel of its supernode.
  std::span<const Place> column(int k) const noexcept {
    return {places_.data() + starts_[k], static_cast<std::size_t>(starts_[k + 1] - starts_[k])};
  }
  // Of each step of the plan the row of A that stands there; null where it is the plan's permutation.
  const int* rows() const noexcept { return rows_.data(); }
  std::size_t bytes() const noexcept;

 private:
  PanelKind panels_ = PanelKind::kSymmetric;
  Symmetry symmetry_ = Symmetry::kSymmetric;
  base::Workspace<int> starts_, rows_;
  base::Workspace<Place> places_;
};

// The values of a matrix, in the order of the pattern's entries, perhaps scaled: the entry (i, j) of A counts as
// row_scale[i] a_ij column_scale[j]. Both scales are there or neither; for symmetric panels both are the same array.
template <Scalar T>
struct Values {
  const T* values;
  const RealOf<T>* row_scale = nullptr;
  const RealOf<T>* column_scale = nullptr;
};

// panel <- the part of A that belongs into panel s, zeros elsewhere: plan.height(kind, s) x plan.columns(s). Repeated
// entries add up in the order in which they are stored.
template <Scalar T>
void assemble(const Plan& plan, const Assembly& assembly, const Values<T>& A, int s, T* panel) noexcept;

// The largest sum of magnitudes |re| + |im| in a row of the scaled and permuted matrix, or -1 when an entry is not
// finite. `scratch`: n numbers.
template <Scalar T>
RealOf<T> largest_row_sum(const Plan& plan, const Assembly& assembly, const Values<T>& A, RealOf<T>* scratch) noexcept;

}  // namespace quorin::sparse
