// Factors in files: the bits of those in memory, whatever the budget, the method, the threads and the process; and
// disks that fail.
#include <gtest/gtest.h>

#include <cstring>

#include "sparse/numeric/archive.hpp"
#include "tests/sparse/files.hpp"
#include "tests/sparse/systems.hpp"

namespace quorin::sparse::test {
namespace {

constexpr std::uint64_t kPlenty = std::uint64_t{1} << 30;

constexpr Kind kStored[] = {kKinds[0], kKinds[3], kKinds[6], kKinds[9]};

template <Scalar T>
System<T> system_of(const Kind& kind) {
  return dominant_system<T>(grid(21, 19, 1, false), kind.symmetry, kind.is_definite(), 1.1, 6);
}

template <Scalar T>
std::vector<T> right_sides(int n, int nrhs) {
  std::mt19937 numbers(3);
  std::vector<T> b(static_cast<std::size_t>(n) * static_cast<std::size_t>(nrhs));
  for (T& value : b) value = random_value<T>(numbers);
  return b;
}

template <Scalar T>
bool are_same_bits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// Solutions with a factor that was opened, for another plan than the one that it was made with.
template <Scalar T>
std::vector<T> solution(const Plan& plan, const Factor<T>& factor, std::vector<T> b, int nrhs) {
  const int n = plan.size();
  std::vector<T> x(b.size());
  for (int r = 0; r < nrhs; ++r) permute(n, plan.permutation(), &b[std::size_t(r) * n], &x[std::size_t(r) * n]);
  if (solve(factor, Operation::kPlain, Stage::kAll, nrhs, x.data(), n) != FactorOutcome::kDone) return {};
  for (int r = 0; r < nrhs; ++r) permute_back(n, plan.permutation(), &x[std::size_t(r) * n], &b[std::size_t(r) * n]);
  return b;
}

template <class T>
class OutOfCore : public testing::Test {
 protected:
  Folder folder_;
};
TYPED_TEST_SUITE(OutOfCore, Scalars);

TYPED_TEST(OutOfCore, HasTheBitsOfMemoryWithinAnyBudget) {
  using T = TypeParam;
  for (const Kind& kind : kStored) {
    for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
      SCOPED_TRACE(std::to_string(&kind - kStored) + (method == Method::kMultifrontal ? " multifrontal" : ""));
      const System<T> A = system_of<T>(kind);
      Solved<T> solved(A);
      FactorOptions options = kind.options(method);
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
      const PivotCounts counts = solved.factor.report().pivots;
      const std::vector<T> b = right_sides<T>(A.n, 5);
      const std::vector<T> expected = solved.solution(Operation::kPlain, b, 5);
      const PanelKind panels = panel_kind(kind.factorization);
      const std::uint64_t largest = static_cast<std::uint64_t>(solved.plan.largest_panel(panels)) * sizeof(T);
      const std::uint64_t all = static_cast<std::uint64_t>(solved.plan.panel_elements(panels)) * sizeof(T);
      int done = 0;
      for (const std::uint64_t budget : {std::uint64_t{100}, largest / 2, 5 * largest / 2, all / 2, kPlenty}) {
        for (const int threads : {1, 3}) {
          PanelFiles files;
          ASSERT_EQ(files.begin(this->folder_.file("factor").c_str(), budget, 7000), FactorOutcome::kDone);
          options.store = &files;
          options.threads = threads;
          const FactorOutcome outcome = solved.compute(options);
          EXPECT_LE(files.traffic().most_in_memory, budget);
          if (outcome == FactorOutcome::kBudgetTooSmall) {
            EXPECT_LT(budget, 5 * largest / 2);
            continue;
          }
          ASSERT_EQ(outcome, FactorOutcome::kDone) << budget;
          ++done;
          EXPECT_EQ(solved.factor.report().pivots.positive, counts.positive);
          EXPECT_EQ(solved.factor.report().pivots.negative, counts.negative);
          EXPECT_TRUE(are_same_bits(solved.solution(Operation::kPlain, b, 5, threads), expected)) << budget;
          solved.factor.clear();
        }
        EXPECT_EQ(this->folder_.files(), 0);
      }
      EXPECT_GE(done, 6);
    }
  }
}

TYPED_TEST(OutOfCore, OpensAgainWithTheSameBits) {
  using T = TypeParam;
  for (const Kind& kind : kStored) {
    const std::string name = this->folder_.file("factor");
    const System<T> A = system_of<T>(kind);
    const std::vector<T> b = right_sides<T>(A.n, 2);
    std::vector<T> expected;
    {
      Solved<T> solved(A);
      PanelFiles files;
      ASSERT_EQ(files.begin(name.c_str(), kPlenty), FactorOutcome::kDone);
      FactorOptions options = kind.options();
      options.store = &files;
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
      ASSERT_EQ(Archive::complete(files, solved.factor), FactorOutcome::kDone);
      // The set may be used further on by its maker.
      expected = solved.solution(Operation::kPlain, b, 2);
      EXPECT_LE(solved.error(Operation::kPlain, 1), tolerance<T>(A.n));
    }
    for (const std::uint64_t budget : {std::uint64_t{100'000}, kPlenty}) {
      Plan plan;
      PanelFiles files;
      Factor<T> factor;
      ASSERT_EQ(Archive::open(name.c_str(), budget, files, plan, factor), FactorOutcome::kDone);
      EXPECT_TRUE(are_same_bits(solution(plan, factor, b, 2), expected));
      // A copy into one file, from the set and from memory.
      for (const bool from_memory : {false, true}) {
        Factor<T> copy;
        FileReader reader;
        if (from_memory) {
          ASSERT_EQ(reader.begin(this->folder_.file("handle").c_str(), FileKind::kHandle), FactorOutcome::kDone);
          ASSERT_EQ(Archive::get(reader, plan), FactorOutcome::kDone);
          ASSERT_EQ(Archive::get(reader, plan, copy), FactorOutcome::kDone);
          ASSERT_EQ(reader.complete(), FactorOutcome::kDone);
          EXPECT_TRUE(are_same_bits(solution(plan, copy, b, 2), expected));
          reader.close();
        }
        FileWriter writer;
        ASSERT_EQ(writer.begin(this->folder_.file("handle").c_str(), FileKind::kHandle), FactorOutcome::kDone);
        ASSERT_EQ(Archive::put(writer, plan), FactorOutcome::kDone);
        ASSERT_EQ(Archive::put(writer, from_memory ? copy : factor), FactorOutcome::kDone);
        ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
      }
    }
    Plan plan;
    PanelFiles files;
    Factor<std::conditional_t<std::is_same_v<T, float>, double, float>> other;
    EXPECT_EQ(Archive::open(name.c_str(), kPlenty, files, plan, other), FactorOutcome::kWrongFormat);
  }
}

class Disk : public testing::Test {
 protected:
  static FactorOutcome expected() {
    if (!FailingDisk::has_failed()) return FactorOutcome::kDone;
    return FailingDisk::was_opening() ? FactorOutcome::kCannotOpen : FactorOutcome::kFileFailed;
  }

  const System<double> system_ = system_of<double>(kStored[1]);
  Solved<double> solved_{system_};
  const std::vector<double> b_ = right_sides<double>(system_.n, 1);
};

TEST_F(Disk, ThatFailsLeavesNothingAndTheFactorCanBeMadeAgain) {
  const std::uint64_t budget = 30'000;
  FactorOptions options{.factorization = Factorization::kLDLH, .pivoting = Pivoting::kBunchKaufman};
  ASSERT_EQ(solved_.compute(options), FactorOutcome::kDone);
  const std::vector<double> expected_solution = solved_.solution(Operation::kPlain, b_, 1);
  // Larger steps where failures repeat each other.
  for (int k = 1, step = 1;; k += step, step = 1 + k / 20) {
    SCOPED_TRACE("operation " + std::to_string(k));
    const Folder folder;
    PanelFiles files;
    ASSERT_EQ(files.begin(folder.file("factor").c_str(), budget, 20'000), FactorOutcome::kDone);
    options.store = &files;
    {
      const FailingDisk disk(k, k % 2 == 0);
      FactorOutcome outcome = solved_.compute(options);
      if (outcome == FactorOutcome::kDone) outcome = Archive::complete(files, solved_.factor);
      EXPECT_EQ(outcome, expected());
    }
    if (!FailingDisk::has_failed()) break;
    solved_.factor.clear();
    ASSERT_EQ(solved_.compute(options), FactorOutcome::kDone);
    EXPECT_TRUE(are_same_bits(solved_.solution(Operation::kPlain, b_, 1), expected_solution));
    solved_.factor.clear();
    files.close();
    EXPECT_EQ(folder.files(), 0);
  }
}

TEST_F(Disk, ThatFailsInASolveIsTold) {
  const Folder folder;
  {
    PanelFiles files;
    ASSERT_EQ(files.begin(folder.file("factor").c_str(), kPlenty), FactorOutcome::kDone);
    ASSERT_EQ(solved_.compute({.factorization = Factorization::kLDLH, .store = &files}), FactorOutcome::kDone);
    ASSERT_EQ(Archive::complete(files, solved_.factor), FactorOutcome::kDone);
    solved_.factor.clear();
  }
  for (int k = 1, step = 1;; k += step, step = 1 + k / 20) {
    Plan plan;
    PanelFiles files;
    Factor<double> factor;
    const FailingDisk disk(k, false);
    FactorOutcome outcome = Archive::open(folder.file("factor").c_str(), 30'000, files, plan, factor);
    std::vector<double> x = b_;
    if (outcome == FactorOutcome::kDone) {
      outcome = solve(factor, Operation::kPlain, Stage::kAll, 1, x.data(), system_.n);
    }
    EXPECT_EQ(outcome, expected());
    if (!FailingDisk::has_failed()) break;
    // An error of reading does not last.
    if (factor) {
      EXPECT_EQ(solve(factor, Operation::kPlain, Stage::kAll, 1, x.data(), system_.n), FactorOutcome::kDone);
    }
  }
}

// Any number of the file may be another one: its checksum is right, as whoever forges it would see to.
TEST(Archives, WithForgedNumbersAreRefusedOrSafe) {
  const System<double> A = dominant_system<double>(grid(5, 4, 1, false), Symmetry::kHermitian, false, 1.1, 6);
  Solved<double> solved(A);
  ASSERT_EQ(solved.compute({.factorization = Factorization::kLDLH, .pivoting = Pivoting::kBunchKaufman}),
            FactorOutcome::kDone);
  const Folder folder;
  const std::string name = folder.file("handle");
  {
    FileWriter writer;
    ASSERT_EQ(writer.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
    ASSERT_EQ(Archive::put(writer, solved.plan), FactorOutcome::kDone);
    ASSERT_EQ(Archive::put(writer, solved.factor), FactorOutcome::kDone);
    ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
  }
  const std::string body = contents(name).substr(32);
  int refused = 0;
  for (std::size_t place = 0; place + 4 <= body.size(); place += place < 1200 ? 4 : 100) {
    for (const std::int32_t value : {-1, 0, 1, 2, 19, 20, 21, 1000, std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min()}) {
      std::string forged = body;
      std::memcpy(forged.data() + place, &value, sizeof value);
      FileWriter writer;
      ASSERT_EQ(writer.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
      writer.put(std::span<const char>(forged));
      ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
      FileReader reader;
      Plan plan;
      Factor<double> factor;
      ASSERT_EQ(reader.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
      if (Archive::get(reader, plan) == FactorOutcome::kDone) static_cast<void>(Archive::get(reader, plan, factor));
      if (reader.complete() == FactorOutcome::kDone) {
        std::vector<double> x(static_cast<std::size_t>(plan.size()), 1.0);
        EXPECT_EQ(solve(factor, Operation::kPlain, Stage::kAll, 1, x.data(), plan.size()), FactorOutcome::kDone);
      } else {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace quorin::sparse::test
