// Matrices and vectors against dense arithmetic on whole numbers, where every order of summation gives the same result.
#include <ctime>

#include "tests/support/guarded.hpp"
#include "tests/support/standard.hpp"
#include "tests/taucs/taucs_host.hpp"

namespace taucs_test {
namespace {

static_assert(sizeof(void*) != 4 || sizeof(taucs_ccs_matrix) == 24);
static_assert(offsetof(taucs_ccs_matrix, n) == 0 && offsetof(taucs_ccs_matrix, m) == 4 &&
              offsetof(taucs_ccs_matrix, flags) == 8);

// Hosts keep flags in records, and in binary files.
static_assert(TAUCS_LOWER == 1 && TAUCS_UPPER == 2 && TAUCS_TRIANGULAR == 4 && TAUCS_SYMMETRIC == 8 &&
              TAUCS_HERMITIAN == 16 && TAUCS_PATTERN == 32 && TAUCS_INT == 1024 && TAUCS_DOUBLE == 2048 &&
              TAUCS_SINGLE == 4096 && TAUCS_DCOMPLEX == 8192 && TAUCS_SCOMPLEX == 16384);

// The typed routines under one name.
template <class T>
struct Typed {
  static constexpr auto create = taucs_dccs_create;
  static constexpr auto transpose = taucs_dccs_transpose;
  static constexpr auto permute_symmetrically = taucs_dccs_permute_symmetrically;
  static constexpr auto split = taucs_dccs_split;
  static constexpr auto times_vec = taucs_dccs_times_vec;
  static constexpr auto times_vec_many = taucs_dccs_times_vec_many;
  static constexpr auto augment = taucs_dccs_augment_nonpositive_offdiagonals;
  static constexpr auto create_vector = taucs_dvec_create;
  static constexpr auto axpby = taucs_dvec_axpby;
  static constexpr auto permute = taucs_dvec_permute;
  static constexpr auto ipermute = taucs_dvec_ipermute;
};
template <>
struct Typed<Complex> {
  static constexpr auto create = taucs_zccs_create;
  static constexpr auto transpose = taucs_zccs_transpose;
  static constexpr auto permute_symmetrically = taucs_zccs_permute_symmetrically;
  static constexpr auto split = taucs_zccs_split;
  static constexpr auto times_vec = taucs_zccs_times_vec;
  static constexpr auto times_vec_many = taucs_zccs_times_vec_many;
  static constexpr auto augment = taucs_zccs_augment_nonpositive_offdiagonals;
  static constexpr auto create_vector = taucs_zvec_create;
  static constexpr auto axpby = taucs_zvec_axpby;
  static constexpr auto permute = taucs_zvec_permute;
  static constexpr auto ipermute = taucs_zvec_ipermute;
};

constexpr int kStructures[] = {0, TAUCS_SYMMETRIC, TAUCS_HERMITIAN};
constexpr int kSizes[] = {0, 1, 2, 9, 40};

template <class T>
class TypedMatrices : public testing::Test {
 protected:
  // Calls check(A) for general, symmetric and Hermitian square matrices.
  template <class Check>
  void for_square_matrices(Check check) {
    for (const int structure : kStructures) {
      for (const int n : kSizes) {
        SCOPED_TRACE("structure " + std::to_string(structure) + ", n " + std::to_string(n));
        check(*random_matrix<T>(n, n, structure, random_));
      }
    }
  }
  std::mt19937 random_{7};
};
using Types = testing::Types<double, Complex>;
TYPED_TEST_SUITE(TypedMatrices, Types);

// Numbers as the headers declare them.
double* scalars(std::vector<double>& x) { return x.data(); }
const double* scalars(const std::vector<double>& x) { return x.data(); }
quorin_double_complex* scalars(std::vector<Complex>& x) { return reinterpret_cast<quorin_double_complex*>(x.data()); }
const quorin_double_complex* scalars(const std::vector<Complex>& x) {
  return reinterpret_cast<const quorin_double_complex*>(x.data());
}

// Whether two matrices are the same to the last bit of their records.
template <class T>
bool are_same(const Matrix& A, const Matrix& B) {
  if (A == nullptr || B == nullptr) return A == B;
  const int nnz = A->colptr[A->n];
  return A->n == B->n && A->m == B->m && A->flags == B->flags &&
         std::equal(A->colptr, A->colptr + A->n + 1, B->colptr) && std::equal(A->rowind, A->rowind + nnz, B->rowind) &&
         std::equal(values<T>(*A), values<T>(*A) + nnz, values<T>(*B));
}

template <class T>
std::vector<T> product(const Dense<T>& A, const T* x, int length) {
  std::vector<T> b(length);
  for (int j = 0; j < A.n; ++j) {
    for (int i = 0; i < A.m; ++i) b[i] += A.at(i, j) * x[j];
  }
  return b;
}

TYPED_TEST(TypedMatrices, Product) {
  const auto check = [&](const taucs_ccs_matrix& A) {
    const auto x = whole_vector<TypeParam>(A.n, this->random_);
    std::vector<TypeParam> b(std::max(A.m, A.n) + 1, TypeParam{77});
    // Of the rows beyond n only those with entries are the library's to clear.
    for (int i = A.n; i < A.m; ++i) b[i] = TypeParam{};
    std::vector<TypeParam> typed = b;
    taucs_ccs_times_vec(&A, x.data(), b.data());
    Typed<TypeParam>::times_vec(&A, scalars(x), scalars(typed));
    EXPECT_EQ(typed, b);
    EXPECT_EQ(b.back(), TypeParam{77});
    b.pop_back();
    EXPECT_EQ(b, product(Dense<TypeParam>(A), x.data(), std::max(A.m, A.n)));
  };
  this->for_square_matrices(check);
  // Many vectors, one behind the other.
  this->for_square_matrices([&](const taucs_ccs_matrix& A) {
    constexpr int kCount = 3;
    const auto X = whole_vector<TypeParam>(kCount * A.n, this->random_);
    std::vector<TypeParam> B(X.size(), TypeParam{77}), typed = B, expected(X.size());
    taucs_ccs_times_vec_many(&A, kCount, X.data(), B.data());
    Typed<TypeParam>::times_vec_many(&A, kCount, scalars(X), scalars(typed));
    for (int k = 0; k < kCount; ++k) taucs_ccs_times_vec(&A, X.data() + k * A.n, expected.data() + k * A.n);
    EXPECT_EQ(B, expected);
    EXPECT_EQ(typed, expected);
  });
  check(*random_matrix<TypeParam>(3, 20, 0, this->random_));
  check(*random_matrix<TypeParam>(20, 3, 0, this->random_));
  const Matrix tall = random_matrix<TypeParam>(20, 3, 0, this->random_);
  const std::vector<TypeParam> x(3, TypeParam{1});
  std::vector<TypeParam> once(20), twice(20);
  taucs_ccs_times_vec(tall.get(), x.data(), once.data());
  for (int i = 0; i < 2; ++i) taucs_ccs_times_vec(tall.get(), x.data(), twice.data());
  EXPECT_EQ(once, twice) << "rows beyond n must not add up from call to call";
}

TYPED_TEST(TypedMatrices, Transpose) {
  const auto check = [](const taucs_ccs_matrix& A) {
    const Matrix B(taucs_ccs_transpose(&A));
    ASSERT_NE(B, nullptr);
    EXPECT_TRUE(are_same<TypeParam>(B, Matrix(Typed<TypeParam>::transpose(&A))));
    const Dense<TypeParam> a(A), b(*B);
    ASSERT_EQ(b.m, a.n);
    ASSERT_EQ(b.n, a.m);
    for (int j = 0; j < a.n; ++j) {
      for (int i = 0; i < a.m; ++i) EXPECT_EQ(b.at(j, i), a.at(i, j));
    }
    for (int j = 0; j < B->n; ++j) {
      EXPECT_TRUE(std::is_sorted(B->rowind + B->colptr[j], B->rowind + B->colptr[j + 1]));
    }
    const bool is_triangle = A.flags & TAUCS_LOWER;
    EXPECT_EQ(B->flags, is_triangle ? (A.flags & ~TAUCS_LOWER) | TAUCS_UPPER : A.flags);
  };
  this->for_square_matrices(check);
  check(*random_matrix<TypeParam>(3, 20, 0, this->random_));
  check(*random_matrix<TypeParam>(20, 3, 0, this->random_));
}

TYPED_TEST(TypedMatrices, SymmetricPermutation) {
  this->for_square_matrices([&](const taucs_ccs_matrix& A) {
    std::vector<int> perm(A.n), invperm(A.n);
    std::iota(perm.begin(), perm.end(), 0);
    std::shuffle(perm.begin(), perm.end(), this->random_);
    for (int i = 0; i < A.n; ++i) invperm[perm[i]] = i;
    const Matrix B(taucs_ccs_permute_symmetrically(&A, perm.data(), invperm.data()));
    ASSERT_EQ(B != nullptr, (A.flags & TAUCS_LOWER) != 0);
    EXPECT_TRUE(
        are_same<TypeParam>(B, Matrix(Typed<TypeParam>::permute_symmetrically(&A, perm.data(), invperm.data()))));
    if (B == nullptr) return;
    EXPECT_EQ(B->flags, A.flags);
    const Dense<TypeParam> a(A), b(*B);
    for (int j = 0; j < A.n; ++j) {
      for (int i = 0; i < A.n; ++i) EXPECT_EQ(b.at(i, j), a.at(perm[i], perm[j]));
      for (int k = B->colptr[j]; k < B->colptr[j + 1]; ++k) EXPECT_GE(B->rowind[k], j);
    }
  });
}

TYPED_TEST(TypedMatrices, Augmentation) {
  this->for_square_matrices([&](const taucs_ccs_matrix& A) {
    const Matrix M(taucs_ccs_augment_nonpositive_offdiagonals(&A));
    ASSERT_EQ(M != nullptr, (A.flags & TAUCS_LOWER) != 0);
    EXPECT_TRUE(are_same<TypeParam>(M, Matrix(Typed<TypeParam>::augment(&A))));
    if (M == nullptr) return;
    EXPECT_EQ(M->flags, A.flags);
    ASSERT_EQ(M->n, 2 * A.n);
    const Dense<TypeParam> a(A), augmented(*M);
    for (int j = 0; j < A.n; ++j) {
      for (int i = 0; i < A.n; ++i) {
        const bool moves = i != j && std::real(a.at(i, j)) > 0;
        EXPECT_EQ(augmented.at(i, j), moves ? TypeParam{} : a.at(i, j));
        EXPECT_EQ(augmented.at(A.n + i, A.n + j), augmented.at(i, j));
        EXPECT_EQ(augmented.at(A.n + i, j), moves ? -a.at(i, j) : TypeParam{});
        EXPECT_EQ(augmented.at(i, A.n + j), augmented.at(A.n + i, j));
      }
    }
  });
}

TYPED_TEST(TypedMatrices, SplitKeepsEveryEntry) {
  for (const int structure : {TAUCS_SYMMETRIC, TAUCS_HERMITIAN}) {
    const Matrix A = random_matrix<TypeParam>(12, 12, structure, this->random_);
    for (const int p : {0, 5, 12}) {
      taucs_ccs_matrix *left = nullptr, *right = nullptr;
      taucs_ccs_split(A.get(), &left, &right, p);
      const Matrix L(left), R(right);
      ASSERT_TRUE(L != nullptr && R != nullptr);
      Typed<TypeParam>::split(A.get(), &left, &right, p);
      EXPECT_TRUE(are_same<TypeParam>(L, Matrix(left)) && are_same<TypeParam>(R, Matrix(right)));
      EXPECT_EQ(L->flags, kType<TypeParam> | TAUCS_LOWER);
      EXPECT_EQ(R->flags, A->flags);
      ASSERT_EQ(L->m, 12);
      ASSERT_EQ(L->n, p);
      ASSERT_EQ(R->n, 12 - p);
      A->flags = kType<TypeParam>;
      R->flags = kType<TypeParam>;
      const Dense<TypeParam> a(*A), l(*L), r(*R);
      for (int j = 0; j < 12; ++j) {
        for (int i = 0; i < 12; ++i) {
          const TypeParam there = j < p ? l.at(i, j) : i < p ? TypeParam{} : r.at(i - p, j - p);
          EXPECT_EQ(there, a.at(i, j));
        }
      }
      A->flags = R->flags | structure | TAUCS_LOWER;
    }
    for (const int p : {-1, 13}) {
      taucs_ccs_matrix *left = A.get(), *right = A.get();
      taucs_ccs_split(A.get(), &left, &right, p);
      EXPECT_TRUE(left == nullptr && right == nullptr);
    }
  }
}

TYPED_TEST(TypedMatrices, Vectors) {
  for (const int n : {0, 1, 7, 8, 9, 100}) {
    const auto x = whole_vector<TypeParam>(n, this->random_), y = whole_vector<TypeParam>(n, this->random_);
    std::vector<int> p(n);
    std::iota(p.begin(), p.end(), 0);
    std::shuffle(p.begin(), p.end(), this->random_);
    // Arrays of 32-bit hosts may lie at any multiple of 4.
    using Array = quorin::test::Guarded<TypeParam>;
    Array given(n, {}), permuted(n, {}), back(n, {}), sum(n, {});
    std::copy_n(x.begin(), n, given.data());
    std::copy_n(y.begin(), n, sum.data());
    taucs_vec_permute(n, kType<TypeParam>, given.data(), permuted.data(), p.data());
    taucs_vec_ipermute(n, kType<TypeParam>, permuted.data(), back.data(), p.data());
    taucs_vec_axpby(n, kType<TypeParam>, 2.0, given.data(), -3.0, sum.data(), sum.data());
    EXPECT_TRUE(given.intact() && permuted.intact() && back.intact() && sum.intact());
    std::vector<TypeParam> typed(n), typed_permuted(n);
    Typed<TypeParam>::permute(n, scalars(x), scalars(typed_permuted), p.data());
    Typed<TypeParam>::ipermute(n, scalars(typed_permuted), scalars(typed), p.data());
    EXPECT_EQ(typed, x);
    Typed<TypeParam>::axpby(n, 2.0, scalars(x), -3.0, scalars(y), scalars(typed));
    void* const typed_vector = Typed<TypeParam>::create_vector(n);
    ASSERT_NE(typed_vector, nullptr);
    std::free(typed_vector);
    double squares = 0;
    for (int i = 0; i < n; ++i) {
      const TypeParam expected = 2.0 * x[i] - 3.0 * y[i];
      EXPECT_TRUE(permuted[i] == x[p[i]] && typed_permuted[i] == x[p[i]] && back[i] == x[i]) << i;
      EXPECT_TRUE(sum[i] == expected && typed[i] == expected) << i;
      squares += std::norm(x[i]);
    }
    EXPECT_DOUBLE_EQ(taucs_vec_norm2(n, kType<TypeParam>, given.data()), std::sqrt(squares));
    auto* const made = static_cast<TypeParam*>(taucs_vec_create(n, kType<TypeParam>));
    ASSERT_NE(made, nullptr);
    std::copy(x.begin(), x.end(), made);
    std::free(made);
  }
}

// The typed routines leave the other type alone.
TYPED_TEST(TypedMatrices, OfTheOtherTypeAreRefused) {
  using Other = std::conditional_t<std::is_same_v<TypeParam, double>, Complex, double>;
  using Routines = Typed<TypeParam>;
  const Matrix empty(Routines::create(3, 2, 0)), A = random_matrix<Other>(4, 4, TAUCS_SYMMETRIC, this->random_);
  ASSERT_NE(empty, nullptr);
  EXPECT_TRUE(empty->m == 3 && empty->n == 2 && empty->flags == kType<TypeParam>);
  EXPECT_EQ(Routines::create(3, -1, 0), nullptr);
  EXPECT_EQ(Routines::create_vector(-1), nullptr);
  const std::vector<int> p = {0, 1, 2, 3};
  for (const taucs_ccs_matrix* matrix : {A.get(), static_cast<taucs_ccs_matrix*>(nullptr)}) {
    EXPECT_EQ(Routines::transpose(matrix), nullptr);
    EXPECT_EQ(Routines::permute_symmetrically(matrix, p.data(), p.data()), nullptr);
    EXPECT_EQ(Routines::augment(matrix), nullptr);
    taucs_ccs_matrix *left = A.get(), *right = A.get();
    Routines::split(matrix, &left, &right, 2);
    EXPECT_TRUE(left == nullptr && right == nullptr);
    const std::vector<TypeParam> x(4, TypeParam{1}), sevens(4, TypeParam{77});
    std::vector<TypeParam> b = sevens;
    Routines::times_vec(matrix, scalars(x), scalars(b));
    EXPECT_EQ(b, sevens);
  }
  taucs_dccs_free(nullptr);
}

// Records whose n and m are exchanged, as the readers of triplets leave them, and permutations that are none.
TYPED_TEST(TypedMatrices, WhoseEntriesLieBesideTheRecord) {
  const std::string imaginary = std::is_same_v<TypeParam, double> ? "\n" : " 0\n";
  const TemporaryFile file("5 1 5" + imaginary + "2 3 1" + imaginary);
  const Matrix tall(taucs_ccs_read_ijv(file.name(), kType<TypeParam>));
  ASSERT_TRUE(tall != nullptr && tall->n == 5 && tall->m == 3);
  const Matrix B(taucs_ccs_transpose(tall.get()));
  ASSERT_NE(B, nullptr);
  tall->m = 5;
  const Dense<TypeParam> a(*tall), b(*B);
  ASSERT_TRUE(b.m == 5 && b.n == 5);
  for (int j = 0; j < 5; ++j) {
    for (int i = 0; i < 5; ++i) EXPECT_EQ(b.at(j, i), a.at(i, j));
  }

  const Matrix A = random_matrix<TypeParam>(6, 6, TAUCS_SYMMETRIC, this->random_);
  std::vector<int> p = {0, 1, 2, 3, 4, 5}, inverse = p;
  for (const int wrong : {-1, 6}) {
    inverse[5] = wrong;
    EXPECT_EQ(taucs_ccs_permute_symmetrically(A.get(), p.data(), inverse.data()), nullptr);
  }
}

TEST(Matrices, SplitRefusesAnUpperEntry) {
  const TemporaryFile file("2 0 1 2 0 0 1.5 2.5");
  const Matrix A(taucs_ccs_read_ccs(file.name(), TAUCS_DOUBLE));
  ASSERT_NE(A, nullptr);
  taucs_ccs_matrix *left = nullptr, *right = nullptr;
  taucs_ccs_split(A.get(), &left, &right, 1);
  EXPECT_TRUE(left == nullptr && right == nullptr);
}

TEST(Vectors, NormAtTheEndsOfTheRange) {
  const auto norm = [](std::vector<double> v) {
    return taucs_vec_norm2(static_cast<int>(v.size()), TAUCS_DOUBLE, v.data());
  };
  EXPECT_DOUBLE_EQ(norm({3e300, 4e300}), 5e300);
  EXPECT_DOUBLE_EQ(norm({3e-300, 4e-300}), 5e-300);
  EXPECT_DOUBLE_EQ(norm({3e-200, 4e200, 3e200}), 5e200);
  EXPECT_DOUBLE_EQ(norm({1e-160, 1.0}), 1.0);
  EXPECT_DOUBLE_EQ(norm({5e-324, 0.0}), 5e-324);
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(norm({1.0, -infinity}), infinity);
  EXPECT_TRUE(std::isnan(norm({1.0, std::nan("")})));
  EXPECT_TRUE(std::isnan(norm({1e300, std::nan("")})));
  EXPECT_TRUE(std::isnan(norm({1e-300, std::nan("")})));
}

TEST(Matrices, RowsAreRenumberedInPlace) {
  std::mt19937 random(3);
  const Matrix A = random_matrix<double>(6, 4, 0, random);
  const Dense<double> before(*A);
  const int perm[] = {2, 0, 1, 5, 4, 3};
  taucs_ccs_permute_rows_inplace(A.get(), perm);
  const Dense<double> after(*A);
  for (int j = 0; j < 4; ++j) {
    for (int i = 0; i < 6; ++i) EXPECT_EQ(after.at(perm[i], j), before.at(i, j));
  }
  // Nothing is touched where a row, or what it would become, lies outside.
  const std::vector<int> rows(A->rowind, A->rowind + A->colptr[4]);
  const auto expect_unchanged = [&](const int* permutation) {
    taucs_ccs_permute_rows_inplace(A.get(), permutation);
    EXPECT_EQ(std::vector<int>(A->rowind, A->rowind + A->colptr[4]), rows);
  };
  for (const int wrong : {-1, 6}) {
    std::vector<int> permutation(perm, perm + 6);
    permutation[rows.back()] = wrong;
    expect_unchanged(permutation.data());
  }
  const int largest = *std::max_element(rows.begin(), rows.end());
  A->m = largest;
  expect_unchanged(std::vector<int>(perm, perm + largest).data());
  A->m = 6;
}

TEST(Matrices, CreationNeedsATypeAndMemory) {
  for (const int flags : {0, int{TAUCS_SINGLE}, TAUCS_SCOMPLEX | TAUCS_SYMMETRIC, int{TAUCS_INT}}) {
    EXPECT_EQ(taucs_ccs_create(2, 2, 2, flags), nullptr);
    EXPECT_EQ(taucs_vec_create(2, flags), nullptr);
  }
  EXPECT_EQ(taucs_ccs_create(2, -1, 2, TAUCS_DOUBLE), nullptr);
  EXPECT_EQ(taucs_ccs_create(2, 2, -1, TAUCS_DOUBLE), nullptr);
  EXPECT_EQ(taucs_vec_create(-1, TAUCS_DOUBLE), nullptr);
  if (sizeof(void*) == 4) {  // more than there are addresses
    const int most = std::numeric_limits<int>::max();
    EXPECT_EQ(taucs_ccs_create(2, 2, most, TAUCS_DOUBLE), nullptr);
    EXPECT_EQ(taucs_ccs_create(2, most, 2, TAUCS_DOUBLE), nullptr);
    EXPECT_EQ(taucs_vec_create(most, TAUCS_DCOMPLEX), nullptr);
  }
  const Matrix A(taucs_ccs_create(3, 2, 0, TAUCS_DCOMPLEX | TAUCS_PATTERN));
  ASSERT_NE(A, nullptr);
  EXPECT_EQ(A->m, 3);
  EXPECT_EQ(A->n, 2);
  EXPECT_EQ(A->flags, TAUCS_DCOMPLEX | TAUCS_PATTERN);
  taucs_ccs_free(nullptr);
}

TEST(Services, AnswerAsPublished) {
  EXPECT_EQ(taucs_ctime(), 0.0);
  EXPECT_EQ(taucs_maximize_stacksize(), -1);
  const double now = taucs_wtime();
  EXPECT_TRUE(now >= 0 && now < 86400);
  const auto utc = static_cast<double>(std::time(nullptr) % 86400);
  EXPECT_LT(std::remainder(now - utc, 86400), 3);
  EXPECT_GT(std::remainder(now - utc, 86400), -3);
  const double total = taucs_system_memory_size();
  EXPECT_GT(total, 64e6);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // these touch what is only reserved
  const double available = taucs_available_memory_size();
  EXPECT_GT(available, 1e6);
  EXPECT_LE(available, total);
#endif
  for (const std::string& name : {std::string("stdout"), std::string("taucs.log"), std::string(5000, 'x')}) {
    taucs_logfile(name.c_str());
  }
}

}  // namespace
}  // namespace taucs_test
