// Equiripple (Parks-McClellan) design of linear-phase filters.
#pragma once

#include "generated/signal_constants.hpp"

namespace quorin::signal {

enum class ResponseType : int { kMultiband = 1, kDifferentiator = 2, kHilbert = 3 };

struct DesignRequest {
  int taps;               // at least 3
  int band_count;         // at least 1
  const double* edges;    // [2 band_count], cycles per sample, strictly ascending within 0 to 0.5
  const double* desired;  // [band_count]; for a differentiator the slope: f times it is wanted at frequency f
  const double* weight;   // [band_count], positive; for a differentiator with a slope divided by the frequency
  int type;               // of ResponseType
  int grid_density;       // 0 for kDefaultGridDensity; negative for a design on a grid, down to -kFinestGrid
  int most_iterations;    // at full length; 0 for kDefaultIterations
};

inline constexpr int kDefaultGridDensity = 16;
inline constexpr int kDefaultIterations = 40;
inline constexpr int kFinestGrid = 4096;

// Writes the filter h[taps] whose largest weighted error over the bands is least. The arrays need no alignment.
//
// kBadInput and kNoMemory leave h alone; kNotConverged writes the best filter that was met within the iterations.
// Converged means that the largest error exceeds the least possible one by at most a part in 1e9, or by what rounding
// costs. That is usually some 1e-14 of the largest desired value times the largest weight, and at most 1e-11 of it; if
// the response is large between the bands, at most a part in 1e3. Where the best filter of the length has an error
// below that of rounding, a shorter one padded with (nearly) zeros is as good and is what is written.
//
// With grid_density -g only the frequencies of a grid count, g for each coefficient of P, as in the program of
// McClellan, Parks & Rabiner (IEEE Trans. Audio Electroacoust. 21 (1973) 506-526; g = 16 there). Between them the error
// is larger.
//
// With weights of some 1 : 1e9 and more, rounding of the coefficients shows in the band of the largest. The filter's
// own error is measured then, and kNotConverged tells if it is not that of the polynomial.
//
// Where the form of the filter forces a zero (at 0 for antisymmetric ones, at 0.5 for symmetric ones with an even and
// antisymmetric ones with an odd number of taps) a band that asks for something else is cut short by
// 0.5 / (grid_density coefficients of P).
// Cost per iteration: about 5 taps^2 divisions; 5 to 12 iterations are usual at any length.
[[nodiscard]] Outcome design_equiripple(const DesignRequest& request, double* h);

}  // namespace quorin::signal
