#include "families/taucs/solvers/out_of_core.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/handle_table.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

using sparse::FactorOutcome;

struct OutOfCoreFactor : base::HandleNode {
  explicit OutOfCoreFactor(const char* name) noexcept : base_name(std::strlen(name) + 1) {
    if (base_name) std::copy_n(name, base_name.size(), base_name.data());
  }
  explicit operator bool() const { return static_cast<bool>(base_name); }

  void give_up() {
    numbers.clear();
    files.close();
  }

  base::Workspace<char> base_name;
  sparse::PanelFiles files;
  sparse::Plan plan;
  FactorNumbers numbers;
};

constinit base::HandleTable<OutOfCoreFactor> factors;

std::uint64_t bytes_of(double memory) {
  constexpr double kMost = 1e18;
  return memory > 0 ? static_cast<std::uint64_t>(std::min(memory, kMost)) : 0;
}

// A new handle, if `make(factor)` succeeds.
template <class Make>
void* create(const char* base_name, const Make& make) {
  void* const handle = factors.create(base_name);
  OutOfCoreFactor* const factor = factors.find(handle);
  if (factor == nullptr) return nullptr;
  if (make(*factor)) return handle;
  out_of_core_close(handle);
  return nullptr;
}

template <Element T>
Status compute_into_files(const CcsMatrix& A, FactorKind kind, const int* permutation, int maxdepth,
                          OutOfCoreFactor& factor) {
  const std::int64_t most_elements = sparse::most_elements_within(factor.files.budget(), sizeof(T));
  if (!can_be_factored<T>(&A, kind) || !analyze<T>(A, kind, permutation, maxdepth, factor.plan, most_elements)) {
    return Status::kError;
  }
  sparse::Factor<T>& numbers = factor.numbers.of<T>();
  const Status status = compute(A, kind, FactorMethod::kLeftLooking, factor.plan, &factor.files, numbers);
  if (status != Status::kSuccess) return status;
  const FactorOutcome outcome = sparse::Archive::complete(factor.files, numbers);
  if (outcome == FactorOutcome::kDone) return Status::kSuccess;
  message("taucs_ooc_factor: the files [%s] cannot be completed\n", factor.base_name.data());
  return outcome == FactorOutcome::kOutOfMemory ? Status::kErrorNomem : Status::kError;
}

OutOfCoreFactor* find_with_numbers(const void* L) {
  OutOfCoreFactor* const factor = factors.find(L);
  return factor != nullptr && factor->numbers ? factor : nullptr;
}

Status solve(const OutOfCoreFactor& factor, int nrhs, void* X) {
  if (factor.plan.size() == 0 || nrhs == 0) return Status::kSuccess;
  return factor.numbers.visit(
      [&]<class T>(const sparse::Factor<T>& numbers) { return solve_in_order(numbers, nrhs, static_cast<T*>(X)); });
}

}  // namespace

void* out_of_core_create(const char* base_name, double memory) noexcept {
  return create(base_name, [&](OutOfCoreFactor& factor) {
    return factor.files.begin(base_name, bytes_of(memory)) == FactorOutcome::kDone;
  });
}

Status out_of_core_compute(void* L, const CcsMatrix* A, FactorKind kind, const int* permutation,
                           int maxdepth) noexcept {
  OutOfCoreFactor* const factor = factors.find(L);
  if (factor == nullptr) return Status::kErrorBadargs;
  Status status = Status::kErrorBadargs;
  dispatch(A->flags, [&]<class T>() { status = compute_into_files<T>(*A, kind, permutation, maxdepth, *factor); });
  if (status != Status::kSuccess) factor->give_up();
  return status;
}

void* out_of_core_open(const CcsMatrix* A, const char* base_name, double memory) noexcept {
  return create(base_name, [&](OutOfCoreFactor& factor) {
    FactorOutcome outcome = FactorOutcome::kWrongFormat;
    dispatch(A->flags, [&]<class T>() {
      outcome = sparse::Archive::open(base_name, bytes_of(memory), factor.files, factor.plan, factor.numbers.of<T>());
    });
    return outcome == FactorOutcome::kDone && factor.plan.size() == A->n;
  });
}

bool out_of_core_exists(const char* base_name) noexcept {
  sparse::PanelFiles files;
  return files.open(base_name, 0) == FactorOutcome::kDone;
}

const char* out_of_core_base_name(void* L) noexcept {
  const OutOfCoreFactor* const factor = factors.find(L);
  return factor != nullptr ? factor->base_name.data() : nullptr;
}

void out_of_core_give_up(void* L) noexcept {
  if (OutOfCoreFactor* const factor = factors.find(L)) factor->give_up();
}

void out_of_core_close(void* L) noexcept { static_cast<void>(factors.erase(L)); }

bool out_of_core_order(void* L, std::int32_t* perm, std::int32_t* invperm) noexcept {
  const OutOfCoreFactor* const factor = find_with_numbers(L);
  if (factor == nullptr) return false;
  std::copy_n(factor->plan.permutation(), factor->plan.size(), perm);
  std::copy_n(factor->plan.inverse(), factor->plan.size(), invperm);
  return true;
}

FactorKind out_of_core_kind(void* L) noexcept {
  const OutOfCoreFactor* const factor = find_with_numbers(L);
  if (factor == nullptr) return FactorKind::kLlt;
  const auto kind = factor->numbers.visit([](const auto& numbers) { return numbers.factorization(); });
  return kind == sparse::Factorization::kLLT ? FactorKind::kLlt : FactorKind::kLdlt;
}

bool out_of_core_inertia(void* L, std::int32_t* inertia) noexcept {
  const OutOfCoreFactor* const factor = factors.find(L);
  return factor != nullptr && factor->numbers.get_inertia(inertia);
}

Status out_of_core_solve(void* L, int nrhs, void* X) noexcept {
  OutOfCoreFactor* const factor = find_with_numbers(L);
  return factor != nullptr ? solve(*factor, nrhs, X) : Status::kErrorBadargs;
}

std::int32_t ooc_solve_llt(void* L, void* x, const void* b) noexcept {
  OutOfCoreFactor* const factor = find_with_numbers(L);
  if (factor == nullptr || x == nullptr || b == nullptr) return static_cast<std::int32_t>(Status::kErrorBadargs);
  const std::size_t bytes =
      static_cast<std::size_t>(factor->plan.size()) * (factor->numbers.real ? sizeof(double) : sizeof(Complex));
  if (x != b) std::memmove(x, b, bytes);
  return static_cast<std::int32_t>(solve(*factor, 1, x));
}

}  // namespace quorin::taucs
