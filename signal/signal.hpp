// The facade of signal/: equiripple filters and Toeplitz systems.
#pragma once

#include "signal/remez.hpp"
#include "signal/toeplitz.hpp"
