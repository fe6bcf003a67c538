// Every routine over infinities, NaNs, huge, tiny and subnormal numbers at random places, orders 0 to 65: it returns,
// stays in its arrays, and says nothing but what is wrong with the host's own arguments. The arrays lie flush against
// pages that cannot be accessed. Then what comes out of such calls.
#include <gtest/gtest.h>

#include <atomic>
#include <cctype>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "tests/lapack/paged_call.hpp"
#include "tests/support/capture_output.hpp"

namespace {

using quorin::test::CapturedOutput;
using quorin::test::Content;
using quorin::test::FaultReport;
using quorin::test::kContents;
using quorin::test::kRoutines;
using quorin::test::PagedCall;
using quorin::test::Routine;

constexpr std::chrono::seconds kPatience{60};  // calls take milliseconds, but the machine may be busy

// Ends the program when a call takes too long: it cannot be left in any other way.
class Watchdog {
 public:
  Watchdog() : thread_([this] { watch(); }) {}
  ~Watchdog() {
    stopped_ = true;
    thread_.join();
  }
  void begin(const std::string& call) {
    std::snprintf(call_, sizeof call_, "%s", call.c_str());
    ++calls_;
  }

 private:
  void watch() {
    int seen = -1;
    auto since = std::chrono::steady_clock::now();
    while (!stopped_) {
      std::this_thread::sleep_for(std::chrono::milliseconds{50});
      const auto now = std::chrono::steady_clock::now();
      if (seen != calls_) {
        seen = calls_;
        since = now;
      } else if (now - since > kPatience) {
        std::fprintf(stderr, "Does not return: %s\n", call_);
        std::_Exit(1);
      }
    }
  }
  char call_[400] = "";
  std::atomic<int> calls_ = 0;
  std::atomic<bool> stopped_ = false;
  std::thread thread_;
};

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
        refusals += drawn.info() < 0 ? 1 : 0;
        EXPECT_EQ(drawn.spoilt(), nullptr) << drawn.text();
      });
    }
    const std::string text = output.stop();
    EXPECT_EQ(reports(text, upper), refusals) << routine.name;
    if (HasFailure()) std::fputs(text.c_str(), stderr);
    EXPECT_EQ(settled, 3 * kContents) << routine.name;
  }
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr std::int32_t kOrder = 4;

// A positive definite matrix with `value` in the first row's last element.
std::vector<float> matrix_with(float value) {
  std::vector<float> a(kOrder * kOrder, 0.5F);
  for (std::size_t i = 0; i < kOrder; ++i) a[i * kOrder + i] = 4;
  a[(kOrder - 1) * kOrder] = value;
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
    std::vector<float> a = matrix_with(value), w(kOrder);
    EXPECT_EQ(syevr("U", kOrder, a, w), kOrder);
    EXPECT_TRUE(are_nan(w));

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

// The right-hand sides may be none: rank and singular values are asked for.
TEST(NoRightSides, StillGiveRankAndSingularValues) {
  for (const bool by_halves : {false, true}) {
    const std::int32_t m = 5, n = 3, nrhs = 0, lwork = by_halves ? 3 * 62 + 676 : 15;
    std::vector<float> a(15), s(3), work(static_cast<std::size_t>(lwork));
    for (std::size_t j = 0; j < 3; ++j) a[j * 5 + j] = static_cast<float>(j + 1);
    std::vector<std::int32_t> iwork(33);
    const float rcond = -1;
    std::int32_t rank = -1, info = -99;
    if (by_halves) {
      sgelsd(&m, &n, &nrhs, a.data(), &m, nullptr, &m, s.data(), &rcond, &rank, work.data(), &lwork, iwork.data(),
             &info);
    } else {
      sgelss(&m, &n, &nrhs, a.data(), &m, nullptr, &m, s.data(), &rcond, &rank, work.data(), &lwork, &info);
    }
    EXPECT_EQ(info, 0);
    EXPECT_EQ(rank, 3);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(s[i], static_cast<float>(3 - i), 1e-5F);
  }
}

}  // namespace
