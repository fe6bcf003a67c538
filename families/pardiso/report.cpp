#include "families/pardiso/report.hpp"

#include <cstdarg>
#include <cstdio>

#include "platform/platform.hpp"

namespace quorin::pardiso {
namespace {

using Clock = std::chrono::steady_clock;

// Text in pieces, written as one.
class Text {
 public:
  [[gnu::format(__printf__, 2, 3)]] void add(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text_ + used_, sizeof text_ - used_, format, arguments);
    va_end(arguments);
    if (length > 0) used_ = std::min(used_ + static_cast<std::size_t>(length), sizeof text_ - 1);
  }
  // A line of the table: what, and a value behind it.
  [[gnu::format(__printf__, 3, 4)]] void row(const char* what, const char* format, ...) {
    char value[160];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(value, sizeof value, format, arguments);
    va_end(arguments);
    add("  %-26s %s\n", what, value);
  }
  void write() const { platform::write_standard_output(text_); }

 private:
  char text_[4096] = "";
  std::size_t used_ = 0;
};

const char* name_of(const Kind& kind) {
  switch (kind.mtype) {
    case kRealStructurallySymmetric:
      return "real, structurally symmetric";
    case kRealPositiveDefinite:
      return "real, symmetric positive definite";
    case kRealSymmetric:
      return "real, symmetric indefinite";
    case kComplexStructurallySymmetric:
      return "complex, structurally symmetric";
    case kHermitianPositiveDefinite:
      return "complex, Hermitian positive definite";
    case kHermitian:
      return "complex, Hermitian indefinite";
    case kComplexSymmetric:
      return "complex, symmetric";
    case kRealUnsymmetric:
      return "real, unsymmetric";
    default:
      return "complex, unsymmetric";
  }
}

const char* name_of(Error outcome) {
  switch (outcome) {
    case Error::kDone:
      return "done";
    case Error::kInconsistent:
      return "an argument is wrong or does not agree with an earlier phase";
    case Error::kNoMemory:
      return "not enough memory";
    case Error::kReorderingFailed:
      return "the ordering failed";
    case Error::kNumericFailed:
      return "a pivot, a value that is not finite, or no convergence";
    case Error::kInternal:
      return "internal error";
    case Error::kMatchingFailed:
      return "structurally singular";
    case Error::kDiagonalSingular:
      return "diagonal with a zero";
    case Error::kTooLarge:
      return "more entries than 32 bits count";
    case Error::kCoreTooSmall:
      return "out of core: not enough memory";
    case Error::kCannotOpen:
      return "a file cannot be opened";
    case Error::kFileFailed:
      return "a file cannot be read or written";
    case Error::kWrongFile:
      return "the file is none of this library's";
  }
  return "";
}

constexpr std::array<const char*, kSteps> kStepNames = {
    "reading the pattern", "matching, ordering", "symbolic factorization", "reading the values",
    "factorization",       "substitution",       "refinement, iteration"};

void add_steps(const Statistics& statistics, Text& text) {
  text.add("  step                         seconds\n");
  double known = 0.0;
  for (std::size_t step = 0; step < kSteps; ++step) {
    known += statistics.seconds[step];
    if (statistics.seconds[step] > 0.0) text.row(kStepNames[step], "%9.3f", statistics.seconds[step]);
  }
  const double total = statistics.total();
  text.row("other", "%9.3f", std::max(total - known, 0.0));
  text.row("total", "%9.3f", total);
}

void add_matrix(const ReportedCall& call, const Statistics& statistics, Text& text) {
  const double n = statistics.equations;
  text.row("matrix", "%s (mtype %d), %s precision", name_of(call.kind), call.kind.mtype,
           call.options.is_single ? "single" : "double");
  text.row("equations", "%d", statistics.equations);
  text.row("entries", "%lld (%.3g %% of all), %s-based", static_cast<long long>(statistics.entries),
           100.0 * static_cast<double>(statistics.entries) / (n * n), call.options.is_zero_based ? "zero" : "one");
  if (call.options.block > 1) text.row("blocks", "of order %d", call.options.block);
  if (statistics.flagged > 0) text.row("flagged equations", "%d", statistics.flagged);
}

void add_analysis(const ReportedCall& call, const Statistics& statistics, Text& text) {
  const char* const method = call.options.takes_permutation                                    ? "given"
                             : call.options.ordering == sparse::OrderingMethod::kMinimumDegree ? "minimum degree"
                                                                                               : "nested dissection";
  text.row("ordering", "%s", method);
  text.row("matching, scaling, checker", "%s, %s, %s", call.options.is_matched ? "on" : "off",
           call.options.is_scaled ? "on" : "off", call.options.is_checked ? "on" : "off");
  text.row("supernodes", "%d, the widest of %d columns, the longest of %d rows", statistics.supernodes,
           statistics.widest, statistics.most_rows);
  text.row("depth of the tree", "%d", statistics.depth);
  text.row("entries of the factors", "%lld (%.3g for each of A)", static_cast<long long>(statistics.factor_entries),
           static_cast<double>(statistics.factor_entries) /
               static_cast<double>(std::max<std::int64_t>(statistics.entries, 1)));
}

void add_factorization(const Statistics& statistics, Text& text) {
  constexpr double kGiga = 1e9, kMega = 1e6;
  const double seconds = statistics.seconds[static_cast<std::size_t>(Step::kFactorization)];
  text.row("factors", "%s, %.1f MB", statistics.is_out_of_core ? "in files" : "in memory",
           static_cast<double>(statistics.factor_bytes) / kMega);
  text.row("operations", "%.4g million, %.3g GFLOP/s", statistics.operations / kMega,
           seconds > 0.0 ? statistics.operations / seconds / kGiga : 0.0);
  text.row("perturbed pivots", "%d", statistics.perturbed);
  if (statistics.positive + statistics.negative > 0) {
    text.row("inertia", "%d positive, %d negative", statistics.positive, statistics.negative);
  }
}

void add_solution(const Statistics& statistics, Text& text) {
  text.row("right-hand sides", "%d", statistics.right_hand_sides);
  if (statistics.iterations != 0) text.row("iteration", "iparm(20) = %d", statistics.iterations);
  text.row("refinement steps", "%d", statistics.refinements);
  if (statistics.backward_error > 0.0) text.row("backward error", "%.2g", statistics.backward_error);
}

}  // namespace

bool PrintedProgress::report(double done) noexcept {
  constexpr auto kPause = std::chrono::seconds(1);
  const int percent = static_cast<int>(100.0 * done);
  const Clock::time_point now = Clock::now();
  if (percent <= percent_ || now - last_ < kPause) return true;
  Text text;
  text.add("%s %3d %%", has_line_ ? "" : "  factorized", percent);
  text.write();
  last_ = now;
  percent_ = percent;
  has_line_ = true;
  return true;
}

void PrintedProgress::end() {
  if (has_line_) platform::write_standard_output("\n");
  has_line_ = false;
}

void print_statistics(const ReportedCall& call, const Statistics& statistics) {
  Text text;
  text.add("\nPARDISO, phase %d%s%s%s, factorization %d\n", call.phase, call.stages.analyses ? ", analysis" : "",
           call.stages.factorizes ? ", factorization" : "", call.stages.solves ? ", solution" : "", call.slot);
  if (call.outcome == Error::kDone) {
    add_matrix(call, statistics, text);
    if (call.stages.analyses) add_analysis(call, statistics, text);
    if (call.stages.factorizes) add_factorization(statistics, text);
    if (call.stages.solves) add_solution(statistics, text);
    text.row("threads", "%d", statistics.threads);
    add_steps(statistics, text);
  }
  text.row("error", "%d: %s", static_cast<int>(call.outcome), name_of(call.outcome));
  text.add("\n");
  text.write();
}

}  // namespace quorin::pardiso
