#include "families/feast/rayleigh_ritz.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

namespace quorin::feast {
namespace {

constexpr double kEpsilon = std::numeric_limits<double>::epsilon();

// Copies the lower triangle into the upper one.
template <Scalar T>
void mirror(int n, T* M) {
  for (int j = 0; j < n; ++j) {
    for (int i = j + 1; i < n; ++i) {
      M[j + static_cast<std::ptrdiff_t>(i) * n] = conjugate(M[i + static_cast<std::ptrdiff_t>(j) * n]);
    }
  }
}

template <Scalar T>
void multiply(char transposed, int m, int n, int k, const T* A, const T* B, T* C) {
  dense::blocked::gemm(transposed, 'N', m, n, k, T{1}, A, transposed == 'N' ? m : k, B, k, T{}, C, m);
}

}  // namespace

template <Scalar T>
bool RayleighRitz<T>::reserve(int capacity) {
  constexpr std::size_t kMatrices = 4;
  capacity_ = capacity;
  const auto k = static_cast<std::size_t>(capacity);
  matrices_ = base::Workspace<T>(base::saturating_product(kMatrices * k, k));
  values_ = base::Workspace<double>(k);
  gains_ = base::Workspace<double>(k);
  lengths_ = base::Workspace<double>(k);
  return matrices_ && values_ && gains_ && lengths_ && eigensolver_.reserve(capacity);
}

// The Gram matrix becomes W, of as many columns as are returned, with W^H gram W = I. Dimensions shorter than
// `tolerance` times the longest are dropped; squared lengths are put into values_, ascending. 0 if it failed.
template <Scalar T>
int RayleighRitz<T>::orthonormalizer(int size, double tolerance, T* gram) {
  if (!eigensolver_.decompose(size, gram, values_.data())) return 0;
  const double* const squares = values_.data();
  const double longest = squares[size - 1];
  constexpr double kIndefinite = 1e-8;
  if (!(longest > 0) || squares[0] < -kIndefinite * longest) return 0;
  const int dropped = static_cast<int>(std::upper_bound(squares, squares + size, tolerance * longest) - squares);
  for (int j = dropped; j < size; ++j) {
    const T* const from = gram + static_cast<std::ptrdiff_t>(j) * size;
    std::transform(from, from + size, gram + static_cast<std::ptrdiff_t>(j - dropped) * size,
                   [factor = 1 / std::sqrt(squares[j])](T x) { return factor * x; });
  }
  return size - dropped;
}

template <Scalar T>
bool RayleighRitz<T>::run(const Pencil<T>& pencil, Subspace<T>& X) {
  const auto a = [&](int count, const T* x, T* y) { pencil.multiply_by_a(count, x, y); };
  const auto b = [&](int count, const T* x, T* y) { pencil.multiply_by_b(count, x, y); };
  T *const first = matrix(0), *const second = matrix(1), *const reduced = matrix(2), *const product = matrix(3);

  // first: X^H B X -> W_1, X <- X W_1
  const int size = filtered_ = X.size();
  X.project(b, first);
  const int kept = orthonormalizer(size, 16 * size * kEpsilon, first);
  if (kept == 0) return false;
  std::copy_n(values_.data(), size, lengths_.data());
  X.combine(first, kept);

  // second: X^H B X, nearly I, -> W_2
  constexpr double kNoise = 0.01;  // in place of 1, what is left of a direction of rounding errors
  X.project(b, second);
  const int rank = orthonormalizer(kept, kNoise, second);
  if (rank == 0) return false;

  // W_2^H (X^H A X) W_2 = Z diag(values) Z^H; X <- X W_2 Z
  X.project(a, reduced);
  mirror(kept, reduced);
  multiply('N', kept, rank, kept, reduced, second, product);
  multiply('C', rank, rank, kept, second, product, reduced);
  if (!eigensolver_.decompose(rank, reduced, values_.data())) return false;
  multiply('N', kept, rank, rank, second, reduced, product);
  X.combine(product, rank);

  // Vector j is the old basis times column j of W_1 W_2 Z.
  multiply('N', size, rank, kept, first, product, reduced);
  for (int j = 0; j < rank; ++j) {
    double sum = 0;
    const T* const column = reduced + static_cast<std::ptrdiff_t>(j) * size;
    for (int i = 0; i < size; ++i) sum += std::norm(column[i]);
    gains_.data()[j] = 1 / sum;
  }
  return true;
}

template <Scalar T>
int RayleighRitz<T>::count_of_gains(double least) const {
  const double* const lengths = lengths_.data();
  return static_cast<int>(lengths + filtered_ - std::lower_bound(lengths, lengths + filtered_, least));
}

template class RayleighRitz<double>;
template class RayleighRitz<std::complex<double>>;

}  // namespace quorin::feast
