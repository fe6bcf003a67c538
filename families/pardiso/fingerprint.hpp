// A number that tells arrays apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quorin::pardiso {

// FNV-1a by words of 32 bits, behind an array whose number is `before`: http://www.isthe.com/chongo/tech/comp/fnv.
inline std::uint64_t fingerprint(const void* data, std::size_t words, std::uint64_t before = 0xcbf29ce484222325) {
  constexpr std::uint64_t kPrime = 0x100000001b3;
  std::uint64_t hash = before;
  for (std::size_t k = 0; k < words; ++k) {
    std::uint32_t word = 0;
    std::memcpy(&word, static_cast<const unsigned char*>(data) + k * sizeof word, sizeof word);
    hash = (hash ^ word) * kPrime;
  }
  return hash;
}

}  // namespace quorin::pardiso
