#include "tests/rci/rci_host.hpp"

#include "tests/support/standard.hpp"

namespace rci_test {

void Csr::multiply(const double* x, double* y) const {
  for (int i = 0; i < n; ++i) {
    double sum = 0.0;
    for (int k = ia[i] - 1; k < ia[i + 1] - 1; ++k) sum += a[k] * x[ja[k] - 1];
    y[i] = sum;
  }
}

Vector Csr::operator*(const Vector& x) const {
  Vector y(x.size());
  multiply(x.data(), y.data());
  return y;
}

Csr sparse(const Dense& m) {
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

Csr spd4() { return sparse({{4, -1, -1, 0}, {-1, 4, 0, -1}, {-1, 0, 4, -1}, {0, -1, -1, 4}}); }

Csr nonsymmetric5() {
  return sparse({{1, 0, -1, 0, 0}, {-1, 1, 0, -1, 0}, {0, 1, -2, 0, 1}, {0, 0, -1, 2, -1}, {0, 0, 0, -1, -3}});
}

Csr indefinite8() {
  return sparse({{7, 0, 1, 0, 0, 2, 7, 0},
                 {0, -4, 8, 0, 2, 0, 0, 0},
                 {1, 8, 1, 0, 0, 0, 0, 5},
                 {0, 0, 0, 7, 0, 0, 9, 0},
                 {0, 2, 0, 0, 5, 1, 5, 0},
                 {2, 0, 0, 0, 1, -1, 0, 5},
                 {7, 0, 0, 9, 5, 0, 11, 0},
                 {0, 0, 5, 0, 0, 5, 0, 5}});
}

void expect_near(const Vector& actual, const Vector& expected, double slack) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], slack) << "entry " << i;
}

void expect_history(const Vector& actual, const Vector& expected, double zero, double relative) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t k = 0; k < actual.size(); ++k) {
    EXPECT_NEAR(actual[k], expected[k], expected[k] == 0.0 ? zero : relative * std::fabs(expected[k])) << "step " << k;
  }
}

Vector joined(const Vector& first, const Vector& second) {
  Vector all = first;
  all.insert(all.end(), second.begin(), second.end());
  return all;
}

double norm(const Vector& x) {
  double sum = 0.0;
  for (const double e : x) sum = std::hypot(sum, e);
  return sum;
}

double residual_norm(const Csr& A, const double* b, const double* x) {
  Vector r(A.n);
  A.multiply(x, r.data());
  for (int i = 0; i < A.n; ++i) r[i] = b[i] - r[i];
  return norm(r);
}

Vector random_vector(int n, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  Vector x(n);
  for (double& e : x) e = entry(random);
  return x;
}

Csr csr(const quorin::test::SparseMatrix& A) {
  quorin::test::CompressedArrays rows = compressed_rows(A, 1);
  return {A.rows, std::move(rows.starts), std::move(rows.indices), std::move(rows.re)};
}

Csr random_matrix(int n, double density, double dominance, bool symmetric, std::mt19937& random) {
  return csr(quorin::test::random_dominant(n, density, dominance, symmetric, random));
}

Preconditioner jacobi(const Csr& A) {
  Vector diagonal(A.n);
  for (int i = 0; i < A.n; ++i) {
    for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) diagonal[i] += A.ja[k] == i + 1 ? A.a[k] : 0.0;
  }
  return [diagonal](int, const double* in, double* out) {
    for (std::size_t i = 0; i < diagonal.size(); ++i) out[i] = in[i] / diagonal[i];
  };
}

bool Host::serve() {
  if (request == 1) A.multiply(source(), target());
  if (request == 3) precondition(ipar[3], source(), target());
  if (request == 2) return !(satisfied && satisfied());
  if (request == 4) return dpar[6] >= 1e-12;
  return request > 0;
}

bool Host::advance() {
  const bool product_taken = request == 1;
  step();
  if (request > 0) requests += static_cast<char>('0' + request);
  if (product_taken && request >= -1) residuals.push_back(dpar[4]);
  return serve();
}

int Host::run(int most) {
  while (most-- > 0 && advance()) {
  }
  return request;
}

void Host::test_residual(double relative) {
  ipar[8] = 1;
  ipar[9] = 0;
  dpar[0] = relative;
}

Host::Host(const Csr& matrix, const Vector& rhs, const Vector& start, std::size_t integers, std::size_t reals,
           std::size_t work)
    : A(matrix), ipar(integers, -77), dpar(reals, -7.7), tmp(work, std::nan("")), x(start), b(rhs) {}

void Host::begin(bool preconditioned) {
  ipar[5] = ipar[6] = 0;  // no messages
  if (preconditioned) ipar[10] = 1;
}

CgHost::CgHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned)
    : Host(matrix, rhs, start, preconditioned ? 128 : 11, preconditioned ? 128 : 8,
           rhs.size() * (preconditioned ? 4 : 3)) {
  init(A.n);
  begin(preconditioned);
}

int CgHost::itercount() {
  int count = -1;
  call(sDCG_GET_Idx, A.n, &count);
  return count;
}

ManyHost::ManyHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned)
    : Host(matrix, rhs, start, 128 + 2 * rhs.size() / matrix.n, 128 + 2 * rhs.size() / matrix.n,
           static_cast<std::size_t>(3 * matrix.n) + rhs.size()),
      nrhs(static_cast<int>(rhs.size()) / A.n) {
  init(nrhs, 1);
  begin(preconditioned);
}

int ManyHost::init(int count, int method) {
  call_index_form(sDCGMRHS_INIT_Idx, &A.n, x, &count, b, &method, &request, ipar, dpar, tmp);
  return request;
}

std::vector<int> ManyHost::counts() {
  std::vector<int> k(nrhs);
  call_with_count(sDCGMRHS_GET_Idx, k.data());
  return k;
}

namespace {

std::size_t tmp_size(int n, int m, bool preconditioned) {
  return static_cast<std::size_t>((preconditioned ? 2 * m + 1 : m + 1) * n + m * (m + 9) / 2 + 1);
}

}  // namespace

FgmresHost::FgmresHost(const Csr& matrix, const Vector& rhs, const Vector& start, int m, bool preconditioned)
    : Host(matrix, rhs, start, 128, 128, tmp_size(matrix.n, m > 0 ? m : std::min(150, matrix.n), preconditioned)) {
  init(A.n);
  if (m > 0) ipar[14] = m;
  begin(preconditioned);
}

void FgmresHost::test_residual(double relative) {
  Host::test_residual(relative);
  ipar[11] = 1;
}

int FgmresHost::get(Vector& into) {
  int status = -1;
  itercount = -1;
  call_index_form(sDFGMRES_GET_Idx, &A.n, x, into, &status, ipar, dpar, tmp, &itercount);
  return status;
}

Vector FgmresHost::solution() {
  Vector iterate(x.size());
  const int target = std::exchange(ipar[12], 1);
  get(iterate);
  ipar[12] = target;
  return iterate;
}

}  // namespace rci_test
