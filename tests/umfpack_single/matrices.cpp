#include "tests/umfpack_single/matrices.hpp"

#include <filesystem>
#include <random>

namespace umfpack_test {
namespace {

// A symmetric pattern becomes a matrix with both triangles and values made up.
SparseMatrix read_demo(const std::string& path, bool is_harwell_boeing) {
  if (!is_harwell_boeing) return quorin::test::read_triplets(path);
  std::string type;
  SparseMatrix A = quorin::test::read_harwell_boeing(path, &type);
  if (type[0] == 'P') {
    for (auto& e : A.entries) e.value = e.row == e.column ? 9.5 : 1.0 / (1 + e.row + 2 * e.column);
    A.mirror([](std::complex<double> value) { return -value; });
  }
  return A;
}

}  // namespace

Matrix::Matrix(const SparseMatrix& A) : name(A.name), n_row(A.rows), n_col(A.columns) {
  quorin::test::CompressedArrays arrays = compressed_columns(A);
  Ap = std::move(arrays.starts);
  Ai = std::move(arrays.indices);
  Ax = std::move(arrays.re);
  Az = std::move(arrays.im);
}

Matrix random_matrix(int n, bool is_complex, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> number(-1, 1);
  SparseMatrix A;
  A.is_complex = is_complex;
  for (int j = 0; j < n; ++j) {
    for (int k = 0; k < 5; ++k) {
      const int i = k == 0 ? j : static_cast<int>(random() % static_cast<unsigned>(n));
      const double re = (k == 0 ? 4 : 0) + number(random);
      A.add(i, j, {re, is_complex ? number(random) : 0.0});
    }
  }
  return Matrix(A);
}

const std::vector<Matrix>& demo_matrices() {
  static const std::vector<Matrix> all = [] {
    std::vector<Matrix> matrices;
    for (const char* const folder : {"umfpack", "cxsparse"}) {
      for (const auto& entry : std::filesystem::directory_iterator(std::string(QUORIN_MATRICES_DIR) + "/" + folder)) {
        matrices.emplace_back(read_demo(entry.path().string(), std::string(folder) == "umfpack"));
      }
    }
    return matrices;
  }();
  return all;
}

}  // namespace umfpack_test
