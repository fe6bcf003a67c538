// Small systems of all kinds, and their solutions by dense elimination.
#pragma once

#include "tests/pardiso/pardiso_host.hpp"
#include "tests/support/dense.hpp"

namespace pardiso_test {

struct System {
  std::string name;
  Matrix matrix;
  double condition = 1e2;          // about
  int positive = 0, negative = 0;  // eigenvalues, of kinds that have them

  int n() const { return matrix.n(); }
};

inline std::vector<Complex> ones(int n) { return std::vector<Complex>(static_cast<std::size_t>(n), 1.0); }

// op(A) as a dense matrix; the operation as iparm(12).
inline quorin::test::DenseMatrix dense(const Matrix& A, int operation = 0) {
  quorin::test::DenseMatrix D(A.n(), A.n());
  for (int j = 0; j < A.n(); ++j) {
    std::vector<Complex> unit(static_cast<std::size_t>(A.n()));
    unit[static_cast<std::size_t>(j)] = 1.0;
    const auto column = A.times(unit, operation);
    for (int i = 0; i < A.n(); ++i) D(i, j) = column[static_cast<std::size_t>(i)];
  }
  return D;
}

// op(A)^-1 b
inline std::vector<Complex> solution(const Matrix& A, const std::vector<Complex>& b, int operation = 0) {
  quorin::test::DenseMatrix B(A.n(), 1);
  std::copy(b.begin(), b.end(), B.a.begin());
  const auto X = solve(dense(A, operation), B);
  return {X.a.begin(), X.a.end()};
}

inline Matrix unsymmetric5() {
  return {
      11, {1, 4, 6, 9, 12, 14}, {1, 2, 4, 1, 2, 3, 4, 5, 1, 3, 4, 2, 5}, {1, -1, -3, -2, 5, 4, 6, 4, -4, 2, 7, 8, -5}};
}
// The same with the zeros that make its pattern symmetric.
inline Matrix structurally_symmetric5() {
  return {1,
          {1, 4, 7, 10, 13, 16},
          {1, 2, 4, 1, 2, 5, 3, 4, 5, 1, 3, 4, 2, 3, 5},
          {1, -1, -3, -2, 5, 0, 4, 6, 4, -4, 2, 7, 8, 0, -5}};
}
inline Matrix indefinite8() {
  return {-2,
          {1, 5, 8, 10, 12, 15, 17, 18, 19},
          {1, 3, 6, 7, 2, 3, 5, 3, 8, 4, 7, 5, 6, 7, 6, 8, 7, 8},
          {7, 1, 2, 7, -4, 8, 2, 1, 5, 7, 9, 5, 1, 5, -1, 5, 11, 5}};
}
inline Matrix definite8() {
  Matrix A = indefinite8();
  A.mtype = 2;
  A.a = {20, 1, 2, 7, 15, 8, 2, 20, 5, 15, 9, 15, 1, 5, 15, 5, 40, 15};
  return A;
}
inline Matrix definite5() {
  return {2, {1, 6, 7, 8, 9, 10}, {1, 2, 3, 4, 5, 2, 3, 4, 5}, {9, 1.5, 6, 0.75, 3, 0.5, 12, 0.625, 16}};
}
inline Matrix indefinite5() {
  return {-2, {1, 4, 5, 8, 9, 10}, {1, 2, 4, 2, 3, 4, 5, 4, 5}, {1, -1, -3, 5, 4, 6, 4, 7, -5}};
}
inline Matrix indefinite3() { return {-2, {1, 3, 5, 6}, {1, 3, 2, 3, 3}, {2, 3, 2, 1, 2}}; }
inline Matrix unsymmetric8() {
  return {11,
          {1, 5, 8, 10, 12, 13, 16, 18, 21},
          {1, 3, 6, 7, 2, 3, 5, 3, 8, 4, 7, 2, 3, 6, 8, 2, 7, 3, 7, 8},
          {7, 1, 2, 7, -4, 8, 2, 1, 5, 7, 9, -4, 7, 3, 5, 1, 11, -3, 2, 5}};
}
// With the entries (1,3), (1,6), (5,7) made complex.
inline Matrix complex8(Matrix A, int mtype) {
  A.mtype = mtype;
  A.a[1] = {1, 1};
  A.a[2] = {2, -1};
  A.a[13] = {5, 2};
  return A;
}
inline Matrix complex5() {
  Matrix A = unsymmetric5();
  A.mtype = 13;
  A.a[0] = {1, 1};
  return A;
}
inline Matrix with_type(Matrix A, int mtype) {
  A.mtype = mtype;
  return A;
}

inline std::vector<System> systems() {
  return {
      {"unsymmetric 5", unsymmetric5()},
      {"unsymmetric 5 as complex", with_type(unsymmetric5(), 13)},
      {"structurally symmetric 5", structurally_symmetric5()},
      {"structurally symmetric 5 as complex", with_type(structurally_symmetric5(), 3)},
      {"structurally symmetric 5 as unsymmetric", with_type(structurally_symmetric5(), 11)},
      {"indefinite 8", indefinite8(), 1e2, 5, 3},
      {"indefinite 8 as Hermitian", with_type(indefinite8(), -4), 1e2, 5, 3},
      {"indefinite 8 as complex symmetric", with_type(indefinite8(), 6)},
      {"definite 5", definite5(), 1e5},
      {"indefinite 5", indefinite5(), 1e2, 3, 2},
      {"indefinite 3", indefinite3(), 1e2, 2, 1},
      {"unsymmetric 8", unsymmetric8()},
      {"definite 8", definite8()},
      {"definite 8 as Hermitian", with_type(definite8(), 4)},
      {"definite 8 as indefinite", with_type(definite8(), -2), 1e2, 8, 0},
      {"complex unsymmetric 5", complex5()},
      {"Hermitian 8", complex8(indefinite8(), -4), 1e2, 5, 3},
      {"Hermitian definite 8", complex8(definite8(), 4)},
      {"complex symmetric 8", complex8(indefinite8(), 6)},
  };
}

// 10 x 10, singular; the equations 8 to 10 are flagged. No diagonal entry of the others is stored.
inline Matrix schur10() {
  Matrix A{11,
           {0, 3, 6, 9, 12, 15, 18, 19, 20, 21, 22},
           {4, 7, 8, 0, 5, 7, 1, 6, 8, 0, 2, 7, 1, 2, 8, 2, 3, 4, 3, 5, 6, 4},
           {-1, 1, 1, 1, 1, 5.5, 1, 1, 4, 1, -1, -2, 1, -1, -4, 1, -1, -6, 1, 1, 1, 1}};
  for (auto* indices : {&A.ia, &A.ja}) {
    for (auto& index : *indices) ++index;
  }
  return A;
}

}  // namespace pardiso_test
