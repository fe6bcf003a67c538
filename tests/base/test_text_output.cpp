// The print routine of all reports.
#include "base/text_output.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorin::base {
namespace {

std::vector<std::string> received;
void QUORIN_STDCALL receive(const char* text) { received.emplace_back(text); }

class TextOutput : public testing::Test {
 protected:
  void SetUp() override { received.clear(); }
  void TearDown() override { set_text_output(nullptr); }
};

TEST_F(TextOutput, DropsTextWithoutACallback) {
  EXPECT_EQ(print("%d", 12), 2);
  EXPECT_TRUE(received.empty());
}

TEST_F(TextOutput, HandsOverOnePieceForEachFormatCall) {
  set_text_output(receive);
  EXPECT_EQ(print("a%db", 7), 3);
  EXPECT_EQ(print("%s", ""), 0);
  EXPECT_EQ(received, (std::vector<std::string>{"a7b", ""}));
}

TEST_F(TextOutput, CutsAt1024CharactersAndSaysSo) {
  set_text_output(receive);
  for (const std::size_t length : {std::size_t{1023}, std::size_t{1024}, std::size_t{1025}, std::size_t{5000}}) {
    received.clear();
    const std::string text(length, 'x');
    EXPECT_EQ(print("%s", text.c_str()), length <= 1024 ? static_cast<int>(length) : -1);
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0], text.substr(0, 1024));
  }
}

}  // namespace
}  // namespace quorin::base
