// The Jacobian matrix by central differences, cut at the points where the host computes F.
#pragma once

#include <cstddef>

#include "base/handle_table.hpp"
#include "generated/jacobi_constants.hpp"

namespace quorin::jacobi {

using enum Request;

// J(:,j) = (F(x + h e_j) - F(x - h e_j)) / 2 h for j = 1...n, h = eps. The entry of x becomes a float on either side;
// what is divided by is the distance of the two, so that their rounding leaves no trace. If both round to the same
// number, h = |x_j| / 256. A side that would be infinite is x_j itself.
class CentralDifferences : public base::HandleNode {
 public:
  CentralDifferences(std::size_t n, std::size_t m, float* x, float* jacobian, float eps)
      : n_(n), m_(m), x_(x), jacobian_(jacobian), eps_(eps) {}

  explicit operator bool() const { return true; }

  // Takes F of the last request and changes x for the next one; x is as it was, bit for bit, when there are no more. A
  // further call begins anew.
  [[nodiscard]] Request advance(const float* forward, const float* backward);

 private:
  Request begin_column();
  void write_column(const float* forward, const float* backward);
  void choose_points(float h);

  std::size_t n_, m_;
  float* x_;
  float* jacobian_;
  float eps_;
  Request asked_ = kDone;
  std::size_t column_ = 0;
  float centre_ = 0.0F, above_ = 0.0F, below_ = 0.0F;
};

}  // namespace quorin::jacobi
