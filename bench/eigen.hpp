// Eigen's sparse matrices and iterations, where they are installed.
#pragma once

#if defined(QUORIN_HAS_EIGEN)
#define EIGEN_MPL2_ONLY
#include <Eigen/SparseCore>
//
#include <Eigen/IterativeLinearSolvers>
#include <unsupported/Eigen/IterativeSolvers>
#endif
