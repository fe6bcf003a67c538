#include "families/slap/incomplete_lu.hpp"

#include <algorithm>

#include "families/slap/incomplete_cholesky.hpp"

namespace quorin::slap {
namespace {

// Calls visit(i, j, a) for every entry of A, those that are only implied included.
template <class Visit>
void for_each_whole_entry(const ColumnMatrix& matrix, Visit visit) {
  for_each_entry(matrix, [&](int i, int j, float a) {
    visit(i, j, a);
    if (matrix.is_lower && i > j) visit(j, i, a);
  });
}

// L, D and U <- the triangles of A. The rows of L get ascending columns, those of U any order.
void split(const ColumnMatrix& matrix, TriangleSizes sizes, const LduFactors& factors) {
  RowFiller lower(factors.l, sizes.lower), upper(factors.u, sizes.upper);
  std::fill_n(factors.inverse, matrix.n, 0.0F);
  for_each_whole_entry(matrix, [&](int i, int j, float) {
    if (i > j) lower.count(i);
    if (i < j) upper.count(i);
  });
  lower.start();
  upper.start();
  for_each_whole_entry(matrix, [&](int i, int j, float a) {
    if (i > j) lower.add(i, j, a);
    if (i < j) upper.add(i, j, a);
    if (i == j) factors.inverse[i] += a;
  });
  lower.finish();
  upper.finish();
}

// Where the entries of row i stand in the array of all values, plus one; 0 for columns that the row lacks. Of repeated
// entries the last is found; they add up, as every step is linear in them.
class RowPlaces {
 public:
  RowPlaces(const LduFactors& factors, int* place) : factors_(factors), place_(place) {
    std::fill_n(place_, factors.l.n, 0);
  }
  void set(int i) {
    mark(i, true);
    const auto to_inverse = static_cast<int>(factors_.inverse - factors_.l.values);
    place_[i] = to_inverse + i + 1;
  }
  void clear(int i) {
    mark(i, false);
    place_[i] = 0;
  }
  int operator[](int column) const { return place_[column]; }

 private:
  void mark(int i, bool is_there) {
    const TriangularRows &l = factors_.l, &u = factors_.u;
    const auto to_u = static_cast<int>(u.values - l.values);
    for (int k = l.begin(i); k < l.end(i); ++k) place_[l.column(k)] = is_there ? k + 1 : 0;
    for (int k = u.begin(i); k < u.end(i); ++k) place_[u.column(k)] = is_there ? to_u + k + 1 : 0;
  }

  const LduFactors& factors_;
  int* place_;
};

// Row i <- row i - v (row j of I + U), where v = entry (i,j) as it is when column j's turn comes.
void subtract_row(const LduFactors& factors, int j, float v, const RowPlaces& places) {
  const TriangularRows& u = factors.u;
  for (int m = u.begin(j), end = u.end(j); m < end; ++m) {
    if (const int place = places[u.column(m)]; place != 0) factors.l.values[place - 1] -= v * u.values[m];
  }
}

}  // namespace

TriangleSizes count_triangles(const ColumnMatrix& matrix) {
  TriangleSizes sizes{0, 0};
  for_each_whole_entry(matrix, [&](int i, int j, float) {
    sizes.lower += i > j ? 1 : 0;
    sizes.upper += i < j ? 1 : 0;
  });
  return sizes;
}

void factor_ldu(const ColumnMatrix& matrix, const LduFactors& factors, int* place) {
  const TriangularRows &l = factors.l, &u = factors.u;
  float* const inverse = factors.inverse;
  split(matrix, count_triangles(matrix), factors);
  RowPlaces places(factors, place);
  for (int i = 0; i < matrix.n; ++i) {
    places.set(i);
    for (int k = l.begin(i), end = l.end(i); k < end; ++k) {
      const int j = l.column(k);
      subtract_row(factors, j, l.values[k], places);
      l.values[k] *= inverse[j];
    }
    if (inverse[i] == 0) inverse[i] = replacement_pivot(matrix, i);
    inverse[i] = 1 / inverse[i];
    for (int k = u.begin(i), end = u.end(i); k < end; ++k) u.values[k] *= inverse[i];
    places.clear(i);
  }
}

template <class T>
void LduFactors::solve(const T* r, T* z) const {
  solve_lower(l, r, z);
  solve_upper(u, inverse, z, z);
}

template <class T>
void LduFactors::solve_transposed(const T* r, T* z) const {
  if (z != r) std::copy_n(r, l.n, z);
  solve_upper_transposed(u, z);
  scale_into(l.n, inverse, z, z);
  solve_lower_transposed(l, z);
}

template void LduFactors::solve(const float*, float*) const;
template void LduFactors::solve(const double*, double*) const;
template void LduFactors::solve_transposed(const float*, float*) const;
template void LduFactors::solve_transposed(const double*, double*) const;

}  // namespace quorin::slap
