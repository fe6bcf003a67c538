// The filter: a contour integral of the resolvent.
#pragma once

#include <array>
#include <complex>

#include "base/workspace.hpp"
#include "families/feast/contour.hpp"
#include "families/feast/direct_solver.hpp"
#include "families/feast/subspace.hpp"

namespace quorin::feast {

// X <- sum_k Re(weight_k (point_k B - A)^-1) B X for a real pencil; for a Hermitian one (S + S^H) / 2 takes the place
// of Re(S), of which the second half is the solution of the adjoint system with the same factor. T is double or
// std::complex<double>.
template <Scalar T>
class Filter {
 public:
  // Work space; nothing is factored yet. The arguments must outlive the filter. False without memory.
  [[nodiscard]] bool reserve(const Pencil<T>& pencil, const DirectSolver<T>& solver, const Contour& contour,
                             const Subspace<T>& X);

  // Factors of the nodes are made when they are first needed, several at a time on as many threads, and kept for the
  // next call as far as memory allows. Results have the same bits whatever is kept and however many threads there are.
  // kNoMemory, kSolverFailed.
  [[nodiscard]] Status apply(Subspace<T>& X);

 private:
  using Complex = std::complex<double>;
  static constexpr int kSolutions = kIsComplex<T> ? 2 : 1;  // with the adjoint's

  void plan_memory(double bytes);
  Status factor_group(int first, int count);
  bool release(int first, int count);
  Status solve_group(int first, int count, Subspace<T>& X);
  Status solve_node(int node, int place, const T* rhs, int columns, int threads);
  void accumulate(int node, const Complex* solution, const Complex* adjoint_solution, T* sum) const;
  // Column j of a solution of the group's node `place`.
  Complex* solution(int place, int which, int j) {
    return solutions_.data() + (static_cast<std::ptrdiff_t>(place * kSolutions + which) * block_ + j) * pencil_->size();
  }

  const Pencil<T>* pencil_ = nullptr;
  const DirectSolver<T>* solver_ = nullptr;
  const Contour* contour_ = nullptr;
  int threads_ = 1, block_ = 1;
  int group_ = 1;  // nodes worked on at a time
  int kept_ = 0;   // nodes, the first ones, whose factors are kept
  base::Workspace<Complex> values_, solutions_;
  std::array<sparse::Factor<Complex>, Contour::kMostNodes> factors_;
};

}  // namespace quorin::feast
