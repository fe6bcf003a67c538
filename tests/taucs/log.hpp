// What the family says in the log that the environment asks for.
#pragma once

#include "tests/support/environment.hpp"
#include "tests/support/standard.hpp"
#include "tests/support/temporary_file.hpp"

namespace taucs_test {

inline void set_log(const char* name) { quorin::test::set_environment("QUORIN_TAUCS_LOG", name); }

// What the action has the library say.
template <class Action>
std::string logged(const Action& action) {
  const quorin::test::TemporaryFile log;
  set_log(log.name());
  action();
  set_log("");
  std::string text = log.read();
  std::erase(text, '\r');
  return text;
}

}  // namespace taucs_test
