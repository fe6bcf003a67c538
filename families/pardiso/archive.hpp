// One list of what an object holds, for writing it to a file and for reading it from there.
#pragma once

#include <cstdint>
#include <span>

#include "base/workspace.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

class WritingArchive {
 public:
  static constexpr bool kIsReading = false;
  explicit WritingArchive(sparse::FileWriter& file) : file_(file) {}

  void number(bool& value) { file_.put(static_cast<std::int32_t>(value)); }
  template <class T>
  void number(T& value) {
    file_.put(value);
  }
  template <class Enum>
  void choice(Enum& value, Enum) {
    file_.put(static_cast<std::int32_t>(value));
  }
  template <class T>
  void array(base::Workspace<T>& values) {
    file_.put(std::uint64_t{values.size()});
    file_.put(std::span<const T>(values.data(), values.size()));
  }
  sparse::FileWriter& file() { return file_; }

 private:
  sparse::FileWriter& file_;
};

class ReadingArchive {
 public:
  static constexpr bool kIsReading = true;
  explicit ReadingArchive(sparse::FileReader& file) : file_(file) {}

  void number(bool& value) { value = file_.get<std::int32_t>() != 0; }
  template <class T>
  void number(T& value) {
    value = file_.get<T>();
  }
  // One of an enumeration of 0, 1, ..., last.
  template <class Enum>
  void choice(Enum& value, Enum last) {
    const auto number = file_.get<std::int32_t>();
    if (number < 0 || number > static_cast<std::int32_t>(last)) {
      file_.reject();
    } else {
      value = static_cast<Enum>(number);
    }
  }
  template <class T>
  void array(base::Workspace<T>& values) {
    const auto count = file_.get<std::uint64_t>();
    if (count == 0) {
      values = {};
    } else {
      static_cast<void>(file_.get(values, count));
    }
  }
  sparse::FileReader& file() { return file_; }

 private:
  sparse::FileReader& file_;
};

}  // namespace quorin::pardiso
