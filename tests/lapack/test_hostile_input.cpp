// Every routine over infinities, NaNs, huge, tiny and subnormal numbers at random places, orders 0 to 65: it returns
// within a second of processor time, stays in its arrays, and says nothing but what is wrong with the host's own
// arguments. The arrays lie flush against pages that cannot be accessed. Then what comes out of such calls.
#include "tests/lapack/paged_call.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"
#include "tests/support/watchdog.hpp"

namespace {

using namespace quorin::test;

// The reports in `text`, and whether all name this routine.
int reports(const std::string& text, const std::string& routine) {
  int count = 0;
  for (std::size_t at = text.find("on entry to "); at != std::string::npos; at = text.find("on entry to ", at + 1)) {
    if (text.compare(at + 12, routine.size() + 1, routine + ".") != 0) return -1;
    ++count;
  }
  return count;
}

TEST(HostileInput, IsSurvivedByEveryRoutine) {
  Watchdog watchdog;
  for (const Routine& routine : kRoutines) {
    std::string upper = routine.name;
    for (char& c : upper) c = static_cast<char>(std::toupper(c));
    int refusals = 0, settled = 0;
    CapturedOutput output;
    for (std::uint32_t seed = 0; seed < 3 * kContents; ++seed) {
      PagedCall call(routine, seed, static_cast<Content>(seed % kContents));
      settled += call.settle([&](PagedCall& drawn) {
        FaultReport::begin(drawn.text().c_str());
        watchdog.begin(drawn.text());
        drawn.run();
        EXPECT_LE(watchdog.end(), Watchdog::kMost) << drawn.text();
        refusals += drawn.info() < 0 ? 1 : 0;
        EXPECT_EQ(drawn.spoilt(), nullptr) << drawn.text();
      });
    }
    const std::string text = output.stop();
    EXPECT_EQ(reports(text, upper), refusals) << routine.name;
    if (HasFailure()) std::fputs(text.c_str(), stderr);
    EXPECT_EQ(settled, 3 * kContents) << routine.name;
  }
  RecordProperty("slowest", watchdog.slowest());
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr std::int32_t kOrder = 4;

// A positive definite matrix with `value` in place of one element, mostly the first row's last.
std::vector<float> matrix_with(float value, std::size_t place = (kOrder - 1) * kOrder) {
  std::vector<float> a(kOrder * kOrder, 0.5F);
  for (std::size_t i = 0; i < kOrder; ++i) a[i * kOrder + i] = 4;
  a[place] = value;
  return a;
}

bool are_nan(const std::vector<float>& values) {
  return std::ranges::all_of(values, [](float value) { return std::isnan(value); });
}

// Eigenvalues of a symmetric matrix; returns info.
std::int32_t syevr(const char* uplo, std::int32_t ldz, std::vector<float>& a, std::vector<float>& w) {
  const std::int32_t n = kOrder, lwork = 26 * n, liwork = 10 * n, none = 0;
  const float zero = 0;
  std::vector<float> z(kOrder * kOrder), work(26 * kOrder);
  std::vector<std::int32_t> isuppz(2 * kOrder), iwork(10 * kOrder);
  std::int32_t m = 0, info = -99;
  ssyevr("V", "A", uplo, &n, a.data(), &n, &zero, &zero, &none, &none, &zero, &m, w.data(), z.data(), &ldz,
         isuppz.data(), work.data(), &lwork, iwork.data(), &liwork, &info);
  return info;
}

TEST(NotFiniteInput, GivesNanAndAStatus) {
  for (const float value : {kNan, kInfinity, -kInfinity}) {
    for (std::size_t i = 0; i < kOrder; ++i) {
      for (std::size_t j = 0; j < kOrder; ++j) {
        std::vector<float> a = matrix_with(value, i + j * kOrder), w(kOrder);
        EXPECT_EQ(syevr(i < j ? "U" : "l", kOrder, a, w), kOrder);
        EXPECT_TRUE(are_nan(w)) << i << ", " << j;
      }
    }

    const std::int32_t n = kOrder, nrhs = 1, lwork = 200;
    std::vector<float> general = matrix_with(value), b(kOrder, 1), s(kOrder), work(200);
    std::int32_t rank = 0, info = -99;
    const float rcond = -1;
    sgelss(&n, &n, &nrhs, general.data(), &n, b.data(), &n, s.data(), &rcond, &rank, work.data(), &lwork, &info);
    EXPECT_EQ(info, kOrder);
    EXPECT_TRUE(are_nan(s));
    EXPECT_TRUE(are_nan(b));
  }
}

TEST(NotFiniteInput, MayStandWhereNothingIsRead) {
  std::vector<float> a = matrix_with(kNan), w(kOrder);
  EXPECT_EQ(syevr("L", kOrder, a, w), 0);
  for (std::size_t i = 0; i < kOrder; ++i) EXPECT_NEAR(w[i], i + 1 < kOrder ? 3.5F : 5.5F, 1e-5F);
}

TEST(NotFiniteInput, DoesNotHideAWrongArgument) {
  std::vector<float> a = matrix_with(kInfinity), w(kOrder, 7);
  const std::vector<float> untouched = a;
  std::int32_t info = 0;
  const std::string text = quorin::test::captured([&] { info = syevr("U", kOrder - 1, a, w); });
  EXPECT_EQ(info, -15);
  EXPECT_EQ(reports(text, "SSYEVR"), 1) << text;
  EXPECT_EQ(a, untouched);
  EXPECT_EQ(w, std::vector<float>(kOrder, 7));
}

TEST(Exchanges, OfBalancingAreTheHostsToo) {
  const std::int32_t n = 3, m = 1, ilo = 2, ihi = 2;
  for (const float row : {0.0F, 4.0F, -1.0F, 3e38F, kNan}) {
    std::vector<float> v = {1, 2, 3}, scale = {row, 1, 3};
    std::int32_t info = -99;
    quorin::test::captured(
        [&] { sgebak(row < 0 ? "b" : "p", "R", &n, &ilo, &ihi, scale.data(), &m, v.data(), &n, &info); });
    EXPECT_EQ(info, -6);
    EXPECT_EQ(v, (std::vector<float>{1, 2, 3}));
  }
}

// Squares of larger elements overflow.
TEST(NotFiniteInput, OfBisectionIsWhatHasNoSquares) {
  const std::int32_t n = 2, il = 0, iu = 0;
  const float abstol = 0;
  const auto bisect = [&](const std::vector<float>& d, float e, float bound, const char* range) {
    std::vector<float> w(2), work(8);
    std::vector<std::int32_t> iblock(2), isplit(2), iwork(6);
    std::int32_t m = -1, nsplit = -1, info = -1;
    sstebz(range, "E", &n, &bound, &bound, &il, &iu, &abstol, d.data(), &e, &m, &nsplit, w.data(), iblock.data(),
           isplit.data(), work.data(), iwork.data(), &info);
    EXPECT_EQ(m, range[0] == 'A' ? 2 : 0);
    EXPECT_EQ(range[0] == 'A' ? are_nan(w) : std::isnan(w[0]), info != 0);
    return info;
  };
  EXPECT_EQ(bisect({1, 2}, 0.5F, kNan, "A"), 0) << "bounds that nobody reads";
  EXPECT_EQ(bisect({1, 2}, 0.5F, kNan, "V"), 1) << "bounds that make no interval";
  EXPECT_EQ(bisect({1, 9e17F}, 9e17F, 0, "A"), 0);
  for (const float large : {1.1e18F, kInfinity, kNan}) {
    EXPECT_EQ(bisect({1, large}, 0.5F, 0, "A"), 1) << large;
    EXPECT_EQ(bisect({-large, 1}, 0.5F, 0, "A"), 1) << large;
    EXPECT_EQ(bisect({1, 2}, large, 0, "A"), 1) << large;
  }
}

// Finite input whose product overflows before the eigenvalues are looked for.
TEST(NotFiniteInput, MayAriseInside) {
  const std::int32_t itype = 2, n = 2, il = 2, iu = 2, ldz = 1, lwork = 16;
  const float zero = 0;
  std::vector<float> a = {1e30F, 1e30F, 1e30F, -1e30F}, b = {3e30F, 0, 0, 3e30F}, w(2), z(4), work(16);
  std::vector<std::int32_t> iwork(10), ifail(2);
  std::int32_t m = 0, info = -99;
  ssygvx(&itype, "N", "I", "U", &n, a.data(), &n, b.data(), &n, &zero, &zero, &il, &iu, &zero, &m, w.data(), z.data(),
         &ldz, work.data(), &lwork, iwork.data(), ifail.data(), &info);
  EXPECT_EQ(info, n);
  EXPECT_TRUE(are_nan(w));
}

}  // namespace
