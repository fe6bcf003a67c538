// Files as hosts have them: what the formats say, numbers that come back, and files that are not what they claim.
#include <clocale>

#include "tests/support/standard.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

constexpr int kSymmetricLower = TAUCS_SYMMETRIC | TAUCS_LOWER;
constexpr int kHermitianLower = TAUCS_HERMITIAN | TAUCS_LOWER;

struct NamedReader {
  const char* name;
  std::function<taucs_ccs_matrix*(const char*, int)> read;
};
const NamedReader kReaders[] = {
    {"ijv", taucs_ccs_read_ijv},
    {"ijv_zero_based", taucs_ccs_read_ijv_zero_based},
    {"mtx", taucs_ccs_read_mtx},
    {"ccs", taucs_ccs_read_ccs},
    {"binary", [](const char* name, int) { return taucs_ccs_read_binary(name); }},
    {"hb", taucs_ccs_read_hb},
};

Matrix read(const std::function<taucs_ccs_matrix*(const char*, int)>& reader, const std::string& content, int flags) {
  const TemporaryFile file(content);
  Matrix A(reader(file.name(), flags));
  if (A != nullptr) expect_consistent(*A);
  return A;
}

struct Record {
  int m, n, flags;
  std::vector<int> colptr, rowind;
  std::vector<double> values;
};

// The arrays as far as the record's own column pointers go; `columns` of them.
void expect_record(const Matrix& A, const Record& expected) {
  ASSERT_NE(A, nullptr);
  EXPECT_EQ(A->m, expected.m);
  EXPECT_EQ(A->n, expected.n);
  EXPECT_EQ(A->flags, expected.flags);
  EXPECT_EQ(std::vector<int>(A->colptr, A->colptr + expected.colptr.size()), expected.colptr);
  EXPECT_EQ(std::vector<int>(A->rowind, A->rowind + expected.rowind.size()), expected.rowind);
  const auto* const parts = static_cast<const double*>(A->values.v);
  EXPECT_EQ(std::vector<double>(parts, parts + expected.values.size()), expected.values);
}

TEST(Ijv, DropsTheUpperTriangleOfASymmetricMatrix) {
  constexpr int kDoubleSymmetric = TAUCS_DOUBLE | TAUCS_SYMMETRIC;
  expect_record(read(taucs_ccs_read_ijv, "3 1 5.0\n", kDoubleSymmetric), {1, 3, 2057, {0, 1, 1, 1}, {2}, {5}});
  expect_record(read(taucs_ccs_read_ijv, "1 3 5.0\n", kDoubleSymmetric), {0, 0, 2057, {0}, {}, {}});
  expect_record(read(taucs_ccs_read_ijv, "1 3 5.0\n", TAUCS_DOUBLE), {3, 1, 2048, {0, 0, 0, 1}, {0}, {5}});
  const std::string text = "2 1 4\n1 1 2.5\n1 2 4\n2 2 -3\n2 2 1\n";
  expect_record(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE | TAUCS_HERMITIAN),
                {2, 2, 2065, {0, 2, 4}, {1, 0, 1, 1}, {4, 2.5, -3, 1}});
  expect_record(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_HERMITIAN),
                {2, 2, 2065, {0, 2, 4}, {1, 0, 1, 1}, {4, 2.5, -3, 1}});
  expect_record(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE),
                {2, 2, 2048, {0, 2, 5}, {1, 0, 0, 1, 1}, {4, 2.5, 4, -3, 1}});
}

TEST(Ijv, BothIndexBasesGiveTheSameRecord) {
  const Record expected{3, 3, 2057, {0, 2, 2, 3}, {0, 2, 2}, {1.5, -2, 7}};
  expect_record(read(taucs_ccs_read_ijv, "1 1 1.5\n3.9 1 -2\n\n  3\t3\r\n7", 2056), expected);
  expect_record(read(taucs_ccs_read_ijv_zero_based, "0 0 1.5\n2.9 0 -2\n2 2 7 # ends here\n9 9 9", 2056), expected);
}

// An index that no file of this size could mean takes no memory.
TEST(Ijv, TakesAnEnormousIndexForASlip) {
  for (const char* const text : {"100000000 1 5\n", "1 100000000 5\n1 1 1\n", "1000001 1 5\n", "2147483646 1 5\n"}) {
    EXPECT_EQ(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE), nullptr) << text;
    EXPECT_EQ(read(taucs_ccs_read_mtx, std::string("1 1 1 ") + text, TAUCS_DOUBLE), nullptr) << text;
  }
  const Matrix A = read(taucs_ccs_read_ijv, "1000000 1 5\n", TAUCS_DOUBLE);
  ASSERT_NE(A, nullptr);
  EXPECT_EQ(A->n, 1000000);
  // Its row lies beyond m: what is made of such a record stays inside of its arrays.
  const Matrix B(taucs_ccs_transpose(A.get()));
  EXPECT_TRUE(B == nullptr || B->colptr[B->n] == 1);
  std::vector<int> identity(static_cast<std::size_t>(A->m));
  std::iota(identity.begin(), identity.end(), 0);
  taucs_ccs_permute_rows_inplace(A.get(), identity.data());
  std::string text;
  for (int k = 0; k < 40000; ++k) text += std::to_string(50 * k + 1) + " 1 1\n";
  EXPECT_NE(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE), nullptr);
}

TEST(Mtx, MakesTheMatrixOfAGraph) {
  const std::string text = "9 9 9\n2 1 7.5\n1 2 3\n2 2 7.5\n3 2 0\n";
  expect_record(read(taucs_ccs_read_mtx, text, TAUCS_DOUBLE | TAUCS_SYMMETRIC),
                {2, 3, 2057, {0, 2, 4}, {1, 1, 1, 2}, {-1, -1, 7.5, -1}});
  expect_record(read(taucs_ccs_read_mtx, text, TAUCS_DOUBLE), {2, 3, 2048, {0, 1, 4}, {1, 0, 1, 2}, {-1, -1, 7.5, -1}});
  for (const char* const head :
       {"% comment\n3 3 3\n1 1 1\n", "%%MatrixMarket\n", "3 3\n", "3 3.5 3\n", "3 3 99999999999\n", ""}) {
    EXPECT_EQ(read(taucs_ccs_read_mtx, head, TAUCS_DOUBLE), nullptr) << head;
  }
}

TEST(Ccs, ReadsWhatItSays) {
  expect_record(read(taucs_ccs_read_ccs, "3\n0 2 2 3\n0 2 2\n1.5 -2\n7\n", 2056),
                {3, 3, 2057, {0, 2, 2, 3}, {0, 2, 2}, {1.5, -2, 7}});
  expect_record(read(taucs_ccs_read_ccs, "1 0 1 0 1.5 2", TAUCS_DCOMPLEX),
                {1, 1, TAUCS_DCOMPLEX, {0, 1}, {0}, {1.5, 2}});
  expect_record(read(taucs_ccs_read_ccs, "0 0", TAUCS_DOUBLE), {0, 0, 2048, {0}, {}, {}});
  for (const char* const text : {"", "x", "-1", "2 0 1", "2 0 1 0 0 1", "2 0 2 1 0 1 1 1", "2 1 1 2 0 1 1",
                                 "2 0 1 2 0 2 1 1", "2 0 1 2 0 -1 1 1", "2 0 1 2 0 1 1", "2 0 1 2 0 1 1 x",
                                 "2147483647 0 1", "1 0 2147483647 0", "1 0 -1", "2 0 1.5 2 0 1 1 1"}) {
    EXPECT_EQ(read(taucs_ccs_read_ccs, text, TAUCS_DOUBLE), nullptr) << text;
  }
}

std::string binary_matrix(const Record& A) {
  const int head[] = {A.m, A.n, A.flags};
  return bytes_of(head, 3) + bytes_of(A.colptr.data(), A.colptr.size()) + bytes_of(A.rowind.data(), A.rowind.size()) +
         bytes_of(A.values.data(), A.values.size());
}

TEST(Binary, ReadsWhatItSays) {
  const auto read_binary = kReaders[4].read;
  const Record rectangular{3, 2, TAUCS_DOUBLE | TAUCS_PATTERN, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}};
  expect_record(read(read_binary, binary_matrix(rectangular), 0), rectangular);
  const Record complex{2, 2, TAUCS_DCOMPLEX | kHermitianLower, {0, 1, 2}, {0, 1}, {1, 0, 2, 0}};
  expect_record(read(read_binary, binary_matrix(complex), 0), complex);
  const Record wrong[] = {{3, 2, TAUCS_SINGLE, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {-3, 2, TAUCS_DOUBLE, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, -2, TAUCS_DOUBLE, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2000000000, TAUCS_DOUBLE, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2, 2057, {0, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2, TAUCS_DOUBLE, {1, 1, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2, TAUCS_DOUBLE, {0, 4, 3}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2, TAUCS_DOUBLE, {0, 1, 2000000000}, {2, 0, 1}, {1, 2, 3}},
                          {3, 2, TAUCS_DOUBLE, {0, 1, 3}, {3, 0, 1}, {1, 2, 3}},
                          {3, 2, TAUCS_DOUBLE, {0, 1, 3}, {2, 0, -1}, {1, 2, 3}}};
  for (const Record& A : wrong) EXPECT_EQ(read(read_binary, binary_matrix(A), 0), nullptr);
}

// The header of a Harwell-Boeing file and its body, which is one line for each section.
std::string harwell_boeing(const std::string& type, const std::string& sizes, const std::string& formats,
                           const std::string& body) {
  return "A title\n             3             1             1             1             0\n" + type + "           " +
         sizes + "\n" + formats + "\n" + body;
}

TEST(HarwellBoeing, TypesAndStructures) {
  const std::string sizes = "             2             2             3             0";
  const std::string formats = "(3I3)           (3I3)           (6E8.2)             ";
  const std::string pattern = "  1  3  4\n  1  2  2\n", real = pattern + "  1.0E+0  -2.D+1    3.+2\n";
  const std::string complex = pattern + "  1.0E+0  0.0E+0  -2.D+1  1.0E+0    3.+2  5.0   \n";
  const auto hb = [&](const std::string& type, const std::string& body, int flags) {
    return read(taucs_ccs_read_hb, harwell_boeing(type, sizes, formats, body), flags);
  };
  const auto record = [](int flags, std::vector<double> values) {
    return Record{2, 2, flags, {0, 2, 3}, {0, 1, 1}, std::move(values)};
  };
  expect_record(hb("RSA", real, TAUCS_DOUBLE), record(TAUCS_DOUBLE | kSymmetricLower, {1, -20, 300}));
  expect_record(hb("rua", real, TAUCS_DOUBLE), record(TAUCS_DOUBLE, {1, -20, 300}));
  expect_record(hb("RUA", real, TAUCS_DCOMPLEX), record(TAUCS_DOUBLE, {1, -20, 300}));
  expect_record(hb("PSA", pattern, TAUCS_DOUBLE), record(TAUCS_DOUBLE | kSymmetricLower, {1, 1, 1}));
  expect_record(hb("pUa", pattern, TAUCS_DCOMPLEX), record(TAUCS_DCOMPLEX, {1, 0, 1, 0, 1, 0}));
  expect_record(hb("CHA", complex, TAUCS_DCOMPLEX), record(TAUCS_DCOMPLEX | kHermitianLower, {1, 0, -20, 1, 300, 5}));
  expect_record(hb("czA", complex, TAUCS_DCOMPLEX), record(TAUCS_DCOMPLEX, {1, 0, -20, 1, 300, 5}));
  expect_record(hb("CSA", complex, TAUCS_DCOMPLEX), record(TAUCS_DCOMPLEX | kSymmetricLower, {1, 0, -20, 1, 300, 5}));
  EXPECT_EQ(read(taucs_ccs_read_hb,
                 harwell_boeing("CHA", "             3             2             3             0", formats, complex),
                 TAUCS_DCOMPLEX),
            nullptr)
      << "Hermitian must be square";
  for (const char* const type : {"RSE", "XUA", "R  ", "R", ""})
    EXPECT_EQ(hb(type, real, TAUCS_DOUBLE), nullptr) << type;
  for (const char* const body :
       {"", "  1  3  4\n", "  1  3  4\n  1  2  2\n", "  0  3  4\n  1  2  2\n  1.0E+0  -2.D+1    3.+2\n",
        "  1  3  4\n  1  2  3\n  1.0E+0  -2.D+1    3.+2\n", "  1  5  4\n  1  2  2\n  1.0E+0  -2.D+1    3.+2\n",
        "  1  3  3\n  1  2  2\n  1.0E+0  -2.D+1    3.+2\n", "  1  3  4\n  1  2  2\n  1.0E+0          3.+2\n",
        "  1  3  4\n  0  2  2\n  1.0E+0  -2.D+1    3.+2\n", "-2147483648  4\n"}) {
    EXPECT_EQ(hb("RUA", body, TAUCS_DOUBLE), nullptr) << body;
  }
  // Lines that end in two characters; a fifth line of the header tells of right-hand sides.
  std::string lines = harwell_boeing("RSA", sizes, formats, real);
  const std::size_t count = lines.find("             0\n") + 13, body = lines.find(pattern);
  lines[count] = '1';
  lines.insert(body, "F                          1             0\n");
  expect_record(read(taucs_ccs_read_hb, lines, TAUCS_DOUBLE), record(TAUCS_DOUBLE | kSymmetricLower, {1, -20, 300}));
  for (std::size_t at = lines.find('\n'); at != std::string::npos; at = lines.find('\n', at + 2))
    lines.insert(at, "\r");
  expect_record(read(taucs_ccs_read_hb, lines, TAUCS_DOUBLE), record(TAUCS_DOUBLE | kSymmetricLower, {1, -20, 300}));
  // Symmetric must be square, and a file cannot hold more than it is long.
  for (const char* const wrong :
       {"             2             3             3", "             2    2000000000             3",
        "             2             2    2000000000", "            -2             2             3"}) {
    EXPECT_EQ(read(taucs_ccs_read_hb, harwell_boeing("RSA", wrong, formats, real), TAUCS_DOUBLE), nullptr) << wrong;
  }
}

TEST(WriteIjv, ComesBackBitForBit) {
  std::mt19937 random(5);
  for (const int structure : {0, int{TAUCS_SYMMETRIC}, int{TAUCS_HERMITIAN}}) {
    for (const int type : {int{TAUCS_DOUBLE}, int{TAUCS_DCOMPLEX}}) {
      const bool is_complex = type == TAUCS_DCOMPLEX;
      const Matrix A = is_complex ? random_matrix<Complex>(40, 40, structure, random)
                                  : random_matrix<double>(40, 40, structure, random);
      const int nnz = A->colptr[40], parts = is_complex ? 2 * nnz : nnz;
      for (int k = 0; k < parts; ++k) {
        A->values.d[k] = std::ldexp(static_cast<double>(random()) + 1.0 / (1.0 + static_cast<double>(random())),
                                    static_cast<int>(random() % 2000) - 1030);
      }
      const TemporaryFile file;
      ASSERT_EQ(taucs_ccs_write_ijv(A.get(), file.name()), 0);
      const Matrix B(taucs_ccs_read_ijv(file.name(), type | structure));
      ASSERT_NE(B, nullptr);
      ASSERT_EQ(B->flags, type | structure | (structure ? int{TAUCS_LOWER} : 0));
      ASSERT_EQ(std::vector<int>(B->colptr, B->colptr + 41), std::vector<int>(A->colptr, A->colptr + 41));
      EXPECT_EQ(std::memcmp(B->rowind, A->rowind, nnz * sizeof(int)), 0);
      EXPECT_EQ(std::memcmp(B->values.d, A->values.d, parts * sizeof(double)), 0);
    }
  }
}

TEST(WriteIjv, TextInAnyLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* const name : {"de_DE.UTF-8", "German_Germany.1252"}) std::setlocale(LC_ALL, name);
  const Matrix A = read(taucs_ccs_read_ijv, "1 1 0.1\n2 1 -3e100\n", 2056);
  const TemporaryFile file(std::string(1000, 'x'));
  EXPECT_EQ(taucs_ccs_write_ijv(A.get(), file.name()), 0);
  std::string text = file.read();
  std::erase(text, '\r');
  EXPECT_EQ(text, "1 1 1.00000000000000006e-01\n2 1 -2.99999999999999985e+100\n1 2 -2.99999999999999985e+100\n");
  std::setlocale(LC_ALL, before.c_str());
  const Matrix empty(taucs_ccs_create(0, 0, 0, TAUCS_DOUBLE));
  empty->colptr[0] = 0;
  EXPECT_EQ(taucs_ccs_write_ijv(empty.get(), file.name()), 0);
  EXPECT_EQ(file.read(), "");
  EXPECT_EQ(taucs_ccs_write_ijv(A.get(), "no-such-folder/file"), -1);
  A->colptr[1] = 1 << 30;
  EXPECT_EQ(taucs_ccs_write_ijv(A.get(), file.name()), -1);
}

TEST(VectorFiles, KeepWhatLiesBehindTheVector) {
  const double numbers[] = {1.5, -2.5};
  const TemporaryFile file(std::string(100, 'x'));
  EXPECT_EQ(taucs_vec_write_binary(2, TAUCS_DOUBLE, numbers, file.name()), 0);
  EXPECT_EQ(file.read(), bytes_of(numbers, 2) + std::string(84, 'x'));
  const struct {
    int flags, size;
  } types[] = {{TAUCS_DOUBLE, 8}, {TAUCS_SINGLE, 4}, {TAUCS_DCOMPLEX, 16}, {TAUCS_SCOMPLEX, 8}};
  for (const auto [flags, size] : types) {
    const TemporaryFile copy;
    void* const v = taucs_vec_read_binary(6, flags, file.name());
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(taucs_vec_write_binary(6, flags, v, copy.name()), 0);
    EXPECT_EQ(copy.read(), file.read().substr(0, 6 * size));
    std::free(v);
    EXPECT_EQ(taucs_vec_read_binary(100 / size + 1, flags, file.name()), nullptr) << "cut short";
    EXPECT_EQ(taucs_vec_read_binary(2000000000, flags, file.name()), nullptr) << "cut short";
  }
  EXPECT_EQ(taucs_vec_write_binary(2, TAUCS_DOUBLE, numbers, "no-such-folder/file"), 0);
  auto* const zeros = static_cast<double*>(taucs_vec_read_binary(2, TAUCS_DOUBLE, "no-such-folder/file"));
  ASSERT_NE(zeros, nullptr);
  EXPECT_EQ(zeros[0] + zeros[1], 0);
  std::free(zeros);
}

TEST(Files, MissingEmptyAndStrangeOnesGiveNull) {
  std::string noise(200000, '\0');
  std::mt19937 random(9);
  for (char& c : noise) c = static_cast<char>(random());
  const std::string long_number = "1 1 " + std::string(300000, '1');
  for (const NamedReader& reader : kReaders) {
    SCOPED_TRACE(reader.name);
    EXPECT_EQ(reader.read("no-such-folder/file", TAUCS_DOUBLE), nullptr);
    const bool is_ijv = std::strncmp(reader.name, "ijv", 3) == 0;
    for (const std::string& content : {std::string(), noise, std::string(100000, ' '), std::string(100000, '\n'),
                                       long_number, std::string(100000, '9')}) {
      const Matrix A = read(reader.read, content, TAUCS_DOUBLE);
      // For triplets, no entry at all makes an empty matrix.
      EXPECT_TRUE(A == nullptr || (is_ijv && A->n == 0)) << content.substr(0, 20);
    }
    const Matrix folder(reader.read(std::filesystem::temp_directory_path().string().c_str(), TAUCS_DOUBLE));
    EXPECT_TRUE(folder == nullptr || (is_ijv && folder->n == 0));
  }
  for (const char* const text : {"0 1 1", "1 0 1", "-1 1 1", "1 3e9 1", "nan 1 1", "1 inf 1", "1 1 1\n1 0.5 1"}) {
    EXPECT_EQ(read(taucs_ccs_read_ijv, text, TAUCS_DOUBLE), nullptr) << text;
    EXPECT_EQ(read(taucs_ccs_read_mtx, std::string("1 1 1 ") + text, TAUCS_DOUBLE), nullptr) << text;
  }
}

}  // namespace
}  // namespace taucs_test
