// Modified rotations against the reference BLAS.
#include <gtest/gtest.h>

#include <cmath>

#include "quorin/blas.h"

extern "C" void srotmg_(float*, float*, float*, const float*, float*);

namespace {

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
