// The kernels of level 3 as the rest of the library calls them: one table of functions for each scalar type and
// instruction set, of which one is chosen at load (registry.cpp).
#pragma once

#include <cstddef>

#include "base/scalar.hpp"
#include "platform/cpu.hpp"

namespace quorin::dense::kernels {

// Which triangle of a symmetric or Hermitian matrix is stored; a general matrix is stored whole.
enum class Structure : unsigned char { kGeneral, kUpper, kLower };

// How a factor of a product is read: element (i, j) is data[i * row_step + j * column_step], conjugated if so said. Of
// a symmetric or Hermitian matrix only the stored triangle is read, and of a Hermitian one's diagonal only the real
// part.
template <Scalar T>
struct View {
  const T* data;
  std::ptrdiff_t row_step, column_step;
  bool is_conjugated = false;
  Structure structure = Structure::kGeneral;
  bool is_hermitian = false;
};

// Which elements of the result are made: element (i, j) is in the upper part for i <= j, in the lower one for i >= j.
enum class Part : unsigned char { kAll, kUpper, kLower };

// C <- alpha A B + beta C, with k terms in each sum, in the part of C whose rows and columns are named. A is not read
// outside these rows, B not outside these columns. As published: neither A nor B is read for alpha = 0, and C is not
// read for beta = 0.
//
// An element's bits depend on its row of A, its column of B and k, not on the rows and columns that are made with it.
//
// Row i and column j of the result may stand elsewhere in C: in row row_place[i] and column column_place[j], both
// ascending. `part` goes by i and j.
template <Scalar T>
struct Product {
  View<T> a, b;
  int k;
  T alpha, beta;
  T* c;  // element (0, 0)
  std::ptrdiff_t ldc;
  int first_row, rows;
  int first_column, columns;
  Part part = Part::kAll;
  const int* row_place = nullptr;  // both or neither
  const int* column_place = nullptr;
};

// `count` vectors x of `order` elements each, all at once: x <- L x or x <- L^-1 x, with a lower triangle
// L(p, q) = triangle[p * row_step + q * column_step]. Negative steps make an upper triangle of it. Element p of vector
// j is x[p * x_step + j * vector_step]. Zeros beside the triangle take no part: a NaN spreads as far as it must.
template <Scalar T>
struct TriangleBlock {
  int order;  // at most kTriangleOrder
  const T* triangle;
  std::ptrdiff_t row_step, column_step;
  bool is_conjugated, has_unit_diagonal;
  int count;
  T* x;
  std::ptrdiff_t x_step, vector_step;
};
inline constexpr int kTriangleOrder = 32;

// How much of a product is packed at a time: `depth` terms of the sums, and `columns` columns of B.
struct Blocking {
  int depth, columns;
};

// Every kernel works in a buffer of kBufferBytes, aligned to kBufferAlignment, that nobody else uses.
inline constexpr std::size_t kBufferBytes = std::size_t{1} << 20;
inline constexpr std::size_t kBufferAlignment = 64;

template <Scalar T>
struct KernelSet {
  platform::InstructionSet instruction_set;
  bool uses_wide_registers;  // wider than SSE's: whoever ran a kernel then calls leave_wide_registers()
  Blocking blocking;
  // Rows and columns are best cut at multiples of these.
  int tile_rows, tile_columns;
  void (*multiply)(const Product<T>& product, const Blocking& blocking, std::byte* buffer) noexcept;
  void (*multiply_triangle)(const TriangleBlock<T>& block, std::byte* buffer) noexcept;
  void (*solve_triangle)(const TriangleBlock<T>& block, std::byte* buffer) noexcept;
  // y <- y + alpha A x with one triangle of a Hermitian (real: symmetric) A; it needs no buffer.
  void (*add_hermitian_product)(bool is_upper, int n, T alpha, const T* a, int lda, const T* x, T* y) noexcept;
};

// The chosen kernels.
template <Scalar T>
const KernelSet<T>& kernels() noexcept;

// The chosen set for small operations: its kernels work in registers of SSE's width, because leaving wider ones takes
// as long as a small operation does. They make the same bits.
template <Scalar T>
const KernelSet<T>& small_kernels() noexcept;
// The buffer that is enough for them.
inline constexpr int kSmallBufferBytes = 3584;

// How many multiplications an operation for the small kernels has at most, `floats` if they are of real floats.
template <Scalar T>
constexpr double most_small_multiplications(double floats) noexcept {
  return floats * sizeof(float) / sizeof(RealOf<T>) / (kIsComplex<T> ? 4 : 1);
}

// Whether an operation with m by n by k multiplications, k being the terms of its sums, is for the small kernels.
template <Scalar T>
constexpr bool is_small(int m, int n, int k) noexcept {
  constexpr double kPanelBytes = (kIsComplex<T> ? 2 : 1) * 7 * 16;  // for a term
  constexpr int kPadding = 3;                                       // terms that fill up a column of B
  const double bytes = k * kPanelBytes + (k + kPadding) * (n * double{sizeof(T)});
  return static_cast<double>(m) * n * k <= most_small_multiplications<T>(4096) && bytes <= kSmallBufferBytes;
}

// The same for a triangle and `count` vectors.
template <Scalar T>
constexpr bool is_small_triangle(int order, int count) noexcept {
  constexpr int kElementBytes = (kIsComplex<T> ? 2 : 1) * 6 * 16;  // of the vectors that are worked on at once
  return order <= kTriangleOrder && order * kElementBytes <= kSmallBufferBytes &&
         0.5 * count * order * order <= most_small_multiplications<T>(4200);
}

// The kernels of one set, for tests: the processor must have it.
template <Scalar T>
const KernelSet<T>& kernels_of(platform::InstructionSet set) noexcept;

// Gives the registers back to code for SSE. It takes some 100 ns in 32-bit code, and nothing elsewhere.
void leave_wide_registers() noexcept;

// Chooses by the processor, the system and QUORIN_CPU; called at load. The second form is for tests, while nothing
// else runs.
void choose_kernels() noexcept;
void choose_kernels(platform::InstructionSet set) noexcept;

}  // namespace quorin::dense::kernels
