// Matrices that break the rules: whatever happens, nothing is written or read outside the caller's arrays (the
// sanitizers see that on linux), and the status is one of the published ones.
#include "tests/slap/slap_host.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

Options few_iterations(int itol) { return {.itol = itol, .itmax = 5, .nsave = 3}; }

enum class Convergence { kMayBe, kCannotBe };

void expect_survival(const Triads& t, const Floats& b, const std::string& what,
                     Convergence convergence = Convergence::kMayBe) {
  for (const Solver& s : solvers()) {
    for (const int itol : {1, 2, 11}) {
      const Outcome o = run(s, t, b, few_iterations(itol));
      EXPECT_TRUE(o.is_guarded) << s.name << ": " << what;
      const bool claims = o.ierr == 0 || o.ierr == 4;
      EXPECT_TRUE(claims || (o.ierr >= 2 && o.ierr <= 6)) << s.name << ": " << o.ierr << ", " << what;
      EXPECT_EQ(claims, o.ierr != 3 && o.err <= o.tol) << s.name << ": ERR " << o.err << ", " << what;
      if (convergence == Convergence::kMayBe) continue;
      EXPECT_FALSE(claims) << s.name << ": " << what;
      if (s.iteration != Solver::Iteration::kRefinement) continue;
      EXPECT_EQ(o.ierr, 2) << s.name << " knows no breakdown: " << what;
      EXPECT_EQ(o.iter, 6) << s.name << ": " << what;
    }
  }
}

TEST(DamagedInput, RandomTriads) {
  std::mt19937 random(61);
  for (int round = 0; round < 200; ++round) {
    Triads t;
    t.n = 1 + round % 9;
    t.isym = round % 2;
    // Columns and rows within the matrix, or some of them outside.
    const int outside = round % 5 == 0 ? 2 : 0;
    std::uniform_int_distribution<int> index(1 - outside, t.n + outside), entry(-2, 2), count(1, 3 * t.n);
    if (round % 3 != 0) {
      for (int j = 1; j <= t.n; ++j) t.add(index(random), j, entry(random));
    }
    for (int k = count(random); k > 0; --k) t.add(index(random), index(random), entry(random));
    Floats b(t.n);
    for (float& e : b) e = static_cast<float>(entry(random));
    expect_survival(t, b, "round " + std::to_string(round));
  }
}

// Marked as converted, with starts or rows that lead elsewhere.
TEST(DamagedInput, ColumnsThatAreNone) {
  std::mt19937 random(62);
  constexpr int kFar = std::numeric_limits<int>::max();
  for (int round = 0; round < 100; ++round) {
    Triads t = random_dominant(6, 0.4, 1.0, false, random).converted();
    std::uniform_int_distribution<int> place(0, t.n - 1), value(-3, t.nelt() + 3);
    const int damage = round % 4;
    if (damage == 0) t.ja[place(random)] = value(random);
    if (damage == 1) t.ja[place(random)] = round % 8 < 4 ? kFar : -kFar;
    if (damage == 2) t.ia[place(random)] = round % 8 < 4 ? kFar : 0;
    if (damage == 3) t.ja[1 + place(random) / 2] = t.ja[place(random) / 2];
    for (const Solver& s : solvers()) {
      const Floats b(6, 1.0F);
      // The lengths count what is stored, so the arrays are as long as a host can make them.
      const Outcome o = run(s, t, b, few_iterations(1));
      EXPECT_TRUE(o.is_guarded) << s.name << ": round " << round;
      if (damage == 1 || damage == 2) {
        EXPECT_EQ(o.ierr, 3) << s.name << ": round " << round;
      }
    }
  }
}

// Nothing may be folded into a neighbour: the host would get the solution of another system, and its own counts of the
// triangles would be too small for that.
TEST(DamagedInput, ColumnsOutsideAndEmptyColumns) {
  std::mt19937 random(63);
  const Triads good = random_dominant(9, 0.5, 1.2, false, random);
  const Floats b(9, 1.0F), start(9, 7.0F);
  for (const int column : {0, -1, 10, 11, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    Triads t = good;
    t.ja[4] = column;
    for (const Solver& s : solvers()) {
      const Outcome o = run(s, t, b, {}, start);
      EXPECT_EQ(o.ierr, 3) << s.name << ": column " << column;
      EXPECT_EQ(o.x, start) << s.name;
      EXPECT_TRUE(o.is_guarded) << s.name;
    }
    const Triads left = t.converted();
    EXPECT_EQ(Integers(left.ja.begin(), left.ja.begin() + t.nelt()), t.ja);
    EXPECT_EQ(left.ia, t.ia);
  }
  for (int empty = 1; empty <= 9; ++empty) {
    Triads t;
    t.n = 9;
    for (int k = 0; k < good.nelt(); ++k) {
      if (good.ja[k] != empty) t.add(good.ia[k], good.ja[k], good.a[k]);
    }
    for (const Solver& s : solvers()) {
      const Outcome o = run(s, t, b, {}, start);
      EXPECT_EQ(o.ierr, 3) << s.name << ": column " << empty;
      EXPECT_EQ(o.x, start) << s.name;
      EXPECT_TRUE(o.is_guarded) << s.name;
      EXPECT_NE(o.matrix.ja[9], t.nelt() + 1) << "a further call would take it for converted";
    }
  }
}

TEST(DamagedInput, ValuesThatAreNoNumbers) {
  for (const float bad : {kNan, std::numeric_limits<float>::infinity()}) {
    for (const int isym : {0, 1}) {
      for (const int at : {0, 1, 5}) {
        Triads t = grid(3, 0);
        if (isym != 0) t = t.lower();
        t.a[at] = bad;
        expect_survival(t, Floats(9, 1.0F), "entry " + std::to_string(at), Convergence::kCannotBe);
      }
    }
    expect_survival(grid(3, 5), {1, 1, 1, bad, 1, 1, 1, 1, 1}, "right-hand side", Convergence::kCannotBe);
  }
  const Outcome o = run(solver("SSDCG"), grid(3, 0), {1, 1, kNan, 1, 1, 1, 1, 1, 1}, few_iterations(1));
  EXPECT_EQ(o.ierr, 2);
  EXPECT_EQ(o.iter, 6);
}

}  // namespace
}  // namespace slap_test
