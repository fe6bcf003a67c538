// Orderings by name: which matrices each takes, and that those of the dependencies answer as when called directly.
#include <amd.h>
#include <colamd.h>
#include <metis.h>

#include "tests/taucs/systems.hpp"

namespace taucs_test {
namespace {

struct Ordering {
  Ordering(const taucs_ccs_matrix* A, const char* name) {
    // Both are set in any case.
    perm = inverse = reinterpret_cast<int*>(this);
    taucs_ccs_order(A, &perm, &inverse, name);
  }
  Ordering(const Ordering&) = delete;
  Ordering& operator=(const Ordering&) = delete;
  ~Ordering() {
    std::free(perm);
    std::free(inverse);
  }

  bool is_null() const { return perm == nullptr && inverse == nullptr; }
  bool is_valid(int n) const {
    if (perm == nullptr || inverse == nullptr) return false;
    std::set<int> indices;
    for (int k = 0; k < n; ++k) {
      if (perm[k] < 0 || perm[k] >= n || inverse[perm[k]] != k) return false;
      indices.insert(perm[k]);
    }
    return static_cast<int>(indices.size()) == n;
  }
  std::vector<int> indices(int n) const { return {perm, perm + n}; }

  int *perm, *inverse;
};

constexpr int kLowerSymmetric = TAUCS_DOUBLE | kSymmetricLower;

Matrix pattern(int m, int flags, const std::vector<std::vector<int>>& columns) {
  int nnz = 0;
  for (const auto& column : columns) nnz += static_cast<int>(column.size());
  Matrix A(taucs_ccs_create(m, static_cast<int>(columns.size()), nnz, flags));
  A->colptr[0] = 0;
  for (int j = 0, k = 0; j < A->n; ++j) {
    for (const int i : columns[j]) A->rowind[k++] = i;
    A->colptr[j + 1] = k;
  }
  return A;
}

Matrix grid(int structure) { return record<double>(quorin::test::grid(7, 5, 1), structure); }

const char* const kSymmetricOrderings[] = {"camd", "metis", "genmmd", "tree"};

TEST(Orderings, TakeTheMatricesThatTheyAreFor) {
  const Matrix symmetric = grid(kSymmetricLower), hermitian = grid(0);
  hermitian->flags = TAUCS_DCOMPLEX | kHermitianLower;
  const Matrix general = grid(0), upper = grid(TAUCS_SYMMETRIC | TAUCS_UPPER);
  for (const char* name : kSymmetricOrderings) {
    EXPECT_TRUE(Ordering(symmetric.get(), name).is_valid(35)) << name;
    EXPECT_TRUE(Ordering(hermitian.get(), name).is_valid(35)) << name;
    EXPECT_TRUE(Ordering(general.get(), name).is_null()) << name;
    EXPECT_TRUE(Ordering(upper.get(), name).is_null()) << name;
  }
  for (const taucs_ccs_matrix* A : {symmetric.get(), hermitian.get(), upper.get()}) {
    EXPECT_TRUE(Ordering(A, "colamd").is_null());
  }
  EXPECT_TRUE(Ordering(general.get(), "colamd").is_valid(35));
  for (const taucs_ccs_matrix* A : {symmetric.get(), hermitian.get(), general.get(), upper.get()}) {
    const Ordering random(A, "random"), identity(A, "identity");
    EXPECT_TRUE(random.is_valid(35));
    EXPECT_NE(random.indices(35), identity.indices(35));
    for (int i = 0; i < 35; ++i) EXPECT_TRUE(identity.perm[i] == i && identity.inverse[i] == i);
    for (const char* name : {"amd", "amdbar", "md", "METIS", "Metis", "metis ", "", "meti", "genmmd2", "COLAMD"}) {
      EXPECT_TRUE(Ordering(A, name).is_null()) << name;
    }
  }
  EXPECT_TRUE(Ordering(nullptr, "identity").is_null());
  EXPECT_TRUE(Ordering(symmetric.get(), nullptr).is_null());
}

TEST(Orderings, OfMatricesAtTheEdge) {
  const Matrix matrices[] = {
      pattern(0, kLowerSymmetric, {}),
      pattern(1, kLowerSymmetric, {{}}),
      pattern(1, kLowerSymmetric, {{0, 0}}),
      pattern(500, kLowerSymmetric, std::vector<std::vector<int>>(500)),
      // Unsorted, repeated, empty, and with entries above the diagonal.
      pattern(6, kLowerSymmetric, {{5, 0, 5, 2}, {}, {4, 2, 0}, {3, 3}, {}, {1, 5}}),
  };
  for (const Matrix& A : matrices) {
    for (const char* name : {"camd", "metis", "genmmd", "tree", "random", "identity"}) {
      EXPECT_TRUE(Ordering(A.get(), name).is_valid(A->n)) << name << ' ' << A->n;
    }
  }
  const Matrix rectangular[] = {pattern(2, TAUCS_DOUBLE, {{0}, {}, {1, 0}, {1}, {1, 1, 0}}),
                                pattern(7, TAUCS_DCOMPLEX, {{6, 2}, {}, {0, 1, 2, 3, 4, 5, 6}}),
                                pattern(3, TAUCS_DOUBLE, {})};
  for (const Matrix& A : rectangular) {
    for (const char* name : {"colamd", "random", "identity"}) {
      EXPECT_TRUE(Ordering(A.get(), name).is_valid(A->n)) << name << ' ' << A->n;
    }
  }
}

// The last diagonal entry of a symmetric file may be missing: n is its order, m less.
TEST(Orderings, OfRecordsWithFewerColumnsThanRows) {
  const TemporaryFile triangle("4 4 6\n1 1 2\n2 1 1\n3 2 1\n4 3 1\n"), general("1 1 2\n4 1 1\n3 2 1\n");
  const Matrix A(taucs_ccs_read_mtx(triangle.name(), TAUCS_DOUBLE | TAUCS_SYMMETRIC));
  const Matrix B(taucs_ccs_read_ijv(general.name(), TAUCS_DOUBLE));
  ASSERT_TRUE(A != nullptr && A->n == 4 && A->m == 3 && B != nullptr && B->n == 4 && B->m == 2);
  for (const char* name : kSymmetricOrderings) EXPECT_TRUE(Ordering(A.get(), name).is_valid(4)) << name;
  EXPECT_TRUE(Ordering(B.get(), "colamd").is_valid(4));
}

// AMD, METIS and COLAMD, called here.
TEST(Orderings, OfTheDependenciesAreTheirs) {
  std::vector<SparseMatrix> matrices = quorin::test::from_applications(QUORIN_MATRICES_DIR);
  matrices.push_back(quorin::test::grid(100, 90, 1));
  matrices.push_back(quorin::test::grid(19, 18, 17));
  for (SparseMatrix& pattern : matrices) {
    SCOPED_TRACE(pattern.name);
    const Matrix general = record<double>(pattern, 0);
    int n = general->n;
    std::vector<int> theirs(n), inverse(n);
    std::vector<int> starts(general->colptr, general->colptr + n + 1),
        rows(general->rowind, general->rowind + starts[n]);
    rows.resize(colamd_recommended(starts[n], n, n));
    std::array<int, COLAMD_STATS> stats{};
    ASSERT_TRUE(colamd(n, n, static_cast<int>(rows.size()), rows.data(), starts.data(), nullptr, stats.data()));
    EXPECT_EQ(Ordering(general.get(), "colamd").indices(n), std::vector<int>(starts.begin(), starts.begin() + n));

    std::erase_if(pattern.entries, [](const auto& e) { return e.row < e.column; });
    const Matrix A = record<double>(pattern, kSymmetricLower);
    ASSERT_EQ(amd_order(n, A->colptr, A->rowind, theirs.data(), nullptr, nullptr), AMD_OK);
    EXPECT_EQ(Ordering(A.get(), "camd").indices(n), theirs);
    std::erase_if(pattern.entries, [](const auto& e) { return e.row == e.column; });
    pattern.mirror();
    auto graph = compressed_columns(pattern);
    if (graph.indices.empty()) continue;
    ASSERT_EQ(
        METIS_NodeND(&n, graph.starts.data(), graph.indices.data(), nullptr, nullptr, theirs.data(), inverse.data()),
        METIS_OK);
    const Ordering metis(A.get(), "metis");
    EXPECT_EQ(metis.indices(n), theirs);
    EXPECT_TRUE(metis.is_valid(n));
  }
}

}  // namespace
}  // namespace taucs_test
