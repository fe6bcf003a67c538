// The driver: from a matrix, right-hand sides and option strings to solutions.
#pragma once

#include "families/taucs/matrix.hpp"

namespace quorin::taucs {

// What a host's handle points to. Hosts may read it: the fields and their order are part of the interface.
struct FactorObject {
  enum class Kind : std::int32_t { kNone = 0, kLlt = 1, kOutOfCore = 4, kInvalid = 5, kLdlt = 6, kLu = 8 };

  std::int32_t n;
  std::int32_t flags;  // of the matrix
  Kind kind;
  std::int32_t* perm;  // new arrays, or null
  std::int32_t* invperm;
  void* factor;        // for the solving routines of the kind
  FactorObject* next;  // in the list of those that hosts hold
};

// X <- A^-1 B for nrhs columns of A's order, or the factorization alone (nrhs = 0), as the options say (options.hpp has
// them). *F, if F is not null, is the factor object of an earlier call, or null; after a factorization that succeeded
// it is a new one. Everything is released that a call which fails has made, and *F is as before then, but for the
// numbers of a numeric phase that failed.
//
// With taucs.factor=false, and no factor held, the files of taucs.ooc.basename are opened, if taucs.ooc asks for it,
// and become one.
//
// A null with nrhs = 0 releases *F and makes it null.
//
// kErrorBadargs: options that contradict each other; a null, or sizes, that cannot be; *F is no factor object, or one
// of another order or type than A that is to be used. kErrorNomem. kError: what failed is in the log.
std::int32_t linsolve(const CcsMatrix* A, void** F, std::int32_t nrhs, void* X, const void* B, char* const* options,
                      void* const* opt_arg) noexcept;

}  // namespace quorin::taucs
