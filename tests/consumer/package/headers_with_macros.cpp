// The C++ headers behind the macros of Microsoft's windows.h.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <span>
#include <stdexcept>
#include <vector>

#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))

#include "quorin/least_squares.hpp"
#include "quorin/quorin.h"
#include "quorin/rci.hpp"
