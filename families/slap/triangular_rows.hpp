// Sparse triangles with unit diagonals, stored by rows, and their solves.
#pragma once

#include "families/slap/column_matrix.hpp"

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

// Row i of (I + T) z = S r, from its right side and the entries of z that are known. `last` is z(j), found just before:
// each row waits for that, and the way through memory would take longer than the arithmetic.
template <class T>
T solve_row(const TriangularRows& t, int i, T right, const T* z, int j, T last) {
  for (int k = t.begin(i), end = t.end(i); k < end; ++k) {
    const int column = t.column(k);
    right -= t.values[k] * (column == j ? last : z[column]);
  }
  return right;
}

// Takes z(i), which is given, out of the equations of (I + T)^T that it is in. Returns z(j), the next to be known.
template <class T>
T eliminate(const TriangularRows& t, int i, T zi, T* z, int j) {
  T next = z[j];
  for (int k = t.begin(i), end = t.end(i); k < end; ++k) {
    const int column = t.column(k);
    const T rest = z[column] - t.values[k] * zi;
    z[column] = rest;
    if (column == j) next = rest;
  }
  return next;
}

// In all of these z may be r.
//
// z <- (I + L)^-1 r
template <class T>
void solve_lower(const TriangularRows& l, const T* r, T* z) {
  T last = 0;
  for (int i = 0; i < l.n; ++i) z[i] = last = solve_row(l, i, r[i], z, i - 1, last);
}

// z <- (I + L)^-1 S r with a diagonal S; likewise for U.
template <class T>
void solve_lower(const TriangularRows& l, const float* scale, const T* r, T* z) {
  T last = 0;
  for (int i = 0; i < l.n; ++i) z[i] = last = solve_row(l, i, scale[i] * r[i], z, i - 1, last);
}
template <class T>
void solve_upper(const TriangularRows& u, const float* scale, const T* r, T* z) {
  T last = 0;
  for (int i = u.n - 1; i >= 0; --i) z[i] = last = solve_row(u, i, scale[i] * r[i], z, i + 1, last);
}

// z <- (I + L)^-T z and z <- (I + U)^-T z
template <class T>
void solve_lower_transposed(const TriangularRows& l, T* z) {
  T zi = z[l.n - 1];
  for (int i = l.n - 1; i > 0; --i) zi = eliminate(l, i, zi, z, i - 1);
}
template <class T>
void solve_upper_transposed(const TriangularRows& u, T* z) {
  T zi = z[0];
  for (int i = 0; i < u.n - 1; ++i) zi = eliminate(u, i, zi, z, i + 1);
}

// z <- S r
template <class T>
void scale_into(int n, const float* scale, const T* r, T* z) {
  for (int i = 0; i < n; ++i) z[i] = scale[i] * r[i];
}

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
