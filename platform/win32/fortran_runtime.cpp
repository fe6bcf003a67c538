// The one function that compiled Fortran of the dependencies asks of GCC's Fortran run-time library. The library's own
// brings input and output, threads and allocations at load with it, none of which is given back at unload.
#include <algorithm>
#include <cstddef>
#include <cstring>

extern "C" {

// result = first // second, padded with blanks or cut to the length of the result.
void _gfortran_concat_string(std::size_t result_length, char* result, std::size_t first_length, const char* first,
                             std::size_t second_length, const char* second);

void _gfortran_concat_string(std::size_t result_length, char* result, std::size_t first_length, const char* first,
                             std::size_t second_length, const char* second) {
  const std::size_t from_first = std::min(first_length, result_length);
  const std::size_t from_second = std::min(second_length, result_length - from_first);
  std::memcpy(result, first, from_first);
  std::memcpy(result + from_first, second, from_second);
  std::memset(result + from_first + from_second, ' ', result_length - from_first - from_second);
}
}
