// Systems with known solutions: every kind of matrix, every type of number, both bases of indices, the plain form and
// the index forms.
//
// Tolerance: 4 u times the condition number, of the largest entry.
#include <memory>

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
void set_right_hand_side(Host<T>& host, const std::vector<Complex>& b) {
  std::transform(b.begin(), b.end(), host.b.begin(), from<T>);
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
  for (const Solved& solved : system.cases) {
    SCOPED_TRACE(testing::Message() << "iparm(12) = " << solved.operation);
    set_right_hand_side(host, solved.b);
    host.cell(12) = solved.operation;
    ASSERT_EQ(host.call(33), 0);
    EXPECT_LT(distance(host.column(host.x, 0), solved.x), tolerance);
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
  const Solved& solved = system.cases[0];
  std::transform(solved.b.begin(), solved.b.end(), host.b.begin(), from<T>);
  std::transform(solved.b.begin(), solved.b.end(), host.b.begin() + host.n, [](Complex v) { return from<T>(2.0 * v); });
  std::int32_t error = 77;
  for (const std::int32_t phase : {11, 22, 33, -1}) {
    quorin::test::call_index_form(as_form_of<T>(form), static_cast<void**>(&host.pt[0]), &host.maxfct, &host.mnum,
                                  &host.mtype, &phase, &host.n, host.a, host.ia, host.ja, host.perm, &host.nrhs,
                                  host.iparm, &host.msglvl, host.b, host.x, &error);
    EXPECT_EQ(error, 0) << "phase " << phase;
  }
  std::vector<Complex> doubled = solved.x;
  for (Complex& value : doubled) value *= 2.0;
  EXPECT_LT(distance(host.column(host.x, 0), solved.x), 1e3 * kEpsilon<T>);
  EXPECT_LT(distance(host.column(host.x, 1), doubled), 1e3 * kEpsilon<T>);
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
    set_right_hand_side(host, system.cases[0].b);
    for (const int limit : {0, 3, -3}) {
      host.cell(8) = limit;
      ASSERT_EQ(host.call(13), 0);
      EXPECT_LT(distance(host.column(host.x, 0), system.cases[0].x), 1e-13);
    }
    host.cell(4) = host.mtype == 4 ? 102 : 101;
    ASSERT_EQ(host.call(33), 0);
    EXPECT_LT(distance(host.column(host.x, 0), system.cases[0].x), 1e-9);
  }
}

// All nine kinds, one handle each, alive at the same time.
TEST(Systems, SideBySide) {
  const auto all = systems();
  std::vector<std::unique_ptr<Host<std::complex<double>>>> hosts;
  for (const System& system : all) {
    if (!is_complex(system.matrix.mtype)) continue;
    hosts.push_back(std::make_unique<Host<std::complex<double>>>(system.matrix));
    ASSERT_EQ(hosts.back()->call(12), 0);
  }
  std::size_t k = 0;
  for (const System& system : all) {
    if (!is_complex(system.matrix.mtype)) continue;
    auto& host = *hosts[k++];
    set_right_hand_side(host, system.cases[0].b);
    ASSERT_EQ(host.call(33), 0);
    EXPECT_LT(distance(host.column(host.x, 0), system.cases[0].x), 1e-13) << system.name;
  }
}

}  // namespace
}  // namespace pardiso_test
