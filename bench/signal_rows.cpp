// Time of equiripple designs by length, and of Toeplitz systems against a dense solver.
#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <vector>

#include "bench/dense_solver.hpp"
#include "bench/operands.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

// A low-pass filter whose transition band shrinks with its length, so that the ripple stays about the same.
auto design_call(const quorin_library& library, int taps) {
  const std::array<double, 4> bands = {0, 0.1, 0.1 + 2.0 / taps, 0.5};
  return [remez = library.REMEZ, taps, bands, h = Array<double>(static_cast<std::size_t>(taps))] {
    constexpr std::array<double, 2> kDesired = {1, 0}, kWeight = {1, 10};
    constexpr int kBands = 2, kMultiband = 1, kByDefault = 0;
    int error = -1;
    remez(h.data(), &taps, &kBands, bands.data(), kDesired.data(), kWeight.data(), &kMultiband, &kByDefault,
          &kByDefault, &error);
    if (error != 0) throw std::runtime_error("REMEZ does not converge");
  };
}

// A random system with a dominant diagonal.
struct ToeplitzSystem {
  explicit ToeplitzSystem(int m)
      : order(static_cast<std::size_t>(m)), row(order), column(order), right_hand_side(order), solution(order) {
    row[0] = static_cast<float>(m);
  }

  void write_matrix(float* a) const {
    for (std::size_t j = 0; j < order; ++j) {
      float* const a_j = a + j * order;
      for (std::size_t i = 0; i <= j; ++i) a_j[i] = row[j - i];
      for (std::size_t i = j + 1; i < order; ++i) a_j[i] = column[i - j - 1];
    }
  }

  std::size_t order;
  Array<float> row, column, right_hand_side, solution;
};

auto toeplitz_call(const quorin_library& library, int m) {
  const auto order = static_cast<std::size_t>(m);
  return [solve = library.TSLS1, m, system = ToeplitzSystem(m), c1 = Array<float>(order), c2 = Array<float>(order)] {
    solve(system.row.data(), system.column.data(), system.right_hand_side.data(), system.solution.data(), c1.data(),
          c2.data(), &m);
  };
}

// The dense solver destroys the matrix, which each call therefore writes: a small part of its time.
auto dense_call(DenseSolver* solve, int m) {
  return [solve, m, system = ToeplitzSystem(m), a = square_matrix<float>(m),
          pivots = std::vector<int>(static_cast<std::size_t>(m))]() mutable {
    constexpr int kOne = 1;
    int info = -1;
    system.write_matrix(a.data());
    std::copy_n(system.right_hand_side.data(), system.order, system.solution.data());
    solve(&m, &kOne, a.data(), &m, pivots.data(), system.solution.data(), &m, &info);
    if (info != 0) throw std::runtime_error("sgesv fails");
  };
}

Row time_row(const char* operation, int size, double flops) {
  return {"signal", operation, size, 1, flops, Unit::kTime};
}

}  // namespace

void add_signal_rows(Suite& suite) {
  const Libraries& libraries = suite.libraries();
  for (const int taps : suite.sizes({50, 101, 200, 501, 1000, 2000}, {50, 200, 2000})) {
    // Some exchanges, each a sum over all coefficients at each point of the search.
    const double flops = 1000.0 * taps * taps;
    suite.measure(time_row("REMEZ", taps, flops), "quorin",
                  [&libraries, taps] { return design_call(libraries.product, taps); });
  }
  DenseSolver* const solve = dense_solver(libraries);
  for (const int m : suite.sizes({10, 50, 100, 200, 500, 1000, 2000}, {10, 100, 1000})) {
    const Row row = time_row("TSLS1", m, 2.0 / 3 * m * m * m);
    suite.measure(row, "quorin", [&libraries, m] { return toeplitz_call(libraries.product, m); });
    suite.measure(row, "lapack", [&libraries, solve, m] {
      libraries.product.set_threads(1);
      return dense_call(solve, m);
    });
  }
}

}  // namespace quorin::bench
