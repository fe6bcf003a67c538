#include "sparse/matching/matching.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <utility>

#include "sparse/matching/assignment.hpp"

namespace quorin::sparse {
namespace {

using base::Workspace;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The logarithm to base 2 of a normal positive number, to within 2 ulp of the larger of it and 1. x = 2^e m with m from
// sqrt(1/2) to sqrt(2), and log m = 2 artanh s, s = (m - 1) / (m + 1), by its series.
double log2_of_normal(double x) noexcept {
  constexpr std::uint64_t kOne = 0x3ff0000000000000, kRootOfHalf = 0x3fe6a09e667f3bcd, kMantissa = (1ULL << 52U) - 1;
  constexpr double kTwoOverLog2 = 2.885390081777926814719849362003;
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(x) + (kOne - kRootOfHalf);
  const double exponent = static_cast<int>(bits >> 52U) - 1023;
  const auto m = std::bit_cast<double>((bits & kMantissa) + kRootOfHalf);
  const double s = (m - 1) / (m + 1), s2 = s * s;
  double sum = 1.0 / 21;
  for (const double divisor : {19, 17, 15, 13, 11, 9, 7, 5, 3, 1}) sum = sum * s2 + 1 / divisor;
  return exponent + kTwoOverLog2 * s * sum;
}

// log2 |a|: -infinity for 0, infinity or NaN where a is not finite.
double log2_magnitude(double a) noexcept {
  const double x = std::abs(a);
  if (x >= std::numeric_limits<double>::min() && x < kInfinity) [[likely]]
    return log2_of_normal(x);
  if (x == 0) return -kInfinity;
  return x < 1 ? log2_of_normal(x * 0x1p+54) - 54 : x;
}
double log2_magnitude(std::complex<double> a) noexcept {
  const double x = std::abs(a.real()), y = std::abs(a.imag()), larger = std::max(x, y);
  if (larger > 0x1p-480 && larger < 0x1p+480 && y < kInfinity) [[likely]]
    return log2_of_normal(x * x + y * y) / 2;
  // A NaN in either part must not hide behind an infinity in the other, nor behind the comparison.
  if (std::isnan(x) || std::isnan(y)) return std::numeric_limits<double>::quiet_NaN();
  const double scale = larger < 1 ? 0x1p+600 : 0x1p-600;
  return larger == 0 || larger == kInfinity
             ? log2_magnitude(larger)
             : log2_magnitude(x * scale * (x * scale) + y * scale * (y * scale)) / 2 + (larger < 1 ? -600 : 600);
}
double log2_magnitude(float a) noexcept { return log2_magnitude(double{a}); }
double log2_magnitude(std::complex<float> a) noexcept { return log2_magnitude(std::complex<double>(a)); }

// 2^exponent, kept within the normal numbers of the type.
template <class Real>
Real power_of_2(double exponent) noexcept {
  using Limits = std::numeric_limits<Real>;
  return static_cast<Real>(std::exp2(std::clamp<double>(exponent, Limits::min_exponent - 1, Limits::max_exponent - 1)));
}

// c_ij = log2 max_i |a_ij| - log2 |a_ij|, in the place of the logarithms; `largest` receives those of the maxima, 0 for
// a column of zeros.
void logarithms_to_costs(int n, const int* starts, double* logarithms, double* largest) noexcept {
  for (int j = 0; j < n; ++j) {
    double* const begin = logarithms + starts[j];
    double* const end = logarithms + starts[j + 1];
    double most = -kInfinity;
    for (const double* p = begin; p != end; ++p) most = std::max(most, *p);
    largest[j] = most = most == -kInfinity ? 0 : most;
    for (double* p = begin; p != end; ++p) *p = most - *p;
  }
}

struct Range {
  double least = kInfinity, most = -kInfinity;
  void include(double x) noexcept {
    least = std::min(least, x);
    most = std::max(most, x);
  }
  double middle() const noexcept { return (least + most) / 2; }
};

// Rows by 2^(u_i + shift), columns by 2^(v_j - largest_j - shift): as large as each other, to stay in the type's range.
template <class Real>
void scalings(int n, const Assignment& assignment, const double* largest, Matching<Real>& matching) noexcept {
  Range rows, columns;
  for (int i = 0; i < n; ++i) {
    rows.include(assignment.row_dual(i));
    columns.include(assignment.column_dual(i) - largest[i]);
  }
  const double shift = n == 0 ? 0 : std::round((columns.middle() - rows.middle()) / 2);
  for (int i = 0; i < n; ++i) {
    matching.row_scale[i] = power_of_2<Real>(assignment.row_dual(i) + shift);
    matching.column_scale[i] = power_of_2<Real>(assignment.column_dual(i) - largest[i] - shift);
  }
}

// The rows that are left for the columns that are left.
void complete_permutation(int n, const Assignment& assignment, int* row_of) noexcept {
  const auto is_left = [&](int i) { return assignment.column_of(i) == kNone; };
  for (int j = 0; j < n; ++j) {
    row_of[j] = assignment.row_of(j);
    if (row_of[j] == kNone && is_left(j)) row_of[j] = j;
  }
  int i = 0;
  for (int j = 0; j < n; ++j) {
    if (row_of[j] != kNone) continue;
    while (!is_left(i) || assignment.row_of(i) == kNone) ++i;
    row_of[j] = i++;
  }
}

MatchingOutcome check_square(const Pattern& A) noexcept {
  return A.rows == A.columns && A.check() ? MatchingOutcome::kDone : MatchingOutcome::kBadPattern;
}

MatchingOutcome outcome_of_rank(int rank, int n) noexcept {
  return rank == n ? MatchingOutcome::kDone : MatchingOutcome::kStructurallySingular;
}

}  // namespace

template <Scalar T>
MatchingOutcome match(const ColumnMatrix<T>& A, Matching<RealOf<T>>& matching) {
  using Real = RealOf<T>;
  if (const auto outcome = check_square(A); outcome != MatchingOutcome::kDone) return outcome;
  const int n = A.columns;
  const auto size = static_cast<std::size_t>(n);
  Workspace<double> costs(static_cast<std::size_t>(A.entries())), largest(size);
  Matching<Real> result{0, Workspace<int>(size), Workspace<Real>(size), Workspace<Real>(size)};
  Assignment assignment(n);
  if (!costs || !largest || !result.row_of || !result.row_scale || !result.column_scale || !assignment) {
    return MatchingOutcome::kOutOfMemory;
  }
  bool is_finite = true;
  for (int k = 0; k < A.entries(); ++k) {
    costs[k] = log2_magnitude(A.values[k]);
    is_finite = is_finite && costs[k] < kInfinity;
  }
  if (!is_finite) return MatchingOutcome::kNotFinite;
  logarithms_to_costs(n, A.starts, costs.data(), largest.data());

  result.rank = assignment.solve({n, A.starts, A.indices, costs.data()});
  scalings(n, assignment, largest.data(), result);
  complete_permutation(n, assignment, result.row_of.data());
  matching = std::move(result);
  return outcome_of_rank(matching.rank, n);
}

namespace {

// The costs of a symmetric matrix of which one of the entries (i, j) and (j, i) is stored.
class SymmetricCosts {
 public:
  template <Scalar T>
  MatchingOutcome build(const ColumnMatrix<T>& A) noexcept {
    const int n = A.columns;
    if (A.entries() > std::numeric_limits<int>::max() / 2) return MatchingOutcome::kTooLarge;
    const auto size = static_cast<std::size_t>(n);
    starts_ = Workspace<int>(size + 1);
    largest = Workspace<double>(size);
    diagonal = Workspace<double>(size);
    Workspace<int> next(size);
    if (!starts_ || !largest || !diagonal || !next) return MatchingOutcome::kOutOfMemory;
    std::fill_n(next.data(), n, 0);
    std::fill_n(diagonal.data(), n, -kInfinity);
    for (int j = 0; j < n; ++j) {
      for (const int i : A.column(j)) {
        ++next[j];
        if (i != j) ++next[i];
      }
    }
    cumulate(n, next.data(), starts_.data());
    const auto entries = static_cast<std::size_t>(starts_[n]);
    indices_ = Workspace<int>(entries);
    costs_ = Workspace<double>(entries);
    if (!indices_ || !costs_) return MatchingOutcome::kOutOfMemory;
    const auto put = [&](int i, int j, double logarithm) {
      indices_[next[j]] = i;
      costs_[next[j]++] = logarithm;
    };
    bool is_finite = true;
    for (int j = 0; j < n; ++j) {
      for (int k = A.starts[j]; k < A.starts[j + 1]; ++k) {
        const int i = A.indices[k];
        const double logarithm = log2_magnitude(A.values[k]);
        is_finite = is_finite && logarithm < kInfinity;
        put(i, j, logarithm);
        if (i != j) {
          put(j, i, logarithm);
        } else {
          diagonal[j] = std::max(diagonal[j], logarithm);
        }
      }
    }
    if (!is_finite) return MatchingOutcome::kNotFinite;
    logarithms_to_costs(n, starts_.data(), costs_.data(), largest.data());
    return MatchingOutcome::kDone;
  }
  CostMatrix matrix() const noexcept {
    return {static_cast<int>(largest.size()), starts_.data(), indices_.data(), costs_.data()};
  }

  Workspace<double> largest;   // by column, as of logarithms_to_costs
  Workspace<double> diagonal;  // logarithms

 private:
  Workspace<int> starts_, indices_;
  Workspace<double> costs_;
};

// Cuts cycles of matched entries into pairs. Scaled, matched entries are 1 by magnitude and diagonal entries d_i at
// most, so that |d_i d_j - a_ij^2| >= 1 - d_i d_j: cuts are compared by products of these bounds, and of |d_i| for the
// row that is left of an odd cycle.
class CycleCutter {
 public:
  // `magnitudes`: of the scaled diagonal.
  CycleCutter(const double* magnitudes, int* partner) noexcept : magnitudes_(magnitudes), partner_(partner) {}

  // x[k] and x[k + 1] are joined by a matched entry, as are, in a closed cycle, the last and the first.
  void cut(const int* x, int length, bool is_closed) noexcept {
    x_ = x;
    length_ = length;
    const int first = length % 2 == 0 ? best_begin(is_closed) : best_single(is_closed) + 1;
    if (length % 2 != 0) partner_[at(first - 1)] = at(first - 1);
    for (int k = first; k + 1 < first + length; k += 2) {
      partner_[at(k)] = at(k + 1);
      partner_[at(k + 1)] = at(k);
    }
  }

 private:
  static constexpr double kLeast = 1e-15;  // of a bound

  int at(int k) const noexcept { return x_[k < length_ ? k : k - length_]; }
  double single(int k) const noexcept { return std::log2(std::max(magnitudes_[at(k)], kLeast)); }
  double pair(int k) const noexcept {
    return std::log2(std::max(1 - magnitudes_[at(k)] * magnitudes_[at(k + 1)], kLeast));
  }

  // 0 if the first and the second are to be a pair, 1 if the second and the third are.
  int best_begin(bool is_closed) const noexcept {
    if (!is_closed || length_ == 2) return 0;
    double gain = 0;
    for (int k = 0; k < length_; k += 2) gain += pair(k + 1) - pair(k);
    return gain > 0 ? 1 : 0;
  }

  // When k + 2 is left single instead of k, the pair of k + 1 and k + 2 becomes one of k and k + 1. Only every other
  // row of an open chain can be the single one; in a closed one, that leads to each.
  int best_single(bool is_closed) const noexcept {
    int best = 0;
    double gain = 0, most = 0;
    for (int step = 1, k = 0; step <= (is_closed ? length_ - 1 : length_ / 2); ++step) {
      const int following = k + 2 < length_ ? k + 2 : k + 2 - length_;
      gain += pair(k) - pair(k + 1) + single(following) - single(k);
      k = following;
      if (gain > most) {
        most = gain;
        best = k;
      }
    }
    return best;
  }

  const double* magnitudes_;
  int* partner_;
  const int* x_ = nullptr;
  int length_ = 0;
};

// Follows the matched entries of each row: chains that end first, then cycles. `chain`: n.
void pair_up(int n, const Assignment& assignment, CycleCutter& cutter, const int* partner, int* chain) noexcept {
  const auto follow = [&](int first) {
    int length = 0;
    int i = first;
    do {
      chain[length++] = i;
      i = assignment.row_of(i);
    } while (i != kNone && i != first);
    cutter.cut(chain, length, i == first);
  };
  for (int i = 0; i < n; ++i) {
    if (assignment.column_of(i) == kNone) follow(i);
  }
  for (int i = 0; i < n; ++i) {
    if (partner[i] == kNone) follow(i);
  }
}

}  // namespace

template <Scalar T>
MatchingOutcome match_symmetric(const ColumnMatrix<T>& A, SymmetricMatching<RealOf<T>>& matching) {
  using Real = RealOf<T>;
  if (const auto outcome = check_square(A); outcome != MatchingOutcome::kDone) return outcome;
  const int n = A.columns;
  const auto size = static_cast<std::size_t>(n);
  SymmetricCosts costs;
  if (const auto outcome = costs.build(A); outcome != MatchingOutcome::kDone) return outcome;
  SymmetricMatching<Real> result{0, Workspace<Real>(size), Workspace<int>(size)};
  Workspace<int> chain(size);
  Assignment assignment(n);
  if (!result.scale || !result.partner || !chain || !assignment) return MatchingOutcome::kOutOfMemory;

  result.rank = assignment.solve(costs.matrix());
  for (int i = 0; i < n; ++i) {
    // The transposed matching has the duals u and v exchanged, so their mean is right for both.
    const double exponent = (assignment.row_dual(i) + assignment.column_dual(i) - costs.largest[i]) / 2;
    result.scale[i] = power_of_2<Real>(exponent);
    costs.diagonal[i] = std::exp2(costs.diagonal[i] + 2 * exponent);
    result.partner[i] = kNone;
  }
  CycleCutter cutter(costs.diagonal.data(), result.partner.data());
  pair_up(n, assignment, cutter, result.partner.data(), chain.data());
  matching = std::move(result);
  return outcome_of_rank(matching.rank, n);
}

Outcome compress_pairs(const Graph& graph, const int* partner, Graph& compressed) noexcept {
  const int n = graph.size();
  Workspace<int> vertex(static_cast<std::size_t>(n));
  if (!vertex) return Outcome::kOutOfMemory;
  int count = 0;
  for (int i = 0; i < n; ++i) vertex[i] = partner[i] < i ? vertex[partner[i]] : count++;
  return quotient_graph(graph, {vertex.data(), static_cast<std::size_t>(n)}, count, compressed);
}

void expand_pairs(int n, const int* partner, const int* permutation, const Ordering& ordering, int* scratch) noexcept {
  int count = 0;
  for (int i = 0; i < n; ++i) {
    if (partner[i] >= i) scratch[count++] = i;
  }
  int step = 0;
  for (int k = 0; k < count; ++k) {
    const int i = scratch[permutation[k]];
    ordering.place(i, step++);
    if (partner[i] != i) ordering.place(partner[i], step++);
  }
}

template MatchingOutcome match(const ColumnMatrix<float>&, Matching<float>&);
template MatchingOutcome match(const ColumnMatrix<double>&, Matching<double>&);
template MatchingOutcome match(const ColumnMatrix<std::complex<float>>&, Matching<float>&);
template MatchingOutcome match(const ColumnMatrix<std::complex<double>>&, Matching<double>&);
template MatchingOutcome match_symmetric(const ColumnMatrix<float>&, SymmetricMatching<float>&);
template MatchingOutcome match_symmetric(const ColumnMatrix<double>&, SymmetricMatching<double>&);
template MatchingOutcome match_symmetric(const ColumnMatrix<std::complex<float>>&, SymmetricMatching<float>&);
template MatchingOutcome match_symmetric(const ColumnMatrix<std::complex<double>>&, SymmetricMatching<double>&);

}  // namespace quorin::sparse
