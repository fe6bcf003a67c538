// What stops the process: requests that no result could answer. The source names are the published ones.
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

class Stops : public testing::Test {
 protected:
  Stops() { testing::GTEST_FLAG(death_test_style) = "threadsafe"; }
  const TemporaryFile file_{"2 0 1 2 0 0 1.5 2.5"};
};

TEST_F(Stops, OperationsOnAMatrixWithoutAType) {
  for (const int flags : {0, int{TAUCS_SINGLE}, int{TAUCS_SCOMPLEX}}) {
    const Matrix A(taucs_ccs_create(1, 1, 1, TAUCS_DOUBLE));
    A->flags = flags;
    EXPECT_DEATH(taucs_ccs_transpose(A.get()), "taucs_ccs_ops");
  }
}

TEST_F(Stops, FilesWithoutAType) {
  EXPECT_DEATH(taucs_ccs_read_ijv(file_.name(), TAUCS_SYMMETRIC), "taucs_ccs_io");
  EXPECT_DEATH(taucs_ccs_read_mtx(file_.name(), TAUCS_SINGLE), "taucs_ccs_io");
  EXPECT_DEATH(taucs_vec_read_binary(1, TAUCS_INT, file_.name()), "taucs_ccs_io");
}

TEST_F(Stops, SymmetricFileWithAnUpperTriangle) {
  EXPECT_DEATH(taucs_ccs_read_ccs(file_.name(), TAUCS_DOUBLE | TAUCS_SYMMETRIC), "i >= j");
  const Matrix A(taucs_ccs_read_ccs(file_.name(), TAUCS_DOUBLE));
  EXPECT_NE(A, nullptr);
}

TEST_F(Stops, ComplexFileAskedForAsReal) {
  const std::string name = std::string(QUORIN_MATRICES_DIR) + "/umfpack/qc324.cua";
  EXPECT_DEATH(taucs_ccs_read_hb(name.c_str(), TAUCS_DOUBLE), "taucs_ccs_io");
}

}  // namespace
}  // namespace taucs_test
