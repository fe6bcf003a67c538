#include "dense/lapack/qr.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <type_traits>

#include "base/workspace.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blas/level3.hpp"
#include "dense/kernels/column_kernels.hpp"
#include "dense/lapack/call_guard.hpp"
#include "dense/matrix.hpp"

namespace quorin::dense {
namespace {

// Panels are factored column by column; so are whole matrices of few columns, where the loops are as fast as products
// of matrices are. All limits here are measured.
constexpr int kPanel = 16;
template <Scalar T>
constexpr int kFewColumns = kIsComplex<T> ? 96 : 48;

// How many reflectors are applied together to the rest of a matrix of k diagonal elements.
constexpr int block_for(int k) {
  if (k < 320) return kPanel;
  return k < 1000 ? 2 * kPanel : 4 * kPanel;
}

// What the published routine calls its best block, by which it measures `work`.
constexpr int kPublishedBlock = 32;

// ---- Reflectors ---------------------------------------------------------------------------------------------------

double squared(double x) { return x * x; }

template <Scalar T>
double squared_magnitude(T x) {
  return squared(real_part(x)) + squared(imaginary_part(x));
}

// The squared norm of a column: short stretches in floats, unless those would lose digits or overflow. Squares of
// floats do neither in doubles.
template <Scalar T>
double squared_norm(int rows, const T* x) {
  constexpr int kStretch = 1024;
  constexpr double kSmallest = 1e-24;
  double total = 0;
  for (int i = 0; i < rows; i += kStretch) total += sum_of_squares(std::min(kStretch, rows - i), x + i);
  if (total > kSmallest && std::isfinite(total)) return total;
  total = 0;
  for (int i = 0; i < rows; ++i) total += squared_magnitude(x[i]);
  return total;
}

// x <- x / divisor without overflow or underflow on the way.
template <Scalar T, class Wide>
void divide_column(int rows, Wide divisor, T* x) {
  const Wide reciprocal = 1.0 / divisor;
  constexpr double kNormal = std::numeric_limits<float>::min(), kLargest = 1 / kNormal / 4;
  const double size = std::abs(divisor);
  if (size > 4 * kNormal && size < kLargest) return scale_column(rows, T(reciprocal), x);
  for (int i = 0; i < rows; ++i) x[i] = T(product(Wide(x[i]), reciprocal));
}

// Replaces a column x of `rows` elements by (beta, v_1, ...) such that (I - tau v v^H)^H x = beta e_0 with v_0 = 1 and
// real beta, and returns tau. The scalars are doubles, which need no rescaling for any floats.
template <Scalar T>
T make_reflector(int rows, T* x) {
  using Wide = std::conditional_t<kIsComplex<T>, std::complex<double>, double>;
  const double tail = squared_norm(rows - 1, x + 1);
  const Wide alpha(x[0]);
  if (tail == 0 && imaginary_part(x[0]) == 0) return T{};
  const double beta = -std::copysign(std::sqrt(squared_magnitude(x[0]) + tail), double{real_part(x[0])});
  divide_column(rows - 1, alpha - beta, x + 1);
  x[0] = static_cast<float>(beta);
  return T((beta - alpha) / beta);
}

// c <- (I - tau v v^H) c for the first kColumns columns of c, whose first row belongs to v_0 = 1.
template <int kColumns, Scalar T>
void reflect(int rows, const T* v, T tau, Matrix<T> c) {
  auto factors = project<kColumns>(rows - 1, v + 1, c.from(1, 0));
  for (int k = 0; k < kColumns; ++k) {
    factors[k] = product(tau, c(0, k) + factors[k]);
    c(0, k) -= factors[k];
  }
  subtract_multiples<kColumns>(rows - 1, v + 1, factors, c.from(1, 0));
}

template <Scalar T>
void reflect_columns(int rows, int columns, const T* v, T tau, Matrix<T> c) {
  for_column_groups<T>(columns, [&](auto count, int k) { reflect<count>(rows, v, tau, c.from(0, k)); });
}

// One column after the other.
template <Scalar T>
void factor_columns(int m, int n, Matrix<T> a, T* tau) {
  for (int j = 0; j < std::min(m, n); ++j) {
    const Matrix<T> rest = a.from(j, j);
    tau[j] = make_reflector(m - j, rest.data());
    if (tau[j] != T{}) reflect_columns(m - j, n - j - 1, rest.data(), conjugate(tau[j]), rest.from(0, 1));
  }
}

// ---- Blocks of reflectors: H_0 H_1 ... = I - V T V^H, T upper triangular -------------------------------------------

// T of a panel, column by column: T_0j = -tau_j T_00 V_0^H v_j.
template <Scalar T>
void form_small_t(int m, int n, Matrix<T> v, const T* tau, Matrix<T> t) {
  for (int j = 0; j < n; ++j) {
    T overlap[kPanel] = {};  // V_0^H v_j
    const T* const vj = v.column(j) + j + 1;
    for_column_groups<T>(j, [&](auto count, int k) {
      const auto sums = project<count>(m - j - 1, vj, v.from(j + 1, k));
      for (int i = 0; i < count; ++i) overlap[k + i] = conjugate(sums[i] + v(j, k + i));
    });
    for (int i = 0; i < j; ++i) {
      T sum{};
      for (int k = i; k < j; ++k) sum += product(t(i, k), overlap[k]);
      t(i, j) = product(-tau[j], sum);
    }
    t(j, j) = tau[j];
  }
}

// While it lives, the first rows of V hold the unit triangle that V has there, and not R.
template <Scalar T>
class ExplicitTriangle {
 public:
  ExplicitTriangle(int order, Matrix<T> v, T* saved) : order_(order), v_(v), saved_(saved) {
    for (int j = 0; j < order; ++j) {
      saved = std::copy_n(v.column(j), j + 1, saved);
      std::fill_n(v.column(j), j, T{});
      v(j, j) = 1;
    }
  }
  ~ExplicitTriangle() {
    const T* saved = saved_;
    for (int j = 0; j < order_; ++j) {
      std::copy_n(saved, j + 1, v_.column(j));
      saved += j + 1;
    }
  }
  ExplicitTriangle(const ExplicitTriangle&) = delete;
  ExplicitTriangle& operator=(const ExplicitTriangle&) = delete;

 private:
  int order_;
  Matrix<T> v_;
  T* saved_;
};

// C <- (I - V T V^H)^H C for an m-by-n matrix C and k reflectors; W is k-by-n.
template <Scalar T>
void apply_block(int m, int n, int k, Matrix<T> v, Matrix<T> t, Matrix<T> c, Matrix<T> w, T* saved) {
  const ExplicitTriangle<T> triangle(k, v, saved);
  gemm('C', 'N', k, n, m, T{1}, v.data(), v.lda(), c.data(), c.lda(), T{}, w.data(), w.lda());
  trmm('L', 'U', 'C', 'N', k, n, T{1}, t.data(), t.lda(), w.data(), w.lda());
  gemm('N', 'N', m, n, k, T{-1}, v.data(), v.lda(), w.data(), w.lda(), T{1}, c.data(), c.lda());
}

// Factors m-by-n A, m >= n, and forms its T. The corner of T serves as work array until it is formed.
template <Scalar T>
void factor_block(int m, int n, Matrix<T> a, T* tau, Matrix<T> t, T* saved) {
  if (n <= kPanel) {
    factor_columns(m, n, a, tau);
    return form_small_t(m, n, a, tau, t);
  }
  const int left = (n / 2 + kPanel - 1) / kPanel * kPanel, right = n - left;
  const Matrix<T> beside = a.from(0, left), rest = a.from(left, left), corner = t.from(0, left),
                  t_rest = t.from(left, left);
  factor_block(m, left, a, tau, t, saved);
  apply_block(m, right, left, a, t, beside, corner, saved);
  factor_block(m - left, right, rest, tau + left, t_rest, saved);

  // T = [T_0, -T_0 (V_0^H V_1) T_1; 0, T_1]
  const ExplicitTriangle<T> triangle(right, rest, saved);
  gemm('C', 'N', left, right, m - left, T{-1}, a.data() + left, a.lda(), rest.data(), rest.lda(), T{}, corner.data(),
       corner.lda());
  trmm('L', 'U', 'N', 'N', left, right, T{1}, t.data(), t.lda(), corner.data(), corner.lda());
  trmm('R', 'U', 'N', 'N', left, right, T{1}, t_rest.data(), t_rest.lda(), corner.data(), corner.lda());
}

template <Scalar T>
void factor_qr(int m, int n, Matrix<T> a, T* tau) {
  const int k = std::min(m, n), block = std::min(k, block_for(k));
  if (k <= kPanel || n <= kFewColumns<T>) return factor_columns(m, n, a, tau);
  const auto order = static_cast<std::size_t>(block);
  base::Workspace<T> memory(order * (2 * order + static_cast<std::size_t>(n)));
  if (!memory) return factor_columns(m, n, a, tau);
  const Matrix<T> t(memory.data(), block), w(memory.data() + order * order, block);
  T* const saved = w.column(n);
  for (int j = 0; j < k; j += block) {
    const int width = std::min(block, k - j), right = n - j - width;
    const Matrix<T> rest = a.from(j, j);
    factor_block(m - j, width, rest, tau + j, t, saved);
    if (right > 0) apply_block(m - j, right, width, rest, t, rest.from(0, width), w, saved);
  }
}

}  // namespace

template <Scalar T>
void geqrf(int m, int n, T* a, int lda, T* tau, T* work, int lwork, std::int32_t* info) noexcept {
  const bool is_query = lwork == -1;
  *info = -ArgumentCheck<T>("GEQRF")
               .require(1, m >= 0)
               .require(2, n >= 0)
               .require(4, lda >= least_leading_dimension(m))
               .require(7, is_query || lwork >= (m > 0 ? std::max(1, n) : 1))
               .reported();
  if (*info != 0) return;
  const int k = std::min(m, n);
  const auto best = k == 0 ? 1.0F : static_cast<float>(n) * kPublishedBlock;
  if (!is_query && k > 0) {
    const LapackCall call(ScalarTraits<T>::kLetter == 'S' ? "SGEQRF" : "CGEQRF", info);
    if (!call.may_begin()) return;
    factor_qr(m, n, Matrix<T>(a, lda), tau);
  }
  work[0] = best;
}

template void geqrf<float>(int, int, float*, int, float*, float*, int, std::int32_t*) noexcept;
template void geqrf<std::complex<float>>(int, int, std::complex<float>*, int, std::complex<float>*,
                                         std::complex<float>*, int, std::int32_t*) noexcept;

}  // namespace quorin::dense
