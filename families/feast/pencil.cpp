#include "families/feast/pencil.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace quorin::feast {

// Appends the entries of the triangle that is read, as those of the lower one. False if one is not finite.
template <Scalar T>
template <Scalar Host>
bool Pencil<T>::collect(int n, Storage storage, const HostMatrix<Host>& M, T Entry::*value, Entry*& next) {
  const bool is_upper = storage == Storage::kUpper;
  for (int i = 0; i < n; ++i) {
    for (int k = M.starts[i] - 1; k < M.starts[i + 1] - 1; ++k) {
      const int j = M.columns[k] - 1;
      if (is_upper ? j < i : j > i) continue;
      T entry{M.values[k]};
      if (!std::isfinite(real_part(entry)) || !std::isfinite(imaginary_part(entry))) return false;
      if (i == j) entry = real_part(entry);
      if (is_upper) entry = conjugate(entry);
      *next = {std::min(i, j), std::max(i, j), T{}, T{}};
      next->*value = entry;
      ++next;
    }
  }
  return true;
}

template <Scalar T>
template <Scalar Host>
Status Pencil<T>::assign(int n, Storage storage, const HostMatrix<Host>& A, const HostMatrix<Host>& B) {
  n_ = n;
  is_standard_ = B.values == nullptr;
  const std::size_t of_b = is_standard_ ? 0 : static_cast<std::size_t>(B.entries(n));
  base::Workspace<Entry> entries(static_cast<std::size_t>(A.entries(n)) + of_b + static_cast<std::size_t>(n));
  if (!entries || entries.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return Status::kNoMemory;
  Entry* next = entries.begin();
  for (int j = 0; j < n; ++j) *next++ = {j, j, T{}, is_standard_ ? T{1} : T{}};
  if (!collect(n, storage, A, &Entry::a, next)) return Status::kSolverFailed;
  if (!is_standard_ && !collect(n, storage, B, &Entry::b, next)) return Status::kSolverFailed;
  return merge(entries.begin(), next) ? Status::kDone : Status::kNoMemory;
}

// By columns, rows ascending; entries of the same place become one.
template <Scalar T>
bool Pencil<T>::merge(const Entry* first, const Entry* last) {
  const auto n = static_cast<std::size_t>(n_);
  base::Workspace<Entry> sorted(static_cast<std::size_t>(last - first));
  base::Workspace<int> ends(n);
  base::Workspace<double> sums(n);
  starts_ = base::Workspace<int>(n + 1);
  if (!sorted || !ends || !sums || !starts_) return false;
  std::fill_n(ends.data(), n, 0);
  for (const Entry* entry = first; entry != last; ++entry) ++ends.data()[entry->column];
  sparse::cumulate(n_, ends.data(), starts_.data());
  for (const Entry* entry = first; entry != last; ++entry) sorted.data()[ends.data()[entry->column]++] = *entry;

  const auto is_above = [](const Entry& x, const Entry& y) { return x.row < y.row; };
  Entry* end = sorted.data();  // of those that are merged
  for (int j = 0; j < n_; ++j) {
    Entry *const from = sorted.data() + starts_.data()[j], *const to = sorted.data() + ends.data()[j];
    if (!std::is_sorted(from, to, is_above)) std::sort(from, to, is_above);
    const Entry* const column = end;
    for (const Entry* entry = from; entry != to; ++entry) {
      if (end != column && end[-1].row == entry->row) {
        end[-1].a += entry->a;
        end[-1].b += entry->b;
      } else {
        *end++ = *entry;
      }
    }
    starts_.data()[j] = static_cast<int>(column - sorted.data());
  }
  const auto count = static_cast<std::size_t>(end - sorted.data());
  starts_.data()[n_] = static_cast<int>(count);

  rows_ = base::Workspace<int>(count);
  a_ = base::Workspace<T>(count);
  b_ = base::Workspace<T>(count);
  if (!rows_ || !a_ || !b_) return false;
  std::fill_n(sums.data(), n, 0.0);
  for (std::size_t k = 0; k < count; ++k) {
    const Entry& entry = sorted[k];
    rows_[k] = entry.row;
    a_[k] = entry.a;
    b_[k] = entry.b;
    const double magnitude = std::abs(entry.a);
    sums[static_cast<std::size_t>(entry.column)] += magnitude;
    if (entry.row != entry.column) sums[static_cast<std::size_t>(entry.row)] += magnitude;
  }
  norm_of_a_ = *std::max_element(sums.begin(), sums.end());
  return true;
}

template <Scalar T>
double Pencil<T>::sum_of_terms(const T* x, double value) const {
  double sum = 0;
  for (int j = 0; j < n_; ++j) {
    double of_column = 0;
    for (int k = starts_.data()[j]; k < starts_.data()[j + 1]; ++k) {
      const double magnitude = std::abs(a_.data()[k]) + std::fabs(value) * std::abs(b_.data()[k]);
      of_column += (rows_.data()[k] == j ? 1 : 2) * magnitude * std::abs(x[rows_.data()[k]]);
    }
    sum += of_column * std::abs(x[j]);
  }
  return sum;
}

template <Scalar T>
void Pencil<T>::multiply(const sparse::ColumnMatrix<T>& M, int columns, const T* X, T* Y) const {
  std::fill_n(Y, static_cast<std::ptrdiff_t>(n_) * columns, T{});
  for (int j = 0; j < columns; ++j, X += n_, Y += n_) sparse::add_product(M, sparse::Symmetry::kHermitian, X, Y);
}

template <Scalar T>
void Pencil<T>::multiply_by_b(int columns, const T* X, T* Y) const {
  if (is_standard_) {
    std::copy_n(X, static_cast<std::ptrdiff_t>(n_) * columns, Y);
  } else {
    multiply(B(), columns, X, Y);
  }
}

template class Pencil<double>;
template class Pencil<std::complex<double>>;
template Status Pencil<double>::assign(int, Storage, const HostMatrix<float>&, const HostMatrix<float>&);
template Status Pencil<std::complex<double>>::assign(int, Storage, const HostMatrix<std::complex<float>>&,
                                                     const HostMatrix<std::complex<float>>&);

}  // namespace quorin::feast
