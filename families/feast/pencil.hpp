// The pair of matrices of an eigenproblem A x = lambda B x, in double precision.
#pragma once

#include <complex>

#include "base/workspace.hpp"
#include "families/feast/arguments.hpp"
#include "sparse/sparse.hpp"

namespace quorin::feast {

// The type that T is computed with.
template <Scalar T>
struct WideOf;
template <>
struct WideOf<float> {
  using Type = double;
};
template <>
struct WideOf<std::complex<float>> {
  using Type = std::complex<double>;
};
template <Scalar T>
using Wide = typename WideOf<T>::Type;

// The lower triangles of symmetric or Hermitian A and B by columns, on one pattern: that of both together and the
// diagonal, rows ascending. T is double or std::complex<double>.
template <Scalar T>
class Pencil {
 public:
  // From checked arrays; an identity is the B without values. Entries of a triangle that is not read are ignored, those
  // of the same place added up, imaginary parts of the diagonal taken as zero. kNoMemory, kSolverFailed where an entry
  // is not finite. Time: O(n + entries) if the rows are ascending, else entries are sorted.
  template <Scalar Host>
  [[nodiscard]] Status assign(int n, Storage storage, const HostMatrix<Host>& A, const HostMatrix<Host>& B);

  int size() const { return n_; }
  bool is_standard() const { return is_standard_; }
  sparse::ColumnMatrix<T> A() const { return {pattern(), a_.data()}; }
  sparse::ColumnMatrix<T> B() const { return {pattern(), b_.data()}; }
  sparse::Pattern pattern() const { return {n_, n_, starts_.data(), rows_.data()}; }
  double diagonal_of_b(int j) const { return real_part(b_.data()[starts_.data()[j]]); }
  // The largest sum of magnitudes of a column.
  double norm_of_a() const { return norm_of_a_; }
  // |x|^T (|A| + |value| |B|) |x|, in which the rounding errors of x^H (A - value B) x are measured.
  double sum_of_terms(const T* x, double value) const;

  // Y <- A X and Y <- B X, for columns that lie one behind the other.
  void multiply_by_a(int columns, const T* X, T* Y) const { multiply(A(), columns, X, Y); }
  void multiply_by_b(int columns, const T* X, T* Y) const;

 private:
  struct Entry {
    int column, row;
    T a, b;
  };

  template <Scalar Host>
  static bool collect(int n, Storage storage, const HostMatrix<Host>& M, T Entry::*value, Entry*& next);
  bool merge(const Entry* first, const Entry* last);
  void multiply(const sparse::ColumnMatrix<T>& M, int columns, const T* X, T* Y) const;

  int n_ = 0;
  bool is_standard_ = false;
  double norm_of_a_ = 0;
  base::Workspace<int> starts_, rows_;
  base::Workspace<T> a_, b_;
};

}  // namespace quorin::feast
