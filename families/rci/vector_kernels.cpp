#include "families/rci/vector_kernels.hpp"

#include <cmath>
#include <cstring>

#include "base/sums.hpp"

namespace quorin::rci {

using base::sum_over, base::sweep;

void copy(std::size_t n, const double* x, double* y) { std::memmove(y, x, n * sizeof *x); }

double subtract(std::size_t n, const double* b, const double* q, double* r) {
  return sum_over(n, [=](std::size_t i, auto access) {
    const auto entry = access.get(b + i) - access.get(q + i);
    access.put(r + i, entry);
    return entry * entry;
  });
}

void update_direction(std::size_t n, const double* z, double beta, double* p) {
  sweep(n, [=](std::size_t i, auto access) { access.put(p + i, access.get(z + i) + beta * access.get(p + i)); });
}

double advance(std::size_t n, double alpha, const double* p, const double* q, double* x, double* r) {
  return sum_over(n, [=](std::size_t i, auto access) {
    access.put(x + i, access.get(x + i) + alpha * access.get(p + i));
    const auto entry = access.get(r + i) - alpha * access.get(q + i);
    access.put(r + i, entry);
    return entry * entry;
  });
}

double subtract_and_dot(std::size_t n, double h, const double* v, double* w, const double* next) {
  return sum_over(n, [=](std::size_t i, auto access) {
    const auto entry = access.get(w + i) - h * access.get(v + i);
    access.put(w + i, entry);
    return access.get(next + i) * entry;
  });
}

void divide(std::size_t n, double s, double* x) {
  const double reciprocal = 1.0 / s;
  if (std::isnormal(reciprocal)) {
    sweep(n, [=](std::size_t i, auto access) { access.put(x + i, access.get(x + i) * reciprocal); });
  } else {
    for (std::size_t i = 0; i < n; ++i) x[i] /= s;
  }
}

void add_combination(std::size_t n, const double* z, std::size_t count, const double* y, double* x) {
  // Four columns at a time: x is read and written a quarter as often.
  std::size_t k = 0;
  for (; k + 4 <= count; k += 4) {
    const double *z0 = z + k * n, *z1 = z0 + n, *z2 = z1 + n, *z3 = z2 + n;
    const double y0 = y[k], y1 = y[k + 1], y2 = y[k + 2], y3 = y[k + 3];
    sweep(n, [=](std::size_t i, auto access) {
      access.put(x + i, access.get(x + i) + ((y0 * access.get(z0 + i) + y1 * access.get(z1 + i)) +
                                             (y2 * access.get(z2 + i) + y3 * access.get(z3 + i))));
    });
  }
  for (; k < count; ++k) {
    const double* column = z + k * n;
    const double factor = y[k];
    sweep(n,
          [=](std::size_t i, auto access) { access.put(x + i, access.get(x + i) + factor * access.get(column + i)); });
  }
}

}  // namespace quorin::rci
