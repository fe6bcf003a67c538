// What the iterations see of a preconditioner M.
#pragma once

namespace quorin::slap {

// T is the type of the vectors; what M consists of is in single precision.
template <class T>
class Preconditioner {
 public:
  // z <- M^-1 r; z may be r.
  virtual void solve(const T* r, T* z) const = 0;

 protected:
  ~Preconditioner() = default;
};

}  // namespace quorin::slap
