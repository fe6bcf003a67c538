#include "tests/slap/slap_host.hpp"

#include "tests/support/guarded.hpp"
#include "tests/support/standard.hpp"

namespace slap_test {

using quorin::test::Guarded;
using Preconditioner = Solver::Preconditioner;
using Iteration = Solver::Iteration;

void Triads::add(int i, int j, double value) {
  ia.push_back(i);
  ja.push_back(j);
  a.push_back(static_cast<float>(value));
}

Triads Triads::lower() const {
  Triads result;
  result.n = n;
  result.isym = 1;
  for (int k = 0; k < nelt(); ++k) {
    if (ia[k] >= ja[k]) result.add(ia[k], ja[k], a[k]);
  }
  return result;
}

Triads Triads::shuffled(std::mt19937& random) const {
  std::vector<int> order(a.size());
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), random);
  Triads result;
  result.n = n;
  result.isym = isym;
  for (const int k : order) result.add(ia[k], ja[k], a[k]);
  return result;
}

Triads Triads::converted() const {
  Triads result = *this;
  result.ja.resize(std::max<std::size_t>(a.size(), n + 2));
  const int count = nelt();
  SS2Y(&n, &count, result.ia.data(), result.ja.data(), result.a.data(), &isym);
  return result;
}

Doubles multiply(const Triads& a, const Doubles& x, bool transposed) {
  Doubles y(x.size(), 0.0);
  for (int k = 0; k < a.nelt(); ++k) {
    int i = a.ia[k] - 1, j = a.ja[k] - 1;
    if (transposed) std::swap(i, j);
    y[i] += static_cast<double>(a.a[k]) * x[j];
    if (a.isym != 0 && i != j) y[j] += static_cast<double>(a.a[k]) * x[i];
  }
  return y;
}

Doubles to_double(const Floats& x) { return {x.begin(), x.end()}; }

Floats right_hand_side(const Triads& a, const Doubles& solution) {
  const Doubles b = multiply(a, solution);
  return {b.begin(), b.end()};
}

double norm(const Doubles& x) { return std::sqrt(std::inner_product(x.begin(), x.end(), x.begin(), 0.0)); }

double relative_residual(const Triads& a, const Floats& b, const Floats& x) {
  Doubles r = multiply(a, to_double(x));
  for (std::size_t i = 0; i < r.size(); ++i) r[i] = b[i] - r[i];
  return norm(r) / norm(to_double(b));
}

Triads triads(const quorin::test::SparseMatrix& A) {
  Triads a;
  a.n = A.rows;
  for (const quorin::test::Entry& e : A.entries) a.add(e.row + 1, e.column + 1, e.value.real());
  return a;
}

Triads grid(int k, double wind) { return triads(quorin::test::convection_diffusion(k, wind)); }

Triads random_dominant(int n, double density, double dominance, bool symmetric, std::mt19937& random) {
  return triads(quorin::test::random_dominant(n, density, dominance, symmetric, random));
}

Doubles random_solution(int n, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  Doubles x(n);
  for (double& e : x) e = entry(random);
  return x;
}

const std::vector<Solver>& solvers() {
  static const std::vector<Solver> all = {
      {"SSDCG", Preconditioner::kDiagonal, Iteration::kCg, SSDCG},
      {"SSICCG", Preconditioner::kCholesky, Iteration::kCg, SSICCG, SSICCG_Idx},
      {"SSDCGN", Preconditioner::kDiagonal, Iteration::kNormal, SSDCGN},
      {"SSLUCN", Preconditioner::kLu, Iteration::kNormal, SSLUCN, SSLUCN_Idx},
      {"SSDBCG", Preconditioner::kDiagonal, Iteration::kBicg, SSDBCG},
      {"SSLUBC", Preconditioner::kLu, Iteration::kBicg, SSLUBC, SSLUBC_Idx},
      {"SSDCGS", Preconditioner::kDiagonal, Iteration::kCgs, SSDCGS},
      {"SSLUCS", Preconditioner::kLu, Iteration::kCgs, SSLUCS, SSLUCS_Idx},
      {"SSDGMR", Preconditioner::kDiagonal, Iteration::kGmres, nullptr, nullptr, SSDGMR},
      {"SSLUGM", Preconditioner::kLu, Iteration::kGmres, nullptr, nullptr, SSLUGM, SSLUGM_Idx},
      {"SSDOMN", Preconditioner::kDiagonal, Iteration::kOrthomin, nullptr, nullptr, SSDOMN},
      {"SSLUOM", Preconditioner::kLu, Iteration::kOrthomin, nullptr, nullptr, SSLUOM, SSLUOM_Idx},
      {"SSJAC", Preconditioner::kDiagonal, Iteration::kRefinement, SSJAC, SSJAC_Idx},
      {"SSGS", Preconditioner::kLower, Iteration::kRefinement, SSGS, SSGS_Idx},
      {"SSILUR", Preconditioner::kLu, Iteration::kRefinement, SSILUR, SSILUR_Idx},
  };
  return all;
}

const Solver& solver(const std::string& name) {
  for (const Solver& s : solvers()) {
    if (s.name == name) return s;
  }
  throw std::logic_error(name);
}

namespace {

// Of the work arrays.
struct Lengths {
  int reals = 0, integers = 0;
};

#include "lengths.inc"

struct Triangles {
  int below = 0, diagonal = 0, above = 0;
};

// As a host counts: in its triads, or in the columns where the matrix is converted already.
Triangles count_triangles(const Triads& a) {
  Triangles t;
  const auto count = [&](int i, int j) {
    t.below += i > j ? 1 : 0;
    t.diagonal += i == j ? 1 : 0;
    t.above += i < j || (i > j && a.isym != 0) ? 1 : 0;
  };
  const bool is_converted = static_cast<int>(a.ja.size()) > a.n && a.ja[a.n] == a.nelt() + 1;
  for (int k = 0; !is_converted && k < a.nelt(); ++k) count(a.ia[k], a.ja[k]);
  for (int j = 1; is_converted && j <= a.n; ++j) {
    for (int k = std::max(a.ja[j - 1], 1); k < std::min(a.ja[j], a.nelt() + 1); ++k) count(a.ia[k - 1], j);
  }
  return t;
}

Lengths documented_lengths(const std::string& solver, const Triads& a, int nsave) {
  if (a.n < 1 || a.nelt() < 1) return {};
  const auto [below, diagonal, above] = count_triangles(a);
  return documented(solver, a.n, a.nelt(), a.isym, nsave, below, above, diagonal);
}

template <class T>
std::vector<T> copy(Guarded<T>& array) {
  return {array.data(), array.data() + array.size()};
}

// One call: the arguments as addresses, and the result.
struct Call {
  Call(const Triads& a, const Options& given, const Floats& start, Lengths size)
      : options(given),
        rwork(static_cast<std::size_t>(std::max(size.reals, 0)), std::nanf(""), given.shifted ? sizeof(float) : 0),
        iwork(static_cast<std::size_t>(std::max(size.integers, 0)), -777),
        lenw(size.reals),
        leniw(size.integers) {
    result.matrix = a;
    result.matrix.ja.resize(std::max<std::size_t>(a.a.size(), std::max(a.n, 0) + 2), -12345);
    result.x = start.empty() ? Floats(std::max(a.n, 0), 0.0F) : start;
    result.tol = options.tol;
    nelt = a.nelt();
  }
  Outcome finish() {
    result.rwork = copy(rwork);
    result.iwork = copy(iwork);
    result.is_guarded = rwork.intact() && iwork.intact();
    return result;
  }

  Options options;
  Guarded<float> rwork;
  Guarded<std::int32_t> iwork;
  int lenw, leniw, nelt = 0;
  Outcome result;
};

}  // namespace

Outcome run(const Solver& s, const Triads& a, const Floats& b, const Options& options, const Floats& start) {
  Call c(a, options, start, documented_lengths(s.name, a, options.nsave));
  Triads& m = c.result.matrix;
  Outcome& r = c.result;
  const Options& o = c.options;
  if (s.common != nullptr && !o.index_form) {
    s.common(&m.n, b.data(), r.x.data(), &c.nelt, m.ia.data(), m.ja.data(), m.a.data(), &m.isym, &o.itol, &r.tol,
             &o.itmax, &r.iter, &r.err, &r.ierr, &o.iunit, c.rwork.data(), &c.lenw, c.iwork.data(), &c.leniw);
  } else if (s.common != nullptr) {
    s.common_index(&m.n, b.data() - 1, 1, r.x.data() + 2, -2, &c.nelt, m.ia.data() - 3, 3, m.ja.data() + 4, -4,
                   m.a.data() - 5, 5, &m.isym, &o.itol, &r.tol, &o.itmax, &r.iter, &r.err, &r.ierr, &o.iunit,
                   c.rwork.data() - 6, 6, &c.lenw, c.iwork.data() + 7, -7, &c.leniw);
  } else if (!o.index_form) {
    s.with_nsave(&m.n, b.data(), r.x.data(), &c.nelt, m.ia.data(), m.ja.data(), m.a.data(), &m.isym, &o.nsave, &o.itol,
                 &r.tol, &o.itmax, &r.iter, &r.err, &r.ierr, &o.iunit, c.rwork.data(), &c.lenw, c.iwork.data(),
                 &c.leniw);
  } else {
    s.with_nsave_index(&m.n, b.data() - 1, 1, r.x.data() + 2, -2, &c.nelt, m.ia.data() - 3, 3, m.ja.data() + 4, -4,
                       m.a.data() - 5, 5, &m.isym, &o.nsave, &o.itol, &r.tol, &o.itmax, &r.iter, &r.err, &r.ierr,
                       &o.iunit, c.rwork.data() - 6, 6, &c.lenw, c.iwork.data() + 7, -7, &c.leniw);
  }
  return c.finish();
}

Outcome run_reusing(const Triads& a, const Floats& b, const Options& options, const Outcome* earlier) {
  Call c(a, options, {}, documented_lengths("SSICCGC", a, 0));
  if (earlier != nullptr) {
    std::copy(earlier->rwork.begin(), earlier->rwork.end(), c.rwork.data());
    std::copy(earlier->iwork.begin(), earlier->iwork.end(), c.iwork.data());
  }
  Triads& m = c.result.matrix;
  Outcome& r = c.result;
  const Options& o = c.options;
  SSICCGC(&m.n, b.data(), r.x.data(), &c.nelt, m.ia.data(), m.ja.data(), m.a.data(), &m.isym, &o.itol, &r.tol, &o.itmax,
          &r.iter, &r.err, &r.ierr, &o.iunit, c.rwork.data(), &c.lenw, c.iwork.data(), &c.leniw, &o.ifact);
  return c.finish();
}

}  // namespace slap_test
