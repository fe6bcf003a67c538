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
  using Samples = std::array<double, kSamples>;

  int find_several(const double* samples, double* zeros) const;

  // Take samples to coefficients of their series, row k to that of T_k, and of its derivative: in powers of x, and in
  // Bernstein polynomials on [-1, 1].
  std::array<Samples, kSamples> series_;
  std::array<Samples, kSamples - 1> powers_, bernstein_;
};

}  // namespace quorin::signal
