#include "families/feast/arguments.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <iterator>

#include "sparse/sparse.hpp"

namespace quorin::feast {
namespace {

// Positions among the arguments.
constexpr int kUplo = 1, kStartsOfA = 4, kStartsOfB = 7, kVectorsOfStandard = 13, kVectorsOfGeneralized = 16;

constexpr Status wrong_argument(int position) { return static_cast<Status>(-100 - position); }
constexpr Status wrong_parameter(int number) { return static_cast<Status>(100 + number); }

constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// The position of the first address that is null; 0 if none is.
template <Scalar T>
int missing_address(const Arguments<T>& x) {
  const void* const first[] = {x.uplo, x.n, x.A.values, x.A.starts, x.A.columns};
  const void* const of_b[] = {x.B.values, x.B.starts, x.B.columns};
  const void* const last[] = {x.fpm, x.epsout, x.loop, x.emin, x.emax, x.m0, x.e, x.x, x.m, x.res};
  int position = 0;
  const auto is_missing = [&position](const void* address) {
    ++position;
    return address == nullptr;
  };
  if (std::ranges::any_of(first, is_missing)) return position;
  if (x.is_generalized && std::ranges::any_of(of_b, is_missing)) return position;
  return std::ranges::any_of(last, is_missing) ? position : 0;
}

// The first parameter without a meaning; 0 if there is none.
int wrong_parameter_number(const std::int32_t* fpm) {
  constexpr int kNodeCounts[] = {3, 4, 5, 6, 8, 10, 12, 16, 20, 24, 32, 40, 48};
  constexpr int kSwitches[] = {kFpmPrint,       kFpmInitialSubspace, kFpmStoppingTest,  kFpmFilterOnly,
                               kFpmCheckArrays, kFpmCheckB,          kFpmSolverSettings};
  constexpr int kMostDigits = 7;  // of a float
  for (int number = 1; number <= kFpmSolverSettings; ++number) {
    const std::int32_t value = fpm[number - 1];
    if (std::ranges::find(kSwitches, number) != std::end(kSwitches) && value != 0 && value != 1) return number;
    if (number == kFpmNodes && std::ranges::find(kNodeCounts, value) == std::end(kNodeCounts)) return number;
    if (number == kFpmLoopLimit && value < 0) return number;
    if (number == kFpmTolerance && (value < 0 || value > kMostDigits)) return number;
  }
  return 0;
}

// `position` is that of the row starts; the columns are the next argument.
template <Scalar T>
Status check_matrix(int n, const HostMatrix<T>& A, Storage storage, bool is_strict, int position) {
  sparse::PatternRules rules;
  rules.base = 1;
  rules.ascends = is_strict;
  rules.is_lower = is_strict && storage == Storage::kUpper;  // no column of row j before j
  if (!sparse::check_starts(n, A.starts, rules)) return wrong_argument(position);
  if (!sparse::check_compressed(n, n, A.starts, A.columns, rules)) return wrong_argument(position + 1);
  if (!is_strict || storage != Storage::kLower) return Status::kDone;
  for (int i = 0; i < n; ++i) {
    const int end = A.starts[i + 1] - 1;
    if (end >= A.starts[i] && A.columns[end - 1] > i + 1) return wrong_argument(position + 1);
  }
  return Status::kDone;
}

template <Scalar T>
bool is_finite(std::size_t count, const T* x) {
  return std::all_of(x, x + count,
                     [](T value) { return std::isfinite(real_part(value)) && std::isfinite(imaginary_part(value)); });
}

}  // namespace

template <Scalar T>
Storage Arguments<T>::storage() const {
  return static_cast<Storage>(upper(*uplo));
}

template <Scalar T>
Status check(const Arguments<T>& x) {
  if (const int position = missing_address(x); position != 0) return wrong_argument(position);
  const int n = *x.n;
  if (n <= 0) return Status::kBadOrder;
  if (*x.m0 <= 0 || *x.m0 > n) return Status::kBadSubspaceSize;
  if (!std::isfinite(*x.emin) || !std::isfinite(*x.emax) || !(*x.emin < *x.emax)) return Status::kBadInterval;
  const Storage storage = x.storage();
  if (storage != Storage::kFull && storage != Storage::kUpper && storage != Storage::kLower) {
    return wrong_argument(kUplo);
  }
  if (const int number = wrong_parameter_number(x.fpm); number != 0) return wrong_parameter(number);
  const bool is_strict = x.is_on(kFpmCheckArrays);
  Status status = check_matrix(n, x.A, storage, is_strict, kStartsOfA);
  if (status == Status::kDone && x.is_generalized) status = check_matrix(n, x.B, storage, is_strict, kStartsOfB);
  if (status != Status::kDone) return status;
  const std::size_t given = static_cast<std::size_t>(n) * static_cast<std::size_t>(*x.m0);
  if (x.is_on(kFpmInitialSubspace) && !is_finite(given, x.x)) {
    return wrong_argument(x.is_generalized ? kVectorsOfGeneralized : kVectorsOfStandard);
  }
  return Status::kDone;
}

template struct Arguments<float>;
template struct Arguments<std::complex<float>>;
template Status check(const Arguments<float>&);
template Status check(const Arguments<std::complex<float>>&);

}  // namespace quorin::feast
