// Each parameter, and what changes with it.
#include <numeric>

#include "tests/pardiso/systems.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/environment.hpp"
#include "tests/support/temporary_folder.hpp"

namespace pardiso_test {
namespace {

Matrix grid(int side, int mtype = 2) { return matrix_of(quorin::test::convection_diffusion(side, 0.0), mtype); }

TEST(Parameters, DefaultsByType) {
  struct Expected {
    int mtype, exponent, is_scaled;
  };
  for (const auto& [mtype, exponent, is_scaled] :
       {Expected{11, 13, 1}, Expected{13, 13, 1}, Expected{-2, 8, 0}, Expected{-4, 8, 0}, Expected{6, 8, 0},
        Expected{1, 13, 0}, Expected{3, 13, 0}, Expected{2, 8, 0}, Expected{4, 8, 0},
        Expected{14, 13, 1}}) {  // no type is as 11
    std::array<std::int32_t, 64> expected{}, iparm;
    const auto set = [&expected](std::size_t number, int value) { expected[number - 1] = value; };
    set(1, 1);
    set(2, 2);
    set(10, exponent);
    set(11, is_scaled);
    set(13, is_scaled);
    set(18, -1);
    set(21, 1);
    iparm.fill(99);
    std::array<void*, 64> pt;
    pt.fill(&pt);
    sPARDISOINIT(pt.data(), &mtype, iparm.data());
    EXPECT_EQ(iparm, expected) << mtype;
    EXPECT_EQ(pt, (std::array<void*, 64>{})) << mtype;
  }
}

// iparm(1) = 0: whatever the host has written, the defaults count, and stand in iparm.
TEST(Parameters, DefaultsOnRequest) {
  Host<double> host(unsymmetric8()), other(unsymmetric8());
  ASSERT_EQ(other.call(13), 0);
  host.iparm.fill(99);
  host.cell(1) = 0;
  ASSERT_EQ(host.call(13), 0);
  other.cell(1) = 0;
  EXPECT_EQ(host.iparm, other.iparm);
  EXPECT_EQ(host.x, other.x);
  EXPECT_GT(host.cell(18), 0);
  EXPECT_EQ(host.cell(19), 0);
  // Later calls tell of the analysis again.
  const auto told = host.iparm;
  host.iparm.fill(-5);
  host.cell(1) = 0;
  const auto asked = host.iparm;
  host.nrhs = 0;  // a call that is refused changes nothing
  ASSERT_EQ(host.call(33), -1);
  EXPECT_EQ(host.iparm, asked);
  host.nrhs = 1;
  ASSERT_EQ(host.call(33), 0);
  EXPECT_EQ(host.iparm, told);
}

// Entries without a meaning may hold anything.
TEST(Parameters, ReservedEntriesAreNotRead) {
  Host<double> host(unsymmetric8());
  for (const std::size_t number :
       {3, 9, 26, 29, 32, 33, 38, 40, 41, 42, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 57, 58, 59, 61, 62, 64}) {
    host.cell(number) = -123456;
  }
  host.cell(24) = 10;  // schedules, reproducible runs, low-rank updates: the same results
  host.cell(34) = 4;
  host.cell(39) = 1;
  const auto before = host.iparm;
  ASSERT_EQ(host.call(13), 0);
  EXPECT_LT(backward_error(unsymmetric8(), host, host.b, host.x), 1e-14);
  for (const std::size_t number : {3, 9, 26, 29, 64}) EXPECT_EQ(host.cell(number), before[number - 1]);
}

// iparm(2), (18), (19).
TEST(Parameters, OrderingAndItsFigures) {
  const Matrix A = grid(30);
  Host<double> host(A);
  std::array<int, 4> entries{};
  for (const int method : {0, 2, 3}) {
    host.cell(2) = method;
    host.cell(18) = host.cell(19) = -1;
    ASSERT_EQ(host.call(13), 0);
    EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-14);
    entries[static_cast<std::size_t>(method)] = host.cell(18);
    EXPECT_GT(host.cell(18), 900 + 2 * 870) << "a factor has at least the entries of A";
    EXPECT_LT(host.cell(18), 900 * 31) << "and in a good order fewer than a band's";
    EXPECT_GT(host.cell(19), 0);
  }
  EXPECT_NE(entries[0], entries[2]);
  EXPECT_EQ(entries[2], entries[3]);
  host.cell(18) = 5;
  host.cell(19) = 6;
  ASSERT_EQ(host.call(11), 0);
  EXPECT_EQ(host.cell(18), 5);
  EXPECT_EQ(host.cell(19), 6);
}

// Without fill: an arrow with its head last has as many entries in L as in its triangle.
TEST(Parameters, EntriesAreThoseOfTheFactors) {
  Host<double> symmetric(definite5());
  ASSERT_EQ(symmetric.call(11), 0);
  EXPECT_EQ(symmetric.cell(18), 9);
  Host<double> tridiagonal(Matrix{1, {1, 3, 6, 8}, {1, 2, 1, 2, 3, 2, 3}, {4, 1, 1, 4, 1, 1, 4}});
  ASSERT_EQ(tridiagonal.call(11), 0);
  EXPECT_EQ(tridiagonal.cell(18), 7);
}

// iparm(5).
TEST(Parameters, PermutationOfTheHost) {
  const Matrix A = grid(12);
  for (const int base : {0, 1}) {
    Host<double> host(A, base), computed(A, base);
    computed.cell(5) = 2;
    ASSERT_EQ(computed.call(11), 0);
    auto sorted = computed.perm;
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t i = 0; i < sorted.size(); ++i) ASSERT_EQ(sorted[i], static_cast<int>(i) + base);
    host.cell(5) = 1;
    host.perm = computed.perm;
    ASSERT_EQ(host.call(13), 0);
    EXPECT_EQ(host.cell(18), computed.cell(18)) << "the same order, the same fill";
    EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-14);
    EXPECT_EQ(host.perm, computed.perm);
    // The natural order has the fill of a band.
    std::iota(host.perm.begin(), host.perm.end(), base);
    host.cell(18) = -1;
    ASSERT_EQ(host.call(13), 0);
    EXPECT_GT(host.cell(18), computed.cell(18) + 100);
    EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-14);
    for (const int wrong : {-1 + base, 144 + base, host.perm[5]}) {
      auto bad = host.perm;
      bad[3] = wrong;
      std::swap(bad, host.perm);
      EXPECT_EQ(host.call(11), -1);
      std::swap(bad, host.perm);
    }
  }
}

// iparm(10): pivots below 10^-iparm(10) of the norm are replaced by some of their sign, others are exact.
template <class T>
void expect_perturbed(std::int32_t exponent, double size, int expected) {
  for (const double pivot : {size, -size}) {
    SCOPED_TRACE(testing::Message() << "10^-" << exponent << ", pivot " << pivot << (kIsSingle<T> ? ", single" : ""));
    Host<T> host(Matrix{-2, {1, 3, 4, 5}, {1, 2, 2, 3}, {1, 0, pivot, 2}});
    host.cell(10) = exponent;
    ASSERT_EQ(host.call(13), 0);
    EXPECT_EQ(host.cell(14), expected);
    EXPECT_EQ(host.cell(23), pivot < 0 ? 1 : 0);
    if (expected == 0) {
      EXPECT_NEAR(host.x[1] * pivot, 1.0, 4 * kEpsilon<T>);
    }
  }
}
TEST(Refinement, SmallPivotsByTheirSize) {
  expect_perturbed<double>(8, 1e-7, 0);
  expect_perturbed<double>(8, 1e-9, 1);
  expect_perturbed<double>(13, 1e-9, 0);
  expect_perturbed<double>(std::numeric_limits<std::int32_t>::max(), 1e-300, 0);
  expect_perturbed<double>(std::numeric_limits<std::int32_t>::min(), 0.5, 2);
  expect_perturbed<float>(8, 1e-5, 0);
  expect_perturbed<float>(4, 1e-5, 1);
  expect_perturbed<float>(8, 1e-7, 1);
}

// A row of zeros, whose pivot has to be perturbed.
TEST(Refinement, OnlyWhereItWasAskedFor) {
  Host<double> host(Matrix{-2, {1, 4, 5, 6}, {1, 2, 3, 2, 3}, {1, 0, 1, 0, 2}});
  Host<double> sound(unsymmetric8());
  ASSERT_EQ(sound.call(13), 0);
  EXPECT_EQ(sound.cell(14) + sound.cell(7), 0);
  const auto steps = [&host](int pivoting, int limit) {
    host.cell(21) = pivoting;
    host.cell(8) = limit;
    EXPECT_EQ(host.call(13), 0);
    EXPECT_EQ(host.cell(14), 1);
    EXPECT_EQ(host.cell(22) + host.cell(23), 3);
    return host.cell(7);
  };
  for (const int pivoting : {0, 1}) EXPECT_GE(steps(pivoting, 0), 1);
  for (const int pivoting : {2, 3}) {
    EXPECT_EQ(steps(pivoting, 0), 0);
    EXPECT_GE(steps(pivoting, 3), 1);
  }
}

// Entries of the factors grow, though no pivot is small: a handle refines by what it knows of A, whatever became of the
// host's, with factors in files or in memory, by way of a Schur complement, and for parts of solutions.
TEST(Refinement, NeedsNoValuesOfTheHost) {
  const Matrix A = matrix_of(quorin::test::read_triplets(QUORIN_MATRICES_DIR "/cxsparse/young1c", 0), 13);
  const quorin::test::TemporaryFolder folder;
  quorin::test::set_environment("MKL_PARDISO_OOC_PATH", folder.file("factor").c_str());
  for (const auto& [cell, value] :
       {std::pair(60, 0), std::pair(60, 2), std::pair(36, 2), std::pair(31, 1), std::pair(31, 2), std::pair(31, 3)}) {
    SCOPED_TRACE(testing::Message() << "iparm(" << cell << ") = " << value);
    Host<Complex> host(A);
    host.cell(static_cast<std::size_t>(cell)) = value;
    for (const std::size_t i : {40, 41, 300}) host.perm[i] = 1;
    const auto flags = host.perm;
    ASSERT_EQ(host.call(12), 0);
    EXPECT_EQ(host.cell(14), 0);
    const auto values = host.a;
    host.a.assign(1, Complex(std::nan("")));
    const bool gives_all = cell != 31 || value == 3, wants_all = cell != 31 || value == 2;
    for (const int operation : {0, 1, 2}) {
      host.cell(12) = operation;
      for (std::size_t i = 0; i < host.b.size(); ++i) {
        host.b[i] = gives_all || flags[i] == 1 ? std::sin(1.0 + static_cast<double>(i)) : value == 1 ? 99.0 : 0.0;
      }
      host.x.assign(host.x.size(), -7.0);
      ASSERT_EQ(host.call(33), 0);
      EXPECT_GE(host.cell(7), 1);
      Host<Complex> whole(A);
      whole.cell(12) = operation;
      whole.cell(8) = -5;
      for (std::size_t i = 0; i < host.b.size(); ++i) whole.b[i] = gives_all || flags[i] == 1 ? host.b[i] : 0.0;
      ASSERT_EQ(whole.call(13), 0);
      double size = 0.0;
      for (const Complex x : whole.x) size = std::max(size, std::abs(x));
      for (std::size_t i = 0; i < host.x.size(); ++i) {
        const bool is_wanted = wants_all || flags[i] == 1;
        ASSERT_LE(std::abs(host.x[i] - (is_wanted ? whole.x[i] : -7.0)), is_wanted ? 1e-11 * size : 0.0) << i;
      }
      if (wants_all) {
        const auto dummy = std::exchange(host.a, values);
        EXPECT_LT(backward_error(A, host, whole.b, host.x, operation, Measure::kRows), 2e-16);
        host.a = dummy;
      }
    }
  }
  quorin::test::set_environment("MKL_PARDISO_OOC_PATH", nullptr);
}

// iparm(8) < 0: an ill-conditioned system, of whose solution ordinary residuals leave only a few digits.
TEST(Refinement, WithResidualsOfTwiceThePrecision) {
  const int n = 12;
  Matrix A{11, {1}, {}, {}};
  std::vector<double> b(n);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      A.ja.push_back(j + 1);
      const double value = 1.0 / (1 << std::abs(i - j)) + (i == j ? 1e-9 * (i + 1) : 1.0);
      A.a.emplace_back(value);
    }
    A.ia.push_back(static_cast<int>(A.ja.size()) + 1);
  }
  const auto error_with = [&A](int limit) {
    Host<float> host(A);
    host.cell(8) = limit;
    // b = A (1, -1, 1, ...) exactly, as floats hold these sums of few powers of two.
    for (std::size_t i = 0; i < n; ++i) {
      double sum = 0.0;
      for (std::size_t j = 0; j < n; ++j) sum += (j % 2 == 0 ? 1.0 : -1.0) * static_cast<double>(host.a[i * n + j]);
      host.b[i] = static_cast<float>(sum);
    }
    EXPECT_EQ(host.call(13), 0);
    EXPECT_LT(backward_error(A, host, host.b, host.x), 1e-7);
    double error = 0.0;
    for (std::size_t i = 0; i < n; ++i) error = std::max(error, std::abs(host.x[i] - (i % 2 == 0 ? 1.0 : -1.0)));
    return error;
  };
  EXPECT_LT(error_with(-10), 2e-7);
  EXPECT_GT(error_with(10), 1e-6);
}

// iparm(11), (13): without a matching, zeros on the diagonal stand in the way of pivots.
TEST(Parameters, MatchingAndScaling) {
  quorin::test::SparseMatrix S = quorin::test::convection_diffusion(12, 10.0);
  for (auto& entry : S.entries) entry.row = (entry.row + 5) % S.rows;  // no diagonal
  for (auto& entry : S.entries) entry.value *= std::pow(10.0, entry.row % 13 - 6);
  const Matrix A = matrix_of(S, 11);
  Host<double> matched(A), plain(A), scaled(A);
  plain.cell(11) = plain.cell(13) = 0;
  scaled.cell(13) = 0;
  ASSERT_EQ(matched.call(13), 0);
  EXPECT_EQ(matched.cell(14), 0);
  EXPECT_LT(backward_error(A, matched, matched.b, matched.x), 1e-13);
  ASSERT_EQ(plain.call(12), 0);
  ASSERT_EQ(scaled.call(12), 0);  // with so many perturbed pivots that refinement may diverge
  EXPECT_GT(plain.cell(14), 0);
  EXPECT_GT(scaled.cell(14), 0);
}

// iparm(11): the diagonal of U tells that entries were scaled; of symmetric kinds only together with iparm(13).
TEST(Parameters, ScalingShowsInTheFactors) {
  const auto first_pivot = [](int mtype, int scaling, int matching) {
    Host<double> host(Matrix{mtype, {1, 3, 4 + (mtype == 11 ? 1 : 0)}, {1, 2, 1, 2}, {400, 1, 1, 500}});
    if (mtype != 11) host.ja[2] = 2, host.a[2] = 500;
    host.cell(11) = scaling;
    host.cell(13) = matching;
    host.cell(56) = 1;
    EXPECT_EQ(host.call(12), 0);
    std::array<double, 2> df{};
    std::int32_t error = 7;
    pardiso_getdiag(host.pt.data(), df.data(), nullptr, &host.mnum, &error);
    EXPECT_EQ(error, 0);
    return std::abs(df[0]);
  };
  for (const int mtype : {11, -2}) {
    EXPECT_NEAR(first_pivot(mtype, 1, 1), 1.0, 1e-12) << mtype;
    EXPECT_GE(first_pivot(mtype, 0, 1), 400.0) << mtype;
  }
  EXPECT_NEAR(first_pivot(11, 1, 0), 1.0, 0.5);
  EXPECT_GE(first_pivot(-2, 1, 0), 400.0);
}

// iparm(21): without pivots of order 2 zeros on the diagonal are perturbed.
TEST(Parameters, PivotsOfOrderTwo) {
  Host<double> host(Matrix{-2, {1, 3, 4}, {1, 2, 2}, {0, 1, 0}});
  for (const auto& [pivoting, perturbed] : {std::pair(0, 2), std::pair(1, 0), std::pair(2, 2), std::pair(3, 0)}) {
    host.cell(21) = pivoting;
    ASSERT_EQ(host.call(12), 0);
    EXPECT_EQ(host.cell(14) > 0, perturbed > 0) << pivoting;
  }
}

// iparm(25): one thread or many, the same bits.
TEST(Parameters, SequentialSolution) {
  Host<double> host(grid(40), 1, 5);
  ASSERT_EQ(host.call(13), 0);
  const auto x = host.x;
  host.cell(25) = 1;
  ASSERT_EQ(host.call(33), 0);
  EXPECT_EQ(host.x, x);
}

// iparm(4), (20).
TEST(Parameters, IterationInThePlaceOfFactorization) {
  for (const auto& [A, method] :
       {std::pair(grid(15), 62), std::pair(matrix_of(quorin::test::convection_diffusion(15, 30.0), 11), 61),
        std::pair(matrix_of(quorin::test::convection_diffusion(15, 30.0), 1), 91)}) {
    SCOPED_TRACE(A.mtype);
    Host<double> host(A, 1, 2);
    std::fill(host.b.begin() + host.n, host.b.end(), 0.0);  // no step for the last column; the most is told
    ASSERT_EQ(host.call(13), 0);
    EXPECT_EQ(host.cell(20), 0);
    const auto a = host.a;
    for (std::size_t k = 0; k < a.size(); ++k) host.a[k] = a[k] * (1.0 + 1e-3 * std::sin(static_cast<double>(k)));
    host.cell(4) = method;
    for (const int phase : {23, 33}) {
      ASSERT_EQ(host.call(phase), 0);
      EXPECT_GT(host.cell(20), 0);
      EXPECT_LT(host.cell(20), 20);
      const double error = backward_error(A, host, host.b, host.x);
      EXPECT_LT(error, method / 10 == 9 ? 1e-8 : 1e-4);
      EXPECT_GT(error, 1e-15) << "that would be a factorization";
    }
    // Rows of very different size: the factors have little to do with that.
    host.for_each_entry(
        [&](int i, int, std::size_t k) { host.a[k] = a[k] * std::pow(10.0, 8.0 * std::sin(1.0 * i * i)); });
    if (A.mtype != 2) {
      std::fill(host.x.begin(), host.x.end(), -7.0);
      EXPECT_EQ(host.call(33), -4);
      EXPECT_LT(host.cell(20), 0);
      EXPECT_EQ(host.x, std::vector<double>(host.x.size(), -7.0));
      EXPECT_EQ(host.call(23), 0);
      EXPECT_LT(host.cell(20), 0);
      EXPECT_LT(backward_error(A, host, host.b, host.x, 0, Measure::kNorm), 1e-12) << "factorized";
      host.cell(4) = 0;
      EXPECT_EQ(host.call(33), 0);
      EXPECT_EQ(host.cell(20), 0);
    }
  }
}

TEST(Parameters, ExactPreconditionersNeedOneStep) {
  const Matrix hermitian{4, {1, 3, 5, 6}, {1, 2, 2, 3, 3}, {4, {1, 2}, 5, {-1, 1}, 6}};
  for (const auto& [A, method] : {std::pair(complex5(), 1), {hermitian, 2}}) {
    for (const int operation : {0, 1, 2}) {
      Host<Complex> host(A);
      host.b[0] = {1, -2};
      host.cell(12) = operation;
      ASSERT_EQ(host.call(13), 0);
      for (const int digits : {10, 0}) {
        host.cell(4) = 10 * digits + method;
        ASSERT_EQ(host.call(33), 0);
        EXPECT_GE(host.cell(20), 1);
        EXPECT_LE(host.cell(20), 2);
        EXPECT_LT(backward_error(A, host, host.b, host.x, operation), 1e-12);
      }
    }
  }
}

// iparm(37): the entries of blocks stand by columns if indices begin at 1, by rows if they begin at 0.
TEST(Parameters, BlockRows) {
  const Matrix blocks = {11, {1, 3, 5}, {1, 2, 1, 2}, {10, 1, 2, 12, 3, 0, 4, 1, 0, 1, 2, 0, 9, 3, 1, 8}};
  const Matrix by_columns = {11,
                             {1, 5, 9, 13, 17},
                             {1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4},
                             {10, 2, 3, 4, 1, 12, 0, 1, 0, 2, 9, 1, 1, 0, 3, 8}};
  const Matrix by_rows = {11,
                          {1, 5, 9, 13, 17},
                          {1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4},
                          {10, 1, 3, 0, 2, 12, 4, 1, 0, 1, 9, 3, 2, 0, 1, 8}};
  for (const int base : {0, 1}) {
    const Matrix& expected = base == 0 ? by_rows : by_columns;
    Host<double> host(blocks, base, 2), entries(expected, base, 2);
    host.cell(37) = 2;
    host.cell(11) = host.cell(13) = 0;
    host.b = entries.b;
    host.x = entries.x;
    ASSERT_EQ(entries.call(13), 0);
    ASSERT_EQ(host.call(13), 0);
    for (std::size_t i = 0; i < host.x.size(); ++i) EXPECT_NEAR(host.x[i], entries.x[i], 1e-15) << i;
    // A permutation is one of the blocks.
    for (const int use : {2, 1}) {
      host.perm = use == 2 ? std::vector<std::int32_t>{7, 7, 7} : std::vector<std::int32_t>{1 + base, base, 7};
      host.cell(5) = use;
      ASSERT_EQ(host.call(13), 0);
      for (std::size_t i = 0; i < host.x.size(); ++i) EXPECT_NEAR(host.x[i], entries.x[i], 1e-15) << i;
      EXPECT_EQ(host.perm[0] + host.perm[1], 2 * base + 1);
      EXPECT_EQ(host.perm[2], 7);
    }
    host.cell(5) = 0;
    for (const std::size_t number : {11, 13, 31, 36, 56, 60}) {
      host.cell(number) = 1;
      EXPECT_EQ(host.call(11), -1) << number;
      host.cell(number) = 0;
    }
  }
  // Of symmetric kinds the upper triangle of the diagonal blocks counts.
  Host<double> definite(Matrix{2, {1, 3, 4}, {1, 2, 2}, {10, 77, 1, 12, 1, 0, 2, 1, 9, 77, 3, 8}});
  Host<double> entries(Matrix{2, {1, 5, 8, 10, 11}, {1, 2, 3, 4, 2, 3, 4, 3, 4, 4}, {10, 1, 1, 2, 12, 0, 1, 9, 3, 8}});
  definite.cell(37) = 2;
  definite.b = entries.b;
  definite.x = entries.x;
  ASSERT_EQ(definite.call(13), 0);
  ASSERT_EQ(entries.call(13), 0);
  for (std::size_t i = 0; i < entries.x.size(); ++i) EXPECT_NEAR(definite.x[i], entries.x[i], 1e-15) << i;
  // Blocks of different size, which a host may ask to look for.
  entries.cell(37) = -90;
  EXPECT_EQ(entries.call(13), 0);
}

// msglvl: the lines of a report, by what was done and asked for.
TEST(Parameters, StatisticsOnRequest) {
  Host<double> host(indefinite8());
  for (const int silent : {0, -1, 2}) {
    host.msglvl = silent;
    EXPECT_EQ(quorin::test::captured([&] { EXPECT_EQ(host.call(13), 0); }), "");
  }
  const auto report = [](auto& reported, int phase, int expected) {
    reported.msglvl = 1;
    return quorin::test::captured([&] { EXPECT_EQ(reported.call(phase), expected); });
  };
  const auto expect_lines = [](const std::string& text, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
      EXPECT_NE(text.find(line), std::string::npos) << line << " is not in:\n" << text;
  };
  host.cell(8) = 1;
  expect_lines(report(host, 13, 0), {"\nPARDISO, phase 13, analysis, factorization, solution, factorization 1\n",
                                     "real, symmetric indefinite (mtype -2), double precision\n", "nested dissection\n",
                                     " 5 positive, 3 negative\n", "\n  backward error ", "\n  threads ", " 0: done\n"});
  const std::string solved = report(host, 33, 0);
  EXPECT_EQ(solved.find("inertia"), std::string::npos) << "belongs to another phase";
  host.nrhs = 0;
  expect_lines(report(host, 33, -1), {" -1: an argument is wrong"});
  // Everything else that a host may ask for.
  Host<float> other(Matrix{11, {1, 3, 5}, {1, 2, 1, 2}, {10, 1, 2, 12, 3, 0, 4, 1, 0, 1, 2, 0, 9, 3, 1, 8}}, 0);
  other.b.assign(4, 1);
  other.x = other.b;
  other.cell(2) = 0;
  other.cell(11) = other.cell(13) = 0;
  other.cell(27) = 1;
  other.cell(37) = 2;
  expect_lines(report(other, 13, 0), {"real, unsymmetric (mtype 11), single precision\n", " of order 2\n",
                                      " minimum degree\n", " off, off, on\n"});
}

}  // namespace
}  // namespace pardiso_test
