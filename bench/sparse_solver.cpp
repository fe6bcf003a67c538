#include "bench/sparse_solver.hpp"

#include <stdexcept>

#include "bench/eigen.hpp"

namespace quorin::bench {

#if defined(QUORIN_HAS_EIGEN)

namespace {

using Matrix = Eigen::SparseMatrix<float, Eigen::RowMajor, int>;
using Vector = Eigen::VectorXf;
using Diagonal = Eigen::DiagonalPreconditioner<float>;
using Cholesky = Eigen::IncompleteCholesky<float, Eigen::Lower | Eigen::Upper, Eigen::NaturalOrdering<int>>;
using Lu = Eigen::IncompleteLUT<float, int>;
template <class M>
using Cg = Eigen::ConjugateGradient<Matrix, Eigen::Lower | Eigen::Upper, M>;

Matrix eigen_matrix(const test::SparseMatrix& matrix) {
  std::vector<Eigen::Triplet<float>> entries;
  for (const test::Entry& e : matrix.entries) entries.emplace_back(e.row, e.column, static_cast<float>(e.value.real()));
  Matrix a(matrix.rows, matrix.columns);
  a.setFromTriplets(entries.begin(), entries.end());
  return a;
}

template <class Method>
void run(Method& method, const Matrix& a, const Vector& b, float tolerance) {
  method.setTolerance(tolerance);
  method.setMaxIterations(20000);
  method.compute(a);
  const Vector x = method.solve(b);
  if (method.info() != Eigen::Success) throw std::runtime_error("Eigen's solver does not converge");
}

// As many entries as A has, none dropped for its size.
void keep_pattern(Lu& lu) {
  lu.setFillfactor(1);
  lu.setDroptol(0);
}

template <template <class> class Method>
void run_diagonal_or_lu(PeerPreconditioner preconditioner, const Matrix& a, const Vector& b, float tolerance,
                        int restart) {
  const auto prepare = [restart](auto& method) {
    if constexpr (requires { method.set_restart(restart); }) method.set_restart(restart);
  };
  if (preconditioner == PeerPreconditioner::kDiagonal) {
    Method<Diagonal> method;
    prepare(method);
    return run(method, a, b, tolerance);
  }
  Method<Lu> method;
  prepare(method);
  keep_pattern(method.preconditioner());
  run(method, a, b, tolerance);
}

template <class M>
using Bicgstab = Eigen::BiCGSTAB<Matrix, M>;
template <class M>
using Gmres = Eigen::GMRES<Matrix, M>;

}  // namespace

struct EigenSolver::Solver {
  Matrix a;
  PeerIteration iteration;
  PeerPreconditioner preconditioner;
  int restart;
};

bool EigenSolver::is_there() { return true; }

EigenSolver::EigenSolver(const test::SparseMatrix& matrix, PeerIteration iteration, PeerPreconditioner preconditioner,
                         int restart)
    : solver_(std::make_unique<Solver>(Solver{eigen_matrix(matrix), iteration, preconditioner, restart})) {}

void EigenSolver::solve(const std::vector<float>& b, float tolerance) {
  const Solver& s = *solver_;
  const Vector right = Vector::Map(b.data(), static_cast<Eigen::Index>(b.size()));
  switch (s.iteration) {
    case PeerIteration::kCg:
      if (s.preconditioner == PeerPreconditioner::kDiagonal) {
        Cg<Diagonal> method;
        return run(method, s.a, right, tolerance);
      } else {
        Cg<Cholesky> method;
        return run(method, s.a, right, tolerance);
      }
    case PeerIteration::kLeastSquaresCg: {
      Eigen::LeastSquaresConjugateGradient<Matrix> method;
      return run(method, s.a, right, tolerance);
    }
    case PeerIteration::kBicgstab:
      return run_diagonal_or_lu<Bicgstab>(s.preconditioner, s.a, right, tolerance, s.restart);
    case PeerIteration::kGmres:
      return run_diagonal_or_lu<Gmres>(s.preconditioner, s.a, right, tolerance, s.restart);
  }
}

#else

struct EigenSolver::Solver {};

bool EigenSolver::is_there() { return false; }
EigenSolver::EigenSolver(const test::SparseMatrix&, PeerIteration, PeerPreconditioner, int) {
  throw std::logic_error("this program was built without Eigen");
}
void EigenSolver::solve(const std::vector<float>&, float) {}

#endif

EigenSolver::EigenSolver(EigenSolver&&) noexcept = default;
EigenSolver::~EigenSolver() = default;

}  // namespace quorin::bench
