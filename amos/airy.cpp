// The Airy functions Ai and Bi and their derivatives.
#include <numbers>

#include "amos/amos.hpp"
#include "amos/finish.hpp"
#include "amos/large_argument.hpp"
#include "amos/limits.hpp"
#include "amos/thirds.hpp"

namespace quorin::amos {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kSqrt3 = std::numbers::sqrt3;

// Checks common to both functions. Returns false when there is nothing to compute.
bool accept(Complex z, int id, int kode, int* ierr) {
  const auto stop = [ierr](Status status) {
    *ierr = static_cast<int>(status);
    return false;
  };
  if (id < 0 || id > 1 || kode < 1 || kode > 2) return stop(Status::kInputError);
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

// exp(sign zeta) or exp(-|Re zeta|) as the factor of kode 2 inside the unit circle.
Complex unit_circle_factor(Complex z, bool modulus_only) {
  const Complex zeta = 2.0 / 3.0 * (z * square_root(z));
  const Scaled e = exponential(modulus_only ? Complex{-std::fabs(zeta.real()), 0.0} : zeta);
  return shift(e.m, e.e);
}

}  // namespace

void airy(Complex z_in, int id, int kode, Complex* ai, int* nz, int* ierr) {
  *nz = 0;
  if (!accept(z_in, id, kode, ierr)) return;
  const bool mirrored = z_in.imag() < 0.0;
  const Complex z = mirrored ? std::conj(z_in) : z_in;
  Complex value;
  if (std::hypot(z.real(), z.imag()) <= 1.0) {
    const AiryValues series = airy_power_series(z);
    value = id == 0 ? series.ai : series.ai_prime;
    if (kode == 2) value *= unit_circle_factor(z, false);
  } else {
    const Argument a(z);
    const double quarter_log = 0.25 * std::log(std::abs(z));
    if (kode == 1 && -a.zeta.re.hi - quarter_log < -kElim) {
      *ai = 0.0;
      *nz = 1;
      return;
    }
    Status status = Status::kOverflow;
    if (kode == 2 || -a.zeta.re.hi + quarter_log <= kElim) {
      Scaled result = ai_outside(a, id, kode);
      const bool real = z.imag() == 0.0 && (kode == 1 || z.real() > 0.0);
      if (real) result.m = result.m.real();
      status = finish(result, value, *nz);
    }
    if (status != Status::kOk) {
      *ierr = static_cast<int>(status);
      return;
    }
  }
  *ai = mirrored ? std::conj(value) : value;
}

void biry(Complex z_in, int id, int kode, Complex* bi, int* ierr) {
  if (!accept(z_in, id, kode, ierr)) return;
  const bool mirrored = z_in.imag() < 0.0;
  const Complex z = mirrored ? std::conj(z_in) : z_in;
  Complex value;
  if (std::hypot(z.real(), z.imag()) <= 1.0) {
    const AiryValues series = airy_power_series(z);
    value = id == 0 ? series.bi : series.bi_prime;
    if (kode == 2) value *= unit_circle_factor(z, true);
  } else {
    const Argument a(z);
    Status status = Status::kOverflow;
    if (kode == 2 || std::fabs(a.zeta.re.hi) + 0.25 * std::log(std::abs(z)) <= kElim) {
      Scaled result = bi_outside(a, id, kode);
      if (z.imag() == 0.0) result.m = result.m.real();
      int underflows = 0;
      status = finish(result, value, underflows);
    }
    if (status != Status::kOk) {
      *ierr = static_cast<int>(status);
      return;
    }
  }
  *bi = mirrored ? std::conj(value) : value;
}

}  // namespace quorin::amos
