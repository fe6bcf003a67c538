#include "families/signal/precise_polynomial.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorin::signal {
namespace {

using base::DoubleDouble;
using base::two_product;
using base::two_sum;

constexpr DoubleDouble kOne{1.0, 0.0};

DoubleDouble scale(DoubleDouble a, int power) { return {std::ldexp(a.hi, power), std::ldexp(a.lo, power)}; }

}  // namespace

// The weights are those of Barycentric::set_nodes. The differences of the nodes are exact.
void PrecisePolynomial::set_weights() {
  constexpr int kBetweenScalings = 8;
  int least = 0;
  for (int i = 0; i < count_; ++i) {
    DoubleDouble product = kOne;
    int total = 0;
    for (int begin = 0; begin < count_; begin += kBetweenScalings) {
      const int end = std::min(begin + kBetweenScalings, count_);
      for (int j = begin; j < end; ++j) {
        if (j != i) product = product * two_sum(2 * x_[i], -2 * x_[j]);
      }
      int power = 0;
      std::frexp(product.hi, &power);
      product = scale(product, -power);
      total += power;
    }
    weight_[i] = kOne / product;
    exponent_[i] = total;
    if (i == 0 || total < least) least = total;
  }
  for (int i = 0; i < count_; ++i) weight_[i] = scale(weight_[i], least - exponent_[i]);
}

void PrecisePolynomial::level(const Problem& problem, const Extremum* points, int count) {
  count_ = count;
  for (int i = 0; i < count; ++i) x_[i] = std::cos(points[i].t);
  set_weights();

  const auto shape = [&](int i) { return problem.shape(points[i].t, problem.bands[points[i].band]); };
  const auto band = [&](int i) -> const Band& { return problem.bands[points[i].band]; };
  const auto target = [&](int i) { return DoubleDouble{band(i).desired, 0.0} / DoubleDouble{shape(i), 0.0}; };
  const auto scatter = [&](int i) {  // s(i) / (W(i) S(i))
    return DoubleDouble{i % 2 == 0 ? 1.0 : -1.0, 0.0} / two_product(band(i).weight, shape(i));
  };
  DoubleDouble numerator{}, denominator{};
  for (int i = 0; i < count; ++i) {
    numerator = numerator + weight_[i] * target(i);
    denominator = denominator + weight_[i] * scatter(i);
  }
  const DoubleDouble leveled = numerator / denominator;
  for (int i = 0; i < count; ++i) value_[i] = target(i) - leveled * scatter(i);
}

PrecisePolynomial::Value PrecisePolynomial::evaluate(double x) const {
  constexpr double kRoundoff = 0x1p-103;
  DoubleDouble numerator{}, denominator{};
  double size = 0.0;
  for (int i = 0; i < count_; ++i) {
    const DoubleDouble difference = two_sum(x, -x_[i]);
    if (difference.hi == 0.0) return {value_[i].hi, 0.0};
    const DoubleDouble term = weight_[i] / difference;
    numerator = numerator + term * value_[i];
    denominator = denominator + term;
    size += std::abs(term.hi) * (1 + std::abs(value_[i].hi));
  }
  const double divisor = std::abs(denominator.hi);
  if (divisor <= kRoundoff * size) return {0.0, std::numeric_limits<double>::infinity()};
  const double value = (numerator / denominator).hi;
  return {value, kRoundoff * (size / divisor) * (1 + std::abs(value))};
}

}  // namespace quorin::signal
