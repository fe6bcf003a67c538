#include "tests/feast/feast_host.hpp"

#include "quorin/feast.h"
#include "tests/support/index_form.hpp"
#include "tests/support/standard.hpp"

extern "C" {
void xerbla_(const char*, const int*, std::size_t) { std::abort(); }
void zhegv_(const int* itype, const char* jobz, const char* uplo, const int* n, std::complex<double>* a, const int* lda,
            std::complex<double>* b, const int* ldb, double* w, std::complex<double>* work, const int* lwork,
            double* rwork, int* info, std::size_t, std::size_t);
void dsygv_(const int* itype, const char* jobz, const char* uplo, const int* n, double* a, const int* lda, double* b,
            const int* ldb, double* w, double* work, const int* lwork, int* info, std::size_t, std::size_t);
}

namespace feast_test {
namespace {

std::size_t to_size(int n) { return static_cast<std::size_t>(n); }

template <class T>
T value_as(Wide value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value.real());
  } else {
    return static_cast<T>(value);
  }
}

// Column-major, the lower triangle; the identity for no entries.
template <class T>
std::vector<T> dense(const SparseMatrix& lower, int n) {
  std::vector<T> M(to_size(n) * to_size(n));
  for (const auto& [i, j, value] : lower.entries) M[to_size(i) + to_size(j) * to_size(n)] += value_as<T>(value);
  if (lower.entries.empty()) {
    for (int i = 0; i < n; ++i) M[to_size(i) * (to_size(n) + 1)] = 1;
  }
  return M;
}

// norm1(|M| |x|)
double sum_of_terms(const SparseMatrix& M, const std::vector<Wide>& x) {
  SparseMatrix magnitudes = M;
  for (auto& entry : magnitudes.entries) entry.value = std::abs(entry.value);
  std::vector<Wide> magnitude_of_x;
  for (const Wide element : x) magnitude_of_x.emplace_back(std::abs(element));
  double sum = 0;
  for (const Wide element : multiply(magnitudes, magnitude_of_x)) sum += element.real();
  return sum;
}

struct ComplexArray {
  std::vector<Complex>& values;
  quorin_complex* data() const { return reinterpret_cast<quorin_complex*>(values.data()); }
};

}  // namespace

Problem make_problem(std::string name, SparseMatrix A, SparseMatrix B) {
  for (SparseMatrix* M : {&A, &B}) {
    std::map<std::pair<int, int>, Wide> sums;
    for (const auto& [i, j, value] : M->entries) sums[{i, j}] += value;
    M->entries.clear();
    for (const auto& [place, value] : sums) M->entries.push_back({place.first, place.second, Wide(Complex(value))});
  }
  return {std::move(name), std::move(A), std::move(B)};
}

std::vector<Wide> multiply(const SparseMatrix& M, const std::vector<Wide>& x) {
  if (M.entries.empty()) return x;
  std::vector<Wide> y(x.size());
  for (const auto& [i, j, value] : M.entries) {
    y[to_size(i)] += value * x[to_size(j)];
    if (i != j) y[to_size(j)] += std::conj(value) * x[to_size(i)];
  }
  return y;
}

// With a diagonal of ones, B is as well-conditioned as it can be made by scaling (van der Sluis), and LAPACK's results
// as accurate.
std::vector<double> all_eigenvalues(const Problem& given) {
  Problem problem = given;
  std::vector<double> scale(to_size(given.n()), 1.0);
  for (const auto& [i, j, value] : given.B.entries) {
    if (i == j) scale[to_size(i)] = 1 / std::sqrt(value.real());
  }
  for (SparseMatrix* M : {&problem.A, &problem.B}) {
    for (auto& [i, j, value] : M->entries) value *= scale[to_size(i)] * scale[to_size(j)];
  }
  const int itype = 1, n = problem.n(), lwork = 64 * n;
  std::vector<double> w(to_size(n));
  int info = -1;
  if (problem.is_complex()) {
    std::vector<Wide> A = dense<Wide>(problem.A, n), B = dense<Wide>(problem.B, n), work(to_size(lwork));
    std::vector<double> rwork(3 * to_size(n));
    zhegv_(&itype, "N", "L", &n, A.data(), &n, B.data(), &n, w.data(), work.data(), &lwork, rwork.data(), &info, 1, 1);
  } else {
    std::vector<double> A = dense<double>(problem.A, n), B = dense<double>(problem.B, n), work(to_size(lwork));
    dsygv_(&itype, "N", "L", &n, A.data(), &n, B.data(), &n, w.data(), work.data(), &lwork, &info, 1, 1);
  }
  EXPECT_EQ(info, 0) << "the oracle failed: " << problem.name;
  return w;
}

template <class T>
Csr<T> csr(const SparseMatrix& lower, char uplo) {
  const char triangle = static_cast<char>(std::toupper(uplo));
  std::map<std::pair<int, int>, Wide> entries;
  for (const auto& [i, j, value] : lower.entries) {
    if (triangle != 'U') entries[{i, j}] = value;
    if (triangle != 'L') entries[{j, i}] = std::conj(value);
  }
  Csr<T> result;
  result.starts.assign(to_size(lower.rows) + 1, 0);
  for (const auto& [place, value] : entries) {
    ++result.starts[to_size(place.first) + 1];
    result.columns.push_back(place.second + 1);
    // The diagonal's imaginary part is not read.
    result.values.push_back(value_as<T>(place.first == place.second ? value + Wide(0, 0.75) : value));
  }
  result.starts[0] = 1;
  for (std::size_t i = 1; i < result.starts.size(); ++i) result.starts[i] += result.starts[i - 1];
  return result;
}
template Csr<float> csr(const SparseMatrix&, char);
template Csr<Complex> csr(const SparseMatrix&, char);

void Call::defaults() {
  fpm.assign(128, -7);
  feastinit_32f(fpm.data());
}

void solve(const Problem& problem, Call& call, bool as_complex) {
  const int n = problem.n();
  const std::size_t room = to_size(n) * to_size(call.m0);
  call.e.assign(to_size(call.m0), -7);
  call.res.assign(to_size(call.m0), -7);
  call.x.assign(room, -7);
  std::copy_n(call.guess.begin(), std::min(room, call.guess.size()), call.x.begin());
  using quorin::test::call_index_form;
  if (as_complex) {
    Csr<Complex> A = csr<Complex>(problem.A, call.uplo), B = csr<Complex>(problem.B, call.uplo);
    if (problem.is_generalized()) {
      const quorin_complex* const a = ComplexArray{A.values}.data();
      constexpr int kIgnored = -1000000;
      call_index_form(cfeast_hcsrgv_Idx, &call.uplo, &n, a, kIgnored, A.starts, A.columns, ComplexArray{B.values},
                      B.starts, B.columns, call.fpm, &call.epsout, &call.loop, &call.emin, &call.emax, &call.m0, call.e,
                      ComplexArray{call.x}, &call.m, call.res, &call.info);
    } else {
      call_index_form(cfeast_hcsrev_Idx, &call.uplo, &n, ComplexArray{A.values}, A.starts, A.columns, call.fpm,
                      &call.epsout, &call.loop, &call.emin, &call.emax, &call.m0, call.e, ComplexArray{call.x}, &call.m,
                      call.res, &call.info);
    }
    return;
  }
  const Csr<float> A = csr<float>(problem.A, call.uplo), B = csr<float>(problem.B, call.uplo);
  std::vector<float> x;
  for (const Complex value : call.x) x.push_back(value.real());
  if (problem.is_generalized()) {
    call_index_form(sfeast_scsrgv_Idx, &call.uplo, &n, A.values, A.starts, A.columns, B.values, B.starts, B.columns,
                    call.fpm, &call.epsout, &call.loop, &call.emin, &call.emax, &call.m0, call.e, x, &call.m, call.res,
                    &call.info);
  } else {
    call_index_form(sfeast_scsrev_Idx, &call.uplo, &n, A.values, A.starts, A.columns, call.fpm, &call.epsout,
                    &call.loop, &call.emin, &call.emax, &call.m0, call.e, x, &call.m, call.res, &call.info);
  }
  std::copy(x.begin(), x.end(), call.x.begin());
}

void expect_right(const Problem& problem, const Call& call, const std::vector<double>& eigenvalues) {
  constexpr double kRoundoff = 1.2e-7, kDoubleRoundoff = 1e-13;
  SCOPED_TRACE(testing::Message() << problem.name << ", n = " << problem.n() << ", [" << call.emin << ", " << call.emax
                                  << "], status " << call.info << ", m = " << call.m << ", loop = " << call.loop);
  const double largest = std::max(std::fabs(eigenvalues.front()), std::fabs(eigenvalues.back()));
  const double unsure = kDoubleRoundoff * largest;  // so near to an end, LAPACK cannot tell either
  const auto count_below = [&](double bound) {
    return static_cast<int>(std::lower_bound(eigenvalues.begin(), eigenvalues.end(), bound) - eigenvalues.begin());
  };
  const int first = count_below(call.emin - unsure), end = count_below(call.emax + unsure);
  const bool is_complete = call.info == 0 || call.info == 1;
  if (is_complete) {
    ASSERT_LE(call.m, end - first);
    EXPECT_GE(call.m, count_below(call.emax - unsure) - count_below(call.emin + unsure));
    EXPECT_EQ(call.info, call.m == 0 ? 1 : 0);
  }
  ASSERT_GE(call.m, 0);
  ASSERT_LE(to_size(call.m), call.e.size());
  // Of the eigenvalues that may be inside, those that are.
  const auto error_from = [&](int place) {
    double error = 0;
    for (int k = 0; k < call.m; ++k)
      error = std::max(error, std::fabs(call.e[to_size(k)] - eigenvalues[to_size(place + k)]));
    return error;
  };
  int match = first;
  for (int place = first; is_complete && place + call.m <= end; ++place) {
    if (error_from(place) < error_from(match)) match = place;
  }
  std::vector<std::vector<Wide>> x, bx;
  for (int k = 0; k < call.m; ++k) {
    const std::size_t n = to_size(problem.n()), column = to_size(k) * n;
    x.emplace_back(call.x.begin() + static_cast<std::ptrdiff_t>(column),
                   call.x.begin() + static_cast<std::ptrdiff_t>(column + n));
    bx.push_back(multiply(problem.B, x.back()));
  }
  for (int k = 0; is_complete && k < call.m; ++k) {
    const double value = call.e[to_size(k)];
    EXPECT_NEAR(value, eigenvalues[to_size(match + k)], 4 * kRoundoff * largest) << k;
    EXPECT_LE(call.res[to_size(k)], call.fpm[5] == 0 ? std::pow(10.0, -call.fpm[6]) : 1e-2);
    if (k > 0) {
      EXPECT_LE(call.e[to_size(k) - 1], value);
    }
    const std::vector<Wide> ax = multiply(problem.A, x[to_size(k)]);
    double residual = 0, norm = 0;
    for (std::size_t i = 0; i < ax.size(); ++i) {
      residual += std::abs(ax[i] - value * bx[to_size(k)][i]);
      norm += std::abs(bx[to_size(k)][i]);
    }
    // What rounding x and e to floats adds.
    const double rounded = kRoundoff * (sum_of_terms(problem.A, x[to_size(k)]) +
                                        2 * std::fabs(value) * sum_of_terms(problem.B, x[to_size(k)]));
    EXPECT_LE(residual, 1.01e-5 * call.scale() * norm + rounded) << k;
  }
  for (int k = 0; is_complete && k < call.m; ++k) {
    for (int l = 0; l <= k; ++l) {
      Wide product = 0;
      double terms = 0;
      for (std::size_t i = 0; i < x[to_size(k)].size(); ++i) {
        product += std::conj(x[to_size(k)][i]) * bx[to_size(l)][i];
        terms += std::abs(x[to_size(k)][i] * bx[to_size(l)][i]);
      }
      EXPECT_LE(std::abs(product - (k == l ? 1.0 : 0.0)), 1e-6 * std::max(1.0, terms)) << k << ", " << l;
    }
  }
}

// ---- Problems -------------------------------------------------------------------------------------------------------

SparseMatrix laplacian(int a, int b, int c) {
  SparseMatrix M = quorin::test::grid(a, b, c);
  const double degree = 2 * ((a > 1) + (b > 1) + (c > 1));
  for (auto& entry : M.entries) entry.value = entry.row == entry.column ? degree : -1;
  return M;
}

SparseMatrix second_difference(int n) { return laplacian(n, 1, 1); }

SparseMatrix magnetic_lattice(int a, int b, double flux) {
  SparseMatrix M;
  M.is_complex = true;
  for (int i = 0; i < a; ++i) {
    for (int j = 0; j < b; ++j) {
      const int k = i * b + j;
      M.add(k, k, 0);
      if (j + 1 < b) M.add(k + 1, k, std::polar(1.0, flux * i));
      if (i + 1 < a) M.add(k + b, k, 1);
    }
  }
  return M;
}

SparseMatrix diagonal(const std::vector<double>& values) {
  SparseMatrix M;
  for (std::size_t i = 0; i < values.size(); ++i) M.add(static_cast<int>(i), static_cast<int>(i), values[i]);
  return M;
}

SparseMatrix turned(const SparseMatrix& M) {
  constexpr Wide kPowers[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
  SparseMatrix result = M;
  result.is_complex = true;
  for (auto& entry : result.entries) entry.value *= kPowers[(entry.row - entry.column) & 3];
  return result;
}

SparseMatrix random_matrix(int n, double degree, bool is_complex, std::mt19937& random) {
  std::uniform_real_distribution<double> number(-1, 1);
  std::uniform_int_distribution<int> row(0, n - 1);
  SparseMatrix M;
  M.is_complex = is_complex;
  for (int i = 0; i < n; ++i) M.add(i, i, 2 * number(random));
  for (int k = 0; k < static_cast<int>(degree * n / 2); ++k) {
    const int i = row(random), j = row(random);
    const double re = number(random), im = number(random);
    if (i != j) M.add(std::max(i, j), std::min(i, j), Wide(re, is_complex ? im : 0));
  }
  return M;
}

// S (I + R) S, where R is dominated by the identity and S is diagonal.
SparseMatrix random_definite(int n, double degree, double decades, bool is_complex, std::mt19937& random) {
  SparseMatrix M = random_matrix(n, degree, is_complex, random);
  std::vector<double> sums(to_size(n), 0), scale;
  for (const auto& [i, j, value] : M.entries) {
    if (i == j) continue;
    sums[to_size(i)] += std::abs(value);
    sums[to_size(j)] += std::abs(value);
  }
  std::uniform_real_distribution<double> exponent(-decades / 4, decades / 4);
  for (int i = 0; i < n; ++i) scale.push_back(std::pow(10.0, exponent(random)));
  for (auto& [i, j, value] : M.entries) {
    if (i == j) value = 1.1 * sums[to_size(i)] + 0.5;
    value *= scale[to_size(i)] * scale[to_size(j)];
  }
  return M;
}

}  // namespace feast_test
