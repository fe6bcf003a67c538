// The five Bessel functions: input checks, and each function as a combination of I and K in the right half plane.
#include <algorithm>
#include <optional>

#include "families/amos/amos.hpp"
#include "families/amos/combination.hpp"
#include "families/amos/finish.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/real_axis.hpp"
#include "families/amos/second_look.hpp"
#include "families/amos/sequences.hpp"
#include "families/amos/uniform.hpp"

namespace quorin::amos {
namespace {

struct Request {
  double nu;
  int kode;
  int n;

  bool scaled() const { return kode == 2; }
};

struct Result {
  Complex* cy;
  int* nz;
  int* ierr;
};

// Checks in the order of the published package. Returns false when there is nothing to compute.
bool accept(Complex z, const Request& request, bool other_input_error, bool singular_at_zero, const Result& result) {
  *result.nz = 0;
  const auto stop = [&](Status status) {
    *result.ierr = static_cast<int>(status);
    return false;
  };
  if (other_input_error || (singular_at_zero && z == 0.0) || !(request.nu >= 0.0) || request.kode < 1 ||
      request.kode > 2 || request.n < 1) {
    return stop(Status::kInputError);
  }
  const double size = modulus(z);
  const double order = request.nu + (static_cast<double>(request.n) - 1.0);
  if (!(size <= kRangeLimit) || !(order <= kRangeLimit)) return stop(Status::kNoPrecision);
  if (singular_at_zero && size < kUnderflowGuard) return stop(Status::kOverflow);
  const bool loss = size > kHalfPrecisionLimit || order > kHalfPrecisionLimit;
  *result.ierr = static_cast<int>(loss ? Status::kPrecisionLoss : Status::kOk);
  return true;
}

// The members of index `from` to `to` - 1 of a combination.
class Evaluation {
 public:
  Evaluation(const Combination& c, const Request& request, bool mirrored, const Result& result)
      : c_(c), request_(request), mirrored_(mirrored), result_(result) {
    for (auto [term, factor] : {std::pair{&c_.i, &i_}, std::pair{&c_.k, &k_}}) {
      if (!term->used) continue;
      const Complex turn = quarter_turns(static_cast<double>(term->turns) * request.nu);
      *factor = exponential(term->exponent) * times_i_power(turn * term->size.hi, term->power);
    }
  }

  void run(int from, int to) {
    if (c_.i.used && c_.k.used && to - from == 1 && request_.nu + from >= kLargeOrder) {
      both_at(from);
    } else {
      each(from, to);
    }
    if (status_ == Status::kOk) {
      *result_.nz += underflows_;
    } else {
      *result_.nz = 0;
      *result_.ierr = static_cast<int>(status_);
    }
  }

  bool is_ok() const { return status_ == Status::kOk; }

 private:
  void each(int from, int to) {
    if (c_.i.used) {
      descend_i(request_.nu, from, to, c_.w, [this, to](int j, Scaled f) {
        if (j == to - 1) weigh(f);
        return take_i(j, f);
      });
    }
    if (c_.k.used && !k_is_negligible_ && status_ == Status::kOk) {
      ascend_k(request_.nu, from, to, c_.w, [this](int j, Scaled f) { return take_k(j, f); });
    }
  }

  // I and K of one large order share most of their expansion.
  void both_at(int j) {
    const bool below = c_.w.imag() < 0.0;
    const Uniform expansion(two_sum(request_.nu, j), amos::mirrored(c_.w, below));
    const Scaled i = amos::mirrored(expansion.i(), below);
    weigh(i);
    if (take_i(j, i) && !k_is_negligible_) take_k(j, amos::mirrored(expansion.k(), below));
  }

  // Whether the part of K counts, from I of the largest order: |I K| < 2^10 for all orders and arguments that do not
  // underflow, I falls with the order, and K rises.
  void weigh(Scaled i) {
    constexpr std::int64_t kBits = 60 + 10;
    k_is_negligible_ = c_.k.used && (i_.e + i.e) - (k_.e - i.e) > kBits;
  }

  Scaled i_part(int j, Scaled f) const { return normalized(f * i_ * times_i_power(1.0, c_.i.turns * (j & 3))); }
  Scaled k_part(int j, Scaled f) const { return normalized(f * k_ * times_i_power(1.0, c_.k.turns * (j & 3))); }

  // The part of I waits in cy until the recurrence for K, which runs the other way, comes by. Near underflow it would
  // lose digits, and is computed once more then; far below that, only next to a part of K that counts as little.
  bool take_i(int j, Scaled f) {
    const Scaled part = i_part(j, f);
    if (!c_.k.used || k_is_negligible_) {
      const bool small = c_.real ? is_small(j, part.m.real(), part.m) : is_beside_zero(j, f);
      return store(j, part, small);
    }
    if (!is_finite(part.m)) status_ = Status::kNotConverged;
    if (part.e > kWaitingShift + kLargestExponent) status_ = Status::kOverflow;
    const Complex waiting = shift(part.m, part.e - kWaitingShift);
    result_.cy[j] = part.e >= kWaitingLimit ? waiting : part.e >= kNegligible ? kComputeAgain : 0.0;
    return status_ == Status::kOk;
  }

  bool take_k(int j, Scaled f) {
    const Scaled part = k_part(j, f);
    if (!c_.i.used) return store(j, part, c_.real && is_small(j, part.m.real(), part.m));
    Scaled waiting{result_.cy[j], kWaitingShift};
    const bool counts_as_little = part.e >= kNegligible && part.e < kWaitingLimit + 64;
    if (waiting.m == kComputeAgain || (waiting.m == 0.0 && counts_as_little)) {
      descend_i(request_.nu, j, j + 1, c_.w, [&](int, Scaled i) {
        waiting = i_part(j, i);
        return true;
      });
    }
    const Scaled sum = part + waiting;
    // Two parts that cancel are of one size; the sum has the exponent of the larger one.
    return store(j, sum, is_small(j, sum.m, shift(part.m, part.e - sum.e)));
  }

  // Whether a sum is so small against its terms that it wants a second look.
  bool is_small(int j, Complex sum, Complex term) const {
    const double part = small_part(request_.nu + j, modulus(c_.w));
    return std::norm(sum) < part * part * std::norm(term);
  }

  // The same for e^-w I alone, which has its zeros on the imaginary axis.
  bool is_beside_zero(int j, Scaled f) const {
    const Complex w = c_.w;
    return w.real() <= kBesideAxis &&
           is_next_to_zero(request_.nu + j, w, std::abs(shift(f.m, f.e)) * std::exp(w.real()));
  }

  bool store(int j, Scaled value, bool small) {
    if (small && request_.nu + j < SecondLook::kMostOrders) {
      if (!second_look_) second_look_.emplace(c_, split_order(request_.nu));
      value = second_look_->member(j);
    }
    if (c_.real) value.m = value.m.real();
    Complex member;
    status_ = finish(value, member, underflows_);
    if (status_ != Status::kOk) return false;
    result_.cy[j] = mirrored_ ? std::conj(member) : member;
    return true;
  }

  static constexpr std::int64_t kWaitingShift = 8;
  static constexpr std::int64_t kWaitingLimit = -1000;
  static constexpr std::int64_t kNegligible = -1020;  // below all that does not underflow
  static constexpr Complex kComputeAgain{0x1p-1074, 0.0};

  Combination c_;
  Request request_;
  bool mirrored_;  // the function was asked for at the conjugate of the argument
  Result result_;
  Scaled i_, k_;  // what the terms have in front at the first order
  bool k_is_negligible_ = false;
  std::optional<SecondLook> second_look_;
  Status status_ = Status::kOk;
  int underflows_ = 0;
};

bool is_positive_real(Complex z) { return z.imag() == 0.0 && z.real() > 0.0; }

// A single real value, if the methods for the real axis have it.
bool store_real(std::optional<double> value, double factor, Complex* cy) {
  if (!value || !std::isfinite(*value * factor) || std::fabs(*value * factor) < 1.0e-280) return false;
  cy[0] = *value * factor;
  return true;
}

// An argument in the upper half plane. All functions are conjugated with their argument.
struct UpperHalf {
  Complex z;
  bool mirrored;  // the result's conjugate is asked for
  bool real;      // z > 0
};
UpperHalf upper_half(Complex z) {
  const bool mirrored = z.imag() < 0.0;
  return {mirrored ? std::conj(z) : z, mirrored, is_positive_real(z)};
}

// -i z without rounding or signed-zero surprises.
Complex minus_i_times(Complex z) { return {z.imag() + 0.0, 0.0 - z.real()}; }

// I and J at zero: 1 for order 0, else 0, and none of them an underflow.
void value_at_zero(const Request& request, Complex* cy) {
  std::fill(cy, cy + request.n, Complex{});
  if (request.nu == 0.0) cy[0] = 1.0;
}

// J and I of order n/2 at z < 0 are i^n times those at -z, which are real: a rounded phase would give them a second
// part.
bool is_reflection(Complex z, double nu) {
  return z.imag() == 0.0 && z.real() < 0.0 && 2.0 * nu == round_to_integer(2.0 * nu);
}
void reflect(const Request& request, const Result& result) {
  if (*result.ierr != static_cast<int>(Status::kOk) && *result.ierr != static_cast<int>(Status::kPrecisionLoss)) return;
  const int turns = static_cast<int>(std::fmod(2.0 * request.nu, 4.0));
  for (int j = 0; j < request.n; ++j) result.cy[j] = 0.0 + times_i_power(result.cy[j].real(), turns + 2 * (j & 1));
}

// The exponents e^(a w) of a term with and without scaling.
ComplexDoubleDouble exponent(const Request& request, Complex unscaled, Complex scaled) {
  return widen(request.scaled() ? scaled : unscaled);
}

// K at z, Im z >= 0, Re z < 0: K(w e^{i pi}) = e^{-i pi nu} K(w) - i pi I(w).
Combination continued_k(Complex z, const Request& request) {
  Combination c(-z);
  c.i = {true, kPi, 3, 0, exponent(request, c.w, 0.0)};
  c.k = {true, {1.0}, 0, -2, exponent(request, -c.w, -2.0 * c.w)};
  return c;
}

// H1 at z, Im z >= 0: 2/(pi i) e^{-i pi nu/2} K(-iz).
Combination hankel(Complex z, const Request& request) {
  Combination c(minus_i_times(z));
  c.k = {true, kTwoOverPi, 3, -1, exponent(request, -c.w, 0.0)};
  return c;
}

// H1 where -iz e^{i pi} = w e^{-i pi} has left the right half plane:
// H1(z) = 2/(pi i) e^{i pi nu/2} K(w) + 2 e^{-i pi nu/2} I(w), w = iz.
Combination continued_hankel(Complex z, const Request& request) {
  const Complex turned = -minus_i_times(z);
  Combination c({std::fabs(turned.real()), turned.imag()});
  c.i = {true, {2.0}, 0, -1, exponent(request, c.w, 0.0)};
  c.k = {true, kTwoOverPi, 3, 1, exponent(request, -c.w, -2.0 * c.w)};
  return c;
}

// I at z, Im z >= 0: for Re z < 0, I(w e^{i pi}) = e^{i pi nu} I(w).
Combination modified_i(Complex z, const Request& request) {
  const bool left = z.real() < 0.0;
  Combination c(left ? -z : z);
  c.i = {true, {1.0}, 0, left ? 2 : 0, exponent(request, c.w, {0.0, c.w.imag()})};
  return c;
}

// J at z, Im z >= 0: e^{i pi nu/2} I(-iz).
Combination bessel_j(Complex z, const Request& request) {
  Combination c(minus_i_times(z));
  c.i = {true, {1.0}, 0, 1, exponent(request, c.w, {0.0, c.w.imag()})};
  return c;
}

// Y at z, Im z >= 0: i (J(z) - H1(z)) = i e^{i pi nu/2} I(w) - (2/pi) e^{-i pi nu/2} K(w), w = -iz.
Combination bessel_y(Complex z, const Request& request) {
  Combination c(minus_i_times(z));
  if (!is_positive_real(z)) c.i = {true, {1.0}, 1, 1, exponent(request, c.w, {0.0, c.w.imag()})};
  c.k = {true, -kTwoOverPi, 0, -1, exponent(request, -c.w, {-2.0 * c.w.real(), -c.w.imag()})};
  return c;
}

}  // namespace

void besh(Complex z_in, double fnu, int kode, int m, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, m < 1 || m > 2, true, result)) return;
  // H2(z) is the conjugate of H1(conj z), and there the cut is approached from below.
  const Complex z = m == 1 ? z_in : std::conj(z_in);
  const bool below_cut = m == 2 && z.imag() == 0.0 && z.real() < 0.0;
  const bool continued = z.imag() < 0.0 || below_cut;
  Evaluation(continued ? continued_hankel(z, request) : hankel(z, request), request, m == 2, result).run(0, n);
}

void besi(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, false, result)) return;
  if (z_in == 0.0) return value_at_zero(request, cy);
  if (is_reflection(z_in, fnu)) {
    besi(-z_in.real(), fnu, kode, n, cy, nz, ierr);
    return reflect(request, result);
  }
  const auto [z, mirrored, real] = upper_half(z_in);
  if (real && n == 1 && store_real(real_i(fnu, z.real()), kode == 1 ? exponential(z.real()) : 1.0, cy)) return;
  Combination c = modified_i(z, request);
  c.real = real;
  Evaluation(c, request, mirrored, result).run(0, n);
}

void besj(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, false, result)) return;
  if (z_in == 0.0) return value_at_zero(request, cy);
  if (is_reflection(z_in, fnu)) {
    besj(-z_in.real(), fnu, kode, n, cy, nz, ierr);
    return reflect(request, result);
  }
  const auto [z, mirrored, real] = upper_half(z_in);
  if (real && n == 1 && store_real(real_j(fnu, z.real()), 1.0, cy)) return;
  Combination c = bessel_j(z, request);
  c.real = real;
  int oscillating = 0;  // members that are the real part of H1, which has no zeros
  if (c.real) {
    while (oscillating < n && is_oscillating(fnu + oscillating, z.real())) ++oscillating;
  }
  if (oscillating > 0) {
    Combination h = hankel(z, {fnu, 1, n});
    h.real = true;
    Evaluation part(h, request, false, result);
    part.run(0, oscillating);
    if (!part.is_ok()) return;
  }
  if (oscillating < n) Evaluation(c, request, mirrored, result).run(oscillating, n);
}

void besk(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, true, result)) return;
  const auto [z, mirrored, real] = upper_half(z_in);
  if (real && n == 1 && store_real(real_k(fnu, z.real()), kode == 1 ? exponential(-z.real()) : 1.0, cy)) return;
  Combination c;
  if (z.real() < 0.0) {
    c = continued_k(z, request);
  } else {
    c = Combination(z);
    c.real = real;
    c.k = {true, {1.0}, 0, 0, exponent(request, -z, 0.0)};
  }
  Evaluation(c, request, mirrored, result).run(0, n);
}

void besy(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, Complex* /*cwrk*/, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, true, result)) return;
  const auto [z, mirrored, real] = upper_half(z_in);
  if (real && n == 1 && store_real(real_y(fnu, z.real()), 1.0, cy)) return;
  Combination c = bessel_y(z, request);
  c.real = real;
  Evaluation(c, request, mirrored, result).run(0, n);
}

}  // namespace quorin::amos
