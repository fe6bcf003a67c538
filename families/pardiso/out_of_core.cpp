#include "families/pardiso/out_of_core.hpp"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "families/pardiso/outcomes.hpp"
#include "platform/platform.hpp"

namespace quorin::pardiso {
namespace {

constexpr std::string_view kPath = "MKL_PARDISO_OOC_PATH", kCore = "MKL_PARDISO_OOC_MAX_CORE_SIZE",
                           kSwap = "MKL_PARDISO_OOC_MAX_SWAP_SIZE", kKeep = "MKL_PARDISO_OOC_KEEP_FILE";
constexpr std::size_t kPathSize = OutOfCoreSettings::kPathSize;

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n\"";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

void read_megabytes(std::string_view text, std::int64_t& megabytes) {
  constexpr std::int64_t kMost = std::int64_t{1} << 40;
  std::int64_t value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (fault == std::errc() && value >= 0) megabytes = std::min(value, kMost);
}

void set(std::string_view name, std::string_view value, OutOfCoreSettings& settings) {
  if (name == kPath && !value.empty() && value.size() < kPathSize) {
    *std::copy(value.begin(), value.end(), settings.path.begin()) = '\0';
  } else if (name == kCore) {
    read_megabytes(value, settings.core_megabytes);
  } else if (name == kSwap) {
    read_megabytes(value, settings.swap_megabytes);
  } else if (name == kKeep && !value.empty()) {
    settings.keeps_files = value == "0";
  }
}

void read_file(OutOfCoreSettings& settings) {
  std::array<char, kPathSize> folder{}, name{"pardiso_ooc.cfg"};
  std::array<char, 2 * kPathSize> full_name{};
  if (!platform::read_environment("MKL_PARDISO_OOC_CFG_PATH", folder.data(), folder.size())) folder[0] = '\0';
  std::array<char, kPathSize> other{};
  if (platform::read_environment("MKL_PARDISO_OOC_CFG_FILE_NAME", other.data(), other.size()) && other[0] != '\0') {
    name = other;
  }
  const bool has_folder = folder[0] != '\0';
  std::snprintf(full_name.data(), full_name.size(), "%s%s%s", folder.data(), has_folder ? "/" : "", name.data());
  platform::File file;
  file.open_for_reading(full_name.data());
  if (!file) return;
  std::array<char, 8192> text{};
  std::string_view rest(text.data(), file.read(text.data(), text.size()));
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size() - 1);
    read_setting(rest.substr(0, end + 1), settings);
    rest.remove_prefix(end + 1);
  }
}

}  // namespace

std::int64_t OutOfCoreSettings::budget() const {
  constexpr std::int64_t kMost32 = std::int64_t{1} << 30;
  return sizeof(void*) == 4 ? std::min(core_bytes(), kMost32) : core_bytes();
}

Error begin_files(sparse::PanelFiles& files, const OutOfCoreSettings& settings) {
  // Names that nobody has and that cannot be taken: its owner has just given one back, or nothing can be made there.
  constexpr int kMostRefused = 8;
  std::array<char, kPathSize + 16> name{};
  sparse::FactorOutcome outcome = sparse::FactorOutcome::kCannotOpen;
  for (int k = 0, refused = 0; outcome == sparse::FactorOutcome::kCannotOpen && refused < kMostRefused; ++k) {
    std::snprintf(name.data(), name.size(), "%s-%d", settings.path.data(), k);
    outcome = files.begin(name.data(), static_cast<std::uint64_t>(settings.budget()));
    if (!sparse::PanelFiles::exists(name.data())) ++refused;
  }
  return error_of(outcome);
}

void read_setting(std::string_view line, OutOfCoreSettings& settings) {
  const std::size_t equals = line.find('=');
  if (equals != std::string_view::npos) {
    set(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)), settings);
  }
}

OutOfCoreSettings read_out_of_core_settings() {
  OutOfCoreSettings settings;
  read_file(settings);
  for (const std::string_view name : {kPath, kCore, kSwap, kKeep}) {
    std::array<char, kPathSize> value{};
    if (platform::read_environment(name.data(), value.data(), value.size())) {
      set(name, trimmed(value.data()), settings);
    }
  }
  return settings;
}

}  // namespace quorin::pardiso
