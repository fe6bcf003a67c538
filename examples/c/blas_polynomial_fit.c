/* BLAS and LAPACK: the straight line through noisy points, by the normal equations and by QR. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kPoints = 50, kWork = 256 };

int main(void) {
  const int32_t m = kPoints, n = 2, one = 1, lwork = kWork;
  const float unit = 1, zero = 0;
  float a[2 * kPoints], y[kPoints], gram[4], right[2], work[kWork];
  int32_t info = 0;

  /* Column-major: a column of ones, a column of t. */
  for (int i = 0; i < kPoints; ++i) {
    const float t = (float)i / kPoints;
    a[i] = 1;
    a[kPoints + i] = t;
    y[i] = 3 + 2 * t + 0.01f * sinf(100 * t);
  }

  /* A^T A x = A^T y: one triangle of the product, a product with a vector, Cholesky. */
  ssyrk("U", "T", &n, &m, &unit, a, &m, &zero, gram, &n);
  sgemv("T", &m, &n, &unit, a, &m, y, &one, &zero, right, &one);
  spotrf("U", &n, gram, &n, &info);
  if (info == 0) spotrs("U", &n, &one, gram, &n, right, &n, &info);
  if (info != 0) return 1;
  printf("normal equations: %.5f + %.5f t\n", (double)right[0], (double)right[1]);

  /* The same by QR, which does not square the condition number; it destroys a and leaves x in y. */
  sgels("N", &m, &n, &one, a, &m, y, &m, work, &lwork, &info);
  if (info != 0) return 1;
  printf("QR:               %.5f + %.5f t\n", (double)y[0], (double)y[1]);
  return fabsf(y[0] - 3) < 0.01f && fabsf(y[1] - 2) < 0.02f ? 0 : 1;
}
