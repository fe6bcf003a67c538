#include "umfpack_single/objects.hpp"

#include <array>
#include <mutex>
#include <new>

#include "base/allocator.hpp"
#include "platform/platform.hpp"

namespace quorin::umfpack_single {
namespace {

// Chains of live objects. Ids are given out in turn and so fill the chains evenly.
constexpr std::size_t kChains = 256;

constinit platform::Mutex mutex;
constinit std::array<Object*, kChains> chains{};
// Odd, so that no address of a host's object can be a handle.
constinit std::uintptr_t last_id = 1;

Object*& chain_of(std::uintptr_t id) noexcept { return chains[id / 2 % kChains]; }

// The link that leads to the object, or to null at the end of its chain.
Object** link_to(const void* handle, Kind kind) noexcept {
  const auto id = reinterpret_cast<std::uintptr_t>(handle);
  Object** link = &chain_of(id);
  while (*link != nullptr && ((*link)->id != id || (*link)->kind != kind)) link = &(*link)->following;
  return link;
}

}  // namespace

Object* create_object(Kind kind) noexcept {
  void* const memory = base::allocate(sizeof(Object));
  if (memory == nullptr) return nullptr;
  auto* const object = new (memory) Object;
  object->kind = kind;
  return object;
}

void* publish(Object* object) noexcept {
  const std::lock_guard lock(mutex);
  last_id += 2;
  object->id = last_id;
  Object*& chain = chain_of(last_id);
  object->following = chain;
  chain = object;
  return reinterpret_cast<void*>(last_id);
}

void destroy(Object* object) noexcept {
  switch (object->kind) {
    case Kind::kRealSymbolic:
      Real::kFreeSymbolic(&object->contents);
      break;
    case Kind::kComplexSymbolic:
      Complex::kFreeSymbolic(&object->contents);
      break;
    case Kind::kRealNumeric:
      Real::kFreeNumeric(&object->contents);
      break;
    case Kind::kComplexNumeric:
      Complex::kFreeNumeric(&object->contents);
      break;
  }
  base::release(object);
}

Object* find(const void* handle, Kind kind) noexcept {
  const std::lock_guard lock(mutex);
  return *link_to(handle, kind);
}

Object* withdraw(const void* handle, Kind kind) noexcept {
  const std::lock_guard lock(mutex);
  Object** const link = link_to(handle, kind);
  Object* const object = *link;
  if (object != nullptr) *link = object->following;
  return object;
}

}  // namespace quorin::umfpack_single
