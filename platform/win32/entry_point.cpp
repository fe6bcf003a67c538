// The DLL's entry point. It runs under the loader lock: nothing here waits for a thread.
#include "platform/load_hooks.hpp"
#include "platform/win32/gcc_threads.hpp"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID reserved);

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID reserved) {
  if (reason == DLL_PROCESS_ATTACH) quorin::platform::on_load();
  if (reason == DLL_PROCESS_DETACH && reserved == nullptr) {
    quorin::platform::on_unload();
    quorin::platform::release_gcc_threads();
  }
  return TRUE;
}
