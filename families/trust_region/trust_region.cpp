#include "families/trust_region/trust_region.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "base/handle_table.hpp"
#include "families/trust_region/solver.hpp"

namespace quorin::trust_region {
namespace {

using enum Status;

using Table = base::HandleTable<Solver>;
constinit Table unbounded_runs;
constinit Table bounded_runs;

constexpr float kSmallestLength = 0.1F, kLargestLength = 100.0F;

template <class... Pointers>
bool has_null(const Pointers*... pointers) {
  return ((pointers == nullptr) || ...);
}

// The sign of the fifth has a meaning for other implementations only.
Tolerances read_tolerances(const float* eps, bool is_bounded) {
  const auto at = [eps](int position) { return eps[position - 1]; };
  return {.radius = at(kEpsRadius),
          .residual = at(kEpsResidual),
          .column = at(kEpsColumn),
          .step = at(kEpsStep),
          .decrease = is_bounded ? std::fabs(at(kEpsDecrease)) : at(kEpsDecrease),
          .step_precision = at(kEpsStepPrecision)};
}

bool is_valid(const Tolerances& t) {
  return t.radius >= 0.0F && t.residual >= 0.0F && t.column >= 0.0F && t.step >= 0.0F && t.decrease >= 0.0F &&
         t.step_precision >= 0.0F;
}

bool are_bounds(std::size_t n, const float* lower, const float* upper) {
  return std::equal(lower, lower + n, upper, [](float l, float u) { return l <= u; });
}

bool are_finite(std::size_t n, const float* x) {
  return std::all_of(x, x + n, [](float value) { return std::isfinite(value); });
}

struct Counts {
  const int *n, *m, *iter1, *iter2;

  bool are_valid() const { return !has_null(n, m, iter1, iter2) && *n >= 1 && *m >= *n && *iter1 >= 1 && *iter2 >= 1; }
};

Status make(Table& table, void** handle, const Counts& counts, float* x, const float* lower, const float* upper,
            const float* eps, const float* rs) {
  if (handle == nullptr) return kInvalid;
  *handle = nullptr;
  if (!counts.are_valid() || has_null(x, eps, rs) || !(*rs >= 0.0F)) return kInvalid;
  const bool is_bounded = lower != nullptr;
  const Setup setup{
      .n = static_cast<std::size_t>(*counts.n),
      .m = static_cast<std::size_t>(*counts.m),
      .x = x,
      .tolerances = read_tolerances(eps, is_bounded),
      .iteration_limit = *counts.iter1,
      .step_iteration_limit = *counts.iter2,
      .first_length =
          *rs == 0.0F ? std::numeric_limits<float>::infinity() : std::clamp(*rs, kSmallestLength, kLargestLength),
      .lower = lower,
      .upper = upper,
  };
  if (!is_valid(setup.tolerances) || !are_finite(setup.n, x)) return kInvalid;
  if (is_bounded && !are_bounds(setup.n, lower, upper)) return kInvalid;
  *handle = table.create(setup);
  return *handle == nullptr ? kNoMemory : kSuccess;
}

Status advance(Table& table, void** handle, float* fvec, const float* fjac, int* request) {
  if (has_null(handle, fvec, fjac, request)) return kInvalid;
  Solver* const solver = table.find(*handle);
  return solver != nullptr && solver->advance(fvec, fjac, request) ? kSuccess : kInvalid;
}

Status report(Table& table, void** handle, int* iter, int* st_cr, float* r1, float* r2) {
  if (has_null(handle, iter, st_cr, r1, r2)) return kInvalid;
  const Solver* const solver = table.find(*handle);
  if (solver == nullptr) return kInvalid;
  *iter = solver->iterations();
  *st_cr = solver->stop_criterion();
  *r1 = solver->first_norm();
  *r2 = solver->best_norm();
  return kSuccess;
}

Status erase(Table& table, void** handle) {
  if (handle == nullptr || !table.erase(*handle)) return kInvalid;
  *handle = nullptr;
  return kSuccess;
}

}  // namespace

int init(void** handle, const int* n, const int* m, float* x, const float* eps, const int* iter1, const int* iter2,
         const float* rs) noexcept {
  return static_cast<int>(make(unbounded_runs, handle, {n, m, iter1, iter2}, x, nullptr, nullptr, eps, rs));
}

int init_bounded(void** handle, const int* n, const int* m, float* x, const float* lower, const float* upper,
                 const float* eps, const int* iter1, const int* iter2, const float* rs) noexcept {
  if (has_null(lower, upper)) {
    if (handle != nullptr) *handle = nullptr;
    return static_cast<int>(kInvalid);
  }
  return static_cast<int>(make(bounded_runs, handle, {n, m, iter1, iter2}, x, lower, upper, eps, rs));
}

int solve(void** handle, float* fvec, const float* fjac, int* request) noexcept {
  return static_cast<int>(advance(unbounded_runs, handle, fvec, fjac, request));
}

int solve_bounded(void** handle, float* fvec, const float* fjac, int* request) noexcept {
  return static_cast<int>(advance(bounded_runs, handle, fvec, fjac, request));
}

int get(void** handle, int* iter, int* st_cr, float* r1, float* r2) noexcept {
  return static_cast<int>(report(unbounded_runs, handle, iter, st_cr, r1, r2));
}

int get_bounded(void** handle, int* iter, int* st_cr, float* r1, float* r2) noexcept {
  return static_cast<int>(report(bounded_runs, handle, iter, st_cr, r1, r2));
}

int destroy(void** handle) noexcept { return static_cast<int>(erase(unbounded_runs, handle)); }

int destroy_bounded(void** handle) noexcept { return static_cast<int>(erase(bounded_runs, handle)); }

}  // namespace quorin::trust_region
