// What the check routines say, what becomes of a run whose parameters or vectors are wrong, and the messages.
#include <fstream>
#include <regex>

#include "tests/rci/ilu_host.hpp"
#include "tests/rci/rci_host.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN(), kInfinity = HUGE_VAL;
const Vector kRightHandSide{1, 2, 3, 4}, kZeros(4, 0.0);

void expect_check_codes(Host& host) {
  EXPECT_EQ(host.check(), 0);
  host.ipar[4] = 0;
  EXPECT_EQ(host.check(), -1001);
  host.ipar[4] = 4;
  for (const double tolerance : {-1.0, kNan}) {
    host.dpar[0] = tolerance;
    EXPECT_EQ(host.check(), -1001);
    host.dpar[0] = 0.0;
    host.dpar[1] = tolerance;
    EXPECT_EQ(host.check(), -1001);
    host.dpar[1] = 0.0;
  }
  host.ipar[7] = host.ipar[9] = 0;
  EXPECT_EQ(host.step(), -11);
  host.ipar[4] = 0;  // what was altered is told before what was not
  EXPECT_EQ(host.check(), -1011);
  host.ipar[4] = 4;
  EXPECT_EQ(host.ipar[7], 1);
  EXPECT_EQ(host.ipar[8], 1);
  host.ipar[0] = 0;
  EXPECT_EQ(host.check(), -1100);
  EXPECT_LT(host.step(), 0);
}

TEST(CheckAndInit, Cg) {
  const Csr A = spd4();
  CgHost host(A, kRightHandSide, kZeros);
  expect_check_codes(host);
  EXPECT_EQ(host.init(0), -10000);
  EXPECT_TRUE(host.intact());
}

TEST(CheckAndInit, CgMany) {
  const Csr A = spd4();
  ManyHost host(A, joined(kRightHandSide, kRightHandSide), joined(kZeros, kZeros));
  for (std::size_t i = 128; i < host.ipar.size(); ++i) {
    EXPECT_EQ(host.ipar[i], 0) << i;
    EXPECT_EQ(host.dpar[i], 0.0) << i;
  }
  EXPECT_EQ(host.init(0, 1), -10000);
  EXPECT_EQ(host.init(2, 2), -10000);
  expect_check_codes(host);
  host.ipar[0] = 4;
  host.nrhs = 0;
  EXPECT_EQ(host.check(), -1100);
  host.nrhs = 2;
  host.ipar[4] = 1;
  host.dpar[0] = 1e-20;
  EXPECT_EQ(host.run(), -1);
  EXPECT_EQ(host.counts()[0], 1);
  for (const int right_hand_side : {0, 3, -1}) {
    host.ipar[2] = right_hand_side;
    EXPECT_EQ(host.step(), -11);
  }
  EXPECT_TRUE(host.intact());
}

TEST(CheckAndInit, Fgmres) {
  const Csr A = nonsymmetric5();
  FgmresHost host(A, Vector(5, 1.0), Vector(5, 0.0), 5);
  const int starts[] = {31, 46, 51, 56, 62, 67};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(host.ipar[15 + i], starts[i]);
  EXPECT_EQ(host.ipar[4], 5);
  EXPECT_EQ(host.ipar[14], 5);
  expect_check_codes(host);
  host.ipar[0] = 5;
  host.ipar[14] = 2;
  EXPECT_EQ(host.check(), 0);
  EXPECT_EQ(host.ipar[20], 28);
  for (const int bad : {0, -3, INT_MAX}) {
    host.ipar[14] = bad;
    EXPECT_EQ(host.check(), -1100);
    EXPECT_EQ(host.step(), -12);
  }
  // The longest work array that positions reach: 3 n + 7 is the largest number there is.
  host.ipar[14] = 1;
  for (const auto& [n, status] : {std::pair(715827880, 0), {715827881, -1100}}) {
    host.ipar[0] = n;
    EXPECT_EQ(host.check(), status) << n;
  }
  EXPECT_EQ(host.init(-1), -10000);
  EXPECT_TRUE(host.intact());
}

void fill_with_nan(int, const double*, double* out) { std::fill_n(out, 4, kNan); }

TEST(Misuse, EndsARunOfCg) {
  const Csr A = spd4();
  const std::pair<std::size_t, double> norms[] = {{4, kNan},      {4, kInfinity}, {4, -1.0}, {5, kNan},
                                                  {5, kInfinity}, {5, -1.0},      {5, 0.0}};
  for (const auto& [entry, value] : norms) {
    CgHost host(A, kRightHandSide, kZeros);
    while (host.step() != 2) host.serve();
    host.dpar[entry] = value;
    EXPECT_EQ(host.step(), -10) << "dpar entry " << entry << " = " << value;
  }
  const Csr steep = sparse({{1, 0}, {1e200, 1}});
  CgHost overflow(steep, {1, 0}, {0, 0});
  EXPECT_EQ(overflow.run(), -10);
  EXPECT_EQ(overflow.requests, "11") << "the host is not asked about what has no norm";
  CgHost not_numbers(A, {1, kNan, 3, 4}, kZeros);
  EXPECT_EQ(not_numbers.run(), -10);
  EXPECT_EQ(not_numbers.requests, "1");
  for (const int stage : {0, -5, 99, INT_MAX}) {
    CgHost host(A, kRightHandSide, kZeros);
    host.ipar[2] = stage;
    EXPECT_EQ(host.step(), -11);
  }
  CgHost bad_preconditioner(A, kRightHandSide, kZeros, true);
  bad_preconditioner.precondition = fill_with_nan;
  EXPECT_EQ(bad_preconditioner.run(), -2);
}

TEST(Misuse, EndsARunOfFgmres) {
  const Csr A = nonsymmetric5();
  const auto begun = [&](int calls) {
    FgmresHost host(A, {-1, 1, 0, 3, 2}, Vector(5, 1.0), 3);
    while (calls-- > 0) host.advance();
    return host;
  };
  // Sizes, stage, step count and positions are those of the run, or the call refuses; GET likewise.
  const std::pair<std::size_t, int> changes[] = {{0, 0},   {0, 6},  {2, 0},  {2, 77}, {2, -1},
                                                 {13, -1}, {13, 4}, {14, 0}, {14, 2}, {15, 1},
                                                 {16, 1},  {17, 9}, {18, 1}, {19, 1}, {20, 1000000}};
  for (const auto& [entry, value] : changes) {
    FgmresHost host = begun(4);
    host.ipar[entry] = value;
    EXPECT_EQ(host.step(), -12) << "ipar entry " << entry << " = " << value;
    EXPECT_EQ(host.get(), -12) << "ipar entry " << entry << " = " << value;
  }
  FgmresHost full_cycle = begun(2);  // a product is due, for which a full cycle has no place
  full_cycle.ipar[13] = 3;
  EXPECT_EQ(full_cycle.step(), -12);
  for (const int calls : {1, 2, 3, 4, 5, 6}) {
    FgmresHost host = begun(calls);
    host.ipar[7] = host.ipar[8] = host.ipar[9] = 0;
    EXPECT_EQ(host.step(), -11);
  }
  FgmresHost not_numbers(A, {1, 2, kNan, 0, 0}, Vector(5, 1.0));
  EXPECT_EQ(not_numbers.run(), -10);
  FgmresHost bad_preconditioner(A, {-1, 1, 0, 3, 2}, Vector(5, 1.0), 3, true);
  bad_preconditioner.precondition = fill_with_nan;
  EXPECT_EQ(bad_preconditioner.run(), -10);
}

// Infinite residuals are not above infinite targets, and no success.
TEST(Misuse, NoInfiniteResidualPasses) {
  const Csr A = sparse({{1, 0}, {0, 1}});
  const Vector finite{1, 1}, infinite{1, kInfinity}, zeros{0, 0}, huge{1, 1e300};
  const auto expect_refusal = [](Host&& host, const char* what) {
    host.ipar[8] = 1;
    EXPECT_EQ(host.run(), -10) << what;
    EXPECT_TRUE(host.intact());
  };
  for (const double absolute : {0.0, kInfinity}) {
    const auto fgmres = [&](const Csr& matrix, const Vector& b, const Vector& start) {
      FgmresHost host(matrix, b, start);
      host.ipar[11] = 1;
      host.dpar[1] = absolute;
      return host;
    };
    expect_refusal(fgmres(A, infinite, zeros), "FGMRES, b");
    expect_refusal(fgmres(A, finite, infinite), "FGMRES, x");
    expect_refusal(fgmres(sparse({{1, 0}, {0, 1e300}}), finite, huge), "FGMRES, product");
    const auto cg = [&](const Vector& b, const Vector& start) {
      CgHost host(A, b, start);
      host.dpar[1] = absolute;
      return host;
    };
    expect_refusal(cg(infinite, zeros), "CG, b");
    expect_refusal(cg(finite, infinite), "CG, x");
    expect_refusal(ManyHost(A, joined(infinite, finite), joined(zeros, zeros)), "CG of several");
  }
}

TEST(CheckAndInit, Defaults) {
  const Csr A = spd4();
  const auto expect = [](auto& array, std::size_t first, const auto& values) {
    for (std::size_t k = 0; k < values.size(); ++k) EXPECT_EQ(array.data()[first + k], values[k]) << first + k;
  };
  using Integers = std::vector<int>;
  CgHost cg(A, kRightHandSide, kZeros);
  ManyHost many(A, kRightHandSide, kZeros);
  FgmresHost fgmres(A, kRightHandSide, kZeros);
  for (Host* const host : std::initializer_list<Host*>{&cg, &many, &fgmres}) {
    expect(host->ipar, 0, Integers{4, 6, 1, 0, 4});
    expect(host->ipar, 7, Integers{1, 0, 1, 0});
    expect(host->dpar, 0, Vector{1e-6, 0, 0, 0, 0, 0, 0, host == &fgmres ? 1e-12 : 0.0});
    if (host != &fgmres) expect(host->tmp, 0, kZeros);
  }
  expect(fgmres.ipar, 21, Integers{1, 1});
  expect(fgmres.ipar, 11, Integers{0, 0, 0, 4});
  expect(fgmres.dpar, 30, Vector{1e-16, 1e-10});
  ASSERT_EQ(fgmres.init(4), 0);
  EXPECT_EQ((Integers{fgmres.ipar[5], fgmres.ipar[6], fgmres.ipar[30]}), (Integers{1, 1, 0}));
}

// A check in mid-run makes the positions suit the new length; the vectors in tmp still suit the old one.
TEST(Misuse, ACycleLengthMayNotChangeOnTheWay) {
  const Csr A = nonsymmetric5();
  for (const int length : {2, 3}) {
    FgmresHost host(A, {-1, 1, 0, 3, 2}, Vector(5, 1.0), 4);
    for (int calls = 0; calls < 4; ++calls) host.advance();
    host.ipar[14] = length;
    host.check();
    EXPECT_EQ(host.step(), -12);
    EXPECT_EQ(host.get(), -12);
  }
}

// Whatever a host does to the parameters on the way, a run stays within its arrays. Sizes of CG cannot be checked,
// those of FGMRES can. (The guard words and the sanitizers watch.)
TEST(Misuse, AnyParametersLeaveARunWithinItsArrays) {
  std::mt19937 random(99);
  const int integers[] = {INT_MIN, -1, 0, 1, 2, 3, 7, 100, INT_MAX};
  const double reals[] = {kNan, kInfinity, -1.0, 0.0, 1e300, 1e-300};
  const auto pick = [&](const auto& values) { return values[random() % std::size(values)]; };
  const Csr A = random_matrix(6, 0.67, 1.0, true, random);
  const Vector b = random_vector(6, random), start = random_vector(6, random);
  const auto corrupt = [&](Host&& host, std::size_t first, std::size_t entries) {
    host.precondition = jacobi(A);
    host.run(1 + static_cast<int>(random() % 20));
    if (random() % 3 != 0) host.ipar[first + random() % (entries - first)] = pick(integers);
    if (random() % 3 == 0) host.dpar[random() % 8] = pick(reals);
    host.ipar[5] = host.ipar[6] = 0;
    host.run(100);
    host.solution();
    EXPECT_TRUE(host.intact());
  };
  for (int trial = 0; trial < 3000; ++trial) {
    corrupt(CgHost(A, b, start, true), 1, 11);
    corrupt(ManyHost(A, joined(b, start), joined(start, b), true), 1, 132);
    corrupt(FgmresHost(A, b, start, 3, true), 0, 23);
  }
}

// Whether the file is there as `count` whole lines that all begin with `prefix` and say something. Removes it.
bool has_lines(const char* file, int count, const std::string& prefix) {
  std::ifstream stream(file);
  bool good = stream.is_open();
  for (std::string line; std::getline(stream, line); --count) {
    good = good && !stream.eof() && line.starts_with(prefix) && line.size() >= prefix.size() + 10;
  }
  stream.close();
  std::remove(file);
  return good && count == 0;
}

// Whole lines in the family's files when ipar(2) is not 6, anew for each call, and nothing at all when switched off.
TEST(Messages, Files) {
  const char *log = "MKL_RCI_FGMRES_Log.txt", *factors = "MKL_PREC_log.txt";
  const char *cg_errors = "dcg_errors.txt", *cg_warnings = "dcg_check_warnings.txt";
  const quorin::test::TemporaryFolder folder;
  const quorin::test::CurrentFolder here(folder.path());
  const Csr A = nonsymmetric5(), without_diagonal = sparse({{0, 1}, {1, 0}});
  FgmresHost host(A, Vector(5, 1.0), Vector(5, 1.0), 5);
  host.ipar[1] = 0;
  host.ipar[4] = 0;
  host.dpar[0] = -1.0;
  EXPECT_EQ(host.check(), -1001);
  EXPECT_FALSE(std::ifstream(log).is_open());
  host.ipar[6] = 1;
  EXPECT_EQ(host.check(), -1001);
  EXPECT_EQ(host.check(), -1001);
  EXPECT_TRUE(has_lines(log, 2, "dfgmres_check: warning -1001: "));
  host.ipar[5] = 1;
  host.ipar[0] = 0;
  EXPECT_EQ(host.check(), -1100);
  EXPECT_TRUE(has_lines(log, 1, "dfgmres_check: error -1100: "));
  CgHost cg(A, Vector(5, 1.0), Vector(5, 1.0));
  cg.ipar[1] = 1;
  cg.ipar[4] = -1;
  cg.ipar[5] = cg.ipar[6] = 1;
  cg.check();
  cg.ipar[0] = 0;
  cg.step();
  EXPECT_TRUE(has_lines(cg_errors, 1, "dcg: error -11: "));
  EXPECT_TRUE(has_lines(cg_warnings, 1, "dcg_check: warning -1001: "));
  Settings s;
  EXPECT_EQ(Ilu0(without_diagonal, s).ierr, -101);
  EXPECT_FALSE(std::ifstream(factors).is_open());
  s.ipar[5] = 1;
  EXPECT_EQ(Ilu0(without_diagonal, s).ierr, -101);
  EXPECT_TRUE(has_lines(factors, 1, "dcsrilu0: error -101: "));
  // The screen is for hosts that leave ipar(2) at 6.
  s.ipar[1] = host.ipar[1] = cg.ipar[1] = 6;
  s.ipar[6] = 1;
  const std::string text = quorin::test::captured([&] {
    host.step();
    cg.step();
    Ilut(spd4(), -1.0, 4, s);
  });
  const std::regex expected(
      "dfgmres: error -12: .*\ndcg: error -11: .*\n(dcsrilut: warning 10[1-3]: .*\n)+dcsrilut: error -102: .*\n");
  EXPECT_TRUE(std::regex_match(text, expected)) << text;
}

}  // namespace
}  // namespace rci_test
