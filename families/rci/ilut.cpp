// ILUT(p, tau), row by row (Saad, ILUT: a dual threshold incomplete LU factorization, NLAA 1 (1994); book,
// algorithm 10.6).
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>

#include "base/sums.hpp"
#include "base/workspace.hpp"
#include "families/rci/column_set.hpp"
#include "families/rci/messages.hpp"
#include "families/rci/rci.hpp"
#include "sparse/sparse.hpp"

namespace quorin::rci {
namespace {

using enum IlutStatus;

struct Matrix {
  int n;
  const double* a;
  const int* ia;
  const int* ja;
};

struct Factors {
  double* values;
  int* starts;
  int* columns;
};

struct Rule {
  double tolerance;
  int fill;
  bool replace_pivots;
  double pivot_multiplier;

  // Returns false when the pivot will not do.
  bool accept_pivot(double& pivot, double row_norm) const {
    if (!std::isfinite(pivot)) return false;
    if (pivot != 0.0 && std::fabs(pivot) >= tolerance * row_norm) return true;
    if (!replace_pivots) return false;
    pivot = pivot_multiplier * row_norm;
    return pivot != 0.0 && std::isfinite(pivot);
  }
};

// The first row may begin behind the first entry.
IlutStatus check_pattern(const Matrix& m) {
  const sparse::PatternRules rules{.base = 1, .begins_at_base = false, .has_no_empty_list = true};
  switch (sparse::check_compressed(m.n, m.n, m.ia, m.ja, rules).fault) {
    case sparse::PatternFault::kNoFault:
      return kDone;
    case sparse::PatternFault::kEmptyList:
      return kEmptyRow;
    case sparse::PatternFault::kOutside:
      return kBadColumn;
    default:
      return kDecreasingRows;
  }
}

// Memory for the factorization of n rows.
struct Scratch {
  explicit Scratch(std::size_t n) : dense(n), magnitudes(n), kept(n), diagonal(n), words(ColumnSet::words(n)) {
    if (dense) std::fill_n(dense.data(), n, 0.0);
    if (words) std::fill_n(words.data(), words.size(), ColumnSet::Word{0});
  }
  bool complete() const { return dense && magnitudes && kept && diagonal && words; }

  base::Workspace<double> dense;
  base::Workspace<double> magnitudes;
  base::Workspace<int> kept;
  base::Workspace<int> diagonal;
  base::Workspace<ColumnSet::Word> words;
};

// The factorization. The current row is a dense vector; `pattern_` tells which of its columns are still to be visited.
class Factorization {
 public:
  Factorization(const Matrix& m, const Rule& rule, const Factors& out, Scratch& scratch)
      : m_(m),
        rule_(rule),
        out_(out),
        dense_(scratch.dense.data()),
        magnitudes_(scratch.magnitudes.data()),
        kept_(scratch.kept.data()),
        diagonal_(scratch.diagonal.data()),
        pattern_(static_cast<std::size_t>(m.n), scratch.words.data()) {}

  IlutStatus run() {
    out_.starts[0] = 1;
    for (int i = 0; i < m_.n; ++i) {
      if (!factor_row(i)) return kBadPivot;
      out_.starts[i + 1] = next_ + 1;
    }
    return kDone;
  }

 private:
  bool factor_row(int i) {
    const int begin = m_.ia[i] - 1, end = m_.ia[i + 1] - 1;
    const double row_norm = base::norm(static_cast<std::size_t>(end - begin), m_.a + begin);
    const double drop = rule_.tolerance * row_norm;
    if (!std::isfinite(drop)) return false;
    for (int k = begin; k < end; ++k) add(m_.ja[k] - 1, m_.a[k]);
    append_largest(eliminate(i, drop));
    double pivot = take(i);
    if (!rule_.accept_pivot(pivot, row_norm)) return false;
    diagonal_[i] = next_;
    append(i, pivot);
    append_largest(collect_upper(drop));
    return true;
  }

  // Subtracts multiples of the rows above; `kept_` receives the columns of the multipliers that stay. Returns their
  // number.
  int eliminate(int i, double drop) {
    int count = 0;
    while (!pattern_.empty() && pattern_.first() < i) {
      const int k = pattern_.first();
      pattern_.remove(k);
      const int row = diagonal_[k];
      double& entry = dense_[k];
      entry /= out_.values[row];
      if (!(std::fabs(entry) > drop)) {
        entry = 0.0;
        continue;
      }
      kept_[count++] = k;
      for (int u = row + 1; u < out_.starts[k + 1] - 1; ++u) add(out_.columns[u] - 1, -entry * out_.values[u]);
    }
    return count;
  }

  // Empties the pattern; `kept_` receives the columns that stay. Returns their number.
  int collect_upper(double drop) {
    int count = 0;
    while (!pattern_.empty()) {
      const int k = pattern_.first();
      pattern_.remove(k);
      if (std::fabs(dense_[k]) > drop) {
        kept_[count++] = k;
      } else {
        dense_[k] = 0.0;
      }
    }
    return count;
  }

  // Which entries stay: those greater than `least`, and the first `equals` of those that equal it.
  struct Cut {
    double least;
    int equals;
  };

  Cut find_cut(int count) const {
    if (count <= rule_.fill) return {0.0, 0};  // the drop tolerance has seen to zeros
    if (rule_.fill == 0) return {std::numeric_limits<double>::infinity(), 0};
    for (int k = 0; k < count; ++k) magnitudes_[k] = std::fabs(dense_[kept_[k]]);
    double* last = magnitudes_ + (rule_.fill - 1);
    std::nth_element(magnitudes_, last, magnitudes_ + count, std::greater<>());
    return {*last, static_cast<int>(std::count(magnitudes_, last + 1, *last))};
  }

  // Stores the rule's number of largest entries among the `count` columns in kept_, which ascend. All leave the dense
  // row.
  void append_largest(int count) {
    Cut cut = find_cut(count);
    for (int k = 0; k < count; ++k) {
      const int column = kept_[k];
      const double value = dense_[column];
      const double magnitude = std::fabs(value);
      dense_[column] = 0.0;
      if (magnitude > cut.least || (magnitude == cut.least && cut.equals-- > 0)) append(column, value);
    }
  }

  void add(int column, double value) {
    pattern_.insert(column);
    dense_[column] += value;
  }

  double take(int column) {
    pattern_.remove(column);
    const double value = dense_[column];
    dense_[column] = 0.0;
    return value;
  }

  void append(int column, double value) {
    out_.values[next_] = value;
    out_.columns[next_] = column + 1;
    ++next_;
  }

  Matrix m_;
  Rule rule_;
  Factors out_;
  double* dense_;
  double* magnitudes_;
  int* kept_;      // columns of the row's entries that stay
  int* diagonal_;  // place of each row's pivot in the factors
  ColumnSet pattern_;
  int next_ = 0;
};

// Puts tolerance and fill right. Returns the first warning that applies.
IlutStatus adjust(int n, Rule& rule, Messages& messages) {
  IlutStatus first = kDone;
  const auto warn = [&](IlutStatus code) {
    messages.warning(code);
    if (first == kDone) first = code;
  };
  if (rule.fill >= n) {
    warn(kFillReduced);
    rule.fill = n - 1;
  }
  if (rule.tolerance < 0.0) {
    warn(kToleranceNegative);
    rule.tolerance = -rule.tolerance;
  }
  if (rule.tolerance > rule.pivot_multiplier) warn(kToleranceLarge);
  if (rule.pivot_multiplier == 0.0) warn(kMultiplierZero);
  return first;
}

IlutStatus factorize(const Matrix& m, const Rule& rule, const Factors& out) {
  Scratch scratch(static_cast<std::size_t>(m.n));
  return scratch.complete() ? Factorization(m, rule, out, scratch).run() : kNoMemory;
}

IlutStatus check(const Matrix& m, const Rule& rule) {
  if (m.n <= 0) return kBadSize;
  if (rule.fill < 0) return kBadFill;
  return check_pattern(m);
}

}  // namespace

void ilut(int n, const double* a, const int* ia, const int* ja, double* bilut, int* ibilut, int* jbilut, double tol,
          int maxfil, const int* ipar, const double* dpar, int* ierr) noexcept {
  const ConstIpar integers(ipar);
  Messages messages("dcsrilut", kDcsrilutTexts, kIluFiles, integers);
  const Matrix matrix{n, a, ia, ja};
  Rule rule{tol, maxfil, integers.replace_pivots() != 0, ConstDpar(dpar).pivot_multiplier()};
  IlutStatus warning = kDone, error = check(matrix, rule);
  if (error == kDone) {
    warning = adjust(n, rule, messages);
    error = factorize(matrix, rule, {bilut, ibilut, jbilut});
  }
  messages.report(error);
  *ierr = static_cast<int>(error != kDone ? error : warning);
}

}  // namespace quorin::rci
