// Large entries on the diagonal: permutations and scalings that a factorization with few exchanges stands on.
#pragma once

#include "sparse/pattern/column_matrix.hpp"
#include "sparse/pattern/graph.hpp"

namespace quorin::sparse {

enum class [[nodiscard]] MatchingOutcome{
    kDone,
    // Whatever the values, no permutation leaves the diagonal without a zero: fewer than n entries share no row and no
    // column. The result stands for those that there are.
    kStructurallySingular,
    kNotFinite,  // an infinity or a NaN
    kOutOfMemory,
    kBadPattern,  // as of Outcome
    kTooLarge,
    kFailed,  // a library that orders gave up
};

// A matching of rows and columns, and scalings with
//
//   |row_scale[i] a_ij column_scale[j]| <= 1, and = 1 for i = row_of[j],
//
// to within 1e-12, or a few ulp in single precision. Among all permutations, row_of makes the product of the magnitudes
// a(row_of[j], j) largest. Where numbers of the type cannot hold scalings that far apart, they are cut off at its
// range.
template <class Real>
struct Matching {
  // The largest number of stored entries other than 0, no two of which share a row or a column.
  int rank = 0;
  // A permutation. If rank < n, the columns that are left get the rows that are left, of the same number where that
  // is free; their entries, if they have any, are bounded by 1 like all others.
  base::Workspace<int> row_of;
  base::Workspace<Real> row_scale, column_scale;
};

// Of a square matrix. Entries that are 0 count as not stored; those of the same place are taken one by one.
//
// I. S. Duff & J. Koster, On algorithms for permuting large entries to the diagonal of a sparse matrix, SIAM J. Matrix
// Anal. Appl. 22 (2001) 973-996: the scalings are powers of the dual variables of an assignment whose costs are
// logarithms (assignment.hpp has time and memory; the costs take a double an entry).
template <Scalar T>
MatchingOutcome match(const ColumnMatrix<T>& A, Matching<RealOf<T>>& matching);

// The same scaling for rows and columns, with |scale[i] a_ij scale[j]| <= 1, and candidates for pivots of order 1
// and 2.
template <class Real>
struct SymmetricMatching {
  int rank = 0;
  base::Workspace<Real> scale;
  // partner[i] = j and partner[j] = i for a candidate of order 2, which has an entry off its diagonal, 1 when scaled if
  // rank = n; partner[i] = i for one of order 1.
  base::Workspace<int> partner;
};

// Of a symmetric or Hermitian matrix, of which each stored entry off the diagonal stands for its mirror image, too.
//
// The cycles of the matching become pairs: those of length 2 are, longer ones are cut where the scaled pairs, and the
// one row that is left of an odd cycle, are safest from cancellation, by a bound on the product of their determinants.
// Scaling: I. S. Duff & S. Pralet, Strategies for scaling and pivoting for sparse symmetric indefinite problems, SIAM
// J. Matrix Anal. Appl. 27 (2005) 313-340. Pairs: there, and O. Schenk & K. Gartner, On fast factorization pivoting
// methods for sparse symmetric indefinite systems, ETNA 23 (2006) 158-179.
template <Scalar T>
MatchingOutcome match_symmetric(const ColumnMatrix<T>& A, SymmetricMatching<RealOf<T>>& matching);

// The graph in which each pair of partners is one vertex; vertices keep the order of their first members. Its lists do
// not ascend. kOutOfMemory.
Outcome compress_pairs(const Graph& graph, const int* partner, Graph& compressed) noexcept;

// The ordering of the graph's n vertices that follows an ordering of the compressed graph: partners have steps next to
// each other. `permutation` is of the compressed graph; `scratch`: n.
void expand_pairs(int n, const int* partner, const int* permutation, const Ordering& ordering, int* scratch) noexcept;

}  // namespace quorin::sparse
