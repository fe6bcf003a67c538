// The Info array: 90 floats of the host.
#pragma once

#include <array>

#include "families/umfpack_single/double_umfpack.hpp"

namespace quorin::umfpack_single {

// Info in double precision for the time of one call. Counts become floats only at the end, and are then rounded to the
// 24 bits that a float has.
class InfoArray {
 public:
  // Begins with the host's entries, most of which a routine leaves as they are; the host's Info may be null.
  explicit InfoArray(float* host);

  // Sets all entries to -1, "not computed"; so the symbolic analysis begins.
  void clear() { values_.fill(-1); }
  // What the symbolic analysis says in any case, of the matrix and of this library.
  void describe(int n_row, int n_col, const int* Ap);

  double* data() { return values_.data(); }
  const double* data() const { return values_.data(); }

  // Stores the status and all entries in the host's array, and returns the status.
  [[nodiscard]] int finish(int status);

 private:
  float* host_;
  std::array<double, UMFPACK_INFO> values_;
};

// Only the status changes in the host's Info, which may be null.
[[nodiscard]] int report_status_in(float* Info, int status);

}  // namespace quorin::umfpack_single
