#include "sparse/numeric/pivots.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "dense/blocked.hpp"
#include "sparse/numeric/loops.hpp"
#include "sparse/numeric/two_by_two.hpp"

namespace quorin::sparse {

using dense::Matrix;

namespace {

// Columns that are eliminated by loops: of a whole panel, of a block within a large one, of L D L' before the rest is
// updated, and where complete pivoting looks for pivots.
constexpr int kFewColumns = 8, kSmallBlock = 24, kDelayedColumns = 32, kCompleteBlock = 64;

// A cut of n into two parts, the first of full register tiles.
int first_half(int n) noexcept { return n < 64 ? n / 2 : n / 2 / 32 * 32; }

template <Scalar T>
bool is_finite(T x) noexcept {
  return std::isfinite(real_part(x)) && std::isfinite(imaginary_part(x));
}

// A number of magnitude `least` and of the sign or phase of x.
template <Scalar T>
T perturbed(T x, RealOf<T> least) noexcept {
  return x == T{} ? T{least} : x / std::abs(x) * least;
}

// x <- x / pivot
template <Scalar T>
void divide(int n, T pivot, T* x) noexcept {
  if (magnitude(pivot) >= std::numeric_limits<RealOf<T>>::min()) {
    scale_column(n, T{1} / pivot, x);
  } else {
    for (int i = 0; i < n; ++i) x[i] /= pivot;
  }
}

// ---- L L^H ----------------------------------------------------------------------------------------------------------

// The first `columns` columns of a block of `rows` rows, one after the other. Returns the first column that has no
// positive pivot, `columns` if all have.
template <Scalar T>
int factor_few_cholesky(int rows, int columns, Matrix<T> a) noexcept {
  T row[kSmallBlock];
  for (int k = 0; k < columns; ++k) {
    T* const x = a.column(k);
    for (int j = 0; j < k; ++j) row[j] = conjugate(a(k, j));
    subtract_multiples(rows - k, k, row, a.column(0) + k, a.lda(), x + k);
    const RealOf<T> square = real_part(x[k]);
    if (!(square > 0) || !std::isfinite(square)) {
      x[k] = square;
      return k;
    }
    x[k] = std::sqrt(square);
    divide(rows - k - 1, x[k], x + k + 1);
  }
  return columns;
}

template <Scalar T>
int factor_cholesky(int n, Matrix<T> a, int threads) noexcept {
  if (n <= kSmallBlock) return factor_few_cholesky(n, n, a);
  const int first = first_half(n), second = n - first;
  if (const int failed = factor_cholesky(first, a, threads); failed < first) return failed;
  const Matrix<T> beside = a.from(first, 0), rest = a.from(first, first);
  dense::blocked::trsm('R', 'L', 'C', 'N', second, first, T{1}, a.data(), a.lda(), beside.data(), a.lda(), threads);
  if constexpr (kIsComplex<T>) {
    dense::blocked::herk<T>('L', 'N', second, first, -1, beside.data(), a.lda(), 1, rest.data(), a.lda(), threads);
  } else {
    dense::blocked::syrk<T>('L', 'N', second, first, -1, beside.data(), a.lda(), 1, rest.data(), a.lda(), threads);
  }
  return first + factor_cholesky(second, rest, threads);
}

template <Scalar T>
Elimination eliminate_cholesky(int columns, int below, Matrix<T> a, int threads) noexcept {
  Elimination result;
  if (columns <= kFewColumns) {
    result.column = factor_few_cholesky(columns + below, columns, a);
  } else {
    result.column = factor_cholesky(columns, a, threads);
    if (result.column == columns && below > 0) {
      dense::blocked::trsm('R', 'L', 'C', 'N', below, columns, T{1}, a.data(), a.lda(), a.column(0) + columns, a.lda(),
                           threads);
    }
  }
  if (result.column < columns) {
    result.outcome =
        is_finite(a(result.column, result.column)) ? FactorOutcome::kNotPositiveDefinite : FactorOutcome::kNotFinite;
  }
  result.counts.positive = columns;
  return result;
}

// ---- L D L' ---------------------------------------------------------------------------------------------------------

// The prime is ^T, or for a Hermitian matrix ^H.
template <Scalar T>
class SymmetricElimination {
 public:
  SymmetricElimination(const PivotRule<T>& rule, int columns, int below, Matrix<T> a, int* order, T* scratch,
                       int threads) noexcept
      : rule_(rule),
        is_hermitian_(kIsComplex<T> && rule.factorization == Factorization::kLDLH),
        n_(columns),
        below_(below),
        a_(a),
        order_(order),
        w_(scratch, columns),
        diagonal_(scratch + static_cast<std::ptrdiff_t>(columns) * kDelayedColumns),
        threads_(threads) {}

  Elimination run() noexcept {
    for (int k = 0; order_ != nullptr && k < n_; ++k) order_[k] = k;
    for (int first = 0; first < n_ && is_going_on();) first = eliminate_columns(first);
    if (is_going_on()) divide_rows_below();
    return result_;
  }

 private:
  bool is_going_on() const noexcept { return result_.outcome == FactorOutcome::kDone; }
  T primed(T x) const noexcept { return conjugate_if(is_hermitian_, x); }

  // Eliminates columns from `first` on: up to kDelayedColumns, during which columns right of them are left as they are.
  // W = L D of these columns stands in w_, from row `first` on. Then all columns right of them get - L W'. Returns the
  // first column that has not been eliminated.
  int eliminate_columns(int first) noexcept {
    const int last = std::min(first + kDelayedColumns, n_);
    if (rule_.pivoting == Pivoting::kDiagonal) {
      for (int i = first; i < n_; ++i) diagonal_[i] = a_(i, i);
    }
    int k = first;
    // A 2x2 pivot needs two columns.
    while (k < n_ && (k + 1 < last || last == n_) && is_going_on()) k += eliminate_pivot(first, k);
    if (k < n_ && is_going_on()) {
      dense::blocked::gemmt('L', 'N', is_hermitian_ ? 'C' : 'T', n_ - k, k - first, T{-1}, &a_(k, first), a_.lda(),
                            &w_(k, 0), w_.lda(), T{1}, &a_(k, k), a_.lda(), threads_);
    }
    return k;
  }

  // w <- column c of the matrix as it is after the pivots first, ..., k - 1, in rows k and below.
  void update_column(int first, int k, int c, T* w) const noexcept {
    for (int i = k; i < c; ++i) w[i] = primed(a_(c, i));
    std::copy(a_.column(c) + c, a_.column(c) + n_, w + c);
    T row[kDelayedColumns];
    for (int j = first; j < k; ++j) row[j - first] = primed(w_(c, j - first));
    subtract_multiples(n_ - k, k - first, row, a_.column(first) + k, a_.lda(), w + k);
    if (is_hermitian_) w[c] = real_part(w[c]);
  }

  int largest_below(const T* w, int from, int skipped = kNone) const noexcept {
    int largest = kNone;
    for (int i = from; i < n_; ++i) {
      if (i != skipped && (largest == kNone || magnitude(w[i]) > magnitude(w[largest]))) largest = i;
    }
    return largest;
  }

  // Chooses the pivot of step k, moves it there and eliminates it. Returns its order.
  int eliminate_pivot(int first, int k) noexcept {
    T* const w = w_.column(k - first);
    if (rule_.pivoting == Pivoting::kDiagonal) {
      const int largest = largest_below(diagonal_, k);
      exchange(first, k, largest, 0);
      std::swap(diagonal_[k], diagonal_[largest]);
    }
    update_column(first, k, k, w);
    if (rule_.pivoting == Pivoting::kBunchKaufman && k + 1 < n_) {
      // Growth stays bounded if 1x1 pivots are at least this times what they are chosen for. Bunch & Kaufman (1977).
      const auto alpha = static_cast<RealOf<T>>((1 + std::sqrt(17.0)) / 8);
      const int r = largest_below(w, k + 1);
      const RealOf<T> diagonal = magnitude(w[k]), column = magnitude(w[r]);
      if (column > 0 && column >= rule_.least_pivot && diagonal < alpha * column) {
        T* const other = w_.column(k + 1 - first);
        update_column(first, k, r, other);
        const RealOf<T> row = magnitude(other[largest_below(other, k, r)]);
        if (diagonal * (row / column) < alpha * column) {
          if (magnitude(other[r]) < alpha * row) {
            exchange(first, k + 1, r, 2);
            eliminate_two(first, k);
            return 2;
          }
          std::copy(other + k, other + n_, w + k);
          exchange(first, k, r, 1);
        }
      }
    }
    eliminate_one(first, k);
    return 1;
  }

  // Rows and columns p and q, p <= q, of all of the panel, and of w's columns up to pivot p's with `fresh` new ones.
  void exchange(int first, int p, int q, int fresh) noexcept {
    if (p == q) return;
    std::swap(order_[p], order_[q]);
    for (int j = 0; j < p; ++j) std::swap(a_(p, j), a_(q, j));
    std::swap(a_(p, p), a_(q, q));
    for (int i = p + 1; i < q; ++i) {
      const T kept = a_(i, p);
      a_(i, p) = primed(a_(q, i));
      a_(q, i) = primed(kept);
    }
    a_(q, p) = primed(a_(q, p));
    std::swap_ranges(a_.column(p) + q + 1, a_.column(p) + n_ + below_, a_.column(q) + q + 1);
    const int columns = (fresh == 2 ? p - 1 : p) - first + fresh;
    for (int j = 0; j < columns; ++j) std::swap(w_(p, j), w_(q, j));
  }

  void fail(FactorOutcome outcome, int k) noexcept {
    result_.outcome = outcome;
    result_.column = order_ == nullptr ? k : order_[k] < 0 ? ~order_[k] : order_[k];
  }

  void eliminate_one(int first, int k) noexcept {
    T* const w = w_.column(k - first);
    T& pivot = w[k];
    if (!is_finite(pivot)) return fail(FactorOutcome::kNotFinite, k);
    PivotCounts& counts = result_.counts;
    if (magnitude(pivot) < rule_.least_pivot) {
      pivot = perturbed(pivot, rule_.least_pivot);
      ++counts.perturbed;
      // W = L D with the pivot that there is now.
    }
    a_(k, k) = pivot;
    T* const l = a_.column(k) + k + 1;
    if (pivot == T{}) {
      ++counts.zero;
      // What stands below is zero with Bunch and Kaufman's pivots; others cannot go on otherwise.
      if (std::any_of(w + k + 1, w + n_, [](T x) { return x != T{}; })) return fail(FactorOutcome::kSingular, k);
      std::fill(l, l + (n_ - k - 1), T{});
    } else {
      if (!kIsComplex<T> || is_hermitian_) ++(real_part(pivot) > 0 ? counts.positive : counts.negative);
      std::copy(w + k + 1, w + n_, l);
      divide(n_ - k - 1, pivot, l);
    }
    if (rule_.pivoting == Pivoting::kDiagonal) {
      for (int i = k + 1; i < n_; ++i) diagonal_[i] -= product(a_(i, k), primed(w[i]));
    }
  }

  void eliminate_two(int first, int k) noexcept {
    T* const w1 = w_.column(k - first);
    T* const w2 = w_.column(k + 1 - first);
    const TwoByTwo<T> pivot(w1[k], w1[k + 1], w2[k + 1], is_hermitian_);
    if (!pivot.is_finite()) return fail(FactorOutcome::kNotFinite, k);
    if (!kIsComplex<T> || is_hermitian_) {
      result_.counts.positive += pivot.positive();
      result_.counts.negative += 2 - pivot.positive();
    }
    a_(k, k) = w1[k];
    a_(k, k + 1) = w1[k + 1];
    a_(k + 1, k) = T{};
    a_(k + 1, k + 1) = w2[k + 1];
    for (int i = k + 2; i < n_; ++i) {
      a_(i, k) = w1[i];
      a_(i, k + 1) = w2[i];
      pivot.divide_row(a_(i, k), a_(i, k + 1));
    }
    // As a row of L D; row k + 1 was the other's, which has not been eliminated before.
    order_[k] = ~order_[k];
    order_[k + 1] = ~order_[k + 1];
  }

  // X <- X L'^-1 D^-1 for the rows X below.
  void divide_rows_below() noexcept {
    if (below_ == 0) return;
    T* const x = a_.column(0) + n_;
    if (n_ <= kFewColumns) {
      T row[kFewColumns];
      for (int k = 1; k < n_; ++k) {
        for (int j = 0; j < k; ++j) row[j] = primed(a_(k, j));
        subtract_multiples(below_, k, row, x, a_.lda(), a_.column(k) + n_);
      }
    } else {
      dense::blocked::trsm('R', 'L', is_hermitian_ ? 'C' : 'T', 'U', below_, n_, T{1}, a_.data(), a_.lda(), x, a_.lda(),
                           threads_);
    }
    for (int k = 0; k < n_; ++k) {
      T* const x1 = a_.column(k) + n_;
      if (order_ != nullptr && order_[k] < 0) {
        T* const x2 = a_.column(k + 1) + n_;
        const TwoByTwo<T> pivot(a_(k, k), a_(k, k + 1), a_(k + 1, k + 1), is_hermitian_);
        for (int i = 0; i < below_; ++i) pivot.divide_row(x1[i], x2[i]);
        ++k;
      } else if (a_(k, k) != T{}) {
        divide(below_, a_(k, k), x1);
      } else if (std::any_of(x1, x1 + below_, [](T value) { return value != T{}; })) {
        return fail(FactorOutcome::kSingular, k);
      }
    }
  }

  const PivotRule<T>& rule_;
  const bool is_hermitian_;
  const int n_, below_;
  const Matrix<T> a_;
  int* const order_;
  const Matrix<T> w_;
  T* const diagonal_;
  const int threads_;
  Elimination result_;
};

// ---- L U ------------------------------------------------------------------------------------------------------------

// The diagonal block by recursion (Toledo, SIAM J. Matrix Anal. Appl. 18 (1997)), with exchanges of its rows.
template <Scalar T>
class UnsymmetricElimination {
 public:
  UnsymmetricElimination(const PivotRule<T>& rule, int columns, int below, Matrix<T> a, int* rows, int* column_order,
                         int threads) noexcept
      : rule_(rule), n_(columns), below_(below), a_(a), rows_(rows), columns_(column_order), threads_(threads) {}

  Elimination run() noexcept {
    for (int k = 0; k < n_; ++k) {
      if (rows_ != nullptr) rows_[k] = k;
      if (columns_ != nullptr) columns_[k] = k;
    }
    if (rule_.pivoting == Pivoting::kComplete && rows_ != nullptr && columns_ != nullptr) {
      factor_by_blocks();
    } else {
      factor(0, n_);
    }
    if (result_.outcome == FactorOutcome::kDone && below_ > 0) divide_rows_below();
    return result_;
  }

 private:
  bool is_going_on() const noexcept { return result_.outcome == FactorOutcome::kDone; }
  T* l_below() const noexcept { return a_.column(0) + n_; }
  T* u_below() const noexcept { return a_.column(0) + n_ + below_; }

  // Columns first, ..., first + count - 1 in rows from `first` on.
  void factor(int first, int count) noexcept {
    if (count <= kSmallBlock) {
      for (int k = first; k < first + count && is_going_on(); ++k) eliminate_column(first, k);
      return;
    }
    const int left = first_half(count), right = count - left, middle = first + left;
    factor(first, left);
    if (!is_going_on()) return;
    // U of the columns on the right, then their rest.
    dense::blocked::trsm('L', 'L', 'N', 'U', left, right, T{1}, &a_(first, first), a_.lda(), &a_(first, middle),
                         a_.lda(), threads_);
    dense::blocked::gemm('N', 'N', n_ - middle, right, left, T{-1}, &a_(middle, first), a_.lda(), &a_(first, middle),
                         a_.lda(), T{1}, &a_(middle, middle), a_.lda(), threads_);
    factor(middle, right);
  }

  // Column k of a block of columns, whose columns `first`, ..., k - 1 have been eliminated.
  void eliminate_column(int first, int k) noexcept {
    T* const x = a_.column(k);
    for (int j = first; j < k; ++j) subtract_multiples(k - j - 1, 1, x + j, a_.column(j) + j + 1, 0, x + j + 1);
    subtract_multiples(n_ - k, k - first, x + first, &a_(k, first), a_.lda(), x + k);
    if (rule_.pivoting != Pivoting::kInOrder && rows_ != nullptr) {
      int pivot = k;
      for (int i = k + 1; i < n_; ++i) {
        if (magnitude(x[i]) > magnitude(x[pivot])) pivot = i;
      }
      exchange_rows(k, pivot);
    }
    if (accept_pivot(k)) divide(n_ - k - 1, x[k], x + k + 1);
  }

  // Complete pivoting in blocks on the diagonal.
  void factor_by_blocks() noexcept {
    RealOf<T> largest[kCompleteBlock];  // of the rows of each column that are left
    for (int first = 0; first < n_ && is_going_on(); first += kCompleteBlock) {
      const int end = std::min(first + kCompleteBlock, n_), count = end - first, rest = n_ - end;
      for (int j = first; j < end; ++j) largest[j - first] = largest_magnitude(count, &a_(first, j));
      for (int k = first; k < end && is_going_on(); ++k) {
        const RealOf<T>* const pivot = std::max_element(largest + (k - first), largest + count);
        const int column = first + static_cast<int>(pivot - largest);
        int row = k;
        while (row < end && magnitude(a_(row, column)) != *pivot) ++row;
        exchange_rows(k, row < end ? row : k);  // all may be NaN
        exchange_columns(k, column);
        if (!accept_pivot(k)) return;
        divide(end - k - 1, a_(k, k), a_.column(k) + k + 1);
        for (int j = k + 1; j < end; ++j) {
          subtract_multiples(end - k - 1, 1, &a_(k, j), a_.column(k) + k + 1, 0, a_.column(j) + k + 1);
          largest[j - first] = largest_magnitude(end - k - 1, a_.column(j) + k + 1);
        }
      }
      if (rest == 0 || !is_going_on()) continue;
      const T* const block = &a_(first, first);
      dense::blocked::trsm('R', 'U', 'N', 'N', rest, count, T{1}, block, a_.lda(), &a_(end, first), a_.lda(), threads_);
      dense::blocked::trsm('L', 'L', 'N', 'U', count, rest, T{1}, block, a_.lda(), &a_(first, end), a_.lda(), threads_);
      dense::blocked::gemm('N', 'N', rest, rest, count, T{-1}, &a_(end, first), a_.lda(), &a_(first, end), a_.lda(),
                           T{1}, &a_(end, end), a_.lda(), threads_);
    }
  }

  // Rows of the block are columns of U^T.
  void exchange_rows(int p, int q) noexcept {
    if (p == q) return;
    std::swap(rows_[p], rows_[q]);
    for (int j = 0; j < n_; ++j) std::swap(a_(p, j), a_(q, j));
    const std::ptrdiff_t start = n_ + below_;
    std::swap_ranges(a_.column(p) + start, a_.column(p) + start + below_, a_.column(q) + start);
  }
  void exchange_columns(int p, int q) noexcept {
    if (p == q) return;
    std::swap(columns_[p], columns_[q]);
    std::swap_ranges(a_.column(p), a_.column(p) + n_ + below_, a_.column(q));
  }

  bool accept_pivot(int k) noexcept {
    T& pivot = a_(k, k);
    if (magnitude(pivot) < rule_.least_pivot) {
      pivot = perturbed(pivot, rule_.least_pivot);
      ++result_.counts.perturbed;
    }
    if (!is_finite(pivot)) result_.outcome = FactorOutcome::kNotFinite;
    if (pivot == T{}) result_.outcome = FactorOutcome::kSingular;
    result_.column = columns_ == nullptr ? k : columns_[k];
    return is_going_on();
  }

  // L <- L U^-1 and U^T <- U^T L^-T for the rows below.
  void divide_rows_below() noexcept {
    if (n_ <= kFewColumns) {
      T row[kFewColumns];
      for (int k = 0; k < n_; ++k) {
        subtract_multiples(below_, k, a_.column(k), l_below(), a_.lda(), a_.column(k) + n_);
        divide(below_, a_(k, k), a_.column(k) + n_);
        for (int j = 0; j < k; ++j) row[j] = a_(k, j);
        subtract_multiples(below_, k, row, u_below(), a_.lda(), a_.column(k) + n_ + below_);
      }
      return;
    }
    dense::blocked::trsm('R', 'U', 'N', 'N', below_, n_, T{1}, a_.data(), a_.lda(), l_below(), a_.lda(), threads_);
    dense::blocked::trsm('R', 'L', 'T', 'U', below_, n_, T{1}, a_.data(), a_.lda(), u_below(), a_.lda(), threads_);
  }

  const PivotRule<T>& rule_;
  const int n_, below_;
  const Matrix<T> a_;
  int* const rows_;
  int* const columns_;
  const int threads_;
  Elimination result_;
};

}  // namespace

std::size_t elimination_scratch(int most_columns) noexcept {
  return static_cast<std::size_t>(most_columns) * (kDelayedColumns + 1);
}

template <Scalar T>
Elimination eliminate_panel(const PivotRule<T>& rule, int columns, int below, T* panel, int* rows, int* column_order,
                            T* scratch, int threads) noexcept {
  switch (rule.factorization) {
    case Factorization::kLLT:
      return eliminate_cholesky(columns, below, Matrix<T>(panel, columns + below), threads);
    case Factorization::kLDLT:
    case Factorization::kLDLH:
      return SymmetricElimination<T>(rule, columns, below, Matrix<T>(panel, columns + below), rows, scratch, threads)
          .run();
    case Factorization::kLU:
      break;
  }
  return UnsymmetricElimination<T>(rule, columns, below, Matrix<T>(panel, columns + 2 * below), rows, column_order,
                                   threads)
      .run();
}

template Elimination eliminate_panel<float>(const PivotRule<float>&, int, int, float*, int*, int*, float*,
                                            int) noexcept;
template Elimination eliminate_panel<double>(const PivotRule<double>&, int, int, double*, int*, int*, double*,
                                             int) noexcept;
template Elimination eliminate_panel<std::complex<float>>(const PivotRule<std::complex<float>>&, int, int,
                                                          std::complex<float>*, int*, int*, std::complex<float>*,
                                                          int) noexcept;
template Elimination eliminate_panel<std::complex<double>>(const PivotRule<std::complex<double>>&, int, int,
                                                           std::complex<double>*, int*, int*, std::complex<double>*,
                                                           int) noexcept;

}  // namespace quorin::sparse
