#include "families/umfpack_single/info.hpp"

#include <cstddef>
#include <cstdint>

namespace quorin::umfpack_single {

InfoArray::InfoArray(float* host) : host_(host), values_{} {
  if (host_ == nullptr) return;
  for (std::size_t i = 0; i < values_.size(); ++i) values_[i] = static_cast<double>(host_[i]);
}

void InfoArray::describe(int n_row, int n_col, const int* Ap) {
  values_[UMFPACK_NROW] = n_row;
  values_[UMFPACK_NCOL] = n_col;
  if (Ap != nullptr && n_col >= 0) values_[UMFPACK_NZ] = Ap[n_col];
  values_[UMFPACK_SIZE_OF_UNIT] = 8;
  values_[UMFPACK_SIZE_OF_INT] = sizeof(std::int32_t);
  values_[UMFPACK_SIZE_OF_LONG] = sizeof(std::int32_t);
  values_[UMFPACK_SIZE_OF_POINTER] = sizeof(void*);
  values_[UMFPACK_SIZE_OF_ENTRY] = sizeof(float);
  if (values_[UMFPACK_SYMBOLIC_DEFRAG] < 0) values_[UMFPACK_SYMBOLIC_DEFRAG] = 0;
}

int InfoArray::finish(int status) {
  values_[UMFPACK_STATUS] = status;
  if (host_ != nullptr) {
    for (std::size_t i = 0; i < values_.size(); ++i) host_[i] = static_cast<float>(values_[i]);
  }
  return status;
}

int report_status_in(float* Info, int status) {
  if (Info != nullptr) Info[UMFPACK_STATUS] = static_cast<float>(status);
  return status;
}

}  // namespace quorin::umfpack_single
