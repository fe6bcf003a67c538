#include "base/thread_environment.hpp"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdint>

#include "platform/platform.hpp"

namespace quorin::base {
namespace {

char to_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool equals(std::string_view text, std::string_view upper) {
  return std::ranges::equal(text, upper, [](char a, char b) { return to_upper(a) == b; });
}

constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Cuts the next word off the front of `text`: characters up to a blank or a separator.
std::string_view next_word(std::string_view& text) {
  constexpr std::string_view kSeparators = " \t,;:=";
  const auto first = text.find_first_not_of(kSeparators);
  text.remove_prefix(std::min(first, text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(kSeparators));
  text.remove_prefix(word.size());
  return word;
}

std::optional<int> domain_of_tag(std::string_view tag) {
  struct Tag {
    std::string_view name, older;
  };
  static constexpr std::array<Tag, kDomainCount> kTags{{{"MKL_DOMAIN_ALL", "MKL_ALL"},
                                                        {"MKL_DOMAIN_BLAS", "MKL_BLAS"},
                                                        {"MKL_DOMAIN_FFT", "MKL_FFT"},
                                                        {"MKL_DOMAIN_VML", "MKL_VML"},
                                                        {"MKL_DOMAIN_PARDISO", "MKL_PARDISO"}}};
  for (std::size_t i = 0; i < kTags.size(); ++i) {
    if (equals(tag, kTags[i].name) || equals(tag, kTags[i].older)) return static_cast<int>(i);
  }
  return std::nullopt;
}

template <class Value, class Parse>
void read_variable(const char* name, Parse parse, Value& value) {
  char text[512];
  if (!platform::read_environment(name, text, sizeof text)) return;
  if (const auto parsed = parse(std::string_view(text))) value = *parsed;
}

}  // namespace

std::optional<int> parse_count(std::string_view text) {
  text = trimmed(text);
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    text.remove_prefix(2);
    base = 16;
  } else if (text.size() > 1 && text.starts_with('0')) {
    base = 8;
  }
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (error != std::errc() || end != text.data() + text.size() || value <= 0) return std::nullopt;
  return value;
}

std::optional<bool> parse_flag(std::string_view text) {
  text = trimmed(text);
  for (const std::string_view word : {"TRUE", ".TRUE.", "T", "1"}) {
    if (equals(text, word)) return true;
  }
  for (const std::string_view word : {"FALSE", ".FALSE.", "F", "0"}) {
    if (equals(text, word)) return false;
  }
  return std::nullopt;
}

std::optional<int> parse_block_time(std::string_view text) {
  text = trimmed(text);
  if (equals(text, "INFINITE")) return platform::kForever;
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || value < 0 || value > INT_MAX) return std::nullopt;
  struct Unit {
    std::string_view suffix;
    std::int64_t milliseconds;
  };
  static constexpr Unit kUnits[] = {{"", 1},       {"MS", 1},        {"S", 1000},
                                    {"M", 60'000}, {"H", 3'600'000}, {"D", 86'400'000}};
  const std::string_view suffix = trimmed(text.substr(static_cast<std::size_t>(end - text.data())));
  for (const Unit& unit : kUnits) {
    if (equals(suffix, unit.suffix)) {
      return static_cast<int>(std::min<std::int64_t>(value * unit.milliseconds, platform::kForever));
    }
  }
  return std::nullopt;
}

std::array<int, kDomainCount> parse_domain_counts(std::string_view text) {
  std::array<int, kDomainCount> counts{};
  std::string_view word = next_word(text);
  while (!word.empty()) {
    const auto domain = domain_of_tag(word);
    word = next_word(text);
    if (!domain) continue;
    if (const auto count = parse_count(word)) {
      counts[static_cast<std::size_t>(*domain)] = *count;
      word = next_word(text);
    }
  }
  return counts;
}

ThreadEnvironment read_thread_environment() {
  ThreadEnvironment environment;
  // The first of the two that is set decides.
  read_variable("OMP_NUM_THREADS", parse_count, environment.count);
  read_variable("MKL_NUM_THREADS", parse_count, environment.count);
  read_variable("MKL_DYNAMIC", parse_flag, environment.dynamic);
  read_variable("KMP_BLOCKTIME", parse_block_time, environment.block_time);
  const auto parse_domains = [](std::string_view text) { return std::optional(parse_domain_counts(text)); };
  read_variable("MKL_DOMAIN_NUM_THREADS", parse_domains, environment.domain_count);
  return environment;
}

}  // namespace quorin::base
