// sokmp_set_blocktime: the value reaches an OpenMP run-time library that the process has loaded, and the library's own
// workers.
#include <chrono>
#include <thread>

#include "tests/support/exact_product.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/process_state.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

using std::chrono::milliseconds;

#if defined(_WIN32)
constexpr const char* kOpenMp = "libiomp5md";
#else
constexpr const char* kOpenMp = "libiomp5";
#endif

TEST(BlockTime, ReachesALoadedOpenMpLibraryOnly) {
  with_fresh_product([] {
    const Product product;
    auto* const set_block_time = product->sokmp_set_blocktime;
    for (const int value : {5, 0, -1, INT_MAX}) set_block_time(value);  // nobody there: nothing happens
    EXPECT_FALSE(is_loaded(library_file(kOpenMp)));

    TestLibrary openmp("openmp", kOpenMp);
    ASSERT_TRUE(openmp);
    const auto& recorded = *openmp.symbol<int>("recorded_block_time");
    EXPECT_EQ(recorded, -12345);
    for (const int value : {5, 0, -1, INT_MIN, INT_MAX}) {
      set_block_time(value);
      EXPECT_EQ(recorded, value);
    }
    openmp.close();
    EXPECT_FALSE(is_loaded(library_file(kOpenMp))) << "the product holds a reference";
    set_block_time(200);
  });
}

bool thread_count_becomes(int expected) {
  for (int i = 0; i < 400 && thread_count() != expected; ++i) std::this_thread::sleep_for(milliseconds(5));
  return thread_count() == expected;
}

TEST(BlockTime, DecidesHowLongIdleWorkersStay) {
  with_fresh_product([] {
    const Product product;
    auto* const set_block_time = product->sokmp_set_blocktime;
    product->sMKL_Set_Dynamic(0);
    product->sMKL_Set_Num_Threads(4);
    ExactProduct problem;
    const auto multiply = [&] { EXPECT_TRUE(problem.is_solved_by(product->sgemm)); };
    const int alone = thread_count_alone();

    set_block_time(INT_MAX);
    set_block_time(-7);  // ignored
    multiply();
    std::this_thread::sleep_for(milliseconds(400));
    EXPECT_EQ(thread_count(), alone + 3);
    set_block_time(0);  // reaches those that wait already
    EXPECT_TRUE(thread_count_becomes(alone)) << thread_count() - alone << " workers are still there";
    set_block_time(1);
    multiply();
    EXPECT_TRUE(thread_count_becomes(alone)) << thread_count() - alone << " workers are still there";
  });
}

}  // namespace
}  // namespace quorin::test
