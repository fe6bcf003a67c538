// The PARDISO family as the exports see it. exports/tables/pardiso.table tells what each argument means.
#pragma once

#include <cstdint>

namespace quorin::pardiso {

// All phases. Of the arguments, null may be whatever the phase does not read.
void run(void** pt, const std::int32_t* maxfct, const std::int32_t* mnum, const std::int32_t* mtype,
         const std::int32_t* phase, const std::int32_t* n, const void* a, const std::int32_t* ia,
         const std::int32_t* ja, std::int32_t* perm, const std::int32_t* nrhs, std::int32_t* iparm,
         const std::int32_t* msglvl, void* b, void* x, std::int32_t* error) noexcept;

// Clears pt and writes the defaults.
void initialize(void** pt, const std::int32_t* mtype, std::int32_t* iparm) noexcept;

// The diagonals of the factor and of A; a null array is not wanted.
void get_diagonal(void* const* pt, void* df, void* da, const std::int32_t* mnum, std::int32_t* error) noexcept;

// The file of a handle in a folder.
void store(void* const* pt, const char* dirname, std::int32_t* error) noexcept;
void restore(void** pt, const char* dirname, std::int32_t* error) noexcept;
void remove(const char* dirname, std::int32_t* error) noexcept;

}  // namespace quorin::pardiso
