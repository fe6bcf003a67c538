// Heat in a rod, by the sparse direct solver, which is an object, and by conjugate gradients, which take a lambda.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <exception>
#include <iostream>
#include <span>
#include <vector>

#include "quorin/pardiso.hpp"
#include "quorin/rci.hpp"

int main() try {
  // -u'' = 1 at n inner points, times the square of their distance. Of the matrix the upper triangle, by rows, counted
  // from 0.
  const int n = 99;
  std::vector<std::int32_t> starts{0}, columns;
  std::vector<double> values, u(n), v(n);
  const std::vector<double> heat(n, 1.0 / ((n + 1) * (n + 1)));
  for (int i = 0; i < n; ++i) {
    columns.push_back(i);
    values.push_back(2);
    if (i + 1 < n) {
      columns.push_back(i + 1);
      values.push_back(-1);
    }
    starts.push_back(static_cast<std::int32_t>(columns.size()));
  }
  quorin::pardiso::Solver<double> solver(quorin::pardiso::Kind::kPositiveDefinite);
  solver.analyze(starts, columns);
  solver.factor(values);
  solver.solve(heat, u);

  // The same without a matrix: its product with p. A callable may throw.
  const auto multiply = [](std::span<const double> p, std::span<double> product) {
    for (std::size_t i = 0; i < p.size(); ++i)
      product[i] = 2 * p[i] - (i > 0 ? p[i - 1] : 0) - (i + 1 < p.size() ? p[i + 1] : 0);
  };
  const auto result = quorin::rci::solve_cg(heat, v, multiply);

  const double middle = u[n / 2];
  std::cout << "middle: " << middle << " and, after " << result.iterations << " iterations, " << v[n / 2] << "\n";
  const double exact = 0.125;
  return result.converged() && std::abs(middle - exact) < 1e-9 && std::abs(v[n / 2] - exact) < 1e-6 ? 0 : 1;
} catch (const std::exception& error) {
  std::cerr << error.what() << "\n";
  return 1;
}
