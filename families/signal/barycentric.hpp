// A polynomial in x = cos t that is given by its values at nodes, in barycentric form.
//
// The form is stable wherever the nodes are spread as for a best approximation, at any degree, while the polynomial's
// coefficients are not (Berrut & Trefethen, SIAM Review 46 (2004) 501-517; Higham, IMA J. Numer. Anal. 24 (2004)
// 547-556).
#pragma once

#include <cstddef>

#include "base/workspace.hpp"

namespace quorin::signal {

// The number of points that are evaluated side by side.
inline constexpr int kLanes = 8;

class Barycentric {
 public:
  Barycentric() = default;
  explicit Barycentric(std::size_t capacity) : x_(capacity), weight_(capacity), value_(capacity), exponent_(capacity) {}
  explicit operator bool() const { return x_ && weight_ && value_ && exponent_; }

  int count() const { return count_; }
  double weight(int i) const { return weight_[i]; }
  double value(int i) const { return value_[i]; }

  // Takes `count` different nodes, descending, and computes their weights 1 / prod (x(i) - x(j)), all divided by the
  // largest. They alternate in sign, beginning with a positive one. Cost: count^2.
  void set_nodes(const double* x, int count);
  void set_value(int i, double value) { value_[i] = value; }

  // The polynomial at x[kLanes]. A point that is a node gets the node's value. Cost: kLanes count divisions.
  void evaluate(const double* x, double* result) const;

 private:
  base::Workspace<double> x_, weight_, value_;
  base::Workspace<int> exponent_;
  int count_ = 0;
};

}  // namespace quorin::signal
