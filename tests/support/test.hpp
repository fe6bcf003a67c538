// What every test begins with.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/standard.hpp"
