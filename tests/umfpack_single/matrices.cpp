#include "tests/umfpack_single/matrices.hpp"

#include <algorithm>
#include <complex>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

namespace umfpack_test {
namespace {

// Zero-based triplets, a line each, with or without an imaginary part.
Matrix read_triplets(const std::filesystem::path& path) {
  std::ifstream file(path);
  Integers Ti, Tj;
  Doubles Tx, Tz;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    int i = 0, j = 0;
    double re = 0, im = 0;
    if (!(words >> i >> j >> re)) continue;
    Ti.push_back(i);
    Tj.push_back(j);
    Tx.push_back(re);
    if (words >> im) Tz.push_back(im);
  }
  return from_triplets(*std::max_element(Ti.begin(), Ti.end()) + 1, *std::max_element(Tj.begin(), Tj.end()) + 1, Ti, Tj,
                       Tx, Tz);
}

// `count` fields of the width that a Fortran format like (16I5) or (1P3D24.15) gives.
std::vector<std::string> read_fields(std::istream& file, const std::string& format, std::size_t count) {
  // The letter of the last edit descriptor, past a scale factor like 1P.
  const std::size_t letter = format.find_first_of("IDE"), scale = format.find('P');
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

// Harwell-Boeing. A symmetric pattern becomes a matrix with both triangles and values made up.
Matrix read_harwell_boeing(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::string line, type, pointers, indices, values;
  std::getline(file, line);
  std::getline(file, line);
  int n_row = 0, n_col = 0;
  std::size_t nz = 0;
  file >> type >> n_row >> n_col >> nz;
  std::getline(file, line);
  std::getline(file, line);
  std::istringstream(line) >> pointers >> indices >> values;
  Integers starts, Ti, Tj;
  Doubles Tx, Tz;
  for (const auto& field : read_fields(file, pointers, size_of(n_col) + 1)) starts.push_back(std::stoi(field) - 1);
  for (const auto& field : read_fields(file, indices, nz)) Ti.push_back(std::stoi(field) - 1);
  for (int j = 0; j < n_col; ++j) Tj.insert(Tj.end(), size_of(starts[size_of(j) + 1] - starts[size_of(j)]), j);
  if (type[0] == 'P') {
    for (std::size_t k = 0; k < nz; ++k) Tx.push_back(Ti[k] == Tj[k] ? 9.5 : 1.0 / (1 + Ti[k] + 2 * Tj[k]));
    for (std::size_t k = 0; k < nz; ++k) {
      if (Ti[k] == Tj[k]) continue;
      Ti.push_back(Tj[k]);
      Tj.push_back(Ti[k]);
      Tx.push_back(-Tx[k]);
    }
  } else {
    const bool is_complex = type[0] == 'C';
    const auto fields = read_fields(file, values, is_complex ? 2 * nz : nz);
    for (std::size_t k = 0; k < fields.size(); ++k) {
      (is_complex && k % 2 == 1 ? Tz : Tx).push_back(to_double(fields[k]));
    }
  }
  return from_triplets(n_row, n_col, Ti, Tj, Tx, Tz);
}

}  // namespace

Matrix from_triplets(int n_row, int n_col, const Integers& Ti, const Integers& Tj, const Doubles& Tx,
                     const Doubles& Tz) {
  std::map<std::pair<int, int>, std::complex<double>> entries;
  for (std::size_t k = 0; k < Ti.size(); ++k)
    entries[{Tj[k], Ti[k]}] += std::complex<double>(Tx[k], Tz.empty() ? 0.0 : Tz[k]);
  Matrix A(n_row, n_col, Integers(size_of(n_col) + 1), {}, {});
  for (const auto& [place, value] : entries) {
    ++A.Ap[size_of(place.first) + 1];
    A.Ai.push_back(place.second);
    A.Ax.push_back(value.real());
    if (!Tz.empty()) A.Az.push_back(value.imag());
  }
  for (std::size_t j = 0; j < size_of(n_col); ++j) A.Ap[j + 1] += A.Ap[j];
  return A;
}

Matrix random_matrix(int n, bool is_complex, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> number(-1, 1);
  Integers Ti, Tj;
  Doubles Tx, Tz;
  for (int j = 0; j < n; ++j) {
    for (int k = 0; k < 5; ++k) {
      Ti.push_back(k == 0 ? j : static_cast<int>(random() % static_cast<unsigned>(n)));
      Tj.push_back(j);
      Tx.push_back(k == 0 ? 4 + number(random) : number(random));
      if (is_complex) Tz.push_back(number(random));
    }
  }
  return from_triplets(n, n, Ti, Tj, Tx, Tz);
}

const std::vector<Matrix>& demo_matrices() {
  static const std::vector<Matrix> all = [] {
    std::vector<Matrix> matrices;
    for (const char* const folder : {"umfpack", "cxsparse"}) {
      for (const auto& entry : std::filesystem::directory_iterator(std::string(QUORIN_MATRICES_DIR) + "/" + folder)) {
        const bool is_hb = std::string(folder) == "umfpack";
        matrices.push_back(is_hb ? read_harwell_boeing(entry.path()) : read_triplets(entry.path()));
        matrices.back().name = entry.path().filename().string();
      }
    }
    return matrices;
  }();
  return all;
}

}  // namespace umfpack_test
