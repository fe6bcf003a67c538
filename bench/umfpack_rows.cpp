// What floats cost: UMFPACK's float interface beside the double one that it stands on.
#include <algorithm>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "bench/suite.hpp"
#include "bench/umfpack_double.hpp"

namespace quorin::bench {
namespace {

void require_solved(int status) {
  if (status != 0) throw std::runtime_error("UMFPACK returns " + std::to_string(status));
}

struct Entry {
  int column, row;
  double re, im;
};

ColumnMatrix<double> from_entries(std::vector<Entry> entries, bool is_complex) {
  std::sort(entries.begin(), entries.end(),
            [](const Entry& a, const Entry& b) { return std::tie(a.column, a.row) < std::tie(b.column, b.row); });
  ColumnMatrix<double> a;
  for (const Entry& e : entries) a.order = std::max({a.order, e.row + 1, e.column + 1});
  a.starts.resize(static_cast<std::size_t>(a.order) + 1);
  for (const Entry& e : entries) {
    ++a.starts[static_cast<std::size_t>(e.column) + 1];
    a.rows.push_back(e.row);
    a.re.push_back(e.re);
    if (is_complex) a.im.push_back(e.im);
  }
  for (std::size_t j = 0; j < static_cast<std::size_t>(a.order); ++j) a.starts[j + 1] += a.starts[j];
  return a;
}

// Zero-based triplets, a line each, with or without imaginary parts; of a symmetric matrix one triangle.
ColumnMatrix<double> read_triplets(const std::string& name, bool is_symmetric) {
  std::ifstream file(std::string(QUORIN_MATRICES_DIR "/cxsparse/") + name);
  std::vector<Entry> entries;
  bool is_complex = false;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    Entry e{0, 0, 0, 0};
    if (!(words >> e.row >> e.column >> e.re)) continue;
    if (words >> e.im) is_complex = true;
    entries.push_back(e);
    if (is_symmetric && e.row != e.column) entries.push_back({e.row, e.column, e.re, e.im});
  }
  if (entries.empty()) throw std::runtime_error("cannot read the matrix " + name);
  return from_entries(std::move(entries), is_complex);
}

// Convection and diffusion on a square grid of side * side points, five-point differences.
ColumnMatrix<double> grid(int side) {
  std::vector<Entry> entries;
  const auto add = [&](int column, int i, int j, double value) {
    if (i >= 0 && i < side && j >= 0 && j < side) entries.push_back({column, i * side + j, value, 0});
  };
  for (int i = 0; i < side; ++i) {
    for (int j = 0; j < side; ++j) {
      const int column = i * side + j;
      add(column, i, j, 4.1);
      add(column, i - 1, j, -1.3);
      add(column, i + 1, j, -0.7);
      add(column, i, j - 1, -1.15);
      add(column, i, j + 1, -0.85);
    }
  }
  return from_entries(std::move(entries), false);
}

class FloatSolution {
 public:
  FloatSolution(const quorin_library& library, const ColumnMatrix<double>& a)
      : u_(library), a_{a.order, a.starts, a.rows, {a.re.begin(), a.re.end()}, {a.im.begin(), a.im.end()}} {
    b_.assign(static_cast<std::size_t>(a.order), 1.0F);
    x_ = z_ = b_;
  }

  void operator()() {
    void *symbolic = nullptr, *numeric = nullptr;
    const int n = a_.order, *const starts = a_.starts.data(), *const rows = a_.rows.data();
    const float *const re = a_.re.data(), *const im = a_.im.data(), *const b = b_.data();
    int status = 0;
    if (a_.is_complex()) {
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
  ColumnMatrix<float> a_;
  std::vector<float> b_, x_, z_;
  float info_[90] = {};
};

class DoubleSolution {
 public:
  explicit DoubleSolution(ColumnMatrix<double> a) : a_(std::move(a)), b_(static_cast<std::size_t>(a_.order), 1.0) {
    x_ = z_ = b_;
  }
  void operator()() { require_solved(solve_with_umfpack(a_, b_, x_, z_)); }

 private:
  ColumnMatrix<double> a_;
  std::vector<double> b_, x_, z_;
};

void add_rows(Suite& suite, const std::string& name, const ColumnMatrix<double>& a) {
  const Row row{"umfpack", name, a.order, 1, 500.0 * static_cast<double>(a.rows.size()), Unit::kTime};
  suite.measure(row, "quorin", [&suite, a] { return FloatSolution(suite.libraries().product, a); });
  suite.measure(row, "umfpack", [a] { return DoubleSolution(a); });
}

}  // namespace

void add_umfpack_rows(Suite& suite) {
  for (const int side : suite.sizes({50, 100, 200}, {50, 100})) add_rows(suite, "grid", grid(side));
  add_rows(suite, "bcsstk16", read_triplets("bcsstk16", true));
  for (const char* const name : {"mhd1280b", "qc324"}) add_rows(suite, name, read_triplets(name, false));
}

}  // namespace quorin::bench
