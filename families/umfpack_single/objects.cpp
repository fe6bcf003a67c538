#include "families/umfpack_single/objects.hpp"

#include <new>

#include "base/allocator.hpp"

namespace quorin::umfpack_single {
namespace {

constinit base::HandleList live;

}  // namespace

Object* create_object(Kind kind) {
  void* const memory = base::allocate(sizeof(Object));
  if (memory == nullptr) return nullptr;
  auto* const object = new (memory) Object;
  object->kind = kind;
  return object;
}

void* publish(Object* object) { return live.insert(*object); }

void destroy(Object* object) {
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

Object* find(const void* handle, Kind kind) {
  auto* const object = static_cast<Object*>(live.find(handle));
  return object != nullptr && object->kind == kind ? object : nullptr;
}

Object* withdraw(const void* handle, Kind kind) {
  return find(handle, kind) != nullptr ? static_cast<Object*>(live.remove(handle)) : nullptr;
}

}  // namespace quorin::umfpack_single
