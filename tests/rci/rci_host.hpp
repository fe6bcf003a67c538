// Hosts as the documents describe them, for the tests of the iterative solvers, and matrices in compressed rows.
#pragma once

#include "quorin/rci.h"
#include "tests/support/guarded.hpp"
#include "tests/support/index_form.hpp"
#include "tests/support/sparse.hpp"
#include "tests/support/test.hpp"

namespace rci_test {

using Vector = std::vector<double>;

// Compressed rows, one-based, columns ascending.
struct Csr {
  int n = 0;
  std::vector<int> ia, ja;
  Vector a;

  void multiply(const double* x, double* y) const;
  Vector operator*(const Vector& x) const;
};

using Dense = std::vector<Vector>;

Csr sparse(const Dense& m);

// The matrices of the published examples.
Csr spd4();
Csr nonsymmetric5();
// Symmetric and indefinite; CG gets by.
Csr indefinite8();

void expect_near(const Vector& actual, const Vector& expected, double slack);

// Published values have 10 digits or fewer; a 0 stands for rounding errors of at most `zero`.
void expect_history(const Vector& actual, const Vector& expected, double zero, double relative = 5e-7);
Vector joined(const Vector& first, const Vector& second);

double norm(const Vector& x);
double residual_norm(const Csr& A, const double* b, const double* x);
Vector random_vector(int n, std::mt19937& random);
Csr csr(const quorin::test::SparseMatrix& A);
Csr random_matrix(int n, double density, double dominance, bool symmetric, std::mt19937& random);

using quorin::test::call_index_form;
using quorin::test::Guarded;

// Applies M^-1; `iteration` is ipar(4).
using Preconditioner = std::function<void(int iteration, const double* in, double* out)>;

Preconditioner jacobi(const Csr& A);

// One solve, through the index forms. Work arrays are as short as a plain run allows and stand between guard words;
// options are set through ipar and dpar.
class Host {
 public:
  virtual ~Host() = default;
  virtual int check() = 0;
  // One leg; returns the request.
  virtual int step() = 0;
  virtual Vector solution() { return x; }

  // Does what the last request asks. False when nothing is left to do.
  bool serve();
  // A leg and its answer, with a record.
  bool advance();
  // To the end. Returns the status.
  int run(int most = 10000);
  // The automatic residual test alone.
  void test_residual(double relative);
  double true_residual() { return residual_norm(A, b.data(), solution().data()); }
  bool intact() const { return ipar.intact() && dpar.intact() && tmp.intact(); }

  const Csr& A;
  Guarded<int> ipar;
  Guarded<double> dpar, tmp;
  Vector x, b;
  Preconditioner precondition;
  std::function<bool()> satisfied;
  int request = -1;
  std::string requests;  // so far, as a word of digits
  Vector residuals;      // dpar(5) after each product

 protected:
  Host(const Csr& matrix, const Vector& rhs, const Vector& start, std::size_t integers, std::size_t reals,
       std::size_t work);
  void begin(bool preconditioned);
  template <class Form, class... More>
  int call(Form* form, int n, More... more) {
    call_index_form(form, &n, x, b, &request, ipar, dpar, tmp, more...);
    return request;
  }
  double* column(int index) { return tmp.data() + static_cast<std::ptrdiff_t>(index) * A.n; }
  // Vectors of the last request.
  virtual double* source() { return column(request == 1 ? 0 : 2); }
  virtual double* target() { return column(request == 1 ? 1 : 3); }
};

class CgHost : public Host {
 public:
  CgHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned = false);
  int init(int n) { return call(sDCG_INIT_Idx, n); }
  int check() override { return call(sDCG_CHECK_Idx, A.n); }
  int step() override { return call(sDCG_Idx, A.n); }
  int itercount();
};

// Several right-hand sides.
class ManyHost : public Host {
 public:
  ManyHost(const Csr& matrix, const Vector& rhs, const Vector& start, bool preconditioned = false);
  int init(int count, int method);
  int check() override { return call_with_count(sDCGMRHS_CHECK_Idx); }
  int step() override { return call_with_count(sDCGMRHS_Idx); }
  std::vector<int> counts();

  int nrhs;

 private:
  template <class Form, class... More>
  int call_with_count(Form* form, More... more) {
    call_index_form(form, &A.n, x, &nrhs, b, &request, ipar, dpar, tmp, more...);
    return request;
  }
  double* source() override { return column(request == 1 ? 0 : 2 + ipar[2]); }
  double* target() override { return column(request == 1 ? 1 : 2); }
};

class FgmresHost : public Host {
 public:
  // `m`: cycle length (0: the default); without a preconditioner tmp ends before the preconditioned vectors.
  FgmresHost(const Csr& matrix, const Vector& rhs, const Vector& start, int m = 0, bool preconditioned = false);
  int init(int n) { return call(sDFGMRES_INIT_Idx, n); }
  int check() override { return call(sDFGMRES_CHECK_Idx, A.n); }
  int step() override { return call(sDFGMRES_Idx, A.n); }
  void test_residual(double relative);
  // The iterate where ipar(13) says, b being `into`. Returns the status.
  int get(Vector& into);
  int get() { return get(b); }
  // The iterate, by GET into a vector for it.
  Vector solution() override;

  int itercount = -1;

 private:
  double* source() override { return tmp.data() + ipar[21] - 1; }
  double* target() override { return tmp.data() + ipar[22] - 1; }
};

}  // namespace rci_test
