#include "sparse/symbolic/solve_paths.hpp"

#include <algorithm>
#include <numeric>

namespace quorin::sparse {

bool SolvePaths::build(const Plan& plan, std::optional<std::span<const int>> given,
                       std::optional<std::span<const int>> wanted) noexcept {
  return given_.build(plan, given) && wanted_.build(plan, wanted);
}

bool SolvePaths::Side::build(const Plan& plan, std::optional<std::span<const int>> chosen) noexcept {
  const auto supernodes = static_cast<std::size_t>(plan.supernodes());
  step_count = chosen ? chosen->size() : static_cast<std::size_t>(plan.size());
  supernode_count = 0;
  memory = base::Workspace<int>(step_count + supernodes);
  if (!memory) return false;
  int* const steps = memory.data();
  if (chosen) {
    std::copy(chosen->begin(), chosen->end(), steps);
  } else {
    std::iota(steps, steps + step_count, 0);
  }
  // Marks first; the list then takes their place, and never overtakes them.
  int* const marks = steps + step_count;
  std::fill_n(marks, supernodes, 0);
  for (std::size_t k = 0; k < step_count; ++k) {
    for (int s = plan.supernode_of(steps[k]); s != kNone && marks[s] == 0; s = plan.parent(s)) marks[s] = 1;
  }
  for (int s = 0; s < plan.eliminated(); ++s) {
    if (marks[s] != 0) marks[supernode_count++] = s;
  }
  return true;
}

}  // namespace quorin::sparse
