// Small systems: every kind of matrix, every type of number, both bases of indices, the plain form and
// the index forms.
//
// Tolerance: 4 u times the condition number, of the largest entry.
#include "tests/pardiso/systems.hpp"
#include "tests/support/index_form.hpp"

namespace pardiso_test {
namespace {

double distance(const std::vector<Complex>& x, const std::vector<Complex>& expected) {
  double error = 0.0, size = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    error = std::isnan(std::abs(x[i])) ? 1e300 : std::max(error, std::abs(x[i] - expected[i]));
    size = std::max(size, std::abs(expected[i]));
  }
  return error / size;
}

template <class T>
void solve_all(const System& system, int base) {
  SCOPED_TRACE(system.name + (base == 0 ? ", zero-based" : "") + (kIsSingle<T> ? ", single" : ", double"));
  const double tolerance = 4 * kEpsilon<T> * system.condition + (kIsSingle<T> ? 0.0 : 1e-14);
  Host<T> host(system.matrix, base);
  ASSERT_EQ(host.call(12), 0);
  if (system.positive + system.negative > 0) {
    EXPECT_EQ(host.cell(22), system.positive);
    EXPECT_EQ(host.cell(23), system.negative);
  }
  EXPECT_EQ(host.cell(14), 0);
  for (int i = 0; i < host.n; ++i) host.b[static_cast<std::size_t>(i)] = from<T>({1.0 + i, 2.0 - i});
  for (const int operation : {0, 1, 2}) {
    SCOPED_TRACE(testing::Message() << "iparm(12) = " << operation);
    host.cell(12) = operation;
    ASSERT_EQ(host.call(33), 0);
    EXPECT_LT(distance(host.column(host.x, 0), solution(system.matrix, host.column(host.b, 0), operation)), tolerance);
  }
  EXPECT_EQ(host.release(), 0);
}

TEST(Systems, HaveTheirSolutions) {
  for (const System& system : systems()) {
    for (const int base : {0, 1}) {
      in_both_precisions(system.matrix.mtype, [&]<class T> { solve_all<T>(system, base); });
    }
  }
}

// An index form for elements of type T, whatever it calls them: that is why one serves all types of 8 bytes.
template <class T, class Form>
auto as_form_of(Form* form) {
  using Int = std::int32_t;
  using Typed =
      void(QUORIN_CDECL*)(void**, const Int*, const Int*, const Int*, const Int*, const Int*, const T*, Int, const Int*,
                          Int, const Int*, Int, Int*, Int, const Int*, Int*, Int, const Int*, T*, Int, T*, Int, Int*);
  return reinterpret_cast<Typed>(form);
}

// Two right-hand sides, and arrays that begin somewhere behind their bases.
template <class T, class Form>
void solve_by_index_form(const char* name, Form* form) {
  const auto all = systems();
  const System& system = *std::find_if(all.begin(), all.end(), [name](const System& s) { return s.name == name; });
  SCOPED_TRACE(name);
  Host<T> host(system.matrix, 1, 2);
  std::fill(host.b.begin() + host.n, host.b.end(), T(2));
  std::int32_t error = 77;
  for (const std::int32_t phase : {11, 22, 33, -1}) {
    quorin::test::call_index_form(as_form_of<T>(form), static_cast<void**>(&host.pt[0]), &host.maxfct, &host.mnum,
                                  &host.mtype, &phase, &host.n, host.a, host.ia, host.ja, host.perm, &host.nrhs,
                                  host.iparm, &host.msglvl, host.b, host.x, &error);
    EXPECT_EQ(error, 0) << "phase " << phase;
  }
  for (const std::size_t c : {0, 1}) {
    EXPECT_LT(distance(host.column(host.x, c), solution(system.matrix, host.column(host.b, c))), 1e3 * kEpsilon<T>);
  }
}

TEST(Systems, ByIndexForms) {
  solve_by_index_form<float>("unsymmetric 5", sPARDISO_32f_Idx);
  solve_by_index_form<std::complex<float>>("Hermitian 8", sPARDISO_32fc_Idx);
  solve_by_index_form<std::complex<float>>("Hermitian 8", sPARDISO_64f_Idx);
  solve_by_index_form<double>("indefinite 8", sPARDISO_64f_Idx);
  solve_by_index_form<double>("indefinite 8", sPARDISO_32fc_Idx);
  solve_by_index_form<std::complex<double>>("complex unsymmetric 5", sPARDISO_64fc_Idx);
}

// Which Hermitian matrices do not have.
TEST(Systems, IgnoreImaginaryPartsOfHermitianDiagonals) {
  for (const System& system : systems()) {
    if (!is_hermitian(system.matrix.mtype)) continue;
    SCOPED_TRACE(system.name);
    Host<Complex> host(system.matrix);
    host.for_each_entry([&](int i, int j, std::size_t k) {
      if (i == j) host.a[k] += Complex(0.0, 3.0 + i);
    });
    const auto expected = solution(system.matrix, ones(host.n));
    for (const int limit : {0, 3, -3}) {
      host.cell(8) = limit;
      ASSERT_EQ(host.call(13), 0);
      EXPECT_LT(distance(host.column(host.x, 0), expected), 1e-13);
    }
    host.cell(4) = host.mtype == 4 ? 102 : 101;
    ASSERT_EQ(host.call(33), 0);
    EXPECT_LT(distance(host.column(host.x, 0), expected), 1e-9);
  }
}

}  // namespace
}  // namespace pardiso_test
