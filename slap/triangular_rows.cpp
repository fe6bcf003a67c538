#include "slap/triangular_rows.hpp"

#include <algorithm>

namespace quorin::slap {
namespace {

// Row i of (I + T) z = S r, from entries of z that are known.
float solve_row(const TriangularRows& t, int i, float right, const float* z) {
  for (int k = t.begin(i), end = t.end(i); k < end; ++k) right -= t.values[k] * z[t.column(k)];
  return right;
}

// Takes z(i) out of the equations of (I + T)^T that it is in.
void eliminate(const TriangularRows& t, int i, float* z) {
  const float zi = z[i];
  for (int k = t.begin(i), end = t.end(i); k < end; ++k) z[t.column(k)] -= t.values[k] * zi;
}

}  // namespace

void solve_lower(const TriangularRows& l, const float* r, float* z) {
  for (int i = 0; i < l.n; ++i) z[i] = solve_row(l, i, r[i], z);
}

void solve_lower(const TriangularRows& l, const float* scale, const float* r, float* z) {
  for (int i = 0; i < l.n; ++i) z[i] = solve_row(l, i, scale[i] * r[i], z);
}

void solve_upper(const TriangularRows& u, const float* scale, const float* r, float* z) {
  for (int i = u.n - 1; i >= 0; --i) z[i] = solve_row(u, i, scale[i] * r[i], z);
}

void solve_lower_transposed(const TriangularRows& l, float* z) {
  for (int i = l.n - 1; i >= 0; --i) eliminate(l, i, z);
}

void solve_upper_transposed(const TriangularRows& u, float* z) {
  for (int i = 0; i < u.n; ++i) eliminate(u, i, z);
}

void scale_into(int n, const float* scale, const float* r, float* z) {
  for (int i = 0; i < n; ++i) z[i] = scale[i] * r[i];
}

RowFiller::RowFiller(const TriangularRows& rows, int capacity) : rows_(rows), capacity_(capacity) {
  std::fill_n(rows_.starts, rows_.n + 1, 0);
}

void RowFiller::start() {
  int next = 0;
  for (int i = 0; i <= rows_.n; ++i) {
    const int count = rows_.starts[i];
    rows_.starts[i] = next;
    next += count;
  }
}

void RowFiller::finish() {
  for (int i = rows_.n; i > 0; --i) rows_.starts[i] = std::min(rows_.starts[i - 1], capacity_) + 1;
  rows_.starts[0] = 1;
}

void extract_lower(const ColumnMatrix& matrix, int capacity, const TriangularRows& l) {
  RowFiller filler(l, capacity);
  for_each_entry(matrix, [&](int i, int j, float) {
    if (i > j) filler.count(i);
  });
  filler.start();
  for_each_entry(matrix, [&](int i, int j, float a) {
    if (i > j) filler.add(i, j, a);
  });
  filler.finish();
}

int count_lower(const ColumnMatrix& matrix) {
  int count = 0;
  for_each_entry(matrix, [&](int i, int j, float) { count += i > j ? 1 : 0; });
  return count;
}

}  // namespace quorin::slap
