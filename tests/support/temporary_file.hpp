// A file that vanishes with the test.
#pragma once

#include <filesystem>
#include <fstream>

#include "tests/support/standard.hpp"

namespace quorin::test {

class TemporaryFile {
 public:
  TemporaryFile() {
    static int count = 0;
    static const unsigned run = std::random_device()();
    name_ = (std::filesystem::temp_directory_path() / ("quorin-" + std::to_string(run) + "-" + std::to_string(++count)))
                .string();
  }
  explicit TemporaryFile(const std::string& content) : TemporaryFile() { write(content); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
  }

  const char* name() const { return name_.c_str(); }
  void write(const std::string& content) const {
    std::ofstream(name_, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
  }
  std::string read() const {
    std::ifstream file(name_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string name_;
};

}  // namespace quorin::test
