// Disks that are full or break while factors go to files and come from there: whatever operation fails, the driver says
// so, the factor object can be used or released, and no set of files is left that looks whole and is not.
#include <filesystem>

#include "families/taucs/solvers/linsolve.hpp"
#include "families/taucs/solvers/out_of_core.hpp"
#include "tests/sparse/files.hpp"
#include "tests/support/test.hpp"

namespace quorin::taucs {
namespace {

using platform::FileOperation;
using sparse::test::DiskCodes;
using sparse::test::Folder;
using sparse::test::on_failing_disks;

constexpr int kDone = 0, kFailed = -1;
constexpr DiskCodes kCodes = {kFailed, kFailed};
// Of factorizations: for the sake of a message they look at the set that there is, and they keep others from writing
// one that is whole.
constexpr DiskCodes kLenientCodes = {kFailed, kFailed, [](FileOperation operation) {
                                       return operation == FileOperation::kOpen || operation == FileOperation::kRead;
                                     }};

// A grid, whose factors take twice the memory that they are allowed. `sign` is that of half of the diagonal.
class Host {
 public:
  explicit Host(double sign) : is_indefinite_(sign < 0), b_(kSize), x(kSize) {
    for (int j = 0; j < kSize; ++j) {
      colptr_.push_back(static_cast<int>(rowind_.size()));
      for (const int i : {j, j + 1, j + kSide}) {
        if (i >= kSize || (i == j + 1 && i % kSide == 0)) continue;
        rowind_.push_back(i);
        values_.push_back(i == j ? (j % 2 == 0 ? 5.0 : sign * 5.0) : -1.0);
      }
      b_[static_cast<std::size_t>(j)] = std::sin(j);
    }
    colptr_.push_back(static_cast<int>(rowind_.size()));
    A_.n = A_.m = kSize;
    A_.flags = taucs::kDouble | kSymmetric | kLower;
    A_.colptr = colptr_.data();
    A_.rowind = rowind_.data();
    A_.values.d = values_.data();
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { release(); }

  int factor(int nrhs = 1) {
    return call(nrhs, {"taucs.factor.LLT=true", is_indefinite_ ? "taucs.factor.indefinite=true" : "taucs.factor=true"});
  }
  int solve() { return call(1, {"taucs.factor=false"}); }
  int solve_by_its_own_routine() { return ooc_solve_llt(object()->factor, x.data(), b_.data()); }
  void release() {
    EXPECT_EQ(linsolve(nullptr, &F, 0, nullptr, nullptr, nullptr, nullptr), kDone);
    EXPECT_EQ(F, nullptr);
  }
  FactorObject* object() const { return static_cast<FactorObject*>(F); }

 private:
  static constexpr int kSide = 9, kSize = kSide * kSide;

  int call(int nrhs, std::vector<std::string> options) {
    options.insert(options.end(), {"taucs.ooc=true", "taucs.ooc.memory=6000", "taucs.ooc.basename=" + name});
    std::vector<char*> strings(options.size() + 1);
    std::transform(options.begin(), options.end(), strings.begin(), [](std::string& option) { return option.data(); });
    return linsolve(&A_, &F, nrhs, x.data(), b_.data(), strings.data(), nullptr);
  }

  const bool is_indefinite_;
  std::vector<int> colptr_, rowind_;
  std::vector<double> values_, b_;
  CcsMatrix A_;

 public:
  std::string name;
  void* F = nullptr;
  std::vector<double> x;
};

template <int kSign>
class FailingDisk : public testing::Test {
 protected:
  FailingDisk() {
    host_.name = folder_.file("factor");
    EXPECT_EQ(host_.factor(), kDone);
    expected_ = host_.x;
  }
  // In another object, as another process would.
  int open() const {
    Host other(kSign);
    other.name = host_.name;
    const int status = other.solve();
    if (status == kDone) {
      EXPECT_EQ(other.x, expected_);
    }
    return status;
  }
  void remove_files() const {
    for (const auto& file : std::filesystem::directory_iterator(folder_.path())) std::filesystem::remove(file);
  }
  void expect_usable() {
    ASSERT_EQ(host_.solve(), kDone);
    EXPECT_EQ(host_.x, expected_);
  }

  const Folder folder_;
  Host host_{kSign};
  std::vector<double> expected_;
};
using FailingDiskUnderLlt = FailingDisk<1>;
using FailingDiskUnderLdlt = FailingDisk<-1>;

// With no set of the name before, and with one, which is lost as soon as the name is taken and whole until then.
TEST_F(FailingDiskUnderLlt, LeavesNoHalfSet) {
  for (const bool replaces : {false, true}) {
    SCOPED_TRACE(replaces);
    int lost = 0;
    on_failing_disks(
        kLenientCodes,
        [&] {
          host_.release();
          if (!replaces) remove_files();
          return host_.factor();
        },
        [&](bool failed) {
          EXPECT_EQ(host_.F == nullptr, failed);
          if (open() == kDone) return;
          EXPECT_TRUE(failed);
          EXPECT_EQ(folder_.files(), 0);
          ++lost;
          if (replaces) {
            EXPECT_EQ(host_.factor(), kDone);
          }
        });
    EXPECT_GT(lost, 10);
  }
}

// The object that held the files has lost them; it is there to be released, or to be factored anew.
TEST_F(FailingDiskUnderLdlt, LeavesAnObjectToFactorAnew) {
  on_failing_disks(
      kLenientCodes, [&] { return host_.factor(); },
      [&](bool failed) {
        if (failed) {
          ASSERT_NE(host_.F, nullptr);
          EXPECT_NE(host_.solve(), kDone);
          EXPECT_NE(host_.solve_by_its_own_routine(), kDone);
          ASSERT_EQ(host_.factor(), kDone);
        }
        expect_usable();
        EXPECT_EQ(open(), kDone);
      });
}

TEST_F(FailingDiskUnderLdlt, LeavesFactorsAsTheyWere) {
  on_failing_disks(
      kCodes, [&] { return host_.solve(); }, [&](bool) { expect_usable(); });
  on_failing_disks(
      kCodes, [&] { return host_.solve_by_its_own_routine(); }, [&](bool) { expect_usable(); });
  {
    // Whoever releases a factor needs no disk.
    const sparse::test::FailingDisk disk(1, true);
    host_.release();
  }
  EXPECT_EQ(open(), kDone);
  on_failing_disks(
      kCodes, [&] { return host_.solve(); },
      [&](bool failed) {
        EXPECT_EQ(host_.F == nullptr, failed);
        EXPECT_EQ(open(), kDone);
        host_.release();
      });
}

}  // namespace
}  // namespace quorin::taucs
