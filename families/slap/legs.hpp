// The outer loop of the iterations that run in legs.
#pragma once

#include "families/slap/iterations.hpp"

namespace quorin::slap {

// Runs legs until nothing is left to do. run_leg() goes on from r = b - A x and z = M^-1 r and tells how it ended;
// `scratch` is its own then.
template <class T, class RunLeg>
void run_legs(const System<T>& system, Progress& progress, T* r, T* z, T* scratch, RunLeg run_leg) {
  for (Leg leg = Leg::kFirst; leg != Leg::kOver; leg = run_leg()) {
    system.residual(r);
    system.precondition(r, z);
    if (progress.is_done_after(leg, system, r, z, scratch)) return;
  }
}

}  // namespace quorin::slap
