// Where every message of the family ends.
#pragma once

namespace quorin::taucs {

/// Takes a message as printf does and drops it; returns 0. The texts stand at their places so that a diagnostic build
/// has only this function to change.
[[gnu::format(__printf__, 1, 2)]] inline int print(const char*, ...) noexcept { return 0; }

}  // namespace quorin::taucs
