// IERR, ITER, ERR and TOL when things do not go as planned.
#include "tests/slap/slap_host.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

using Iteration = Solver::Iteration;

Triads two_by_two(double a11, double a12, double a21, double a22) {
  Triads t;
  t.n = 2;
  t.add(1, 1, a11);
  t.add(2, 1, a21);
  t.add(1, 2, a12);
  t.add(2, 2, a22);
  return t;
}

TEST(Status, BadSizesTouchNothing) {
  const Triads good = two_by_two(4, 1, 1, 4);
  for (const Solver& s : solvers()) {
    for (const int which : {0, 1, 2}) {
      Triads bad = good;
      if (which == 0) bad.n = 0;
      if (which == 1) bad.n = -3;
      if (which == 2) bad.ia = bad.ja = {}, bad.a = {};
      const Outcome o = run(s, bad, {1, 2}, {}, {7, 8});
      EXPECT_EQ(o.ierr, 3) << s.name;
      EXPECT_EQ(o.x, (Floats{7, 8}));
      EXPECT_EQ(o.matrix.a, bad.a);
      EXPECT_EQ(Integers(o.matrix.ja.begin(), o.matrix.ja.begin() + bad.nelt()), bad.ja);
      EXPECT_EQ(o.err, s.name == "SSDGMR" ? 0 : -7) << s.name;
    }
  }
  for (const auto& [name, least] : {std::pair("SSDGMR", 2), {"SSLUGM", 1}, {"SSDOMN", 0}, {"SSLUOM", 0}}) {
    EXPECT_EQ(run(solver(name), good, {1, 2}, {.nsave = least}).ierr, 0) << name;
    const Outcome o = run(solver(name), good, {1, 2}, {.nsave = least - 1});
    EXPECT_EQ(o.ierr, 3) << name;
    EXPECT_EQ(o.matrix.a, good.a);
  }
}

TEST(Status, UnknownTests) {
  for (const Solver& s : solvers()) {
    for (const int itol : {5, -1, 3, 12, 0}) {
      const Outcome o = run(s, two_by_two(4, 1, 1, 4), {1, 2}, {.itol = itol}, {7, 8});
      if (itol == 0 && s.iteration == Iteration::kGmres) {
        EXPECT_EQ(o.ierr, 0);
        const Triads skewed = two_by_two(4, 1, 9, 1000);
        EXPECT_EQ(run(s, skewed, {1, 2}, {.itol = 0, .itmax = 0}).err, 1) << "the plain residual is tested";
        EXPECT_EQ(run(s, skewed, {1, 2}, {.itol = 0}).err, run(s, skewed, {1, 2}).err);
        continue;
      }
      EXPECT_EQ(o.ierr, 3) << s.name;
      EXPECT_EQ(o.err, 1.0E10F);
      EXPECT_EQ(o.iter, 0);
      EXPECT_EQ(o.x, (Floats{7, 8}));
      EXPECT_EQ(o.matrix.ja[2], 5) << "the matrix is converted all the same";
    }
    const Outcome o = run(s, two_by_two(4, 1, 1, 4), {1, 2}, {.itol = 11, .itmax = 3});
    EXPECT_TRUE(o.ierr == 2 || o.ierr == 5 || o.ierr == 6) << s.name << " has no solution to compare with";
    EXPECT_FALSE(o.err <= 1e30F);
  }
}

TEST(Status, TolerancesBelowTheFloorAreRaised) {
  const Triads a = grid(6, 0);
  const Floats b(36, 1.0F);
  for (const Solver& s : solvers()) {
    for (const float tol : {0.0F, -1.0F, 2.9e-5F}) {
      const Outcome o = run(s, a, b, {.tol = tol});
      EXPECT_EQ(o.tol, std::ldexp(500.0F, -24)) << s.name;
      EXPECT_EQ(o.ierr, 4) << s.name;
      EXPECT_LE(o.err, o.tol);
      EXPECT_GT(o.iter, 0) << "the iteration ran";
      EXPECT_EQ(run(s, a, b, {.tol = tol, .itmax = 1}).ierr, 2) << s.name;
    }
    EXPECT_EQ(run(s, a, b, {.tol = std::ldexp(500.0F, -24)}).ierr, 0) << s.name << ": the floor itself will do";
  }
}

TEST(Status, LimitsOfIterations) {
  const Triads a = grid(6, 0);
  const Floats b(36, 1.0F), exact = run(solver("SSICCG"), a, b).x;
  for (const Solver& s : solvers()) {
    for (const int itmax : {2, 1, 0, -4}) {
      const Outcome o = run(s, a, b, {.itmax = itmax});
      EXPECT_EQ(o.ierr, 2) << s.name;
      EXPECT_EQ(o.iter, itmax + 1) << s.name;
      if (itmax > 0) {
        EXPECT_NEAR(relative_residual(a, b, o.x), o.err, 1e-5) << s.name;
      }
      if (itmax < 0) continue;
      const Outcome good = run(s, a, b, {.itmax = itmax}, exact);
      EXPECT_EQ(good.ierr, 0) << s.name << ": a good start needs no iterations";
      EXPECT_EQ(good.iter, 0);
      EXPECT_EQ(good.x, exact);
    }
    // Two drivers put the limit before everything.
    const Outcome unknown = run(s, a, b, {.itol = 5, .itmax = -1});
    EXPECT_EQ(unknown.ierr, s.name == "SSDCGN" || s.name == "SSDGMR" ? 2 : 3) << s.name;
  }
}

TEST(Status, Breakdowns) {
  const struct {
    const char* what;
    Triads a;
    Floats b;
    std::map<std::string, int> status;
  } cases[] = {
      {"a diagonal that is not positive", two_by_two(1, 0, 0, -1), {1, 1}, {{"SSDCG", 5}, {"SSDBCG", 5}}},
      {"an indefinite matrix", two_by_two(1, 3, 3, 1), {1, -1}, {{"SSDCG", 6}, {"SSDCGN", 0}, {"SSDGMR", 0}}},
      {"(r, A r) = 0", two_by_two(1, -3, 1, 1), {1, 1}, {{"SSDBCG", 6}, {"SSDCGS", 6}, {"SSDOMN", 6}, {"SSDGMR", 0}}},
      {"A r = 0", two_by_two(1, 1, 1, 1), {1, -1}, {{"SSDCG", 6}, {"SSDBCG", 6}, {"SSDGMR", 5}, {"SSDOMN", 5}}}};
  const auto expect = [](const Solver& s, const Triads& a, const Floats& b, int status) {
    const Outcome o = run(s, a, b);
    EXPECT_EQ(o.ierr, status) << s.name;
    for (const float x : o.x) EXPECT_TRUE(std::isfinite(x)) << s.name;
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    for (const auto& [name, status] : c.status) expect(solver(name), c.a, c.b, status);
  }
  SCOPED_TRACE("no right-hand side");
  for (const Solver& s : solvers())
    expect(s, two_by_two(4, 1, 1, 4), {0, 0}, s.iteration == Iteration::kRefinement ? 2 : 5);
}

// Positive definite, but its incomplete factorization has the pivots 3, 5/3, 3/5 and -5. D. S. Kershaw, J. Comput.
// Phys. 26 (1978) 43-65.
TEST(Status, PivotsThatWillNotDoAreReplaced) {
  Triads a;
  a.n = 4;
  for (int i = 1; i <= 4; ++i) {
    a.add(i, i, 3);
    for (const int j : {i % 4 + 1, (i + 2) % 4 + 1}) a.add(i, j, i + j == 5 && i * j == 4 ? 2 : -2);
  }
  for (const Triads& m : {a, a.lower()}) {
    const Floats b = right_hand_side(m, {1, -2, 3, 5});
    const Outcome o = run(solver("SSICCG"), m, b);
    EXPECT_EQ(o.ierr, 0);
    EXPECT_LE(relative_residual(m, b, o.x), 1e-3);
    const int diagonal = o.iwork[4] - 1;
    for (int i = 0; i < 4; ++i) EXPECT_GT(o.rwork[diagonal + i], 0) << "the factors are definite";
    EXPECT_NEAR(o.rwork[diagonal + 2], 5.0 / 3, 1e-5);
  }
  // A column of zeros has the pivot 1.
  Triads zeros;
  zeros.n = 2;
  zeros.add(1, 1, 4);
  zeros.add(2, 2, 0);
  for (const auto& [name, word] : {std::pair("SSICCG", 4), {"SSLUBC", 5}}) {
    const Outcome o = run(solver(name), zeros, {1, 0});
    const auto diagonal = o.rwork.begin() + o.iwork[word] - 1;
    EXPECT_EQ(Floats(diagonal, diagonal + 2), (Floats{0.25F, 1})) << name;
    EXPECT_EQ(o.x, (Floats{0.25F, 0})) << name;
  }
  // No diagonal at all.
  Triads swap;
  swap.n = 2;
  swap.add(2, 1, 2);
  swap.add(1, 2, 3);
  for (const char* name : {"SSLUBC", "SSLUCS", "SSLUGM", "SSLUCN"}) {
    const Outcome o = run(solver(name), swap, {6, 8});
    EXPECT_TRUE(o.is_guarded);
    for (const float x : o.x) EXPECT_TRUE(std::isfinite(x)) << name;
    EXPECT_EQ(o.rwork[o.iwork[5] - 1], 0.5F) << name << ": the sum of the column's magnitudes is 2";
  }
  EXPECT_LE(relative_residual(swap, {6, 8}, run(solver("SSLUGM"), swap, {6, 8}).x), 1e-4);
}

}  // namespace
}  // namespace slap_test
