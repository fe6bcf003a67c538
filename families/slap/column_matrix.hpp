// A sparse matrix in column format, and its products with vectors of any type, which are summed up in the result's.
#pragma once

namespace quorin::slap {

// Column j holds entries ja(j) .. ja(j+1)-1: row ia(k), value a(k), all one-based. If `is_lower`, each entry below the
// diagonal also stands for its mirror image.
struct ColumnMatrix {
  int n;
  int nelt;
  const int* ia;
  const int* ja;
  const float* a;
  bool is_lower;

  // Zero-based places of the entries of column j = 0..n-1.
  int begin(int j) const { return ja[j] - 1; }
  int end(int j) const { return ja[j + 1] - 1; }
  int row(int k) const { return ia[k] - 1; }

  // Columns follow each other from the first entry to the last, and rows lie within the matrix. Nothing else here
  // checks that, and products rely on it.
  [[nodiscard]] bool is_sound() const;

  // y <- A x and y <- A^T x; y is not x.
  template <class X, class Y>
  void multiply(const X* x, Y* y) const;
  template <class T>
  void multiply_transposed(const T* x, T* y) const;
  // y <- y + factor A x; y is not x.
  template <class X, class Y>
  void add_product(Y factor, const X* x, Y* y) const;
};

// Calls visit(i, j, a) with zero-based indices for every stored entry, column by column.
template <class Visit>
void for_each_entry(const ColumnMatrix& matrix, Visit visit) {
  for (int j = 0; j < matrix.n; ++j) {
    for (int k = matrix.begin(j), end = matrix.end(j); k < end; ++k) visit(matrix.row(k), j, matrix.a[k]);
  }
}

}  // namespace quorin::slap
