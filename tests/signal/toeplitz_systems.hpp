// Toeplitz systems, and their solution by dense elimination in double precision.
#pragma once

#include "tests/support/standard.hpp"

namespace quorin::signal_tests {

template <class T>
using Wide = std::conditional_t<std::is_same_v<T, float>, double, std::complex<double>>;

template <class T>
struct System {
  std::vector<T> row, column, b;
  int order() const { return static_cast<int>(row.size()); }
  Wide<T> entry(int i, int j) const { return j >= i ? Wide<T>(row[j - i]) : Wide<T>(column[i - j - 1]); }
};

template <class T>
T random_value(std::mt19937& engine) {
  const auto one = [&] { return static_cast<float>(engine()) / 2147483648.0F - 1.0F; };
  if constexpr (std::is_same_v<T, float>) {
    return one();
  } else {
    const float re = one();
    return {re, one()};
  }
}

// Elements in [-1, 1) but for the diagonal.
template <class T>
System<T> random_system(int m, T diagonal, unsigned seed) {
  std::mt19937 engine(seed);
  System<T> s;
  for (int i = 0; i < m; ++i) s.row.push_back(i == 0 ? diagonal : random_value<T>(engine));
  for (int i = 1; i < m; ++i) s.column.push_back(random_value<T>(engine));
  for (int i = 0; i < m; ++i) s.b.push_back(random_value<T>(engine));
  return s;
}

// A symmetric (or, with a phase, Hermitian) system with T(i, j) = f(j - i).
template <class T, class Function>
System<T> hermitian_system(int m, const Function& f, unsigned seed) {
  System<T> s = random_system<T>(m, T(1), seed);
  for (int i = 0; i < m; ++i) s.row[i] = static_cast<T>(Wide<T>(f(i)));
  for (int i = 1; i < m; ++i) {
    s.column[i - 1] = s.row[i];
    if constexpr (!std::is_same_v<T, float>) s.column[i - 1] = std::conj(s.row[i]);
  }
  return s;
}

// Gaussian elimination with partial pivoting, and one step of refinement.
template <class T>
std::vector<Wide<T>> solve_densely(const System<T>& s) {
  using W = Wide<T>;
  const int m = s.order();
  std::vector<std::vector<W>> a(m, std::vector<W>(m));
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < m; ++j) a[i][j] = s.entry(i, j);
  }
  std::vector<int> pivot(m);
  for (int k = 0; k < m; ++k) {
    pivot[k] = k;
    for (int i = k + 1; i < m; ++i) pivot[k] = std::abs(a[i][k]) > std::abs(a[pivot[k]][k]) ? i : pivot[k];
    std::swap(a[k], a[pivot[k]]);
    for (int i = k + 1; i < m; ++i) {
      a[i][k] /= a[k][k];
      for (int j = k + 1; j < m; ++j) a[i][j] -= a[i][k] * a[k][j];
    }
  }
  std::vector<W> x(m);
  for (int step = 0; step < 2; ++step) {
    std::vector<W> r(m);
    for (int i = 0; i < m; ++i) {
      r[i] = s.b[i];
      for (int j = 0; j < m; ++j) r[i] -= s.entry(i, j) * x[j];
    }
    // Whole rows were exchanged, factors included: P A = L U.
    for (int k = 0; k < m; ++k) std::swap(r[k], r[pivot[k]]);
    for (int k = 0; k < m; ++k) {
      for (int i = k + 1; i < m; ++i) r[i] -= a[i][k] * r[k];
    }
    for (int k = m; k-- > 0;) {
      for (int j = k + 1; j < m; ++j) r[k] -= a[k][j] * r[j];
      r[k] /= a[k][k];
    }
    for (int i = 0; i < m; ++i) x[i] += r[i];
  }
  return x;
}

// The largest error of an element, relative to the largest element.
template <class T>
double relative_error(const T* x, const std::vector<Wide<T>>& exact) {
  double error = 0.0, size = 0.0;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    const double difference = std::abs(Wide<T>(x[i]) - exact[i]);
    if (std::isnan(difference)) return difference;
    error = std::max(error, difference);
    size = std::max(size, std::abs(exact[i]));
  }
  return error / size;
}

}  // namespace quorin::signal_tests
