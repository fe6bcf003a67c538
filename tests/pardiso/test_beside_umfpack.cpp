// Solutions of unsymmetric systems from applications beside UMFPACK's, each with the refinement that it does by itself.
#include <umfpack_double.h>

#include <filesystem>

#include "base/parallel.hpp"
#include "dense/dense.hpp"
#include "families/pardiso/pardiso.hpp"
#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace quorin::pardiso {
namespace {

using Vector = std::vector<double>;

// A real matrix by rows.
struct System {
  explicit System(const test::SparseMatrix& S) : name(S.name), n(S.rows), rows(compressed_rows(S)), b(S.rows) {
    std::mt19937 random(11);
    for (double& value : b) value = std::uniform_real_distribution<double>(-1.0, 1.0)(random);
  }

  // By norms.
  double backward_error(const Vector& x) const {
    long double residual = 0, norm = 0, x_norm = 0, b_norm = 0;
    for (int i = 0; i < n; ++i) {
      long double difference = -b[i], sum = 0;
      for (int k = rows.starts[i]; k < rows.starts[i + 1]; ++k) {
        difference += static_cast<long double>(rows.re[k]) * x[rows.indices[k]];
        sum += std::fabs(rows.re[k]);
      }
      residual = std::max(residual, std::fabs(difference));
      norm = std::max(norm, sum);
      x_norm = std::max(x_norm, static_cast<long double>(std::fabs(x[i])));
      b_norm = std::max(b_norm, static_cast<long double>(std::fabs(b[i])));
    }
    return static_cast<double>(residual / (norm * x_norm + b_norm));
  }

  std::string name;
  int n;
  test::CompressedArrays rows;
  Vector b;
};

int solve(const System& A, Vector& x) {
  std::array<void*, 64> pt{};
  std::array<std::int32_t, 64> iparm{};
  const std::int32_t mtype = 11, one = 1, silent = 0;
  initialize(pt.data(), &mtype, iparm.data());
  iparm[34] = 1;  // indices begin with 0
  Vector b = A.b;
  int outcome = 0;
  for (const std::int32_t phase : {13, -1}) {
    std::int32_t error = 0;
    run(pt.data(), &one, &one, &mtype, &phase, &A.n, A.rows.re.data(), A.rows.starts.data(), A.rows.indices.data(),
        nullptr, &one, iparm.data(), &silent, b.data(), x.data(), &error);
    if (outcome == 0) outcome = error;
  }
  return outcome;
}

// Rows are UMFPACK's columns: the system with the transposed matrix.
int solve_by_umfpack(const System& A, Vector& x) {
  void *symbolic = nullptr, *numeric = nullptr;
  const int *starts = A.rows.starts.data(), *indices = A.rows.indices.data();
  int status = umfpack_di_symbolic(A.n, A.n, starts, indices, A.rows.re.data(), &symbolic, nullptr, nullptr);
  if (status == UMFPACK_OK) {
    status = umfpack_di_numeric(starts, indices, A.rows.re.data(), symbolic, &numeric, nullptr, nullptr);
  }
  if (status == UMFPACK_OK) {
    status = umfpack_di_solve(UMFPACK_At, starts, indices, A.rows.re.data(), x.data(), A.b.data(), numeric, nullptr,
                              nullptr);
  }
  umfpack_di_free_numeric(&numeric);
  umfpack_di_free_symbolic(&symbolic);
  return status;
}

// What is below half a unit of roundoff is no better than that.
TEST(BesideUmfpack, BackwardErrorsAreWithinTenTimes) {
  base::start_parallel();
  dense::start();
  constexpr double kRoundoff = std::numeric_limits<double>::epsilon() / 2;
  int compared = 0;
  for (const std::string folder : {"cxsparse", "klu"}) {
    for (const auto& file : std::filesystem::directory_iterator(std::string(QUORIN_MATRICES_DIR) + "/" + folder)) {
      const test::SparseMatrix S = test::read_triplets(file.path().string(), folder == "klu" ? 1 : 0);
      if (S.rows != S.columns || S.rows < 2 || S.is_complex) continue;
      const System A(S);
      Vector x(A.b.size()), peer(x);
      if (solve_by_umfpack(A, peer) != UMFPACK_OK) continue;
      SCOPED_TRACE(S.name);
      ASSERT_EQ(solve(A, x), 0);
      const double ours = A.backward_error(x), theirs = A.backward_error(peer);
      EXPECT_LE(ours, 10 * std::max(theirs, kRoundoff));
      ++compared;
    }
  }
  EXPECT_GT(compared, 5);
  dense::stop();
  base::stop_parallel();
}

}  // namespace
}  // namespace quorin::pardiso
