// The k-th allocation of an ordering fails, for k = 1, 2, ... until it no longer notices: no arrays, and nothing lost.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/failing_host.hpp"

namespace taucs_test {
namespace {

// A ladder of 60 rungs with a tail of 30.
struct Ladder {
  explicit Ladder(int flags) {
    for (int j = 0; j < kSize; ++j) {
      colptr.push_back(static_cast<int>(rowind.size()));
      rowind.push_back(j);
      if (j % 2 == 0 && j < 120) rowind.push_back(j + 1);
      if (j + 2 < 120) rowind.push_back(j + 2);
      if (j >= 119 && j + 1 < kSize) rowind.push_back(j + 1);
    }
    colptr.push_back(static_cast<int>(rowind.size()));
    record.n = record.m = kSize;
    record.flags = flags;
    record.colptr = colptr.data();
    record.rowind = rowind.data();
  }
  static constexpr int kSize = 150;

  std::vector<int> colptr, rowind;
  taucs_ccs_matrix record{};
};

TEST(OrderingFaults, GiveNoArraysAndLoseNothing) {
  const quorin::test::FailingHost host;
  const Ladder symmetric(TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER), general(TAUCS_DOUBLE);
  for (const char* name : {"camd", "metis", "genmmd", "tree", "random", "identity", "colamd"}) {
    SCOPED_TRACE(name);
    // Without memory for its result "colamd" stops the process.
    const bool is_colamd = std::string(name) == "colamd";
    const Ladder& A = is_colamd ? general : symmetric;
    for (const int failures : {1, 1000}) {
      const int before = host.live_blocks();
      int k = is_colamd ? 3 : 1;
      for (bool failed = true; failed && k < 2000; ++k) {
        int *perm = nullptr, *inverse = nullptr;
        failed = host.run_failing(k, failures, [&] { host->taucs_ccs_order(&A.record, &perm, &inverse, name); });
        EXPECT_EQ(perm == nullptr, inverse == nullptr);
        EXPECT_EQ(perm == nullptr, failed) << "allocation " << k;
        EXPECT_TRUE(perm == nullptr || perm != inverse);
        host.release(perm);
        host.release(inverse);
        EXPECT_EQ(host.live_blocks(), before) << "allocation " << k;
      }
      EXPECT_GT(k, 3);
      EXPECT_LT(k, 2000);
    }
  }
}

}  // namespace
}  // namespace taucs_test
