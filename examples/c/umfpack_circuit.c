/* UMFPACK: a ladder of resistors, factored once, solved for two sources. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kNodes = 1000 };

int main(void) {
  /* Conductances, by columns: every node is joined to its neighbours and, weakly, to ground. */
  static int32_t starts[kNodes + 1], rows[3 * kNodes];
  static float values[3 * kNodes], b[kNodes], x[kNodes];
  int32_t count = 0;
  for (int j = 0; j < kNodes; ++j) {
    float joined = 0.001f;
    starts[j] = count;
    if (j > 0) rows[count] = j - 1, values[count++] = -1, joined += 1;
    const int32_t diagonal = count++;
    if (j + 1 < kNodes) rows[count] = j + 1, values[count++] = -1, joined += 1;
    rows[diagonal] = j, values[diagonal] = joined;
  }
  starts[kNodes] = count;

  void *symbolic = NULL, *numeric = NULL;
  int32_t status = umfpack_di_symbolic(kNodes, kNodes, starts, rows, values, &symbolic, NULL, NULL);
  if (status == UMFPACK_OK) status = umfpack_di_numeric(starts, rows, values, symbolic, &numeric, NULL, NULL);
  umfpack_di_free_symbolic(&symbolic);

  int wrong = status != UMFPACK_OK;
  for (int source = 0; source < kNodes && !wrong; source += kNodes / 2) {
    for (int i = 0; i < kNodes; ++i) b[i] = 0;
    b[source] = 1; /* an ampere into this node */
    status = umfpack_di_solve(UMFPACK_A, starts, rows, values, x, b, numeric, NULL, NULL);
    /* What comes in leaves to ground. */
    double ground = 0;
    for (int i = 0; i < kNodes; ++i) ground += 0.001f * (double)x[i];
    printf("source at %3d: %.4f V there, %.6f A to ground\n", source, (double)x[source], ground);
    wrong = status != UMFPACK_OK || fabs(ground - 1) > 1e-4;
  }
  umfpack_di_free_numeric(&numeric);
  return wrong;
}
