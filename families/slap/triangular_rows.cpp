#include "families/slap/triangular_rows.hpp"

#include <algorithm>

namespace quorin::slap {

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
