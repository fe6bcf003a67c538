#include "tests/support/sparse.hpp"

#include <filesystem>
#include <fstream>

#include "tests/support/standard.hpp"

namespace quorin::test {
namespace {

CompressedArrays compressed(const SparseMatrix& A, int lines, int Entry::*line, int Entry::*index, int base) {
  std::vector<Entry> sorted = A.entries;
  std::stable_sort(sorted.begin(), sorted.end(), [&](const Entry& a, const Entry& b) {
    return std::tie(a.*line, a.*index) < std::tie(b.*line, b.*index);
  });
  CompressedArrays arrays;
  arrays.starts.assign(static_cast<std::size_t>(lines) + 1, 0);
  const Entry* last = nullptr;
  for (const Entry& e : sorted) {
    if (last != nullptr && last->row == e.row && last->column == e.column) {
      arrays.re.back() += e.value.real();
      if (A.is_complex) arrays.im.back() += e.value.imag();
      continue;
    }
    ++arrays.starts[static_cast<std::size_t>(e.*line) + 1];
    arrays.indices.push_back(e.*index + base);
    arrays.re.push_back(e.value.real());
    if (A.is_complex) arrays.im.push_back(e.value.imag());
    last = &e;
  }
  arrays.starts[0] = base;
  for (std::size_t j = 1; j < arrays.starts.size(); ++j) arrays.starts[j] += arrays.starts[j - 1];
  return arrays;
}

std::ifstream opened(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read the matrix " + path);
  return file;
}

// `count` fields of the width that a Fortran format like (16I5) or (1P3D24.15) gives.
std::vector<std::string> read_fields(std::istream& file, const std::string& format, std::size_t count) {
  // The letter of the last edit descriptor, past a scale factor like 1P.
  const std::size_t letter = format.find_first_of("IDEide"), scale = format.find('P');
  const std::size_t first = scale == std::string::npos ? format.find('(') + 1 : scale + 1;
  const std::size_t per_line = std::stoul(format.substr(first)), width = std::stoul(format.substr(letter + 1));
  std::vector<std::string> fields;
  for (std::string line; fields.size() < count && std::getline(file, line);) {
    for (std::size_t k = 0; k < per_line && fields.size() < count; ++k) fields.push_back(line.substr(k * width, width));
  }
  return fields;
}

double to_double(std::string field) {
  std::replace(field.begin(), field.end(), 'D', 'E');
  return std::stod(field);
}

// The full matrix of the upper triangle in a file of columns: a line of text; the size and a number; starts, rows,
// values. Entries may repeat. Empty for files that are wrong on purpose.
SparseMatrix read_upper_columns(const std::string& path) {
  std::ifstream file = opened(path);
  std::string line;
  std::getline(file, line);
  if (line.find("invalid") != std::string::npos) return {};
  int n = 0, ignored = 0;
  file >> n >> ignored;
  std::vector<std::size_t> starts(static_cast<std::size_t>(n) + 1);
  for (auto& start : starts) file >> start;
  std::vector<int> rows(starts.back());
  for (int& row : rows) file >> row;
  SparseMatrix A;
  A.rows = A.columns = n;
  A.name = path.substr(path.find_last_of('/') + 1);
  for (std::size_t j = 0, k = 0; j < static_cast<std::size_t>(n); ++j) {
    for (; k < starts[j + 1]; ++k) {
      double value = 0.0;
      file >> value;
      if (rows[k] <= static_cast<int>(j)) A.add(rows[k], static_cast<int>(j), value);
    }
  }
  A.mirror();
  return A;
}

}  // namespace

void SparseMatrix::add(int row, int column, std::complex<double> value) {
  if (row < 0 || column < 0) throw std::runtime_error("an entry outside of the matrix " + name);
  rows = std::max(rows, row + 1);
  columns = std::max(columns, column + 1);
  entries.push_back({row, column, value});
}

void SparseMatrix::mirror(const std::function<std::complex<double>(std::complex<double>)>& mirrored) {
  const std::size_t count = entries.size();
  for (std::size_t k = 0; k < count; ++k) {
    const Entry e = entries[k];
    if (e.row != e.column) add(e.column, e.row, mirrored(e.value));
  }
}

CompressedArrays compressed_columns(const SparseMatrix& A, int base) {
  return compressed(A, A.columns, &Entry::column, &Entry::row, base);
}

CompressedArrays compressed_rows(const SparseMatrix& A, int base) {
  return compressed(A, A.rows, &Entry::row, &Entry::column, base);
}

SparseMatrix grid(int a, int b, int c, bool corners) {
  SparseMatrix A;
  A.name = std::to_string(a) + "x" + std::to_string(b) + "x" + std::to_string(c) + (corners ? "c" : "");
  for (int v = 0; v < a * b * c; ++v) {
    const int x = v % a, y = v / a % b, z = v / (a * b);
    for (int step = 0; step < 27; ++step) {
      const int dx = step % 3 - 1, dy = step / 3 % 3 - 1, dz = step / 9 - 1;
      const int u = v + (dz * b + dy) * a + dx;
      if (u < v || (!corners && std::abs(dx) + std::abs(dy) + std::abs(dz) > 1)) continue;
      if (x + dx < 0 || x + dx >= a || y + dy < 0 || y + dy >= b || z + dz >= c) continue;
      A.add(u, v);
    }
  }
  return A;
}

SparseMatrix convection_diffusion(int k, double wind) {
  SparseMatrix A;
  const double w = wind / (k + 1);
  for (int v = 0; v < k * k; ++v) {
    const int i = v / k, j = v % k;
    if (i > 0) A.add(v, v - k, -1 - w / 2);
    if (j > 0) A.add(v, v - 1, -1 - w);
    A.add(v, v, 4 + 1.5 * w);
    if (j + 1 < k) A.add(v, v + 1, -1);
    if (i + 1 < k) A.add(v, v + k, -1);
  }
  return A;
}

SparseMatrix central_convection(int side) {
  SparseMatrix A;
  for (int v = 0; v < side * side; ++v) {
    const int i = v / side, j = v % side;
    if (i > 0) A.add(v, v - side, -1.3);
    if (j > 0) A.add(v, v - 1, -1.15);
    A.add(v, v, 4.1);
    if (j + 1 < side) A.add(v, v + 1, -0.85);
    if (i + 1 < side) A.add(v, v + side, -0.7);
  }
  return A;
}

SparseMatrix random_dominant(int n, double density, double dominance, bool is_symmetric, std::mt19937& random) {
  std::uniform_real_distribution<double> entry(-1.0, 1.0), chance(0.0, 1.0);
  SparseMatrix A;
  std::vector<double> sums(static_cast<std::size_t>(n));
  std::set<std::pair<int, int>> there;
  const auto add = [&](int i, int j, double value) {
    if (!there.insert({i, j}).second) return;
    A.add(i, j, value);
    sums[static_cast<std::size_t>(i)] += std::fabs(value);
  };
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      if (i == j || chance(random) >= density) continue;
      const double value = entry(random);
      if (is_symmetric && there.count({i, j}) != 0) continue;
      add(i, j, value);
      if (is_symmetric) add(j, i, value);
    }
  }
  for (int i = 0; i < n; ++i) A.add(i, i, dominance * sums[static_cast<std::size_t>(i)] + 0.1 + chance(random));
  return A;
}

SparseMatrix read_triplets(const std::string& path, int base) {
  std::ifstream file = opened(path);
  SparseMatrix A;
  A.name = path.substr(path.find_last_of('/') + 1);
  bool passes_sizes = base == 1;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    double row = 0, column = 0, re = 1, im = 0;
    if (line.empty() || line[0] == '%' || !(words >> row >> column)) continue;
    if (std::exchange(passes_sizes, false)) continue;
    words >> re;
    if (words >> im) A.is_complex = true;
    A.add(static_cast<int>(row) - base, static_cast<int>(column) - base, {re, im});
  }
  return A;
}

SparseMatrix read_harwell_boeing(const std::string& path, std::string* type) {
  std::ifstream file = opened(path);
  std::string line, letters, pointers, indices, values;
  std::getline(file, line);
  std::getline(file, line);
  int lines[5] = {};  // in all; of starts, rows, values, right-hand sides, for which the head has one line more
  std::istringstream counts(line);
  for (int& number : lines) counts >> number;
  SparseMatrix A;
  A.name = path.substr(path.find_last_of('/') + 1);
  std::size_t count = 0;
  file >> letters >> A.rows >> A.columns >> count;
  std::getline(file, line);
  std::getline(file, line);
  std::istringstream(line) >> pointers >> indices >> values;
  if (lines[4] > 0) std::getline(file, line);
  if (letters.size() != 3 || letters[2] != 'A') throw std::runtime_error("not an assembled matrix: " + path);
  const int stored_rows = A.rows;
  const bool is_pattern = letters[0] == 'P';
  A.is_complex = letters[0] == 'C';
  const auto starts = read_fields(file, pointers, static_cast<std::size_t>(A.columns) + 1);
  const auto rows = read_fields(file, indices, count);
  std::vector<std::string> parts;
  if (!is_pattern) parts = read_fields(file, values, A.is_complex ? 2 * count : count);
  for (std::size_t k = 0, j = 0; k < count; ++k) {
    while (std::stoul(starts.at(j + 1)) - 1 <= k) ++j;
    std::complex<double> value = 1.0;
    if (A.is_complex)
      value = {to_double(parts.at(2 * k)), to_double(parts.at(2 * k + 1))};
    else if (!is_pattern)
      value = to_double(parts.at(k));
    A.add(std::stoi(rows.at(k)) - 1, static_cast<int>(j), value);
  }
  if (A.rows != stored_rows) throw std::runtime_error("an entry outside of the matrix " + path);
  if (type != nullptr) *type = letters;
  return A;
}

std::vector<SparseMatrix> from_applications(const std::string& directory) {
  std::vector<SparseMatrix> all;
  for (const std::string folder : {"cholmod", "cxsparse", "klu", "ldl", "umfpack"}) {
    for (const auto& file : std::filesystem::directory_iterator(directory + "/" + folder)) {
      const std::string path = file.path().string();
      if (folder == "cholmod" && file.path().extension() != ".rsa") continue;
      std::string type = "RUA";
      SparseMatrix A = folder == "ldl"                              ? read_upper_columns(path)
                       : folder == "umfpack" || folder == "cholmod" ? read_harwell_boeing(path, &type)
                                                                    : read_triplets(path, folder == "klu" ? 1 : 0);
      if (type[0] == 'P') {
        for (auto& e : A.entries) e.value = e.row == e.column ? 9.5 : 1.0 / (1 + e.row + 2 * e.column);
      }
      if (type[1] == 'S') A.mirror();
      A.name = folder + "/" + A.name;
      if (A.rows == A.columns && A.rows > 1) all.push_back(std::move(A));
    }
  }
  return all;
}

double factor_entries(int n, const int* starts, const int* rows, const int* permutation) {
  constexpr int kNone = -1;
  const auto size = static_cast<std::size_t>(n);
  std::vector<int> inverse(size), parent(size, kNone), seen(size, kNone);
  for (int k = 0; k < n; ++k) inverse.at(permutation[k]) = k;
  std::vector<std::vector<int>> columns(size);  // of each row of the permuted lower triangle
  for (int j = 0; j < n; ++j) {
    for (int k = starts[j]; k < starts[j + 1]; ++k) {
      const auto [column, row] = std::minmax({inverse.at(j), inverse.at(rows[k])});
      columns.at(row).push_back(column);
    }
  }
  // A row's entries are found on the paths up the elimination tree from the entries of the matrix.
  double entries = n;
  for (int i = 0; i < n; ++i) {
    seen.at(i) = i;
    for (int j : columns.at(i)) {
      for (; seen.at(j) != i; j = parent.at(j)) {
        seen.at(j) = i;
        ++entries;
        if (parent.at(j) == kNone) parent.at(j) = i;
      }
    }
  }
  return entries;
}

}  // namespace quorin::test
