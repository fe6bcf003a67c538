// Hosts of all floating-point settings: exceptions unmasked as Delphi and Free Pascal have them, the x87 at 24, 53 and
// 64 bits, subnormals flushed, every rounding. Results are those of a plain host, bit for bit, nothing is raised, and
// the settings come back.

#include <csetjmp>
#include <thread>

#include "tests/support/exact_product.hpp"
#include "tests/support/failing_host.hpp"
#include "tests/support/family_calls.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/test.hpp"

// What the stubs below read and write.
extern "C" {
extern char host_stubs[] __asm__("host_stubs");
extern void* host_functions[800] __asm__("host_functions");
extern std::uint16_t host_x87 __asm__("host_x87"), plain_x87 __asm__("plain_x87"), found_x87 __asm__("found_x87");
extern std::uint16_t found_status __asm__("found_status"), trapping_flags __asm__("trapping_flags");
extern std::uint32_t host_sse __asm__("host_sse"), plain_sse __asm__("plain_sse"), found_sse __asm__("found_sse");
extern std::uint32_t bad_returns __asm__("bad_returns");
}

void* host_functions[800];
std::uint16_t host_x87, plain_x87, found_x87, found_status, trapping_flags;
std::uint32_t host_sse, plain_sse, found_sse, bad_returns;

// 800 stubs of 16 bytes. The k-th calls host_functions[k] with the arguments that it gets, under the host's settings,
// counts a return that left other settings or a flag that traps, and returns under the plain settings. A pending
// exception traps at fwait.
#if defined(__x86_64__)
#define AT(name) #name "(%rip)"
#define FETCH "leaq host_functions(%rip), %r10\n movq (%r10,%r11,8), %r11\n"
#define STUB "movl $stub, %r11d\n"
#define TARGET "%r11"
#define WORD "8"
#else
#define AT(name) #name
#define FETCH "movl host_functions(,%eax,4), %eax\n"
#define STUB "movl $stub, %eax\n"
#define TARGET "%eax"
#define WORD "4"
#endif
__asm__(".text\n .balign 16\n host_stubs:\n .set stub, 0\n .rept 800\n .balign 16\n" STUB
        "jmp host_call\n .set stub, stub + 1\n .endr\n host_call:\n"
        "pop " AT(host_return) "\n" FETCH "fnclex\n fldcw " AT(host_x87) "\n ldmxcsr " AT(host_sse) "\n"
        "call *" TARGET "\n"
        "fwait\n fnstcw " AT(found_x87) "\n stmxcsr " AT(found_sse) "\n fnstsw " AT(found_status) "\n"
        "movw " AT(found_x87) ", %cx\n xorw " AT(host_x87) ", %cx\n testw $0x0f3f, %cx\n jne 1f\n"
        "movl " AT(found_sse) ", %ecx\n xorl " AT(host_sse) ", %ecx\n testl $0xffc0, %ecx\n jne 1f\n"
        "movw " AT(found_status) ", %cx\n testw " AT(trapping_flags) ", %cx\n je 2f\n"
        "1: incl " AT(bad_returns) "\n"
        "2: fnclex\n ldmxcsr " AT(plain_sse) "\n fldcw " AT(plain_x87) "\n jmp *" AT(host_return) "\n"
        ".data\n .balign 16\n host_return: .skip " WORD "\n .text\n");

#if !defined(_WIN32)
extern "C" {
void __lsan_disable() __attribute__((weak));
void __lsan_enable() __attribute__((weak));
}
#endif

namespace quorin::test {
namespace {

struct Host {  // NOLINT(clang-analyzer-optin.performance.Padding): in the order of the table
  const char* name;
  std::uint16_t x87;
  std::uint32_t sse;
  bool rounds_otherwise = false;  // what the host itself computes with floats
};

constexpr Host kHosts[] = {
    {"x87 at 24 bits", 0x007F, 0x1F80},
    {"x87 at 53 bits", 0x027F, 0x1F80},
    {"x87 at 64 bits", 0x037F, 0x1F80},
    {"exceptions unmasked", 0x1332, 0x1900},
    {"underflow unmasked, too", 0x0322, 0x1100},
    {"only SSE unmasked", 0x037F, 0x1900},
    {"subnormals flushed", 0x027F, 0x9FC0},
    {"rounding down", 0x077F, 0x3F80, true},
    {"rounding up", 0x0B7F, 0x5F80, true},
    {"rounding to zero, x87 at 24 bits, unmasked, flushed", 0x0C32, 0xF940, true},
};

struct Settings {
  std::uint16_t x87;
  std::uint32_t sse;
  bool operator==(const Settings&) const = default;
};

Settings settings() {
  Settings now{};
  asm volatile("fnstcw %0" : "=m"(now.x87));
  asm volatile("stmxcsr %0" : "=m"(now.sse));
  now.x87 &= 0x0F3F;
  now.sse &= 0xFFC0;
  return now;
}

void set(const Host& host) {
  asm volatile("fnclex\n fldcw %0" ::"m"(host.x87) : "memory");
  asm volatile("ldmxcsr %0" ::"m"(host.sse) : "memory");
}

// The library behind the stubs.
class StubbedLibrary {
 public:
  explicit StubbedLibrary(const quorin_library& library) : stubbed_(library) {
    constexpr std::size_t kFirst = offsetof(quorin_library, CBESH) / sizeof(void*);
    constexpr std::size_t kSlots = sizeof(quorin_library) / sizeof(void*);
    static_assert(kSlots - kFirst <= std::size(host_functions));
    void* slots[kSlots];
    std::memcpy(slots, &library, sizeof slots);
    for (std::size_t i = kFirst; i < kSlots; ++i) {
      host_functions[i - kFirst] = slots[i];
      slots[i] = host_stubs + 16 * (i - kFirst);
    }
    std::memcpy(&stubbed_, slots, sizeof slots);
    asm volatile("fnstcw %0" : "=m"(plain_x87));
    asm volatile("stmxcsr %0" : "=m"(plain_sse));
  }

  Results run(const FamilyCall& call, const Host& host) const {
    host_x87 = host.x87;
    host_sse = host.sse;
    trapping_flags = static_cast<std::uint16_t>(~host.x87 & 0x3F);
    bad_returns = 0;
    Results results;
    run_family_call(call, stubbed_, 1, results);
    return results;
  }

 private:
  quorin_library stubbed_;
};

bool are_same_bits(const Results& a, const Results& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

// Calls that compute with NaN, infinity, overflow and division by zero on the way.
Results eigenvalues(const quorin_library& library, int) {
  const std::int32_t n = 5, lwork = 200, liwork = 100, one = 1;
  const float bound = 0;
  std::int32_t found = -1, info = -1;
  std::vector<float> a = whole_numbers(25, 3), w(5), z(25), work(200);
  std::vector<std::int32_t> isuppz(10), iwork(100);
  library.ssyevr("V", "A", "U", &n, a.data(), &n, &bound, &bound, &one, &one, &bound, &found, w.data(), z.data(), &n,
                 isuppz.data(), work.data(), &lwork, iwork.data(), &liwork, &info);
  Results all(w.begin(), w.end());
  all.insert(all.end(), z.begin(), z.end());
  return info == 0 ? all : Results{};
}

Results huge_numbers(const quorin_library& library, int) {
  const std::int32_t m = 40, n = 30, lwork = 2000;
  std::int32_t info = -1;
  std::vector<float> a = whole_numbers(1200, 5), tau(30), work(2000);
  for (float& value : a) value *= 1e30F;
  library.sgeqrf(&m, &n, a.data(), &m, tau.data(), work.data(), &lwork, &info);
  return info == 0 ? Results(a.begin(), a.end()) : Results{};
}

Results not_numbers(const quorin_library& library, int) {
  const std::int32_t n = 9, six = 6, one = 1;
  const float x[] = {1, kNan, -std::numeric_limits<float>::infinity(), 3e38F, 3e38F, 1e-45F, 0, -2, 3};
  const float y[] = {0, 1, 0, 3e38F, 1, 1e-45F, kNan, 2, 3};
  return {static_cast<double>(library.isamax(&n, x, &one)), library.sdot(&n, x, &one, y, &one),
          library.sasum(&six, x + 3, &one), library.snrm2(&one, x + 5, &one)};
}

Results singular_system(const quorin_library& library, int) {
  const std::int32_t starts[] = {0, 1, 2, 3}, rows[] = {0, 1, 2};
  const float a[] = {2, 0, 1e-30F}, b[] = {1, 1, 1e30F};
  float x[3] = {};
  void *symbolic = nullptr, *numeric = nullptr;
  Results all;
  all.push_back(library.umfpack_di_symbolic(3, 3, starts, rows, a, &symbolic, nullptr, nullptr));
  all.push_back(library.umfpack_di_numeric(starts, rows, a, symbolic, &numeric, nullptr, nullptr));
  all.push_back(library.umfpack_di_solve(0, starts, rows, a, x, b, numeric, nullptr, nullptr));
  library.umfpack_di_free_symbolic(&symbolic);
  library.umfpack_di_free_numeric(&numeric);
  all.insert(all.end(), x, x + 3);
  return all;
}

Results ends_of_the_range(const quorin_library& library, int) {
  const std::int32_t plain = 1, count = 3, first = 1;
  Results all;
  for (const double size : {1e-300, 1e-30, 300.0, 709.0, 1e4, 1e9, 1e12}) {
    for (const quorin_double_complex z : {quorin_double_complex{size, 0}, {0, size}, {-size, size / 2}}) {
      for (const double order : {0.0, 300.5}) {
        quorin_double_complex y[3] = {};
        std::int32_t underflows = -1, error = -1;
        const auto take = [&] {
          for (const auto& value : y) all.insert(all.end(), {value.re, value.im});
          all.insert(all.end(), {static_cast<double>(underflows), static_cast<double>(error)});
        };
        library.CBESI(&z, &order, &plain, &count, y, &underflows, &error), take();
        library.CBESK(&z, &order, &plain, &count, y, &underflows, &error), take();
        library.CBESH(&z, &order, &plain, &first, &count, y, &underflows, &error), take();
      }
    }
  }
  return all;
}

std::vector<FamilyCall> calls() {
  std::vector<FamilyCall> all(family_calls().begin(), family_calls().end());
  all.insert(all.end(), {{"ssyevr", eigenvalues},
                         {"sgeqrf of huge numbers", huge_numbers},
                         {"NaN", not_numbers},
                         {"singular system", singular_system},
                         {"ends of the range", ends_of_the_range}});
  return all;
}

class FloatingPoint : public testing::TestWithParam<int> {};

TEST_P(FloatingPoint, OfAnyHostGivesThePlainResultsAndComesBack) {
  const Product product;
  ASSERT_TRUE(product);
  product->sMKL_Set_Dynamic(0);
  product->sMKL_Set_Num_Threads(GetParam());
  for (const FamilyCall& call : calls()) {
    Results expected;
    run_family_call(call, *product, 1, expected);
    ASSERT_FALSE(expected.empty()) << call.name;
    const auto check_all = [&] {
      const StubbedLibrary library(*product);
      for (const Host& host : kHosts) {
        const bool computes_itself = std::strcmp(call.name, "least squares") == 0;
        const Results results = library.run(call, host);
        if (!host.rounds_otherwise || !computes_itself) {
          EXPECT_TRUE(are_same_bits(results, expected)) << call.name << ", " << host.name;
        }
        EXPECT_EQ(bad_returns, 0U) << call.name << ", " << host.name;
      }
    };
    check_all();
    std::thread(check_all).join();  // where the system has other settings than for the first thread
  }
}

INSTANTIATE_TEST_SUITE_P(LibraryThreads, FloatingPoint, testing::Values(1, 3));

// Host functions, and what they find.
Settings seen;
std::jmp_buf way_out;
bool leaves = false;
const Host* changes_to = nullptr;

void look_around() {
  seen = settings();
  if (changes_to != nullptr) set(*changes_to);
  if (leaves) std::longjmp(way_out, 1);  // NOLINT(cert-err52-cpp): that is what is tested
}
std::int32_t QUORIN_CDECL select_negative(const float* re, const float*) {
  const std::int32_t answer = *re < 0 ? 1 : 0;
  look_around();
  return answer;
}
void QUORIN_CDECL square(std::int32_t*, std::int32_t*, float* x, float* f) {
  f[0] = x[0] * x[0];
  look_around();
}
void QUORIN_CALLBACK take_text(const char*) { look_around(); }

struct Callback {
  const char* name;
  void (*run)(const quorin_library& library);
};

constexpr Callback kCallbacks[] = {
    {"selection",
     [](const quorin_library& library) {
       const std::int32_t n = 12, lwork = 500;
       std::int32_t found = -1, info = -1, flags[12];
       float a[144], wr[12], wi[12], vs[144], work[500];
       for (int i = 0; i < 144; ++i) a[i] = static_cast<float>((i * 7) % 11) - 5;
       library.sgees("V", "S", select_negative, &n, a, &n, &found, wr, wi, vs, &n, work, &lwork, flags, &info);
     }},
    {"function",
     [](const quorin_library& library) {
       const std::int32_t one = 1;
       const float step = 1e-3F;
       float x = 2, jacobian = 0;
       library.sjacobi(square, &one, &one, &jacobian, &x, &step);
     }},
    {"text",
     [](const quorin_library& library) {
       library.set_printf_callback_32f(take_text);
       library.umfpack_di_report_status(nullptr, -1);
     }},
};

Settings settings_of(const Host& host) {
  return {.x87 = static_cast<std::uint16_t>(host.x87 & 0x0F3F), .sse = host.sse & 0xFFC0};
}

// And what they set is what the host has from then on.
TEST(HostFunctions, FindTheSettingsOfTheHost) {
  const Product product;
  ASSERT_TRUE(product);
  const Host plain{"", settings().x87, settings().sse};
  for (const Callback& callback : kCallbacks) {
    for (const Host& host : kHosts) {
      const Host& before = &host == &kHosts[0] ? kHosts[1] : kHosts[0];
      for (const bool changes : {false, true}) {
        seen = {};
        changes_to = changes ? &host : nullptr;
        set(changes ? before : host);
        callback.run(*product);
        const Settings after = settings();
        set(plain);
        changes_to = nullptr;
        if (!changes) {
          EXPECT_EQ(seen, settings_of(host)) << callback.name << ", " << host.name;
        }
        EXPECT_EQ(after, settings_of(host)) << callback.name << ", " << host.name << (changes ? ", from inside" : "");
      }
    }
  }
  product->set_printf_callback_32f(nullptr);
}

// sjacobi's work array is lost with the frame that held it; the sanitizer need not tell.
void expect_leak([[maybe_unused]] bool begins) {
#if !defined(_WIN32)
  if (auto* const tell = begins ? &__lsan_disable : &__lsan_enable) tell();
#endif
}

// The frame that longjmp comes back to. Depths differ, so that frames of later calls lie over those left and beside
// them.
void leave_by_longjmp(const Callback& callback, const quorin_library& library, int depth) {
  if (depth > 0) {
    volatile char frame[512];
    frame[0] = static_cast<char>(depth);
    leave_by_longjmp(callback, library, depth - 1);
    frame[1] = frame[0];
    return;
  }
  expect_leak(true);
  if (setjmp(way_out) == 0) callback.run(library);  // NOLINT(cert-err52-cpp)
  expect_leak(false);
}

TEST(HostFunctions, MayLeaveByLongjmp) {
  const FailingHost host;
  ExactProduct product(50);
  const Host plain{"", settings().x87, settings().sse};
  host->sMKL_FreeBuffers();
  for (const Callback& callback : kCallbacks) {
    const int before = host.live_blocks();
    for (int cycle = 0; cycle < 20; ++cycle) {
      const Host& other = kHosts[static_cast<std::size_t>(cycle) % std::size(kHosts)];
      leaves = true;
      set(other);
      leave_by_longjmp(callback, host.product(), cycle % 5);
      const Settings after = settings();
      set(plain);
      leaves = false;
      EXPECT_EQ(after, settings_of(other)) << callback.name << ", " << other.name;
      EXPECT_TRUE(product.is_solved_by(host->sgemm)) << callback.name;
      callback.run(host.product());
      EXPECT_EQ(seen, settings_of(plain)) << callback.name;
    }
    host->sMKL_FreeBuffers();
    if (std::strcmp(callback.name, "function") != 0) {
      EXPECT_EQ(host.live_blocks(), before) << callback.name;
    }
  }
  host->set_printf_callback_32f(nullptr);
}

}  // namespace
}  // namespace quorin::test
