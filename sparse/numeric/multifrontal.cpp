#include <algorithm>
#include <array>
#include <complex>
#include <cstddef>
#include <cstring>

#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/blocked.hpp"
#include "sparse/numeric/factor_task.hpp"
#include "sparse/numeric/loops.hpp"
#include "sparse/numeric/thread_slots.hpp"

namespace quorin::sparse {

using base::Workspace;

namespace {

std::size_t to_size(std::int64_t n) noexcept { return static_cast<std::size_t>(n); }

// The subtrees that are cut off for threads, and the elements of the stacks of update matrices.
class Division {
 public:
  Division(const Plan& plan, int threads) noexcept {
    if (threads == 1) {
      top_stack = plan.stack_elements();
      return;
    }
    ranges_ = Workspace<SupernodeRange>(to_size(kRangesPerPart * kPartsPerThread * threads));
    if (ranges_) count = plan.cut_by_operations(kPartsPerThread * threads, ranges_.data());
    for (int r = 0; r < count; ++r) {
      StackUse use;
      for (int s = range(r).first; s < range(r).end; ++s) use.make(plan, s, [](int) { return true; });
      subtree_stack = std::max(subtree_stack, use.most);
      left_by_subtrees += use.size;
    }
    StackUse use;
    for_top(plan.supernodes(), [&](int s) { use.make(plan, s, [this](int c) { return !is_in_range(c); }); });
    top_stack = use.most;
  }

  SupernodeRange range(int r) const noexcept { return ranges_[to_size(r)]; }
  bool is_in_range(int s) const noexcept {
    const auto* const after = std::upper_bound(ranges_.data(), ranges_.data() + count, s,
                                               [](int k, const SupernodeRange& each) { return k < each.first; });
    return after != ranges_.data() && s < (after - 1)->end;
  }
  // Calls body(s) for the supernodes in no range, in ascending order.
  template <class Body>
  void for_top(int supernodes, const Body& body) const {
    int next = 0;
    for (int s = 0; s < supernodes;) {
      if (next < count && s == range(next).first) {
        s = range(next++).end;
      } else {
        body(s++);
      }
    }
  }

  int count = 0;                      // of ranges
  std::int64_t subtree_stack = 0;     // the most that a range needs
  std::int64_t left_by_subtrees = 0;  // what all ranges leave for the supernodes above
  std::int64_t top_stack = 0;         // what these need

 private:
  static constexpr int kPartsPerThread = 8;

  struct StackUse {
    std::int64_t size = 0, most = 0;

    template <class IsOnStack>
    void make(const Plan& plan, int s, const IsOnStack& is_on_stack) {
      most = std::max(most, size + plan.update_size(s));
      size += plan.update_size(s);
      plan.for_children(s, [&](int c) { size -= is_on_stack(c) ? plan.update_size(c) : 0; });
    }
  };

  Workspace<SupernodeRange> ranges_;
};

// The threads that work on different supernodes at a time: one where panels come from a store, whose budget need not
// have room for the panels of several.
int tree_threads(int threads, const PanelStore* store) noexcept { return store == nullptr ? threads : 1; }

template <Scalar T>
std::size_t buffer_size(const Plan& plan) noexcept {
  constexpr std::int64_t kEnough = 512 * 1024 / sizeof(T);
  const std::int64_t largest = std::int64_t{plan.most_columns()} * plan.most_below();
  return std::max(
      {to_size(plan.most_columns()), elimination_scratch(plan.most_columns()), to_size(std::min(largest, kEnough))});
}

// A stack of update matrices; each is a square matrix without gaps between columns.
template <Scalar T>
struct Stack {
  Workspace<T> memory;
  std::size_t size = 0;
};

// The memory of one thread.
template <Scalar T>
struct Worker {
  static std::size_t bytes(const Plan& plan) noexcept {
    return buffer_size<T>(plan) * sizeof(T) + (to_size(plan.size()) + to_size(plan.most_below())) * sizeof(int);
  }
  bool create(const Plan& plan, std::int64_t stack_elements) noexcept {
    buffer = Workspace<T>(buffer_size<T>(plan));
    position = Workspace<int>(to_size(plan.size()));
    places = Workspace<int>(to_size(plan.most_below()));
    stack.memory = Workspace<T>(to_size(stack_elements));
    return buffer && position && places && stack.memory;
  }

  Workspace<T> buffer;
  Workspace<int> position;  // in the front that this thread makes, of its rows
  Workspace<int> places;    // most_below: rows of a child's update matrix in the front
  Stack<T> stack;
};

// What a supernode gets and gives: its panel, and the update matrix of the rows below. The front is both, under one
// numbering of rows: 0, ..., columns - 1, then the rows below.
template <Scalar T>
struct Front {
  int s, columns, below;
  T* panel;
  std::ptrdiff_t height;  // of the panel
  T* update;              // below x below; of symmetric panels the lower triangle
};

template <Scalar T>
class Multifrontal {
 public:
  explicit Multifrontal(FactorTask<T>& task) noexcept
      : task_(task),
        plan_(task.plan),
        kind_(task.panels.kind()),
        tree_threads_(tree_threads(task.threads, task.panels.store())),
        division_(plan_, tree_threads_) {}

  static std::int64_t bytes(const Plan& plan, int threads, const PanelStore* store) noexcept {
    const int workers = tree_threads(threads, store);
    const Division division(plan, workers);
    const std::int64_t elements = workers * division.subtree_stack + division.left_by_subtrees + division.top_stack;
    return elements * static_cast<std::int64_t>(sizeof(T)) +
           static_cast<std::int64_t>(to_size(plan.supernodes()) * sizeof(T*) +
                                     to_size(workers) * Worker<T>::bytes(plan));
  }

  void run() noexcept {
    if (!create()) return task_.fail(0, FactorOutcome::kOutOfMemory);
    base::parallel_for(division_.count, tree_threads_, [&](int r) {
      const SupernodeRange range = division_.range(r);
      const ThreadSlots::Slot slot(slots_, tree_threads_);
      Worker<T>& worker = workers_[slot.number()];
      worker.stack.size = 0;
      for (int s = range.first; s < range.end && task_.may_go_on(s); ++s) make_front(s, worker.stack, worker, 1);
      if (task_.may_go_on(range.end - 1)) keep_updates(range, worker.stack);
    });
    division_.for_top(plan_.supernodes(), [&](int s) {
      if (task_.may_go_on(s)) make_front(s, top_stack_, workers_[0], task_.threads);
    });
  }

 private:
  // Where a supernode's contribution to its parent begins.
  struct Update {
    T* at;
  };

  bool create() noexcept {
    updates_ = Workspace<Update>(to_size(plan_.supernodes()));
    kept_ = Workspace<T>(to_size(division_.left_by_subtrees));
    top_stack_.memory = Workspace<T>(to_size(division_.top_stack));
    bool is_created = updates_ && kept_ && top_stack_.memory;
    for (int i = 0; i < tree_threads_ && is_created; ++i) {
      is_created = workers_[to_size(i)].create(plan_, division_.subtree_stack);
    }
    return is_created;
  }

  // Puts what a range leaves on its stack where it is out of the way of the next range.
  void keep_updates(SupernodeRange range, const Stack<T>& stack) noexcept {
    const std::size_t begin = kept_size_.fetch_add(stack.size, std::memory_order_relaxed);
    std::copy_n(stack.memory.data(), stack.size, kept_.data() + begin);
    for (int c = range.end - 1; c >= range.first; c = plan_.first_descendant(c) - 1) {
      updates_[to_size(c)].at = kept_.data() + begin + (updates_[to_size(c)].at - stack.memory.data());
    }
  }

  void make_front(int s, Stack<T>& stack, Worker<T>& worker, int threads) noexcept {
    T* const panel = task_.panels.pin(s, true);
    if (panel == nullptr) return task_.fail(s, task_.panels.store()->outcome());
    // The update is made on top of the children's.
    const Front<T> front{s,     plan_.columns(s),       plan_.below_count(s),
                         panel, plan_.height(kind_, s), stack.memory.data() + stack.size};
    const std::size_t size = to_size(plan_.update_size(s));
    std::fill_n(front.update, size, T{});
    task_.assemble_panel(s, panel);
    T* bottom = front.update;
    if (plan_.first_descendant(s) < s) {
      int* const position = worker.position.data();
      for (int k = 0; k < front.columns; ++k) position[plan_.first(s) + k] = k;
      int row = front.columns;
      for (const int k : plan_.below(s)) position[k] = row++;
      plan_.for_children(s, [&](int c) {
        add_child(c, front, worker, threads);
        if (&stack != &top_stack_ || !division_.is_in_range(c)) bottom = updates_[to_size(c)].at;
      });
    }
    if (task_.eliminate(s, panel, worker.buffer.data(), threads)) {
      if (s < plan_.eliminated()) subtract_products(front, worker, threads);
      std::memmove(static_cast<void*>(bottom), front.update, size * sizeof(T));
      updates_[to_size(s)].at = bottom;
      stack.size = static_cast<std::size_t>(bottom - stack.memory.data()) + size;
      task_.report_progress(s);
    }
    task_.panels.unpin(s, true);
  }

  // Adds the update matrix of child c to the front.
  void add_child(int c, const Front<T>& front, Worker<T>& worker, int threads) noexcept {
    const int m = plan_.below_count(c);
    int* const places = worker.places.data();
    const auto rows = plan_.below(c);
    for (int i = 0; i < m; ++i) places[i] = worker.position[to_size(rows[to_size(i)])];
    const T* const update = updates_[to_size(c)].at;
    // Columns to threads: no two write to the same place.
    constexpr int kLeastColumns = 64;
    const int slices = threads == 1 ? 1 : std::clamp(m / kLeastColumns, 1, 4 * threads);
    base::parallel_for(slices, threads, [&](int slice) {
      const auto cut = [&](int i) { return static_cast<int>(std::int64_t{m} * i / slices); };
      for (int j = cut(slice); j < cut(slice + 1); ++j) {
        add_column(j, m, update + static_cast<std::ptrdiff_t>(j) * m, places, front);
      }
    });
  }

  static void add_scattered(int begin, int end, const T* x, const int* places, int offset, T* y) noexcept {
    for (int i = begin; i < end; ++i) y[places[i] - offset] += x[i];
  }

  // Column j of a child's update, whose rows stand at `places` in the front.
  void add_column(int j, int m, const T* x, const int* places, const Front<T>& front) const noexcept {
    const bool is_symmetric = kind_ == PanelKind::kSymmetric;
    const int column = places[j], columns = front.columns;
    if (column < columns) {
      return add_scattered(is_symmetric ? j : 0, m, x, places, 0, front.panel + column * front.height);
    }
    int begin = j;
    if (!is_symmetric) {
      // The rows of the diagonal block are columns of U^T.
      for (begin = 0; begin < m && places[begin] < columns; ++begin) {
        front.panel[places[begin] * front.height + column + front.below] += x[begin];
      }
    }
    add_scattered(begin, m, x, places, columns,
                  front.update + static_cast<std::ptrdiff_t>(column - columns) * front.below);
  }

  // The update matrix loses L U or L D L', what the pivots of the front take from the rows below.
  void subtract_products(const Front<T>& front, Worker<T>& worker, int threads) const noexcept {
    const int k = front.columns, m = front.below, height = static_cast<int>(front.height);
    const T* const l = front.panel + k;
    if (kind_ == PanelKind::kUnsymmetric) {
      return multiply(front, l, l + m, height, 0, m, threads);
    }
    if (!task_.has_diagonal) return multiply(front, l, l, height, 0, m, threads);
    // W = L D, for some rows at a time.
    T* const w = worker.buffer.data();
    const int most = static_cast<int>(std::clamp<std::size_t>(worker.buffer.size() / to_size(k), 1, to_size(m) + 1));
    for (int p = 0; p < m; p += most) {
      const int q = std::min(p + most, m);
      task_.multiply_by_diagonal(front.s, front.panel, l + p, q - p, w);
      multiply(front, l, w - p, q - p, p, q, threads);
    }
  }

  // Columns [p, q) of the update lose L Y', where the rows [p, q) of Y are at hand.
  void multiply(const Front<T>& front, const T* l, const T* y, int ldy, int p, int q, int threads) const noexcept {
    const int k = front.columns, m = front.below, height = static_cast<int>(front.height);
    const bool is_symmetric = kind_ == PanelKind::kSymmetric;
    const auto column = [&](int c) { return front.update + static_cast<std::ptrdiff_t>(c) * m; };
    if (k <= kFewTerms || static_cast<double>(m) * m * k <= kFewProducts) {
      T row[kFewTerms];
      for (int c = p; c < q; ++c) {
        const int begin = is_symmetric ? c : 0;
        for (int first = 0; first < k; first += kFewTerms) {
          const int count = std::min(kFewTerms, k - first);
          for (int j = 0; j < count; ++j) {
            row[j] = conjugate_if(task_.is_conjugated, y[c + static_cast<std::ptrdiff_t>(first + j) * ldy]);
          }
          subtract_multiples(m - begin, count, row, l + begin + first * front.height, front.height, column(c) + begin);
        }
      }
      return;
    }
    const char prime = task_.is_conjugated ? 'C' : 'T';
    const int square = is_symmetric ? q - p : 0, begin = is_symmetric ? q : 0;
    if (square > 0) {
      dense::blocked::gemmt('L', 'N', prime, square, k, T{-1}, l + p, height, y + p, ldy, T{1}, column(p) + p, m,
                            threads);
    }
    if (begin < m) {
      dense::blocked::gemm('N', prime, m - begin, q - p, k, T{-1}, l + begin, height, y + p, ldy, T{1},
                           column(p) + begin, m, threads);
    }
  }

  FactorTask<T>& task_;
  const Plan& plan_;
  const PanelKind kind_;
  const int tree_threads_;
  const Division division_;

  Workspace<Update> updates_;  // of the supernodes whose parent is not made yet
  Workspace<T> kept_;          // those of roots of ranges
  std::atomic<std::size_t> kept_size_ = 0;
  Stack<T> top_stack_;
  ThreadSlots slots_;
  std::array<Worker<T>, base::kMostThreads> workers_;
};

}  // namespace

template <Scalar T>
void MultifrontalMethod<T>::factor(FactorTask<T>& task) noexcept {
  Multifrontal<T>(task).run();
}

template <Scalar T>
std::int64_t MultifrontalMethod<T>::bytes(const Plan& plan, int threads, const PanelStore* store) noexcept {
  return Multifrontal<T>::bytes(plan, threads, store);
}

template struct MultifrontalMethod<float>;
template struct MultifrontalMethod<double>;
template struct MultifrontalMethod<std::complex<float>>;
template struct MultifrontalMethod<std::complex<double>>;

}  // namespace quorin::sparse
