// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ... until the call no longer notices.
#include <functional>

#include "quorin/umfpack.h"
#include "tests/boundary/counting_allocator.hpp"
#include "tests/support/host_module.hpp"

namespace quorin::test {
namespace {

// A band matrix, wide enough for fronts that need the BLAS.
struct Problem {
  explicit Problem(int order) : n(order), x(2 * size()), b(2 * size(), 1) {
    for (int j = 0; j < n; ++j) {
      for (int i = j % 3; i < n; i += 3) {
        Ai.push_back(i);
        Ax.push_back(i == j ? 50.0F : static_cast<float>(i % 7 - j % 5));
      }
      Ap.push_back(static_cast<int>(Ai.size()));
    }
  }
  std::size_t size() const { return static_cast<std::size_t>(n); }

  int n;
  std::vector<int> Ap{0}, Ai;
  std::vector<float> Ax, x, b;
  void *Symbolic = nullptr, *Numeric = nullptr;
};

struct Exports {
  explicit Exports(const HostModule& m)
      : symbolic{m.symbol<decltype(umfpack_zi_symbolic)>("umfpack_zi_symbolic")},
        numeric{m.symbol<decltype(umfpack_zi_numeric)>("umfpack_zi_numeric")},
        solve{m.symbol<decltype(umfpack_zi_solve)>("umfpack_zi_solve")},
        transpose{m.symbol<decltype(umfpack_zi_transpose)>("umfpack_zi_transpose")},
        get_numeric{m.symbol<decltype(umfpack_zi_get_numeric)>("umfpack_zi_get_numeric")},
        free_symbolic{m.symbol<decltype(umfpack_zi_free_symbolic)>("umfpack_zi_free_symbolic")},
        free_numeric{m.symbol<decltype(umfpack_zi_free_numeric)>("umfpack_zi_free_numeric")} {}

  int run_symbolic(Problem& p) const {
    return symbolic(p.n, p.n, p.Ap.data(), p.Ai.data(), p.Ax.data(), p.Ax.data(), &p.Symbolic, nullptr, nullptr);
  }
  int run_numeric(Problem& p) const {
    return numeric(p.Ap.data(), p.Ai.data(), p.Ax.data(), p.Ax.data(), p.Symbolic, &p.Numeric, nullptr, nullptr);
  }
  int run_solve(Problem& p) const {
    return solve(0, p.Ap.data(), p.Ai.data(), p.Ax.data(), p.Ax.data(), p.x.data(), p.x.data() + p.n, p.b.data(),
                 p.b.data(), p.Numeric, nullptr, nullptr);
  }

  decltype(&umfpack_zi_symbolic) symbolic;
  decltype(&umfpack_zi_numeric) numeric;
  decltype(&umfpack_zi_solve) solve;
  decltype(&umfpack_zi_transpose) transpose;
  decltype(&umfpack_zi_get_numeric) get_numeric;
  decltype(&umfpack_zi_free_symbolic) free_symbolic;
  decltype(&umfpack_zi_free_numeric) free_numeric;
};

class Campaign {
 public:
  Campaign() : allocator_(load_test_library("complete", "libimalloc")), product_(load_product()), exports_(product_) {}

  // `object` is what the call makes, if it makes one, and is freed by `release`.
  void run(const char* name, int failures, const std::function<int()>& call, void** object,
           const std::function<void()>& release) {
    SCOPED_TRACE(std::string(name) + ", failing " + std::to_string(failures));
    constexpr int kMostAllocations = 500;
    int k = 1, refusals = 0;
    for (bool failed = true; failed && k < kMostAllocations; ++k) {
      free_buffers();
      const int live = state().live;
      state().failures = failures;
      state().fail_at = k;
      const int status = call();
      failed = state().failures < failures;
      state().fail_at = 0;
      ASSERT_TRUE(status == 0 || status == -1) << "allocation " << k << ": " << status;
      refusals += status == -1 ? 1 : 0;
      if (object != nullptr) {
        EXPECT_EQ(*object == nullptr, status == -1) << "allocation " << k;
      }
      release();
      free_buffers();
      EXPECT_EQ(state().live, live) << "allocation " << k;
    }
    EXPECT_LT(k, kMostAllocations);
    EXPECT_GE(k, 4) << "the call allocates";
    EXPECT_GE(refusals, (k - 2) / 2) << "most allocations are needed";
  }

  const Exports& exports() const { return exports_; }
  CountingAllocatorState& state() { return *allocator_.symbol<CountingAllocatorState>("imalloc_state"); }
  void free_buffers() { product_.symbol<void()>("sMKL_FreeBuffers")(); }

 private:
  HostModule allocator_, product_;
  Exports exports_;
};

TEST(UmfpackFaults, GiveTheStatusAndLeaveNothing) {
  Campaign campaign;
  const Exports& e = campaign.exports();
  const int live = campaign.state().live;
  Problem p(120);
  const auto nothing = [] {};
  for (const int failures : {1, 1000}) {
    campaign.run(
        "symbolic", failures, [&] { return e.run_symbolic(p); }, &p.Symbolic, [&] { e.free_symbolic(&p.Symbolic); });
    ASSERT_EQ(e.run_symbolic(p), 0);
    campaign.run(
        "numeric", failures, [&] { return e.run_numeric(p); }, &p.Numeric, [&] { e.free_numeric(&p.Numeric); });
    ASSERT_EQ(e.run_numeric(p), 0);
    ASSERT_EQ(e.run_solve(p), 0);
    const std::vector<float> solution = p.x;
    campaign.run(
        "solve", failures,
        [&] {
          p.x.assign(p.x.size(), -1);
          const int status = e.run_solve(p);
          EXPECT_EQ(p.x, status == 0 ? solution : std::vector<float>(p.x.size(), -1));
          return status;
        },
        nullptr, nothing);
    std::vector<float> Dx(p.size()), Dz(p.size()), Rs(p.size()), Rx(p.Ax.size()), Rz(p.Ax.size());
    std::vector<int> Rp(p.size() + 1), Ri(p.Ai.size());
    campaign.run(
        "get_numeric", failures,
        [&] {
          return e.get_numeric(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               Dx.data(), Dz.data(), nullptr, Rs.data(), p.Numeric);
        },
        nullptr, nothing);
    campaign.run(
        "transpose", failures,
        [&] {
          return e.transpose(p.n, p.n, p.Ap.data(), p.Ai.data(), p.Ax.data(), p.Ax.data(), nullptr, nullptr, Rp.data(),
                             Ri.data(), Rx.data(), Rz.data(), 0);
        },
        nullptr, nothing);
    e.free_symbolic(&p.Symbolic);
    e.free_numeric(&p.Numeric);
  }
  campaign.free_buffers();
  EXPECT_EQ(campaign.state().live, live);
}

}  // namespace
}  // namespace quorin::test
