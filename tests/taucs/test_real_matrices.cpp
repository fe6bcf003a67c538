// The matrices that come with the dependencies, read by the library and by the tests' own reader, and thousands of
// damaged copies of them.
#include <filesystem>
#include <iomanip>

#include "tests/support/sparse.hpp"
#include "tests/support/standard.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

std::string matrix_file(const std::string& name) { return std::string(QUORIN_MATRICES_DIR) + "/" + name; }

using Entries = std::vector<std::tuple<int, int, double, double>>;

template <class T>
Entries entries(const taucs_ccs_matrix& A, int columns) {
  Entries all;
  for (int j = 0; j < columns; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const Complex value = values<T>(A)[k];
      all.emplace_back(A.rowind[k], j, value.real(), value.imag());
    }
  }
  std::sort(all.begin(), all.end());
  return all;
}

TEST(RealMatrices, HaveTheEntriesOfTheirFiles) {
  int files = 0;
  for (const std::string folder : {"cholmod", "cxsparse", "umfpack"}) {
    for (const auto& file : std::filesystem::directory_iterator(matrix_file(folder))) {
      const std::string path = file.path().string(), extension = file.path().extension().string();
      const bool is_hb = folder != "cxsparse";
      if (is_hb && (extension.size() != 4 || extension[3] != 'a')) continue;
      SCOPED_TRACE(path);
      ++files;
      std::string type = "RUA";
      const auto expected = is_hb ? quorin::test::read_harwell_boeing(path, &type) : quorin::test::read_triplets(path);
      const int flags = expected.is_complex ? TAUCS_DCOMPLEX : TAUCS_DOUBLE;
      const Matrix A(is_hb ? taucs_ccs_read_hb(path.c_str(), flags)
                           : taucs_ccs_read_ijv_zero_based(path.c_str(), flags));
      ASSERT_NE(A, nullptr);
      // Triplet files name rows and columns the other way round.
      EXPECT_EQ(is_hb ? A->m : A->n, expected.rows);
      EXPECT_EQ(is_hb ? A->n : A->m, expected.columns);
      EXPECT_EQ(A->flags, flags | (type[1] == 'S' ? TAUCS_SYMMETRIC | TAUCS_LOWER : 0));
      Entries sorted;
      for (const auto& [i, j, value] : expected.entries) sorted.emplace_back(i, j, value.real(), value.imag());
      std::sort(sorted.begin(), sorted.end());
      EXPECT_TRUE(sorted == (expected.is_complex ? entries<Complex>(*A, expected.columns)
                                                 : entries<double>(*A, expected.columns)));
    }
  }
  EXPECT_GE(files, 25);
}

// A damaged copy: cut short, bytes exchanged for others, a piece repeated or left out.
std::string damaged(std::string text, std::mt19937& random) {
  const auto somewhere = [&] { return static_cast<std::size_t>(random() % std::max<std::size_t>(text.size(), 1)); };
  const auto near_the_front = [&] { return std::min<std::size_t>(somewhere(), random() % 400); };
  constexpr char kBytes[] = "0123456789-+.eEdD ()\n\t\0\xff%";
  for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
    switch (random() % 5) {
      case 0:
        text.resize(somewhere());
        break;
      case 1:
        text.insert(near_the_front(), text.substr(somewhere(), random() % 40));
        break;
      case 2:
        text.erase(near_the_front(), random() % 40);
        break;
      default:
        if (!text.empty()) text[random() % 3 ? near_the_front() : somewhere()] = kBytes[random() % (sizeof kBytes - 1)];
    }
  }
  return text;
}

void read_damaged(const char* reader, taucs_ccs_matrix* read(const char*, int), const std::string& original,
                  int rounds) {
  SCOPED_TRACE(reader);
  std::mt19937 random(17);
  const TemporaryFile file;
  int accepted = 0;
  for (int round = 0; round < rounds; ++round) {
    file.write(damaged(original, random));
    const Matrix A(read(file.name(), TAUCS_DOUBLE));
    if (A == nullptr) continue;
    ++accepted;
    expect_consistent(*A);
    // A product touches every entry that the record claims.
    const std::size_t size = static_cast<std::size_t>(std::max(A->n, A->m));
    if (size > 1000000) continue;
    const std::vector<Complex> x(size);
    std::vector<Complex> b(size);
    taucs_ccs_times_vec(A.get(), x.data(), b.data());
  }
  EXPECT_LT(accepted, rounds) << "no damage was found";
}

std::string content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(RealMatrices, DamagedCopiesDoNoHarm) {
  const char* const full = std::getenv("QUORIN_FULL_TESTS");
  const int rounds = full != nullptr && std::string(full) == "true" ? 20000 : 1000;
  for (const char* const name :
       {"cholmod/bcsstk01.rsa", "umfpack/can_24.psa", "umfpack/west0067.rua", "cholmod/lp_afiro.rra"}) {
    read_damaged(name, taucs_ccs_read_hb, content(matrix_file(name)), rounds);
  }
  read_damaged("ijv", taucs_ccs_read_ijv_zero_based, content(matrix_file("cxsparse/west0067")), rounds);
  read_damaged("mtx", taucs_ccs_read_mtx, "67 67 294\n" + content(matrix_file("cxsparse/lp_afiro")), rounds);

  const Matrix A(taucs_ccs_read_hb(matrix_file("umfpack/west0067.rua").c_str(), TAUCS_DOUBLE));
  ASSERT_NE(A, nullptr);
  const int nnz = A->colptr[A->n], head[] = {A->m, A->n, A->flags};
  const std::string binary =
      bytes_of(head, 3) + bytes_of(A->colptr, A->n + 1) + bytes_of(A->rowind, nnz) + bytes_of(A->values.d, nnz);
  read_damaged(
      "binary", [](const char* name, int) { return taucs_ccs_read_binary(name); }, binary, rounds);
  std::ostringstream ccs;
  ccs << A->n << '\n';
  for (int j = 0; j <= A->n; ++j) ccs << A->colptr[j] << '\n';
  for (int k = 0; k < nnz; ++k) ccs << A->rowind[k] << '\n';
  for (int k = 0; k < nnz; ++k) ccs << std::setprecision(17) << A->values.d[k] << '\n';
  read_damaged("ccs", taucs_ccs_read_ccs, ccs.str(), rounds);
}

}  // namespace
}  // namespace taucs_test
