#include "families/taucs/solvers/lu.hpp"

#include <umfpack_double.h>

#include <algorithm>

#include "base/handle_table.hpp"
#include "dense/dense.hpp"
#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/solvers/sorted_columns.hpp"

namespace quorin::taucs {
namespace {

std::size_t length(int n) { return static_cast<std::size_t>(n); }

// UMFPACK for the two element types. Complex arrays are packed, with a null where imaginary parts would be.
struct RealUmfpack {
  static int analyze(const CcsMatrix& A, const int* order, void** symbolic, const double* control) {
    return umfpack_di_qsymbolic(A.n, A.n, A.colptr, A.rowind, A.values.d, order, symbolic, control, nullptr);
  }
  static int factor(const CcsMatrix& A, void* symbolic, void** numeric, const double* control) {
    return umfpack_di_numeric(A.colptr, A.rowind, A.values.d, symbolic, numeric, control, nullptr);
  }
  static int solve(void* numeric, const double* b, double* x, const double* control, int* rows, double* work) {
    return umfpack_di_wsolve(UMFPACK_A, nullptr, nullptr, nullptr, x, b, numeric, control, nullptr, rows, work);
  }
  static constexpr auto* kFreeSymbolic = umfpack_di_free_symbolic;
  static constexpr auto* kFreeNumeric = umfpack_di_free_numeric;
  static constexpr int kWork = 1;  // doubles of `work` for an unknown
};

struct ComplexUmfpack {
  static int analyze(const CcsMatrix& A, const int* order, void** symbolic, const double* control) {
    return umfpack_zi_qsymbolic(A.n, A.n, A.colptr, A.rowind, A.values.d, nullptr, order, symbolic, control, nullptr);
  }
  static int factor(const CcsMatrix& A, void* symbolic, void** numeric, const double* control) {
    return umfpack_zi_numeric(A.colptr, A.rowind, A.values.d, nullptr, symbolic, numeric, control, nullptr);
  }
  static int solve(void* numeric, const double* b, double* x, const double* control, int* rows, double* work) {
    return umfpack_zi_wsolve(UMFPACK_A, nullptr, nullptr, nullptr, nullptr, x, nullptr, b, nullptr, numeric, control,
                             nullptr, rows, work);
  }
  static constexpr auto* kFreeSymbolic = umfpack_zi_free_symbolic;
  static constexpr auto* kFreeNumeric = umfpack_zi_free_numeric;
  static constexpr int kWork = 4;
};

template <Element T>
using Umfpack = std::conditional_t<std::same_as<T, double>, RealUmfpack, ComplexUmfpack>;

struct LuFactor : base::HandleNode {
  LuFactor(int order, bool complex, void* umfpack_numeric) noexcept
      : n(order), is_complex(complex), numeric(umfpack_numeric) {}
  ~LuFactor() { (is_complex ? ComplexUmfpack::kFreeNumeric : RealUmfpack::kFreeNumeric)(&numeric); }
  LuFactor(const LuFactor&) = delete;
  LuFactor& operator=(const LuFactor&) = delete;
  explicit operator bool() const { return true; }

  int n;
  bool is_complex;
  void* numeric;  // null for n = 0, which UMFPACK does not take
};

constinit base::HandleTable<LuFactor> factors;

bool is_permutation(const int* perm, int n) {
  base::Workspace<char> is_there(length(n));
  if (!is_there) return false;
  std::fill(is_there.begin(), is_there.end(), 0);
  return std::all_of(perm, perm + n, [&](int i) {
    if (i < 0 || i >= n || is_there[length(i)] != 0) return false;
    is_there[length(i)] = 1;
    return true;
  });
}

// UMFPACK's numeric object, or null.
template <Element T>
void* factor(const CcsMatrix& A, const int* perm, double threshold) {
  using Package = Umfpack<T>;
  const OwnedMatrix sorted = full_sorted_columns<T>(A);
  if (sorted == nullptr || !is_finite<T>(*sorted)) return nullptr;

  double control[UMFPACK_CONTROL];
  umfpack_di_defaults(control);
  control[UMFPACK_STRATEGY] = UMFPACK_STRATEGY_UNSYMMETRIC;
  control[UMFPACK_FIXQ] = 1;
  control[UMFPACK_SINGLETONS] = 0;  // they would go first, whatever the order
  control[UMFPACK_PIVOT_TOLERANCE] = threshold;
  void *symbolic = nullptr, *numeric = nullptr;
  int status = Package::analyze(*sorted, perm, &symbolic, control);
  if (status == UMFPACK_OK) status = Package::factor(*sorted, symbolic, &numeric, control);
  Package::kFreeSymbolic(&symbolic);
  if (status != UMFPACK_OK) Package::kFreeNumeric(&numeric);  // that of a singular matrix is there
  return numeric;
}

template <Element T>
Status solve(const LuFactor& lu, int nrhs, T* X, int ldX, const T* B, int ldB) {
  const std::size_t n = length(lu.n);
  base::Workspace<int> rows(n);
  base::Workspace<double> work(base::saturating_product(n, Umfpack<T>::kWork));
  base::Workspace<T> right_hand_side(n);
  const dense::KernelBuffer buffer(1);
  if (!rows || !work || !right_hand_side || buffer.granted() == 0) return Status::kErrorNomem;
  double control[UMFPACK_CONTROL];
  umfpack_di_defaults(control);
  control[UMFPACK_IRSTEP] = 0;
  for (int column = 0; column < nrhs; ++column, X += ldX, B += ldB) {
    std::copy_n(B, n, right_hand_side.data());  // X may be B
    const int status = Umfpack<T>::solve(lu.numeric, reinterpret_cast<const double*>(right_hand_side.data()),
                                         reinterpret_cast<double*>(X), control, rows.data(), work.data());
    if (status < 0) return Status::kError;
  }
  return Status::kSuccess;
}

}  // namespace

void* ccs_factor_lu(const CcsMatrix* A, const std::int32_t* perm, double threshold) noexcept {
  if (A == nullptr || A->m != A->n || perm == nullptr || !is_within_order(*A)) return nullptr;
  if (type_of(A->flags) == Type::kNeither || !is_permutation(perm, A->n)) return nullptr;
  void* numeric = nullptr;
  if (A->n > 0) {
    const dense::KernelBuffer buffer(1);
    if (buffer.granted() == 0) return nullptr;
    dispatch(A->flags, [&]<class T>() { numeric = factor<T>(*A, perm, threshold); });
    if (numeric == nullptr) return nullptr;
  }
  const bool is_complex = type_of(A->flags) == Type::kComplex;
  void* const handle = factors.create(A->n, is_complex, numeric);
  if (handle == nullptr) (is_complex ? ComplexUmfpack::kFreeNumeric : RealUmfpack::kFreeNumeric)(&numeric);
  return handle;
}

std::int32_t multilu_solve_many(void* factor, std::int32_t nrhs, void* X, std::int32_t ldX, const void* B,
                                std::int32_t ldB) noexcept {
  const LuFactor* const lu = factors.find(factor);
  Status status = Status::kErrorBadargs;
  if (lu == nullptr || nrhs < 0 || ldX < lu->n || ldB < lu->n) return static_cast<std::int32_t>(status);
  if (nrhs == 0 || lu->n == 0) return static_cast<std::int32_t>(Status::kSuccess);
  if (X == nullptr || B == nullptr) return static_cast<std::int32_t>(status);
  if (lu->is_complex) {
    status = solve(*lu, nrhs, static_cast<Complex*>(X), ldX, static_cast<const Complex*>(B), ldB);
  } else {
    status = solve(*lu, nrhs, static_cast<double*>(X), ldX, static_cast<const double*>(B), ldB);
  }
  return static_cast<std::int32_t>(status);
}

void multilu_factor_free(void* factor) noexcept { static_cast<void>(factors.erase(factor)); }

}  // namespace quorin::taucs
