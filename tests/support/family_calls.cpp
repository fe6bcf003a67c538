#include "tests/support/family_calls.hpp"

#include "tests/support/exact_product.hpp"
#include "tests/support/standard.hpp"

namespace quorin::test {
namespace {

template <class... Arrays>
Results join(const Arrays&... arrays) {
  Results all;
  (all.insert(all.end(), arrays.begin(), arrays.end()), ...);
  return all;
}

// Symmetric positive definite in the pattern of differences on a line, and what hosts keep of it.
struct Line {
  explicit Line(int order, int seed) : n(order) {
    for (int j = 0; j < n; ++j) {
      for (int i = std::max(j - 1, 0); i <= std::min(j + 1, n - 1); ++i) {
        rows.push_back(i);
        columns.push_back(j);
        values.push_back(i == j ? 4.0 + seed + 0.1 * j : -1.0);
      }
      starts.push_back(static_cast<std::int32_t>(rows.size()));
    }
    for (int i = 0; i < n; ++i) b.push_back(1.0 + std::sin(i + seed));
  }
  void multiply(const double* x, double* y) const {
    for (int i = 0; i < n; ++i) y[i] = 0;
    for (std::size_t k = 0; k < rows.size(); ++k) y[rows[k]] += values[k] * x[columns[k]];
  }

  std::int32_t n;
  std::vector<std::int32_t> starts{0}, rows, columns;
  std::vector<double> values, b;
};

Results vectors(const quorin_library& library, int seed) {
  const std::int32_t n = 1000 + 37 * seed, few = 13, one = 1;
  std::vector<float> x(3000), y(3000);
  for (std::size_t i = 0; i < x.size(); ++i) {
    x[i] = std::sin(static_cast<float>(i) + static_cast<float>(seed));
    y[i] = std::cos(1.7F * static_cast<float>(i));
  }
  const auto complex = [](std::vector<float>& v) { return reinterpret_cast<quorin_complex*>(v.data()); };
  const quorin_complex a{0.7F, -0.2F};
  const float c = 0.8F, s = 0.6F;
  quorin_complex sum{};
  const Results sums = {library.sdot(&n, x.data(), &one, y.data(), &one),
                        library.snrm2(&n, x.data(), &one),
                        library.sdot(&few, x.data(), &one, y.data(), &one),
                        library.snrm2(&few, x.data(), &one),
                        library.scasum(&n, complex(x), &one),
                        static_cast<double>(library.isamax(&n, x.data(), &one))};
  library.cdotc(&sum, &n, complex(x), &one, complex(y), &one);
  library.caxpy(&n, &a, complex(x), &one, complex(y), &one);
  library.srot(&n, x.data(), &one, y.data(), &one, &c, &s);
  library.sscal(&n, &s, x.data(), &one);
  return join(sums, Results{sum.re, sum.im}, x, y);
}

// Whole numbers: the results do not depend on how the work is cut. The first product is enough for three threads.
Results matrices(const quorin_library& library, int seed) {
  const std::int32_t n = 190 + seed, one = 1;
  const float alpha = 1, beta = 2;
  const auto numbers = [n](int start) {
    return whole_numbers(static_cast<std::size_t>(n) * static_cast<std::size_t>(n), static_cast<std::uint32_t>(start));
  };
  const std::vector<float> a = numbers(1), b = numbers(seed + 2);
  std::vector<float> c = numbers(3), d = c, y = c;
  library.sgemm("N", "T", &n, &n, &n, &alpha, a.data(), &n, b.data(), &n, &beta, c.data(), &n);
  library.ssyrk("L", "N", &n, &n, &alpha, a.data(), &n, &beta, d.data(), &n);
  library.sgemv("T", &n, &n, &alpha, a.data(), &n, b.data(), &one, &beta, y.data(), &one);
  return join(c, d, y);
}

// Singular values of a matrix.
Results decompose(const quorin_library& library, int seed) {
  const std::int32_t n = 70, lwork = 2000;
  std::int32_t info = -1;
  std::vector<float> a = whole_numbers(4900, static_cast<std::uint32_t>(seed)), s(70), u(4900), vt(4900), work(2000);
  library.sgesvd("A", "A", &n, &n, a.data(), &n, s.data(), u.data(), &n, vt.data(), &n, work.data(), &lwork, &info);
  return info == 0 ? join(s, u, vt) : Results{};
}

Results evaluate_bessel(const quorin_library& library, int seed) {
  const std::int32_t count = 8, by_value = 1, no_derivative = 0;
  Results all;
  for (const double size : {0.5, 7.0, 40.0, 900.0}) {
    const quorin_double_complex z{size * std::cos(0.3 + seed), size * std::sin(0.3 + seed)};
    for (const double order : {0.25, 60.0}) {
      quorin_double_complex y[8];
      std::int32_t underflows = -1, error = -1;
      library.CBESJ(&z, &order, &by_value, &count, y, &underflows, &error);
      if (error != 0 && error != 2) return {};
      for (const auto& value : y) all.insert(all.end(), {error == 0 ? value.re : 0.0, error == 0 ? value.im : 0.0});
    }
    quorin_double_complex ai{};
    std::int32_t underflows = -1, error = -1;
    library.CAIRY(&z, &no_derivative, &by_value, &ai, &underflows, &error);
    all.insert(all.end(), {error == 0 ? ai.re : 0.0, error == 0 ? ai.im : 0.0});
  }
  return all;
}

void QUORIN_CDECL rosenbrock(std::int32_t*, std::int32_t*, float* x, float* f) {
  f[0] = 10 * (x[1] - x[0] * x[0]);
  f[1] = 1 - x[0];
}

// Rosenbrock's valley, with the library's own Jacobian.
Results fit(const quorin_library& library, int seed) {
  std::int32_t two = 2, most = 500;
  float x[] = {-1.2F - 0.1F * static_cast<float>(seed), 1}, f[2] = {}, jacobian[4] = {};
  const float eps[] = {1e-5F, 1e-5F, 1e-5F, 1e-5F, 1e-5F, 0.1F}, step = 1e-3F, rs = 0;
  void* handle = nullptr;
  constexpr std::int32_t kSuccess = 1501;
  if (library.strnlsp_init(&handle, &two, &two, x, eps, &most, &most, &rs) != kSuccess) return {};
  std::int32_t request = 0;
  while (library.strnlsp_solve(&handle, f, jacobian, &request) == kSuccess && request >= 0) {
    if (request == 1) rosenbrock(&two, &two, x, f);
    if (request == 2 && library.sjacobi(rosenbrock, &two, &two, jacobian, x, &step) != kSuccess) return {};
  }
  if (library.strnlsp_delete(&handle) != kSuccess) return {};
  return {x[0], x[1], f[0], f[1], static_cast<double>(request)};
}

Results pack(const quorin_library& library, int seed) {
  const std::int32_t n = 5, places[] = {8, 0, 3, 3, 6};
  const std::vector<float> a = whole_numbers(9, static_cast<std::uint32_t>(seed));
  std::vector<float> y(5, 9);
  library.vspackv(&n, a.data(), places, y.data());
  return join(y);
}

Results conjugate_gradients(const quorin_library& library, int seed) {
  const Line a(80, seed);
  std::vector<std::int32_t> ipar(128);
  std::vector<double> x(80), dpar(128), tmp(320);
  std::int32_t request = -1;
  library.DCG_INIT(&a.n, x.data(), a.b.data(), &request, ipar.data(), dpar.data(), tmp.data());
  ipar[8] = 1, ipar[9] = 0;
  library.DCG_CHECK(&a.n, x.data(), a.b.data(), &request, ipar.data(), dpar.data(), tmp.data());
  if (request != 0) return {};
  do {
    library.DCG(&a.n, x.data(), a.b.data(), &request, ipar.data(), dpar.data(), tmp.data());
    if (request == 1) a.multiply(tmp.data(), tmp.data() + 80);
  } while (request == 1);
  return request == 0 ? join(x) : Results{};
}

Results design_and_filter(const quorin_library& library, int seed) {
  const std::int32_t taps = 31 + 2 * seed, bands = 2, multiband = 1, by_default = 0, order = 12;
  const double edges[] = {0, 0.1, 0.2, 0.5}, desired[] = {1, 0}, weight[] = {1, 10};
  std::vector<double> h(static_cast<std::size_t>(taps));
  std::int32_t error = -1;
  library.REMEZ(h.data(), &taps, &bands, edges, desired, weight, &multiband, &by_default, &by_default, &error);
  std::vector<float> row(12), b(12, 1), x(12), work(24);
  for (int i = 0; i < order; ++i) row[static_cast<std::size_t>(i)] = 1.0F / static_cast<float>(i * i + 1 + seed);
  library.TSLS1(row.data(), row.data() + 1, b.data(), x.data(), work.data(), work.data() + 12, &order);
  return error == 0 ? join(h, x) : Results{};
}

Results solve_by_gmres(const quorin_library& library, int seed) {
  const Line line(60, seed);
  std::vector<std::int32_t> ia, ja, iwork(2000);
  for (std::size_t k = 0; k < line.rows.size(); ++k) {
    ia.push_back(line.rows[k] + 1);
    ja.push_back(line.columns[k] + 1);
  }
  std::vector<float> a(line.values.begin(), line.values.end()), b(line.b.begin(), line.b.end()), x(60), rwork(5000);
  const std::int32_t nelt = static_cast<std::int32_t>(a.size()), isym = 0, nsave = 10, itol = 1, itmax = 100, iunit = 0;
  const std::int32_t lenw = 5000, leniw = 2000;
  float tolerance = 1e-4F, error = -1;
  std::int32_t iterations = -1, status = -1;
  library.SSLUGM(&line.n, b.data(), x.data(), &nelt, ia.data(), ja.data(), a.data(), &isym, &nsave, &itol, &tolerance,
                 &itmax, &iterations, &error, &status, &iunit, rwork.data(), &lenw, iwork.data(), &leniw);
  return status == 0 ? join(x) : Results{};
}

Results order_and_permute(const quorin_library& library, int seed) {
  const Line line(90, seed);
  taucs_ccs_matrix* const whole =
      library.taucs_ccs_create(line.n, line.n, 179, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER);
  if (whole == nullptr) return {};
  std::int32_t entries = 0;
  for (std::size_t k = 0; k < line.rows.size(); ++k) {
    if (line.rows[k] == line.columns[k]) whole->colptr[line.columns[k]] = entries;
    if (line.rows[k] < line.columns[k]) continue;
    whole->rowind[entries] = line.rows[k];
    whole->values.d[entries++] = line.values[k];
  }
  whole->colptr[line.n] = entries;
  Results all;
  bool has_failed = false;
  for (const char* const name : {"camd", "metis", "genmmd"}) {
    std::int32_t *perm = nullptr, *inverse = nullptr;
    library.taucs_ccs_order(whole, &perm, &inverse, name);
    taucs_ccs_matrix* const permuted =
        perm == nullptr ? nullptr : library.taucs_ccs_permute_symmetrically(whole, perm, inverse);
    std::vector<double> y(90);
    if (permuted != nullptr) library.taucs_ccs_times_vec(permuted, line.b.data(), y.data());
    has_failed |= permuted == nullptr;
    if (!has_failed) all = join(all, y, std::span(perm, 90));
    library.taucs_ccs_free(permuted);
    std::free(perm);
    std::free(inverse);
  }
  library.taucs_ccs_free(whole);
  return has_failed ? Results{} : all;
}

Results solve_by_lu(const quorin_library& library, int seed) {
  const Line line(70, seed);
  const std::vector<float> a(line.values.begin(), line.values.end()), b(line.b.begin(), line.b.end());
  std::vector<float> x(70);
  const std::int32_t *starts = line.starts.data(), *rows = line.rows.data();
  void *symbolic = nullptr, *numeric = nullptr;
  int status = library.umfpack_di_symbolic(line.n, line.n, starts, rows, a.data(), &symbolic, nullptr, nullptr);
  if (status == 0) status = library.umfpack_di_numeric(starts, rows, a.data(), symbolic, &numeric, nullptr, nullptr);
  if (status == 0)
    status = library.umfpack_di_solve(0, starts, rows, a.data(), x.data(), b.data(), numeric, nullptr, nullptr);
  library.umfpack_di_free_symbolic(&symbolic);
  library.umfpack_di_free_numeric(&numeric);
  return status == 0 ? join(x) : Results{};
}

// 2 + seed on the diagonal, -1 beside it; one-based rows of the upper triangle.
struct Chain {
  explicit Chain(std::int32_t order, int seed) : n(order) {
    for (std::int32_t i = 1; i <= n; ++i) {
      starts.push_back(static_cast<std::int32_t>(columns.size()) + 1);
      columns.push_back(i);
      values.push_back(static_cast<float>(2 + seed));
      if (i == n) break;
      columns.push_back(i + 1);
      values.push_back(-1);
    }
    starts.push_back(static_cast<std::int32_t>(columns.size()) + 1);
  }
  std::int32_t n;
  std::vector<std::int32_t> starts, columns;
  std::vector<float> values;
};

Results solve_directly(const quorin_library& library, int seed) {
  constexpr std::int32_t kOrder = 70;
  const Chain A(kOrder, seed);
  void* pt[QUORIN_PARDISO_HANDLE_WORDS] = {};
  std::int32_t iparm[QUORIN_PARDISO_PARAMETERS];
  const std::int32_t kind = QUORIN_PARDISO_REAL_SYMMETRIC, one = 1, silent = 0;
  library.sPARDISOINIT(pt, &kind, iparm);
  iparm[27] = 1;
  std::vector<float> b(kOrder, 1), x(kOrder);
  std::int32_t error = 0, ignored = 0;
  for (std::int32_t phase : {QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, QUORIN_PARDISO_FREE_ALL}) {
    library.PARDISO(pt, &one, &one, &kind, &phase, &A.n, A.values.data(), A.starts.data(), A.columns.data(), nullptr,
                    &one, iparm, &silent, b.data(), x.data(), phase > 0 ? &error : &ignored);
  }
  return error == 0 ? Results(x.begin(), x.end()) : Results{};
}

Results find_eigenvalues(const quorin_library& library, int seed) {
  const Chain A(30, seed);
  std::int32_t fpm[128], loop = 0, room = 10, found = 0, info = -1;
  library.feastinit_32f(fpm);
  const float from = static_cast<float>(seed), to = from + 0.5F;
  float error = 0;
  std::vector<float> e(10), x(300), residuals(10);
  library.sfeast_scsrev("U", &A.n, A.values.data(), A.starts.data(), A.columns.data(), fpm, &error, &loop, &from, &to,
                        &room, e.data(), x.data(), &found, residuals.data(), &info);
  return info == 0 ? Results(e.begin(), e.begin() + found) : Results{};
}

constexpr FamilyCall kCalls[] = {
    {"blas, vectors", vectors},   {"blas, matrices", matrices},  {"lapack", decompose},
    {"amos", evaluate_bessel},    {"least squares", fit},        {"pack", pack},
    {"rci", conjugate_gradients}, {"signal", design_and_filter}, {"slap", solve_by_gmres},
    {"taucs", order_and_permute}, {"umfpack", solve_by_lu},      {"pardiso", solve_directly},
    {"feast", find_eigenvalues},
};

}  // namespace

std::span<const FamilyCall> family_calls() { return kCalls; }

void run_family_call(const FamilyCall& call, const quorin_library& library, int seed, Results& results) {
  results = call.run(library, seed);
}

}  // namespace quorin::test
