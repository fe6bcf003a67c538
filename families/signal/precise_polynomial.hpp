// The polynomial of a reference with 32 digits, for the frequencies between the bands.
//
// Between the bands there are no nodes, and the sums of the barycentric form cancel: by some 1e7 for ripples of 1e-12,
// by more if the polynomial is large there. A filter's coefficients need the polynomial there all the same, and as
// exactly as inside the bands: what is wrong at one frequency is spread over all.
#pragma once

#include "base/double_double.hpp"
#include "base/workspace.hpp"
#include "families/signal/exchange.hpp"

namespace quorin::signal {

class PrecisePolynomial {
 public:
  explicit PrecisePolynomial(std::size_t capacity)
      : x_(capacity), weight_(capacity), value_(capacity), exponent_(capacity) {}
  explicit operator bool() const { return x_ && weight_ && value_ && exponent_; }

  // The polynomial with leveled error at `points`, as Exchange::level. Cost: count^2 products of 32 digits.
  void level(const Problem& problem, const Extremum* points, int count);

  // The value at x, and about how far cancellation may have moved it. Cost: count quotients of 32 digits.
  struct Value {
    double value, uncertainty;
  };
  [[nodiscard]] Value evaluate(double x) const;

 private:
  void set_weights();

  int count_ = 0;
  base::Workspace<double> x_;
  base::Workspace<base::DoubleDouble> weight_, value_;
  base::Workspace<int> exponent_;
};

}  // namespace quorin::signal
