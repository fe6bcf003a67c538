// What the loader's entry point of each platform calls in the library itself; defined in exports/.
#pragma once

namespace quorin::platform {

void on_load() noexcept;
// Not called when the process ends: the system then takes everything back, and other threads are gone in mid-step.
void on_unload() noexcept;

}  // namespace quorin::platform
