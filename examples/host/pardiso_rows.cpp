// The sparse direct solver: one analysis for several matrices, transposed systems, inertia, a Schur complement, and a
// factorization that goes through a file.
#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

using Complex = std::complex<double>;
constexpr double kNever = std::numeric_limits<double>::infinity();

// Compressed rows, counted from 1.
template <class T>
struct Rows {
  std::vector<int32_t> starts{1}, columns;
  std::vector<T> values;

  int32_t n() const { return static_cast<int32_t>(starts.size()) - 1; }
  void add(int32_t column, T value) {
    columns.push_back(column);
    values.push_back(value);
  }
  void end_row() { starts.push_back(static_cast<int32_t>(columns.size()) + 1); }
};

// max |b - op(A) x| / (max row sum of |A| * max |x| + max |b|); the mirror image of the upper triangle is conjugated.
template <class T>
double residual(const Rows<T>& A, bool is_half, bool is_transposed, const std::vector<T>& x, const std::vector<T>& b) {
  std::vector<T> rest = b;
  std::vector<double> sums(b.size());
  const auto subtract = [&](std::size_t i, std::size_t j, T value) {
    if (is_transposed) std::swap(i, j);
    rest[i] -= value * x[j];
    sums[i] += std::abs(value);
  };
  for (std::size_t i = 0; i < b.size(); ++i) {
    for (auto k = static_cast<std::size_t>(A.starts[i] - 1); k < static_cast<std::size_t>(A.starts[i + 1] - 1); ++k) {
      const auto j = static_cast<std::size_t>(A.columns[k] - 1);
      subtract(i, j, A.values[k]);
      if (!is_half || i == j) continue;
      if constexpr (std::is_same_v<T, Complex>) {
        subtract(j, i, std::conj(A.values[k]));
      } else {
        subtract(j, i, A.values[k]);
      }
    }
  }
  const auto largest = [](const auto& values) {
    double most = 0;
    for (const auto value : values) most = std::fmax(most, std::abs(value));
    return most;
  };
  return largest(rest) / (largest(sums) * largest(x) + largest(b));
}

// A handle with the defaults of a kind of matrix.
class Handle {
 public:
  Handle(const Library& library, int32_t mtype) : library_(library), mtype_(mtype) {
    library_.sPARDISOINIT(pt.data(), &mtype_, iparm.data());
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { call<double>(-1, nullptr, nullptr, nullptr); }

  template <class T>
  int32_t call(int32_t phase, const Rows<T>* A, std::vector<T>* b, std::vector<T>* x) {
    const int32_t one = 1, silent = 0, n = A == nullptr ? 0 : A->n();
    int32_t error = -5;
    library_.PARDISO(pt.data(), &one, &one, &mtype_, &phase, &n, A == nullptr ? nullptr : A->values.data(),
                     A == nullptr ? nullptr : A->starts.data(), A == nullptr ? nullptr : A->columns.data(),
                     flags.empty() ? nullptr : flags.data(), &one, iparm.data(), &silent,
                     b == nullptr ? nullptr : b->data(), x == nullptr ? nullptr : x->data(), &error);
    return error;
  }

  std::array<void*, 64> pt{};
  std::array<int32_t, 64> iparm{};
  std::vector<int32_t> flags;

 private:
  const Library& library_;
  int32_t mtype_;
};

// -laplace u + wind (u_x + u_y / 2) on side x side points, central differences.
Rows<double> convection_diffusion(int32_t side, double wind) {
  Rows<double> A;
  const double h = 1.0 / (side + 1), cx = wind * h / 2, cy = wind * h / 4;
  for (int32_t i = 0; i < side * side; ++i) {
    const int32_t row = i / side, column = i % side;
    if (row > 0) A.add(i + 1 - side, -1 - cy);
    if (column > 0) A.add(i, -1 - cx);
    A.add(i + 1, 4);
    if (column + 1 < side) A.add(i + 2, -1 + cx);
    if (row + 1 < side) A.add(i + 1 + side, -1 + cy);
    A.end_row();
  }
  return A;
}

double unsymmetric(const Library& library, Timer& timer) {
  Rows<double> A = convection_diffusion(60, 100.0);
  std::vector<double> b(static_cast<std::size_t>(A.n()), 1.0), x(b.size());
  Handle handle(library, 11);
  handle.iparm[7] = 2;  // refinement steps
  double worst = 0;
  timer.time([&] {
    if (handle.call(13, &A, &b, &x) != 0) worst = kNever;
  });
  worst = std::fmax(worst, residual(A, false, false, x, b));
  // Other values, the same analysis; then the transposed system.
  for (double& value : A.values) value = value > 0 ? value * 1.25 : value;
  for (const int32_t transposed : {0, 2}) {
    handle.iparm[11] = transposed;
    timer.time([&] {
      if (handle.call(transposed == 0 ? 23 : 33, &A, &b, &x) != 0) worst = kNever;
    });
    worst = std::fmax(worst, residual(A, false, transposed != 0, x, b));
  }
  return worst;
}

// [K B; B^T 0]: a mesh with constraints between pairs of neighbours. Each constraint is a negative eigenvalue.
double saddle_point(const Library& library, Timer& timer) {
  const int32_t side = 40, n = side * side, constraints = n / 4;
  const Rows<double> mesh = convection_diffusion(side, 0.0);
  Rows<double> A;
  for (int32_t i = 0; i < n; ++i) {
    for (auto k = static_cast<std::size_t>(mesh.starts[static_cast<std::size_t>(i)] - 1);
         k < static_cast<std::size_t>(mesh.starts[static_cast<std::size_t>(i) + 1] - 1); ++k) {
      if (mesh.columns[k] > i) A.add(mesh.columns[k], mesh.values[k]);
    }
    if (i / 4 < constraints && i % 4 < 2) A.add(n + 1 + i / 4, i % 4 == 0 ? 1.0 : -1.0);
    A.end_row();
  }
  for (int32_t c = 0; c < constraints; ++c) {
    A.add(n + 1 + c, 0.0);
    A.end_row();
  }
  std::vector<double> b(static_cast<std::size_t>(A.n()), 1.0), x(b.size());
  Handle handle(library, -2);
  int32_t error = -5;
  timer.time([&] { error = handle.call(13, &A, &b, &x); });
  if (error != 0 || handle.iparm[21] != n || handle.iparm[22] != constraints) return kNever;
  return residual(A, true, false, x, b);
}

// A particle on a ring in a magnetic field: definite above its lowest level, indefinite within its levels.
double hermitian_pair(const Library& library, Timer& timer) {
  const int32_t n = 2000;
  double worst = 0;
  for (const int32_t mtype : {4, -4}) {
    Rows<Complex> A;
    const Complex hop = -std::polar(1.0, 0.3);
    for (int32_t i = 1; i <= n; ++i) {
      A.add(i, mtype == 4 ? 2.5 : 0.37);
      if (i < n) A.add(i + 1, hop);
      if (i == 1) A.add(n, std::conj(hop));
      A.end_row();
    }
    std::vector<Complex> b(static_cast<std::size_t>(n), Complex(1, 1)), x(b.size());
    Handle handle(library, mtype);
    int32_t error = -5;
    timer.time([&] { error = handle.call(13, &A, &b, &x); });
    if (error != 0) return kNever;
    worst = std::fmax(worst, residual(A, true, false, x, b));
  }
  return worst;
}

// A chain of n unknowns, condensed to its two ends: [1 -1; -1 1] / (n - 1).
double schur_complement(const Library& library, Timer& timer) {
  const int32_t n = 1001;
  Rows<double> A;
  for (int32_t i = 1; i <= n; ++i) {
    A.add(i, i == 1 || i == n ? 1 : 2);
    if (i < n) A.add(i + 1, -1);
    A.end_row();
  }
  Handle handle(library, -2);
  handle.iparm[35] = 1;
  handle.flags.assign(static_cast<std::size_t>(n), 0);
  handle.flags.front() = handle.flags.back() = 1;
  std::vector<double> S(4);
  int32_t error = -5;
  timer.time([&] { error = handle.call<double>(12, &A, nullptr, &S); });
  if (error != 0) return kNever;
  const double expected = 1.0 / (n - 1);
  return std::fmax(std::fmax(std::fabs(S[0] - expected), std::fabs(S[1] + expected)),
                   std::fmax(std::fabs(S[2] + expected), std::fabs(S[3] - expected)));
}

}  // namespace

void pardiso_rows(const Library& library, Report& report) {
  report.heading("Sparse direct solver");
  report.row("PARDISO, convection-diffusion, refactored, transposed", "3600x3600", 1e-14,
             [&](Timer& timer) { return unsymmetric(library, timer); });
  report.row("PARDISO, saddle point with its inertia", "2000x2000", 1e-14,
             [&](Timer& timer) { return saddle_point(library, timer); });
  report.row("PARDISO, Hermitian, definite and not", "2000x2000", 1e-14,
             [&](Timer& timer) { return hermitian_pair(library, timer); });
  report.row("PARDISO, Schur complement of a chain", "1001x1001 to 2x2", 1e-12,
             [&](Timer& timer) { return schur_complement(library, timer); });
}

}  // namespace demo
