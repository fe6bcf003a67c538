// Panels in a set of files, for a factor that is larger than memory or outlives the process.
//
// A set with the base name "factor" is the files "factor.0", "factor.1", ..., each less than 2 GiB, which hold the
// panels one behind the other, and "factor.index", which tells where they are and holds their checksums and whatever
// else belongs to the factor. The index is completed last: without a whole one there is no set. A panel that is not as
// it was written is refused when it is read.
#pragma once

#include <array>
#include <cstdint>

#include "platform/platform.hpp"
#include "sparse/numeric/checked_file.hpp"
#include "sparse/numeric/panels.hpp"

namespace quorin::sparse {

// The most elements that a panel should have for a factorization within a budget of bytes: it and one that updates it
// are in memory at a time, beside others that need not be read again soon.
constexpr std::int64_t most_elements_within(std::uint64_t budget, std::size_t scalar_size) noexcept {
  const std::uint64_t most = budget / (4 * scalar_size);
  return most > 0 ? static_cast<std::int64_t>(most) : 1;
}

// What was pinned stays in memory, up to a budget; then goes what was not used for the longest time, to the files if it
// has changed. Small panels that follow each other come and go together.
//
// A failure to write lasts until the panels are created anew; one to read does not.
class PanelFiles final : public PanelStore {
 public:
  static constexpr std::uint64_t kPartBytes = 0x7fff0000;  // below 2 GiB, which every system's files can hold
  static constexpr int kMostParts = 512;                   // 1 TiB

  PanelFiles() = default;
  // A set that is not complete is removed.
  ~PanelFiles() override { close(); }

  // Takes the name for new panels: nobody else can have a set of that name until they are complete. One that there is,
  // is lost. kOutOfMemory, kCannotOpen. `part_bytes` is for tests: the most that a file of panels holds.
  FactorOutcome begin(const char* base_name, std::uint64_t budget, std::uint64_t part_bytes = kPartBytes) noexcept;
  // Makes a set of the panels, after a factorization. What else belongs to them has been put into index_writer(). Waits
  // until the disk has all of it. The panels can be read further on, and others can open the set, too. Files that
  // nobody is to open again need no completion.
  FactorOutcome begin_index() noexcept;
  FileWriter& index_writer() noexcept { return writer_; }
  FactorOutcome complete() noexcept;

  // Opens a set; every file must be as long as it was when it was written. What was put into the index must be got from
  // index_reader() then, and complete_opening() called, before the first panel is pinned. Others may open it, too.
  // kOutOfMemory, kTooLarge, kCannotOpen, kFileFailed, kWrongFormat.
  FactorOutcome open(const char* base_name, std::uint64_t budget) noexcept;
  FileReader& index_reader() noexcept { return reader_; }
  FactorOutcome complete_opening() noexcept;

  // Whether there is a set of that name, complete or not, here or in another process.
  static bool exists(const char* base_name) noexcept;

  // Lets go of the files and of all memory.
  void close() noexcept;
  // Removes the files of a set that nobody has open. kCannotOpen, kWrongFormat, kOutOfMemory.
  static FactorOutcome remove(const char* base_name) noexcept;

  // Whether the panels have these sizes, as those of a factor with this plan do.
  bool fits(const Plan& plan, PanelKind kind, std::size_t scalar_size) const noexcept;

  FactorOutcome create(const Plan& plan, PanelKind kind, std::size_t scalar_size) noexcept override;
  void* pin(int s, bool is_new) noexcept override;
  void unpin(int s, bool is_changed) noexcept override;
  FactorOutcome finish(bool is_complete) noexcept override;
  FactorOutcome outcome() const noexcept override;

  // Bytes that went through the files since the panels were created or opened, and the most that was in memory.
  struct Traffic {
    std::uint64_t read = 0, written = 0, most_in_memory = 0;
  };
  Traffic traffic() const noexcept { return traffic_; }
  // Bytes of panels that may be in memory at a time.
  std::uint64_t budget() const noexcept { return budget_; }

 private:
  // Panels that come and go together.
  struct Run {
    int first = 0, end = 0;            // panels
    int pins = 0;                      // of all of them
    int older = kNone, newer = kNone;  // neighbours in the order of use, while in memory
    void* block = nullptr;             // of memory, or null
    std::byte* data = nullptr;         // aligned in it
    bool is_changed = false;           // since it came into memory
    bool is_in_file = false;
  };

  FactorOutcome take_name(const char* base_name) noexcept;
  FactorOutcome lay_out() noexcept;
  void drop_panels() noexcept;
  FactorOutcome open_parts() noexcept;
  FactorOutcome create_parts(std::uint64_t end) noexcept;
  template <class Piece>
  FactorOutcome transfer(Run& run, Piece&& piece) noexcept;
  template <class Compare>
  void for_panels(Run& run, const Compare& compare) noexcept;
  FactorOutcome read(Run& run) noexcept;
  FactorOutcome write(Run& run) noexcept;

  Run& run(int r) noexcept { return runs_[static_cast<std::size_t>(r)]; }
  Run& run_with(int panel) noexcept { return run(run_of_[static_cast<std::size_t>(panel)]); }
  std::uint64_t offset(int panel) const noexcept { return offsets_[static_cast<std::size_t>(panel)]; }
  std::uint64_t bytes(const Run& run) const noexcept { return offset(run.end) - offset(run.first); }
  FactorOutcome bring_in(int r) noexcept;
  FactorOutcome make_room(std::uint64_t bytes) noexcept;
  FactorOutcome send_oldest_away() noexcept;
  void link_as_newest(int r) noexcept;
  void unlink(int r) noexcept;

  mutable platform::Mutex mutex_;
  base::Workspace<char> base_name_;
  FileWriter writer_;
  FileReader reader_;
  std::array<platform::BlockFile, kMostParts> parts_;  // and behind those the index of a set that was completed here
  int part_count_ = 0;                                 // that are open
  std::uint64_t part_bytes_ = 0;
  bool is_new_ = false;        // begun here and not complete
  bool is_read_only_ = false;  // opened

  int panels_ = 0;
  base::Workspace<std::uint64_t> sizes_, offsets_;  // offsets_[panels_] is the end
  base::Workspace<std::uint32_t> checks_;           // of the panels in the files
  base::Workspace<int> run_of_;
  base::Workspace<Run> runs_;
  int oldest_ = kNone, newest_ = kNone;  // runs in memory
  std::uint64_t budget_ = 0, in_memory_ = 0;
  FactorOutcome outcome_ = FactorOutcome::kDone;
  Traffic traffic_;
};

}  // namespace quorin::sparse
