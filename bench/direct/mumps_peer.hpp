// MUMPS, as a peer of L D L^T and L U. Only a program that was configured with it has it.
#pragma once

#include <memory>

#include "bench/direct/peer.hpp"

namespace quorin::bench {

// On one process, without scaling or matching, with its usual threshold for pivots.
class MumpsPeer final : public Peer {
 public:
  // Whether the functions below may be called.
  static bool is_there();

  explicit MumpsPeer(const GivenSystem& system);
  ~MumpsPeer() override;

  const char* name() const override { return "MUMPS"; }
  void analyze() override;
  void factorize() override;
  const double* solve(int nrhs) override;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quorin::bench
