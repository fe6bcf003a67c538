// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ...: families then say so, or do with
// less, and hold nothing.
#include "tests/support/failing_host.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

TEST(IluWithoutMemory, ReportsItAndLeavesTheOutputs) {
  const FailingHost host;
  const int n = 4, ia[] = {1, 4, 7, 10, 13}, ja[] = {1, 2, 3, 1, 2, 4, 1, 3, 4, 2, 3, 4};
  const double a[] = {4, -1, -1, -1, 4, -1, -1, 4, -1, -1, -1, 4};
  const std::vector<int> ipar(128);
  std::vector<double> dpar(128), values;
  dpar[30] = 1;
  const double tolerance = 1e-6;
  const int full = 3;
  std::vector<int> starts(5), columns(17);
  const auto is_marked = [&] { return std::all_of(values.begin(), values.end(), [](double v) { return v == -7.0; }); };
  const auto ilu0 = [&] {
    values.assign(std::size(a), -7.0);
    int ierr = 7;
    host->DCSRILU0(&n, a, ia, ja, values.data(), ipar.data(), dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilu0, is_marked);
  EXPECT_NEAR(values.back(), 52.0 / 15, 1e-15);
  const auto ilut = [&] {
    values.assign(columns.size(), -7.0);
    int ierr = 7;
    host->DCSRILUT(&n, a, ia, ja, values.data(), starts.data(), columns.data(), &tolerance, &full, ipar.data(),
                   dpar.data(), &ierr);
    return ierr;
  };
  expect_status_without_memory(host, -104, ilut, is_marked);
  EXPECT_EQ(starts.back(), 15);
}

TEST(SignalWithoutMemory, RemezReportsItAndLeavesTheFilter) {
  const FailingHost host;
  constexpr double kMark = 12345.0;
  constexpr int kTaps = 61;
  std::vector<double> h;
  const auto design = [&] {
    const int taps = kTaps, band_count = 2, type = 1, by_default = 0;
    const double bands[] = {0, 0.1, 0.15, 0.5}, desired[] = {1, 0}, weight[] = {1, 10};
    h.assign(kTaps, kMark);
    int ierr = -1;
    host->REMEZ(h.data(), &taps, &band_count, bands, desired, weight, &type, &by_default, &by_default, &ierr);
    return ierr;
  };
  expect_status_without_memory(host, 3, design, [&] { return h == std::vector<double>(kTaps, kMark); });
}

// They have no code for it, and need none: the host's work arrays do instead.
TEST(SignalWithoutMemory, ToeplitzSystemsAreSolvedInTheWorkArrays) {
  const FailingHost host;
  constexpr int kOrder = 50;
  std::vector<float> row(kOrder), column(kOrder - 1), b(kOrder, 1.0F), with(kOrder), without(kOrder), c1(kOrder - 1),
      c2(kOrder - 1);
  for (int i = 0; i < kOrder; ++i) row[i] = 1.0F / static_cast<float>(1 + i * i);
  for (int i = 1; i < kOrder; ++i) column[i - 1] = -row[i] / 2;
  const auto solve = [&](std::vector<float>& x) {
    const int m = kOrder;
    host->TSLS1(row.data(), column.data(), b.data(), x.data(), c1.data(), c2.data(), &m);
  };
  EXPECT_TRUE(host.run_failing(1, 1, [&] { solve(without); }));
  EXPECT_NE(c1, std::vector<float>(kOrder - 1));
  solve(with);
  for (int i = 0; i < kOrder; ++i) EXPECT_NEAR(without[i], with[i], 1e-5F * std::fabs(with[i])) << i;
  EXPECT_EQ(host.live_blocks(), 0);
  row[0] = 0;  // a singular leading minor
  EXPECT_TRUE(host.run_failing(1, 1, [&] { solve(without); }));
  EXPECT_TRUE(std::isnan(without[0]));
}

void twice(int32_t* m, int32_t*, float* x, float* f) {
  for (int32_t i = 0; i < *m; ++i) f[i] = 2 * x[0];
}

TEST(LeastSquaresWithoutMemory, TellsSoAndLeaksNothing) {
  const FailingHost host;
  constexpr int kSuccess = 1501, kOutOfMemory = 1503, kMostAllocations = 100;
  const int32_t n = 3, m = 5, limit = 10;
  float x[] = {1, 2, 3}, low[] = {0, 0, 0}, high[] = {9, 9, 9}, eps[6] = {}, columns[15] = {};
  const float step = 0.5F, rs = 0;
  for (int call = 0; call < 4; ++call) {
    for (const int failures : {1, 1000}) {
      SCOPED_TRACE(testing::Message() << "call " << call << ", failing " << failures);
      int status = kOutOfMemory, k = 0;
      while (status == kOutOfMemory && ++k < kMostAllocations) {
        const int live = host.live_blocks();
        int something = 0;
        void* handle = &something;
        host.run_failing(k, failures, [&] {
          if (call == 0) status = host->strnlsp_init(&handle, &n, &m, x, eps, &limit, &limit, &rs);
          if (call == 1) status = host->strnlspbc_init(&handle, &n, &m, x, low, high, eps, &limit, &limit, &rs);
          if (call == 2) status = host->sjacobi_init(&handle, &n, &m, x, columns, &step);
          if (call == 3) status = host->sjacobi(twice, &n, &m, columns, x, &step);
        });
        if (status == kOutOfMemory) {
          EXPECT_TRUE(call == 3 || handle == nullptr);
          EXPECT_EQ(host.live_blocks(), live);
          continue;
        }
        ASSERT_EQ(status, kSuccess);
        if (call == 0) status = host->strnlsp_delete(&handle);
        if (call == 1) status = host->strnlspbc_delete(&handle);
        if (call == 2) status = host->sjacobi_delete(&handle);
        EXPECT_EQ(status, kSuccess);
        EXPECT_EQ(host.live_blocks(), live);
      }
      EXPECT_GT(k, 1) << "no allocation failed";
      EXPECT_LT(k, kMostAllocations);
    }
  }
}

constexpr int kSide = 6, kOrder = kSide * kSide, kRoom = 20;

// The lower triangle of a grid's Laplacian, one-based rows.
struct Grid {
  std::vector<float> values;
  std::vector<std::int32_t> starts, columns;
  Grid() {
    for (int i = 0; i < kOrder; ++i) {
      starts.push_back(static_cast<std::int32_t>(values.size()) + 1);
      if (i >= kSide) add(i - kSide, -1);
      if (i % kSide > 0) add(i - 1, -1);
      add(i, 4);
    }
    starts.push_back(static_cast<std::int32_t>(values.size()) + 1);
  }
  void add(int column, float value) {
    columns.push_back(column + 1);
    values.push_back(value);
  }
};

TEST(FeastWithoutMemory, TellsSoOrDoesWithLess) {
  constexpr int kNoMemory = -1, kMostAllocations = 2000;
  const FailingHost host;
  const Grid grid;
  std::vector<quorin_complex> complex_values, identity(kOrder, {1, 0});
  for (const float value : grid.values) complex_values.push_back({value, 0});
  std::vector<std::int32_t> one_each(kOrder + 1), diagonal(kOrder);
  for (int i = 0; i <= kOrder; ++i) one_each[static_cast<std::size_t>(i)] = i + 1;
  for (int i = 0; i < kOrder; ++i) diagonal[static_cast<std::size_t>(i)] = i + 1;
  const char uplo = 'L';
  const std::int32_t n = kOrder;
  const float emin = 1, emax = 3;
  std::vector<std::int32_t> fpm(128);
  host->feastinit_32f(fpm.data());
  fpm[1] = 3;
  std::vector<float> e(kRoom), res(kRoom), x(std::size_t{2} * kRoom * kOrder);
  std::int32_t loop = 0, m = 0, m0 = kRoom, info = 0;
  float epsout = 0;
  for (const bool is_complex : {false, true}) {
    int found = -1, lean = 0;
    for (const int failures : {1, kMostAllocations}) {
      int k = 0;
      bool has_failed = true;
      while (has_failed) {
        ASSERT_LT(++k, kMostAllocations);
        m0 = kRoom;
        m = loop = -7;
        e.assign(kRoom, -7);
        has_failed = host.run_failing(k, failures, [&] {
          if (is_complex) {
            host->cfeast_hcsrgv(&uplo, &n, complex_values.data(), grid.starts.data(), grid.columns.data(),
                                identity.data(), one_each.data(), diagonal.data(), fpm.data(), &epsout, &loop, &emin,
                                &emax, &m0, e.data(), reinterpret_cast<quorin_complex*>(x.data()), &m, res.data(),
                                &info);
          } else {
            host->sfeast_scsrev(&uplo, &n, grid.values.data(), grid.starts.data(), grid.columns.data(), fpm.data(),
                                &epsout, &loop, &emin, &emax, &m0, e.data(), x.data(), &m, res.data(), &info);
          }
        });
        host->sMKL_FreeBuffers();
        EXPECT_EQ(host.live_blocks(), 0) << "allocation " << k;
        if (info == 0) {
          if (found < 0) found = m;
          EXPECT_EQ(m, found);
          lean += has_failed ? 1 : 0;
          continue;
        }
        EXPECT_EQ(info, kNoMemory) << "allocation " << k;
        EXPECT_TRUE(has_failed);
        EXPECT_EQ(m, 0);
        EXPECT_EQ(loop, 0);
        EXPECT_EQ(e, std::vector<float>(kRoom, -7));
      }
      EXPECT_GT(k, 10);
    }
    EXPECT_GT(found, 3);
    EXPECT_GT(lean, 0) << "no factor was ever made again for want of memory";
  }
}

}  // namespace
}  // namespace quorin::test
