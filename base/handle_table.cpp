#include "base/handle_table.hpp"

#include <atomic>
#include <mutex>

namespace quorin::base {
namespace {

// Begins where a 32-bit host has no memory of its own.
constinit std::atomic<std::uintptr_t> serial{0x6000'0000};

}  // namespace

HandleNode** HandleList::link_to(std::uintptr_t handle) {
  HandleNode** link = &buckets_[handle / 2 % kBuckets];
  while (*link != nullptr && (*link)->handle_ != handle) link = &(*link)->next_;
  return link;
}

void* HandleList::insert(HandleNode& node) {
  const std::lock_guard lock(mutex_);
  HandleNode** link = nullptr;
  do {  // until a number that is free, should all have been in use once
    node.handle_ = 2 * serial.fetch_add(1, std::memory_order_relaxed) + 1;
    link = link_to(node.handle_);
  } while (*link != nullptr);
  *link = &node;
  return reinterpret_cast<void*>(node.handle_);
}

HandleNode* HandleList::find(const void* handle) {
  const std::lock_guard lock(mutex_);
  return *link_to(reinterpret_cast<std::uintptr_t>(handle));
}

HandleNode* HandleList::remove(const void* handle) {
  const std::lock_guard lock(mutex_);
  HandleNode** const link = link_to(reinterpret_cast<std::uintptr_t>(handle));
  HandleNode* const node = *link;
  if (node != nullptr) *link = node->next_;
  return node;
}

}  // namespace quorin::base
