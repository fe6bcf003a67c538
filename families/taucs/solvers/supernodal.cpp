#include "families/taucs/solvers/supernodal.hpp"

#include "base/handle_table.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/solvers/out_of_core.hpp"

namespace quorin::taucs {
namespace {

std::size_t length(int n) { return static_cast<std::size_t>(n); }

struct SupernodalFactor : base::HandleNode {
  explicit SupernodalFactor(FactorKind its_kind) noexcept : kind(its_kind) {}
  explicit operator bool() const { return true; }

  FactorKind kind;
  sparse::Plan plan;
  FactorNumbers numbers;
};

constinit base::HandleTable<SupernodalFactor> factors;

// The numbers of A; those that were there are gone.
template <Element T>
Status compute_into(const CcsMatrix& A, FactorMethod method, SupernodalFactor& factor) {
  factor.numbers.clear();
  return compute(A, factor.kind, method, factor.plan, nullptr, factor.numbers.of<T>());
}

SupernodalFactor* find_with_numbers(const void* L) {
  SupernodalFactor* const factor = factors.find(L);
  return factor != nullptr && factor->numbers ? factor : nullptr;
}

// X <- A^-1 B; X may be B.
template <Element T>
Status solve(const sparse::Factor<T>& factor, int nrhs, T* X, int ldX, const T* B, int ldB) {
  const sparse::Plan& plan = factor.plan();
  const int n = plan.size();
  base::Workspace<T> work(base::saturating_product(length(n), length(nrhs)));
  if (!work) return Status::kErrorNomem;
  T* const x = work.data();
  const auto column = [](int c, int ld) { return static_cast<std::ptrdiff_t>(c) * ld; };
  for (int c = 0; c < nrhs; ++c) sparse::permute(n, plan.permutation(), B + column(c, ldB), x + column(c, n));
  const Status status = solve_in_order(factor, nrhs, x);
  if (status != Status::kSuccess) return status;
  for (int c = 0; c < nrhs; ++c) sparse::permute_back(n, plan.permutation(), x + column(c, n), X + column(c, ldX));
  return Status::kSuccess;
}

Status solve_any(SupernodalFactor& factor, int nrhs, void* X, int ldX, const void* B, int ldB) {
  const int n = factor.plan.size();
  if (nrhs < 0 || ldX < n || ldB < n) return Status::kErrorBadargs;
  if (nrhs == 0 || n == 0) return Status::kSuccess;
  if (X == nullptr || B == nullptr) return Status::kErrorBadargs;
  return factor.numbers.visit([&]<class T>(const sparse::Factor<T>& numbers) {
    return solve(numbers, nrhs, static_cast<T*>(X), ldX, static_cast<const T*>(B), ldB);
  });
}

std::int32_t as_integer(Status status) { return static_cast<std::int32_t>(status); }

}  // namespace

void* analyze_supernodal(const CcsMatrix* A, FactorKind kind, int maxdepth) noexcept {
  if (A == nullptr) return nullptr;
  void* const handle = factors.create(kind);
  SupernodalFactor* const factor = factors.find(handle);
  if (factor == nullptr) return nullptr;
  bool is_done = false;
  dispatch(A->flags, [&]<class T>() {
    is_done = can_be_factored<T>(A, kind) && analyze<T>(*A, kind, nullptr, maxdepth, factor->plan);
  });
  if (is_done) return handle;
  supernodal_factor_free(handle);
  return nullptr;
}

void* factor_supernodal(const CcsMatrix* A, FactorKind kind, FactorMethod method, int maxdepth) noexcept {
  void* const handle = analyze_supernodal(A, kind, maxdepth);
  SupernodalFactor* const factor = factors.find(handle);
  if (factor == nullptr) return nullptr;
  Status status = Status::kError;
  dispatch(A->flags, [&]<class T>() { status = compute_into<T>(*A, method, *factor); });
  if (status == Status::kSuccess) return handle;
  supernodal_factor_free(handle);
  return nullptr;
}

Status factor_numeric(const CcsMatrix* A, FactorKind kind, void* L) noexcept {
  SupernodalFactor* const factor = factors.find(L);
  Status status = Status::kErrorBadargs;
  if (factor == nullptr || factor->kind != kind || A == nullptr || A->n != factor->plan.size()) return status;
  dispatch(A->flags, [&]<class T>() {
    if (can_be_factored<T>(A, kind)) status = compute_into<T>(*A, FactorMethod::kMultifrontal, *factor);
  });
  return status;
}

Status solve_supernodal(void* L, int nrhs, void* X) noexcept {
  SupernodalFactor* const factor = find_with_numbers(L);
  if (factor == nullptr) return Status::kErrorBadargs;
  const int n = factor->plan.size();
  return solve_any(*factor, nrhs, X, n, X, n);
}

int supernodal_order(void* L) noexcept {
  const SupernodalFactor* const factor = factors.find(L);
  return factor != nullptr ? factor->plan.size() : 0;
}

void* ccs_factor_llt_ll(const CcsMatrix* A) noexcept { return ccs_factor_llt_ll_maxdepth(A, 0); }
void* ccs_factor_llt_ll_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return factor_supernodal(A, FactorKind::kLlt, FactorMethod::kLeftLooking, maxdepth);
}
void* ccs_factor_llt_mf(const CcsMatrix* A) noexcept { return ccs_factor_llt_mf_maxdepth(A, 0); }
void* ccs_factor_llt_mf_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return factor_supernodal(A, FactorKind::kLlt, FactorMethod::kMultifrontal, maxdepth);
}
void* ccs_factor_ldlt_ll(const CcsMatrix* A) noexcept { return ccs_factor_ldlt_ll_maxdepth(A, 0); }
void* ccs_factor_ldlt_ll_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return factor_supernodal(A, FactorKind::kLdlt, FactorMethod::kLeftLooking, maxdepth);
}
void* ccs_factor_ldlt_mf(const CcsMatrix* A) noexcept { return ccs_factor_ldlt_mf_maxdepth(A, 0); }
void* ccs_factor_ldlt_mf_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return factor_supernodal(A, FactorKind::kLdlt, FactorMethod::kMultifrontal, maxdepth);
}

void* ccs_factor_llt_symbolic(const CcsMatrix* A) noexcept { return ccs_factor_llt_symbolic_maxdepth(A, 0); }
void* ccs_factor_llt_symbolic_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return analyze_supernodal(A, FactorKind::kLlt, maxdepth);
}
void* ccs_factor_ldlt_symbolic(const CcsMatrix* A) noexcept { return ccs_factor_ldlt_symbolic_maxdepth(A, 0); }
void* ccs_factor_ldlt_symbolic_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return analyze_supernodal(A, FactorKind::kLdlt, maxdepth);
}
std::int32_t ccs_factor_llt_numeric(const CcsMatrix* A, void* L) noexcept {
  return as_integer(factor_numeric(A, FactorKind::kLlt, L));
}
std::int32_t ccs_factor_ldlt_numeric(const CcsMatrix* A, void* L) noexcept {
  return as_integer(factor_numeric(A, FactorKind::kLdlt, L));
}

std::int32_t supernodal_solve_llt(void* L, void* x, const void* b) noexcept {
  SupernodalFactor* const factor = find_with_numbers(L);
  if (factor == nullptr || factor->kind != FactorKind::kLlt) return as_integer(Status::kErrorBadargs);
  const int n = factor->plan.size();
  return as_integer(solve_any(*factor, 1, x, n, b, n));
}

std::int32_t supernodal_solve_ldlt_many(void* L, std::int32_t n, void* X, std::int32_t ld_X, const void* B,
                                        std::int32_t ld_B) noexcept {
  SupernodalFactor* const factor = find_with_numbers(L);
  if (factor == nullptr || factor->kind != FactorKind::kLdlt) return as_integer(Status::kErrorBadargs);
  return as_integer(solve_any(*factor, n, X, ld_X, B, ld_B));
}

std::int32_t inertia_calc(void* L, std::int32_t* inertia) noexcept {
  if (inertia == nullptr) return as_integer(Status::kErrorBadargs);
  if (out_of_core_inertia(L, inertia)) return as_integer(Status::kSuccess);
  const SupernodalFactor* const factor = factors.find(L);
  const bool has_inertia = factor != nullptr && factor->numbers.get_inertia(inertia);
  return as_integer(has_inertia ? Status::kSuccess : Status::kErrorBadargs);
}

void supernodal_factor_free_numeric(void* L) noexcept {
  SupernodalFactor* const factor = factors.find(L);
  if (factor != nullptr) factor->numbers.clear();
}

void supernodal_factor_free(void* L) noexcept { static_cast<void>(factors.erase(L)); }

}  // namespace quorin::taucs
