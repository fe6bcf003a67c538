/* FEAST: which tones of a bar lie between two frequencies? Finite elements, K x = lambda M x. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kNodes = 99, kRoom = 10 };

int main(void) {
  /* Upper triangles by rows, counted from 1: K has 2/h and -1/h, M has 4h/6 and h/6, fixed ends. */
  static float stiffness[2 * kNodes], mass[2 * kNodes], modes[kRoom * kNodes];
  static int32_t starts[kNodes + 1], columns[2 * kNodes];
  const float h = 1.0f / (kNodes + 1);
  int32_t count = 0;
  for (int i = 0; i < kNodes; ++i) {
    starts[i] = count + 1;
    columns[count] = i + 1, stiffness[count] = 2 / h, mass[count++] = 4 * h / 6;
    if (i + 1 < kNodes) columns[count] = i + 2, stiffness[count] = -1 / h, mass[count++] = h / 6;
  }
  starts[kNodes] = count + 1;

  const int32_t n = kNodes;
  const float lowest = 80, highest = 500;
  float found[kRoom], residuals[kRoom], change;
  int32_t fpm[128], loops, room = kRoom, inside = 0, info;
  feastinit_32f(fpm);
  sfeast_scsrgv("U", &n, stiffness, starts, columns, mass, starts, columns, fpm, &change, &loops, &lowest, &highest,
                &room, found, modes, &inside, residuals, &info);

  int wrong = info != QUORIN_FEAST_DONE || inside != 5; /* the tones 3 to 7, and none is left out */
  for (int k = 0; k < inside; ++k) {
    const double c = cos((k + 3) * 3.14159265358979 * (double)h);
    const double known = 6 * (1 - c) / ((2 + c) * (double)h * (double)h);
    printf("tone %d: lambda = %.4f, residual %.0e\n", k + 3, (double)found[k], (double)residuals[k]);
    wrong |= !(fabs((double)found[k] - known) < 1e-4 * known);
  }
  return wrong;
}
