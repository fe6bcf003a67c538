#include "platform/floating_point.hpp"

#include "platform/platform.hpp"

namespace quorin::platform {
namespace {

constexpr std::uint16_t kX87Exceptions = 0x3F;  // as masks in the control word, and as flags in the status word
constexpr std::uint16_t kX87Pending = 0x80;     // a flag is raised whose exception is not masked

// The innermost call of the thread that may call host functions.
constinit ThreadSlot call_slot;

void set_sse(std::uint32_t value) noexcept { asm volatile("ldmxcsr %0" ::"m"(value) : "memory"); }
void set_x87(std::uint16_t value) noexcept { asm volatile("fldcw %0" ::"m"(value) : "memory"); }
void clear_x87_flags() noexcept { asm volatile("fnclex" ::: "memory"); }

std::uint16_t x87_status() noexcept {
  std::uint16_t status;
  asm volatile("fnstsw %0" : "=a"(status)::"memory");
  return status;
}

// Through an image of the unit's environment: no instruction raises flags.
void set_x87_flags(std::uint16_t flags) noexcept {
  struct Environment {
    std::uint32_t control, status, others[5];
  } image;
  asm volatile("fnstenv %0" : "=m"(image)::"memory");
  image.status = (image.status & ~std::uint32_t{kX87Exceptions}) | flags;
  asm volatile("fldenv %0" ::"m"(image) : "memory");
}

}  // namespace

bool FloatingPointState::x87_traps() const noexcept { return (~x87_control_ & kX87Exceptions) != 0; }

void FloatingPointState::set_own() noexcept {
  if (!sse_is_own()) set_sse(kOwnSse);
  if (x87_is_own()) return;
  if (x87_traps()) {
    x87_status_ = x87_status();
    // An exception of the host's own waits for its next instruction: loading the settings would raise it here.
    if ((x87_status_ & kX87Pending) != 0) clear_x87_flags();
  }
  set_x87(kOwnX87);
}

void FloatingPointState::restore() const noexcept {
  if (!x87_is_own()) {
    if (x87_traps()) {
      const std::uint16_t flags = x87_status_ & kX87Exceptions;
      if ((x87_status() & kX87Exceptions) != flags) {
        if (flags == 0) {
          clear_x87_flags();
        } else {
          set_x87_flags(flags);
        }
      }
    }
    set_x87(x87_control_);
  }
  if (!sse_is_own()) set_sse(sse_);
}

void use_own_floating_point() noexcept {
  FloatingPointState state;
  state.read();
  state.set_own();
}

HostCallWithCallbacks::HostCallWithCallbacks() noexcept : outer_(static_cast<HostCall*>(call_slot.get())) {
  call_slot.set(this);
}

HostCallWithCallbacks::~HostCallWithCallbacks() { call_slot.set(outer_); }

HostSettings::HostSettings() noexcept : call_(static_cast<HostCall*>(call_slot.get())) {
  if (call_ == nullptr) return;
  call_slot.set(nullptr);
  if (!call_->host_.is_own()) call_->host_.restore();
}

HostSettings::~HostSettings() {
  if (call_ == nullptr) return;
  // What the function has set is what the host has from now on.
  call_->host_.read();
  if (!call_->host_.is_own()) call_->host_.set_own();
  call_slot.set(call_);
}

void start_floating_point() noexcept { call_slot.create(); }
void stop_floating_point() noexcept { call_slot.destroy(); }

}  // namespace quorin::platform
