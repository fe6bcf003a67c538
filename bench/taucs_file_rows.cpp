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

// The file lives as long as the calls that read it.
class TextFile {
 public:
  template <class Write>
  explicit TextFile(Write write) {
    name_ =
        (std::filesystem::temp_directory_path() / ("quorin-bench-" + std::to_string(std::random_device()()))).string();
    std::FILE* const file = std::fopen(name_.c_str(), "w");
    if (file == nullptr) throw std::runtime_error("cannot write " + name_);
    write(file);
    std::fclose(file);
  }
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  ~TextFile() {
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
  }
  const char* name() const { return name_.c_str(); }

 private:
  std::string name_;
};

double random_value(std::mt19937& random) { return static_cast<double>(random()) * 1e-6 - 2000; }

// An entry a line: row, column, value.
void write_entries(std::FILE* file, const char* format, int count) {
  std::mt19937 random(1);
  const auto index = [&, size = static_cast<unsigned>(count / 10)] { return static_cast<int>(random() % size) + 1; };
  for (int k = 0; k < count; ++k) {
    const int row = index(), column = index();
    std::fprintf(file, "%d %d ", row, column);
    std::fprintf(file, format, random_value(random));
    std::fputc('\n', file);
  }
}

void scan_entries(std::FILE* file, int count) {
  std::vector<int> rows, columns;
  std::vector<double> values;
  double row = 0, column = 0, value = 0;
  while (std::fscanf(file, "%lg %lg %lg", &row, &column, &value) == 3) {
    rows.push_back(static_cast<int>(row));
    columns.push_back(static_cast<int>(column));
    values.push_back(value);
  }
  if (values.size() != static_cast<std::size_t>(count)) throw std::runtime_error("fscanf does not read the file");
  benchmark::DoNotOptimize(values.data());
}

// The arrays of a matrix with ten entries in each column, a number a line.
void write_columns(std::FILE* file, const char* format, int count) {
  std::mt19937 random(1);
  const int size = count / 10;
  std::fprintf(file, "%d\n", size);
  for (int j = 0; j <= size; ++j) std::fprintf(file, "%d\n", 10 * j);
  for (int k = 0; k < count; ++k) std::fprintf(file, "%d\n", static_cast<int>(random() % static_cast<unsigned>(size)));
  for (int k = 0; k < count; ++k) {
    std::fprintf(file, format, random_value(random));
    std::fputc('\n', file);
  }
}

void scan_columns(std::FILE* file, int count) {
  int size = 0;
  if (std::fscanf(file, "%d", &size) != 1) size = 0;
  std::vector<int> integers(static_cast<std::size_t>(size) + 1 + static_cast<std::size_t>(count));
  std::vector<double> values(static_cast<std::size_t>(count));
  bool is_there = true;
  for (int& integer : integers) is_there = is_there && std::fscanf(file, "%d", &integer) == 1;
  for (double& value : values) is_there = is_there && std::fscanf(file, "%lg", &value) == 1;
  if (!is_there) throw std::runtime_error("fscanf does not read the file");
  benchmark::DoNotOptimize(values.data());
}

struct Format {
  const char* name;
  taucs_ccs_matrix* (*read)(const char*, int);
  void (*write)(std::FILE*, const char*, int);
  void (*scan)(std::FILE*, int);
};

void add_rows(Suite& suite, const Format& format, const char* digits, const char* number, int count) {
  // A guess at the work, to plan how often to measure.
  const Row row{"taucs_files", std::string(format.name) + digits, count, 1, 10000.0 * count, Unit::kTime};
  const auto file = [write = format.write, number, count] {
    return std::make_shared<TextFile>([=](std::FILE* stream) { write(stream, number, count); });
  };
  suite.measure(row, "quorin", [&library = suite.libraries().product, read = format.read, file, count] {
    return [&library, read, count, file = file()] {
      taucs_ccs_matrix* const A = read(file->name(), TAUCS_DOUBLE);
      if (A == nullptr || A->colptr[A->m] != count) throw std::runtime_error("a matrix file is not read");
      library.taucs_ccs_free(A);
    };
  });
  suite.measure(row, "fscanf", [scan = format.scan, file, count] {
    return [scan, count, file = file()] {
      std::FILE* const stream = std::fopen(file->name(), "r");
      if (stream == nullptr) throw std::runtime_error("a matrix file is not there");
      scan(stream, count);
      std::fclose(stream);
    };
  });
}

}  // namespace

void add_taucs_file_rows(Suite& suite) {
  const quorin_library& library = suite.libraries().product;
  const Format formats[] = {{"taucs_ccs_read_ccs", library.taucs_ccs_read_ccs, write_columns, scan_columns},
                            {"taucs_ccs_read_ijv", library.taucs_ccs_read_ijv, write_entries, scan_entries}};
  for (const int count : suite.sizes({10'000, 1'000'000}, {100'000})) {
    for (const Format& format : formats) {
      add_rows(suite, format, ", 6 digits", "%g", count);
      add_rows(suite, format, ", 18 digits", "%.17e", count);
    }
  }
}

}  // namespace quorin::bench
