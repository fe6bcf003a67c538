// Long vectors with strides.
#include "quorin/blas.h"
#include "tests/support/test.hpp"

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

using Complex = std::complex<float>;
using Vector = std::vector<Complex>;

// The entries of x, each `inc` behind the one before.
Vector spread(const Vector& x, std::int32_t inc) {
  const std::size_t step = static_cast<std::size_t>(std::abs(inc)), n = x.size();
  Vector spread((n - 1) * step + 1, Complex(7, 7));
  for (std::size_t i = 0; i < n; ++i) spread[(inc > 0 ? i : n - 1 - i) * step] = x[i];
  return spread;
}

// Triangles and Hermitian matrices of several of the blocks that strided vectors are copied in.
TEST(Strides, OfLongVectorsChangeNothing) {
  const std::int32_t n = 1100, one = 1;
  const Complex factor(0.5F, -0.25F), unit(1, 0);
  const auto as = [](auto* x) { return reinterpret_cast<const quorin_complex*>(x); };
  std::mt19937 numbers(1);
  const auto random = [&numbers] { return static_cast<float>(numbers()) * 0x1p-31F - 1; };
  Vector a(static_cast<std::size_t>(n) * n), x(static_cast<std::size_t>(n)), y(x.size());
  for (Vector* const each : {&a, &x, &y})
    std::generate(each->begin(), each->end(), [&] { return Complex(random(), random()); });
  for (Complex& entry : a) entry *= 0.5F / static_cast<float>(n);
  for (std::size_t i = 0; i < x.size(); ++i) a[i * x.size() + i] = 2;
  // Calls run(x, y, inc) for copies of x and y without and with a stride; what it changes is returned.
  const auto expect_same = [&](const std::string& what, const auto& run) {
    const Vector plain = run(x, y, one);
    for (const std::int32_t inc : {2, -3}) {
      const Vector strided = run(spread(x, inc), spread(y, inc), inc);
      const Vector expected = strided.size() == a.size() ? plain : spread(plain, inc);
      float worst = 0;
      for (std::size_t i = 0; i < expected.size(); ++i) worst = std::max(worst, std::abs(strided[i] - expected[i]));
      EXPECT_LE(worst, 1e-5F) << what << ", stride " << inc;
    }
  };
  for (const std::string uplo : {"U", "L"}) {
    for (const std::string trans : {"N", "T", "C"}) {
      for (const std::string diag : {"N", "U"}) {
        for (const bool solves : {false, true}) {
          expect_same((solves ? "trsv " : "trmv ") + uplo + trans + diag,
                      [&](Vector u, const Vector&, std::int32_t inc) {
                        (solves ? ctrsv : ctrmv)(uplo.data(), trans.data(), diag.data(), &n, as(a.data()), &n,
                                                 reinterpret_cast<quorin_complex*>(u.data()), &inc);
                        return u;
                      });
        }
      }
    }
    expect_same("hemv " + uplo, [&](const Vector& u, Vector v, std::int32_t inc) {
      chemv(uplo.data(), &n, as(&factor), as(a.data()), &n, as(u.data()), &inc, as(&unit),
            reinterpret_cast<quorin_complex*>(v.data()), &inc);
      return v;
    });
    expect_same("her2 " + uplo, [&](const Vector& u, const Vector& v, std::int32_t inc) {
      Vector updated = a;
      cher2(uplo.data(), &n, as(&factor), as(u.data()), &inc, as(v.data()), &inc,
            reinterpret_cast<quorin_complex*>(updated.data()), &n);
      return updated;
    });
  }
}

}  // namespace
