// What objects hold, and conversions, against identities and dense arithmetic.
#include <algorithm>
#include <cmath>
#include <complex>
#include <numeric>

#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

using Complex = std::complex<double>;

// Column-major.
struct Dense {
  Dense(int rows, int columns) : n_row(size_of(rows)), entries(size_of(rows) * size_of(columns)) {}
  Complex& operator()(int i, int j) { return entries[size_of(i) + size_of(j) * n_row]; }
  std::size_t n_row;
  std::vector<Complex> entries;
};

Complex entry(const Floats& x, const Floats& z, std::size_t k) {
  return {static_cast<double>(x[k]), z.empty() ? 0.0 : static_cast<double>(z[k])};
}

Dense dense(const Host& host) {
  Dense D(host.A.n_row, host.A.n_col);
  for (int j = 0; j < host.A.n_col; ++j) {
    for (std::size_t k = size_of(host.A.Ap[size_of(j)]); k < size_of(host.A.Ap[size_of(j) + 1]); ++k) {
      D(host.A.Ai[k], j) += entry(host.Ax, host.Az, k);
    }
  }
  return D;
}

struct Factors {
  explicit Factors(const Host& host) {
    const auto lunz = host.A.is_complex() ? umfpack_ci_get_lunz_Idx : umfpack_si_get_lunz_Idx;
    EXPECT_EQ(lunz(&lnz, &unz, &n_row, &n_col, &nz_udiag, host.Numeric), 0);
    const std::size_t n = size_of(std::min(n_row, n_col));
    for (Floats* const v : {&Lx, &Lz}) v->resize(size_of(lnz));
    for (Floats* const v : {&Ux, &Uz}) v->resize(size_of(unz));
    for (Floats* const v : {&Dx, &Dz}) v->resize(n);
    Lp.resize(size_of(n_row) + 1);
    Lj.resize(size_of(lnz));
    Up.resize(size_of(n_col) + 1);
    Ui.resize(size_of(unz));
    P.resize(size_of(n_row));
    Q.resize(size_of(n_col));
    Rs.resize(size_of(n_row));
    const int status =
        host.A.is_complex()
            ? umfpack_ci_get_numeric_Idx(base(Lp), kIndex, base(Lj), kIndex, base(Lx), kIndex, base(Lz), kIndex,
                                         base(Up), kIndex, base(Ui), kIndex, base(Ux), kIndex, base(Uz), kIndex,
                                         base(P), kIndex, base(Q), kIndex, base(Dx), kIndex, base(Dz), kIndex,
                                         &do_recip, base(Rs), kIndex, host.Numeric)
            : umfpack_si_get_numeric_Idx(base(Lp), kIndex, base(Lj), kIndex, base(Lx), kIndex, base(Up), kIndex,
                                         base(Ui), kIndex, base(Ux), kIndex, base(P), kIndex, base(Q), kIndex, base(Dx),
                                         kIndex, &do_recip, base(Rs), kIndex, host.Numeric);
    EXPECT_EQ(status, 0);
  }
  double scale(int row) const {
    const double r = static_cast<double>(Rs[size_of(row)]);
    return do_recip != 0 ? r : 1 / r;
  }
  int lnz = 0, unz = 0, n_row = 0, n_col = 0, nz_udiag = 0, do_recip = -1;
  Integers Lp, Lj, Up, Ui, P, Q;
  Floats Lx, Lz, Ux, Uz, Dx, Dz, Rs;
};

bool is_permutation(Integers P) {
  Integers identity(P.size());
  std::iota(identity.begin(), identity.end(), 0);
  std::sort(P.begin(), P.end());
  return P == identity;
}

// L U = P R A Q within the rounding of the factors to float.
void expect_factorization(const Host& host) {
  const Factors f(host);
  ASSERT_TRUE(is_permutation(f.P) && is_permutation(f.Q));
  const int n = std::min(f.n_row, f.n_col);
  Dense A = dense(host), L(f.n_row, n), product(f.n_row, f.n_col), magnitude(f.n_row, f.n_col);
  for (int i = 0; i < f.n_row; ++i) {
    for (std::size_t k = size_of(f.Lp[size_of(i)]); k < size_of(f.Lp[size_of(i) + 1]); ++k) {
      ASSERT_LE(f.Lj[k], i);
      L(i, f.Lj[k]) = entry(f.Lx, host.A.is_complex() ? f.Lz : Floats(), k);
    }
  }
  for (int j = 0; j < f.n_col; ++j) {
    for (std::size_t k = size_of(f.Up[size_of(j)]); k < size_of(f.Up[size_of(j) + 1]); ++k) {
      const int inner = f.Ui[k];
      ASSERT_LE(inner, j);
      const Complex u = entry(f.Ux, host.A.is_complex() ? f.Uz : Floats(), k);
      if (inner == j) {
        EXPECT_EQ(u, entry(f.Dx, host.A.is_complex() ? f.Dz : Floats(), size_of(j)));
      }
      for (int i = inner; i < f.n_row; ++i) {
        product(i, j) += L(i, inner) * u;
        magnitude(i, j) += std::abs(L(i, inner)) * std::abs(u);
      }
    }
  }
  for (int j = 0; j < f.n_col; ++j) {
    for (int i = 0; i < f.n_row; ++i) {
      const int row = f.P[size_of(i)];
      const Complex expected = f.scale(row) * A(row, f.Q[size_of(j)]);
      const double bound = 5e-7 * (magnitude(i, j).real() + std::abs(expected));
      ASSERT_LE(std::abs(product(i, j) - expected), bound) << i << ", " << j;
    }
  }
}

TEST(Contents, FactorsMultiplyToTheScaledAndPermutedMatrix) {
  for (const Matrix& A : demo_matrices()) {
    if (A.n_row > 200 || A.n_col > 200) continue;  // cubic work
    SCOPED_TRACE(A.name);
    for (const float scaling : {0.0F, 1.0F, 2.0F}) {
      Host host(A);
      host.Control[16] = scaling;
      ASSERT_EQ(host.symbolic(), 0);
      ASSERT_GE(host.numeric(), 0);
      expect_factorization(host);
      int n_row = 0, n_col = 0, n1 = 0, nz = 0, nfr = 0, nchains = 0;
      Integers P(A.order()), Q(size_of(A.n_col));
      const auto get_symbolic = A.is_complex() ? umfpack_zi_get_symbolic : umfpack_di_get_symbolic;
      EXPECT_EQ(get_symbolic(&n_row, &n_col, &n1, &nz, &nfr, &nchains, P.data(), Q.data(), nullptr, nullptr, nullptr,
                             nullptr, nullptr, nullptr, nullptr, host.Symbolic),
                0);
      EXPECT_TRUE(is_permutation(P) && is_permutation(Q));
      EXPECT_EQ(Integers({n_row, n_col, nz}), Integers({A.n_row, A.n_col, A.nz()}));
    }
  }
}

Complex determinant_by_elimination(Dense A, int n) {
  Complex result = 1;
  for (int k = 0; k < n; ++k) {
    int pivot = k;
    for (int i = k; i < n; ++i) pivot = std::abs(A(i, k)) > std::abs(A(pivot, k)) ? i : pivot;
    for (int j = 0; j < n; ++j) std::swap(A(k, j), A(pivot, j));
    result *= pivot == k ? A(k, k) : -A(k, k);
    for (int i = k + 1; i < n; ++i) {
      const Complex factor = A(i, k) / A(k, k);
      for (int j = k; j < n; ++j) A(i, j) -= factor * A(k, j);
    }
  }
  return result;
}

TEST(Contents, DeterminantAndScaling) {
  for (const bool is_complex : {false, true}) {
    const int n = 7;
    Host host(random_matrix(n, is_complex));
    ASSERT_EQ(host.symbolic(), 0);
    ASSERT_EQ(host.numeric(), 0);
    float M[2] = {}, Mz = 0, Ex = -1;
    const auto get = [&](float* exponent) {
      return is_complex ? umfpack_zi_get_determinant(M, &Mz, exponent, host.Numeric, host.Info.data())
                        : umfpack_di_get_determinant(M, exponent, host.Numeric, host.Info.data());
    };
    const Complex expected = determinant_by_elimination(dense(host), n);
    EXPECT_EQ(get(&Ex), 0);
    EXPECT_LE(std::abs(Complex(M[0], Mz) * std::pow(10.0, Ex) - expected), 1e-6 * std::abs(expected));
    EXPECT_EQ(get(nullptr), 0);
    EXPECT_LE(std::abs(Complex(M[0], Mz) - expected), 1e-6 * std::abs(expected));
    if (is_complex) {
      Mz = 77;
      EXPECT_EQ(umfpack_zi_get_determinant(M, nullptr, nullptr, host.Numeric, nullptr), 0);
      EXPECT_LE(std::abs(Complex(M[0], M[1]) - expected), 1e-6 * std::abs(expected)) << "packed";
      EXPECT_EQ(Mz, 77);
    }

    const Factors f(host);
    Floats Bx(n, 3), Bz(n, -2), X(n), Z(n);
    EXPECT_EQ(is_complex ? umfpack_zi_scale(X.data(), Z.data(), Bx.data(), Bz.data(), host.Numeric)
                         : umfpack_di_scale(X.data(), Bx.data(), host.Numeric),
              0);
    for (int i = 0; i < n; ++i) {
      EXPECT_NEAR(X[size_of(i)], 3 * f.scale(i), 1e-6);
      if (is_complex) {
        EXPECT_NEAR(Z[size_of(i)], -2 * f.scale(i), 1e-6);
      }
    }
  }
}

TEST(Contents, DeterminantsBeyondFloatsAreReported) {
  struct Case {
    double diagonal;
    int status;
  };
  for (const Case c : {Case{1e20, 3}, Case{1e-20, 2}, Case{0, 1}, Case{1e10, 0}}) {
    Matrix A{.name = {},
             .n_row = 3,
             .n_col = 3,
             .Ap = {0, 1, 2, 3},
             .Ai = {0, 1, 2},
             .Ax = Doubles(3, c.diagonal),
             .Az = {}};
    Host host(A);
    ASSERT_EQ(host.symbolic(), 0);
    ASSERT_GE(host.numeric(), 0);
    float M = -1, Ex = -1;
    EXPECT_EQ(umfpack_di_get_determinant(&M, &Ex, host.Numeric, host.Info.data()), c.status);
    EXPECT_EQ(host.Info[0], static_cast<float>(c.status));
    if (c.diagonal != 0) {
      EXPECT_NEAR(std::log10(static_cast<double>(M)) + static_cast<double>(Ex), 3 * std::log10(c.diagonal), 1e-6);
    }
    EXPECT_EQ(umfpack_di_get_determinant(&M, nullptr, host.Numeric, nullptr), c.status);
    if (c.status == 3) {
      EXPECT_TRUE(std::isinf(M));
    }
    if (c.status == 1 || c.status == 2) {
      EXPECT_EQ(M, 0);
    }
  }
}

// R = (P A Q)^T twice, back with the inverse permutations; triplets in reverse with each entry cut in two.
TEST(Contents, ConversionsReproduceTheMatrix) {
  for (const Matrix& A : demo_matrices()) {
    SCOPED_TRACE(A.name);
    const Host host(A);
    const std::size_t nz = size_of(A.nz());
    Integers P(A.order()), Q(size_of(A.n_col)), Rp(A.order() + 1), Ri(nz);
    for (std::size_t i = 0; i < P.size(); ++i) P[i] = static_cast<int>((i + 3) % P.size());
    for (std::size_t j = 0; j < Q.size(); ++j) Q[j] = static_cast<int>(Q.size() - 1 - j);
    Floats Rx(nz), Rz(nz);
    ASSERT_EQ(A.is_complex()
                  ? umfpack_ci_transpose_Idx(A.n_row, A.n_col, base(A.Ap), kIndex, base(A.Ai), kIndex, base(host.Ax),
                                             kIndex, base(host.Az), kIndex, base(P), kIndex, base(Q), kIndex, base(Rp),
                                             kIndex, base(Ri), kIndex, base(Rx), kIndex, base(Rz), kIndex, 1)
                  : umfpack_si_transpose_Idx(A.n_row, A.n_col, base(A.Ap), kIndex, base(A.Ai), kIndex, base(host.Ax),
                                             kIndex, base(P), kIndex, base(Q), kIndex, base(Rp), kIndex, base(Ri),
                                             kIndex, base(Rx), kIndex),
              0);
    Integers Ti(nz), Tj(nz);
    ASSERT_EQ(umfpack_si_col_to_triplet_Idx(A.n_row, base(Rp), kIndex, base(Tj), kIndex), 0);
    for (std::size_t k = 0; k < nz; ++k) {
      Ti[k] = P[size_of(Tj[k])];
      Tj[k] = Q[size_of(Ri[k])];
      Rz[k] = -Rz[k];
    }
    // Each entry once whole and once as zero, from the last to the first.
    Ti.insert(Ti.end(), Ti.begin(), Ti.end());
    Tj.insert(Tj.end(), Tj.begin(), Tj.end());
    Rx.resize(2 * nz);
    Rz.resize(2 * nz);
    for (auto* const v : {&Ti, &Tj}) std::reverse(v->begin(), v->end());
    for (auto* const v : {&Rx, &Rz}) std::reverse(v->begin(), v->end());
    const int count = static_cast<int>(2 * nz);
    Integers Bp(size_of(A.n_col) + 1), Bi(2 * nz), Map(2 * nz, -1);
    Floats Bx(2 * nz), Bz(2 * nz);
    ASSERT_EQ(A.is_complex()
                  ? umfpack_ci_triplet_to_col_Idx(A.n_row, A.n_col, count, base(Ti), kIndex, base(Tj), kIndex, base(Rx),
                                                  kIndex, base(Rz), kIndex, base(Bp), kIndex, base(Bi), kIndex,
                                                  base(Bx), kIndex, base(Bz), kIndex, base(Map), kIndex)
                  : umfpack_si_triplet_to_col_Idx(A.n_row, A.n_col, count, base(Ti), kIndex, base(Tj), kIndex, base(Rx),
                                                  kIndex, base(Bp), kIndex, base(Bi), kIndex, base(Bx), kIndex,
                                                  base(Map), kIndex),
              0);
    Bi.resize(nz);
    Bx.resize(nz);
    Bz.resize(nz);
    EXPECT_EQ(Bp, A.Ap);
    EXPECT_EQ(Bi, A.Ai);
    EXPECT_EQ(Bx, host.Ax);
    if (A.is_complex()) {
      EXPECT_EQ(Bz, host.Az);
    }
    for (std::size_t k = 0; k < 2 * nz; ++k) ASSERT_EQ(A.Ai[size_of(Map[k])], Ti[k]);
  }
}

// Complex arrays with real and imaginary part side by side, where the array of imaginary parts is null.
TEST(Contents, PackedComplexArraysAreTakenEverywhere) {
  Host host(random_matrix(40, true));
  ASSERT_EQ(host.symbolic(), 0);
  ASSERT_EQ(host.numeric(), 0);
  const Floats bx(40, 1), bz(40, -0.25F);
  ASSERT_EQ(host.solve(1, bx, bz), 0);
  const auto packed = [](const Floats& x, const Floats& z) {
    Floats all;
    for (std::size_t k = 0; k < x.size(); ++k) all.insert(all.end(), {x[k], z[k]});
    return all;
  };
  const Floats A = packed(host.Ax, host.Az), b = packed(bx, bz);
  Floats x(80);
  void *Symbolic = nullptr, *Numeric = nullptr;
  const int *Ap = host.A.Ap.data(), *Ai = host.A.Ai.data();
  ASSERT_EQ(umfpack_zi_symbolic(40, 40, Ap, Ai, A.data(), nullptr, &Symbolic, nullptr, nullptr), 0);
  ASSERT_EQ(umfpack_zi_numeric(Ap, Ai, A.data(), nullptr, Symbolic, &Numeric, nullptr, nullptr), 0);
  ASSERT_EQ(
      umfpack_zi_solve(1, Ap, Ai, A.data(), nullptr, x.data(), nullptr, b.data(), nullptr, Numeric, nullptr, nullptr),
      0);
  const Floats expected = packed(host.Xx, host.Xz);
  for (std::size_t k = 0; k < x.size(); ++k) EXPECT_NEAR(x[k], expected[k], 1e-6);
  umfpack_zi_free_symbolic(&Symbolic);
  umfpack_zi_free_numeric(&Numeric);
}

}  // namespace
}  // namespace umfpack_test
