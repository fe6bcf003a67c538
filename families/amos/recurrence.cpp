#include "families/amos/recurrence.hpp"

namespace quorin::amos {

Recurrence::Recurrence(Complex w, Scaled previous, Scaled current, DoubleDouble order)
    : steps_(round_to_integer(order.hi)) {
  const Scaled u = scaled(w);
  const bool tiny = u.e < -100;
  const Complex divisor = tiny ? u.m : w;
  const Complex factor = divide(2.0, divisor);
  const Complex correction = divide(narrow(widen(2.0) - widen(divisor) * widen(factor)), divisor);
  constexpr double kSplit = 0x1p31 + 1.0;
  const Lanes f = lanes(factor), t = kSplit * f;
  high_ = t - (t - f);
  low_ = (f - high_) + lanes(correction);
  offset_ = ((order.hi - steps_) + order.lo) * f;
  shift_ = tiny ? -u.e : 0;
  current = normalized(current);
  previous = normalized(previous);
  // A zero has no exponent of its own.
  exponent_ = current.m == 0.0 ? previous.e : current.e;
  current_ = lanes(current.m);
  previous_ = lanes(shift(previous.m, previous.e - exponent_ - shift_));
}

void Recurrence::rescale(Lanes& previous, Lanes& current) {
  const double size = largest_part(complex(current));
  if (size == 0.0 || !std::isfinite(size)) return;
  const int k = exponent_of(size);
  current = lanes(shift(complex(current), -k));
  previous = lanes(shift(complex(previous), -k));
  exponent_ += k;
}

}  // namespace quorin::amos
