// The first stage: matching, scaling and order, the plan, and where entries go.
#include <algorithm>
#include <limits>

#include "families/pardiso/fingerprint.hpp"
#include "families/pardiso/typed_solver.hpp"

namespace quorin::pardiso {

template <Scalar T>
sparse::Factorization TypedSolver<T>::factorization() const {
  if (!kind_.stores_upper) return sparse::Factorization::kLU;
  if (kind_.is_definite) return sparse::Factorization::kLLT;
  return kind_.is_hermitian ? sparse::Factorization::kLDLH : sparse::Factorization::kLDLT;
}

template <Scalar T>
sparse::LinearSystem<T> TypedSolver<T>::system_of(const T* values) const {
  sparse::LinearSystem<T> system;
  system.A = {pattern_.view(), values};
  system.by_rows = true;
  system.read = kind_.stores_upper ? sparse::Triangle::kUpper : sparse::Triangle::kAll;
  system.symmetry = !kind_.stores_upper  ? sparse::Symmetry::kGeneral
                    : kind_.is_hermitian ? sparse::Symmetry::kHermitian
                                         : sparse::Symmetry::kSymmetric;
  return system;
}

// Whether a diagonal matrix has a zero, which no matching or perturbation should hide.
template <Scalar T>
bool TypedSolver<T>::is_singular_diagonal(const T* values) const {
  return !kind_.is_definite && pattern_.is_diagonal() && std::find(values, values + size(), T{}) != values + size();
}

template <Scalar T>
Error TypedSolver<T>::preprocess(const T* values, sparse::Preprocessing<Real>& prepared) const {
  base::Workspace<int> flagged(static_cast<std::size_t>(flagged_));
  if (!flagged) return Error::kNoMemory;
  int* last = flagged.begin();
  for (int i = 0; i < size(); ++i) {
    if (is_flagged(i)) *last++ = i;
  }
  const sparse::LinearSystem<T> system = system_of(values);
  const sparse::PreprocessOptions options = {
      .by_rows = system.by_rows,
      .read = system.read,
      .symmetry = system.symmetry,
      .scales = options_.is_scaled,
      .matches = options_.is_matched,
      .ordering = options_.takes_permutation ? sparse::OrderingMethod::kGiven : options_.ordering,
      .permutation = options_.takes_permutation ? given_order_.data() : nullptr,
      .last = {flagged.data(), flagged.size()},
      .last_are_schur = schur() != Schur::kNone,
  };
  return error_of(sparse::preprocess(system.A, options, prepared));
}

template <Scalar T>
Error TypedSolver<T>::analyze(const Call& call) {
  base::Workspace<T> storage;
  const T* values = nullptr;
  if (options_.is_matched || options_.is_scaled) {
    values = gather(call, storage);
    if (values == nullptr) return Error::kNoMemory;
    if (is_singular_diagonal(values)) return Error::kDiagonalSingular;
  }
  if (const Error error = analyze_values(call, values); error != Error::kDone) return error;
  if (analysis_results_.factor_entries > std::numeric_limits<int>::max()) return Error::kTooLarge;
  if (options_.returns_permutation || options_.partial != Partial::kNone) {
    // A block stands where its first equation is.
    const int order = size() / host_size();
    std::int32_t* place = call.perm;
    for (const int k : order_) {
      if (k % order == 0) *place++ = k / order + options_.base();
    }
  }
  given_order_ = {};
  return Error::kDone;
}

// Replaces what there is, unless it fails; no factor may stand on that.
template <Scalar T>
Error TypedSolver<T>::analyze_values(const Call& call, const T* values) {
  sparse::Preprocessing<Real> prepared;
  {
    const Statistics::Timer timer = call.time(Step::kPreprocessing);
    if (const Error error = preprocess(values, prepared); error != Error::kDone) return error;
    if (options_.is_matched) values_fingerprint_ = fingerprint_of(values);
  }
  const Statistics::Timer timer = call.time(Step::kSymbolic);
  sparse::Plan plan;
  sparse::PlanOptions options{.schur_size = schur_size(), .pair_of = prepared.pair_of.data()};
  if (!options_.is_in_memory) {
    options.panels = sparse::panel_kind(factorization());
    options.most_elements =
        sparse::most_elements_within(static_cast<std::uint64_t>(read_out_of_core_settings().budget()), sizeof(T));
  }
  Error error = error_of(plan.build(prepared.graph, prepared.ordering(), options));
  if (error != Error::kDone) return error;
  const auto exchange = [&] {
    row_position_.swap(prepared.row_position);
    row_scale_.swap(prepared.row_scale);
    column_scale_.swap(prepared.column_scale);
    std::swap(plan, plan_);
  };
  exchange();
  error = find_places();
  if (error != Error::kDone) {
    exchange();
    return error;
  }
  order_.swap(prepared.permutation);
  set_results(prepared.graph);
  return Error::kDone;
}

template <Scalar T>
Error TypedSolver<T>::find_places() {
  const sparse::LinearSystem<T> system = system_of(nullptr);
  return error_of(assembly_.build(plan_, system.A,
                                  {.panels = sparse::panel_kind(factorization()),
                                   .by_rows = system.by_rows,
                                   .read = system.read,
                                   .symmetry = system.symmetry,
                                   .row_position = row_position_.data()}));
}

template <Scalar T>
std::uint64_t TypedSolver<T>::fingerprint_of(const T* values) const {
  return fingerprint(values, static_cast<std::size_t>(pattern_.entries()) * (sizeof(T) / sizeof(std::uint32_t)));
}

namespace {

// What orderings take for a vertex and for a directed edge, in bytes, and nested dissection for itself, as measured.
struct OrderingBytes {
  std::int64_t of_vertex, of_edge, own;
};
OrderingBytes bytes_of_ordering(const AnalysisOptions& options) {
  if (options.takes_permutation) return {};
  constexpr std::int64_t kDissectionItself = 175'000;
  return options.ordering == sparse::OrderingMethod::kMinimumDegree ? OrderingBytes{192, 14, 0}
                                                                    : OrderingBytes{88, 18, kDissectionItself};
}

}  // namespace

// What is counted of memory is what has a number for each equation, supernode or entry. The peak is that of the
// ordering or that of the plan, with the graph, and some numbers for each vertex, at its side.
template <Scalar T>
void TypedSolver<T>::set_results(const sparse::Graph& graph) {
  const auto kind = sparse::panel_kind(factorization());
  const std::int64_t n = size(), entries = plan_.entries(), edges = graph.directed_edges();
  const bool is_lu = kind == sparse::PanelKind::kUnsymmetric;
  AnalysisResults& results = analysis_results_;
  results.factor_entries = is_lu ? 2 * entries - n : entries;
  results.operations = plan_.operations() * (is_lu ? 2.0 : 1.0) * (kIsComplex<T> ? 4.0 : 1.0);
  std::int64_t rows = 0;
  for (int s = 0; s < plan_.supernodes(); ++s) rows += plan_.below_count(s);
  constexpr std::int64_t kPlanArrays = 4, kWorkArrays = 18;
  constexpr auto kInt = static_cast<std::int64_t>(sizeof(int)), kScalar = static_cast<std::int64_t>(sizeof(T));
  constexpr std::int64_t kSupernode = 4 * kInt + 2 * static_cast<std::int64_t>(sizeof(double));
  const auto scales = static_cast<std::int64_t>((row_scale_.size() + column_scale_.size()) * sizeof(Real));
  const auto pattern = static_cast<std::int64_t>(pattern_.bytes());
  results.kept_bytes = pattern + static_cast<std::int64_t>(assembly_.bytes()) + (kPlanArrays * n + rows) * kInt +
                       plan_.supernodes() * kSupernode + scales;
  const OrderingBytes ordering = bytes_of_ordering(options_);
  const std::int64_t graph_bytes = (edges + n) * kInt, matching_bytes = options_.is_matched ? graph_bytes : 0;
  const std::int64_t in_ordering = pattern + scales + matching_bytes + (kind_.stores_upper ? 0 : edges * kInt) +
                                   n * ordering.of_vertex + edges * ordering.of_edge +
                                   std::min(ordering.own, n * ordering.of_vertex);
  const std::int64_t neighbour_bytes = (edges + 2 * n) * kInt;
  const std::int64_t in_plan =
      results.kept_bytes + matching_bytes + graph_bytes + neighbour_bytes + kWorkArrays * n * kInt;
  results.peak_bytes = std::max(in_ordering, in_plan);
  const std::int64_t vectors = 3 * n * kScalar;
  results.factor_bytes = sparse::peak_bytes<T>(plan_, factor_options({})) + vectors;
  results.least_bytes = std::min(3 * plan_.largest_panel(kind) * kScalar + vectors, results.factor_bytes);
}

template class TypedSolver<float>;
template class TypedSolver<double>;
template class TypedSolver<std::complex<float>>;
template class TypedSolver<std::complex<double>>;

}  // namespace quorin::pardiso
