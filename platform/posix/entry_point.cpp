// The shared object's load hook. There is no unload hook: the object stays mapped until the process ends (-z nodelete),
// because its worker threads run its code.
#include "platform/load_hooks.hpp"

namespace {

[[gnu::constructor]] void load() { quorin::platform::on_load(); }

}  // namespace
