#include "quorin/quorin.h"
