#include "families/taucs/solvers/column_factors.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/solvers/depth.hpp"
#include "families/taucs/solvers/sorted_columns.hpp"

namespace quorin::taucs {
namespace {

enum class Kind { kLlt, kLdlt };

struct Recipe {
  Kind kind;
  double droptol = 0;
  bool is_modified = false;
  int maxdepth = 0;
};

std::size_t length(int n) { return static_cast<std::size_t>(n); }

// The places of L, diagonal included, if it is complete; -1 without memory. Levels of the elimination tree in `depth`.
std::int64_t analyze(const CcsMatrix& A, int& depth) {
  const int n = A.n;
  sparse::Graph graph;
  base::Workspace<int> arrays(base::saturating_product(length(n), 5));
  if (!arrays || sparse::build_graph({n, n, A.colptr, A.rowind}, graph) != sparse::Outcome::kDone) return -1;
  const sparse::Ordering identity{arrays.data(), arrays.data() + n};
  int *const parent = identity.inverse + n, *const level = parent + n;
  sparse::order_identity(n, identity);
  sparse::StepNeighbours neighbours;
  if (!neighbours.build(graph, identity)) return -1;
  sparse::elimination_tree(neighbours, parent, level);
  depth = 0;
  for (int j = n - 1; j >= 0; --j) {  // parents come after their children
    level[j] = parent[j] == sparse::kNone ? 1 : level[parent[j]] + 1;
    depth = std::max(depth, level[j]);
  }
  return sparse::factor_entries(graph, identity);
}

// L, growing by columns.
template <Element T>
class GrowingFactor {
 public:
  GrowingFactor(int n, std::int64_t capacity)
      : L_(capacity < 0 || capacity > kMost ? nullptr : create<T>(n, n, static_cast<int>(capacity))),
        capacity_(capacity) {
    if (L_ == nullptr) return;
    L_->flags |= kTriangular | kLower;
    L_->colptr[0] = 0;
  }
  explicit operator bool() const { return L_ != nullptr; }
  const CcsMatrix& operator*() const { return *L_; }
  CcsMatrix* release() { return L_.release(); }

  // Room for more entries.
  bool reserve(int more) {
    if (capacity_ - size_ >= more) return true;
    const std::int64_t wanted = std::max(std::int64_t{size_} + more, std::min(2 * capacity_, kMost));
    return wanted <= kMost && grow(L_->rowind, wanted) && grow(L_->values.v, wanted) && (capacity_ = wanted) > 0;
  }
  void put(int row, T value) { arrays_of<T>(*L_).put(size_++, row, value); }
  void end_column(int j) { L_->colptr[j + 1] = size_; }

 private:
  static constexpr std::int64_t kMost = std::numeric_limits<int>::max();

  template <class Pointer>
  static bool grow(Pointer*& array, std::int64_t count) {
    constexpr std::size_t kBytes = std::same_as<Pointer, int> ? sizeof(int) : sizeof(T);
    void* const moved = base::reallocate(array, base::saturating_product(static_cast<std::size_t>(count), kBytes));
    if (moved != nullptr) array = static_cast<Pointer*>(moved);
    return moved != nullptr;
  }

  OwnedMatrix L_;
  std::int64_t capacity_;
  int size_ = 0;
};

// For each column j: c <- column j of A, minus what the columns k of L with an entry in row j do to it. Each such
// column stands in the list of the row of its next entry.
template <Element T>
class ColumnMethod {
 public:
  ColumnMethod(const CcsMatrix& A, const Recipe& recipe, std::int64_t capacity)
      : A_(A),
        recipe_(recipe),
        n_(A.n),
        L_(A.n, capacity),
        c_(length(n_)),
        shift_(length(recipe.is_modified ? n_ : 0)),
        rows_(length(n_)),
        mark_(length(n_)),
        head_(length(n_)),
        next_(length(n_)),
        place_(length(n_)) {}
  explicit operator bool() const { return L_ && c_ && shift_ && rows_ && mark_ && head_ && next_ && place_; }

  CcsMatrix* run() {
    std::fill(shift_.begin(), shift_.end(), 0.0);
    std::fill(mark_.begin(), mark_.end(), sparse::kNone);
    std::fill(head_.begin(), head_.end(), sparse::kNone);
    for (int j = 0; j < n_; ++j) {
      gather(j);
      if (!store(j)) return nullptr;
    }
    return L_.release();
  }

 private:
  void touch(int i, int j) {
    if (mark_.data()[i] == j) return;
    mark_.data()[i] = j;
    c_.data()[i] = T{};
    if (i != j) rows_.data()[count_++] = i;
  }

  void gather(int j) {
    const CcsMatrix& L = *L_;
    const T* const values = L.elements<T>();
    count_ = 0;
    touch(j, j);
    for (int k = A_.colptr[j]; k < A_.colptr[j + 1]; ++k) {
      touch(A_.rowind[k], j);
      c_.data()[A_.rowind[k]] = A_.elements<T>()[k];
    }
    count_of_A_ = count_;
    for (int k = head_.data()[j], following = 0; k != sparse::kNone; k = following) {
      following = next_.data()[k];
      const int begin = place_.data()[k], end = L.colptr[k + 1];
      T multiplier = conjugate(values[begin]);
      if (recipe_.kind == Kind::kLdlt) multiplier *= real_part(values[L.colptr[k]]);
      for (int p = begin; p < end; ++p) {
        touch(L.rowind[p], j);
        c_.data()[L.rowind[p]] -= product(values[p], multiplier);
      }
      wait_for_next(k, begin + 1);
    }
  }

  // Puts column k into the list of the row at `place`.
  void wait_for_next(int k, int place) {
    if (place == (*L_).colptr[k + 1]) return;
    const int row = (*L_).rowind[place];
    place_.data()[k] = place;
    next_.data()[k] = head_.data()[row];
    head_.data()[row] = k;
  }

  bool store(int j) {
    double pivot = real_part(c_.data()[j]);
    if (recipe_.is_modified) pivot += shift_.data()[j];
    if (recipe_.droptol > 0) pivot = drop(pivot);
    const bool is_good = std::isfinite(pivot) && (recipe_.kind == Kind::kLlt ? pivot > 0 : pivot != 0);
    if (!is_good) {
      message("taucs_ccs_factor: pivot %d is %.3e\n", j, pivot);
      return false;
    }
    if (!L_.reserve(count_ + 1)) return false;
    std::sort(rows_.data(), rows_.data() + count_);
    const double diagonal = recipe_.kind == Kind::kLlt ? std::sqrt(pivot) : pivot;
    L_.put(j, diagonal);
    for (int k = 0; k < count_; ++k) L_.put(rows_.data()[k], c_.data()[rows_.data()[k]] / diagonal);
    L_.end_column(j);
    wait_for_next(j, (*L_).colptr[j] + 1);
    return true;
  }

  // Drops small entries that A does not have; the pivot that is left.
  double drop(double pivot) {
    double sum = pivot * pivot;  // squared norm of the column, which is pivot times that of L's
    for (int k = 0; k < count_; ++k) sum += std::norm(c_.data()[rows_.data()[k]]);
    const double least = recipe_.droptol * std::sqrt(sum);
    int kept = count_of_A_;
    for (int k = count_of_A_; k < count_; ++k) {
      const int i = rows_.data()[k];
      const T value = c_.data()[i];
      if (!(std::abs(value) < least)) {
        rows_.data()[kept++] = i;
      } else if (recipe_.is_modified) {
        pivot += real_part(value);
        shift_.data()[i] += real_part(value);
      }
    }
    count_ = kept;
    return pivot;
  }

  const CcsMatrix& A_;
  const Recipe& recipe_;
  int n_;
  GrowingFactor<T> L_;
  base::Workspace<T> c_;
  base::Workspace<double> shift_;             // what dropping adds to diagonal entries
  base::Workspace<int> rows_, mark_;          // of c below the diagonal, those of A first; mark: in c for j
  base::Workspace<int> head_, next_, place_;  // lists of columns by the row of their next entry, and its place
  int count_ = 0, count_of_A_ = 0;
};

template <Element T>
CcsMatrix* factor(const CcsMatrix& A, const Recipe& recipe) {
  const OwnedMatrix sorted = sorted_columns<T>(A);
  if (sorted == nullptr || !is_finite<T>(*sorted)) return nullptr;
  int depth = 0;
  const std::int64_t entries = analyze(*sorted, depth);
  if (entries < 0 || !accepts_depth(depth, recipe.maxdepth, recipe.kind == Kind::kLdlt)) return nullptr;
  const bool is_complete = !(recipe.droptol > 0);
  ColumnMethod<T> method(*sorted, recipe, is_complete ? entries : std::min<std::int64_t>(entries, sorted->colptr[A.n]));
  return method ? method.run() : nullptr;
}

CcsMatrix* factor_any(const CcsMatrix* A, const Recipe& recipe) {
  CcsMatrix* L = nullptr;
  if (A == nullptr) return L;
  dispatch(A->flags, [&]<class T>() {
    if (is_sound_triangle<T>(A) && (!kIsComplex<T> || A->has(kHermitian))) L = factor<T>(*A, recipe);
  });
  return L;
}

// Rows are trusted: to look at them all would cost as much as to solve.
bool is_triangle_with_diagonal(const CcsMatrix& L) {
  if (!L.has(kTriangular) || !L.has(kLower) || !sparse::check_starts(L.n, L.colptr)) return false;
  for (int j = 0; j < L.n; ++j) {
    if (L.colptr[j] == L.colptr[j + 1] || L.rowind[L.colptr[j]] != j) return false;
  }
  return true;
}

// Forward, diagonal, backward.
template <Element T>
void solve(const CcsMatrix& L, Kind kind, T* x, const T* b) {
  const T* const values = L.elements<T>();
  if (x != b) std::copy_n(b, L.n, x);
  for (int j = 0; j < L.n; ++j) {
    if (kind == Kind::kLlt) x[j] /= values[L.colptr[j]];
    for (int k = L.colptr[j] + 1; k < L.colptr[j + 1]; ++k) x[L.rowind[k]] -= product(values[k], x[j]);
  }
  if (kind == Kind::kLdlt) {
    for (int j = 0; j < L.n; ++j) x[j] /= values[L.colptr[j]];
  }
  for (int j = L.n - 1; j >= 0; --j) {
    T sum = x[j];
    for (int k = L.colptr[j] + 1; k < L.colptr[j + 1]; ++k) sum -= product(conjugate(values[k]), x[L.rowind[k]]);
    x[j] = kind == Kind::kLlt ? sum / conjugate(values[L.colptr[j]]) : sum;
  }
}

std::int32_t solve_any(const void* factor, Kind kind, void* x, const void* b) {
  const auto* const L = static_cast<const CcsMatrix*>(factor);
  Status status = Status::kErrorBadargs;
  if (L != nullptr && x != nullptr && b != nullptr && is_triangle_with_diagonal(*L)) {
    dispatch(L->flags, [&]<class T>() {
      solve(*L, kind, static_cast<T*>(x), static_cast<const T*>(b));
      status = Status::kSuccess;
    });
  }
  return static_cast<std::int32_t>(status);
}

}  // namespace

CcsMatrix* ccs_factor_llt(const CcsMatrix* A, double droptol, std::int32_t modified) noexcept {
  return ccs_factor_llt_maxdepth(A, droptol, modified, 0);
}
CcsMatrix* ccs_factor_llt_maxdepth(const CcsMatrix* A, double droptol, std::int32_t modified,
                                   std::int32_t maxdepth) noexcept {
  return factor_any(A, {Kind::kLlt, droptol, modified != 0 && droptol > 0, maxdepth});
}

CcsMatrix* ccs_factor_ldlt(const CcsMatrix* A) noexcept { return ccs_factor_ldlt_maxdepth(A, 0); }
CcsMatrix* ccs_factor_ldlt_maxdepth(const CcsMatrix* A, std::int32_t maxdepth) noexcept {
  return factor_any(A, {.kind = Kind::kLdlt, .maxdepth = maxdepth});
}

std::int32_t ccs_solve_llt(void* L, void* x, const void* b) noexcept { return solve_any(L, Kind::kLlt, x, b); }
std::int32_t ccs_solve_ldlt(void* L, void* x, const void* b) noexcept { return solve_any(L, Kind::kLdlt, x, b); }

}  // namespace quorin::taucs
