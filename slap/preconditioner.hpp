// What the iterations see of a preconditioner M.
#pragma once

namespace quorin::slap {

class Preconditioner {
 public:
  // z <- M^-1 r; z may be r.
  virtual void solve(const float* r, float* z) const = 0;

 protected:
  ~Preconditioner() = default;
};

}  // namespace quorin::slap
