/* Derivatives by differences: where is the ship? Newton's method on its distances to two beacons. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

static const float beacons[2][2] = {{0, 0}, {10, 0}};
static const float measured[2] = {5.0f, 8.0622577f};

static void QUORIN_CDECL deviations(int32_t* m, int32_t* n, float* x, float* f) {
  (void)n;
  for (int32_t i = 0; i < *m; ++i) f[i] = hypotf(x[0] - beacons[i][0], x[1] - beacons[i][1]) - measured[i];
}

int main(void) {
  int32_t n = 2, pivots[2], info = 0;
  const int32_t one = 1;
  const float step = 2e-3f;
  float x[2] = {1, 1}, f[2], jacobian[4];
  for (int iteration = 0; iteration < 20; ++iteration) {
    deviations(&n, &n, x, f);
    printf("at (%.5f, %.5f): off by %.1e\n", (double)x[0], (double)x[1], (double)hypotf(f[0], f[1]));
    if (hypotf(f[0], f[1]) < 1e-5f) break;
    /* J d = f, x <- x - d. The matrix is column-major, as LAPACK wants it. */
    if (sjacobi(deviations, &n, &n, jacobian, x, &step) != QUORIN_JACOBI_SUCCESS) return 1;
    sgetrf(&n, &n, jacobian, &n, pivots, &info);
    if (info != 0) return 1;
    sgetrs("N", &n, &one, jacobian, &n, pivots, f, &n, &info);
    for (int i = 0; i < 2; ++i) x[i] -= f[i];
  }
  return fabsf(x[0] - 3) < 1e-4f && fabsf(x[1] - 4) < 1e-4f ? 0 : 1;
}
