#include "bench/sparse_lu.hpp"

#include <stdexcept>

#include "bench/eigen.hpp"

namespace quorin::bench {

#if defined(QUORIN_HAS_EIGEN)

namespace {

using EigenMatrix = Eigen::SparseMatrix<double, Eigen::RowMajor, int>;

EigenMatrix eigen_matrix(const test::SparseMatrix& matrix) {
  std::vector<Eigen::Triplet<double>> entries;
  for (const test::Entry& e : matrix.entries) entries.emplace_back(e.row, e.column, e.value.real());
  EigenMatrix a(matrix.rows, matrix.columns);
  a.setFromTriplets(entries.begin(), entries.end());
  return a;
}

// The factors are protected members of the class.
class OpenIncompleteLut : public Eigen::IncompleteLUT<double, int> {
 public:
  double entries() const { return static_cast<double>(m_lu.nonZeros()); }
};

}  // namespace

struct EigenIncompleteLu::Factors {
  EigenMatrix a;
  OpenIncompleteLut lu;
};

bool EigenIncompleteLu::is_there() { return true; }

EigenIncompleteLu::EigenIncompleteLu(const test::SparseMatrix& matrix, double tolerance, int fill_factor)
    : factors_(std::make_unique<Factors>()) {
  factors_->a = eigen_matrix(matrix);
  factors_->lu.setDroptol(tolerance);
  factors_->lu.setFillfactor(fill_factor);
  factors_->lu.analyzePattern(factors_->a);
}

void EigenIncompleteLu::factorize() {
  factors_->lu.factorize(factors_->a);
  if (factors_->lu.info() != Eigen::Success) throw std::runtime_error("Eigen's factorization fails");
}

double EigenIncompleteLu::fill() const { return factors_->lu.entries(); }

#else

struct EigenIncompleteLu::Factors {};

bool EigenIncompleteLu::is_there() { return false; }
EigenIncompleteLu::EigenIncompleteLu(const test::SparseMatrix&, double, int) {
  throw std::logic_error("this program was built without Eigen");
}
void EigenIncompleteLu::factorize() {}
double EigenIncompleteLu::fill() const { return 0; }

#endif

EigenIncompleteLu::EigenIncompleteLu(EigenIncompleteLu&&) noexcept = default;
EigenIncompleteLu::~EigenIncompleteLu() = default;

}  // namespace quorin::bench
