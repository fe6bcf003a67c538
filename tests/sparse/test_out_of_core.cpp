// Factors in files: the bits of those in memory, whatever the budget, the method, the threads and the process.
#include "sparse/numeric/archive.hpp"
#include "tests/sparse/files.hpp"
#include "tests/sparse/systems.hpp"
#include "tests/support/test.hpp"

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

// What callers learn of a factor, and of its plan.
template <Scalar T>
std::vector<std::int64_t> what_is_told(const Plan& plan, const Factor<T>& factor) {
  const FactorReport& report = factor.report();
  const PivotCounts& pivots = report.pivots;
  return {pivots.perturbed,
          pivots.positive,
          pivots.negative,
          pivots.zero,
          report.bytes,
          report.peak_bytes,
          static_cast<std::int64_t>(factor.factorization()),
          plan.size(),
          plan.eliminated(),
          plan.supernodes(),
          plan.depth(),
          plan.entries()};
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

TYPED_TEST(OutOfCore, HoldsLessThanAWideSupernodeIfThePlanCutsIt) {
  using T = TypeParam;
  for (const Kind& kind : kStored) {
    const System<T> A = dominant_system<T>(random_matrix(150, 3000, 3), kind.symmetry, kind.is_definite(), 1.1, 6);
    const PanelKind panels = panel_kind(kind.factorization);
    Solved<T> whole(A);
    const std::uint64_t budget = static_cast<std::uint64_t>(whole.plan.largest_panel(panels)) * sizeof(T) / 2;
    Solved<T> cut(A, {.most_elements = most_elements_within(budget, sizeof(T)), .panels = panels});
    for (const Method method : {Method::kLeftLooking, Method::kMultifrontal}) {
      FactorOptions options = kind.options(method);
      for (Solved<T>* const solved : {&whole, &cut}) {
        PanelFiles files;
        ASSERT_EQ(files.begin(this->folder_.file("factor").c_str(), budget), FactorOutcome::kDone);
        options.store = &files;
        ASSERT_EQ(solved->compute(options), solved == &cut ? FactorOutcome::kDone : FactorOutcome::kBudgetTooSmall);
        EXPECT_LE(files.traffic().most_in_memory, budget);
        if (solved == &cut) {
          EXPECT_LE(solved->error(Operation::kPlain, 5), tolerance<T>(A.n));
        }
        solved->factor.clear();
      }
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
    std::vector<std::int64_t> told;
    {
      Solved<T> solved(A, {.most_elements = kind.is_definite() ? 0 : 400});
      PanelFiles files;
      ASSERT_EQ(files.begin(name.c_str(), kPlenty), FactorOutcome::kDone);
      FactorOptions options = kind.options();
      options.store = &files;
      ASSERT_EQ(solved.compute(options), FactorOutcome::kDone);
      ASSERT_EQ(Archive::complete(files, solved.factor), FactorOutcome::kDone);
      // The set may be used further on by its maker.
      expected = solved.solution(Operation::kPlain, b, 2);
      EXPECT_LE(solved.error(Operation::kPlain, 1), tolerance<T>(A.n));
      told = what_is_told(solved.plan, solved.factor);
    }
    for (const std::uint64_t budget : {std::uint64_t{100'000}, kPlenty}) {
      Plan plan;
      PanelFiles files;
      Factor<T> factor;
      ASSERT_EQ(Archive::open(name.c_str(), budget, files, plan, factor), FactorOutcome::kDone);
      EXPECT_TRUE(are_same_bits(solution(plan, factor, Operation::kPlain, b, 2), expected));
      EXPECT_EQ(what_is_told(plan, factor), told);
      // A copy into one file, from the set and from memory.
      for (const bool from_memory : {false, true}) {
        Factor<T> copy;
        FileReader reader;
        if (from_memory) {
          ASSERT_EQ(reader.begin(this->folder_.file("handle").c_str(), FileKind::kHandle), FactorOutcome::kDone);
          ASSERT_EQ(Archive::get(reader, plan), FactorOutcome::kDone);
          ASSERT_EQ(Archive::get(reader, plan, copy), FactorOutcome::kDone);
          ASSERT_EQ(reader.complete(), FactorOutcome::kDone);
          EXPECT_TRUE(are_same_bits(solution(plan, copy, Operation::kPlain, b, 2), expected));
          EXPECT_EQ(what_is_told(plan, copy), told);
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

// Any number of the file may be another one: its checksum is right, as whoever forges it would see to.
TEST(Archives, WithForgedNumbersAreRefusedOrSafe) {
  const System<double> A = dominant_system<double>(grid(5, 4, 1, false), Symmetry::kHermitian, false, 1.1, 6);
  Solved<double> solved(A);
  ASSERT_EQ(solved.compute({.factorization = Factorization::kLDLH, .pivoting = Pivoting::kBunchKaufman}),
            FactorOutcome::kDone);
  const Folder folder;
  const std::string name = folder.file("handle");
  std::size_t plan_bytes = 0;
  {
    FileWriter writer;
    ASSERT_EQ(writer.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
    ASSERT_EQ(Archive::put(writer, solved.plan), FactorOutcome::kDone);
    ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
    plan_bytes = contents(name).size() - 32;
    ASSERT_EQ(writer.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
    ASSERT_EQ(Archive::put(writer, solved.plan), FactorOutcome::kDone);
    ASSERT_EQ(Archive::put(writer, solved.factor), FactorOutcome::kDone);
    ASSERT_EQ(writer.complete(), FactorOutcome::kDone);
  }
  const std::string body = contents(name).substr(32);
  const auto is_refused = [&](std::size_t place, std::int32_t value) {
    std::string forged = body;
    std::memcpy(forged.data() + place, &value, sizeof value);
    FileWriter writer;
    EXPECT_EQ(writer.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
    writer.put(std::span<const char>(forged));
    EXPECT_EQ(writer.complete(), FactorOutcome::kDone);
    FileReader reader;
    Plan plan;
    Factor<double> factor;
    EXPECT_EQ(reader.begin(name.c_str(), FileKind::kHandle), FactorOutcome::kDone);
    if (Archive::get(reader, plan) == FactorOutcome::kDone) static_cast<void>(Archive::get(reader, plan, factor));
    if (reader.complete() != FactorOutcome::kDone) return true;
    std::vector<double> x(static_cast<std::size_t>(plan.size()), 1.0);
    EXPECT_EQ(solve(factor, Operation::kPlain, Stage::kAll, 1, x.data(), plan.size()), FactorOutcome::kDone);
    return false;
  };
  // Behind the plan: the letter of the scalars, the factorization, the number of orders.
  for (const std::int32_t letter : {int{'S'}, int{'C'}, int{'Z'}, 0}) EXPECT_TRUE(is_refused(plan_bytes, letter));
  for (const std::int32_t number : {-1, 4, 5, 1000}) {
    EXPECT_TRUE(is_refused(plan_bytes + 4, number)) << number;
    EXPECT_TRUE(is_refused(plan_bytes + 8, number)) << number;
  }
  int refused = 0;
  for (std::size_t place = 0; place + 4 <= body.size(); place += place < 1200 ? 4 : 100) {
    for (const std::int32_t value :
         {-1, 0, 20, 21, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
      refused += is_refused(place, value) ? 1 : 0;
    }
  }
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace quorin::sparse::test
