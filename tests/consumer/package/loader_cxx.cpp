#define QUORIN_LOADER_IMPLEMENTATION
#include "quorin/loader.h"
