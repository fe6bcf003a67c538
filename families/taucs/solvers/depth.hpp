// The limit for the depth of elimination trees.
#pragma once

#include "families/taucs/messages.hpp"

namespace quorin::taucs {

// Reports the depth; whether the limit, if there is one (not 0), lets it pass.
inline bool accepts_depth(int depth, int limit, bool is_ldlt) {
  message("\t\tElimination tree depth is %d\n", depth);
  if (limit == 0 || depth <= limit) return true;
  if (is_ldlt) {
    message("taucs_ccs_ldlt_symbolic_elimination: etree depth %d, maximum allowed is %d\n", depth, limit);
  } else {
    message("taucs_ccs_symbolic_elimination: etree depth %d, maximum allowed is %d\n", depth, limit);
  }
  return false;
}

}  // namespace quorin::taucs
