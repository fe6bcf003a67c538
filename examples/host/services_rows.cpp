// Services: thread settings, the text-output callback, the error handler.
#include "examples/host/report.hpp"

namespace demo {
namespace {

int texts_received = 0;
void QUORIN_CALLBACK receive(const char*) { ++texts_received; }

}  // namespace

void services_rows(const Library& library, Report& report) {
  report.heading("Services");
  const int at_first = library.sMKL_Get_Max_Threads();
  report.row(
      "thread settings: set 3, refuse 0 and domain 5", std::to_string(at_first) + " at first", 0, [&](Timer& timer) {
        timer.time([&] { library.sMKL_Set_Num_Threads(3); });
        library.sMKL_Set_Num_Threads(0);
        const bool right = library.sMKL_Get_Max_Threads() == 3 && library.sMKL_Domain_Set_Num_Threads(2, 5) == 0 &&
                           library.sMKL_Domain_Set_Num_Threads(2, 1) == 1;
        library.sMKL_Domain_Set_Num_Threads(0, 1);
        library.sMKL_Set_Num_Threads(at_first);
        return right ? 0.0 : 1.0;
      });
  report.row("text-output callback: taucs_printf stays silent", "1 text", 0, [&](Timer& timer) {
    library.set_printf_callback_32f(receive);
    int printed = -1;
    timer.time([&] { printed = library.taucs_printf("%d", 1); });
    const bool right = printed == 0 && texts_received == 0;
    library.set_printf_callback_32f(nullptr);
    return right ? 0.0 : 1.0;
  });
  std::printf("(XERBLA says, and the program goes on:)");
  report.row("error handler called by the host", "parameter 7", 0, [&](Timer& timer) {
    const int32_t parameter = 7;
    timer.time([&] { library.XERBLA("SGETRF", &parameter, 6); });
    return 0.0;
  });
}

}  // namespace demo
