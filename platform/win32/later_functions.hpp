// Functions of Windows that the oldest release the library runs on, Vista, does not have. The library's own code is
// compiled for that release (_WIN32_WINNT), so that the headers declare no others.
#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace quorin::platform {

// The function `name` of kernel32, or null.
template <class Function>
Function* later_function(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

}  // namespace quorin::platform
