// REMEZ against published filters and the alternation theorem.
#include "quorin/signal.h"
#include "tests/support/test.hpp"

namespace {

using std::numbers::pi;

// In the order of the call.  NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Design {
  std::string name;
  int taps;
  std::vector<double> bands, desired, weight;
  int type = 1;
  int grid_density = 0;
  int most_iterations = 0;
};

constexpr double kGuard = 12345.0;

// Returns IERR. Everything lies on addresses that are no multiples of 8, as in hosts that align doubles to 4 bytes, and
// the index form is given indices of both signs.
int design(const Design& d, std::vector<double>& h) {
  constexpr int kBefore = 3, kAfter = 2;
  const auto place = [](const std::vector<double>& values, std::vector<char>& memory) {
    memory.resize(values.size() * sizeof(double) + 2 * sizeof(double));
    const auto address = reinterpret_cast<std::uintptr_t>(memory.data());
    char* const at = memory.data() + (address % 8 == 4 ? 0 : 4);
    std::memcpy(at, values.data(), values.size() * sizeof(double));
    return at;
  };
  std::vector<double> filter(static_cast<std::size_t>(std::max(d.taps, 0)) + kBefore + kAfter, kGuard);
  std::vector<char> memory[4];
  char* const to = place(filter, memory[0]);
  const int band_count = static_cast<int>(d.desired.size());
  int ierr = -1;
  const auto address = [](char* at, int index) {
    return reinterpret_cast<double*>(at - static_cast<std::ptrdiff_t>(sizeof(double)) * index);
  };
  sREMEZ_Idx(address(to, 0), kBefore, &d.taps, &band_count, address(place(d.bands, memory[1]), 2), 2,
             address(place(d.desired, memory[2]), -5), -5, address(place(d.weight, memory[3]), 7), 7, &d.type,
             &d.grid_density, &d.most_iterations, &ierr);
  std::memcpy(filter.data(), to, filter.size() * sizeof(double));
  const auto is_guard = [](double v) { return v == kGuard; };
  EXPECT_TRUE(std::all_of(filter.begin(), filter.begin() + kBefore, is_guard)) << d.name;
  EXPECT_TRUE(std::all_of(filter.end() - kAfter, filter.end(), is_guard)) << d.name;
  h.assign(filter.begin() + kBefore, filter.end() - kAfter);
  return ierr;
}

// The response of h in the middle of its delay, summed from the outside in.
double response(const std::vector<double>& h, bool antisymmetric, double f) {
  const int taps = static_cast<int>(h.size());
  double sum = 0.0;
  for (int k = 0; k < taps / 2; ++k) {
    const double angle = pi * f * (taps - 1 - 2 * k);
    sum += 2 * h[k] * (antisymmetric ? std::sin(angle) : std::cos(angle));
  }
  return taps % 2 != 0 && !antisymmetric ? sum + h[taps / 2] : sum;
}

// The weighted error as the caller defined it.
double error_at(const Design& d, const std::vector<double>& h, std::size_t band, double f) {
  const double a = response(h, d.type != 1, f);
  const bool relative = d.type == 2 && d.desired[band] != 0.0;
  if (!relative) return d.weight[band] * (d.desired[band] - a);
  constexpr double kNearZero = 1e-6;
  const double at = std::max(f, kNearZero);
  return d.weight[band] * (d.desired[band] - response(h, true, at) / at);
}

// The local extrema of the error in a band, ends included, refined by golden sections.
std::vector<double> extrema(const Design& d, const std::vector<double>& h, std::size_t band) {
  const double lower = d.bands[2 * band], upper = d.bands[2 * band + 1];
  const int steps = 4 + static_cast<int>(40 * d.taps * (upper - lower));
  const auto error = [&](double f) { return error_at(d, h, band, f); };
  const auto place = [&](int i) { return std::lerp(lower, upper, static_cast<double>(i) / steps); };
  std::vector<double> e(static_cast<std::size_t>(steps) + 1), found{error(lower)};
  for (int i = 0; i <= steps; ++i) e[i] = error(place(i));
  for (int i = 1; i < steps; ++i) {
    if (!(std::abs(e[i]) >= std::abs(e[i - 1]) && std::abs(e[i]) >= std::abs(e[i + 1]))) continue;
    double a = place(i - 1), b = place(i + 1);
    const double ratio = (std::sqrt(5.0) - 1) / 2;
    for (int k = 0; k < 30; ++k) {
      const double p = b - ratio * (b - a), q = a + ratio * (b - a);
      (std::abs(error(p)) > std::abs(error(q)) ? b : a) = std::abs(error(p)) > std::abs(error(q)) ? q : p;
    }
    found.push_back(error((a + b) / 2));
  }
  found.push_back(error(upper));
  return found;
}

double largest_error(const Design& d, const std::vector<double>& h) {
  double largest = 0.0;
  for (std::size_t b = 0; b < d.desired.size(); ++b) {
    for (const double e : extrema(d, h, b)) largest = std::max(largest, std::abs(e));
  }
  return largest;
}

// The alternation theorem: a filter with k free coefficients is the best one if and only if its error reaches its
// largest magnitude at k + 1 frequencies with alternating signs; if it comes within a factor 1 - t of it there, the
// best one is at most the part t better.
void expect_optimal(const Design& d, const std::vector<double>& h, double tolerance) {
  const double threshold = (1 - tolerance) * largest_error(d, h);
  int alternations = 0;
  double last = 0.0;
  for (std::size_t b = 0; b < d.desired.size(); ++b) {
    for (const double e : extrema(d, h, b)) {
      if (std::abs(e) < threshold || (alternations > 0 && (e > 0) == (last > 0))) continue;
      last = e;
      ++alternations;
    }
  }
  const int coefficients = d.type == 1 ? (d.taps + 1) / 2 : d.taps / 2;
  EXPECT_GE(alternations, coefficients + 1) << d.name << ", " << d.taps << " taps";
}

void expect_symmetric(const Design& d, const std::vector<double>& h) {
  for (std::size_t k = 0; k < h.size(); ++k) {
    const double mirrored = h[h.size() - 1 - k];
    ASSERT_EQ(h[k], d.type == 1 ? mirrored : -mirrored) << d.name;
  }
}

// J. H. McClellan, T. W. Parks, L. R. Rabiner, A computer program for designing optimum FIR linear phase digital
// filters, IEEE Trans. Audio Electroacoust. 21 (1973) 506-526: its examples, or their first coefficients. The program
// worked on a grid of 16 points per coefficient, and rounded some steps to single precision.
TEST(Equiripple, PublishedFiltersOnTheirGrid) {
  const struct {
    Design design;
    std::vector<double> half;
  } published[] = {
      {{"low-pass", 24, {0, 0.08, 0.16, 0.5}, {1, 0}, {1, 1}, 1, -16},
       {0.33740917e-2, 0.14938299e-1, 0.10569360e-1, 0.25415067e-2, -0.15929992e-1, -0.34085343e-1, -0.38112177e-1,
        -0.14629169e-1, 0.40089541e-1, 0.11540713, 0.18850752, 0.23354606}},
      {{"band-pass", 32, {0, 0.1, 0.2, 0.35, 0.425, 0.5}, {0, 1, 0}, {10, 1, 10}, 1, -16},
       {-0.57534121e-2, 0.99027198e-3, 0.75733545e-2, -0.65141192e-2, 0.13960525e-1, 0.22951469e-2, -0.19994067e-1,
        0.71369560e-2, -0.39657363e-1, 0.11260114e-1, 0.66233643e-1, -0.10497223e-1, 0.85136133e-1, -0.12024993,
        -0.29678577, 0.30410917}},
      {{"five bands",
        55,
        {0, 0.05, 0.1, 0.15, 0.18, 0.25, 0.3, 0.36, 0.41, 0.5},
        {0, 1, 0, 1, 0},
        {10, 1, 3, 1, 20},
        1,
        -16},
       {0.10662652e-2, 0.63777615e-2, 0.35755609e-2, -0.90677854e-2, -0.90906978e-2, 0.29155630e-2, 0.39637965e-2,
        0.11172051e-1}},
      {{"differentiator", 32, {0, 0.5}, {1}, {1}, 2, -16}, {-0.62713091e-3}},
  };
  for (const auto& p : published) {
    std::vector<double> h;
    ASSERT_EQ(design(p.design, h), 0) << p.design.name;
    expect_symmetric(p.design, h);
    for (std::size_t k = 0; k < p.half.size(); ++k) EXPECT_NEAR(h[k], p.half[k], 5e-9) << p.design.name << ' ' << k;
  }
}

std::vector<Design> designs() {
  std::vector<Design> all;
  for (const int taps : {3, 4, 5, 6, 30, 31, 100, 101}) {
    all.push_back({"low-pass", taps, {0, 0.11, 0.15, 0.5}, {1, 0}, {1, 5}});
    all.push_back({"band-pass", taps, {0, 0.1, 0.15, 0.25, 0.28, 0.5}, {0, 1, 0}, {3, 1, 2}});
    all.push_back({"five bands",
                   taps,
                   {0, 0.05, 0.1, 0.15, 0.18, 0.25, 0.3, 0.36, 0.41, 0.45},
                   {0, 1, 0, -1, 0},
                   {10, 1, 3, 1, 20}});
    all.push_back({"differentiator", taps, {0, 0.3, 0.33, 0.46}, {2 * pi, 0}, {1, 0.5}, 2});
    all.push_back({"Hilbert transformer", taps, {0.02, 0.48}, {1}, {1}, 3});
  }
  all.push_back({"high-pass", 51, {0, 0.3, 0.34, 0.5}, {0, 2.5}, {1, 1}});
  all.push_back({"narrow pass-band", 151, {0, 0.1, 0.115, 0.12, 0.135, 0.5}, {0, 1, 0}, {1, 1, 1}});
  all.push_back({"full-band differentiator", 32, {0, 0.5}, {1}, {1}, 2});
  all.push_back({"unequal weights", 201, {0, 0.2, 0.22, 0.5}, {1, 0}, {1, 1000}});
  all.push_back({"fine search", 55, {0, 0.1, 0.13, 0.5}, {1, 0}, {1, 1}, 1, 64});
  all.push_back({"many taps", 1001, {0, 0.1, 0.105, 0.5}, {1, 0}, {1, 10}});
  all.push_back({"many taps", 1000, {0.005, 0.245, 0.25, 0.495}, {1, -1}, {1, 1}, 3});
  return all;
}

// Of bands narrower than the distance that others keep from zeros of the form, a quarter is cut.
TEST(Equiripple, NarrowBandsAtZerosOfTheForm) {
  Design at_half{"band at 0.5", 30, {0, 0.3, 0.4998, 0.5}, {1, 0.5}, {1, 1}};
  Design at_zero{"band at 0", 31, {0, 0.0002, 0.1, 0.4}, {0.5, 1}, {1, 1}, 3};
  std::vector<double> h;
  EXPECT_EQ(design(at_half, h), 0);
  at_half.bands[3] = 0.49995;
  expect_optimal(at_half, h, 1e-6);
  EXPECT_EQ(design(at_zero, h), 0);
  at_zero.bands[0] = 0.00005;
  expect_optimal(at_zero, h, 1e-6);
}

TEST(Equiripple, AlternationOnADenseGrid) {
  for (const Design& d : designs()) {
    std::vector<double> h;
    ASSERT_EQ(design(d, h), 0) << d.name << ", " << d.taps << " taps";
    expect_symmetric(d, h);
    expect_optimal(d, h, 1e-6);
  }
}

// Wanted is less error than double precision can tell from none: a filter within rounding, not a failure.
TEST(Equiripple, BetterThanRounding) {
  const Design easy[] = {
      {"all-pass", 101, {0, 0.5}, {1}, {1}},
      {"nothing", 40, {0, 0.4}, {0}, {1}},
      {"wide transition", 301, {0, 0.1, 0.3, 0.5}, {1, 0}, {1, 1}},
      {"two wide transitions", 401, {0, 0.1, 0.2, 0.25, 0.4, 0.5}, {1, 0, 1}, {1, 1, 1}},
      {"three thousand taps", 3001, {0, 0.2, 0.21, 0.5}, {1, 0}, {1, 1}},
  };
  for (const Design& d : easy) {
    std::vector<double> h;
    EXPECT_EQ(design(d, h), 0) << d.name;
    const bool is_long = d.taps > 1000;
    for (std::size_t b = 0; b < d.desired.size(); ++b) {
      for (int i = 0; i <= (is_long ? 500 : 4000); ++i) {
        const double f = std::lerp(d.bands[2 * b], d.bands[2 * b + 1], i / (is_long ? 500.0 : 4000.0));
        ASSERT_LE(std::abs(error_at(d, h, b, f)), 5e-12) << d.name << " at " << f;
      }
    }
  }
}

// A part in 1e9 of one band in another: rounding wins some day, and what is called converged has its alternations, or
// an error within what the interface says of rounding, and of little weight in each band.
TEST(Equiripple, ExtremeWeightsConvergeOrSaySo) {
  for (const int taps : {31, 61, 101}) {
    int converged = 0;
    for (int power = 0; power <= 15; ++power) {
      for (const bool is_swapped : {false, true}) {
        const double heavy = std::pow(10.0, power);
        Design d{"weights 1 to 1e" + std::to_string(power), taps, {0, 0.1, 0.2, 0.5}, {1, 0}, {1, heavy}};
        if (is_swapped) d.desired = {0, 1};
        std::vector<double> h;
        const bool is_within_reach = taps < 100 && power <= 9;
        if (design(d, h) != 0) {
          EXPECT_FALSE(is_within_reach) << d.name << ", " << taps << " taps";
          continue;
        }
        ++converged;
        if (is_within_reach) expect_optimal(d, h, 5e-4);
        EXPECT_LT(largest_error(d, h), 1.001) << d.name << ", " << taps << " taps";
        if (largest_error(d, h) > 1e-11 * heavy) expect_optimal(d, h, 2e-3);
      }
    }
    EXPECT_GE(converged, 10) << taps;
  }
}

TEST(Equiripple, TooFewExchangesGiveTheBestSoFar) {
  Design d{"low-pass", 101, {0, 0.1, 0.12, 0.5}, {1, 0}, {1, 1}};
  std::vector<double> best, first;
  ASSERT_EQ(design(d, best), 0);
  d.most_iterations = 1;
  EXPECT_EQ(design(d, first), 2);
  expect_symmetric(d, first);
  EXPECT_GT(largest_error(d, first), largest_error(d, best));
  EXPECT_LT(largest_error(d, first), 20 * largest_error(d, best));
}

// Each band begins with about as many extrema as it will have, also with a narrow transition or unequal weights.
TEST(Equiripple, FewExchangesAreEnough) {
  std::vector<double> h;
  EXPECT_EQ(design({"narrow transition", 301, {0, 0.1, 0.106, 0.5}, {1, 0}, {1, 10}, 1, 0, 7}, h), 0);
  EXPECT_EQ(design({"weights", 120, {0, 0.2, 0.23, 0.5}, {1, 0}, {1, 1e4}, 1, 0, 7}, h), 0);
}

TEST(Equiripple, BadInputWritesNothing) {
  const Design good{"good", 21, {0, 0.1, 0.2, 0.5}, {1, 0}, {1, 1}};
  const double nan = std::numeric_limits<double>::quiet_NaN(), infinity = std::numeric_limits<double>::infinity();
  std::vector<Design> bad;
  const auto with = [&](const auto& change) { change(bad.emplace_back(good)); };
  for (const int taps : {2, 0, -5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    with([=](Design& d) { d.taps = taps; });
  }
  for (const int type : {0, 4, -1}) with([=](Design& d) { d.type = type; });
  with([](Design& d) { d.desired.clear(); });
  for (const double edge : {-0.1, 0.0, 0.2, 0.3, nan}) with([=](Design& d) { d.bands[1] = edge; });
  for (const double edge : {0.51, 0.2, infinity, nan}) with([=](Design& d) { d.bands[3] = edge; });
  for (const double weight : {0.0, -1.0, infinity, nan}) with([=](Design& d) { d.weight[1] = weight; });
  for (const double value : {infinity, nan}) with([=](Design& d) { d.desired[0] = value; });
  with([](Design& d) { d.most_iterations = -1; });
  with([](Design& d) { d.grid_density = std::numeric_limits<int>::min(); });
  for (Design& d : bad) {
    const int band_count = static_cast<int>(d.desired.size());
    std::vector<double> h(100, kGuard);
    int ierr = -1;
    REMEZ(h.data(), &d.taps, &band_count, d.bands.data(), d.desired.data(), d.weight.data(), &d.type, &d.grid_density,
          &d.most_iterations, &ierr);
    EXPECT_EQ(ierr, 1);
    EXPECT_EQ(h, std::vector<double>(100, kGuard));
  }
}

}  // namespace
