#include "families/signal/remez.hpp"

#include "families/signal/equiripple.hpp"

namespace quorin::signal {

void remez(double* h, int taps, int band_count, const double* bands, const double* desired, const double* weight,
           int type, int grid_density, int most_iterations, int* ierr) noexcept {
  const DesignRequest request{taps, band_count, bands, desired, weight, type, grid_density, most_iterations};
  *ierr = static_cast<int>(design_equiripple(request, h));
}

}  // namespace quorin::signal
