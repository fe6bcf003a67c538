// The innermost loops of all products: tiles of C.
//
// Source: K. Goto, R. A. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008) 12.
#pragma once

#include "dense/kernels/target/vectors.hpp"

namespace quorin::dense::kernels::target {

// Tiles of C beside each other, of the same shape, on the same rows of A: the rows of term l stand together at
// a + l * a_step, its element of column j of the first tile is b[l * b_step + j * b_column].
template <class Real>
struct TileRow {
  int k;  // terms
  const Real* a;
  std::ptrdiff_t a_step;
  const Real* b;
  std::ptrdiff_t b_step, b_column, b_tile;  // b_tile: from one tile to the next
  Real alpha;
  bool adds;
  Real* c;
  std::ptrdiff_t ldc;
  int last;  // of the last vector of each column, the rows that are wanted
};

// C <- alpha A B, or C + alpha A B, for kVectors vectors of rows by kColumns columns. The product with alpha is
// rounded before it is added, in every tile alike, so that an element's bits do not depend on the tile that makes it.
template <class Isa, class Real, int kVectors, int kColumns>
[[gnu::always_inline]] inline void multiply_tile(const TileRow<Real>& row, const Real* b, Real* c) noexcept {
  const Real* a = row.a;
  const std::ptrdiff_t a_step = row.a_step, b_step = row.b_step, b_column = row.b_column, ldc = row.ldc;
  const Real alpha = row.alpha;
  const bool adds = row.adds;
  const int last = row.last;
  int k = row.k;
  using V = Vector<Isa, Real>;
  constexpr int kWidth = kLanes<Isa, Real>;
  constexpr int kCacheLine = 64 / static_cast<int>(sizeof(Real)), kAhead = kColumns + (kColumns == 1 ? 1 : 0);
#pragma GCC unroll 8
  for (int j = 0; j < kColumns; ++j) {
#pragma GCC unroll 8
    for (int i = 0; i < kVectors * kWidth; i += kCacheLine) __builtin_prefetch(c + (j + kAhead) * ldc + i, 1);
  }
  V sums[kColumns][kVectors] = {};
  // Columns of B by three pointers and multiples of one step: 32-bit code has seven registers for addresses.
  // They are in an array, because the compiler may read through both sides of a choice between two pointers.
  const Real* thirds[] = {b, b + 3 * b_column, b + 6 * b_column};
  if constexpr (kColumns > 3) asm("" : "+r"(thirds[1]));
  if constexpr (kColumns > 6) asm("" : "+r"(thirds[2]));
  if constexpr (!Isa::kFusesProducts && kColumns == 1) {
    // A packed column of B lies aligned: a quarter of it is repeated lane by lane.
    if (b_step == 1 && reinterpret_cast<std::uintptr_t>(b) % Isa::kBytes == 0) {
      const auto add_term = [&](V bl) __attribute__((always_inline)) {
#pragma GCC unroll 8
        for (int v = 0; v < kVectors; ++v) add_in_place<Isa, Real>(sums[0][v], load<Isa>(a + v * kWidth) * bl);
        a += a_step;
      };
      for (; k >= kWidth; k -= kWidth, thirds[0] += kWidth) {
        add_term(repeated_lane<Isa, 0>(thirds[0]));
        add_term(repeated_lane<Isa, 1>(thirds[0]));
        if constexpr (kWidth == 4) {
          add_term(repeated_lane<Isa, 2>(thirds[0]));
          add_term(repeated_lane<Isa, 3>(thirds[0]));
        }
      }
    }
  }
  for (; k > 0; --k) {
    V first;  // several columns find the first vector of A in a register
    if constexpr (kVectors == 1 || kColumns > 1) {
      first = load<Isa>(a);
      pin(first);
    }
#pragma GCC unroll 8
    for (int j = 0; j < kColumns; ++j) {
      const V bj = all<Isa>(thirds[j / 3][j % 3 * b_column]);
#pragma GCC unroll 8
      for (int v = 0; v < kVectors; ++v) {
        if constexpr (kVectors == 1 || kColumns > 1) {
          sums[j][v] += (v == 0 ? first : load<Isa>(a + v * kWidth)) * bj;
        } else {
          sums[j][v] += load<Isa>(a + v * kWidth) * bj;
        }
      }
    }
    a += a_step;
    thirds[0] += b_step;
    if constexpr (kColumns > 3) thirds[1] += b_step;
    if constexpr (kColumns > 6) thirds[2] += b_step;
  }
  const bool has_part = last < kWidth;
#pragma GCC unroll 8
  for (int j = 0; j < kColumns; ++j) {
#pragma GCC unroll 8
    for (int v = 0; v < kVectors; ++v) {
      Real* const target = c + j * ldc + v * kWidth;
      V product = alpha * sums[j][v];
      pin(product);
      if (v == kVectors - 1 && has_part) {
        Real part[kWidth];
        store<Isa>(part, product);
        put<Isa>(part, last, adds, target);
      } else {
        store<Isa>(target, adds ? product + load<Isa>(target) : product);
      }
    }
  }
}

template <class Isa, class Real, int kVectors, int kColumns>
void multiply_tiles(const TileRow<Real>& row, int tiles) noexcept {
  const Real* b = row.b;
  Real* c = row.c;
  for (; tiles > 0; --tiles, b += row.b_tile, c += kColumns * row.ldc) {
    multiply_tile<Isa, Real, kVectors, kColumns>(row, b, c);
  }
}

template <class Real>
using TileKernel = void(const TileRow<Real>& row, int tiles) noexcept;

// How many columns a tile of so many vectors has at best: as many independent sums as there are registers for.
template <class Isa>
constexpr int tile_columns(int vectors) noexcept {
  if (vectors == 1) return Isa::kTileVectors == 1 ? Isa::kTileColumns : 6;
  if (!Isa::kFusesProducts) return vectors == 2 ? 2 : 1;  // more would leave no register for a product
  return vectors <= 3 ? 6 / vectors : 1;
}

// The kernel for tiles of `vectors` by `columns`.
template <class Isa, class Real>
TileKernel<Real>* tile_kernel(int vectors, int columns) noexcept {
  constexpr int kMost = 7;
  static constexpr auto kTable = [] {
    struct Table {
      TileKernel<Real>* kernels[kMost + 1][kMost + 1];
    } table{};
    const auto enter = [&table]<int kVectors, int kColumns>() {
      if constexpr (kVectors <= Isa::kSums && kColumns <= tile_columns<Isa>(kVectors)) {
        table.kernels[kVectors][kColumns] = multiply_tiles<Isa, Real, kVectors, kColumns>;
      }
    };
    const auto enter_columns = [&enter]<int kVectors>() {
      enter.template operator()<kVectors, 1>();
      enter.template operator()<kVectors, 2>();
      enter.template operator()<kVectors, 3>();
      enter.template operator()<kVectors, 4>();
      enter.template operator()<kVectors, 5>();
      enter.template operator()<kVectors, 6>();
      enter.template operator()<kVectors, 7>();
    };
    enter_columns.template operator()<1>();
    enter_columns.template operator()<2>();
    enter_columns.template operator()<3>();
    enter_columns.template operator()<4>();
    enter_columns.template operator()<5>();
    enter_columns.template operator()<6>();
    enter_columns.template operator()<7>();
    return table;
  }();
  return kTable.kernels[vectors][columns];
}

}  // namespace quorin::dense::kernels::target
