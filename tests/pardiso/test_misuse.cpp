// What a host may get wrong: the code that is published for it, no crash, nothing lost, nothing changed.
#include <cstring>

#include "tests/pardiso/systems.hpp"

namespace pardiso_test {
namespace {

constexpr int kPhases[] = {11, 12, 13, 22, 23, 33, 331, 332, 333, 0, -1};

// The state of a handle: what was done last that counts.
enum State { kEmpty, kAnalysed, kFactored };

int expected_error(State state, int phase) {
  if (phase == 0 || phase == -1 || phase / 10 == 1) return 0;
  if (phase == 22 || phase == 23) return state == kEmpty ? -1 : 0;
  return state == kFactored ? 0 : -1;
}
State next_state(State state, int phase) {
  if (expected_error(state, phase) != 0) return state;
  if (phase == -1) return kEmpty;
  if (phase == 0) return state == kEmpty ? kEmpty : kAnalysed;
  if (phase == 11) return kAnalysed;
  return kFactored;
}

// The smallest systems are systems; another one than was analysed is none.
TEST(Misuse, OrdersFromOneOn) {
  for (const int mtype : {1, 2, -2, 3, 4, -4, 6, 11, 13}) {
    in_both_precisions(mtype, [mtype]<class T>() {
      Host<T> host(Matrix{mtype, {1, 2}, {1}, {4}});
      EXPECT_EQ(host.call(13), 0) << mtype;
      EXPECT_EQ(host.x[0], from<T>(0.25)) << mtype;
    });
  }
  Host<double> host(unsymmetric8());
  ASSERT_EQ(host.call(12), 0);
  for (const int n : {7, 9, 0, -8}) {
    host.n = n;
    for (const int phase : {22, 33}) EXPECT_EQ(host.call(phase), -1) << n;
  }
  host.n = 8;
  EXPECT_EQ(host.call(33), 0);
}

// Every sequence of three phases.
TEST(Misuse, PhasesInAnyOrder) {
  for (const int first : kPhases) {
    for (const int second : kPhases) {
      for (const int third : kPhases) {
        Host<double> host(unsymmetric8());
        State state = kEmpty;
        for (const int phase : {first, second, third}) {
          EXPECT_EQ(host.call(phase), expected_error(state, phase)) << first << ", " << second << ", " << third;
          state = next_state(state, phase);
        }
        EXPECT_EQ(host.release(), 0);
        for (const void* word : host.pt) EXPECT_EQ(word, nullptr);
        EXPECT_EQ(host.release(), 0);
      }
    }
  }
}

TEST(Misuse, WrongNumbers) {
  for (const int phase : {11, 12, 13}) {
    const auto with = [phase](auto change) {
      Host<double> host(unsymmetric8());
      change(host);
      const auto iparm = host.iparm;
      const auto b = host.b;
      EXPECT_EQ(host.call(phase), -1);
      for (const void* word : host.pt) EXPECT_EQ(word, nullptr);
      EXPECT_EQ(host.iparm, iparm);
      EXPECT_EQ(host.b, b);
    };
    for (const int mtype : {0, 5, 7, 12, 14, -1, -3, -6, -11}) with([mtype](auto& host) { host.mtype = mtype; });
    for (const int n : {0, -1, std::numeric_limits<int>::min()}) with([n](auto& host) { host.n = n; });
    for (const int mnum : {0, -1, 2}) with([mnum](auto& host) { host.mnum = mnum; });
    with([](auto& host) { host.maxfct = 0; });
    with([](auto& host) { host.cell(35) = 1; });  // ia[0] is 1
    for (const std::size_t cell : {31, 36, 60}) {
      for (const int value : {99, -1}) with([=](auto& host) { host.cell(cell) = value; });
    }
    with([](auto& host) { host.cell(5) = host.cell(31) = 1; });
    with([](auto& host) { host.cell(36) = host.cell(31) = 1; });
    with([](auto& host) { host.cell(5) = 1; });  // perm holds zeros
  }
  // Read by the stage that they are about: the factorization, the solution.
  const auto is_refused_by = [](const std::vector<int>& refusing, std::size_t cell, int value) {
    for (const int phase : {11, 22, 33, 13, 23, 331}) {
      Host<double> host(indefinite8());
      ASSERT_EQ(host.call(12), 0);
      host.cell(cell) = value;
      const bool is_refused = std::find(refusing.begin(), refusing.end(), phase) != refusing.end();
      EXPECT_EQ(host.call(phase), is_refused ? -1 : 0) << "iparm(" << cell << ") = " << value << ", phase " << phase;
    }
  };
  for (const int value : {-1, 4}) is_refused_by({22, 13, 23}, 21, value);
  for (const int value : {-1, 3}) is_refused_by({33, 13, 23, 331}, 12, value);
  for (const int value : {-1, 63, 62}) is_refused_by({33, 13, 23, 331}, 4, value);  // 62: CG needs a definite matrix
  Host<double> host(unsymmetric8());
  for (const int phase : {1, 2, 3, 10, 14, 21, 32, 34, 44, 111, 330, 334, -2, 1000, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(host.call(phase), -1) << phase;
  }
  ASSERT_EQ(host.call(12), 0);
  for (const int nrhs : {0, -1, std::numeric_limits<int>::min()}) {
    host.nrhs = nrhs;
    EXPECT_EQ(host.call(33), -1);
    EXPECT_EQ(host.call(22), 0);  // which does not read it
  }
}

TEST(Misuse, NullWhereItReads) {
  const std::pair<int, std::vector<int>> missing[] = {
      {11, {1, 2, 3, 4, 6, 7, 8, 9, 12}},  // values for matching and scaling
      {22, {1, 2, 3, 4, 6, 7, 12}},
      {33, {1, 2, 3, 4, 6, 11, 12, 14, 15}},
      {0, {3}}};
  for (const auto& [phase, positions] : missing) {
    for (const int position : positions) {
      Host<double> host(unsymmetric8());
      ASSERT_EQ(host.call(12), 0);
      const auto at = [missed = position](int place, auto* argument) { return place == missed ? nullptr : argument; };
      const std::int32_t wanted = phase;
      std::int32_t error = 77;
      PARDISO(at(1, host.pt.data()), at(2, &host.maxfct), at(3, &host.mnum), at(4, &host.mtype), &wanted,
              at(6, &host.n), at(7, host.a.data()), at(8, host.ia.data()), at(9, host.ja.data()), host.perm.data(),
              at(11, &host.nrhs), at(12, host.iparm.data()), &host.msglvl, at(14, host.b.data()), at(15, host.x.data()),
              &error);
      EXPECT_EQ(error, -1) << "phase " << phase << ", argument " << position;
      EXPECT_EQ(host.call(33), 0) << "the handle is as it was";
    }
  }
  const std::int32_t release = -1;
  PARDISO(nullptr, nullptr, nullptr, nullptr, &release, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
          nullptr, nullptr, nullptr, nullptr);
  sPARDISOINIT(nullptr, nullptr, nullptr);
  pardiso_getdiag(nullptr, nullptr, nullptr, &release, nullptr);
}

TEST(Misuse, ForeignHandles) {
  Host<double> host(unsymmetric8());
  ASSERT_EQ(host.call(12), 0);
  const auto ours = host.pt;
  const auto with = [&](auto change) {
    change(host.pt);
    const auto given = host.pt;
    std::int32_t error = 0;
    std::array<double, 8> df{};
    for (const int phase : kPhases) EXPECT_EQ(host.call(phase), -1) << phase;
    pardiso_getdiag(host.pt.data(), df.data(), nullptr, &host.mnum, &error);
    EXPECT_EQ(error, -1);
    EXPECT_EQ(host.pt, given);
    host.pt = ours;
  };
  with([](auto& pt) { std::memset(pt.data(), 0xa5, sizeof pt); });
  with([](auto& pt) { std::memset(pt.data(), 1, sizeof(void*)); });
  with([&](auto& pt) { pt[0] = &host; });
  with([](auto& pt) { pt[0] = nullptr, pt[5] = &pt; });
  with([](auto& pt) { pt[63] = pt[0]; });
  EXPECT_EQ(host.call(33), 0);
  // A copy of a handle that is freed.
  EXPECT_EQ(host.release(), 0);
  host.pt = ours;
  for (const int phase : kPhases) EXPECT_EQ(host.call(phase), -1) << phase;
}

TEST(Misuse, ArgumentsThatChangeBetweenPhases) {
  const auto changed = [](auto change) {
    Host<double> host(matrix_of(quorin::test::convection_diffusion(4, 1.0), 11));
    host.cell(8) = 1;  // phase 33 reads the matrix
    ASSERT_EQ(host.call(12), 0);
    const auto ia = host.ia, ja = host.ja;
    const auto iparm = host.iparm;
    const auto n = host.n, mtype = host.mtype;
    change(host);
    const auto x = host.x;
    for (const int phase : {22, 33}) {
      EXPECT_EQ(host.call(phase), -1) << phase;
    }
    EXPECT_EQ(host.x, x);
    host.ia = ia;
    host.ja = ja;
    host.iparm = iparm;
    host.n = n;
    host.mtype = mtype;
    EXPECT_EQ(host.call(33), 0);
  };
  changed([](auto& host) { host.n = 15; });
  changed([](auto& host) { host.n = 17; });
  changed([](auto& host) { host.mtype = 1; });
  changed([](auto& host) { ++host.ia[16]; });
  changed([](auto& host) { --host.ia[16]; });
  changed([](auto& host) { ++host.ia[3]; });
  changed([](auto& host) { std::swap(host.ja[3], host.ja[4]); });
  changed([](auto& host) { host.ja[7] = -5; });
  changed([](auto& host) { host.ia[0] = 0; });
  changed([](auto& host) { host.cell(28) = 1; });
  changed([](auto& host) { host.cell(35) = 1; });
  changed([](auto& host) { host.cell(31) = 1; });
  changed([](auto& host) { host.cell(36) = 1; });
  changed([](auto& host) { host.cell(37) = 2; });
  changed([](auto& host) { host.cell(1) = 0, host.cell(28) = 1, host.cell(35) = 1, host.ia[0] = 0; });
}

TEST(Misuse, FewerFactorizationsThanThereAre) {
  Host<double> host(unsymmetric8());
  host.maxfct = 4;
  host.mnum = 3;
  ASSERT_EQ(host.call(12), 0);
  host.mnum = 1;
  host.maxfct = 2;
  EXPECT_EQ(host.call(22), -1);
  host.maxfct = 10;
  host.mnum = 9;
  EXPECT_EQ(host.call(22), 0);
}

// --- The matrix ------------------------------------------------------------------------------------------------------

TEST(Misuse, RowsThatAreNoPattern) {
  for (const int checker : {0, 1}) {
    const auto with = [checker](auto change) {
      Host<double> host(unsymmetric8());
      host.cell(27) = checker;
      change(host);
      EXPECT_EQ(host.call(11), -1);
    };
    with([](auto& host) { host.ia[0] = 0; });
    with([](auto& host) { host.ia[0] = 2; });
    with([](auto& host) { host.ia[4] = 0; });
    with([](auto& host) { host.ia[4] = std::numeric_limits<int>::min(); });
    with([](auto& host) { std::swap(host.ia[4], host.ia[5]); });
    with([](auto& host) { host.ja[9] = 0; });
    with([](auto& host) { host.ja[9] = 9; });
    with([](auto& host) { host.ja[9] = std::numeric_limits<int>::min(); });
    with([](auto& host) { host.ja[9] = std::numeric_limits<int>::max(); });
  }
}

// What the checker refuses and what is put right without it.
TEST(Misuse, RowsThatWantToBePutRight) {
  struct Case {
    const char* name;
    Matrix given, meant;
  };
  const std::vector<Case> cases = {
      {"unsorted", {11, {1, 3, 5}, {2, 1, 2, 1}, {2, 4, 5, 1}}, {11, {1, 3, 5}, {1, 2, 1, 2}, {4, 2, 1, 5}}},
      {"repeated", {11, {1, 4, 6}, {1, 2, 1, 1, 2}, {1, 2, 3, 1, 5}}, {11, {1, 3, 5}, {1, 2, 1, 2}, {4, 2, 1, 5}}},
      {"repeated, symmetric", {2, {1, 4, 6}, {1, 2, 2, 2, 2}, {4, 1, 1, 2, 3}}, {2, {1, 3, 4}, {1, 2, 2}, {4, 2, 5}}},
      {"no diagonal", {-2, {1, 2, 2}, {2}, {3}}, {-2, {1, 3, 4}, {1, 2, 2}, {0, 3, 0}}},
      {"no diagonal, structurally symmetric",
       {1, {1, 2, 3}, {2, 1}, {3, 4}},
       {1, {1, 3, 5}, {1, 2, 1, 2}, {0, 3, 4, 0}}},
      {"lower entry", {2, {1, 3, 5}, {1, 2, 1, 2}, {4, 2, 77, 5}}, {2, {1, 3, 4}, {1, 2, 2}, {4, 2, 5}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Host<double> strict(c.given), lenient(c.given), meant(c.meant);
    strict.cell(27) = 1;
    EXPECT_EQ(strict.call(11), -1);
    ASSERT_EQ(lenient.call(13), 0);
    meant.cell(27) = 1;
    ASSERT_EQ(meant.call(13), 0);
    for (std::size_t i = 0; i < 2; ++i) EXPECT_NEAR(lenient.x[i], meant.x[i], 1e-15) << i;
    lenient.cell(8) = 3;
    EXPECT_EQ(lenient.call(33), 0);
    for (std::size_t i = 0; i < 2; ++i) EXPECT_NEAR(lenient.x[i], meant.x[i], 1e-15) << i;
  }
  // Unsymmetric kinds need no diagonal.
  Host<double> host(unsymmetric8());
  host.cell(27) = 1;
  EXPECT_EQ(host.call(13), 0);
}

TEST(Misuse, SingularMatrices) {
  // A diagonal matrix with a zero.
  for (const int mtype : {1, -2, 11}) {
    Host<double> diagonal(Matrix{mtype, {1, 2, 3, 4}, {1, 2, 3}, {1, 0, 3}});
    EXPECT_EQ(diagonal.call(13), -7) << mtype;
  }
  Host<double> definite(Matrix{2, {1, 2, 3, 4}, {1, 2, 3}, {1, 0, 3}});
  EXPECT_EQ(definite.call(12), -4);
  EXPECT_EQ(definite.cell(30), 2);
  // One of zeros, with nothing to perturb by.
  for (const int mtype : {1, -2, 11}) {
    Host<double> zero(Matrix{mtype, {1, 3, 5}, {1, 2, 1, 2}, {0, 0, 0, 0}});
    zero.cell(11) = zero.cell(13) = 0;
    EXPECT_EQ(zero.call(12), -4) << mtype;
  }
}

TEST(Misuse, MatricesThatAreNotPositiveDefinite) {
  // Fails in the last equation in any order but where that comes first.
  Host<double> host(with_type(indefinite5(), 2));
  EXPECT_EQ(host.call(12), -4);
  EXPECT_GE(host.cell(30), 1);
  EXPECT_LE(host.cell(30), 5);
  EXPECT_EQ(host.call(33), -1);
  host.a = {9, -1, -3, 5, 9, 6, 4, 17, 5};
  EXPECT_EQ(host.call(23), 0);  // the analysis is still there
  EXPECT_EQ(host.cell(30), 0);
}

TEST(Misuse, NumbersThatAreNotFinite) {
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    for (const Matrix& A : {unsymmetric8(), definite8(), indefinite8(), structurally_symmetric5()}) {
      Host<double> host(A);
      host.a[7] = bad;
      const int expected_analysis = A.mtype == 11 ? -4 : 0;
      EXPECT_EQ(host.call(11), expected_analysis) << A.mtype;
      if (expected_analysis == 0) {
        EXPECT_EQ(host.call(22), -4) << A.mtype;
      }
      host.a[7] = 8.0;
      EXPECT_EQ(host.call(13), 0) << A.mtype;
      host.b[2] = bad;
      host.cell(8) = 2;
      EXPECT_EQ(host.call(33), -4) << A.mtype;
    }
  }
}

// A second analysis begins from nothing.
TEST(Misuse, AnalysingAgain) {
  Host<double> host(unsymmetric8());
  ASSERT_EQ(host.call(12), 0);
  ASSERT_EQ(host.call(11), 0);
  EXPECT_EQ(host.call(33), -1);
  host.ia[0] = 7;  // refused, and nothing is lost
  EXPECT_EQ(host.call(11), -1);
  host.ia[0] = 1;
  EXPECT_EQ(host.call(23), 0);
}

}  // namespace
}  // namespace pardiso_test
