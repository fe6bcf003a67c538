// The SLAP solvers: what an iteration costs beside the memory's limit, and the time to a solution beside Eigen's.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/sparse_solver.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

constexpr int kDirections = 20;

using test::SparseMatrix;

// Symmetric, barely dominant, with about 11 entries a row at places without order: little is found in a cache.
SparseMatrix scattered(int order) {
  SparseMatrix a;
  std::vector<float> sums(static_cast<std::size_t>(order));
  std::uint32_t bits = 0x9E3779B9;
  const auto add = [&](int row, int column) {
    a.add(row, column, -1);
    ++sums[static_cast<std::size_t>(row)];
  };
  for (int row = 0; row < order; ++row) {
    for (int k = 0; k < 5; ++k) {
      bits = bits * 1664525 + 1013904223;
      const int column = static_cast<int>(bits >> 8) % order;
      if (column == row) continue;
      add(row, column);
      add(column, row);
    }
  }
  for (int row = 0; row < order; ++row) a.add(row, row, 1.01F * sums[static_cast<std::size_t>(row)]);
  return a;
}

// Smooth, so that it takes iterations to carry it across a grid.
std::vector<float> right_hand_side(int order) {
  std::vector<float> b(static_cast<std::size_t>(order));
  for (std::size_t i = 0; i < b.size(); ++i) b[i] = static_cast<float>(1 + std::sin(0.001 * static_cast<double>(i)));
  return b;
}

struct Solver {
  std::string name;
  decltype(quorin_library::SSDCG) quorin_library::*common;
  decltype(quorin_library::SSDGMR) quorin_library::*with_directions;
  bool is_symmetric;
  // Of an iteration: products with A, solves with a whole set of factors, passes over vectors of n.
  double products, solves, vectors;
  PeerIteration peer;
  PeerPreconditioner peer_preconditioner;
  double entry = 4;  // bytes of a vector's entry
};

// Passes: each read or written vector of a step counts one; a solve's own (in, out, pivots) are counted with the solve.
std::vector<Solver> solvers() {
  using I = PeerIteration;
  using M = PeerPreconditioner;
  using L = quorin_library;
  constexpr double kCg = 2 + 3 + 2 + 3 + 3 + 1, kDiagonal = 3;
  // In double; x and its low part are floats. Its products touch three vectors less: one adds to the residual at once,
  // the other, with A^T, reads and writes.
  constexpr double kNormal = 2 + 3 + 1 + 3 + 1 - 3, kBicg = 2 + 3 + 3 + 2 + 3 + 3 + 3 + 1,
                   kCgs = 2 + 7 + 2 + 4 + 3 + 3 + 1;
  constexpr double kRefinement = 3 + 3 + 1, m = kDirections;
  // A new direction is made orthogonal to 0, 1 .. m others.
  constexpr double kOrthomin = m * (2 + 3 + 3) + 2 + 2 + 3 + 3 + 1, kGmres = (m + 1) / 2 * (2 + 3) + 1 + 1 + 2 + 3;
  return {
      {"SSDCG", &L::SSDCG, nullptr, true, 1, 0, kCg + kDiagonal, I::kCg, M::kDiagonal},
      {"SSICCG", &L::SSICCG, nullptr, true, 1, 1, kCg, I::kCg, M::kIncomplete},
      {"SSDCGN", &L::SSDCGN, nullptr, false, 2, 0, kNormal + kDiagonal, I::kLeastSquaresCg, M::kDiagonal, 8},
      {"SSLUCN", &L::SSLUCN, nullptr, false, 2, 2, kNormal, I::kLeastSquaresCg, M::kDiagonal, 8},
      {"SSDBCG", &L::SSDBCG, nullptr, false, 2, 0, kBicg + 2 * kDiagonal, I::kBicgstab, M::kDiagonal},
      {"SSLUBC", &L::SSLUBC, nullptr, false, 2, 2, kBicg, I::kBicgstab, M::kIncomplete},
      {"SSDCGS", &L::SSDCGS, nullptr, false, 2, 0, kCgs + 2 * kDiagonal, I::kBicgstab, M::kDiagonal},
      {"SSLUCS", &L::SSLUCS, nullptr, false, 2, 2, kCgs, I::kBicgstab, M::kIncomplete},
      {"SSDGMR", nullptr, &L::SSDGMR, false, 1, 0, kGmres + kDiagonal, I::kGmres, M::kDiagonal},
      {"SSLUGM", nullptr, &L::SSLUGM, false, 1, 1, kGmres, I::kGmres, M::kIncomplete},
      {"SSDOMN", nullptr, &L::SSDOMN, false, 1, 0, kOrthomin + kDiagonal, I::kGmres, M::kDiagonal},
      {"SSLUOM", nullptr, &L::SSLUOM, false, 1, 1, kOrthomin, I::kGmres, M::kIncomplete},
      {"SSJAC", &L::SSJAC, nullptr, false, 1, 0, kRefinement + kDiagonal, I::kBicgstab, M::kDiagonal},
      {"SSGS", &L::SSGS, nullptr, false, 1, 0.5, kRefinement, I::kBicgstab, M::kDiagonal},
      {"SSILUR", &L::SSILUR, nullptr, false, 1, 1, kRefinement, I::kBicgstab, M::kIncomplete},
  };
}

// Bytes that an iteration has to touch: a product reads A and x, and clears, reads and writes y; a solve reads the
// factors, and each entry of the vector twice and writes it twice.
double bytes_per_iteration(const Solver& s, const SparseMatrix& a) {
  const double n = a.rows, entries = static_cast<double>(a.entries.size());
  const double product = 8 * entries + 4 * n + 4 * (s.entry * n);
  const double solve = 8 * (entries - n) + 2 * 4 * n + 4 * n + 4 * (s.entry * n);
  return s.products * product + s.solves * solve + s.vectors * s.entry * n;
}

double footprint(const Solver& s, const SparseMatrix& a) {
  const double n = a.rows, entries = static_cast<double>(a.entries.size());
  const double directions = s.with_directions == nullptr ? 0 : 2 * kDirections;
  return 8 * entries * (s.solves > 0 ? 2 : 1) + 4 * n * (8 + directions);
}

class SlapCall {
 public:
  // `limit` iterations if that is positive, else until the residual is 1e-4 of the right-hand side.
  SlapCall(const quorin_library& library, const Solver& s, const SparseMatrix& a, int limit)
      : solver_(s), library_(library), n_(a.rows), limit_(limit), b_(right_hand_side(a.rows)) {
    const auto n = static_cast<std::size_t>(n_), entries = a.entries.size();
    nelt_ = static_cast<int>(entries);
    for (const test::Entry& e : a.entries) {
      rows_.push_back(e.row + 1);
      columns_.push_back(e.column + 1);
      values_.push_back(static_cast<float>(e.value.real()));
    }
    columns_.resize(std::max(entries, n + 2));
    library_.SS2Y(&n_, &nelt_, rows_.data(), columns_.data(), values_.data(), &kFull);
    rwork_.resize(2 * entries + n * (3 * kDirections + 12) + kDirections * (kDirections + 4));
    iwork_.resize(2 * entries + 5 * n + 64);
    x_.resize(n);
  }

  void operator()() {
    std::fill(x_.begin(), x_.end(), 0.0F);
    float tolerance = 1e-4F, error = 0;
    const int itol = 1, most = limit_ > 0 ? limit_ : 20000, unit = 0, length = 0;
    int iterations = 0, status = -1;
    if (solver_.common != nullptr) {
      (library_.*solver_.common)(&n_, b_.data(), x_.data(), &nelt_, rows_.data(), columns_.data(), values_.data(),
                                 &kFull, &itol, &tolerance, &most, &iterations, &error, &status, &unit, rwork_.data(),
                                 &length, iwork_.data(), &length);
    } else {
      (library_.*solver_.with_directions)(&n_, b_.data(), x_.data(), &nelt_, rows_.data(), columns_.data(),
                                          values_.data(), &kFull, &kDirections, &itol, &tolerance, &most, &iterations,
                                          &error, &status, &unit, rwork_.data(), &length, iwork_.data(), &length);
    }
    if (status != (limit_ > 0 ? 2 : 0)) throw std::runtime_error(solver_.name + " does not do what the row expects");
  }

 private:
  static constexpr int kFull = 0;
  Solver solver_;
  const quorin_library& library_;
  int n_, nelt_ = 0, limit_;
  std::vector<int> rows_, columns_;
  std::vector<float> values_;
  std::vector<float> b_, x_, rwork_;
  std::vector<int> iwork_;
};

void add_iteration_row(Suite& suite, const Solver& s, int side) {
  // The set-up counts as nothing, so there are enough iterations to make it little. None converges in so many.
  constexpr int kIterations = 40;
  const SparseMatrix a = test::convection_diffusion(side, 0);
  const Row row{"slap-iteration", s.name,        a.rows,         1, kIterations * bytes_per_iteration(s, a),
                Unit::kByte,      Limit::kTriad, footprint(s, a)};
  suite.measure(row, "quorin", [&library = suite.libraries().product, s, side] {
    return SlapCall(library, s, test::convection_diffusion(side, 0), kIterations);
  });
  suite.add_limit(row);
}

void add_solution_row(Suite& suite, const Solver& s, const SparseMatrix& a) {
  const Row row{"slap-solution", s.name, a.rows, 1, 3e9, Unit::kTime};
  suite.measure(row, "quorin", [&library = suite.libraries().product, s, a] { return SlapCall(library, s, a, 0); });
  if (!EigenSolver::is_there()) return;
  suite.measure(row, "eigen", [s, a] {
    return [b = right_hand_side(a.rows), peer = EigenSolver(a, s.peer, s.peer_preconditioner, kDirections)]() mutable {
      peer.solve(b, 1e-4F);
    };
  });
}

}  // namespace

void add_slap_rows(Suite& suite) {
  for (const Solver& s : solvers()) {
    for (const int side : suite.sizes({100, 1000}, {300})) add_iteration_row(suite, s, side);
  }
  // The orders tell the problems apart in the tables.
  const SparseMatrix poisson = test::convection_diffusion(100, 0), wind = test::convection_diffusion(150, 200),
                     random = scattered(5000);
  for (const Solver& s : solvers()) {
    add_solution_row(suite, s, poisson);
    if (!s.is_symmetric) add_solution_row(suite, s, wind);
    add_solution_row(suite, s, random);
  }
}

}  // namespace quorin::bench
