#include "sparse/numeric/archive.hpp"

#include <algorithm>
#include <complex>
#include <limits>
#include <span>

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(std::int64_t n) noexcept { return static_cast<std::size_t>(n); }

void put_integers(FileWriter& file, const Workspace<int>& values) {
  file.put(std::span<const std::int32_t>(values.data(), values.size()));
}

// A number of an enumeration whose last is `last`.
template <class Enumeration>
Enumeration get_one_of(FileReader& file, Enumeration last) {
  const auto value = file.get<std::int32_t>();
  if (value < 0 || value > static_cast<std::int32_t>(last)) file.reject();
  return static_cast<Enumeration>(file.outcome() == FactorOutcome::kDone ? value : 0);
}

bool ascends_from_zero(const Workspace<int>& starts, int end, int least_step) {
  if (starts[0] != 0 || starts[starts.size() - 1] != end) return false;
  for (std::size_t k = 0; k + 1 < starts.size(); ++k) {
    if (starts[k + 1] < std::int64_t{starts[k]} + least_step) return false;
  }
  return true;
}

// Whether `order` arranges the columns of each supernode that is eliminated; pivots of 2x2 blocks are complemented.
bool is_pivot_order(const Plan& plan, const int* order, bool may_have_pairs, Workspace<int>& seen) {
  std::fill(seen.begin(), seen.end(), 0);
  for (int s = 0; s < plan.eliminated(); ++s) {
    const int first = plan.first(s), columns = plan.columns(s);
    for (int k = 0; k < columns; ++k) {
      const int pivot = order[first + k];
      if (pivot < 0 && (!may_have_pairs || k + 1 == columns || order[first + k + 1] >= 0)) return false;
      for (int i = k; i <= (pivot < 0 ? k + 1 : k); ++i) {
        const int column = pivot < 0 ? ~order[first + i] : pivot;
        if (column >= columns || seen[to_size(first + column)]++ != 0) return false;
      }
      if (pivot < 0) ++k;
    }
  }
  return true;
}

}  // namespace

FactorOutcome Archive::put(FileWriter& file, const Plan& plan) {
  for (const int count : {plan.size_, plan.schur_size_, plan.supernodes_, plan.depth_}) file.put(std::int32_t{count});
  file.put(plan.entries_);
  file.put(static_cast<std::int32_t>(plan.rows_.size()));
  for (const auto* values : {&plan.permutation_, &plan.first_, &plan.row_starts_, &plan.rows_, &plan.parent_}) {
    put_integers(file, *values);
  }
  return file.outcome();
}

FactorOutcome Archive::get(FileReader& file, Plan& plan) {
  Plan read;
  for (int* const count : {&read.size_, &read.schur_size_, &read.supernodes_, &read.depth_}) {
    *count = file.get<std::int32_t>();
  }
  read.entries_ = file.get<std::int64_t>();
  const auto row_count = file.get<std::int32_t>();
  const int n = read.size_, count = read.supernodes_;
  if (n < 0 || n > std::numeric_limits<int>::max() / 2 || count < 0 || count > n || row_count < 0 ||
      read.schur_size_ < 0 || read.schur_size_ > n || read.depth_ < 0 || read.depth_ > n || read.entries_ < n) {
    file.reject();
  }
  if (!file.get(read.permutation_, to_size(n)) || !file.get(read.first_, to_size(count) + 1) ||
      !file.get(read.row_starts_, to_size(count) + 1) || !file.get(read.rows_, to_size(row_count)) ||
      !file.get(read.parent_, to_size(count))) {
    return file.outcome();
  }
  read.inverse_ = Workspace<int>(to_size(n));
  read.supernode_of_ = Workspace<int>(to_size(n));
  if (!read.inverse_ || !read.supernode_of_ || !read.allocate_tree()) {
    file.fail(FactorOutcome::kOutOfMemory);
  } else if (!ascends_from_zero(read.first_, n, 1) || !ascends_from_zero(read.row_starts_, row_count, 0) ||
             !read.complete_from_lists()) {
    file.reject();
  }
  if (file.outcome() == FactorOutcome::kDone) plan = std::move(read);
  return file.outcome();
}

// All but the panels and the plan.
template <Scalar T>
void Archive::put_frame(FileWriter& file, const Factor<T>& factor) {
  const PivotOrder order = factor.pivot_order();
  const FactorReport& report = factor.report();
  file.put(std::int32_t{ScalarTraits<T>::kLetter});
  file.put(static_cast<std::int32_t>(factor.factorization()));
  file.put(std::int32_t{(order.rows != nullptr) + (order.columns != nullptr)});
  for (const int count :
       {report.pivots.perturbed, report.pivots.positive, report.pivots.negative, report.pivots.zero}) {
    file.put(std::int32_t{count});
  }
  file.put(report.bytes);
  file.put(report.peak_bytes);
  // A Schur complement has no pivots.
  const Plan& plan = factor.plan();
  const std::size_t pivots = to_size(plan.first(plan.eliminated()));
  for (const int* each : {order.rows, order.columns}) {
    if (each != nullptr) file.put(std::span<const std::int32_t>(each, pivots));
  }
}

template <Scalar T>
void Archive::get_frame(FileReader& file, const Plan& plan, Factor<T>& factor) {
  if (file.get<std::int32_t>() != ScalarTraits<T>::kLetter) file.reject();
  factor.factorization_ = get_one_of(file, Factorization::kLU);
  const bool is_lu = factor.factorization_ == Factorization::kLU;
  const int arrays = file.get<std::int32_t>();
  if (arrays < 0 || arrays > (is_lu ? 2 : factor.factorization_ == Factorization::kLLT ? 0 : 1)) file.reject();
  FactorReport& report = factor.report_;
  for (int* const count :
       {&report.pivots.perturbed, &report.pivots.positive, &report.pivots.negative, &report.pivots.zero}) {
    *count = file.get<std::int32_t>();
  }
  report.bytes = file.get<std::int64_t>();
  report.peak_bytes = file.get<std::int64_t>();
  if (file.outcome() != FactorOutcome::kDone || arrays == 0) return;

  const std::size_t n = to_size(plan.size()), pivots = to_size(plan.first(plan.eliminated()));
  factor.order_memory_ = Workspace<int>(to_size(arrays) * n);
  Workspace<int> seen(n);
  if (!factor.order_memory_ || !seen) return file.fail(FactorOutcome::kOutOfMemory);
  factor.order_.rows = factor.order_memory_.data();
  if (arrays > 1) factor.order_.columns = factor.order_memory_.data() + n;
  for (int* each : {factor.order_.rows, factor.order_.columns}) {
    if (each == nullptr) continue;
    file.get(std::span<std::int32_t>(each, pivots));
    std::fill(each + pivots, each + n, 0);
    if (file.outcome() == FactorOutcome::kDone && !is_pivot_order(plan, each, !is_lu, seen)) file.reject();
  }
}

template <Scalar T>
FactorOutcome Archive::put(FileWriter& file, const Factor<T>& factor) {
  put_frame(file, factor);
  const Plan& plan = factor.plan();
  for (int s = 0; s < plan.supernodes(); ++s) {
    const PinnedPanel<T> panel(factor.panels(), s);
    if (panel.data() == nullptr) {
      file.fail(factor.panels().store()->outcome());
    } else {
      file.put(std::span<const T>(panel.data(), to_size(plan.panel_size(factor.panels().kind(), s))));
    }
    if (file.outcome() != FactorOutcome::kDone) break;
  }
  return file.outcome();
}

template <Scalar T>
FactorOutcome Archive::get(FileReader& file, const Plan& plan, Factor<T>& factor) {
  Factor<T> read;
  get_frame(file, plan, read);
  const PanelKind kind = panel_kind(read.factorization_);
  if (static_cast<std::uint64_t>(plan.panel_elements(kind)) > file.left() / sizeof(T)) file.reject();
  if (file.outcome() != FactorOutcome::kDone) return file.outcome();
  const FactorOutcome outcome = read.panels_.create(plan, kind, nullptr);
  if (outcome != FactorOutcome::kDone) file.fail(outcome);
  for (int s = 0; s < plan.supernodes() && file.outcome() == FactorOutcome::kDone; ++s) {
    file.get(std::span<T>(read.panels_.pin(s, true), to_size(plan.panel_size(kind, s))));
  }
  if (file.outcome() != FactorOutcome::kDone) return file.outcome();
  read.plan_ = &plan;
  factor = std::move(read);
  return FactorOutcome::kDone;
}

template <Scalar T>
FactorOutcome Archive::complete(PanelFiles& files, const Factor<T>& factor) {
  FactorOutcome outcome = files.begin_index();
  if (outcome == FactorOutcome::kDone) outcome = put(files.index_writer(), factor.plan());
  put_frame(files.index_writer(), factor);
  return outcome == FactorOutcome::kDone ? files.complete() : outcome;
}

template <Scalar T>
FactorOutcome Archive::open(const char* base_name, std::uint64_t budget, PanelFiles& files, Plan& plan,
                            Factor<T>& factor) {
  factor.clear();
  FactorOutcome outcome = files.open(base_name, budget);
  if (outcome != FactorOutcome::kDone) return outcome;
  Factor<T> read;
  Plan read_plan;
  FileReader& index = files.index_reader();
  outcome = get(index, read_plan);
  if (outcome == FactorOutcome::kDone) get_frame(index, read_plan, read);
  const PanelKind kind = panel_kind(read.factorization_);
  if (index.outcome() == FactorOutcome::kDone && !files.fits(read_plan, kind, sizeof(T))) index.reject();
  outcome = files.complete_opening();
  if (outcome != FactorOutcome::kDone) return outcome;
  read.panels_.attach(kind, files);
  plan = std::move(read_plan);
  read.plan_ = &plan;
  factor = std::move(read);
  return FactorOutcome::kDone;
}

template FactorOutcome Archive::put(FileWriter&, const Factor<float>&);
template FactorOutcome Archive::put(FileWriter&, const Factor<double>&);
template FactorOutcome Archive::put(FileWriter&, const Factor<std::complex<float>>&);
template FactorOutcome Archive::put(FileWriter&, const Factor<std::complex<double>>&);
template FactorOutcome Archive::get(FileReader&, const Plan&, Factor<float>&);
template FactorOutcome Archive::get(FileReader&, const Plan&, Factor<double>&);
template FactorOutcome Archive::get(FileReader&, const Plan&, Factor<std::complex<float>>&);
template FactorOutcome Archive::get(FileReader&, const Plan&, Factor<std::complex<double>>&);
template FactorOutcome Archive::complete(PanelFiles&, const Factor<float>&);
template FactorOutcome Archive::complete(PanelFiles&, const Factor<double>&);
template FactorOutcome Archive::complete(PanelFiles&, const Factor<std::complex<float>>&);
template FactorOutcome Archive::complete(PanelFiles&, const Factor<std::complex<double>>&);
template FactorOutcome Archive::open(const char*, std::uint64_t, PanelFiles&, Plan&, Factor<float>&);
template FactorOutcome Archive::open(const char*, std::uint64_t, PanelFiles&, Plan&, Factor<double>&);
template FactorOutcome Archive::open(const char*, std::uint64_t, PanelFiles&, Plan&, Factor<std::complex<float>>&);
template FactorOutcome Archive::open(const char*, std::uint64_t, PanelFiles&, Plan&, Factor<std::complex<double>>&);

}  // namespace quorin::sparse
