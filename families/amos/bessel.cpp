// The five Bessel functions: input checks, and each function as a combination of I and K in the right half plane.
#include <numbers>

#include "families/amos/amos.hpp"
#include "families/amos/cylinder_ratio.hpp"
#include "families/amos/finish.hpp"
#include "families/amos/limits.hpp"
#include "families/amos/sequences.hpp"

namespace quorin::amos {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr Complex kImaginary{0.0, 1.0};

// One term of a combination: coefficient * i^(step j) * factor * f_{nu+j}, f being e^-w I or e^w K.
struct Term {
  bool used = false;
  Complex coefficient = 1.0;
  int step = 0;
  Scaled factor{1.0};

  Scaled member(int j, Scaled f) const { return f * factor * times_i_power(coefficient, step * (j & 3)); }
};

// A function at z as the sum of two terms in functions of w, Re w >= 0.
struct Combination {
  Complex w;
  Term i;
  Term k;
  bool mirrored = false;  // the function was asked for at the conjugate of the argument
  bool real = false;      // the function is real there
  bool unscaled = false;  // kode 1
  bool is_y = false;
};

struct Request {
  double nu;
  int kode;
  int n;
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
  const double size = std::hypot(z.real(), z.imag());
  const double order = request.nu + (static_cast<double>(request.n) - 1.0);
  if (!(size <= kRangeLimit) || !(order <= kRangeLimit)) return stop(Status::kNoPrecision);
  if (singular_at_zero && size < kUnderflowGuard) return stop(Status::kOverflow);
  const bool loss = size > kHalfPrecisionLimit || order > kHalfPrecisionLimit;
  *result.ierr = static_cast<int>(loss ? Status::kPrecisionLoss : Status::kOk);
  return true;
}

// In the region of the large-argument expansion e^w itself overflows before I does.
bool exponential_overflows(const Combination& c, const Request& request) {
  const double top = request.nu + (request.n - 1);
  return c.unscaled && c.i.used && c.w.real() > kElim && (top <= 1.0 || top * top <= 2.0 * std::abs(c.w));
}

class Evaluation {
 public:
  Evaluation(const Combination& c, const Request& request, const Result& result)
      : c_(c), request_(request), result_(result) {}

  void run() {
    if (exponential_overflows(c_, request_)) {
      status_ = Status::kOverflow;
    } else {
      if (c_.i.used) descend_i(request_.nu, request_.n, c_.w, [this](int j, Scaled f) { return take_i(j, f); });
      if (c_.k.used && status_ == Status::kOk) {
        ascend_k(request_.nu, request_.n, c_.w, [this](int j, Scaled f) { return take_k(j, f); });
      }
    }
    if (status_ == Status::kOk) {
      *result_.nz = underflows_;
    } else {
      *result_.ierr = static_cast<int>(status_);
    }
  }

 private:
  // The part of I waits in cy until the recurrence for K, which runs the other way, comes by.
  bool take_i(int j, Scaled f) {
    const Scaled part = normalized(c_.i.member(j, f));
    if (!c_.k.used) return store(j, part);
    if (!is_finite(part.m)) status_ = Status::kNotConverged;
    if (part.e > 1020) status_ = Status::kOverflow;
    result_.cy[j] = part.e < kWaitingLimit ? 0.0 : shift(part.m, part.e);
    return status_ == Status::kOk;
  }

  bool take_k(int j, Scaled f) {
    const Scaled part = normalized(c_.k.member(j, f));
    if (!c_.i.used) return store(j, part);
    Scaled waiting{result_.cy[j]};
    if (result_.cy[j] == 0.0 && part.e < kWaitingLimit + 64) {
      // Both parts are near underflow, where the one that waited has lost its exponent: it is computed once more.
      descend_i(request_.nu + j, 1, c_.w, [&](int, Scaled i) {
        waiting = c_.i.member(j, i);
        return true;
      });
    }
    return store(j, part + waiting);
  }

  bool store(int j, Scaled value) {
    if (c_.real) value.m = value.m.real();
    if (c_.is_y) value = refined_y(j, value);
    Complex member;
    status_ = finish(value, member, underflows_);
    if (status_ != Status::kOk) return false;
    result_.cy[j] = c_.mirrored ? std::conj(member) : member;
    return true;
  }

  // The member of index j by itself.
  Scaled member(int j) const {
    Scaled sum{};
    const auto add = [&](const Term& term) {
      return [&sum, &term, j](int, Scaled f) {
        sum = sum + term.member(j, f);
        return true;
      };
    };
    if (c_.i.used) descend_i(request_.nu + j, 1, c_.w, add(c_.i));
    if (c_.k.used) ascend_k(request_.nu + j, 1, c_.w, add(c_.k));
    if (c_.real) sum.m = sum.m.real();
    return sum;
  }

  // Y from the next higher order, if z = i w is next to a zero of it. Those lie on the positive real axis, and for half
  // odd orders on the negative one, where Y is e^{-i pi nu} times Y(-z).
  Scaled refined_y(int j, Scaled value) const {
    const Complex z{-c_.w.imag(), c_.w.real()};
    const double steps = std::nearbyint(request_.nu);
    const double mu = request_.nu - steps;
    const bool left = z.real() < 0.0;
    if (left && std::fabs(mu) != 0.5) return value;
    const double growth = c_.unscaled ? 1.0 : std::exp(std::fmin(z.imag(), 1.0));
    if (!is_next_to_zero(request_.nu + j, z, growth * std::abs(shift(value.m, value.e)))) return value;
    const Complex ratio = cylinder_ratio(Cylinder::kY, {mu, 0.0}, static_cast<int>(steps) + j, widen(left ? -z : z));
    return member(j + 1) * (left ? -ratio : ratio);
  }

  static constexpr std::int64_t kWaitingLimit = -1000;

  const Combination& c_;
  const Request& request_;
  const Result& result_;
  Status status_ = Status::kOk;
  int underflows_ = 0;
};

bool is_positive_real(Complex z) { return z.imag() == 0.0 && z.real() > 0.0; }

// z and whether the conjugate has to be taken of the result: all functions are conjugated with their argument.
Complex upper_half(Complex z, bool& mirrored) {
  mirrored = z.imag() < 0.0;
  return mirrored ? std::conj(z) : z;
}

// -i z without rounding or signed-zero surprises.
Complex minus_i_times(Complex z) { return {z.imag() + 0.0, 0.0 - z.real()}; }

// I and J at zero: 1 for order 0, else 0, and none of them an underflow.
void value_at_zero(const Request& request, Complex* cy) {
  std::fill(cy, cy + request.n, Complex{});
  if (request.nu == 0.0) cy[0] = 1.0;
}

// K at z, Im z >= 0, Re z < 0.
Combination continued_k(Complex z, const Request& request) {
  Combination c;
  c.w = -z;
  c.unscaled = request.kode == 1;
  // K(w e^{i pi}) = e^{-i pi nu} K(w) - i pi I(w)
  c.i = {true, -kPi * kImaginary, 0, c.unscaled ? exponential(c.w) : Scaled{1.0}};
  c.k = {true, std::conj(half_turns(request.nu)), 2, exponential(c.unscaled ? -c.w : -2.0 * c.w)};
  return c;
}

// H1 where -iz e^{i pi} = w e^{-i pi} has left the right half plane.
Combination continued_h(Complex z, const Request& request) {
  Combination c;
  c.w = -minus_i_times(z);
  c.w.real(std::fabs(c.w.real()));
  c.unscaled = request.kode == 1;
  const Complex turn = quarter_turns(request.nu);
  // H1(z) = 2/(pi i) e^{i pi nu/2} K(w) + 2 e^{-i pi nu/2} I(w), w = iz
  c.i = {true, 2.0 * std::conj(turn), -1, c.unscaled ? exponential(c.w) : Scaled{1.0}};
  c.k = {true, -2.0 / kPi * kImaginary * turn, 1, exponential(c.unscaled ? -c.w : -2.0 * c.w)};
  return c;
}

// I and J, which are powers at zero. `express` writes the function at z, Im z >= 0, as a multiple of I(w).
template <class Express>
void power_at_zero(Complex z_in, const Request& request, const Result& result, Express express) {
  if (!accept(z_in, request, false, false, result)) return;
  if (z_in == 0.0) return value_at_zero(request, result.cy);
  Combination c;
  const Complex z = upper_half(z_in, c.mirrored);
  c.unscaled = request.kode == 1;
  c.real = is_positive_real(z);
  express(z, c);
  c.i.used = true;
  c.i.factor = exponential(c.unscaled ? c.w : Complex{0.0, c.w.imag()});
  Evaluation(c, request, result).run();
}

}  // namespace

void besh(Complex z_in, double fnu, int kode, int m, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, m < 1 || m > 2, true, result)) return;
  // H2(z) is the conjugate of H1(conj z), and there the cut is approached from below.
  const Complex z = m == 1 ? z_in : std::conj(z_in);
  const bool below_cut = m == 2 && z.imag() == 0.0 && z.real() < 0.0;
  Combination c;
  if (z.imag() < 0.0 || below_cut) {
    c = continued_h(z, request);
  } else {
    c.w = minus_i_times(z);
    c.unscaled = kode == 1;
    // H1(z) = 2/(pi i) e^{-i pi nu/2} K(-iz)
    c.k = {true, -2.0 / kPi * kImaginary * std::conj(quarter_turns(fnu)), -1,
           c.unscaled ? exponential(-c.w) : Scaled{1.0}};
  }
  c.mirrored = m == 2;
  Evaluation(c, request, result).run();
}

void besi(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  power_at_zero(z_in, {fnu, kode, n}, {cy, nz, ierr}, [fnu](Complex z, Combination& c) {
    const bool left = z.real() < 0.0;
    c.w = left ? -z : z;
    if (left) {
      // I(w e^{i pi}) = e^{i pi nu} I(w)
      c.i.coefficient = half_turns(fnu);
      c.i.step = 2;
    }
  });
}

void besj(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  power_at_zero(z_in, {fnu, kode, n}, {cy, nz, ierr}, [fnu](Complex z, Combination& c) {
    // J(z) = e^{i pi nu/2} I(-iz)
    c.w = minus_i_times(z);
    c.i.coefficient = quarter_turns(fnu);
    c.i.step = 1;
  });
}

void besk(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, true, result)) return;
  bool mirrored = false;
  const Complex z = upper_half(z_in, mirrored);
  Combination c;
  if (z.real() < 0.0) {
    c = continued_k(z, request);
  } else {
    c.w = z;
    c.real = is_positive_real(z);
    c.k.used = true;
    if (kode == 1) c.k.factor = exponential(-z);
  }
  c.mirrored = mirrored;
  Evaluation(c, request, result).run();
}

void besy(Complex z_in, double fnu, int kode, int n, Complex* cy, int* nz, Complex* /*cwrk*/, int* ierr) {
  const Request request{fnu, kode, n};
  const Result result{cy, nz, ierr};
  if (!accept(z_in, request, false, true, result)) return;
  Combination c;
  const Complex z = upper_half(z_in, c.mirrored);
  c.w = minus_i_times(z);
  c.unscaled = kode == 1;
  c.real = is_positive_real(z);
  c.is_y = true;
  const Complex turn = quarter_turns(fnu);
  // Y(z) = i (J(z) - H1(z)) = i e^{i pi nu/2} I(w) - (2/pi) e^{-i pi nu/2} K(w), w = -iz
  if (!c.real) {
    c.i = {true, kImaginary * turn, 1, exponential(c.unscaled ? c.w : Complex{0.0, c.w.imag()})};
  }
  c.k = {true, -2.0 / kPi * std::conj(turn), -1,
         exponential(c.unscaled ? -c.w : Complex{-2.0 * c.w.real(), -c.w.imag()})};
  Evaluation(c, request, result).run();
}

}  // namespace quorin::amos
