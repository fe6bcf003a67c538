// What the library asks of the system, and what it makes of the answers.
#include <mutex>

#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/imports.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

std::mutex names_mutex;
std::set<std::string> names_asked;

void take_name(const char* name) {
  const std::lock_guard lock(names_mutex);
  names_asked.insert(name);
}

#if defined(_WIN32)
DWORD WINAPI recording_variable(const char* name, char* buffer, DWORD size) {
  take_name(name);
  return GetEnvironmentVariableA(name, buffer, size);
}
#endif
char* recording_getenv(const char* name) {
  take_name(name);
  return std::getenv(name);
}

// Variables of dependencies and of their run-time libraries change neither results nor what is printed: nobody looks.
TEST(Environment, IsAskedForTheDocumentedVariablesOnly) {
  with_fresh_product([] {
    const Product product;
    ASSERT_TRUE(product);
#if defined(_WIN32)
    ASSERT_GE(replace_import(product->module, "GetEnvironmentVariableA", recording_variable), 1);
    for (const char* const other : {"GetEnvironmentVariableW", "GetEnvironmentStringsA", "GetEnvironmentStringsW",
                                    "_wgetenv", "_environ", "_wenviron", "__p__environ"}) {
      EXPECT_EQ(replace_import(product->module, other, recording_variable), 0) << other;
    }
    replace_import(product->module, "getenv", recording_getenv);
#else
    ASSERT_GE(replace_import(product->module, "getenv", recording_getenv), 1);
    for (const char* const other : {"secure_getenv", "environ", "__environ"}) {
      EXPECT_EQ(replace_import(product->module, other, recording_getenv), 0) << other;
    }
#endif
    for (const FamilyCall& call : family_calls()) EXPECT_FALSE(call.run(*product, 0).empty()) << call.name;
    for (const char* const known :
         {"MKL_NUM_THREADS", "OMP_NUM_THREADS", "MKL_DOMAIN_NUM_THREADS", "MKL_DYNAMIC", "KMP_BLOCKTIME"}) {
      EXPECT_EQ(names_asked.erase(known), 1U) << known;
    }
    for (const char* const known : {"QUORIN_CPU", "QUORIN_TAUCS_LOG"}) names_asked.erase(known);
    for (const std::string& name : names_asked) ADD_FAILURE() << name;
  });
}

#if defined(_WIN32)
// 64 cores, three caches each, and what else such a machine has: more rows than any fixed number of them.
BOOL WINAPI large_machine(SYSTEM_LOGICAL_PROCESSOR_INFORMATION* rows, DWORD* bytes) {
  constexpr int kCores = 64;
  std::vector<SYSTEM_LOGICAL_PROCESSOR_INFORMATION> all;
  for (int core = 0; core < kCores; ++core) {
    for (const auto kind : {RelationProcessorCore, RelationCache, RelationCache, RelationCache, RelationNumaNode}) {
      SYSTEM_LOGICAL_PROCESSOR_INFORMATION row{};
      row.ProcessorMask = 1;  // a processor that the process may run on
      row.Relationship = kind;
      all.push_back(row);
    }
  }
  const auto wanted = static_cast<DWORD>(all.size() * sizeof all[0]);
  const bool fits = rows != nullptr && *bytes >= wanted;
  *bytes = wanted;
  if (fits) {
    std::copy(all.begin(), all.end(), rows);
  } else {
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
  }
  return fits;
}

TEST(Processors, AreCountedOnLargeMachines) {
  for (const char* const name : {"MKL_NUM_THREADS", "OMP_NUM_THREADS", "MKL_DOMAIN_NUM_THREADS"}) {
    SetEnvironmentVariableA(name, nullptr);
  }
  const Product product;
  ASSERT_TRUE(product);
  ASSERT_EQ(replace_import(product->module, "GetLogicalProcessorInformation", large_machine), 1);
  EXPECT_EQ(product->sMKL_Get_Max_Threads(), 64);
}
#endif

}  // namespace
}  // namespace quorin::test
