// The Airy functions Ai and Bi and their derivatives.
#include <numbers>

#include "families/amos/amos.hpp"
#include "families/amos/combination.hpp"
#include "families/amos/confluent.hpp"
#include "families/amos/finish.hpp"
#include "families/amos/large_argument.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/second_look.hpp"
#include "families/amos/thirds.hpp"

namespace quorin::amos {
namespace {

constexpr double kSqrt3 = std::numbers::sqrt3;
constexpr DoubleDouble kThird{0.3333333333333333, 1.850371707708594e-17};
constexpr DoubleDouble kTwoThirds{2.0 * kThird.hi, 2.0 * kThird.lo};
constexpr DoubleDouble kSqrt3OverPi{0.5513288954217921, -3.723932988258721e-17};

enum class Function { kAi, kBi };

// What is asked for: Ai or Bi, or the derivative (id 1).
struct Request {
  Function function;
  int id;
  int kode;

  bool is_ai() const { return function == Function::kAi; }
  // The order of the Bessel functions: 1/3, and 2/3 for the derivative.
  Order order() const { return id == 0 ? Order{kThird, 0} : Order{-kThird, 1}; }
};

// Returns false when there is nothing to compute.
bool accept(Complex z, const Request& r, int* ierr) {
  const auto stop = [ierr](Status status) {
    *ierr = static_cast<int>(status);
    return false;
  };
  if (r.id < 0 || r.id > 1 || r.kode < 1 || r.kode > 2) return stop(Status::kInputError);
  const double size = modulus(z);
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
    zeta = widen(z) * wide_root * kTwoThirds;
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
  if (modulus(a.w) <= kLargeArgument) {
    const Thirds t = bessel_thirds(a.w, wants_i);
    return id == 0 ? Values{t.k_one, t.i_one, 0.0} : Values{t.k_two, t.i_two, 0.0};
  }
  const double nu = (1.0 + id) / 3.0;
  const LargeArgumentSums<Complex> sums = large_argument_sums(nu, a.w);
  const Complex k = sums.k * square_root(divide(kPi.hi / 2, a.w));
  const Complex i = sums.i * square_root(divide(0.5 / kPi.hi, a.w));
  // e^{+-i pi (nu + 1/2)}, the sign that of Im w
  const Complex turn = Complex{0.0, 1.0} * half_turns(nu);
  return {k, i, k / kPi.hi * (a.w.imag() < 0.0 ? std::conj(turn) : turn)};
}

// front times a combination of I and K at w.
struct Product {
  Complex front;
  Combination terms;
};

Combination combination(const Argument& a) {
  Combination c(a.w);
  c.wide_w = a.wide_w;
  return c;
}

// Ai = sqrt(z/3) K_{1/3}(zeta) / pi, Ai' = -z K_{2/3}(zeta) / (pi sqrt 3)   (DLMF 9.6.2 and 9.6.3)
Product ai_outside(const Argument& a, const Request& r) {
  Combination c = combination(a);
  const ComplexDoubleDouble scale = r.kode == 2 ? a.zeta : ComplexDoubleDouble{};
  c.k = {true, kOne, 0, 0, scale - a.wide_w};
  if (a.left) {
    // K(zeta) with zeta = w e^{i pi}: e^{-i pi nu} K(w) - i pi I(w)
    c.k.turns = -2;
    c.i = {true, kPi, 3, 0, scale + a.wide_w};
  }
  return {(r.id == 0 ? a.root : -a.z) / (kPi.hi * kSqrt3), c};
}

// Bi = sqrt(z/3) (I_{-1/3} + I_{1/3}), Bi' = (z/sqrt 3) (I_{-2/3} + I_{2/3}), and
// I_{-nu} = I_nu + (2/pi) sin(pi nu) K_nu with sin(pi nu) = sqrt(3)/2 for both orders (DLMF 9.6.4, 9.6.5, 10.27.2).
Product bi_outside(const Argument& a, const Request& r) {
  Combination c = combination(a);
  const ComplexDoubleDouble scale = r.kode == 2 ? ComplexDoubleDouble{-a.wide_w.re, {}} : ComplexDoubleDouble{};
  // With zeta = w e^{i pi} the parts of I add up to I_{1/3}(w) and to -I_{2/3}(w).
  const double i_size = a.left ? (r.id == 0 ? 1.0 : -1.0) : 2.0;
  c.k = {true, kSqrt3OverPi, 0, a.left ? -2 : 0, scale - a.wide_w};
  c.i = {true, {i_size}, 0, 0, scale + a.wide_w};
  return {(r.id == 0 ? a.root : a.z) / kSqrt3, c};
}

// The coefficient of a term, in double precision.
Complex coefficient(const Term& term, double nu) {
  return times_i_power(quarter_turns(term.turns * nu) * term.size.hi, term.power);
}

Scaled sum(const Argument& a, const Request& r, const Combination& c) {
  const double nu = r.order().value();
  const Complex c_k = coefficient(c.k, nu);
  const Complex c_i = c.i.used ? coefficient(c.i, nu) : 0.0;
  const Values v = values_at(a, r.id, c.i.used);
  const Scaled decaying = normalized(exponential(c.k.exponent) * (c_k * v.k + c_i * v.recessive));
  if (!c.i.used) return decaying;
  const Scaled growing = normalized(exponential(c.i.exponent) * (c_i * v.i));
  const Scaled total = decaying + growing;
  const double part = std::fmax(small_part(nu, modulus(a.w)), 0.15);
  const bool small = std::norm(total.m) < part * part * std::norm(shift(growing.m, growing.e - total.e));
  return small ? SecondLook(c, r.order()).member(0) : total;
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

// sqrt(pi / (2 w)) of e^w K_{1/3}(w) or e^w K_{2/3}(w)
template <class Number>
Number scaled_k(const Number& w, double modulus, double real, int id) {
  constexpr double kLogPrecision = 38.0;  // e^-38 = 3e-17
  const auto [one, two] = confluent(-kThird.hi, w, confluent_terms(kLogPrecision, modulus, real));
  return id == 0 ? one : two;
}

// Ai(-x) = (2/pi) sqrt(x/3) Re(-i K_{1/3}(-i zeta)), Ai'(-x) = -(2/pi) (x/sqrt 3) Re K_{2/3}(-i zeta), and Bi, Bi' with
// one more factor i, zeta = (2/3) x^(3/2): DLMF 9.6.6 to 9.6.9 with 10.27.8.
Scaled on_negative_axis(const Argument& a, const Request& r) {
  const double zeta = std::fabs(a.w.imag());
  const double x = -a.z.real();
  Combination c(Complex{0.0, -zeta});
  c.wide_w = {{}, a.wide_w.im.hi < 0.0 ? a.wide_w.im : -a.wide_w.im};
  c.k = {true, kTwoOverPi, (r.is_ai() ? 3 : 0) - r.id, 0, -c.wide_w};
  c.real = true;
  const double front = r.id == 0 ? std::sqrt(x / 3.0) : x / kSqrt3;
  const Scaled phase = exponential(c.k.exponent) * times_i_power(Complex{1.0, 1.0}, c.k.power);
  // sqrt(pi / (2 w)) = sqrt(pi / zeta) (1 + i) / 2
  const Complex k = phase.m * scaled_k(c.w, zeta, 0.0, r.id);
  const double size = 0.5 * kTwoOverPi.hi * std::sqrt(kPi.hi / zeta);
  const double part = small_part_on_axis(1.0, zeta);
  Scaled value{size * k.real(), phase.e};
  if (k.real() * k.real() < part * part * std::norm(k)) value = SecondLook(c, r.order()).member(0);
  value.m = value.m.real() * front;
  return r.is_ai() && r.kode == 2 ? value * exponential(a.zeta) : value;
}

// Whether Ai or Ai' is below exp(-kElim), from Re zeta.
bool underflows(double zeta, double modulus) { return zeta > 0.5 * kElim && zeta + 0.25 * std::log(modulus) > kElim; }

// Ai(x) = sqrt(x/3) K_{1/3}(zeta) / pi and Ai'(x) = -x K_{2/3}(zeta) / (pi sqrt 3), zeta = (2/3) x^(3/2) > 2, where
// K = sqrt(pi / (2 zeta)) e^-zeta (...).
Scaled ai_on_positive_axis(const DoubleDouble& root, const DoubleDouble& zeta, const Request& r) {
  constexpr double kHalfOverSqrtPi = 0.5 * std::numbers::inv_sqrtpi;
  const double fourth_root = std::sqrt(root.hi);
  const double front = r.id == 0 ? kHalfOverSqrtPi / fourth_root : -kHalfOverSqrtPi * fourth_root;
  const double k = zeta.hi > kLargeArgument ? large_argument_sums((1.0 + r.id) / 3.0, zeta.hi).k
                                            : scaled_k(zeta.hi, zeta.hi, zeta.hi, r.id);
  if (r.kode == 2) return {front * k, 0};
  const RealScaled e = exponential(-zeta);
  return {front * k * e.m, static_cast<std::int64_t>(e.e)};
}

Scaled outside(const Argument& a, const Request& r) {
  if (a.z.imag() == 0.0 && a.z.real() < 0.0) return on_negative_axis(a, r);
  const Product product = r.is_ai() ? ai_outside(a, r) : bi_outside(a, r);
  Scaled result = sum(a, r, product.terms) * product.front;
  if (a.z.imag() == 0.0) result.m = result.m.real();
  return result;
}

// The value at |z| > 1 in the upper half plane; `count` counts an underflow.
Status evaluate_outside(Complex z, const Request& r, Complex& value, int& count) {
  const auto underflow = [&] {
    value = 0.0;
    count = 1;
    return Status::kOk;
  };
  if (r.is_ai() && z.imag() == 0.0 && z.real() > 0.0) {
    const DoubleDouble root = sqrt(DoubleDouble{z.real()}), zeta = root * z.real() * kTwoThirds;
    if (r.kode == 1 && underflows(zeta.hi, z.real())) return underflow();
    if (zeta.hi > kSmallArgument) return finish(ai_on_positive_axis(root, zeta, r), value, count);
  }
  const Argument a(z);
  if (r.is_ai() && r.kode == 1 && underflows(a.zeta.re.hi, modulus(z))) return underflow();
  return finish(outside(a, r), value, count);
}

void evaluate(Complex z, const Request& r, Complex* result, int* nz, int* ierr) {
  *nz = 0;
  if (!accept(z, r, ierr)) return;
  // All functions are conjugated with their argument.
  const bool mirrored = z.imag() < 0.0;
  const Complex upper = mirrored ? std::conj(z) : z;
  Complex value;
  if (modulus(z) <= 1.0) {
    value = inside(upper, r);
  } else if (const Status status = evaluate_outside(upper, r, value, *nz); status != Status::kOk) {
    *ierr = static_cast<int>(status);
    return;
  }
  *result = mirrored ? std::conj(value) : value;
}

}  // namespace

void airy(Complex z, int id, int kode, Complex* ai, int* nz, int* ierr) {
  evaluate(z, {Function::kAi, id, kode}, ai, nz, ierr);
}

void biry(Complex z, int id, int kode, Complex* bi, int* ierr) {
  int underflows = 0;
  evaluate(z, {Function::kBi, id, kode}, bi, &underflows, ierr);
}

}  // namespace quorin::amos
