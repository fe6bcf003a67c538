// The quadrature that filters the eigenvectors of an interval out of a subspace.
#pragma once

#include <array>
#include <complex>

namespace quorin::feast {

// Nodes t_k, descending, and weights of the Gauss-Legendre rule with `count` nodes on [-1, 1], to rounding: Newton's
// iteration on the Legendre polynomial (Davis, Rabinowitz, Methods of Numerical Integration, 2nd ed., 2.7).
void gauss_legendre(int count, double* nodes, double* weights);

// A closed interval.
struct Interval {
  double low, high;
  double centre() const { return (low + high) / 2; }
  double radius() const { return (high - low) / 2; }
};

// The circle over the interval as diameter. By symmetry its upper half is enough: the filter
//   rho(lambda) = sum_k Re(weight_k / (point_k - lambda))
// is about 1 inside the interval, 1/2 at its ends, and falls off outside. No point is real.
//
// Polizzi, Phys. Rev. B 79 (2009) 115112, section III.
class Contour {
 public:
  static constexpr int kMostNodes = 48;

  struct Node {
    std::complex<double> point, weight;
  };

  Contour() = default;
  Contour(const Interval& interval, int nodes);
  int size() const { return size_; }
  const Node& operator[](int k) const { return nodes_[static_cast<std::size_t>(k)]; }

 private:
  int size_ = 0;
  std::array<Node, kMostNodes> nodes_{};
};

}  // namespace quorin::feast
