// The table that the demo prints: one row for each capability.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>

#include "examples/host/library.hpp"

namespace demo {

// Adds up the time spent inside the library; preparing data and checking answers do not count.
class Timer {
 public:
  template <class Call>
  void time(const Call& call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    total_ += std::chrono::steady_clock::now() - start;
  }
  double milliseconds() const { return total_.count(); }

 private:
  std::chrono::duration<double, std::milli> total_{};
};

class Report {
 public:
  // One line: what was solved, its size, the error (or residual) against the known answer that `work(timer)` returns,
  // and the time that it gave to the timer. The row fails if the error is not within the bound.
  template <class Work>
  void row(const std::string& what, const std::string& size, double bound, const Work& work) {
    Timer timer;
    const double error = work(timer);
    const bool good = error <= bound;  // false for NaN
    rows_ += 1;
    failures_ += good ? 0 : 1;
    std::printf("%-52s %-22s %9.2g %9.2g %10.3f  %s\n", what.c_str(), size.c_str(), error, bound, timer.milliseconds(),
                good ? "ok" : "FAILED");
    std::fflush(stdout);
  }

  void heading(const char* family) { std::printf("\n%s\n", family); }
  int rows() const { return rows_; }
  int failures() const { return failures_; }

 private:
  int rows_ = 0;
  int failures_ = 0;
};

// Each family has one file <family>_rows.cpp with one of these; main.cpp calls them all.
void services_rows(const Library& library, Report& report);
void blas_rows(const Library& library, Report& report);
void lapack_rows(const Library& library, Report& report);
void signal_rows(const Library& library, Report& report);
void rci_rows(const Library& library, Report& report);
void least_squares_rows(const Library& library, Report& report);
void slap_rows(const Library& library, Report& report);
void amos_rows(const Library& library, Report& report);
void umfpack_rows(const Library& library, Report& report);
void pardiso_rows(const Library& library, Report& report);
void taucs_rows(const Library& library, Report& report);
void feast_rows(const Library& library, Report& report);
void taucs_solver_rows(const Library& library, Report& report);

}  // namespace demo
