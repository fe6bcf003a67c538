#include "families/signal/barycentric.hpp"

#include <algorithm>
#include <cmath>

namespace quorin::signal {
namespace {

// prod over j != i of 2 (x(i) - x(j)) as a number in [1/2, 1) and a power of two: the product itself leaves the range
// of a double when there are some hundred nodes. The factor 2 is for the interval [-1, 1], where the differences
// multiply to about 2^-n.
double scaled_product(const double* x, int count, int i, int& exponent) {
  constexpr int kBetweenScalings = 8;
  double product = 1.0;
  int total = 0;
  for (int begin = 0; begin < count; begin += kBetweenScalings) {
    const int end = std::min(begin + kBetweenScalings, count);
    for (int j = begin; j < end; ++j) product *= j == i ? 1.0 : 2 * (x[i] - x[j]);
    int power = 0;
    product = std::frexp(product, &power);
    total += power;
  }
  exponent = total;
  return product;
}

}  // namespace

void Barycentric::set_nodes(const double* x, int count) {
  count_ = count;
  std::copy_n(x, count, x_.data());
  int least = 0;
  for (int i = 0; i < count; ++i) {
    weight_[i] = scaled_product(x, count, i, exponent_[i]);
    if (i == 0 || exponent_[i] < least) least = exponent_[i];
  }
  for (int i = 0; i < count; ++i) weight_[i] = std::ldexp(1 / weight_[i], least - exponent_[i]);
}

// p(x) = sum w(i)/(x - x(i)) y(i) / sum w(i)/(x - x(i)). At a node the difference is replaced by one so small that the
// node's own terms are all that is left of both sums.
void Barycentric::evaluate(const double* x, double* result) const {
  constexpr double kTiny = 1e-150;
  double at[kLanes], numerator[kLanes]{}, denominator[kLanes]{};
  std::copy_n(x, kLanes, at);
  const double* const nodes = x_.data();
  const double* const weights = weight_.data();
  const double* const values = value_.data();
  for (int i = 0; i < count_; ++i) {
    for (int l = 0; l < kLanes; ++l) {
      const double difference = at[l] - nodes[i];
      const double term = weights[i] / (difference == 0.0 ? kTiny : difference);
      numerator[l] += term * values[i];
      denominator[l] += term;
    }
  }
  // Far from all nodes the divisor can cancel to nothing.
  for (int l = 0; l < kLanes; ++l) result[l] = numerator[l] / (denominator[l] == 0.0 ? kTiny : denominator[l]);
}

}  // namespace quorin::signal
