#include "sparse/numeric/panels.hpp"

#include <limits>

namespace quorin::sparse {

template <Scalar T>
FactorOutcome Panels<T>::create(const Plan& plan, PanelKind kind, PanelStore* store) noexcept {
  kind_ = kind;
  store_ = store;
  if (store != nullptr) {
    clear();
    store_ = store;
    if (plan.largest_panel(kind) > kMostElements) return FactorOutcome::kTooLarge;
    return store->create(plan, kind, sizeof(T));
  }
  const std::int64_t elements = plan.panel_elements(kind);
  if (elements > kMostElements) return FactorOutcome::kTooLarge;
  const auto count = static_cast<std::size_t>(plan.supernodes());
  if (block_.size() != static_cast<std::size_t>(elements) || !block_) {
    block_ = {};  // first, so that both are never there at a time
    block_ = base::Workspace<T>(static_cast<std::size_t>(elements));
  }
  if (starts_.size() != count || !starts_) starts_ = base::Workspace<std::size_t>(count);
  if (!block_ || !starts_) {
    clear();
    return FactorOutcome::kOutOfMemory;
  }
  std::size_t start = 0;
  for (int s = 0; s < plan.supernodes(); ++s) {
    starts_[static_cast<std::size_t>(s)] = start;
    start += static_cast<std::size_t>(plan.panel_size(kind, s));
  }
  block_data_ = block_.data();
  return FactorOutcome::kDone;
}

template <Scalar T>
void Panels<T>::attach(PanelKind kind, PanelStore& store) noexcept {
  clear();
  kind_ = kind;
  store_ = &store;
}

template <Scalar T>
void Panels<T>::clear() noexcept {
  block_ = {};
  starts_ = {};
  block_data_ = nullptr;
  store_ = nullptr;
}

template class Panels<float>;
template class Panels<double>;
template class Panels<std::complex<float>>;
template class Panels<std::complex<double>>;

}  // namespace quorin::sparse
