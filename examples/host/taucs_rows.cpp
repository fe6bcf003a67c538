// TAUCS: a Harwell-Boeing file read, ordered by every name, written and read back.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "examples/host/report.hpp"

namespace demo {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

// A matrix of the library's, given back to it in the end.
using Matrix = std::unique_ptr<taucs_ccs_matrix, decltype(Library::taucs_ccs_free)>;
Matrix owned(const Library& library, taucs_ccs_matrix* A) { return {A, library.taucs_ccs_free}; }

std::string temporary(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }

// The Laplacian of a k x k grid, lower triangle, in the fixed columns of the format.
void write_grid(const std::string& name, int k) {
  std::vector<int> starts{1}, rows;
  std::string values;
  for (int j = 0; j < k * k; ++j) {
    const auto add = [&](int i, const char* value) {
      rows.push_back(i + 1);
      values += value;
      if (rows.size() % 4 == 0) values += '\n';
    };
    add(j, "  0.41000000D+01");
    if (j % k + 1 < k) add(j + 1, " -0.10000000D+01");
    if (j + k < k * k) add(j + k, " -0.10000000D+01");
    starts.push_back(static_cast<int>(rows.size()) + 1);
  }
  std::FILE* const file = std::fopen(name.c_str(), "w");
  if (file == nullptr) return;
  std::fprintf(file, "%-72s%-8s\n%14d%14d%14d%14d%14d\n", "Laplacian of a grid", "GRID", 3, 1, 1, 1, 0);
  std::fprintf(file, "RSA           %14d%14d%14d%14d\n", k * k, k * k, static_cast<int>(rows.size()), 0);
  std::fprintf(file, "%-16s%-16s%-20s\n", "(10I8)", "(10I8)", "(4D16.8)");
  for (const std::vector<int>& indices : {starts, rows}) {
    int count = 0;
    for (const int index : indices) std::fprintf(file, "%8d%s", index, ++count % 10 == 0 ? "\n" : "");
    if (count % 10 != 0) std::fputc('\n', file);
  }
  std::fprintf(file, "%s\n", values.c_str());
  std::fclose(file);
}

// Nonzeros of the Cholesky factor of a lower-stored matrix: row i of L is the subtree of the elimination tree that the
// entries of row i span.
double factor_entries(const taucs_ccs_matrix& A) {
  const auto n = static_cast<std::size_t>(A.n);
  std::vector<std::vector<int>> row(n);
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      if (A.rowind[k] > j) row.data()[A.rowind[k]].push_back(j);
    }
  }
  std::vector<int> parent(n, -1), seen(n, -1);
  double entries = A.n;
  for (int i = 0; i < A.n; ++i) {
    std::sort(row.data()[i].begin(), row.data()[i].end());
    seen.data()[i] = i;
    for (int j : row.data()[i]) {
      while (seen.data()[j] != i) {
        seen.data()[j] = i;
        entries += 1;
        if (parent.data()[j] < 0) parent.data()[j] = i;
        j = parent.data()[j];
      }
    }
  }
  return entries;
}

struct Ordering {
  double fill = 0;  // nonzeros of the factor
  double error = kNever;
};

// Orders A, and compares P A P^T (P x) with P (A x).
Ordering ordered(const Library& library, const taucs_ccs_matrix& A, const char* name, Timer& timer) {
  int32_t *perm = nullptr, *invperm = nullptr;
  timer.time([&] { library.taucs_ccs_order(&A, &perm, &invperm, name); });
  if (perm == nullptr) return {};
  const Matrix permuted = owned(library, library.taucs_ccs_permute_symmetrically(&A, perm, invperm));
  const auto n = static_cast<std::size_t>(A.n);
  std::vector<double> x(n), b(n), permuted_x(n), permuted_b(n);
  for (int i = 0; i < A.n; ++i) x.data()[i] = 1 + i % 7;
  for (int i = 0; i < A.n; ++i) permuted_x.data()[i] = x.data()[perm[i]];
  Ordering result;
  if (permuted != nullptr) {
    library.taucs_ccs_times_vec(&A, x.data(), b.data());
    library.taucs_ccs_times_vec(permuted.get(), permuted_x.data(), permuted_b.data());
    double difference = 0, size = 0;
    for (int i = 0; i < A.n; ++i) {
      difference = std::fmax(difference, std::fabs(permuted_b.data()[i] - b.data()[perm[i]]));
      size = std::fmax(size, std::fabs(b.data()[i]));
    }
    result = {factor_entries(*permuted), difference / size};
  }
  std::free(perm);
  std::free(invperm);
  return result;
}

// 0 if each column stands in the ordering once.
double column_ordering(const Library& library, const taucs_ccs_matrix& A, Timer& timer) {
  int32_t *perm = nullptr, *invperm = nullptr;
  timer.time([&] { library.taucs_ccs_order(&A, &perm, &invperm, "colamd"); });
  if (perm == nullptr) return kNever;
  std::vector<int> times(static_cast<std::size_t>(A.n));
  double wrong = 0;
  for (int i = 0; i < A.n; ++i) wrong += ++times.data()[perm[i]] > 1 || invperm[perm[i]] != i ? 1 : 0;
  std::free(perm);
  std::free(invperm);
  return wrong;
}

// How far the entries are from those of a copy that went through a text file.
double round_trip(const Library& library, const taucs_ccs_matrix& A, Timer& timer) {
  const std::string name = temporary("quorin-demo.ijv");
  taucs_ccs_matrix* copy = nullptr;
  timer.time([&] {
    if (library.taucs_ccs_write_ijv(&A, name.c_str()) == 0) copy = library.taucs_ccs_read_ijv(name.c_str(), A.flags);
  });
  std::filesystem::remove(name);
  const Matrix B = owned(library, copy);
  if (B == nullptr || B->n != A.n || B->flags != A.flags || B->colptr[B->n] != A.colptr[A.n]) return kNever;
  double difference = 0;
  for (int k = 0; k < A.colptr[A.n]; ++k) {
    if (A.rowind[k] != B->rowind[k]) return kNever;
    difference = std::fmax(difference, std::fabs(A.values.d[k] - B->values.d[k]));
  }
  return difference;
}

std::string size_text(const taucs_ccs_matrix& A) {
  return std::to_string(A.n) + ", " + std::to_string(A.colptr[A.n]) + " entries";
}

void symmetric_rows(const Library& library, const std::string& file, const std::string& what, Report& report) {
  Timer untimed;
  const Matrix A = owned(library, library.taucs_ccs_read_hb(file.c_str(), TAUCS_DOUBLE));
  if (A == nullptr) return report.row(what + ", read", "-", 0, [](Timer&) { return kNever; });
  report.row(what + ", written and read back", size_text(*A), 0,
             [&](Timer& timer) { return round_trip(library, *A, timer); });
  for (const char* const name : {"identity", "random", "tree", "genmmd", "camd", "metis"}) {
    const double fill = ordered(library, *A, name, untimed).fill;
    report.row(what + ", ordered by \"" + name + "\"", std::to_string(static_cast<int>(fill)) + " in factor", 1e-12,
               [&](Timer& timer) { return ordered(library, *A, name, timer).error; });
  }
}

}  // namespace

void taucs_rows(const Library& library, Report& report) {
  report.heading("TAUCS matrices, files and orderings");
  const std::string matrices = QUORIN_MATRICES_DIR, grid = temporary("quorin-demo.rsa");
  symmetric_rows(library, matrices + "/cholmod/bcsstk01.rsa", "Stiffness matrix", report);
  write_grid(grid, 100);
  symmetric_rows(library, grid, "100x100 grid", report);
  std::filesystem::remove(grid);
  const Matrix A =
      owned(library, library.taucs_ccs_read_hb((matrices + "/umfpack/west0067.rua").c_str(), TAUCS_DOUBLE));
  report.row("Chemical plant, columns ordered by \"colamd\"", A == nullptr ? "-" : size_text(*A), 0,
             [&](Timer& timer) { return A == nullptr ? kNever : column_ordering(library, *A, timer); });
}

}  // namespace demo
