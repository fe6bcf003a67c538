// Assignments of least cost between the rows and the columns of a sparse matrix, and the dual variables that prove it.
#pragma once

#include <limits>

#include "base/workspace.hpp"
#include "sparse/pattern/compressed.hpp"

namespace quorin::sparse {

// The cost of an entry that must not be taken.
inline constexpr double kForbidden = std::numeric_limits<double>::infinity();

// A square matrix of costs in compressed columns, zero-based; borrowed. costs[k] >= 0, of the entry k, or kForbidden;
// what is not stored is forbidden, too.
struct CostMatrix {
  int n = 0;
  const int* starts = nullptr;
  const int* indices = nullptr;
  const double* costs = nullptr;
};

// A largest set of entries no two of which share a row or a column, and numbers u, v with
//
//   u_i + v_j <= c_ij for every entry, u_i + v_j = c_ij for those of the set,
//
// up to rounding. If the set has n entries, these numbers prove that no other set of n costs less.
//
// Shortest augmenting paths (Dijkstra's algorithm on c_ij - u_i - v_j) from one unmatched column after the other, as in
// I. S. Duff & J. Koster, On algorithms for permuting large entries to the diagonal of a sparse matrix, SIAM J. Matrix
// Anal. Appl. 22 (2001) 973-996, section 4: after a cheap assignment along entries that the first duals make tight, one
// exchange deep, and two rounds in which columns bid for rows: the augmenting row reduction of R. Jonker & A.
// Volgenant, A shortest augmenting path algorithm for dense and sparse linear assignment problems, Computing 38 (1987)
// 325-340. A column without a path, and all that can be reached from it, is looked at only once.
//
// Memory: 10 integers and 3 doubles a row. Time: O(n (entries + n log n)) at most; near linear where, as in most
// applications, the cheap assignment finds nearly all.
class Assignment {
 public:
  explicit Assignment(int n) noexcept;
  // Whether there was memory.
  explicit operator bool() const noexcept { return numbers_ && reals_; }

  // Returns the size of the set. The matrix is of the constructor's size, its pattern sound.
  int solve(const CostMatrix& matrix) noexcept;

  // kNone for a row or column outside of the set.
  int row_of(int column) const noexcept { return row_of_[column]; }
  int column_of(int row) const noexcept { return column_of_[row]; }
  double row_dual(int i) const noexcept { return u_[i]; }
  double column_dual(int j) const noexcept { return v_[j]; }

 private:
  int attempt(bool with_bids) noexcept;
  void start() noexcept;
  void match_row_minima() noexcept;
  bool match_cheaply(int j) noexcept;
  bool exchange(int i, int j, int entry) noexcept;
  void bid_for_rows() noexcept;
  int bid(int j) noexcept;

  bool augment(int root) noexcept;
  void scan(int j, double distance) noexcept;
  void update_row_duals() noexcept;
  void flip_path(int root) noexcept;
  void bury_tree(int root) noexcept;
  void forget_tree() noexcept;
  void lower_buried_rows() noexcept;

  double reduced_cost(int entry, int i, int j) const noexcept { return matrix_.costs[entry] - u_[i] - v_[j]; }
  void match(int i, int j, int entry) noexcept {
    row_of_[j] = i;
    column_of_[i] = j;
    entry_of_[j] = entry;
  }

  // The heap of the rows that have been reached, by their distances.
  void rise(int i, int place) noexcept;
  void sink(int i, int place) noexcept;
  void remove_from_heap(int i) noexcept;
  void put(int i, int place) noexcept {
    heap_[place] = i;
    place_[i] = place;
  }

  // Instead of a place in the heap: not reached, of the tree, of no use to any path.
  static constexpr int kOutside = -1, kInTree = -2, kBuried = -3;

  int n_;
  CostMatrix matrix_;
  base::Workspace<int> numbers_;
  base::Workspace<double> reals_;

  int *row_of_ = nullptr, *column_of_ = nullptr;
  int* entry_of_ = nullptr;              // the matched entry of a column
  int *from_ = nullptr, *by_ = nullptr;  // the column from which a row was reached, and its entry
  int *heap_ = nullptr, *place_ = nullptr;
  int* tree_ = nullptr;    // rows whose distance is known, in the order in which their columns are scanned
  int* group_ = nullptr;   // of a buried column: the failed search that reached it
  int* buried_ = nullptr;  // the buried columns
  double *u_ = nullptr, *v_ = nullptr, *distance_ = nullptr;

  int heap_size_ = 0, tree_size_ = 0, buried_count_ = 0, group_count_ = 0;
  double bound_ = 0;  // the length of the shortest augmenting path found
  int end_ = kNone;   // its last row
};

}  // namespace quorin::sparse
