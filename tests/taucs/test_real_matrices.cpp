// The matrices that come with the dependencies, read by the library and by Python (make_reference.py), and thousands of
// damaged copies of them.
#include <iomanip>

#include "tests/support/standard.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

std::string matrix_file(const std::string& name) { return std::string(QUORIN_MATRICES_DIR) + "/" + name; }

struct Checksums {
  std::uint64_t pattern = 0, values = 0;
  bool operator==(const Checksums&) const = default;
};

// Of an n-column record, in storage order.
template <class T>
Checksums checksums(const taucs_ccs_matrix& A, int n) {
  Checksums sums;
  for (int j = 0; j < n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const auto weight = static_cast<std::uint64_t>(k) + 1;
      sums.pattern +=
          weight * ((static_cast<std::uint64_t>(A.rowind[k]) + 1) * 1000003 + static_cast<std::uint64_t>(j) + 1);
      const T value = values<T>(A)[k];
      std::uint64_t bits = std::bit_cast<std::uint64_t>(std::real(value));
      if constexpr (!std::is_same_v<T, double>) bits += 3 * std::bit_cast<std::uint64_t>(value.imag());
      sums.values += weight * bits;
    }
  }
  return sums;
}

// 's' for A = A^T, 'h' for A = A^H, else '-', of the full matrix.
template <class T>
char symmetry(const taucs_ccs_matrix& A) {
  std::map<std::pair<int, int>, T> full;
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const int i = A.rowind[k];
      full[{i, j}] += values<T>(A)[k];
      if (i != j && (A.flags & TAUCS_SYMMETRIC)) full[{j, i}] += values<T>(A)[k];
    }
  }
  const auto mirrored = [&](auto mirror) {
    return std::all_of(full.begin(), full.end(), [&](const auto& entry) {
      const auto other = full.find({entry.first.second, entry.first.first});
      return other != full.end() && mirror(other->second) == entry.second;
    });
  };
  if (mirrored([](T x) { return x; })) return 's';
  return mirrored([](T x) { return conjugate(x); }) ? 'h' : '-';
}

TEST(RealMatrices, AsPythonReadsThem) {
  std::ifstream reference(QUORIN_TAUCS_REFERENCE);
  std::string form, name, type, expected_symmetry;
  int m = 0, n = 0, nnz = 0, files = 0;
  Checksums expected;
  while (reference >> form >> name >> type >> m >> n >> nnz >> expected_symmetry >> std::hex >> expected.pattern >>
         expected.values >> std::dec) {
    SCOPED_TRACE(name);
    ++files;
    const bool is_complex = type == "z", is_hb = form == "hb";
    const int flags = is_complex ? TAUCS_DCOMPLEX : TAUCS_DOUBLE;
    const std::string path = matrix_file(name);
    const Matrix A(is_hb ? taucs_ccs_read_hb(path.c_str(), flags) : taucs_ccs_read_ijv_zero_based(path.c_str(), flags));
    ASSERT_NE(A, nullptr);
    // Triplet files name rows and columns the other way round.
    EXPECT_EQ(is_hb ? A->m : A->n, m);
    EXPECT_EQ(is_hb ? A->n : A->m, n);
    EXPECT_EQ(A->colptr[n], nnz);
    EXPECT_EQ(is_complex ? checksums<Complex>(*A, n) : checksums<double>(*A, n), expected);
    const bool is_square = m == n;
    EXPECT_EQ(!is_square ? '-' : is_complex ? symmetry<Complex>(*A) : symmetry<double>(*A), expected_symmetry[0]);
    const std::size_t dot = name.rfind('.');
    const bool is_one_triangle = is_hb && name[dot + 2] == 's';
    EXPECT_EQ(A->flags, flags | (is_one_triangle ? TAUCS_SYMMETRIC | TAUCS_LOWER : 0));
  }
  EXPECT_GE(files, 25);
}

TEST(RealMatrices, WrittenAndReadBack) {
  for (const char* const name : {"cholmod/bcsstk01.rsa", "umfpack/arc130.rua"}) {
    const Matrix A(taucs_ccs_read_hb(matrix_file(name).c_str(), TAUCS_DOUBLE));
    ASSERT_NE(A, nullptr);
    const TemporaryFile file;
    ASSERT_EQ(taucs_ccs_write_ijv(A.get(), file.name()), 0);
    const Matrix B(taucs_ccs_read_ijv(file.name(), A->flags));
    ASSERT_NE(B, nullptr);
    EXPECT_EQ(B->flags, A->flags);
    ASSERT_EQ(B->n, A->n);
    EXPECT_EQ(checksums<double>(*B, B->n), checksums<double>(*A, A->n)) << name;
  }
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
