// The subspace that is filtered, and what is done with its vectors.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <span>

#include "base/parallel.hpp"
#include "base/scalar.hpp"
#include "base/workspace.hpp"
#include "dense/dense.hpp"

namespace quorin::feast {

// A basis X of n-vectors, column by column. What is done with it is cut into blocks of columns, of a width that depends
// on their number alone, so that any number of threads gives the same bits. The calling thread holds packing buffers
// for all threads. T is double or std::complex<double>.
template <Scalar T>
class Subspace {
 public:
  static constexpr int kBlock = 32;

  // Room for `capacity` vectors, and for work on `threads` threads; false without memory.
  [[nodiscard]] bool reserve(int n, int capacity, int threads);

  int length() const { return n_; }
  int capacity() const { return capacity_; }
  int threads() const { return threads_; }
  int size() const { return size_; }
  void resize(int size) { size_ = size; }
  T* column(int j) { return X_.data() + offset(j); }

  // Room for as many vectors, which combine() and select() overwrite. exchange() makes what is there the basis.
  T* other(int j) { return other_.data() + offset(j); }
  void exchange() { X_.swap(other_); }
  // Room for a block of columns, two for each thread, one behind the other; all have room for kBlock columns, or for
  // all there may be.
  T* block_of(int thread, int which) { return blocks_.data() + offset(block_width(capacity_) * (2 * thread + which)); }

  // Column j and those behind it become random, with entries from (-1, 1): other ones each time, the same in each run.
  // Those of row i are divided by sqrt(n * diagonal(i)): for the diagonal of B, which may be badly scaled, that makes
  // vectors of about unit norm in which all eigenvectors have a similar part.
  template <class Diagonal>
  void randomize(int j, const Diagonal& diagonal) {
    randomize(j);
    for (int i = 0; i < n_; ++i) {
      const double factor = 1 / std::sqrt(n_ * diagonal(i));
      for (int k = j; k < size_; ++k) column(k)[i] *= factor;
    }
  }

  // X <- X C for a size() x count matrix C.
  void combine(const T* C, int count);
  // X <- its columns order[0], order[1], ...
  void select(std::span<const int> order);

  // body(thread, first, count) for each block of columns first, ..., first + count - 1.
  template <class Body>
  void for_each_block(const Body& body) {
    const int width = block_width(size_), blocks = block_count(size_), parts = std::min(blocks, threads_);
    base::parallel_for(parts, parts, [&](int thread) {
      for (int block = thread; block < blocks; block += parts) {
        const int first = block * width;
        body(thread, first, std::min(width, size_ - first));
      }
    });
  }

  // The lower triangle of X^H M X, size() x size(), where multiply(count, x, y) makes Y = M X for a few columns.
  template <class Multiply>
  void project(const Multiply& multiply, T* triangle) {
    for_each_block([&](int thread, int first, int count) {
      T* const product = block_of(thread, 0);
      multiply(count, column(first), product);
      dense::blocked::gemm('C', 'N', size_ - first, count, n_, T{1}, column(first), n_, product, n_, T{},
                           triangle + first + static_cast<std::ptrdiff_t>(first) * size_, size_);
    });
  }

 private:
  void randomize(int j);
  // Of a few columns there are two blocks, so that two threads have work.
  static int block_width(int columns) { return std::clamp((columns + 1) / 2, 1, kBlock); }
  static int block_count(int columns) { return (columns + block_width(columns) - 1) / block_width(columns); }
  std::ptrdiff_t offset(int j) const { return static_cast<std::ptrdiff_t>(j) * n_; }

  int n_ = 0, capacity_ = 0, size_ = 0, threads_ = 1;
  std::mt19937_64 random_;
  base::Workspace<T> X_, other_, blocks_;
};

}  // namespace quorin::feast
