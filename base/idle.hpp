// What the library gives back when it has had nothing to do for a while.
#pragma once

namespace quorin::base {

// `action` is called whenever the last worker ends because no region has come for the block time. It must wait for no
// region and no worker; null for none. Not to be set while there are workers.
void set_idle_action(void (*action)() noexcept);

}  // namespace quorin::base
