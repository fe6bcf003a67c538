// CHOLMOD, as a peer of L L^H. Only a program that was configured with it has it.
#pragma once

#include <memory>

#include "tests/support/sparse.hpp"

namespace quorin::bench {

class CholmodPeer {
 public:
  // Whether the functions below may be called.
  static bool is_there();

  // A symmetric n x n matrix of which the lower triangle is given, and an ordering.
  CholmodPeer(const test::CompressedArrays& lower, int n, const int* permutation);
  ~CholmodPeer();
  CholmodPeer(const CholmodPeer&) = delete;
  CholmodPeer& operator=(const CholmodPeer&) = delete;

  void analyze();
  void factorize();
  // For `nrhs` vectors of ones.
  void solve(int nrhs);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quorin::bench
