#include "families/taucs/matrix.hpp"

#include <algorithm>
#include <new>

#include "base/workspace.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

// An empty array is a block of its own too: null always means that there is no memory.
template <class T>
T* new_array(std::size_t count) noexcept {
  return static_cast<T*>(base::allocate(base::saturating_product(std::max<std::size_t>(count, 1), sizeof(T))));
}

}  // namespace

template <Element T>
CcsMatrix* create(std::int32_t m, std::int32_t n, std::int32_t nnz) noexcept {
  void* const memory = m < 0 || n < 0 || nnz < 0 ? nullptr : base::allocate(sizeof(CcsMatrix));
  if (memory == nullptr) {
    print("taucs_ccs_create: out of memory\n");
    return nullptr;
  }
  auto* const A = new (memory) CcsMatrix{.n = n, .m = m, .flags = kTypeFlag<T>};
  A->colptr = new_array<std::int32_t>(static_cast<std::size_t>(n) + 1);
  A->rowind = new_array<std::int32_t>(static_cast<std::size_t>(nnz));
  A->values.v = new_array<T>(static_cast<std::size_t>(nnz));
  if (A->colptr != nullptr && A->rowind != nullptr && A->values.v != nullptr) return A;
  print("taucs_ccs_create: out of memory (n=%d, nnz=%d)\n", n, nnz);
  ccs_free(A);
  return nullptr;
}

template CcsMatrix* create<double>(std::int32_t, std::int32_t, std::int32_t) noexcept;
template CcsMatrix* create<std::complex<double>>(std::int32_t, std::int32_t, std::int32_t) noexcept;

CcsMatrix* ccs_create(std::int32_t m, std::int32_t n, std::int32_t nnz, std::int32_t flags) noexcept {
  CcsMatrix* A = nullptr;
  if ((flags & kDcomplex) != 0) {
    A = create<std::complex<double>>(m, n, nnz);
  } else if ((flags & kDouble) != 0) {
    A = create<double>(m, n, nnz);
  } else {
    print("taucs_ccs_create: no data type specifiedy\n");
  }
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
