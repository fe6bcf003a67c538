// Triads to columns: SS2Y, whose exact order hosts see.
#include "tests/slap/slap_host.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

// Singleton's sort as it was printed, label by label (CACM 12, 1969, p. 186), with the split place I + floor((J-I) R).
void published_sort(Integers& ja, Integers& ia, Floats& a) {
  const auto swap = [&](int p, int q) {
    std::swap(ja[p], ja[q]);
    std::swap(ia[p], ia[q]);
    std::swap(a[p], a[q]);
  };
  const int ii = 0;
  int i = 0, j = static_cast<int>(a.size()) - 1, m = 0;
  double ratio = 0.375;
  std::vector<std::pair<int, int>> stack(100);
  bool split = j - i > 10 || i < j;
  for (;;) {
    if (split) {
      ratio = ratio <= 0.5898437 ? ratio + 0.0390625 : ratio - 0.21875;
      const int ij = i + static_cast<int>(std::floor((j - i) * ratio));
      if (ja[i] > ja[ij]) swap(i, ij);
      if (ja[j] < ja[ij]) {
        swap(j, ij);
        if (ja[i] > ja[ij]) swap(i, ij);
      }
      const int t = ja[ij];
      int k = i, l = j;
      for (;;) {
        for (--l; ja[l] > t; --l) {
        }
        for (++k; ja[k] < t; ++k) {
        }
        if (k > l) break;
        swap(l, k);
      }
      if (l - i > j - k) {
        stack[m++] = {i, l};
        i = k;
      } else {
        stack[m++] = {k, j};
        j = l;
      }
    } else {
      for (++i; i <= j; ++i) {
        for (int k = i; ja[k - 1] > ja[k]; --k) swap(k, k - 1);
      }
      if (m == 0) return;
      std::tie(i, j) = stack[--m];
    }
    split = j - i > 10 || (i == ii && i < j);
  }
}

// The conversion in its simplest form.
Triads published_conversion(Triads t) {
  const int nelt = t.nelt();
  t.ja.resize(nelt);
  published_sort(t.ja, t.ia, t.a);
  Integers starts{1};
  for (int c = 1; c <= t.n; ++c) {
    starts.push_back(static_cast<int>(std::upper_bound(t.ja.begin(), t.ja.end(), c) - t.ja.begin()) + 1);
  }
  const auto swap = [&](int p, int q) {
    std::swap(t.ia[p], t.ia[q]);
    std::swap(t.a[p], t.a[q]);
  };
  for (int c = 1; c <= t.n; ++c) {
    const int begin = starts[c - 1] - 1, end = starts[c] - 1;
    for (int k = begin; k < end; ++k) {
      if (t.ia[k] != c) continue;
      swap(begin, k);
      break;
    }
    for (int i = begin + 1; i < end - 1; ++i) {
      for (int j = i + 1; j < end; ++j) {
        if (t.ia[i] > t.ia[j]) swap(i, j);
      }
    }
  }
  std::copy(starts.begin(), starts.end(), t.ja.begin());
  return t;
}

// Every column has an entry; the diagonal may be missing, entries may be repeated, some columns are long.
Triads random_triads(int n, std::mt19937& random) {
  Triads t;
  t.n = n;
  std::uniform_int_distribution<int> index(1, n), percent(0, 99);
  for (int j = 1; j <= n; ++j) {
    const int count = percent(random) < 3 ? 3 * n : 1 + percent(random) % 6;
    for (int k = 0; k < count; ++k) t.add(index(random), j, 1000 * j + k);
    if (percent(random) < 70) t.add(j, j, -j);
  }
  return t.shuffled(random);
}

TEST(Conversion, LeavesTheOrderThatThePublishedStepsLeave) {
  std::mt19937 random(347);
  for (int round = 0; round < 60; ++round) {
    const Triads t = random_triads(2 + round * 3, random), expected = published_conversion(t), actual = t.converted();
    ASSERT_EQ(actual.ia, expected.ia) << round;
    ASSERT_EQ(actual.a, expected.a) << round;
    ASSERT_TRUE(std::equal(actual.ja.begin(), actual.ja.begin() + t.n + 1, expected.ja.begin())) << round;
    EXPECT_EQ(actual.ja[t.n], t.nelt() + 1);
    EXPECT_EQ(actual.ja[t.n + 1], 0);
  }
}

TEST(Conversion, ConvertedMatricesAreLeftAlone) {
  std::mt19937 random(5);
  const Triads columns = random_triads(50, random).converted();
  Triads again = columns;
  EXPECT_EQ((again = again.converted()).ja, columns.ja);
  EXPECT_EQ(again.a, columns.a);
  // The mark alone counts, not the order.
  Triads unsorted;
  unsorted.n = 2;
  unsorted.ia = {2, 1, 1, 2};
  unsorted.a = {1, 2, 3, 4};
  unsorted.ja = {1, 3, 5, 99};
  EXPECT_EQ(unsorted.converted().ia, unsorted.ia);
  EXPECT_EQ(unsorted.converted().ja, unsorted.ja);
  SCPPLT(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

// Quadratic work on a column would take minutes.
TEST(Conversion, LongColumns) {
  Triads arrow;
  arrow.n = 300000;
  for (int i = arrow.n; i >= 1; --i) arrow.add(i, 1, i);
  for (int i = 2; i <= arrow.n; ++i) arrow.add(i, i, 1);
  const Triads columns = arrow.converted();
  for (int i = 1; i <= arrow.n; ++i) ASSERT_EQ(columns.ia[i - 1], i);
  EXPECT_EQ(columns.ja[1], arrow.n + 1);
  for (const int repeated : {7, arrow.n - 7}) {
    Triads twice = arrow;
    twice.add(repeated, 1, 0.5);
    const Integers rows = twice.converted().ia;
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.begin() + arrow.n + 1));
  }
}

}  // namespace
}  // namespace slap_test
