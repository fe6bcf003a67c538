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

}  // namespace quorin::sparse::test
