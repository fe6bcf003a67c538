// The compressed-column matrix, and the flags that name its element type and structure.
//
// Hosts read and write the record: its fields, their order and the values of the flags are part of the interface
// (`taucs_ccs_matrix` and `TAUCS_LOWER`, ... in quorin/taucs.h).
#pragma once

#include <algorithm>
#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>

#include "base/workspace.hpp"
#include "generated/taucs_constants.hpp"

namespace quorin::taucs {

using Complex = std::complex<double>;

template <class T>
concept Element = std::same_as<T, double> || std::same_as<T, Complex>;

template <Element T>
inline constexpr std::int32_t kTypeFlag = std::same_as<T, double> ? kDouble : kDcomplex;

// Real numbers in an element; a complex one is laid out as its two parts.
template <Element T>
inline constexpr std::size_t kParts = std::same_as<T, double> ? 1 : 2;

// An m-by-n matrix. Column j has the entries colptr[j], ..., colptr[j+1] - 1 of rowind (zero-based) and values, in any
// order; colptr[0] = 0. A symmetric or Hermitian matrix holds one triangle with its diagonal.
struct CcsMatrix {
  std::int32_t n = 0;  // columns
  std::int32_t m = 0;  // rows
  std::int32_t flags = 0;
  std::int32_t* colptr = nullptr;  // n + 1
  std::int32_t* rowind = nullptr;  // nnz
  union Values {
    void* v;
    double* d;
    Complex* z;
  } values{nullptr};  // nnz

  bool has(std::int32_t flag) const noexcept { return (flags & flag) != 0; }
  bool is_symmetric_or_hermitian() const noexcept { return has(kSymmetric | kHermitian); }

  template <Element T>
  T* elements() const noexcept {
    if constexpr (std::same_as<T, double>) {
      return values.d;
    } else {
      return values.z;
    }
  }
};
static_assert(std::is_standard_layout_v<CcsMatrix> && offsetof(CcsMatrix, colptr) >= 12);
static_assert(sizeof(void*) != 4 || sizeof(CcsMatrix) == 24);

// A matrix with room for nnz entries, its arrays not cleared, and the type's flag alone. Null for a negative size or if
// there is no memory.
template <Element T>
CcsMatrix* create(std::int32_t m, std::int32_t n, std::int32_t nnz) noexcept;

// The same, of the type that `flags` names (complex if both), and with all of these flags; null if they name none.
CcsMatrix* ccs_create(std::int32_t m, std::int32_t n, std::int32_t nnz, std::int32_t flags) noexcept;

// Frees a matrix and its arrays; null does nothing.
void ccs_free(CcsMatrix* A) noexcept;

// Whether there is a matrix, of this element type.
template <Element T>
bool holds(const CcsMatrix* A) {
  return A != nullptr && A->has(kTypeFlag<T>);
}

// An uninitialised array from the library's allocator. An empty one is a block of its own, too: null always means that
// there is no memory.
template <class T>
T* new_array(std::size_t count) {
  return static_cast<T*>(base::allocate(base::saturating_product(std::max<std::size_t>(count, 1), sizeof(T))));
}

// What has not been handed to the caller yet, and is freed unless it is.
struct Release {
  void operator()(CcsMatrix* A) const { ccs_free(A); }
  void operator()(int* array) const { base::release(array); }
};
using OwnedMatrix = std::unique_ptr<CcsMatrix, Release>;
using OwnedIndices = std::unique_ptr<int, Release>;

}  // namespace quorin::taucs
