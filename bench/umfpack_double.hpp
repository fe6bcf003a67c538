// UMFPACK in double precision, linked into this program, as a peer of the float interface over the same code.
#pragma once

#include <vector>

namespace quorin::bench {

// A square matrix in compressed columns; complex if it has imaginary parts.
template <class T>
struct ColumnMatrix {
  int order = 0;
  std::vector<int> starts, rows;
  std::vector<T> re, im;
  bool is_complex() const { return !im.empty(); }
};

// Analyses, factorizes, solves for the vector b + i b and frees all that. Returns the status.
int solve_with_umfpack(const ColumnMatrix<double>& a, const std::vector<double>& b, std::vector<double>& x,
                       std::vector<double>& z);

}  // namespace quorin::bench
