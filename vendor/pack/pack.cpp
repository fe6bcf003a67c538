#include "vendor/pack/pack.hpp"

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

// Whether there is anything to do: n is not 0 and all arguments are right; the first wrong one is reported. An increment
// takes the place of one of the arrays behind n.
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

// Calls `visit(j)` for the j with a mask that is not 0, in order. The masks are read 32 at a time, so that no branch
// depends on a single one.
template <class Visit>
void for_selected(std::size_t n, const int* mask, const Visit& visit) {
  for (std::size_t start = 0; start < n; start += kMaskBits) {
    const std::size_t count = n - start < kMaskBits ? n - start : kMaskBits;
    std::uint32_t selected = 0;
    for (std::size_t i = 0; i < count; ++i) selected |= std::uint32_t{mask[start + i] != 0} << i;
    for (; selected != 0; selected &= selected - 1) visit(start + static_cast<std::size_t>(std::countr_zero(selected)));
  }
}

std::size_t count_selected(std::size_t n, const int* mask) {
  std::size_t count = 0;
  for (std::size_t j = 0; j < n; ++j) count += mask[j] != 0 ? 1 : 0;
  return count;
}

std::size_t length(const int* n) { return static_cast<std::size_t>(*n); }
std::ptrdiff_t offset(int index) { return index; }

}  // namespace

void pack_increment(const int* n, const float* a, const int* inca, float* y) {
  if (!has_work("VSPACKI", n, {a, inca, y}, 3)) return;
  const auto step = static_cast<std::size_t>(*inca);
  if (step == 1) {
    std::memmove(y, a, length(n) * sizeof(float));
    return;
  }
  for (std::size_t j = 0; j < length(n); ++j) copy(a + j * step, y + j);
}

void pack_index(const int* n, const float* a, const int* ia, float* y) {
  if (!has_work("VSPACKV", n, {a, ia, y}, kNoIncrement)) return;
  for (std::size_t j = 0; j < length(n); ++j) copy(a + offset(ia[j]), y + j);
}

void pack_mask(const int* n, const float* a, const int* ma, float* y) {
  if (!has_work("VSPACKM", n, {a, ma, y}, kNoIncrement)) return;
  for_selected(length(n), ma, [&](std::size_t j) { copy(a + j, y++); });
}

void unpack_increment(const int* n, const float* a, float* y, const int* incy) {
  if (!has_work("VSUNPACKI", n, {a, y, incy}, 4)) return;
  const auto step = static_cast<std::size_t>(*incy);
  if (step == 1) {
    std::memmove(y, a, length(n) * sizeof(float));
  } else if (y == a) {  // from the end, where nothing is overwritten that is still to be read
    for (std::size_t j = length(n); j-- > 0;) copy(a + j, y + j * step);
  } else {
    for (std::size_t j = 0; j < length(n); ++j) copy(a + j, y + j * step);
  }
}

void unpack_index(const int* n, const float* a, float* y, const int* iy) {
  if (!has_work("VSUNPACKV", n, {a, y, iy}, kNoIncrement)) return;
  for (std::size_t j = 0; j < length(n); ++j) copy(a + j, y + offset(iy[j]));
}

void unpack_mask(const int* n, const float* a, float* y, const int* my) {
  if (!has_work("VSUNPACKM", n, {a, y, my}, kNoIncrement)) return;
  if (y != a) {
    for_selected(length(n), my, [&](std::size_t j) { copy(a++, y + j); });
    return;
  }
  std::size_t left = count_selected(length(n), my);
  for (std::size_t j = length(n); left > 0 && j-- > 0;) {
    if (my[j] != 0) copy(a + --left, y + j);
  }
}

}  // namespace quorin::pack
