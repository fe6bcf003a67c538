/* LAPACK: the lowest modes of a vibrating string, from the eigenvalues of a symmetric matrix, with a workspace query.
 */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

#include "quorin/quorin.h"

enum { kMasses = 100 };

int main(void) {
  const int32_t n = kMasses, first = 1, last = 3;
  const float unused = 0, tolerance = 0;
  float* const a = calloc((size_t)n * n, sizeof *a);
  float* const z = malloc((size_t)n * last * sizeof *z);
  float w[kMasses], size = 0;
  int32_t support[2 * kMasses], found = 0, info = 0, whole = 0, query = -1;
  if (a == NULL || z == NULL) return 1;
  for (int i = 0; i < n; ++i) {
    a[i + i * n] = 2;
    if (i + 1 < n) a[i + (i + 1) * n] = -1; /* the upper triangle is enough */
  }

  /* With lwork = -1 the call computes nothing but the best size of its work space. */
  ssyevr("V", "I", "U", &n, a, &n, &unused, &unused, &first, &last, &tolerance, &found, w, z, &n, support, &size,
         &query, &whole, &query, &info);
  int32_t lwork = (int32_t)size, liwork = whole;
  float* const work = malloc((size_t)lwork * sizeof *work);
  int32_t* const iwork = malloc((size_t)liwork * sizeof *iwork);
  if (work == NULL || iwork == NULL) return 1;
  ssyevr("V", "I", "U", &n, a, &n, &unused, &unused, &first, &last, &tolerance, &found, w, z, &n, support, work, &lwork,
         iwork, &liwork, &info);

  int wrong = info != 0 || found != last;
  for (int k = 1; k <= found; ++k) {
    const double exact = 2 - 2 * cos(k * acos(-1.0) / (n + 1));
    printf("mode %d: %.7f, exactly %.7f\n", k, (double)w[k - 1], exact);
    wrong |= fabs(w[k - 1] - exact) > 2e-6;
  }
  free(a);
  free(z);
  free(work);
  free(iwork);
  return wrong;
}
