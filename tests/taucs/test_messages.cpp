// The log that the environment asks for: a line for each refusal, and nothing without it.
#include <cstdlib>

#include "tests/support/capture_output.hpp"
#include "tests/taucs/log.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

void order(const Matrix& A, const char* name) {
  int *perm = nullptr, *inverse = nullptr;
  taucs_ccs_order(A.get(), &perm, &inverse, name);
  EXPECT_EQ(perm, nullptr);
}

TEST(Messages, TellWhyARoutineRefused) {
  const Matrix general(taucs_ccs_create(2, 2, 1, TAUCS_DOUBLE));
  for (const int j : {0, 1, 2}) general->colptr[j] = 0;
  const TemporaryFile hb(
      "title\n\nRUA                        1             1             1\n(I8)            (2(A8))         (E10.3)\n"),
      log;
  const std::string missing(700, 'x');
  const auto refused = [&] {
    order(general, "camd");
    order(general, "metis");
    order(general, "amd");
    order(general, "nested");
    general->flags |= TAUCS_SYMMETRIC;
    order(general, "metis");
    order(general, "colamd");
    general->flags = TAUCS_DOUBLE;
    EXPECT_EQ(taucs_ccs_augment_nonpositive_offdiagonals(general.get()), nullptr);
    EXPECT_EQ(taucs_ccs_read_ijv(missing.c_str(), TAUCS_DOUBLE), nullptr);
    EXPECT_EQ(taucs_ccs_read_hb(hb.name(), TAUCS_DOUBLE), nullptr);
  };
  set_log(log.name());
  EXPECT_EQ(quorin::test::captured(refused), "");
  const std::string written = log.read();
  std::string text = written;
  std::erase(text, '\r');
  EXPECT_EQ(text,
            "taucs_ccs_amd: AMD ordering only works on symmetric matrices.\n"
            "taucs_ccs_treeorder: METIS ordering only works on symmetric matrices.\n"
            "taucs_ccs_amd: AMD routines not linked.\n"
            "taucs_ccs_order: invalid ordering requested (nested)\n"
            "taucs_ccs_metis: the lower part of the matrix must be represented.\n"
            "taucs_ccs_colamd: not applicable for symmetric or hermitian matrices\n"
            "taucs_ccs_augment_nonpositive_offdiagonal: matrix not symmetric or not lower\n"
            "taucs_ccs_read_ijv: could not open ijv file " +
                missing +
                "\n"
                "taucs_ccs_read_hb: unknown formats (I8)            (2(A8))         (E10.3)\n"
                "taucs_ccs_read_hb: wrong header\n");
  for (const char* const none : {"", "no-such-folder/log"}) {
    set_log(none);
    EXPECT_EQ(quorin::test::captured(refused), "");
  }
  EXPECT_EQ(log.read(), written);
}

TEST(Messages, TellWhatAnOrderingCalls) {
  const Matrix diagonal(taucs_ccs_create(2, 2, 2, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER));
  for (const int j : {0, 1, 2}) diagonal->colptr[j] = j;
  for (const int j : {0, 1}) diagonal->rowind[j] = j;
  int *perm = nullptr, *inverse = nullptr;
  EXPECT_EQ(logged([&] { taucs_ccs_order(diagonal.get(), &perm, &inverse, "tree"); }),
            "taucs_ccs_treeorder: starting, matrix is 2x2, # edges=0\ntaucs_ccs_treeorder: done\n");
  std::free(perm);
  std::free(inverse);
}

}  // namespace
}  // namespace taucs_test
