#include "sparse/numeric/solve.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <complex>
#include <optional>
#include <span>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blocked.hpp"
#include "sparse/numeric/loops.hpp"
#include "sparse/numeric/thread_slots.hpp"
#include "sparse/numeric/two_by_two.hpp"

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(std::int64_t n) noexcept { return static_cast<std::size_t>(n); }

// So many right-hand sides are solved for together at the least, and at the most.
constexpr int kFewestTogether = 4, kMostTogether = 32;
// Triangles of so many columns, and with so many columns and elements what stands below them, are worth a call of the
// dense kernels.
constexpr int kManyColumns = 8, kFewestColumns = 3, kManyProducts = 96;
// The subtrees that go to threads are so many parts of the factor, whatever the number of threads, because their sums
// are added up. Of a small factor there are none.
constexpr int kParts = 16;
constexpr std::int64_t kFewElements = 100'000;

// The triangle of a diagonal block that a solve needs: L or U.
struct Triangle {
  bool is_upper;
  bool has_unit_diagonal;
};

// One vector x with the columns of a block's triangle, several at a time: x <- L^-1 x or U^-1 x.
template <Scalar T>
void solve_by_columns(Triangle triangle, int n, const T* block, std::ptrdiff_t ld, T* x) noexcept {
  const auto a = [&](int i, int j) { return block[i + j * ld]; };
  const auto divide = [&](int k) {
    if (!triangle.has_unit_diagonal) x[k] /= a(k, k);
  };
  constexpr int kGroup = kColumnsAtOnce<T>;
  if (triangle.is_upper) {
    for (int end = n; end > 0; end -= kGroup) {
      const int begin = std::max(0, end - kGroup);
      for (int k = end - 1; k >= begin; --k) {
        divide(k);
        for (int i = begin; i < k; ++i) x[i] -= product(a(i, k), x[k]);
      }
      subtract_multiples(begin, end - begin, x + begin, block + begin * ld, ld, x);
    }
  } else {
    for (int begin = 0; begin < n; begin += kGroup) {
      const int end = std::min(n, begin + kGroup);
      for (int k = begin; k < end; ++k) {
        divide(k);
        for (int i = k + 1; i < end; ++i) x[i] -= product(a(i, k), x[k]);
      }
      subtract_multiples(n - end, end - begin, x + begin, block + end + begin * ld, ld, x + end);
    }
  }
}

// x <- L^-T x or U^-T x.
template <Scalar T>
void solve_by_products(Triangle triangle, int n, const T* block, std::ptrdiff_t ld, T* x) noexcept {
  const auto a = [&](int i, int j) { return block[i + j * ld]; };
  const auto divide = [&](int k) {
    if (!triangle.has_unit_diagonal) x[k] /= a(k, k);
  };
  constexpr int kGroup = kColumnsAtOnce<T>;
  if (triangle.is_upper) {
    for (int begin = 0; begin < n; begin += kGroup) {
      const int end = std::min(n, begin + kGroup);
      subtract_products(begin, end - begin, block + begin * ld, ld, x, x + begin);
      for (int k = begin; k < end; ++k) {
        for (int i = begin; i < k; ++i) x[k] -= product(a(i, k), x[i]);
        divide(k);
      }
    }
  } else {
    for (int end = n; end > 0; end -= kGroup) {
      const int begin = std::max(0, end - kGroup);
      subtract_products(n - end, end - begin, block + end + begin * ld, ld, x + end, x + begin);
      for (int k = end - 1; k >= begin; --k) {
        for (int i = k + 1; i < end; ++i) x[k] -= product(a(i, k), x[i]);
        divide(k);
      }
    }
  }
}

// ---- w vectors whose elements of a row stand side by side: Z = X^T, w x n -------------------------------------------
//
// Products with a part P of a panel, which is much larger than what it multiplies. P is never copied to be transposed:
// either its rows lie across the lanes of a vector, and the sums are transposed, or its elements are broadcast, and P
// is cut into pieces that stay in a cache while all vectors are multiplied by them. How it is cut does not depend on w.

template <class Pointer>
Pointer row(Pointer z, int k, int w) noexcept {
  return z + std::ptrdiff_t{k} * w;
}

// Threads for a product of so many multiplications; a region for less is not worth it.
int threads_for(std::int64_t multiplications, int threads) noexcept {
  constexpr std::int64_t kFewMultiplications = 100'000;
  return multiplications < kFewMultiplications ? 1 : threads;
}

// X_i <- X_i - P X_k: row_of(i) is the i-th of the m rows X_i in Z, and X_k are n rows that follow each other.
// `buffer`: m w.
template <Scalar T, class RowOf>
void subtract_product(int m, int n, const T* P, int ldp, const T* zk, int w, T* buffer, int threads,
                      const RowOf& row_of) noexcept {
  // Rows of a tile of the kernels follow each other in memory, but not its columns: a processor does not foresee those.
  constexpr int kElements = 1 << 14, kFewestRows = 42, kMostRows = 252, kLine = 64 / static_cast<int>(sizeof(T));
  const int rows = std::clamp(kElements / n / kFewestRows * kFewestRows, kFewestRows, kMostRows);
  threads = threads_for(std::int64_t{m} * n * w, threads);
  base::parallel_for((m + rows - 1) / rows, threads, [&](int part) {
    const int first = part * rows, count = std::min(rows, m - first);
    const T* const piece = P + first;
    for (int k = 0; k < n; ++k) {
      for (int i = 0; i < count; i += kLine) __builtin_prefetch(piece + i + std::ptrdiff_t{k} * ldp);
    }
    T* const own = row(buffer, first, w);
    dense::blocked::gemm('N', 'T', w, count, n, T{-1}, zk, w, piece, ldp, T{}, own, w);
    for (int i = 0; i < count; ++i) {
      T *const zi = row_of(first + i), *const sum = row(own, i, w);
      for (int r = 0; r < w; ++r) zi[r] += sum[r];
    }
  });
}

// X_i <- X_i - P^T X_k, where P is m x n, X_k are m rows and X_i n rows.
template <Scalar T>
void subtract_transposed_product(int m, int n, const T* P, int ldp, const T* zk, int w, T* zi, int threads) noexcept {
  constexpr int kTerms = 256, kColumns = 42;
  base::parallel_for((n + kColumns - 1) / kColumns, threads_for(std::int64_t{m} * n * w, threads), [&](int part) {
    const int j = part * kColumns, columns = std::min(kColumns, n - j);
    for (int l = 0; l < m; l += kTerms) {
      const int terms = std::min(kTerms, m - l);
      dense::blocked::gemm('N', 'N', w, columns, terms, T{-1}, row(zk, l, w), w, P + l + std::ptrdiff_t{j} * ldp, ldp,
                           T{1}, row(zi, j, w), w);
    }
  });
}

// X <- op(L)^-1 X or op(U)^-1 X, where op is transposition if so said. `buffer` as above.
template <Scalar T>
void solve_together(Triangle triangle, bool is_transposed, int n, const T* block, std::ptrdiff_t ld, T* z, int w,
                    T* buffer, int threads) noexcept {
  const bool is_ascending = triangle.is_upper == is_transposed;
  if (n < kManyColumns) {
    T factors[kManyColumns];
    for (int step = 0; step < n; ++step) {
      const int k = is_ascending ? step : n - 1 - step, first = is_ascending ? 0 : k + 1;
      for (int j = 0; j < step; ++j) {
        factors[j] = is_transposed ? block[first + j + k * ld] : block[k + (first + j) * ld];
      }
      T* const zk = row(z, k, w);
      subtract_multiples(w, step, factors, row(z, first, w), w, zk);
      if (!triangle.has_unit_diagonal) scale_column(w, T{1} / block[k + k * ld], zk);
    }
    return;
  }
  constexpr int kBlock = 64;
  const int height = static_cast<int>(ld), blocks = (n + kBlock - 1) / kBlock;
  const auto a = [&](int i, int j) { return block + i + j * ld; };
  for (int step = 0; step < blocks; ++step) {
    const int first = (is_ascending ? step : blocks - 1 - step) * kBlock, end = std::min(first + kBlock, n);
    const int columns = end - first;
    T* const zb = row(z, first, w);
    if (is_transposed && is_ascending) {
      subtract_transposed_product(first, columns, a(0, first), height, z, w, zb, threads);
    } else if (is_transposed) {
      subtract_transposed_product(n - end, columns, a(end, first), height, row(z, end, w), w, zb, threads);
    }
    dense::blocked::trsm('R', triangle.is_upper ? 'U' : 'L', is_transposed ? 'N' : 'T',
                         triangle.has_unit_diagonal ? 'U' : 'N', w, columns, T{1}, a(first, first), height, zb, w);
    if (is_transposed) continue;
    const int other = is_ascending ? end : 0, count = is_ascending ? n - end : first;
    subtract_product(count, columns, a(other, first), height, zb, w, buffer, threads,
                     [&](int i) { return row(z, other + i, w); });
  }
}

struct Stages {
  bool forward, diagonal, backward;
};

// A x = M N x or M D N x, where M consists of lower and N of upper triangles: `down_` is M's in a diagonal block, and
// `up_` is N's, or its transpose. Below the block, panels hold L or U^T.
template <Scalar T>
class Solver {
 public:
  Solver(const Factor<T>& factor, Operation operation, Stages stages) noexcept
      : factor_(factor), plan_(factor.plan()), panels_(factor.panels()), kind_(panels_.kind()) {
    const Factorization factorization = factor.factorization();
    const bool is_lu = factorization == Factorization::kLU, is_llt = factorization == Factorization::kLLT;
    const bool is_transposed = operation == Operation::kTransposed || operation == Operation::kAdjoint;
    const bool is_conjugated = operation == Operation::kConjugated || operation == Operation::kAdjoint;
    is_hermitian_ = kIsComplex<T> && (is_llt || factorization == Factorization::kLDLH);
    const bool divides = !is_lu && !is_llt && stages.diagonal;
    divides_forward_ = divides && stages.forward;
    divides_alone_ = divides && !stages.forward;
    // L U, or for the transposed matrix U^T L^T; else L and L^T. A symmetric matrix is its own transpose, and the
    // conjugate of a Hermitian one is.
    const Triangle l{false, !is_llt}, u{true, false};
    down_ = is_lu && is_transposed ? u : l;
    up_ = is_lu && !is_transposed ? u : l;
    conjugates_down_ = kIsComplex<T> && (is_hermitian_ ? is_conjugated != is_transposed : is_conjugated);
    const PivotOrder order = factor.pivot_order();
    order_down_ = down_.is_upper ? order.columns : order.rows;
    order_up_ = up_.is_upper ? order.columns : order.rows;
    pairs_ = is_lu ? nullptr : order.rows;
  }

  const Plan& plan() const noexcept { return plan_; }
  // Whether the division by D is a stage of its own. It belongs to forward() where that is a stage, too, as a panel is
  // at hand then.
  bool divides_alone() const noexcept { return divides_alone_; }
  // Whether M and D, or N, are solved with for the conjugate of x: L^H x = b is L^T conj(x) = conj(b).
  bool conjugates_down() const noexcept { return conjugates_down_; }
  bool conjugates_up() const noexcept { return conjugates_down_ != is_hermitian_; }
  std::size_t buffer_size(int w) const noexcept {
    return to_size(std::max(plan_.most_below(), plan_.most_columns())) * to_size(w);
  }
  FactorOutcome outcome() const noexcept { return panels_.store()->outcome(); }

  // ---- One vector ---------------------------------------------------------------------------------------------------

  // Supernode s. What rows of x from `outside` on get is added to sums[place[row]] instead.
  bool forward(int s, T* x, int outside, T* sums, const int* place, T* buffer) const noexcept {
    const PinnedPanel<T> panel(panels_, s);
    if (panel.data() == nullptr) return false;
    const Shape shape = shape_of(s, down_);
    T* const xs = x + plan_.first(s);
    take_order(s, 1, xs, buffer);
    if (down_.is_upper) {
      solve_by_products(down_, shape.columns, panel.data(), shape.height, xs);
    } else {
      solve_by_columns(down_, shape.columns, panel.data(), shape.height, xs);
    }
    const auto below = plan_.below(s);
    const int m = shape.below, *const rows = below.data();
    const T* const b = panel.data() + shape.offset;
    const bool is_inside = m == 0 || below.back() < outside;
    if (is_inside && shape.columns <= kColumnsAtOnce<T>) {
      scatter_multiples(m, shape.columns, xs, b, shape.height, rows, x);
    } else {
      std::fill_n(buffer, m, T{});
      subtract_multiples(m, shape.columns, xs, b, shape.height, buffer);
      const int inside =
          is_inside ? m : static_cast<int>(std::lower_bound(below.begin(), below.end(), outside) - below.begin());
      for (int i = 0; i < inside; ++i) x[rows[i]] += buffer[i];
      for (int i = inside; i < m; ++i) sums[place[rows[i]]] += buffer[i];
    }
    if (divides_forward_) divide(s, panel.data(), xs, 1);
    return true;
  }

  bool backward(int s, T* x, T* buffer) const noexcept {
    const PinnedPanel<T> panel(panels_, s);
    if (panel.data() == nullptr) return false;
    const Shape shape = shape_of(s, up_);
    const int* const rows = plan_.below(s).data();
    T* const xs = x + plan_.first(s);
    for (int i = 0; i < shape.below; ++i) buffer[i] = x[rows[i]];
    subtract_products(shape.below, shape.columns, panel.data() + shape.offset, shape.height, buffer, xs);
    if (up_.is_upper) {
      solve_by_columns(up_, shape.columns, panel.data(), shape.height, xs);
    } else {
      solve_by_products(up_, shape.columns, panel.data(), shape.height, xs);
    }
    give_order(s, 1, xs, buffer);
    return true;
  }

  // ---- w vectors, the elements of a row side by side: Z = X^T, w x n
  // --------------------------------------------------

  // row_above(k) is row k, which is not one of s's own: in Z, or of the sums that are added to it later.
  template <class RowAbove>
  bool forward_together(int s, T* z, int w, T* buffer, int threads, const RowAbove& row_above) const noexcept {
    const PinnedPanel<T> panel(panels_, s);
    if (panel.data() == nullptr) return false;
    const Shape shape = shape_of(s, down_);
    const int* const rows = plan_.below(s).data();
    T* const zs = row(z, plan_.first(s), w);
    take_order(s, w, zs, buffer);
    solve_together(down_, down_.is_upper, shape.columns, panel.data(), shape.height, zs, w, buffer, threads);
    const T* const b = panel.data() + shape.offset;
    if (is_large(shape)) {
      subtract_product(shape.below, shape.columns, b, shape.height, zs, w, buffer, threads,
                       [&](int i) { return row_above(rows[i]); });
    } else {
      constexpr int kAtOnce = 32;
      T factors[kAtOnce];
      for (int i = 0; i < shape.below; ++i) {
        T* const zi = row_above(rows[i]);
        for (int first = 0; first < shape.columns; first += kAtOnce) {
          const int count = std::min(kAtOnce, shape.columns - first);
          for (int k = 0; k < count; ++k) factors[k] = b[i + std::ptrdiff_t{first + k} * shape.height];
          subtract_multiples(w, count, factors, row(zs, first, w), w, zi);
        }
      }
    }
    if (divides_forward_) divide(s, panel.data(), zs, w);
    return true;
  }

  bool backward_together(int s, T* z, int w, T* buffer, int threads) const noexcept {
    const PinnedPanel<T> panel(panels_, s);
    if (panel.data() == nullptr) return false;
    const Shape shape = shape_of(s, up_);
    const int* const rows = plan_.below(s).data();
    T* const zs = row(z, plan_.first(s), w);
    for (int i = 0; i < shape.below; ++i) std::copy_n(row(z, rows[i], w), w, row(buffer, i, w));
    const T* const b = panel.data() + shape.offset;
    if (is_large(shape)) {
      subtract_transposed_product(shape.below, shape.columns, b, shape.height, buffer, w, zs, threads);
    } else {
      for (int k = 0; k < shape.columns; ++k) {
        subtract_multiples(w, shape.below, b + std::ptrdiff_t{k} * shape.height, buffer, w, row(zs, k, w));
      }
    }
    solve_together(up_, !up_.is_upper, shape.columns, panel.data(), shape.height, zs, w, buffer, threads);
    give_order(s, w, zs, buffer);
    return true;
  }

  // X <- D^-1 X for supernode s; Z = X^T, w x n.
  bool divide_by_diagonal(int s, T* z, int w) const noexcept {
    const PinnedPanel<T> panel(panels_, s);
    if (panel.data() == nullptr) return false;
    divide(s, panel.data(), row(z, plan_.first(s), w), w);
    return true;
  }

 private:
  struct Shape {
    int columns, below, height;
    int offset;  // of the rows of L or U^T below the diagonal block
  };
  Shape shape_of(int s, Triangle triangle) const noexcept {
    const int columns = plan_.columns(s), below = plan_.below_count(s);
    return {columns, below, plan_.height(kind_, s), columns + (triangle.is_upper ? below : 0)};
  }
  static bool is_large(const Shape& shape) noexcept {
    return shape.columns >= kFewestColumns && shape.columns * std::int64_t{shape.below} >= kManyProducts;
  }

  // Rows of Z of supernode s.
  void divide(int s, const T* panel, T* zs, int w) const noexcept {
    const int* const pivots = pairs_ == nullptr ? nullptr : pairs_ + plan_.first(s);
    const std::ptrdiff_t height = plan_.height(kind_, s);
    const auto d = [&](int i, int j) { return panel[i + j * height]; };
    for (int k = 0; k < plan_.columns(s); ++k) {
      T* const z1 = row(zs, k, w);
      if (pivots != nullptr && pivots[k] < 0) {
        const TwoByTwo<T> pivot(d(k, k), d(k, k + 1), d(k + 1, k + 1), is_hermitian_);
        for (int r = 0; r < w; ++r) pivot.divide_column(z1[r], z1[w + r]);
        ++k;
      } else {
        for (int r = 0; r < w; ++r) z1[r] = d(k, k) == T{} ? T{} : z1[r] / d(k, k);
      }
    }
  }

  // The unknowns of supernode s in the order of its pivots, and back.
  static int position(int pivot) noexcept { return pivot < 0 ? ~pivot : pivot; }
  void take_order(int s, int w, T* xs, T* buffer) const noexcept {
    if (order_down_ == nullptr) return;
    const int columns = plan_.columns(s), *const pivots = order_down_ + plan_.first(s);
    std::copy_n(xs, to_size(columns) * to_size(w), buffer);
    for (int k = 0; k < columns; ++k) std::copy_n(row(buffer, position(pivots[k]), w), w, row(xs, k, w));
  }
  void give_order(int s, int w, T* xs, T* buffer) const noexcept {
    if (order_up_ == nullptr) return;
    const int columns = plan_.columns(s), *const pivots = order_up_ + plan_.first(s);
    std::copy_n(xs, to_size(columns) * to_size(w), buffer);
    for (int k = 0; k < columns; ++k) std::copy_n(row(buffer, k, w), w, row(xs, position(pivots[k]), w));
  }

  const Factor<T>& factor_;
  const Plan& plan_;
  const Panels<T>& panels_;
  const PanelKind kind_;
  bool is_hermitian_ = false, divides_forward_ = false, divides_alone_ = false, conjugates_down_ = false;
  Triangle down_{}, up_{};
  const int *order_down_ = nullptr, *order_up_ = nullptr, *pairs_ = nullptr;
};

template <Scalar T>
void conjugate_all(bool is_needed, std::size_t count, T* x) noexcept {
  if constexpr (kIsComplex<T>) {
    for (std::size_t i = 0; is_needed && i < count; ++i) x[i] = std::conj(x[i]);
  }
}

// Runs the stages for the vectors in z, of `count` numbers, each stage on what may be their conjugates.
template <Scalar T, class Forward, class Diagonal, class Backward>
bool run_stages(const Solver<T>& solver, Stages stages, std::size_t count, T* z, const Forward& forward,
                const Diagonal& diagonal, const Backward& backward) noexcept {
  bool is_conjugated = false, is_sound = true;
  const auto make = [&](bool conjugates) {
    conjugate_all(is_conjugated != conjugates, count, z);
    is_conjugated = conjugates;
  };
  if (stages.forward || stages.diagonal) make(solver.conjugates_down());
  if (stages.forward) is_sound = forward();
  if (solver.divides_alone()) is_sound = is_sound && diagonal();
  if (stages.backward) {
    make(solver.conjugates_up());
    is_sound = is_sound && backward();
  }
  make(false);
  return is_sound;
}

// ---- Subtrees for threads -------------------------------------------------------------------------------------------

// The same for any number of threads, as what each of them adds to the unknowns above is summed on its own and added in
// a fixed order. Of a small factor there are none.
class Subtrees {
 public:
  explicit Subtrees(const Plan& plan) noexcept : plan_(plan) {
    if (plan.panel_elements(PanelKind::kSymmetric) > kFewElements) {
      count_ = plan.cut_by_elements(kParts, ranges_.data());
    }
    for (int r = 0; r < count_; ++r) {
      sums_start_[to_size(r)] = sums_;
      for_each_row_above(r, [this](int) { ++sums_; });
    }
  }

  int count() const noexcept { return count_; }
  SupernodeRange range(int r) const noexcept { return ranges_[to_size(r)]; }
  // The first row above subtree r.
  int outside(int r) const noexcept { return plan_.first(range(r).end); }
  // Sums of all subtrees, and where those of subtree r begin.
  std::size_t sums() const noexcept { return sums_; }
  std::size_t sums_start(int r) const noexcept { return sums_start_[to_size(r)]; }

  // Rows below the roots of subtree r, once for each root: what has its sum in the last of its places has zeros in the
  // others.
  template <class Take>
  void for_each_row_above(int r, const Take& take) const noexcept {
    for (int s = range(r).first; s < range(r).end; ++s) {
      const int p = plan_.parent(s);
      if (p == kNone || p < range(r).end) continue;
      for (const int k : plan_.below(s)) take(k);
    }
  }
  // place[k] becomes the place of row k above subtree r among its sums. Returns their number.
  int place_rows_above(int r, int* place) const noexcept {
    int next = 0;
    for_each_row_above(r, [&](int k) { place[k] = next++; });
    return next;
  }

  // Supernodes in no subtree, while body(s) says that it went well.
  template <class Body>
  bool ascend(const Body& body) const noexcept {
    int next = 0;
    for (int s = 0; s < plan_.eliminated();) {
      if (next < count_ && s == range(next).first) {
        s = range(next++).end;
      } else if (!body(s++)) {
        return false;
      }
    }
    return true;
  }
  template <class Body>
  bool descend(const Body& body) const noexcept {
    int next = count_ - 1;
    for (int s = plan_.eliminated() - 1; s >= 0;) {
      if (next >= 0 && s == range(next).end - 1) {
        s = range(next--).first - 1;
      } else if (!body(s--)) {
        return false;
      }
    }
    return true;
  }

 private:
  const Plan& plan_;
  int count_ = 0;
  std::size_t sums_ = 0;
  std::array<SupernodeRange, kRangesPerPart * kParts> ranges_;
  std::array<std::size_t, kRangesPerPart * kParts> sums_start_{};
};

// ---- One vector at a time, subtrees to threads ----------------------------------------------------------------------

template <Scalar T>
class VectorSolve {
 public:
  explicit VectorSolve(const Solver<T>& solver) noexcept
      : solver_(solver), plan_(solver.plan()), subtrees_(solver.plan()) {}

  bool create(int threads) noexcept {
    threads_ = std::clamp(threads, 1, std::max(1, subtrees_.count()));
    sums_ = Workspace<T>(subtrees_.sums());
    buffers_ = Workspace<T>(solver_.buffer_size(1) * to_size(threads_));
    places_ = Workspace<int>(subtrees_.count() == 0 ? 0 : to_size(plan_.size()) * to_size(threads_));
    return sums_ && buffers_ && places_;
  }

  bool run(Stages stages, T* x) noexcept {
    is_sound_ = true;
    return run_stages(
        solver_, stages, to_size(plan_.size()), x, [&] { return forward(x); },
        [&] {
          for (int s = 0; s < plan_.eliminated(); ++s) {
            if (!solver_.divide_by_diagonal(s, x, 1)) return false;
          }
          return true;
        },
        [&] { return backward(x); });
  }

 private:
  bool forward(T* x) noexcept {
    base::parallel_for(subtrees_.count(), threads_, [&](int r) {
      const SupernodeRange range = subtrees_.range(r);
      const ThreadSlots::Slot slot(slots_, threads_);
      int* const place = places_.data() + slot.number() * to_size(plan_.size());
      T* const sums = sums_.data() + subtrees_.sums_start(r);
      std::fill_n(sums, subtrees_.place_rows_above(r, place), T{});
      for (int s = range.first; s < range.end && is_sound_.load(std::memory_order_relaxed); ++s) {
        if (!solver_.forward(s, x, subtrees_.outside(r), sums, place, buffer(slot.number()))) is_sound_ = false;
      }
    });
    const T* sum = sums_.data();
    for (int r = 0; r < subtrees_.count(); ++r) subtrees_.for_each_row_above(r, [&](int k) { x[k] += *sum++; });
    return is_sound_ &&
           subtrees_.ascend([&](int s) { return solver_.forward(s, x, plan_.size(), nullptr, nullptr, buffer(0)); });
  }

  bool backward(T* x) noexcept {
    is_sound_ = subtrees_.descend([&](int s) { return solver_.backward(s, x, buffer(0)); });
    base::parallel_for(subtrees_.count(), threads_, [&](int r) {
      const SupernodeRange range = subtrees_.range(r);
      const ThreadSlots::Slot slot(slots_, threads_);
      for (int s = range.end - 1; s >= range.first && is_sound_.load(std::memory_order_relaxed); --s) {
        if (!solver_.backward(s, x, buffer(slot.number()))) is_sound_ = false;
      }
    });
    return is_sound_;
  }

  T* buffer(std::size_t thread) noexcept { return buffers_.data() + solver_.buffer_size(1) * thread; }

  const Solver<T>& solver_;
  const Plan& plan_;
  const Subtrees subtrees_;
  int threads_ = 1;
  ThreadSlots slots_;
  std::atomic<bool> is_sound_{true};
  Workspace<T> sums_, buffers_;
  Workspace<int> places_;
};

// ---- Vectors side by side, blocks of them or subtrees to threads ----------------------------------------------------

// Blocks of vectors, if there are enough for all threads. Otherwise one block after the other, of which subtrees, and
// above these the rows of products, are for threads. Without subtrees there are narrower blocks.
template <Scalar T>
class BlockSolve {
 public:
  // `paths`: null for all of the factor.
  BlockSolve(const Solver<T>& solver, int nrhs, int threads, const SolvePaths* paths = nullptr) noexcept
      : solver_(solver), plan_(solver.plan()), paths_(paths), nrhs_(nrhs) {
    if (paths == nullptr) subtrees_.emplace(plan_);
    const bool is_cut = subtrees_ && subtrees_->count() > 1;
    const int full_blocks = (nrhs + kMostTogether - 1) / kMostTogether;
    const int blocks = is_cut ? full_blocks : std::max(full_blocks, std::min(threads, nrhs));
    width_ = (nrhs + blocks - 1) / blocks;
    blocks_ = (nrhs + width_ - 1) / width_;
    inner_threads_ = is_cut && blocks_ < threads ? threads : 1;
    threads_ = inner_threads_ > 1 ? 1 : std::min(threads, blocks_);
  }

  bool create() noexcept {
    memory_ = Workspace<T>(base::saturating_product(size_of_block(), to_size(threads_)));
    places_ = Workspace<int>(sums() == 0 ? 0 : to_size(plan_.size()) * to_size(threads_ * inner_threads_));
    return memory_ && places_;
  }

  bool run(Stages stages, T* x, int ldx) noexcept {
    base::parallel_for(blocks_, threads_, [&](int block) {
      const ThreadSlots::Slot slot(slots_, threads_);
      const int first = block * width_, w = std::min(width_, nrhs_ - first);
      T* const columns = x + std::ptrdiff_t{first} * ldx;
      Block own{memory_.data() + size_of_block() * slot.number(), w, nullptr, nullptr, nullptr, {}};
      own.sums = own.z + to_size(plan_.size()) * to_size(w);
      own.buffers = own.sums + sums() * to_size(w);
      own.places = places_.data() + to_size(inner_threads_) * to_size(plan_.size()) * slot.number();
      load(columns, ldx, w, own.z);
      if (!run_block(stages, own)) is_sound_ = false;
      store(own.z, w, columns, ldx);
    });
    return is_sound_;
  }

 private:
  // w vectors, what subtrees add to rows above, and the memory of the threads that work on them.
  struct Block {
    T* z;
    int w;
    T* sums;
    T* buffers;
    int* places;
    ThreadSlots slots;
  };

  std::size_t sums() const noexcept { return subtrees_ ? subtrees_->sums() : 0; }
  std::size_t size_of_block() const noexcept {
    return base::saturating_product(to_size(plan_.size()) + sums(), to_size(width_)) +
           solver_.buffer_size(width_) * to_size(inner_threads_);
  }

  // Z <- X^T, or the given rows of it and zeros; and back, or the wanted rows.
  void load(const T* columns, int ldx, int w, T* z) const noexcept {
    if (paths_ == nullptr) {
      return for_each_line(columns, ldx, w, [&](const T* line, int first, int count, int r) {
        for (int k = 0; k < count; ++k) row(z, first + k, w)[r] = line[k];
      });
    }
    std::fill_n(z, to_size(plan_.size()) * to_size(w), T{});
    for (const int k : paths_->given()) {
      for (int r = 0; r < w; ++r) row(z, k, w)[r] = columns[k + std::ptrdiff_t{r} * ldx];
    }
  }
  void store(const T* z, int w, T* columns, int ldx) const noexcept {
    if (paths_ == nullptr) {
      return for_each_line(columns, ldx, w, [&](T* line, int first, int count, int r) {
        for (int k = 0; k < count; ++k) line[k] = row(z, first + k, w)[r];
      });
    }
    for (const int k : paths_->wanted()) {
      for (int r = 0; r < w; ++r) columns[k + std::ptrdiff_t{r} * ldx] = row(z, k, w)[r];
    }
  }

  // Calls body(line, first, count, r) for the elements of vector r from `first` on, cache line by cache line, all
  // vectors in turn. That is more vectors than a processor fetches ahead of by itself.
  template <class Pointer, class Body>
  void for_each_line(Pointer columns, int ldx, int w, const Body& body) const noexcept {
    constexpr int kLine = 64 / static_cast<int>(sizeof(T));
    for (int first = 0; first < plan_.size(); first += kLine) {
      const int count = std::min(kLine, plan_.size() - first);
      for (int r = 0; r < w; ++r) {
        const Pointer line = columns + first + std::ptrdiff_t{r} * ldx;
        __builtin_prefetch(line + 2 * kLine);
        body(line, first, count, r);
      }
    }
  }

  // Calls body(s, thread) for the supernodes of each subtree, ascending or descending, while it says that all is well.
  template <class Body>
  bool for_subtrees(Block& block, bool is_ascending, const Body& body) const noexcept {
    std::atomic<bool> is_sound{true};
    base::parallel_for(subtrees_->count(), inner_threads_, [&](int r) {
      const ThreadSlots::Slot slot(block.slots, inner_threads_);
      const SupernodeRange range = subtrees_->range(r);
      const int count = range.end - range.first;
      const auto go = body(r, slot.number());
      for (int k = 0; k < count && is_sound.load(std::memory_order_relaxed); ++k) {
        if (!go(is_ascending ? range.first + k : range.end - 1 - k)) is_sound = false;
      }
    });
    return is_sound;
  }

  bool forward(Block& block) const noexcept {
    const int w = block.w;
    T *const z = block.z, *const sums = block.sums;
    const auto in_z = [=](int k) { return row(z, k, w); };
    if (paths_ != nullptr) {
      const auto list = paths_->forward();
      return std::all_of(list.begin(), list.end(),
                         [&](int s) { return solver_.forward_together(s, z, w, block.buffers, 1, in_z); });
    }
    const bool is_sound = for_subtrees(block, true, [&](int r, std::size_t thread) {
      int* const place = block.places + to_size(plan_.size()) * thread;
      T* const own = sums + subtrees_->sums_start(r) * to_size(w);
      std::fill_n(own, to_size(subtrees_->place_rows_above(r, place)) * to_size(w), T{});
      const auto row_above = [=, outside = subtrees_->outside(r)](int k) {
        return k < outside ? row(z, k, w) : row(own, place[k], w);
      };
      return
          [=, this, &block](int s) { return solver_.forward_together(s, z, w, buffer(block, thread), 1, row_above); };
    });
    const T* sum = sums;
    for (int r = 0; r < subtrees_->count(); ++r) {
      subtrees_->for_each_row_above(r, [&](int k) {
        for (int i = 0; i < w; ++i) row(z, k, w)[i] += sum[i];
        sum += w;
      });
    }
    return is_sound && subtrees_->ascend([&](int s) {
      return solver_.forward_together(s, z, w, block.buffers, inner_threads_, in_z);
    });
  }

  bool divide_by_diagonal(Block& block) const noexcept {
    const auto divide = [this, &block](int s) { return solver_.divide_by_diagonal(s, block.z, block.w); };
    if (paths_ != nullptr) return std::all_of(paths_->forward().begin(), paths_->forward().end(), divide);
    return for_subtrees(block, true, [&](int, std::size_t) { return divide; }) && subtrees_->ascend(divide);
  }

  bool backward(Block& block) const noexcept {
    const auto solve = [this, &block](int s, std::size_t thread, int threads) {
      return solver_.backward_together(s, block.z, block.w, buffer(block, thread), threads);
    };
    if (paths_ != nullptr) {
      const auto list = paths_->backward();
      return std::all_of(list.rbegin(), list.rend(), [&](int s) { return solve(s, 0, 1); });
    }
    return subtrees_->descend([&](int s) { return solve(s, 0, inner_threads_); }) &&
           for_subtrees(block, false,
                        [&](int, std::size_t thread) { return [=](int s) { return solve(s, thread, 1); }; });
  }

  bool run_block(Stages stages, Block& block) const noexcept {
    return run_stages(
        solver_, stages, to_size(plan_.size()) * to_size(block.w), block.z, [&] { return forward(block); },
        [&] { return divide_by_diagonal(block); }, [&] { return backward(block); });
  }

  T* buffer(const Block& block, std::size_t thread) const noexcept {
    return block.buffers + solver_.buffer_size(block.w) * thread;
  }

  const Solver<T>& solver_;
  const Plan& plan_;
  const SolvePaths* paths_;
  std::optional<Subtrees> subtrees_;  // without paths
  int nrhs_, blocks_ = 1, width_ = 1;
  int threads_ = 1, inner_threads_ = 1;  // for blocks, and inside of one
  ThreadSlots slots_;
  std::atomic<bool> is_sound_{true};
  Workspace<T> memory_;
  Workspace<int> places_;
};

}  // namespace

template <Scalar T>
FactorOutcome solve(const Factor<T>& factor, Operation operation, Stage stage, int nrhs, T* x, int ldx,
                    int threads) noexcept {
  if (nrhs <= 0 || factor.plan().size() == 0) return FactorOutcome::kDone;
  // One thread sweeps over panels in files: several would each need room for panels, and read them again.
  const int wanted = factor.panels().store() == nullptr ? std::clamp(threads, 1, base::kMostThreads) : 1;
  const dense::KernelBuffer buffers(wanted);
  if (buffers.granted() == 0) return FactorOutcome::kOutOfMemory;
  const int granted = std::min(wanted, buffers.granted());
  const bool is_all = stage == Stage::kAll;
  const Stages stages{is_all || stage == Stage::kForward, is_all || stage == Stage::kDiagonal,
                      is_all || stage == Stage::kBackward};
  const Solver<T> solver(factor, operation, stages);
  bool is_sound = true;
  if (nrhs >= kFewestTogether) {
    BlockSolve<T> block(solver, nrhs, granted);
    if (!block.create()) return FactorOutcome::kOutOfMemory;
    is_sound = block.run(stages, x, ldx);
  } else {
    VectorSolve<T> vector(solver);
    if (!vector.create(granted)) return FactorOutcome::kOutOfMemory;
    for (int r = 0; r < nrhs && is_sound; ++r) is_sound = vector.run(stages, x + std::ptrdiff_t{r} * ldx);
  }
  return is_sound ? FactorOutcome::kDone : solver.outcome();
}

template <Scalar T>
FactorOutcome solve_partly(const Factor<T>& factor, Operation operation, const SolvePaths& paths, int nrhs, T* x,
                           int ldx, int threads) noexcept {
  if (nrhs <= 0 || factor.plan().size() == 0) return FactorOutcome::kDone;
  const dense::KernelBuffer buffers(std::clamp(threads, 1, base::kMostThreads));
  if (buffers.granted() == 0) return FactorOutcome::kOutOfMemory;
  constexpr Stages kStages{true, true, true};
  const Solver<T> solver(factor, operation, kStages);
  BlockSolve<T> block(solver, nrhs, std::clamp(threads, 1, buffers.granted()), &paths);
  if (!block.create()) return FactorOutcome::kOutOfMemory;
  return block.run(kStages, x, ldx) ? FactorOutcome::kDone : solver.outcome();
}

template FactorOutcome solve<float>(const Factor<float>&, Operation, Stage, int, float*, int, int) noexcept;
template FactorOutcome solve<double>(const Factor<double>&, Operation, Stage, int, double*, int, int) noexcept;
template FactorOutcome solve<std::complex<float>>(const Factor<std::complex<float>>&, Operation, Stage, int,
                                                  std::complex<float>*, int, int) noexcept;
template FactorOutcome solve<std::complex<double>>(const Factor<std::complex<double>>&, Operation, Stage, int,
                                                   std::complex<double>*, int, int) noexcept;

template FactorOutcome solve_partly<float>(const Factor<float>&, Operation, const SolvePaths&, int, float*, int,
                                           int) noexcept;
template FactorOutcome solve_partly<double>(const Factor<double>&, Operation, const SolvePaths&, int, double*, int,
                                            int) noexcept;
template FactorOutcome solve_partly<std::complex<float>>(const Factor<std::complex<float>>&, Operation,
                                                         const SolvePaths&, int, std::complex<float>*, int,
                                                         int) noexcept;
template FactorOutcome solve_partly<std::complex<double>>(const Factor<std::complex<double>>&, Operation,
                                                          const SolvePaths&, int, std::complex<double>*, int,
                                                          int) noexcept;

}  // namespace quorin::sparse
