// A host of PARDISO: one handle, its arrays, and calls with all sixteen arguments.
#pragma once

#include "quorin/pardiso.h"
#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace pardiso_test {

template <class T>
struct Real {
  using type = T;
};
template <class T>
struct Real<std::complex<T>> {
  using type = T;
};
template <class T>
using RealOf = typename Real<T>::type;
template <class T>
inline constexpr bool kIsComplex = !std::is_same_v<T, RealOf<T>>;
template <class T>
inline constexpr bool kIsSingle = std::is_same_v<RealOf<T>, float>;
template <class T>
inline constexpr double kEpsilon = std::numeric_limits<RealOf<T>>::epsilon();

using Complex = std::complex<double>;

template <class T>
T from(Complex value) {
  if constexpr (kIsComplex<T>) {
    return T(static_cast<RealOf<T>>(value.real()), static_cast<RealOf<T>>(value.imag()));
  } else {
    return static_cast<T>(value.real());
  }
}

inline bool stores_upper(int mtype) { return mtype == 2 || std::abs(mtype) == 4 || mtype == -2 || mtype == 6; }
inline bool is_hermitian(int mtype) { return std::abs(mtype) == 4; }
inline bool is_complex(int mtype) { return mtype == 3 || std::abs(mtype) == 4 || mtype == 6 || mtype == 13; }

// Calls action.template operator()<T>() for the number types of that kind, of both precisions or of double alone.
template <class Action>
void in_double(int mtype, const Action& action) {
  is_complex(mtype) ? action.template operator()<Complex>() : action.template operator()<double>();
}
template <class Action>
void in_both_precisions(int mtype, const Action& action) {
  in_double(mtype, action);
  is_complex(mtype) ? action.template operator()<std::complex<float>>() : action.template operator()<float>();
}

// Compressed rows, one-based, as hosts of that mtype give them.
struct Matrix {
  int mtype = 11;
  std::vector<std::int32_t> ia, ja;
  std::vector<Complex> a;

  int n() const { return static_cast<int>(ia.size()) - 1; }

  // y <- op(A) x: 0 A, 1 A^H, 2 A^T, as iparm(12) counts.
  std::vector<Complex> times(const std::vector<Complex>& x, int operation = 0, bool magnitudes = false) const {
    std::vector<Complex> y(x.size());
    const auto add = [&](std::size_t i, std::size_t j, Complex value) {
      if (operation != 0) std::swap(i, j);
      if (operation == 1) value = std::conj(value);
      y[i] += magnitudes ? std::abs(value) * std::abs(x[j]) : value * x[j];
    };
    for (std::size_t i = 0; i + 1 < ia.size(); ++i) {
      for (auto k = static_cast<std::size_t>(ia[i] - 1); k < static_cast<std::size_t>(ia[i + 1] - 1); ++k) {
        const auto j = static_cast<std::size_t>(ja[k] - 1);
        add(i, j, a[k]);
        if (stores_upper(mtype) && i != j) add(j, i, is_hermitian(mtype) ? std::conj(a[k]) : a[k]);
      }
    }
    return y;
  }
};

// The upper triangle, or all of it, by rows; with all of the diagonal where the kind wants that.
inline Matrix matrix_of(const quorin::test::SparseMatrix& A, int mtype) {
  quorin::test::SparseMatrix kept;
  kept.rows = A.rows;
  kept.columns = A.columns;
  for (const auto& entry : A.entries) {
    if (!stores_upper(mtype) || entry.row <= entry.column) kept.add(entry.row, entry.column, entry.value);
  }
  if (mtype != 11 && mtype != 13) {
    for (int i = 0; i < A.rows; ++i) kept.add(i, i, 0.0);
  }
  kept.is_complex = A.is_complex;
  const auto rows = quorin::test::compressed_rows(kept, 1);
  Matrix matrix{mtype, rows.starts, rows.indices, {}};
  for (std::size_t k = 0; k < rows.re.size(); ++k) {
    matrix.a.emplace_back(rows.re[k], rows.im.empty() ? 0.0 : rows.im[k]);
  }
  return matrix;
}

template <class T>
class Host {
 public:
  explicit Host(const Matrix& A, int base = 1, int right_hand_sides = 1)
      : mtype(A.mtype), n(A.n()), nrhs(right_hand_sides), ia(A.ia), ja(A.ja), perm(static_cast<std::size_t>(A.n())) {
    sPARDISOINIT(pt.data(), &mtype, iparm.data());
    iparm[27] = kIsSingle<T> ? 1 : 0;
    iparm[34] = base == 0 ? 1 : 0;
    for (auto* indices : {&ia, &ja}) {
      for (auto& index : *indices) index += base - 1;
    }
    for (const Complex value : A.a) a.push_back(from<T>(value));
    const auto elements = static_cast<std::size_t>(n) * static_cast<std::size_t>(nrhs);
    b.assign(elements, T(1));
    x.assign(elements, T(-7));
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { release(); }

  int call(int phase) {
    std::int32_t error = 77;
    PARDISO(pt.data(), &maxfct, &mnum, &mtype, &phase, &n, a.data(), ia.data(), ja.data(), perm.data(), &nrhs,
            iparm.data(), &msglvl, b.data(), x.data(), &error);
    return error;
  }
  int release() { return call(-1); }

  // Calls visit(i, j, k) for each entry, which is a[k], rows and columns from 0.
  template <class Visit>
  void for_each_entry(const Visit& visit) const {
    for (int i = 0; i + 1 < static_cast<int>(ia.size()); ++i) {
      const int first = ia[static_cast<std::size_t>(i)] - ia[0], last = ia[static_cast<std::size_t>(i) + 1] - ia[0];
      for (auto k = static_cast<std::size_t>(first); k < static_cast<std::size_t>(last); ++k) {
        visit(i, ja[k] - ia[0], k);
      }
    }
  }

  // The entry with that number in the interface, from 1.
  std::int32_t& cell(std::size_t number) { return iparm[number - 1]; }

  std::vector<Complex> column(const std::vector<T>& values, std::size_t c) const {
    const auto size = static_cast<std::size_t>(n);
    std::vector<Complex> result;
    for (std::size_t i = 0; i < size; ++i) result.emplace_back(values[c * size + i]);
    return result;
  }

  std::array<void*, 64> pt{};
  std::array<std::int32_t, 64> iparm{};
  std::int32_t maxfct = 1, mnum = 1, mtype, n, nrhs, msglvl = 0;
  std::vector<T> a, b, x;
  std::vector<std::int32_t> ia, ja, perm;
};

// How residuals are measured.
enum class Measure {
  kComponents,  // |b - op(A) x|_i / (|A| |x| + |b|)_i, the largest
  kRows,        // |b - op(A) x|_i / (row sum of |A|_i ||x|| + |b|_i), the largest
  kNorm,        // ||b - op(A) x|| / (||A|| ||x|| + ||b||)
};

// With the values that the host has, in double precision and the maximum norm.
template <class T>
double backward_error(const Matrix& A, const Host<T>& host, const std::vector<T>& b, const std::vector<T>& x,
                      int operation = 0, Measure measure = Measure::kComponents) {
  Matrix given = A;
  for (std::size_t k = 0; k < given.a.size(); ++k) given.a[k] = Complex(host.a[k]);
  double worst = 0.0;
  for (std::size_t c = 0; c < static_cast<std::size_t>(host.nrhs); ++c) {
    const auto x_c = host.column(x, c), b_c = host.column(b, c);
    double largest_x = 0.0, largest_residual = 0.0, largest_size = 0.0;
    for (const Complex value : x_c) largest_x = std::max(largest_x, std::abs(value));
    const auto product = given.times(x_c, operation);
    const auto sizes = given.times(measure == Measure::kComponents ? x_c : std::vector<Complex>(x_c.size(), largest_x),
                                   operation, true);
    for (std::size_t i = 0; i < x_c.size(); ++i) {
      const double residual = std::abs(b_c[i] - product[i]), size = std::abs(sizes[i]) + std::abs(b_c[i]);
      if (std::isnan(residual)) return std::numeric_limits<double>::infinity();
      if (residual > 0.0 && measure != Measure::kNorm) worst = std::max(worst, residual / size);
      largest_residual = std::max(largest_residual, residual);
      largest_size = std::max(largest_size, size);
    }
    if (largest_residual > 0.0) worst = std::max(worst, largest_residual / largest_size);
  }
  return worst;
}

}  // namespace pardiso_test
