// The libraries that are compared. Both are loaded at run time, so that neither sees the other's symbols and each call
// takes the way that a host's call takes.
#pragma once

#include <optional>
#include <string>

#include "quorin/amos.h"
#include "quorin/blas.h"
#include "quorin/lapack.h"
#include "quorin/pack.h"
#include "quorin/rci.h"
#include "quorin/signal.h"
#include "quorin/slap.h"
#include "quorin/taucs.h"
#include "quorin/umfpack.h"

namespace quorin::bench {

struct Lapack {
  decltype(&::sgetrf) sgetrf;
  decltype(&::cgetrf) cgetrf;
  decltype(&::spotrf) spotrf;
  decltype(&::sgeqrf) sgeqrf;
  decltype(&::cgeqrf) cgeqrf;
  decltype(&::ssyevr) ssyevr;
  decltype(&::cheevr) cheevr;
  decltype(&::sgesdd) sgesdd;
  decltype(&::sgeev) sgeev;
};

// The routines that rows measure, with the types that the public header gives them. Other BLAS have the same types.
struct Blas {
  std::string name;  // as the results name it
  void (*set_threads)(int count);

  decltype(&::saxpy) saxpy;
  decltype(&::sdot) sdot;
  decltype(&::sgemv) sgemv;
  decltype(&::sgemm) sgemm;
  decltype(&::cgemm) cgemm;
  decltype(&::ssyrk) ssyrk;
  decltype(&::strsm) strsm;

  std::optional<Lapack> lapack;
};

struct IndexForms {
  decltype(&::saxpy_Idx) saxpy;
  decltype(&::sdot_Idx) sdot;
  decltype(&::sgemm_Idx) sgemm;
};

// What LAPACK's dense solver calls.
struct VectorForms {
  decltype(&::sscal) sscal;
  decltype(&::isamax) isamax;
};

struct Signal {
  decltype(&::REMEZ) remez;
  decltype(&::TSLS1) toeplitz;
};

struct Rci {
  decltype(&::DCG_INIT) cg_init;
  decltype(&::DCG) cg;
  decltype(&::DFGMRES_INIT) fgmres_init;
  decltype(&::DFGMRES_CHECK) fgmres_check;
  decltype(&::DFGMRES) fgmres;
  decltype(&::DCSRILU0) ilu0;
  decltype(&::DCSRILUT) ilut;
};

struct Amos {
  decltype(&::CBESJ) j;
  decltype(&::CBESK) k;
  decltype(&::CBESY) y;
  decltype(&::CAIRY) ai;
};

struct Umfpack {
  decltype(&::umfpack_di_symbolic) di_symbolic;
  decltype(&::umfpack_di_numeric) di_numeric;
  decltype(&::umfpack_di_solve) di_solve;
  decltype(&::umfpack_zi_symbolic) zi_symbolic;
  decltype(&::umfpack_zi_numeric) zi_numeric;
  decltype(&::umfpack_zi_solve) zi_solve;
  decltype(&::umfpack_di_free_symbolic) free_symbolic;
  decltype(&::umfpack_di_free_numeric) free_numeric;
};

struct Pack {
  decltype(&::vspacki) increment;
  decltype(&::vspackv) index;
  decltype(&::vspackm) mask;
  decltype(&::vsunpackm) unpack_mask;
};

struct Slap {
  decltype(&::SS2Y) to_columns;
  decltype(&::SSDCG) ssdcg;
  decltype(&::SSICCG) ssiccg;
  decltype(&::SSDCGN) ssdcgn;
  decltype(&::SSLUCN) sslucn;
  decltype(&::SSDBCG) ssdbcg;
  decltype(&::SSLUBC) sslubc;
  decltype(&::SSDCGS) ssdcgs;
  decltype(&::SSLUCS) sslucs;
  decltype(&::SSDGMR) ssdgmr;
  decltype(&::SSLUGM) sslugm;
  decltype(&::SSDOMN) ssdomn;
  decltype(&::SSLUOM) ssluom;
  decltype(&::SSJAC) ssjac;
  decltype(&::SSGS) ssgs;
  decltype(&::SSILUR) ssilur;
};

struct Taucs {
  decltype(&::taucs_ccs_read_ccs) ccs_read_ccs;
  decltype(&::taucs_ccs_read_ijv) ccs_read_ijv;
  decltype(&::taucs_ccs_free) ccs_free;
  decltype(&::taucs_ccs_order) ccs_order;
};

struct Libraries {
  Blas product;
  IndexForms index_forms;
  VectorForms vector_forms;
  Signal signal;
  Rci rci;
  Amos amos;
  Umfpack umfpack;
  Pack pack;
  Slap slap;
  Taucs taucs;
  std::optional<Blas> peer;
  std::string peer_description;
};

// Loads the product, which must be there, and a threaded OpenBLAS, which need not. Throws std::runtime_error.
Libraries load_libraries(const std::string& product_file, const std::string& peer_file);

}  // namespace quorin::bench
