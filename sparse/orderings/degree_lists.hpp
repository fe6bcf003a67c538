// Variables by their degree.
#pragma once

#include <algorithm>
#include <cstddef>

#include "base/workspace.hpp"
#include "sparse/pattern/compressed.hpp"

namespace quorin::sparse {

// A doubly linked list for each degree 0, ..., n - 1; the variable that came last comes first.
class DegreeLists {
 public:
  explicit DegreeLists(int n) noexcept
      : links_(base::saturating_product(static_cast<std::size_t>(n), 3)),
        first_(links_.data()),
        next_(first_ + n),
        previous_(next_ + n),
        least_(n) {
    std::fill(links_.begin(), links_.end(), kNone);
  }
  explicit operator bool() const noexcept { return static_cast<bool>(links_); }

  void insert(int i, int degree) noexcept {
    const int second = first_[degree];
    next_[i] = second;
    previous_[i] = head_mark(degree);
    if (second != kNone) previous_[second] = i;
    first_[degree] = i;
    least_ = std::min(least_, degree);
  }
  void remove(int i) noexcept {
    if (next_[i] != kNone) previous_[next_[i]] = previous_[i];
    if (previous_[i] >= 0) {
      next_[previous_[i]] = next_[i];
    } else {
      first_[degree_of(previous_[i])] = next_[i];
    }
    previous_[i] = kNone;
  }
  bool contains(int i) const noexcept { return previous_[i] != kNone; }

  // Takes out a variable of the least degree there is; there must be one.
  int take_least() noexcept {
    while (first_[least_] == kNone) ++least_;
    return take_another();
  }
  // Takes out another one of the same degree, or returns kNone.
  int take_another() noexcept {
    const int i = first_[least_];
    if (i != kNone) remove(i);
    return i;
  }

 private:
  // The first of a list has no variable before it but the list's degree, below kNone.
  static constexpr int head_mark(int degree) noexcept { return kNone - 1 - degree; }
  static constexpr int degree_of(int mark) noexcept { return kNone - 1 - mark; }

  base::Workspace<int> links_;
  int *first_, *next_, *previous_;
  int least_;
};

}  // namespace quorin::sparse
