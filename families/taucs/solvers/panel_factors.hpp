// What the factors in memory and those in files have in common: the analysis and the numbers of a matrix of which the
// lower triangle is stored, by the engine of sparse/.
#pragma once

#include <cstdint>

#include "families/taucs/engine_view.hpp"

namespace quorin::taucs {

enum class FactorKind { kLlt, kLdlt };
enum class FactorMethod { kLeftLooking, kMultifrontal };

// Whether A is a sound triangle of elements T, and for L L^H not complex symmetric.
template <Element T>
bool can_be_factored(const CcsMatrix* A, FactorKind kind) {
  return is_sound_triangle<T>(A) && (kind == FactorKind::kLdlt || !kIsComplex<T> || A->has(kHermitian));
}

// As ccs_order, for L D L^T of A: where diagonal entries are too small for pivots, rows are paired by a matching and
// the method orders the graph in which each pair is one vertex, so that partners become neighbours in the order.
template <Element T>
void order_for_ldlt(const CcsMatrix& A, std::int32_t** perm, std::int32_t** invperm, const char* name);

// The plan of A's elimination in the order of the n integers `permutation`, or 0, ..., n - 1 if that is null. Rows
// whose diagonal entries are too small for pivots are brought next to the ones that a matching finds for them (kLdlt).
// Supernodes are cut so that panels have at most so many elements, unless that is 0.
// False without memory, and if the elimination tree has more than `maxdepth` levels, unless that is 0.
template <Element T>
bool analyze(const CcsMatrix& A, FactorKind kind, const int* permutation, int maxdepth, sparse::Plan& plan,
             std::int64_t most_elements = 0);

// The numbers, into panels in memory or in a store. Where a pivot is zero, L D L^T is done again with small pivots
// replaced. kError: not positive definite, singular, not finite, an entry where the plan has none, or what the store
// says; `factor` is empty then, as it is for kErrorNomem.
template <Element T>
Status compute(const CcsMatrix& A, FactorKind kind, FactorMethod method, const sparse::Plan& plan,
               sparse::PanelStore* store, sparse::Factor<T>& factor);

// X <- A^-1 X for nrhs columns of n elements in the plan's order.
template <Element T>
Status solve_in_order(const sparse::Factor<T>& factor, int nrhs, T* X);

// The numbers of one factor, of either type: at most one of the two holds any.
struct FactorNumbers {
  sparse::Factor<double> real;
  sparse::Factor<Complex> complex;

  explicit operator bool() const { return real || complex; }
  template <Element T>
  sparse::Factor<T>& of() {
    if constexpr (std::same_as<T, double>) {
      return real;
    } else {
      return complex;
    }
  }
  // Calls body(factor) for the one that does.
  template <class Body>
  auto visit(const Body& body) const {
    return real ? body(real) : body(complex);
  }
  // Whether pivots have signs: those of L D L^T and L D L^H do, but of complex symmetric matrices. Then inertia[0], [1]
  // and [2] are the zero, positive and negative ones.
  bool get_inertia(std::int32_t* inertia) const;
  void clear() {
    real.clear();
    complex.clear();
  }
};

}  // namespace quorin::taucs
