// Another solver of sparse systems, beside which the engine is measured.
#pragma once

#include "tests/support/sparse.hpp"

namespace quorin::bench {

// Compressed columns, of symmetric matrices those of the lower triangle, and a permutation of their order: the k-th to
// be eliminated is permutation[k].
struct GivenSystem {
  const test::CompressedArrays& matrix;
  int n;
  const int* permutation;
  bool is_symmetric;
};

class Peer {
 public:
  Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;
  virtual ~Peer() = default;

  virtual const char* name() const = 0;
  // Without an ordering of its own.
  virtual void analyze() = 0;
  virtual void factorize() = 0;
  // For `nrhs` vectors of ones; the first solution.
  virtual const double* solve(int nrhs) = 0;
};

}  // namespace quorin::bench
