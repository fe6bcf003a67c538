// The k-th allocation of a call fails, alone or with all after it, for k = 1, 2, ... until the call no longer notices:
// null or -1, nothing left behind; and what stops the process.
#include <functional>

#include "tests/support/failing_host.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

class Campaign : public testing::Test {
 protected:
  // `call` makes matrices, and gives back how many it should have made and has not; 0 is success.
  void run(const char* name, const std::function<std::vector<taucs_ccs_matrix*>()>& call) {
    SCOPED_TRACE(name);
    const int before = host.live_blocks();
    for (const int failures : {1, 1000}) {
      int k = 1;
      for (bool failed = true; failed && k < 100; ++k) {
        std::vector<taucs_ccs_matrix*> made;
        failed = host.run_failing(k, failures, [&] { made = call(); });
        for (taucs_ccs_matrix* A : made) {
          EXPECT_EQ(A == nullptr, failed) << "allocation " << k;
          host->taucs_ccs_free(A);
        }
        EXPECT_EQ(host.live_blocks(), before) << "allocation " << k << " left memory behind";
      }
      EXPECT_GT(k, 2) << "nothing was ever allocated";
      EXPECT_LT(k, 100);
    }
  }

  const quorin::test::FailingHost host;
};

TEST_F(Campaign, NothingIsLeftBehind) {
  run("create", [&] { return std::vector{host->taucs_ccs_create(3, 3, 3, TAUCS_DCOMPLEX)}; });

  taucs_ccs_matrix* const A = host->taucs_ccs_create(2, 2, 3, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER);
  const int colptr[] = {0, 2, 3}, rowind[] = {0, 1, 1};
  const double entries[] = {2, 1, 2};
  std::copy_n(colptr, 3, A->colptr);
  std::copy_n(rowind, 3, A->rowind);
  std::copy_n(entries, 3, A->values.d);
  run("transpose", [&] { return std::vector{host->taucs_ccs_transpose(A)}; });
  run("permute", [&] {
    const int p[] = {1, 0};
    return std::vector{host->taucs_ccs_permute_symmetrically(A, p, p)};
  });
  run("augment", [&] { return std::vector{host->taucs_ccs_augment_nonpositive_offdiagonals(A)}; });
  run("split", [&] {
    taucs_ccs_matrix *L = nullptr, *R = nullptr;
    host->taucs_ccs_split(A, &L, &R, 1);
    return std::vector{L, R};
  });

  std::string triplets;
  for (int k = 1; k <= 13000; ++k) triplets += std::to_string(k) + " 1 1\n";
  const struct {
    const char* name;
    decltype(host->taucs_ccs_read_ijv) read;
    std::string content;
  } texts[] = {{"ijv", host->taucs_ccs_read_ijv, triplets},
               {"ijv_zero_based", host->taucs_ccs_read_ijv_zero_based, triplets},
               {"mtx", host->taucs_ccs_read_mtx, "1 1 1\n" + triplets},
               {"ccs", host->taucs_ccs_read_ccs, "2 0 1 2 0 1 1.5 2.5"}};
  for (const auto& text : texts) {
    const TemporaryFile file(text.content);
    run(text.name, [&] { return std::vector{text.read(file.name(), TAUCS_DOUBLE)}; });
  }
  const std::string hb = std::string(QUORIN_MATRICES_DIR) + "/cholmod/bcsstk01.rsa";
  run("hb", [&] { return std::vector{host->taucs_ccs_read_hb(hb.c_str(), TAUCS_DOUBLE)}; });

  // The first block of the binary reader is the one without which the process stops.
  const int head[] = {2, 2, TAUCS_DOUBLE, 0, 1, 2, 0, 1};
  const TemporaryFile binary(bytes_of(head, 8) + bytes_of(entries, 2));
  for (int k = 2; k <= 5; ++k) {
    const int before = host.live_blocks();
    EXPECT_TRUE(host.run_failing(k, 1, [&] { EXPECT_EQ(host->taucs_ccs_read_binary(binary.name()), nullptr); }));
    EXPECT_EQ(host.live_blocks(), before);
  }
  host.run_failing(1, 1, [&] { EXPECT_EQ(host->taucs_vec_create(2, TAUCS_DOUBLE), nullptr); });
  host.run_failing(1, 1, [&] { EXPECT_EQ(host->taucs_vec_read_binary(2, TAUCS_DOUBLE, binary.name()), nullptr); });
  host->taucs_ccs_free(A);
  EXPECT_EQ(host.live_blocks(), 0);
}

}  // namespace
}  // namespace taucs_test
