// The engine under the sparse direct solvers, as they see it.
#pragma once

#include "sparse/elimination_tree.hpp"
#include "sparse/graph.hpp"
#include "sparse/minimum_degree.hpp"
#include "sparse/orderings.hpp"
