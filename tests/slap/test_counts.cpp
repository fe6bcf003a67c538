// Iteration counts against the textbook methods, in double precision and with dense matrices.
#include "tests/slap/slap_host.hpp"
#include "tests/support/test.hpp"

namespace slap_test {
namespace {

using Dense = std::vector<Doubles>;
using Operator = std::function<Doubles(const Doubles&)>;

double dot(const Doubles& x, const Doubles& y) { return std::inner_product(x.begin(), x.end(), y.begin(), 0.0); }

Doubles sum(const Doubles& x, double factor, const Doubles& y) {
  Doubles z = x;
  for (std::size_t i = 0; i < z.size(); ++i) z[i] += factor * y[i];
  return z;
}

Dense dense(const Triads& a) {
  Dense m(a.n, Doubles(a.n, 0.0));
  for (int k = 0; k < a.nelt(); ++k) m[a.ia[k] - 1][a.ja[k] - 1] += a.a[k];
  return m;
}

Dense transpose(const Dense& m) {
  Dense t = m;
  for (std::size_t i = 0; i < m.size(); ++i) {
    for (std::size_t j = 0; j < m.size(); ++j) t[j][i] = m[i][j];
  }
  return t;
}

// L (unit diagonal) and U in one matrix; entries outside the pattern of A are dropped.
Dense incomplete_factors(Dense m) {
  const Dense pattern = m;
  const std::size_t n = m.size();
  for (std::size_t k = 0; k < n; ++k) {
    for (std::size_t i = k + 1; i < n; ++i) {
      if (pattern[i][k] == 0) continue;
      m[i][k] /= m[k][k];
      for (std::size_t j = k + 1; j < n; ++j) m[i][j] -= pattern[i][j] != 0 ? m[i][k] * m[k][j] : 0;
    }
  }
  return m;
}

Doubles solve_lower(const Dense& m, Doubles z, bool has_unit_diagonal) {
  for (std::size_t i = 0; i < z.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) z[i] -= m[i][j] * z[j];
    if (!has_unit_diagonal) z[i] /= m[i][i];
  }
  return z;
}

Doubles solve_upper(const Dense& m, Doubles z, bool has_unit_diagonal) {
  for (std::size_t i = z.size(); i-- > 0;) {
    for (std::size_t j = i + 1; j < z.size(); ++j) z[i] -= m[i][j] * z[j];
    if (!has_unit_diagonal) z[i] /= m[i][i];
  }
  return z;
}

struct Textbook {
  Operator a, at, m, mt;  // A, A^T, M^-1, M^-T
  Doubles b;
  double tol;
  bool is_done(const Doubles& r) const { return norm(r) <= tol * norm(b); }
};

Textbook textbook(const Solver& s, const Triads& a, const Floats& b, double tol) {
  Textbook t;
  t.b = to_double(b);
  t.tol = tol;
  t.a = [&a](const Doubles& x) { return multiply(a, x); };
  t.at = [&a](const Doubles& x) { return multiply(a, x, true); };
  const Dense m = dense(a);
  const bool is_normal = s.iteration == Solver::Iteration::kNormal;
  switch (s.preconditioner) {
    case Solver::Preconditioner::kDiagonal:
      t.m = t.mt = [m, is_normal](Doubles z) {
        for (std::size_t i = 0; i < z.size(); ++i) z[i] /= is_normal ? dot(m[i], m[i]) : m[i][i];
        return z;
      };
      break;
    case Solver::Preconditioner::kLower:
      t.m = [m](const Doubles& z) { return solve_lower(m, z, false); };
      break;
    default: {
      const Dense f = incomplete_factors(m), ft = transpose(f);
      t.m = [f](const Doubles& z) { return solve_upper(f, solve_lower(f, z, true), false); };
      t.mt = [ft](const Doubles& z) { return solve_upper(ft, solve_lower(ft, z, false), true); };
      if (is_normal) t.m = [m1 = t.m, m2 = t.mt](const Doubles& z) { return m2(m1(z)); };
    }
  }
  return t;
}

// Saad, Iterative Methods for Sparse Linear Systems, 2nd ed.: algorithms 9.1, 8.5, 7.3 and 7.5.
int cg(const Textbook& t) {
  Doubles r = t.b, z = t.m(r), p = z;
  for (int k = 1;; ++k) {
    const Doubles q = t.a(p);
    const double rz = dot(r, z), alpha = rz / dot(q, p);
    r = sum(r, -alpha, q);
    if (t.is_done(r)) return k;
    z = t.m(r);
    p = sum(z, dot(r, z) / rz, p);
  }
}

int craig(const Textbook& t) {
  Textbook normal = t;
  normal.a = [&t](const Doubles& x) { return t.a(t.at(x)); };
  return cg(normal);
}

int bicg(const Textbook& t) {
  Doubles r = t.b, rr = r, p = t.m(r), pp = t.mt(rr);
  for (int k = 1;; ++k) {
    const Doubles q = t.a(p), z = t.m(r);
    const double rho = dot(z, rr), alpha = rho / dot(q, pp);
    r = sum(r, -alpha, q);
    if (t.is_done(r)) return k;
    rr = sum(rr, -alpha, t.at(pp));
    const double beta = dot(t.m(r), rr) / rho;
    p = sum(t.m(r), beta, p);
    pp = sum(t.mt(rr), beta, pp);
  }
}

int cgs(const Textbook& t) {
  Doubles r = t.b, p = r, u = r;
  for (int k = 1;; ++k) {
    const Doubles v = t.a(t.m(p));
    const double rho = dot(r, t.b), alpha = rho / dot(v, t.b);
    const Doubles q = sum(u, -alpha, v);
    r = sum(r, -alpha, t.a(t.m(sum(u, 1, q))));
    if (t.is_done(r)) return k;
    const double beta = dot(r, t.b) / rho;
    u = sum(r, beta, q);
    p = sum(u, beta, sum(q, beta, p));
  }
}

int refinement(const Textbook& t) {
  Doubles x(t.b.size(), 0.0), r = t.b;
  for (int k = 1;; ++k) {
    x = sum(x, 1, t.m(r));
    r = sum(t.b, -1, t.a(x));
    if (t.is_done(r)) return k;
  }
}

int textbook_count(const Solver& s, const Textbook& t) {
  switch (s.iteration) {
    case Solver::Iteration::kCg:
      return cg(t);
    case Solver::Iteration::kNormal:
      return craig(t);
    case Solver::Iteration::kBicg:
      return bicg(t);
    case Solver::Iteration::kCgs:
      return cgs(t);
    default:
      return refinement(t);
  }
}

void expect_textbook_count(const Solver& s, const Triads& a, const Floats& b, double tol) {
  const Outcome o = run(s, a, b, {.tol = static_cast<float>(tol)});
  EXPECT_EQ(o.ierr, 0) << s.name;
  EXPECT_NEAR(o.iter, textbook_count(s, textbook(s, a, b, tol)), 1) << s.name << ", order " << a.n;
}

// Counts of some ten to sixty: a wrong preconditioner or recurrence shows, and roundings do not yet delay the methods.
TEST(Counts, AgreeWithTheTextbook) {
  std::mt19937 random(51);
  struct Case {
    Triads a;
    bool is_symmetric;
  };
  const Case cases[] = {{grid(9, 0), true},
                        {random_dominant(120, 0.05, 1.0, true, random), true},
                        {grid(9, 30), false},
                        {random_dominant(120, 0.05, 1.1, false, random), false}};
  for (const Case& c : cases) {
    const Floats b = right_hand_side(c.a, random_solution(c.a.n, random));
    for (const Solver& s : solvers()) {
      using Iteration = Solver::Iteration;
      if (s.iteration == Iteration::kGmres || s.iteration == Iteration::kOrthomin) continue;
      if (s.is_symmetric_only() && !c.is_symmetric) continue;
      expect_textbook_count(s, c.a, b, 1e-3);
    }
  }
}

// The condition is squared, so that single precision would take more steps.
TEST(Counts, NormalEquationsRunInDouble) {
  std::mt19937 random(52);
  for (const double wind : {0.0, 30.0}) {
    const Triads a = grid(20, wind);
    expect_textbook_count(solver("SSDCGN"), a, right_hand_side(a, random_solution(a.n, random)), 1e-4);
  }
  // An x that is large beside b, and what rounding took from it in each step.
  expect_textbook_count(solver("SSLUCN"), grid(30, 0), Floats(900, 1.0F), 1e-4);
}

}  // namespace
}  // namespace slap_test
