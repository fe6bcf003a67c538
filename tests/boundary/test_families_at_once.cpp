// Host threads call all families at once, each on data of its own, while another one takes the packing buffers away:
// everybody gets the bits of a lone call.
#include <atomic>
#include <thread>

#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

constexpr int kHosts = 8, kRounds = 5;

class FamiliesAtOnce : public testing::TestWithParam<int> {};

TEST_P(FamiliesAtOnce, GiveTheBitsOfALoneCall) {
  const Product product;
  ASSERT_TRUE(product);
  product->sMKL_Set_Dynamic(0);
  product->sMKL_Set_Num_Threads(GetParam());
  const std::span<const FamilyCall> families = family_calls();
  const std::size_t count = families.size();
  std::vector<Results> expected;
  for (std::size_t i = 0; i < kHosts * count; ++i) {
    expected.push_back(families[i % count].run(*product, static_cast<int>(i / count)));
    ASSERT_FALSE(expected.back().empty()) << families[i % count].name;
  }
  std::vector<std::atomic<int>> differing(count);
  std::atomic<int> arrived{0};
  std::vector<std::thread> hosts;
  for (std::size_t host = 0; host < kHosts; ++host) {
    hosts.emplace_back([&, host] {
      ++arrived;
      while (arrived.load() < kHosts) std::this_thread::yield();
      // First all call the same family, then different ones.
      for (std::size_t call = 0; call < kRounds * count; ++call) {
        const std::size_t family = (call % 2 == 0 ? call / 2 : call + host) % count;
        const Results results = families[family].run(*product, static_cast<int>(host));
        if (results != expected[host * count + family]) ++differing[family];
      }
    });
  }
  std::atomic<bool> goes_on{true};
  std::thread robber([&] {
    while (goes_on.load()) product->sMKL_FreeBuffers();
  });
  for (std::thread& host : hosts) host.join();
  goes_on = false;
  robber.join();
  for (std::size_t i = 0; i < count; ++i) EXPECT_EQ(differing[i], 0) << families[i].name;
}

INSTANTIATE_TEST_SUITE_P(LibraryThreads, FamiliesAtOnce, testing::Values(1, 3));

}  // namespace
}  // namespace quorin::test
