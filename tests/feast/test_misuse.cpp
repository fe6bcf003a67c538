// Every status for a wrong call, in the order of the checks, with results untouched; damaged matrices and memory.
#include "quorin/feast.h"
#include "tests/feast/feast_host.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/standard.hpp"

namespace feast_test {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN(), kInfinity = std::numeric_limits<float>::infinity();

// A call of each routine through one list of arguments, which a test then spoils.
struct Spoiled {
  bool is_complex, is_generalized;
  char uplo = 'L';
  std::int32_t n = 5;
  std::vector<float> a, b;
  std::vector<std::int32_t> ia, ja, ib, jb, fpm = std::vector<std::int32_t>(128, 0);
  float epsout = -7, emin = 0.5F, emax = 3;
  std::int32_t loop = -7, m0 = 5, m = -7, info = -7;
  std::vector<float> e = std::vector<float>(5, -7), res = e, x = std::vector<float>(50, -7);
  int missing = 0;  // the position of the argument that is null

  Spoiled(bool complex, bool generalized) : is_complex(complex), is_generalized(generalized) {
    const Csr<float> A = csr<float>(second_difference(5), 'L'), B = csr<float>(diagonal({1, 2, 1, 2, 1}), 'L');
    ia = A.starts;
    ja = A.columns;
    ib = B.starts;
    jb = B.columns;
    a = values(A.values);
    b = values(B.values);
    feastinit_32f(fpm.data());
  }
  std::vector<float> values(const std::vector<float>& real) const {
    if (!is_complex) return real;
    std::vector<float> result;
    for (const float value : real) result.insert(result.end(), {value, 0});
    return result;
  }
  // Position of an argument behind those of the matrices.
  int position(int of_standard) const { return of_standard + (is_generalized && of_standard > 5 ? 3 : 0); }

  int run() {
    is_complex ? run_as<quorin_complex>(cfeast_hcsrev, cfeast_hcsrgv) : run_as<float>(sfeast_scsrev, sfeast_scsrgv);
    return info;
  }
  template <class T, class Standard, class Generalized>
  void run_as(Standard* standard, Generalized* generalized) {
    const auto at = [this](int place, auto* argument) { return place == missing ? nullptr : argument; };
    const auto numbers = [](std::vector<float>& parts) { return reinterpret_cast<T*>(parts.data()); };
    const std::tuple matrix(at(1, &uplo), at(2, &n), at(3, numbers(a)), at(4, ia.data()), at(5, ja.data()));
    const std::tuple rest(at(position(6), fpm.data()), at(position(7), &epsout), at(position(8), &loop),
                          at(position(9), &emin), at(position(10), &emax), at(position(11), &m0),
                          at(position(12), e.data()), at(position(13), numbers(x)), at(position(14), &m),
                          at(position(15), res.data()), at(position(16), &info));
    if (is_generalized) {
      const std::tuple second(at(6, numbers(b)), at(7, ib.data()), at(8, jb.data()));
      std::apply(generalized, std::tuple_cat(matrix, second, rest));
    } else {
      std::apply(standard, std::tuple_cat(matrix, rest));
    }
  }

  // The status, and that nothing but m and loop is written.
  void expect_error(int status) {
    SCOPED_TRACE(testing::Message() << (is_complex ? "complex" : "real") << (is_generalized ? ", generalized" : ""));
    const std::vector<float> x_before = x;
    EXPECT_EQ(run(), status);
    EXPECT_EQ(e, std::vector<float>(5, -7));
    EXPECT_EQ(res, std::vector<float>(5, -7));
    EXPECT_EQ(std::memcmp(x.data(), x_before.data(), x.size() * sizeof(float)), 0);
    EXPECT_EQ(epsout, -7);
    if (missing != position(14)) {
      EXPECT_EQ(m, 0);
    }
    if (missing != position(8)) {
      EXPECT_EQ(loop, 0);
    }
  }
};

// `spoil(call)` returns the status to be expected.
void for_each_routine(const std::function<int(Spoiled&)>& spoil) {
  for (const bool is_complex : {false, true}) {
    for (const bool is_generalized : {false, true}) {
      Spoiled call(is_complex, is_generalized);
      const int status = spoil(call);
      call.expect_error(status);
    }
  }
}
void expect_for_each(int status, const std::function<void(Spoiled&)>& spoil) {
  for_each_routine([&](Spoiled& call) {
    spoil(call);
    return status;
  });
}

// The plain forms compute what the index forms do.
TEST(Misuse, TheUnspoiledCallSucceeds) {
  for (const bool is_complex : {false, true}) {
    for (const bool is_generalized : {false, true}) {
      Spoiled call(is_complex, is_generalized);
      EXPECT_EQ(call.run(), 0);
      EXPECT_GE(call.m, 2);
      Call expected(call.emin, call.emax, 5);
      solve(make_problem("", second_difference(5), is_generalized ? diagonal({1, 2, 1, 2, 1}) : SparseMatrix()),
            expected, is_complex);
      EXPECT_EQ(call.m, expected.m);
      EXPECT_EQ(call.e, expected.e);
      EXPECT_EQ(call.res, expected.res);
      for (std::size_t i = 0; i < 5 * static_cast<std::size_t>(call.m); ++i) {
        EXPECT_EQ(call.x[is_complex ? 2 * i : i], expected.x[i].real());
      }
    }
  }
}

TEST(Misuse, MissingAddresses) {
  for (int position = 1; position <= 15; ++position) {
    for_each_routine([&](Spoiled& call) {
      call.missing = call.position(position);
      return -100 - call.missing;
    });
  }
  for (const int position : {6, 7, 8}) {
    Spoiled call(false, true);
    call.missing = position;
    call.expect_error(-100 - position);
  }
  Spoiled call(false, false);
  call.missing = 16;
  EXPECT_EQ(call.run(), -7);
  EXPECT_EQ(call.m, -7);
}

TEST(Misuse, InTheOrderOfTheChecks) {
  // Everything is wrong, and is mended step by step.
  const std::function<void(Spoiled&)> mend[] = {
      [](Spoiled& call) { call.n = 5; },           [](Spoiled& call) { call.m0 = 5; },
      [](Spoiled& call) { call.emin = 0.5F; },     [](Spoiled& call) { call.uplo = 'L'; },
      [](Spoiled& call) { call.fpm[1] = 8; },      [](Spoiled& call) { call.fpm[63] = 0; },
      [](Spoiled& call) { call.ia[0] = 1; },       [](Spoiled& call) { call.ja[0] = 1; },
      [](Spoiled& call) { call.a[0] = call.a[1]; }};
  const int statuses[] = {202, 201, 200, -101, 102, 164, -104, -105, -2};
  for (std::size_t mended = 0; mended < std::size(statuses); ++mended) {
    for_each_routine([&](Spoiled& call) {
      call.n = call.m0 = call.fpm[1] = call.ia[0] = call.ja[0] = 0;
      call.fpm[63] = 7;
      call.emin = call.emax;
      call.uplo = 'X';
      call.a[0] = kNan;
      for (std::size_t k = 0; k < mended; ++k) mend[k](call);
      return statuses[mended];
    });
  }
}

TEST(Misuse, Scalars) {
  for (const int n : {0, -1, std::numeric_limits<int>::min()}) {
    expect_for_each(202, [n](Spoiled& call) { call.n = n; });
  }
  for (const int m0 : {0, -1, 6}) expect_for_each(201, [m0](Spoiled& call) { call.m0 = m0; });
  for (const float end : {3.0F, 4.0F, kNan, kInfinity, -kInfinity}) {
    expect_for_each(200, [end](Spoiled& call) { call.emin = end; });
  }
  expect_for_each(200, [](Spoiled& call) { call.emax = kInfinity; });
  expect_for_each(-101, [](Spoiled& call) { call.uplo = 'V'; });
}

TEST(Misuse, Parameters) {
  const std::pair<int, int> wrong[] = {{1, 2},  {1, -1}, {2, 7}, {2, 0},  {2, 49}, {4, -1}, {5, 2},
                                       {6, -1}, {7, -1}, {7, 8}, {14, 2}, {27, 3}, {28, 5}, {64, -1}};
  for (const auto& [number, value] : wrong) {
    expect_for_each(100 + number, [number = number, value = value](Spoiled& call) {
      call.fpm[static_cast<std::size_t>(number - 1)] = value;
    });
  }
  // Cells that are not in use may hold anything.
  Spoiled call(false, false);
  for (const std::size_t place : {2U, 7U, 15U, 17U, 30U, 62U, 64U, 127U}) call.fpm[place] = -99;
  EXPECT_EQ(call.run(), 0);
}

TEST(Misuse, Arrays) {
  expect_for_each(-104, [](Spoiled& call) { call.ia[2] = 1; });
  expect_for_each(-104, [](Spoiled& call) { call.ia[0] = 0; });
  expect_for_each(-105, [](Spoiled& call) { call.ja[3] = 6; });
  expect_for_each(-105, [](Spoiled& call) { call.ja[3] = -6; });
  for (const bool is_complex : {false, true}) {
    Spoiled starts(is_complex, true), columns(is_complex, true);
    starts.ib[1] = 100;
    starts.expect_error(-107);
    columns.jb[4] = 0;
    columns.expect_error(-108);
  }
  // What is wrong for the strict check alone: order, repetition, the other triangle.
  const std::function<void(Spoiled&)> unusual[] = {
      [](Spoiled& call) { std::swap(call.ja[1], call.ja[2]); },
      [](Spoiled& call) { call.ja[1] = call.ja[2]; },
      [](Spoiled& call) { call.ja[2] = 5; },
  };
  for (const auto& spoil : unusual) {
    expect_for_each(-105, [&](Spoiled& call) {
      call.fpm[26] = 1;
      spoil(call);
    });
    Spoiled call(false, false);
    spoil(call);
    EXPECT_GE(call.run(), 0);
  }
  Spoiled upper(false, true);
  upper.uplo = 'U';
  upper.fpm[26] = 1;
  upper.expect_error(-105);
}

TEST(Misuse, ValuesThatAreNotFinite) {
  for (const float bad : {kNan, kInfinity, -kInfinity}) {
    expect_for_each(-2, [bad](Spoiled& call) { call.a[2] = bad; });
    expect_for_each(-2, [bad](Spoiled& call) {
      call.b[4] = bad;
      if (!call.is_generalized) call.a[0] = bad;
    });
    for_each_routine([bad](Spoiled& call) {
      call.fpm[4] = 1;
      call.x[7] = bad;
      return -100 - call.position(13);
    });
  }
}

TEST(Misuse, IndefiniteB) {
  for (const bool is_complex : {false, true}) {
    for (const float bad : {-1.0F, 0.0F}) {
      Spoiled found(is_complex, true), checked(is_complex, true);
      found.b[0] = checked.b[0] = bad;
      found.expect_error(-3);
      checked.fpm[27] = 1;
      checked.expect_error(-4);
    }
  }
}

// Arrays end at pages that cannot be read or written.
TEST(Memory, OnlyWhatIsDocumentedIsTouched) {
  const Problem problem = make_problem("grid", laplacian(5, 4, 1));
  const Csr<float> A = csr<float>(problem.A, 'U');
  const std::int32_t n = 20;
  const float emin = 1, emax = 4;
  const char uplo = 'U';
  for (const auto edge : {quorin::test::Edge::kFront, quorin::test::Edge::kBack}) {
    quorin::test::FaultReport::begin("sfeast_scsrev");
    std::vector<quorin::test::GuardedPages> pages;
    const auto place = [&]<class T>(const std::vector<T>& values) {
      pages.emplace_back(values.size() * sizeof(T));
      return static_cast<T*>(
          std::memcpy(pages.back().place(values.size() * sizeof(T), edge), values.data(), values.size() * sizeof(T)));
    };
    std::vector<std::int32_t> defaults(128);
    feastinit_32f(defaults.data());
    std::int32_t* const fpm = place(defaults);
    std::int32_t m0 = 14, m = 0, loop = 0, info = -7;
    float epsout = 0;
    float *const e = place(std::vector<float>(14)), *const res = place(std::vector<float>(14)),
                 *const x = place(std::vector<float>(14U * 20U));
    sfeast_scsrev(&uplo, &n, place(A.values), place(A.starts), place(A.columns), fpm, &epsout, &loop, &emin, &emax, &m0,
                  e, x, &m, res, &info);
    EXPECT_EQ(info, 0);
    EXPECT_GT(m, 3);
    for (const auto& page : pages) EXPECT_TRUE(page.intact());
  }
}

}  // namespace
}  // namespace feast_test
