// All that a direct solver settles before the symbolic analysis: scalings, the matching of rows with columns, and the
// order of elimination, each made with regard to the others.
#pragma once

#include <span>

#include "sparse/matching/matching.hpp"
#include "sparse/numeric/assembly.hpp"

namespace quorin::sparse {

enum class OrderingMethod { kMinimumDegree, kNestedDissection, kGiven };

struct PreprocessOptions {
  // How the matrix is stored, as of AssemblyOptions. kGeneral asks for a factorization with both panels, whatever the
  // pattern; the other symmetries for one with symmetric panels.
  bool by_rows = false;
  Triangle read = Triangle::kAll;
  Symmetry symmetry = Symmetry::kGeneral;

  // General: scale by the matching; permute rows so that the matched entries are on the diagonal. Either alone is
  // possible. Symmetric: the scaling is made with the pairs of the matching only, or not at all.
  bool scales = false, matches = false;

  OrderingMethod ordering = OrderingMethod::kNestedDissection;
  const int* permutation = nullptr;  // kGiven: the vertex of each step

  // Unknowns that are eliminated last, in this order; without repetition.
  std::span<const int> last = {};
  // They are those of a Schur complement: the others are matched and scaled among themselves, and these are left as
  // they are, so that the complement is that of A itself, and what is eliminated is as regular as it can be made.
  bool last_are_schur = false;
};

// What options did not ask for is left empty, which Values, AssemblyOptions and PlanOptions take as null pointers.
template <class Real>
struct Preprocessing {
  base::Workspace<Real> row_scale, column_scale;  // for symmetric matrices the same numbers
  base::Workspace<int> row_position;              // AssemblyOptions::row_position
  base::Workspace<int> pair_of;                   // PlanOptions::pair_of
  Graph graph;                                    // of the matrix with permuted rows, for Plan::build
  base::Workspace<int> permutation, inverse;      // the order of elimination, before the plan rearranges it
  // The structural rank that was found by the matching: of the matrix, or of what a Schur complement leaves of it.
  // Without a matching their order.
  int rank = 0;

  Ordering ordering() noexcept { return {permutation.data(), inverse.data()}; }
};

// The matrix is square, its values may be null where options ask for neither scaling nor matching.
// kStructurallySingular for general matrices whose rows should be permuted; the result then has its rank alone.
// Symmetric ones, and those that are only scaled, get what there is. After any other failure the result is as it was.
template <Scalar T>
MatchingOutcome preprocess(const ColumnMatrix<T>& A, const PreprocessOptions& options,
                           Preprocessing<RealOf<T>>& result);

}  // namespace quorin::sparse
