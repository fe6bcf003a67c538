// Matrices with values for the tests.
#pragma once

#include "sparse/sparse.hpp"
#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"

namespace quorin::sparse::test {

// Compressed columns of the type, which owns its arrays.
template <Scalar T>
struct TypedMatrix {
  explicit TypedMatrix(const quorin::test::SparseMatrix& A) : rows(A.rows), columns(A.columns) {
    quorin::test::CompressedArrays arrays = compressed_columns(A);
    starts = std::move(arrays.starts);
    indices = std::move(arrays.indices);
    for (std::size_t k = 0; k < arrays.re.size(); ++k) {
      const auto re = static_cast<RealOf<T>>(arrays.re[k]);
      if constexpr (kIsComplex<T>) {
        values.emplace_back(re, arrays.im.empty() ? RealOf<T>{0} : static_cast<RealOf<T>>(arrays.im[k]));
      } else {
        values.push_back(re);
      }
    }
  }
  ColumnMatrix<T> matrix() const { return {{rows, columns, starts.data(), indices.data()}, values.data()}; }

  int rows, columns;
  std::vector<int> starts, indices;
  std::vector<T> values;
};

#if defined(QUORIN_MATRICES_DIR)
// Real matrices of applications that come with the dependencies.
inline std::vector<quorin::test::SparseMatrix> matrices_with_values() {
  std::vector<quorin::test::SparseMatrix> all;
  for (const char* name : {"bcsstk01", "bcsstk16", "fs_183_1", "west0067", "mhd1280b", "mbeacxc", "ibm32a", "t1"}) {
    all.push_back(quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/cxsparse/" + name, 0));
    all.back().name = name;
  }
  for (const char* name : {"GD99_cc", "w156", "impcol_a", "ctina", "arrow"}) {
    all.push_back(quorin::test::read_triplets(std::string(QUORIN_MATRICES_DIR) + "/klu/" + name + ".mtx", 1));
    all.back().name = name;
  }
  return all;
}
#endif

}  // namespace quorin::sparse::test
