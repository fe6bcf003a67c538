/* PARDISO: heat on a square plate in a wind. Analysed once; factorized and solved for two wind speeds. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kSide = 30, kPoints = kSide * kSide };

/* -laplace u + wind u_x = 1, u = 0 on the boundary, by rows, counted from 1. */
static int32_t starts[kPoints + 1], columns[5 * kPoints];
static double values[5 * kPoints];

static void discretize(double wind) {
  const double h = 1.0 / (kSide + 1);
  int32_t count = 0;
  for (int i = 0; i < kPoints; ++i) {
    const int column = i % kSide;
    starts[i] = count + 1;
    if (i >= kSide) columns[count] = i + 1 - kSide, values[count++] = -1;
    if (column > 0) columns[count] = i, values[count++] = -1 - wind * h;
    columns[count] = i + 1, values[count++] = 4 + wind * h;
    if (column + 1 < kSide) columns[count] = i + 2, values[count++] = -1;
    if (i + kSide < kPoints) columns[count] = i + 1 + kSide, values[count++] = -1;
  }
  starts[kPoints] = count + 1;
}

int main(void) {
  static double b[kPoints], u[kPoints];
  void* pt[QUORIN_PARDISO_HANDLE_WORDS];
  int32_t iparm[QUORIN_PARDISO_PARAMETERS], error = 0;
  const int32_t one = 1, silent = QUORIN_PARDISO_SILENT, kind = QUORIN_PARDISO_REAL_UNSYMMETRIC, n = kPoints;
  const double winds[] = {0, 50};
  double highest[2] = {0, 0};

  sPARDISOINIT(pt, &kind, iparm);
  for (int i = 0; i < kPoints; ++i) b[i] = 1.0 / ((kSide + 1) * (kSide + 1));
  for (int k = 0; k < 2 && error == QUORIN_PARDISO_DONE; ++k) {
    const int32_t phase = k == 0 ? QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE : QUORIN_PARDISO_FACTORIZE_SOLVE;
    discretize(winds[k]);
    PARDISO(pt, &one, &one, &kind, &phase, &n, values, starts, columns, NULL, &one, iparm, &silent, b, u, &error);
    for (int i = 0; i < kPoints; ++i) highest[k] = fmax(highest[k], u[i]);
    printf("wind %2.0f: error %d, highest temperature %.5f\n", winds[k], (int)error, highest[k]);
  }
  const int32_t all = QUORIN_PARDISO_FREE_ALL;
  int32_t freed = 0;
  PARDISO(pt, NULL, NULL, NULL, &all, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, &freed);

  /* Without wind the centre of the plate is at 0.07367; the wind cools it. */
  return error != 0 || freed != 0 || fabs(highest[0] - 0.07367) > 4e-4 || highest[1] > 0.03;
}
