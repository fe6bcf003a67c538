// What every solver has to do, for every solver.
//
// A single-precision residual b - A x is known to a few roundings of its largest terms, so ERR is compared with the
// residual in double precision to kResidualNoise beside a relative kAgreement.
#include "tests/slap/slap_host.hpp"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

using Iteration = Solver::Iteration;

constexpr double kResidualNoise = 2e-5, kAgreement = 0.02;

struct Problem {
  std::string name;
  Triads a;
  bool is_symmetric;
};

std::vector<Problem> problems() {
  std::mt19937 random(41);
  std::vector<Problem> all;
  all.push_back({"symmetric positive definite", random_dominant(150, 0.04, 1.0, true, random), true});
  all.push_back({"M-matrix", grid(12, 0), true});
  all.push_back({"diagonally dominant", random_dominant(150, 0.04, 1.2, false, random), false});
  all.push_back({"convection", grid(12, 40), false});
  Triads small;
  small.n = 1;
  small.add(1, 1, 4);
  all.push_back({"order 1", small, true});
  Triads diagonal;
  diagonal.n = 5;
  for (int i = 1; i <= 5; ++i) diagonal.add(i, i, i);
  all.push_back({"diagonal", diagonal, true});
  return all;
}

class EverySolver : public testing::TestWithParam<Solver> {
 protected:
  const Solver& s() const { return GetParam(); }
  // Calls check(problem, b) for the problems that the solver's theory covers.
  template <class Check>
  void for_each_problem(const Check& check) const {
    std::mt19937 random(42);
    for (const Problem& p : problems()) {
      if (s().is_symmetric_only() && !p.is_symmetric) continue;
      SCOPED_TRACE(s().name + ", " + p.name);
      check(p, right_hand_side(p.a, random_solution(p.a.n, random)));
    }
  }
};

INSTANTIATE_TEST_SUITE_P(All, EverySolver, testing::ValuesIn(solvers()),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(EverySolver, ConvergesAndTellsTheTrueResidual) {
  for_each_problem([&](const Problem& p, const Floats& b) {
    const Outcome o = run(s(), p.a, b);
    EXPECT_EQ(o.ierr, 0);
    EXPECT_EQ(o.tol, 1e-4F);
    EXPECT_LE(o.err, o.tol);
    EXPECT_GE(o.iter, 1);
    EXPECT_NEAR(relative_residual(p.a, b, o.x), o.err, kResidualNoise + kAgreement * o.err);
    EXPECT_TRUE(o.is_guarded);
    const Outcome again = run(s(), p.a, b, {}, o.x);
    EXPECT_TRUE(again.iter == 0 || again.err <= 1e-4F) << "a good start is soon good enough";
  });
}

TEST_P(EverySolver, TakesEveryStorageOfAMatrix) {
  std::mt19937 random(43);
  for_each_problem([&](const Problem& p, const Floats& b) {
    const Outcome o = run(s(), p.a, b), other = run(s(), p.a.shuffled(random), b);
    EXPECT_EQ(other.x, o.x) << "triads in another order";
    const Outcome columns = run(s(), p.a.converted(), b);
    EXPECT_EQ(columns.x, o.x);
    EXPECT_EQ(columns.iter, o.iter);
    EXPECT_EQ(o.matrix.ja[p.a.n], p.a.nelt() + 1) << "columns are left behind";
    EXPECT_EQ(o.matrix.a, columns.matrix.a);
    if (!p.is_symmetric) return;
    const Outcome lower = run(s(), p.a.lower(), b);
    EXPECT_EQ(lower.ierr, 0);
    EXPECT_NEAR(lower.iter, o.iter, 1);
    EXPECT_TRUE(lower.is_guarded);
    // Both within the tolerance of the same solution; roundings differ.
    EXPECT_LE(relative_residual(p.a, b, lower.x), 1.3e-4);
  });
}

TEST_P(EverySolver, PreconditionedTestAndIndexForm) {
  for_each_problem([&](const Problem& p, const Floats& b) {
    const Outcome o = run(s(), p.a, b, {.itol = 2});
    EXPECT_EQ(o.ierr, 0);
    EXPECT_LE(o.err, o.tol);
    // M is not far from A in any of these (from A A^T in two, where squares of the condition count).
    EXPECT_LE(relative_residual(p.a, b, o.x), 0.02);
    if (!s().has_index_form()) return;
    const Outcome indexed = run(s(), p.a, b, {.itol = 2, .index_form = true});
    EXPECT_EQ(indexed.x, o.x);
    EXPECT_EQ(indexed.iter, o.iter);
    EXPECT_EQ(indexed.matrix.ja, o.matrix.ja);
  });
}

// Both entries of a pair count, in products as in preconditioners.
TEST_P(EverySolver, RepeatedEntriesAddUp) {
  for_each_problem([&](const Problem& p, const Floats& b) {
    Triads halves = p.a;
    for (int k = 0; k < p.a.nelt(); ++k) {
      // Diagonal preconditioners know the first entry only, so that is left whole.
      if (p.a.ia[k] == p.a.ja[k] && s().preconditioner == Solver::Preconditioner::kDiagonal) continue;
      halves.a[k] /= 4;
      halves.add(p.a.ia[k], p.a.ja[k], 3 * static_cast<double>(halves.a[k]));
    }
    const Outcome o = run(s(), p.a, b), repeated = run(s(), halves, b);
    EXPECT_EQ(repeated.ierr, 0);
    EXPECT_LE(relative_residual(p.a, b, repeated.x), 1.3e-4);
    EXPECT_TRUE(repeated.is_guarded);
    // The factors are those of the whole matrix; only A A^T has another diagonal.
    if (s().name != "SSDCGN") {
      EXPECT_LE(std::abs(repeated.iter - o.iter), 1 + o.iter / 10);
    }
    if (s().preconditioner == Solver::Preconditioner::kCholesky) {
      for (int i = 0; i < p.a.n; ++i) {
        const float pivot = o.rwork[o.iwork[4] - 1 + i];
        EXPECT_NEAR(repeated.rwork[repeated.iwork[4] - 1 + i], pivot, 1e-5 * pivot);
      }
    }
    if (!p.is_symmetric) return;
    const Outcome lower = run(s(), halves.lower(), b);
    EXPECT_LE(std::abs(lower.iter - repeated.iter), 1 + o.iter / 10);
    EXPECT_TRUE(lower.is_guarded);
  });
}

TEST(Solvers, CholeskyFactorsAreUsedAgain) {
  std::mt19937 random(44);
  for (const Triads& a : {grid(12, 0), grid(12, 0).lower()}) {
    const Floats b = right_hand_side(a, random_solution(a.n, random));
    const Floats c = right_hand_side(a, random_solution(a.n, random));
    const Outcome first = run_reusing(a, b, {});
    EXPECT_EQ(first.x, run(solver("SSICCG"), a, b).x);
    const Outcome second = run_reusing(first.matrix, c, {.ifact = 0}, &first);
    EXPECT_EQ(second.x, run(solver("SSICCG"), a, c).x);
    EXPECT_TRUE(first.is_guarded && second.is_guarded);
    EXPECT_EQ(second.iwork, first.iwork);
    // The factors are those of the first matrix, whatever the second is.
    Triads twice = first.matrix;
    for (float& e : twice.a) e *= 2;
    const Outcome kept = run_reusing(twice, c, {.ifact = 0}, &first);
    const std::ptrdiff_t pivots = first.iwork[4] - 1;
    EXPECT_TRUE(
        std::equal(first.rwork.begin() + pivots, first.rwork.begin() + pivots + a.n, kept.rwork.begin() + pivots));
    Floats half = second.x;
    for (float& e : half) e /= 2;
    EXPECT_EQ(kept.x, half);
  }
}

// What ERR is for ITOL = 2, from the diagonal that the driver leaves.
TEST(Solvers, ThePreconditionedTestIsThatOfThePreconditionedResidual) {
  std::mt19937 random(49);
  Triads a = grid(6, 5);
  for (int k = 0; k < a.nelt(); ++k) a.a[k] *= static_cast<float>(1 << a.ia[k] % 8);
  const Floats b = right_hand_side(a, random_solution(a.n, random)), start(a.n, 0.5F);
  for (const Solver& s : solvers()) {
    if (s.preconditioner != Solver::Preconditioner::kDiagonal || s.is_symmetric_only()) continue;
    for (const int itmax : {0, 3}) {
      const Outcome o = run(s, a, b, {.itol = 2, .tol = 1e-6F, .itmax = itmax, .nsave = 5}, start);
      Doubles r = multiply(a, to_double(o.x)), mb = to_double(b);
      for (int i = 0; i < a.n; ++i) {
        r[i] = (b[i] - r[i]) * o.rwork[i];
        mb[i] *= o.rwork[i];
      }
      EXPECT_NEAR(o.err, norm(r) / norm(mb), 1e-4 * o.err) << s.name << ", " << itmax << " steps";
    }
  }
}

// With ISYM the lower triangle says all. An entry above the diagonal counts for itself.
TEST(Solvers, OnlyEntriesBelowTheDiagonalAreMirrored) {
  Triads a = grid(3, 0).lower();
  a.add(2, 7, 0.5);
  const Floats b(9, 1.0F), start = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  Doubles r(9, 1.0);
  for (int k = 0; k < a.nelt(); ++k) {
    const int i = a.ia[k] - 1, j = a.ja[k] - 1;
    r[i] -= static_cast<double>(a.a[k]) * start[j];
    if (i > j) r[j] -= static_cast<double>(a.a[k]) * start[i];
  }
  for (const Solver& s : solvers()) {
    if (s.preconditioner != Solver::Preconditioner::kDiagonal) continue;
    EXPECT_NEAR(run(s, a, b, {.itmax = 0}, start).err, norm(r) / 3, 1e-4) << s.name;
  }
}

// Hosts align work arrays to four bytes only; these two have doubles in them.
TEST(Solvers, DoublesLieWhereTheWorkArrayLetsThem) {
  std::mt19937 random(47);
  for (int n = 1; n <= 6; ++n) {
    const Triads a = random_dominant(n, 0.5, 1.2, false, random);
    const Floats b = right_hand_side(a, random_solution(n, random));
    for (const char* name : {"SSDCGN", "SSLUCN"}) {
      const Outcome o = run(solver(name), a, b), shifted = run(solver(name), a, b, {.shifted = true});
      EXPECT_EQ(o.ierr, 0) << name << ", order " << n;
      EXPECT_EQ(shifted.x, o.x) << name << ", order " << n;
      EXPECT_TRUE(o.is_guarded && shifted.is_guarded) << name << ", order " << n;
    }
  }
}

TEST(Solvers, HeadersTellWhereThingsAre) {
  std::mt19937 random(45);
  const Triads a = grid(5, 0);
  const int n = a.n, entries = (a.nelt() - n) / 2;  // of a triangle without its diagonal
  const Floats b = right_hand_side(a, random_solution(n, random));
  for (const auto& [name, integers, reals] : {std::tuple("SSDCG", 11, 5 * n + 1),
                                              {"SSDBCG", 11, 8 * n + 1},
                                              {"SSJAC", 11, 4 * n + 1},
                                              {"SSDOMN", 11, 7 * n + 10 * (3 * n + 1) + 1},
                                              {"SSDGMR", 31, 2 + n * 16 + 10 * 13},
                                              {"SSILUR", 2 * entries + 4 * n + 13, 2 * entries + 4 * n + 1},
                                              {"SSICCG", entries + 2 * n + 12, entries + 6 * n + 1},
                                              {"SSGS", entries + n + 12, entries + 3 * n + 1}}) {
    const Integers header = run(solver(name), a, b).iwork;
    EXPECT_EQ(header[8], integers) << name;
    EXPECT_EQ(header[9], reals) << name;
  }
  const Outcome diagonal = run(solver("SSDCG"), a, b);
  EXPECT_EQ(diagonal.iwork[3], 1);
  EXPECT_EQ(Floats(diagonal.rwork.begin(), diagonal.rwork.begin() + n), Floats(n, 0.25F));
  for (const auto& [name, count] : {std::pair("SSICCG", entries + n), {"SSGS", entries}}) {
    const Integers header = run(solver(name), a, b).iwork;
    EXPECT_EQ(Integers(header.begin(), header.begin() + 5), (Integers{count, 11, 11 + count, 1, count + 1})) << name;
  }
  // Of both factors: where the columns are, the starts of the rows, and the values.
  const Outcome lu = run(solver("SSLUBC"), a, b);
  for (const auto& [columns, starts, values, first] : {std::tuple(0, 1, 4, 1), {2, 3, 6, entries + n + 1}}) {
    const auto at = [&lu](int word) { return lu.iwork.begin() + lu.iwork[static_cast<std::size_t>(word)] - 1; };
    EXPECT_EQ(*at(starts), 1);
    EXPECT_EQ(at(starts)[n], entries + 1);
    EXPECT_TRUE(std::all_of(at(columns), at(columns) + entries, [n](int c) { return c >= 1 && c <= n; }));
    EXPECT_EQ(lu.iwork[static_cast<std::size_t>(values)], first);
  }
  EXPECT_EQ(lu.iwork[5], entries + 1);
  // A^2's diagonal, of whole matrices and of lower triangles.
  Triads rows{2, {1, 2, 2}, {1, 1, 2}, {4, 2, 8}};
  for (const bool is_lower : {true, false}) {
    rows.isym = is_lower ? 1 : 0;
    const Outcome normal = run(solver("SSDCGN"), rows, {1, 1});
    EXPECT_EQ(Floats(normal.rwork.begin(), normal.rwork.begin() + 2), (Floats{is_lower ? 0.05F : 0.0625F, 1.0F / 68}));
  }
}

// No single-precision x is that good: the run ends all the same with one that is nearly as good as any, and ERR says
// how good it is.
TEST(Solvers, ATaskThatIsTooHardComesToAnEnd) {
  const Triads a = grid(100, 0);
  const Floats b(a.n, 1.0F);
  for (const Solver& s : solvers()) {
    if (s.iteration == Iteration::kCg || s.iteration == Iteration::kRefinement) continue;
    const Outcome o = run(s, a, b, {.tol = 0, .itmax = 20000});
    EXPECT_EQ(o.ierr, o.err <= o.tol ? 4 : 2) << s.name;
    EXPECT_TRUE(o.ierr == 4 || o.iter == 20001) << s.name;
    EXPECT_LE(o.err, 2e-4) << s.name;
    EXPECT_NEAR(relative_residual(a, b, o.x), o.err, 0.15 * o.err) << s.name;
  }
}

// Rows of very different sizes: rounding leaves some of these far from the tolerance, and none may call that converged.
TEST(Solvers, ConvergenceIsWhatPassesTheTest) {
  std::mt19937 random(48);
  std::uniform_real_distribution<double> exponent(-4.0, 4.0);
  for (int round = 0; round < 6; ++round) {
    Triads a = grid(round < 3 ? 12 : 30, round % 3 * 20);
    Doubles scale(a.n);
    for (double& e : scale) e = std::pow(10.0, exponent(random));
    for (int k = 0; k < a.nelt(); ++k) a.a[k] *= static_cast<float>(scale[a.ia[k] - 1]);
    const Floats b = right_hand_side(a, random_solution(a.n, random));
    for (const Solver& s : solvers()) {
      for (const float tol : {1e-4F, 0.0F}) {
        const Outcome o = run(s, a, b, {.tol = tol, .itmax = 3000});
        const bool has_converged = o.ierr == 0 || o.ierr == 4;
        EXPECT_EQ(has_converged, o.err <= o.tol) << s.name << ": IERR " << o.ierr << ", ERR " << o.err;
      }
    }
  }
}

// Powers of two change no digit, and squares of what lies far from 1 must not be noticed.
TEST_P(EverySolver, TakesEveryScale) {
  for_each_problem([&](const Problem& p, const Floats& b) {
    const Outcome o = run(s(), p.a, b);
    for (const auto& [of_a, of_b] : {std::pair(66, 0), {-66, 0}, {0, 66}, {0, -66}, {66, 66}, {-66, -66}, {66, -10}}) {
      SCOPED_TRACE("A 2^" + std::to_string(of_a) + ", B 2^" + std::to_string(of_b));
      Triads a = p.a;
      for (float& e : a.a) e = std::ldexp(e, of_a);
      Floats scaled_b = b, x = o.x;
      for (float& e : scaled_b) e = std::ldexp(e, of_b);
      for (float& e : x) e = std::ldexp(e, of_b - of_a);
      const Outcome scaled = run(s(), a, scaled_b);
      EXPECT_EQ(scaled.ierr, 0);
      EXPECT_EQ(scaled.iter, o.iter);
      EXPECT_EQ(scaled.x, x);
    }
  });
}

// GMRES that never restarts and Orthomin that forgets nothing make the same residuals least over the same spaces; GMRES
// that restarts every step is Orthomin without memory.
TEST(Solvers, GmresAndOrthominAgreeWhereTheyAreTheSame) {
  std::mt19937 random(46);
  for (const char* family : {"SSD", "SSLU"}) {
    const bool is_diagonal = family == std::string("SSD");
    const Solver& gmres = solver(is_diagonal ? "SSDGMR" : "SSLUGM");
    const Solver& orthomin = solver(is_diagonal ? "SSDOMN" : "SSLUOM");
    const Triads a = grid(14, 3);
    const Floats b = right_hand_side(a, random_solution(a.n, random));
    const Outcome g = run(gmres, a, b, {.nsave = 150}), o = run(orthomin, a, b, {.nsave = 150});
    EXPECT_EQ(g.ierr, 0);
    EXPECT_EQ(o.ierr, 0);
    EXPECT_LT(g.iter, 150);
    EXPECT_NEAR(g.iter, o.iter, 1) << family;
    // Of a symmetric A with a constant diagonal, Orthomin needs but one direction.
    const Triads symmetric = grid(14, 0);
    const int directions = is_diagonal ? 1 : 150;
    EXPECT_NEAR(run(orthomin, symmetric, b, {.nsave = directions}).iter, run(gmres, symmetric, b, {.nsave = 150}).iter,
                2)
        << family;
    const Outcome forgetful = run(orthomin, a, b, {.nsave = 0});
    EXPECT_EQ(forgetful.ierr, 0);
    EXPECT_GT(forgetful.iter, o.iter);
    EXPECT_TRUE(forgetful.is_guarded);
    if (is_diagonal) continue;
    EXPECT_NEAR(run(gmres, a, b, {.nsave = 1}).iter, forgetful.iter, 1);
  }
}

}  // namespace
}  // namespace slap_test
