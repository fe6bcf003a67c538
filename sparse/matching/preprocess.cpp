#include "sparse/matching/preprocess.hpp"

#include <algorithm>
#include <complex>
#include <numeric>
#include <utility>

#include "sparse/orderings/dissection.hpp"
#include "sparse/orderings/minimum_degree.hpp"
#include "sparse/orderings/orderings.hpp"

namespace quorin::sparse {
namespace {

using base::Workspace;

std::size_t to_size(int n) noexcept { return static_cast<std::size_t>(n); }

MatchingOutcome converted(Outcome outcome) noexcept {
  switch (outcome) {
    case Outcome::kDone:
      return MatchingOutcome::kDone;
    case Outcome::kOutOfMemory:
      return MatchingOutcome::kOutOfMemory;
    case Outcome::kBadPattern:
      return MatchingOutcome::kBadPattern;
    case Outcome::kTooLarge:
      return MatchingOutcome::kTooLarge;
    case Outcome::kFailed:
      break;
  }
  return MatchingOutcome::kFailed;
}

// The steps of one preprocessing. Each returns false when it failed, for a reason that outcome() has.
template <Scalar T>
class Preprocessor {
 public:
  using Real = RealOf<T>;

  Preprocessor(const ColumnMatrix<T>& A, const PreprocessOptions& options) noexcept
      : A_(A), options_(options), n_(A.columns) {}

  MatchingOutcome run(Preprocessing<Real>& result) {
    if (A_.rows != n_ || !A_.check()) return MatchingOutcome::kBadPattern;
    const bool is_done = separate() && match_rows() && make_graph() && order();
    result_.rank = rank_;
    if (is_done) {
      result = std::move(result_);
    } else if (outcome_ == MatchingOutcome::kStructurallySingular) {
      result = {};
      result.rank = rank_;
    }
    return outcome_;
  }

 private:
  bool fails(MatchingOutcome outcome) noexcept { return outcome_ = outcome, false; }
  bool has_memory(bool is_there) noexcept { return is_there || fails(MatchingOutcome::kOutOfMemory); }
  bool is_general() const noexcept { return options_.symmetry == Symmetry::kGeneral; }

  // The unknowns that come first, ascending, and their numbers among them; kNone for those that come last.
  bool separate() noexcept {
    const std::size_t last = options_.last.size();
    first_count_ = n_ - static_cast<int>(last);
    first_ = Workspace<int>(to_size(first_count_));
    number_ = Workspace<int>(to_size(n_));
    if (!has_memory(first_ && number_)) return false;
    std::fill_n(number_.data(), n_, 0);
    for (const int v : options_.last) number_[v] = kNone;
    int count = 0;
    for (int v = 0; v < n_; ++v) {
      if (number_[v] == kNone) continue;
      first_[count] = v;
      number_[v] = count++;
    }
    return true;
  }

  bool match_rows() {
    rank_ = is_partial() ? first_count_ : n_;
    const bool needs_match = is_general() ? options_.scales || options_.matches : options_.matches;
    if (!needs_match) return true;
    ColumnMatrix<T> block = A_;
    if (!has_memory(!needs_copy() || copy_block(block))) return false;
    return is_general() ? match_general(block) : match_pairs(block);
  }

  bool is_partial() const noexcept { return options_.last_are_schur && first_count_ < n_; }
  bool needs_copy() const noexcept { return is_partial() || options_.read != Triangle::kAll; }

  // The entries that are read, among the unknowns that are eliminated.
  bool copy_block(ColumnMatrix<T>& block) noexcept {
    const int order = is_partial() ? first_count_ : n_;
    const auto number = [&](int v) { return is_partial() ? number_[v] : v; };
    starts_ = Workspace<int>(to_size(order) + 1);
    indices_ = Workspace<int>(to_size(A_.entries()));
    values_ = Workspace<T>(to_size(A_.entries()));
    if (!starts_ || !indices_ || !values_) return false;
    int end = 0;
    for (int j = 0; j < n_; ++j) {
      const int list = number(j);
      if (list == kNone) continue;
      starts_[list] = end;
      for (int k = A_.starts[j]; k < A_.starts[j + 1]; ++k) {
        const int i = A_.indices[k], row = options_.by_rows ? j : i, column = options_.by_rows ? i : j;
        const bool is_read = (options_.read != Triangle::kLower || row >= column) &&
                             (options_.read != Triangle::kUpper || row <= column);
        if (!is_read || number(i) == kNone) continue;
        indices_[end] = number(i);
        values_[end++] = A_.values[k];
      }
    }
    starts_[order] = end;
    block = {{order, order, starts_.data(), indices_.data()}, values_.data()};
    return true;
  }

  // The vertex of the block that copy_block made.
  int vertex(int k) const noexcept { return is_partial() ? first_[k] : k; }

  bool match_general(const ColumnMatrix<T>& block) {
    Matching<Real> matching;
    outcome_ = match(block, matching);
    rank_ = matching.rank;
    const bool may_go_on = outcome_ == MatchingOutcome::kStructurallySingular && !options_.matches;
    if (outcome_ != MatchingOutcome::kDone && !may_go_on) return false;
    outcome_ = MatchingOutcome::kDone;
    if (options_.scales) {
      // Rows of the lists' matrix are columns of A where lists are rows.
      if (options_.by_rows) matching.row_scale.swap(matching.column_scale);
      if (!spread(matching.row_scale, result_.row_scale) || !spread(matching.column_scale, result_.column_scale)) {
        return false;
      }
    }
    if (!options_.matches) return true;
    result_.row_position = Workspace<int>(to_size(n_));
    if (!has_memory(static_cast<bool>(result_.row_position))) return false;
    std::iota(result_.row_position.begin(), result_.row_position.end(), 0);
    for (int j = 0; j < block.columns; ++j) {
      const int list = vertex(j), index = vertex(matching.row_of[j]);
      result_.row_position[options_.by_rows ? list : index] = options_.by_rows ? index : list;
    }
    return true;
  }

  bool match_pairs(const ColumnMatrix<T>& block) {
    SymmetricMatching<Real> matching;
    outcome_ = match_symmetric(block, matching);
    rank_ = matching.rank;
    if (outcome_ != MatchingOutcome::kDone && outcome_ != MatchingOutcome::kStructurallySingular) return false;
    outcome_ = MatchingOutcome::kDone;
    if (options_.scales &&
        (!spread(matching.scale, result_.row_scale) || !spread(matching.scale, result_.column_scale))) {
      return false;
    }
    result_.pair_of = Workspace<int>(to_size(n_));
    if (!has_memory(static_cast<bool>(result_.pair_of))) return false;
    std::fill_n(result_.pair_of.data(), n_, kNone);
    for (int k = 0; k < block.columns; ++k) {
      if (matching.partner[k] != k) result_.pair_of[vertex(k)] = vertex(matching.partner[k]);
    }
    return true;
  }

  // Scales of all unknowns from those of the block; 1 for the others.
  bool spread(const Workspace<Real>& of_block, Workspace<Real>& scale) noexcept {
    scale = Workspace<Real>(to_size(n_));
    if (!has_memory(static_cast<bool>(scale))) return false;
    std::fill_n(scale.data(), n_, Real{1});
    for (std::size_t k = 0; k < of_block.size(); ++k) scale[to_size(vertex(static_cast<int>(k)))] = of_block[k];
    return true;
  }

  bool make_graph() noexcept {
    if (!result_.row_position) return takes(build_graph(A_, result_.graph));
    // The same entries in rows or lists that have changed places.
    starts_ = Workspace<int>(to_size(n_) + 1);
    indices_ = Workspace<int>(to_size(A_.entries()));
    if (!has_memory(starts_ && indices_)) return false;
    const int* const position = result_.row_position.data();
    if (options_.by_rows) {
      for (int i = 0; i < n_; ++i) starts_[position[i]] = A_.starts[i + 1] - A_.starts[i];
      cumulate(n_, starts_.data(), starts_.data());
      for (int i = 0; i < n_; ++i) {
        const auto list = A_.column(i);
        std::copy(list.begin(), list.end(), indices_.data() + starts_[position[i]]);
      }
    } else {
      std::copy_n(A_.starts, n_ + 1, starts_.data());
      for (int k = 0; k < A_.entries(); ++k) indices_[k] = position[A_.indices[k]];
    }
    return takes(build_graph({n_, n_, starts_.data(), indices_.data()}, result_.graph));
  }
  bool takes(Outcome outcome) noexcept { return outcome == Outcome::kDone || fails(converted(outcome)); }

  bool order() noexcept {
    result_.permutation = Workspace<int>(to_size(n_));
    result_.inverse = Workspace<int>(to_size(n_));
    if (!has_memory(result_.permutation && result_.inverse)) return false;
    if (!(options_.ordering == OrderingMethod::kGiven ? take_order() : make_order())) return false;
    int step = first_count_;
    for (const int v : options_.last) result_.ordering().place(v, step++);
    return true;
  }

  bool take_order() noexcept {
    int* const steps = result_.inverse.data();
    std::fill_n(steps, n_, kNone);
    int step = 0;
    for (int k = 0; k < n_; ++k) {
      const int v = options_.permutation[k];
      if (v < 0 || v >= n_ || steps[v] != kNone) return fails(MatchingOutcome::kBadPattern);
      steps[v] = k;
      if (number_[v] != kNone) result_.permutation[step++] = v;
    }
    for (int k = 0; k < step; ++k) steps[result_.permutation[k]] = k;
    return true;
  }

  // Of the graph without the unknowns that come last: they make no fill among the others.
  bool make_order() noexcept {
    const Graph* graph = &result_.graph;
    Graph subgraph;
    if (first_count_ < n_) {
      if (!takes(
              induced_subgraph(*graph, {first_.data(), first_.size()}, {number_.data(), number_.size()}, subgraph))) {
        return false;
      }
      graph = &subgraph;
    }
    const int n = first_count_;
    Workspace<int> memory(base::saturating_product(to_size(n), 2));
    if (!has_memory(static_cast<bool>(memory))) return false;
    const Ordering ordering{memory.data(), memory.data() + n};
    if (!(result_.pair_of ? order_pairs(*graph, ordering) : takes(order_graph(*graph, ordering)))) return false;
    for (int k = 0; k < n; ++k) result_.ordering().place(first_[ordering.permutation[k]], k);
    return true;
  }

  bool order_pairs(const Graph& graph, const Ordering& ordering) noexcept {
    const int n = graph.size();
    Workspace<int> partner(to_size(n)), memory(base::saturating_product(to_size(n), 2));
    if (!has_memory(partner && memory)) return false;
    for (int k = 0; k < n; ++k) {
      const int other = result_.pair_of[first_[k]];
      partner[k] = other == kNone || number_[other] == kNone ? k : number_[other];
    }
    Graph compressed;
    if (!takes(compress_pairs(graph, partner.data(), compressed))) return false;
    const Ordering of_pairs{memory.data(), memory.data() + compressed.size()};
    if (!takes(order_graph(compressed, of_pairs))) return false;
    expand_pairs(n, partner.data(), of_pairs.permutation, ordering, of_pairs.inverse);
    return true;
  }

  Outcome order_graph(const Graph& graph, const Ordering& ordering) const noexcept {
    const bool is_dissected = options_.ordering == OrderingMethod::kNestedDissection;
    return is_dissected ? order_dissection(graph, ordering) : order_minimum_degree(graph, ordering);
  }

  const ColumnMatrix<T>& A_;
  const PreprocessOptions& options_;
  const int n_;
  int first_count_ = 0, rank_ = 0;
  MatchingOutcome outcome_ = MatchingOutcome::kDone;
  Workspace<int> first_, number_;
  Workspace<int> starts_, indices_;  // of a copy of the matrix
  Workspace<T> values_;
  Preprocessing<Real> result_;
};

}  // namespace

template <Scalar T>
MatchingOutcome preprocess(const ColumnMatrix<T>& A, const PreprocessOptions& options,
                           Preprocessing<RealOf<T>>& result) {
  return Preprocessor<T>(A, options).run(result);
}

template MatchingOutcome preprocess(const ColumnMatrix<float>&, const PreprocessOptions&, Preprocessing<float>&);
template MatchingOutcome preprocess(const ColumnMatrix<double>&, const PreprocessOptions&, Preprocessing<double>&);
template MatchingOutcome preprocess(const ColumnMatrix<std::complex<float>>&, const PreprocessOptions&,
                                    Preprocessing<float>&);
template MatchingOutcome preprocess(const ColumnMatrix<std::complex<double>>&, const PreprocessOptions&,
                                    Preprocessing<double>&);

}  // namespace quorin::sparse
