// Variables of the environment, for this process and those that it starts; and a second process that finds one.
#pragma once

#include "tests/support/test.hpp"

namespace quorin::test {

// A null takes the variable away.
inline void set_environment(const char* name, const char* value) {
#if defined(_WIN32)
  _putenv_s(name, value == nullptr ? "" : value);
#else
  value == nullptr ? unsetenv(name) : setenv(name, value, 1);
#endif
}

// Runs the current test again in another process, where the variable has this value. Whether it passed.
inline bool passes_in_another_process(const char* variable, const std::string& value) {
  const auto& test = *testing::UnitTest::GetInstance()->current_test_info();
  const std::string command = testing::internal::GetArgvs()[0] +
                              " --gtest_brief=1 --gtest_filter=" + test.test_suite_name() + "." + test.name();
  set_environment(variable, value.c_str());
  const int status = std::system(command.c_str());
  set_environment(variable, nullptr);
  return status == 0;
}

}  // namespace quorin::test
