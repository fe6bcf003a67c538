#pragma once

namespace quorin::platform {

// Gives back what GCC's run-time library keeps for the threads of the process. Called last, at unload.
void release_gcc_threads();

}  // namespace quorin::platform
