// UMFPACK in double precision, seen as one generic interface for real and complex entries.
#pragma once

#include <tuple>

#include <umfpack_double.h>

namespace quorin::umfpack_single {

// Values of UMFPACK: kParts doubles an entry, real part first, or null.
template <class T>
struct Entries {
  T* x = nullptr;
};

struct Real {
  static constexpr int kParts = 1;
  static constexpr auto* kQsymbolic = umfpack_di_qsymbolic;
  static constexpr auto* kNumeric = umfpack_di_numeric;
  static constexpr auto* kWsolve = umfpack_di_wsolve;
  static constexpr auto* kFreeSymbolic = umfpack_di_free_symbolic;
  static constexpr auto* kFreeNumeric = umfpack_di_free_numeric;
  static constexpr auto* kScale = umfpack_di_scale;
  static constexpr auto* kGetLunz = umfpack_di_get_lunz;
  static constexpr auto* kGetNumeric = umfpack_di_get_numeric;
  static constexpr auto* kGetSymbolic = umfpack_di_get_symbolic;
  static constexpr auto* kGetDeterminant = umfpack_di_get_determinant;
  static constexpr auto* kTripletToCol = umfpack_di_triplet_to_col;
  static constexpr auto* kTranspose = umfpack_di_transpose;
  static constexpr auto* kReportInfo = umfpack_di_report_info;
  static constexpr auto* kReportMatrix = umfpack_di_report_matrix;
  static constexpr auto* kReportTriplet = umfpack_di_report_triplet;
  static constexpr auto* kReportVector = umfpack_di_report_vector;
  static constexpr auto* kReportSymbolic = umfpack_di_report_symbolic;
  static constexpr auto* kReportNumeric = umfpack_di_report_numeric;

  template <class T>
  static auto arguments(Entries<T> a) {
    return std::tuple(a.x);
  }
};

// Complex entries are always handed over packed, with a null where the array of imaginary parts would be.
struct Complex {
  static constexpr int kParts = 2;
  static constexpr auto* kQsymbolic = umfpack_zi_qsymbolic;
  static constexpr auto* kNumeric = umfpack_zi_numeric;
  static constexpr auto* kWsolve = umfpack_zi_wsolve;
  static constexpr auto* kFreeSymbolic = umfpack_zi_free_symbolic;
  static constexpr auto* kFreeNumeric = umfpack_zi_free_numeric;
  static constexpr auto* kScale = umfpack_zi_scale;
  static constexpr auto* kGetLunz = umfpack_zi_get_lunz;
  static constexpr auto* kGetNumeric = umfpack_zi_get_numeric;
  static constexpr auto* kGetSymbolic = umfpack_zi_get_symbolic;
  static constexpr auto* kGetDeterminant = umfpack_zi_get_determinant;
  static constexpr auto* kTripletToCol = umfpack_zi_triplet_to_col;
  static constexpr auto* kTranspose = umfpack_zi_transpose;
  static constexpr auto* kReportInfo = umfpack_zi_report_info;
  static constexpr auto* kReportMatrix = umfpack_zi_report_matrix;
  static constexpr auto* kReportTriplet = umfpack_zi_report_triplet;
  static constexpr auto* kReportVector = umfpack_zi_report_vector;
  static constexpr auto* kReportSymbolic = umfpack_zi_report_symbolic;
  static constexpr auto* kReportNumeric = umfpack_zi_report_numeric;

  template <class T>
  static auto arguments(Entries<T> a) {
    return std::tuple(a.x, static_cast<T*>(nullptr));
  }
};

template <class E, class T>
auto arguments(T a) {
  return std::tuple(a);
}
template <class E, class T>
auto arguments(Entries<T> a) {
  return E::arguments(a);
}

// Calls a routine of E's family; arguments of type Entries become one array for real entries and two for complex ones.
template <class E, class Routine, class... Arguments>
auto call(Routine* routine, Arguments... given) {
  return std::apply(routine, std::tuple_cat(arguments<E>(given)...));
}

}  // namespace quorin::umfpack_single
