// SLARRB in the place of the published routine, with the same results: most of the time of SSTEMR and CSTEMR goes to
// its Sturm counts, which wait for one division after the other. Here eight shifts are counted at once: midpoints of
// several eigenvalues, or all that two or three halvings of one interval may come to.
//
// Sources: I. S. Dhillon, B. N. Parlett, C. Voemel, The design and implementation of the MRRR algorithm, ACM TOMS 32
// (2006) 533-560; J. Demmel, I. Dhillon, H. Ren, On the correctness of some bisection-like parallel eigenvalue
// algorithms in floating point arithmetic, ETNA 3 (1995) 116-149.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr int kShifts = 8;
using Shifts = std::array<float, kShifts>;
using Counts = std::array<std::int32_t, kShifts>;

using Lanes [[gnu::vector_size(16)]] = float;
using CountLanes [[gnu::vector_size(16)]] = std::int32_t;

CountLanes is_number(Lanes x) { return (x <= 0) | (x > 0); }

// Four of the shifts on their way through the twisted factorization of L D L^T - s I: downwards as L+ D+ L+^T, upwards
// as U- D- U-^T.
struct Sequence {
  Lanes shift, t;
  CountLanes count{};

  explicit Sequence(const float* shifts) {
    std::memcpy(&shift, shifts, sizeof shift);
    t = -shift;
  }
  // 0 / 0 and its like count as 1 if kMendsNaN.
  template <bool kMendsNaN>
  void step(float added, float factor) {
    const Lanes pivot = added + t;
    count -= pivot < 0;
    Lanes quotient = t / pivot;
    if (kMendsNaN) quotient = is_number(quotient) ? quotient : Lanes{} + 1;
    t = quotient * factor - shift;
  }
  bool has_nan() const {
    const CountLanes are_numbers = is_number(t);
    return (are_numbers[0] & are_numbers[1] & are_numbers[2] & are_numbers[3]) == 0;
  }
};

// Returns false if a NaN came up that was not mended. `twist` is counted from 1.
template <bool kMendsNaN>
bool count_below(int n, const float* d, const float* lld, int twist, const Shifts& shifts, Counts& counts) {
  Sequence low(shifts.data()), high(shifts.data() + 4);
  for (int j = 0; j < twist - 1; ++j) {
    low.step<kMendsNaN>(d[j], lld[j]);
    high.step<kMendsNaN>(d[j], lld[j]);
  }
  const Lanes low_above = low.t + low.shift, high_above = high.t + high.shift;
  const bool is_lost = !kMendsNaN && (low.has_nan() || high.has_nan());  // once there, it stays
  low.t = d[n - 1] - low.shift;
  high.t = d[n - 1] - high.shift;
  for (int j = n - 2; j >= twist - 1; --j) {
    low.step<kMendsNaN>(lld[j], d[j]);
    high.step<kMendsNaN>(lld[j], d[j]);
  }
  if (is_lost || (!kMendsNaN && (low.has_nan() || high.has_nan()))) return false;
  low.count -= low_above + low.t < 0;
  high.count -= high_above + high.t < 0;
  std::memcpy(counts.data(), &low.count, sizeof low.count);
  std::memcpy(counts.data() + 4, &high.count, sizeof high.count);
  return true;
}

// L D L^T of order n, and how many of its eigenvalues lie below each shift.
struct Representation {
  int n;
  const float *d, *lld;
  int twist;

  Counts count(const Shifts& shifts) const {
    Counts counts;
    if (!count_below<false>(n, d, lld, twist, shifts, counts)) count_below<true>(n, d, lld, twist, shifts, counts);
    return counts;
  }
};

// The halvings that bring an interval of that length to the least one. Of lengths that are not finite, what would do
// for any float.
int halvings_to(float least, float length) {
  constexpr int kAny = 300;
  const float halvings = (std::log(length) - std::log(least)) / std::log(2.0F);
  return halvings >= 0 && halvings < kAny ? static_cast<int>(halvings) : kAny;
}

// An interval around eigenvalue `number`, counted from 1.
struct Interval {
  float left, right;

  // Fills in the midpoints of the interval and its halves, `levels` times, as a heap from `node` on.
  static void add_midpoints(float left, float right, int levels, int node, float* heap) {
    const float middle = 0.5F * (left + right);
    heap[node - 1] = middle;
    if (levels == 1) return;
    add_midpoints(left, middle, levels - 1, 2 * node, heap);
    add_midpoints(middle, right, levels - 1, 2 * node + 1, heap);
  }
};

}  // namespace

extern "C" void slarrb_(const std::int32_t* order, const float* d, const float* lld, const std::int32_t* first,
                        const std::int32_t* last, const float* rtol1, const float* rtol2, const std::int32_t* offset,
                        float* w, float* wgap, float* werr, float* work, std::int32_t* iwork, const float* pivmin,
                        const float* spdiam, const std::int32_t* twist, std::int32_t* info) noexcept;

void slarrb_(const std::int32_t* order, const float* d, const float* lld, const std::int32_t* first,
             const std::int32_t* last, const float* rtol1, const float* rtol2, const std::int32_t* offset, float* w,
             float* wgap, float* werr, float* work, std::int32_t* iwork, const float* pivmin, const float* spdiam,
             const std::int32_t* twist, std::int32_t* info) noexcept {
  *info = 0;
  if (*order <= 0) return;
  const bool is_twisted = 1 <= *twist && *twist <= *order;
  const Representation representation{*order, d, lld, is_twisted ? *twist : *order};
  const int count = *last - *first + 1, base = *first - *offset - 1;  // element base of w is the first eigenvalue's
  const int most_halvings = halvings_to(*pivmin, *spdiam + *pivmin) + 2;
  const auto interval = [work](int i) -> Interval& { return reinterpret_cast<Interval*>(work)[i]; };
  const auto has_converged = [&](int i, float half_width, float left_gap) {
    const Interval& x = interval(i);
    const float size = std::max(std::abs(x.left), std::abs(x.right)), gap = std::min(left_gap, wgap[base + i]);
    return half_width <= std::max(*rtol1 * gap, *rtol2 * size) || half_width <= 2 * *pivmin;
  };

  // Intervals that hold their eigenvalues: four at a time.
  int active = 0;  // intervals to halve, listed in iwork
  for (int i = 0, some = 0; i < count; i += some) {
    some = std::min(count - i, kShifts / 2);
    float steps[kShifts];
    for (int k = 0; k < some; ++k) {
      const float error = werr[base + i + k], value = w[base + i + k];
      interval(i + k) = {value - error, value + error};
      steps[2 * k] = steps[2 * k + 1] = error;
    }
    constexpr int kMostSteps = 300;  // more than a float can be doubled
    bool has_moved = true;
    for (int trial = 0; has_moved && trial < kMostSteps; ++trial) {
      has_moved = false;
      Shifts shifts{};
      for (int k = 0; k < kShifts / 2; ++k) {
        const Interval& x = interval(i + std::min(k, some - 1));
        shifts[2 * k] = x.left;
        shifts[2 * k + 1] = x.right;
      }
      const Counts below = representation.count(shifts);
      for (int k = 0; k < some; ++k) {
        const int number = *first + i + k;
        Interval& x = interval(i + k);
        if (below[2 * k] > number - 1) {
          x.left -= steps[2 * k];
          steps[2 * k] *= 2;
          has_moved = true;
        }
        if (below[2 * k + 1] < number) {
          x.right += steps[2 * k + 1];
          steps[2 * k + 1] *= 2;
          has_moved = true;
        }
      }
    }
    for (int k = i; k < i + some; ++k) {
      const Interval& x = interval(k);
      if (!has_converged(k, 0.5F * std::abs(x.left - x.right), wgap[base + std::max(k - 1, 0)])) iwork[active++] = k;
    }
  }

  for (int halvings = 0; active > 0;) {
    const int levels = active == 1 ? 3 : active == 2 ? 2 : 1, points = (1 << levels) - 1, at_once = kShifts / points;
    int left_over = 0;
    for (int a = 0, some = 0; a < active; a += some) {
      some = std::min(active - a, at_once);
      Shifts shifts;
      shifts.fill(interval(iwork[a]).left);
      for (int k = 0; k < some; ++k) {
        const Interval& x = interval(iwork[a + k]);
        Interval::add_midpoints(x.left, x.right, levels, 1, &shifts[k * points]);
      }
      const Counts below = representation.count(shifts);
      for (int k = 0; k < some; ++k) {
        const int i = iwork[a + k];
        Interval& x = interval(i);
        bool is_done = false;
        for (int level = 0, node = 1; level < levels && !is_done; ++level) {
          const int point = k * points + node - 1;
          const float middle = shifts[point];
          is_done = has_converged(i, x.right - middle, wgap[base + (base + i > 0 ? i - 1 : i)]) ||
                    halvings + level == most_halvings;
          if (is_done) break;
          const bool is_above = below[point] <= *first + i - 1;
          (is_above ? x.left : x.right) = middle;
          node = 2 * node + (is_above ? 1 : 0);
        }
        if (is_done) {
          w[base + i] = 0.5F * (x.left + x.right);
          werr[base + i] = x.right - w[base + i];
        } else {
          iwork[left_over++] = i;
        }
      }
    }
    active = left_over;
    halvings += levels;
  }
  for (int i = base + 1; i < base + count; ++i) {
    wgap[i - 1] = std::max(0.0F, w[i] - werr[i] - w[i - 1] - werr[i - 1]);
  }
}
