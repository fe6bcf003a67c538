// The facade of signal/: equiripple filters and Toeplitz systems.
#pragma once

#include "families/signal/remez.hpp"
#include "families/signal/toeplitz.hpp"
