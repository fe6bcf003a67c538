// Disks that are full or break, and folders that go: whatever operation on a file fails, the call says so with the
// published code, the handle can be used or freed, and no file is left that looks whole.
#include "families/pardiso/pardiso.hpp"
#include "tests/sparse/files.hpp"
#include "tests/support/test.hpp"

namespace quorin::pardiso {
namespace {

using sparse::test::FailingDisk;
using sparse::test::Folder;

constexpr int kDone = 0, kCannotOpen = -10, kFileFailed = -11;

void set_path(const std::string& path) {
  const std::string name = "MKL_PARDISO_OOC_PATH";
#if defined(_WIN32)
  _putenv((name + "=" + path).c_str());
#else
  setenv(name.c_str(), path.c_str(), 1);
#endif
}

// A tridiagonal system, whose factors are in files.
class Host {
 public:
  explicit Host(bool is_out_of_core) : b_(kSize, 1.0), x(kSize, 0.0) {
    for (std::int32_t i = 1; i <= kSize; ++i) {
      ia_.push_back(static_cast<std::int32_t>(ja_.size()) + 1);
      for (const std::int32_t j : {i - 1, i, i + 1}) {
        if (j < 1 || j > kSize) continue;
        ja_.push_back(j);
        a_.push_back(i == j ? 4.0 : -1.0 - 0.1 * (i % 3));
      }
    }
    ia_.push_back(static_cast<std::int32_t>(ja_.size()) + 1);
    initialize(pt.data(), &mtype_, iparm_.data());
    if (is_out_of_core) iparm_[59] = 2;
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { EXPECT_EQ(call(-1), kDone); }

  int call(std::int32_t phase) {
    const std::int32_t one = 1, silent = 0;
    std::int32_t error = 7;
    run(pt.data(), &one, &one, &mtype_, &phase, &kSize, a_.data(), ia_.data(), ja_.data(), nullptr, &one, iparm_.data(),
        &silent, b_.data(), x.data(), &error);
    return error;
  }
  // Solves as it should.
  void expect_usable(const std::vector<double>& expected) {
    ASSERT_EQ(call(33), kDone);
    EXPECT_EQ(x, expected);
  }

  std::array<void*, 64> pt{};

 private:
  static constexpr std::int32_t kSize = 4000;
  const std::int32_t mtype_ = 11;
  std::array<std::int32_t, 64> iparm_{};
  std::vector<double> a_;
  std::vector<std::int32_t> ia_, ja_;
  std::vector<double> b_;

 public:
  std::vector<double> x;
};

// Lets the k-th operation of `step` fail, for every k, alone and with all that follow; check(whether that is
// an error). Where `may_open_another`, a single file that cannot be opened need not be one: another name may do.
template <class Step, class Check>
void on_failing_disks(const Step& step, const Check& check, bool may_open_another = false) {
  for (const bool broken : {false, true}) {
    bool failed = true;
    for (int k = 1; failed; ++k) {
      SCOPED_TRACE("operation " + std::to_string(k) + (broken ? " and all that follow" : ""));
      int error = 0;
      {
        const FailingDisk disk(k, broken);
        error = step();
        failed = FailingDisk::has_failed();
      }
      const bool is_due = failed && (error != kDone || broken || !may_open_another || !FailingDisk::was_opening());
      if (is_due) {
        EXPECT_EQ(error, FailingDisk::was_opening() ? kCannotOpen : kFileFailed);
      } else {
        EXPECT_EQ(error, kDone);
      }
      check(is_due);
      ASSERT_LT(k, 1000);
    }
  }
}

TEST(FailingDisk, FactorsInFiles) {
  const Folder folder;
  set_path(folder.file("factor"));
  Host expected(false);
  ASSERT_EQ(expected.call(13), kDone);
  {
    Host host(true);
    ASSERT_EQ(host.call(11), kDone);
    on_failing_disks([&] { return host.call(22); },
                     [&](bool failed) {
                       if (failed) {
                         EXPECT_EQ(host.call(33), -1);
                         EXPECT_EQ(folder.files(), 0);
                         ASSERT_EQ(host.call(22), kDone);
                       }
                       host.expect_usable(expected.x);
                       ASSERT_EQ(host.call(0), kDone);
                       EXPECT_EQ(folder.files(), 0);
                     },
                     true);
    ASSERT_EQ(host.call(22), kDone);
    on_failing_disks([&] { return host.call(33); }, [&](bool) { host.expect_usable(expected.x); });
  }
  EXPECT_EQ(folder.files(), 0);
}

TEST(FailingDisk, HandlesInFiles) {
  const Folder folder;
  const std::string directory = folder.file("");
  Host host(false);
  ASSERT_EQ(host.call(13), kDone);
  const std::vector<double> expected = host.x;
  std::int32_t error = 7;
  const auto restores = [&] {
    Host other(false);
    restore(other.pt.data(), directory.c_str(), &error);
    ASSERT_EQ(error, kDone);
    other.expect_usable(expected);
  };
  const auto store_it = [&] {
    store(host.pt.data(), directory.c_str(), &error);
    return error;
  };
  // With nothing there, and then over an older file, which stays.
  on_failing_disks(store_it, [&](bool failed) {
    EXPECT_EQ(folder.files(), failed ? 0 : 1);
    host.expect_usable(expected);
    if (failed) return;
    restores();
    remove(directory.c_str(), &error);
    EXPECT_EQ(error, kDone);
  });
  ASSERT_EQ(store_it(), kDone);
  on_failing_disks(store_it, [&](bool) {
    EXPECT_EQ(folder.files(), 1);
    restores();
  });
  std::array<void*, 64> pt{};
  on_failing_disks(
      [&] {
        restore(pt.data(), directory.c_str(), &error);
        return error;
      },
      [&](bool failed) {
        EXPECT_EQ(pt[0] == nullptr, failed);
        Host other(false);
        other.pt = std::exchange(pt, {});
        if (!failed) other.expect_usable(expected);
      });
}

}  // namespace
}  // namespace quorin::pardiso
