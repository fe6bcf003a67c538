#include "dense/lapack/call_guard.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "base/argument_error.hpp"
#include "platform/platform.hpp"

namespace quorin::dense {
namespace {

constinit platform::ThreadSlot current_call, selection_slot;

// Elements [first, last) of a column.
struct Rows {
  std::int64_t first, last;
};

// Both parts of a complex number are elements here. As integers, magnitudes are in the order of their values, infinity
// and the NaNs last; the loop has no way out, so that it takes several elements at a time.
bool is_finite_column(const float* x, std::int64_t count, float limit) {
  constexpr std::uint32_t kMagnitude = 0x7fffffff;
  const auto most = std::bit_cast<std::uint32_t>(limit);
  std::uint32_t found = 0;
  for (std::int64_t i = 0; i < count; ++i) found |= (std::bit_cast<std::uint32_t>(x[i]) & kMagnitude) > most ? 1U : 0U;
  return found == 0;
}

template <class T, class RowsOf>
bool are_columns_finite(const T* a, std::int64_t columns, std::int64_t ld, float limit, RowsOf rows_of) {
  constexpr std::int64_t kParts = std::is_same_v<T, float> ? 1 : 2;
  if (a == nullptr) return true;
  for (std::int64_t j = 0; j < columns; ++j) {
    const Rows rows = rows_of(j);
    const T* const first = a + j * ld + rows.first;
    if (!is_finite_column(reinterpret_cast<const float*>(first), kParts * (rows.last - rows.first), limit))
      return false;
  }
  return true;
}

}  // namespace

void start_call_guard() noexcept {
  current_call.create();
  selection_slot.create();
}
void stop_call_guard() noexcept {
  selection_slot.destroy();
  current_call.destroy();
}

void* running_selection() noexcept { return selection_slot.get(); }
void set_running_selection(void* selection) noexcept { selection_slot.set(selection); }

LapackCall::LapackCall(const char* routine, std::int32_t* info) noexcept
    : buffer_(1), routine_(routine), info_(info), outer_(static_cast<LapackCall*>(current_call.get())) {
  current_call.set(this);
  if (!may_begin()) report_no_memory();
}

LapackCall::~LapackCall() { current_call.set(outer_); }

void LapackCall::suspend() noexcept {
  current_call.set(nullptr);
  buffer_.suspend();
}

void LapackCall::resume() noexcept {
  buffer_.resume();
  current_call.set(this);
}

void LapackCall::refuse(std::int32_t position) const noexcept {
  base::report_argument_error(routine_, static_cast<int>(std::strlen(routine_)), position);
  *info_ = -position;
}

void LapackCall::report_no_memory() const noexcept {
  base::report_argument_error(routine_, static_cast<int>(std::strlen(routine_)), base::kInsufficientWorkspace);
  *info_ = kInfoNoMemory;
}

void LapackCall::report(const char* routine, int length, int code) noexcept {
  auto* const call = static_cast<LapackCall*>(current_call.get());
  std::string_view name(routine, static_cast<std::size_t>(std::max(0, length)));
  name = name.substr(0, name.find_last_not_of(' ') + 1);
  if (call != nullptr && name != call->routine_) return;
  if (call != nullptr) call->has_reported_ = true;
  base::report_argument_error(routine, length, code);
}

void LapackCall::give_up() noexcept {
  if (auto* const call = static_cast<LapackCall*>(current_call.get())) call->has_given_up_ = true;
}

template <class T>
bool is_matrix_finite(const T* a, std::int64_t rows, std::int64_t columns, std::int64_t ld, float limit) {
  return ld < rows || rows <= 0 || are_columns_finite(a, columns, ld, limit, [=](std::int64_t) {
           return Rows{0, rows};
         });
}

template <class T>
bool is_triangle_finite(char uplo, const T* a, std::int64_t n, std::int64_t ld, float limit) {
  const bool is_upper = upper(uplo) == 'U' || uplo == kHessenberg;
  const std::int64_t further = uplo == kHessenberg ? 1 : 0;
  return ld < n || are_columns_finite(a, n, ld, limit, [=](std::int64_t j) {
           return is_upper ? Rows{0, std::min(j + 1 + further, n)} : Rows{j, n};
         });
}

template <class T>
bool is_band_finite(char uplo, const T* ab, std::int64_t kd, std::int64_t n, std::int64_t ld, float limit) {
  const bool is_upper = upper(uplo) == 'U';
  return ld <= kd || kd < 0 || are_columns_finite(ab, n, ld, limit, [=](std::int64_t j) {
           return is_upper ? Rows{std::max<std::int64_t>(0, kd - j), kd + 1} : Rows{0, std::min(kd + 1, n - j)};
         });
}

template bool is_matrix_finite(const float*, std::int64_t, std::int64_t, std::int64_t, float);
template bool is_triangle_finite(char, const float*, std::int64_t, std::int64_t, float);
template bool is_band_finite(char, const float*, std::int64_t, std::int64_t, std::int64_t, float);
template bool is_matrix_finite(const std::complex<float>*, std::int64_t, std::int64_t, std::int64_t, float);
template bool is_triangle_finite(char, const std::complex<float>*, std::int64_t, std::int64_t, float);
template bool is_band_finite(char, const std::complex<float>*, std::int64_t, std::int64_t, std::int64_t, float);

bool are_exchanges(const std::int32_t* ipiv, std::int32_t n) {
  return n <= 0 || std::all_of(ipiv, ipiv + n, [n](std::int32_t row) { return row >= 1 && row <= n; });
}

bool are_blocks(const std::int32_t* ipiv, std::int32_t n) {
  for (std::int32_t k = 0; k < n; ++k) {
    const std::int32_t row = ipiv[k];
    if (row == 0 || row > n || row < -n) return false;
    if (row < 0 && (++k == n || ipiv[k] != row)) return false;
  }
  return true;
}

bool are_balances(const float* scale, char job, std::int32_t n, std::int32_t ilo, std::int32_t ihi) {
  const bool permutes = upper(job) == 'P' || upper(job) == 'B';
  if (!permutes || ilo < 1 || ihi < std::min(ilo, n) || ihi > n) return true;
  for (std::int32_t i = 1; i <= n; ++i) {
    const float row = scale[i - 1];
    if ((i < ilo || i > ihi) && !(row >= 1 && row <= static_cast<float>(n))) return false;
  }
  return true;
}

bool are_splits(const std::int32_t* isplit, const std::int32_t* iblock, std::int32_t n, std::int32_t m) {
  if (n <= 0 || m <= 0 || m > n) return true;
  const std::int32_t blocks = iblock[m - 1];
  if (blocks > n) return false;
  for (std::int32_t block = 0, row = 0; block < blocks; row = isplit[block++]) {
    if (isplit[block] <= row || isplit[block] > n) return false;
  }
  return true;
}

}  // namespace quorin::dense
