#include "bench/suite.hpp"

#include <algorithm>
#include <cstddef>

#include "bench/limits.hpp"
#include "bench/operands.hpp"

namespace quorin::bench {
namespace {

constexpr const char* kLimitSide = "limit";

// Half a millisecond.
constexpr int kArithmeticRounds = 1 << 18;

constexpr double kBlockBytes = kStreamBlock * sizeof(float);

std::size_t blocks_of(double bytes) { return std::max<std::size_t>(1, static_cast<std::size_t>(bytes / kBlockBytes)); }

const char* unit_name(Unit unit) {
  switch (unit) {
    case Unit::kFlop:
      return "flop";
    case Unit::kByte:
      return "byte";
    case Unit::kTime:
      break;
  }
  return "time";
}

void add_arithmetic_limit(Suite& suite, Row row, ArithmeticLoop* loop, double flops) {
  row.work = flops;
  row.unit = Unit::kFlop;
  suite.measure(
      row, kLimitSide, [loop] { return [loop, leave = LeaveWideRegisters{}] { loop(kArithmeticRounds); }; },
      row.threads);
}

void add_reading_limit(Suite& suite, Row row, double bytes) {
  const std::size_t blocks = blocks_of(bytes / row.threads);
  row.work = static_cast<double>(blocks) * kBlockBytes;
  row.unit = Unit::kByte;
  suite.measure(
      row, kLimitSide,
      [blocks] {
        return [blocks, read = best_read(), leave = LeaveWideRegisters{}, x = Array<float>(blocks * kStreamBlock)] {
          read(x.data(), blocks);
        };
      },
      row.threads);
}

// Three streams pass between memory and core: x and y in, y out.
void add_triad_limit(Suite& suite, Row row, double bytes) {
  const std::size_t blocks = blocks_of(bytes / 2 / row.threads);
  row.work = 3 * static_cast<double>(blocks) * kBlockBytes;
  row.unit = Unit::kByte;
  suite.measure(
      row, kLimitSide,
      [blocks] {
        return [blocks, triad = best_triad(), leave = LeaveWideRegisters{}, x = Array<float>(blocks * kStreamBlock),
                y = Array<float>(blocks * kStreamBlock)] { triad(0x1p-10F, x.data(), y.data(), blocks); };
      },
      row.threads);
}

}  // namespace

std::string Row::name() const {
  return section + '/' + operation + '/' + std::to_string(size) + '/' + std::to_string(threads);
}

Suite::Effort Suite::effort_for(const Row& row) const {
  // Flops or bytes, some tens of microseconds, and a call that takes most of a second.
  constexpr double kIteration = 1e6, kLongCall = 2e9;
  constexpr double kMostCalls = 1e4, kMostIterations = 20;
  const bool is_long = row.work > kLongCall;
  const double calls = std::clamp(kIteration / row.work, 1.0, kMostCalls);
  // Short repetitions, many of them: even on a busy machine most then pass undisturbed, and the median ignores the
  // rest.
  const double iterations = std::clamp(kMostIterations * kIteration / (row.work * calls), 1.0, kMostIterations);
  const int repetitions = is_long ? (is_quick_ ? 3 : 7) : (is_quick_ ? 11 : 31);
  return {repetitions, static_cast<int>(iterations), static_cast<int>(calls), !is_long};
}

void Suite::count_work(benchmark::State& state, const Row& row, int calls) {
  const auto add = [&](const char* name, double value) {
    state.counters[name] = benchmark::Counter(value, benchmark::Counter::kAvgThreads);
  };
  add(unit_name(row.unit), row.work);
  add("calls", calls);
}

void Suite::add_group(const Row& row) {
  if (groups_.empty() || groups_.back() != row.name()) groups_.push_back(row.name());
}

void Suite::add_limit(const Row& row) {
  switch (row.limit) {
    case Limit::kNone:
      return;
    case Limit::kArithmetic:
      return add_arithmetic_limit(*this, row, best_arithmetic(), best_arithmetic_flops(kArithmeticRounds));
    case Limit::kDoubleArithmetic:
      return add_arithmetic_limit(*this, row, best_arithmetic(), best_arithmetic_flops(kArithmeticRounds) / 2);
    case Limit::kReading:
      return add_reading_limit(*this, row, row.work);
    case Limit::kTriad:
      return add_triad_limit(*this, row, row.footprint);
  }
}

void add_limit_rows(Suite& suite) {
  constexpr double kBeyondCaches = 128 << 20;
  for (const int threads : {1, 2}) {
    const auto row = [&](const char* operation) { return Row{"limits", operation, 0, threads}; };
    add_arithmetic_limit(suite, row("arithmetic"), best_arithmetic(), best_arithmetic_flops(kArithmeticRounds));
    add_arithmetic_limit(suite, row("sse-arithmetic"), sse_arithmetic, sse_arithmetic_flops(kArithmeticRounds));
    add_reading_limit(suite, row("memory-read"), kBeyondCaches);
    add_triad_limit(suite, row("memory-triad"), kBeyondCaches);
  }
}

}  // namespace quorin::bench
