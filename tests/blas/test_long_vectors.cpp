// Matrices of two columns and very many rows, with strides.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "quorin/blas.h"

namespace {

// Vectors longer than the packing buffers of the kernels, with strides, so that they have to be copied.
TEST(Threads, VectorsLongerThanThePackingBuffers) {
  const std::int32_t rows = 5'000'000, columns = 2, inc = 2, one = 1;
  const std::size_t length = 10'000'000;
  const std::vector<float> matrix(length, 0.5F), x(length, 1.0F), two_ones(2, 1.0F);
  const float unit = 1, zero = 0;
  std::vector<float> y(length, 7.0F);
  sgemv("N", &rows, &columns, &unit, matrix.data(), &rows, two_ones.data(), &one, &zero, y.data(), &inc);
  std::size_t wrong = 0;
  for (std::size_t i = 0; i < length; ++i) wrong += y[i] != (i % 2 == 0 ? 1.0F : 7.0F) ? 1 : 0;
  EXPECT_EQ(wrong, 0U);
  std::vector<float> sums(2, 0.0F);
  sgemv("T", &rows, &columns, &unit, matrix.data(), &rows, x.data(), &inc, &zero, sums.data(), &one);
  EXPECT_NEAR(sums[0] / 2.5e6F, 1, 1e-3F);
  std::vector<float> updated(length, 1.0F);
  sger(&rows, &columns, &unit, x.data(), &inc, two_ones.data(), &one, updated.data(), &rows);
  wrong = 0;
  for (const float value : updated) wrong += value != 2.0F ? 1 : 0;
  EXPECT_EQ(wrong, 0U);
}

}  // namespace
