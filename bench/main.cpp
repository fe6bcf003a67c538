// Measures every row and writes Google Benchmark's JSON. bench/run calls it and bench/report.py reads the result.
//
//   lapacks_bench [--quick] [--out=FILE] [--library=FILE] [--peer=FILE] [--benchmark_filter=REGEX] [--benchmark_...]
#include <benchmark/benchmark.h>
#include <cpuid.h>

#include <array>
#include <cstring>
#include <fstream>
#include <iostream>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/limits.hpp"
#include "bench/suite.hpp"

#if defined(_WIN32)
constexpr const char* kPeerFile = "libopenblas.dll";
#else
constexpr const char* kPeerFile = "libopenblas.so.0";
#endif

namespace quorin::bench {
namespace {

struct Options {
  bool is_quick = false;
  std::string out;
  std::string library = QUORIN_LIBRARY_FILE;
  std::string peer = kPeerFile;
  std::vector<std::string> others;
};

Options parse(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const auto take = [&](const std::string& name, std::string& value) {
      if (!argument.starts_with(name)) return false;
      value = argument.substr(name.size());
      return true;
    };
    if (argument == "--quick") {
      options.is_quick = true;
    } else if (!take("--out=", options.out) && !take("--library=", options.library) && !take("--peer=", options.peer)) {
      options.others.push_back(argument);
    }
  }
  return options;
}

// Google Benchmark runs one group of rows at a time here; its JSON is to be one document all the same.
class OneDocument : public benchmark::JSONReporter {
 public:
  bool ReportContext(const Context& context) override {
    if (!has_begun_) has_begun_ = JSONReporter::ReportContext(context);
    return has_begun_;
  }
  void Finalize() override {}
  void finish() {
    if (has_begun_) JSONReporter::Finalize();
  }

 private:
  bool has_begun_ = false;
};

std::string processor_name() {
  std::array<unsigned, 12> words{};
  for (unsigned i = 0; i < 3; ++i) {
    unsigned* const w = &words[std::size_t{4} * i];
    if (__get_cpuid(0x80000002U + i, w, w + 1, w + 2, w + 3) == 0) return "unknown";
  }
  std::array<char, sizeof words + 1> text{};
  std::memcpy(text.data(), words.data(), sizeof words);
  std::string name = text.data();
  name.erase(name.find_last_not_of(' ') + 1);
  return name.substr(name.find_first_not_of(' '));
}

std::string processor_signature() {
  unsigned a = 0, b = 0, c = 0, d = 0;
  if (__get_cpuid(1, &a, &b, &c, &d) == 0) return "unknown";
  const unsigned family = (a >> 8 & 0xF) + (a >> 20 & 0xFF), model = (a >> 4 & 0xF) | (a >> 12 & 0xF0);
  return "family " + std::to_string(family) + ", model " + std::to_string(model);
}

void add_context(const Libraries& libraries) {
  benchmark::AddCustomContext("processor", processor_name() + " (" + processor_signature() + ")");
  benchmark::AddCustomContext("target", sizeof(void*) == 4 ? "32-bit Windows" : "64-bit Linux");
  benchmark::AddCustomContext("set", instruction_set());
  benchmark::AddCustomContext("peer", libraries.peer_description);
}

// The engine keeps the pointer to the program's name.
void initialize_engine(const Options& options, char* program) {
  std::vector<std::string> arguments = options.others;
  arguments.insert(arguments.begin(), "--benchmark_enable_random_interleaving=true");
  std::vector<char*> pointers = {program};
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  int count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) throw std::runtime_error("see bench/README.md");
}

void run_groups(const Suite& suite, std::ostream& out) {
  const std::regex filter(benchmark::GetBenchmarkFilter());
  std::vector<std::string> chosen;
  for (const std::string& group : suite.groups()) {
    if (std::regex_search(group, filter)) chosen.push_back(group);
  }
  OneDocument document;
  document.SetOutputStream(&out);
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    std::cerr << i + 1 << " of " << chosen.size() << ": " << chosen[i] << std::endl;
    benchmark::RunSpecifiedBenchmarks(&document, '^' + chosen[i] + '/');
  }
  document.finish();
}

void run(int argc, char** argv) {
  const Options options = parse(argc, argv);
  initialize_engine(options, argv[0]);
  const Libraries libraries = load_libraries(options.library, options.peer);
  if (!libraries.peer) {
    std::cerr << "There is no " << options.peer << ": results without a peer. bench/README.md says how to build it.\n";
  }
  add_context(libraries);
  Suite suite(libraries, options.is_quick);
  add_limit_rows(suite);
  add_index_form_rows(suite);
  add_blas_rows(suite);
  add_lapack_rows(suite);
  add_signal_rows(suite);
  add_rci_rows(suite);
  add_amos_rows(suite);
  add_umfpack_rows(suite);
  add_pack_rows(suite);
  add_slap_rows(suite);
  add_ordering_rows(suite);
  add_taucs_file_rows(suite);
  add_taucs_solver_rows(suite);

  std::ofstream file;
  if (!options.out.empty()) {
    file.open(options.out);
    if (!file) throw std::runtime_error("cannot write " + options.out);
  }
  run_groups(suite, options.out.empty() ? std::cout : file);
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
  try {
    quorin::bench::run(argc, argv);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "lapacks_bench: " << error.what() << '\n';
    return 1;
  }
}
