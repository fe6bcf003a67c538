// Arrays that end, or begin, at pages which cannot be accessed; and such pages in the place of what a phase has no
// business with. A fault ends the program.
#include <cstring>

#include "tests/pardiso/systems.hpp"
#include "tests/support/guarded_pages.hpp"

namespace pardiso_test {
namespace {

using quorin::test::Edge;
using quorin::test::FaultReport;
using quorin::test::GuardedPages;

constexpr std::size_t kRoom = 4096;

// An array at an edge of its pages.
template <class T>
class Paged {
 public:
  Paged(const std::vector<T>& values, Edge edge) : pages_(kRoom), count_(values.size()) {
    void* const place = pages_.place(count_ * sizeof(T), edge);
    if (count_ > 0) std::memcpy(place, values.data(), count_ * sizeof(T));
  }
  T* data() const { return static_cast<T*>(pages_.data()); }
  std::vector<T> values() const {
    std::vector<T> copy(count_);
    std::memcpy(copy.data(), data(), count_ * sizeof(T));
    return copy;
  }
  // What faults when it is read or written.
  T* outside() const { return data() + count_; }
  bool intact() const { return pages_.intact(); }

 private:
  GuardedPages pages_;
  std::size_t count_;
};

// What a phase touches, beside pt, iparm and scalars.
struct Touched {
  bool a, vectors;
};

// What a phase does not touch is such a page, or null.
template <class T>
void expect_solved_on_pages(const System& system, int base, Edge edge, bool is_null) {
  Host<T> host(system.matrix, base);
  const Paged<void*> pt(std::vector<void*>(host.pt.begin(), host.pt.end()), edge);
  const Paged<std::int32_t> iparm({host.iparm.begin(), host.iparm.end()}, edge), ia(host.ia, edge), ja(host.ja, edge);
  const Paged<T> a(host.a, edge), b(host.b, edge), x(host.x, edge);
  const Paged<std::int32_t> nothing({0}, Edge::kBack);
  const auto unused = [&] { return is_null ? nullptr : static_cast<void*>(nothing.outside()); };
  const auto call = [&](std::int32_t phase, Touched touched) {
    const std::string what = system.name + ", phase " + std::to_string(phase);
    FaultReport::begin(what.c_str());
    const bool computes = phase > 0, reads_rows = computes && !(is_null && phase == 33);
    auto* const none = static_cast<std::int32_t*>(unused());
    // A phase may look at any number that there is.
    const auto number = [&](const std::int32_t* given, bool is_needed) {
      return is_needed || !is_null ? given : nullptr;
    };
    std::int32_t error = 7;
    PARDISO(pt.data(), number(&host.maxfct, computes), number(&host.mnum, phase != -1), number(&host.mtype, computes),
            &phase, number(&host.n, computes), touched.a ? a.data() : unused(), reads_rows ? ia.data() : none,
            reads_rows ? ja.data() : none, none, touched.vectors ? &host.nrhs : none, computes ? iparm.data() : none,
            number(&host.msglvl, false), touched.vectors ? b.data() : unused(), touched.vectors ? x.data() : unused(),
            &error);
    EXPECT_EQ(error, 0) << what;
  };
  const bool is_matched = host.cell(13) != 0;
  call(11, {is_matched, false});
  call(22, {true, false});
  call(33, {false, true});
  EXPECT_EQ(b.values(), host.b) << system.name;
  EXPECT_LT(backward_error(system.matrix, host, host.b, x.values()), 1e3 * kEpsilon<T>) << system.name;
  for (const std::int32_t phase : {0, -1}) call(phase, {false, false});
  EXPECT_TRUE(pt.intact() && iparm.intact() && ia.intact() && ja.intact() && a.intact() && b.intact() && x.intact());
}

TEST(Pages, EachPhaseTouchesOnlyWhatIsItsOwn) {
  for (const System& system : systems()) {
    for (const Edge edge : {Edge::kFront, Edge::kBack}) {
      for (const int variant : {0, 1, 2}) {
        in_both_precisions(system.matrix.mtype,
                           [&]<class T> { expect_solved_on_pages<T>(system, variant % 2, edge, variant == 2); });
      }
    }
  }
}

// Arrays as long as what they are for, and no longer: permutations, flags, Schur complements, diagonals, blocks.
struct Use {
  const char* what;
  std::size_t cell;
  int value;
  std::vector<std::int32_t> perm;  // empty: not touched
  std::size_t complement = 0;      // elements of x in the factorization
};

void expect_inside_of_pages(const Matrix& A, const Use& use, Edge edge) {
  FaultReport::begin(use.what);
  Host<double> host(A);
  host.cell(11) = host.cell(13) = 0;
  host.cell(use.cell) = use.value;
  const std::size_t equations = host.n * static_cast<std::size_t>(std::max(host.cell(37), 1));
  const Paged<std::int32_t> ia(host.ia, edge), ja(host.ja, edge), perm(use.perm, edge);
  const std::vector<double> values(equations, 1.0);
  const Paged<double> a(host.a, edge), b(values, edge), x(values, edge),
      complement(std::vector<double>(use.complement), edge);
  const Paged<double> nothing({0}, Edge::kBack);
  double* const unused = nothing.outside();
  const auto call = [&](std::int32_t phase, double* target) {
    std::int32_t error = 7;
    PARDISO(host.pt.data(), &host.maxfct, &host.mnum, &host.mtype, &phase, &host.n, a.data(), ia.data(), ja.data(),
            use.perm.empty() ? reinterpret_cast<std::int32_t*>(unused) : perm.data(), &host.nrhs, host.iparm.data(),
            &host.msglvl, b.data(), target, &error);
    EXPECT_EQ(error, 0) << use.what << ", phase " << phase;
  };
  call(11, unused);
  call(22, use.complement == 0 ? unused : complement.data());
  if (use.cell != 36 || use.value != 1) {
    call(33, use.cell == 6 ? unused : x.data());
    for (const std::int32_t phase : {331, 332, 333}) call(phase, use.cell == 6 ? unused : x.data());
  }
  if (use.cell == 56) {
    const Paged<double> df(values, edge), da(values, edge);
    std::int32_t error = 7;
    pardiso_getdiag(host.pt.data(), df.data(), da.data(), &host.mnum, &error);
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(df.intact() && da.intact());
  }
  call(-1, unused);
  EXPECT_TRUE(ia.intact() && ja.intact() && perm.intact() && a.intact() && b.intact() && x.intact() &&
              complement.intact())
      << use.what;
}

TEST(Pages, ArraysNeedNotBeLonger) {
  const std::vector<std::int32_t> order = {8, 7, 6, 5, 4, 3, 2, 1}, flags = {0, 0, 1, 0, 0, 0, 1, 1};
  const Matrix blocks = {11, {1, 3, 5}, {1, 2, 1, 2}, {10, 1, 2, 12, 3, 0, 4, 1, 0, 1, 2, 0, 9, 3, 1, 8}};
  for (const Edge edge : {Edge::kFront, Edge::kBack}) {
    for (const Matrix& A : {definite8(), indefinite8(), unsymmetric8()}) {
      for (const Use& use : {Use{"a permutation", 5, 1, order}, Use{"a permutation to be written", 5, 2, order},
                             Use{"a solution in b", 6, 1, {}}, Use{"partial solution 1", 31, 1, flags},
                             Use{"partial solution 2", 31, 2, flags}, Use{"partial solution 3", 31, 3, flags},
                             Use{"a Schur complement", 36, 1, flags, 9},
                             Use{"a Schur complement and factors", 36, 2, flags, 9}, Use{"diagonals", 56, 1, {}}}) {
        expect_inside_of_pages(A, use, edge);
      }
    }
    expect_inside_of_pages(blocks, {"blocks", 37, 2, {}}, edge);
  }
}

}  // namespace
}  // namespace pardiso_test
