#include "families/amos/recurrence.hpp"

namespace quorin::amos {

Recurrence::Recurrence(Complex w, Scaled previous, Scaled current) {
  const Scaled u = scaled(w);
  const bool tiny = u.e < -100;
  const Complex divisor = tiny ? u.m : w;
  two_over_w_ = divide(2.0, divisor);
  correction_ = divide(narrow(widen(2.0) - widen(divisor) * widen(two_over_w_)), divisor);
  shift_ = tiny ? -u.e : 0;
  current = normalized(current);
  previous = normalized(previous);
  // A zero has no exponent of its own.
  exponent_ = current.m == 0.0 ? previous.e : current.e;
  current_ = current.m;
  previous_ = shift(previous.m, previous.e - exponent_ - shift_);
}

void Recurrence::rescale() {
  const double size = largest_part(current_);
  if (size == 0.0 || !std::isfinite(size)) return;
  const int k = exponent_of(size);
  current_ = shift(current_, -k);
  previous_ = shift(previous_, -k);
  exponent_ += k;
}

}  // namespace quorin::amos
