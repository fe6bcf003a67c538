// The library's services as a host sees them. Counts are shared by the whole process, so every test puts them back.
#include "quorin/services.h"
#include "quorin/umfpack.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/system.hpp"
#include "tests/support/test.hpp"

namespace {

using quorin::test::captured;

constexpr int kDomains = 5;

class Threads : public testing::Test {
 protected:
  void TearDown() override {
    for (int domain = 0; domain < kDomains; ++domain) sMKL_Domain_Set_Num_Threads(0, domain);
  }
};

// Counts that calls take, and those that they refuse.
TEST_F(Threads, CountForAll) {
  const int seeded = sMKL_Get_Max_Threads();
  EXPECT_GE(seeded, 1);
  int expected = seeded;
  for (const int count : {0, -3, INT_MIN, 1, 0, seeded + 6, -1, 0, 2, INT_MAX}) {
    sMKL_Set_Num_Threads(count);
    if (count > 0) expected = count;
    for (int domain = 0; domain < kDomains; ++domain) EXPECT_EQ(sMKL_Domain_Get_Max_Threads(domain), expected);
    EXPECT_EQ(sMKL_Get_Max_Threads(), expected);
  }
  for (const int count : {1, seeded + 2, 0}) {
    EXPECT_EQ(sMKL_Domain_Set_Num_Threads(count, 0), 1);
    EXPECT_EQ(sMKL_Get_Max_Threads(), count == 0 ? seeded : count);
  }
}

TEST_F(Threads, DomainsHaveCountsOfTheirOwn) {
  sMKL_Set_Num_Threads(3);
  for (int domain = 1; domain < kDomains; ++domain) EXPECT_EQ(sMKL_Domain_Set_Num_Threads(domain, domain), 1);
  sMKL_Set_Num_Threads(40);
  for (const int refused : {-1, INT_MIN}) {
    for (int domain = 0; domain < kDomains; ++domain) EXPECT_EQ(sMKL_Domain_Set_Num_Threads(refused, domain), 0);
  }
  for (const int unknown : {kDomains, -1, INT_MAX, INT_MIN}) {
    EXPECT_EQ(sMKL_Domain_Set_Num_Threads(2, unknown), 0);
    EXPECT_EQ(sMKL_Domain_Get_Max_Threads(unknown), 40);
  }
  for (int domain = 1; domain < kDomains; ++domain) {
    EXPECT_EQ(sMKL_Domain_Get_Max_Threads(domain), domain);
    EXPECT_EQ(sMKL_Get_Max_Threads(), 40);
    EXPECT_EQ(sMKL_Domain_Set_Num_Threads(0, domain), 1);
    EXPECT_EQ(sMKL_Domain_Get_Max_Threads(domain), 40);
  }
}

int texts_received = 0;
void QUORIN_CALLBACK count_text(const char*) { ++texts_received; }

TEST(Text, TaucsPrintfIsSilent) {
  for (const quorin_text_output_callback callback : {quorin_text_output_callback{nullptr}, &count_text}) {
    set_printf_callback_32f(callback);
    EXPECT_EQ(captured([] { EXPECT_EQ(taucs_printf("x %d %s %f\n", 1, "y", 2.0), 0); }), "");
  }
  set_printf_callback_32f(nullptr);
  EXPECT_EQ(texts_received, 0);
}

std::string xerbla_text(const char* name, std::int32_t info, std::int32_t length) {
  return captured([&] { XERBLA(name, &info, length); });
}

// Run-time systems make callbacks in memory of their own, and unloaded plug-ins leave theirs behind.
TEST(Text, ReachesMadeFunctionsAndNoneThatHaveGone) {
  unsigned char called = 0;
  constexpr std::size_t kPage = 4096;
  unsigned char code[32] = {};
  const unsigned char* const address = &called;
#if defined(_WIN32)
  void* const page = VirtualAlloc(nullptr, kPage, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE);
  code[0] = 0xC6, code[1] = 0x05;  // movb $1, called; ret $4
  std::memcpy(code + 2, &address, 4);
  code[6] = 1, code[7] = 0xC2, code[8] = 4;
#else
  void* const page = mmap(nullptr, kPage, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  code[0] = 0x48, code[1] = 0xB8;  // movq $called, %rax; movb $1, (%rax); ret
  std::memcpy(code + 2, &address, 8);
  code[10] = 0xC6, code[11] = 0, code[12] = 1, code[13] = 0xC3;
#endif
  std::memcpy(page, code, sizeof code);
  set_printf_callback_32f(reinterpret_cast<quorin_text_output_callback>(page));
  umfpack_di_report_status(nullptr, -1);
  EXPECT_EQ(called, 1);
#if defined(_WIN32)
  VirtualFree(page, 0, MEM_RELEASE);
#else
  munmap(page, kPage);
#endif
  umfpack_di_report_status(nullptr, -1);
  set_printf_callback_32f(nullptr);
}

TEST(Xerbla, ChoosesTheMessageByTheCode) {
  for (const auto& [info, message] : {std::pair(1000, " INTERNAL ERROR: Insufficient workspace available in function "),
                                      {1001, " ERROR: Incompatible optional parameters on entry to "},
                                      {999, " ERROR: Parameter 999 was incorrect on entry to "},
                                      {1002, " ERROR: Parameter 1002 was incorrect on entry to "},
                                      {0, " INTERNAL ERROR: Condition 0 detected in function "},
                                      {INT_MIN, " INTERNAL ERROR: Condition 2147483648 detected in function "}}) {
    EXPECT_EQ(xerbla_text("SGEMM", info, 5), "\nIntel MKL" + std::string(message) + "SGEMM.\n");
  }
}

// Fortran pads names with blanks, and gives the length with them.
TEST(Xerbla, TakesTheNameByItsLengthDropsBlanksAndCutsItAtTwenty) {
  const auto message = [](const std::string& name) {
    return "\nIntel MKL ERROR: Parameter 3 was incorrect on entry to " + name + ".\n";
  };
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (std::size_t length = 0; length <= 22; ++length) {
    for (const std::size_t blanks : {0, 1, 2, 7, 25}) {
      const std::string padded = letters.substr(0, length) + std::string(blanks, ' ');
      EXPECT_EQ(xerbla_text((padded + "XYZ").c_str(), 3, static_cast<std::int32_t>(padded.size())),
                message(letters.substr(0, std::min<std::size_t>(length, 20))));
    }
  }
  EXPECT_EQ(xerbla_text("100%s%n", 3, 7), message("100%s%n"));
}

TEST(Xerbla, IgnoresNullAndNegativeLength) {
  const std::int32_t info = 3;
  EXPECT_EQ(captured([&] {
              XERBLA(nullptr, &info, 5);
              XERBLA("SGEMM", nullptr, 5);
              XERBLA("SGEMM", &info, -1);
              XERBLA("SGEMM", &info, INT_MIN);
            }),
            "");
}

}  // namespace
