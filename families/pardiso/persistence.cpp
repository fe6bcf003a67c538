// Handles in files: everything that is not the host's, from which the plan is made again.
#include <array>
#include <cstdio>
#include <cstring>

#include "families/pardiso/handles.hpp"
#include "families/pardiso/outcomes.hpp"
#include "families/pardiso/pardiso.hpp"
#include "platform/block_file.hpp"

namespace quorin::pardiso {
namespace {

constexpr std::size_t kPathSize = 1024;

// The file's name in a folder; false if it is too long.
bool file_in(const char* folder, std::array<char, kPathSize>& name) {
  const std::size_t length = folder == nullptr ? 0 : std::strlen(folder);
  const bool needs_slash = length > 0 && folder[length - 1] != '/' && folder[length - 1] != '\\';
  const int needed =
      std::snprintf(name.data(), name.size(), "%s%shandle.pds", length == 0 ? "" : folder, needs_slash ? "/" : "");
  return needed > 0 && static_cast<std::size_t>(needed) < name.size();
}

Error store_in(void* const* pt, const char* folder) {
  Solver* solver = nullptr;
  std::array<char, kPathSize> name{};
  if (pt == nullptr || look_up(pt, solver) != Words::kOurs) return Error::kWrongFile;
  if (!file_in(folder, name)) return Error::kCannotOpen;
  sparse::FileWriter file;
  const sparse::FactorOutcome begun = file.begin(name.data(), sparse::FileKind::kHandle);
  if (begun != sparse::FactorOutcome::kDone) return error_of(begun);
  if (const Error error = solver->write(file); error != Error::kDone) return error;
  return error_of(file.complete());
}

Error restore_from(void** pt, const char* folder) {
  std::array<char, kPathSize> name{};
  if (pt == nullptr) return Error::kWrongFile;
  if (!file_in(folder, name)) return Error::kCannotOpen;
  sparse::FileReader file;
  const sparse::FactorOutcome begun = file.begin(name.data(), sparse::FileKind::kHandle);
  if (begun != sparse::FactorOutcome::kDone) return error_of(begun);
  Solver* solver = nullptr;
  Error error = Solver::read(file, solver);
  if (error == Error::kDone) error = error_of(file.complete());
  if (error == Error::kDone && !write_handle(pt, solver)) error = Error::kNoMemory;
  if (error != Error::kDone) Solver::destroy(solver);
  return error;
}

Error remove_from(const char* folder) {
  std::array<char, kPathSize> name{};
  return file_in(folder, name) && platform::remove_file(name.data()) ? Error::kDone : Error::kCannotOpen;
}

void write(std::int32_t* error, Error value) {
  if (error != nullptr) *error = static_cast<std::int32_t>(value);
}

}  // namespace

void store(void* const* pt, const char* dirname, std::int32_t* error) noexcept { write(error, store_in(pt, dirname)); }
void restore(void** pt, const char* dirname, std::int32_t* error) noexcept { write(error, restore_from(pt, dirname)); }
void remove(const char* dirname, std::int32_t* error) noexcept { write(error, remove_from(dirname)); }

}  // namespace quorin::pardiso
