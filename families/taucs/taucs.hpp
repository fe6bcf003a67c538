// The TAUCS family as the exports see it.
#pragma once

#include "families/taucs/files/files.hpp"
#include "families/taucs/matrix.hpp"
#include "families/taucs/operations.hpp"
#include "families/taucs/ordering.hpp"
#include "families/taucs/process.hpp"
#include "families/taucs/products.hpp"
#include "families/taucs/solvers/amwb.hpp"
#include "families/taucs/solvers/column_factors.hpp"
#include "families/taucs/solvers/iterations.hpp"
#include "families/taucs/solvers/linsolve.hpp"
#include "families/taucs/solvers/lu.hpp"
#include "families/taucs/solvers/out_of_core.hpp"
#include "families/taucs/solvers/supernodal.hpp"
#include "families/taucs/vectors.hpp"
