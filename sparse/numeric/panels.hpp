// Where the panels of a factor are kept: in one block of memory, or behind a store, one after the other.
//
// The panel of supernode s is one column-major matrix of plan.columns(s) columns with the leading dimension
// plan.height(kind, s):
//
//     columns(s) rows   the diagonal block
//     below_count(s)    L, the rows plan.below(s)
//     below_count(s)    U^T, the same rows; of kUnsymmetric alone
//
// Before the panel is eliminated it holds A and then what the descendants' updates leave of it; the columns of U^T are
// the rows of the diagonal block. The eliminated diagonal block holds
//
//     L L^H             L in the lower triangle
//     L D L^T, L D L^H  L below the diagonal, whose own diagonal is 1; D on the diagonal, and the entry of a 2x2 pivot
//                       d_{k+1,k} above it, in place (k, k + 1)
//     L U               L below the diagonal, whose own diagonal is 1; U in the upper triangle
//
// in the order of the pivots, which may differ from the plan's within the block (pivots.hpp). What else stands above
// the diagonal of a symmetric panel means nothing. The panel of a Schur complement is left as it is before elimination:
// its diagonal block is the Schur complement, of which symmetric panels have the lower triangle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "base/scalar.hpp"
#include "base/workspace.hpp"
#include "sparse/numeric/outcome.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// Panels by number, in memory that need not hold all of them at a time. Any thread may call, and several at once; of
// one panel, one thread at a time gets it to write.
class PanelStore {
 public:
  PanelStore() = default;
  PanelStore(const PanelStore&) = delete;
  PanelStore& operator=(const PanelStore&) = delete;
  virtual ~PanelStore() = default;

  // Room for the panels of a new factor, plan.panel_size(kind, s) * scalar_size bytes each; what the store held before
  // is lost. Their contents are undefined.
  virtual FactorOutcome create(const Plan& plan, PanelKind kind, std::size_t scalar_size) noexcept = 0;
  // Brings panel s into memory, aligned to 64 bytes, where it stays until as many calls of unpin. `is_new`: it is
  // written whole before it is read, so that nothing has to be read from the file. Null: failed, see outcome().
  virtual void* pin(int s, bool is_new) noexcept = 0;
  // `is_changed`: the panel has been written since.
  virtual void unpin(int s, bool is_changed) noexcept = 0;
  // All panels are written, or the factorization has failed and no panel will be read any more.
  virtual FactorOutcome finish(bool is_complete) noexcept = 0;
  // Why a call failed: kOutOfMemory, kTooLarge, kBudgetTooSmall, kCannotOpen, kFileFailed.
  virtual FactorOutcome outcome() const noexcept = 0;
};

// The panels of one factor.
template <Scalar T>
class Panels {
 public:
  // Room for all panels, which replaces what was there. kTooLarge before anything is allocated, kOutOfMemory, and what
  // the store says. A store is borrowed. An existing block of the right size is used again.
  FactorOutcome create(const Plan& plan, PanelKind kind, PanelStore* store) noexcept;
  // Takes the panels that the store has.
  void attach(PanelKind kind, PanelStore& store) noexcept;
  void clear() noexcept;

  // What the address space may hold.
  static constexpr std::int64_t kMostElements = std::numeric_limits<std::ptrdiff_t>::max() / sizeof(T);

  PanelKind kind() const noexcept { return kind_; }
  PanelStore* store() const noexcept { return store_; }
  // Bytes of memory that the panels take here, without the store's.
  std::size_t bytes() const noexcept { return block_.size() * sizeof(T) + starts_.size() * sizeof(std::size_t); }

  // Panel s, from now until unpin(s); null when the store fails.
  T* pin(int s, bool is_new = false) const noexcept {
    if (store_ == nullptr) return block_data_ + starts_[static_cast<std::size_t>(s)];
    return static_cast<T*>(store_->pin(s, is_new));
  }
  void unpin(int s, bool is_changed = false) const noexcept {
    if (store_ != nullptr) store_->unpin(s, is_changed);
  }

 private:
  PanelKind kind_ = PanelKind::kSymmetric;
  PanelStore* store_ = nullptr;
  base::Workspace<std::size_t> starts_;  // of the panels in the block
  base::Workspace<T> block_;
  T* block_data_ = nullptr;
};

// Panel s while the object lives.
template <Scalar T>
class PinnedPanel {
 public:
  PinnedPanel(const Panels<T>& panels, int s) noexcept : panels_(panels), s_(s), data_(panels.pin(s)) {}
  ~PinnedPanel() {
    if (data_ != nullptr) panels_.unpin(s_);
  }
  PinnedPanel(const PinnedPanel&) = delete;
  PinnedPanel& operator=(const PinnedPanel&) = delete;
  const T* data() const noexcept { return data_; }

 private:
  const Panels<T>& panels_;
  int s_;
  T* data_;
};

}  // namespace quorin::sparse
