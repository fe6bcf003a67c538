// Schur complements, partial solutions, diagonals: what perm's flags are for, and what the factors show of themselves.
#include <numeric>

#include "tests/pardiso/systems.hpp"

namespace pardiso_test {
namespace {

using quorin::test::DenseMatrix;

// The inverse of the complement is the flagged part of the inverse of A.
DenseMatrix complement(const Matrix& A, const std::vector<int>& flagged) {
  const auto identity = [](int n) {
    DenseMatrix I(n, n);
    for (int i = 0; i < n; ++i) I(i, i) = 1;
    return I;
  };
  const int count = static_cast<int>(flagged.size());
  const DenseMatrix inverse = solve(dense(A), identity(A.n()));
  DenseMatrix part(count, count);
  for (int j = 0; j < count; ++j) {
    for (int i = 0; i < count; ++i) {
      part(i, j) = inverse(flagged[static_cast<std::size_t>(i)], flagged[static_cast<std::size_t>(j)]);
    }
  }
  return solve(part, identity(count));
}

// By rows.
template <class T>
void expect_complement(const Host<T>& host, const DenseMatrix& S, double tolerance) {
  long double size = 0;
  for (const auto value : S.a) size = std::max(size, std::abs(value));
  for (int i = 0; i < S.rows; ++i) {
    for (int j = 0; j < S.rows; ++j) {
      const auto found = Complex(host.x[static_cast<std::size_t>(i * S.rows + j)]);
      EXPECT_NEAR(std::abs(found - Complex(S(i, j))), 0.0, tolerance * static_cast<double>(size)) << i << ", " << j;
    }
  }
}

template <class T>
void expect_complements(const System& system, int step) {
  SCOPED_TRACE(testing::Message() << system.name << ", step " << step);
  Host<T> host(system.matrix, 1, system.n());  // x has room for the complement of all
  std::vector<int> flagged;
  for (int i = 0; i < system.n(); ++i) {
    if (i % step == 1 || step == system.n()) flagged.push_back(i);
  }
  for (const int i : flagged) host.perm[static_cast<std::size_t>(i)] = 1;
  for (const int kind : {1, 2}) {
    host.cell(36) = kind;
    if (host.call(11) == -6) return;  // what is eliminated is singular
    ASSERT_EQ(host.call(22), 0);
    if (host.cell(14) > 0) continue;
    expect_complement(host, complement(system.matrix, flagged), 20 * kEpsilon<T> * system.condition);
  }
}

// Small systems, and a grid whose complements have up to 49 equations.
std::vector<System> systems_and_grids() {
  auto all = systems();
  const auto grid = quorin::test::convection_diffusion(7, 4.0), symmetric = quorin::test::convection_diffusion(7, 0.0);
  for (const int mtype : {11, 13, 1, 2, -2, 4, -4, 6}) {
    all.push_back({"grid", matrix_of(stores_upper(mtype) ? symmetric : grid, mtype)});
  }
  return all;
}

TEST(SchurComplement, IsInverseToThePartOfTheInverse) {
  for (const System& system : systems_and_grids()) {
    for (const int step : {2, 3, system.n()}) {
      in_both_precisions(system.matrix.mtype, [&]<class T> { expect_complements<T>(system, step); });
    }
  }
}

// Rows have to be exchanged inside the block that is left; the complement has no inverse.
TEST(SchurComplement, OfASingularMatrix) {
  DenseMatrix S(3, 3);
  S.a = {-13.5, -6, 1, -6, -14, 1, 0, 0, 0};
  for (const int kind : {1, 2}) {
    Host<double> host(schur10(), 1, 10);
    for (const std::size_t i : {7, 8, 9}) host.perm[i] = 1;
    host.cell(36) = kind;
    ASSERT_EQ(host.call(12), 0);
    EXPECT_EQ(host.cell(14), 0);
    expect_complement(host, S, 1e-14);
    EXPECT_EQ(host.call(33), kind == 1 ? -1 : -4);
    EXPECT_EQ(host.call(331), kind == 1 ? -1 : 0);
  }
}

// With iparm(36) = 2 phase 33 solves the whole system, and so do the three parts, of which the host may take the middle
// one over.
template <class T>
void solve_with_complement(const System& system, int operation) {
  SCOPED_TRACE(testing::Message() << system.name << ", iparm(12) = " << operation);
  Host<T> host(system.matrix, 1, system.n());
  for (int i = 0; i < host.n; ++i) host.perm[static_cast<std::size_t>(i)] = i % 3 == 1 ? 1 : 0;
  const auto flags = host.perm;
  host.cell(36) = 2;
  ASSERT_EQ(host.call(12), 0);
  host.nrhs = 1;
  host.cell(12) = operation;
  ASSERT_EQ(host.call(33), 0);
  host.b.resize(static_cast<std::size_t>(host.n));
  const std::vector<T> b = host.b, solution(host.x.begin(), host.x.begin() + host.n);
  const double tolerance = 50 * kEpsilon<T> * system.condition;
  EXPECT_LT(backward_error(system.matrix, host, b, solution, operation), 1e3 * kEpsilon<T>);
  for (const int phase : {331, 332, 333}) {
    ASSERT_EQ(host.call(phase), 0);
    std::copy_n(host.x.begin(), host.n, host.b.begin());
  }
  double size = 0.0;
  for (const T value : solution) size = std::max<double>(size, std::abs(value));
  for (std::size_t i = 0; i < solution.size(); ++i) {
    EXPECT_NEAR(std::abs(host.x[i] - solution[i]), 0.0, tolerance * size) << i;
  }
}

TEST(SchurComplement, LeavesFactorsToSolveWith) {
  for (const System& system : systems_and_grids()) {
    for (const int operation : {0, 1, 2}) {
      in_double(system.matrix.mtype, [&]<class T> { solve_with_complement<T>(system, operation); });
    }
  }
}

// After forward substitution the flagged entries are b_G - A_GI A_II^-1 b_I; a host solves with S and goes on.
TEST(SchurComplement, LetsTheHostSolveItsPart) {
  Host<double> host(unsymmetric5());
  host.perm = {0, 0, 0, 1, 1};
  host.cell(36) = 2;
  ASSERT_EQ(host.call(12), 0);
  host.b.assign(5, 1.0);
  ASSERT_EQ(host.call(331), 0);
  host.b = host.x;
  ASSERT_EQ(host.call(332), 0);
  const double b3 = host.b[3], b4 = host.b[4], det = 16.0 * 5.0 + 2.0 * 16.0;
  host.b = host.x;
  host.b[3] = (-5.0 * b3 + 2.0 * b4) / det;
  host.b[4] = (-16.0 * b3 - 16.0 * b4) / det;
  EXPECT_NEAR(host.x[3], host.b[3], 1e-14);
  EXPECT_NEAR(host.x[4], host.b[4], 1e-14);
  ASSERT_EQ(host.call(333), 0);
  EXPECT_NEAR(host.x[0], -117.0 / 224, 1e-14);
  EXPECT_NEAR(host.x[4], -3.0 / 14, 1e-14);
}

TEST(SchurComplement, OfNoEquationIsNone) {
  Host<double> host(unsymmetric8());
  host.cell(36) = 2;
  ASSERT_EQ(host.call(12), 0);
  ASSERT_EQ(host.call(33), 0);
  EXPECT_LT(backward_error(unsymmetric8(), host, host.b, host.x), 1e-14);
}

// --- Partial solutions -----------------------------------------------------------------------------------------------

class PartialSolution : public testing::Test {
 protected:
  static void expect_partial(const Matrix& A, int mode, int operation) {
    SCOPED_TRACE(testing::Message() << "mtype " << A.mtype << ", iparm(31) = " << mode << ", (12) = " << operation);
    const auto n = static_cast<std::size_t>(A.n());
    constexpr int kColumns = 3;
    Host<double> whole(A, 1, kColumns), part(A, 1, kColumns);
    std::vector<std::int32_t> flags(n);
    for (std::size_t i = 0; i < n; ++i) flags[i] = i % 7 == 3 ? 1 : 0;
    const auto flagged = static_cast<std::ptrdiff_t>(std::count(flags.begin(), flags.end(), 1));
    for (std::size_t i = 0; i < whole.b.size(); ++i) {
      const bool is_given = mode == 3 || flags[i % n] == 1;
      whole.b[i] = is_given ? 1.0 + std::sin(static_cast<double>(i)) : 0.0;
      part.b[i] = is_given || mode == 2 ? whole.b[i] : 99.0;  // not used
    }
    for (Host<double>* host : {&whole, &part}) {
      host->cell(13) = host->cell(11) = 0;
      host->cell(12) = operation;
    }
    part.perm = flags;
    part.cell(31) = mode;
    ASSERT_EQ(whole.call(13), 0);
    ASSERT_EQ(part.call(11), 0);
    // The order of elimination, flagged equations last.
    auto order = part.perm;
    std::vector<std::int32_t> last(order.end() - flagged, order.end());
    for (const std::int32_t equation : last) EXPECT_EQ(flags[static_cast<std::size_t>(equation - 1)], 1) << equation;
    std::sort(order.begin(), order.end());
    for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(order[i], static_cast<std::int32_t>(i + 1));
    ASSERT_EQ(part.call(23), 0);
    for (std::size_t i = 0; i < whole.x.size(); ++i) {
      if (mode == 2 || flags[i % n] == 1) {
        EXPECT_NEAR(part.x[i], whole.x[i], 1e-12) << i;
      } else {
        EXPECT_EQ(part.x[i], -7.0) << i;
      }
    }
  }
};

TEST_F(PartialSolution, EqualsTheWholeOne) {
  const auto grid = quorin::test::convection_diffusion(8, 10.0);
  for (const int mode : {1, 2, 3}) {
    for (const int mtype : {11, 1}) {
      for (const int operation : {0, 2}) expect_partial(matrix_of(grid, mtype), mode, operation);
    }
    std::mt19937 random(7);
    const auto definite = quorin::test::random_dominant(60, 0.05, 1.0, true, random);
    for (const int mtype : {2, -2}) expect_partial(matrix_of(definite, mtype), mode, 0);
  }
}

// --- Diagonals -------------------------------------------------------------------------------------------------------

double determinant(const std::vector<double>& df) {
  return std::accumulate(df.begin(), df.end(), 1.0, std::multiplies<>());
}

TEST(Diagonals, OfTheFactorsAndOfTheMatrix) {
  const auto diagonals = [](Host<double>& host, std::vector<double>& df, std::vector<double>& da) {
    host.cell(56) = 1;
    EXPECT_EQ(host.call(12), 0);
    df.assign(static_cast<std::size_t>(host.n), -7.0);
    da = df;
    std::int32_t error = 7;
    pardiso_getdiag(host.pt.data(), df.data(), da.data(), &host.mnum, &error);
    EXPECT_EQ(error, 0);
  };
  std::vector<double> df, da;
  Host<double> definite(definite5());
  diagonals(definite, df, da);
  EXPECT_EQ(da, (std::vector<double>{9, 0.5, 12, 0.625, 16}));
  EXPECT_NEAR(determinant(df) * determinant(df), 2.25, 1e-12);
  Host<double> indefinite(indefinite8());
  indefinite.cell(21) = 0;  // D is diagonal
  diagonals(indefinite, df, da);
  EXPECT_EQ(da, (std::vector<double>{7, -4, 1, 7, 5, -1, 11, 5}));
  EXPECT_NEAR(determinant(df), -6170300.0, 1e-6);
  Host<double> unsymmetric(unsymmetric5());
  unsymmetric.cell(11) = unsymmetric.cell(13) = 0;
  diagonals(unsymmetric, df, da);
  EXPECT_EQ(da, (std::vector<double>{1, 5, 4, 7, -5}));
  EXPECT_NEAR(std::abs(determinant(df)), 1344.0, 1e-9);
}

TEST(Diagonals, OnlyWhereTheAnalysisWasAskedForThem) {
  Host<double> host(unsymmetric8());
  std::vector<double> df(8, -7.0), da(8, -7.0);
  std::int32_t error = 7, other = 2;
  const auto get = [&](const std::int32_t* slot, double* f, double* d) {
    pardiso_getdiag(host.pt.data(), f, d, slot, &error);
    return error;
  };
  EXPECT_EQ(get(&host.mnum, df.data(), da.data()), -1);
  ASSERT_EQ(host.call(12), 0);
  EXPECT_EQ(get(&host.mnum, df.data(), da.data()), -1);
  host.cell(56) = 1;
  ASSERT_EQ(host.call(11), 0);
  EXPECT_EQ(get(&host.mnum, df.data(), da.data()), -1);
  ASSERT_EQ(host.call(22), 0);
  EXPECT_EQ(get(&other, df.data(), da.data()), -1);
  EXPECT_EQ(df, std::vector<double>(8, -7.0));
  EXPECT_EQ(da, std::vector<double>(8, -7.0));
  EXPECT_EQ(get(&host.mnum, nullptr, da.data()), 0);
  EXPECT_EQ(da[4], 0.0);  // which is not stored
  sPARDISO_GETDIAG_32f_Idx(host.pt.data(), nullptr, 0, nullptr, 0, &host.mnum, &error);
  EXPECT_EQ(error, 0);
  Host<std::complex<float>> complex(complex8(indefinite8(), -4));
  complex.cell(56) = 1;
  ASSERT_EQ(complex.call(12), 0);
  std::vector<quorin_complex> both(10, quorin_complex{-7, -7});
  sPARDISO_GETDIAG_32fc_Idx(complex.pt.data(), nullptr, 0, both.data() - 3, 4, &complex.mnum, &error);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(both[0].re, -7.0F);
  EXPECT_EQ(both[1].re, 7.0F);
  EXPECT_EQ(both[2].re, -4.0F);
  EXPECT_EQ(both[9].re, -7.0F);
}

}  // namespace
}  // namespace pardiso_test
