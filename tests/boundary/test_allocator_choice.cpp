// Which allocator the library takes when it is loaded: that of a complete libimalloc, else the run-time library's.
#include <chrono>
#include <thread>

#include "tests/boundary/counting_allocator.hpp"
#include "tests/support/exact_product.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/host_module.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/test.hpp"

namespace quorin::test {
namespace {

constexpr const char* kVariables[] = {"i_malloc_dll", "i_calloc_dll", "i_realloc_dll", "i_free_dll"};

const std::string& allocator_file() {
  static const std::string name = library_file("libimalloc");
  return name;
}

// A threaded product; memory is taken when it is the first after a load or after sMKL_FreeBuffers.
void multiply(const Product& product) {
  static ExactProduct problem;
  product->sMKL_Set_Dynamic(0);
  product->sMKL_Set_Num_Threads(3);
  EXPECT_TRUE(problem.is_solved_by(product->sgemm));
}

void expect_unload(Product& product) {
  product.close();
#if defined(_WIN32)
  EXPECT_FALSE(is_loaded(QUORIN_PRODUCT_FILE));
#endif
}

TEST(AllocatorChoice, TakesACompleteLibraryAndReleasesIt) {
  with_fresh_product([] {
    TestLibrary allocator("complete", "libimalloc");
    ASSERT_TRUE(allocator);
    auto& state = *allocator.symbol<CountingAllocatorState>("imalloc_state");
    Product product;
    ASSERT_TRUE(product);
    multiply(product);
    EXPECT_GE(state.allocate, 3);
    EXPECT_GE(state.live, 3);
    product->sMKL_FreeBuffers();
    EXPECT_GE(state.release, 3);
    EXPECT_EQ(state.live, 0);

    multiply(product);
    product->sokmp_set_blocktime(1);
    for (int i = 0; i < 3000 && state.live > 0; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(state.live, 0) << "the last worker's end gives the buffers back";

    product->sokmp_set_blocktime(INT_MAX);
    multiply(product);
    EXPECT_GT(state.live, 0);
    expect_unload(product);
#if defined(_WIN32)
    EXPECT_EQ(state.live, 0) << "unloading gives the buffers back";
#endif
    allocator.close();
    EXPECT_FALSE(is_loaded(allocator_file())) << "the product still holds a reference";
  });
}

void expect_refused(const TestLibrary& allocator) {
  ASSERT_TRUE(allocator);
  const auto& state = *allocator.symbol<CountingAllocatorState>("imalloc_state");
  Product product;
  ASSERT_TRUE(product);
  multiply(product);
  product->sMKL_FreeBuffers();
  EXPECT_EQ(state.allocate + state.allocate_zeroed + state.reallocate + state.release, 0);
  expect_unload(product);
}

TEST(AllocatorChoice, RefusesALibraryThatLacksAVariable) {
  for (const std::string lacking : {"1", "2", "3", "4"}) {
    SCOPED_TRACE(lacking);
    with_fresh_product([&] {
      TestLibrary allocator("lacks_" + lacking, "libimalloc");
      expect_refused(allocator);
      allocator.close();
      EXPECT_FALSE(is_loaded(allocator_file()));
    });
  }
}

TEST(AllocatorChoice, RefusesALibraryWithANullVariable) {
  for (const char* name : kVariables) {
    SCOPED_TRACE(name);
    with_fresh_product([&] {
      TestLibrary allocator("complete", "libimalloc");
      *allocator.symbol<void*>(name) = nullptr;
      expect_refused(allocator);
      allocator.close();
      EXPECT_FALSE(is_loaded(allocator_file()));
    });
  }
}

TEST(AllocatorChoice, SurvivesAnAllocatorThatTheHostUnloadsFirst) {
  with_fresh_product([] {
    TestLibrary allocator("complete", "libimalloc");
    Product product;
    multiply(product);  // buffers of the allocator stay behind
    allocator.close();
    ASSERT_FALSE(is_loaded(allocator_file()));
    FaultReport::begin("the product's unloading");  // the loader would swallow the fault
    expect_unload(product);
  });
}

#if defined(_WIN32)
bool allocator_was_loaded() {
  char text[16];
  return GetEnvironmentVariableA("QUORIN_TEST_ALLOCATOR", text, sizeof text) > 0;
}

void forget_loads() {
  ASSERT_FALSE(is_loaded(QUORIN_PRODUCT_FILE));
  SetEnvironmentVariableA("QUORIN_TEST_ALLOCATOR", nullptr);
}

std::filesystem::path folder_with_allocator() { return program_directory() / "test_libraries" / "complete"; }

// Here nobody but the product has a reference, so that releasing it unmaps the functions just found.
TEST(AllocatorChoice, DoesNotKeepFunctionsThatVanishWithTheReference) {
  forget_loads();
  const TemporaryFolder folder;
  std::filesystem::copy_file(program_directory() / QUORIN_PRODUCT_FILE, folder.path() / QUORIN_PRODUCT_FILE);
  std::filesystem::copy_file(folder_with_allocator() / allocator_file(), folder.path() / allocator_file());
  quorin_library library;
  ASSERT_EQ(quorin_load(folder.file(QUORIN_PRODUCT_FILE).c_str(), &library), 0);
  EXPECT_TRUE(allocator_was_loaded()) << "it stands beside the library";
  EXPECT_FALSE(is_loaded(allocator_file()));
  ExactProduct problem;
  EXPECT_TRUE(problem.is_solved_by(library.sgemm));
  quorin_unload(&library);
  EXPECT_FALSE(is_loaded(QUORIN_PRODUCT_FILE));
}

// A file of that name may lie where a document was opened.
TEST(AllocatorChoice, IsNotMadeInTheCurrentDirectory) {
  forget_loads();
  const CurrentFolder here(folder_with_allocator());
  const Product product;
  ASSERT_TRUE(product);
  EXPECT_FALSE(allocator_was_loaded());
}
#endif

}  // namespace
}  // namespace quorin::test
