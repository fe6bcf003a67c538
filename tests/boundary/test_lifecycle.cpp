// Hosts load and unload the library again and again, and leave it in the middle of its work. Nothing may crash, hang or
// grow.
#include <atomic>
#include <chrono>
#include <thread>

#include "tests/support/exact_product.hpp"
#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/process_state.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

constexpr int kCycles = 1000;
constexpr int kWarmUpCycles = 10;
constexpr int kThreads = 3;

void sleep_milliseconds(int count) { std::this_thread::sleep_for(std::chrono::milliseconds(count)); }

Product load_threaded_product() {
  Product product;
  if (product) {
    product->sMKL_Set_Dynamic(0);
    product->sMKL_Set_Num_Threads(kThreads);
  }
  return product;
}

void set_block_time(const Product& product, int milliseconds) { product->sokmp_set_blocktime(milliseconds); }

bool multiply(const Product& product, ExactProduct& problem) { return product && problem.is_solved_by(product->sgemm); }

template <class Condition>
bool comes_true(const Condition& condition) {
  for (int i = 0; i < 4000 && !condition(); ++i) sleep_milliseconds(1);
  return condition();
}

// The end of a cycle: on Windows that the module is gone at once, elsewhere that its workers are.
bool is_over([[maybe_unused]] int threads_alone) {
#if defined(_WIN32)
  return !is_loaded(QUORIN_PRODUCT_FILE);
#else
  return comes_true([=] { return thread_count() == threads_alone; });
#endif
}

// What a leak would make larger.
struct Footprint {
#if defined(_WIN32)
  std::size_t memory = private_bytes(), heap = heap_bytes();
  int handles = handle_count(), threads = thread_count();
  int free_slots = free_thread_slots(), free_fibers = free_fiber_slots();
#else
  std::size_t memory = 0, heap = 0;
  int handles = handle_count(), threads = thread_count(), free_slots = 0, free_fibers = 0;
#endif
};

// Threads that have left the library still have a moment to live.
Footprint settled_footprint(int threads_alone) {
  EXPECT_TRUE(comes_true([=] { return thread_count() == threads_alone; }));
  return Footprint();
}

// A leak in every cycle is far beyond these: what the system's own loader leaves (20 bytes on Wine), pages that heaps
// still take, a few handles of the system's own.
std::string growth(const Footprint& before, const Footprint& after) {
  std::string text;
  const auto tell = [&text](bool has_grown, const char* what) { text += has_grown ? what : ""; };
  tell(after.memory > before.memory + (std::size_t{256} << 10), "memory ");
  tell(after.heap > before.heap + (std::size_t{32} << 10), "heap ");
  tell(after.handles > before.handles + 4, "handles ");
  tell(after.threads != before.threads, "threads ");
  tell(after.free_slots != before.free_slots, "slots ");
  tell(after.free_fibers != before.free_fibers, "fibers ");
  return text;
}

// Workers are spinning, waiting, on their way or gone when the library is unloaded, and when it is loaded again.
TEST(Lifecycle, CyclesOfAllFamiliesLeaveNothingBehind) {
#if defined(_WIN32)
  constexpr int kBlockTimes[] = {200, 0, INT_MAX};
#else
  constexpr int kBlockTimes[] = {0};  // nothing is unloaded: workers have to end by themselves
#endif
  const std::span<const FamilyCall> families = family_calls();
  std::vector<Results> expected(families.size());
  std::minstd_rand random(1);  // NOLINT(cert-msc51-cpp): the same delays in every run
  const auto wait_a_moment = [&random] {
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 1000);
    while (std::chrono::steady_clock::now() < end) std::this_thread::yield();
  };
  const int threads_alone = thread_count_alone();
  Footprint warm;
  for (int cycle = 0; cycle < kCycles; ++cycle) {
    Product product = load_threaded_product();
    ASSERT_TRUE(product);
    const int block_time = kBlockTimes[static_cast<std::size_t>(cycle) % std::size(kBlockTimes)];
    set_block_time(product, block_time);
    for (std::size_t i = 0; i < families.size(); ++i) {
      const std::size_t family = (i + static_cast<std::size_t>(cycle)) % families.size();
      const Results results = families[family].run(*product, 0);
      if (cycle == 0) expected[family] = results;
      ASSERT_FALSE(results.empty()) << families[family].name << ", cycle " << cycle;
      ASSERT_EQ(results, expected[family]) << families[family].name << ", cycle " << cycle;
    }
    if (block_time == INT_MAX) {
      ASSERT_TRUE(comes_true([=] { return thread_count() >= threads_alone + kThreads - 1; })) << "no workers";
    }
    wait_a_moment();
    product.close();
    ASSERT_TRUE(is_over(threads_alone)) << cycle;
    wait_a_moment();
    if (cycle == kWarmUpCycles) warm = settled_footprint(threads_alone);
  }
  EXPECT_EQ(growth(warm, settled_footprint(threads_alone)), "");
}

#if defined(_WIN32)
// What the run-time library keeps for a thread that has met an exception goes with the DLL, not with the thread.
TEST(Lifecycle, ExceptionsLeaveNothingBehindInThreadsThatLiveOn) {
  constexpr int kHosts = 3, kThrowingCycles = 300;
  Footprint warm;
  std::atomic<int> round{0}, done{0}, failures{0};
  int (*throw_and_catch)(int) = nullptr;
  std::vector<std::thread> hosts;
  hosts.reserve(kHosts);
  for (int host = 0; host < kHosts; ++host) {
    hosts.emplace_back([&] {
      for (int seen = 1; seen <= kThrowingCycles; ++seen) {
        while (round.load() < seen) std::this_thread::yield();
        if (throw_and_catch(5) != 6) ++failures;
        ++done;
      }
      while (round.load() <= kThrowingCycles) std::this_thread::yield();
    });
  }
  for (int cycle = 1; cycle <= kThrowingCycles; ++cycle) {
    TestLibrary library("throwing", "throwing");
    ASSERT_TRUE(library);
    throw_and_catch = library.symbol<int(int)>("throw_and_catch");
    round = cycle;
    if (throw_and_catch(5) != 6) ++failures;
    while (done.load() < cycle * kHosts) std::this_thread::yield();
    library.close();
    EXPECT_FALSE(is_loaded("throwing.dll"));
    if (cycle == kWarmUpCycles) warm = Footprint();
  }
  EXPECT_EQ(growth(warm, Footprint()), "");
  EXPECT_EQ(failures, 0);
  ++round;
  for (std::thread& host : hosts) host.join();
}
#endif

#if defined(_WIN32)
// Texts that the host has got.
int text_count = 0;

int texts_of_a_report(const Product& product) {
  text_count = 0;
  product->umfpack_di_report_status(nullptr, -1);
  return text_count;
}

// What a host that loads the library finds, whatever another one has left.
void expect_as_new(const Product& product, int threads) {
  EXPECT_EQ(product->sMKL_Get_Max_Threads(), threads);
  EXPECT_EQ(product->sMKL_Domain_Get_Max_Threads(1), threads);
  EXPECT_EQ(product->sMKL_Get_Dynamic(), 1);
  EXPECT_EQ(texts_of_a_report(product), 0);
}

TEST(Lifecycle, TheLastUnloadEndsCallbackAndThreadSettings) {
  ExactProduct problem;
  const int threads = Product()->sMKL_Get_Max_Threads();
  for (const int block_time : {0, 1, 200, INT_MAX}) {
    for (const int before_unload : {0, 0, 1, 20}) {
      for (const int before_load : {0, 20}) {
        SCOPED_TRACE(testing::Message() << block_time << ", " << before_unload << ", " << before_load);
        Product product;
        ASSERT_TRUE(product);
        expect_as_new(product, threads);
        product->set_printf_callback_32f([](const char*) QUORIN_CALLBACK { ++text_count; });
        product->sMKL_Set_Dynamic(0);
        product->sMKL_Set_Num_Threads(threads + 5);
        product->sMKL_Domain_Set_Num_Threads(threads + 6, 1);
        set_block_time(product, block_time);
        ASSERT_TRUE(multiply(product, problem));
        EXPECT_GT(texts_of_a_report(product), 0);
        if (before_unload > 0) sleep_milliseconds(before_unload);
        product.close();
        EXPECT_FALSE(is_loaded(QUORIN_PRODUCT_FILE));
        if (before_load > 0) sleep_milliseconds(before_load);
      }
    }
  }
  const Product product;
  expect_as_new(product, threads);
}

TEST(Lifecycle, APlugInMayUnloadTheLibraryAsItIsUnloaded) {
  ExactProduct problem;
  for (const int block_time : {200, INT_MAX}) {
    TestLibrary plug_in("plug_in", "plug_in");
    ASSERT_TRUE(plug_in);
    Product product = load_threaded_product();
    set_block_time(product, block_time);
    ASSERT_TRUE(multiply(product, problem));
    *plug_in.symbol<HMODULE>("library") = LoadLibraryA((program_directory() / QUORIN_PRODUCT_FILE).string().c_str());
    product.close();
    EXPECT_TRUE(is_loaded(QUORIN_PRODUCT_FILE));
    plug_in.close();
    EXPECT_FALSE(is_loaded(QUORIN_PRODUCT_FILE));
  }
}
#endif

TEST(Lifecycle, UnloadsWhenAnotherThreadHasJustLeft) {
  const int threads_alone = thread_count_alone();
  ExactProduct problem;
  for (int cycle = 0; cycle < 200; ++cycle) {
    Product product = load_threaded_product();
    ASSERT_TRUE(product);
    if (cycle % 2 == 0) set_block_time(product, 0);
    std::atomic<bool> has_left{false};
    bool solved = false;
    std::thread other([&] {
      solved = multiply(product, problem);
      has_left.store(true);
      sleep_milliseconds(cycle % 3);
    });
    while (!has_left.load()) std::this_thread::yield();
    product.close();
    other.join();
    ASSERT_TRUE(solved) << cycle;
  }
  EXPECT_TRUE(is_over(threads_alone));
}

TEST(Lifecycle, ProcessesEndRightAfterThreadedWorkWithTheirOwnStatus) {
  const std::filesystem::path program = program_directory() / "exit_after_work";
  int status = 40;
  for (const std::string way : {"return", "exit", "quick", "other_thread"}) {
    for (const std::string block_time : {"0", "200", "2147483647"}) {
      ++status;
      std::string command = program.string();
      for (const std::string& argument : {way, block_time, std::to_string(status)})
        command.append(" ").append(argument);
      int ended = std::system(command.c_str());
#if !defined(_WIN32)
      ended = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
#endif
      EXPECT_EQ(ended, status) << command;
    }
  }
}

}  // namespace
}  // namespace quorin::test
