// Solutions of systems from applications beside UMFPACK's, each with the refinement that it does by itself.
#include <umfpack_double.h>

#include "base/parallel.hpp"
#include "dense/dense.hpp"
#include "families/pardiso/pardiso.hpp"
#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace quorin::pardiso {
namespace {

using Complex = std::complex<double>;

// A matrix by rows.
template <class T>
struct System {
  explicit System(const test::SparseMatrix& S) : n(S.rows), rows(compressed_rows(S)), b(S.rows) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    for (T& value : b) value = uniform(random);
    for (std::size_t k = 0; k < rows.re.size(); ++k) {
      if constexpr (std::is_same_v<T, double>) {
        values.push_back(rows.re[k]);
      } else {
        values.emplace_back(rows.re[k], rows.im[k]);
      }
    }
  }

  // By norms.
  double backward_error(const std::vector<T>& x) const {
    using Wide = std::conditional_t<std::is_same_v<T, double>, long double, std::complex<long double>>;
    long double residual = 0, norm = 0, x_norm = 0, b_norm = 0;
    for (int i = 0; i < n; ++i) {
      Wide difference = -Wide(b[i]);
      long double sum = 0;
      for (int k = rows.starts[i]; k < rows.starts[i + 1]; ++k) {
        difference += Wide(values[k]) * Wide(x[rows.indices[k]]);
        sum += std::abs(Wide(values[k]));
      }
      residual = std::max(residual, std::abs(difference));
      norm = std::max(norm, sum);
      x_norm = std::max(x_norm, std::abs(Wide(x[i])));
      b_norm = std::max(b_norm, std::abs(Wide(b[i])));
    }
    return static_cast<double>(residual / (norm * x_norm + b_norm));
  }

  int n;
  test::CompressedArrays rows;
  std::vector<T> values, b;
};

// With matching, which is the default of unsymmetric matrices. Of symmetric kinds the entries below the diagonal, which
// belong to the full matrix, are left out by the solver.
template <class T>
int solve(const System<T>& A, std::int32_t mtype, std::vector<T>& x) {
  std::array<void*, 64> pt{};
  std::array<std::int32_t, 64> iparm{};
  const std::int32_t one = 1, silent = 0;
  initialize(pt.data(), &mtype, iparm.data());
  iparm[10] = iparm[12] = 1;
  iparm[34] = 1;  // indices begin with 0
  std::vector<T> b = A.b;
  int outcome = 0;
  for (const std::int32_t phase : {13, -1}) {
    std::int32_t error = 0;
    run(pt.data(), &one, &one, &mtype, &phase, &A.n, A.values.data(), A.rows.starts.data(), A.rows.indices.data(),
        nullptr, &one, iparm.data(), &silent, b.data(), x.data(), &error);
    if (outcome == 0) outcome = error;
  }
  return outcome;
}

// Rows are UMFPACK's columns: the system with the transposed matrix.
int solve_by_umfpack(const System<double>& A, std::vector<double>& x) {
  void *symbolic = nullptr, *numeric = nullptr;
  const int *starts = A.rows.starts.data(), *indices = A.rows.indices.data();
  const double* const a = A.values.data();
  int status = umfpack_di_symbolic(A.n, A.n, starts, indices, a, &symbolic, nullptr, nullptr);
  if (status == UMFPACK_OK) status = umfpack_di_numeric(starts, indices, a, symbolic, &numeric, nullptr, nullptr);
  if (status == UMFPACK_OK) {
    status = umfpack_di_solve(UMFPACK_Aat, starts, indices, a, x.data(), A.b.data(), numeric, nullptr, nullptr);
  }
  umfpack_di_free_numeric(&numeric);
  umfpack_di_free_symbolic(&symbolic);
  return status;
}
int solve_by_umfpack(const System<Complex>& A, std::vector<Complex>& x) {
  void *symbolic = nullptr, *numeric = nullptr;
  const int *starts = A.rows.starts.data(), *indices = A.rows.indices.data();
  const auto* const a = reinterpret_cast<const double*>(A.values.data());
  int status = umfpack_zi_symbolic(A.n, A.n, starts, indices, a, nullptr, &symbolic, nullptr, nullptr);
  if (status == UMFPACK_OK) {
    status = umfpack_zi_numeric(starts, indices, a, nullptr, symbolic, &numeric, nullptr, nullptr);
  }
  if (status == UMFPACK_OK) {
    status = umfpack_zi_solve(UMFPACK_Aat, starts, indices, a, nullptr, reinterpret_cast<double*>(x.data()), nullptr,
                              reinterpret_cast<const double*>(A.b.data()), nullptr, numeric, nullptr, nullptr);
  }
  umfpack_zi_free_numeric(&numeric);
  umfpack_zi_free_symbolic(&symbolic);
  return status;
}

bool is_symmetric(const test::SparseMatrix& S) {
  const auto rows = compressed_rows(S), columns = compressed_columns(S);
  return rows.starts == columns.starts && rows.indices == columns.indices && rows.re == columns.re &&
         rows.im == columns.im;
}

int compared = 0;  // kinds of matrices

// What is below half a unit of roundoff is no better than that.
template <class T>
void compare(const test::SparseMatrix& S, std::int32_t general, std::int32_t symmetric) {
  constexpr double kRoundoff = std::numeric_limits<double>::epsilon() / 2;
  const System<T> A(S);
  std::vector<T> x(A.b.size()), peer(x);
  if (solve_by_umfpack(A, peer) != UMFPACK_OK) return;
  const double theirs = A.backward_error(peer);
  for (const std::int32_t mtype : {general, symmetric}) {
    if (mtype == symmetric && !is_symmetric(S)) continue;
    SCOPED_TRACE(testing::Message() << S.name << ", mtype " << mtype);
    EXPECT_EQ(solve(A, mtype, x), 0);
    EXPECT_LE(A.backward_error(x), 10 * std::max(theirs, kRoundoff));
    ++compared;
  }
}

TEST(BesideUmfpack, BackwardErrorsAreWithinTenTimes) {
  base::start_parallel();
  dense::start();
  for (const test::SparseMatrix& S : test::from_applications(QUORIN_MATRICES_DIR)) {
    S.is_complex ? compare<Complex>(S, 13, 6) : compare<double>(S, 11, -2);
  }
  EXPECT_GT(compared, 20);
  dense::stop();
  base::stop_parallel();
}

}  // namespace
}  // namespace quorin::pardiso
