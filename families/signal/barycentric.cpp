#include "families/signal/barycentric.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/lanes.hpp"

namespace quorin::signal {
namespace {

// For kLanes nodes from x(i): prod over j != i of 2 (x(i) - x(j)) as a number in [1/2, 1) and a power of two, since the
// product itself leaves the range of a double when there are some hundred nodes. The factor 2 is for the interval
// [-1, 1], where the differences multiply to about 2^-n.
void scaled_products(const double* x, int count, const double* at, double* product, int* exponent) {
  constexpr int kBetweenScalings = 16;
  std::fill_n(product, kLanes, 1.0);
  std::fill_n(exponent, kLanes, 0);
  for (int begin = 0; begin < count; begin += kBetweenScalings) {
    const int end = std::min(begin + kBetweenScalings, count);
    for (int j = begin; j < end; ++j) {
      for (int l = 0; l < kLanes; ++l) product[l] *= at[l] == x[j] ? 1.0 : 2 * (at[l] - x[j]);
    }
    for (int l = 0; l < kLanes; ++l) {
      int power = 0;
      product[l] = std::frexp(product[l], &power);
      exponent[l] += power;
    }
  }
}

}  // namespace

void Barycentric::set_nodes(const double* x, int count) {
  count_ = count;
  std::copy_n(x, count, x_.data());
  int least = 0;
  for (int begin = 0; begin < count; begin += kLanes) {
    const int group = std::min(kLanes, count - begin);
    double at[kLanes]{}, product[kLanes];
    int exponent[kLanes];
    std::copy_n(x + begin, group, at);
    scaled_products(x, count, at, product, exponent);
    for (int l = 0; l < group; ++l) {
      weight_[begin + l] = product[l];
      exponent_[begin + l] = exponent[l];
      if (begin + l == 0 || exponent[l] < least) least = exponent[l];
    }
  }
  for (int i = 0; i < count; ++i) weight_[i] = std::ldexp(1 / weight_[i], least - exponent_[i]);
}

// p(x) = sum w(i)/(x - x(i)) y(i) / sum w(i)/(x - x(i)). Two nodes share a division, which would take most of the time.
// At a node the sums are not numbers, and the node's value is looked up. Four points at a time: as many sums as
// registers hold on 32 bits.
void Barycentric::evaluate(const double* x, double* result) const {
  using Pair = Lanes<double>;
  constexpr int kWidth = kElements<double>;
  constexpr double kTiny = 1e-150;
  static_assert(kLanes % (2 * kWidth) == 0);
  const double* const nodes = x_.data();
  const double* const weights = weight_.data();
  const double* const values = value_.data();
  double numerator[kLanes], denominator[kLanes];
  for (int begin = 0; begin < kLanes; begin += 2 * kWidth) {
    const std::array<Pair, 2> at{load(x + begin), load(x + begin + kWidth)};
    std::array<Pair, 2> sums{}, divisors{};
    int i = 0;
    for (; i + 2 <= count_; i += 2) {
      for (int k = 0; k < 2; ++k) {
        const Pair first = at[k] - nodes[i], second = at[k] - nodes[i + 1];
        const Pair reciprocal = 1.0 / (first * second);
        const Pair first_term = weights[i] * second * reciprocal, second_term = weights[i + 1] * first * reciprocal;
        sums[k] += first_term * values[i] + second_term * values[i + 1];
        divisors[k] += first_term + second_term;
      }
    }
    for (; i < count_; ++i) {
      for (int k = 0; k < 2; ++k) {
        const Pair term = weights[i] / (at[k] - nodes[i]);
        sums[k] += term * values[i];
        divisors[k] += term;
      }
    }
    for (int k = 0; k < 2; ++k) {
      store(numerator + begin + k * kWidth, sums[k]);
      store(denominator + begin + k * kWidth, divisors[k]);
    }
  }
  for (int l = 0; l < kLanes; ++l) {
    const double point = x[l];
    // Far from all nodes the divisor can cancel to nothing.
    result[l] = numerator[l] / (denominator[l] == 0.0 ? kTiny : denominator[l]);
    if (std::isfinite(result[l])) continue;
    const double* const node = std::find(nodes, nodes + count_, point);
    if (node != nodes + count_) result[l] = values[node - nodes];
  }
}

}  // namespace quorin::signal
