// CHOLMOD, as a peer of L L^H. Only a program that was configured with it has it.
#pragma once

#include <memory>

#include "bench/direct/peer.hpp"

namespace quorin::bench {

class CholmodPeer final : public Peer {
 public:
  // Whether the functions below may be called.
  static bool is_there();

  // A symmetric n x n matrix of which the lower triangle is given, and an ordering.
  CholmodPeer(const test::CompressedArrays& lower, int n, const int* permutation);
  ~CholmodPeer() override;

  const char* name() const override { return "CHOLMOD"; }
  void analyze() override;
  void factorize() override;
  const double* solve(int nrhs) override;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quorin::bench
