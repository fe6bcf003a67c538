// How long a file of entries takes to read, against a loop of fscanf that keeps the same numbers.
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

// Random entries, a line each; `format` writes the value. The file lives as long as the calls that read it.
class EntryFile {
 public:
  EntryFile(const char* format, int count) {
    name_ =
        (std::filesystem::temp_directory_path() / ("quorin-bench-" + std::to_string(std::random_device()()))).string();
    std::FILE* const file = std::fopen(name_.c_str(), "w");
    if (file == nullptr) throw std::runtime_error("cannot write " + name_);
    std::mt19937 random(1);
    const int size = count / 10;
    for (int k = 0; k < count; ++k) {
      const auto index = [&] { return static_cast<int>(random() % static_cast<unsigned>(size)) + 1; };
      const int row = index(), column = index();
      std::fprintf(file, "%d %d ", row, column);
      std::fprintf(file, format, static_cast<double>(random()) * 1e-6 - 2000);
      std::fputc('\n', file);
    }
    std::fclose(file);
  }
  EntryFile(const EntryFile&) = delete;
  EntryFile& operator=(const EntryFile&) = delete;
  ~EntryFile() {
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
  }
  const char* name() const { return name_.c_str(); }

 private:
  std::string name_;
};

void scan(const char* name, int count) {
  std::FILE* const file = std::fopen(name, "r");
  std::vector<int> rows, columns;
  std::vector<double> values;
  double row = 0, column = 0, value = 0;
  while (file != nullptr && std::fscanf(file, "%lg %lg %lg", &row, &column, &value) == 3) {
    rows.push_back(static_cast<int>(row));
    columns.push_back(static_cast<int>(column));
    values.push_back(value);
  }
  if (file != nullptr) std::fclose(file);
  if (values.size() != static_cast<std::size_t>(count)) throw std::runtime_error("fscanf does not read the file");
  benchmark::DoNotOptimize(values.data());
}

void add_rows(Suite& suite, const char* operation, const char* format, int count) {
  // A guess at the work, to plan how often to measure.
  const Row row{"taucs_files", operation, count, 1, 10000.0 * count, Unit::kTime};
  suite.measure(row, "quorin", [&taucs = suite.libraries().taucs, format, count] {
    return [&taucs, count, file = std::make_shared<EntryFile>(format, count)] {
      taucs_ccs_matrix* const A = taucs.ccs_read_ijv(file->name(), TAUCS_DOUBLE);
      if (A == nullptr || A->colptr[A->m] != count) throw std::runtime_error("taucs_ccs_read_ijv fails");
      taucs.ccs_free(A);
    };
  });
  suite.measure(row, "fscanf", [format, count] {
    return [count, file = std::make_shared<EntryFile>(format, count)] { scan(file->name(), count); };
  });
}

}  // namespace

void add_taucs_file_rows(Suite& suite) {
  for (const int count : suite.sizes({10'000, 1'000'000}, {100'000})) {
    add_rows(suite, "taucs_ccs_read_ijv, 6 digits", "%g", count);
    add_rows(suite, "taucs_ccs_read_ijv, 18 digits", "%.17e", count);
  }
}

}  // namespace quorin::bench
