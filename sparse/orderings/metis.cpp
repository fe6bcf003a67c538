// Nested dissection by METIS, and what METIS calls in place of the C library's functions in the copy of it that we link
// (CMakeLists.txt renames them).
//
// METIS answers a failed allocation with a message on the standard error stream and SIGABRT, for which it lays a
// handler that jumps back to its entry: a message that nobody asked for, a handler under the host's feet, and, where
// signals are masked while they are handled, a second failure that ends the process. Here the jump comes at once,
// without a signal.
#include <metis.h>

#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <mutex>
#include <type_traits>

#include "base/allocator.hpp"
#include "platform/platform.hpp"
#include "sparse/orderings/orderings.hpp"

// Names that are others' choice.
extern "C" {

// Makes METIS_NodeND return: out of memory for SIGABRT, another error for SIGTERM.
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

// METIS keeps its heap's bookkeeping and its jump target in global variables.
constinit platform::Mutex metis_lock;

}  // namespace

// Without edges METIS divides by zero.
Outcome order_metis(const Graph& graph, const Ordering& ordering) noexcept {
  if (graph.directed_edges() == 0) {
    order_identity(graph.size(), ordering);
    return Outcome::kDone;
  }
  // METIS has no const; it reads these.
  int n = graph.size();
  int* const starts = const_cast<int*>(graph.starts());
  int* const adjacency = const_cast<int*>(graph.adjacency());
  const std::lock_guard guard(metis_lock);
  switch (METIS_NodeND(&n, starts, adjacency, nullptr, nullptr, ordering.permutation, ordering.inverse)) {
    case METIS_OK:
      return Outcome::kDone;
    case METIS_ERROR_MEMORY:
      return Outcome::kOutOfMemory;
    default:
      return Outcome::kFailed;
  }
}

}  // namespace quorin::sparse
