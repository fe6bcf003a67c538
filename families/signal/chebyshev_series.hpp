// A function on [-1, 1] from a few samples, as a Chebyshev series, and where its derivative vanishes.
#pragma once

#include <array>

namespace quorin::signal {

inline constexpr int kSamples = 8;

// Where the samples are taken: the zeros of T_8, ascending; none is an end point.
std::array<double, kSamples> sample_points();

// The critical points of a function that is given by its samples.
class CriticalPoints {
 public:
  CriticalPoints();

  // Writes the zeros in (-1, 1) of the derivative of the interpolating series, ascending; returns how many, at most
  // kSamples - 2.
  [[nodiscard]] int find(const double* samples, double* zeros) const;

 private:
  // Takes samples to coefficients: row k is T_k at the sample points, times 2 / kSamples (1 / kSamples for k = 0).
  std::array<std::array<double, kSamples>, kSamples> transform_;
};

}  // namespace quorin::signal
