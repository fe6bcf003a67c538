// What a loaded module takes from others, exchanged for functions of a test.
#pragma once

#include "tests/support/standard.hpp"
#include "tests/support/system.hpp"

namespace quorin::test {

#if defined(_WIN32)

// Puts `replacement` where the module imports `name` (Microsoft, PE Format, section 6.4). Returns how often that was.
template <class Function>
int replace_import(void* module, const char* name, Function* replacement) {
  auto* const image = static_cast<unsigned char*>(module);
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  int replaced = 0;
  for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(image + directory.VirtualAddress);
       library->Name != 0; ++library) {
    auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(image + library->OriginalFirstThunk);
    auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(image + library->FirstThunk);
    for (; names->u1.AddressOfData != 0; ++names, ++slots) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      const auto* const imported = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(image + names->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(imported->Name), name) != 0) continue;
      DWORD before = 0;
      VirtualProtect(slots, sizeof *slots, PAGE_READWRITE, &before);
      slots->u1.Function = reinterpret_cast<DWORD_PTR>(replacement);
      VirtualProtect(slots, sizeof *slots, before, &before);
      ++replaced;
    }
  }
  return replaced;
}

#else

// The same (System V ABI, AMD64 supplement, section 4.4): what calls go through, and what is kept as an address.
template <class Function>
int replace_import(void* module, const char* name, Function* replacement) {
  const auto* const map = static_cast<const link_map*>(module);
  const ElfW(Sym)* symbols = nullptr;
  const char* names = nullptr;
  struct {
    const ElfW(Rela) * first;
    std::size_t bytes;
  } tables[2] = {};
  for (const ElfW(Dyn)* entry = map->l_ld; entry->d_tag != DT_NULL; ++entry) {
    if (entry->d_tag == DT_SYMTAB) symbols = reinterpret_cast<const ElfW(Sym)*>(entry->d_un.d_ptr);
    if (entry->d_tag == DT_STRTAB) names = reinterpret_cast<const char*>(entry->d_un.d_ptr);
    if (entry->d_tag == DT_RELA) tables[0].first = reinterpret_cast<const ElfW(Rela)*>(entry->d_un.d_ptr);
    if (entry->d_tag == DT_RELASZ) tables[0].bytes = entry->d_un.d_val;
    if (entry->d_tag == DT_JMPREL) tables[1].first = reinterpret_cast<const ElfW(Rela)*>(entry->d_un.d_ptr);
    if (entry->d_tag == DT_PLTRELSZ) tables[1].bytes = entry->d_un.d_val;
  }
  int replaced = 0;
  for (const auto& table : tables) {
    for (std::size_t i = 0; i < table.bytes / sizeof(ElfW(Rela)); ++i) {
      const ElfW(Rela)& row = table.first[i];
      const auto type = ELF64_R_TYPE(row.r_info);
      if (type != R_X86_64_JUMP_SLOT && type != R_X86_64_GLOB_DAT && type != R_X86_64_64) continue;
      if (std::strcmp(names + symbols[ELF64_R_SYM(row.r_info)].st_name, name) != 0) continue;
      const std::uintptr_t slot = map->l_addr + row.r_offset;
      const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
      mprotect(reinterpret_cast<void*>(slot & ~(page - 1)), page, PROT_READ | PROT_WRITE);
      *reinterpret_cast<Function**>(slot) = replacement;
      ++replaced;
    }
  }
  return replaced;
}

#endif

}  // namespace quorin::test
