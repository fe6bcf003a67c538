/* The test programs bring an XERBLA of their own, to see that wrong arguments are found. The library's handler writes
 * to standard output instead. So standard output goes to a file, and what a call has written there is handed to the
 * program's XERBLA. */
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#if defined(_WIN32)
#include <io.h>
#define open _open
#define dup2 _dup2
#define lseek _lseek
#define read _read
#define O_FLAGS (_O_RDWR | _O_CREAT | _O_TRUNC | _O_BINARY)
#else
#include <unistd.h>
#define O_FLAGS (O_RDWR | O_CREAT | O_TRUNC)
#endif

void quorin_after_call(void);

/* Level 1 programs report to standard output and have no error exits; they define no XERBLA. */
void xerbla_(const char* name, const int* info, size_t length) __attribute__((weak));

static int captured = -1;

__attribute__((constructor)) static void capture_standard_output(void) {
  if (getenv("QUORIN_CAPTURE") == NULL) return;
  captured = open("standard-output.txt", O_FLAGS, 0600);
  if (captured >= 0) dup2(captured, 1);
}

void quorin_after_call(void) {
  if (captured < 0) return;
  const long written = lseek(1, 0, SEEK_CUR);
  if (written <= 0) return;
  char text[512] = {0};
  lseek(1, 0, SEEK_SET);
  const int length = (int)read(1, text, written < 511 ? (unsigned)written : 511U);
  lseek(1, 0, SEEK_SET);
  text[length < 0 ? 0 : length] = '\0';
  int parameter = 0;
  char name[32] = {0};
  const char* const message = strstr(text, "Parameter ");
  if (message != NULL &&
      sscanf(message, "Parameter %d was incorrect on entry to %31[^. \r\n].", &parameter, name) == 2) {
    /* Fortran's names are padded with blanks to six characters. */
    char padded[40];
    snprintf(padded, sizeof padded, "%-6s", name);
    xerbla_(padded, &parameter, strlen(padded));
  } else {
    fprintf(stderr, "unexpected output: %s\n", text);
  }
}
