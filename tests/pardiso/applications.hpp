// Matrices from applications, for tests and comparisons.
#pragma once

#include <filesystem>
#include <fstream>

#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"

namespace pardiso_test {

inline bool is_symmetric(const quorin::test::SparseMatrix& S) {
  const auto rows = quorin::test::compressed_rows(S), columns = quorin::test::compressed_columns(S);
  return rows.starts == columns.starts && rows.indices == columns.indices && rows.re == columns.re &&
         rows.im == columns.im;
}

// The full matrix of the upper triangle in a file of columns: a line of text; the size and a number; starts, rows,
// values. Entries may repeat.
inline quorin::test::SparseMatrix read_upper_columns(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  if (line.find("invalid") != std::string::npos) return {};
  int n = 0, ignored = 0;
  file >> n >> ignored;
  std::vector<std::size_t> starts(static_cast<std::size_t>(n) + 1);
  for (auto& start : starts) file >> start;
  std::vector<int> rows(starts.back());
  for (int& row : rows) file >> row;
  quorin::test::SparseMatrix S;
  S.rows = S.columns = n;
  S.name = path.substr(path.find_last_of('/') + 1);
  for (std::size_t j = 0, k = 0; j < static_cast<std::size_t>(n); ++j) {
    for (; k < starts[j + 1]; ++k) {
      double value = 0.0;
      file >> value;
      if (rows[k] <= static_cast<int>(j)) S.add(rows[k], static_cast<int>(j), value);
    }
  }
  S.mirror();
  return S;
}

// Square ones: triplets from 0 and from 1, Harwell-Boeing files, of which patterns get values that are made up, and
// columns.
inline std::vector<quorin::test::SparseMatrix> from_applications() {
  using namespace quorin::test;
  std::vector<SparseMatrix> all;
  for (const std::string folder : {"cholmod", "cxsparse", "klu", "ldl", "umfpack"}) {
    for (const auto& file : std::filesystem::directory_iterator(std::string(QUORIN_MATRICES_DIR) + "/" + folder)) {
      const std::string path = file.path().string();
      if (folder == "cholmod" && file.path().extension() != ".rsa") continue;
      std::string type = "RUA";
      SparseMatrix S = folder == "ldl"                              ? read_upper_columns(path)
                       : folder == "umfpack" || folder == "cholmod" ? read_harwell_boeing(path, &type)
                                                                    : read_triplets(path, folder == "klu" ? 1 : 0);
      if (type[0] == 'P') {
        for (auto& e : S.entries) e.value = e.row == e.column ? 9.5 : 1.0 / (1 + e.row + 2 * e.column);
      }
      if (type[1] == 'S') S.mirror();
      S.name = folder + "/" + S.name;
      if (S.rows == S.columns && S.rows > 1) all.push_back(std::move(S));
    }
  }
  return all;
}

}  // namespace pardiso_test
