#include <algorithm>
#include <cstddef>

#include "dense/dense.hpp"
#include "families/slap/iterations.hpp"

namespace quorin::slap {
namespace {

// The last length + 1 directions p with their products q = A p, numbered 0, 1, ... without end.
class Directions {
 public:
  Directions(int n, int length, float* memory)
      : n_(n), length_(length), p_(memory), q_(p(length) + n), inverse_(q(length) + n) {}

  float* p(int k) const { return p_ + offset(k); }
  float* q(int k) const { return q_ + offset(k); }
  // 1 / (q(k), q(k)); kept for the last `length` directions.
  float& inverse(int k) const { return inverse_[k % length_]; }
  int length() const { return length_; }

 private:
  std::ptrdiff_t offset(int k) const { return static_cast<std::ptrdiff_t>(k % (length_ + 1)) * n_; }

  int n_, length_;
  float *p_, *q_, *inverse_;
};

// Makes q(k) orthogonal to those before from `oldest` on, and takes p(k) along.
void orthogonalise(int n, const Directions& directions, int oldest, int k) {
  for (int i = std::max(oldest, k - directions.length()); i < k; ++i) {
    const float c = dense::dotu(n, directions.q(i), 1, directions.q(k), 1) * directions.inverse(i);
    dense::axpy(n, -c, directions.p(i), 1, directions.p(k), 1);
    dense::axpy(n, -c, directions.q(i), 1, directions.q(k), 1);
  }
}

}  // namespace

void orthomin(const System<float>& system, int length, Progress& progress, float* vectors) {
  const int n = system.n();
  float* const r = vectors;
  const Directions directions(n, length, r + n);
  system.residual(r);
  system.precondition(r, directions.p(0));
  if (progress.is_done_after(Leg::kFirst, system, r, directions.p(0), directions.q(0))) return;
  progress.rescale(n, Scaling::kBySquares, r, directions.p(0));
  int oldest = 0;
  for (int k = 0; progress.next(); ++k) {
    float *const p = directions.p(k), *const q = directions.q(k);
    system.matrix.multiply(p, q);
    orthogonalise(n, directions, oldest, k);
    const float qq = dense::dotu(n, q, 1, q, 1), rq = dense::dotu(n, r, 1, q, 1);
    if (!(qq > 0) || rq == 0) {
      progress.fail(qq > 0 ? kSecondBreakdown : kBreakdown);
      return;
    }
    if (length > 0) directions.inverse(k) = 1 / qq;
    const float alpha = rq / qq;
    dense::axpy(n, progress.unscaled(alpha), p, 1, system.x, 1);
    dense::axpy(n, -alpha, q, 1, r, 1);
    float* const z = directions.p(k + 1);
    system.precondition(r, z);
    if (!progress.claims_convergence(progress.tested_norm(system, r, z))) continue;
    // The recurrence says so. Its residual drifts from the true one, which takes its place. What the two differ in is
    // rounding, and so are the last directions: none of them is remembered.
    system.residual(r);
    system.precondition(r, z);
    if (progress.is_done_after(Leg::kClaimed, system, r, z, directions.q(k + 1))) return;
    progress.rescale(n, Scaling::kBySquares, r, z);
    oldest = k + 1;
  }
}

}  // namespace quorin::slap
