// quorin/loader.h: what a host learns when there is no library, or one that lacks exports.
#include "tests/support/host_module.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

bool is_clear(const quorin_library& library) {
  const quorin_library clear{};
  return std::memcmp(&library, &clear, sizeof clear) == 0;
}

quorin_library filled_with_rubbish() {
  quorin_library library;
  std::memset(&library, 0x5A, sizeof library);
  return library;
}

TEST(Loader, FindsEveryExportAndClearsTheStructInTheEnd) {
  quorin_library library = filled_with_rubbish();
  ASSERT_EQ(quorin_load((program_directory() / QUORIN_PRODUCT_FILE).string().c_str(), &library), 0);
  EXPECT_EQ(library.missing, nullptr);
  const int n = 2, one = 1;
  const float x[] = {0, 3, 4};
  EXPECT_EQ(library.snrm2(&n, x + 1, &one), 5);
  EXPECT_EQ(library.snrm2_Idx(&n, x, 1, &one), 5);
  quorin_unload(&library);
  EXPECT_TRUE(is_clear(library));
  quorin_unload(&library);
}

TEST(Loader, ClearsTheStructWhenThereIsNoLibrary) {
  quorin_library library = filled_with_rubbish();
  EXPECT_EQ(quorin_load("there-is-no-such-library", &library), -1);
  EXPECT_TRUE(is_clear(library));
}

// A library of our own choice: each name finds its place in a list, and two are withheld.
struct Finder {
  std::vector<std::string> names;
  static quorin_function find(void* context, const char* name) {
    auto& names = static_cast<Finder*>(context)->names;
    names.emplace_back(name);
    if (names.back() == "sgemm" || names.back() == "sDCG_Idx") return nullptr;
    return reinterpret_cast<quorin_function>(names.size());
  }
};

TEST(Loader, NamesTheFirstOfTheExportsThatAreMissing) {
  quorin_library library = filled_with_rubbish();
  Finder finder;
  EXPECT_EQ(quorin_bind(Finder::find, &finder, &library), 2);
  EXPECT_EQ(library.module, nullptr);
  EXPECT_EQ(finder.names.size(), QUORIN_EXPORT_COUNT);
  EXPECT_STREQ(library.missing, "sgemm");
  EXPECT_EQ(library.sgemm, nullptr);
  EXPECT_EQ(library.sDCG_Idx, nullptr);
  const auto place_of = [&](auto function) { return reinterpret_cast<std::uintptr_t>(function); };
  EXPECT_EQ(finder.names.at(place_of(library.cgemm_Idx) - 1), "cgemm_Idx");
  EXPECT_EQ(finder.names.at(place_of(library.XERBLA) - 1), "XERBLA");
  EXPECT_EQ(finder.names.at(place_of(library.umfpack_ci_solve_Idx) - 1), "umfpack_ci_solve_Idx");
}

}  // namespace
}  // namespace quorin::test
