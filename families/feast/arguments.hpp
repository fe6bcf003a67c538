// What a host passes, and the checks of it.
#pragma once

#include <array>
#include <cstdint>

#include "base/scalar.hpp"
#include "families/feast/contour.hpp"
#include "generated/feast_constants.hpp"

namespace quorin::feast {

// Which triangles of the matrices are stored.
enum class Storage : char { kFull = 'F', kUpper = 'U', kLower = 'L' };

// Rows, one-based. `values` is null for the B of a standard problem.
template <Scalar T>
struct HostMatrix {
  const T* values = nullptr;
  const int* starts = nullptr;
  const int* columns = nullptr;

  int entries(int n) const { return starts[n] - 1; }
};

template <Scalar T>
struct Arguments {
  const char* uplo;
  const int* n;
  HostMatrix<T> A;
  bool is_generalized;
  HostMatrix<T> B;
  std::int32_t* fpm;
  float* epsout;
  int* loop;
  const float *emin, *emax;
  int* m0;
  float* e;
  T* x;
  int* m;
  float* res;
  int* info;

  Storage storage() const;
  Interval interval() const { return {*emin, *emax}; }
  // fpm(parameter)
  std::int32_t parameter(int number) const { return fpm[number - 1]; }
  bool is_on(int number) const { return parameter(number) != 0; }
};

// The status of the first argument that is wrong: missing addresses, then n, m0, the interval, uplo, the parameters,
// the arrays; kDone if none is.
template <Scalar T>
[[nodiscard]] Status check(const Arguments<T>& arguments);

}  // namespace quorin::feast
