// The Airy functions Ai and Bi and their derivatives.
#include <numbers>

#include "families/amos/amos.hpp"
#include "families/amos/cylinder_ratio.hpp"
#include "families/amos/finish.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/thirds.hpp"

namespace quorin::amos {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kSqrt3 = std::numbers::sqrt3;

// What is asked for: Ai or Bi, or the derivative (id 1).
struct Request {
  Cylinder function;  // kAi or kBi
  int id;
  int kode;

  bool is_ai() const { return function == Cylinder::kAi; }
};

// Returns false when there is nothing to compute.
bool accept(Complex z, const Request& r, int* ierr) {
  const auto stop = [ierr](Status status) {
    *ierr = static_cast<int>(status);
    return false;
  };
  if (r.id < 0 || r.id > 1 || r.kode < 1 || r.kode > 2) return stop(Status::kInputError);
  const double size = std::hypot(z.real(), z.imag());
  if (!(size <= kAiryRangeLimit)) return stop(Status::kNoPrecision);
  *ierr = static_cast<int>(size > kAiryHalfPrecisionLimit ? Status::kPrecisionLoss : Status::kOk);
  return true;
}

// Everything that the functions share for one z in the upper half plane with |z| > 1.
struct Argument {
  Complex z;
  Complex root;                // sqrt(z)
  ComplexDoubleDouble zeta;    // (2/3) z^(3/2), principal: its exponential needs all digits
  ComplexDoubleDouble wide_w;  // zeta or -zeta, whichever lies in the right half plane
  Complex w;
  bool left = false;  // zeta lies in the left half plane, zeta = w e^{i pi}

  explicit Argument(Complex upper) : z(upper) {
    const ComplexDoubleDouble wide_root = sqrt(widen(z));
    root = narrow(wide_root);
    zeta = (widen(z) * wide_root * 2.0) / DoubleDouble{3.0, 0.0};
    // Re zeta = 0 for arg z = pi/3, where it does not matter, and for arg z = pi, where zeta = -i |zeta| = w e^{i pi}.
    left = zeta.re.hi < 0.0 || zeta.im.hi < 0.0;
    wide_w = left ? -zeta : zeta;
    w = {std::fmax(0.0, wide_w.re.hi), wide_w.im.hi};
  }
};

// e^w K_nu(w) and e^-w I_nu(w) for nu = (1 + id)/3; beyond kLargeArgument I without its part in e^-w, which is
// `recessive` e^-2w.
struct Values {
  Complex k;
  Complex i;
  Complex recessive;
};

Values values_at(const Argument& a, int id, bool wants_i) {
  if (std::abs(a.w) <= kLargeArgument) {
    const Thirds t = bessel_thirds(a.w, wants_i);
    return id == 0 ? Values{t.k_one, t.i_one, 0.0} : Values{t.k_two, t.i_two, 0.0};
  }
  const double nu = (1.0 + id) / 3.0;
  const LargeArgumentSums sums = large_argument_sums(nu, a.w);
  const Complex k = sums.k * square_root(divide(kPi / 2, a.w));
  const Complex i = sums.i * square_root(divide(0.5 / kPi, a.w));
  // e^{+-i pi (nu + 1/2)}, the sign that of Im w
  const Complex turn = Complex{0.0, 1.0} * half_turns(nu);
  return {k, i, k / kPi * (a.w.imag() < 0.0 ? std::conj(turn) : turn)};
}

// c_k K(w) + c_i I(w) times exp(exponent).
Scaled combine(const Argument& a, int id, Complex c_k, Complex c_i, const ComplexDoubleDouble& exponent) {
  const Values v = values_at(a, id, c_i != 0.0);
  const Scaled decaying = exponential(exponent - a.wide_w) * (c_k * v.k + c_i * v.recessive);
  if (c_i == 0.0) return decaying;
  return decaying + exponential(exponent + a.wide_w) * (c_i * v.i);
}

ComplexDoubleDouble real_part(double sign, const ComplexDoubleDouble& a) { return {sign < 0.0 ? -a.re : a.re, {}}; }

// e^{-+i pi/3} for order 1/3, e^{-+2 i pi/3} for order 2/3.
Complex continuation_phase(int id) { return std::conj(half_turns((1.0 + id) / 3.0)); }

Scaled ai_outside(const Argument& a, int id, int kode) {
  const Complex front = id == 0 ? a.root / (kPi * kSqrt3) : -a.z / (kPi * kSqrt3);
  const ComplexDoubleDouble exponent = kode == 2 ? a.zeta : ComplexDoubleDouble{};
  // K(zeta) with zeta = w e^{i pi}: e^{-i pi nu} K(w) - i pi I(w)
  if (a.left) return combine(a, id, front * continuation_phase(id), front * Complex{0.0, -kPi}, exponent);
  return combine(a, id, front, 0.0, exponent);
}

Scaled bi_outside(const Argument& a, int id, int kode) {
  // Bi = sqrt(z/3) (I_{-1/3} + I_{1/3}), Bi' = (z/sqrt 3) (I_{-2/3} + I_{2/3}), and
  // I_{-nu} = I_nu + (2/pi) sin(pi nu) K_nu with sin(pi nu) = sqrt(3)/2 for both orders.
  const Complex front = id == 0 ? a.root / kSqrt3 : a.z / kSqrt3;
  const ComplexDoubleDouble exponent = kode == 2 ? real_part(-1.0, a.wide_w) : ComplexDoubleDouble{};
  const double k = kSqrt3 / kPi;
  if (!a.left) return combine(a, id, front * k, front * 2.0, exponent);
  // With zeta = w e^{i pi} the parts of I add up to I_{1/3}(w) and to -I_{2/3}(w).
  return combine(a, id, front * k * continuation_phase(id), id == 0 ? front : -front, exponent);
}

// The factor of kode 2 inside the unit circle.
Complex unit_circle_factor(Complex z, const Request& r) {
  const Complex zeta = 2.0 / 3.0 * (z * square_root(z));
  const Scaled e = exponential(r.is_ai() ? zeta : Complex{-std::fabs(zeta.real()), 0.0});
  return shift(e.m, e.e);
}

Complex inside(Complex z, const Request& r) {
  const AiryValues series = airy_power_series(z);
  const Complex function = r.is_ai() ? series.ai : series.bi;
  const Complex derivative = r.is_ai() ? series.ai_prime : series.bi_prime;
  const Complex value = r.id == 0 ? function : derivative;
  return r.kode == 2 ? value * unit_circle_factor(z, r) : value;
}

Scaled plainly_outside(const Argument& a, const Request& r) {
  Scaled result = r.is_ai() ? ai_outside(a, r.id, r.kode) : bi_outside(a, r.id, r.kode);
  // On the axis all is real but e^zeta left of zero.
  const bool is_real = a.z.imag() == 0.0 && (r.kode == 1 || a.z.real() > 0.0 || !r.is_ai());
  if (is_real) result.m = result.m.real();
  return result;
}

// Next to a zero on the negative real axis the derivative takes the place of the function, and the other way round.
// That neighbour is at its largest there, so the part of the usual size that counts as next to a zero can be large.
bool is_next_to_zero(const Argument& a, const Request& r, Scaled value) {
  constexpr double kPart = 0.4;
  if (!a.left || a.w.real() > kBesideAxis || a.w.imag() < a.w.real()) return false;
  // |z|^(-1/4) / sqrt(pi) and |z|^(1/4) / sqrt(pi) around (DLMF 9.7.9 to 9.7.12)
  const double root = std::sqrt(std::abs(a.z));
  const double size = std::abs(shift(value.m, value.e));
  return kPi * size * size < kPart * kPart * (r.id == 0 ? 1.0 / root : root);
}

Scaled outside(const Argument& a, const Request& r) {
  const Scaled value = plainly_outside(a, r);
  if (!is_next_to_zero(a, r, value)) return value;
  constexpr DoubleDouble kMinusThird{-0.3333333333333333, -1.850371707708594e-17};
  // f / f' = (C_{-1/3} / C_{2/3}) / sqrt(-z), at zeta = -i w
  const ComplexDoubleDouble argument{a.wide_w.im, -a.wide_w.re};
  const Complex quotient =
      divide(cylinder_ratio(r.function, kMinusThird, 0, argument), Complex{a.root.imag(), -a.root.real()});
  const Scaled other = plainly_outside(a, {r.function, 1 - r.id, r.kode});
  return other * (r.id == 0 ? quotient : divide(1.0, quotient));
}

// The value at |z| > 1 in the upper half plane.
Status evaluate_outside(Complex z, const Request& r, Complex& value, int& underflows) {
  const Argument a(z);
  const double quarter_log = 0.25 * std::log(std::abs(z));
  const double growth = r.is_ai() ? -a.zeta.re.hi : std::fabs(a.zeta.re.hi);
  if (r.kode == 1 && growth - quarter_log < -kElim) {
    value = 0.0;
    underflows = 1;
    return Status::kOk;
  }
  if (r.kode == 1 && growth + quarter_log > kElim) return Status::kOverflow;
  return finish(outside(a, r), value, underflows);
}

void evaluate(Complex z, const Request& r, Complex* result, int* nz, int* ierr) {
  *nz = 0;
  if (!accept(z, r, ierr)) return;
  // All functions are conjugated with their argument.
  const bool mirrored = z.imag() < 0.0;
  const Complex upper = mirrored ? std::conj(z) : z;
  Complex value;
  if (std::hypot(z.real(), z.imag()) <= 1.0) {
    value = inside(upper, r);
  } else if (const Status status = evaluate_outside(upper, r, value, *nz); status != Status::kOk) {
    *ierr = static_cast<int>(status);
    return;
  }
  *result = mirrored ? std::conj(value) : value;
}

}  // namespace

void airy(Complex z, int id, int kode, Complex* ai, int* nz, int* ierr) {
  evaluate(z, {Cylinder::kAi, id, kode}, ai, nz, ierr);
}

void biry(Complex z, int id, int kode, Complex* bi, int* ierr) {
  int underflows = 0;
  evaluate(z, {Cylinder::kBi, id, kode}, bi, &underflows, ierr);
}

}  // namespace quorin::amos
