// Host threads with objects of their own, and with one object for all.
#include <thread>

#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

TEST(Threads, FactorAndSolveAtOnce) {
  constexpr int kOrder = 400, kRounds = 15;
  const Floats b(kOrder, 1);
  Host shared(random_matrix(kOrder, true, 9));
  shared.factorize();
  ASSERT_EQ(shared.solve(0, b, b), 0);
  const auto work = [&](bool is_complex) {
    const Matrix A = random_matrix(kOrder, is_complex);
    Floats first;
    for (int round = 0; round < kRounds; ++round) {
      Host host(A);
      host.factorize();
      ASSERT_EQ(host.solve(0, b, b), 0);
      if (round == 0) first = host.Xx;
      for (std::size_t i = 0; i < first.size(); ++i) ASSERT_NEAR(host.Xx[i], first[i], 1e-6);
      Floats x(kOrder), z(kOrder);
      ASSERT_EQ(umfpack_zi_solve(0, shared.A.Ap.data(), shared.A.Ai.data(), shared.Ax.data(), shared.Az.data(),
                                 x.data(), z.data(), b.data(), b.data(), shared.Numeric, nullptr, nullptr),
                0);
      for (std::size_t i = 0; i < x.size(); ++i) ASSERT_NEAR(x[i], shared.Xx[i], 1e-6);
    }
  };
  std::thread other([&] { work(true); });
  work(false);
  other.join();
}

}  // namespace
}  // namespace umfpack_test
