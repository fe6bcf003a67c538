// Incomplete LU factorization M = (I + L) D (I + U) on the pattern of A, and what the iterations need of it.
//
// Meijerink and van der Vorst, as for the symmetric case; Y. Saad, Iterative Methods for Sparse Linear Systems, 2nd
// ed., SIAM 2003, algorithm 10.4.
#pragma once

#include "families/slap/column_matrix.hpp"
#include "families/slap/preconditioner.hpp"
#include "families/slap/triangular_rows.hpp"

namespace quorin::slap {

struct LduFactors {
  TriangularRows l;
  float* inverse;  // D^-1
  TriangularRows u;

  // z <- M^-1 r and z <- M^-T r; z may be r.
  template <class T>
  void solve(const T* r, T* z) const;
  template <class T>
  void solve_transposed(const T* r, T* z) const;
};

// Entries of the strict triangles, with the mirror images that a lower triangle stands for.
struct TriangleSizes {
  int lower, upper;
};
TriangleSizes count_triangles(const ColumnMatrix& matrix);

// Fills the factors, whose values lie in one array and whose triangles have room for what count_triangles says.
// `place`: n entries of scratch. A pivot of zero is replaced by the sum of magnitudes of its column.
void factor_ldu(const ColumnMatrix& matrix, const LduFactors& factors, int* place);

class IncompleteLu final : public Preconditioner<float> {
 public:
  explicit IncompleteLu(const LduFactors& factors) : factors_(factors) {}
  void solve(const float* r, float* z) const override { factors_.solve(r, z); }

 private:
  LduFactors factors_;
};

class TransposedIncompleteLu final : public Preconditioner<float> {
 public:
  explicit TransposedIncompleteLu(const LduFactors& factors) : factors_(factors) {}
  void solve(const float* r, float* z) const override { factors_.solve_transposed(r, z); }

 private:
  LduFactors factors_;
};

// M M^T, for A A^T.
class NormalIncompleteLu final : public Preconditioner<double> {
 public:
  explicit NormalIncompleteLu(const LduFactors& factors) : factors_(factors) {}
  void solve(const double* r, double* z) const override {
    factors_.solve(r, z);
    factors_.solve_transposed(z, z);
  }

 private:
  LduFactors factors_;
};

}  // namespace quorin::slap
