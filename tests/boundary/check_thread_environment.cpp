// Run with thread variables in the environment: checks what they seed, and that calls outrank them.
//   check_thread_environment ALL BLAS FFT VML PARDISO DYNAMIC
#include <cstdio>
#include <cstdlib>

#include "quorin/services.h"

namespace {

bool is_expected(const char* what, int found, int expected) {
  if (found != expected) std::printf("%s: %d instead of %d\n", what, found, expected);
  return found == expected;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr int kDomains = 5;
  if (count != kDomains + 2) return 2;
  bool passed = true;
  const auto expected = [&](int i) { return std::atoi(arguments[i + 1]); };
  for (int domain = 0; domain < kDomains; ++domain) {
    passed &= is_expected("seeded", sMKL_Domain_Get_Max_Threads(domain), expected(domain));
  }
  passed &= is_expected("all", sMKL_Get_Max_Threads(), expected(0));
  passed &= is_expected("dynamic", sMKL_Get_Dynamic(), expected(kDomains));

  sMKL_Set_Num_Threads(17);
  sMKL_Domain_Set_Num_Threads(19, 4);
  sMKL_Set_Dynamic(expected(kDomains) == 0);
  for (int domain = 0; domain < kDomains; ++domain) {
    passed &= is_expected("called", sMKL_Domain_Get_Max_Threads(domain), domain == 4 ? 19 : 17);
  }
  passed &= is_expected("dynamic after the call", sMKL_Get_Dynamic(), expected(kDomains) == 0);
  return passed ? 0 : 1;
}
