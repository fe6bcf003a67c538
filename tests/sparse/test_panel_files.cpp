// Panels in files: budgets, sets that are whole or not at all, sets in use by others.
#include "sparse/numeric/panel_files.hpp"
#include "tests/sparse/files.hpp"
#include "tests/sparse/matrices.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {
namespace {

constexpr std::uint64_t kPlenty = std::uint64_t{1} << 30;
constexpr PanelKind kKind = PanelKind::kSymmetric;

Plan plan_of(const Matrix& A) {
  const Graph graph = graph_of(A);
  Arrays arrays(graph.size());
  Plan plan;
  if (order_minimum_degree(graph, arrays.ordering()) != Outcome::kDone ||
      plan.build(graph, arrays.ordering()) != Outcome::kDone) {
    throw std::runtime_error(A.name + " has no plan");
  }
  return plan;
}

class PanelFilesTest : public testing::Test {
 protected:
  std::size_t elements(int s) const { return static_cast<std::size_t>(plan_.panel_size(kKind, s)); }
  std::uint64_t bytes() const { return static_cast<std::uint64_t>(plan_.panel_elements(kKind)) * sizeof(double); }
  std::uint64_t largest() const { return static_cast<std::uint64_t>(plan_.largest_panel(kKind)) * sizeof(double); }
  // What panel s holds after some number of changes.
  static double value(int s, int version) { return s + 0.001 * version; }

  // Writes all panels; `change` some more in an order that no cache likes.
  FactorOutcome fill(PanelFiles& files, int version, const std::vector<int>& panels) const {
    for (const int s : panels) {
      auto* const panel = static_cast<double*>(files.pin(s, version == 0));
      if (panel == nullptr) return files.outcome();
      std::fill_n(panel, elements(s), value(s, version));
      files.unpin(s, true);
    }
    return FactorOutcome::kDone;
  }
  FactorOutcome check(PanelFiles& files, const std::vector<int>& panels, int version = 0) const {
    for (const int s : panels) {
      const auto* const panel = static_cast<const double*>(files.pin(s, false));
      if (panel == nullptr) return files.outcome();
      EXPECT_EQ(std::count(panel, panel + elements(s), value(s, version)), static_cast<std::ptrdiff_t>(elements(s)));
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(panel) % 64, 0U);
      files.unpin(s, false);
    }
    return FactorOutcome::kDone;
  }
  std::vector<int> ascending() const {
    std::vector<int> panels(static_cast<std::size_t>(plan_.supernodes()));
    for (int s = 0; s < plan_.supernodes(); ++s) panels[static_cast<std::size_t>(s)] = s;
    return panels;
  }
  std::vector<int> shuffled() const {
    std::vector<int> panels = ascending();
    std::shuffle(panels.begin(), panels.end(), std::mt19937(5));
    return panels;
  }

  // A whole set, as another program would leave it.
  FactorOutcome make_set(const std::string& name, std::uint64_t budget = kPlenty,
                         std::uint64_t part_bytes = PanelFiles::kPartBytes) const {
    PanelFiles files;
    return complete_set(name, files, budget, part_bytes);
  }
  FactorOutcome complete_set(const std::string& name, PanelFiles& files, std::uint64_t budget = kPlenty,
                             std::uint64_t part_bytes = PanelFiles::kPartBytes) const {
    FactorOutcome outcome = files.begin(name.c_str(), budget, part_bytes);
    if (outcome == FactorOutcome::kDone) outcome = files.create(plan_, kKind, sizeof(double));
    if (outcome == FactorOutcome::kDone) outcome = fill(files, 0, ascending());
    if (outcome == FactorOutcome::kDone) outcome = files.finish(true);
    if (outcome == FactorOutcome::kDone) outcome = files.begin_index();
    files.index_writer().put(std::int32_t{4711});
    return outcome == FactorOutcome::kDone ? files.complete() : outcome;
  }
  FactorOutcome open_set(const std::string& name, PanelFiles& files, std::uint64_t budget = kPlenty) const {
    if (const FactorOutcome outcome = files.open(name.c_str(), budget); outcome != FactorOutcome::kDone) return outcome;
    if (files.index_reader().get<std::int32_t>() != 4711 || !files.fits(plan_, kKind, sizeof(double))) {
      files.index_reader().reject();
    }
    return files.complete_opening();
  }
  FactorOutcome read_set(const std::string& name, std::uint64_t budget = kPlenty) const {
    PanelFiles files;
    if (const FactorOutcome outcome = open_set(name, files, budget); outcome != FactorOutcome::kDone) return outcome;
    return check(files, shuffled());
  }

  Folder folder_;
  Plan plan_ = plan_of(grid(20, 20, 1, false));
};

TEST_F(PanelFilesTest, HoldWhatWasWrittenWithinAnyBudget) {
  for (const std::uint64_t budget : {largest() + 64, 2 * largest(), bytes() / 3, bytes(), kPlenty}) {
    for (const std::uint64_t part_bytes : {std::uint64_t{1000}, std::uint64_t{65536}, PanelFiles::kPartBytes}) {
      PanelFiles files;
      ASSERT_EQ(files.begin(folder_.file("set").c_str(), budget, part_bytes), FactorOutcome::kDone);
      ASSERT_EQ(files.create(plan_, kKind, sizeof(double)), FactorOutcome::kDone);
      ASSERT_EQ(fill(files, 0, ascending()), FactorOutcome::kDone);
      for (int version = 0; version < 3; ++version) {
        EXPECT_EQ(check(files, shuffled(), version), FactorOutcome::kDone);
        EXPECT_EQ(fill(files, version + 1, shuffled()), FactorOutcome::kDone);
      }
      EXPECT_EQ(files.finish(true), FactorOutcome::kDone);
      EXPECT_EQ(check(files, ascending(), 3), FactorOutcome::kDone);
      EXPECT_LE(files.traffic().most_in_memory, budget);
      // What has room is not read again.
      EXPECT_EQ(files.traffic().read == 0, budget == kPlenty);
    }
    EXPECT_EQ(folder_.files(), 0);
  }
}

// A forward and a backward sweep over panels of which half have room read each about once: what the one left in memory
// is where the other begins.
TEST_F(PanelFilesTest, KeepWhatTheNextSweepBeginsWith) {
  ASSERT_EQ(make_set(folder_.file("set")), FactorOutcome::kDone);
  PanelFiles files;
  ASSERT_EQ(open_set(folder_.file("set"), files, bytes() / 2), FactorOutcome::kDone);
  std::vector<int> panels = ascending();
  for (int sweep = 0; sweep < 4; ++sweep) {
    ASSERT_EQ(check(files, panels), FactorOutcome::kDone);
    std::reverse(panels.begin(), panels.end());
  }
  const double sweeps = static_cast<double>(files.traffic().read) / static_cast<double>(bytes());
  EXPECT_LT(sweeps, 3.5);
}

TEST_F(PanelFilesTest, WithoutRoomForWhatIsPinnedSaySo) {
  PanelFiles files;
  ASSERT_EQ(files.begin(folder_.file("set").c_str(), largest() + 64), FactorOutcome::kDone);
  ASSERT_EQ(files.create(plan_, kKind, sizeof(double)), FactorOutcome::kDone);
  ASSERT_EQ(fill(files, 0, ascending()), FactorOutcome::kDone);
  const std::vector<int> panels = ascending();
  std::size_t pinned = 0;
  while (files.pin(panels[pinned], false) != nullptr) ++pinned;
  EXPECT_EQ(files.outcome(), FactorOutcome::kBudgetTooSmall);
  for (std::size_t k = 0; k < pinned; ++k) files.unpin(panels[k], false);
  EXPECT_EQ(check(files, panels), FactorOutcome::kDone);
}

TEST_F(PanelFilesTest, OpenAgainWithinAnyBudgetAndTwiceAtATime) {
  for (const std::uint64_t part_bytes : {std::uint64_t{1000}, PanelFiles::kPartBytes}) {
    ASSERT_EQ(make_set(folder_.file("set"), largest() + 64, part_bytes), FactorOutcome::kDone);
    for (const std::uint64_t budget : {largest() + 64, kPlenty}) {
      EXPECT_EQ(read_set(folder_.file("set"), budget), FactorOutcome::kDone);
    }
  }
  EXPECT_EQ(folder_.files(), 2);
  ASSERT_EQ(make_set(folder_.file("other")), FactorOutcome::kDone);
  PanelFiles first, second;
  ASSERT_EQ(complete_set(folder_.file("set"), first), FactorOutcome::kDone);
  ASSERT_EQ(open_set(folder_.file("set"), second), FactorOutcome::kDone);
  EXPECT_EQ(check(first, ascending()), FactorOutcome::kDone);
  EXPECT_EQ(check(second, shuffled()), FactorOutcome::kDone);
  EXPECT_EQ(second.create(plan_, kKind, sizeof(double)), FactorOutcome::kCannotOpen) << "it is there to be read";
  // Nobody may write or remove what is being read.
  EXPECT_EQ(make_set(folder_.file("set")), FactorOutcome::kCannotOpen);
  EXPECT_EQ(PanelFiles::remove(folder_.file("set").c_str()), FactorOutcome::kCannotOpen);
  first.close();
  second.close();
  EXPECT_EQ(PanelFiles::remove(folder_.file("set").c_str()), FactorOutcome::kDone);
  EXPECT_EQ(folder_.files(), 2);
  EXPECT_EQ(read_set(folder_.file("other")), FactorOutcome::kDone);
}

// All panels are on the disk before the index tells that they are there; that files are opened again is no matter.
TEST_F(PanelFilesTest, AreFlushedBeforeTheIndexIsWhole) {
  using Operation = platform::FileOperation;
  std::vector<Operation> all =
      operations_of([&] { EXPECT_EQ(make_set(folder_.file("set"), kPlenty, 10'000), FactorOutcome::kDone); });
  std::erase(all, Operation::kOpen);
  const auto parts = static_cast<std::size_t>(folder_.files() - 1);
  std::vector<Operation> end(parts, Operation::kFlush);
  end.insert(end.end(), {Operation::kWrite, Operation::kFlush, Operation::kWrite, Operation::kFlush});
  ASSERT_GT(all.size(), end.size());
  EXPECT_EQ(std::vector<Operation>(all.end() - static_cast<std::ptrdiff_t>(end.size()), all.end()), end);
}

TEST_F(PanelFilesTest, TakeTheirNameForThemselves) {
  PanelFiles files;
  ASSERT_EQ(files.begin(folder_.file("set").c_str(), kPlenty), FactorOutcome::kDone);
  EXPECT_EQ(make_set(folder_.file("set")), FactorOutcome::kCannotOpen);
  EXPECT_EQ(read_set(folder_.file("set")), FactorOutcome::kCannotOpen);
  EXPECT_EQ(files.begin(folder_.file("no/such/folder").c_str(), kPlenty), FactorOutcome::kCannotOpen);
  EXPECT_EQ(files.begin("", kPlenty), FactorOutcome::kCannotOpen);
  EXPECT_EQ(folder_.files(), 0);
}

TEST_F(PanelFilesTest, ThatAreNotWholeAreRefused) {
  const std::string name = folder_.file("set");
  ASSERT_EQ(make_set(name, kPlenty, 10'000), FactorOutcome::kDone);
  const int count = folder_.files();
  ASSERT_GT(count, 4);
  for (const char* file : {".index", ".0", ".1", ".2"}) {
    const std::string whole = contents(name + file);
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, whole.size() / 2, whole.size() - 1}) {
      write_contents(name + file, whole.substr(0, length));
      EXPECT_EQ(read_set(name), FactorOutcome::kWrongFormat) << file << ' ' << length;
    }
    write_contents(name + file, whole + "x");
    EXPECT_EQ(read_set(name), FactorOutcome::kWrongFormat) << file;
    std::filesystem::remove(name + file);
    EXPECT_EQ(read_set(name), FactorOutcome::kCannotOpen) << file;
    write_contents(name + file, whole);
  }
  // Damage that leaves the length as it is: at multiples of 64 bytes there are always numbers.
  const std::string whole = contents(name + ".0");
  for (const std::size_t place : {0, 7 * 64, 100 * 64}) {
    std::string damaged = whole;
    damaged[place] = static_cast<char>(damaged[place] ^ 1);
    write_contents(name + ".0", damaged);
    for (const std::uint64_t budget : {largest() + 64, kPlenty}) {
      EXPECT_EQ(read_set(name, budget), FactorOutcome::kWrongFormat) << place;
    }
  }
  write_contents(name + ".0", whole);
  EXPECT_EQ(read_set(name), FactorOutcome::kDone);
  EXPECT_EQ(folder_.files(), count);
}

// An index that anybody may have written, with the right checksum.
TEST_F(PanelFilesTest, OfHostileSizesAreRefused) {
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 63;
  const struct {
    std::uint64_t part_bytes;
    std::int32_t count;
    std::vector<std::uint64_t> sizes;
  } cases[] = {{0, 1, {8}},
               {kHuge, 1, {8}},
               {4096, -1, {8}},
               {4096, 1 << 30, {8}},
               {4096, 1, {kHuge}},
               {64, 2, {kHuge, kHuge}},
               {4096, 1, {~std::uint64_t{0}}},
               {1, 1, {600}},
               {4096, 2, {8, 1 << 30}}};
  for (const auto& c : cases) {
    FileWriter index;
    ASSERT_EQ(index.begin(folder_.file("set.index").c_str(), FileKind::kPanels), FactorOutcome::kDone);
    index.put(c.part_bytes);
    index.put(c.count);
    for (const std::uint64_t size : c.sizes) index.put(size);
    ASSERT_EQ(index.complete(), FactorOutcome::kDone);
    write_contents(folder_.file("set.0"), "12345678");
    PanelFiles files;
    EXPECT_NE(files.open(folder_.file("set").c_str(), kPlenty), FactorOutcome::kDone) << &c - cases;
  }
}

}  // namespace
}  // namespace quorin::sparse::test
