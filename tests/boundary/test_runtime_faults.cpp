// The k-th request for memory that the library makes of the C runtime fails, alone or with all after it, for k = 1, 2,
// ... until a call no longer notices, in every family, on one thread and on three. The requests are seen where the
// library imports them: on Windows so are those that the runtime's own code inside the library makes, when it prints,
// and its operator new. Elsewhere operator new is an import itself.
#include <atomic>
#include <new>

#include "tests/support/capture_output.hpp"
#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/imports.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

std::atomic<int> countdown{0}, failures{0};

// Whether this request is to fail.
bool fails() {
  const int left = countdown.load() > 0 ? countdown.fetch_sub(1) : 0;
  if (left == 1) {
    countdown = failures.fetch_sub(1) > 1 ? 1 : 0;
    return true;
  }
  return false;
}

void* failing_malloc(std::size_t bytes) { return fails() ? nullptr : std::malloc(bytes); }
void* failing_calloc(std::size_t count, std::size_t bytes) { return fails() ? nullptr : std::calloc(count, bytes); }
void* failing_realloc(void* block, std::size_t bytes) { return fails() ? nullptr : std::realloc(block, bytes); }

#if !defined(_WIN32)
void* throwing_new(std::size_t bytes) { return fails() ? throw std::bad_alloc() : ::operator new(bytes); }
#endif

// Reports with numbers of every size, and matrices that are printed in full.
Results print_reports(const quorin_library& library, int) {
  static std::string text;
  text.clear();
  library.set_printf_callback_32f([](const char* piece) QUORIN_CALLBACK { text += piece; });
  float Control[20] = {}, Info[90] = {};
  library.umfpack_di_defaults(Control);
  Control[0] = 5;
  for (int k = 0; k < 90; ++k) Info[k] = static_cast<float>(std::pow(-3.7, k % 70));
  library.umfpack_di_report_info(Control, Info);
  library.umfpack_di_report_control(Control);
  const float numbers[] = {3.3e38F, -1.234567e-38F, 1e-45F, 0, 77};
  const int status = library.umfpack_di_report_vector(5, numbers, Control);
  library.set_printf_callback_32f(nullptr);
  return status == 0 ? Results(text.begin(), text.end()) : Results{};
}

// Through XERBLA, to standard output, which the test catches.
Results report_a_wrong_argument(const quorin_library& library, int) {
  const std::int32_t n = -1, one = 1;
  const float x = 0;
  float y = 0;
  library.sger(&n, &one, &x, &x, &one, &x, &one, &y, &one);
  return {static_cast<double>(y)};
}

// Without memory a Toeplitz system is solved by another method, with its own rounding.
bool are_close(const Results& results, const Results& expected) {
  constexpr double kTolerance = 1e-4;
  return std::ranges::equal(results, expected, [](double a, double b) {
    return a == b || std::abs(a - b) <= kTolerance * (1 + std::abs(b));
  });
}

class RuntimeFaults : public testing::TestWithParam<int> {};

TEST_P(RuntimeFaults, GiveTheRightResultOrAStatus) {
  Product product;
  ASSERT_TRUE(product);
  ASSERT_GE(replace_import(product->module, "malloc", failing_malloc), 1);
  ASSERT_GE(replace_import(product->module, "calloc", failing_calloc), 1);
  ASSERT_GE(replace_import(product->module, "realloc", failing_realloc), 1);
#if !defined(_WIN32)
  for (const char* const name : {"_Znwm", "_Znam"}) replace_import(product->module, name, throwing_new);
#endif
  product->sMKL_Set_Dynamic(0);
  product->sMKL_Set_Num_Threads(GetParam());
  std::vector<FamilyCall> calls(family_calls().begin(), family_calls().end());
  calls.push_back({"reports", print_reports});
  calls.push_back({"xerbla", report_a_wrong_argument});
  int noticed = 0;
  for (const FamilyCall& call : calls) {
    SCOPED_TRACE(call.name);
    Results expected;
    captured([&] { expected = call.run(*product, 0); });
    ASSERT_FALSE(expected.empty());
    constexpr int kMost = 2000;
    for (const int in_a_row : {1, kMost}) {
      int k = 1;
      for (bool has_failed = true; has_failed && k < kMost; ++k) {
        product->sMKL_FreeBuffers();
        failures = in_a_row;
        countdown = k;
        Results results;
        const std::string text = captured([&] { results = call.run(*product, 0); });
        has_failed = failures < in_a_row;
        countdown = 0;
        noticed += has_failed;
        // Dense routines have no status: they say that they lack memory, and touch nothing.
        EXPECT_TRUE(!text.empty() || results.empty() || are_close(results, expected)) << "request " << k;
      }
      EXPECT_LT(k, kMost);
    }
  }
  EXPECT_GT(noticed, 20);
}

INSTANTIATE_TEST_SUITE_P(LibraryThreads, RuntimeFaults, testing::Values(1, 3));

}  // namespace
}  // namespace quorin::test
