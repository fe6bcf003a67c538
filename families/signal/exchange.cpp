#include "families/signal/exchange.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quorin::signal {
namespace {

static_assert(kSamples == kLanes);

// The most candidates for `points` reference points: these, the band edges, and the critical points of every piece
// between them.
std::size_t most_candidates(int points, int bands, int pieces) {
  const auto marks = static_cast<std::size_t>(points) + 2 * static_cast<std::size_t>(bands);
  return base::saturating_product(marks, 1 + base::saturating_product(kSamples, static_cast<std::size_t>(pieces)));
}

// cos(middle + half s) for all samples s in [-1, 1]. Near `middle`, by the sum formula and Taylor series.
void cosines_near(double middle, double half, const std::array<double, kSamples>& samples, double* result) {
  constexpr double kNear = 0.1;  // where the series that follow are good to 1e-17
  if (half > kNear) {
    for (int j = 0; j < kSamples; ++j) result[j] = std::cos(middle + half * samples[j]);
    return;
  }
  const double cosine = std::cos(middle), sine = std::sin(middle);
  for (int j = 0; j < kSamples; ++j) {
    const double d = half * samples[j], square = d * d;
    const double versine = square / 2 * (1 - square / 12 * (1 - square / 30 * (1 - square / 56 * (1 - square / 90))));
    const double sine_d = d * (1 - square / 6 * (1 - square / 20 * (1 - square / 42 * (1 - square / 72))));
    result[j] = cosine - (cosine * versine + sine * sine_d);
  }
}

bool negative(const Extremum& e) { return std::signbit(e.error); }
double size(const Extremum& e) { return std::abs(e.error); }

}  // namespace

Exchange::Exchange(const Problem& problem, int most, int pieces)
    : problem_(problem),
      samples_(sample_points()),
      pieces_(pieces),
      polynomial_(static_cast<std::size_t>(most)),
      cosines_(static_cast<std::size_t>(most)),
      reference_(static_cast<std::size_t>(most)),
      candidates_(most_candidates(most, problem.band_count(), pieces)) {}

void Exchange::move_to_grid() {
  for (int first = 0, last = 0; first < count_; first = last) {
    while (last < count_ && reference_[last].band == reference_[first].band) ++last;
    const Band& in = band(reference_[first].band);
    const int points = problem_.grid_points(in);
    int before = -1;
    for (int i = first; i < last; ++i) {
      const int nearest = static_cast<int>(std::lround((reference_[i].t - in.lower) / problem_.grid_step));
      before = std::min(std::max(nearest, before + 1), std::max(0, points - (last - i)));
      reference_[i].t = problem_.grid_point(in, before);
    }
  }
}

// With the values y(i) = D(i)/S(i) - s(i) d / (W(i) S(i)), s(i) = 1, -1, 1, ..., at n + 2 nodes there is a polynomial
// of degree n if the divided difference sum w(i) y(i) vanishes:
//
//   d = sum w(i) D(i)/S(i)  /  sum s(i) w(i) / (W(i) S(i)),
//
// where no two terms of the divisor cancel, since w(i) alternates, too.
bool Exchange::level() {
  for (int i = 0; i < count_; ++i) {
    cosines_[i] = std::cos(reference_[i].t);
    if (i > 0 && !(cosines_[i] < cosines_[i - 1])) return false;
  }
  polynomial_.set_nodes(cosines_.data(), count_);

  double numerator = 0.0, denominator = 0.0;
  for (int i = 0; i < count_; ++i) {
    const auto [t, error, b, known] = reference_[i];
    numerator += polynomial_.weight(i) * target(b, t);
    denominator += std::abs(polynomial_.weight(i)) / (band(b).weight * problem_.shape(t, band(b)));
  }
  leveled_ = numerator / denominator;
  if (!std::isfinite(leveled_)) return false;

  for (int i = 0; i < count_; ++i) {
    auto& [t, error, b, known] = reference_[i];
    error = i % 2 == 0 ? leveled_ : -leveled_;
    known = true;
    polynomial_.set_value(i, target(b, t) - error / (band(b).weight * problem_.shape(t, band(b))));
  }
  return true;
}

bool Exchange::find_extrema() {
  candidate_count_ = 0;
  int next = 0;
  for (int b = 0; b < problem_.band_count(); ++b) {
    if (problem_.grid_step > 0) {
      search_grid(b, next);
    } else {
      search_band(b, next);
    }
  }
  return evaluate_candidates();
}

// `next` is the first reference point that is not in an earlier band.
void Exchange::search_band(int b, int& next) {
  double from = band(b).lower;
  if (next == count_ || reference_[next].band != b || reference_[next].t > from) add({from, 0.0, b, false});
  for (; next < count_ && reference_[next].band == b; ++next) {
    search_interval(b, from, reference_[next].t);
    from = reference_[next].t;
    add(reference_[next]);
  }
  if (from < band(b).upper) {
    search_interval(b, from, band(b).upper);
    add({band(b).upper, 0.0, b, false});
  }
}

void Exchange::search_interval(int b, double from, double to) {
  constexpr double kNarrowest = 1e-13;
  if (to - from < kNarrowest) return;
  const double width = (to - from) / pieces_;
  for (int i = 0; i < pieces_; ++i) search_piece(b, from + i * width, i + 1 < pieces_ ? from + (i + 1) * width : to);
}

void Exchange::search_piece(int b, double from, double to) {
  const double middle = (from + to) / 2;
  const double half = (to - from) / 2;
  double x[kSamples], errors[kSamples], zeros[kSamples];
  cosines_near(middle, half, samples_, x);
  polynomial_.evaluate(x, errors);
  for (int j = 0; j < kSamples; ++j) {
    const double shape = problem_.shape(middle + half * samples_[j], band(b));
    errors[j] = band(b).weight * (band(b).desired - shape * errors[j]);
  }
  const int found = critical_points_.find(errors, zeros);
  for (int i = 0; i < found; ++i) add({middle + half * zeros[i], 0.0, b, false});
}

void Exchange::search_grid(int b, int& next) {
  const int points = problem_.grid_points(band(b));
  for (int i = 0; i < points; ++i) {
    const double t = problem_.grid_point(band(b), i);
    const bool in_reference = next < count_ && reference_[next].band == b && reference_[next].t == t;
    add(in_reference ? reference_[next++] : Extremum{t, 0.0, b, false});
  }
}

bool Exchange::evaluate_candidates() {
  largest_ = std::abs(leveled_);
  bool finite = true;
  for (int begin = 0; begin < candidate_count_;) {
    Extremum* group[kLanes]{};
    double x[kLanes]{}, value[kLanes];
    int found = 0;
    for (; begin < candidate_count_ && found < kLanes; ++begin) {
      if (candidates_[begin].known) continue;
      x[found] = std::cos(candidates_[begin].t);
      group[found++] = &candidates_[begin];
    }
    if (found == 0) break;
    std::fill(x + found, x + kLanes, x[0]);
    polynomial_.evaluate(x, value);
    for (int l = 0; l < found; ++l) {
      Extremum& e = *group[l];
      e.error = band(e.band).weight * (band(e.band).desired - problem_.shape(e.t, band(e.band)) * value[l]);
      finite = finite && std::isfinite(e.error);
      largest_ = std::max(largest_, size(e));
    }
  }
  return finite;
}

void Exchange::exchange() {
  const int have = alternating_candidates();
  if (have < count_) return;
  drop_surplus(have);
  std::copy_n(candidates_.begin(), count_, reference_.begin());
}

// The largest of neighbours with errors of the same sign stays. Since the reference points are among the candidates,
// with alternating signs (signs of zeros, if need be), at least as many alternations remain.
int Exchange::alternating_candidates() {
  const double least = std::abs(leveled_) * (1 - 1e-12);
  int have = 0;
  for (int i = 0; i < candidate_count_; ++i) {
    const Extremum e = candidates_[i];
    if (size(e) < least) continue;
    if (have == 0 || negative(candidates_[have - 1]) != negative(e)) {
      candidates_[have++] = e;
    } else if (size(candidates_[have - 1]) < size(e)) {
      candidates_[have - 1] = e;
    }
  }
  return have;
}

// A single point can go only from an end, two only as neighbours or as both ends; each time those go whose larger error
// is the smallest.
void Exchange::drop_surplus(int have) {
  Extremum* const c = candidates_.data();
  while (have > count_ + 1) {
    int drop = -1;
    double least = std::max(size(c[0]), size(c[have - 1]));
    for (int i = 0; i + 1 < have; ++i) {
      const double pair = std::max(size(c[i]), size(c[i + 1]));
      if (pair < least) {
        least = pair;
        drop = i;
      }
    }
    if (drop < 0) {
      std::move(c + 1, c + have - 1, c);
    } else {
      std::move(c + drop + 2, c + have, c + drop);
    }
    have -= 2;
  }
  if (have > count_ && size(c[0]) < size(c[have - 1])) std::move(c + 1, c + have, c);
}

}  // namespace quorin::signal
