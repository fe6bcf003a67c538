// What the iterative solvers cost beside the host's own product, and how long incomplete factorizations take.
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/operands.hpp"
#include "bench/sparse_lu.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

enum Request { kMultiply = 1, kHostTest = 2 };

// The parameters that hosts set here, one-based.
class Parameters {
 public:
  int& warnings() { return ipar_[6]; }
  int& limit_test() { return ipar_[7]; }
  int& residual_test() { return ipar_[8]; }
  int& host_test() { return ipar_[9]; }
  int& zero_norm_test() { return ipar_[11]; }
  int& cycle_length() { return ipar_[14]; }
  double& relative_tolerance() { return dpar_[0]; }
  double& residual() { return dpar_[4]; }
  double& beta() { return dpar_[7]; }
  double& least_pivot() { return dpar_[30]; }

  int* ipar() { return ipar_.data(); }
  double* dpar() { return dpar_.data(); }

 private:
  std::array<int, 128> ipar_{};
  std::array<double, 128> dpar_{};
};

void require(bool holds, const char* routine) {
  if (!holds) throw std::runtime_error(std::string(routine) + " does not do what the row expects");
}

// One iteration of DCG, whose host answers the product with nothing at all. No recurrence survives that, so the host
// sees to it that no step gets anywhere: it holds the step's numerator, in dpar(5), near zero and beta, in dpar(8), at
// a half. The solver's vectors then keep their sizes, and its work is that of any other iteration.
class CgIteration {
 public:
  CgIteration(const quorin_library& library, int n)
      : step_(library.DCG), n_(n), x_(length(n)), b_(length(n)), tmp_(4 * length(n)) {
    int request = -1;
    library.DCG_INIT(&n_, x_.data(), b_.data(), &request, p_.ipar(), p_.dpar(), tmp_.data());
    require(request == 0, "DCG_INIT");
    p_.limit_test() = 0;
    p_.host_test() = 1;
    require(step() == kMultiply, "DCG");
    for (std::size_t i = 0; i < length(n); ++i) tmp_[length(n) + i] = b_[i] / 2;  // what the host's product leaves
    require(step() == kMultiply, "DCG");
  }

  void operator()() {
    p_.residual() = 1e-30;
    require(step() == kHostTest, "DCG");
    p_.beta() = 0.5;
    require(step() == kMultiply, "DCG");
  }

  // Vectors of n that pass in and out: (p, q); x and r move along p and q; p turns.
  static constexpr double kVectorsMoved = 2 + (4 + 2) + (2 + 1);
  static constexpr double kVectorsHeld = 4;

 private:
  static std::size_t length(int n) { return static_cast<std::size_t>(n); }

  int step() {
    int request = 0;
    step_(&n_, x_.data(), b_.data(), &request, p_.ipar(), p_.dpar(), tmp_.data());
    return request;
  }

  decltype(&::DCG) step_;
  int n_;
  Parameters p_;
  Array<double> x_, b_, tmp_;
};

// One cycle of DFGMRES, whose host answers the product with nothing: each new vector is then the one that stood there,
// which the last cycle made orthogonal to the ones before. It is orthogonalised as any other that loses no digits.
class FgmresCycle {
 public:
  static constexpr int kSteps = 20;

  FgmresCycle(const quorin_library& library, int n)
      : step_(library.DFGMRES), n_(n), x_(length(n)), b_(length(n)), tmp_(work_length(n)) {
    int request = -1;
    library.DFGMRES_INIT(&n_, x_.data(), b_.data(), &request, p_.ipar(), p_.dpar(), tmp_.data());
    require(request == 0, "DFGMRES_INIT");
    p_.warnings() = 0;  // of positions that the check makes suit the cycle's length
    p_.cycle_length() = kSteps;
    p_.limit_test() = 0;
    p_.host_test() = 0;
    p_.residual_test() = 1;  // passes never: the tolerances are zero
    p_.relative_tolerance() = 0;
    p_.zero_norm_test() = 1;
    library.DFGMRES_CHECK(&n_, x_.data(), b_.data(), &request, p_.ipar(), p_.dpar(), tmp_.data());
    require(request == 0, "DFGMRES_CHECK");
    require(step() == kMultiply, "DFGMRES");
  }

  // The product of the residual, then one for each step.
  void operator()() {
    for (int i = 0; i <= kSteps; ++i) require(step() == kMultiply, "DFGMRES");
  }

  // Vectors of n that pass in and out in a cycle. Step k: a product with the first of k basis vectors, then one pass
  // for each, which takes it out and forms the product with the next. Then m normalisations, the correction with four
  // vectors a pass, and the new residual.
  static constexpr double kVectorsMoved =
      2.0 * kSteps * (kSteps + 1) + kSteps + 2 * kSteps + 1.5 * kSteps + (2 + 3 + 1);
  static constexpr double kVectorsHeld = kSteps + 1;

 private:
  static std::size_t length(int n) { return static_cast<std::size_t>(n); }
  // Without a preconditioner.
  static std::size_t work_length(int n) { return (kSteps + 1) * length(n) + kSteps * (kSteps + 9) / 2 + 1; }

  int step() {
    int request = 0;
    step_(&n_, x_.data(), b_.data(), &request, p_.ipar(), p_.dpar(), tmp_.data());
    return request;
  }

  decltype(&::DFGMRES) step_;
  int n_;
  Parameters p_;
  Array<double> x_, b_, tmp_;
};

template <class Work>
void add_iteration_row(Suite& suite, const char* routine, int n) {
  const double vector = 8.0 * n;
  const Row row{
      "rci", routine, n, 1, Work::kVectorsMoved * vector, Unit::kByte, Limit::kTriad, Work::kVectorsHeld * vector};
  suite.measure(row, "quorin", [&library = suite.libraries().product, n] { return Work(library, n); });
  suite.add_limit(row);
}

class PatternFactorization {
 public:
  PatternFactorization(const quorin_library& library, const test::SparseMatrix& a)
      : ilu0_(library.DCSRILU0), order_(a.rows), a_(compressed_rows(a, 1)), factors_(a_.re.size()) {
    p_.least_pivot() = 1e-16;
  }

  void operator()() {
    int error = -1;
    ilu0_(&order_, a_.re.data(), a_.starts.data(), a_.indices.data(), factors_.data(), p_.ipar(), p_.dpar(), &error);
    require(error == 0, "DCSRILU0");
  }
  double fill() const { return static_cast<double>(factors_.size()); }

 private:
  decltype(&::DCSRILU0) ilu0_;
  int order_;
  test::CompressedArrays a_;
  std::vector<double> factors_;
  Parameters p_;
};

class ThresholdFactorization {
 public:
  ThresholdFactorization(const quorin_library& library, const test::SparseMatrix& a, double tolerance, int most)
      : ilut_(library.DCSRILUT), order_(a.rows), a_(compressed_rows(a, 1)), tolerance_(tolerance), most_(most) {
    const auto order = static_cast<std::size_t>(order_), width = static_cast<std::size_t>(most);
    const std::size_t capacity = (2 * width + 1) * order - width * (width + 1) + 1;
    values_.resize(capacity);
    columns_.resize(capacity);
    row_starts_.resize(order + 1);
    p_.least_pivot() = tolerance;
  }

  void operator()() {
    int error = -1;
    ilut_(&order_, a_.re.data(), a_.starts.data(), a_.indices.data(), values_.data(), row_starts_.data(),
          columns_.data(), &tolerance_, &most_, p_.ipar(), p_.dpar(), &error);
    require(error == 0, "DCSRILUT");
  }
  double fill() const { return row_starts_.back() - 1.0; }

 private:
  decltype(&::DCSRILUT) ilut_;
  int order_;
  test::CompressedArrays a_;
  double tolerance_;
  int most_;
  std::vector<double> values_;
  std::vector<int> row_starts_, columns_;
  Parameters p_;
};

class PeerFactorization {
 public:
  PeerFactorization(const test::SparseMatrix& a, double tolerance, int fill_factor) : lu_(a, tolerance, fill_factor) {}
  void operator()() { lu_.factorize(); }
  double fill() const { return lu_.fill(); }

 private:
  EigenIncompleteLu lu_;
};

void add_factorization_rows(Suite& suite, int side) {
  const quorin_library& library = suite.libraries().product;
  const int order = side * side;
  // The peer has no factorization on a pattern; the nearest thing is its least factor, which keeps fewer entries. For
  // the other row kMost is such that both keep about as many: the peer's ordering saves fill.
  struct Kind {
    const char* routine;
    double flops, tolerance;
    int fill_factor;
  };
  constexpr Kind kPattern = {"DCSRILU0", 50, 0, 1}, kThreshold = {"DCSRILUT", 1000, 1e-4, 4};
  constexpr int kMost = 6;
  const auto row = [order](const Kind& kind) {
    return Row{"rci", kind.routine, order, 1, kind.flops * order, Unit::kTime};
  };
  suite.measure(row(kPattern), "quorin",
                [&library, side] { return PatternFactorization(library, test::central_convection(side)); });
  const auto add_peer = [&](const Kind& kind) {
    if (!EigenIncompleteLu::is_there()) return;
    suite.measure(row(kind), "eigen", [kind, side] {
      return PeerFactorization(test::central_convection(side), kind.tolerance, kind.fill_factor);
    });
  };
  add_peer(kPattern);
  suite.measure(row(kThreshold), "quorin", [&library, side, tolerance = kThreshold.tolerance] {
    return ThresholdFactorization(library, test::central_convection(side), tolerance, kMost);
  });
  add_peer(kThreshold);
}

}  // namespace

void add_rci_rows(Suite& suite) {
  for (const int n : suite.sizes({1000, 10'000, 100'000, 4'000'000}, {1000, 10'000, 4'000'000})) {
    add_iteration_row<CgIteration>(suite, "DCG", n);
  }
  for (const int n : suite.sizes({200, 1000, 10'000, 500'000}, {200, 10'000, 500'000})) {
    add_iteration_row<FgmresCycle>(suite, "DFGMRES", n);
  }
  for (const int side : suite.sizes({30, 100, 300}, {30, 200})) add_factorization_rows(suite, side);
}

}  // namespace quorin::bench
