#include "families/jacobi/jacobi.hpp"

#include <cmath>
#include <cstddef>

#include "base/handle_table.hpp"
#include "base/workspace.hpp"
#include "families/jacobi/central_differences.hpp"
#include "platform/floating_point.hpp"

namespace quorin::jacobi {
namespace {

using enum Status;

constinit base::HandleTable<CentralDifferences> computations;

bool are_valid(const int* n, const int* m, const float* x, const float* fjac, const float* eps) {
  if (n == nullptr || m == nullptr || x == nullptr || fjac == nullptr || eps == nullptr) return false;
  return *n >= 1 && *m >= 1 && *eps > 0.0F && std::isfinite(*eps);
}

// `evaluate(m, n, x, f)` is the host's function.
template <class Evaluate>
Status differentiate_by(const Evaluate& evaluate, const int* n, const int* m, float* fjac, float* x, const float* eps) {
  if (!are_valid(n, m, x, fjac, eps)) return kInvalid;
  const auto columns = static_cast<std::size_t>(*n), rows = static_cast<std::size_t>(*m);
  base::Workspace<float> values(base::saturating_product(2, rows));
  if (!values) return kNoMemory;
  float* const forward = values.data();
  float* const backward = forward + rows;
  CentralDifferences differences(columns, rows, x, fjac, *eps);
  for (;;) {
    const Request request = differences.advance(forward, backward);
    if (request == kDone) return kSuccess;
    int m_now = *m, n_now = *n;  // the host's function may not change ours
    evaluate(&m_now, &n_now, x, request == kForward ? forward : backward);
  }
}

Status create(void** handle, const int* n, const int* m, float* x, float* fjac, const float* eps) {
  if (handle == nullptr) return kInvalid;
  *handle = nullptr;
  if (!are_valid(n, m, x, fjac, eps)) return kInvalid;
  *handle = computations.create(static_cast<std::size_t>(*n), static_cast<std::size_t>(*m), x, fjac, *eps);
  return *handle == nullptr ? kNoMemory : kSuccess;
}

Status advance(void** handle, const float* f1, const float* f2, int* request) {
  if (handle == nullptr || f1 == nullptr || f2 == nullptr || request == nullptr) return kInvalid;
  CentralDifferences* const differences = computations.find(*handle);
  if (differences == nullptr) return kInvalid;
  *request = static_cast<int>(differences->advance(f1, f2));
  return kSuccess;
}

Status erase(void** handle) {
  if (handle == nullptr || !computations.erase(*handle)) return kInvalid;
  *handle = nullptr;
  return kSuccess;
}

}  // namespace

int init(void** handle, const int* n, const int* m, float* x, float* fjac, const float* eps) noexcept {
  return static_cast<int>(create(handle, n, m, x, fjac, eps));
}

int solve(void** handle, const float* f1, const float* f2, int* request) noexcept {
  return static_cast<int>(advance(handle, f1, f2, request));
}

int destroy(void** handle) noexcept { return static_cast<int>(erase(handle)); }

int differentiate(Function fcn, const int* n, const int* m, float* fjac, float* x, const float* eps) noexcept {
  const auto evaluate = [fcn](int* rows, int* columns, float* point, float* f) {
    const platform::HostSettings settings;
    fcn(rows, columns, point, f);
  };
  return static_cast<int>(fcn == nullptr ? kInvalid : differentiate_by(evaluate, n, m, fjac, x, eps));
}

int differentiate_with_data(FunctionWithData fcn, const int* n, const int* m, float* fjac, float* x, const float* eps,
                            void* user_data) noexcept {
  const auto evaluate = [&](int* rows, int* columns, float* point, float* f) {
    const platform::HostSettings settings;
    fcn(rows, columns, point, f, user_data);
  };
  return static_cast<int>(fcn == nullptr ? kInvalid : differentiate_by(evaluate, n, m, fjac, x, eps));
}

}  // namespace quorin::jacobi
