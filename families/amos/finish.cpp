#include "families/amos/finish.hpp"

#include "families/amos/limits.hpp"

namespace quorin::amos {

Status finish(Scaled a, Complex& result, int& underflows) {
  if (!is_finite(a.m)) return Status::kNotConverged;
  a = normalized(a);
  const auto underflow = [&] {
    result = 0.0;
    ++underflows;
    return Status::kOk;
  };
  if (a.m == 0.0) return underflow();
  if (a.e > kLargestExponent) return Status::kOverflow;
  constexpr double kLeast = -kElim / kLn2.hi;  // exponents below it, less the one of |m| < 2.9, underflow
  if (static_cast<double>(a.e) < kLeast - 2.0) return underflow();
  if (static_cast<double>(a.e) < kLeast) {
    const double log_modulus = static_cast<double>(a.e) * kLn2.hi + std::log(std::abs(a.m));
    if (log_modulus < -kElim) return underflow();
  }
  const Complex value = shift(a.m, a.e);
  const double larger = largest_part(value);
  const double smaller = std::min(std::fabs(value.real()), std::fabs(value.imag()));
  if (smaller <= kUnderflowGuard && larger < smaller / kTol) return underflow();
  result = value;
  return Status::kOk;
}

}  // namespace quorin::amos
