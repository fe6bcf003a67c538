// How FGMRES lays its state out in the host's arrays.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/rotated_hessenberg.hpp"
#include "families/rci/parameters.hpp"

namespace quorin::rci {

// One-based starts of the parts of tmp for n unknowns and cycles of m steps. The basis vectors v(1)...v(m+1) come
// first.
struct FgmresLayout {
  FgmresLayout(int n, int m);

  // False when a size is not positive or a position does not fit ipar.
  bool valid = false;
  int cycle_length = 0;  // m
  int hessenberg = 0;    // the rotated Hessenberg matrix: packed columns of its upper triangle
  int cosines = 0;
  int sines = 0;
  int rotated_residual = 0;  // m + 1 entries
  int solution = 0;          // of the least-squares problem
  int preconditioned = 0;    // z(1)...z(m)

  bool matches(ConstIpar ipar) const;
  void store(Ipar ipar) const;
};

// Where a run stands.
enum class FgmresStage : int {
  kGmresStart = 1,
  kGmresInitialProduct,   // A x0 asked for
  kGmresInitialTest,      // start residual is zero, host asked
  kGmresRestartProduct,   // A x asked for at a restart
  kGmresPreconditioning,  // M^-1 v(k) asked for
  kGmresStepProduct,      // A z(k) asked for
  kGmresResidualTested,   // step done, residual and host tests made
  kGmresNormTested,       // zero-norm test made too
  kGmresBroken,           // a division by zero ended the run
};
using enum FgmresStage;

// The contents of ipar(3). Beside the stage it tells the cycle length that tmp was laid out for and whether
// z(1)...z(k) are kept apart from the basis, so that a host that changes either on the way is noticed.
struct FgmresMark {
  FgmresStage stage = kGmresStart;
  bool keeps_preconditioned = false;
  int cycle_length = 0;

  static FgmresMark unpack(int entry);
  int pack() const;
};

// The parts of tmp under their names, with the indices of the literature: v(1), z(1).
class FgmresArrays {
 public:
  FgmresArrays(int n, const FgmresLayout& layout, double* tmp)
      : n_(static_cast<std::size_t>(n)), layout_(layout), tmp_(tmp) {}

  std::size_t n() const { return n_; }
  double* v(int k) const { return column(1, k); }
  double* z(int k) const { return column(layout_.preconditioned, k); }
  // The rotated problem; its column k - 1 belongs to v(k).
  base::RotatedHessenberg<double> hessenberg() const { return {part(layout_.hessenberg), layout_.cycle_length}; }
  double* solution() const { return part(layout_.solution); }

  // One-based position in tmp, as ipar gives it to the host.
  int position(const double* entry) const { return static_cast<int>(entry - tmp_) + 1; }

 private:
  double* part(int start) const { return tmp_ + (start - 1); }
  double* column(int start, int k) const { return part(start) + n_ * static_cast<std::size_t>(k - 1); }

  std::size_t n_;
  FgmresLayout layout_;
  double* tmp_;
};

// target <- target + Z y, where y minimises the residual over the k completed steps of the cycle; y is left in tmp.
void add_correction(const FgmresArrays& arrays, int k, bool keeps_preconditioned, double* target);

// Takes the correction, once x has it, out of what is still to be minimised. The cycle may even go on then, for the
// problem is linear.
void clear_correction(const FgmresArrays& arrays, int k);

}  // namespace quorin::rci
