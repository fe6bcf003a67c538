// Small triangles times, or dividing, many vectors at once: the vectors stand across the lanes, so that the triangle's
// elements are broadcast and every lane does the same.
#pragma once

#include "dense/kernels/target/packing.hpp"

namespace quorin::dense::kernels::target {

// The triangle's element (p, q). Without a choice, which could keep the compiler from fusing a multiplication before it
// with an addition behind it.
template <class Isa, Scalar T>
[[gnu::always_inline]] inline T element_of(const TriangleBlock<T>& block, RealOf<T> sign, int p, int q) noexcept {
  const T& stored = block.triangle[p * block.row_step + q * block.column_step];
  if constexpr (kIsComplex<T>) {
    return T(stored.real(), sign * stored.imag());
  } else {
    return stored;
  }
}

// Reciprocals of the diagonal, where one neither overflows nor loses digits; elsewhere each quotient is made by itself.
template <class Isa, Scalar T>
struct Pivots {
  using Real = RealOf<T>;
  T reciprocals[kTriangleOrder];
  std::uint32_t have_reciprocal = 0;  // a bit for each

  explicit Pivots(const TriangleBlock<T>& block) noexcept {
    constexpr Real kLargest = static_cast<Real>(sizeof(Real) == 4 ? 0x1p60 : 0x1p500);
    static_assert(kTriangleOrder == 32);
    if (block.has_unit_diagonal) return;
    const Real sign = block.is_conjugated ? Real{-1} : Real{1};
    for (int p = 0; p < block.order; ++p) {
      const T pivot = element_of<Isa>(block, sign, p, p);
      const Real size = std::max(std::abs(std::real(pivot)), std::abs(std::imag(pivot)));
      if (!(size >= 1 / kLargest && size <= kLargest)) continue;
      have_reciprocal |= std::uint32_t{1} << p;
      if constexpr (kIsComplex<T>) {
        Real square = pivot.imag() * pivot.imag();
        pin(square);  // the same bits for every set that fuses
        square += pivot.real() * pivot.real();
        reciprocals[p] = T(pivot.real() / square, -pivot.imag() / square);
      } else {
        reciprocals[p] = 1 / pivot;
      }
    }
  }
};

// `kVectors` vectors of lanes: element p of all of them at x + p * kStep, and for complex numbers i times that behind.
template <class Isa, Scalar T, int kVectors, class Set = Isa>
struct LaneBlock {
  using Real = RealOf<T>;
  using V = Vector<Isa, Real>;
  static constexpr int kParts = kIsComplex<T> ? 2 : 1, kWidth = kLanes<Isa, Real>;
  static constexpr int kReals = kVectors * kWidth, kVectorsOfT = kReals / kParts, kStep = kParts * kReals;
  static constexpr auto kLaneNumbers = std::make_integer_sequence<int, kWidth>{};
  const TriangleBlock<T>& block;
  Real* x;
  const Pivots<Set, T>* pivots;                          // of a triangle that divides
  Real sign = block.is_conjugated ? Real{-1} : Real{1};  // of imaginary parts

  T element(int p, int q) const noexcept { return element_of<Isa>(block, sign, p, q); }

  static V times_i(V z) noexcept {
    return swapped_parts<Isa, Real>(z, kLaneNumbers) * alternating<Isa>(Real{-1}, Real{1}, kLaneNumbers);
  }

  void put(int p, const V (&value)[kVectors]) const noexcept {
#pragma GCC unroll 8
    for (int v = 0; v < kVectors; ++v) {
      Real* const to = x + p * kStep + v * kWidth;
      store<Isa>(to, value[v]);
      if constexpr (kIsComplex<T>) store<Isa>(to + kReals, times_i(value[v]));
    }
  }

  // value <- value + t x_p, or value - t x_p
  template <bool kSubtracts>
  [[gnu::always_inline]] void add_multiple(T t, int p, V (&value)[kVectors]) const noexcept {
    const Real* const from = x + p * kStep;
    const auto add = [&value](int v, V product) __attribute__((always_inline)) {
      value[v] = kSubtracts ? value[v] - product : value[v] + product;
    };
    const V re = all<Isa>(std::real(t));
#pragma GCC unroll 8
    for (int v = 0; v < kVectors; ++v) add(v, re * load<Isa>(from + v * kWidth));
    if constexpr (kIsComplex<T>) {
      const V im = all<Isa>(t.imag());
#pragma GCC unroll 8
      for (int v = 0; v < kVectors; ++v) add(v, im * load<Isa>(from + kReals + v * kWidth));
    }
  }

  void get(int p, V (&value)[kVectors]) const noexcept {
#pragma GCC unroll 8
    for (int v = 0; v < kVectors; ++v) value[v] = load<Isa>(x + p * kStep + v * kWidth);
  }

  void divide(int p, V (&value)[kVectors]) const noexcept {
    if ((pivots->have_reciprocal >> p & 1) != 0) {
      const T reciprocal = pivots->reciprocals[p];
      const V re = all<Isa>(std::real(reciprocal));
#pragma GCC unroll 8
      for (V& vector : value) {
        if constexpr (kIsComplex<T>) {
          V straight = re * vector;
          pin(straight);
          vector = straight + reciprocal.imag() * times_i(vector);
        } else {
          vector *= re;
        }
      }
      return;
    }
    put(p, value);
    const T pivot = element(p, p);
    T* const numbers = reinterpret_cast<T*>(x + p * kStep);
    for (int j = 0; j < kVectorsOfT; ++j) numbers[j] /= pivot;
    get(p, value);
  }

  // The rows that are made at once, so that sums hide each other's latency.
  static constexpr int kRows = kVectors == 1 ? 4 : kVectors <= 3 ? 2 : 1;
  template <int kCount>
  using Values = V[kCount][kVectors];

  // Each row of `values` gets its multiples of the x_q before element p, in order.
  template <int kCount, bool kSubtracts>
  [[gnu::always_inline]] void add_products(int p, Values<kCount>& values) const noexcept {
    for (int q = 0; q < p; ++q) {
#pragma GCC unroll 4
      for (int row = 0; row < kCount; ++row) add_multiple<kSubtracts>(element(p + row, q), q, values[row]);
    }
  }

  template <int kCount>
  void solve_rows(int p) const noexcept {
    Values<kCount> values;
#pragma GCC unroll 4
    for (int row = 0; row < kCount; ++row) get(p + row, values[row]);
    add_products<kCount, true>(p, values);
#pragma GCC unroll 4
    for (int row = 0; row < kCount; ++row) {
#pragma GCC unroll 4
      for (int k = 0; k < row; ++k) add_multiple<true>(element(p + row, p + k), p + k, values[row]);
      if (!block.has_unit_diagonal) divide(p + row, values[row]);
      put(p + row, values[row]);
    }
  }

  void solve() const noexcept {
    int p = 0;
    for (; p + kRows <= block.order; p += kRows) solve_rows<kRows>(p);
    for (; p < block.order; ++p) solve_rows<1>(p);
  }

  template <int kCount>
  void multiply_rows(int p) const noexcept {
    Values<kCount> values = {};
#pragma GCC unroll 4
    for (int row = 0; row < kCount; ++row) {
      if (block.has_unit_diagonal) {
        get(p + row, values[row]);
      } else {
        add_multiple<false>(element(p + row, p + row), p + row, values[row]);
      }
    }
    add_products<kCount, false>(p, values);
#pragma GCC unroll 4
    for (int row = 1; row < kCount; ++row) {
#pragma GCC unroll 4
      for (int k = 0; k < row; ++k) add_multiple<false>(element(p + row, p + k), p + k, values[row]);
    }
#pragma GCC unroll 4
    for (int row = 0; row < kCount; ++row) put(p + row, values[row]);
  }

  void multiply() const noexcept {
    if constexpr (kIsComplex<T>) {
      for (int p = 0; p < block.order; ++p) {
        V value[kVectors];
        get(p, value);
        put(p, value);
      }
    }
    int p = block.order;
    for (; p >= kRows; p -= kRows) multiply_rows<kRows>(p - kRows);
    for (; p > 0; --p) multiply_rows<1>(p - 1);
  }

  // Vectors first.. to their lanes or back; the lanes beyond `count` hold zeros.
  void exchange(int first, int count, bool is_result) const noexcept {
    if (block.vector_step == 1 && count == kVectorsOfT) {
      for (int p = 0; p < block.order; ++p) {
        Real* const outside = reinterpret_cast<Real*>(block.x + p * block.x_step + first);
        Real* const inside = x + p * kStep;
#pragma GCC unroll 8
        for (int v = 0; v < kReals; v += kWidth) {
          if (is_result) {
            store<Isa>(outside + v, load<Isa>(inside + v));
          } else {
            store<Isa>(inside + v, load<Isa>(outside + v));
          }
        }
      }
      return;
    }
    // Steps upwards in memory, for which there are fast copies. A single-complex number moves as one double.
    using Unit = std::conditional_t<std::is_same_v<T, std::complex<float>>, double, Real>;
    constexpr int kUnits = kIsComplex<T> && std::is_same_v<Unit, Real> ? 2 : 1;
    constexpr std::ptrdiff_t kInside =
        kStep * static_cast<std::ptrdiff_t>(sizeof(Real)) / static_cast<int>(sizeof(Unit));
    const bool is_reversed = block.x_step < 0;
    const std::ptrdiff_t last = is_reversed ? block.order - 1 : 0, direction = is_reversed ? -1 : 1;
    Unit* const outside = reinterpret_cast<Unit*>(block.x + last * block.x_step + first * block.vector_step);
    Unit* const inside = reinterpret_cast<Unit*>(x) + last * kInside;
    for (int part = 0; part < kUnits; ++part) {  // real and imaginary parts one after the other, if T is two units
      const std::ptrdiff_t outer = kUnits * direction * block.x_step, across = kUnits * block.vector_step;
      if (is_result) {
        const Source<Unit> lanes{inside + part, kUnits, direction * kInside, false};
        copy_rectangle<Isa, false>(lanes, count, block.order, Unit{1}, outside + part, across, outer);
      } else {
        const Source<Unit> vectors{outside + part, across, outer, false};
        copy_rectangle<Isa, false>(vectors, count, block.order, Unit{1}, inside + part, kUnits, direction * kInside);
      }
    }
    if (is_result || count == kVectorsOfT) return;
    for (int p = 0; p < block.order; ++p) {
      T* const numbers = reinterpret_cast<T*>(x + p * kStep);
      for (int j = count; j < kVectorsOfT; ++j) numbers[j] = T{};
    }
  }

  // Works on vectors from `first` on while as many are left as there are lanes, or until none are left.
  template <bool kSolves>
  int run(int first, bool to_the_end) const noexcept {
    while (to_the_end ? first < block.count : first + kVectorsOfT <= block.count) {
      const int count = std::min(kVectorsOfT, block.count - first);
      exchange(first, count, false);
      if constexpr (kSolves) {
        solve();
      } else {
        multiply();
      }
      exchange(first, count, true);
      first += count;
    }
    return first;
  }
};

// At most two vectors of lanes, which need not be wide if that leaves fewer lanes empty.
template <class Isa, Scalar T, bool kSolves, class Set>
void run_few(const TriangleBlock<T>& block, RealOf<T>* x, const Pivots<Set, T>* pivots, int first) noexcept {
  constexpr int kLanesOfT = LaneBlock<Isa, T, 1>::kVectorsOfT;
  const int rest = block.count - first;
  if constexpr (kHasNarrower<Isa>) {
    using Narrower = typename Isa::Narrower;
    if (2 * rest <= kLanesOfT) return run_few<Narrower, T, kSolves>(block, x, pivots, first);
    if (2 * rest <= 3 * kLanesOfT && rest > kLanesOfT) {
      LaneBlock<Narrower, T, 3, Set>{block, x, pivots}.template run<kSolves>(first, true);
      return;
    }
  }
  if (rest > kLanesOfT) {
    LaneBlock<Isa, T, 2, Set>{block, x, pivots}.template run<kSolves>(first, true);
  } else {
    LaneBlock<Isa, T, 1, Set>{block, x, pivots}.template run<kSolves>(first, true);
  }
}

template <class Isa, Scalar T, bool kSolves>
void run_lanes(const TriangleBlock<T>& block, RealOf<T>* x, const Pivots<Isa, T>* pivots) noexcept {
  constexpr int kMost = 6, kLanesOfT = LaneBlock<Isa, T, 1>::kVectorsOfT;
  const int first = LaneBlock<Isa, T, kMost>{block, x, pivots}.template run<kSolves>(0, false);
  const int rest = block.count - first;
  if (rest > 5 * kLanesOfT) {
    LaneBlock<Isa, T, kMost>{block, x, pivots}.template run<kSolves>(first, true);
  } else if (rest > 4 * kLanesOfT) {
    LaneBlock<Isa, T, 5>{block, x, pivots}.template run<kSolves>(first, true);
  } else if (rest > 3 * kLanesOfT) {
    LaneBlock<Isa, T, 4>{block, x, pivots}.template run<kSolves>(first, true);
  } else if (rest > 2 * kLanesOfT) {
    LaneBlock<Isa, T, 3>{block, x, pivots}.template run<kSolves>(first, true);
  } else if (rest > 0) {
    run_few<Isa, T, kSolves>(block, x, pivots, first);
  }
}

template <class Isa, Scalar T, bool kSolves>
void run_triangle(const TriangleBlock<T>& block, std::byte* buffer) noexcept {
  auto* const x = reinterpret_cast<RealOf<T>*>(buffer);
  if constexpr (kSolves) {
    const Pivots<Isa, T> pivots(block);
    run_lanes<Isa, T, true>(block, x, &pivots);
  } else {
    run_lanes<Isa, T, false>(block, x, static_cast<const Pivots<Isa, T>*>(nullptr));
  }
}

}  // namespace quorin::dense::kernels::target
