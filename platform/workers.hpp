// The end of the threads that start_worker() has started.
#pragma once

namespace quorin::platform {

// Waits until none of them is in the library's code any more; those that have not begun never will. For unloading, when
// all have been told to end: it may be called under the loader's lock. On posix, where nothing is unloaded, it does
// nothing.
void await_workers();

}  // namespace quorin::platform
