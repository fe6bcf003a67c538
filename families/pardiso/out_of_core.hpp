// Where factors go that are kept in files, and how much memory they leave to the rest: from the environment and from a
// file of settings.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "families/pardiso/parameters.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

// MKL_PARDISO_OOC_PATH, ..._MAX_CORE_SIZE, ..._MAX_SWAP_SIZE, ..._KEEP_FILE.
struct OutOfCoreSettings {
  static constexpr std::size_t kPathSize = 512;

  std::array<char, kPathSize> path{"ooc_temp"};  // what the files' names begin with
  std::int64_t core_megabytes = 2000, swap_megabytes = 0;
  bool keeps_files = false;  // KEEP_FILE = 0

  // Of panels, beside everything else in the address space.
  std::int64_t budget() const;
  std::int64_t core_bytes() const { return core_megabytes << 20; }
  std::int64_t bytes_in_memory() const { return (core_megabytes + swap_megabytes) << 20; }
};

// What the environment says outranks the file pardiso_ooc.cfg (or ..._CFG_FILE_NAME) in the current folder (or
// ..._CFG_PATH). A setting that is not understood keeps its default.
[[nodiscard]] OutOfCoreSettings read_out_of_core_settings();

// Takes a name for new files: the path and a number that nobody uses.
[[nodiscard]] Error begin_files(sparse::PanelFiles& files, const OutOfCoreSettings& settings);

// Takes over what a line of the file says: NAME = value. Others than the four names say nothing.
void read_setting(std::string_view line, OutOfCoreSettings& settings);

}  // namespace quorin::pardiso
