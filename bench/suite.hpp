// Rows of the benchmark: what is measured, against which libraries and against which limit.
//
// A row is one operation at one size on one number of threads. All that is measured for a row runs in one group: its
// repetitions follow each other in random order, so that a change of the machine's mood hits all sides alike.
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "bench/libraries.hpp"

namespace quorin::bench {

// What bounds the speed of a row.
enum class Limit {
  kNone,
  kArithmetic,        // multiply-add loop in registers, on the row's threads
  kDoubleArithmetic,  // the same for doubles: half as many in a register
  kReading,           // reading as many bytes from an array of that size, on the row's threads
  kTriad,             // y <- a x + y on arrays that together are as large as the row's, on the row's threads
};

// What a call's work is counted in.
enum class Unit {
  kFlop,
  kByte,
  kTime,  // nothing that sides could be compared by; `work` is a guess at the flops, to plan how often to measure
};

struct Row {
  std::string section;  // of the report: a family, or a question
  std::string operation;
  int size = 0;
  int threads = 1;
  double work = 0;  // of one call
  Unit unit = Unit::kFlop;
  Limit limit = Limit::kNone;
  double footprint = 0;  // kTriad: bytes of all arrays

  // The group's name in the results.
  std::string name() const;
};

using Clock = std::chrono::steady_clock;

// The time that this thread's calls have spent on making their operands fit again, which is not theirs.
inline thread_local Clock::duration uncounted_time{};

class Suite {
 public:
  Suite(const Libraries& libraries, bool is_quick) : libraries_(libraries), is_quick_(is_quick) {}

  const Libraries& libraries() const { return libraries_; }

  // The sizes of this run.
  std::vector<int> sizes(std::vector<int> full, std::vector<int> quick) const { return is_quick_ ? quick : full; }

  // Adds one side of a row. `prepare()` makes the operands and returns the call that is measured; `callers` threads
  // each do so at the same time. The fill() and steps() of a call that has them are reported: the entries of the
  // factors it makes, the iterations it takes.
  template <class Prepare>
  void measure(const Row& row, const std::string& side, Prepare prepare, int callers = 1) {
    const Effort effort = effort_for(row);
    benchmark::RegisterBenchmark((row.name() + '/' + side).c_str(),
                                 [row, prepare, effort](benchmark::State& state) {
                                   auto call = prepare();
                                   if (effort.warms_up) call();
                                   for (auto _ : state) {
                                     uncounted_time = {};
                                     const auto start = Clock::now();
                                     for (int i = 0; i < effort.calls; ++i) call();
                                     const std::chrono::duration<double> time = Clock::now() - start - uncounted_time;
                                     state.SetIterationTime(time.count());
                                   }
                                   count_work(state, row, effort.calls);
                                   if constexpr (requires { call.fill(); }) state.counters["fill"] = call.fill();
                                   if constexpr (requires { call.steps(); }) state.counters["steps"] = call.steps();
                                 })
        ->Repetitions(effort.repetitions)
        ->Iterations(effort.iterations)
        ->Threads(callers)
        ->UseManualTime()
        ->Unit(benchmark::kNanosecond);
    add_group(row);
  }

  // Adds a row with every BLAS there is as one side, and the limit: `prepare(blas)` makes the operands and returns the
  // call. A peer that is not `able` to do the operation is left out.
  template <class Prepare, class Able = bool (*)(const Library&)>
  void compare(
      const Row& row, Prepare prepare, Able able = [](const Library&) { return true; }) {
    measure_blas(row, libraries_.product, prepare);
    if (libraries_.peer && able(*libraries_.peer)) measure_blas(row, *libraries_.peer, prepare);
    add_limit(row);
  }

  // Adds the row's limit as a side.
  void add_limit(const Row& row);

  // The names of all rows, in order.
  const std::vector<std::string>& groups() const { return groups_; }

 private:
  template <class Prepare>
  void measure_blas(const Row& row, const Library& blas, Prepare prepare) {
    measure(row, blas.name, [row, &blas, prepare] {
      blas.set_threads(row.threads);
      if (row.threads > 1) std::this_thread::sleep_for(kRest);
      return prepare(blas);
    });
  }

  // Workers of the side that ran before may spin for a while, waiting for more work.
  static constexpr std::chrono::milliseconds kRest{30};

  // How often a side is measured. The engine could choose the iterations itself from the time of the first one, but on
  // a busy machine that one may be interrupted.
  struct Effort {
    int repetitions;
    int iterations;  // in a repetition
    int calls;       // in an iteration
    bool warms_up;   // with one call that is not counted
  };
  Effort effort_for(const Row& row) const;

  static void count_work(benchmark::State& state, const Row& row, int calls);
  void add_group(const Row& row);

  const Libraries& libraries_;
  bool is_quick_;
  std::vector<std::string> groups_;
};

// The rows. Each file of rows has one such function, and main.cpp calls it.
void add_limit_rows(Suite& suite);
void add_blas_rows(Suite& suite);
void add_lapack_rows(Suite& suite);
void add_index_form_rows(Suite& suite);
void add_signal_rows(Suite& suite);
void add_rci_rows(Suite& suite);
void add_amos_rows(Suite& suite);
void add_umfpack_rows(Suite& suite);
void add_pack_rows(Suite& suite);
void add_slap_rows(Suite& suite);
void add_ordering_rows(Suite& suite);
void add_taucs_file_rows(Suite& suite);
void add_taucs_solver_rows(Suite& suite);

}  // namespace quorin::bench
