// For tests of what is kept in files: a folder that goes with the test, and disks that fail on demand.
#pragma once

#include <fstream>

#include "platform/block_file.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/test.hpp"

namespace quorin::sparse::test {

using Folder = quorin::test::TemporaryFolder;

inline std::string contents(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void write_contents(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

// What an action asks of the disk, in its order.
template <class Action>
std::vector<platform::FileOperation> operations_of(const Action& action) {
  static std::vector<platform::FileOperation> asked;
  asked.clear();
  platform::refuse_file_operation = [](platform::FileOperation operation) { return asked.push_back(operation), false; };
  action();
  platform::refuse_file_operation = nullptr;
  return asked;
}

// While it lives, the k-th operation on a file fails, and all that follow if the disk is `broken` from there on.
class FailingDisk {
 public:
  FailingDisk(int k, bool broken) {
    state = {k, broken, 0, {}};
    platform::refuse_file_operation = [](platform::FileOperation operation) {
      ++state.asked;
      const bool fails = state.broken ? state.asked >= state.k : state.asked == state.k;
      if (fails && state.asked == state.k) state.refused = operation;
      return fails;
    };
  }
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;
  ~FailingDisk() { platform::refuse_file_operation = nullptr; }

  static bool has_failed() { return state.asked >= state.k; }
  // What failed first.
  static platform::FileOperation refused() { return state.refused; }
  static bool was_opening() {
    return state.refused == platform::FileOperation::kOpen || state.refused == platform::FileOperation::kCreate;
  }

 private:
  struct State {
    int k;
    bool broken;
    int asked;
    platform::FileOperation refused;
  };
  static inline State state{};
};

// What calls return, and whether they may get over a failure that begins with an operation of that kind.
struct DiskCodes {
  int cannot_open, failed;
  bool (*may_recover)(platform::FileOperation) = [](platform::FileOperation) { return false; };
};

// Lets the k-th operation on a file fail while step() runs, for every k, alone and with all that follow. The step
// returns the code; check(whether it failed) comes when the disk works again.
template <class Step, class Check>
void on_failing_disks(const DiskCodes& codes, const Step& step, const Check& check) {
  for (const bool broken : {false, true}) {
    bool failed = true;
    for (int k = 1; failed; ++k) {
      SCOPED_TRACE("operation " + std::to_string(k) + (broken ? " and all that follow" : ""));
      int code = 0;
      {
        const FailingDisk disk(k, broken);
        code = step();
        failed = FailingDisk::has_failed();
      }
      const bool is_due = failed && (code != 0 || !codes.may_recover(FailingDisk::refused()));
      EXPECT_EQ(code, !is_due ? 0 : FailingDisk::was_opening() ? codes.cannot_open : codes.failed);
      check(is_due);
      ASSERT_LT(k, 1000);
    }
  }
}

}  // namespace quorin::sparse::test
