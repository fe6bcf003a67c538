#include "umfpack_single/pattern.hpp"

#include <bit>

namespace quorin::umfpack_single {

bool has_valid_starts(int n, const int* Ap) noexcept {
  if (n <= 0 || Ap == nullptr || Ap[0] != 0) return false;
  for (int j = 0; j < n; ++j) {
    if (Ap[j + 1] < Ap[j]) return false;
  }
  return true;
}

bool are_in_range(int nz, const int* Ai, int bound) noexcept {
  // Negative indices are large unsigned ones; without a branch for each, this runs at the speed of memory.
  bool good = true;
  for (int k = 0; k < nz; ++k) good &= static_cast<unsigned>(Ai[k]) < static_cast<unsigned>(bound);
  return good;
}

std::uint32_t fingerprint(int n_col, const int* Ap, const int* Ai) noexcept {
  // Four independent sums, so that the multiplications overlap.
  std::uint32_t sums[4] = {0x243F6A88U, 0x85A308D3U, 0x13198A2EU, 0x03707344U};
  const auto mix = [&sums](std::uint32_t k, int value) {
    std::uint32_t& sum = sums[k & 3U];
    sum = std::rotl((sum ^ static_cast<std::uint32_t>(value)) * 0x9E3779B1U, 15);
  };
  for (int j = 0; j <= n_col; ++j) mix(static_cast<std::uint32_t>(j), Ap[j]);
  for (int k = 0; k < Ap[n_col]; ++k) mix(static_cast<std::uint32_t>(k), Ai[k]);
  return ((sums[0] * 31U + sums[1]) * 31U + sums[2]) * 31U + sums[3];
}

}  // namespace quorin::umfpack_single
