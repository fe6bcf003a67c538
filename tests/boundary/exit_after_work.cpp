// Ends its process while the library's workers are awake or have just been at work.
//   exit_after_work return|exit|quick|other_thread BLOCK-TIME STATUS
#include <cstdlib>
#include <string_view>
#include <thread>

#include "tests/support/exact_product.hpp"
#include "tests/support/host_module.hpp"

namespace {

void end_at_once(int status) {
#if defined(_WIN32)
  ExitProcess(static_cast<UINT>(status));
#else
  std::quick_exit(status);
#endif
}

}  // namespace

int main(int count, char** arguments) {
  using namespace quorin::test;
  if (count != 4) return 2;
  const std::string_view way = arguments[1];
  const int status = std::atoi(arguments[3]);
  const Product product;
  if (!product) return 3;
  product->sMKL_Set_Dynamic(0);
  product->sMKL_Set_Num_Threads(4);
  product->sokmp_set_blocktime(std::atoi(arguments[2]));
  auto* const multiply = product->sgemm;
  static ExactProduct problem;
  if (way == "other_thread") {
    // The process ends while another host thread is in the middle of threaded work.
    auto* const endless = new ExactProduct;  // outlives this program's own cleaning up
    std::thread([=] {
      while (endless->is_solved_by(multiply)) {
      }
    }).detach();
  }
  if (!problem.is_solved_by(multiply)) return 4;
  if (way == "quick") end_at_once(status);
  if (way != "return") std::exit(status);
  return status;
}
