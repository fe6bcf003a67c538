// Levels 2 and 3 at sizes where they run on several threads, against the reference BLAS: every operation that is cut
// into parts, with every option that changes how it is cut, leading dimensions larger than minimal, and guard words.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "quorin/blas.h"
#include "quorin/services.h"
#include "tests/blas/reference.hpp"

namespace {

// Sums of some hundred products of numbers in [-1, 1], in two different orders.
constexpr float kTolerance = 1000 * 6e-8F;

std::vector<float> random_vector(std::size_t n) {
  static std::mt19937 generator(7);
  std::uniform_real_distribution<float> uniform(-1, 1);
  std::vector<float> x(n);
  for (float& value : x) value = uniform(generator);
  return x;
}

// Runs both on copies of the same output array, of which they may change only what the operation defines.
void compare(const std::string& what, std::size_t size, const std::function<void(float*)>& ours,
             const std::function<void(float*)>& reference) {
  const std::vector<float> start = random_vector(size);
  std::vector<float> expected = start;
  reference(expected.data());
  for (const std::int32_t threads : {1, 2, 3, 7}) {
    sMKL_Set_Num_Threads(threads);
    std::vector<float> found = start;
    ours(found.data());
    float worst = 0;
    for (std::size_t i = 0; i < size; ++i) {
      const float difference = std::fabs(found[i] - expected[i]);
      worst = difference <= worst ? worst : difference;  // a NaN becomes the worst
    }
    EXPECT_LE(worst, kTolerance) << what << " on " << threads << " threads";
  }
}

class Threads : public testing::Test {
 protected:
  void SetUp() override { sMKL_Set_Dynamic(0); }
  void TearDown() override { sMKL_Set_Dynamic(1); }

  static const quorin_complex* c(const std::vector<float>& x) {
    return reinterpret_cast<const quorin_complex*>(x.data());
  }
  static const Complex* z(const std::vector<float>& x) { return reinterpret_cast<const Complex*>(x.data()); }
  static quorin_complex* c(float* x) { return reinterpret_cast<quorin_complex*>(x); }
  static Complex* z(float* x) { return reinterpret_cast<Complex*>(x); }

  static constexpr std::int32_t m = 203, n = 150, k = 117, ld = 231;
  static constexpr std::size_t kSize = 2UL * 231 * 231;
  const std::vector<float> a = random_vector(kSize), b = random_vector(kSize);
  const float alpha = 0.7F, beta = -0.3F;
  const quorin_complex calpha{0.7F, -0.2F}, cbeta{-0.3F, 0.4F};
  const Complex zalpha{0.7F, -0.2F}, zbeta{-0.3F, 0.4F};
};

TEST_F(Threads, GeneralProduct) {
  for (const char* ta : {"N", "T", "c"}) {
    for (const char* tb : {"n", "t", "C"}) {
      compare(
          std::string("sgemm ") + ta + tb, kSize,
          [&](float* x) { sgemm(ta, tb, &m, &n, &k, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); },
          [&](float* x) { sgemm_(ta, tb, &m, &n, &k, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); });
      compare(
          std::string("cgemm ") + ta + tb, kSize,
          [&](float* x) { cgemm(ta, tb, &m, &n, &k, &calpha, c(a), &ld, c(b), &ld, &cbeta, c(x), &ld); },
          [&](float* x) { cgemm_(ta, tb, &m, &n, &k, &zalpha, z(a), &ld, z(b), &ld, &zbeta, z(x), &ld); });
    }
  }
}

TEST_F(Threads, SymmetricAndTriangularProducts) {
  for (const char* side : {"L", "R"}) {
    for (const char* uplo : {"U", "L"}) {
      compare(
          std::string("ssymm ") + side + uplo, kSize,
          [&](float* x) { ssymm(side, uplo, &m, &n, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); },
          [&](float* x) { ssymm_(side, uplo, &m, &n, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); });
      compare(
          std::string("chemm ") + side + uplo, kSize,
          [&](float* x) { chemm(side, uplo, &m, &n, &calpha, c(a), &ld, c(b), &ld, &cbeta, c(x), &ld); },
          [&](float* x) { chemm_(side, uplo, &m, &n, &zalpha, z(a), &ld, z(b), &ld, &zbeta, z(x), &ld); });
      for (const char* trans : {"N", "T", "C"}) {
        compare(
            std::string("strmm ") + side + uplo + trans, kSize,
            [&](float* x) { strmm(side, uplo, trans, "N", &m, &n, &alpha, a.data(), &ld, x, &ld); },
            [&](float* x) { strmm_(side, uplo, trans, "N", &m, &n, &alpha, a.data(), &ld, x, &ld); });
      }
    }
  }
}

TEST_F(Threads, TriangularSolve) {
  // A small triangle with a dominant diagonal, so that the solution is as large as the right-hand side.
  std::vector<float> t = a;
  for (float& value : t) value *= 0.01F;
  for (std::size_t i = 0; i < 231; ++i) t[2 * (i * 231 + i)] += 2;
  for (const char* side : {"L", "R"}) {
    for (const char* uplo : {"U", "L"}) {
      for (const char* trans : {"N", "T", "C"}) {
        compare(
            std::string("ctrsm ") + side + uplo + trans, kSize,
            [&](float* x) { ctrsm(side, uplo, trans, "N", &m, &n, &calpha, c(t), &ld, c(x), &ld); },
            [&](float* x) { ctrsm_(side, uplo, trans, "N", &m, &n, &zalpha, z(t), &ld, z(x), &ld); });
      }
    }
  }
}

TEST_F(Threads, RankUpdatesOfOneTriangle) {
  for (const char* uplo : {"U", "L"}) {
    for (const char* trans : {"N", "T"}) {
      compare(
          std::string("ssyrk ") + uplo + trans, kSize,
          [&](float* x) { ssyrk(uplo, trans, &m, &k, &alpha, a.data(), &ld, &beta, x, &ld); },
          [&](float* x) { ssyrk_(uplo, trans, &m, &k, &alpha, a.data(), &ld, &beta, x, &ld); });
      compare(
          std::string("ssyr2k ") + uplo + trans, kSize,
          [&](float* x) { ssyr2k(uplo, trans, &m, &k, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); },
          [&](float* x) { ssyr2k_(uplo, trans, &m, &k, &alpha, a.data(), &ld, b.data(), &ld, &beta, x, &ld); });
      compare(
          std::string("csyrk ") + uplo + trans, kSize,
          [&](float* x) { csyrk(uplo, trans, &m, &k, &calpha, c(a), &ld, &cbeta, c(x), &ld); },
          [&](float* x) { csyrk_(uplo, trans, &m, &k, &zalpha, z(a), &ld, &zbeta, z(x), &ld); });
    }
    for (const char* trans : {"N", "C"}) {
      compare(
          std::string("cherk ") + uplo + trans, kSize,
          [&](float* x) { cherk(uplo, trans, &m, &k, &alpha, c(a), &ld, &beta, c(x), &ld); },
          [&](float* x) { cherk_(uplo, trans, &m, &k, &alpha, z(a), &ld, &beta, z(x), &ld); });
      compare(
          std::string("cher2k ") + uplo + trans, kSize,
          [&](float* x) { cher2k(uplo, trans, &m, &k, &calpha, c(a), &ld, c(b), &ld, &beta, c(x), &ld); },
          [&](float* x) { cher2k_(uplo, trans, &m, &k, &zalpha, z(a), &ld, z(b), &ld, &beta, z(x), &ld); });
    }
  }
}

// Kernels of our own where the vector along the columns has unit stride, OpenBLAS's elsewhere.
TEST_F(Threads, MatrixVectorOperations) {
  const std::int32_t rows = 2100, columns = 450, lead = 2103;
  const std::vector<float> big = random_vector(2UL * 2103 * 450), x = random_vector(2UL * 2 * 2100),
                           y = random_vector(2UL * 3 * 2100);
  const float small_alpha = 0.05F;
  const quorin_complex small_calpha{0.05F, 0.02F};
  const Complex small_zalpha{0.05F, 0.02F};
  struct Strides {
    std::int32_t x, y;
  };
  for (const Strides& chosen : {Strides{2, -3}, Strides{1, -3}, Strides{-2, 1}}) {
    const std::int32_t incx = chosen.x, incy = chosen.y;
    const std::string strides = ' ' + std::to_string(incx) + ' ' + std::to_string(incy);
    for (const char* trans : {"N", "T", "C"}) {
      compare(
          std::string("sgemv ") + trans + strides, 3 * 2100,
          [&](float* out) {
            sgemv(trans, &rows, &columns, &small_alpha, big.data(), &lead, x.data(), &incx, &beta, out, &incy);
          },
          [&](float* out) {
            sgemv_(trans, &rows, &columns, &small_alpha, big.data(), &lead, x.data(), &incx, &beta, out, &incy);
          });
      compare(
          std::string("cgemv ") + trans + strides, 2 * 3 * 2100,
          [&](float* out) {
            cgemv(trans, &rows, &columns, &small_calpha, c(big), &lead, c(x), &incx, &cbeta, c(out), &incy);
          },
          [&](float* out) {
            cgemv_(trans, &rows, &columns, &small_zalpha, z(big), &lead, z(x), &incx, &zbeta, z(out), &incy);
          });
    }
    // Wider than high, and higher than wide.
    for (const std::int32_t high : {400, 2100}) {
      compare(
          "sger" + strides, 2103UL * 450,
          [&](float* out) { sger(&high, &columns, &alpha, x.data(), &incx, y.data(), &incy, out, &lead); },
          [&](float* out) { sger_(&high, &columns, &alpha, x.data(), &incx, y.data(), &incy, out, &lead); });
      compare(
          "cgerc" + strides, 2UL * 2103 * 450,
          [&](float* out) { cgerc(&high, &columns, &calpha, c(x), &incx, c(y), &incy, c(out), &lead); },
          [&](float* out) { cgerc_(&high, &columns, &zalpha, z(x), &incx, z(y), &incy, z(out), &lead); });
    }
  }
}

TEST_F(Threads, MatrixVectorOperationsOfOneTriangle) {
  const std::int32_t one = 1;
  std::vector<float> t = a;  // with a dominant diagonal
  for (float& value : t) value *= 0.01F;
  for (std::size_t i = 0; i < 231; ++i) t[2 * (i * 231 + i)] += 2;
  for (const char* uplo : {"U", "L"}) {
    compare(
        std::string("ssymv ") + uplo, kSize,
        [&](float* y) { ssymv(uplo, &n, &alpha, a.data(), &ld, b.data(), &one, &beta, y, &one); },
        [&](float* y) { ssymv_(uplo, &n, &alpha, a.data(), &ld, b.data(), &one, &beta, y, &one); });
    compare(
        std::string("chemv ") + uplo, kSize,
        [&](float* y) { chemv(uplo, &n, &calpha, c(a), &ld, c(b), &one, &cbeta, c(y), &one); },
        [&](float* y) { chemv_(uplo, &n, &zalpha, z(a), &ld, z(b), &one, &zbeta, z(y), &one); });
    compare(
        std::string("cher ") + uplo, kSize, [&](float* x) { cher(uplo, &n, &alpha, c(b), &one, c(x), &ld); },
        [&](float* x) { cher_(uplo, &n, &alpha, z(b), &one, z(x), &ld); });
    compare(
        std::string("cher2 ") + uplo, kSize,
        [&](float* x) { cher2(uplo, &n, &calpha, c(a), &one, c(b), &one, c(x), &ld); },
        [&](float* x) { cher2_(uplo, &n, &zalpha, z(a), &one, z(b), &one, z(x), &ld); });
    for (const char* trans : {"N", "T", "C"}) {
      compare(
          std::string("ctrmv ") + uplo + trans, kSize,
          [&](float* x) { ctrmv(uplo, trans, "N", &n, c(a), &ld, c(x), &one); },
          [&](float* x) { ctrmv_(uplo, trans, "N", &n, z(a), &ld, z(x), &one); });
      for (const char* diag : {"N", "U"}) {
        compare(
            std::string("ctrsv ") + uplo + trans + diag, kSize,
            [&](float* x) { ctrsv(uplo, trans, diag, &n, c(t), &ld, c(x), &one); },
            [&](float* x) { ctrsv_(uplo, trans, diag, &n, z(t), &ld, z(x), &one); });
      }
    }
  }
}

// Vectors longer than the packing buffers of the kernels, with strides, so that they have to be copied.
TEST_F(Threads, VectorsLongerThanThePackingBuffers) {
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
