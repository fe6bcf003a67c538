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
    std::memcpy(pages_.place(count_ * sizeof(T), edge), values.data(), count_ * sizeof(T));
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

template <class T>
void expect_solved_on_pages(const System& system, int base, Edge edge) {
  Host<T> host(system.matrix, base);
  std::transform(system.cases[0].b.begin(), system.cases[0].b.end(), host.b.begin(), from<T>);
  const Paged<void*> pt(std::vector<void*>(host.pt.begin(), host.pt.end()), edge);
  const Paged<std::int32_t> iparm({host.iparm.begin(), host.iparm.end()}, edge), ia(host.ia, edge), ja(host.ja, edge);
  const Paged<T> a(host.a, edge), b(host.b, edge), x(host.x, edge);
  const Paged<std::int32_t> nothing({0}, Edge::kBack);
  const auto unused = [&nothing] { return static_cast<void*>(nothing.outside()); };
  const auto call = [&](std::int32_t phase, Touched touched) {
    const std::string what = system.name + ", phase " + std::to_string(phase);
    FaultReport::begin(what.c_str());
    const bool reads_rows = phase > 0;
    auto* const rows = static_cast<std::int32_t*>(unused());
    std::int32_t error = 7;
    PARDISO(pt.data(), &host.maxfct, &host.mnum, &host.mtype, &phase, &host.n, touched.a ? a.data() : unused(),
            reads_rows ? ia.data() : rows, reads_rows ? ja.data() : rows, rows,
            touched.vectors ? &host.nrhs : static_cast<std::int32_t*>(unused()), reads_rows ? iparm.data() : rows,
            &host.msglvl, touched.vectors ? b.data() : unused(), touched.vectors ? x.data() : unused(), &error);
    EXPECT_EQ(error, 0) << what;
  };
  const bool is_matched = host.cell(13) != 0;
  call(11, {is_matched, false});
  call(22, {true, false});
  call(33, {false, true});
  EXPECT_EQ(b.values(), host.b) << system.name;
  const std::vector<T> solution = x.values();
  for (std::size_t i = 0; i < solution.size(); ++i) {
    EXPECT_NEAR(std::abs(Complex(solution[i]) - system.cases[0].x[i]), 0.0,
                100 * kEpsilon<T> * system.condition * (1 + std::abs(system.cases[0].x[i])))
        << system.name;
  }
  for (const std::int32_t phase : {0, -1}) call(phase, {false, false});
  EXPECT_TRUE(pt.intact() && iparm.intact() && ia.intact() && ja.intact() && a.intact() && b.intact() && x.intact());
}

TEST(Pages, EachPhaseTouchesOnlyWhatIsItsOwn) {
  for (const System& system : systems()) {
    for (const Edge edge : {Edge::kFront, Edge::kBack}) {
      for (const int base : {0, 1}) {
        in_both_precisions(system.matrix.mtype, [&]<class T> { expect_solved_on_pages<T>(system, base, edge); });
      }
    }
  }
}

}  // namespace
}  // namespace pardiso_test
