// One step of the second algorithm of Remez on a union of bands.
//
// A polynomial P of degree n is the best one if and only if its weighted error E takes its largest magnitude at n + 2
// points with alternating signs. A step levels the error on n + 2 points (the reference) and then moves the points to
// extrema of the error that it got. For any reference, leveled error <= least possible maximum <= maximum of E: the two
// ends of this inequality tell how good the design is (de la Vallee Poussin).
//
// Sources: Parks & McClellan, IEEE Trans. Circuit Theory 19 (1972) 189-194; Filip, ACM Trans. Math. Softw. 43 (2016) 7,
// for the barycentric evaluation and the search for extrema by interpolation between reference points.
#pragma once

#include <array>

#include "base/workspace.hpp"
#include "families/signal/barycentric.hpp"
#include "families/signal/chebyshev_series.hpp"
#include "families/signal/linear_phase.hpp"

namespace quorin::signal {

// A point of the interval, the band that it lies in, and the error there, if it is known.
struct Extremum {
  double t;
  double error;
  int band;
  bool known;
};

class Exchange {
 public:
  // `most`: the points of the longest reference. `pieces`: the parts into which the search divides the space between
  // two reference points.
  Exchange(const Problem& problem, int most, int pieces);
  explicit operator bool() const { return polynomial_ && cosines_ && reference_ && candidates_; }

  int count() const { return count_; }
  const Extremum& point(int i) const { return reference_[i]; }
  const Barycentric& polynomial() const { return polynomial_; }

  // The reference, in ascending order; errors are not read.
  void set_count(int count) { count_ = count; }
  void set_point(int i, double t, int band) { reference_[i] = {t, 0.0, band, false}; }
  void move_to_grid();  // different points stay different, if their band's grid has as many

  // Finds P that has the same error with alternating signs at all reference points. False if two of the points cannot
  // be told apart or the error is not a number.
  [[nodiscard]] bool level();
  double leveled_error() const { return leveled_; }

  // Finds the extrema of the error over all bands. The reference points themselves and the band edges are always among
  // the candidates. False if the error is not finite somewhere.
  [[nodiscard]] bool find_extrema();
  double largest_error() const { return largest_; }

  // Makes a new reference of as many points from the extrema, the largest among them.
  void exchange();

 private:
  const Band& band(int b) const { return problem_.bands[b]; }
  double target(int b, double t) const { return band(b).desired / problem_.shape(t, band(b)); }
  void search_band(int b, int& next);
  void search_interval(int b, double from, double to);
  void search_piece(int b, double from, double to);
  void search_grid(int b, int& next);
  void add(const Extremum& candidate) { candidates_[candidate_count_++] = candidate; }
  bool evaluate_candidates();
  int alternating_candidates();
  void drop_surplus(int have);

  const Problem& problem_;
  CriticalPoints critical_points_;
  std::array<double, kSamples> samples_;
  int pieces_;
  int count_ = 0;
  int candidate_count_ = 0;
  double leveled_ = 0.0;
  double largest_ = 0.0;
  Barycentric polynomial_;
  base::Workspace<double> cosines_;
  base::Workspace<Extremum> reference_, candidates_;
};

}  // namespace quorin::signal
