#include "families/taucs/solvers/amwb.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/solvers/sorted_columns.hpp"

namespace quorin::taucs {
namespace {

// What rounding may leave of a difference that is zero, in units of what was subtracted.
constexpr double kNoise = 64 * std::numeric_limits<double>::epsilon();

struct Edge {
  enum class Role : char { kNone, kOfForest, kTyingDown, kAdded };

  double value;
  int i, j;
  Role role = Role::kNone;

  double weight() const { return std::fabs(value); }
  // Whether its ends are asked to be opposite.
  bool opposes() const { return value > 0; }
};
using Role = Edge::Role;

// Components of a growing forest. Each vertex knows whether it is to be opposite to the one that represents its
// component.
class Components {
 public:
  struct Place {
    int representative;
    bool is_opposite;
  };

  explicit Components(int n) : nodes_(static_cast<std::size_t>(n)) {}
  explicit operator bool() const { return static_cast<bool>(nodes_); }

  void start(int v, bool is_tied) { node(v) = {v, 1, false, is_tied}; }
  // With path halving: each vertex on the way gets its grandparent for parent.
  Place find(int v) {
    bool is_opposite = false;
    while (node(v).parent != v) {
      const Node& up = node(node(v).parent);
      node(v).is_opposite ^= up.is_opposite;  // false for a representative
      node(v).parent = up.parent;
      is_opposite ^= node(v).is_opposite;
      v = node(v).parent;
    }
    return {v, is_opposite};
  }
  bool is_tied(int representative) { return node(representative).is_tied; }
  void tie(int representative) { node(representative).is_tied = true; }
  void join(int a, int b, bool are_opposite) {
    if (node(a).size < node(b).size) std::swap(a, b);
    node(a).is_tied |= node(b).is_tied;
    node(a).size += node(b).size;
    node(b).parent = a;
    node(b).is_opposite = are_opposite;
  }

 private:
  struct Node {
    int parent, size;
    bool is_opposite;  // to its parent
    bool is_tied;      // of representatives
  };
  Node& node(int v) { return nodes_.data()[v]; }

  base::Workspace<Node> nodes_;
};

class Builder {
 public:
  // A: rows ascending, without repetition.
  explicit Builder(const CcsMatrix& A)
      : A_(A),
        n_(A.n),
        diagonal_(order()),
        surplus_(order()),
        edges_(static_cast<std::size_t>(A.colptr[A.n])),
        visits_(order()),
        level_(order()),
        parent_(order()),
        piece_(order()),
        components_(A.n) {}
  explicit operator bool() const {
    return diagonal_ && surplus_ && edges_ && visits_ && level_ && parent_ && piece_ && components_;
  }

  OwnedMatrix build(std::uint32_t seed, double subgraphs) {
    const std::uint32_t hash = seed * 2654435769U;  // Knuth's: 2^32 over the golden ratio
    root_ = static_cast<int>((std::uint64_t{hash} * static_cast<std::uint32_t>(n_)) >> 32);
    if (!collect_edges() || !walk(columns_of<double>(A_, n_))) return nullptr;
    std::sort(edges_.begin(), edges_.begin() + count_, [this](const Edge& a, const Edge& b) { return precedes(a, b); });
    choose_basis();
    if (!walk_forest()) return nullptr;
    if (subgraphs > 1) {
      cut_into_pieces(subgraphs);
      if (!join_pieces()) return nullptr;
    }
    return assemble();
  }

 private:
  std::size_t order() const { return static_cast<std::size_t>(n_); }

  // The edges, and what the diagonal has beyond them. False for a diagonal entry that is not positive.
  bool collect_edges() {
    base::Workspace<double> magnitudes(order()), positive(order());
    if (!magnitudes || !positive) return false;
    std::fill(diagonal_.begin(), diagonal_.end(), 0.0);
    std::fill(magnitudes.begin(), magnitudes.end(), 0.0);
    std::fill(positive.begin(), positive.end(), 0.0);
    for (int j = 0; j < n_; ++j) {
      for (int k = A_.colptr[j]; k < A_.colptr[j + 1]; ++k) {
        const int i = A_.rowind[k];
        const double value = A_.values.d[k];
        if (i == j) {
          diagonal_.data()[j] = value;
        } else if (value != 0) {
          edges_.data()[count_++] = {value, i, j};
          for (const int end : {i, j}) {
            magnitudes.data()[end] += std::fabs(value);
            positive.data()[end] += std::max(value, 0.0);
          }
        }
      }
    }
    bool is_dominant = true;
    for (int i = 0; i < n_; ++i) {
      if (!(diagonal_.data()[i] > 0)) return false;
      is_dominant &= diagonal_.data()[i] >= magnitudes.data()[i] * (1 - kNoise);
    }
    if (!is_dominant) drop_positive_edges();
    for (int i = 0; i < n_; ++i) {
      // A positive entry that goes to the diagonal leaves that much less beside it.
      const double moved = is_dominant ? 0 : 2 * positive.data()[i];
      const double surplus = diagonal_.data()[i] - magnitudes.data()[i] + moved;
      surplus_.data()[i] = surplus > kNoise * diagonal_.data()[i] ? surplus : 0;
    }
    return true;
  }
  void drop_positive_edges() {
    Edge* const end =
        std::remove_if(edges_.begin(), edges_.begin() + count_, [](const Edge& e) { return e.opposes(); });
    count_ = static_cast<int>(end - edges_.begin());
  }

  // Breadth first through the graph of the pattern, from the root and then from a vertex of each further component:
  // levels, parents, and all vertices in the order of the walk.
  bool walk(const sparse::Pattern& pattern) {
    sparse::Graph graph;
    if (sparse::build_graph(pattern, graph) != sparse::Outcome::kDone) return false;
    std::fill(level_.begin(), level_.end(), sparse::kNone);
    int seen = 0;
    const auto see = [&](int v, int from) {
      parent_.data()[v] = from;
      level_.data()[v] = from == sparse::kNone ? 0 : level_.data()[from] + 1;
      visits_.data()[seen++] = v;
    };
    for (int k = 0, done = 0; k < n_; ++k) {
      const int start = k < n_ - root_ ? root_ + k : root_ + k - n_;
      if (level_.data()[start] == sparse::kNone) see(start, sparse::kNone);
      for (; done < seen; ++done) {
        const int v = visits_.data()[done];
        for (const int w : graph.neighbours(v)) {
          if (level_.data()[w] == sparse::kNone) see(w, v);
        }
      }
    }
    return true;
  }

  // By weight, then by distance from the root: edges to the next level come before those inside of it.
  bool precedes(const Edge& a, const Edge& b) const {
    if (a.weight() != b.weight()) return a.weight() > b.weight();
    const std::int64_t distance_a = std::int64_t{level_.data()[a.i]} + level_.data()[a.j];
    const std::int64_t distance_b = std::int64_t{level_.data()[b.i]} + level_.data()[b.j];
    if (distance_a != distance_b) return distance_a < distance_b;
    return std::pair(a.j, a.i) < std::pair(b.j, b.i);
  }

  // Whether the edge asks its ends for something else than the forest between them does.
  bool contradicts(const Edge& edge) {
    return (components_.find(edge.i).is_opposite != components_.find(edge.j).is_opposite) != edge.opposes();
  }

  // The greedy method, with joins that a basis would not have: of trees that are both tied down.
  void choose_basis() {
    for (int v = 0; v < n_; ++v) components_.start(v, surplus_.data()[v] > 0);
    for (Edge* edge = edges_.begin(); edge != edges_.begin() + count_; ++edge) {
      const int a = components_.find(edge->i).representative, b = components_.find(edge->j).representative;
      if (a != b) {
        components_.join(a, b, contradicts(*edge));
        edge->role = Role::kOfForest;
      } else if (contradicts(*edge) && !components_.is_tied(a)) {
        components_.tie(a);
        edge->role = Role::kTyingDown;
      }
    }
  }

  bool walk_forest() {
    base::Workspace<int> starts(order() + 1), indices(order()), next(order());
    if (!starts || !indices || !next) return false;
    const auto for_forest = [this](const auto& body) {
      for (Edge* edge = edges_.begin(); edge != edges_.begin() + count_; ++edge) {
        if (edge->role == Role::kOfForest) body(*edge);
      }
    };
    std::fill(next.begin(), next.end(), 0);
    for_forest([&](const Edge& edge) { ++next.data()[edge.j]; });
    sparse::cumulate(n_, next.data(), starts.data());
    for_forest([&](const Edge& edge) { indices.data()[next.data()[edge.j]++] = edge.i; });
    return walk({n_, n_, starts.data(), indices.data()});
  }

  // A subtree is cut off as soon as it has n / subgraphs vertices, from the leaves up. What is left at a root is a
  // piece, too.
  void cut_into_pieces(double subgraphs) {
    const double least = n_ / std::min<double>(subgraphs, n_);
    int* const size = level_.data();  // not needed any more
    std::fill_n(size, n_, 1);
    for (int k = n_ - 1; k >= 0; --k) {
      const int v = visits_.data()[k], up = parent_.data()[v];
      const bool is_cut = up == sparse::kNone || size[v] >= least;
      piece_.data()[v] = is_cut ? pieces_++ : sparse::kNone;
      if (!is_cut) size[up] += size[v];
    }
    for (int k = 0; k < n_; ++k) {
      const int v = visits_.data()[k];
      if (piece_.data()[v] == sparse::kNone) piece_.data()[v] = piece_.data()[parent_.data()[v]];
    }
  }

  // Of the edges between the same two pieces that agree with the forest, or that contradict it: those of the basis, or
  // else the heaviest. Edges within a piece that agree are not needed.
  bool join_pieces() {
    struct Candidate {
      std::int64_t pieces;  // both, and whether the edge contradicts the forest
      int rank;             // in the order of the edges, those of the basis before all others
      Edge* edge;
    };
    base::Workspace<Candidate> candidates(static_cast<std::size_t>(count_));
    if (!candidates) return false;
    Candidate* end = candidates.data();
    for (int k = 0; k < count_; ++k) {
      Edge& edge = edges_.data()[k];
      const bool is_contradiction = contradicts(edge);
      const auto [low, high] = std::minmax({piece_.data()[edge.i], piece_.data()[edge.j]});
      if (low == high && !is_contradiction) continue;
      const std::int64_t pair = std::int64_t{low} * pieces_ + high;
      *end++ = {2 * pair + (is_contradiction ? 1 : 0), edge.role == Role::kNone ? k : -1, &edge};
    }
    std::sort(candidates.data(), end, [](const Candidate& a, const Candidate& b) {
      return a.pieces != b.pieces ? a.pieces < b.pieces : a.rank < b.rank;
    });
    for (const Candidate* c = candidates.data(); c != end; ++c) {
      const bool is_first = c == candidates.data() || c->pieces != c[-1].pieces;
      if (is_first && c->edge->role == Role::kNone) c->edge->role = Role::kAdded;
    }
    return true;
  }

  OwnedMatrix assemble() {
    base::Workspace<int> next(order());
    if (!next) return nullptr;
    const auto for_chosen = [this](const auto& body) {
      for (const Edge* edge = edges_.begin(); edge != edges_.begin() + count_; ++edge) {
        if (edge->role != Role::kNone) body(*edge);
      }
    };
    int entries = n_;
    std::fill(next.begin(), next.end(), 1);
    double* const d = surplus_.data();
    for (int v = 0; v < n_; ++v) {
      const auto place = components_.find(v);
      if (place.representative == v && !components_.is_tied(v)) d[v] = diagonal_.data()[v];
    }
    for_chosen([&](const Edge& edge) {
      d[edge.i] += edge.weight();
      d[edge.j] += edge.weight();
      ++next.data()[edge.j];
      ++entries;
    });
    OwnedMatrix M(create<double>(n_, n_, entries));
    if (M == nullptr) return nullptr;
    sparse::cumulate(n_, next.data(), M->colptr);
    const sparse::ColumnArrays<double> to = arrays_of<double>(*M);
    for (int v = 0; v < n_; ++v) to.put(next.data()[v]++, v, d[v]);
    for_chosen([&](const Edge& edge) { to.put(next.data()[edge.j]++, edge.i, edge.value); });
    M->flags = A_.flags;
    return M;
  }

  const CcsMatrix& A_;
  int n_, root_ = 0, count_ = 0, pieces_ = 0;  // count_: edges
  base::Workspace<double> diagonal_, surplus_;
  base::Workspace<Edge> edges_;
  base::Workspace<int> visits_, level_, parent_, piece_;
  Components components_;
};

}  // namespace

CcsMatrix* amwb_preconditioner_create(const CcsMatrix* A, std::int32_t seed, double subgraphs,
                                      std::int32_t stretch) noexcept {
  if (stretch != 0 || type_of(A != nullptr ? A->flags : 0) != Type::kReal || !is_sound_triangle<double>(A)) {
    return nullptr;
  }
  const OwnedMatrix sorted = sorted_columns<double>(*A);
  if (sorted == nullptr || !is_finite<double>(*sorted)) return nullptr;
  Builder builder(*sorted);
  return builder ? builder.build(static_cast<std::uint32_t>(seed), subgraphs).release() : nullptr;
}

}  // namespace quorin::taucs
