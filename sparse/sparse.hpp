// The engine under the sparse direct solvers, as they see it.
#pragma once

#include "sparse/matching/matching.hpp"
#include "sparse/matching/preprocess.hpp"
#include "sparse/numeric/assembly.hpp"
#include "sparse/numeric/factor.hpp"
#include "sparse/numeric/refinement.hpp"
#include "sparse/numeric/solve.hpp"
#include "sparse/orderings/minimum_degree.hpp"
#include "sparse/orderings/orderings.hpp"
#include "sparse/pattern/compressed.hpp"
#include "sparse/pattern/graph.hpp"
#include "sparse/pattern/permutation.hpp"
#include "sparse/pattern/product.hpp"
#include "sparse/pattern/transpose.hpp"
#include "sparse/symbolic/elimination_tree.hpp"
#include "sparse/symbolic/plan.hpp"
