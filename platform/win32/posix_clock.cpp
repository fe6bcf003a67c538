// The one clock function that dependencies ask of libwinpthread, which the product does without (gcc_threads.cpp):
// UMFPACK takes the times in its statistics from it.
#include <ctime>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" int clock_gettime(clockid_t, struct timespec* time) {
  // Counts steadily since the system started, whichever clock is asked for.
  constexpr LONGLONG kNanoseconds = 1'000'000'000;
  LARGE_INTEGER count, frequency;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  const LONGLONG seconds = count.QuadPart / frequency.QuadPart, rest = count.QuadPart % frequency.QuadPart;
  time->tv_sec = static_cast<time_t>(seconds);
  time->tv_nsec = static_cast<long>(rest * kNanoseconds / frequency.QuadPart);
  return 0;
}
