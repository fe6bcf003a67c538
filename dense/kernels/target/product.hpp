// The product of two matrices on one thread: columns of C in blocks, terms in blocks (B is packed), rows in panels (A
// is packed, and stays in the first cache while the columns of B stream past it), tiles.
#pragma once

#include "dense/kernels/target/packing.hpp"

namespace quorin::dense::kernels::target {

template <class Isa, Scalar T>
struct Tiles {
  using Real = RealOf<T>;
  static constexpr int kParts = kIsComplex<T> ? 2 : 1;  // reals in an element
  static constexpr int kWidth = kLanes<Isa, Real>;
  static constexpr int kMostRows = Isa::kTileVectors * kWidth / kParts;
  static constexpr int kMostTile = 7 * kWidth;  // reals, whatever its shape
};

// Where row i and column j of the result stand in C.
template <class Isa, Scalar T>
T* place(const Product<T>& p, int i, int j) noexcept {
  if (p.row_place == nullptr) return p.c + i + j * p.ldc;
  return p.c + p.row_place[i] + p.column_place[j] * p.ldc;
}

// Whether rows or columns first, ..., first + count - 1, count > 0, follow each other in C.
template <class Isa>
bool are_adjacent(const int* places, int first, int count) noexcept {
  return places == nullptr || places[first + count - 1] - places[first] == count - 1;
}

// The same as put for `count` elements of kParts reals that belong to the given rows of a column.
template <class Isa, int kParts, class Real>
[[gnu::always_inline]] inline void scatter(const Real* from, int count, bool adds, const int* rows,
                                           Real* column) noexcept {
  const auto move = [&](bool is_sum) __attribute__((always_inline)) {
    for (int i = 0; i < count; ++i) {
      Real* const to = column + std::ptrdiff_t{kParts} * rows[i];
      for (int part = 0; part < kParts; ++part) to[part] = (is_sum ? to[part] : 0) + from[kParts * i + part];
    }
  };
  if (adds) {
    move(true);
  } else {
    move(false);
  }
}

// How many vectors the next panel has if `vectors` are left: shapes that keep many sums going.
template <class Isa>
constexpr int panel_vectors(int vectors) noexcept {
  if (vectors >= Isa::kTileVectors) return Isa::kTileVectors;
  return Isa::kFusesProducts && (vectors == 4 || vectors == 5) ? 3 : vectors;
}

// Where the tiles of one panel of rows find their factors.
template <class Isa, Scalar T>
struct Panel {
  using Real = RealOf<T>;
  int first_row, rows, vectors;
  const Real* a;
  std::ptrdiff_t a_step;
  int terms;  // real ones
};
template <Scalar T>
struct BlockOfB {
  using Real = RealOf<T>;
  const Real* data;
  std::ptrdiff_t term_step, column_step;
  int sliver;  // columns that stand side by side in the packed block, 1 for none
  int first_column, columns;
};

// The vectors of a panel that hold wanted rows of one column.
template <class Isa, Scalar T>
Panel<Isa, T> wanted_vectors(const Product<T>& p, Panel<Isa, T> panel, int column) noexcept {
  constexpr int kRows = Tiles<Isa, T>::kWidth / Tiles<Isa, T>::kParts;
  if (p.part == Part::kLower && column > panel.first_row) {
    const int skipped = (column - panel.first_row) / kRows;
    panel.a += skipped * Tiles<Isa, T>::kWidth;
    panel.first_row += skipped * kRows;
    panel.rows -= skipped * kRows;
    panel.vectors -= skipped;
  }
  if (p.part == Part::kUpper) {
    panel.rows = std::min(panel.rows, column + 1 - panel.first_row);
    panel.vectors = (panel.rows + kRows - 1) / kRows;
  }
  return panel;
}

// Where the rows of a panel stand in a column of C, if they do not follow each other: windows, each as long as a
// vector, that have all of them, and which lane of the panel's vector goes to which lane of a window. Lanes that no row
// goes to get -0, with which every number stays as it is. Only sets with instructions that permute lanes have a use for
// it.
template <class Isa, Scalar T>
class Windows {
 public:
  using Real = RealOf<T>;

  // Of p's rows. Nothing is found where rows are so far from each other that there would be too many windows, or where
  // a window would not fit between the first row of C and the last one of p.
  void find(const Product<T>& p, const Panel<Isa, T>& panel) noexcept {
    count_ = 0;
    if constexpr (!Isa::kFusesProducts) return;
    const int last = p.row_place[p.first_row + p.rows - 1] + 1 - kRows;
    if (last < 0) return;
    const int* const places = p.row_place + panel.first_row;
    for (int row = 0; row < panel.rows; ++count_) {
      if (count_ == kMost) {
        count_ = 0;
        return;
      }
      const int vector = row / kRows, end = std::min(panel.rows, (vector + 1) * kRows);
      const int start = std::min(places[row], last);
      Window& window = windows_[count_];
      window.from = vector * kWidth;
      window.to = std::ptrdiff_t{kParts} * start;
      window.words = Words{} - 1;
      for (; row < end && places[row] < start + kRows; ++row) {
        const int to = kRowWords * (places[row] - start), from = kRowWords * (row % kRows);
        for (int k = 0; k < kRowWords; ++k) window.words[to + k] = from + k;
      }
    }
  }
  bool are_found() const noexcept { return count_ > 0; }

  void fetch(const Real* column) const noexcept {
    for (int i = 0; i < count_; ++i) __builtin_prefetch(column + windows_[i].to, 1);
  }
  // Adds the rows of one column of a tile to a column of C.
  void add(const Real* rows, Real* column) const noexcept {
    for (int i = 0; i < count_; ++i) {
      const Window& window = windows_[i];
      const auto sums = reinterpret_cast<Words>(load<Isa>(rows + window.from));
      const auto nothing = reinterpret_cast<Words>(-Vector<Isa, Real>{});
      const Words words = window.words < 0 ? nothing : permuted(sums, window.words);
      Real* const to = column + window.to;
      store<Isa, Real>(to, load<Isa>(to) + reinterpret_cast<Vector<Isa, Real>>(words));
    }
  }

 private:
  static constexpr int kParts = Tiles<Isa, T>::kParts, kWidth = Tiles<Isa, T>::kWidth, kRows = kWidth / kParts;
  // With more of them, windows that overlap would wait for each other.
  static constexpr int kMost = Isa::kTileVectors == 1 ? kWidth / 2 + 1 : Isa::kTileVectors * 3 / 2;
  using Words = Vector<Isa, std::int32_t>;
  static constexpr int kRowWords = static_cast<int>(sizeof(T) / sizeof(std::int32_t));

  // from: the vector's first real in the panel; to: the window's in a column of C; words: -1 for none.
  struct Window {
    int from;
    std::ptrdiff_t to;
    Words words;
  };

  static Words permuted(Words x, Words order) noexcept {
#if defined(__clang__)  // which reads this file for analysis alone
    Words result = x;
    for (int i = 0; i < kLanes<Isa, std::int32_t>; ++i) result[i] = x[order[i] & (kLanes<Isa, std::int32_t> - 1)];
    return result;
#else
    return __builtin_shuffle(x, order);
#endif
  }

  int count_ = 0;
  Window windows_[kMost];
};

// A tile of wanted rows whose places have been found, and whose columns may stand anywhere.
template <class Isa, Scalar T>
void add_tile_in_windows(const Product<T>& p, const Panel<Isa, T>& panel, const Windows<Isa, T>& windows,
                         const TileRow<RealOf<T>>& row, int column, int columns) noexcept {
  using Real = RealOf<T>;
  alignas(64) Real copy[Tiles<Isa, T>::kMostTile];
  const int height = panel.vectors * kLanes<Isa, Real>;
  const auto c = [&](int j) { return reinterpret_cast<Real*>(p.c + p.column_place[column + j] * p.ldc); };
  for (int j = 0; j < columns; ++j) windows.fetch(c(j));
  tile_kernel<Isa, Real>(panel.vectors, columns)({row.k, panel.a, row.a_step, row.b, row.b_step, row.b_column, 0,
                                                  row.alpha, false, copy, height, kLanes<Isa, Real>},
                                                 1);
  for (int j = 0; j < columns; ++j) {
    windows.add(copy + j * height, c(j));
  }
}

// A tile of which only some rows of each column are wanted, by way of a copy.
template <class Isa, Scalar T>
void make_part_of_tile(const Product<T>& p, const Panel<Isa, T>& whole, const TileRow<RealOf<T>>& row, int column,
                       int columns) noexcept {
  using Real = RealOf<T>;
  constexpr int kParts = Tiles<Isa, T>::kParts;
  const Panel<Isa, T> panel = columns == 1 ? wanted_vectors(p, whole, column) : whole;
  TileKernel<Real>* const kernel = tile_kernel<Isa, Real>(panel.vectors, columns);
  alignas(64) Real copy[Tiles<Isa, T>::kMostTile];
  const int height = panel.vectors * kLanes<Isa, Real>;
  kernel({row.k, panel.a, row.a_step, row.b, row.b_step, row.b_column, 0, row.alpha, false, copy, height,
          kLanes<Isa, Real>},
         1);
  for (int j = 0; j < columns; ++j) {
    int first = panel.first_row, end = panel.first_row + panel.rows;
    if (p.part == Part::kLower) first = std::max(first, column + j);
    if (p.part == Part::kUpper) end = std::min(end, column + j + 1);
    if (first >= end) continue;
    const Real* const made = copy + j * height + kParts * (first - panel.first_row);
    if (are_adjacent<Isa>(p.row_place, first, end - first)) {
      put<Isa>(made, kParts * (end - first), row.adds, reinterpret_cast<Real*>(place<Isa>(p, first, column + j)));
    } else {
      Real* const c = reinterpret_cast<Real*>(p.c + p.column_place[column + j] * p.ldc);
      scatter<Isa, kParts>(made, end - first, row.adds, p.row_place + first, c);
    }
  }
}

template <class Isa, Scalar T>
void make_tiles(const Product<T>& p, const Panel<Isa, T>& panel, const BlockOfB<T>& block, RealOf<T> alpha,
                bool adds) noexcept {
  using Real = RealOf<T>;
  constexpr int kParts = Tiles<Isa, T>::kParts;
  const int last_row = panel.first_row + panel.rows - 1;
  const bool is_adjacent = are_adjacent<Isa>(p.row_place, panel.first_row, panel.rows);
  const int most = block.sliver > 1 ? block.sliver : tile_columns<Isa>(panel.vectors);
  const bool has_slivers = block.sliver > 1;
  TileRow<Real> row{panel.terms,
                    panel.a,
                    panel.a_step,
                    block.data,
                    block.term_step,
                    block.column_step,
                    has_slivers ? std::ptrdiff_t{most} * panel.terms : most * block.column_step,
                    alpha,
                    adds,
                    nullptr,
                    kParts * p.ldc,
                    kParts * panel.rows - (panel.vectors - 1) * Tiles<Isa, T>::kWidth};
  Windows<Isa, T> windows;
  if (p.row_place != nullptr && adds &&
      (!is_adjacent || !are_adjacent<Isa>(p.column_place, block.first_column, block.columns))) {
    windows.find(p, panel);
  }
  for (int j = 0, count = 0; j < block.columns; j += count) {
    count = std::min(most, block.columns - j);
    const int column = block.first_column + j;
    if (p.part == Part::kLower && column > last_row) break;
    if (p.part == Part::kUpper && column + count <= panel.first_row) continue;
    if (has_slivers) {
      row.b = block.data + std::ptrdiff_t{j} * panel.terms;
      row.b_step = count;
      row.b_column = 1;
    } else {
      row.b = block.data + j * block.column_step;
    }
    const bool is_inside =
        p.part == Part::kAll || (p.part == Part::kLower ? column + count - 1 <= panel.first_row : column >= last_row);
    int tiles = 0;
    if (is_inside && is_adjacent) {
      // The tiles of this shape from here on that are inside, too, and whose columns follow each other.
      const int columns =
          p.part == Part::kLower ? std::min(block.columns - j, panel.first_row - column + 1) : block.columns - j;
      tiles = p.column_place == nullptr ? columns / count : 0;
      while (tiles < columns / count && are_adjacent<Isa>(p.column_place, column, (tiles + 1) * count)) ++tiles;
    }
    if (tiles > 0) {
      TileKernel<Real>* const kernel = tile_kernel<Isa, Real>(panel.vectors, count);
      row.c = reinterpret_cast<Real*>(place<Isa>(p, panel.first_row, column));
      kernel(row, tiles);
      count *= tiles;
    } else if (is_inside && windows.are_found()) {
      add_tile_in_windows<Isa>(p, panel, windows, row, column, count);
    } else {
      make_part_of_tile<Isa>(p, panel, row, column, count);
    }
  }
}

// The rows from `i` on, for a block of columns and of terms l, l + 1, ...
template <class Isa, Scalar T>
void make_panels(const Product<T>& p, int i, int l, int terms, bool reads_a_directly, RealOf<T>* memory,
                 const BlockOfB<T>& block, RealOf<T> alpha, bool adds) noexcept {
  using Real = RealOf<T>;
  constexpr int kParts = Tiles<Isa, T>::kParts, kWidth = Tiles<Isa, T>::kWidth;
  const int end_row = p.first_row + p.rows;
  for (int rows = 0; i < end_row; i += rows) {
    const int reals = kParts * (end_row - i);
    int part = reals % kWidth == 0 ? 0 : 1;  // of a vector
    if constexpr (kHasNarrower<Isa>) {
      using Narrower = typename Isa::Narrower;
      if (reals < kWidth) return make_panels<Narrower>(p, i, l, terms, reads_a_directly, memory, block, alpha, adds);
      if (reals % kLanes<Narrowest<Isa>, Real> == 0) part = 0;  // narrower vectors will be whole
    }
    const int vectors = panel_vectors<Isa>(reals / kWidth + part);
    rows = std::min(end_row - i, vectors * kWidth / kParts);
    if (p.part == Part::kLower && i + rows <= block.first_column) continue;
    if (p.part == Part::kUpper && i >= block.first_column + block.columns) break;
    Panel<Isa, T> panel{i, rows, vectors, memory, std::ptrdiff_t{vectors} * kWidth, kParts * terms};
    const bool has_whole_vectors = kParts * rows == vectors * kWidth;
    if (reads_a_directly && has_whole_vectors) {
      panel.a = reinterpret_cast<const Real*>(p.a.data + i + l * p.a.column_step);
      panel.a_step = p.a.column_step;
    } else {
      const PanelOfA<Isa, T> target{memory, vectors * kWidth};
      pack<Isa, true>(p.a, i, rows, l, terms, target);
      if (!has_whole_vectors) target.put_zeros(rows, terms);
    }
    make_tiles<Isa>(p, panel, block, alpha, adds);
  }
}

// C <- beta C in the part that is made.
template <class Isa, Scalar T>
void scale(const Product<T>& p) noexcept {
  for (int j = p.first_column; j < p.first_column + p.columns; ++j) {
    int first = p.first_row, end = p.first_row + p.rows;
    if (p.part == Part::kLower) first = std::max(first, j);
    if (p.part == Part::kUpper) end = std::min(end, j + 1);
    for (int i = first; i < end; ++i) {
      T& c = *place<Isa>(p, i, j);
      c = p.beta == T{} ? T{} : plain_product<Isa>(p.beta, c);
    }
  }
}

template <class Isa, Scalar T>
void multiply(const Product<T>& p, const Blocking& blocking, std::byte* buffer) noexcept {
  using Real = RealOf<T>;
  constexpr int kParts = Tiles<Isa, T>::kParts, kWidth = Tiles<Isa, T>::kWidth;
  const T one{1};
  if (p.rows <= 0 || p.columns <= 0) return;
  const bool is_scaling_only = p.alpha == T{} || p.k == 0;
  if (p.beta != one && (is_scaling_only || p.beta != T{})) scale<Isa>(p);
  if (is_scaling_only) return;

  // Where op(A) is A, alpha multiplies B as in the published routine, else the sums; 1 and -1 are the same either way.
  const bool is_sign = p.alpha == one || p.alpha == -one;
  const bool scales_sums = is_sign || (!kIsComplex<T> && p.a.row_step != 1);
  const Real alpha = scales_sums ? std::real(p.alpha) : Real{1};
  const T factor = scales_sums ? one : p.alpha;

  // Small factors are read where they are, if they are there as packing would make them.
  constexpr int kFewColumns = 8 * tile_columns<Isa>(1), kFewRows = 4 * Isa::kBytes;
  constexpr std::ptrdiff_t kSmall = 1 << 14;
  const bool is_small_b = std::ptrdiff_t{p.k} * p.columns <= kSmall && p.rows <= kFewRows;
  const bool direct_a = !kIsComplex<T> && p.a.structure == Structure::kGeneral && p.a.row_step == 1 &&
                        std::ptrdiff_t{p.k} * p.rows <= kSmall && p.columns <= kFewColumns;
  const bool direct_b = factor == one && p.b.structure == Structure::kGeneral && !p.b.is_conjugated &&
                        (!kIsComplex<T> || p.b.row_step == 1) && is_small_b;

  int depth = p.k;  // at most blocking.depth
  if (depth > blocking.depth) {
    const int depth_blocks = (p.k + blocking.depth - 1) / blocking.depth;
    depth = (p.k + depth_blocks - 1) / depth_blocks;
  }
  Real* const panel_memory = reinterpret_cast<Real*>(buffer);
  Real* const block_memory = panel_memory + std::ptrdiff_t{depth} * kParts * Isa::kTileVectors * kWidth;

  const int end_column = p.first_column + p.columns;
  for (int j = p.first_column, columns = 0; j < end_column; j += columns) {
    columns = std::min(blocking.columns, end_column - j);
    bool adds = p.beta != T{};
    for (int l = 0, terms = 0; l < p.k; l += terms, adds = true) {
      terms = std::min(depth, p.k - l);
      BlockOfB<T> block{nullptr, 1, 1, 1, j, columns};
      if (direct_b) {
        block.data = reinterpret_cast<const Real*>(p.b.data + l * p.b.row_step + j * p.b.column_step);
        block.term_step = kIsComplex<T> ? 1 : p.b.row_step;
        block.column_step = kParts * p.b.column_step;
      } else {
        block.data = block_memory;
        if constexpr (Isa::kTileColumns == 1) {
          const int aligned_terms = (terms + 3) / 4 * 4;  // so that columns begin at multiples of SSE2's width
          block.column_step = std::ptrdiff_t{aligned_terms} * kParts;
          pack<Isa, false>(p.b, j, columns, l, terms, SliverOfB<Isa, T>{block_memory, 1, aligned_terms, factor});
        } else {
          block.column_step = std::ptrdiff_t{terms} * kParts;
          block.sliver = Isa::kTileColumns;
          for (int s = 0; s < columns; s += Isa::kTileColumns) {
            const int width = std::min(Isa::kTileColumns, columns - s);
            // A sliver of one column is the same in both forms.
            pack<Isa, false>(
                p.b, j + s, width, l, terms,
                SliverOfB<Isa, T>{block_memory + std::ptrdiff_t{s} * terms * kParts, width, terms, factor});
          }
        }
      }
      make_panels<Isa>(p, p.first_row, l, terms, direct_a, panel_memory, block, alpha, adds);
    }
  }
}

}  // namespace quorin::dense::kernels::target
