#include "families/amos/second_look.hpp"

#include <algorithm>
#include <utility>

#include "families/amos/confluent.hpp"
#include "families/amos/temme_series.hpp"

namespace quorin::amos {
namespace {

using Wide = ComplexDoubleDouble;

constexpr double kDigits = 74.0;  // e^-74 = 7e-33

// |w| - Re w from which on I comes from K at -w in a few steps.
constexpr double kManyDigitsApart = 19.0;

// |w| up to which the power series of K loses little: anywhere, and next to the imaginary axis.
constexpr double kSmallSeries = 2.0;
constexpr double kAxisSeries = 4.5;

// sqrt(pi / 2)
constexpr DoubleDouble kSqrtHalfPi{1.2533141373155003, -9.164289990229583e-17};

double modulus(const Wide& w) { return std::abs(narrow(w)); }

// a^k for a power of two, without a loss.
Wide shift_wide(const Wide& a, std::int64_t k) {
  const auto n = static_cast<int>(std::clamp<std::int64_t>(k, -2000, 2000));
  const auto part = [n](DoubleDouble x) { return DoubleDouble{std::scalbn(x.hi, n), std::scalbn(x.lo, n)}; };
  return {part(a.re), part(a.im)};
}

}  // namespace

double small_part(double nu, double modulus) { return std::clamp(1.5 / std::fmax(nu, modulus), 0.03, 0.2); }

double small_part_on_axis(double nu, double x) { return std::clamp(0.5 / std::fmax(nu, x), 0.02, 0.06); }

SecondLook::SecondLook(const Combination& c, Order order)
    : c_(c),
      order_(order),
      below_(c.w.imag() < 0.0 && !c.real),
      w_(below_ || c.real ? conj(c.wide_w) : c.wide_w),
      two_over_w_(widen(2.0) / w_),
      turn_(exp({{}, kHalfPi * order.mu}).m) {
  if (!below_ && !c.real) return;
  // The conjugate function at the conjugate argument. A real function is as good at one as at the other.
  for (Term* term : {&c_.i, &c_.k}) {
    term->power = -term->power;
    term->turns = -term->turns;
    term->exponent = conj(term->exponent);
  }
}

// What a term has in front of I or K at order mu + steps, without the exponential.
Wide SecondLook::coefficient(const Term& term, int steps) const {
  const Wide power = (term.turns & 1) != 0 ? turn_ : turn_ * turn_;
  const Wide turn = term.turns == 0 ? widen(1.0) : term.turns < 0 ? conj(power) : power;
  return times_i_power(turn * term.size, term.power + (term.turns & 3) * (steps & 3));
}

// e^w K at orders mu and mu + 1.
SecondLook::WidePair SecondLook::small_k(const Wide& w) const {
  const double size = modulus(w);
  if (size < kSmallSeries || (size < kAxisSeries && w.re.hi < 1.0)) return small_k_by_series(w);
  const auto [at, above] = confluent(order_.mu, w, confluent_terms(kDigits, size, w.re.hi));
  const Wide factor = quotient(Wide{kSqrtHalfPi, {}}, sqrt(w));
  return {factor * at, factor * above};
}

SecondLook::WidePair SecondLook::small_k_by_series(const Wide& w) const {
  const Wide l = log(widen(2.0) / w);
  const ScaledWide p = exp(l * order_.mu), e = exp(w);
  const Wide power = shift_wide(p.m, p.e), growth = shift_wide(e.m, e.e);
  const auto sums = temme_series(order_.mu, l, power, quotient(widen(1.0), power), w * w * 0.25);
  return {sums.at * growth, sums.above * growth * (widen(2.0) / w)};
}

// I_{mu+steps+1}(w) / I_{mu+steps}(w) by Miller's recurrence, begun where the other solution has grown by 17 digits.
Wide SecondLook::i_ratio(int steps) const {
  constexpr double kGrowth = 1.0e17;
  constexpr int kMostSteps = 4000;
  const double nu = order_.mu.hi + steps;
  const Complex two_over_w = divide(2.0, narrow(w_));
  Complex before = 0.0, p = 1.0;
  int last = 0;
  while (largest_part(p) < kGrowth && last < kMostSteps) {
    ++last;
    before = std::exchange(p, (nu + last) * two_over_w * p + before);
  }
  // y_{nu-1} = (2 nu / w) y_nu + y_{nu+1}: upwards in -nu.
  Climber<Wide> i(-order_.mu, -two_over_w_, 1.0, Wide{}, widen(1.0), -(steps + last) - 1);
  i.move_to(-steps - 1);
  return quotient(i.at(), i.above());
}

// e^-w I at orders mu and mu + 1.
SecondLook::WidePair SecondLook::small_i(const WidePair& k) const {
  const double size = modulus(w_);
  if (size > 2.0 * kManyDigitsApart && size - w_.re.hi > kManyDigitsApart) {
    // i pi I_nu(w) = K_nu(w e^{-i pi}) - e^{i pi nu} K_nu(w)   (DLMF 10.34.2)
    const WidePair other = small_k(-w_);
    const Wide part = shift_wide(decay_, decay_exponent_) * (turn_ * turn_);
    const DoubleDouble over_pi = kTwoOverPi * 0.5;
    return {times_i_power((other.at - part * k.at) * over_pi, 3),
            times_i_power((other.above + part * k.above) * over_pi, 3)};
  }
  const Wide ratio = i_ratio(0);
  const Wide at = quotient(widen(1.0), w_ * fused(ratio, k.at, k.above));
  return {at, at * ratio};
}

// e^w K at orders mu and mu + 1, and e^-2w, by which K falls behind I.
SecondLook::WidePair SecondLook::start() {
  if (c_.i.used) {
    const ScaledWide e = exp(w_ * -2.0);
    decay_ = e.m;
    decay_exponent_ = e.e;
  }
  return small_k(w_);
}

void SecondLook::start_sum() {
  const WidePair k = start();
  const Term& first = c_.i.used ? c_.i : c_.k;
  WidePair sum{};
  if (c_.k.used) {
    const Wide c = coefficient(c_.k, 0);
    const Wide turned = times_i_power(c, c_.k.turns);
    sum = {c * k.at, turned * k.above};
  }
  if (c_.i.used) {
    const WidePair i = small_i(k);
    const Wide c = coefficient(c_.i, 0);
    const Wide turned = times_i_power(c, c_.i.turns);
    const Wide decay = shift_wide(decay_, decay_exponent_);
    sum = {fused(c, i.at, sum.at * decay), fused(turned, i.above, sum.above * decay)};
  }
  // K_{nu+1} = (2 nu / w) K_nu + K_{nu-1}, and e^{i pi nu} I does the same.
  const int turns = c_.k.used ? c_.k.turns : c_.i.turns + 2;
  const Wide factor = times_i_power(two_over_w_, turns & 3);
  const double sign = (turns & 1) != 0 ? -1.0 : 1.0;
  if (!c_.real) {
    sum_.emplace(order_.mu, factor, sign, sum.at, sum.above);
    return;
  }
  const ScaledWide e = exp(first.exponent);
  const Wide phase = shift_wide(e.m, e.e);
  // Airy functions have a pair of orders and no others: the factor, which would not be real, is not needed.
  const DoubleDouble real_factor = factor.re.hi == 0.0 ? kOne : factor.re;
  real_sum_.emplace(order_.mu, real_factor, sign, (sum.at * phase).re, (sum.above * phase).re);
}

Scaled SecondLook::sum_at(int steps) {
  if (!sum_ && !real_sum_) start_sum();
  if (real_sum_) {
    real_sum_->move_to(steps);
    return {real_sum_->at().hi, real_sum_->exponent()};
  }
  sum_->move_to(steps);
  const Term& first = c_.i.used ? c_.i : c_.k;
  return Scaled{narrow(sum_->at()), sum_->exponent()} * exponential(first.exponent);
}

Scaled SecondLook::terms_at(int steps) {
  if (!k_) {
    const WidePair k = start();
    k_.emplace(order_.mu, two_over_w_, 1.0, k.at, k.above);
  }
  k_->move_to(steps);
  const Wide ratio = i_ratio(steps);
  // I has the opposite exponent of K.
  const Wide i = quotient(widen(1.0), w_ * fused(ratio, k_->at(), k_->above()));
  const std::int64_t e = k_->exponent();
  const Wide k = shift_wide(k_->at() * decay_ * coefficient(c_.k, steps), decay_exponent_ + 2 * e);
  return Scaled{narrow(fused(coefficient(c_.i, steps), i, k)), -e} * exponential(c_.i.exponent);
}

Scaled SecondLook::member(int j) {
  const int steps = order_.steps + j;
  const bool falls = c_.i.used && c_.k.used && order_.value(j) > modulus(w_);
  const Scaled value = falls ? terms_at(steps) : sum_at(steps);
  return below_ ? conj(value) : value;
}

}  // namespace quorin::amos
