// Hosts align the stack to 4 bytes only. Every routine must work, and compute the same bits, from each of the four
// alignments that a call can have.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "quorin/quorin.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/exact_product.hpp"

// call_with_stack(function, slots, count, residue): calls a cdecl function with `count` stack slots while esp mod 16 is
// `residue`. Two names for one body, because a float comes back in another register than an integer.
extern "C" {
std::int32_t call_with_stack(void (*function)(), const std::uint32_t* slots, std::uint32_t count,
                             std::uint32_t residue);
float call_with_stack_for_float(void (*function)(), const std::uint32_t* slots, std::uint32_t count,
                                std::uint32_t residue);
// esp mod 16 when this was called.
std::int32_t stack_residue();
}

__asm__(R"(
        .globl  _call_with_stack, _call_with_stack_for_float
_call_with_stack:
_call_with_stack_for_float:
        pushl   %ebp
        movl    %esp, %ebp
        pushl   %esi
        pushl   %edi
        movl    12(%ebp), %esi
        movl    16(%ebp), %ecx
        leal    64(,%ecx,4), %eax
        subl    %eax, %esp
        andl    $-16, %esp
        addl    20(%ebp), %esp
        movl    %esp, %edi
        rep movsl
        call    *8(%ebp)
        leal    -8(%ebp), %esp
        popl    %edi
        popl    %esi
        popl    %ebp
        ret

        .globl  _stack_residue
_stack_residue:
        leal    4(%esp), %eax
        andl    $15, %eax
        ret
)");

namespace quorin::test {
namespace {

using AnyFunction = void (*)();
template <class Function>
AnyFunction any(Function* function) {
  return reinterpret_cast<AnyFunction>(reinterpret_cast<void*>(function));
}

// One stack slot: an address or a value.
struct Slot {
  std::uint32_t word;
  Slot(const void* address) : word(reinterpret_cast<std::uintptr_t>(address)) {}
  Slot(std::int32_t value) : word(static_cast<std::uint32_t>(value)) {}
};

// The memory of one call. Arrays begin at odd multiples of 4 bytes, as those of hosts may.
struct Arena {
  explicit Arena(int order) : n(order), m(order - 1), ld(order + 3) {
    const std::size_t elements = 2 * static_cast<std::size_t>(ld) * static_cast<std::size_t>(ld) + 1;
    memory = whole_numbers(3 * elements, static_cast<std::uint32_t>(order));
    a = memory.data() + 1, b = a + elements, c = b + elements;
    // A triangular system whose solution stays finite.
    for (int i = 0; i < n; ++i) a[2 * i * (ld + 1)] = a[i * (ld + 1)] = 64;
    for (std::int32_t& index : positions) index = static_cast<std::int32_t>(&index - positions) + 1;
  }

  std::vector<float> memory;
  float *a, *b, *c;
  std::int32_t n, m, ld, one = 1, two = 2;
  std::int32_t positions[4];
  float alpha[2] = {2, 1}, beta[2] = {1, -1}, result[2] = {};
};

enum class Result { kNone, kInteger, kFloat };

struct Case {
  const char* name;
  AnyFunction function;
  std::function<std::vector<Slot>(Arena&)> slots;
  Result result = Result::kNone;
};

const std::vector<Case>& cases() {
  using Slots = std::vector<Slot>;
  static const std::vector<Case> all = {
      {"saxpy", any(saxpy), [](Arena& s) -> Slots { return {&s.n, s.alpha, s.a, &s.one, s.b, &s.two}; }},
      {"cscal", any(cscal),
       [](Arena& s) -> Slots {
         return {&s.n, s.alpha, s.a, &s.one};
       }},
      {"sdot", any(sdot),
       [](Arena& s) -> Slots {
         return {&s.n, s.a, &s.one, s.b, &s.one};
       },
       Result::kFloat},
      {"scnrm2", any(scnrm2),
       [](Arena& s) -> Slots {
         return {&s.n, s.a, &s.one};
       },
       Result::kFloat},
      {"isamax", any(isamax),
       [](Arena& s) -> Slots {
         return {&s.n, s.a, &s.two};
       },
       Result::kInteger},
      {"cdotc", any(cdotc), [](Arena& s) -> Slots { return {s.result, &s.n, s.a, &s.one, s.b, &s.one}; }},
      {"crotg", any(crotg),
       [](Arena& s) -> Slots {
         return {s.a, s.b, s.c, s.c + 4};
       }},
      {"srotmg", any(srotmg),
       [](Arena& s) -> Slots {
         return {s.alpha, s.a, s.b, s.alpha + 1, s.c};
       }},
      {"caxpyi_Idx", any(caxpyi_Idx),
       [](Arena& s) -> Slots { return {&s.two, s.alpha, s.a, 2, s.positions, 1, s.b, 3}; }},
      {"sgemv", any(sgemv),
       [](Arena& s) -> Slots { return {"T", &s.m, &s.n, s.alpha, s.a, &s.ld, s.b, &s.two, s.beta, s.c, &s.one}; }},
      {"cgemv_Idx", any(cgemv_Idx),
       [](Arena& s) -> Slots {
         return {"N", &s.m, &s.n, s.alpha, s.a, 1, &s.ld, s.b, 2, &s.one, s.beta, s.c, 3, &s.two};
       }},
      {"cgerc", any(cgerc),
       [](Arena& s) -> Slots { return {&s.m, &s.n, s.alpha, s.a, &s.one, s.b, &s.two, s.c, &s.ld}; }},
      {"chemv", any(chemv),
       [](Arena& s) -> Slots { return {"U", &s.n, s.alpha, s.a, &s.ld, s.b, &s.one, s.beta, s.c, &s.one}; }},
      {"strsv", any(strsv), [](Arena& s) -> Slots { return {"L", "N", "N", &s.n, s.a, &s.ld, s.b, &s.two}; }},
      {"ctrmv", any(ctrmv), [](Arena& s) -> Slots { return {"U", "C", "N", &s.n, s.a, &s.ld, s.b, &s.one}; }},
      {"sgemm", any(sgemm),
       [](Arena& s) -> Slots {
         return {"N", "T", &s.m, &s.n, &s.n, s.alpha, s.a, &s.ld, s.b, &s.ld, s.beta, s.c, &s.ld};
       }},
      {"cgemm_Idx", any(cgemm_Idx),
       [](Arena& s) -> Slots {
         return {"C", "N", &s.m, &s.m, &s.n, s.alpha, s.a, 1, &s.ld, s.b, 2, &s.ld, s.beta, s.c, 3, &s.ld};
       }},
      {"ssymm", any(ssymm),
       [](Arena& s) -> Slots { return {"R", "L", &s.m, &s.n, s.alpha, s.a, &s.ld, s.b, &s.ld, s.beta, s.c, &s.ld}; }},
      {"ssyrk", any(ssyrk),
       [](Arena& s) -> Slots { return {"U", "T", &s.n, &s.m, s.alpha, s.a, &s.ld, s.beta, s.c, &s.ld}; }},
      {"cher2k", any(cher2k),
       [](Arena& s) -> Slots { return {"L", "N", &s.n, &s.m, s.alpha, s.a, &s.ld, s.b, &s.ld, s.beta, s.c, &s.ld}; }},
      {"ctrmm", any(ctrmm),
       [](Arena& s) -> Slots { return {"L", "U", "N", "U", &s.n, &s.m, s.alpha, s.a, &s.ld, s.b, &s.ld}; }},
      {"strsm_Idx", any(strsm_Idx),
       [](Arena& s) -> Slots { return {"L", "L", "N", "N", &s.n, &s.m, s.alpha, s.a, 0, &s.ld, s.b, 1, &s.ld}; }},
      {"sgeqrf", any(sgeqrf), [](Arena& s) -> Slots { return {&s.m, &s.n, s.a, &s.ld, s.b, s.c, &s.ld, s.positions}; }},
      {"cgeqrf_Idx", any(cgeqrf_Idx),
       [](Arena& s) -> Slots { return {&s.m, &s.n, s.a, 1, &s.ld, s.b, 2, s.c, 3, &s.ld, s.positions}; }},
      {"sMKL_Domain_Set_Num_Threads", any(sMKL_Domain_Set_Num_Threads),
       [](Arena&) -> Slots {
         return {7, 3};
       },
       Result::kInteger},
      {"sMKL_Domain_Get_Max_Threads", any(sMKL_Domain_Get_Max_Threads), [](Arena&) -> Slots { return {3}; },
       Result::kInteger},
      {"sMKL_Get_Dynamic", any(sMKL_Get_Dynamic), [](Arena&) -> Slots { return {}; }, Result::kInteger},
      {"sokmp_set_blocktime", any(sokmp_set_blocktime), [](Arena&) -> Slots { return {200}; }},
      {"sMKL_FreeBuffers", any(sMKL_FreeBuffers), [](Arena&) -> Slots { return {}; }},
      {"taucs_printf", any(taucs_printf),
       [](Arena& s) -> Slots {
         return {"%d %s", 5, s.a};
       },
       Result::kInteger},
  };
  return all;
}

// Everything that a call leaves, bit for bit.
std::vector<unsigned char> outcome(const Case& c, int order, std::uint32_t residue) {
  Arena arena(order);
  std::vector<std::uint32_t> words;
  for (const Slot& slot : c.slots(arena)) words.push_back(slot.word);
  const auto count = static_cast<std::uint32_t>(words.size());
  std::uint32_t result = 0;
  if (c.result == Result::kFloat) {
    const float value = call_with_stack_for_float(c.function, words.data(), count, residue);
    std::memcpy(&result, &value, sizeof result);
  } else {
    const std::int32_t value = call_with_stack(c.function, words.data(), count, residue);
    if (c.result == Result::kInteger) std::memcpy(&result, &value, sizeof result);
  }
  const std::size_t array_bytes = arena.memory.size() * sizeof(float);
  std::vector<unsigned char> bytes(array_bytes + sizeof arena.result + sizeof result);
  std::memcpy(bytes.data(), arena.memory.data(), array_bytes);
  std::memcpy(bytes.data() + array_bytes, arena.result, sizeof arena.result);
  std::memcpy(bytes.data() + array_bytes + sizeof arena.result, &result, sizeof result);
  return bytes;
}

TEST(CallWithStack, PutsTheStackWhereItIsTold) {
  const std::uint32_t slots[4] = {};
  for (std::uint32_t count = 0; count <= 4; ++count) {
    for (const std::uint32_t residue : {0U, 4U, 8U, 12U}) {
      EXPECT_EQ(call_with_stack(any(stack_residue), slots, count, residue), static_cast<std::int32_t>(residue));
    }
  }
}

class StackAlignment : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    sMKL_Set_Dynamic(0);
    sMKL_Set_Num_Threads(GetParam());
  }
};

TEST_P(StackAlignment, DoesNotMatterToResults) {
  for (const Case& c : cases()) {
    for (const int order : {3, 37, 300}) {
      const std::vector<unsigned char> aligned = outcome(c, order, 0);
      for (const std::uint32_t residue : {4U, 8U, 12U, 0U}) {
        EXPECT_TRUE(outcome(c, order, residue) == aligned)
            << c.name << ", order " << order << ", esp mod 16 = " << residue;
      }
    }
  }
}

TEST_P(StackAlignment, DoesNotMatterToTheErrorHandler) {
  const std::int32_t info = 5;
  const std::uint32_t direct[] = {Slot("SGEMM").word, Slot(&info).word, Slot(5).word};
  std::int32_t wrong = -1, n = 2;
  float x[8] = {};
  const std::uint32_t through[] = {Slot("N").word, Slot(&wrong).word, Slot(&n).word, Slot(x).word,
                                   Slot(x).word,   Slot(&n).word,     Slot(x).word,  Slot(&n).word,
                                   Slot(x).word,   Slot(x).word,      Slot(&n).word};
  for (const std::uint32_t residue : {0U, 4U, 8U, 12U}) {
    EXPECT_EQ(captured([&] { call_with_stack(any(XERBLA), direct, 3, residue); }),
              "\nIntel MKL ERROR: Parameter 5 was incorrect on entry to SGEMM.\n");
    EXPECT_EQ(captured([&] { call_with_stack(any(sgemv), through, 11, residue); }),
              "\nIntel MKL ERROR: Parameter 2 was incorrect on entry to SGEMV.\n");
  }
}

INSTANTIATE_TEST_SUITE_P(Threads, StackAlignment, testing::Values(1, 2, 4));

}  // namespace
}  // namespace quorin::test
