// The factors that a Numeric object holds. The facade describes arguments and statuses.
#pragma once

#include "families/umfpack_single/values.hpp"

namespace quorin::umfpack_single {

// Where the factors go; any part may be null.
struct Factors {
  int* Lp = nullptr;
  int* Lj = nullptr;
  FloatOutput Lx;
  int* Up = nullptr;
  int* Ui = nullptr;
  FloatOutput Ux;
  int* P = nullptr;
  int* Q = nullptr;
  FloatOutput Dx;
  int* do_recip = nullptr;
  float* Rs = nullptr;
};

template <class E>
[[nodiscard]] int get_numeric(const Factors& to, const void* Numeric);

}  // namespace quorin::umfpack_single
