// Iterative solvers with reverse communication: the host keeps the matrix and answers requests.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

using Vector = std::vector<double>;

constexpr double kNever = std::numeric_limits<double>::infinity();

// Compressed rows, one-based, columns ascending.
struct Matrix {
  int32_t n = 0;
  std::vector<int32_t> starts{1}, columns;
  Vector values;

  void add(int32_t column, double value) {
    columns.push_back(column + 1);
    values.push_back(value);
  }
  void end_row() { starts.push_back(static_cast<int32_t>(columns.size()) + 1); }
  int32_t begin(int32_t i) const { return starts.data()[i] - 1; }

  void multiply(const double* x, double* y) const {
    for (int32_t i = 0; i < n; ++i) {
      double sum = 0;
      for (int32_t k = begin(i); k < begin(i + 1); ++k) sum += values.data()[k] * x[columns.data()[k] - 1];
      y[i] = sum;
    }
  }
};

// Five-point differences on k x k inner points of the unit square: -laplace u + wind (u_x + u_y / 2), upwind.
Matrix grid(int32_t k, double wind) {
  Matrix a;
  a.n = k * k;
  const double w = wind / (k + 1);
  for (int32_t i = 0; i < k; ++i) {
    for (int32_t j = 0; j < k; ++j) {
      const int32_t row = i * k + j;
      if (i > 0) a.add(row - k, -1 - w / 2);
      if (j > 0) a.add(row - 1, -1 - w);
      a.add(row, 4 + 1.5 * w);
      if (j + 1 < k) a.add(row + 1, -1);
      if (i + 1 < k) a.add(row + k, -1);
      a.end_row();
    }
  }
  return a;
}

// A known smooth solution, a different one for each right-hand side.
double known(int32_t i, int32_t right_hand_side) { return 1 + std::sin(0.001 * (right_hand_side + 1) * i); }

Vector known_solution(int32_t n, int32_t count) {
  Vector x;
  for (int32_t k = 0; k < count; ++k) {
    for (int32_t i = 0; i < n; ++i) x.push_back(known(i, k));
  }
  return x;
}

Vector products(const Matrix& a, const Vector& x) {
  Vector b(x.size());
  for (std::size_t at = 0; at < x.size(); at += static_cast<std::size_t>(a.n)) a.multiply(x.data() + at, b.data() + at);
  return b;
}

double relative_error(const Vector& x, const Vector& exact) {
  double difference = 0, size = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    difference = std::fmax(difference, std::fabs(x.data()[i] - exact.data()[i]));
    size = std::fmax(size, std::fabs(exact.data()[i]));
  }
  return difference / size;
}

// y <- M^-1 r, symmetric successive over-relaxation.
void relax(const Matrix& a, double omega, const double* r, double* y) {
  Vector diagonal(static_cast<std::size_t>(a.n));
  for (int32_t i = 0; i < a.n; ++i) {
    double sum = r[i];
    int32_t k = a.begin(i);
    for (; a.columns.data()[k] - 1 < i; ++k) sum -= omega * a.values.data()[k] * y[a.columns.data()[k] - 1];
    diagonal.data()[i] = a.values.data()[k];
    y[i] = sum / a.values.data()[k];
  }
  for (int32_t i = a.n - 1; i >= 0; --i) {
    double sum = 0;
    for (int32_t k = a.begin(i + 1) - 1; a.columns.data()[k] - 1 > i; --k) {
      sum += a.values.data()[k] * y[a.columns.data()[k] - 1];
    }
    y[i] -= omega * sum / diagonal.data()[i];
  }
}

// Entries of ipar and dpar that the rows set, zero-based.
constexpr int kLimit = 4, kResidualTest = 8, kHostTest = 9, kPreconditioned = 10, kZeroNormTest = 11, kRestart = 14;
constexpr int kSource = 21, kTarget = 22, kRightHandSide = 2;

struct Parameters {
  explicit Parameters(int32_t extra = 0)
      : ipar(static_cast<std::size_t>(128 + extra)), dpar(static_cast<std::size_t>(128 + extra)) {}
  void set(int32_t limit, bool preconditioned, double tolerance) {
    ipar.data()[kLimit] = limit;
    ipar.data()[kResidualTest] = 1;
    ipar.data()[kHostTest] = 0;
    ipar.data()[kPreconditioned] = preconditioned ? 1 : 0;
    dpar.data()[0] = tolerance;
  }
  std::vector<int32_t> ipar;
  Vector dpar;
};

struct Solution {
  double error = kNever;
  int32_t iterations = 0;
};

Solution conjugate_gradients(const Library& library, const Matrix& a, bool preconditioned, Timer& timer) {
  const Vector exact = known_solution(a.n, 1), b = products(a, exact);
  Vector x(b.size()), tmp(4 * b.size());
  Parameters p;
  double *columns[4] = {}, *t = tmp.data();
  for (int k = 0; k < 4; ++k) columns[k] = t + static_cast<std::ptrdiff_t>(k) * a.n;
  int32_t request = -1;
  library.DCG_INIT(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), t);
  p.set(2000, preconditioned, 1e-20);
  library.DCG_CHECK(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), t);
  if (request != 0) return {};
  for (;;) {
    timer.time([&] { library.DCG(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), t); });
    if (request == 1) {
      a.multiply(columns[0], columns[1]);
    } else if (request == 3) {
      relax(a, 1.95, columns[2], columns[3]);
    } else {
      break;
    }
  }
  Solution result;
  if (request == 0) result.error = relative_error(x, exact);
  library.DCG_GET(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), t, &result.iterations);
  return result;
}

double four_right_hand_sides(const Library& library, const Matrix& a, Timer& timer) {
  const int32_t count = 4, method = 1;
  const Vector exact = known_solution(a.n, count), b = products(a, exact);
  Vector x(b.size()), tmp(static_cast<std::size_t>(3 + count) * static_cast<std::size_t>(a.n));
  Parameters p(2 * count);
  int32_t request = -1;
  library.DCGMRHS_INIT(&a.n, x.data(), &count, b.data(), &method, &request, p.ipar.data(), p.dpar.data(), tmp.data());
  if (request != 0) return kNever;
  p.set(2000, true, 1e-20);
  const auto column = [&](int32_t k) { return tmp.data() + static_cast<std::ptrdiff_t>(k) * a.n; };
  for (;;) {
    timer.time([&] {
      library.sDCGMRHS_Idx(&a.n, x.data(), 0, &count, b.data(), 0, &request, p.ipar.data(), 0, p.dpar.data(), 0,
                           tmp.data(), 0);
    });
    if (request == 1) {
      a.multiply(column(0), column(1));
    } else if (request == 3) {
      relax(a, 1.95, column(2 + p.ipar.data()[kRightHandSide]), column(2));
    } else {
      break;
    }
  }
  return request == 0 ? relative_error(x, exact) : kNever;
}

// The factors of ILUT, and y <- U^-1 L^-1 r.
struct Factors : Matrix {
  void solve(const double* r, double* y) const {
    for (int32_t i = 0; i < n; ++i) {
      y[i] = r[i];
      for (int32_t k = begin(i); columns.data()[k] - 1 < i; ++k) y[i] -= values.data()[k] * y[columns.data()[k] - 1];
    }
    for (int32_t i = n - 1; i >= 0; --i) {
      int32_t k = begin(i + 1) - 1;
      for (; columns.data()[k] - 1 > i; --k) y[i] -= values.data()[k] * y[columns.data()[k] - 1];
      y[i] /= values.data()[k];
    }
  }
};

Factors ilut(const Library& library, const Matrix& a, const Parameters& p, Timer& timer) {
  const double tolerance = 1e-4;
  const int32_t fill = 10;
  Factors f;
  f.n = a.n;
  f.starts.resize(static_cast<std::size_t>(a.n) + 1);
  const int32_t length = (2 * fill + 1) * a.n - fill * (fill + 1) + 1;
  f.columns.resize(static_cast<std::size_t>(length));
  f.values.resize(f.columns.size());
  int32_t error = -1;
  timer.time([&] {
    library.DCSRILUT(&a.n, a.values.data(), a.starts.data(), a.columns.data(), f.values.data(), f.starts.data(),
                     f.columns.data(), &tolerance, &fill, p.ipar.data(), p.dpar.data(), &error);
  });
  if (error != 0) f.n = 0;
  return f;
}

Solution flexible_gmres(const Library& library, const Matrix& a, bool preconditioned, Timer& timer) {
  const int32_t m = 30;
  const Vector exact = known_solution(a.n, 1);
  Vector b = products(a, exact), x(b.size()), tmp(static_cast<std::size_t>((2 * m + 1) * a.n + m * (m + 9) / 2 + 1));
  Parameters p;
  int32_t request = -1;
  library.DFGMRES_INIT(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data());
  p.set(5000, preconditioned, 1e-11);
  p.ipar.data()[kZeroNormTest] = 1;
  p.ipar.data()[kRestart] = m;
  p.dpar.data()[30] = 1e-3;
  const Factors factors = preconditioned ? ilut(library, a, p, timer) : Factors{};
  if (request != 0 || (preconditioned && factors.n == 0)) return {};
  for (;;) {
    timer.time([&] { library.DFGMRES(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data()); });
    const double* source = tmp.data() + p.ipar.data()[kSource] - 1;
    double* target = tmp.data() + p.ipar.data()[kTarget] - 1;
    if (request == 1) {
      a.multiply(source, target);
    } else if (request == 3) {
      factors.solve(source, target);
    } else {
      break;
    }
  }
  if (request != 0) return {};
  Solution result;
  library.DFGMRES_GET(&a.n, x.data(), b.data(), &request, p.ipar.data(), p.dpar.data(), tmp.data(), &result.iterations);
  result.error = relative_error(x, exact);
  return result;
}

}  // namespace

void rci_rows(const Library& library, Report& report) {
  report.heading("Iterative solvers with reverse communication (time without the host's products)");
  const Matrix poisson = grid(200, 0), wind = grid(150, 200);
  int32_t plain = 0;
  report.row("CG, Poisson", "200x200 grid", 1e-6, [&](Timer& timer) {
    const Solution s = conjugate_gradients(library, poisson, false, timer);
    plain = s.iterations;
    return s.error;
  });
  report.row("CG, Poisson, SSOR: less than 1/4 of the steps", "200x200 grid", 1e-6, [&](Timer& timer) {
    const Solution s = conjugate_gradients(library, poisson, true, timer);
    return 4 * s.iterations < plain ? s.error : kNever;
  });
  report.row("CG for several right-hand sides, Poisson, SSOR", "200x200 grid, 4 rhs", 1e-6,
             [&](Timer& timer) { return four_right_hand_sides(library, poisson, timer); });
  report.row("FGMRES(30), convection and diffusion", "150x150 grid", 1e-6, [&](Timer& timer) {
    const Solution s = flexible_gmres(library, wind, false, timer);
    plain = s.iterations;
    return s.error;
  });
  report.row("FGMRES(30) with ILUT: less than 1/10 of the steps", "150x150 grid", 1e-6, [&](Timer& timer) {
    const Solution s = flexible_gmres(library, wind, true, timer);
    return 10 * s.iterations < plain ? s.error : kNever;
  });
}

}  // namespace demo
