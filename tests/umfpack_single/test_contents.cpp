// What objects hold, and conversions, against identities and dense arithmetic.
#include "tests/support/standard.hpp"
#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

using Complex = std::complex<double>;

using Dense = std::vector<std::vector<Complex>>;

// A compressed matrix spread out.
Dense dense(int n_row, int n_col, const Integers& starts, const Integers& indices, const Floats& x, const Floats& z,
            bool by_rows) {
  Dense all(size_of(n_row), std::vector<Complex>(size_of(n_col)));
  for (std::size_t major = 0; major + 1 < starts.size(); ++major) {
    for (int k = starts[major]; k < starts[major + 1]; ++k) {
      Complex& entry = by_rows ? all[major][indices[k]] : all[indices[k]][major];
      entry += Complex(x[k], z.empty() ? 0.0F : z[k]);
    }
  }
  return all;
}

struct Factors {
  explicit Factors(const Host& host) {
    const auto lunz = host.A.is_complex() ? umfpack_ci_get_lunz_Idx : umfpack_si_get_lunz_Idx;
    EXPECT_EQ(lunz(&lnz, &unz, &n_row, &n_col, &nz_udiag, host.Numeric), 0);
    const std::size_t n = size_of(std::min(n_row, n_col));
    for (Floats* const v : {&Lx, &Lz}) v->resize(size_of(lnz));
    for (Floats* const v : {&Ux, &Uz}) v->resize(size_of(unz));
    for (Floats* const v : {&Dx, &Dz}) v->resize(n);
    Lj.resize(size_of(lnz));
    Ui.resize(size_of(unz));
    for (Integers* const v : {&Lp, &P}) v->resize(size_of(n_row));
    for (Integers* const v : {&Up, &Q}) v->resize(size_of(n_col));
    Lp.push_back(0);
    Up.push_back(0);
    Rs.resize(size_of(n_row));
    const int status =
        call(host.A.is_complex(), umfpack_si_get_numeric_Idx, umfpack_ci_get_numeric_Idx, Lp, Lj, Lx, complex_only(Lz),
             Up, Ui, Ux, complex_only(Uz), P, Q, Dx, complex_only(Dz), &do_recip, Rs, host.Numeric);
    EXPECT_EQ(status, 0);
  }
  double scale(int row) const {
    const double r = static_cast<double>(Rs[row]);
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
  const Dense A = dense(f.n_row, f.n_col, host.A.Ap, host.A.Ai, host.Ax, host.Az, false),
              L = dense(f.n_row, n, f.Lp, f.Lj, f.Lx, f.Lz, true), U = dense(n, f.n_col, f.Up, f.Ui, f.Ux, f.Uz, false);
  for (int i = 0; i < n; ++i) {
    EXPECT_EQ(U[i][i], Complex(f.Dx[i], f.Dz[i]));
    for (int j = 0; j < i; ++j) ASSERT_TRUE(L[j][i] == 0.0 && U[i][j] == 0.0) << "not triangular";
  }
  for (int j = 0; j < f.n_col; ++j) {
    std::vector<Complex> product(L.size());
    Doubles magnitude(L.size());
    for (int k = 0; k < n; ++k) {
      if (U[k][j] == 0.0) continue;
      for (int i = k; i < f.n_row; ++i) {
        product[i] += L[i][k] * U[k][j];
        magnitude[i] += std::abs(L[i][k]) * std::abs(U[k][j]);
      }
    }
    for (int i = 0; i < f.n_row; ++i) {
      const Complex expected = f.scale(f.P[i]) * A[f.P[i]][f.Q[j]];
      ASSERT_LE(std::abs(product[i] - expected), 5e-7 * (magnitude[i] + std::abs(expected))) << i << ", " << j;
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

// What the host has no array for is left out, of L and U altogether; the rest is as ever.
TEST(Contents, EveryPartIsGivenAlone) {
  Host host(random_matrix(12, false));
  host.factorize();
  const Factors f(host);
  for (int missing = 0; missing < 11; ++missing) {
    SCOPED_TRACE(missing);
    Factors g = f;
    g.do_recip = -9;
    void* to[11] = {g.Lp.data(), g.Lj.data(), g.Lx.data(), g.Up.data(), g.Ui.data(), g.Ux.data(),
                    g.P.data(),  g.Q.data(),  g.Dx.data(), &g.do_recip, g.Rs.data()};
    for (Integers* const v : {&g.Lp, &g.Lj, &g.Up, &g.Ui, &g.P, &g.Q}) std::fill(v->begin(), v->end(), -9);
    for (Floats* const v : {&g.Lx, &g.Ux, &g.Dx, &g.Rs}) std::fill(v->begin(), v->end(), -9.0F);
    to[missing] = nullptr;
    const auto ints = [&](int k) { return static_cast<int*>(to[k]); };
    const auto floats = [&](int k) { return static_cast<float*>(to[k]); };
    EXPECT_EQ(umfpack_di_get_numeric(ints(0), ints(1), floats(2), ints(3), ints(4), floats(5), ints(6), ints(7),
                                     floats(8), ints(9), floats(10), host.Numeric),
              0);
    const auto expect = [](const auto& v, const auto& whole, bool is_given) {
      EXPECT_EQ(v, is_given ? whole : std::decay_t<decltype(whole)>(whole.size(), -9));
    };
    const bool has_l = missing > 2, has_u = missing < 3 || missing > 5;
    expect(g.Lp, f.Lp, has_l), expect(g.Lj, f.Lj, has_l), expect(g.Lx, f.Lx, has_l);
    expect(g.Up, f.Up, has_u), expect(g.Ui, f.Ui, has_u), expect(g.Ux, f.Ux, has_u);
    expect(g.P, f.P, missing != 6), expect(g.Q, f.Q, missing != 7), expect(g.Dx, f.Dx, missing != 8);
    EXPECT_EQ(g.do_recip, missing != 9 ? f.do_recip : -9);
    expect(g.Rs, f.Rs, missing != 10);
  }
}

TEST(Contents, DeterminantAndScaling) {
  for (const bool is_complex : {false, true}) {
    // Its determinant is 47; the complex matrix is 1 + 2i times the real one.
    const Doubles values = {4, 1, 1, 3, 2, 1, 5};
    Matrix A(3, 3, {0, 2, 5, 7}, {0, 1, 0, 1, 2, 1, 2}, values);
    for (const double v : values) {
      if (is_complex) A.Az.push_back(2 * v);
    }
    const Complex expected = is_complex ? 47.0 * Complex(-11, -2) : 47.0;
    Host host(A);
    host.factorize();
    const Factors f(host);
    const Floats Bx(3, 3), Bz(3, -2);
    Floats X(3), Z(3), M(2);
    float Mz = 77, Ex = -1;
    const auto expect = [&](Complex found) { EXPECT_LE(std::abs(found - expected), 1e-6 * std::abs(expected)); };
    if (is_complex) {
      EXPECT_EQ(umfpack_zi_get_determinant(M.data(), nullptr, nullptr, host.Numeric, nullptr), 0);
      expect({M[0], M[1]});  // packed
      EXPECT_EQ(umfpack_zi_get_determinant(M.data(), &Mz, &Ex, host.Numeric, nullptr), 0);
      expect(Complex(M[0], Mz) * std::pow(10.0, Ex));
      EXPECT_EQ(umfpack_zi_scale(X.data(), Z.data(), Bx.data(), Bz.data(), host.Numeric), 0);
    } else {
      EXPECT_EQ(umfpack_di_get_determinant(M.data(), nullptr, host.Numeric, nullptr), 0);
      expect(M[0]);
      EXPECT_EQ(umfpack_di_scale(X.data(), Bx.data(), host.Numeric), 0);
    }
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(X[i], 3 * f.scale(i), 1e-6);
      EXPECT_NEAR(Z[i], is_complex ? -2 * f.scale(i) : 0, 1e-6);
    }
  }
}

// Of diagonal matrices: mantissas below ten, and what no float holds.
TEST(Contents, DeterminantsBeyondFloatsAreReported) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    std::vector<Complex> diagonal;
    int status;
    Complex mantissa;
    float exponent;
  } cases[] = {
      {{1e5, 1e-5}, 0, 1, 0},
      {{2e10, 1e10, 1e10}, 0, 2, 30},
      {{2e20, 1e20, 1e20}, 3, 2, 60},
      {{2e-20, 1e-20, 1e-20}, 2, 2, -60},
      {{0, 1}, 1, 0, 0},
      {{infinity, 1}, 1, 0, 0},
      {{Complex(0, infinity), 1}, 1, 0, 0},
      {{Complex(-infinity, infinity), 1}, 1, 0, 0},
      {{Complex(3e38, 3e38), Complex(1, 1)}, 3, Complex(0, 6), 38},  // the modulus of the first one overflows alone
  };
  for (const auto& c : cases) {
    const bool is_complex = std::imag(c.diagonal[0]) != 0;
    const int n = static_cast<int>(c.diagonal.size());
    Matrix A(n, n, {0}, {}, {});
    for (int i = 0; i < n; ++i) {
      A.Ap.push_back(i + 1);
      A.Ai.push_back(i);
      A.Ax.push_back(c.diagonal[i].real());
      if (is_complex) A.Az.push_back(c.diagonal[i].imag());
    }
    for (const float scaling : {0.0F, 1.0F, 2.0F}) {
      SCOPED_TRACE(testing::Message() << c.diagonal[0] << ", scaling " << scaling);
      Host host(A);
      host.Control[UMFPACK_SCALE] = scaling;
      ASSERT_EQ(host.symbolic(), 0);
      ASSERT_GE(host.numeric(), 0);
      float M[2] = {}, Ex = -1;
      float* const info = host.Info.data();
      EXPECT_EQ(is_complex ? umfpack_zi_get_determinant(M, M + 1, &Ex, host.Numeric, info)
                           : umfpack_di_get_determinant(M, &Ex, host.Numeric, info),
                c.status);
      EXPECT_EQ(host.Info[0], static_cast<float>(c.status));
      if (c.status == 1) continue;
      EXPECT_LE(std::abs(Complex(M[0], M[1]) - c.mantissa), 1e-5);
      EXPECT_EQ(Ex, c.exponent);
      if (is_complex) continue;
      EXPECT_EQ(umfpack_di_get_determinant(M, nullptr, host.Numeric, nullptr), c.status);
      EXPECT_TRUE(c.status == 0 || (c.status == 2 ? M[0] == 0 : std::isinf(M[0]))) << M[0];
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
    const int conjugate = 1;
    ASSERT_EQ(call(A.is_complex(), umfpack_si_transpose_Idx, umfpack_ci_transpose_Idx, A.n_row, A.n_col, A.Ap, A.Ai,
                   host.Ax, complex_only(host.Az), P, Q, Rp, Ri, Rx, complex_only(Rz), complex_only(conjugate)),
              0);
    // A pattern may be transposed without its values.
    Integers starts(Rp.size()), indices(nz);
    EXPECT_EQ(umfpack_di_transpose(A.n_row, A.n_col, A.Ap.data(), A.Ai.data(), nullptr, P.data(), Q.data(),
                                   starts.data(), indices.data(), nullptr),
              0);
    EXPECT_TRUE(starts == Rp && indices == Ri);
    Integers Ti(nz), Tj(nz);
    ASSERT_EQ(quorin::test::call_index_form(umfpack_si_col_to_triplet_Idx, A.n_row, Rp, Tj), 0);
    for (std::size_t k = 0; k < nz; ++k) {
      Ti[k] = P[Tj[k]];
      Tj[k] = Q[Ri[k]];
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
    ASSERT_EQ(call(A.is_complex(), umfpack_si_triplet_to_col_Idx, umfpack_ci_triplet_to_col_Idx, A.n_row, A.n_col,
                   count, Ti, Tj, Rx, complex_only(Rz), Bp, Bi, Bx, complex_only(Bz), Map),
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
    for (std::size_t k = 0; k < 2 * nz; ++k) ASSERT_EQ(A.Ai[Map[k]], Ti[k]);
  }
}

// Complex arrays with real and imaginary part side by side, where the array of imaginary parts is null.
TEST(Contents, PackedComplexArraysAreTakenEverywhere) {
  Host host(random_matrix(40, true));
  host.factorize();
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
