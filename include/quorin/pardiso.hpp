// The sparse direct solver for C++ hosts: an object that owns a handle, and errors as exceptions with a text.
//
//   quorin::pardiso::Solver<double> solver(quorin::pardiso::Kind::kUnsymmetric);
//   solver.analyze(starts, columns, values);   // compressed rows, counted from 0
//   solver.factor(values);                     // and again for other values
//   solver.solve(b, x);
//
// Symmetric and Hermitian kinds give the upper triangle of the matrix with its diagonal. The three arrays of the matrix
// are not copied: they stay where they are as long as the object is used. Objects share nothing; one of them is for one
// thread at a time.
#pragma once

#include <array>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "quorin/pardiso.h"

namespace quorin::pardiso {

/// What is known of a matrix of the type T; the other triangle of a symmetric one is not given.
enum class Kind {
  kUnsymmetric,
  kStructurallySymmetric,  ///< the pattern is, and has all of the diagonal
  kPositiveDefinite,       ///< symmetric, or for complex T Hermitian
  kSymmetric,              ///< also for complex T
  kHermitian,              ///< for real T the same as kSymmetric
};

/// op(A) in op(A) X = B.
enum class Operation { kPlain = 0, kAdjoint = 1, kTransposed = 2 };

/// What an error code means, for people.
inline const char* describe(std::int32_t code) {
  switch (code) {
    case QUORIN_PARDISO_DONE:
      return "done";
    case QUORIN_PARDISO_INCONSISTENT:
      return "an argument is wrong, or does not agree with an earlier phase";
    case QUORIN_PARDISO_NO_MEMORY:
      return "not enough memory";
    case QUORIN_PARDISO_REORDERING_FAILED:
      return "the ordering failed";
    case QUORIN_PARDISO_NUMERIC_FAILED:
      return "a pivot is not positive, a value is not finite, or the solution does not converge";
    case QUORIN_PARDISO_MATCHING_FAILED:
      return "the matrix is structurally singular";
    case QUORIN_PARDISO_DIAGONAL_SINGULAR:
      return "the matrix is diagonal with a zero on its diagonal";
    case QUORIN_PARDISO_TOO_LARGE:
      return "more entries than 32 bits can count";
    case QUORIN_PARDISO_CORE_TOO_SMALL:
      return "not enough memory for factors in files";
    case QUORIN_PARDISO_CANNOT_OPEN:
      return "a file cannot be opened";
    case QUORIN_PARDISO_FILE_FAILED:
      return "a file cannot be read or written";
    case QUORIN_PARDISO_WRONG_FILE:
      return "the file holds no factors of this library";
    default:
      return "an internal error";
  }
}

class Error : public std::runtime_error {
 public:
  explicit Error(std::int32_t code)
      : std::runtime_error("PARDISO: error " + std::to_string(code) + ": " + describe(code)), code_(code) {}
  std::int32_t code() const noexcept { return code_; }

 private:
  std::int32_t code_;
};

/// T: float, double, std::complex<float> or std::complex<double>. Functions throw Error, and std::invalid_argument for
/// spans whose sizes do not fit together.
template <class T>
class Solver {
  static constexpr bool kIsComplex = !std::is_floating_point_v<T>;

 public:
  explicit Solver(Kind kind = Kind::kUnsymmetric) : mtype_(mtype_of(kind)) {
    sPARDISOINIT(pt_.data(), &mtype_, iparm_.data());
    parameter(QUORIN_PARDISO_IPARM_SINGLE) = sizeof(T) == (kIsComplex ? 2 : 1) * sizeof(float) ? 1 : 0;
    parameter(QUORIN_PARDISO_IPARM_ZERO_BASED) = 1;
  }
  Solver(Solver&& other) noexcept { swap(other); }
  Solver& operator=(Solver&& other) noexcept {
    Solver(std::move(other)).swap(*this);
    return *this;
  }
  ~Solver() { release(); }

  void swap(Solver& other) noexcept {
    std::swap(pt_, other.pt_);
    std::swap(iparm_, other.iparm_);
    std::swap(mtype_, other.mtype_);
    std::swap(n_, other.n_);
    std::swap(starts_, other.starts_);
    std::swap(columns_, other.columns_);
    std::swap(values_, other.values_);
    std::swap(entries_, other.entries_);
  }

  /// An entry of iparm by its published, one-based position: parameters before a call, results after it.
  std::int32_t& parameter(int position) { return iparm_[static_cast<std::size_t>(position) - 1]; }
  std::int32_t parameter(int position) const { return iparm_[static_cast<std::size_t>(position) - 1]; }

  /// starts: n + 1; columns: ascending in each row. The values are read for matching and scaling, that is by default of
  /// unsymmetric matrices.
  void analyze(std::span<const std::int32_t> starts, std::span<const std::int32_t> columns,
               std::span<const T> values = {}) {
    require(!starts.empty() && starts.size() - 1 <= kMost && starts.back() >= 0 &&
            columns.size() == static_cast<std::size_t>(starts.back()) &&
            (values.empty() || values.size() == columns.size()));
    n_ = static_cast<std::int32_t>(starts.size() - 1);
    starts_ = starts.data();
    columns_ = columns.data();
    values_ = values;
    entries_ = columns.size();
    call(QUORIN_PARDISO_ANALYSE, 1, nullptr, nullptr);
  }

  /// With the values of the entries, in the order of the columns.
  void factor(std::span<const T> values) {
    require(values.size() == entries_);
    values_ = values;
    call(QUORIN_PARDISO_FACTORIZE, 1, nullptr, nullptr);
  }

  /// Solves op(A) X = B; both are of n rows, column-major. Refinement reads the values that factor() got.
  void solve(std::span<const T> b, std::span<T> x, Operation operation = Operation::kPlain) {
    const auto n = static_cast<std::size_t>(n_);
    require(n > 0 && !b.empty() && b.size() == x.size() && b.size() % n == 0 && b.size() / n <= kMost);
    parameter(QUORIN_PARDISO_IPARM_TRANSPOSED) = static_cast<std::int32_t>(operation);
    call(QUORIN_PARDISO_SOLVE, static_cast<std::int32_t>(b.size() / n), const_cast<T*>(b.data()), x.data());
  }

  std::int32_t size() const noexcept { return n_; }
  std::int32_t perturbed_pivots() const { return parameter(QUORIN_PARDISO_IPARM_PERTURBED); }
  /// Of real symmetric and Hermitian matrices.
  std::int32_t positive_eigenvalues() const { return parameter(QUORIN_PARDISO_IPARM_POSITIVE); }
  std::int32_t negative_eigenvalues() const { return parameter(QUORIN_PARDISO_IPARM_NEGATIVE); }

  /// For calls of PARDISO itself.
  void** handle() noexcept { return pt_.data(); }

  /// Frees what the handle holds; the parameters stay.
  void release() noexcept {
    const std::int32_t phase = QUORIN_PARDISO_FREE_ALL;
    std::int32_t error = 0;
    PARDISO(pt_.data(), nullptr, nullptr, nullptr, &phase, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
            nullptr, nullptr, nullptr, nullptr, &error);
  }

 private:
  static constexpr std::size_t kMost = (std::numeric_limits<std::int32_t>::max)();

  static std::int32_t mtype_of(Kind kind) {
    switch (kind) {
      case Kind::kStructurallySymmetric:
        return kIsComplex ? QUORIN_PARDISO_COMPLEX_STRUCTURALLY_SYMMETRIC : QUORIN_PARDISO_REAL_STRUCTURALLY_SYMMETRIC;
      case Kind::kPositiveDefinite:
        return kIsComplex ? QUORIN_PARDISO_HERMITIAN_POSITIVE_DEFINITE : QUORIN_PARDISO_REAL_POSITIVE_DEFINITE;
      case Kind::kSymmetric:
        return kIsComplex ? QUORIN_PARDISO_COMPLEX_SYMMETRIC : QUORIN_PARDISO_REAL_SYMMETRIC;
      case Kind::kHermitian:
        return kIsComplex ? QUORIN_PARDISO_HERMITIAN : QUORIN_PARDISO_REAL_SYMMETRIC;
      default:
        return kIsComplex ? QUORIN_PARDISO_COMPLEX_UNSYMMETRIC : QUORIN_PARDISO_REAL_UNSYMMETRIC;
    }
  }

  static void require(bool holds) {
    if (!holds) throw std::invalid_argument("quorin::pardiso: sizes do not fit together");
  }

  void call(std::int32_t phase, std::int32_t nrhs, T* b, T* x) {
    const std::int32_t one = 1, silent = QUORIN_PARDISO_SILENT;
    std::int32_t error = 0;
    PARDISO(pt_.data(), &one, &one, &mtype_, &phase, &n_, values_.data(), starts_, columns_, nullptr, &nrhs,
            iparm_.data(), &silent, b, x, &error);
    if (error != QUORIN_PARDISO_DONE) throw Error(error);
  }

  std::array<void*, QUORIN_PARDISO_HANDLE_WORDS> pt_{};
  std::array<std::int32_t, QUORIN_PARDISO_PARAMETERS> iparm_{};
  std::int32_t mtype_ = 0, n_ = 0;
  const std::int32_t* starts_ = nullptr;
  const std::int32_t* columns_ = nullptr;
  std::span<const T> values_;
  std::size_t entries_ = 0;
};

}  // namespace quorin::pardiso
