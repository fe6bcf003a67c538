// The search for all eigenpairs in an interval: count, filter, Rayleigh-Ritz, test, again.
#pragma once

#include <optional>
#include <span>

#include "base/workspace.hpp"
#include "families/feast/arguments.hpp"
#include "families/feast/contour.hpp"
#include "families/feast/direct_solver.hpp"
#include "families/feast/filter.hpp"
#include "families/feast/pencil.hpp"
#include "families/feast/rayleigh_ritz.hpp"
#include "families/feast/slices.hpp"
#include "families/feast/subspace.hpp"

namespace quorin::feast {

// One call. Host is float or std::complex<float>; all is computed with Wide<Host>.
//
// E. Polizzi, Density-matrix-based algorithm for solving eigenvalue problems, Phys. Rev. B 79 (2009) 115112; P. T. P.
// Tang, E. Polizzi, FEAST as a subspace iteration eigensolver accelerated by approximate spectral projection, SIAM J.
// Matrix Anal. Appl. 35 (2014) 354-390.
template <Scalar Host>
class IntervalSearch {
 public:
  IntervalSearch(const Arguments<Host>& arguments, int threads);

  // The status; results are in the host's arrays unless it is an error.
  [[nodiscard]] Status run();

 private:
  using T = Wide<Host>;

  // How good a Ritz pair is, in units of eigenvalues.
  struct Pair {
    double residual;           // norm1(A x - value B x) / norm1(B x)
    double weighted_residual;  // the 2-norm of D^-1/2 (A x - value B x) for x of norm 1 in B, whose diagonal is D
    double rounding;           // what double precision may have done to the value
  };
  struct Census {
    Interval interval;          // a little larger than the host's
    std::optional<int> inside;  // eigenvalues in there; nothing if it could not be told
    bool exceeds_room = false;  // more than m0 in the host's interval, for certain
  };
  // The pairs of a loop.
  struct Tally {
    int candidates = 0;  // in the census's interval
    int inside = 0;      // in the host's
    double sum = 0, largest_residual = 0;
    bool is_resolved = true;  // none of the candidates may still change to the other side of an end, or its value
  };

  Status prepare();
  Status take_census();
  Status count_within(double margin, std::optional<int>& count);
  Status count_beside(double end, double margin, int threads, sparse::Factor<T>& factor, Count& there,
                      bool& is_counted) const;
  Status count_passing(int& passing);
  OrderingMethod ordering_method() const;
  void randomize(int first);
  Status start(std::optional<Tally>& found);
  Status load_subspace();
  int working_size(int passing) const;
  bool reserve_results();
  double tolerance_of_runs() const;
  Status iterate();
  Status filter_only();

  void measure();
  Interval surroundings() const;
  double error(int j, const Interval& others) const;
  bool rests(int candidate, double value, double rounding) const;
  void remember(const Tally& now);
  Tally tally() const;
  std::optional<int> expected() const;
  std::optional<Status> verdict(const Tally& now) const;
  void replenish(const Tally& now);
  template <class Predicate>
  std::span<const int> sorted_pairs(const Predicate& comes_first);
  void write_results(const Tally& now);
  void print_loop(const Tally& now) const;

  bool is_candidate(int j) const;
  bool is_inside(int j) const;

  const Arguments<Host>& arguments_;
  const int threads_;
  const Interval interval_;  // the host's
  const double scale_;       // the larger of its ends
  const int room_;           // m0

  Pencil<T> pencil_;
  DirectSolver<T> solver_;
  Filter<T> filter_;
  RayleighRitz<T> ritz_;
  Subspace<T> X_;
  Interval bounds_{};  // the part of the interval in which the spectrum lies
  Contour contour_;
  Census census_{};
  std::array<Count, 2> ends_;                 // where eigenvalues were counted last
  std::array<sparse::Factor<T>, 2> factors_;  // whose memory the next count, or run, may use
  base::Workspace<Pair> pairs_;
  base::Workspace<int> order_;

  int loop_ = 0;
  double epsout_ = 0;
  // Of the loop before.
  double previous_sum_ = 0;
  int previous_candidates_ = 0;
  base::Workspace<double> previous_values_;
  bool was_orthonormal_ = false;  // the basis that was filtered last, so that gains mean something
};

}  // namespace quorin::feast
