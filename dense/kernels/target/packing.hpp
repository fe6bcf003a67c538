// Copies blocks of the factors of a product to where, and as, the micro-kernel reads them.
//
// Complex products are real ones: an interleaved complex column of C is a real column of twice the length, and a term
// of the sum is two real terms,
//   (re c, im c) += (re a, im a) re b + (-im a, re a) im b,
// so a complex A is packed as these two real columns and B as re b, im b. Source: F. G. Van Zee, Implementing
// high-performance complex matrix multiplication via the 1m method, SIAM J. Sci. Comput. 42 (2020) C221-C244.
#pragma once

#include "dense/kernels/target/micro_kernel.hpp"

namespace quorin::dense::kernels::target {

// A rectangle of a general matrix: element (i, l) is data[i * row_step + l * term_step]. `i` counts rows of A or
// columns of B, `l` the terms of the sums.
template <class T>
struct Source {
  const T* data;
  std::ptrdiff_t step, term_step;
  bool is_conjugated;
};

template <class Isa, Scalar T>
[[gnu::always_inline]] inline T maybe_conjugated(bool conjugated, T x) noexcept {
  if constexpr (kIsComplex<T>) {
    return conjugated ? T(x.real(), -x.imag()) : x;
  } else {
    return x;
  }
}

template <class Isa, Scalar T>
[[gnu::always_inline]] inline T plain_product(T a, T b) noexcept {
  if constexpr (kIsComplex<T>) {
    return T(a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real());
  } else {
    return a * b;
  }
}

// Real and imaginary parts in each other's places, for lanes that are counted by i.
template <class Isa, class Real, int... i>
[[gnu::always_inline]] inline Vector<Isa, Real> swapped_parts(Vector<Isa, Real> z,
                                                              std::integer_sequence<int, i...>) noexcept {
  return __builtin_shufflevector(z, z, (i ^ 1)...);
}

// One number in the places of real parts, another one in those of imaginary ones.
template <class Isa, class Real, int... i>
[[gnu::always_inline]] inline Vector<Isa, Real> alternating(Real re, Real im,
                                                            std::integer_sequence<int, i...>) noexcept {
  return Vector<Isa, Real>{(i % 2 == 0 ? re : im)...};
}

// Four floats or two doubles of kElements matrix rows, and the same transposed.
template <class Isa, class Real>
struct Square {
  static constexpr int kSize = 16 / static_cast<int>(sizeof(Real));
  using Row = Vector<Narrowest<Isa>, Real>;

  [[gnu::always_inline]] static Row get(const Real* from) noexcept { return load<Narrowest<Isa>>(from); }
  [[gnu::always_inline]] static void put(Real* to, Row values) noexcept { store<Narrowest<Isa>, Real>(to, values); }

  // Without kScales nothing is computed: bits are moved, whatever they mean.
  template <bool kScales>
  [[gnu::always_inline]] static void copy_transposed(const Real* from, std::ptrdiff_t from_step, Real* to,
                                                     std::ptrdiff_t to_step, Real factor) noexcept {
    const auto row = [&](int i) __attribute__((always_inline)) {
      const Row values = get(from + i * from_step);
      return kScales ? values * factor : values;
    };
    if constexpr (kSize == 4) {
      const Row r0 = row(0), r1 = row(1), r2 = row(2), r3 = row(3);
      const Row low01 = __builtin_shufflevector(r0, r1, 0, 4, 1, 5),
                high01 = __builtin_shufflevector(r0, r1, 2, 6, 3, 7);
      const Row low23 = __builtin_shufflevector(r2, r3, 0, 4, 1, 5),
                high23 = __builtin_shufflevector(r2, r3, 2, 6, 3, 7);
      put(to, __builtin_shufflevector(low01, low23, 0, 1, 4, 5));
      put(to + to_step, __builtin_shufflevector(low01, low23, 2, 3, 6, 7));
      put(to + 2 * to_step, __builtin_shufflevector(high01, high23, 0, 1, 4, 5));
      put(to + 3 * to_step, __builtin_shufflevector(high01, high23, 2, 3, 6, 7));
    } else {
      const Row r0 = row(0), r1 = row(1);
      put(to, __builtin_shufflevector(r0, r1, 0, 2));
      put(to + to_step, __builtin_shufflevector(r0, r1, 1, 3));
    }
  }
};

// to <- factor * from, or from itself. What stands behind `from` is fetched: a matrix is packed in strips that are cut
// out of its columns, one after the other, and the next strip has no line of memory in common with the columns beside
// it.
template <class Isa, bool kScales, class Real>
[[gnu::always_inline]] inline void copy_run(const Real* from, int count, Real factor, Real* to) noexcept {
  constexpr int kWidth = kLanes<Isa, Real>, kCacheLine = 64 / static_cast<int>(sizeof(Real));
  using Element [[gnu::may_alias, gnu::aligned(4)]] = Real;  // complex numbers of half the size are moved as one
  const auto copy = [&]<class Part>(const Part&, int i) __attribute__((always_inline)) {
    const Vector<Part, Real> values = load<Part>(from + i);
    store<Part, Real>(to + i, kScales ? values * factor : values);
  };
  for (int i = 0; i < count; i += kCacheLine) __builtin_prefetch(from + count + i);
  int i = 0;
  for (; i + kWidth <= count; i += kWidth) copy(Isa{}, i);
  const int rest = count - i;
  if (rest == 0) return;
  // The rest in two registers of half the width, which may overlap.
  const auto copy_rest = [&]<class Part>(const Part& part) __attribute__((always_inline)) {
    constexpr int kLanesOfPart = kLanes<Part, Real>;
    if (rest < kLanesOfPart) return false;
    copy(part, i);
    copy(part, count - kLanesOfPart);
    return true;
  };
  if constexpr (kHasNarrower<Isa>) {
    using Half = typename Isa::Narrower;
    if (copy_rest(Half{})) return;
    if constexpr (kHasNarrower<Half>) {
      if (copy_rest(typename Half::Narrower{})) return;
    }
  }
  const auto* const source = reinterpret_cast<const Element*>(from);
  auto* const target = reinterpret_cast<Element*>(to);
  for (; i < count; ++i) target[i] = kScales ? factor * source[i] : source[i];
}

// to[i * to_step + l * to_term_step] <- factor * source(i, l), or the element itself, for real numbers.
template <class Isa, bool kScales, class Real>
void copy_rectangle(const Source<Real>& from, int count, int terms, Real factor, Real* to, std::ptrdiff_t to_step,
                    std::ptrdiff_t to_term_step) noexcept {
  using Element [[gnu::may_alias, gnu::aligned(4)]] = Real;  // complex numbers of half the size are moved as one
  constexpr int kSize = Square<Isa, Real>::kSize;
  const auto* const source = reinterpret_cast<const Element*>(from.data);
  auto* const target = reinterpret_cast<Element*>(to);
  std::ptrdiff_t outer_from = from.term_step, inner_from = from.step, outer_to = to_term_step, inner_to = to_step;
  int outer = terms, inner = count;
  if (from.step != 1) {
    std::swap(outer_from, inner_from);
    std::swap(outer_to, inner_to);
    std::swap(outer, inner);
  }
  const auto copy = [&](std::ptrdiff_t f, std::ptrdiff_t t) __attribute__((always_inline)) {
    target[t] = kScales ? factor * source[f] : source[f];
  };
  // Columns far from each other are fetched ahead: the processor fetches nothing beyond a page by itself.
  constexpr int kAhead = 4, kFar = 2048 / static_cast<int>(sizeof(Real));
  const bool is_far = outer_from >= kFar;
  const auto fetch = [&](std::ptrdiff_t o) __attribute__((always_inline)) {
    constexpr int kCacheLine = 64 / static_cast<int>(sizeof(Real));
    for (int i = 0; i < inner; i += kCacheLine) __builtin_prefetch(from.data + o * outer_from + i);
  };
  // Now the inner dimension stands together in the source, unless neither does.
  if (inner_from == 1 && inner_to == 1) {
    for (int o = 0; o < outer; ++o) {
      if (is_far) fetch(o + kAhead);
      copy_run<Isa, kScales>(from.data + o * outer_from, inner, factor, to + o * outer_to);
    }
    return;
  }
  int o = 0;
  if (inner_from == 1 && outer_to == 1) {
    for (int k = outer; is_far && k < 2 * outer; ++k) fetch(k);
    while (outer >= kSize && o < outer) {
      o = std::min(o, outer - kSize);  // what is left overlaps what is done
      const std::ptrdiff_t x = o * outer_from;
      int i = 0;
      for (; i + kSize <= inner; i += kSize) {
        Square<Isa, Real>::template copy_transposed<kScales>(from.data + x + i, outer_from, to + o + i * inner_to,
                                                             inner_to, factor);
      }
      for (; i < inner; ++i) {
        for (int k = 0; k < kSize; ++k) copy(x + i + k * outer_from, o + k + i * inner_to);
      }
      o += kSize;
    }
  }
  for (; o < outer; ++o) {
    for (int i = 0; i < inner; ++i) copy(i * inner_from + o * outer_from, i * inner_to + o * outer_to);
  }
}

// A panel of A: `height` reals of rows for each real term, of which the rows beyond `count` are zeros.
template <class Isa, Scalar T>
struct PanelOfA {
  using Real = RealOf<T>;
  Real* out;
  int height;

  void put(const Source<T>& from, int row, int count, int term, int terms) const noexcept {
    if constexpr (!kIsComplex<T>) {
      copy_rectangle<Isa, false>(from, count, terms, Real{1}, out + row + std::ptrdiff_t{term} * height, 1, height);
    } else {
      for (int l = 0; l < terms; ++l) {
        Real* const straight = out + 2 * (row + std::ptrdiff_t{term + l} * height);
        Real* const crossed = straight + height;
        const Real* x = reinterpret_cast<const Real*>(from.data + l * from.term_step);
        const Real sign = from.is_conjugated ? Real{-1} : Real{1};
        int i = 0;
        if (from.step == 1) {
          using Few = Narrowest<Isa>;
          constexpr auto kLaneNumbers = std::make_integer_sequence<int, kLanes<Few, Real>>{};
          for (; 2 * i + kLanes<Few, Real> <= 2 * count; i += kLanes<Few, Real> / 2, x += kLanes<Few, Real>) {
            const auto z = load<Few>(x) * alternating<Few>(Real{1}, sign, kLaneNumbers);
            store<Few, Real>(straight + 2 * i, z);
            store<Few, Real>(crossed + 2 * i, swapped_parts<Few, Real>(z, kLaneNumbers) *
                                                  alternating<Few>(Real{-1}, Real{1}, kLaneNumbers));
          }
        }
        for (; i < count; ++i, x += 2 * from.step) put_complex(T(x[0], sign * x[1]), straight + 2 * i);
      }
    }
  }
  void put_element(T x, int row, int term) const noexcept {
    if constexpr (kIsComplex<T>) {
      put_complex(x, out + 2 * (row + std::ptrdiff_t{term} * height));
    } else {
      out[row + std::ptrdiff_t{term} * height] = x;
    }
  }
  void put_complex(T x, Real* straight) const noexcept {
    Real* const crossed = straight + height;
    straight[0] = x.real();
    straight[1] = x.imag();
    crossed[0] = -x.imag();
    crossed[1] = x.real();
  }
  void put_zeros(int first, int terms) const noexcept {
    constexpr int kParts = kIsComplex<T> ? 2 : 1;
    for (int l = 0; l < kParts * terms; ++l) {
      for (int i = kParts * first; i < height; ++i) out[i + std::ptrdiff_t{l} * height] = 0;
    }
  }
};

// Columns of B for tiles of `width` columns: term by term, the elements of a tile's columns side by side.
template <class Isa, Scalar T>
struct SliverOfB {
  using Real = RealOf<T>;
  Real* out;
  int width;  // of the slivers if more than 1, then one at a time is put
  int depth;  // terms of the whole block
  T factor;

  void put(const Source<T>& from, int column, int count, int term, int terms) const noexcept {
    if constexpr (!kIsComplex<T>) {
      const std::ptrdiff_t step = width == 1 ? depth : 1;
      Real* const first = out + column * step + std::ptrdiff_t{term} * width;
      if (factor == T{1}) {
        copy_rectangle<Isa, false>(from, count, terms, factor, first, step, width);
      } else {
        copy_rectangle<Isa, true>(from, count, terms, factor, first, step, width);
      }
    } else {
      const std::ptrdiff_t step = width == 1 ? 2 * std::ptrdiff_t{depth} : 1, part_step = width;
      Real* const first = out + column * step + 2 * std::ptrdiff_t{term} * width;
      const bool is_scaled = factor != T{1};
      for (int j = 0; j < count; ++j) {
        Real* to = first + j * step;
        const T* x = from.data + j * from.step;
        for (int l = 0; l < terms; ++l, x += from.term_step, to += 2 * part_step) {
          T value = maybe_conjugated<Isa>(from.is_conjugated, *x);
          if (is_scaled) value = plain_product<Isa>(factor, value);
          to[0] = value.real();
          to[part_step] = value.imag();
        }
      }
    }
  }
  void put_element(T x, int column, int term) const noexcept {
    if (factor != T{1}) x = plain_product<Isa>(factor, x);
    if constexpr (kIsComplex<T>) {
      const std::ptrdiff_t step = width == 1 ? 2 * std::ptrdiff_t{depth} : 1;
      Real* const to = out + column * step + 2 * std::ptrdiff_t{term} * width;
      to[0] = x.real();
      to[width] = x.imag();
    } else {
      out[column * (width == 1 ? depth : 1) + std::ptrdiff_t{term} * width] = x;
    }
  }
};

// Element (i, l) of a view whose rows (kRows) or columns the index i counts.
template <class Isa, bool kRows, Scalar T>
Source<T> source_at(const View<T>& view, int i, int l) noexcept {
  const std::ptrdiff_t step = kRows ? view.row_step : view.column_step;
  const std::ptrdiff_t term_step = kRows ? view.column_step : view.row_step;
  return {view.data + i * step + l * term_step, step, term_step, view.is_conjugated};
}

// Puts elements (first.., term..) of a view into `target` (a panel or slivers), whose element (0, 0) is the first.
template <class Isa, bool kRows, Scalar T, class Target>
void pack(const View<T>& view, int first, int count, int term, int terms, const Target& target) noexcept {
  if (view.structure == Structure::kGeneral) {
    return target.put(source_at<Isa, kRows>(view, first, term), 0, count, 0, terms);
  }
  // Terms before and behind the square on the diagonal lie in one triangle each, the stored one or its mirror image.
  View<T> mirrored = view;
  std::swap(mirrored.row_step, mirrored.column_step);
  mirrored.is_conjugated = view.is_hermitian;
  const bool is_row_below_term = (view.structure == Structure::kLower) == kRows;  // where the stored elements are
  const int end = term + terms;
  const int before = std::clamp(first, term, end), behind = std::clamp(first + count, term, end);
  const View<T>& left = is_row_below_term ? view : mirrored;
  const View<T>& right = is_row_below_term ? mirrored : view;
  if (before > term) target.put(source_at<Isa, kRows>(left, first, term), 0, count, 0, before - term);
  if (end > behind) target.put(source_at<Isa, kRows>(right, first, behind), 0, count, behind - term, end - behind);
  for (int l = before; l < behind; ++l) {
    const auto put_rows = [&](const View<T>& triangle, int i, int end_row) __attribute__((always_inline)) {
      const Source<T> from = source_at<Isa, kRows>(triangle, i, l);
      const T* x = from.data;
      for (; i < end_row; ++i, x += from.step) {
        target.put_element(maybe_conjugated<Isa>(from.is_conjugated, *x), i - first, l - term);
      }
    };
    put_rows(right, first, l);
    T value = *source_at<Isa, kRows>(view, l, l).data;
    if constexpr (kIsComplex<T>) {
      if (view.is_hermitian) value = T(value.real(), 0);
    }
    target.put_element(value, l - first, l - term);
    put_rows(left, l + 1, first + count);
  }
}

}  // namespace quorin::dense::kernels::target
