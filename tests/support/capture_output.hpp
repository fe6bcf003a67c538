// Catches what the process writes to standard output at the level of its file descriptor, so that text which the
// library writes by itself is caught too.
#pragma once

#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#if defined(_WIN32)
#include <io.h>
#endif

#include "tests/support/standard.hpp"
#include "tests/support/temporary_file.hpp"

namespace quorin::test {

// Redirects standard output to a temporary file while it lives, or until stop().
class CapturedOutput {
 public:
  CapturedOutput() {
    std::fflush(stdout);
    const int file = open(file_.name(), O_CREAT | O_TRUNC | O_WRONLY, S_IRUSR | S_IWUSR);
    standard_output_ = dup(kStandardOutput);
    if (file < 0 || standard_output_ < 0 || dup2(file, kStandardOutput) < 0) {
      throw std::runtime_error("cannot redirect standard output");
    }
    close(file);
  }
  ~CapturedOutput() {
    if (standard_output_ >= 0) stop();
  }
  CapturedOutput(const CapturedOutput&) = delete;
  CapturedOutput& operator=(const CapturedOutput&) = delete;

  // What was caught since the last time.
  std::string take() {
    std::fflush(stdout);
    if (lseek(kStandardOutput, 0, SEEK_CUR) == 0) return "";
    std::ifstream stream(file_.name());
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (ftruncate(kStandardOutput, 0) != 0) throw std::runtime_error("cannot empty the caught output");
    lseek(kStandardOutput, 0, SEEK_SET);
    return text;
  }
  // Puts standard output back and returns what was caught.
  std::string stop() {
    std::fflush(stdout);
    dup2(standard_output_, kStandardOutput);
    close(standard_output_);
    standard_output_ = -1;
    std::ifstream text(file_.name());
    return {std::istreambuf_iterator<char>(text), {}};
  }

 private:
  static constexpr int kStandardOutput = 1;
  TemporaryFile file_;
  int standard_output_ = -1;
};

template <class Action>
std::string captured(const Action& action) {
  CapturedOutput output;
  action();
  return output.stop();
}

}  // namespace quorin::test
