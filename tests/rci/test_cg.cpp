// Conjugate gradients, for one and for several right-hand sides, driven as a host does.
#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

// Residuals of the published example, from ones and from zeros.
const Vector kSolution{1, 0, 1, 0, 1, 0, 1, 0};
const Vector kFromOnes{444, 578.6901467, 374.6999443, 17.14862875, 103.1976448, 3.082386377, 288.5519540, 0.2587329568,
                       0};
const Vector kFromZeros{
    1073, 165.7471056, 246.7620135, 10.76123174, 4.508925637, 1.076334291, 0.09102747566, 1.856972798, 0};

TEST(Cg, PublishedExampleFromOnesAndFromZeros) {
  const Csr A = indefinite8();
  const Vector b = A * kSolution;
  ASSERT_EQ(b, (Vector{15, 10, 2, 9, 10, 3, 23, 5}));
  for (const double start : {1.0, 0.0}) {
    CgHost host(A, b, Vector(8, start));
    host.test_residual(1e-5);
    ASSERT_EQ(host.check(), 0);
    EXPECT_EQ(host.run(), 0);
    EXPECT_EQ(host.itercount(), 8);
    EXPECT_EQ(host.requests, "111111111");
    expect_history(host.residuals, start == 1.0 ? kFromOnes : kFromZeros, 1e-18);
    expect_near(host.x, kSolution, 1e-10);
    EXPECT_TRUE(host.intact());
  }
  CgHost early(A, b, Vector(8, 0.0));
  early.test_residual(1e-3);
  EXPECT_EQ(early.run(), 0);
  EXPECT_EQ(early.itercount(), 6) << "1.0763 does not pass 1e-3 * 1073, 0.0910 does";
}

TEST(Cg, Preconditioned) {
  const Csr A = indefinite8();
  CgHost host(A, A * kSolution, Vector(8, 1.0), true);
  host.test_residual(1e-5);
  host.precondition = jacobi(A);
  EXPECT_EQ(host.run(), 0);
  EXPECT_EQ(host.step(), 0) << "the answer stands when the host calls again";
  EXPECT_EQ(host.itercount(), 8);
  EXPECT_EQ(host.requests, "13131313131313131");
  expect_history(host.residuals,
                 {444, 1336.17624, 238.291727, 238.518056, 166.223082, 13.9070891, 7.24487116, 0.171965766, 0}, 1e-18);
}

// The residual test is made for the start vector too, and an exact start is told without a step.
TEST(Cg, GoodStarts) {
  const Csr A = spd4();
  const Vector solution{1, 2, 3, 4}, b = A * solution;
  for (const double distance : {0.0, 1e-6}) {
    Vector start = solution;
    start[0] += distance;
    CgHost host(A, b, start);
    host.test_residual(0.0);
    host.dpar[1] = 1e-10;
    EXPECT_EQ(host.run(), 0);
    EXPECT_EQ(host.requests, "1");
    EXPECT_EQ(host.itercount(), 0);
    EXPECT_EQ(host.x, start);
  }
}

TEST(Cg, EndsOfARun) {
  const Csr A = spd4(), longer = indefinite8(), swap = sparse({{0, 1}, {1, 0}});
  const Vector b{1, 2, 3, 4}, zeros(4, 0.0);

  CgHost limited(longer, Vector(8, 1.0), Vector(8, 0.0));
  limited.test_residual(1e-20);
  limited.ipar[4] = 2;
  EXPECT_EQ(limited.run(), -1);
  EXPECT_EQ(limited.itercount(), 2);
  limited.ipar[4] = 8;
  EXPECT_EQ(limited.run(), 0) << "a host that raises the limit goes on";

  CgHost limit_only(A, b, zeros);
  limit_only.ipar[4] = 1;
  limit_only.ipar[9] = 0;
  EXPECT_EQ(limit_only.run(), 0) << "the limit alone is no failure";
  EXPECT_EQ(limit_only.itercount(), 1);

  CgHost judged(A, b, zeros);
  int asked = 0;
  judged.satisfied = [&] { return ++asked == 2; };
  judged.run();
  EXPECT_EQ(judged.requests, "11212");
  EXPECT_LT(judged.true_residual(), 1e-12);

  CgHost exact(A, A * Vector(4, 1.0), Vector(4, 1.0));
  EXPECT_EQ(exact.run(), -2);
  EXPECT_EQ(exact.requests, "12") << "an exact start is shown to the host once";
  EXPECT_EQ(exact.step(), -2);

  CgHost without_curvature(swap, {1, 0}, {0, 0});
  EXPECT_EQ(without_curvature.run(), -2);
  EXPECT_EQ(without_curvature.step(), -2);
}

// A host that fills ipar itself, without INIT, leaves anything in the reserved entries; and it may solve once more.
TEST(CgMany, FilledByTheHost) {
  const Csr A = spd4();
  ManyHost host(A, {1, 2, 3, 4, 4, 3, 2, 1}, Vector(8, 0.0));
  for (std::size_t i = 11; i < host.ipar.size(); ++i) host.ipar[i] = 123456;
  for (std::size_t i = 8; i < host.dpar.size(); ++i) host.dpar[i] = std::nan("");
  host.test_residual(1e-6);
  EXPECT_EQ(host.run(), 0);
  host.ipar[2] = 1;
  host.ipar[3] = 0;
  std::fill(host.x.begin(), host.x.end(), 0.0);
  EXPECT_EQ(host.run(), 0);
  for (const int k : {0, 4}) EXPECT_LT(residual_norm(A, host.b.data() + k, host.x.data() + k), 1e-2);
}

// A host whose test is never content gets on to the next right-hand side, whichever of the starts are exact.
TEST(CgMany, ExactStarts) {
  const Csr A = spd4();
  const Vector solution{1, 2, 3, 4}, b = A * solution, zeros(4, 0.0);
  for (int exact = 0; exact < 8; ++exact) {
    Vector rhs, start, expected;
    for (int k = 0; k < 3; ++k) {
      rhs = joined(rhs, b);
      start = joined(start, ((exact >> k) & 1) != 0 ? solution : zeros);
      expected = joined(expected, solution);
    }
    ManyHost host(A, rhs, start);
    host.ipar[4] = 50;
    const int status = host.run(1000);
    EXPECT_LE(status, 0) << host.requests.substr(0, 40);
    EXPECT_EQ(host.ipar[2], 3);
    expect_near(host.x, expected, 1e-12);
    if (exact == 7) {
      EXPECT_EQ(status, 0);
      EXPECT_EQ(host.requests, "111");
    }
  }
}

}  // namespace
}  // namespace rci_test
