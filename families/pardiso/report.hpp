// What msglvl = 1 shows: which options counted, what the steps took, how large the factors are.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>

#include "families/pardiso/parameters.hpp"
#include "sparse/sparse.hpp"

namespace quorin::pardiso {

enum class Step { kReading, kPreprocessing, kSymbolic, kValues, kFactorization, kSubstitution, kRefinement };
inline constexpr std::size_t kSteps = 7;

// What a call finds out about itself.
class Statistics {
 public:
  // Adds the time until it goes out of scope to a step.
  class Timer {
   public:
    Timer(Statistics& statistics, Step step) : seconds_(statistics.seconds[static_cast<std::size_t>(step)]) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { seconds_ += std::chrono::duration<double>(Clock::now() - start_).count(); }

   private:
    double& seconds_;
    std::chrono::steady_clock::time_point start_ = Clock::now();
  };

  std::array<double, kSteps> seconds{};
  int equations = 0, right_hand_sides = 0, flagged = 0, threads = 1;
  std::int64_t entries = 0, factor_entries = 0, factor_bytes = 0;
  double operations = 0.0;
  int supernodes = 0, widest = 0, most_rows = 0, depth = 0;
  int perturbed = 0, positive = 0, negative = 0;
  bool is_out_of_core = false;
  int refinements = 0, iterations = 0;
  double backward_error = 0.0;

  double total() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point start_ = Clock::now();
};

// Writes the percentage to standard output while a factorization goes on, from its first second on.
class PrintedProgress final : public sparse::Progress {
 public:
  bool report(double done) noexcept override;
  // Ends the line, if there is one.
  void end();

 private:
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
  int percent_ = 0;
  bool has_line_ = false;
};

struct ReportedCall {
  int phase = 0, slot = 1;
  Kind kind;
  Stages stages;
  AnalysisOptions options;
  Error outcome = Error::kDone;
};
void print_statistics(const ReportedCall& call, const Statistics& statistics);

}  // namespace quorin::pardiso
