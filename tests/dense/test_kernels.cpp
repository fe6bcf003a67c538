// Level 3 on every instruction set that this machine has, in all four scalar types, against plain loops in the widest
// precision. Operands lie flush against inaccessible pages; sizes cross the edges of tiles, panels and blocks.
#include "base/parallel.hpp"
#include "dense/blocked.hpp"
#include "dense/dense.hpp"
#include "dense/kernels/kernel_set.hpp"
#include "dense/places.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/test.hpp"

namespace quorin::dense {
namespace {

using platform::InstructionSet;
using test::Edge;

template <Scalar T>
using Wide = std::conditional_t<kIsComplex<T>, std::complex<long double>, long double>;

template <Scalar T>
Wide<T> widen(T x) {
  if constexpr (kIsComplex<T>) {
    return {x.real(), x.imag()};
  } else {
    return x;
  }
}

template <class W>
W wide_product(W a, W b) {  // without the repairs of infinities that the operator makes
  if constexpr (std::is_same_v<W, long double>) {
    return a * b;
  } else {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
  }
}

template <class W>
W wide_conjugate(W x) {
  if constexpr (std::is_same_v<W, long double>) {
    return x;
  } else {
    return std::conj(x);
  }
}

template <class W>
bool is_nan(W x) {
  if constexpr (std::is_floating_point_v<W>) {
    return std::isnan(x);
  } else {
    return std::isnan(x.real()) || std::isnan(x.imag());
  }
}

class Random {
 public:
  explicit Random(unsigned seed) : generator_(seed) {}
  int below(int n) { return static_cast<int>(generator_() % static_cast<unsigned>(n)); }
  template <Scalar T>
  T value() {
    const auto real = [this] { return static_cast<RealOf<T>>(static_cast<int>(generator_() % 4001) - 2000) / 2000; };
    if constexpr (kIsComplex<T>) {
      const RealOf<T> re = real();
      return T(re, real());
    } else {
      return real();
    }
  }
  // 0, 1, -1 or anything.
  template <Scalar T>
  T factor() {
    const int choice = below(5);
    return choice < 3 ? T(static_cast<RealOf<T>>(choice - 1)) : value<T>();
  }

 private:
  std::mt19937 generator_;
};

// A rows-by-columns matrix with exactly the memory that its leading dimension asks for.
template <Scalar T>
struct Matrix {
  Matrix(int row_count, int column_count, int spare, Edge flush, Random& random)
      : rows(row_count),
        columns(column_count),
        ld(std::max(1, row_count + spare)),
        size(row_count > 0 && column_count > 0
                 ? static_cast<std::size_t>(ld) * static_cast<std::size_t>(column_count - 1) +
                       static_cast<std::size_t>(row_count)
                 : 0),
        pages(size * sizeof(T)),
        elements(static_cast<T*>(pages.place(size * sizeof(T), flush)), size) {
    for (T& x : elements) x = random.value<T>();
  }
  T& operator()(int i, int j) const {
    return elements[static_cast<std::size_t>(j) * static_cast<std::size_t>(ld) + static_cast<std::size_t>(i)];
  }
  T* data() const { return elements.data(); }

  int rows, columns, ld;
  std::size_t size;
  test::GuardedPages pages;
  std::span<T> elements;
};

template <Scalar T>
std::vector<T> copy_of(const Matrix<T>& x) {
  return {x.elements.begin(), x.elements.end()};
}

// Elements as the operation means them: op(A), or the whole of a symmetric, Hermitian or triangular matrix.
template <Scalar T>
Wide<T> op(char trans, const Matrix<T>& a, int i, int j) {
  if (trans == 'N') return widen(a(i, j));
  return trans == 'T' ? widen(a(j, i)) : wide_conjugate(widen(a(j, i)));
}
template <Scalar T>
Wide<T> mirrored(char uplo, bool hermitian, const Matrix<T>& a, int i, int j) {
  const bool is_stored = uplo == 'U' ? i <= j : i >= j;
  Wide<T> x = is_stored ? widen(a(i, j)) : widen(a(j, i));
  if (hermitian && !is_stored) x = wide_conjugate(x);
  if (hermitian && i == j) x = std::real(x);
  return x;
}

struct Bound {
  long double worst = 0;  // error over bound
  int wrong_nans = 0;
  template <Scalar T>
  void add(T found, Wide<T> expected, long double scale) {
    if (is_nan(found) != is_nan(expected)) {
      ++wrong_nans;
    } else if (!is_nan(found)) {
      const long double error = std::abs(widen(found) - expected);
      // A few smallest numbers, for results that are subnormal.
      const long double allowed = scale * static_cast<long double>(std::numeric_limits<RealOf<T>>::epsilon()) +
                                  16 * static_cast<long double>(std::numeric_limits<RealOf<T>>::denorm_min());
      worst = std::max(worst, error / allowed);
    }
  }
  void expect_held(const std::string& what) const {
    EXPECT_LE(worst, 1) << what;
    EXPECT_EQ(wrong_nans, 0) << what;
  }
};

// All products: C <- alpha (sum of one or two products) + beta C, in all of C or a triangle. `term(i, j, l)` and its
// magnitude are what is summed.
template <Scalar T, class Term>
void check_product(const std::string& what, const Matrix<T>& c, const std::vector<T>& before, int k, Wide<T> alpha,
                   Wide<T> beta, char part, bool hermitian, const Term& term) {
  using W = Wide<T>;
  Bound bound;
  for (int j = 0; j < c.columns; ++j) {
    for (int i = 0; i < c.rows; ++i) {
      const T old = before[static_cast<std::size_t>(j) * static_cast<std::size_t>(c.ld) + static_cast<std::size_t>(i)];
      if ((part == 'U' && i > j) || (part == 'L' && i < j)) {
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): bit for bit
        EXPECT_EQ(std::memcmp(&c(i, j), &old, sizeof old), 0) << what << " changed the other triangle";
        continue;
      }
      W sum{};
      long double size = 0;
      if (alpha != W{}) {
        for (int l = 0; l < k; ++l) {
          const W t = term(i, j, l);
          sum += t;
          size += 4;  // |a| |b| <= 2 each, twice for rank-2k
        }
      }
      W expected = beta == W{} ? W{} : wide_product(beta, widen(old));
      if (hermitian && i == j) expected = std::real(beta) * std::real(widen(old));
      if (beta == W{}) expected = W{};
      if (alpha != W{} && k > 0) expected += sum;
      if (hermitian && i == j) expected = std::real(expected);
      bound.add(c(i, j), expected, 4 + (size + 2) * (std::abs(alpha) + 1) * 2);
    }
  }
  bound.expect_held(what);
}

class Kernels : public testing::TestWithParam<InstructionSet> {
 protected:
  void SetUp() override {
    if (!platform::can_run(platform::kInstructionSets[static_cast<std::size_t>(GetParam())],
                           platform::cpu_features())) {
      GTEST_SKIP() << "this machine cannot run it";
    }
    base::start_parallel();
    start();
    kernels::choose_kernels(GetParam());
  }
  void TearDown() override {
    release_buffers();
    stop();
    base::stop_parallel();
  }

  template <class Body>
  static void for_all_types(const Body& body) {
    body.template operator()<float>();
    body.template operator()<double>();
    body.template operator()<std::complex<float>>();
    body.template operator()<std::complex<double>>();
  }

  // Sizes: mostly around tiles, sometimes across blocks of terms.
  static int size(Random& random) {
    const int kind = random.below(8);
    return kind == 0 ? random.below(3) : kind == 1 ? 100 + random.below(60) : 1 + random.below(70);
  }
  static int terms(Random& random) { return random.below(6) == 0 ? 250 + random.below(200) : size(random); }
  static Edge flush(Random& random) { return random.below(2) == 0 ? Edge::kFront : Edge::kBack; }
  template <Scalar T>
  static Matrix<T> matrix(int rows, int columns, Random& random) {
    return Matrix<T>(rows, columns, random.below(3) == 0 ? random.below(9) : 0, flush(random), random);
  }
  static char pick(const char* options, Random& random) {
    return options[random.below(static_cast<int>(std::strlen(options)))];
  }
  // One element becomes a NaN, sometimes.
  template <Scalar T>
  static void spoil(const Matrix<T>& a, Random& random) {
    if (random.below(4) != 0 || a.elements.size() == 0) return;
    a(random.below(a.rows), random.below(a.columns)) = std::numeric_limits<RealOf<T>>::quiet_NaN();
  }
};

TEST_P(Kernels, GeneralProduct) {
  for_all_types([]<Scalar T>() {
    Random random(1);
    const KernelBuffer buffer(1);
    ASSERT_EQ(buffer.granted(), 1);
    for (int round = 0; round < 60; ++round) {
      const int m = size(random), n = size(random), k = terms(random);
      const char ta = pick("NTC", random), tb = pick("NTC", random);
      const auto a = ta == 'N' ? matrix<T>(m, k, random) : matrix<T>(k, m, random);
      const auto b = tb == 'N' ? matrix<T>(k, n, random) : matrix<T>(n, k, random);
      const auto c = matrix<T>(m, n, random);
      const T alpha = random.factor<T>(), beta = random.factor<T>();
      spoil(a, random);
      spoil(b, random);
      spoil(c, random);
      const std::vector<T> before = copy_of(c);
      blocked::gemm(ta, tb, m, n, k, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
      const Wide<T> factor = widen(alpha);
      check_product<T>(
          std::string("gemm ") + ta + tb + ' ' + std::to_string(m) + ' ' + std::to_string(n) + ' ' + std::to_string(k),
          c, before, k, factor, widen(beta), 'A', false,
          [&](int i, int j, int l) { return wide_product(factor, wide_product(op(ta, a, i, l), op(tb, b, l, j))); });
    }
  });
}

TEST_P(Kernels, DoNotReadCForBetaZero) {
  for_all_types([]<Scalar T>() {
    Random random(6);
    const KernelBuffer buffer(1);
    const kernels::Blocking& blocking = kernels::kernels<T>().blocking;
    for (const auto& [n, k] : {std::pair(blocking.columns + 3, 1), std::pair(2, blocking.depth + 1)}) {
      const auto a = matrix<T>(2, k, random), b = matrix<T>(k, n, random), c = matrix<T>(2, n, random);
      std::fill(c.elements.begin(), c.elements.end(), T(std::numeric_limits<RealOf<T>>::quiet_NaN()));
      const std::vector<T> before = copy_of(c);
      blocked::gemm('N', 'N', 2, n, k, T{1}, a.data(), a.ld, b.data(), b.ld, T{}, c.data(), c.ld);
      check_product<T>("many blocks of columns or terms", c, before, k, Wide<T>{1}, Wide<T>{}, 'A', false,
                       [&](int i, int j, int l) { return wide_product(widen(a(i, l)), widen(b(l, j))); });
    }
  });
}

TEST_P(Kernels, SymmetricProduct) {
  for_all_types([]<Scalar T>() {
    Random random(2);
    const KernelBuffer buffer(1);
    for (int round = 0; round < 50; ++round) {
      const bool hermitian = random.below(2) == 0;
      const char side = pick("LR", random), uplo = pick("UL", random);
      const int m = size(random), n = size(random), order = side == 'L' ? m : n;
      const auto a = matrix<T>(order, order, random), b = matrix<T>(m, n, random), c = matrix<T>(m, n, random);
      // What is not stored must not be read, nor the imaginary parts of a Hermitian diagonal.
      for (int j = 0; j < order; ++j) {
        for (int i = 0; i < order; ++i) {
          if (uplo == 'U' ? i > j : i < j) a(i, j) = std::numeric_limits<RealOf<T>>::quiet_NaN();
        }
        if constexpr (kIsComplex<T>) {
          if (hermitian) a(j, j) = T(a(j, j).real(), std::numeric_limits<RealOf<T>>::quiet_NaN());
        }
      }
      spoil(b, random);
      const T alpha = random.factor<T>(), beta = random.factor<T>();
      const std::vector<T> before = copy_of(c);
      (hermitian ? blocked::hemm<T> : blocked::symm<T>)(side, uplo, m, n, alpha, a.data(), a.ld, b.data(), b.ld, beta,
                                                        c.data(), c.ld, 1);
      const Wide<T> factor = widen(alpha);
      check_product<T>(
          std::string(hermitian ? "hemm " : "symm ") + side + uplo + ' ' + std::to_string(m) + ' ' + std::to_string(n),
          c, before, order, factor, widen(beta), 'A', false, [&](int i, int j, int l) {
            return wide_product(factor, side == 'L' ? wide_product(mirrored(uplo, hermitian, a, i, l), widen(b(l, j)))
                                                    : wide_product(widen(b(i, l)), mirrored(uplo, hermitian, a, l, j)));
          });
    }
  });
}

TEST_P(Kernels, UpdateOfOneTriangle) {
  for_all_types([]<Scalar T>() {
    Random random(3);
    const KernelBuffer buffer(1);
    for (int round = 0; round < 50; ++round) {
      const bool hermitian = random.below(2) == 0, two = random.below(2) == 0;
      const char uplo = pick("UL", random), trans = pick("NT", random), prime = hermitian ? 'C' : 'T';
      const int n = size(random), k = terms(random);
      const char option = trans == 'N' ? 'N' : prime;
      const auto a = trans == 'N' ? matrix<T>(n, k, random) : matrix<T>(k, n, random);
      const auto b = trans == 'N' ? matrix<T>(n, k, random) : matrix<T>(k, n, random);
      const auto c = matrix<T>(n, n, random);
      if constexpr (kIsComplex<T>) {
        for (int j = 0; j < n && hermitian; ++j) {
          c(j, j) = T(c(j, j).real(), std::numeric_limits<RealOf<T>>::quiet_NaN());
        }
      }
      T alpha = random.factor<T>(), beta = random.factor<T>();
      if (hermitian) {
        beta = std::real(beta);
        if (!two) alpha = std::real(alpha);
      }
      if (beta == T{}) {
        std::fill(c.elements.begin(), c.elements.end(), T(std::numeric_limits<RealOf<T>>::quiet_NaN()));
      }
      const std::vector<T> before = copy_of(c);
      if (hermitian && two) {
        blocked::her2k<T>(uplo, option, n, k, alpha, a.data(), a.ld, b.data(), b.ld, std::real(beta), c.data(), c.ld);
      } else if (hermitian) {
        blocked::herk<T>(uplo, option, n, k, std::real(alpha), a.data(), a.ld, std::real(beta), c.data(), c.ld);
      } else if (two) {
        blocked::syr2k<T>(uplo, option, n, k, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
      } else {
        blocked::syrk<T>(uplo, option, n, k, alpha, a.data(), a.ld, beta, c.data(), c.ld);
      }
      // op(X)(i, l) times op(Y)(j, l)'
      const auto pair = [&](const Matrix<T>& x, const Matrix<T>& y, int i, int j, int l) {
        const Wide<T> left = op(option, x, i, l), right = op(option, y, j, l);
        return wide_product(left, hermitian ? wide_conjugate(right) : right);
      };
      const Wide<T> factor = widen(alpha), other = hermitian ? wide_conjugate(factor) : factor;
      check_product<T>(std::string(hermitian ? "her" : "syr") + (two ? "2k " : "k ") + uplo + option + ' ' +
                           std::to_string(n) + ' ' + std::to_string(k),
                       c, before, k, factor, widen(beta), uplo, hermitian, [&](int i, int j, int l) {
                         Wide<T> sum = wide_product(factor, pair(a, two ? b : a, i, j, l));
                         if (two) sum += wide_product(other, pair(b, a, i, j, l));
                         return sum;
                       });
      if constexpr (kIsComplex<T>) {
        for (int j = 0; j < n && hermitian; ++j) ASSERT_EQ(c(j, j).imag(), 0) << "a Hermitian diagonal";
      }
    }
  });
}

// The bits are those of the product in a matrix of its own, and nothing else in C changes.
TEST_P(Kernels, ProductAtPlaces) {
  for_all_types([]<Scalar T>() {
    Random random(6);
    const KernelBuffer buffer(1);
    const auto places = [&](int count) {
      std::vector<int> chosen;
      for (int k = 0, place = random.below(3); k < count; ++k, ++place) {
        if (random.below(12) == 0) place += 1 + random.below(4);
        chosen.push_back(place);
      }
      return chosen;
    };
    for (int round = 0; round < 40; ++round) {
      const int m = 1 + size(random), n = 1 + size(random), k = terms(random);
      const bool is_conjugated = random.below(2) == 0, is_lower = random.below(2) == 0;
      const std::vector<int> rows = places(m), columns = places(n);
      const auto a = matrix<T>(m, k, random), b = matrix<T>(n, k, random);
      const auto c = matrix<T>(rows.back() + 1, columns.back() + 1, random), alone = matrix<T>(m, n, random);
      std::vector<T> expected = copy_of(c);
      for (int j = 0; j < n; ++j) {
        for (int i = 0; i < m; ++i) alone(i, j) = c(rows[i], columns[j]);
      }
      blocked::gemm('N', is_conjugated ? 'C' : 'T', m, n, k, T{-1}, a.data(), a.ld, b.data(), b.ld, T{1}, alone.data(),
                    alone.ld);
      for (int j = 0; j < n; ++j) {
        for (int i = is_lower ? j : 0; i < m; ++i) {
          expected[static_cast<std::size_t>(&c(rows[i], columns[j]) - c.data())] = alone(i, j);
        }
      }
      blocked::subtract_at_places(is_conjugated, is_lower, m, n, k, a.data(), a.ld, b.data(), b.ld, c.data(), c.ld,
                                  rows.data(), columns.data());
      ASSERT_EQ(std::memcmp(c.data(), expected.data(), expected.size() * sizeof(T)), 0)
          << m << ' ' << n << ' ' << k << (is_lower ? " lower" : "");
    }
  });
}

// B <- alpha op(A) B is compared with the sums; a solution is put back into its equations. What stands in the other
// triangle, and on a unit diagonal, must not be read; a NaN in B reaches what depends on it and nothing else.
TEST_P(Kernels, Triangles) {
  for_all_types([]<Scalar T>() {
    using W = Wide<T>;
    Random random(4);
    const KernelBuffer buffer(1);
    for (int round = 0; round < 100; ++round) {
      const bool solves = random.below(2) == 0, left = random.below(2) == 0, unit = random.below(3) == 0;
      const char uplo = pick("UL", random), trans = pick("NTC", random);
      const int m = size(random), n = size(random), order = left ? m : n;
      const auto a = matrix<T>(order, order, random), b = matrix<T>(m, n, random);
      for (int j = 0; j < order; ++j) {
        for (int i = 0; i < order; ++i) {
          // Solutions stay as large as right-hand sides.
          if (solves) a(i, j) /= static_cast<RealOf<T>>(order);
          if (uplo == 'U' ? i > j : i < j) a(i, j) = std::numeric_limits<RealOf<T>>::quiet_NaN();
        }
        if (solves) a(j, j) += static_cast<RealOf<T>>(2);
        if (unit) a(j, j) = std::numeric_limits<RealOf<T>>::quiet_NaN();
      }
      spoil(b, random);
      const T alpha = random.below(3) == 0 ? T{} : random.factor<T>();
      const std::vector<T> before = copy_of(b);
      const auto old = [&](int i, int j) {
        return widen(
            before[static_cast<std::size_t>(j) * static_cast<std::size_t>(b.ld) + static_cast<std::size_t>(i)]);
      };
      const auto run = solves ? blocked::trsm<T> : blocked::trmm<T>;
      run(left ? 'L' : 'R', uplo, trans, unit ? 'U' : 'N', m, n, alpha, a.data(), a.ld, b.data(), b.ld, 1);
      const bool is_upper = (uplo == 'U') == (trans == 'N');  // op(A)
      const auto triangle = [&](int i, int j) { return unit && i == j ? W(1) : op(trans, a, i, j); };
      Bound bound;
      for (int j = 0; j < n; ++j) {
        for (int i = 0; i < m; ++i) {
          // Row i of op(A) and column j of the other, or the other way round.
          const int row = left ? i : j;
          const bool takes_later = is_upper == left;
          const int first = takes_later ? row : 0, end = takes_later ? order : row + 1;
          W sum{};
          for (int l = first; l < end; ++l) {
            const W t = left ? triangle(i, l) : triangle(l, j);
            const W x = solves ? widen(left ? b(l, j) : b(i, l)) : (left ? old(l, j) : old(i, l));
            sum += wide_product(t, x);
          }
          const long double scale = 8.0L * (order + 4) * 2;
          const W scaled = alpha == T{} ? W{} : wide_product(widen(alpha), solves ? old(i, j) : sum);
          if (alpha == T{}) {
            ASSERT_EQ(b(i, j), T{});
          } else if (!solves) {
            bound.add(b(i, j), scaled, scale);
          } else if (!is_nan(sum) || !is_nan(scaled)) {
            // Where the equation is spoilt by other unknowns, its own is, too.
            if (is_nan(sum)) {
              EXPECT_TRUE(is_nan(b(i, j)));
            } else if (std::abs(sum - scaled) >
                       scale * static_cast<long double>(std::numeric_limits<RealOf<T>>::epsilon())) {
              ADD_FAILURE() << "residual of trsm";
            }
          }
        }
      }
      bound.expect_held(std::string("trmm ") + (left ? 'L' : 'R') + uplo + trans + ' ' + std::to_string(m) + ' ' +
                        std::to_string(n));
      ASSERT_FALSE(HasFailure()) << (solves ? "trsm " : "trmm ") << (left ? 'L' : 'R') << uplo << trans << ' ' << m
                                 << ' ' << n;
    }
  });
}

// An element's bits depend on neither the number of threads nor the elements that are made with it.
TEST_P(Kernels, SameBitsOnAnyNumberOfThreads) {
  for_all_types([]<Scalar T>() {
    Random random(5);
    const int m = 333, n = 251, k = 417;
    const Matrix<T> a(m, m, 3, Edge::kBack, random), b(k, k, 1, Edge::kBack, random);
    const Matrix<T> start(m, n, 2, Edge::kBack, random);
    const T alpha(static_cast<RealOf<T>>(0.7)), beta(static_cast<RealOf<T>>(-0.3));
    const RealOf<T> one = 1;
    const auto runs = [&](int which, T* c, int ldc, int threads) {
      switch (which) {
        case 0:
          return blocked::gemm('N', 'N', 300, n, m, alpha, a.data(), a.ld, b.data(), b.ld, beta, c, ldc, threads);
        case 1:
          return blocked::gemm('T', 'T', 300, n, m, alpha, a.data(), a.ld, b.data(), b.ld, beta, c, ldc, threads);
        case 2:
          return blocked::symm('L', 'U', m, n, alpha, a.data(), a.ld, b.data(), b.ld, beta, c, ldc, threads);
        case 3:
          return blocked::hemm('R', 'L', m, n, alpha, b.data(), b.ld, a.data(), a.ld, beta, c, ldc, threads);
        case 4:
          return blocked::syrk('L', 'N', n, k, alpha, b.data(), b.ld, beta, c, ldc, threads);
        case 5:
          return blocked::herk<T>('U', 'C', n, k, one, b.data(), b.ld, one, c, ldc, threads);
        case 6:
          return blocked::syr2k('U', 'T', n, m, alpha, a.data(), a.ld, b.data(), b.ld, beta, c, ldc, threads);
        case 7:
          return blocked::her2k<T>('L', 'N', n, m, alpha, a.data(), a.ld, b.data(), b.ld, one, c, ldc, threads);
        case 8:
          return blocked::trmm('L', 'L', 'T', 'N', m, n, alpha, a.data(), a.ld, c, ldc, threads);
        case 9:
          return blocked::trmm('R', 'U', 'N', 'N', m, n, alpha, a.data(), a.ld, c, ldc, threads);
        case 10:
          return blocked::trsm('L', 'U', 'N', 'U', m, n, alpha, a.data(), a.ld, c, ldc, threads);
        default:
          return blocked::trsm('R', 'L', 'C', 'U', m, n, alpha, a.data(), a.ld, c, ldc, threads);
      }
    };
    for (int which = 0; which < 12; ++which) {
      std::vector<T> expected;
      for (const int threads : {1, 2, 3, 7}) {
        std::vector<T> c = copy_of(start);
        const KernelBuffer buffers(threads);
        ASSERT_EQ(buffers.granted(), threads);
        runs(which, c.data(), start.ld, threads);
        if (threads == 1) expected = c;
        EXPECT_EQ(std::memcmp(c.data(), expected.data(), c.size() * sizeof(T)), 0)
            << "routine " << which << " on " << threads << " threads";
      }
    }
  });
}

// Huge and subnormal numbers: nothing overflows that need not, and tiny numbers are not flushed.
TEST_P(Kernels, EndsOfTheRange) {
  const KernelBuffer buffer(1);
  const float huge = 3e38F, tiny = 1e-42F;
  const std::vector<float> a(64 * 64, huge), b(64 * 64, tiny);
  std::vector<float> c(64 * 64, 0.0F);
  blocked::gemm('N', 'N', 64, 64, 1, 1.0F, a.data(), 64, b.data(), 64, 0.0F, c.data(), 64);
  EXPECT_EQ(c[0], huge * tiny);
  const std::vector<float> large(64 * 64, 1e30F);
  blocked::gemm('N', 'N', 64, 64, 1, 1e-30F, large.data(), 64, large.data(), 64, 0.0F, c.data(), 64);
  EXPECT_FLOAT_EQ(c[77], 1e30F) << "alpha multiplies B, as published";
  const std::vector<float> unit(64, 1.0F);
  blocked::gemm('N', 'N', 64, 1, 1, 1.0F, b.data(), 64, unit.data(), 1, 0.0F, c.data(), 64);
  EXPECT_EQ(c[63], tiny);
}

// Sets with fused multiply-adds keep the exact product: the instructions that ran are those that were asked for.
TEST_P(Kernels, RunsTheInstructionsItNames) {
  const kernels::KernelSet<float>& set = kernels::kernels<float>();
  EXPECT_EQ(set.instruction_set, GetParam());
  std::printf("  kernels for %s: %d rows by %d columns at a time, %d terms\n",
              platform::kInstructionSets[static_cast<std::size_t>(GetParam())].name, set.tile_rows, set.tile_columns,
              set.blocking.depth);
  const KernelBuffer buffer(1);
  const float x = 1 + 0x1p-12F, square = x * x;
  const float a[2] = {1, x}, b[2] = {-square, x};
  float c = 7;
  blocked::gemm('N', 'N', 1, 1, 2, 1.0F, a, 1, b, 2, 0.0F, &c, 1);
  EXPECT_EQ(c != 0, GetParam() != InstructionSet::kSse2);
  for (const auto other : {InstructionSet::kSse2, InstructionSet::kAvx2, InstructionSet::kAvx512}) {
    if (other != GetParam()) {
      EXPECT_NE(kernels::kernels_of<float>(other).multiply, set.multiply);
    }
  }
}

// The upper halves of the registers after a call, in whatever they hold: code for SSE is slow until they are zero.
std::vector<unsigned> upper_halves() {
  alignas(32) unsigned registers[8][8];
  asm volatile(
      "vmovups %%ymm0, 0(%0)\n\tvmovups %%ymm1, 32(%0)\n\tvmovups %%ymm2, 64(%0)\n\tvmovups %%ymm3, 96(%0)\n\t"
      "vmovups %%ymm4, 128(%0)\n\tvmovups %%ymm5, 160(%0)\n\tvmovups %%ymm6, 192(%0)\n\tvmovups %%ymm7, 224(%0)"
      :
      : "r"(registers)
      : "memory");
  std::vector<unsigned> upper;
  for (const auto& r : registers) upper.insert(upper.end(), r + 4, r + 8);
  return upper;
}

TEST_P(Kernels, LeavesTheUpperHalvesOfRegistersClear) {
  if (!platform::can_run(platform::kInstructionSets[1], platform::cpu_features())) GTEST_SKIP();
  const KernelBuffer buffer(1);
  std::vector<float> a(100 * 100, 1.5F), c(100 * 100, 0.5F);
  const auto expect_clear = [](const char* what) {
    for (const unsigned word : upper_halves()) EXPECT_EQ(word, 0U) << what;
  };
  asm volatile("vpcmpeqd %%ymm5, %%ymm5, %%ymm5" : : : "xmm5");
  EXPECT_NE(upper_halves()[4 * 5], 0U) << "the probe sees nothing";
  asm volatile("vzeroupper" : : : "xmm5");
  blocked::gemm('N', 'N', 100, 100, 100, 1.0F, a.data(), 100, a.data(), 100, 0.0F, c.data(), 100);
  expect_clear("a product");
  blocked::trsm('L', 'L', 'N', 'N', 20, 100, 1.0F, a.data(), 100, c.data(), 100);
  expect_clear("a triangle");
}

INSTANTIATE_TEST_SUITE_P(All, Kernels,
                         testing::Values(InstructionSet::kSse2, InstructionSet::kAvx2, InstructionSet::kAvx512),
                         [](const testing::TestParamInfo<InstructionSet>& set) {
                           return platform::kInstructionSets[static_cast<std::size_t>(set.param)].name;
                         });

}  // namespace
}  // namespace quorin::dense
