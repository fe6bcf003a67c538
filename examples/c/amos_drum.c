/* Bessel functions: the tones of a drum are the zeros of J_m, here by bisection. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

static double j(int order, double x) {
  const quorin_double_complex z = {x, 0};
  const double first = order;
  const int32_t kode = 1, n = 1;
  quorin_double_complex value = {0, 0};
  int32_t underflows = 0, ierr = 0;
  CBESJ(&z, &first, &kode, &n, &value, &underflows, &ierr);
  return ierr == QUORIN_AMOS_OK ? value.re : NAN;
}

int main(void) {
  const double known[3] = {2.404825557695773, 3.831705970207512, 5.135622301840683};
  int wrong = 0;
  for (int order = 0; order < 3; ++order) {
    double low = order + 1.8, high = order + 3.5; /* around the first zero */
    while (high - low > 1e-14 * high) {
      const double middle = 0.5 * (low + high);
      if ((j(order, low) < 0) == (j(order, middle) < 0))
        low = middle;
      else
        high = middle;
      if (middle == low && middle == high) break;
    }
    printf("j_%d,1 = %.15f: a tone %.4f times the lowest\n", order, low, low / known[0]);
    wrong |= !(fabs(low - known[order]) < 1e-13 * known[order]);
  }
  return wrong;
}
