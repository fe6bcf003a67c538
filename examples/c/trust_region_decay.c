/* Nonlinear least squares with bounds: an exponential decay with a background, fitted to counts. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kPoints = 40, kUnknowns = 3 };

static float measured[kPoints];

/* The routines call this with the published cdecl convention. */
static void QUORIN_CDECL residuals(int32_t* m, int32_t* n, float* x, float* f) {
  (void)n;
  for (int32_t t = 0; t < *m; ++t) f[t] = x[0] * expf(-x[1] * (float)t) + x[2] - measured[t];
}

int main(void) {
  int32_t m = kPoints, n = kUnknowns, steps = 200, trials = 100, request = 0;
  float x[kUnknowns] = {1, 1, 1}, f[kPoints], jacobian[kPoints * kUnknowns];
  const float lower[kUnknowns] = {0, 0, 0}, upper[kUnknowns] = {100, 5, 10}, step = 1e-3f, radius = 0;
  const float eps[6] = {1e-6f, 1e-6f, 1e-6f, 1e-6f, 1e-6f, 0};
  void* run = NULL;
  for (int t = 0; t < kPoints; ++t) measured[t] = 20 * expf(-0.2f * (float)t) + 4;

  /* x is kept: the solver changes it between requests. */
  if (strnlspbc_init(&run, &n, &m, x, lower, upper, eps, &steps, &trials, &radius) != QUORIN_TRUST_REGION_SUCCESS)
    return 1;
  residuals(&m, &n, x, f);
  sjacobi(residuals, &n, &m, jacobian, x, &step);
  while (request >= 0) {
    if (strnlspbc_solve(&run, f, jacobian, &request) != QUORIN_TRUST_REGION_SUCCESS) return 1;
    if (request == QUORIN_TRUST_REGION_RESIDUAL) residuals(&m, &n, x, f);
    if (request == QUORIN_TRUST_REGION_JACOBIAN) sjacobi(residuals, &n, &m, jacobian, x, &step);
  }
  strnlspbc_delete(&run);
  printf("%.4f exp(-%.5f t) + %.4f\n", (double)x[0], (double)x[1], (double)x[2]);
  return fabsf(x[0] - 20) < 0.01f && fabsf(x[1] - 0.2f) < 1e-4f && fabsf(x[2] - 4) < 0.01f ? 0 : 1;
}
