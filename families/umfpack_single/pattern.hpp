// Patterns on their way to UMFPACK.
#pragma once

#include <cstdint>

#include "base/workspace.hpp"

namespace quorin::umfpack_single {

// The starts of a matrix's columns. UMFPACK says what is wrong with unsound ones, but reads through some before it has
// seen all of them: in their place it gets others that it refuses.
class Starts {
 public:
  Starts(int n_row, int n_col, const int* Ap, const int* Ai);

  bool has_failed() const { return !refused_; }  // to get memory
  bool are_sound() const { return are_sound_; }  // so that entries may be read
  const int* data() const { return refused_.size() > 0 ? refused_.data() : Ap_; }

 private:
  const int* Ap_;
  bool are_sound_ = false;
  base::Workspace<int> refused_{0};
};

// A number that tells patterns apart, all but certainly.
std::uint64_t fingerprint(int n_col, const int* Ap, const int* Ai) noexcept;

}  // namespace quorin::umfpack_single
