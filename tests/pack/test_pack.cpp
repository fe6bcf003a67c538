// Packing: every bit of every payload, nothing but what is addressed, in place, and what is reported.
#include <cfenv>

#include "quorin/pack.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/test.hpp"

namespace {

using Bits = std::vector<std::uint32_t>;
using Ints = std::vector<int>;

float* floats(Bits& bits) { return reinterpret_cast<float*>(bits.data()); }

// Signalling and quiet NaNs with payloads, -0, denormal numbers, infinities, then anything.
Bits payloads(std::size_t n, std::uint32_t seed) {
  Bits all = {0x7F800001, 0xFFBFFFFF, 0x7FC12345, 0x80000000, 0x00000001, 0x807FFFFF, 0x7F800000, 0xFF800000};
  std::mt19937 random(seed);
  while (all.size() < n) all.push_back(static_cast<std::uint32_t>(random()));
  all.resize(n);
  return all;
}

constexpr std::uint32_t kGuard = 0xDEADBEEF;

TEST(Pack, MovesBitsAndNothingElse) {
  std::mt19937 random(7);
  std::feclearexcept(FE_ALL_EXCEPT);
  for (const int n : {1, 2, 31, 32, 33, 64, 100, 1000}) {
    const auto length = static_cast<std::size_t>(n);
    for (const int inc : {1, 2, 7}) {
      const std::size_t span = 1 + (length - 1) * static_cast<std::size_t>(inc);
      Bits a = payloads(span, 1), y(length + 1, kGuard), back(span + 1, kGuard);
      vspacki(&n, floats(a), &inc, floats(y));
      vsunpacki(&n, floats(y), floats(back), &inc);
      for (std::size_t j = 0; j < length; ++j) ASSERT_EQ(y[j], a[j * static_cast<std::size_t>(inc)]);
      EXPECT_EQ(y.back(), kGuard);
      for (std::size_t i = 0; i <= span; ++i) {
        ASSERT_EQ(back[i], i < span && i % static_cast<std::size_t>(inc) == 0 ? a[i] : kGuard);
      }
    }

    Ints order(length), mask(length);
    for (std::size_t j = 0; j < length; ++j) {
      order[j] = static_cast<int>(j * 37 % length);
      mask[j] = random() % 3 == 0 ? 0 : static_cast<int>(random() | 1U);  // negative ones select too
    }
    Bits a = payloads(length, 2), y(length + 1, kGuard), back(length + 1, kGuard), expected(length + 1, kGuard);
    vspackv(&n, floats(a), order.data(), floats(y));
    vsunpackv(&n, floats(y), floats(back), order.data());
    for (std::size_t j = 0; j < length; ++j) {
      const auto at = static_cast<std::size_t>(order[j]);
      expected[at] = a[at];
      ASSERT_EQ(y[j], a[at]);
    }
    EXPECT_EQ(back, expected);

    Bits chosen;
    expected.assign(length + 1, kGuard);
    for (std::size_t j = 0; j < length; ++j) {
      if (mask[j] == 0) continue;
      chosen.push_back(a[j]);
      expected[j] = a[j];
    }
    Bits packed(chosen.size() + 1, kGuard), whole(length + 1, kGuard);  // just as long as documented
    vspackm(&n, floats(a), mask.data(), floats(packed));
    chosen.push_back(kGuard);
    EXPECT_EQ(packed, chosen);
    packed.pop_back();
    vsunpackm(&n, floats(packed), floats(whole), mask.data());
    EXPECT_EQ(whole, expected);
  }
  EXPECT_EQ(std::fetestexcept(FE_INVALID | FE_OVERFLOW | FE_UNDERFLOW), 0);
}

TEST(Pack, InPlace) {
  const int n = 50, inc = 3;
  Ints mask(50);
  for (std::size_t j = 0; j < 50; ++j) mask[j] = j % 4 == 1 || j > 45 ? -1 : 0;
  const Bits original = payloads(148, 3);
  // The same as from a copy of the operand.
  const auto expect_same = [&](const auto& call) {
    Bits from = original, expected = original, y = original;
    call(floats(from), floats(expected));
    call(floats(y), floats(y));
    EXPECT_EQ(y, expected);
  };
  expect_same([&](float* a, float* y) { vspacki(&n, a, &inc, y); });
  expect_same([&](float* y, float* a) { vsunpacki(&n, y, a, &inc); });
  expect_same([&](float* a, float* y) { vspackm(&n, a, mask.data(), y); });
  expect_same([&](float* y, float* a) { vsunpackm(&n, y, a, mask.data()); });
}

TEST(Pack, OfRepeatedTargetsTheLastOneStays) {
  const int n = 4;
  const float a[] = {1, 2, 3, 4};
  const int iy[] = {2, 0, 2, 0};
  float y[] = {9, 9, 9};
  vsunpackv(&n, a, y, iy);
  EXPECT_EQ(y[0], 4);
  EXPECT_EQ(y[1], 9);
  EXPECT_EQ(y[2], 3);
}

TEST(Pack, IndexFormsAddTheirIndices) {
  const int n = 2, inc = 2;
  const float a[] = {9, 1, 2, 3, 4};
  const int order[] = {9, 9, 3, 0}, mask[] = {9, 0, 1};
  const auto expect = [](const float* y, float first, float second) {
    EXPECT_EQ(y[0], 9);
    EXPECT_EQ(y[1], first);
    EXPECT_EQ(y[2], second);
  };
  float y[] = {9, 9, 9, 9};
  vspacki_Idx(&n, a, 1, &inc, y, 1);
  expect(y, 1, 3);
  vspackv_Idx(&n, a, 1, order, 2, y, 1);
  expect(y, 4, 1);
  vspackm_Idx(&n, a, 1, mask, 1, y, 1);
  expect(y, 2, 1);
  vsunpacki_Idx(&n, a, 3, y, 1, &inc);
  expect(y, 3, 1);
  EXPECT_EQ(y[3], 4);
  const int swapped[] = {9, 1, 0};
  vsunpackv_Idx(&n, a, 3, y, 1, swapped, 1);
  expect(y, 4, 3);
  vsunpackm_Idx(&n, a, 1, y, 1, mask, 1);
  expect(y, 4, 1);
}

std::string report(const std::string& name, int position) {
  return "\nIntel MKL ERROR: Parameter " + std::to_string(position) + " was incorrect on entry to " + name + ".\n";
}

TEST(Pack, ReportsWhatIsWrongAndTouchesNothing) {
  const int n = 2, none = 0, negative = -1, step = 1;
  const float a[] = {1, 2};
  const int index[] = {0, 1};  // a list may begin with 0
  float y[] = {9, 9};
  using quorin::test::captured;
  EXPECT_EQ(captured([&] {
              vspacki(&none, nullptr, &none, nullptr);
              vsunpackm(&none, nullptr, nullptr, nullptr);
              vspacki(&n, y, &step, y);  // nothing is wrong
              vsunpackm(&n, y, y, index);
            }),
            "");
  EXPECT_EQ(y[1], 9);
  // Each argument of each routine; n comes first, an increment must be positive.
  const auto n_or = [&](int wrong) { return wrong == 1 ? &negative : wrong == 5 ? nullptr : &n; };
  const auto or_null = [](int wrong, int position, auto* good) { return wrong == position ? nullptr : good; };
  for (const int wrong : {1, 2, 3, 4, 5}) {
    const int* const length = n_or(wrong);
    const int position = wrong == 5 ? 1 : wrong;
    const float* const from = or_null(wrong, 2, a);
    float *const second = or_null(wrong, 3, y), *const third = or_null(wrong, 4, y);
    const int *const list_3 = or_null(wrong, 3, index), *const list_4 = or_null(wrong, 4, index);
    EXPECT_EQ(captured([&] { vspackv(length, from, list_3, third); }), report("VSPACKV", position));
    EXPECT_EQ(captured([&] { vspackm(length, from, list_3, third); }), report("VSPACKM", position));
    EXPECT_EQ(captured([&] { vsunpackv(length, from, second, list_4); }), report("VSUNPACKV", position));
    EXPECT_EQ(captured([&] { vsunpackm(length, from, second, list_4); }), report("VSUNPACKM", position));
    for (const int* const bad : {static_cast<const int*>(nullptr), &none, &negative}) {
      const int *const inc_3 = wrong == 3 ? bad : &step, *const inc_4 = wrong == 4 ? bad : &step;
      EXPECT_EQ(captured([&] { vspacki(length, from, inc_3, third); }), report("VSPACKI", position));
      EXPECT_EQ(captured([&] { vsunpacki(length, from, second, inc_4); }), report("VSUNPACKI", position));
    }
  }
  EXPECT_EQ(y[0] + y[1], 18);
}

}  // namespace
