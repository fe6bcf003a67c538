// Time of equiripple designs by length, and of Toeplitz solves against dense ones. Medians of alternating runs.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

#include "quorin/signal.h"

extern "C" {
void sgesv_(const int* n, const int* nrhs, float* a, const int* lda, int* ipiv, float* b, const int* ldb, int* info);
// What LAPACK and the Fortran names of the exports want to call.
void xerbla_(const char*, const int*, std::size_t);
void quorin_after_call();
void xerbla_(const char*, const int*, std::size_t) {}
void quorin_after_call() {}
}

namespace {

constexpr int kRuns = 9;

template <class Work>
double milliseconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
  return times[kRuns / 2];
}

// A low-pass filter whose transition band shrinks with its length, so that the ripple stays about the same.
void bench_design(int32_t taps) {
  const int32_t band_count = 2, multiband = 1, by_default = 0;
  const double bands[] = {0, 0.1, 0.1 + 2.0 / taps, 0.5}, desired[] = {1, 0}, weight[] = {1, 10};
  std::vector<double> h(static_cast<std::size_t>(taps));
  std::vector<double> times;
  int32_t ierr = -1;
  for (int run = 0; run < kRuns; ++run) {
    times.push_back(milliseconds([&] {
      REMEZ(h.data(), &taps, &band_count, bands, desired, weight, &multiband, &by_default, &by_default, &ierr);
    }));
  }
  const auto [least, most] = std::minmax_element(times.begin(), times.end());
  std::printf("%6d %12.3f %12.3f %12.3f %6d\n", taps, *least, median(times), *most, ierr);
}

void bench_toeplitz(int m) {
  const auto order = static_cast<std::size_t>(m);
  std::mt19937 engine(1);
  const auto value = [&] { return static_cast<float>(engine()) / 2147483648.0F - 1.0F; };
  std::vector<float> row(order), column(order), b(order), x(order), c1(order), c2(order), a(order * order),
      dense(order);
  std::generate(row.begin(), row.end(), value);
  std::generate(column.begin(), column.end(), value);
  std::generate(b.begin(), b.end(), value);
  row[0] = static_cast<float>(m);
  std::vector<int> pivots(order);
  std::vector<double> ours, theirs;
  int info = 0;
  const int one = 1;
  for (int run = 0; run < kRuns; ++run) {
    ours.push_back(
        milliseconds([&] { TSLS1(row.data(), column.data(), b.data(), x.data(), c1.data(), c2.data(), &m); }));
    for (std::size_t j = 0; j < order; ++j) {
      for (std::size_t i = 0; i < order; ++i) a[i + j * order] = j >= i ? row[j - i] : column[i - j - 1];
    }
    dense = b;
    theirs.push_back(milliseconds([&] { sgesv_(&m, &one, a.data(), &m, pivots.data(), dense.data(), &m, &info); }));
  }
  const double toeplitz = median(ours), full = median(theirs);
  std::printf("%6d %12.3f %12.3f %12.1f\n", m, toeplitz, full, full / toeplitz);
}

}  // namespace

int main() {
  std::printf("Equiripple low-pass by REMEZ [ms]\n%6s %12s %12s %12s %6s\n", "taps", "least", "median", "most", "IERR");
  for (const int32_t taps : {50, 101, 200, 501, 1000, 2000}) bench_design(taps);
  std::printf("\nToeplitz system [ms]\n%6s %12s %12s %12s\n", "order", "TSLS1", "sgesv", "ratio");
  for (const int m : {10, 50, 100, 200, 500, 1000, 2000}) bench_toeplitz(m);
}
