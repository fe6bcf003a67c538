// Variables by their degree.
#pragma once

#include <algorithm>
#include <cstddef>

#include "base/workspace.hpp"

namespace quorin::sparse {

// A doubly linked list for each degree 0, ..., n - 1; the variable that came last comes first.
class DegreeLists {
 public:
  static constexpr int kNobody = -1;

  explicit DegreeLists(int n) noexcept
      : links_(base::saturating_product(static_cast<std::size_t>(n), 3)),
        first_(links_.data()),
        next_(first_ + n),
        previous_(next_ + n),
        least_(n) {
    std::fill(links_.begin(), links_.end(), kNobody);
  }
  explicit operator bool() const noexcept { return static_cast<bool>(links_); }

  void insert(int i, int degree) noexcept {
    const int second = first_[degree];
    next_[i] = second;
    previous_[i] = head_mark(degree);
    if (second != kNobody) previous_[second] = i;
    first_[degree] = i;
    least_ = std::min(least_, degree);
  }
  void remove(int i) noexcept {
    if (next_[i] != kNobody) previous_[next_[i]] = previous_[i];
    if (previous_[i] >= 0) {
      next_[previous_[i]] = next_[i];
    } else {
      first_[degree_of(previous_[i])] = next_[i];
    }
    previous_[i] = kNobody;
  }
  bool contains(int i) const noexcept { return previous_[i] != kNobody; }

  // Takes out a variable of the least degree there is; there must be one.
  int take_least() noexcept {
    while (first_[least_] == kNobody) ++least_;
    return take_another();
  }
  // Takes out another one of the same degree, or returns kNobody.
  int take_another() noexcept {
    const int i = first_[least_];
    if (i != kNobody) remove(i);
    return i;
  }

 private:
  // The first of a list has no variable before it but the list's degree, below kNobody.
  static constexpr int head_mark(int degree) noexcept { return kNobody - 1 - degree; }
  static constexpr int degree_of(int mark) noexcept { return kNobody - 1 - mark; }

  base::Workspace<int> links_;
  int *first_, *next_, *previous_;
  int least_;
};

}  // namespace quorin::sparse
