#include "families/pardiso/handles.hpp"

#include <algorithm>

#include "base/handle_table.hpp"

namespace quorin::pardiso {
namespace {

struct Owner : base::HandleNode {
  Owner() = default;
  ~Owner() { Solver::destroy(solver); }
  explicit operator bool() const { return true; }
  Solver* solver = nullptr;
};

constinit base::HandleTable<Owner> owners;

bool are_zero(void* const* begin, void* const* end) {
  return std::all_of(begin, end, [](const void* word) { return word == nullptr; });
}

}  // namespace

// The first word is the handle, the others are zero.
Words look_up(void* const* pt, Solver*& solver) {
  if (!are_zero(pt + 1, pt + kHandleWords)) return Words::kForeign;
  if (pt[0] == nullptr) return Words::kZero;
  const Owner* const owner = owners.find(pt[0]);
  if (owner == nullptr) return Words::kForeign;
  solver = owner->solver;
  return Words::kOurs;
}

bool write_handle(void** pt, Solver* solver) {
  void* const handle = owners.create();
  if (handle == nullptr) return false;
  owners.find(handle)->solver = solver;
  clear(pt);
  pt[0] = handle;
  return true;
}

void free_handle(void** pt) {
  static_cast<void>(owners.erase(pt[0]));
  clear(pt);
}

void clear(void** pt) { std::fill_n(pt, kHandleWords, nullptr); }

}  // namespace quorin::pardiso
