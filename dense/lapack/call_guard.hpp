// What the published LAPACK routines need around them when a host calls them.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>

#include "base/workspace.hpp"
#include "dense/blas/argument_check.hpp"
#include "dense/blocked/buffers.hpp"
#include "platform/floating_point.hpp"

namespace quorin::dense {

// Host functions that select eigenvalues: non-zero for one that is to lead.
using SelectReal = std::int32_t (*)(const float* re, const float* im);
using SelectComplex = std::int32_t (*)(const std::complex<float>* w);
using SelectRealPair = std::int32_t (*)(const float* alpha_re, const float* alpha_im, const float* beta);
using SelectComplexPair = std::int32_t (*)(const std::complex<float>* alpha, const std::complex<float>* beta);

inline constexpr std::int32_t kInfoNoMemory = -1000;
inline constexpr std::int32_t kAsk = -1;  // as a length: tell the best one

// Prepares and gives back the thread slots in which a call and its selection are found again; called at load and
// unload.
void start_call_guard() noexcept;
void stop_call_guard() noexcept;

// A host's call of a published routine. It holds a packing buffer for the BLAS operations inside, so that none of them
// can run out of memory half way: without memory it reports that and sets info, and the routine must not begin. What
// the routines inside say of their arguments is kept from the host, who did not call them.
class LapackCall {
 public:
  LapackCall(const char* routine, std::int32_t* info) noexcept;
  ~LapackCall();
  LapackCall(const LapackCall&) = delete;
  LapackCall& operator=(const LapackCall&) = delete;

  bool may_begin() const noexcept { return buffer_.granted() > 0; }
  // Around a host function, which may never return.
  void suspend() noexcept;
  void resume() noexcept;

  // Reports the argument at `position` as wrong.
  void refuse(std::int32_t position) const noexcept;
  void report_no_memory() const noexcept;
  // Whether the routine has no results without telling so: a step inside gave up, or it ended with the status of
  // another routine inside, which refused its arguments.
  bool has_failed_inside() const noexcept { return has_given_up_ || (*info_ < 0 && !has_reported_); }

  // XERBLA for the published routines.
  static void report(const char* routine, int length, int code) noexcept;
  // For a step inside that has no results.
  static void give_up() noexcept;

 private:
  blocked::BufferReservation buffer_;
  const char* routine_;
  std::int32_t* info_;
  LapackCall* outer_;  // of the same thread: the host function that selects eigenvalues may call routines
  bool has_reported_ = false, has_given_up_ = false;
};

// The HostSelection of the thread's running call.
void* running_selection() noexcept;
void set_running_selection(void* selection) noexcept;

// A host's selection function as a LAPACK routine is to call it: with the host's floating-point settings, and so that
// it may leave by longjmp. Nothing of the thread then points into the frames that it has left.
template <class... Values>
class HostSelection {
 public:
  using Function = std::int32_t (*)(Values...);

  HostSelection(Function host, LapackCall& call) noexcept : host_(host), call_(call), outer_(running_selection()) {
    set_running_selection(this);
  }
  ~HostSelection() { set_running_selection(outer_); }
  HostSelection(const HostSelection&) = delete;
  HostSelection& operator=(const HostSelection&) = delete;

  // The host's own function where the system has no thread slot to give.
  Function function() const noexcept { return running_selection() == this ? &ask : host_; }

 private:
  static std::int32_t ask(Values... values) {
    auto* const selection = static_cast<HostSelection*>(running_selection());
    set_running_selection(nullptr);
    selection->call_.suspend();
    const std::int32_t answer = selection->ask_host(values...);
    selection->call_.resume();
    set_running_selection(selection);
    return answer;
  }
  std::int32_t ask_host(Values... values) const {
    const platform::HostSettings settings;
    return host_(values...);
  }

  Function host_;
  LapackCall& call_;
  void* outer_;
};

// Some routines store the best size of `work` in its first element before they look at their arguments. Puts that
// element back if they then find one wrong: a refused call touches nothing.
template <class T>
class KeptWhenRefused {
 public:
  KeptWhenRefused(T* work, const std::int32_t* info) noexcept
      : work_(work), info_(info), first_(work != nullptr ? *work : T{}) {}
  ~KeptWhenRefused() {
    if (*info_ < 0 && work_ != nullptr) *work_ = first_;
  }
  KeptWhenRefused(const KeptWhenRefused&) = delete;
  KeptWhenRefused& operator=(const KeptWhenRefused&) = delete;

 private:
  T* work_;
  const std::int32_t* info_;
  T first_;
};

// Levels of the divide and conquer in gelsd.
inline int nlvl(int m, int n) {
  const int order = std::min(m, n);
  return order <= 0 ? 0 : std::max(0, static_cast<int>(std::log2(static_cast<double>(order) / 26)) + 1);
}

// A query's answer that is smaller than the least size is none.
template <class T>
void raise_answer(T* answer, std::int64_t least) {
  if (std::real(*answer) < static_cast<float>(least)) *answer = static_cast<T>(static_cast<float>(least));
}
inline void raise_answer(std::int32_t* answer, std::int64_t least) {
  if (*answer < least) *answer = static_cast<std::int32_t>(least);
}

// A host function that selects nothing.
template <class Function>
struct SelectNone;
template <class... Arguments>
struct SelectNone<std::int32_t (*)(Arguments...)> {
  static std::int32_t select(Arguments...) noexcept { return 0; }
};

// Zeros in place of an array, or false if there is no memory.
template <class T>
class Zeros {
 public:
  explicit Zeros(std::int64_t rows, std::int64_t columns = 1) : zeros_(count(rows, columns)) {
    if (zeros_) std::fill(zeros_.begin(), zeros_.end(), T{});
  }
  explicit operator bool() const { return static_cast<bool>(zeros_); }
  T* data() { return zeros_.data(); }

 private:
  static std::size_t count(std::int64_t rows, std::int64_t columns) {
    return rows <= 0 || columns <= 0
               ? 0
               : base::saturating_product(static_cast<std::size_t>(rows), static_cast<std::size_t>(columns));
  }
  base::Workspace<T> zeros_;
};

inline constexpr float kLargest = std::numeric_limits<float>::max();
inline constexpr char kHessenberg = 'H';  // in place of uplo: the upper triangle and one more diagonal

// Whether all elements of a rows x columns matrix, of a triangle of order n, or of a triangle's band with kd further
// diagonals are finite and of no larger magnitude than `limit`. Sizes and leading dimensions that are no such matrix's
// are left to the routine to refuse: true.
template <class T>
bool is_matrix_finite(const T* a, std::int64_t rows, std::int64_t columns, std::int64_t ld, float limit = kLargest);
template <class T>
bool is_triangle_finite(char uplo, const T* a, std::int64_t n, std::int64_t ld, float limit = kLargest);
template <class T>
bool is_band_finite(char uplo, const T* ab, std::int64_t kd, std::int64_t n, std::int64_t ld, float limit = kLargest);

// Whether numbers of the host's that lead into other arrays stay there; true for orders that the routine refuses
// itself. Row exchanges of an LU factorization of order n.
bool are_exchanges(const std::int32_t* ipiv, std::int32_t n);
// Exchanges of a symmetric factorization of order n: two equal negative numbers stand for a block of order 2.
bool are_blocks(const std::int32_t* ipiv, std::int32_t n);
// Exchanges among the scale factors of gebal, which stand outside of ilo..ihi.
bool are_balances(const float* scale, char job, std::int32_t n, std::int32_t ilo, std::int32_t ihi);
// Last rows of the blocks of a tridiagonal matrix of order n, as far as the blocks of m eigenvalues go.
bool are_splits(const std::int32_t* isplit, const std::int32_t* iblock, std::int32_t n, std::int32_t m);

template <class T>
void fill_nan(T* a, std::int64_t rows, std::int64_t columns, std::int64_t ld = 0) {
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  T value{kNan};
  if constexpr (!std::is_same_v<T, float>) value = {kNan, kNan};
  for (std::int64_t j = 0; j < columns; ++j) std::fill_n(a + j * ld, std::max<std::int64_t>(0, rows), value);
}

}  // namespace quorin::dense
