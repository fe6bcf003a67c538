// Services: thread settings, the text-output callback, the error handler.
#include "examples/host/report.hpp"
#include "quorin/services.h"

namespace demo {
namespace {

int texts_received = 0;
void QUORIN_CALLBACK receive(const char*) { ++texts_received; }

}  // namespace

void services_rows(const Library& library, Report& report) {
  auto* const set_threads = library.resolve<decltype(sMKL_Set_Num_Threads)>("sMKL_Set_Num_Threads");
  auto* const get_threads = library.resolve<decltype(sMKL_Get_Max_Threads)>("sMKL_Get_Max_Threads");
  auto* const set_domain = library.resolve<decltype(sMKL_Domain_Set_Num_Threads)>("sMKL_Domain_Set_Num_Threads");
  auto* const set_callback = library.resolve<decltype(set_printf_callback_32f)>("set_printf_callback_32f");
  auto* const silent_printf = library.resolve<decltype(taucs_printf)>("taucs_printf");
  auto* const handler = library.resolve<decltype(XERBLA)>("XERBLA");

  report.heading("Services");
  const int at_first = get_threads();
  report.row("thread settings: set 3, refuse 0 and domain 5", std::to_string(at_first) + " at first", 0,
             [&](Timer& timer) {
               timer.time([&] { set_threads(3); });
               set_threads(0);
               const bool right = get_threads() == 3 && set_domain(2, 5) == 0 && set_domain(2, 1) == 1;
               set_domain(0, 1);
               set_threads(at_first);
               return right ? 0.0 : 1.0;
             });
  report.row("text-output callback: taucs_printf stays silent", "1 text", 0, [&](Timer& timer) {
    set_callback(receive);
    int printed = -1;
    timer.time([&] { printed = silent_printf("%d", 1); });
    const bool right = printed == 0 && texts_received == 0;
    set_callback(nullptr);
    return right ? 0.0 : 1.0;
  });
  std::printf("(XERBLA says, and the program goes on:)");
  report.row("error handler called by the host", "parameter 7", 0, [&](Timer& timer) {
    const int32_t parameter = 7;
    timer.time([&] { handler("SGETRF", &parameter, 6); });
    return 0.0;
  });
}

}  // namespace demo
