#include "sparse/numeric/assembly.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(int n) noexcept { return static_cast<std::size_t>(n); }

// A place in the factored matrix P A P^T, in steps.
struct Step {
  int row, column;
};

// Calls take(entry, step, is_conjugated) for each element that an entry of the pattern adds to: in the lower triangle
// for symmetric panels, anywhere for others. lists[k] is the pattern's list for step k: in this order elements that are
// near each other come soon after one another.
template <class Take>
void for_each_element(const Plan& plan, const Pattern& pattern, const AssemblyOptions& options, const int* lists,
                      const Take& take) {
  const int* const inverse = plan.inverse();
  const bool is_mirrored = options.symmetry != Symmetry::kGeneral;
  const bool is_hermitian = options.symmetry == Symmetry::kHermitian;
  for (int own = 0; own < pattern.columns; ++own) {
    const int list = lists[own];
    for (int k = pattern.starts[list], end = pattern.starts[list + 1]; k < end; ++k) {
      const int index = pattern.indices[k];
      const int i = options.by_rows ? list : index, j = options.by_rows ? index : list;
      if ((options.read == Triangle::kLower && i < j) || (options.read == Triangle::kUpper && i > j)) continue;
      const bool is_moved = options.row_position != nullptr && !options.by_rows;
      const int other = inverse[is_moved ? options.row_position[i] : index];
      const Step step = options.by_rows ? Step{own, other} : Step{other, own};
      const Step mirrored{step.column, step.row};
      if (options.panels == PanelKind::kUnsymmetric) {
        take(k, step, false);
        if (is_mirrored && i != j) take(k, mirrored, is_hermitian);
      } else {  // without a branch that nothing foretells
        const bool is_above = step.row < step.column;
        take(k, {std::max(step.row, step.column), std::min(step.row, step.column)}, is_hermitian && is_above);
      }
    }
  }
}

// The column of the panel that an element goes to: its own, or its row's, transposed, when it stands right of the
// diagonal block.
int panel_column(const Plan& plan, Step step) noexcept {
  const bool is_right_of_block =
      step.column > step.row && plan.supernode_of(step.column) != plan.supernode_of(step.row);
  return is_right_of_block ? step.row : step.column;
}

}  // namespace

Outcome Assembly::build(const Plan& plan, const Pattern& pattern, const AssemblyOptions& options) noexcept {
  const int n = plan.size();
  if (pattern.columns != n || pattern.rows != n || !pattern.check()) return Outcome::kBadPattern;
  Assembly built;
  built.panels_ = options.panels;
  built.symmetry_ = options.symmetry;
  built.starts_ = Workspace<int>(to_size(n) + 1);
  Workspace<int> next(to_size(n));
  Workspace<unsigned> position(to_size(n));
  if (!built.starts_ || !next || !position) return Outcome::kOutOfMemory;
  if (options.row_position != nullptr) {
    built.rows_ = Workspace<int>(to_size(n));
    if (!built.rows_) return Outcome::kOutOfMemory;
    for (int i = 0; i < n; ++i) built.rows_[to_size(plan.inverse()[options.row_position[i]])] = i;
  }

  // Count, cumulate, scatter. Places hold steps at first; those right of the diagonal block are complemented.
  std::fill(next.begin(), next.end(), 0);
  std::int64_t count = 0;
  const int* const lists = options.by_rows && built.rows_ ? built.rows() : plan.permutation();
  for_each_element(plan, pattern, options, lists, [&](int, Step step, bool) {
    ++next[to_size(panel_column(plan, step))];
    ++count;
  });
  if (count > std::numeric_limits<int>::max()) return Outcome::kTooLarge;
  cumulate(n, next.data(), built.starts_.data());
  built.places_ = Workspace<Place>(static_cast<std::size_t>(count));
  if (!built.places_) return Outcome::kOutOfMemory;
  for_each_element(plan, pattern, options, lists, [&](int entry, Step step, bool is_conjugated) {
    const int column = panel_column(plan, step);
    const int row = column == step.column ? step.row : ~step.column;
    built.places_[to_size(next[to_size(column)]++)] = {is_conjugated ? ~entry : entry, row};
  });

  // From steps to the rows of panels, all panels' rows having been numbered: position[k] is the number of step k in the
  // panel at hand, of a step that is none of its rows a smaller one.
  std::fill(position.begin(), position.end(), 0U);
  bool is_sound = true;
  unsigned begin = 1;
  for (int s = 0; s < plan.supernodes(); ++s) {
    const int first = plan.first(s), columns = plan.columns(s);
    const auto below = plan.below(s);
    unsigned number = begin;
    for (int i = 0; i < columns; ++i) position[to_size(first + i)] = number++;
    for (const int k : below) position[to_size(k)] = number++;
    for (int k = built.starts_[to_size(first)]; k < built.starts_[to_size(first + columns)]; ++k) {
      int& row = built.places_[to_size(k)].row;
      const bool is_right_of_block = row < 0;
      const unsigned place = position[to_size(is_right_of_block ? ~row : row)];
      is_sound = is_sound && place >= begin;
      row = static_cast<int>(place - begin) + (is_right_of_block ? plan.below_count(s) : 0);
    }
    begin = number;
  }
  if (!is_sound) return Outcome::kBadPattern;
  *this = std::move(built);
  return Outcome::kDone;
}

std::size_t Assembly::bytes() const noexcept {
  return (starts_.size() + rows_.size()) * sizeof(int) + places_.size() * sizeof(Place);
}

namespace {

// Rows and columns of A by the rows of a panel.
class PanelRows {
 public:
  PanelRows(const Plan& plan, const Assembly& assembly, int s) noexcept
      : first_(plan.first(s)),
        columns_(plan.columns(s)),
        rows_(plan.rows(s)),
        below_(plan.below(s)),
        column_of_(plan.permutation()),
        row_of_(assembly.rows() == nullptr ? column_of_ : assembly.rows()) {}

  // row_scale[i] column_scale[j] for the element of A in column c and row r of the panel.
  template <class Real>
  Real scale(const Real* row_scale, const Real* column_scale, int c, int r) const noexcept {
    const int k = first_ + c, l = step(r);
    return r < rows_ ? row_scale[row_of_[l]] * column_scale[column_of_[k]]
                     : row_scale[row_of_[k]] * column_scale[column_of_[l]];
  }
  int step(int r) const noexcept {
    if (r < columns_) return first_ + r;
    return below_[to_size(r < rows_ ? r : r - static_cast<int>(below_.size())) - to_size(columns_)];
  }
  // Whether row r holds U^T.
  bool is_right(int r) const noexcept { return r >= rows_; }

 private:
  int first_, columns_, rows_;
  std::span<const int> below_;
  const int *column_of_, *row_of_;
};

// Calls take(column, row, value) for all that is added to panel s.
template <Scalar T, class Take>
void for_each_value(const Plan& plan, const Assembly& assembly, const Values<T>& A, int s, const Take& take) noexcept {
  const PanelRows rows(plan, assembly, s);
  const int first = plan.first(s);
  for (int c = 0; c < plan.columns(s); ++c) {
    for (const Assembly::Place place : assembly.column(first + c)) {
      T value = place.entry < 0 ? conjugate(A.values[~place.entry]) : A.values[place.entry];
      if (A.row_scale != nullptr) value *= rows.scale(A.row_scale, A.column_scale, c, place.row);
      take(c, place.row, value);
    }
  }
}

}  // namespace

template <Scalar T>
void assemble(const Plan& plan, const Assembly& assembly, const Values<T>& A, int s, T* panel) noexcept {
  const std::ptrdiff_t height = plan.height(assembly.panels(), s);
  std::fill_n(panel, height * plan.columns(s), T{});
  for_each_value(plan, assembly, A, s, [&](int c, int r, T value) { panel[c * height + r] += value; });
}

template <Scalar T>
RealOf<T> largest_row_sum(const Plan& plan, const Assembly& assembly, const Values<T>& A, RealOf<T>* scratch) noexcept {
  using Real = RealOf<T>;
  constexpr Real kLargest = std::numeric_limits<Real>::max();
  std::fill_n(scratch, plan.size(), Real{0});
  const bool is_symmetric = assembly.panels() == PanelKind::kSymmetric;
  bool is_finite = true;
  for (int s = 0; s < plan.supernodes(); ++s) {
    const PanelRows rows(plan, assembly, s);
    for_each_value(plan, assembly, A, s, [&](int c, int r, T value) {
      const int column = plan.first(s) + c, row = rows.step(r);
      const Real magnitude = std::fabs(real_part(value)) + std::fabs(imaginary_part(value));
      is_finite = is_finite && std::fabs(real_part(value)) <= kLargest && std::fabs(imaginary_part(value)) <= kLargest;
      scratch[rows.is_right(r) ? column : row] += magnitude;
      if (is_symmetric && row != column) scratch[column] += magnitude;
    });
  }
  // A sum may overflow although all entries are finite.
  const Real largest = plan.size() == 0 ? 0 : *std::max_element(scratch, scratch + plan.size());
  return is_finite ? std::min(largest, kLargest) : Real{-1};
}

template void assemble<float>(const Plan&, const Assembly&, const Values<float>&, int, float*) noexcept;
template void assemble<double>(const Plan&, const Assembly&, const Values<double>&, int, double*) noexcept;
template void assemble<std::complex<float>>(const Plan&, const Assembly&, const Values<std::complex<float>>&, int,
                                            std::complex<float>*) noexcept;
template void assemble<std::complex<double>>(const Plan&, const Assembly&, const Values<std::complex<double>>&, int,
                                             std::complex<double>*) noexcept;
template float largest_row_sum<float>(const Plan&, const Assembly&, const Values<float>&, float*) noexcept;
template double largest_row_sum<double>(const Plan&, const Assembly&, const Values<double>&, double*) noexcept;
template float largest_row_sum<std::complex<float>>(const Plan&, const Assembly&, const Values<std::complex<float>>&,
                                                    float*) noexcept;
template double largest_row_sum<std::complex<double>>(const Plan&, const Assembly&, const Values<std::complex<double>>&,
                                                      double*) noexcept;

}  // namespace quorin::sparse
