// What the published LAPACK routines need around them when a host calls them.
#pragma once

#include <complex>
#include <cstdint>

#include "dense/blocked/buffers.hpp"
#include "platform/floating_point.hpp"

namespace quorin::dense {

// Host functions that select eigenvalues: non-zero for one that is to lead.
using SelectReal = std::int32_t (*)(const float* re, const float* im);
using SelectComplex = std::int32_t (*)(const std::complex<float>* w);
using SelectRealPair = std::int32_t (*)(const float* alpha_re, const float* alpha_im, const float* beta);
using SelectComplexPair = std::int32_t (*)(const std::complex<float>* alpha, const std::complex<float>* beta);

inline constexpr std::int32_t kInfoNoMemory = -1000;

// Holds a packing buffer for the BLAS operations inside a LAPACK routine, so that none of them can run out of memory
// half way. Without memory it reports that and sets info; the routine must not begin then.
class LapackCall {
 public:
  LapackCall(const char* routine, std::int32_t* info) noexcept;
  bool may_begin() const noexcept { return buffer_.granted() > 0; }

  // Around a host function.
  void suspend() noexcept { buffer_.suspend(); }
  void resume() noexcept { buffer_.resume(); }

 private:
  blocked::BufferReservation buffer_;
};

// Prepares and gives back the thread slot for HostSelection; called at load and unload.
void start_selection() noexcept;
void stop_selection() noexcept;

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

}  // namespace quorin::dense
