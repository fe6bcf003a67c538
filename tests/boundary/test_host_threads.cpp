// Eight host threads call the BLAS at once on data of their own, while a ninth may take the buffers away.
//
// Level 1 must give the bits of a lone call. Levels 2 and 3 may be cut into other parts, so they are held against sums
// in double precision: |computed - exact| <= (k + 3) u (|A| |B| + |C|) for k terms, with u = 2^-24, the bound for any
// order of summation (N. J. Higham, Accuracy and Stability of Numerical Algorithms, section 3.1).
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "quorin/quorin.h"

namespace {

constexpr int kHosts = 8;
constexpr int kRounds = 12;
constexpr double kRoundoff = 0x1p-24;
constexpr std::int32_t kOne = 1;

std::vector<float> random_numbers(int count, unsigned seed) {
  std::mt19937 generator(seed);
  std::vector<float> numbers(static_cast<std::size_t>(count));
  for (float& number : numbers) number = static_cast<float>(generator()) * 0x1p-31F - 1;
  return numbers;
}

// Runs check(host, round) on eight threads at once; it returns whether all went well.
template <class Check>
void expect_on_all_hosts(const Check& check) {
  std::atomic<int> failures{0}, arrived{0};
  std::vector<std::thread> hosts;
  hosts.reserve(kHosts);
  for (int host = 0; host < kHosts; ++host) {
    hosts.emplace_back([&, host] {
      ++arrived;
      while (arrived.load() < kHosts) std::this_thread::yield();
      for (int round = 0; round < kRounds; ++round) {
        if (!check(host, round)) ++failures;
      }
    });
  }
  for (std::thread& host : hosts) host.join();
  EXPECT_EQ(failures, 0);
}

// All that level 1 computes from two vectors, in one list.
std::vector<float> level_one(int n, unsigned seed) {
  std::vector<float> x = random_numbers(2 * n, seed), y = random_numbers(2 * n, seed + 1000);
  const float a[2] = {0.7F, -0.2F}, c = 0.8F, s = 0.6F;
  float sum[2] = {};
  std::vector<float> results;
  results.push_back(sdot(&n, x.data(), &kOne, y.data(), &kOne));
  results.push_back(snrm2(&n, x.data(), &kOne));
  results.push_back(scasum(&n, reinterpret_cast<quorin_complex*>(x.data()), &kOne));
  results.push_back(static_cast<float>(isamax(&n, x.data(), &kOne)));
  const auto complex = [](std::vector<float>& v) { return reinterpret_cast<quorin_complex*>(v.data()); };
  cdotc(reinterpret_cast<quorin_complex*>(sum), &n, complex(x), &kOne, complex(y), &kOne);
  results.insert(results.end(), {sum[0], sum[1]});
  caxpy(&n, reinterpret_cast<const quorin_complex*>(a), complex(x), &kOne, complex(y), &kOne);
  srot(&n, x.data(), &kOne, y.data(), &kOne, &c, &s);
  sscal(&n, a, x.data(), &kOne);
  results.insert(results.end(), x.begin(), x.end());
  results.insert(results.end(), y.begin(), y.end());
  return results;
}

// C <- A op(B) + C, n-by-n, and y <- A x + y in its first column; the two entries tried of each are checked.
struct Product {
  Product(int order, unsigned seed)
      : n(order),
        a(random_numbers(n * n, seed)),
        b(random_numbers(n * n, seed + 1)),
        c(random_numbers(n * n, seed + 2)) {}

  // Whether C is within the bound of C0 + A op(B) at every entry of `columns` columns in the lower triangle.
  bool is_right(const std::vector<float>& computed, const std::vector<float>& right, bool transposed,
                int columns) const {
    for (int j = 0; j < columns; ++j) {
      for (int i = j; i < n; ++i) {
        double exact = c[at(i, j)], size = std::abs(exact);
        for (int k = 0; k < n; ++k) {
          const double term = double{a[at(i, k)]} * right[transposed ? at(j, k) : at(k, j)];
          exact += term;
          size += std::abs(term);
        }
        if (!(std::abs(computed[at(i, j)] - exact) <= (n + 3) * kRoundoff * size)) return false;
      }
    }
    return true;
  }

  std::size_t at(int i, int j) const {
    return static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * static_cast<std::size_t>(n);
  }

  std::int32_t n;
  std::vector<float> a, b, c;
};

bool multiplies_right(int host, int round) {
  const float one = 1;
  const Product p(round % 3 == 0 ? 40 : 130 + host, static_cast<unsigned>(100 * host + round));
  std::vector<float> c = p.c;
  sgemm("N", "N", &p.n, &p.n, &p.n, &one, p.a.data(), &p.n, p.b.data(), &p.n, &one, c.data(), &p.n);
  bool right = p.is_right(c, p.b, false, p.n);
  c = p.c;
  ssyrk("L", "N", &p.n, &p.n, &one, p.a.data(), &p.n, &one, c.data(), &p.n);
  right = right && p.is_right(c, p.a, true, p.n);
  c = p.c;
  sgemv("N", &p.n, &p.n, &one, p.a.data(), &p.n, p.b.data(), &kOne, &one, c.data(), &kOne);
  return right && p.is_right(c, p.b, false, 1);
}

class HostThreads : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    sMKL_Set_Dynamic(0);
    sMKL_Set_Num_Threads(GetParam());
  }
};

TEST_P(HostThreads, LevelOneGivesTheSameBits) {
  std::vector<std::vector<float>> expected;
  expected.reserve(kHosts);
  for (int host = 0; host < kHosts; ++host)
    expected.push_back(level_one(1000 + 37 * host, static_cast<unsigned>(host)));
  expect_on_all_hosts([&](int host, int) {
    return level_one(1000 + 37 * host, static_cast<unsigned>(host)) == expected[static_cast<std::size_t>(host)];
  });
}

TEST_P(HostThreads, ProductsStayWithinRounding) { expect_on_all_hosts(multiplies_right); }

TEST_P(HostThreads, BuffersMayBeFreedAtAnyTime) {
  std::atomic<bool> stop{false};
  std::thread robber([&] {
    while (!stop.load()) sMKL_FreeBuffers();
  });
  expect_on_all_hosts(multiplies_right);
  stop = true;
  robber.join();
}

INSTANTIATE_TEST_SUITE_P(LibraryThreads, HostThreads, testing::Values(1, 3));

}  // namespace
