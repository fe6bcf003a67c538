// The library as a host sees it that loads it at run time: each export is a member of one struct.
#pragma once

#include "quorin/loader.h"

namespace demo {

using Library = quorin_library;

// Ends the program with a message if the library cannot be loaded or lacks an export.
Library load_library();

}  // namespace demo
