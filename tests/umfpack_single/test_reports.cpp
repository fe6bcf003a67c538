// The texts, piece by piece as the host's callback gets them.
#include <cstdio>

#include "quorin/services.h"
#include "tests/umfpack_single/umfpack_host.hpp"

namespace umfpack_test {
namespace {

using quorin::test::call_index_form;
using Pieces = std::vector<std::string>;

Pieces pieces;

void QUORIN_CALLBACK keep(const char* text) { pieces.emplace_back(text); }

template <class Report>
Pieces printed(const Report& report) {
  pieces.clear();
  set_printf_callback_32f(keep);
  report();
  set_printf_callback_32f(nullptr);
  return pieces;
}

template <class Report>
std::string printed_text(const Report& report) {
  std::string text;
  for (const std::string& piece : printed(report)) text += piece;
  return text;
}

void expect_lines(const std::string& text, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) EXPECT_NE(text.find(line), std::string::npos) << line << text;
}
bool contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

Floats control(float level) {
  Floats all(20);
  umfpack_di_defaults(all.data());
  all[0] = level;
  return all;
}

constexpr char kVersion[] = "UMFPACK V5.1.0 (May 31, 2007): ";

TEST(Reports, StatusByLevel) {
  const Floats zero = control(0.9F), one = control(1.9F), two = control(2);
  for (const auto& [status, text] : {std::pair(0, "OK\n"),
                                     {1, "WARNING: matrix is singular\n"},
                                     {-11, "ERROR: pattern of matrix (Ap and/or Ai) has changed\n"},
                                     {-18, "ERROR: Unrecognized error code: -18\n"}}) {
    const Pieces expected = {"\n", kVersion, text, "\n"}, by_default = status == 0 ? Pieces() : expected;
    EXPECT_EQ(printed([&] { umfpack_di_report_status(two.data(), status); }), expected);
    EXPECT_EQ(printed([&] { call_index_form(umfpack_ci_report_status_Idx, two, status); }), expected);
    EXPECT_EQ(printed([&] { umfpack_zi_report_status(nullptr, status); }), by_default);
    EXPECT_EQ(printed([&] { umfpack_di_report_status(one.data(), status); }), by_default);
    EXPECT_EQ(printed([&] { umfpack_di_report_status(zero.data(), status); }), Pieces());
  }
  for (const int level : {3, 4, 5, 6}) {
    const Floats Control = control(static_cast<float>(level));
    const std::string text = printed_text([&] { umfpack_di_report_status(Control.data(), -911); });
    EXPECT_TRUE(contains(text, "INTERNAL ERROR!\n"));
    EXPECT_EQ(contains(text, "Copyright"), level >= 4) << level;
    EXPECT_EQ(contains(text, "License"), level >= 6) << level;
  }
}

// Settings that are none are told as what is taken for them.
TEST(Reports, ControlIsThatOfThisInterface) {
  EXPECT_EQ(printed([] { umfpack_di_report_control(nullptr); }), Pieces()) << "level 1 by default";
  const Floats Control = control(2);
  const Pieces all = printed([&] { umfpack_di_report_control(Control.data()); });
  EXPECT_EQ(all[4], "    1: dense row parameter:    0.2\n") << "line by line";
  EXPECT_EQ(printed([&] { umfpack_zi_report_control(Control.data()); }), all);
  const auto report = [](const Floats& changed) {
    return printed_text([&] { umfpack_di_report_control(changed.data()); });
  };
  const std::string text = report(Control);
  expect_lines(text, {"    Matrix entry defined as: FLOATS\n", "    5: strategy: 0 (auto)\n",
                      "float: 4 Entry: 4 (in bytes)\n\n", "pointer: " + std::to_string(sizeof(void*))});
  for (int i = 0; i <= 19; ++i) EXPECT_TRUE(contains(text, "\n    " + std::to_string(i) + ": ")) << i;
  const std::tuple<std::size_t, float, const char*> cases[] = {
      {1, -1, "    1: dense row parameter:    -1\n        no \"dense\" rows/columns\n"},
      {1, 0, "        \"dense\" rows have    > max (16, (0)*16*sqrt(n_col) entries)\n"},
      {2, -1, "    2: dense column parameter: -1\n        no \"dense\" rows/columns\n"},
      {3, 1.5F, "    3: pivot tolerance: 1\n"},
      {3, -1, "    3: pivot tolerance: 0\n"},
      {5, 2, "        Taken as the symmetric strategy.\n    6"},
      {6, 0, "    6: initial allocation ratio: 0\n"},
      {6, -100, "    6: initial allocation (in Units): 100\n"},
      {7, -3, "    7: max iterative refinement steps: 0\n"},
      {13, -1, "    13: Q fixed during numerical factorization: -1 (no)\n"},
      {14, -1, "    14: AMD dense row/col parameter:    -1\n        no \"dense\" rows/columns\n"},
      {15, 9, "    15: diagonal pivot tolerance: 1\n"},
      {16, 2, "    16: scaling: 2 (divide each row by max. abs. value in each row)\n"},
      {17, -64, "    17: initial frontal matrix size (# of Entry's): 64\n"},
      {19, 0, "    19: AMD and COLAMD aggressive absorption: 0 (no)\n"},
  };
  for (const auto& [index, value, line] : cases) {
    Floats changed = Control;
    changed[index] = value;
    expect_lines(report(changed), {line});
  }
}

TEST(Reports, InfoHasTheLabelsAndThisBuildsValues) {
  Host host(random_matrix(30, false));
  host.Control[0] = 2;
  host.factorize();
  ASSERT_EQ(host.solve(0, Floats(30, 1), {}), 0);
  const auto report = [&] { call_index_form(umfpack_si_report_info_Idx, host.Control, host.Info); };
  const Pieces all = printed(report);
  ASSERT_GT(all.size(), 20U);
  EXPECT_EQ(all[0], "UMFPACK V5.1.0 (May 31, 2007), Info:\n");
  EXPECT_EQ(all[1], "    matrix entry defined as:          FLOATS\n");
  const std::string text = printed_text(report);
  char rcond[100];
  std::snprintf(rcond, sizeof rcond, "    estimate of reciprocal of condition number:    %.2e\n",
                static_cast<double>(host.Info[67]));
  expect_lines(text, {"    number of rows in matrix A:       30\n", "    size of numerical entry:          4 bytes\n",
                      "    iterative refinement steps taken: ", rcond});
  EXPECT_FALSE(contains(text, "double"));
  EXPECT_EQ(printed([&] { umfpack_zi_report_info(nullptr, host.Info.data()); }), Pieces());
  EXPECT_EQ(printed([&] { umfpack_di_report_info(host.Control.data(), nullptr); }), Pieces());
}

// 0.1F is 0.100000001490116 as a double, and so it goes into every format.
TEST(Reports, ValuesAreFloats) {
  const Floats Control = control(5);
  const Integers Ap = {0, 1, 2}, Ai = {0, 1}, Perm = {1, 0};
  const Floats Ax = {0.1F, 1234567.0F}, Az = {-2, 3};
  EXPECT_EQ(printed([&] { call_index_form(umfpack_ci_report_vector_Idx, 2, Ax, Az, Control); }),
            Pieces({"dense vector, n = 2. ", "\n", "    0 :", " (0.1", " - 2i)", "\n", "    1 :", " (1.23457e+06",
                    " + 3i)", "\n", "    dense vector ", "OK\n\n"}));
  EXPECT_EQ(printed([&] { call_index_form(umfpack_si_report_perm_Idx, 2, Perm, Control); }),
            Pieces({"permutation vector, n = 2. ", "\n", "    0 : 1 ", "\n", "    1 : 0 ", "\n",
                    "    permutation vector ", "OK\n\n"}));
  int status = -1;
  expect_lines(
      printed_text([&] { status = call_index_form(umfpack_si_report_triplet_Idx, 2, 2, 2, Ai, Perm, Ax, Control); }),
      {"    1 : 1 0  (1.23457e+06)\n"});
  EXPECT_EQ(status, 0);
  expect_lines(
      printed_text([&] { status = call_index_form(umfpack_si_report_matrix_Idx, 2, 2, Ap, Ai, Ax, 1, Control); }),
      {"\trow 0 : (0.1)\n"});
  EXPECT_EQ(status, 0);
  const Integers one_row = {0, 2, -9};
  expect_lines(printed_text([&] {
                 status = umfpack_di_report_matrix(1, 2, one_row.data(), Ai.data(), Ax.data(), 0, Control.data());
               }),
               {"\tcolumn 0 : (0.1)\n"});
  EXPECT_EQ(status, 0) << "in row form";
}

// From level 4 on, and what is not shown is not read.
TEST(Reports, LevelsThatShowValues) {
  const Integers Ap = {0, 1, 2}, Ai = {0, 1};
  const Floats Ax = {0.1F, 7.5F};
  for (const int level : {2, 3, 4, 5}) {
    const Floats Control = control(static_cast<float>(level));
    const std::string texts[] = {
        printed_text([&] { umfpack_di_report_matrix(2, 2, Ap.data(), Ai.data(), Ax.data(), 1, Control.data()); }),
        printed_text([&] { umfpack_di_report_triplet(2, 2, 2, Ai.data(), Ai.data(), Ax.data(), Control.data()); }),
        printed_text([&] { umfpack_di_report_vector(2, Ax.data(), Control.data()); })};
    for (const std::string& text : texts) {
      EXPECT_EQ(contains(text, "(0.1)") && contains(text, "(7.5)"), level >= 4) << level << text;
      EXPECT_EQ(text.empty(), level < 3) << level;
    }
  }
}

// The second pivot is 1.0000049999, which prints as 1; the float next to it is 1.0000050068.
TEST(Reports, FactorsArePrintedAsTheFloatsThatTheHostGets) {
  Host host(Matrix(2, 2, {0, 2, 4}, {0, 1, 0, 1}, {1, -1, 4.9999e-6, 1}));
  host.Control[0] = 5;
  host.Control[16] = 0;
  host.factorize();
  int status = -1;
  expect_lines(printed_text([&] { status = umfpack_di_report_numeric(host.Numeric, host.Control.data()); }),
               {"    n_row: 2  n_col: 2\n", " (1.00001)", "Numeric object:  OK\n"});
  EXPECT_EQ(status, 0);
  expect_lines(printed_text([&] { status = umfpack_di_report_symbolic(host.Symbolic, host.Control.data()); }),
               {"\tn_row: 2 n_col: 2\n"});
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace umfpack_test
