// The host's text-output callback and the print routine that every report of the library goes through.
#pragma once

#include <cstdarg>

#if defined(_WIN32)
#define QUORIN_STDCALL __stdcall
#else
#define QUORIN_STDCALL
#endif

namespace quorin::base {

// A host function; on Windows it removes its argument itself (stdcall).
using TextOutputCallback = void(QUORIN_STDCALL*)(const char* text);

inline constexpr int kTextOutputLimit = 1024;

// Null empties the slot, which is empty at load.
void set_text_output(TextOutputCallback callback);

// Formats into a buffer of kTextOutputLimit characters and hands it to the callback, if there is one, in a single call.
// Returns the number of characters, or -1 if the text was cut or could not be formatted (the callback still gets what
// the buffer holds).
#if defined(__GNUC__)
[[gnu::format(__printf__, 1, 2)]]
#endif
int print(const char* format, ...);
int print_list(const char* format, std::va_list arguments);

}  // namespace quorin::base
