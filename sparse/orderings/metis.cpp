// Nested dissection by METIS, and what METIS calls in place of the C library's functions in the copy of it that we link
// (CMakeLists.txt renames them).
//
// METIS answers a failed allocation with a message on the standard error stream and SIGABRT, for which it lays a
// handler that jumps back to its entry: a message that nobody asked for, a handler under the host's feet, and, where
// signals are masked while they are handled, a second failure that ends the process. Here the jump comes at once,
// without a signal.
#include <metis.h>
#include <session.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <mutex>
#include <type_traits>

#include "base/allocator.hpp"
#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "platform/platform.hpp"
#include "sparse/orderings/dissection.hpp"
#include "sparse/orderings/orderings.hpp"

namespace {

// METIS's sessions. The slot is made by the first call that wants one.
constinit quorin::platform::Mutex slot_lock;
constinit quorin::platform::ThreadSlot session_slot;
constinit bool has_slot = false;

}  // namespace

// Names that are others' choice.
extern "C" {

quorin_metis_session* quorin_metis_current() { return static_cast<quorin_metis_session*>(session_slot.get()); }
int quorin_metis_set_current(quorin_metis_session* session) {
  session_slot.set(session);
  return static_cast<int>(session_slot.get() == session);
}

// Makes a call of METIS return: out of memory for SIGABRT, another error for SIGTERM.
[[noreturn]] void gk_sigthrow(int signal);

void* quorin_metis_malloc(std::size_t bytes) { return quorin::base::allocate(bytes); }
void* quorin_metis_calloc(std::size_t count, std::size_t bytes) { return quorin::base::allocate_zeroed(count, bytes); }
void quorin_metis_free(void* memory) { quorin::base::release(memory); }

// METIS would lose the old block, which holds the record of all that it has to free.
void* quorin_metis_realloc(void* memory, std::size_t bytes) {
  void* const moved = quorin::base::reallocate(memory, bytes);
  if (moved == nullptr) gk_sigthrow(SIGABRT);
  return moved;
}

[[noreturn]] int quorin_metis_raise(int signal) { gk_sigthrow(signal); }
[[noreturn]] void quorin_metis_exit(int) { gk_sigthrow(SIGTERM); }
void* quorin_metis_signal(int, void (*)(int)) { return nullptr; }

int quorin_metis_fflush(void*) { return 0; }
#if defined(_WIN32)
int quorin_metis___mingw_vfprintf(void*, const char*, std::va_list) { return 0; }
#else
int quorin_metis_printf(const char*, ...) { return 0; }
int quorin_metis_puts(const char*) { return 0; }
int quorin_metis_fprintf(void*, const char*, ...) { return 0; }
int quorin_metis_vfprintf(void*, const char*, std::va_list) { return 0; }
int quorin_metis_fputc(int character, void*) { return character; }
#endif
}

namespace quorin::sparse {

static_assert(std::is_same_v<idx_t, int>);

namespace {

Outcome outcome_of(int status) noexcept {
  switch (status) {
    case METIS_OK:
      return Outcome::kDone;
    case METIS_ERROR_MEMORY:
      return Outcome::kOutOfMemory;
    default:
      return Outcome::kFailed;
  }
}

// METIS has no const; it reads these.
int* starts_of(const Graph& graph) noexcept { return const_cast<int*>(graph.starts()); }
int* adjacency_of(const Graph& graph) noexcept { return const_cast<int*>(graph.adjacency()); }

// Without edges METIS divides by zero.
Outcome dissect(const Graph& graph, const Ordering& ordering) noexcept {
  if (graph.directed_edges() == 0) {
    order_identity(graph.size(), ordering);
    return Outcome::kDone;
  }
  return outcome_of(quorin_metis_dissect(graph.size(), starts_of(graph), adjacency_of(graph), ordering.permutation,
                                         ordering.inverse));
}

// The first levels of the dissection by ourselves, so that threads may have the parts.
class PartedDissection {
 public:
  // Smaller parts are not cut.
  static constexpr int kLeastToCut = 8000;

  PartedDissection(const Graph& graph, const Ordering& ordering) noexcept
      : graph_(graph), vertices_(ordering.permutation), number_(ordering.inverse) {}

  Outcome run(int threads) noexcept {
    const int n = graph_.size();
    order_identity(n, {vertices_, number_});
    parts_[0] = {0, n};
    Outcome outcome = Outcome::kDone;
    for (; count_ < kMostParts && outcome == Outcome::kDone; count_ *= 2) {
      for (int i = count_ - 1; i > 0; --i) parts_[place(2 * i)] = parts_[place(i)];
      outcome = for_each_part(threads, 2, [this](Part& part) { return cut(part); });
    }
    if (outcome == Outcome::kDone) outcome = for_each_part(threads, 1, [this](Part& part) { return order(part); });
    if (outcome == Outcome::kDone) invert(n, {vertices_, number_});
    return outcome;
  }

 private:
  static constexpr int kMostParts = 8;

  // Vertices that have the steps from `first` on, before `end`, in an order that is not known yet.
  struct Part {
    int first = 0, end = 0;
    int size() const noexcept { return end - first; }
  };
  static std::size_t place(int i) noexcept { return static_cast<std::size_t>(i); }

  // Of several parts' outcomes the first that is not kDone.
  template <class Body>
  Outcome for_each_part(int threads, int stride, const Body& body) noexcept {
    std::array<Outcome, kMostParts> outcomes;
    base::parallel_for(count_, threads, [&](int i) { outcomes[place(i)] = body(parts_[place(stride * i)]); });
    const auto end = outcomes.begin() + count_;
    const auto failed = std::find_if(outcomes.begin(), end, [](Outcome x) { return x != Outcome::kDone; });
    return failed == end ? Outcome::kDone : *failed;
  }

  // Between parts there are separators alone, whose vertices have no numbers.
  Outcome subgraph_of(const Part& part, Graph& subgraph) const noexcept {
    const auto all = place(graph_.size());
    return induced_subgraph(graph_, {vertices_ + part.first, place(part.size())}, {number_, all}, subgraph);
  }

  // Becomes two parts, the second behind it, and the separator, which comes last.
  Outcome cut(Part& part) noexcept {
    Part& second = *(&part + 1);
    second = {part.end, part.end};
    if (part.size() < kLeastToCut) return Outcome::kDone;
    Graph subgraph;
    base::Workspace<int> memory(2 * place(part.size()));
    if (!memory) return Outcome::kOutOfMemory;
    if (const Outcome outcome = subgraph_of(part, subgraph); outcome != Outcome::kDone) return outcome;
    if (subgraph.directed_edges() == 0) return Outcome::kDone;
    int *const side = memory.data(), *const old = side + part.size();
    const Outcome outcome =
        outcome_of(quorin_metis_separate(part.size(), starts_of(subgraph), adjacency_of(subgraph), side));
    if (outcome != Outcome::kDone) return outcome;
    std::copy_n(vertices_ + part.first, part.size(), old);
    int* end = vertices_ + part.first;
    int ends[3];
    for (int which = 0; which < 3; ++which) {
      int count = 0;
      for (int k = 0; k < part.size(); ++k) {
        if (side[k] != which) continue;
        *end++ = old[k];
        number_[old[k]] = which < 2 ? count++ : kNone;
      }
      ends[which] = static_cast<int>(end - vertices_);
    }
    second = {ends[0], ends[1]};
    part.end = ends[0];
    return Outcome::kDone;
  }

  Outcome order(Part& part) const noexcept {
    if (part.size() == 0) return Outcome::kDone;
    Graph subgraph;
    base::Workspace<int> memory(base::saturating_product(3, place(part.size())));
    if (!memory) return Outcome::kOutOfMemory;
    if (const Outcome outcome = subgraph_of(part, subgraph); outcome != Outcome::kDone) return outcome;
    const Ordering own{memory.data(), memory.data() + part.size()};
    int *const vertices = vertices_ + part.first, *const old = own.inverse + part.size();
    if (const Outcome outcome = dissect(subgraph, own); outcome != Outcome::kDone) return outcome;
    std::copy_n(vertices, part.size(), old);
    for (int k = 0; k < part.size(); ++k) vertices[k] = old[own.permutation[k]];
    return Outcome::kDone;
  }

  const Graph& graph_;
  int* const vertices_;  // each part's beside each other
  int* const number_;    // of a vertex in its part
  int count_ = 1;
  std::array<Part, kMostParts> parts_;
};

// Without a slot that the system has to give, calls are out of memory.
void prepare_sessions() noexcept {
  const std::lock_guard guard(slot_lock);
  if (!has_slot) session_slot.create();
  has_slot = true;
}

}  // namespace

Outcome order_metis(const Graph& graph, const Ordering& ordering) noexcept {
  prepare_sessions();
  return dissect(graph, ordering);
}

Outcome order_dissection(const Graph& graph, const Ordering& ordering) noexcept {
  prepare_sessions();
  if (graph.size() < PartedDissection::kLeastToCut) return dissect(graph, ordering);
  return PartedDissection(graph, ordering).run(base::region_threads(base::Domain::kSparseDirect));
}

void stop_orderings() noexcept {
  session_slot.destroy();
  has_slot = false;
}

}  // namespace quorin::sparse
