// Orderings by name: which matrices each takes, and that METIS and AMD answer as when called directly.
#include <amd.h>
#include <metis.h>

#include <set>

#include "tests/support/sparse.hpp"
#include "tests/taucs/taucs_host.hpp"

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

constexpr int kLowerSymmetric = TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_LOWER;

Matrix grid(int a, int b, int c, int flags = kLowerSymmetric) {
  const auto arrays = compressed_columns(quorin::test::grid(a, b, c));
  Matrix A(taucs_ccs_create(a * b * c, a * b * c, static_cast<int>(arrays.indices.size()), flags));
  std::copy(arrays.starts.begin(), arrays.starts.end(), A->colptr);
  std::copy(arrays.indices.begin(), arrays.indices.end(), A->rowind);
  return A;
}

const char* const kSymmetricOrderings[] = {"camd", "metis", "genmmd", "tree"};

TEST(Orderings, TakeTheMatricesThatTheyAreFor) {
  const Matrix symmetric = grid(7, 5, 1), hermitian = grid(7, 5, 1, TAUCS_DCOMPLEX | TAUCS_HERMITIAN | TAUCS_LOWER);
  const Matrix general = grid(7, 5, 1, TAUCS_DOUBLE),
               upper = grid(7, 5, 1, TAUCS_DOUBLE | TAUCS_SYMMETRIC | TAUCS_UPPER);
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

TEST(Orderings, RefusePatternsThatAreNone) {
  std::vector<Matrix> matrices;
  matrices.push_back(pattern(2, kLowerSymmetric, {{0}, {2}}));
  matrices.push_back(pattern(2, kLowerSymmetric, {{0, -1}, {1}}));
  matrices.push_back(pattern(3, kLowerSymmetric, {{0}, {1}}));
  matrices.push_back(pattern(2, kLowerSymmetric, {{0}, {1}}));
  matrices.back()->colptr[1] = 3;
  for (Matrix& A : matrices) {
    for (const char* name : kSymmetricOrderings) EXPECT_TRUE(Ordering(A.get(), name).is_null()) << name;
    A->flags = TAUCS_DOUBLE;
    EXPECT_TRUE(A->m != A->n || Ordering(A.get(), "colamd").is_null());
  }
}

// METIS and AMD, called here.
TEST(Orderings, OfTheDependenciesAreTheirs) {
  for (const Matrix& A : {grid(100, 90, 1), grid(9, 8, 7)}) {
    int n = A->n;
    std::vector<int> theirs(n), inverse(n);
    ASSERT_EQ(amd_order(n, A->colptr, A->rowind, theirs.data(), nullptr, nullptr), AMD_OK);
    EXPECT_EQ(Ordering(A.get(), "camd").indices(n), theirs);

    std::vector<std::set<int>> neighbours(n);
    for (int j = 0; j < n; ++j) {
      for (int k = A->colptr[j]; k < A->colptr[j + 1]; ++k) {
        if (const int i = A->rowind[k]; i != j) neighbours[i].insert(j), neighbours[j].insert(i);
      }
    }
    std::vector<int> starts = {0}, adjacency;
    for (const auto& list : neighbours) {
      adjacency.insert(adjacency.end(), list.begin(), list.end());
      starts.push_back(static_cast<int>(adjacency.size()));
    }
    ASSERT_EQ(METIS_NodeND(&n, starts.data(), adjacency.data(), nullptr, nullptr, theirs.data(), inverse.data()),
              METIS_OK);
    const Ordering metis(A.get(), "metis");
    EXPECT_EQ(metis.indices(n), theirs);
    EXPECT_TRUE(metis.is_valid(n));
  }
}

}  // namespace
}  // namespace taucs_test
