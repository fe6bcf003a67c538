// The Control array: 20 floats of the host, read and written with this interface's meanings and defaults.
#pragma once

#include "generated/umfpack_constants.hpp"

namespace quorin::umfpack_single {

// Entry `index`, or its default if Control is null or holds a NaN there. As an integer: truncated, and brought into the
// range of int.
float setting(const float* Control, int index);
int whole_setting(const float* Control, int index);
int print_level(const float* Control);

// What UMFPACK gets for a host's Control.
class Settings {
 public:
  explicit Settings(const float* Control);
  const double* data() const { return control_; }

 private:
  double control_[kControl];
};

}  // namespace quorin::umfpack_single
