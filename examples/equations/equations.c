/* Three equations by LU factors, a sum of squares inside an array, and a report that a function of the host receives.
 */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

/* The text output alone is stdcall; other callbacks are cdecl. */
static void QUORIN_CALLBACK print(const char* text) { fputs(text, stdout); }

int main(void) {
  /* 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns. */
  float a[] = {2, 4, 8, 1, 3, 7, 1, 3, 9}, x[] = {7, 19, 49};
  const int32_t n = 3, two = 2, one = 1;
  int32_t pivots[3], info;

  sgetrf(&n, &n, a, &n, pivots, &info);
  if (info != 0) {
    fprintf(stderr, info > 0 ? "the matrix is singular\n" : "an argument is wrong\n");
    return 1;
  }
  sgetrs("N", &n, &one, a, &n, pivots, x, &n, &info);

  /* y^2 + z^2: the index form begins at element 1 of x. */
  const float squares = sdot_Idx(&two, x, 1, &one, x, 1, &one);
  printf("x = %g, y = %g, z = %g, y^2 + z^2 = %g\n", x[0], x[1], x[2], squares);

  float control[UMFPACK_CONTROL];
  umfpack_di_defaults(control);
  control[UMFPACK_PRL] = 4; /* all entries */
  set_printf_callback_32f(print);
  umfpack_di_report_vector(n, x, control);
  set_printf_callback_32f(NULL);
  return fabsf(x[0] - 1) + fabsf(x[1] - 2) + fabsf(x[2] - 3) + fabsf(squares - 13) < 1e-4f ? 0 : 1;
}
