// Gathers elements of a vector into contiguous memory, and scatters them back. Bits are moved, nothing is computed.
// Wrong arguments are reported through base::report_argument_error, by position, and touch nothing. What may overlap
// and what hosts see else is told in exports/tables/pack.table.
#pragma once

namespace quorin::pack {

// y(j) <- a(j inca), a(ia(j)): j = 0...n-1.
void pack_increment(const int* n, const float* a, const int* inca, float* y) noexcept;
void pack_index(const int* n, const float* a, const int* ia, float* y) noexcept;
// y(0), y(1), ... <- the a(j) with ma(j) not 0; y needs as many entries as there are.
void pack_mask(const int* n, const float* a, const int* ma, float* y) noexcept;

// y(j incy), y(iy(j)) <- a(j): j = 0...n-1. The rest of y is left alone.
void unpack_increment(const int* n, const float* a, float* y, const int* incy) noexcept;
void unpack_index(const int* n, const float* a, float* y, const int* iy) noexcept;
// The y(j) with my(j) not 0 <- a(0), a(1), ...
void unpack_mask(const int* n, const float* a, float* y, const int* my) noexcept;

}  // namespace quorin::pack
