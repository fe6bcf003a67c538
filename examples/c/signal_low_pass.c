/* Filter design: a low pass of 31 taps, and its response. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kTaps = 31 };

/* Of a symmetric filter, without its delay. */
static double response(const double* h, double frequency) {
  double sum = h[kTaps / 2];
  for (int k = 1; k <= kTaps / 2; ++k) sum += 2 * h[kTaps / 2 - k] * cos(2 * 3.14159265358979324 * frequency * k);
  return sum;
}

int main(void) {
  /* Passes up to a fifth of the sampling rate, stops from a quarter on; errors count ten times as much there. */
  const double edges[] = {0, 0.2, 0.25, 0.5}, wanted[] = {1, 0}, weights[] = {1, 10};
  const int32_t taps = kTaps, bands = 2, multiband = 1, density = 0, limit = 0;
  double h[kTaps], worst[2] = {0, 0};
  int32_t ierr = -1;
  REMEZ(h, &taps, &bands, edges, wanted, weights, &multiband, &density, &limit, &ierr);
  if (ierr != QUORIN_SIGNAL_CONVERGED) return 1;
  for (int band = 0; band < 2; ++band) {
    for (int i = 0; i <= 2000; ++i) {
      const double f = edges[2 * band] + (edges[2 * band + 1] - edges[2 * band]) * i / 2000;
      worst[band] = fmax(worst[band], fabs(response(h, f) - wanted[band]));
    }
  }
  printf("ripple %.5f in the pass band, %.5f (%.1f dB) in the stop band\n", worst[0], worst[1], 20 * log10(worst[1]));
  /* The best filter has the same weighted error in both bands. */
  return fabs(worst[0] - 10 * worst[1]) < 1e-3 * worst[0] && worst[1] < 0.02 ? 0 : 1;
}
