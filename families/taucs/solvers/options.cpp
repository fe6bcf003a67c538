#include "families/taucs/solvers/options.hpp"

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <variant>

#include "families/taucs/files/number_parser.hpp"
#include "families/taucs/messages.hpp"

namespace quorin::taucs {
namespace {

using Field = std::variant<bool Options::*, double Options::*, const char * Options::*, void * Options::*>;

struct Key {
  std::string_view name;
  Field field;
};
constexpr Key kKeys[] = {
    {"taucs.cilk.context", &Options::cilk_context},
    {"taucs.cilk.nproc", &Options::cilk_nproc},
    {"taucs.approximate.sg", &Options::approximate_sg},
    {"taucs.approximate.amwb", &Options::amwb},
    {"taucs.approximate.amwb.randomseed", &Options::amwb_randomseed},
    {"taucs.approximate.amwb.subgraphs", &Options::amwb_subgraphs},
    {"taucs.factor", &Options::factor},
    {"taucs.factor.symbolic", &Options::symbolic},
    {"taucs.factor.numeric", &Options::numeric},
    {"taucs.factor.LLT", &Options::llt},
    {"taucs.factor.LU", &Options::lu},
    {"taucs.factor.indefinite", &Options::indefinite},
    {"taucs.factor.mf", &Options::mf},
    {"taucs.factor.ll", &Options::ll},
    {"taucs.factor.ordering", &Options::ordering},
    {"taucs.maxdepth", &Options::maxdepth},
    {"taucs.ooc", &Options::ooc},
    {"taucs.ooc.basename", &Options::ooc_basename},
    {"taucs.ooc.iohandle", &Options::ooc_iohandle},
    {"taucs.ooc.memory", &Options::ooc_memory},
    {"taucs.solve.cg", &Options::cg},
    {"taucs.solve.minres", &Options::minres},
    {"taucs.solve.maxits", &Options::maxits},
    {"taucs.solve.convergetol", &Options::convergetol},
};

// Numbers as scanf reads them, blanks before them passed over.
template <class Number>
bool read(const char* text, Number& number) {
  while (*text == ' ' || (*text >= '\t' && *text <= '\r')) ++text;
  return parse_number(text, text + std::strlen(text), number) != nullptr;
}

bool set(bool& value, const char* text) {
  value = std::strcmp(text, "true") == 0;
  return value || std::strcmp(text, "false") == 0;
}
bool set(double& value, const char* text) { return read(text, value); }
bool set(const char*& value, const char* text) {
  value = text;
  return true;
}
bool set(void*& /*value*/, const char* /*text*/) { return false; }

// Targets may be aligned to 4 bytes only.
template <class Value>
Value at(const void* target) {
  Value value;
  std::memcpy(&value, target, sizeof value);
  return value;
}
void set_to_target(bool& value, void* target) { value = at<std::int32_t>(target) != 0; }
void set_to_target(double& value, void* target) { value = at<double>(target); }
void set_to_target(const char*& value, void* target) { value = static_cast<const char*>(target); }
// The pointer that stands there; or a handle in the place of its address, which would not be odd.
void set_to_target(void*& value, void* target) {
  value = reinterpret_cast<std::uintptr_t>(target) % 2 != 0 ? target : at<void*>(target);
}

// What k, the text, counts to in `arguments`; null if there is no such thing.
void* target_of(const char* k, void* const* arguments, const char* string) {
  int index = 0;
  if (!read(k, index)) return nullptr;
  int last = 0;
  while (arguments != nullptr && last != index && arguments[last] != nullptr) ++last;
  if (arguments != nullptr && last == index && arguments[last] != nullptr) return arguments[last];
  message("taucs: WARNING, pointer argument out of range in [%s]\n", string);
  return nullptr;
}

// Whether the string sets the value. `text` is what follows the key's name.
template <class Value>
bool set_option(Value& value, const char* text, void* const* arguments, const char* string) {
  if (text[0] == '=' && text[1] == '#') {
    void* const target = target_of(text + 2, arguments, string);
    if (target != nullptr) {
      set_to_target(value, target);
      return true;
    }
    message("taucs: WARNING, illegal pointer argument in [%s]\n", string);
    return false;
  }
  Value read_value = value;
  if (text[0] == '=' && set(read_value, text + 1)) {
    value = read_value;
    return true;
  }
  message("taucs: WARNING, illegal argument in [%s]\n", string);
  return false;
}

bool is_set_by(const Key& key, Options& options, const char* string, void* const* arguments) {
  if (std::strncmp(string, key.name.data(), key.name.size()) != 0) return false;
  const char* const text = string + key.name.size();
  if (*text == '.') return false;  // a longer key
  return std::visit([&](auto field) { return set_option(options.*field, text, arguments, string); }, key.field);
}

}  // namespace

Options parse_options(const char* const* strings, void* const* arguments) {
  Options options;
  for (; strings != nullptr && *strings != nullptr; ++strings) {
    bool is_accepted = false;
    for (const Key& key : kKeys) is_accepted |= is_set_by(key, options, *strings, arguments);
    if (!is_accepted) message("taucs_linsolve: illegal option [[%s]]\n", *strings);
  }
  return options;
}

int truncated(double value) noexcept {
  constexpr double kLeast = std::numeric_limits<int>::min(), kMost = std::numeric_limits<int>::max();
  if (!(value > kLeast)) return value <= kLeast ? std::numeric_limits<int>::min() : 0;
  return value < kMost ? static_cast<int>(value) : std::numeric_limits<int>::max();
}

}  // namespace quorin::taucs
