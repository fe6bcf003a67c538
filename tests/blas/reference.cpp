#include "tests/support/test.hpp"

// The reference reports a wrong argument here; the tests give it none.
extern "C" void xerbla_(const char* name, const int* position, std::size_t length);

extern "C" void xerbla_(const char* name, const int* position, std::size_t length) {
  ADD_FAILURE() << std::string(name, length) << " argument " << *position;
}
