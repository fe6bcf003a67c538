/* Services: the library's reports arrive in a function of the host, and the host says how many threads there are. */
#include <stdio.h>
#include <string.h>

#include "quorin/quorin.h"

static char log_text[8192];

/* The text output is stdcall, unlike all other callbacks. A report comes in pieces. */
static void QUORIN_CALLBACK append(const char* text) {
  strncat(log_text, text, sizeof log_text - strlen(log_text) - 1);
}

int main(void) {
  sMKL_Set_Num_Threads(2);
  printf("dense routines may use %d threads\n", (int)sMKL_Domain_Get_Max_Threads(QUORIN_DOMAIN_BLAS));

  /* A singular matrix of order 2: what does the solver say? */
  const int32_t starts[] = {0, 2, 4}, rows[] = {0, 1, 0, 1};
  const float values[] = {1, 2, 2, 4};
  float control[UMFPACK_CONTROL];
  void *symbolic = NULL, *numeric = NULL;
  umfpack_di_defaults(control);
  control[UMFPACK_PRL] = 2; /* reports errors and statuses */
  set_printf_callback_32f(append);
  umfpack_di_symbolic(2, 2, starts, rows, values, &symbolic, control, NULL);
  const int32_t status = umfpack_di_numeric(starts, rows, values, symbolic, &numeric, control, NULL);
  umfpack_di_report_status(control, status);
  set_printf_callback_32f(NULL);
  umfpack_di_free_symbolic(&symbolic);
  umfpack_di_free_numeric(&numeric);

  printf("status %d, and the report says: %s\n", (int)status, log_text);
  return status == UMFPACK_WARNING_singular_matrix && strstr(log_text, "singular") != NULL ? 0 : 1;
}
