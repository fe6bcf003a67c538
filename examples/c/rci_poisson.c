/* Iterative solvers by requests: conjugate gradients on a grid whose matrix is never stored. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kSide = 60, kSize = kSide * kSide };

/* out <- A in, five-point differences on the unit square. */
static void multiply(const double* in, double* out) {
  for (int i = 0; i < kSide; ++i) {
    for (int j = 0; j < kSide; ++j) {
      const int k = i * kSide + j;
      out[k] = 4 * in[k] - (i > 0 ? in[k - kSide] : 0) - (i + 1 < kSide ? in[k + kSide] : 0) - (j > 0 ? in[k - 1] : 0) -
               (j + 1 < kSide ? in[k + 1] : 0);
    }
  }
}

int main(void) {
  const int32_t n = kSize;
  static double x[kSize], b[kSize], residual[kSize], tmp[4 * kSize], dpar[QUORIN_RCI_PARAMETERS];
  static int32_t ipar[QUORIN_RCI_PARAMETERS];
  int32_t request = 0, iterations = 0;
  for (int i = 0; i < kSize; ++i) b[i] = 1.0 / kSize;

  DCG_INIT(&n, x, b, &request, ipar, dpar, tmp);
  /* Positions are one-based, as published. */
  ipar[QUORIN_RCI_IPAR_ITERATION_LIMIT - 1] = 1000;
  ipar[QUORIN_RCI_IPAR_RESIDUAL_TEST - 1] = 1; /* the solver tests the residual ... */
  ipar[QUORIN_RCI_IPAR_HOST_TEST - 1] = 0;     /* ... and does not ask us */
  dpar[QUORIN_RCI_DPAR_RELATIVE_TOLERANCE - 1] = 1e-12;
  do {
    DCG(&n, x, b, &request, ipar, dpar, tmp);
    if (request == QUORIN_RCI_MULTIPLY) multiply(tmp, tmp + kSize);
  } while (request == QUORIN_RCI_MULTIPLY);
  DCG_GET(&n, x, b, &request, ipar, dpar, tmp, &iterations);

  double largest = 0;
  multiply(x, residual);
  for (int i = 0; i < kSize; ++i) largest = fmax(largest, fabs(b[i] - residual[i]));
  printf("request %d after %d iterations, largest residual %.1e\n", request, iterations, largest);
  return request == QUORIN_RCI_FINISHED && largest < 1e-8 ? 0 : 1;
}
