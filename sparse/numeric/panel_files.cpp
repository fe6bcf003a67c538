#include "sparse/numeric/panel_files.hpp"

#include <algorithm>
#include <cstring>
#include <limits>
#include <mutex>
#include <utility>

namespace quorin::sparse {
namespace {

constexpr std::size_t kAlignment = 64;  // of panels, in memory and in the files
constexpr std::uint64_t kLongestRun = std::uint64_t{1} << 20;
constexpr std::uint64_t kMostInMemory = std::numeric_limits<std::size_t>::max() / 2;

constexpr std::uint64_t padded(std::uint64_t bytes) {
  return (bytes + kAlignment - 1) & ~std::uint64_t{kAlignment - 1};
}

base::Workspace<char> index_name(const char* base_name) { return file_name(base_name, ".index"); }
base::Workspace<char> part_name(const char* base_name, int part) { return file_name(base_name, ".", part); }

// What an index begins with: the most that a file of panels holds, the number of panels and their sizes.
FactorOutcome read_table(FileReader& index, std::uint64_t& part_bytes, base::Workspace<std::uint64_t>& sizes) {
  part_bytes = index.get<std::uint64_t>();
  const auto count = index.get<std::int32_t>();
  if (part_bytes == 0 || part_bytes > PanelFiles::kPartBytes || count < 0) index.reject();
  index.get(sizes, static_cast<std::uint64_t>(count));
  for (const std::uint64_t size : sizes) {
    if (size > PanelFiles::kPartBytes * PanelFiles::kMostParts) index.reject();
  }
  return index.outcome();
}

// The number of files that the set has for its panels; 0 if there is no set.
int count_parts(const char* base_name) {
  const base::Workspace<char> name = index_name(base_name);
  FileReader index;
  std::uint64_t part_bytes = 0, total = 0;
  base::Workspace<std::uint64_t> sizes;
  if (!name || index.begin(name.data(), FileKind::kPanels) != FactorOutcome::kDone ||
      read_table(index, part_bytes, sizes) != FactorOutcome::kDone) {
    return 0;
  }
  for (const std::uint64_t size : sizes) total += padded(size);
  return static_cast<int>(std::min<std::uint64_t>(total / part_bytes + 1, PanelFiles::kMostParts));
}

void remove_parts(const char* base_name, int count) {
  for (int part = 0; part < count; ++part) {
    if (const base::Workspace<char> name = part_name(base_name, part)) platform::remove_file(name.data());
  }
}

}  // namespace

FactorOutcome PanelFiles::take_name(const char* base_name) noexcept {
  if (base_name == nullptr || *base_name == '\0') return FactorOutcome::kCannotOpen;
  base_name_ = file_name(base_name, "");
  return base_name_ ? FactorOutcome::kDone : FactorOutcome::kOutOfMemory;
}

FactorOutcome PanelFiles::begin(const char* base_name, std::uint64_t budget, std::uint64_t part_bytes) noexcept {
  close();
  if (const FactorOutcome outcome = take_name(base_name); outcome != FactorOutcome::kDone) return outcome;
  budget_ = budget;
  part_bytes_ = part_bytes;
  const base::Workspace<char> index = index_name(base_name);
  if (!index) return FactorOutcome::kOutOfMemory;
  // The index that is begun locks the name, and what was complete is not any more.
  const int old_parts = count_parts(base_name);
  const FactorOutcome outcome = writer_.begin(index.data(), FileKind::kPanels, FileWriter::Replacing::kInPlace);
  is_new_ = outcome == FactorOutcome::kDone;
  if (is_new_) remove_parts(base_name, old_parts);
  return outcome;
}

FactorOutcome PanelFiles::create(const Plan& plan, PanelKind kind, std::size_t scalar_size) noexcept {
  drop_panels();
  // A set that was complete begins anew.
  if (!is_new_ && is_read_only_) return FactorOutcome::kCannotOpen;
  if (!is_new_) {
    const base::Workspace<char> name = base::Workspace<char>(std::move(base_name_));
    if (!name) return FactorOutcome::kCannotOpen;
    const FactorOutcome outcome = begin(name.data(), budget_, part_bytes_);
    if (outcome != FactorOutcome::kDone) return outcome;
  }
  panels_ = plan.supernodes();
  sizes_ = base::Workspace<std::uint64_t>(static_cast<std::size_t>(panels_));
  checks_ = base::Workspace<std::uint32_t>(static_cast<std::size_t>(panels_));
  if (!sizes_ || !checks_) return FactorOutcome::kOutOfMemory;
  std::fill(checks_.begin(), checks_.end(), 0);
  for (int s = 0; s < panels_; ++s) {
    sizes_[static_cast<std::size_t>(s)] = static_cast<std::uint64_t>(plan.panel_size(kind, s)) * scalar_size;
  }
  return lay_out();
}

bool PanelFiles::fits(const Plan& plan, PanelKind kind, std::size_t scalar_size) const noexcept {
  if (panels_ != plan.supernodes()) return false;
  for (int s = 0; s < panels_; ++s) {
    const auto size = static_cast<std::uint64_t>(plan.panel_size(kind, s)) * scalar_size;
    if (sizes_[static_cast<std::size_t>(s)] != size) return false;
  }
  return true;
}

FactorOutcome PanelFiles::begin_index() noexcept {
  // What is not written yet has no check.
  if (const FactorOutcome outcome = finish(true); outcome != FactorOutcome::kDone) return outcome;
  writer_.put(part_bytes_);
  writer_.put(static_cast<std::int32_t>(panels_));
  writer_.put(std::span<const std::uint64_t>(sizes_.data(), sizes_.size()));
  writer_.put(std::span<const std::uint32_t>(checks_.data(), checks_.size()));
  return writer_.outcome();
}

FactorOutcome PanelFiles::complete() noexcept {
  const base::Workspace<char> name = index_name(base_name_.data());
  if (!name) return FactorOutcome::kOutOfMemory;
  FactorOutcome outcome = create_parts(offset(panels_));
  for (int part = 0; part < part_count_ && outcome == FactorOutcome::kDone; ++part) {
    if (!parts_[static_cast<std::size_t>(part)].flush()) outcome = FactorOutcome::kFileFailed;
  }
  // From here on the files are only read, so that others may read them, too. The index keeps them away until it is
  // whole.
  const int count = std::exchange(part_count_, 0);
  if (outcome == FactorOutcome::kDone) outcome = open_parts();
  part_count_ = count;
  if (outcome == FactorOutcome::kDone) outcome = writer_.complete();
  is_new_ = outcome != FactorOutcome::kDone;
  if (is_new_) return outcome;
  // To read the index keeps others from writing it. Without that the set is as good.
  writer_.abandon();
  if (count < kMostParts) static_cast<void>(parts_[static_cast<std::size_t>(count)].open(name.data()));
  return outcome;
}

FactorOutcome PanelFiles::open(const char* base_name, std::uint64_t budget) noexcept {
  close();
  if (const FactorOutcome outcome = take_name(base_name); outcome != FactorOutcome::kDone) return outcome;
  is_read_only_ = true;
  budget_ = budget;
  const base::Workspace<char> index = index_name(base_name);
  if (!index) return FactorOutcome::kOutOfMemory;
  FactorOutcome outcome = reader_.begin(index.data(), FileKind::kPanels);
  if (outcome == FactorOutcome::kDone) outcome = read_table(reader_, part_bytes_, sizes_);
  if (outcome == FactorOutcome::kDone) reader_.get(checks_, sizes_.size());
  if (reader_.outcome() != FactorOutcome::kDone) return reader_.outcome();
  panels_ = static_cast<int>(sizes_.size());
  outcome = lay_out();
  if (outcome == FactorOutcome::kDone) outcome = open_parts();
  return outcome;
}

FactorOutcome PanelFiles::complete_opening() noexcept {
  for (Run& each : std::span<Run>(runs_)) each.is_in_file = true;
  return reader_.complete();
}

bool PanelFiles::exists(const char* base_name) noexcept {
  const base::Workspace<char> index = index_name(base_name);
  return index && platform::file_exists(index.data());
}

void PanelFiles::close() noexcept {
  drop_panels();
  // The index last: it keeps others from the name.
  writer_.abandon();
  reader_.close();
  is_new_ = is_read_only_ = false;
  base_name_ = {};
}

FactorOutcome PanelFiles::remove(const char* base_name) noexcept {
  if (base_name == nullptr || *base_name == '\0') return FactorOutcome::kCannotOpen;
  const base::Workspace<char> index = index_name(base_name);
  if (!index) return FactorOutcome::kOutOfMemory;
  const int parts = count_parts(base_name);
  if (parts == 0) return FactorOutcome::kWrongFormat;
  FileWriter writer;
  const FactorOutcome outcome = writer.begin(index.data(), FileKind::kPanels, FileWriter::Replacing::kInPlace);
  if (outcome == FactorOutcome::kDone) remove_parts(base_name, parts);
  return outcome;  // and the writer removes the index
}

// Offsets and runs from the sizes.
FactorOutcome PanelFiles::lay_out() noexcept {
  const std::size_t n = sizes_.size();
  offsets_ = base::Workspace<std::uint64_t>(n + 1);
  run_of_ = base::Workspace<int>(n);
  if (!offsets_ || !run_of_) return FactorOutcome::kOutOfMemory;
  // The budget has room for many runs.
  const std::uint64_t longest = std::min(kLongestRun, budget_ / 16);
  std::size_t run_count = 0;
  std::uint64_t run_start = offsets_[0] = 0;
  for (std::size_t k = 0; k < n; ++k) {
    offsets_[k + 1] = offsets_[k] + padded(sizes_[k]);
    if (offsets_[k + 1] > kMostParts * part_bytes_) return FactorOutcome::kTooLarge;
    if (k == 0 || offsets_[k + 1] - run_start > longest) {
      ++run_count;
      run_start = offsets_[k];
    }
    run_of_[k] = static_cast<int>(run_count) - 1;
  }
  runs_ = base::Workspace<Run>(run_count);
  if (!runs_) return FactorOutcome::kOutOfMemory;
  std::fill(runs_.begin(), runs_.end(), Run());
  for (int k = 0; k < panels_; ++k) {
    Run& own = run_with(k);
    if (own.end == 0) own.first = k;
    own.end = k + 1;
  }
  return FactorOutcome::kDone;
}

void PanelFiles::drop_panels() noexcept {
  for (Run& each : std::span<Run>(runs_)) base::release(each.block);
  runs_ = {};
  sizes_ = {};
  checks_ = {};
  offsets_ = {};
  run_of_ = {};
  for (platform::BlockFile& part : parts_) part.close();
  if (is_new_) remove_parts(base_name_.data(), part_count_);
  part_count_ = panels_ = 0;
  oldest_ = newest_ = kNone;
  in_memory_ = 0;
  outcome_ = FactorOutcome::kDone;
  traffic_ = {};
}

FactorOutcome PanelFiles::open_parts() noexcept {
  const std::uint64_t total = offset(panels_);
  for (std::uint64_t begin = 0; begin < total; begin += part_bytes_, ++part_count_) {
    const base::Workspace<char> name = part_name(base_name_.data(), part_count_);
    if (!name) return FactorOutcome::kOutOfMemory;
    platform::BlockFile& part = parts_[static_cast<std::size_t>(part_count_)];
    if (!part.open(name.data())) return FactorOutcome::kCannotOpen;
    if (part.size() != std::min(part_bytes_, total - begin)) return FactorOutcome::kWrongFormat;
  }
  return FactorOutcome::kDone;
}

// Makes the files that hold bytes before `end` and are not there yet.
FactorOutcome PanelFiles::create_parts(std::uint64_t end) noexcept {
  while (static_cast<std::uint64_t>(part_count_) * part_bytes_ < end) {
    const base::Workspace<char> name = part_name(base_name_.data(), part_count_);
    if (!name) return FactorOutcome::kOutOfMemory;
    if (!parts_[static_cast<std::size_t>(part_count_)].create(name.data())) return FactorOutcome::kCannotOpen;
    ++part_count_;
  }
  return FactorOutcome::kDone;
}

// Calls piece(file, offset in it, memory, length) for the piece of the run that each file holds.
template <class Piece>
FactorOutcome PanelFiles::transfer(Run& run, Piece&& piece) noexcept {
  const std::uint64_t begin = offset(run.first);
  const auto size = static_cast<std::size_t>(bytes(run));
  for (std::size_t done = 0; done < size;) {
    const std::uint64_t place = (begin + done) % part_bytes_;
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(size - done, part_bytes_ - place));
    platform::BlockFile& part = parts_[static_cast<std::size_t>((begin + done) / part_bytes_)];
    if (!piece(part, place, run.data + done, length)) return FactorOutcome::kFileFailed;
    done += length;
  }
  return FactorOutcome::kDone;
}

// Calls compare(check of what is in memory, check that is known) for the panels of the run. Panels and not runs have
// checks: another budget makes other runs.
template <class Compare>
void PanelFiles::for_panels(Run& run, const Compare& compare) noexcept {
  for (int panel = run.first; panel < run.end; ++panel) {
    const auto p = static_cast<std::size_t>(panel);
    compare(crc32(run.data + (offset(panel) - offset(run.first)), static_cast<std::size_t>(sizes_[p])), checks_[p]);
  }
}

FactorOutcome PanelFiles::read(Run& run) noexcept {
  traffic_.read += bytes(run);
  const FactorOutcome outcome = transfer(run, [](platform::BlockFile& part, std::uint64_t place, std::byte* memory,
                                                 std::size_t length) { return part.read(place, memory, length); });
  if (outcome != FactorOutcome::kDone) return outcome;
  bool is_whole = true;
  for_panels(run, [&](std::uint32_t check, std::uint32_t known) { is_whole = is_whole && check == known; });
  return is_whole ? FactorOutcome::kDone : FactorOutcome::kWrongFormat;
}

FactorOutcome PanelFiles::write(Run& run) noexcept {
  FactorOutcome outcome = create_parts(offset(run.end));
  if (outcome != FactorOutcome::kDone) return outcome;
  traffic_.written += bytes(run);
  outcome = transfer(run, [](platform::BlockFile& part, std::uint64_t place, std::byte* memory, std::size_t length) {
    return part.write(place, memory, length);
  });
  if (outcome == FactorOutcome::kDone) {
    for_panels(run, [](std::uint32_t check, std::uint32_t& known) { known = check; });
    run.is_changed = false;
    run.is_in_file = true;
  }
  return outcome;
}

void* PanelFiles::pin(int s, bool /*is_new*/) noexcept {
  const std::scoped_lock lock(mutex_);
  const int r = run_of_[static_cast<std::size_t>(s)];
  Run& own = run(r);
  if (own.block == nullptr) {
    const FactorOutcome outcome = bring_in(r);
    if (outcome != FactorOutcome::kDone) {
      outcome_ = outcome;
      return nullptr;
    }
  } else {
    unlink(r);
    link_as_newest(r);
  }
  ++own.pins;
  return own.data + (offset(s) - offset(own.first));
}

void PanelFiles::unpin(int s, bool is_changed) noexcept {
  const std::scoped_lock lock(mutex_);
  --run_with(s).pins;
  run_with(s).is_changed |= is_changed;
}

FactorOutcome PanelFiles::outcome() const noexcept {
  const std::scoped_lock lock(mutex_);
  return outcome_;
}

FactorOutcome PanelFiles::finish(bool is_complete) noexcept {
  if (!is_complete) {
    drop_panels();
    return FactorOutcome::kDone;
  }
  outcome_ = FactorOutcome::kDone;
  for (Run& each : std::span<Run>(runs_)) {
    if (outcome_ == FactorOutcome::kDone && each.is_changed) outcome_ = write(each);
  }
  return outcome_;
}

FactorOutcome PanelFiles::bring_in(int r) noexcept {
  Run& own = run(r);
  const std::uint64_t size = bytes(own);
  if (size > kMostInMemory) return FactorOutcome::kTooLarge;
  FactorOutcome outcome = make_room(size);
  if (outcome != FactorOutcome::kDone) return outcome;
  const std::size_t block_size = static_cast<std::size_t>(size) + kAlignment;
  own.block = base::allocate(block_size);
  while (own.block == nullptr && newest_ != kNone) {
    outcome = send_oldest_away();
    if (outcome == FactorOutcome::kBudgetTooSmall) break;
    if (outcome != FactorOutcome::kDone) return outcome;
    own.block = base::allocate(block_size);
  }
  if (own.block == nullptr) return FactorOutcome::kOutOfMemory;
  const auto address = reinterpret_cast<std::uintptr_t>(own.block);
  const std::uintptr_t aligned = (address + kAlignment - 1) & ~std::uintptr_t{kAlignment - 1};
  own.data = static_cast<std::byte*>(own.block) + (aligned - address);
  if (own.is_in_file) {
    outcome = read(own);
  } else {
    // What is between panels, and those that are not written before others of the run, go to the file, too.
    std::memset(own.data, 0, static_cast<std::size_t>(size));
  }
  if (outcome != FactorOutcome::kDone) {
    base::release(std::exchange(own.block, nullptr));
    return outcome;
  }
  in_memory_ += size;
  traffic_.most_in_memory = std::max(traffic_.most_in_memory, in_memory_);
  link_as_newest(r);
  return FactorOutcome::kDone;
}

FactorOutcome PanelFiles::make_room(std::uint64_t bytes) noexcept {
  while (in_memory_ + bytes > budget_) {
    const FactorOutcome outcome = send_oldest_away();
    if (outcome != FactorOutcome::kDone) return outcome;
  }
  return FactorOutcome::kDone;
}

FactorOutcome PanelFiles::send_oldest_away() noexcept {
  int r = oldest_;
  while (r != kNone && run(r).pins > 0) r = run(r).newer;
  if (r == kNone) return FactorOutcome::kBudgetTooSmall;
  if (run(r).is_changed) {
    const FactorOutcome outcome = write(run(r));
    if (outcome != FactorOutcome::kDone) return outcome;
  }
  unlink(r);
  base::release(std::exchange(run(r).block, nullptr));
  in_memory_ -= bytes(run(r));
  return FactorOutcome::kDone;
}

void PanelFiles::link_as_newest(int r) noexcept {
  run(r).older = newest_;
  run(r).newer = kNone;
  (newest_ != kNone ? run(newest_).newer : oldest_) = r;
  newest_ = r;
}

void PanelFiles::unlink(int r) noexcept {
  const Run& own = run(r);
  (own.older != kNone ? run(own.older).newer : oldest_) = own.newer;
  (own.newer != kNone ? run(own.newer).older : newest_) = own.older;
}

}  // namespace quorin::sparse
