#include "families/feast/slices.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

#include "base/parallel.hpp"
#include "platform/platform.hpp"

namespace quorin::feast {

template <Scalar T>
Status Slices<T>::run(const Count& low, const Count& high, sparse::Factor<T>& spare, Subspace<T>& X) {
  constexpr int kPatience = 8;  // rounds that do not find a quarter of what is missing
  X.resize(0);
  if (!plan_first(low, high)) return Status::kDone;
  int missing = high.below - low.below;
  for (int idle = 0; idle < kPatience;) {
    if (const Status status = run_points(spare); status != Status::kDone) return status;
    const int before = missing;
    if (!plan_more(missing)) break;
    if (missing >= before - before / 4) ++idle;
  }
  return gather(X);
}

// ---- Where shifts are put -------------------------------------------------------------------------------------------

// Slices of about as many eigenvalues as a run finds without its basis becoming dear, in a part of the memory. False if
// that is too little.
template <Scalar T>
bool Slices<T>::plan_first(const Count& low, const Count& high) {
  constexpr int kPerSlice = 64, kSpare = 96, kLeast = 64, kMostSlices = kMostPoints / 2;
  constexpr double kBasisPerPair = 3;
  constexpr int kPart = 8;
  const int n = pencil_.size(), wanted = high.below - low.below;
  const platform::MemoryStatus memory = platform::memory_status();
  const double budget = std::min(memory.total_physical, memory.available_virtual) / kPart;
  const double affordable = std::min<double>(n, budget / (static_cast<double>(n) * sizeof(T)));
  if (affordable < std::min(n, kLeast)) return false;
  const double per_slice = std::clamp((affordable - kSpare) / kBasisPerPair, 1.0, double{kPerSlice});
  const int slices = std::clamp(static_cast<int>(std::ceil(wanted / per_slice)), 1, kMostSlices);
  per_slice_ = (wanted + slices - 1) / slices;
  capacity_ = static_cast<int>(std::min(affordable, kBasisPerPair * per_slice_ + kSpare));

  // The shifts are not quite at simple parts of the interval, where eigenvalues may be.
  constexpr double kReach = 0.55, kMiddle = 0.5 + 0x1.3p-8;
  const double width = (high.where - low.where) / slices;
  count_ = slices + 2;
  for (int i = 0; i < count_; ++i) {
    Point& point = at(i);
    point = {};
    point.shift = low.where + (i - 1 + kMiddle) * width;
    point.reach_below = point.reach_above = kReach * width;
    point.least = point.shift - width;
    point.most = point.shift + width;
  }
  Point &first = at(0), &last = at(slices + 1);
  first.shift = low.where;
  first.below = low.below;
  last.shift = high.where;
  last.below = high.below;
  first.is_done = last.is_done = true;
  return true;
}

// Where pairs are missing between two shifts, others are put between what the runs from there have found. False if
// nothing is missing, or there can be no more shifts.
template <Scalar T>
bool Slices<T>::plan_more(int& missing) {
  missing = 0;
  bool has_more = false;
  for (int i = 0; i + 1 < count_; ++i) {
    const Point &low = at(i), &high = at(i + 1);
    const Split found = split(low, high);
    if (found.is_complete) continue;
    const int lacking = *high.below - *low.below - found.from_below - found.from_above;
    missing += lacking;
    if (count_ == kMostPoints) return false;
    has_more = true;
    const Branch &above = low.upper, &below = high.lower;
    const auto limit = [](const Branch& branch, int used, double start) {
      return used > 0 ? branch.values[static_cast<std::size_t>(used - 1)] : branch.next.value_or(start);
    };
    double from = limit(above, found.from_below, low.shift), to = limit(below, found.from_above, high.shift);
    if (!(low.shift <= from && from < to && to <= high.shift)) {
      from = low.shift;
      to = high.shift;
    }
    const int wanted = std::min(std::max(1, (lacking + per_slice_ - 1) / per_slice_), kMostPoints - count_);
    const double step = (to - from) / (wanted + 1), least = low.shift, most = high.shift;
    // All between two shifts is counted, so that a run for that is told what it has not found yet.
    const bool is_whole = wanted == 1 && *high.below - *low.below <= 2 * per_slice_;
    std::move_backward(points_.begin() + i + 1, points_.begin() + count_, points_.begin() + count_ + wanted);
    count_ += wanted;
    for (int k = 1; k <= wanted; ++k) {
      Point& point = at(i + k);
      point = {};
      point.shift = from + k * step;
      point.least = least;
      point.most = most;
      point.reach_below = is_whole ? point.shift - least : step;
      point.reach_above = is_whole ? most - point.shift : step;
    }
    i += wanted;
  }
  return has_more;
}

// ---- Runs -----------------------------------------------------------------------------------------------------------

template <Scalar T>
Status Slices<T>::run_points(sparse::Factor<T>& spare) {
  std::array<Point*, kMostPoints> waiting;
  int count = 0;
  for (int i = 0; i < count_; ++i) {
    Point& point = at(i);
    if (point.is_done) continue;
    // What is known by now of the eigenvalues around does not depend on the order in which runs end.
    for (int k = i - 1; k >= 0 && !point.before; --k) point.before = at(k).count();
    for (int k = i + 1; k < count_ && !point.behind; ++k) point.behind = at(k).count();
    waiting[static_cast<std::size_t>(count++)] = &point;
  }
  if (count > 1) spare.clear();
  const platform::MemoryStatus memory = platform::memory_status();
  const double budget = std::min(memory.total_physical, memory.available_virtual) / 2;
  const double bytes = solver_.real_factor_bytes() + static_cast<double>(pencil_.size()) * sizeof(T) * capacity_;
  const int together = std::clamp(static_cast<int>(budget / bytes), 1, std::min(threads_, count));
  std::array<Status, kMostPoints> statuses;
  base::parallel_for(count, together, [&](int i) {
    const auto place = static_cast<std::size_t>(i);
    sparse::Factor<T> factor;
    statuses[place] = run_point(*waiting[place], together == 1 ? threads_ : 1, count == 1 ? spare : factor);
  });
  for (int i = 0; i < count; ++i) {
    if (statuses[static_cast<std::size_t>(i)] != Status::kDone) return statuses[static_cast<std::size_t>(i)];
  }
  const auto end = std::remove_if(points_.begin(), points_.begin() + count_, [](const Point& x) { return !x.below; });
  count_ = static_cast<int>(end - points_.begin());
  return Status::kDone;
}

template <Scalar T>
Status Slices<T>::run_point(Point& point, int threads, sparse::Factor<T>& factor) const {
  point.is_done = true;
  if (const Status status = find_shift(point, factor, threads); status != Status::kDone || !point.below) return status;
  Lanczos lanczos;
  if (!lanczos.reserve(pencil_.size(), capacity_, threads)) return Status::kNoMemory;
  const Count &before = *point.before, &behind = *point.behind;
  typename Lanczos::Goal goal{point.shift, tolerance_, {}, {}};
  goal.below = {point.reach_below, *point.below - before.below, point.shift - before.where};
  goal.above = {point.reach_above, behind.below - *point.below, behind.where - point.shift};
  const Status status = lanczos.run(pencil_, factor, goal);
  factor.clear();
  if (status == Status::kNoMemory) return status;
  const bool is_kept = status != Status::kDone || (keep(lanczos, Side::kBelow, point.least, point.lower) &&
                                                   keep(lanczos, Side::kAbove, point.most, point.upper));
  return is_kept ? Status::kDone : Status::kNoMemory;
}

// Factors A - shift B, where the shift may be moved to a point at which the count can be trusted. Without one, the
// point has no count.
template <Scalar T>
Status Slices<T>::find_shift(Point& point, sparse::Factor<T>& factor, int threads) const {
  constexpr double kMargin = 0x1p-20;
  const double wanted = point.shift, reach = std::min(point.reach_below, point.reach_above);
  for (const double aside : {0.0, 0.125, -0.125, 0.25}) {
    point.shift = wanted + aside * reach;
    const Status status = solver_.count_below(point.shift, kMargin * reach, threads, factor, point.below);
    if (status != Status::kDone || point.below) return status;
  }
  return Status::kDone;
}

// What has converged on a side of a shift up to `end`; beyond an end of the interval, the next neighbours.
template <Scalar T>
bool Slices<T>::keep(const Lanczos& lanczos, Side side, double end, Branch& branch) const {
  const bool is_below = side == Side::kBelow;
  const auto is_near = [&](double value) { return is_below ? value > end : value < end; };
  int count = 0;
  while (count < lanczos.converged(side) && is_near(lanczos.value(side, count))) ++count;
  branch.count = count;
  branch.next = lanczos.next_value(side);
  branch.values = base::Workspace<double>(static_cast<std::size_t>(count));
  branch.vectors = base::Workspace<T>(
      base::saturating_product(static_cast<std::size_t>(pencil_.size()), static_cast<std::size_t>(count)));
  if (!branch.values || !branch.vectors) return false;
  for (int k = 0; k < count; ++k) branch.values[static_cast<std::size_t>(k)] = lanczos.value(side, k);
  return lanczos.vectors(side, count, branch.vectors.data());
}

// ---- What was found -------------------------------------------------------------------------------------------------

// Of c eigenvalues between two shifts, the k-th from below is the (c + 1 - k)-th from above. The runs meet where the
// distance of the last of the one and the last of the other is largest, and so not inside of a cluster; that is more
// than errors of the runs could make it.
template <Scalar T>
auto Slices<T>::split(const Point& low, const Point& high) const -> Split {
  const Branch &above = low.upper, &below = high.lower;
  const int wanted = *high.below - *low.below;
  if (wanted <= 0) return {};
  const double least = std::min(16 * tolerance_, (high.shift - low.shift) / (16 * wanted));
  const auto last_above = [&](int k) { return k > 0 ? above.values[static_cast<std::size_t>(k - 1)] : low.shift; };
  const auto last_below = [&](int k) { return k > 0 ? below.values[static_cast<std::size_t>(k - 1)] : high.shift; };
  int first = 0, second = 0;  // found before the other shift
  while (first < std::min(wanted, above.count) && last_above(first + 1) < high.shift) ++first;
  while (second < std::min(wanted, below.count) && last_below(second + 1) > low.shift) ++second;
  Split best{0, 0, false};
  double widest = least;
  for (int k = std::max(0, wanted - second); k <= first; ++k) {
    const double distance = last_below(wanted - k) - last_above(k);
    // Where one run has found all, its last may be next to the other shift.
    if (distance > widest || (!best.is_complete && distance > 0 && (k == 0 || k == wanted))) {
      best = {k, wanted - k, true};
      widest = std::max(widest, distance);
    }
  }
  if (best.is_complete) return best;
  best.from_below = first;
  while (best.from_above < std::min(second, wanted - first) &&
         last_below(best.from_above + 1) - last_above(first) > least) {
    ++best.from_above;
  }
  return best;
}

// All of each slice, and of the outermost runs what is next to the interval.
template <Scalar T>
Status Slices<T>::gather(Subspace<T>& X) const {
  constexpr int kNeighbours = 2;
  const auto n = static_cast<std::size_t>(pencil_.size());
  int total = 0;
  for (const bool is_counting : {true, false}) {
    if (!is_counting && total > 0 && !X.reserve(pencil_.size(), total, threads_)) return Status::kNoMemory;
    int place = 0;
    const auto append = [&](const Branch& branch, int first, int count) {
      if (!is_counting && count > 0) {
        std::copy_n(branch.vectors.data() + n * static_cast<std::size_t>(first), n * static_cast<std::size_t>(count),
                    X.column(place));
      }
      place += count;
    };
    for (int i = 0; i + 1 < count_; ++i) {
      const Branch &above = at(i).upper, &below = at(i + 1).lower;
      const Split found = split(at(i), at(i + 1));
      append(above, 0, found.from_below);
      append(below, 0, found.from_above);
      if (i == 0) append(below, found.from_above, std::min(kNeighbours, below.count - found.from_above));
      if (i + 2 == count_) append(above, found.from_below, std::min(kNeighbours, above.count - found.from_below));
    }
    total = place;
  }
  X.resize(total);
  return Status::kDone;
}

template class Slices<double>;
template class Slices<std::complex<double>>;

}  // namespace quorin::feast
