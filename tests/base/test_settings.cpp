// What the library keeps for its hosts: thread settings and the environment that seeds them, the callback for texts,
// handles; and the instruction set that it chooses.
#include <fstream>

#include "base/handle_table.hpp"
#include "base/text_output.hpp"
#include "base/thread_environment.hpp"
#include "base/thread_settings.hpp"
#include "platform/cpu.hpp"
#include "platform/platform.hpp"
#include "tests/support/system.hpp"
#include "tests/support/test.hpp"

namespace quorin::base {
namespace {

TEST(ThreadSettings, DynamicAdjustmentKeepsRegionsToTheCores) {
  const int cores = platform::physical_core_count();
  for (const int count : {1, cores, cores + 1, 50, kMostThreads, kMostThreads + 1, 100'000}) {
    set_thread_count(Domain::kAll, count);
    set_thread_count(Domain::kFft, 1);
    set_dynamic(true);
    EXPECT_EQ(region_threads(Domain::kBlas), std::min({count, cores, kMostThreads}));
    EXPECT_EQ(region_threads(Domain::kFft), 1);
    set_dynamic(false);
    EXPECT_EQ(region_threads(Domain::kBlas), std::min(count, kMostThreads));
    EXPECT_EQ(region_threads(Domain::kFft), 1);
    EXPECT_EQ(thread_count(Domain::kBlas), count) << "the limit is not shown to the host";
  }
}

TEST(ThreadEnvironment, CountsAreDecimalOctalOrHexadecimalAndPositive) {
  EXPECT_EQ(parse_count(" 12 "), 12);
  EXPECT_EQ(parse_count("\t7\t"), 7);
  EXPECT_EQ(parse_count("010"), 8);
  for (const char* hexadecimal : {"0x1f", "0X1F"}) EXPECT_EQ(parse_count(hexadecimal), 31);
  for (const char* bad : {"", "0", "-2", "3x", "2.5", "99999999999"}) EXPECT_FALSE(parse_count(bad)) << bad;
}

TEST(ThreadEnvironment, FlagsInEverySpelling) {
  for (const char* on : {"TRUE", "true", ".True.", "t", "1"}) EXPECT_EQ(parse_flag(on), true) << on;
  for (const char* off : {"FALSE", "false", ".false.", "F", "0"}) EXPECT_EQ(parse_flag(off), false) << off;
  EXPECT_FALSE(parse_flag("maybe"));
}

TEST(ThreadEnvironment, BlockTimesWithUnits) {
  const std::pair<const char*, int> times[] = {
      {"200", 200},         {"0", 0},        {"7ms", 7},       {"5 MS", 5},       {"3s", 3000},
      {"2 M", 120000},      {"1h", 3600000}, {"1D", 86400000}, {"100d", INT_MAX}, {"2147483647", INT_MAX},
      {"Infinite", INT_MAX}};
  for (const auto& [text, milliseconds] : times) EXPECT_EQ(parse_block_time(text), milliseconds) << text;
  for (const char* bad : {"", "-1", "5 weeks", "2147483648"}) EXPECT_FALSE(parse_block_time(bad)) << bad;
}

TEST(ThreadEnvironment, DomainListsInEveryForm) {
  const std::array<int, kDomainCount> expected{2, 1, 0, 0, 0};
  for (const char* text :
       {"MKL_DOMAIN_ALL=2, MKL_DOMAIN_BLAS=1", "MKL_DOMAIN_ALL 2 : MKL_DOMAIN_BLAS 1",
        "MKL_DOMAIN_ALL,2: MKL_DOMAIN_BLAS 1", "mkl_all=0x2;mkl_blas=01", "MKL_DOMAIN_ALL = 2 nonsense 7 MKL_BLAS 1",
        "MKL_DOMAIN_PARDISO=x MKL_DOMAIN_ALL=2 MKL_DOMAIN_BLAS=1 MKL_DOMAIN_FFT"}) {
    EXPECT_EQ(parse_domain_counts(text), expected) << text;
  }
  const std::array<int, kDomainCount> all{1, 2, 3, 4, 5};
  for (const char* text : {"MKL_DOMAIN_ALL=1 MKL_DOMAIN_BLAS=2 MKL_DOMAIN_FFT=3 MKL_DOMAIN_VML=4 MKL_DOMAIN_PARDISO=5",
                           "MKL_ALL=1 MKL_BLAS=2 MKL_FFT=3 MKL_VML=4 MKL_PARDISO=5"}) {
    EXPECT_EQ(parse_domain_counts(text), all) << text;
  }
}

std::vector<std::string> received;
void QUORIN_STDCALL receive(const char* text) { received.emplace_back(text); }

class TextOutput : public testing::Test {
 protected:
  void SetUp() override { received.clear(); }
  void TearDown() override { set_text_output(nullptr); }
};

TEST_F(TextOutput, HandsOverOnePieceForEachFormatCall) {
  EXPECT_EQ(print("%d", 12), 2) << "to nobody";
  set_text_output(receive);
  EXPECT_EQ(print("a%db", 7), 3);
  EXPECT_EQ(print("%s", ""), 0);
  EXPECT_EQ(received, (std::vector<std::string>{"a7b", ""}));
}

TEST_F(TextOutput, CutsAt1024CharactersAndSaysSo) {
  set_text_output(receive);
  for (const std::size_t length : {std::size_t{1023}, std::size_t{1024}, std::size_t{1025}, std::size_t{5000}}) {
    received.clear();
    const std::string text(length, 'x');
    EXPECT_EQ(print("%s", text.c_str()), length <= 1024 ? static_cast<int>(length) : -1);
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0], text.substr(0, 1024));
  }
}

// Many live handles at a time: each finds its own object, and what is no live handle of the table finds none.
struct Numbered : HandleNode {
  explicit Numbered(int given) : number(given) {}
  explicit operator bool() const { return number >= 0; }
  int number;
};

TEST(HandleTable, EachOfAThousandHandlesFindsItsOwn) {
  HandleTable<Numbered> table, other;
  std::vector<void*> handles(1000);
  const auto number_of = [&](void* handle) {
    const Numbered* const found = table.find(handle);
    return found == nullptr ? -1 : found->number;
  };
  for (int i = 0; i < 1000; ++i) handles[i] = table.create(i);
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(number_of(handles[i]), i);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(handles[i]) % 2, 1U) << "as no address of an array";
    EXPECT_EQ(other.find(handles[i]), nullptr);
    EXPECT_FALSE(other.erase(handles[i]));
  }
  // Every second one goes, in any order; each of the others stays in its place.
  std::vector<int> order(500);
  for (int i = 0; i < 500; ++i) order[i] = 2 * i;
  std::shuffle(order.begin(), order.end(), std::mt19937(5));
  for (const int i : order) {
    EXPECT_TRUE(table.erase(handles[i]));
    EXPECT_FALSE(table.erase(handles[i]));
  }
  for (int i = 0; i < 1000; ++i) EXPECT_EQ(number_of(handles[i]), i % 2 == 0 ? -1 : i);
  // New objects get handles that nobody has had.
  for (int i = 0; i < 500; ++i) {
    void* const handle = table.create(1000 + i);
    EXPECT_EQ(std::count(handles.begin(), handles.end(), handle), 0);
    EXPECT_EQ(number_of(handle), 1000 + i);
    EXPECT_TRUE(table.erase(handle));
  }
  for (int i = 1; i < 1000; i += 2) EXPECT_TRUE(table.erase(handles[i]));
}

TEST(HandleTable, WhatIsNoHandleFindsNothing) {
  HandleTable<Numbered> table;
  void* const handle = table.create(1);
  const auto word = reinterpret_cast<std::uintptr_t>(handle);
  for (const std::uintptr_t wrong : {std::uintptr_t{0}, word - 1, word + 1, word - 128, word + 128, ~std::uintptr_t{0},
                                     reinterpret_cast<std::uintptr_t>(&table)}) {
    EXPECT_EQ(table.find(reinterpret_cast<void*>(wrong)), nullptr);
    EXPECT_FALSE(table.erase(reinterpret_cast<void*>(wrong)));
  }
  EXPECT_EQ(table.create(-1), nullptr) << "its parts found no memory";
  EXPECT_TRUE(table.erase(handle));
}

// The choice of the instruction set: the best that the processor and the system have, unless the environment names a
// lower one.
TEST(InstructionSets, AreChosenAmongThoseThatRun) {
  using platform::can_run, platform::kInstructionSets, platform::choose_instruction_set;
  const auto chosen = [](std::size_t best, const char* wanted) {
#if defined(_WIN32)
    _putenv_s("QUORIN_CPU", wanted);
#else
    setenv("QUORIN_CPU", wanted, 1);
#endif
    return static_cast<std::size_t>(choose_instruction_set(kInstructionSets[best].features));
  };
  for (std::size_t best = 0; best < kInstructionSets.size(); ++best) {
    for (std::size_t wanted = 0; wanted < kInstructionSets.size(); ++wanted) {
      EXPECT_EQ(chosen(best, kInstructionSets[wanted].name), std::min(best, wanted));
    }
    EXPECT_EQ(chosen(best, "none of them"), best);
    EXPECT_EQ(chosen(best, ""), best);
  }
  const std::uint32_t here = platform::cpu_features();
  EXPECT_EQ(can_run(kInstructionSets[1], here), __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"));
  EXPECT_EQ(can_run(kInstructionSets[2], here),
            __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
                __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl"));
  // The processor has it, and the system does not save its registers.
  const std::uint32_t features = kInstructionSets[2].features & ~static_cast<std::uint32_t>(platform::kFeatureZmmState);
  EXPECT_EQ(choose_instruction_set(features), platform::InstructionSet::kAvx2);
}

#if defined(__linux__)
// The system asks the processor, too. Cores may differ: it is the first one's that are compared.
TEST(Caches, AreThoseThatTheSystemTellsOf) {
  cpu_set_t first, all;
  CPU_ZERO(&first);
  CPU_SET(0, &first);
  if (sched_getaffinity(0, sizeof all, &all) != 0 || sched_setaffinity(0, sizeof first, &first) != 0) GTEST_SKIP();
  const platform::CacheSizes sizes = platform::cache_sizes();
  sched_setaffinity(0, sizeof all, &all);
  for (int index = 0; index < 4; ++index) {
    const std::string cache = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + '/';
    int level = 0;
    std::size_t kilobytes = 0;
    std::string type;
    std::ifstream(cache + "level") >> level;
    std::ifstream(cache + "type") >> type;
    std::ifstream(cache + "size") >> kilobytes;
    if ((type != "Data" && type != "Unified") || level > 2) continue;
    EXPECT_EQ(level == 1 ? sizes.level1 : sizes.level2, kilobytes << 10) << level;
  }
}
#endif

}  // namespace
}  // namespace quorin::base
