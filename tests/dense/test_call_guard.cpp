// What is looked at in front of the published LAPACK routines, place by place and number by number.
#include "dense/lapack/call_guard.hpp"
#include "tests/support/test.hpp"

namespace quorin::dense {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN(), kInfinity = std::numeric_limits<float>::infinity();

// `holds(a)` finds what stands in place (i, j) of an array of ld rows where `is_part(i, j)`, and there only.
template <class T, class Holds, class IsPart>
void expect_looked_at(int ld, int columns, const Holds& holds, const IsPart& is_part) {
  std::vector<T> a(static_cast<std::size_t>(ld) * static_cast<std::size_t>(columns), T{2});
  EXPECT_TRUE(holds(a.data()));
  for (int j = 0; j < columns; ++j) {
    for (int i = 0; i < ld; ++i) {
      T& place = a[static_cast<std::size_t>(j) * static_cast<std::size_t>(ld) + static_cast<std::size_t>(i)];
      for (const float wrong : {kNan, kInfinity, -kInfinity, -3e38F}) {
        place = T{wrong};
        EXPECT_EQ(holds(a.data()), !is_part(i, j)) << i << ' ' << j;
        if constexpr (kIsComplex<T>) place = T{2, wrong};
        EXPECT_EQ(holds(a.data()), !is_part(i, j)) << i << ' ' << j;
      }
      place = T{-1e38F};
    }
  }
}

template <class T>
class FiniteInput : public testing::Test {};
using Scalars = testing::Types<float, std::complex<float>>;
TYPED_TEST_SUITE(FiniteInput, Scalars);

TYPED_TEST(FiniteInput, IsExaminedWhereTheRoutineReads) {
  using T = TypeParam;
  constexpr float kMost = 2e38F;
  for (int n = 0; n <= 5; ++n) {
    for (int ld = std::max(n, 1); ld <= n + 2; ++ld) {
      for (int rows = 0; rows <= ld; ++rows) {
        expect_looked_at<T>(
            ld, n, [&](const T* a) { return is_matrix_finite(a, rows, n, ld, kMost); },
            [&](int i, int) { return i < rows; });
      }
      for (const char uplo : {'U', 'u', 'L', 'l', kHessenberg}) {
        expect_looked_at<T>(
            ld, n, [&](const T* a) { return is_triangle_finite(uplo, a, n, ld, kMost); },
            [&](int i, int j) {
              return i < n && (upper(uplo) == 'L' ? i >= j : i <= j + (uplo == kHessenberg ? 1 : 0));
            });
      }
    }
    for (int kd = 0; kd <= 3; ++kd) {
      for (const char uplo : {'U', 'u', 'L', 'l'}) {
        expect_looked_at<T>(
            kd + 2, n, [&](const T* ab) { return is_band_finite(uplo, ab, kd, n, kd + 2, kMost); },
            [&](int i, int j) { return i <= kd && (upper(uplo) == 'U' ? i >= kd - j : j + i < n); });
      }
    }
  }
}

// All lists of three numbers from -4 to 4, by what the routines say of them.
TEST(Lists, LeadWhereTheyMay) {
  constexpr std::int32_t n = 3;
  const auto is_row = [](std::int32_t row) { return row >= 1 && row <= n; };
  for (int code = 0; code < 729; ++code) {
    const std::int32_t list[] = {code % 9 - 4, code / 9 % 9 - 4, code / 81 - 4};
    SCOPED_TRACE(testing::Message() << list[0] << ' ' << list[1] << ' ' << list[2]);
    EXPECT_EQ(are_exchanges(list, n), is_row(list[0]) && is_row(list[1]) && is_row(list[2]));
    const auto is_pair = [&](int k) { return list[k] == list[k + 1] && is_row(-list[k]); };
    EXPECT_EQ(are_blocks(list, n), (is_row(list[0]) && (is_pair(1) || (is_row(list[1]) && is_row(list[2])))) ||
                                       (is_pair(0) && is_row(list[2])));
    // Last rows of blocks, as many as the last eigenvalue's number says.
    for (std::int32_t blocks = 1; blocks <= n + 1; ++blocks) {
      const std::int32_t iblock[] = {1, blocks};
      bool holds = blocks <= n;
      for (int k = 0; k < std::min(blocks, n); ++k)
        holds = holds && list[k] <= n && list[k] > (k == 0 ? 0 : list[k - 1]);
      EXPECT_EQ(are_splits(list, iblock, n, 2), holds) << blocks;
    }
    const float scale[] = {static_cast<float>(list[0]), static_cast<float>(list[1]), static_cast<float>(list[2])};
    for (std::int32_t ilo = 1; ilo <= n; ++ilo) {
      for (std::int32_t ihi = ilo; ihi <= n; ++ihi) {
        bool holds = true;
        for (int i = 1; i <= n; ++i) holds = holds && ((i >= ilo && i <= ihi) || is_row(list[i - 1]));
        for (const char job : {'P', 'p', 'B', 'b'}) EXPECT_EQ(are_balances(scale, job, n, ilo, ihi), holds);
        for (const char job : {'N', 'S'}) EXPECT_TRUE(are_balances(scale, job, n, ilo, ihi));
      }
    }
  }
}

}  // namespace
}  // namespace quorin::dense
