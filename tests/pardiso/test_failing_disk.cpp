// Disks that are full or break, and folders that go: whatever operation on a file fails, the call says so with the
// published code, the handle can be used or freed, and no file is left that looks whole.
#include "families/pardiso/pardiso.hpp"
#include "tests/sparse/files.hpp"
#include "tests/support/environment.hpp"
#include "tests/support/test.hpp"

namespace quorin::pardiso {
namespace {

using sparse::test::DiskCodes;
using sparse::test::Folder;
using sparse::test::on_failing_disks;

constexpr int kDone = 0;
constexpr DiskCodes kCodes = {-10, -11};

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

TEST(FailingDisk, FactorsInFiles) {
  const Folder folder;
  test::set_environment("MKL_PARDISO_OOC_PATH", folder.file("factor").c_str());
  // If a file cannot be opened, another name may do.
  const DiskCodes codes = {kCodes.cannot_open, kCodes.failed, [](platform::FileOperation operation) {
                             return operation == platform::FileOperation::kCreate ||
                                    operation == platform::FileOperation::kOpen;
                           }};
  Host expected(false);
  ASSERT_EQ(expected.call(13), kDone);
  {
    Host host(true);
    ASSERT_EQ(host.call(11), kDone);
    on_failing_disks(
        codes, [&] { return host.call(22); },
        [&](bool failed) {
          if (failed) {
            EXPECT_EQ(host.call(33), -1);
            EXPECT_EQ(folder.files(), 0);
            ASSERT_EQ(host.call(22), kDone);
          }
          host.expect_usable(expected.x);
          ASSERT_EQ(host.call(0), kDone);
          EXPECT_EQ(folder.files(), 0);
        });
    ASSERT_EQ(host.call(22), kDone);
    on_failing_disks(
        kCodes, [&] { return host.call(33); }, [&](bool) { host.expect_usable(expected.x); });
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
  on_failing_disks(kCodes, store_it, [&](bool failed) {
    EXPECT_EQ(folder.files(), failed ? 0 : 1);
    host.expect_usable(expected);
    if (failed) return;
    restores();
    remove(directory.c_str(), &error);
    EXPECT_EQ(error, kDone);
  });
  ASSERT_EQ(store_it(), kDone);
  on_failing_disks(kCodes, store_it, [&](bool) {
    EXPECT_EQ(folder.files(), 1);
    restores();
  });
  std::array<void*, 64> pt{};
  on_failing_disks(
      kCodes,
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
