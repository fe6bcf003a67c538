#include "families/trust_region/trust_region.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/handle_table.hpp"
#include "families/trust_region/solver.hpp"

namespace quorin::trust_region {
namespace {

enum Status { kSuccess = 1501, kInvalidOption = 1502, kOutOfMemory = 1503 };

using Table = base::HandleTable<Solver>;
constinit Table unbounded_runs;
constinit Table bounded_runs;

constexpr float kSmallestRadius = 0.1F, kLargestRadius = 100.0F;

template <class... Pointers>
bool has_null(const Pointers*... pointers) {
  return ((pointers == nullptr) || ...);
}

// In the order of the host's eps; the fifth without its sign where that has a meaning for other implementations only.
Tolerances read_tolerances(const float* eps, bool is_bounded) {
  return {eps[0], eps[1], eps[2], eps[3], is_bounded ? std::fabs(eps[4]) : eps[4], eps[5]};
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

int make(Table& table, void** handle, const Counts& counts, float* x, const float* lower, const float* upper,
         const float* eps, const float* rs) {
  if (handle == nullptr) return kInvalidOption;
  *handle = nullptr;
  if (!counts.are_valid() || has_null(x, eps, rs) || !(*rs >= 0.0F)) return kInvalidOption;
  const bool is_bounded = lower != nullptr;
  const Setup setup{
      .n = static_cast<std::size_t>(*counts.n),
      .m = static_cast<std::size_t>(*counts.m),
      .x = x,
      .tolerances = read_tolerances(eps, is_bounded),
      .iteration_limit = *counts.iter1,
      .step_iteration_limit = *counts.iter2,
      .first_radius = *rs == 0.0F ? kLargestRadius : std::clamp(*rs, kSmallestRadius, kLargestRadius),
      .lower = lower,
      .upper = upper,
  };
  if (!is_valid(setup.tolerances) || !are_finite(setup.n, x)) return kInvalidOption;
  if (is_bounded && !are_bounds(setup.n, lower, upper)) return kInvalidOption;
  *handle = table.create(setup);
  return *handle == nullptr ? kOutOfMemory : kSuccess;
}

int advance(Table& table, void** handle, float* fvec, const float* fjac, int* request) {
  if (has_null(handle, fvec, fjac, request)) return kInvalidOption;
  Solver* const solver = table.find(*handle);
  return solver != nullptr && solver->advance(fvec, fjac, request) ? kSuccess : kInvalidOption;
}

int report(Table& table, void** handle, int* iter, int* st_cr, float* r1, float* r2) {
  if (has_null(handle, iter, st_cr, r1, r2)) return kInvalidOption;
  const Solver* const solver = table.find(*handle);
  if (solver == nullptr) return kInvalidOption;
  *iter = solver->iterations();
  *st_cr = solver->stop_criterion();
  *r1 = solver->first_norm();
  *r2 = solver->best_norm();
  return kSuccess;
}

int erase(Table& table, void** handle) {
  if (handle == nullptr || !table.erase(*handle)) return kInvalidOption;
  *handle = nullptr;
  return kSuccess;
}

}  // namespace

int init(void** handle, const int* n, const int* m, float* x, const float* eps, const int* iter1, const int* iter2,
         const float* rs) {
  return make(unbounded_runs, handle, {n, m, iter1, iter2}, x, nullptr, nullptr, eps, rs);
}

int init_bounded(void** handle, const int* n, const int* m, float* x, const float* lower, const float* upper,
                 const float* eps, const int* iter1, const int* iter2, const float* rs) {
  if (has_null(lower, upper)) {
    if (handle != nullptr) *handle = nullptr;
    return kInvalidOption;
  }
  return make(bounded_runs, handle, {n, m, iter1, iter2}, x, lower, upper, eps, rs);
}

int solve(void** handle, float* fvec, const float* fjac, int* request) {
  return advance(unbounded_runs, handle, fvec, fjac, request);
}

int solve_bounded(void** handle, float* fvec, const float* fjac, int* request) {
  return advance(bounded_runs, handle, fvec, fjac, request);
}

int get(void** handle, int* iter, int* st_cr, float* r1, float* r2) {
  return report(unbounded_runs, handle, iter, st_cr, r1, r2);
}

int get_bounded(void** handle, int* iter, int* st_cr, float* r1, float* r2) {
  return report(bounded_runs, handle, iter, st_cr, r1, r2);
}

int destroy(void** handle) { return erase(unbounded_runs, handle); }

int destroy_bounded(void** handle) { return erase(bounded_runs, handle); }

}  // namespace quorin::trust_region
