#include "families/rci/vector_kernels.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace quorin::rci {
namespace {

// Two doubles in a register; memcpy makes loads and stores that need no alignment.
using Lane [[gnu::vector_size(16)]] = double;
constexpr std::size_t kWidth = 2;
constexpr std::size_t kUnroll = 4;
constexpr std::size_t kBlock = kWidth * kUnroll;

// How a kernel's body reaches memory: by whole lanes, and entry by entry for the rest.
struct Lanes {
  static Lane get(const double* x) {
    Lane lane;
    std::memcpy(&lane, x, sizeof lane);
    return lane;
  }
  static void put(double* x, Lane lane) { std::memcpy(x, &lane, sizeof lane); }
};

struct Entries {
  static double get(const double* x) { return *x; }
  static void put(double* x, double entry) { *x = entry; }
};

// Runs body(i, access) for all entries and adds up the terms that it returns.
template <class Body>
double sweep(std::size_t n, Body body) {
  Lane sum[kUnroll] = {};
  std::size_t i = 0;
  for (; i + kBlock <= n; i += kBlock) {
    for (std::size_t u = 0; u < kUnroll; ++u) sum[u] += body(i + u * kWidth, Lanes{});
  }
  double tail = 0.0;
  for (; i < n; ++i) tail += body(i, Entries{});
  const Lane total = (sum[0] + sum[1]) + (sum[2] + sum[3]);
  return (total[0] + total[1]) + tail;
}

// As sweep, for a body without a sum.
template <class Body>
void transform(std::size_t n, Body body) {
  std::size_t i = 0;
  for (; i + kWidth <= n; i += kWidth) body(i, Lanes{});
  for (; i < n; ++i) body(i, Entries{});
}

}  // namespace

double dot(std::size_t n, const double* x, const double* y) {
  return sweep(n, [=](std::size_t i, auto access) { return access.get(x + i) * access.get(y + i); });
}

double norm(std::size_t n, const double* x) {
  constexpr double kLeast = std::numeric_limits<double>::min() / std::numeric_limits<double>::epsilon();
  const double square = dot(n, x, x);
  if (square >= kLeast && square <= std::numeric_limits<double>::max()) return std::sqrt(square);
  if (std::isnan(square)) return square;
  double largest = 0.0;
  for (std::size_t i = 0; i < n; ++i) largest = std::max(largest, std::fabs(x[i]));
  if (largest == 0.0 || std::isinf(largest)) return largest;
  // A power of two as the scale keeps the quotients exact, save those too small to count.
  const int exponent = std::ilogb(largest);
  double scaled = 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    const double entry = std::scalbn(x[i], -exponent);
    scaled += entry * entry;
  }
  return std::scalbn(std::sqrt(scaled), exponent);
}

void copy(std::size_t n, const double* x, double* y) { std::memmove(y, x, n * sizeof *x); }

double subtract(std::size_t n, const double* b, const double* q, double* r) {
  return sweep(n, [=](std::size_t i, auto access) {
    const auto entry = access.get(b + i) - access.get(q + i);
    access.put(r + i, entry);
    return entry * entry;
  });
}

void update_direction(std::size_t n, const double* z, double beta, double* p) {
  transform(n, [=](std::size_t i, auto access) { access.put(p + i, access.get(z + i) + beta * access.get(p + i)); });
}

double advance(std::size_t n, double alpha, const double* p, const double* q, double* x, double* r) {
  return sweep(n, [=](std::size_t i, auto access) {
    access.put(x + i, access.get(x + i) + alpha * access.get(p + i));
    const auto entry = access.get(r + i) - alpha * access.get(q + i);
    access.put(r + i, entry);
    return entry * entry;
  });
}

double subtract_and_dot(std::size_t n, double h, const double* v, double* w, const double* next) {
  return sweep(n, [=](std::size_t i, auto access) {
    const auto entry = access.get(w + i) - h * access.get(v + i);
    access.put(w + i, entry);
    return access.get(next + i) * entry;
  });
}

void divide(std::size_t n, double s, double* x) {
  const double reciprocal = 1.0 / s;
  if (std::isnormal(reciprocal)) {
    transform(n, [=](std::size_t i, auto access) { access.put(x + i, access.get(x + i) * reciprocal); });
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
    transform(n, [=](std::size_t i, auto access) {
      access.put(x + i, access.get(x + i) + ((y0 * access.get(z0 + i) + y1 * access.get(z1 + i)) +
                                             (y2 * access.get(z2 + i) + y3 * access.get(z3 + i))));
    });
  }
  for (; k < count; ++k) {
    const double* column = z + k * n;
    const double factor = y[k];
    transform(
        n, [=](std::size_t i, auto access) { access.put(x + i, access.get(x + i) + factor * access.get(column + i)); });
  }
}

}  // namespace quorin::rci
