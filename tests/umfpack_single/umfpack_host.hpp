// A host of the float interface: calls the index forms of the family that a matrix belongs to.
#pragma once

#include "quorin/umfpack.h"
#include "tests/support/guarded.hpp"
#include "tests/support/index_form.hpp"
#include "tests/support/test.hpp"
#include "tests/umfpack_single/matrices.hpp"

namespace umfpack_test {

// An argument that only the complex family has.
template <class T>
struct ComplexOnly {
  T& argument;
};
template <class T>
ComplexOnly<T> complex_only(T& argument) {
  return {argument};
}

template <bool kIsComplex, class T>
auto kept(T& argument) {
  return std::tie(argument);
}
template <bool kIsComplex, class T>
auto kept(ComplexOnly<T>& given) {
  if constexpr (kIsComplex) {
    return std::tie(given.argument);
  } else {
    return std::tuple();
  }
}

// Calls the index form of a family.
template <class Real, class Complex, class... Arguments>
int call(bool is_complex, Real* real, Complex* complex, Arguments&&... arguments) {
  const auto run = [](auto* form, auto kept_arguments) {
    return std::apply([form](auto&... each) { return quorin::test::call_index_form(form, each...); }, kept_arguments);
  };
  return is_complex ? run(complex, std::tuple_cat(kept<true>(arguments)...))
                    : run(real, std::tuple_cat(kept<false>(arguments)...));
}

// A matrix in floats, its objects, Control and Info. Frees what it made.
struct Host {
  explicit Host(const Matrix& matrix) : A(matrix), Ax(rounded(A.Ax)), Az(rounded(A.Az)) {
    quorin::test::call_index_form(umfpack_si_defaults_Idx, Control);
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
    return call(A.is_complex(), umfpack_si_symbolic_Idx, umfpack_ci_symbolic_Idx, A.n_row, A.n_col, A.Ap, A.Ai, Ax,
                complex_only(Az), &Symbolic, Control, Info);
  }
  int numeric() {
    return call(A.is_complex(), umfpack_si_numeric_Idx, umfpack_ci_numeric_Idx, A.Ap, A.Ai, Ax, complex_only(Az),
                Symbolic, &Numeric, Control, Info);
  }
  void factorize() {
    ASSERT_EQ(symbolic(), 0);
    ASSERT_EQ(numeric(), 0);
  }
  int solve(int sys, const Floats& Bx, const Floats& Bz) {
    clear_solution();
    return call(A.is_complex(), umfpack_si_solve_Idx, umfpack_ci_solve_Idx, sys, A.Ap, A.Ai, Ax, complex_only(Az), Xx,
                complex_only(Xz), Bx, complex_only(Bz), Numeric, Control, Info);
  }
  // With work space of exactly the length that the interface asks for, which begins between two doubles every other
  // time.
  int wsolve(int sys, const Floats& Bx, const Floats& Bz) {
    clear_solution();
    const bool refined = sys <= 2 && Control[7] >= 1;
    quorin::test::Guarded<int> Wi(A.order(), -7);
    quorin::test::Guarded<float> W((A.is_complex() ? (refined ? 10U : 4U) : (refined ? 5U : 1U)) * A.order(), -7.0F,
                                   sys % 2 == 0 ? 4 : 0);
    const int status =
        call(A.is_complex(), umfpack_si_wsolve_Idx, umfpack_ci_wsolve_Idx, sys, A.Ap, A.Ai, Ax, complex_only(Az), Xx,
             complex_only(Xz), Bx, complex_only(Bz), Numeric, Control, Info, Wi, W);
    EXPECT_TRUE(Wi.intact() && W.intact());
    return status;
  }
  void clear_solution() {
    Xx.assign(A.order(), 0);
    Xz.assign(A.order(), 0);
  }

  Matrix A;
  Floats Ax, Az, Xx, Xz;
  void *Symbolic = nullptr, *Numeric = nullptr;
  std::array<float, 20> Control{};
  std::array<float, 90> Info{};
};

}  // namespace umfpack_test
