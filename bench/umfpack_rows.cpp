// What floats cost: UMFPACK's float interface beside the double one that it stands on.
#include <array>
#include <complex>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/suite.hpp"
#include "bench/umfpack_double.hpp"

namespace quorin::bench {
namespace {

void require_solved(int status) {
  if (status != 0) throw std::runtime_error("UMFPACK returns " + std::to_string(status));
}

// Free memory in the midst of the heap, as in a host that has worked for a while. A heap whose last blocks are freed
// gives their pages back and takes them again at the next call; which side that meets is a matter of where its blocks
// happen to lie, and for small systems it is a fifth of the time.
class HeapRoom {
 public:
  HeapRoom() {
    for (std::vector<char>& block : blocks_) block.resize(400000);
    for (std::size_t i = 0; i + 1 < blocks_.size(); ++i) std::vector<char>().swap(blocks_[i]);
  }

 private:
  std::array<std::vector<char>, 13> blocks_;
};

class FloatSolution {
 public:
  FloatSolution(const quorin_library& library, const test::SparseMatrix& a)
      : u_(library), a_(compressed_columns(a)), re_(a_.re.begin(), a_.re.end()), im_(a_.im.begin(), a_.im.end()) {
    b_.assign(static_cast<std::size_t>(a.rows), 1.0F);
    x_ = z_ = b_;
  }

  void operator()() {
    void *symbolic = nullptr, *numeric = nullptr;
    const int n = static_cast<int>(b_.size()), *const starts = a_.starts.data(), *const rows = a_.indices.data();
    const float *const re = re_.data(), *const im = im_.data(), *const b = b_.data();
    int status = 0;
    if (!im_.empty()) {
      u_.umfpack_zi_symbolic(n, n, starts, rows, re, im, &symbolic, nullptr, info_);
      u_.umfpack_zi_numeric(starts, rows, re, im, symbolic, &numeric, nullptr, info_);
      status = u_.umfpack_zi_solve(0, starts, rows, re, im, x_.data(), z_.data(), b, b, numeric, nullptr, info_);
    } else {
      u_.umfpack_di_symbolic(n, n, starts, rows, re, &symbolic, nullptr, info_);
      u_.umfpack_di_numeric(starts, rows, re, symbolic, &numeric, nullptr, info_);
      status = u_.umfpack_di_solve(0, starts, rows, re, x_.data(), b, numeric, nullptr, info_);
    }
    u_.umfpack_di_free_symbolic(&symbolic);
    u_.umfpack_di_free_numeric(&numeric);
    require_solved(status);
  }

 private:
  const quorin_library& u_;
  test::CompressedArrays a_;
  std::vector<float> re_, im_, b_, x_, z_;
  HeapRoom room_;
  float info_[90] = {};
};

class DoubleSolution {
 public:
  explicit DoubleSolution(const test::SparseMatrix& a)
      : a_(compressed_columns(a)), b_(static_cast<std::size_t>(a.rows), 1.0) {
    x_ = z_ = b_;
  }
  void operator()() { require_solved(solve_with_umfpack(a_, b_, x_, z_)); }

 private:
  test::CompressedArrays a_;
  std::vector<double> b_, x_, z_;
  HeapRoom room_;
};

void add_rows(Suite& suite, const std::string& name, test::SparseMatrix a) {
  // Both sides solve the same system, else one may need a step of refinement more.
  for (test::Entry& e : a.entries) e.value = std::complex<float>(e.value);
  const Row row{"umfpack", name, a.rows, 1, 500.0 * static_cast<double>(a.entries.size()), Unit::kTime};
  suite.measure(row, "quorin", [&suite, a] { return FloatSolution(suite.libraries().product, a); });
  suite.measure(row, "umfpack", [a = std::move(a)] { return DoubleSolution(a); });
}

}  // namespace

void add_umfpack_rows(Suite& suite) {
  for (const int side : suite.sizes({50, 100, 200}, {50, 100})) add_rows(suite, "grid", test::central_convection(side));
  const std::string directory = QUORIN_MATRICES_DIR "/cxsparse/";
  test::SparseMatrix stiffness = test::read_triplets(directory + "bcsstk16");
  stiffness.mirror();
  add_rows(suite, stiffness.name, stiffness);
  for (const char* const name : {"mhd1280b", "qc324"}) add_rows(suite, name, test::read_triplets(directory + name));
}

}  // namespace quorin::bench
