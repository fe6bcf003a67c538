// The C++ headers behind the macros of Microsoft's windows.h.
#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <functional>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))

#include "quorin/least_squares.hpp"
#include "quorin/pardiso.hpp"
#include "quorin/quorin.h"
#include "quorin/rci.hpp"
