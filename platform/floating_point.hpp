// The floating-point settings of the calling thread, which are the host's, and those that the library computes with.
//
// Hosts unmask exceptions, round otherwise, flush subnormals, or cut the x87's registers to 24 or 53 bits. The library
// computes with settings of its own, so that every host and every thread gets the same bits and no exception: all
// masked, rounding to nearest, subnormals kept, 64-bit registers in the x87, in which the C runtime computes its
// functions.
//
// Intel 64 and IA-32 Architectures Software Developer's Manual, volume 1, sections 8.1 and 10.2.3.
#pragma once

#include <cstdint>

namespace quorin::platform {

// MXCSR and the x87's words as they were found, and how they are to the library's.
class FloatingPointState {
 public:
  // What is not read counts as the library's own. MXCSR's flags wait for the instructions before: some 5 ns; the x87's
  // control word costs 1 ns. The x87's flags, which are as slow as MXCSR, are left for those who need them.
  void read_sse() noexcept { asm volatile("stmxcsr %0" : "=m"(sse_)::"memory"); }
  void read_x87() noexcept { asm volatile("fnstcw %0" : "=m"(x87_control_)::"memory"); }
  void read() noexcept {
    read_sse();
    read_x87();
  }
  bool is_own() const noexcept { return sse_is_own() && x87_is_own(); }

  // Makes the library's settings, or those that were found, the thread's.
  void set_own() noexcept;
  void restore() const noexcept;

 private:
  static constexpr std::uint32_t kOwnSse = 0x1F80;
  static constexpr std::uint32_t kSseSettings = ~std::uint32_t{0x3F};  // all but the flags
  static constexpr std::uint16_t kOwnX87 = 0x037F;
  static constexpr std::uint16_t kX87Settings = 0x0F3F;  // rounding, precision, masks

  bool sse_is_own() const noexcept { return ((sse_ ^ kOwnSse) & kSseSettings) == 0; }
  bool x87_is_own() const noexcept { return ((x87_control_ ^ kOwnX87) & kX87Settings) == 0; }
  bool x87_traps() const noexcept;

  std::uint32_t sse_ = kOwnSse;
  std::uint16_t x87_control_ = kOwnX87;
  std::uint16_t x87_status_;  // only where the x87 traps
};

// Makes the library's settings those of the calling thread.
void use_own_floating_point() noexcept;

// While it lives, the thread has the library's settings, and then the host's again, with the flags that the host had.
// Of a host with settings like the library's, the flags are left raised, as every computation leaves them.
template <void (FloatingPointState::*kRead)() noexcept>
class OwnSettings {
 public:
  OwnSettings() noexcept {
    (host_.*kRead)();
    if (!host_.is_own()) host_.set_own();  // NOLINT(*UninitializedObject)
  }
  ~OwnSettings() {
    if (!host_.is_own()) host_.restore();
  }
  OwnSettings(const OwnSettings&) = delete;
  OwnSettings& operator=(const OwnSettings&) = delete;

 private:
  friend class HostSettings;
  FloatingPointState host_;
};

// Stands in every entry point but for those of short computations, which stand under the settings of one unit only. A
// result of those has to be in memory before the object's end.
using HostCall = OwnSettings<&FloatingPointState::read>;
using SseSettings = OwnSettings<&FloatingPointState::read_sse>;
using X87Settings = OwnSettings<&FloatingPointState::read_x87>;

// The same for entry points that may call functions of the host.
class HostCallWithCallbacks : public HostCall {
 public:
  HostCallWithCallbacks() noexcept;
  ~HostCallWithCallbacks();
  HostCallWithCallbacks(const HostCallWithCallbacks&) = delete;
  HostCallWithCallbacks& operator=(const HostCallWithCallbacks&) = delete;

 private:
  HostCall* outer_;
};

// While it lives, the thread has the host's settings again: for calls of host functions. Such a function may also leave
// by longjmp and never come back.
class HostSettings {
 public:
  HostSettings() noexcept;
  ~HostSettings();
  HostSettings(const HostSettings&) = delete;
  HostSettings& operator=(const HostSettings&) = delete;

 private:
  HostCall* call_;
};

// Prepares and gives back the thread slot through which HostSettings finds the call; called at load and unload. Without
// it host functions run with the library's settings.
void start_floating_point() noexcept;
void stop_floating_point() noexcept;

}  // namespace quorin::platform
