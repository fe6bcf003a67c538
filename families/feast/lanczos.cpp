#include "families/feast/lanczos.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <functional>

#include "base/parallel.hpp"
#include "dense/dense.hpp"

namespace quorin::feast {
namespace {

// A column that is so much shorter after orthogonalization consists of rounding errors.
constexpr double kDependent = 1e-11;
// The Cholesky factor of a Gram matrix with a pivot so small, relative to its diagonal, would not make columns
// orthogonal to half of the digits.
constexpr double kSmallPivot = 1e-8;
// With pivots from here on it makes them orthogonal to nearly all digits.
constexpr double kGoodPivot = 1e-3;

template <Scalar T>
T dot(int n, const T* x, const T* y) {
  T sum{};
  for (int i = 0; i < n; ++i) sum += product(conjugate(x[i]), y[i]);
  return sum;
}

template <Scalar T>
void subtract_multiple(int n, T factor, const T* x, T* y) {
  for (int i = 0; i < n; ++i) y[i] -= product(factor, x[i]);
}

// Cholesky: the upper triangle of R with R^H R = gram, in place. The least pivot, relative to its diagonal element; 0
// where one is too small.
template <Scalar T>
double factor_upper(int width, T* gram, int ld) {
  double least = 1;
  const auto g = [&](int i, int j) -> T& { return gram[i + static_cast<std::ptrdiff_t>(j) * ld]; };
  for (int j = 0; j < width; ++j) {
    const double square = real_part(g(j, j));
    for (int i = 0; i < j; ++i) {
      for (int k = 0; k < i; ++k) g(i, j) -= product(conjugate(g(k, i)), g(k, j));
      g(i, j) /= g(i, i);
    }
    double pivot = square;
    for (int k = 0; k < j; ++k) pivot -= std::norm(g(k, j));
    if (!(pivot > kSmallPivot * square)) return 0;
    least = std::min(least, pivot / square);
    g(j, j) = std::sqrt(pivot);
    std::fill(&g(j, j) + 1, &g(0, j) + width, T{});
  }
  return least;
}

}  // namespace

template <Scalar T>
bool Lanczos<T>::reserve(int n, int capacity, int threads) {
  n_ = n;
  capacity_ = capacity;
  threads_ = threads;
  const auto length = static_cast<std::size_t>(n), k = static_cast<std::size_t>(capacity);
  constexpr std::size_t kWidth = kBlock;
  V_ = base::Workspace<T>(base::saturating_product(length, k + kWidth));
  Y_ = base::Workspace<T>(base::saturating_product(length, kWidth));
  Z_ = base::Workspace<T>(base::saturating_product(length, kWidth));
  projected_ = base::Workspace<T>(base::saturating_product(k, k));
  S_ = base::Workspace<T>(base::saturating_product(k, k));
  coupling_ = base::Workspace<T>(kWidth * (k + kWidth));
  products_ = base::Workspace<T>(base::saturating_product(kMostParts * kWidth, k + kWidth));
  rows_ = base::Workspace<T>(base::saturating_product(static_cast<std::size_t>(threads) * kRows, k));
  theta_ = base::Workspace<double>(k);
  residuals_ = base::Workspace<double>(k);
  lengths_ = base::Workspace<double>(kWidth);
  return V_ && Y_ && Z_ && projected_ && S_ && coupling_ && products_ && rows_ && theta_ && residuals_ && lengths_ &&
         eigensolver_.reserve(capacity);
}

template <Scalar T>
Status Lanczos<T>::run(const Pencil<T>& pencil, const sparse::Factor<T>& factor, const Goal& goal) {
  constexpr int kPatience = 2;  // restarts without another pair
  pencil_ = &pencil;
  factor_ = &factor;
  goal_ = goal;
  size_ = 0;
  converged_ = {};
  random_.seed(std::mt19937_64::default_seed);
  std::fill_n(projected_.data(), projected_.size(), T{});
  Status status = begin();
  for (int check = 2 * kBlock, found = 0, idle = 0; status == Status::kDone;) {
    status = expand();
    if (status != Status::kDone) break;
    const bool is_full = next_ == 0 || size_ + next_ > capacity_;
    if (size_ < check && !is_full) continue;
    if (!examine()) return Status::kReducedFailed;
    const bool is_reached = this->is_reached(Side::kBelow, goal_.below) && this->is_reached(Side::kAbove, goal_.above);
    if (next_ == 0 || (is_reached && !lacks(Side::kBelow, goal_.below) && !lacks(Side::kAbove, goal_.above))) break;
    if (is_reached || is_full) {
      const int now = converged(Side::kBelow) + converged(Side::kAbove);
      idle = now > found ? 0 : idle + 1;
      found = now;
      if (idle == kPatience || !contract(is_reached)) break;
      if (is_reached) status = begin();
    }
    // Of the small matrix, which takes longer with each look, as of the long vectors.
    check = size_ + std::clamp(static_cast<int>(5.0 * size_ * size_ / n_), kBlock, std::max(kBlock, size_ / 8));
  }
  return status;
}

// ---- The basis ------------------------------------------------------------------------------------------------------

// With entries from (-1, 1), scaled so that all eigenvectors have a similar part.
template <Scalar T>
void Lanczos<T>::randomize(T* x) {
  const auto number = [this] { return static_cast<double>(random_() >> 11) * 0x1p-52 - 1; };
  for (int i = 0; i < n_; ++i) {
    const double factor = 1 / std::sqrt(n_ * pencil_->diagonal_of_b(i));
    const double re = number();
    if constexpr (kIsComplex<T>) {
      x[i] = T{factor * re, factor * number()};
    } else {
      x[i] = factor * re;
    }
  }
}

// B W, which is W itself or in Y_.
template <Scalar T>
const T* Lanczos<T>::times_b(const T* W, int width) {
  if (pencil_->is_standard()) return W;
  base::parallel_for(width, threads_, [&](int j) { pencil_->multiply_by_b(1, W + offset(j), Y_.data() + offset(j)); });
  return Y_.data();
}

// to <- M from, which may be the same.
template <Scalar T>
Status Lanczos<T>::apply(const T* from, int count, T* to) {
  const int* const permutation = factor_->plan().permutation();
  T* const z = Z_.data();
  const T* const y = times_b(from, count);
  base::parallel_for(count, threads_, [&](int j) { sparse::permute(n_, permutation, y + offset(j), z + offset(j)); });
  const auto outcome = sparse::solve(*factor_, sparse::Operation::kPlain, sparse::Stage::kAll, count, z, n_, threads_);
  if (outcome != sparse::FactorOutcome::kDone) return status_of(outcome);
  base::parallel_for(count, threads_,
                     [&](int j) { sparse::permute_back(n_, permutation, z + offset(j), to + offset(j)); });
  return Status::kDone;
}

// Another first block, not coupled with what is there: M times random vectors.
template <Scalar T>
Status Lanczos<T>::begin() {
  width_ = 0;
  next_ = std::min(kBlock, n_ - size_);
  T* const W = column(size_);
  for (int j = 0; j < next_; ++j) randomize(W + offset(j));
  if (size_ > 0) project_out(0, size_, W, times_b(W, next_), next_);
  const Status status = apply(W, next_, W);
  if (status != Status::kDone) return status;
  measure(W, times_b(W, next_), next_);
  bool is_good = false;
  for (int pass = 0; pass < 2; ++pass) {
    if (size_ > 0) project_out(0, size_, W, times_b(W, next_), next_);
    next_ = orthonormalize(W, next_, next_, coupling_.data(), is_good);
  }
  return next_ > 0 ? Status::kDone : Status::kReducedFailed;
}

// The pairs that matter most take the place of the basis, and leave room for more. What of M times them lies outside of
// their space is in the direction of the next block still (K. Wu, H. Simon, Thick-restart Lanczos method for large
// symmetric eigenvalue problems, SIAM J. Matrix Anal. Appl. 22 (2000) 602). Of converged pairs that is nothing. False
// if there is no room.
template <Scalar T>
bool Lanczos<T>::contract(bool keeps_converged_only) {
  constexpr int kLeastRoom = 4 * kBlock;
  const int found = converged(Side::kBelow) + converged(Side::kAbove), spare = std::max(0, capacity_ - found) / 3;
  int below = converged(Side::kBelow), above = converged(Side::kAbove);
  for (int k = found; !keeps_converged_only && k < found + spare && below + above < size_; ++k) {
    const double next_below = theta_[place(Side::kBelow, below)], next_above = theta_[place(Side::kAbove, above)];
    ++(std::fabs(next_below) > std::fabs(next_above) ? below : above);
  }
  const int kept = below + above, carried = keeps_converged_only ? 0 : next_;
  if (kept + carried > size_ || kept + kLeastRoom > capacity_) return false;
  T *const S = S_.data(), *const coupling = products_.data();
  for (int j = 0; j < kept; ++j) {
    const int k = j < below ? j : size_ - kept + j;
    for (int i = 0; i < carried; ++i) coupling[i + j * kBlock] = next_component(i, static_cast<std::size_t>(k));
    if (k != j) std::copy_n(S + std::ptrdiff_t{k} * size_, size_, S + std::ptrdiff_t{j} * size_);
    theta_.data()[j] = theta_.data()[k];
  }
  combine(S, kept);
  for (int j = 0; j < carried; ++j) std::copy_n(column(size_ + j), n_, column(kept + j));
  std::copy_n(coupling, kept * kBlock, coupling_.data());
  std::fill_n(projected_.data(), projected_.size(), T{});
  for (int j = 0; j < kept; ++j) projected(j, j) = theta_.data()[j];
  size_ = width_ = kept;
  return true;
}

// V <- V C, where C has `count` columns, some rows of V after the other.
template <Scalar T>
void Lanczos<T>::combine(const T* C, int count) {
  const int together = std::min(threads_, row_blocks());
  base::parallel_for(together, together, [&](int thread) {
    T* const product = rows_.data() + static_cast<std::ptrdiff_t>(thread) * kRows * capacity_;
    for (int block = thread; block < row_blocks(); block += together) {
      const int first = block * kRows, rows = rows_of(block);
      T* const V = V_.data() + first;
      dense::blocked::gemm('N', 'N', rows, count, size_, T{1}, V, n_, C, size_, T{}, product, kRows);
      for (int j = 0; j < count; ++j)
        std::copy_n(product + static_cast<std::ptrdiff_t>(j) * kRows, rows, V + offset(j));
    }
  });
}

// M times the latest block, without what lies in the space of that and the one before, gives the next; what rounding
// errors leave of the others is taken out after that.
template <Scalar T>
Status Lanczos<T>::expand() {
  const int first = size_, count = next_, before = width_;
  for (int j = 0; j < before; ++j) {
    for (int i = 0; i < count; ++i) projected(first + i, first - before + j) = coupling(j)[i];
  }
  T* const W = column(first + count);
  const Status status = apply(column(first), count, W);
  if (status != Status::kDone) return status;
  const T* const bw = times_b(W, count);
  measure(W, bw, count);
  const T* const products = project_out(first - before, before + count, W, bw, count) + before * count;
  for (int j = 0; j < count; ++j) {
    for (int i = j; i < count; ++i) projected(first + i, first + j) = conjugate(products[j + i * count]);
  }
  size_ += count;
  width_ = count;
  bool is_good = false;
  next_ = orthonormalize(W, count, std::min(kBlock, n_ - size_), coupling_.data(), is_good);
  if (next_ == 0) return status;
  project_out(0, size_, W, times_b(W, next_), next_);
  T ignored[kBlock * kBlock];  // nearly I
  if (!is_good) next_ = orthonormalize(W, next_, next_, ignored, is_good);
  return status;
}

// The columns' lengths in the norm of B.
template <Scalar T>
void Lanczos<T>::measure(const T* W, const T* bw, int width) {
  base::parallel_for(width, threads_, [&](int j) {
    lengths_.data()[j] = std::sqrt(std::max(0.0, real_part(dot(n_, W + offset(j), bw + offset(j)))));
  });
}

// Y^H X, width x count: sums of parts of the rows, which are the same for any number of threads. Such a product with
// all of the basis takes little longer than reading that, as pieces of X stay in a cache and need not be packed.
template <Scalar T>
const T* Lanczos<T>::multiply(int width, const T* Y, int count, const T* X) {
  const int blocks = row_blocks(), parts = std::min(blocks, kMostParts), size = width * count;
  const auto cut = [=](int part) { return static_cast<int>(std::int64_t{blocks} * part / parts); };
  const auto sum_of = [=, this](int part) { return products_.data() + static_cast<std::ptrdiff_t>(part) * size; };
  base::parallel_for(parts, threads_, [&](int part) {
    T* const sum = sum_of(part);
    for (int block = cut(part); block < cut(part + 1); ++block) {
      const int i = block * kRows;
      const T kept{block == cut(part) ? 0.0 : 1.0};
      for (int j = 0; j < count; j += kColumns) {
        dense::blocked::gemm('C', 'N', width, std::min(kColumns, count - j), rows_of(block), T{1}, Y + i, n_,
                             X + i + offset(j), n_, kept, sum + static_cast<std::ptrdiff_t>(j) * width, width);
      }
    }
  });
  T* const total = sum_of(0);
  for (int part = 1; part < parts; ++part) std::transform(total, total + size, sum_of(part), total, std::plus<>());
  return total;
}

// W <- W - V V^H B W for columns first, ..., first + count - 1 of V. Returns (B W)^H V, width x count. The rows of W
// are transposed for the time being: the pieces of V are read where they are, then, and just once.
template <Scalar T>
const T* Lanczos<T>::project_out(int first, int count, T* W, const T* bw, int width) {
  constexpr int kLine = 64 / static_cast<int>(sizeof(T));
  const T* const products = multiply(width, bw, count, column(first));
  base::parallel_for(row_blocks(), threads_, [&](int block) {
    const int begin = block * kRows, rows = rows_of(block);
    T *const w = W + begin, *const z = Z_.data() + static_cast<std::ptrdiff_t>(begin) * width;
    for (int i = 0; i < rows; ++i) {
      for (int j = 0; j < width; ++j) z[i * width + j] = conjugate(w[i + offset(j)]);
    }
    for (int j = 0; j < count; j += kColumns) {
      const int columns = std::min(kColumns, count - j);
      const T* const V = column(first + j) + begin;
      for (int k = 0; k < columns; ++k) {
        for (int i = 0; i < rows; i += kLine) __builtin_prefetch(V + offset(k) + i);
      }
      dense::blocked::gemm('N', 'C', width, rows, columns, T{-1}, products + static_cast<std::ptrdiff_t>(j) * width,
                           width, V, n_, T{1}, z, width);
    }
    for (int i = 0; i < rows; ++i) {
      for (int j = 0; j < width; ++j) w[i + offset(j)] = conjugate(z[i * width + j]);
    }
  });
  return products;
}

// W, behind the basis, becomes orthonormal in the inner product of B, `wanted` columns or fewer: W = W' R, of which the
// leading dimension is kBlock. Returns how many. Columns that are short by what lengths_ say are dependent; lengths_
// become 1. If it is good, W has all its digits, and will not gain by being orthonormalized again.
template <Scalar T>
int Lanczos<T>::orthonormalize(T* W, int width, int wanted, T* R, bool& is_good) {
  const T* const gram = multiply(width, times_b(W, width), width, W);
  for (int j = 0; j < width; ++j) std::copy_n(gram + j * width, width, R + j * kBlock);
  bool is_independent = width == wanted;
  for (int j = 0; j < width; ++j) {
    const double least = kDependent * lengths_.data()[j];
    is_independent = is_independent && real_part(R[j * (kBlock + 1)]) > least * least;
  }
  const double pivot = is_independent ? factor_upper(width, R, kBlock) : 0;
  is_good = pivot >= kGoodPivot;
  if (pivot > 0) {
    dense::blocked::trsm('R', 'U', 'N', 'N', n_, width, T{1}, R, kBlock, W, n_, threads_);
  } else {
    width = mend(W, width, wanted, R);
  }
  std::fill_n(lengths_.data(), kBlock, 1.0);
  return width;
}

// The same column by column. Random vectors follow those that are independent.
template <Scalar T>
int Lanczos<T>::mend(T* W, int width, int wanted, T* R) {
  constexpr double kExhausted = 1e-6;  // of a random vector, if nothing is outside of the space
  T* const bw = Y_.data();
  int count = 0;
  const auto project_column_out = [&](T* w, T* factors) {
    pencil_->multiply_by_b(1, w, bw);
    for (int i = 0; i < count; ++i) factors[i] = dot(n_, W + offset(i), bw);
    for (int i = 0; i < count; ++i) subtract_multiple(n_, factors[i], W + offset(i), w);
  };
  const auto normalize = [&](T* w, double least) {
    pencil_->multiply_by_b(1, w, bw);
    const double length = std::sqrt(std::max(0.0, real_part(dot(n_, w, bw))));
    if (!(length > least)) return 0.0;
    std::transform(w, w + n_, w, [factor = 1 / length](T x) { return factor * x; });
    return length;
  };
  T factors[kBlock];
  std::fill_n(R, kBlock * kBlock, T{});
  for (int j = 0; j < width; ++j) {
    T *const w = W + offset(count), *const r = R + static_cast<std::ptrdiff_t>(j) * kBlock;
    if (count < j) std::copy_n(W + offset(j), n_, w);
    for (int pass = 0; pass < 2; ++pass) {
      project_column_out(w, factors);
      for (int i = 0; i < count; ++i) r[i] += factors[i];
    }
    if (count == wanted) continue;
    const double length = normalize(w, kDependent * lengths_.data()[j]);
    if (length > 0) r[count++] = length;
  }
  while (count < wanted) {
    T* const w = W + offset(count);
    randomize(w);
    for (int pass = 0; pass < 2; ++pass) {
      if (size_ > 0) project_out(0, size_, w, times_b(w, 1), 1);
      project_column_out(w, factors);
    }
    if (normalize(w, kExhausted / std::sqrt(n_)) == 0) break;
    ++count;
  }
  return count;
}

// ---- Ritz pairs -----------------------------------------------------------------------------------------------------

// theta and S with V^H B M V = S diag(theta) S^H, and the residuals of x = M V s / theta: with f = M V s - theta V s,
// which is the next block times its coupling with the latest times the last rows of s, A x - lambda B x is
// -B f / theta^2. False if LAPACK fails.
template <Scalar T>
bool Lanczos<T>::examine() {
  T* const S = S_.data();
  for (int j = 0; j < size_; ++j) {
    std::copy_n(&projected(j, j), size_ - j, S + j + static_cast<std::ptrdiff_t>(j) * size_);
  }
  if (!eigensolver_.decompose(size_, S, theta_.data())) return false;
  for (std::size_t k = 0; k < static_cast<std::size_t>(size_); ++k) {
    double square = 0;
    for (int i = 0; i < next_; ++i) square += std::norm(next_component(i, k));
    residuals_[k] = std::sqrt(square) / (theta_[k] * theta_[k]);
  }
  for (const Side side : {Side::kBelow, Side::kAbove}) {
    int& count = converged_[index(side)] = 0;
    while (is_on(side, count) && residuals_[place(side, count)] <= goal_.tolerance) ++count;
  }
  return true;
}

// Of M V s_k, the part of vector i of the next block.
template <Scalar T>
T Lanczos<T>::next_component(int i, std::size_t k) const {
  const T* const s = S_.data() + k * static_cast<std::size_t>(size_) + size_ - width_;
  T sum{};
  for (int j = 0; j < width_; ++j) sum += product(coupling_.data()[i + j * kBlock], s[j]);
  return sum;
}

// All is there if an eigenvalue from beyond the reach nearly is, too.
template <Scalar T>
bool Lanczos<T>::is_reached(Side side, const Wanted& wanted) const {
  constexpr double kLoosely = 16;
  const int count = converged(side);
  if (wanted.reach <= 0 || count >= wanted.count || next_ == 0) return true;
  return is_on(side, count) && std::fabs(value(side, count) - goal_.shift) > wanted.reach &&
         residuals_[place(side, count)] <= kLoosely * goal_.tolerance;
}

// Whether there are more eigenvalues than pairs, though what is beyond them is there.
template <Scalar T>
bool Lanczos<T>::lacks(Side side, const Wanted& wanted) const {
  const int count = converged(side);
  return wanted.reach > 0 && count < wanted.count &&
         (!is_on(side, count) || std::fabs(value(side, count) - goal_.shift) > wanted.within);
}

template <Scalar T>
std::optional<double> Lanczos<T>::next_value(Side side) const {
  if (!is_on(side, converged(side))) return std::nullopt;
  return value(side, converged(side));
}

template <Scalar T>
bool Lanczos<T>::vectors(Side side, int count, T* X) const {
  if (count == 0) return true;
  const int rows = size_ + next_;
  base::Workspace<T> C(base::saturating_product(static_cast<std::size_t>(rows), static_cast<std::size_t>(count)));
  if (!C) return false;
  T* c = C.data();
  for (int j = 0; j < count; ++j, c += rows) {
    const std::size_t k = place(side, j);
    std::copy_n(S_.data() + k * static_cast<std::size_t>(size_), size_, c);
    for (int i = 0; i < next_; ++i) c[size_ + i] = next_component(i, k) / theta_[k];
  }
  dense::blocked::gemm('N', 'N', n_, count, rows, T{1}, V_.data(), n_, C.data(), rows, T{}, X, n_, threads_);
  return true;
}

template class Lanczos<double>;
template class Lanczos<std::complex<double>>;

}  // namespace quorin::feast
