// Extremes at each place of a vector, whichever lane of a kernel looks at it; rotations beside those of the reference
// BLAS.
#include "quorin/blas.h"
#include "tests/blas/reference.hpp"
#include "tests/support/test.hpp"

extern "C" void srotmg_(float*, float*, float*, const float*, float*);

namespace {

TEST(Extremes, AreFoundAtEachPlace) {
  constexpr std::int32_t kLength = 200;
  for (const std::int32_t inc : {1, 3}) {
    for (std::int32_t place = 0; place < kLength; ++place) {
      for (const float extreme : {8.0F, -8.0F, 0.5F, -0.5F}) {
        std::vector<quorin_complex> x(3 * kLength, {1, -2});
        std::vector<float> reals(3 * kLength, -2);
        const auto at = static_cast<std::size_t>(place) * static_cast<std::size_t>(inc);
        reals[at] = extreme;
        x[at] = {std::fabs(extreme) > 1 ? 1.0F : 0.0F, extreme};
        const std::int32_t largest = std::fabs(extreme) > 1 ? place + 1 : place == 0 ? 2 : 1;
        const std::int32_t smallest = std::fabs(extreme) < 1 ? place + 1 : place == 0 ? 2 : 1;
        ASSERT_EQ(isamax(&kLength, reals.data(), &inc), largest) << place;
        ASSERT_EQ(isamin(&kLength, reals.data(), &inc), smallest) << place;
        ASSERT_EQ(icamax(&kLength, x.data(), &inc), largest) << place;
        ASSERT_EQ(icamin(&kLength, x.data(), &inc), smallest) << place;
      }
    }
  }
}

TEST(Rotations, OfComponentsOfEqualSizeOrZeroAreTheReferences) {
  for (const auto& [first, second] : {std::pair{1.0F, -1.0F},
                                      {-1.0F, 1.0F},
                                      {-3.0F, -3.0F},
                                      {0.0F, 0.0F},
                                      {0.0F, -2.0F},
                                      {-2.0F, 0.0F},
                                      {1.0F, 2.0F}}) {
    float a = first, b = second, c = 7, s = 7, ra = first, rb = second, rc = 7, rs = 7;
    srotg(&a, &b, &c, &s);
    srotg_(&ra, &rb, &rc, &rs);
    EXPECT_FLOAT_EQ(a, ra);
    EXPECT_FLOAT_EQ(b, rb) << first << ' ' << second;
    EXPECT_FLOAT_EQ(c, rc);
    EXPECT_FLOAT_EQ(s, rs);
  }
}

// Every sign and size of the four numbers, down to where the published routine rescales, and zeros.
TEST(ModifiedRotation, IsThePublishedOne) {
  const float values[] = {0, 1, -1, 0.3F, -2.5F, 1e-9F, 3e8F, -3e8F, 1e-20F, 1e15F};
  for (const float d1 : values) {
    for (const float d2 : values) {
      for (const float x1 : values) {
        for (const float y1 : values) {
          float ours[] = {d1, d2, x1, 9, 9, 9, 9, 9}, theirs[] = {d1, d2, x1, 9, 9, 9, 9, 9};
          srotmg(ours, ours + 1, ours + 2, &y1, ours + 3);
          srotmg_(theirs, theirs + 1, theirs + 2, &y1, theirs + 3);
          for (int i = 0; i < 8; ++i) {
            const bool same = ours[i] == theirs[i] || std::abs(ours[i] - theirs[i]) <= 1e-5F * std::abs(theirs[i]) ||
                              (std::isnan(ours[i]) && std::isnan(theirs[i]));
            ASSERT_TRUE(same) << "number " << i << ": " << ours[i] << " for " << theirs[i] << " of " << d1 << ' ' << d2
                              << ' ' << x1 << ' ' << y1;
          }
        }
      }
    }
  }
}

}  // namespace
