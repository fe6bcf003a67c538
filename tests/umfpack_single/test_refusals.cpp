// Wrong arguments get the documented status, and nothing is read or kept that should not be.
#include "quorin/services.h"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/standard.hpp"
#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

// Passed for a handle before each call, so that a status without an object is seen to clear it.
void* marker() { return reinterpret_cast<void*>(std::uintptr_t{0x1235}); }

TEST(Refusals, MatricesThatAreNoMatrices) {
  struct Case {
    const char* what;
    int n_row, n_col;
    Integers Ap, Ai;
    int status;
  };
  // The arrays end where a call must not read further.
  const Case cases[] = {
      {"no columns", 3, 0, {0}, {}, -6},
      {"negative count of rows", -1, 2, {0, 1, 2}, {0, 0}, -6},
      {"negative count of columns", 2, -5, {0}, {}, -6},
      {"first start", 2, 2, {1, 2, 3}, {0, 1, 0}, -8},
      {"starts that decrease", 3, 3, {0, 2, 1, 2}, {0, 1}, -8},
      {"starts that rise beyond and fall back", 3, 3, {0, 1000000000, 1, 2}, {0, 1}, -8},
      {"starts that rise beyond the end and fall back", 3, 3, {0, 1, 100000, 2}, {0, 1}, -8},
      {"negative number of entries", 2, 2, {0, 1, -7}, {0}, -8},
      {"unsorted column", 2, 2, {0, 2, 3}, {1, 0, 1}, -8},
      {"duplicate entry", 2, 2, {0, 2, 3}, {0, 0, 1}, -8},
      {"index too large", 2, 2, {0, 1, 2}, {0, 2}, -8},
      {"negative index", 2, 2, {0, 1, 2}, {-1, 1}, -8},
  };
  quorin::test::GuardedPages pages(100);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Floats Ax(c.Ai.size(), 1);
    auto* const Ai = static_cast<int*>(pages.place(c.Ai.size() * sizeof(int), quorin::test::Edge::kBack));
    std::copy(c.Ai.begin(), c.Ai.end(), Ai);
    const int* const Ap = c.Ap.data();
    for (const bool is_complex : {false, true}) {
      Floats Info(90, 5);
      void* Symbolic = marker();
      EXPECT_EQ(is_complex ? umfpack_zi_symbolic(c.n_row, c.n_col, Ap, Ai, Ax.data(), Ax.data(), &Symbolic, nullptr,
                                                 Info.data())
                           : umfpack_di_symbolic(c.n_row, c.n_col, Ap, Ai, Ax.data(), &Symbolic, nullptr, Info.data()),
                c.status);
      EXPECT_EQ(Symbolic, nullptr);
      EXPECT_EQ(Floats({Info[0], Info[1], Info[16], Info[12]}),
                rounded({1.0 * c.status, 1.0 * c.n_row, 1.0 * c.n_col, 0}));
      EXPECT_EQ(Info[67], -1) << "not computed";
    }
    // The same arrays as a matrix to print, which is checked where it is shown.
    const float shown[20] = {5}, silent[20] = {2};
    set_printf_callback_32f([](const char*) QUORIN_CALLBACK {});
    EXPECT_EQ(umfpack_di_report_matrix(c.n_row, c.n_col, Ap, Ai, Ax.data(), 1, shown), c.status);
    EXPECT_EQ(umfpack_di_report_matrix(c.n_row, c.n_col, Ap, Ai, Ax.data(), 1, silent), 0);
    set_printf_callback_32f(nullptr);
    // And to transpose: it may be unsorted.
    if (c.status == -6 || c.Ai.size() > 2 || c.n_row != c.n_col) continue;
    Integers Rp(4), Ri(4);
    Floats Rx(4);
    EXPECT_EQ(
        umfpack_di_transpose(c.n_row, c.n_col, Ap, Ai, Ax.data(), nullptr, nullptr, Rp.data(), Ri.data(), Rx.data()),
        c.status);
  }
}

TEST(Refusals, MissingArgumentsAndBadOrders) {
  const Matrix A = random_matrix(5, false);
  Host host(A);
  const int *Ap = A.Ap.data(), *Ai = A.Ai.data();
  const float* const Ax = host.Ax.data();
  void* S = nullptr;
  EXPECT_EQ(umfpack_di_symbolic(5, 5, nullptr, Ai, Ax, &S, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_symbolic(5, 5, Ap, nullptr, Ax, &S, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_symbolic(5, 5, Ap, Ai, Ax, nullptr, nullptr, nullptr), -5);
  for (const Integers& Qinit : {Integers{0, 1, 2, 3, 3}, Integers{0, 1, 2, 3, 5}, Integers{-1, 1, 2, 3, 4}}) {
    EXPECT_EQ(umfpack_di_qsymbolic(5, 5, Ap, Ai, Ax, Qinit.data(), &S, nullptr, nullptr), -15);
    EXPECT_EQ(S, nullptr);
  }
  ASSERT_EQ(host.symbolic(), 0);
  void* N = marker();
  EXPECT_EQ(umfpack_di_numeric(Ap, Ai, nullptr, host.Symbolic, &N, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_numeric(Ap, nullptr, Ax, host.Symbolic, &N, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_numeric(nullptr, Ai, Ax, host.Symbolic, &N, nullptr, nullptr), -5);
  EXPECT_EQ(N, nullptr);
  EXPECT_EQ(umfpack_di_numeric(Ap, Ai, Ax, host.Symbolic, nullptr, nullptr, host.Info.data()), -5);
  EXPECT_EQ(host.Info[0], -5);
  ASSERT_EQ(host.numeric(), 0);
  Floats x(5), b(5, 1);
  EXPECT_EQ(umfpack_di_solve(0, Ap, Ai, Ax, nullptr, b.data(), host.Numeric, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_solve(0, Ap, Ai, Ax, x.data(), nullptr, host.Numeric, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_solve(0, nullptr, nullptr, nullptr, x.data(), b.data(), host.Numeric, nullptr, nullptr), -5);
  EXPECT_EQ(umfpack_di_wsolve(0, Ap, Ai, Ax, x.data(), b.data(), host.Numeric, nullptr, nullptr, nullptr, nullptr), -5);
  Integers Wi(5);
  EXPECT_EQ(umfpack_di_wsolve(0, Ap, Ai, Ax, x.data(), b.data(), host.Numeric, nullptr, nullptr, Wi.data(), nullptr),
            -5);
  EXPECT_EQ(umfpack_di_solve(-1, Ap, Ai, Ax, x.data(), b.data(), host.Numeric, nullptr, nullptr), -13);
  EXPECT_EQ(umfpack_di_wsolve(0, Ap, Ai, Ax, x.data(), b.data(), host.Numeric, nullptr, nullptr, nullptr, b.data()),
            -5);
  Floats Info(90, 7);
  EXPECT_EQ(umfpack_di_solve(15, Ap, Ai, Ax, nullptr, b.data(), host.Numeric, nullptr, Info.data()), -13)
      << "a wrong system is told before what is missing";
  EXPECT_EQ(Floats({Info[0], Info[1], Info[16], Info[2]}), (Floats{-13, 5, 5, 7}));
  host.Control[7] = 0;
  EXPECT_EQ(
      umfpack_di_solve(0, nullptr, nullptr, nullptr, x.data(), b.data(), host.Numeric, host.Control.data(), nullptr), 0)
      << "without refinement the matrix is not needed";
  EXPECT_EQ(umfpack_di_scale(nullptr, b.data(), host.Numeric), -5);
  EXPECT_EQ(umfpack_di_get_determinant(nullptr, nullptr, host.Numeric, nullptr), -5);
  EXPECT_EQ(umfpack_di_get_lunz(nullptr, nullptr, nullptr, nullptr, nullptr, host.Numeric), -5);
  EXPECT_EQ(umfpack_di_col_to_triplet(5, Ap, nullptr), -5);
  const int Ti = 9, Tj = 0;
  Integers Tp(6), Ci(1);
  for (const auto& [n_col, nz, status] : {std::tuple(5, 1, -8), {5, -1, -8}, {0, 1, -6}}) {
    EXPECT_EQ(umfpack_di_triplet_to_col(5, n_col, nz, &Ti, &Tj, b.data(), Tp.data(), Ci.data(), x.data(), nullptr),
              status);
  }
}

// Every call that takes an object, with handles that stand for none.
TEST(Refusals, ObjectsOfAnotherFamilyOrFreedOrNeverMade) {
  Host real(random_matrix(5, false)), complex(random_matrix(5, true)), freed(random_matrix(5, false)),
      later(random_matrix(5, false));
  for (Host* const host : {&real, &complex, &freed}) host->factorize();
  void *freed_symbolic = freed.Symbolic, *freed_numeric = freed.Numeric;
  umfpack_di_free_symbolic(&freed.Symbolic);
  umfpack_di_free_numeric(&freed.Numeric);
  later.factorize();

  float host_memory[64] = {};
  const int *Ap = real.A.Ap.data(), *Ai = real.A.Ai.data();
  const float* const Ax = real.Ax.data();
  Floats x(5), b(5, 1);
  Integers i5(5);
  for (void* const handle : {static_cast<void*>(nullptr), freed_symbolic, freed_numeric, complex.Symbolic,
                             complex.Numeric, static_cast<void*>(host_memory), marker()}) {
    void* N = marker();
    EXPECT_EQ(umfpack_di_numeric(Ap, Ai, Ax, handle, &N, nullptr, real.Info.data()), -4);
    EXPECT_EQ(N, nullptr);
    EXPECT_EQ(real.Info[0], -4);
    EXPECT_EQ(umfpack_di_solve(0, Ap, Ai, Ax, x.data(), b.data(), handle, nullptr, real.Info.data()), -3);
    EXPECT_EQ(real.Info[0], -3);
    EXPECT_EQ(umfpack_di_wsolve(0, Ap, Ai, Ax, x.data(), b.data(), handle, nullptr, nullptr, i5.data(), x.data()), -3);
    EXPECT_EQ(umfpack_di_scale(x.data(), b.data(), handle), -3);
    EXPECT_EQ(umfpack_di_get_determinant(x.data(), nullptr, handle, nullptr), -3);
    int n = 0;
    EXPECT_EQ(umfpack_di_get_lunz(&n, &n, &n, &n, &n, handle), -3);
    EXPECT_EQ(umfpack_di_get_numeric(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, i5.data(), nullptr, nullptr,
                                     nullptr, nullptr, handle),
              -3);
    EXPECT_EQ(umfpack_di_get_symbolic(&n, &n, &n, &n, &n, &n, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                      nullptr, nullptr, nullptr, handle),
              -4);
    Floats Control(20, 3);
    EXPECT_EQ(umfpack_di_report_symbolic(handle, Control.data()), -4);
    EXPECT_EQ(umfpack_di_report_numeric(handle, Control.data()), -3);
    if (handle == complex.Symbolic || handle == complex.Numeric) continue;
    void* copy = handle;
    umfpack_di_free_symbolic(&copy);
    umfpack_di_free_numeric(&copy);
    EXPECT_EQ(copy, handle) << "not an object, so left alone";
  }
  void* wrong_kind = real.Symbolic;
  umfpack_di_free_numeric(&wrong_kind);
  EXPECT_EQ(wrong_kind, real.Symbolic);
  umfpack_di_free_numeric(nullptr);
  EXPECT_EQ(later.solve(0, b, b), 0) << "a later object does not suffer from what was done with the old handle";
  EXPECT_EQ(real.solve(0, b, b), 0);
}

TEST(Refusals, PatternsThatAreNotTheAnalysedOne) {
  const Matrix A = random_matrix(30, true);
  Host host(A);
  ASSERT_EQ(host.symbolic(), 0);
  struct Change {
    Integers Matrix::*array;
    std::size_t at;
    int value;
  };
  const auto make = [&](const Change& c) {
    host.A = A;
    (host.A.*c.array)[c.at] = c.value;
  };
  const Change changes[] = {{&Matrix::Ai, 0, 1000000},     {&Matrix::Ai, 3, -1},
                            {&Matrix::Ap, 1, 2000000},     {&Matrix::Ap, 30, A.nz() - 1},
                            {&Matrix::Ap, 30, 2000000000}, {&Matrix::Ap, 30, A.Ap[29] - 1}};
  for (const Change& c : changes) {
    make(c);
    EXPECT_EQ(host.numeric(), -11) << c.value;
    EXPECT_EQ(host.Numeric, nullptr);
  }
  // Sound patterns with as many entries in each column.
  for (int j = 0; j < 30; ++j) {
    const int last = A.Ap[j + 1] - 1;
    if (A.Ai[last] == 29) continue;
    make({&Matrix::Ai, size_of(last), A.Ai[last] + 1});
    EXPECT_EQ(host.numeric(), -11) << "column " << j;
    umfpack_zi_free_numeric(&host.Numeric);
  }
  host.A = A;
  std::swap(host.A.Ai[0], host.A.Ai[1]);
  EXPECT_EQ(host.numeric(), -11) << "the same entries in another order";
  host.A = A;
  ASSERT_EQ(host.numeric(), 0);
  const Floats b(30, 1);
  make({&Matrix::Ai, 7, 30});
  EXPECT_EQ(host.solve(0, b, b), -8) << "refinement would read through the index";
  make({&Matrix::Ap, 2, -4});
  EXPECT_EQ(host.wsolve(2, b, b), -8);
  host.A = A;
  EXPECT_EQ(host.solve(2, b, b), 0);
}

TEST(Refusals, RectangularAndSingularSystems) {
  Host host(Matrix(2, 3, {0, 1, 2, 4}, {0, 1, 0, 1}, {1, 2, 3, 4}));
  host.factorize();
  const Floats b(3, 1);
  EXPECT_EQ(host.solve(0, b, b), -13);
  float M = 0;
  EXPECT_EQ(umfpack_di_get_determinant(&M, nullptr, host.Numeric, nullptr), -13);
  // n = 1, a column without entries, an entry that is zero; the object is there and solves what can be solved.
  struct Case {
    Matrix A;
    int status;
    float first;
  };
  const float infinity = std::numeric_limits<float>::infinity();
  const Case cases[] = {{Matrix(1, 1, {0, 0}, {}, {}), 1, infinity},
                        {Matrix(1, 1, {0, 1}, {0}, {0}, {0}), 1, infinity},
                        {Matrix(2, 2, {0, 1, 1}, {0}, {2}), 1, 0.5F},
                        {Matrix(1, 1, {0, 1}, {0}, {4}), 0, 0.25F}};
  for (const Case& c : cases) {
    Host small(c.A);
    small.A.Ai.reserve(1);
    small.Ax.reserve(1);
    ASSERT_EQ(small.symbolic(), 0);
    ASSERT_EQ(small.numeric(), c.status);
    EXPECT_EQ(small.solve(0, b, b), c.status);
    if (c.status == 1 && !c.A.is_complex()) {  // there is no refinement that would read the matrix
      EXPECT_EQ(
          umfpack_di_solve(0, nullptr, nullptr, nullptr, small.Xx.data(), b.data(), small.Numeric, nullptr, nullptr),
          1);
    }
    EXPECT_TRUE(c.first == infinity || small.Xx[0] == c.first) << small.Xx[0];
  }
}

}  // namespace
}  // namespace umfpack_test
