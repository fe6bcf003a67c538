#include "families/taucs/solvers/linsolve.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <mutex>
#include <new>
#include <utility>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/messages.hpp"
#include "families/taucs/operations.hpp"
#include "families/taucs/ordering.hpp"
#include "families/taucs/process.hpp"
#include "families/taucs/products.hpp"
#include "families/taucs/solvers/amwb.hpp"
#include "families/taucs/solvers/iterations.hpp"
#include "families/taucs/solvers/lu.hpp"
#include "families/taucs/solvers/options.hpp"
#include "families/taucs/solvers/out_of_core.hpp"
#include "families/taucs/solvers/supernodal.hpp"
#include "families/taucs/vectors.hpp"

namespace quorin::taucs {
namespace {

using Kind = FactorObject::Kind;

constexpr const char* kDriverSource = "src\\taucs_linsolve";
constexpr int kMostRefinements = 5;
constexpr double kRoundoff = std::numeric_limits<double>::epsilon() / 2;

// Frees the factor of whichever kind.
void release_factor(FactorObject& object) {
  switch (std::exchange(object.kind, Kind::kNone)) {
    case Kind::kLlt:
    case Kind::kLdlt:
      supernodal_factor_free(object.factor);
      break;
    case Kind::kOutOfCore:
      out_of_core_close(object.factor);
      break;
    case Kind::kLu:
      multilu_factor_free(object.factor);
      break;
    default:
      break;
  }
  object.factor = nullptr;
}

struct FreeObject {
  void operator()(FactorObject* object) const {
    release_factor(*object);
    base::release(object->perm);
    base::release(object->invperm);
    base::release(object);
  }
};
using OwnedObject = std::unique_ptr<FactorObject, FreeObject>;

OwnedObject create_object(const CcsMatrix& A) {
  void* const memory = base::allocate(sizeof(FactorObject));
  if (memory == nullptr) return nullptr;
  return OwnedObject(new (memory) FactorObject{A.n, A.flags, Kind::kNone, nullptr, nullptr, nullptr, nullptr});
}

// Seconds that have passed, for the report.
class Clock {
 public:
  void report(const char* format) const { message(format, wtime() - wall_, ctime() - processor_); }

 private:
  double wall_ = wtime(), processor_ = ctime();
};

std::size_t element_size(int flags) {
  if ((flags & kDcomplex) != 0) return 16;
  if ((flags & (kDouble | kScomplex)) != 0) return 8;
  if ((flags & (kSingle | kInt)) == 0) platform::fail_assertion("0", kDriverSource, __LINE__);
  return 4;
}

// One call.
class Driver {
 public:
  Driver(const CcsMatrix& A, FactorObject* held, int nrhs, void* X, const void* B, const Options& options)
      : A_(A), held_(held), nrhs_(nrhs), X_(X), B_(B), options_(options) {}

  Status run() {
    if (!options_.factor && held_ != nullptr && !is_held_for_A()) return Status::kErrorBadargs;
    if (A_.n < 0 || A_.colptr == nullptr || (nrhs_ > 0 && (X_ == nullptr || B_ == nullptr))) {
      return Status::kErrorBadargs;
    }
    build_preconditioner();
    Status status = options_.factor ? factor() : open_files();
    if (status == Status::kSuccess && nrhs_ > 0) status = solve();
    return status;
  }
  // The factor object that was made, or null.
  FactorObject* release() { return made_.release(); }

 private:
  void build_preconditioner() {
    if (!options_.amwb) return;
    M_.reset(amwb_preconditioner_create(&A_, truncated(options_.amwb_randomseed), options_.amwb_subgraphs, 0));
    if (M_ == nullptr) message("taucs_linsolve: AMWB preconditioner construction failed, using A\n");
  }
  const CcsMatrix& M() const { return M_ != nullptr ? *M_ : A_; }

  bool is_held_for_A() const { return held_->n == A_.n && type_of(held_->flags) == type_of(A_.flags); }

  // The numeric phase alone goes on with the object that the host holds.
  bool is_numeric_alone() const {
    return options_.llt && options_.mf && !options_.ooc && !options_.symbolic && options_.numeric;
  }

  Status factor() {
    message("taucs_linsolve: preparing to factor\n");
    if (nrhs_ > 0 && !options_.numeric) {
      message("taucs_linsolve: WARNING, you can't solve without a numeric factorization\n");
      options_.numeric = true;
    }
    if (is_numeric_alone()) return factor_held();
    made_ = create_object(A_);
    if (made_ == nullptr) {
      message("taucs_factor: memory allocation\n");
      return Status::kErrorNomem;
    }
    Status status = order();
    if (status == Status::kSuccess && options_.llt) status = factor_symmetric();
    if (status == Status::kSuccess && options_.lu) status = factor_lu();
    return status;
  }

  Status order() {
    const char* const name = options_.ordering != nullptr ? options_.ordering : options_.lu ? "colamd" : "metis";
    message("taucs_linsolve: ordering (llt=%d, lu=%d, ordering=%s)\n", options_.llt, options_.lu, name);
    const Clock clock;
    if (options_.llt && options_.indefinite) {
      dispatch(M().flags, [&]<class T>() { order_for_ldlt<T>(M(), &made_->perm, &made_->invperm, name); });
    } else {
      ccs_order(&M(), &made_->perm, &made_->invperm, name);
    }
    if (made_->perm == nullptr) {
      message("taucs_factor: ordering failed\n");
      return Status::kError;
    }
    clock.report("taucs_linsolve: ordering time %.02e seconds (%.02e seconds CPU time)\n");
    return Status::kSuccess;
  }

  // P M P^T and, where M is not A, P A P^T.
  Status permute(const FactorObject& object) {
    const auto permuted = [&](const CcsMatrix& A) {
      return ccs_permute_symmetrically(&A, object.perm, object.invperm);
    };
    message("taucs_linsolve: pre-factorization permuting of M\n");
    if (M_ != nullptr) {
      permuted_M_.reset(permuted(M()));
      message("taucs_linsolve: pre-factorization permuting of A\n");
    }
    if (M_ == nullptr || permuted_M_ != nullptr) permuted_A_.reset(permuted(A_));
    if (permuted_A_ != nullptr) return Status::kSuccess;
    message("taucs_factor: permute rows and columns failed\n");
    return Status::kErrorNomem;
  }
  const CcsMatrix& permuted_M() const { return permuted_M_ != nullptr ? *permuted_M_ : *permuted_A_; }

  FactorKind factor_kind() const { return options_.indefinite ? FactorKind::kLdlt : FactorKind::kLlt; }

  Status factor_symmetric() {
    message("taucs_linsolve: starting LLT/LDLT factorization\n");
    if (options_.ooc) return factor_out_of_core();
    if (const Status status = permute(*made_); status != Status::kSuccess) return status;
    report_in_core();
    const int maxdepth = truncated(options_.maxdepth);
    if (!options_.mf) {
      message(options_.indefinite ? "taucs_linsolve: starting IC indefinite LL factorization\n"
                                  : "taucs_linsolve: starting IC LLT LL factorization\n");
      made_->factor = factor_supernodal(&permuted_M(), factor_kind(), FactorMethod::kLeftLooking, maxdepth);
    } else {
      report_multifrontal();
      if (options_.numeric) {
        made_->factor = factor_supernodal(&permuted_M(), factor_kind(), FactorMethod::kMultifrontal, maxdepth);
      } else if (options_.symbolic) {
        made_->factor = analyze_supernodal(&permuted_M(), factor_kind(), maxdepth);
      }
    }
    if (made_->factor == nullptr) return report_failure();
    made_->kind = options_.indefinite ? Kind::kLdlt : Kind::kLlt;
    report_inertia(made_->factor);
    return Status::kSuccess;
  }
  void report_in_core() const {
    message(options_.indefinite ? "taucs_linsolve: starting IC indefinite factorization\n"
                                : "taucs_linsolve: starting IC LLT factorization\n");
  }
  void report_multifrontal() const {
    message(options_.indefinite ? "taucs_linsolve: starting IC indefinite MF factorization\n"
                                : "taucs_linsolve: starting IC LLT MF factorization\n");
  }
  static Status report_failure() {
    message("taucs_factor: factorization failed\n");
    return Status::kError;
  }
  // Of a factor that has it.
  void report_inertia(void* factor) const {
    std::int32_t inertia[3];
    if (options_.indefinite && inertia_calc(factor, inertia) == 0) {
      message("\t\tInertia: #0: %d #+: %d #-: %d\n", inertia[0], inertia[1], inertia[2]);
    }
  }

  Status factor_held() {
    message("taucs_linsolve: starting LLT/LDLT factorization\n");
    const Kind kind = options_.indefinite ? Kind::kLdlt : Kind::kLlt;
    if (held_ == nullptr || held_->kind != kind || !is_held_for_A()) {
      message("taucs_linsolve: ERROR, you need to provide a symbolic factorization for a numeric factorization\n");
      return Status::kErrorBadargs;
    }
    if (const Status status = permute(*held_); status != Status::kSuccess) return status;
    report_in_core();
    report_multifrontal();
    const Status status = factor_numeric(&permuted_M(), factor_kind(), held_->factor);
    if (status != Status::kSuccess) return report_failure();
    held_->flags = A_.flags;
    report_inertia(held_->factor);
    return Status::kSuccess;
  }

  // M in the order of A: the engine permutes while it assembles.
  Status factor_out_of_core() {
    message("taucs_linsolve: starting OOC LLT/LDLT factorization\n");
    const char* const name =
        options_.ooc_basename != nullptr ? options_.ooc_basename : out_of_core_base_name(options_.ooc_iohandle);
    if (name == nullptr) {
      message(
          "taucs_linsolve: ERROR, you must specify either a basename or an iohandle for an out-of-core "
          "factorization\n");
      return Status::kErrorBadargs;
    }
    // A factor that has these files open gives them up. Its name may be among what goes.
    if (options_.ooc_iohandle != nullptr) out_of_core_give_up(options_.ooc_iohandle);
    if (holds_files(name)) out_of_core_give_up(held_->factor);
    const bool is_there = out_of_core_exists(name);
    made_->factor = out_of_core_create(name, memory());
    if (options_.ooc_basename != nullptr) {
      const bool is_open = made_->factor != nullptr;
      message("taucs_linsolve: ooc file created?=%d opened?=%d\n", is_open && !is_there, is_open && is_there);
    }
    if (made_->factor == nullptr) {
      message("taucs_linsolve: ERROR, could neither open nor create file [%s]\n", name);
      return Status::kError;
    }
    made_->kind = Kind::kOutOfCore;
    const Status status =
        out_of_core_compute(made_->factor, &M(), factor_kind(), made_->perm, truncated(options_.maxdepth));
    if (status != Status::kSuccess) return report_failure();
    out_of_core_order(made_->factor, made_->perm, made_->invperm);
    report_inertia(made_->factor);
    return Status::kSuccess;
  }
  bool holds_files(const char* name) const {
    if (held_ == nullptr || held_->kind != Kind::kOutOfCore) return false;
    const char* const its_name = out_of_core_base_name(held_->factor);
    return its_name != nullptr && std::strcmp(its_name, name) == 0;
  }
  double memory() const { return options_.ooc_memory > 0 ? options_.ooc_memory : available_memory_size(); }

  // Without a factor, and without a factorization, a set of files that there is takes its place.
  Status open_files() {
    if (held_ != nullptr || !options_.ooc || options_.ooc_basename == nullptr) return Status::kSuccess;
    made_ = create_object(A_);
    if (made_ != nullptr) {
      made_->perm = new_array<int>(static_cast<std::size_t>(A_.n));
      made_->invperm = new_array<int>(static_cast<std::size_t>(A_.n));
    }
    if (made_ == nullptr || made_->perm == nullptr || made_->invperm == nullptr) {
      message("taucs_factor: memory allocation\n");
      return Status::kErrorNomem;
    }
    made_->factor = out_of_core_open(&A_, options_.ooc_basename, memory());
    message("taucs_linsolve: ooc file created?=%d opened?=%d\n", 0, made_->factor != nullptr);
    if (made_->factor == nullptr) {
      message("taucs_linsolve: ERROR, could neither open nor create file [%s]\n", options_.ooc_basename);
      return Status::kError;
    }
    made_->kind = Kind::kOutOfCore;
    out_of_core_order(made_->factor, made_->perm, made_->invperm);
    return Status::kSuccess;
  }

  Status factor_lu() {
    message("taucs_linsolve: starting LU factorization\n");
    release_factor(*made_);  // options may have asked for both
    if (options_.ooc) {
      message("taucs_linsolve: starting OOC LU factorization\n");
      message("taucs_linsolve: not yet implemented\n");
      return Status::kErrorBadargs;
    }
    if (options_.symbolic && options_.numeric) {
      message("taucs_linsolve: starting MULTILU factorization\n");
      const Clock clock;
      made_->factor = ccs_factor_lu(&A_, made_->perm, 1.0);
      clock.report("taucs_linsolve: factor time %.02e seconds (%.02e seconds CPU time)\n");
    }
    if (made_->factor == nullptr) {
      message("taucs_linsolve: factorization failed\n");
      return Status::kError;
    }
    made_->kind = Kind::kLu;
    return Status::kSuccess;
  }

  Status solve() {
    const FactorObject* const object = made_ != nullptr ? made_.get() : held_;
    if (object != nullptr && object->kind == Kind::kLu) {
      message("taucs_linsolve: doing an LU solve, n=%d, nrhs=%d\n", A_.n, nrhs_);
      return Status{multilu_solve_many(object->factor, nrhs_, X_, A_.n, B_, A_.n)};
    }
    message("taucs_linsolve: preparing to solve\n");
    const std::size_t size = base::saturating_product(static_cast<std::size_t>(A_.n), static_cast<std::size_t>(nrhs_));
    const std::size_t bytes = base::saturating_product(size, element_size(A_.flags));
    base::Workspace<std::byte> right_hand_sides(bytes), solutions(bytes);
    if (!right_hand_sides || !solutions) {
      message("taucs_linsolve: memory allocation\n");
      return Status::kErrorNomem;
    }
    const Clock clock;
    Status status = Status::kError;
    dispatch(A_.flags, [&]<class T>() {
      status =
          solve_columns(object, reinterpret_cast<T*>(right_hand_sides.data()), reinterpret_cast<T*>(solutions.data()));
    });
    clock.report("taucs_linsolve: solve time %.02e seconds (%.02e seconds CPU time)\n");
    return status;
  }

  // All columns permuted into b, solved into x, and permuted into X.
  template <Element T>
  Status solve_columns(const FactorObject* object, T* b, T* x) {
    const int n = A_.n;
    const int* const perm = object != nullptr ? object->perm : nullptr;
    const Kind kind = object != nullptr ? object->kind : Kind::kNone;
    if (kind == Kind::kInvalid) platform::fail_assertion("0", kDriverSource, __LINE__);
    const bool is_iteration = options_.cg || options_.minres;
    if (kind == Kind::kNone) {
      message("taucs_linsolve: WARNING, no preconditioner\n");
      if (!is_iteration) {
        message("taucs_linsolve: I don't know how to solve!\n");
        return Status::kError;
      }
    }
    if (perm != nullptr && permuted_A_ == nullptr && (is_iteration || needs_refinement(*object))) {
      message("taucs_linsolve: pre-solve permuting of A\n");
      permuted_A_.reset(ccs_permute_symmetrically(&A_, object->perm, object->invperm));
      if (permuted_A_ == nullptr) return Status::kErrorNomem;
    }
    for_columns([&](std::ptrdiff_t c) {
      const T* const column = static_cast<const T*>(B_) + c;
      perm != nullptr ? taucs::permute(n, column, b + c, perm) : void(std::copy_n(column, n, b + c));
    });
    const Status status = is_iteration ? iterate(object, b, x) : solve_directly(*object, b, x);
    if (status != Status::kSuccess && status != Status::kIterationLimit) return final(status);
    for_columns([&](std::ptrdiff_t c) {
      T* const column = static_cast<T*>(X_) + c;
      perm != nullptr ? taucs::permute_back(n, x + c, column, perm) : void(std::copy_n(x + c, n, column));
    });
    return final(status);
  }
  template <class Body>
  void for_columns(const Body& body) const {
    for (int c = 0; c < nrhs_; ++c) body(static_cast<std::ptrdiff_t>(c) * A_.n);
  }
  // The driver knows one code for an iteration that did not get there.
  static Status final(Status status) { return static_cast<int>(status) > 0 ? Status::kError : status; }

  template <Element T>
  Status iterate(const FactorObject* object, const T* b, T* x) {
    Preconditioner M;
    if (object != nullptr && object->kind != Kind::kNone) {
      M.factor = object->factor;
      M.apply = object->kind == Kind::kLlt    ? supernodal_solve_llt
                : object->kind == Kind::kLdlt ? precondition_by_ldlt
                                              : ooc_solve_llt;
    }
    const CcsMatrix& A = permuted_A_ != nullptr ? *permuted_A_ : A_;
    const Stopping stopping{truncated(options_.maxits), options_.convergetol};
    Status worst = Status::kSuccess;
    for (int c = 0; c < nrhs_; ++c) {
      const std::ptrdiff_t column = static_cast<std::ptrdiff_t>(c) * A_.n;
      const Status status = options_.cg ? conjugate_gradients(&A, M, x + column, b + column, stopping)
                                        : minres(&A, M, x + column, b + column, stopping);
      if (status == Status::kSuccess) continue;
      message("taucs_linsolve: right-hand side %d: the iteration ended with status %d\n", c, static_cast<int>(status));
      worst = status;
      if (status != Status::kIterationLimit) break;
    }
    return worst;
  }
  static std::int32_t precondition_by_ldlt(void* factor, void* x, const void* b) {
    const int order = supernodal_order(factor);
    return supernodal_solve_ldlt_many(factor, 1, x, order, b, order);
  }

  // Pivots that were replaced, or small ones that were not, cost digits.
  static bool needs_refinement(const FactorObject& object) {
    return object.kind == Kind::kLdlt ||
           (object.kind == Kind::kOutOfCore && out_of_core_kind(object.factor) == FactorKind::kLdlt);
  }
  static Status apply_inverse(const FactorObject& object, int nrhs, void* x) {
    return object.kind == Kind::kOutOfCore ? out_of_core_solve(object.factor, nrhs, x)
                                           : solve_supernodal(object.factor, nrhs, x);
  }

  template <Element T>
  Status solve_directly(const FactorObject& object, const T* b, T* x) {
    std::copy_n(b, static_cast<std::ptrdiff_t>(nrhs_) * A_.n, x);
    const Status status = apply_inverse(object, nrhs_, x);
    return status == Status::kSuccess && needs_refinement(object) ? refine(object, b, x) : status;
  }

  // x <- x + A^-1 (b - A x), until the residual is down to rounding or no longer halves.
  template <Element T>
  Status refine(const FactorObject& object, const T* b, T* x) {
    const int n = A_.n;
    const CcsMatrix& A = *permuted_A_;
    base::Workspace<T> correction(static_cast<std::size_t>(n)), next(static_cast<std::size_t>(n));
    if (!correction || !next) return Status::kErrorNomem;
    T *const d = correction.data(), *const y = next.data();
    const double size = norm_bound<T>(A);
    for (int c = 0; c < nrhs_; ++c, b += n, x += n) {
      const auto residual = [&](const T* solution) {
        times_vec(&A, solution, d);
        axpby(n, 1, b, -1, d, d);
        return vec_norm2(n, A_.flags, d);
      };
      double last = residual(x);
      const double goal = 4 * kRoundoff * (size * vec_norm2(n, A_.flags, x) + vec_norm2(n, A_.flags, b));
      for (int step = 0; last > goal && step < kMostRefinements; ++step) {
        if (const Status status = apply_inverse(object, 1, d); status != Status::kSuccess) return status;
        axpby(n, 1, x, 1, d, y);
        const double now = residual(y);
        if (!(now < last)) break;
        std::copy_n(y, n, x);
        if (now > last / 2) break;
        last = now;
      }
    }
    return Status::kSuccess;
  }
  // The root of the mean square of the singular values: no more than the largest.
  template <Element T>
  static double norm_bound(const CcsMatrix& A) {
    double sum = 0;
    for (int j = 0; j < A.n; ++j) {
      for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k)
        sum += (A.rowind[k] == j ? 1 : 2) * std::norm(A.elements<T>()[k]);
    }
    return std::sqrt(sum / std::max(1, A.n));
  }

  const CcsMatrix& A_;
  FactorObject* held_;
  int nrhs_;
  void* X_;
  const void* B_;
  Options options_;
  OwnedObject made_;
  OwnedMatrix M_, permuted_A_, permuted_M_;  // M_: null where it is A
};

// The factor objects that hosts hold: whatever else a host passes for one is told from them without being looked at.
class HeldObjects {
 public:
  constexpr HeldObjects() = default;

  void add(FactorObject* object) {
    const std::lock_guard lock(mutex_);
    object->next = first_;
    first_ = object;
  }
  bool contains(const void* address) {
    const std::lock_guard lock(mutex_);
    return *link_to(address) != nullptr;
  }
  // Frees an object; null is none.
  void release(FactorObject* object) {
    if (object == nullptr) return;
    {
      const std::lock_guard lock(mutex_);
      FactorObject** const link = link_to(object);
      if (*link != nullptr) *link = object->next;
    }
    FreeObject()(object);
  }

 private:
  FactorObject** link_to(const void* address) {
    FactorObject** link = &first_;
    while (*link != nullptr && *link != address) link = &(*link)->next;
    return link;
  }

  platform::Mutex mutex_;
  FactorObject* first_ = nullptr;
};
constinit HeldObjects held_objects;

Status solve_or_release(const CcsMatrix* A, void** F, int nrhs, void* X, const void* B, char* const* options,
                        void* const* opt_arg) {
  if (nrhs < 0 || (F != nullptr && *F != nullptr && !held_objects.contains(*F))) return Status::kErrorBadargs;
  auto* const held = F != nullptr ? static_cast<FactorObject*>(*F) : nullptr;
  if (A == nullptr) {
    if (F == nullptr || nrhs != 0) return Status::kErrorBadargs;
    *F = nullptr;
    held_objects.release(held);
    return Status::kSuccess;
  }
  Driver driver(*A, held, nrhs, X, B, parse_options(options, opt_arg));
  const Status status = driver.run();
  if (status != Status::kSuccess) {
    message("taucs_linsolve: an error occured, releasing resources and bailing out\n");
    return status;
  }
  if (OwnedObject made(driver.release()); made != nullptr && F != nullptr) {
    held_objects.release(held);
    held_objects.add(made.get());
    *F = made.release();
  }
  return status;
}

}  // namespace

std::int32_t linsolve(const CcsMatrix* A, void** F, std::int32_t nrhs, void* X, const void* B, char* const* options,
                      void* const* opt_arg) noexcept {
  return static_cast<std::int32_t>(solve_or_release(A, F, nrhs, X, B, options, opt_arg));
}

}  // namespace quorin::taucs
