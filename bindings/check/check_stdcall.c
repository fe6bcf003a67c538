/* Calls the stdcall forms as Visual Basic does: the stack pointer must be where it was, results on the FPU's stack and
 * through a pointer must be equal, and every function of the definition must be there. */
#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <windows.h>

typedef float(__stdcall* DotProduct)(const int32_t*, const float*, int32_t, const int32_t*, const float*, int32_t,
                                     const int32_t*);
typedef void(__stdcall* StoredDotProduct)(const int32_t*, const float*, int32_t, const int32_t*, const float*, int32_t,
                                          const int32_t*, float*);
typedef double(__stdcall* Norm)(int32_t, int32_t, const double*);

static void* address(HMODULE library, const char* name) {
  void* found = NULL;
  const FARPROC function = GetProcAddress(library, name);
  memcpy(&found, &function, sizeof found);
  return found;
}

static int functions_missing(HMODULE library, const char* definition) {
  char line[256];
  int missing = 0, found = 0;
  FILE* const file = fopen(definition, "r");
  if (file == NULL) return -1;
  while (fgets(line, sizeof line, file) != NULL) {
    char* const equals = strstr(line, " = ");
    if (equals == NULL) continue;
    *equals = 0;
    if (address(library, line + strspn(line, " ")) == NULL) ++missing;
    ++found;
  }
  fclose(file);
  printf("%d functions, %d missing\n", found, missing);
  return found < 700 ? -1 : missing;
}

int main(int count, char** arguments) {
  const HMODULE library = LoadLibraryA(QUORIN_STDCALL);
  const int32_t n = 3, one = 1;
  const float data[] = {0, 1, 2, 3, 4, 5, 6};
  const double vector[] = {3, 4};
  const void* before;
  const void* after;
  float stored = 0, returned;
  DotProduct dot;
  StoredDotProduct stored_dot;
  Norm norm;
  if (count < 2 || library == NULL) return 2;
  if (functions_missing(library, arguments[1]) != 0) return 3;

  *(void**)&dot = address(library, "sdot_Idx");
  *(void**)&stored_dot = address(library, "sdot_Idx_Ref");
  *(void**)&norm = address(library, "taucs_vec_norm2");
  __asm__ volatile("movl %%esp, %0" : "=r"(before));
  returned = dot(&n, data, 1, &one, data, 4, &one);
  stored_dot(&n, data, 1, &one, data, 4, &one, &stored);
  __asm__ volatile("movl %%esp, %0" : "=r"(after));
  printf("%g %g\n", (double)returned, (double)stored);
  if (returned != 32 || stored != 32 || norm(2, 2048, vector) != 5) return 4;
  return before == after ? 0 : 5;
}
