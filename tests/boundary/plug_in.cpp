// A plug-in that gives its reference to a library back as it is unloaded itself, under the loader's lock.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" {

__declspec(dllexport) HMODULE library = nullptr;

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID);

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_DETACH && library != nullptr) FreeLibrary(library);
  return TRUE;
}
}
