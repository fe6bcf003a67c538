// Sparse triangles with unit diagonals, stored by rows, and their solves.
#pragma once

#include "slap/column_matrix.hpp"

namespace quorin::slap {

// Row i holds entries starts(i) .. starts(i+1)-1: column columns(k), value values(k), all one-based, without the unit
// diagonal.
struct TriangularRows {
  int n;
  int* starts;
  int* columns;
  float* values;

  int begin(int i) const { return starts[i] - 1; }
  int end(int i) const { return starts[i + 1] - 1; }
  int column(int k) const { return columns[k] - 1; }
};

// In all of these z may be r.
//
// z <- (I + L)^-1 r
void solve_lower(const TriangularRows& l, const float* r, float* z);
// z <- (I + L)^-1 S r with a diagonal S; likewise for U.
void solve_lower(const TriangularRows& l, const float* scale, const float* r, float* z);
void solve_upper(const TriangularRows& u, const float* scale, const float* r, float* z);
// z <- (I + L)^-T z and z <- (I + U)^-T z
void solve_lower_transposed(const TriangularRows& l, float* z);
void solve_upper_transposed(const TriangularRows& u, float* z);

// z <- S r
void scale_into(int n, const float* scale, const float* r, float* z);

// Collects rows from entries that come in any order: count all of them, start, add each again, finish. Entries beyond
// `capacity` are left out, those of late rows first. Within a row the order is that of the additions. No other memory
// is needed: until the end, starts(i) is where the next entry of row i goes.
class RowFiller {
 public:
  RowFiller(const TriangularRows& rows, int capacity);
  void count(int i) { ++rows_.starts[i]; }
  void start();
  void add(int i, int j, float value) {
    const int place = rows_.starts[i]++;
    if (place >= capacity_) return;
    rows_.columns[place] = j + 1;
    rows_.values[place] = value;
  }
  void finish();

 private:
  TriangularRows rows_;
  int capacity_;
};

// The strictly lower triangle of a matrix, columns ascending in each row, up to `capacity` entries.
void extract_lower(const ColumnMatrix& matrix, int capacity, const TriangularRows& l);

// The number of stored entries below the diagonal.
int count_lower(const ColumnMatrix& matrix);

}  // namespace quorin::slap
