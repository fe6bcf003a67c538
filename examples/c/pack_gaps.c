/* Packing: a sensor drops out now and then. The valid readings are gathered, cleaned, and put back where they were. */
#include <math.h>
#include <stdio.h>

#include "quorin/quorin.h"

enum { kReadings = 200 };

int main(void) {
  float readings[kReadings], packed[kReadings], cleaned[kReadings];
  int32_t is_valid[kReadings], valid = 0;
  const int32_t all = kReadings, one = 1;
  for (int i = 0; i < kReadings; ++i) {
    is_valid[i] = i % 7 != 3;
    readings[i] = is_valid[i] ? 20 + sinf(0.1f * (float)i) : -999;
    cleaned[i] = NAN;
    valid += is_valid[i];
  }

  vspackm(&all, readings, is_valid, packed);
  double mean = 0;
  for (int i = 0; i < valid; ++i) mean += (double)packed[i] / valid;
  for (int i = 0; i < valid; ++i) packed[i] -= (float)mean;
  const double deviation = (double)snrm2(&valid, packed, &one) / sqrt(valid);
  vsunpackm(&all, packed, cleaned, is_valid);

  printf("%d of %d readings are valid: mean %.3f, standard deviation %.3f\n", (int)valid, kReadings, mean, deviation);
  int wrong = valid != 171 || fabs(mean - 20) > 0.1 || fabs(deviation - sqrt(0.5)) > 0.05;
  for (int i = 0; i < kReadings; ++i)
    wrong |= is_valid[i] ? cleaned[i] != readings[i] - (float)mean : !isnan(cleaned[i]);
  return wrong;
}
