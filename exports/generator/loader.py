"""quorin/loader.h: every export as a member of one struct, filled at run time."""

from __future__ import annotations

from generator.declarations import parameters, result_type, wrapped
from generator.product import LIBRARY
from generator.model import Family, Routine

TEXT = """/* All exports as function pointers in one struct, for hosts that load the library at run time instead of linking it.
 *
 *   quorin_library lapacks;
 *   if (quorin_load(NULL, &lapacks) == 0) lapacks.saxpy(&n, &a, x, &one, y, &one);
 *   quorin_unload(&lapacks);
 *
 * One C or C++ file of the host defines QUORIN_LOADER_IMPLEMENTATION before it includes this header; that file gets the
 * three functions, and links the system's loader (-ldl) where that is a library of its own. Valid C99 and C++.
 *
 * Generated from the export tables. Do not edit. */
#ifndef QUORIN_LOADER_H
#define QUORIN_LOADER_H

#include "quorin/quorin.h" /* for its types and constants; nothing is linked */

#if defined(_WIN32)
#define QUORIN_LIBRARY_NAME "@library@"
#else
#define QUORIN_LIBRARY_NAME "libquorin_lapacks.so"
#endif

#define QUORIN_EXPORT_COUNT @count@

#ifdef __cplusplus
extern "C" {
#endif

typedef struct quorin_library {
  void* module;        /* the system's handle, or null */
  const char* missing; /* the first export that was not found, or null */
@members@} quorin_library;

typedef void (*quorin_function)(void);

/* Returns the address of an export, or null. */
typedef quorin_function (*quorin_finder)(void* context, const char* name);

/* Loads the library from `path`, or if that is null by its own name from where the system looks for it, and fills the
 * struct, whatever stood there. Returns the number of exports that this library lacks: they are null, `missing` names the
 * first, and the others can be called. Returns -1 and clears the struct if there is no such library. On Windows `path` is
 * in the system's code page. */
int quorin_load(const char* path, quorin_library* library);

/* Fills the struct from a library that the host has loaded by itself: calls find(context, name) for each export. Returns
 * the number of those that were not found. `module` is null then, and quorin_unload() leaves the host's library alone. */
int quorin_bind(quorin_finder find, void* context, quorin_library* library);

/* Gives back what quorin_load() took, and clears the struct. */
void quorin_unload(quorin_library* library);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif

#if defined(QUORIN_LOADER_IMPLEMENTATION) && !defined(QUORIN_LOADER_IMPLEMENTED)
#define QUORIN_LOADER_IMPLEMENTED

#include <string.h>
#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

/* In the order of the struct. */
static const char* const quorin_export_names[QUORIN_EXPORT_COUNT] = {
@names@};

/* Behind the struct's other members there is nothing but the pointers. */
typedef char quorin_loader_layout[sizeof(quorin_library) ==
                                          2 * sizeof(void*) + QUORIN_EXPORT_COUNT * sizeof(quorin_function)
                                      ? 1
                                      : -1];

int quorin_bind(quorin_finder find, void* context, quorin_library* library) {
  char bytes[sizeof(quorin_library)] = "";
  const char* first = NULL;
  size_t i, place = 2 * sizeof(void*);
  int missing = 0;
  for (i = 0; i < QUORIN_EXPORT_COUNT; ++i, place += sizeof(quorin_function)) {
    const quorin_function function = find(context, quorin_export_names[i]);
    memcpy(bytes + place, &function, sizeof function);
    if (function) continue;
    if (!first) first = quorin_export_names[i];
    ++missing;
  }
  memcpy(library, bytes, sizeof bytes);
  library->module = NULL;
  library->missing = first;
  return missing;
}

/* Copies instead of casts, which each language would write in its own way. */
static quorin_function quorin_loader_find(void* module, const char* name) {
  quorin_function function;
#if defined(_WIN32)
  HMODULE handle;
  FARPROC found;
  memcpy(&handle, &module, sizeof handle);
  found = GetProcAddress(handle, name);
#else
  void* const found = dlsym(module, name);
#endif
  memcpy(&function, &found, sizeof function);
  return function;
}

int quorin_load(const char* path, quorin_library* library) {
  const char* const file = path ? path : QUORIN_LIBRARY_NAME;
  int missing = -1;
#if defined(_WIN32)
  void* const module = LoadLibraryA(file);
#else
  void* const module = dlopen(file, RTLD_NOW | RTLD_LOCAL);
#endif
  memset(library, 0, sizeof *library);
  if (module) {
    missing = quorin_bind(quorin_loader_find, module, library);
    library->module = module;
  }
  return missing;
}

void quorin_unload(quorin_library* library) {
#if defined(_WIN32)
  HMODULE handle;
  memcpy(&handle, &library->module, sizeof handle);
  if (handle) FreeLibrary(handle);
#else
  if (library->module) dlclose(library->module);
#endif
  memset(library, 0, sizeof *library);
}

#endif
"""


def forms(routine: Routine) -> list[tuple[str, bool]]:
    """The routine's exports, and whether each takes indices."""
    return [(name, name == routine.index_name) for name in routine.export_names]


def member(routine: Routine, name: str, is_index_form: bool) -> str:
    items = parameters(routine, "c", is_index_form) or ["void"]
    return wrapped(f"  {result_type(routine, 'c')}(QUORIN_CDECL* {name})", items, ";") + "\n"


def header(families: list[Family]) -> str:
    members, names = [], []
    for family in families:
        members.append(f"\n  /* quorin/{family.name}.h */\n")
        for routine in family.routines:
            for name, is_index_form in forms(routine):
                members.append(member(routine, name, is_index_form))
                names.append(f'    "{name}",\n')
    text = TEXT.replace("@library@", LIBRARY).replace("@count@", str(len(names)))
    return text.replace("@members@", "".join(members)).replace("@names@", "".join(names))
