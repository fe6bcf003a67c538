/* SLAP: convection and diffusion along a line, by GMRES with an incomplete LU factorization. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kSize = 500, kEntries = 3 * kSize, kWork = 30000, kIntegers = 8000 };

int main(void) {
  /* Triads: row, column, value, in any order, one-based. */
  static int32_t row[kEntries], column[kEntries], iwork[kIntegers];
  static float a[kEntries], b[kSize], x[kSize], work[kWork];
  int32_t n = kSize, entries = 0;
  for (int i = 1; i <= kSize; ++i) {
    b[i - 1] = 0;
    for (int k = i - 1; k <= i + 1; ++k) {
      if (k < 1 || k > kSize) continue;
      row[entries] = i, column[entries] = k;
      a[entries] = k == i ? 2.5f : k < i ? -1.4f : -1.0f;
      b[i - 1] += a[entries++]; /* so that the solution is 1, 1, ... */
    }
  }
  const int32_t symmetric = 0, saved = 10, test = 0, limit = 200, unit = 0, lenw = kWork, leniw = kIntegers;
  float tolerance = 1e-4f, error = 0;
  int32_t iterations = 0, ierr = -1;
  SSLUGM(&n, b, x, &entries, row, column, a, &symmetric, &saved, &test, &tolerance, &limit, &iterations, &error, &ierr,
         &unit, work, &lenw, iwork, &leniw);
  float largest = 0;
  for (int i = 0; i < kSize; ++i) largest = fmaxf(largest, fabsf(x[i] - 1));
  printf("status %d after %d iterations, error %.1e\n", ierr, iterations, (double)largest);
  return ierr == 0 && largest < 1e-3f ? 0 : 1;
}
