// TAUCS: sparse systems through the driver and its options, each solution held against the matrix.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();
constexpr int kSymmetric = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;

using Complex = std::complex<double>;
using Options = std::vector<std::string>;
using Matrix = std::unique_ptr<taucs_ccs_matrix, decltype(Library::taucs_ccs_free)>;

struct Entry {
  int row, column;
  Complex value;
};

// The entries, which come by columns.
Matrix made(const Library& library, int n, int flags, const std::vector<Entry>& entries) {
  Matrix A(library.taucs_ccs_create(n, n, static_cast<int>(entries.size()), flags), library.taucs_ccs_free);
  if (A == nullptr) return A;
  int k = 0;
  for (int j = 0; j < n; ++j) {
    A->colptr[j] = k;
    for (; k < static_cast<int>(entries.size()) && entries[static_cast<std::size_t>(k)].column == j; ++k) {
      const Entry& e = entries[static_cast<std::size_t>(k)];
      A->rowind[k] = e.row;
      if ((flags & TAUCS_DOUBLE) != 0) {
        A->values.d[k] = e.value.real();
      } else {
        static_cast<Complex*>(A->values.v)[k] = e.value;
      }
    }
  }
  A->colptr[n] = k;
  return A;
}

// -laplace u on k x k x k points; the flow of a current turns the phase by `turn` from one point to the next.
std::vector<Entry> poisson(int k, Complex turn = 1) {
  std::vector<Entry> entries;
  for (int v = 0; v < k * k * k; ++v) {
    entries.push_back({v, v, 6.1});
    if (v % k + 1 < k) entries.push_back({v + 1, v, -turn});
    if (v / k % k + 1 < k) entries.push_back({v + k, v, -1});
    if (v / (k * k) + 1 < k) entries.push_back({v + k * k, v, -1});
  }
  return entries;
}

// A grid whose weights are powers of ten from 1e-3 to 1e3, without order.
std::vector<Entry> scattered(int k) {
  std::vector<Entry> entries;
  std::vector<double> diagonal(static_cast<std::size_t>(k) * static_cast<std::size_t>(k), 1e-3);
  std::uint32_t bits = 1;
  for (int v = 0; v < k * k; ++v) {
    entries.push_back({v, v, 0});
    for (const int w : {v % k + 1 < k ? v + 1 : v, v + k < k * k ? v + k : v}) {
      if (w == v) continue;
      bits = bits * 1664525 + 1013904223;
      const double weight = std::pow(10.0, static_cast<int>(bits >> 16) % 7 - 3);
      entries.push_back({w, v, -weight});
      diagonal[static_cast<std::size_t>(v)] += weight;
      diagonal[static_cast<std::size_t>(w)] += weight;
    }
  }
  for (Entry& e : entries) {
    if (e.row == e.column) e.value = diagonal[static_cast<std::size_t>(e.row)];
  }
  return entries;
}

// [H B^T; B 0]: k^2 unknowns of a grid and k constraints, each on a row of the grid.
std::vector<Entry> saddle_point(int k) {
  std::vector<Entry> entries;
  for (int v = 0; v < k * k; ++v) {
    entries.push_back({v, v, 4.2});
    if (v % k + 1 < k) entries.push_back({v + 1, v, -1});
    if (v + k < k * k) entries.push_back({v + k, v, -1});
    entries.push_back({k * k + v / k, v, 1});
  }
  return entries;
}

template <class T>
std::vector<T> right_hand_side(int n) {
  std::vector<T> b(static_cast<std::size_t>(n));
  for (std::size_t i = 0; i < b.size(); ++i) b[i] = 1 + std::sin(static_cast<double>(i));
  return b;
}

// ||b - A x|| / (||A|| ||x|| + ||b||) in the maximum norm.
template <class T>
double residual(const taucs_ccs_matrix& A, const std::vector<T>& x, const std::vector<T>& b) {
  std::vector<T> r = b;
  std::vector<double> sums(x.size());
  const T* const values = static_cast<const T*>(A.values.v);
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const auto i = static_cast<std::size_t>(A.rowind[k]), column = static_cast<std::size_t>(j);
      r[i] -= values[k] * x[column];
      sums[i] += std::abs(values[k]);
      if (i == column) continue;
      sums[column] += std::abs(values[k]);
      if constexpr (std::is_same_v<T, Complex>) {
        r[column] -= std::conj(values[k]) * x[i];
      } else {
        r[column] -= values[k] * x[i];
      }
    }
  }
  const auto largest = [](const std::vector<T>& v) {
    double most = 0;
    for (const T& entry : v) most = std::fmax(most, std::abs(entry));
    return most;
  };
  return largest(r) / (*std::max_element(sums.begin(), sums.end()) * largest(x) + largest(b));
}

// The driver with a factor handle, released in the end.
class Solver {
 public:
  explicit Solver(const Library& library) : library_(library) {}
  Solver(const Solver&) = delete;
  Solver& operator=(const Solver&) = delete;
  ~Solver() { library_.taucs_linsolve(nullptr, &factor_, 0, nullptr, nullptr, nullptr, nullptr); }

  // The residual of the solution, or kNever.
  template <class T = double>
  double solve(const Matrix& A, Options options, Timer& timer) {
    if (A == nullptr) return kNever;
    std::vector<char*> texts;
    for (std::string& option : options) texts.push_back(option.data());
    texts.push_back(nullptr);
    const std::vector<T> b = right_hand_side<T>(A->n);
    std::vector<T> x(b.size());
    int32_t status = 0;
    timer.time(
        [&] { status = library_.taucs_linsolve(A.get(), &factor_, 1, x.data(), b.data(), texts.data(), nullptr); });
    return status == TAUCS_SUCCESS ? residual(*A, x, b) : kNever;
  }
  // Of L D L^T: zero, positive and negative eigenvalues.
  std::vector<int32_t> inertia() const {
    struct FactorObject {
      int32_t n, flags, kind;
      int32_t *perm, *invperm;
      void* factor;
    };
    std::vector<int32_t> count(3);
    if (factor_ != nullptr) library_.taucs_inertia_calc(static_cast<FactorObject*>(factor_)->factor, count.data());
    return count;
  }

 private:
  const Library& library_;
  void* factor_ = nullptr;
};

std::string size_text(const Matrix& A) {
  return A == nullptr ? "-" : std::to_string(A->n) + ", " + std::to_string(A->colptr[A->n]) + " entries";
}

const Options kCholesky = {"taucs.factor.LLT=true"};

Options with(Options options, const Options& more) {
  options.insert(options.end(), more.begin(), more.end());
  return options;
}

// In core by either method, out of core, and with the files that this leaves.
void cholesky_rows(const Library& library, const std::string& what, const Matrix& A, Report& report) {
  constexpr double kBound = 1e-14;
  const auto row = [&](const std::string& how, const Options& options) {
    report.row(what + ", " + how, size_text(A), kBound,
               [&](Timer& timer) { return Solver(library).solve(A, options, timer); });
  };
  row("L L^T", kCholesky);
  row("multifrontal", with(kCholesky, {"taucs.factor.mf=true"}));
  const std::string name = (std::filesystem::temp_directory_path() / "quorin-demo-factor").string();
  const Options files = {"taucs.ooc=true", "taucs.ooc.basename=" + name, "taucs.ooc.memory=32e6"};
  row("in files, with 32 MB of memory", with(kCholesky, files));
  row("files opened again", with({"taucs.factor=false"}, files));
  for (const char* const end : {".index", ".0"}) std::filesystem::remove(name + end);
}

}  // namespace

void taucs_solver_rows(const Library& library, Report& report) {
  report.heading("TAUCS solvers");
  const std::string structure = std::string(QUORIN_MATRICES_DIR) + "/cxsparse/bcsstk16";
  cholesky_rows(library, "Structure",
                Matrix(library.taucs_ccs_read_ijv_zero_based(structure.c_str(), kSymmetric), library.taucs_ccs_free),
                report);
  const Matrix A = made(library, 27000, kSymmetric, poisson(30));
  cholesky_rows(library, "Poisson in 3-D", A, report);

  report.row("Poisson, new values in the old pattern", size_text(A), 1e-14, [&](Timer& timer) {
    Solver solver(library);
    Timer untimed;
    const Options phases = with(kCholesky, {"taucs.factor.mf=true"});
    double error = solver.solve(A, phases, untimed);
    for (int j = 0; j < A->n; ++j) A->values.d[A->colptr[j]] += 1 + j % 3;
    error = std::fmax(error, solver.solve(A, with(phases, {"taucs.factor.symbolic=false"}), timer));
    return std::fmax(error, solver.solve(A, {"taucs.factor=false"}, untimed));
  });

  constexpr int kSide = 60;
  const Matrix K = made(library, kSide * kSide + kSide, kSymmetric, saddle_point(kSide));
  report.row("Saddle point, L D L^T and its inertia", size_text(K), 1e-14, [&](Timer& timer) {
    Solver solver(library);
    const double error = solver.solve(K, with(kCholesky, {"taucs.factor.indefinite=true"}), timer);
    return solver.inertia() == std::vector<int32_t>{0, kSide * kSide, kSide} ? error : kNever;
  });

  const Matrix H =
      made(library, 8000, TAUCS_DCOMPLEX | TAUCS_HERMITIAN | TAUCS_LOWER, poisson(20, std::polar(1.0, 0.4)));
  report.row("Hermitian, L L^H", size_text(H), 1e-14,
             [&](Timer& timer) { return Solver(library).solve<Complex>(H, kCholesky, timer); });

  const Matrix S = made(library, 10000, kSymmetric, scattered(100));
  report.row("Scattered weights, CG with AMWB", size_text(S), 1e-8, [&](Timer& timer) {
    return Solver(library).solve(
        S,
        with(kCholesky, {"taucs.solve.cg=true", "taucs.solve.convergetol=1e-8", "taucs.approximate.amwb=true",
                         "taucs.approximate.amwb.subgraphs=1000"}),
        timer);
  });
}

}  // namespace demo
