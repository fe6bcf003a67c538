#include "families/umfpack_single/pattern.hpp"

namespace quorin::umfpack_single {

bool has_valid_starts(int n, const int* Ap) noexcept {
  if (n <= 0 || Ap == nullptr || Ap[0] != 0) return false;
  for (int j = 0; j < n; ++j) {
    if (Ap[j + 1] < Ap[j]) return false;
  }
  return true;
}

bool are_in_range(int nz, const int* Ai, int bound) noexcept {
  // The sign bit of i | (bound - 1 - i) is set where i is out of range: no comparison, and several entries at a time.
  const auto last = static_cast<std::uint32_t>(bound) - 1;
  std::uint32_t signs = 0;
  for (int k = 0; k < nz; ++k) {
    const auto i = static_cast<std::uint32_t>(Ai[k]);
    signs |= i | (last - i);
  }
  return signs >> 31U == 0;
}

namespace {

// The sum of (v[k] + c[k]) * (v[k + 1] + c[k + 1]) over pairs of values, with constants c that step through all 32-bit
// numbers: the hash NH of J. Black et al., UMAC: Fast and secure message authentication, CRYPTO '99, LNCS 1666,
// 216-233.
std::uint64_t hash(const int* v, int n, std::uint32_t c) noexcept {
  constexpr std::uint32_t kFirstStep = 0x9E3779B1U, kSecondStep = 0x85EBCA6BU;
  std::uint32_t d = ~c;
  std::uint64_t sum = 0;
  int k = 0;
  for (; k + 1 < n; k += 2) {
    sum += std::uint64_t{static_cast<std::uint32_t>(v[k]) + c} * (static_cast<std::uint32_t>(v[k + 1]) + d);
    c += kFirstStep;
    d += kSecondStep;
  }
  if (k < n) sum += std::uint64_t{static_cast<std::uint32_t>(v[k]) + c} * d;
  return sum;
}

}  // namespace

std::uint64_t fingerprint(int n_col, const int* Ap, const int* Ai) noexcept {
  return hash(Ap, n_col + 1, 0x243F6A88U) + 0x9E3779B97F4A7C15U * hash(Ai, Ap[n_col], 0x85A308D3U);
}

}  // namespace quorin::umfpack_single
