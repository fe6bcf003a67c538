// The vector operations of the solvers, fused so that each vector is read once. base/sums.hpp tells in which order sums
// run. Arrays may be aligned to 4 bytes only.
#pragma once

#include <cstddef>

namespace quorin::rci {

// y <- x
void copy(std::size_t n, const double* x, double* y);

// r <- b - q; returns ||r||^2. r may be q.
double subtract(std::size_t n, const double* b, const double* q, double* r);

// p <- z + beta p
void update_direction(std::size_t n, const double* z, double beta, double* p);

// x <- x + alpha p, r <- r - alpha q; returns ||r||^2.
double advance(std::size_t n, double alpha, const double* p, const double* q, double* x, double* r);

// w <- w - h v; returns next . w. With next = w that is ||w||^2.
double subtract_and_dot(std::size_t n, double h, const double* v, double* w, const double* next);

// x <- x / s for s > 0
void divide(std::size_t n, double s, double* x);

// x <- x + y(1) z(1:n) + ... + y(count) z((count-1) n + 1 : count n)
void add_combination(std::size_t n, const double* z, std::size_t count, const double* y, double* x);

}  // namespace quorin::rci
