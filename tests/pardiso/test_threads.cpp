// Handles on several host threads at once, and results on any number of the library's threads.
#include <thread>

#include "quorin/services.h"
#include "tests/pardiso/systems.hpp"

namespace pardiso_test {
namespace {

constexpr std::int32_t kDirectSolvers = 4;

TEST(Threads, GiveTheSameBits) {
  const auto grid = quorin::test::convection_diffusion(50, 20.0);
  for (const int mtype : {11, 1, 2, -2}) {
    const Matrix A = matrix_of(grid, mtype);
    std::vector<double> first;
    for (const int threads : {1, 2, 3, 4}) {
      sMKL_Domain_Set_Num_Threads(threads, kDirectSolvers);
      sMKL_Set_Dynamic(0);
      Host<double> host(A, 1, 7);
      for (std::size_t i = 0; i < host.b.size(); ++i) host.b[i] = std::cos(static_cast<double>(i));
      ASSERT_EQ(host.call(13), 0);
      if (first.empty()) first = host.x;
      EXPECT_EQ(host.x, first) << "mtype " << mtype << ", " << threads << " threads";
    }
  }
  sMKL_Domain_Set_Num_Threads(0, kDirectSolvers);
  sMKL_Set_Dynamic(1);
}

TEST(Threads, WorkOnHandlesOfTheirOwn) {
  sMKL_Domain_Set_Num_Threads(2, kDirectSolvers);
  std::vector<std::thread> hosts;
  std::array<double, 6> worst{};
  for (std::size_t t = 0; t < worst.size(); ++t) {
    hosts.emplace_back([t, &worst] {
      const int types[] = {11, 2, -2};
      const Matrix A = matrix_of(quorin::test::convection_diffusion(20 + 3 * static_cast<int>(t), 4.0), types[t % 3]);
      for (int round = 0; round < 5; ++round) {
        Host<double> host(A, 1, 3);
        if (host.call(13) != 0) {
          worst[t] = 1.0;
          return;
        }
        worst[t] = std::max(worst[t], backward_error(A, host, host.b, host.x));
      }
    });
  }
  for (std::thread& host : hosts) host.join();
  for (const double error : worst) EXPECT_LT(error, 1e-14);
  sMKL_Domain_Set_Num_Threads(0, kDirectSolvers);
}

}  // namespace
}  // namespace pardiso_test
