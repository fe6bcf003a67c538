// Hosts of 32-bit Windows have stacks of many kinds. They align them to 4 bytes only. Every family must work, and
// compute the same bits, from each of the four alignments that a call can have. (The BLAS's own test does the same for
// each of its routines.)
#include <intrin.h>
#include <windows.h>

#include "tests/support/capture_output.hpp"
#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/stack_skew.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

using AnyFunction = void (*)();
template <class Function>
AnyFunction any(Function* function) {
  return reinterpret_cast<AnyFunction>(reinterpret_cast<void*>(function));
}

class StackAlignment : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    product_->sMKL_Set_Dynamic(0);
    product_->sMKL_Set_Num_Threads(GetParam());
  }
  Product product_;
};

TEST_P(StackAlignment, DoesNotMatterToResults) {
  for (const FamilyCall& call : family_calls()) {
    for (int seed = 0; seed < 3; ++seed) {
      const Results expected = call.run(*product_, seed);
      EXPECT_FALSE(expected.empty()) << call.name;
      for (const std::uint32_t residue : {0U, 4U, 8U, 12U}) {
        Results found;
        const std::uintptr_t slots[] = {reinterpret_cast<std::uintptr_t>(&call),
                                        reinterpret_cast<std::uintptr_t>(&*product_), static_cast<std::uintptr_t>(seed),
                                        reinterpret_cast<std::uintptr_t>(&found)};
        call_with_stack(any(run_family_call), slots, 4, residue);
        EXPECT_EQ(found, expected) << call.name << ", esp mod 16 = " << residue;
      }
    }
  }
}

TEST_P(StackAlignment, DoesNotMatterToTheErrorHandler) {
  const std::int32_t info = 5;
  const std::uintptr_t slots[] = {reinterpret_cast<std::uintptr_t>("SGEMM"), reinterpret_cast<std::uintptr_t>(&info),
                                  5};
  for (const std::uint32_t residue : {0U, 4U, 8U, 12U}) {
    EXPECT_EQ(captured([&] { call_with_stack(any(product_->XERBLA), slots, 3, residue); }),
              "\nIntel MKL ERROR: Parameter 5 was incorrect on entry to SGEMM.\n");
  }
}

// A host may run the library on a stack of its own, whose end is the thread's first exception record: two words, and
// nothing is behind them.
TEST_P(StackAlignment, MayEndWithTheFirstExceptionRecord) {
  constexpr std::size_t kPage = 4096;
  auto* pages = static_cast<std::uintptr_t*>(VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE, PAGE_NOACCESS));
  ASSERT_NE(VirtualAlloc(pages, kPage, MEM_COMMIT, PAGE_READWRITE), nullptr);
  const unsigned long first = __readfsdword(0);
  std::uintptr_t* record = pages + kPage / sizeof *pages - 2;
  record[0] = first;
  record[1] = reinterpret_cast<std::uintptr_t*>(first)[1];
  for (const FamilyCall& call : family_calls()) {
    __writefsdword(0, static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(record)));
    const Results found = call.run(*product_, 0);
    __writefsdword(0, first);
    EXPECT_FALSE(found.empty()) << call.name;
  }
  VirtualFree(pages, 0, MEM_RELEASE);
}

INSTANTIATE_TEST_SUITE_P(Threads, StackAlignment, testing::Values(1, 2, 4));

}  // namespace
}  // namespace quorin::test
