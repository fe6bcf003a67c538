#include "families/pack/pack.hpp"

#include <emmintrin.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/argument_error.hpp"

namespace quorin::pack {
namespace {

// Loads and stores through memcpy, as integers: a float register may not change a signalling NaN.
using Bits = std::uint32_t;

Bits load(const float* a) {
  Bits bits = 0;
  std::memcpy(&bits, a, sizeof bits);
  return bits;
}

void store(float* y, Bits bits) { std::memcpy(y, &bits, sizeof bits); }

void copy(const float* from, float* to) { store(to, load(from)); }

constexpr std::size_t kNoIncrement = 0;

// Whether there is anything to do: n is not 0 and all arguments are right; the first wrong one is reported. An
// increment takes the place of one of the arrays behind n.
bool has_work(std::string_view routine, const int* n, std::array<const void*, 3> others, std::size_t increment) {
  if (n != nullptr && *n == 0) return false;
  int wrong = n == nullptr || *n < 0 ? 1 : 0;
  for (std::size_t i = 0; i < others.size() && wrong == 0; ++i) {
    const bool is_wrong = others[i] == nullptr || (i + 2 == increment && *static_cast<const int*>(others[i]) <= 0);
    if (is_wrong) wrong = static_cast<int>(i) + 2;
  }
  if (wrong != 0) base::report_argument_error(routine.data(), static_cast<int>(routine.size()), wrong);
  return wrong == 0;
}

constexpr std::size_t kMaskBits = 32;

// Bit i: mask[i] is not 0.
std::uint32_t selection(const int* mask) {
  std::uint32_t zeros = 0;
  for (int i = 0; i < 32; i += 4) {
    const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(mask + i));
    const __m128i are_zero = _mm_cmpeq_epi32(four, _mm_setzero_si128());
    zeros |= static_cast<std::uint32_t>(_mm_movemask_ps(_mm_castsi128_ps(are_zero))) << i;
  }
  return ~zeros;
}

// Calls `visit(j)` for the j with a mask that is not 0, in order. The masks are read 32 at a time, so that no branch
// depends on a single one.
template <class Visit>
void for_selected(std::size_t n, const int* mask, const Visit& visit) {
  std::size_t start = 0;
  for (; start + kMaskBits <= n; start += kMaskBits) {
    for (std::uint32_t left = selection(mask + start); left != 0; left &= left - 1) {
      visit(start + static_cast<std::size_t>(std::countr_zero(left)));
    }
  }
  for (; start < n; ++start) {
    if (mask[start] != 0) visit(start);
  }
}

std::size_t count_selected(std::size_t n, const int* mask) {
  std::size_t count = 0;
  for (std::size_t j = 0; j < n; ++j) count += mask[j] != 0 ? 1 : 0;
  return count;
}

std::ptrdiff_t offset(int index) { return index; }

}  // namespace

void pack_increment(const int* n, const float* a, const int* inca, float* y) noexcept {
  if (!has_work("VSPACKI", n, {a, inca, y}, 3)) return;
  const auto length = static_cast<std::size_t>(*n);
  const auto step = static_cast<std::size_t>(*inca);
  if (step == 1) {
    std::memmove(y, a, length * sizeof(float));
    return;
  }
  // Four loads before four stores: the compiler cannot know that they do not meet.
  std::size_t j = 0;
  for (; j + 4 <= length; j += 4, a += 4 * step, y += 4) {
    const Bits four[4] = {load(a), load(a + step), load(a + 2 * step), load(a + 3 * step)};
    std::memcpy(y, four, sizeof four);
  }
  for (; j < length; ++j, a += step) copy(a, y++);
}

void pack_index(const int* n, const float* a, const int* ia, float* y) noexcept {
  if (!has_work("VSPACKV", n, {a, ia, y}, kNoIncrement)) return;
  const auto length = static_cast<std::size_t>(*n);
  // Eight at a time, in order: a loop this short depends on where the linker puts it.
  constexpr std::size_t kTogether = 8;
  std::size_t j = 0;
  for (; j + kTogether <= length; j += kTogether) {
    for (std::size_t k = j; k < j + kTogether; ++k) copy(a + offset(ia[k]), y + k);
  }
  for (; j < length; ++j) copy(a + offset(ia[j]), y + j);
}

void pack_mask(const int* n, const float* a, const int* ma, float* y) noexcept {
  if (!has_work("VSPACKM", n, {a, ma, y}, kNoIncrement)) return;
  const auto length = static_cast<std::size_t>(*n);
  for_selected(length, ma, [&](std::size_t j) { copy(a + j, y++); });
}

void unpack_increment(const int* n, const float* a, float* y, const int* incy) noexcept {
  if (!has_work("VSUNPACKI", n, {a, y, incy}, 4)) return;
  const auto length = static_cast<std::size_t>(*n);
  const auto step = static_cast<std::size_t>(*incy);
  if (step == 1) {
    std::memmove(y, a, length * sizeof(float));
  } else if (y == a) {  // from the end, where nothing is overwritten that is still to be read
    for (std::size_t j = length; j-- > 0;) copy(a + j, y + j * step);
  } else {
    for (std::size_t j = 0; j < length; ++j) copy(a + j, y + j * step);
  }
}

void unpack_index(const int* n, const float* a, float* y, const int* iy) noexcept {
  if (!has_work("VSUNPACKV", n, {a, y, iy}, kNoIncrement)) return;
  const auto length = static_cast<std::size_t>(*n);
  for (std::size_t j = 0; j < length; ++j) copy(a + j, y + offset(iy[j]));
}

void unpack_mask(const int* n, const float* a, float* y, const int* my) noexcept {
  if (!has_work("VSUNPACKM", n, {a, y, my}, kNoIncrement)) return;
  const auto length = static_cast<std::size_t>(*n);
  if (y != a) {
    for_selected(length, my, [&](std::size_t j) { copy(a++, y + j); });
    return;
  }
  std::size_t left = count_selected(length, my);
  for (std::size_t j = length; left > 0 && j-- > 0;) {
    if (my[j] != 0) copy(a + --left, y + j);
  }
}

}  // namespace quorin::pack
