// All eigenpairs between two points by Lanczos runs from several shifts.
#pragma once

#include <array>
#include <optional>

#include "base/workspace.hpp"
#include "families/feast/direct_solver.hpp"
#include "families/feast/lanczos.hpp"
#include "families/feast/pencil.hpp"
#include "families/feast/subspace.hpp"

namespace quorin::feast {

// A point, and how many eigenvalues are below it.
struct Count {
  double where = 0;
  int below = 0;
};

// A wide interval has several shifts. The inertia of A - shift B tells how many eigenvalues lie below each, so that
// those between two shifts can be numbered, from below by the run from the lower shift, from above by that from the
// upper one: when the two meet, none is missed and none is there twice. Where they do not meet, another shift is put
// between them. Shifts depend on the problem alone, and runs work on one thread each if there are several, so that any
// number of threads gives the same bits.
//
// Grimes, Lewis & Simon (lanczos.hpp), sections 3 and 6, where shifts follow one another. T is double or
// std::complex<double>.
template <Scalar T>
class Slices {
 public:
  Slices(const Pencil<T>& pencil, const DirectSolver<T>& solver, double tolerance, int threads)
      : pencil_(pencil), solver_(solver), tolerance_(tolerance), threads_(threads) {}

  // Finds what is between `low` and `high`, whose counts differ. Whatever was found in the end, with a few neighbours,
  // becomes the basis X. kNoMemory, kSolverFailed. The memory of `spare` is used, or given back.
  [[nodiscard]] Status run(const Count& low, const Count& high, sparse::Factor<T>& spare, Subspace<T>& X);

 private:
  static constexpr int kMostPoints = 64;
  using Lanczos = feast::Lanczos<T>;

  // Pairs on a side of a shift, the nearest first.
  struct Branch {
    int count = 0;
    std::optional<double> next;  // the first Ritz value that has not converged
    base::Workspace<double> values;
    base::Workspace<T> vectors;
  };
  struct Point {
    double shift = 0, reach_below = 0, reach_above = 0;
    double least = 0, most = 0;           // what is beyond is found from elsewhere
    std::optional<int> below;             // eigenvalues below the shift
    std::optional<Count> before, behind;  // the next counts that are known when the run begins
    bool is_done = false;                 // there has been a run; none begins at an end of the interval
    Branch lower, upper;

    std::optional<Count> count() const { return below ? std::optional(Count{shift, *below}) : std::nullopt; }
  };
  // Of a slice, so many from the run from below, the others from above.
  struct Split {
    int from_below = 0, from_above = 0;
    bool is_complete = true;
  };

  Point& at(int i) { return points_[static_cast<std::size_t>(i)]; }
  const Point& at(int i) const { return points_[static_cast<std::size_t>(i)]; }

  bool plan_first(const Count& low, const Count& high);
  bool plan_more(int& missing);
  Status run_points(sparse::Factor<T>& spare);
  Status run_point(Point& point, int threads, sparse::Factor<T>& factor) const;
  Status find_shift(Point& point, sparse::Factor<T>& factor, int threads) const;
  bool keep(const Lanczos& lanczos, Side side, double end, Branch& branch) const;
  Split split(const Point& low, const Point& high) const;
  Status gather(Subspace<T>& X) const;

  const Pencil<T>& pencil_;
  const DirectSolver<T>& solver_;
  const double tolerance_;
  const int threads_;
  int per_slice_ = 0, capacity_ = 0;
  int count_ = 0;
  std::array<Point, kMostPoints> points_;  // ascending
};

}  // namespace quorin::feast
