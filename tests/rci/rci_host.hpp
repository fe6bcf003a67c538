// Hosts as the documents describe them, for the tests of the iterative solvers: matrices in compressed rows, arrays
// between guard words, and loops that answer requests and keep a record.
#pragma once

#include <cmath>
#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "quorin/rci.h"
#include "tests/support/guarded.hpp"

namespace rci_test {

using Vector = std::vector<double>;

// Compressed rows, one-based, columns ascending.
struct Csr {
  int n = 0;
  std::vector<int> ia, ja;
  Vector a;

  void multiply(const double* x, double* y) const {
    for (int i = 0; i < n; ++i) {
      double sum = 0.0;
      for (int k = ia[i] - 1; k < ia[i + 1] - 1; ++k) sum += a[k] * x[ja[k] - 1];
      y[i] = sum;
    }
  }
  Vector operator*(const Vector& x) const {
    Vector y(x.size());
    multiply(x.data(), y.data());
    return y;
  }
};

using Dense = std::vector<Vector>;

inline Csr sparse(const Dense& m) {
  Csr s;
  s.n = static_cast<int>(m.size());
  s.ia.push_back(1);
  for (const Vector& row : m) {
    for (std::size_t j = 0; j < row.size(); ++j) {
      if (row[j] == 0.0) continue;
      s.a.push_back(row[j]);
      s.ja.push_back(static_cast<int>(j) + 1);
    }
    s.ia.push_back(static_cast<int>(s.a.size()) + 1);
  }
  return s;
}

inline Dense dense(const Csr& s) {
  Dense m(s.n, Vector(s.n, 0.0));
  for (int i = 0; i < s.n; ++i) {
    for (int k = s.ia[i] - 1; k < s.ia[i + 1] - 1; ++k) m[i][s.ja[k] - 1] += s.a[k];
  }
  return m;
}

inline void expect_near(const Vector& actual, const Vector& expected, double slack) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], slack) << "entry " << i;
}

// Published values have 10 digits or fewer; a 0 stands for rounding errors of at most `zero`.
inline void expect_history(const Vector& actual, const Vector& expected, double zero, double relative = 5e-7) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t k = 0; k < actual.size(); ++k) {
    EXPECT_NEAR(actual[k], expected[k], expected[k] == 0.0 ? zero : relative * std::fabs(expected[k])) << "step " << k;
  }
}

inline Vector joined(const Vector& first, const Vector& second) {
  Vector all = first;
  all.insert(all.end(), second.begin(), second.end());
  return all;
}

inline double dot(int n, const double* x, const double* y) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) sum += x[i] * y[i];
  return sum;
}

inline double norm(const Vector& x) {
  double sum = 0.0;
  for (const double e : x) sum = std::hypot(sum, e);
  return sum;
}

inline double residual_norm(const Csr& A, const double* b, const double* x) {
  Vector r(A.n);
  A.multiply(x, r.data());
  for (int i = 0; i < A.n; ++i) r[i] = b[i] - r[i];
  return norm(r);
}

inline Vector random_vector(int n, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  Vector x(n);
  for (double& e : x) e = entry(random);
  return x;
}

// About `density` n^2 entries, diagonal dominant by `dominance`; symmetric (then positive definite) or not.
inline Csr random_matrix(int n, double density, double dominance, bool symmetric, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0), chance(0.0, 1.0);
  Dense m(n, Vector(n, 0.0));
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      if (i == j || chance(random) >= density) continue;
      m[i][j] = entry(random);
      if (symmetric) m[j][i] = m[i][j];
    }
  }
  for (int i = 0; i < n; ++i) {
    double sum = 0.0;
    for (int j = 0; j < n; ++j) sum += std::fabs(m[i][j]);
    m[i][i] = dominance * sum + 0.1 + chance(random);
  }
  return sparse(m);
}

using quorin::test::Guarded;

// Applies M^-1; `iteration` is ipar(4).
using Preconditioner = std::function<void(int iteration, const double* in, double* out)>;

// What a run did: its requests as a word of digits, the residual entry after each step, the status at the end.
struct Record {
  std::string requests;
  Vector residuals;
  int status = 0;
};

// Runs a solve with CG to its end.
template <class Host>
Record run_cg(Host& host, int most) {
  Record record;
  while (most-- > 0) {
    const bool product_taken = host.request == 1;
    record.status = host.step();
    if (record.status > 0) record.requests += static_cast<char>('0' + record.status);
    if (product_taken && record.status >= -1) record.residuals.push_back(host.dpar[4]);
    if (!host.serve()) break;
  }
  return record;
}

// One solve with CG. Arrays are as short as a plain run allows; options are set through ipar and dpar.
class CgHost {
 public:
  CgHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned = false)
      : A(matrix),
        ipar(preconditioned ? 128 : 11, -77),
        dpar(preconditioned ? 128 : 8, -7.7),
        tmp(static_cast<std::size_t>(A.n) * (preconditioned ? 4 : 3), std::nan("")),
        x(start),
        b(rhs) {
    DCG_INIT(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    ipar[5] = ipar[6] = 0;  // no messages
    if (preconditioned) ipar[10] = 1;
  }

  int check() {
    DCG_CHECK(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  int step() {
    DCG(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  // Does what the last request asks. False when nothing is left to do.
  bool serve() {
    double* column = tmp.data();
    if (request == 1) A.multiply(column, column + A.n);
    if (request == 3) precondition(ipar[3], column + 2 * A.n, column + 3 * A.n);
    if (request == 2) return !(satisfied && satisfied());
    return request > 0;
  }
  // The automatic residual test alone.
  void test_residual(double relative) {
    ipar[8] = 1;
    ipar[9] = 0;
    dpar[0] = relative;
  }
  Record run(int most = 100000) { return run_cg(*this, most); }
  int itercount() {
    int count = -1;
    DCG_GET(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data(), &count);
    return count;
  }
  bool intact() const { return ipar.intact() && dpar.intact() && tmp.intact(); }

  const Csr& A;
  Guarded<int> ipar;
  Guarded<double> dpar;
  Guarded<double> tmp;
  Vector x, b;
  Preconditioner precondition;
  std::function<bool()> satisfied;
  int request = -1;
};

// One solve with CG for several right-hand sides.
class ManyHost {
 public:
  ManyHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned = false)
      : A(matrix),
        nrhs(static_cast<int>(rhs.size()) / A.n),
        ipar(128 + 2 * nrhs, -77),
        dpar(128 + 2 * nrhs, -7.7),
        tmp(static_cast<std::size_t>(A.n) * (3 + nrhs), std::nan("")),
        x(start),
        b(rhs) {
    init(nrhs, 1);
    ipar[5] = ipar[6] = 0;  // no messages
    if (preconditioned) ipar[10] = 1;
  }

  int init(int count, int method) {
    DCGMRHS_INIT(&A.n, x.data(), &count, b.data(), &method, &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  int check(int count) {
    DCGMRHS_CHECK(&A.n, x.data(), &count, b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  int step() {
    sDCGMRHS_Idx(&A.n, x.data(), 0, &nrhs, b.data(), 0, &request, ipar.data(), 0, dpar.data(), 0, tmp.data(), 0);
    return request;
  }
  bool serve() {
    double* column = tmp.data();
    // Only a misled solver asks for a right-hand side that is not there.
    if (request == 3 && (ipar[2] < 1 || ipar[2] > nrhs)) return false;
    if (request == 1) A.multiply(column, column + A.n);
    if (request == 3) precondition(ipar[3], column + (2 + ipar[2]) * A.n, column + 2 * A.n);
    return request > 0;
  }
  void test_residual(double relative) {
    ipar[8] = 1;
    ipar[9] = 0;
    dpar[0] = relative;
  }
  Record run(int most = 100000) { return run_cg(*this, most); }
  std::vector<int> counts() {
    std::vector<int> k(nrhs);
    DCGMRHS_GET(&A.n, x.data(), &nrhs, b.data(), &request, ipar.data(), dpar.data(), tmp.data(), k.data());
    return k;
  }
  bool intact() const { return ipar.intact() && dpar.intact() && tmp.intact(); }

  const Csr& A;
  int nrhs;
  Guarded<int> ipar;
  Guarded<double> dpar, tmp;
  Vector x, b;
  Preconditioner precondition;
  int request = -1;
};

// One solve with FGMRES.
class FgmresHost {
 public:
  // `m`: cycle length (0: the default); without a preconditioner tmp ends before the preconditioned vectors.
  FgmresHost(const Csr& matrix, const Vector& rhs, const Vector& start, int m = 0, bool preconditioned = false)
      : A(matrix),
        ipar(128, -77),
        dpar(128, -7.7),
        tmp(tmp_size(A.n, m, preconditioned), std::nan("")),
        x(start),
        b(rhs),
        scratch(rhs) {
    DFGMRES_INIT(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    if (m > 0) ipar[14] = m;
    ipar[5] = ipar[6] = 0;  // no messages
    if (preconditioned) ipar[10] = 1;
  }

  static std::size_t tmp_size(int n, int m, bool preconditioned) {
    const int length = m > 0 ? m : std::min(150, n);
    return static_cast<std::size_t>((preconditioned ? 2 * length + 1 : length + 1) * n + length * (length + 9) / 2 + 1);
  }

  int check() {
    DFGMRES_CHECK(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  int step() {
    DFGMRES(&A.n, x.data(), b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    return request;
  }
  bool serve() {
    const double* source = tmp.data() + ipar[21] - 1;
    double* target = tmp.data() + ipar[22] - 1;
    if (request == 1) A.multiply(source, target);
    if (request == 3) precondition(ipar[3], source, target);
    if (request == 2) return !(satisfied && satisfied());
    if (request == 4) return dpar[6] >= 1e-12;
    return request > 0;
  }
  Record run(int most = 100000) {
    Record record;
    int noted = -1;
    while (most-- > 0) {
      // The product of a restart comes with the number of a step that is noted already.
      const int iteration = ipar[3];
      const bool product_taken = request == 1 && iteration != noted;
      if (product_taken) noted = iteration;
      record.status = step();
      if (record.status > 0) record.requests += static_cast<char>('0' + record.status);
      if (product_taken && record.status >= -1) record.residuals.push_back(dpar[4]);
      if (!serve()) break;
    }
    return record;
  }
  // The iterate, by GET into a scratch vector.
  const Vector& trial() {
    const int target = ipar[12];
    ipar[12] = 1;
    get(scratch);
    ipar[12] = target;
    return scratch;
  }
  int get(Vector& into_b) {
    int status = -1;
    itercount = -1;
    DFGMRES_GET(&A.n, x.data(), into_b.data(), &status, ipar.data(), dpar.data(), tmp.data(), &itercount);
    return status;
  }
  int get() { return get(b); }
  double true_residual() { return residual_norm(A, b.data(), trial().data()); }
  bool intact() const { return ipar.intact() && dpar.intact() && tmp.intact(); }

  const Csr& A;
  Guarded<int> ipar;
  Guarded<double> dpar;
  Guarded<double> tmp;
  Vector x, b, scratch;
  Preconditioner precondition;
  std::function<bool()> satisfied;
  int request = -1;
  int itercount = -1;
};

// out <- U^-1 L^-1 in, with L (unit diagonal) and U stored in one pattern.
inline void solve_lu(const Csr& lu, const double* in, double* out) {
  for (int i = 0; i < lu.n; ++i) {
    out[i] = in[i];
    for (int k = lu.ia[i] - 1; lu.ja[k] - 1 < i; ++k) out[i] -= lu.a[k] * out[lu.ja[k] - 1];
  }
  for (int i = lu.n - 1; i >= 0; --i) {
    int k = lu.ia[i + 1] - 2;
    for (; lu.ja[k] - 1 > i; --k) out[i] -= lu.a[k] * out[lu.ja[k] - 1];
    out[i] /= lu.a[k];
  }
}

}  // namespace rci_test
