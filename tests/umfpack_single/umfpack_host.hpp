// A host of the float interface: calls the index forms of the family that a matrix belongs to, with bases that stand
// three elements before the arrays.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "quorin/umfpack.h"
#include "tests/umfpack_single/matrices.hpp"

namespace umfpack_test {

inline constexpr int kIndex = 3;

// The base from which the array begins at kIndex. A null array stays null as what the index form computes.
template <class T>
T* base(T* array) {
  return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(array) - kIndex * sizeof(T));
}
template <class T>
T* base(std::vector<T>& array) {
  return base(array.data());
}
template <class T>
const T* base(const std::vector<T>& array) {
  return base(array.data());
}

// A matrix in floats, its objects, Control and Info. Frees what it made.
struct Host {
  explicit Host(const Matrix& matrix) : A(matrix), Ax(rounded(A.Ax)), Az(rounded(A.Az)) {
    umfpack_si_defaults_Idx(base(Control.data()), kIndex);
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() {
    umfpack_si_free_symbolic_Idx(&Symbolic);
    umfpack_ci_free_numeric_Idx(&Numeric);
    EXPECT_EQ(Symbolic, nullptr);
    EXPECT_EQ(Numeric, nullptr);
  }

  int symbolic() {
    if (A.is_complex()) {
      return umfpack_ci_symbolic_Idx(A.n_row, A.n_col, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex,
                                     base(Az), kIndex, &Symbolic, base(Control.data()), kIndex, base(Info.data()),
                                     kIndex);
    }
    return umfpack_si_symbolic_Idx(A.n_row, A.n_col, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex,
                                   &Symbolic, base(Control.data()), kIndex, base(Info.data()), kIndex);
  }
  int numeric() {
    if (A.is_complex()) {
      return umfpack_ci_numeric_Idx(base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, base(Az), kIndex,
                                    Symbolic, &Numeric, base(Control.data()), kIndex, base(Info.data()), kIndex);
    }
    return umfpack_si_numeric_Idx(base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, Symbolic, &Numeric,
                                  base(Control.data()), kIndex, base(Info.data()), kIndex);
  }
  int solve(int sys, const Floats& Bx, const Floats& Bz) {
    Xx.assign(A.order(), 0);
    Xz.assign(A.order(), 0);
    if (A.is_complex()) {
      return umfpack_ci_solve_Idx(sys, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, base(Az), kIndex,
                                  base(Xx), kIndex, base(Xz), kIndex, base(Bx), kIndex, base(Bz), kIndex, Numeric,
                                  base(Control.data()), kIndex, base(Info.data()), kIndex);
    }
    return umfpack_si_solve_Idx(sys, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, base(Xx), kIndex,
                                base(Bx), kIndex, Numeric, base(Control.data()), kIndex, base(Info.data()), kIndex);
  }
  // With work space of exactly the length that the interface asks for.
  int wsolve(int sys, const Floats& Bx, const Floats& Bz) {
    const std::size_t n = A.order();
    const bool refined = sys <= 2 && Control[7] >= 1;
    Integers Wi(n);
    Floats W((A.is_complex() ? (refined ? 10 : 4) : (refined ? 5 : 1)) * n);
    Xx.assign(n, 0);
    Xz.assign(n, 0);
    if (A.is_complex()) {
      return umfpack_ci_wsolve_Idx(sys, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, base(Az), kIndex,
                                   base(Xx), kIndex, base(Xz), kIndex, base(Bx), kIndex, base(Bz), kIndex, Numeric,
                                   base(Control.data()), kIndex, base(Info.data()), kIndex, base(Wi), kIndex, base(W),
                                   kIndex);
    }
    return umfpack_si_wsolve_Idx(sys, base(A.Ap), kIndex, base(A.Ai), kIndex, base(Ax), kIndex, base(Xx), kIndex,
                                 base(Bx), kIndex, Numeric, base(Control.data()), kIndex, base(Info.data()), kIndex,
                                 base(Wi), kIndex, base(W), kIndex);
  }

  Matrix A;
  Floats Ax, Az, Xx, Xz;
  void *Symbolic = nullptr, *Numeric = nullptr;
  std::array<float, 20> Control{};
  std::array<float, 90> Info{};
};

}  // namespace umfpack_test
