// The part of a factor that a solve with sparse right-hand sides, or for few unknowns, has to read.
#pragma once

#include <optional>
#include <span>

#include "base/workspace.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// If only the rows G of b are not zero, L y = b makes only those rows of y not zero that lie on the paths from G to the
// roots of the tree; and to compute the rows W of x in L' x = y, only the rows on the paths from W are needed. Both are
// closed sets of supernodes here.
//
// J. R. Gilbert, Predicting structure in sparse matrix computations, SIAM J. Matrix Anal. Appl. 15 (1994) 62-79; J. R.
// Gilbert & J. W. H. Liu, Elimination structures for unsymmetric sparse LU factors, ibid. 14 (1993) 334-352.
class SolvePaths {
 public:
  // Steps of the plan; none given means all. False without memory. The lists are copied, the plan is not kept.
  [[nodiscard]] bool build(const Plan& plan, std::optional<std::span<const int>> given,
                           std::optional<std::span<const int>> wanted) noexcept;

  // As given to build().
  std::span<const int> given() const noexcept { return given_.steps(); }
  std::span<const int> wanted() const noexcept { return wanted_.steps(); }
  // Supernodes that are eliminated, ascending: for L, and for L'.
  std::span<const int> forward() const noexcept { return given_.supernodes(); }
  std::span<const int> backward() const noexcept { return wanted_.supernodes(); }

 private:
  struct Side {
    base::Workspace<int> memory;
    std::size_t step_count = 0, supernode_count = 0;

    bool build(const Plan& plan, std::optional<std::span<const int>> chosen) noexcept;
    std::span<const int> steps() const noexcept { return {memory.data(), step_count}; }
    std::span<const int> supernodes() const noexcept { return {memory.data() + step_count, supernode_count}; }
  };
  Side given_, wanted_;
};

}  // namespace quorin::sparse
