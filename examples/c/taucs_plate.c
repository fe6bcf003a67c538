/* TAUCS: the sag of a loaded membrane. The factor object is kept, so that a second load costs a solution only. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kSide = 40, kPoints = kSide * kSide };

int main(void) {
  /* Five-point differences; of the symmetric matrix the lower triangle, by columns counted from 0. */
  taucs_ccs_matrix* a = taucs_ccs_create(kPoints, kPoints, 3 * kPoints, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER);
  if (a == NULL) return 1;
  int32_t count = 0;
  for (int j = 0; j < kPoints; ++j) {
    a->colptr[j] = count;
    a->rowind[count] = j, a->values.d[count++] = 4;
    if (j % kSide + 1 < kSide) a->rowind[count] = j + 1, a->values.d[count++] = -1;
    if (j + kSide < kPoints) a->rowind[count] = j + kSide, a->values.d[count++] = -1;
  }
  a->colptr[kPoints] = count;

  static double load[kPoints], sag[kPoints], product[kPoints];
  char* factor_and_solve[] = {"taucs.factor.LLT=true", "taucs.factor.mf=true", "taucs.factor.ordering=metis", NULL};
  char* solve[] = {"taucs.factor=false", NULL};
  void* factor = NULL;
  int wrong = 0;
  for (int place = 0; place < 2; ++place) {
    for (int i = 0; i < kPoints; ++i)
      load[i] = place == 0 ? 1.0 / ((kSide + 1) * (kSide + 1)) : i == kPoints / 2 + kSide / 2;
    const int32_t status = taucs_linsolve(a, &factor, 1, sag, load, place == 0 ? factor_and_solve : solve, NULL);
    taucs_ccs_times_vec(a, sag, product);
    double deepest = 0, residual = 0;
    for (int i = 0; i < kPoints; ++i) {
      deepest = fmax(deepest, sag[i]);
      residual = fmax(residual, fabs(product[i] - load[i]));
    }
    printf("%s: status %d, deepest point %.5f, residual %.0e\n", place == 0 ? "spread" : "point", (int)status, deepest,
           residual);
    wrong |= status != TAUCS_SUCCESS || !(residual < 1e-12);
    if (place == 0) wrong |= fabs(deepest - 0.07367) > 4e-4; /* that of the continuous membrane */
  }
  taucs_linsolve(NULL, &factor, 0, NULL, NULL, NULL, NULL); /* frees the factor */
  taucs_ccs_free(a);
  return wrong;
}
