#include "families/taucs/matrix.hpp"

#include <new>

#include "families/taucs/dispatch.hpp"

namespace quorin::taucs {

template <Element T>
CcsMatrix* create(std::int32_t m, std::int32_t n, std::int32_t nnz) noexcept {
  void* const memory = m < 0 || n < 0 || nnz < 0 ? nullptr : base::allocate(sizeof(CcsMatrix));
  if (memory == nullptr) return nullptr;
  auto* const A = new (memory) CcsMatrix{.n = n, .m = m, .flags = kTypeFlag<T>};
  A->colptr = new_array<std::int32_t>(static_cast<std::size_t>(n) + 1);
  A->rowind = new_array<std::int32_t>(static_cast<std::size_t>(nnz));
  A->values.v = new_array<T>(static_cast<std::size_t>(nnz));
  if (A->colptr != nullptr && A->rowind != nullptr && A->values.v != nullptr) return A;
  ccs_free(A);
  return nullptr;
}

template CcsMatrix* create<double>(std::int32_t, std::int32_t, std::int32_t) noexcept;
template CcsMatrix* create<Complex>(std::int32_t, std::int32_t, std::int32_t) noexcept;

CcsMatrix* ccs_create(std::int32_t m, std::int32_t n, std::int32_t nnz, std::int32_t flags) noexcept {
  const Type type = type_of(flags);
  if (type == Type::kNeither) return nullptr;
  CcsMatrix* const A = type == Type::kComplex ? create<Complex>(m, n, nnz) : create<double>(m, n, nnz);
  if (A != nullptr) A->flags = flags;
  return A;
}

void ccs_free(CcsMatrix* A) noexcept {
  if (A == nullptr) return;
  base::release(A->rowind);
  base::release(A->colptr);
  base::release(A->values.v);
  base::release(A);
}

}  // namespace quorin::taucs
