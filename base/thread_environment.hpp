// Reads the environment variables that seed the thread settings.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/thread_settings.hpp"

namespace quorin::base {

// A count of 0 is unset.
struct ThreadEnvironment {
  std::array<int, kDomainCount> domain_count{};
  int count = 0;
  bool dynamic = true;
  int block_time = 200;
};

[[nodiscard]] ThreadEnvironment read_thread_environment();

// The grammars, apart from where the text comes from.
[[nodiscard]] std::optional<int> parse_count(std::string_view text);  // positive; decimal, 0octal or 0xhexadecimal
[[nodiscard]] std::optional<bool> parse_flag(std::string_view text);  // TRUE, FALSE, T, F, .TRUE., 1, 0, in any case
[[nodiscard]] std::optional<int> parse_block_time(std::string_view text);  // 200, 200ms, 3s, 1m, 1h, 1d, infinite
// "MKL_DOMAIN_ALL=2, MKL_DOMAIN_BLAS 1 : MKL_FFT,4"; malformed pairs are skipped.
[[nodiscard]] std::array<int, kDomainCount> parse_domain_counts(std::string_view text);

}  // namespace quorin::base
