// The Control array: 20 floats of the host, read and written with this interface's meanings and defaults.
#pragma once

#include <array>

namespace quorin::umfpack_single {

// Entries that UMFPACK's release no longer has, or means something else by.
inline constexpr int kMexControl = 9;
inline constexpr int kTimerControl = 10;
inline constexpr int kDebugControl = 11;
inline constexpr int kTwoByTwoToleranceControl = 12;
// Strategies.
inline constexpr int kTwoByTwo = 2;

inline constexpr int kControlLength = 20;
inline constexpr std::array<float, kControlLength> kDefaults = {
    1.0F,    // print level
    0.2F,    // dense row parameter
    0.2F,    // dense column parameter
    0.1F,    // pivot tolerance
    32.0F,   // block size
    0.0F,    // strategy
    0.7F,    // initial allocation ratio
    2.0F,    // refinement steps
    1.0F,    // BLAS used
    0.0F,    // no mex interface
    0.0F,    // the standard clock
    0.0F,    // no debugging
    0.01F,   // 2-by-2 pivot tolerance
    0.0F,    // Q fixed
    10.0F,   // AMD dense row and column parameter
    0.001F,  // diagonal pivot tolerance
    1.0F,    // scaling
    0.5F,    // frontal matrix allocation ratio
    0.0F,    // drop tolerance
    1.0F,    // aggressive absorption
};

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
  double control_[kControlLength];
};

}  // namespace quorin::umfpack_single
