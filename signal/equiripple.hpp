// Equiripple (Parks-McClellan) design of linear-phase filters.
#pragma once

namespace quorin::signal {

enum class Outcome : int { kConverged = 0, kBadInput = 1, kNotConverged = 2, kNoMemory = 3 };

enum class ResponseType : int { kMultiband = 1, kDifferentiator = 2, kHilbert = 3 };

struct DesignRequest {
  int taps;
  int band_count;
  const double* edges;  // [2 band_count], cycles per sample, ascending from 0 to 0.5
  const double*
      desired;  // [band_count]; for a differentiator the slope per unit of frequency, so 2 pi d/dt is wanted as 2 pi
  const double* weight;  // [band_count], positive; for a differentiator with a slope divided by the frequency
  int type;              // of ResponseType
  int grid_density;      // 0 for kDefaultGridDensity
  int most_iterations;   // 0 for kDefaultIterations
};

inline constexpr int kDefaultGridDensity = 16;
inline constexpr int kDefaultIterations = 40;

// Writes the filter h[taps] whose largest weighted error over the bands is least. The arrays need no alignment.
//
// kBadInput and kNoMemory leave h alone; kNotConverged writes the best filter that was met within the iterations.
// Converged means that the largest error exceeds the least possible one by at most a part in 1e9, or by what the
// rounding of the response costs (some 1e-15 of the largest desired value times weight).
//
// Where the form of the filter forces a zero (at 0 for antisymmetric ones, at 0.5 for symmetric ones with an even and
// antisymmetric ones with an odd number of taps) a band that asks for something else is cut short by
// 0.5 / (grid_density coefficients).
// Cost per iteration: about 5 taps^2 divisions; 5 to 12 iterations are usual at any length.
Outcome design_equiripple(const DesignRequest& request, double* h) noexcept;

}  // namespace quorin::signal
