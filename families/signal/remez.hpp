// The published calling sequence of the equiripple design.
#pragma once

namespace quorin::signal {

// Designs h[taps] as design_equiripple does; `ierr` gets its outcome. bands[2 band_count], desired and weight
// [band_count].
void remez(double* h, int taps, int band_count, const double* bands, const double* desired, const double* weight,
           int type, int grid_density, int most_iterations, int* ierr) noexcept;

}  // namespace quorin::signal
