#include "families/umfpack_single/pattern.hpp"

#include <algorithm>

#include "sparse/sparse.hpp"

namespace quorin::umfpack_single {

Starts::Starts(int n_row, int n_col, const int* Ap, const int* Ai) : Ap_(Ap) {
  if (n_row <= 0 || n_col <= 0 || Ap == nullptr || Ai == nullptr) return;
  are_sound_ = static_cast<bool>(sparse::check_starts(n_col, Ap));
  if (are_sound_) return;
  refused_ = base::Workspace<int>(static_cast<std::size_t>(n_col) + 1);
  std::fill(refused_.begin(), refused_.end(), -1);
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
