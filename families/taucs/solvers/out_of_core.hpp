// Factors whose panels are in files: they may be larger than memory, and another process can solve with them.
#pragma once

#include "families/taucs/solvers/panel_factors.hpp"

namespace quorin::taucs {

// x <- A^-1 b for one right-hand side in the factor's own order, of which taucs_linsolve's factor object has the
// permutation. x may be b. kErrorBadargs for what is no out-of-core factor with numbers; kErrorNomem; kError: a file.
std::int32_t ooc_solve_llt(void* L, void* x, const void* b) noexcept;

// For the driver. Handles, as those of factors in memory; null where a call fails.

// A factor without numbers, with the name `base_name` taken for its files, of which at most `memory` bytes are in
// memory at a time. A set of files that has the name is lost.
void* out_of_core_create(const char* base_name, double memory) noexcept;
// Factors A, eliminated in the order `permutation`, into them. They are no set before that has succeeded.
Status out_of_core_compute(void* L, const CcsMatrix* A, FactorKind kind, const int* permutation, int maxdepth) noexcept;
// Opens a set of files with a factor of A's order and type.
void* out_of_core_open(const CcsMatrix* A, const char* base_name, double memory) noexcept;
// Whether there is a set of files of this name that could be opened.
bool out_of_core_exists(const char* base_name) noexcept;
// The base name of a factor's files, or null for what is no such factor.
const char* out_of_core_base_name(void* L) noexcept;
// Lets go of the files, which can then be written anew; the factor has no numbers any more.
void out_of_core_give_up(void* L) noexcept;
// Frees the handle and all memory. The files stay.
void out_of_core_close(void* L) noexcept;

// Copies the order of elimination; false for what is no such factor, or without numbers.
bool out_of_core_order(void* L, std::int32_t* perm, std::int32_t* invperm) noexcept;
// kLlt for what is no such factor, or without numbers.
FactorKind out_of_core_kind(void* L) noexcept;
// As inertia_calc.
bool out_of_core_inertia(void* L, std::int32_t* inertia) noexcept;
// X <- A^-1 X for nrhs columns in the factor's order.
Status out_of_core_solve(void* L, int nrhs, void* X) noexcept;

}  // namespace quorin::taucs
