// The TAUCS family as the exports see it.
#pragma once

#include "taucs/files.hpp"
#include "taucs/matrix.hpp"
#include "taucs/operations.hpp"
#include "taucs/ordering.hpp"
#include "taucs/process.hpp"
#include "taucs/products.hpp"
#include "taucs/vectors.hpp"
