// LAPACK on square matrices, beside the published routines over another BLAS.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "bench/operands.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

float& real_part(float& x) { return x; }
float& real_part(quorin_complex& x) { return x.re; }

// A copy of the same matrix for each call, which is not counted; its diagonal makes it positive definite where routines
// read one triangle.
template <class T>
struct Problem {
  explicit Problem(int order) : n(order), original(square_matrix<T>(order)), a(square_matrix<T>(order)) {
    const auto side = static_cast<std::size_t>(order);
    for (std::size_t i = 0; i < side; ++i) {
      T diagonal{};
      real_part(diagonal) = static_cast<float>(order);
      original[i * side + i] = diagonal;
    }
  }
  std::size_t side() const { return static_cast<std::size_t>(n); }
  T* fresh() const {
    const auto start = Clock::now();
    std::copy_n(original.data(), side() * side(), a.data());
    uncounted_time += Clock::now() - start;
    return a.data();
  }

  int n;
  Array<T> original, a;
};

template <class T, class Getrf>
auto getrf_call(Getrf* getrf, int n) {
  return [getrf, p = Problem<T>(n), pivots = std::vector<std::int32_t>(static_cast<std::size_t>(n))]() mutable {
    std::int32_t info = 0;
    getrf(&p.n, &p.n, p.fresh(), &p.n, pivots.data(), &info);
  };
}

template <class T, class Potrf>
auto potrf_call(Potrf* potrf, int n) {
  return [potrf, p = Problem<T>(n)] {
    std::int32_t info = 0;
    potrf("L", &p.n, p.fresh(), &p.n, &info);
  };
}

// Inverses, from factors that are made beforehand.
template <class T, class Getrf, class Getri>
auto getri_call(Getrf* getrf, Getri* getri, int n) {
  Problem<T> problem(n);
  std::vector<std::int32_t> pivots(problem.side());
  std::int32_t info = 0;
  getrf(&n, &n, problem.original.data(), &n, pivots.data(), &info);
  return
      [getri, p = std::move(problem), pivots = std::move(pivots), work = Array<T>(64 * static_cast<std::size_t>(n))] {
        const std::int32_t lwork = 64 * p.n;
        std::int32_t status = 0;
        getri(&p.n, p.fresh(), &p.n, pivots.data(), work.data(), &lwork, &status);
      };
}

template <class T, class Potrf, class Potri>
auto potri_call(Potrf* potrf, Potri* potri, int n) {
  Problem<T> problem(n);
  std::int32_t info = 0;
  potrf("L", &n, problem.original.data(), &n, &info);
  return [potri, p = std::move(problem)] {
    std::int32_t status = 0;
    potri("L", &p.n, p.fresh(), &p.n, &status);
  };
}

template <class T, class Trtri>
auto trtri_call(Trtri* trtri, int n) {
  return [trtri, p = Problem<T>(n)] {
    std::int32_t info = 0;
    trtri("L", "N", &p.n, p.fresh(), &p.n, &info);
  };
}

// L D L^T of a symmetric (with hetrf: L D L^H of a Hermitian) matrix.
template <class T, class Sytrf>
auto sytrf_call(Sytrf* sytrf, int n) {
  const auto side = static_cast<std::size_t>(n);
  return [sytrf, p = Problem<T>(n), pivots = std::vector<std::int32_t>(side), work = Array<T>(64 * side)]() mutable {
    const std::int32_t lwork = 64 * p.n;
    std::int32_t info = 0;
    sytrf("L", &p.n, p.fresh(), &p.n, pivots.data(), work.data(), &lwork, &info);
  };
}

template <class T, class Geqrf>
auto geqrf_call(Geqrf* geqrf, int n) {
  const auto side = static_cast<std::size_t>(n);
  return [geqrf, p = Problem<T>(n), tau = Array<T>(side), work = Array<T>(64 * side)] {
    const std::int32_t lwork = 64 * p.n;
    std::int32_t info = 0;
    geqrf(&p.n, &p.n, p.fresh(), &p.n, tau.data(), work.data(), &lwork, &info);
  };
}

// All singular values and vectors.
auto gesdd_call(const quorin_library& lapack, int n) {
  const auto side = static_cast<std::size_t>(n);
  const auto lwork = static_cast<std::int32_t>(4 * n * n + 200 * n);
  return [gesdd = lapack.sgesdd, lwork, p = Problem<float>(n), s = Array<float>(side), u = square_matrix<float>(n),
          vt = square_matrix<float>(n), work = Array<float>(static_cast<std::size_t>(lwork)),
          iwork = std::vector<std::int32_t>(8 * side)]() mutable {
    std::int32_t info = 0;
    gesdd("A", &p.n, &p.n, p.fresh(), &p.n, s.data(), u.data(), &p.n, vt.data(), &p.n, work.data(), &lwork,
          iwork.data(), &info);
  };
}

// All eigenvalues and vectors of a symmetric matrix.
auto syevr_call(const quorin_library& lapack, int n) {
  const auto side = static_cast<std::size_t>(n);
  return [syevr = lapack.ssyevr, p = Problem<float>(n), w = Array<float>(side), z = square_matrix<float>(n),
          support = std::vector<std::int32_t>(2 * side), work = Array<float>(100 * side),
          iwork = std::vector<std::int32_t>(10 * side)]() mutable {
    const std::int32_t lwork = 100 * p.n, liwork = 10 * p.n, unused = 0;
    const float zero = 0;
    std::int32_t found = 0, info = 0;
    syevr("V", "A", "L", &p.n, p.fresh(), &p.n, &zero, &zero, &unused, &unused, &zero, &found, w.data(), z.data(), &p.n,
          support.data(), work.data(), &lwork, iwork.data(), &liwork, &info);
  };
}

auto heevr_call(const quorin_library& lapack, int n) {
  const auto side = static_cast<std::size_t>(n);
  return [heevr = lapack.cheevr, p = Problem<quorin_complex>(n), w = Array<float>(side),
          z = square_matrix<quorin_complex>(n), support = std::vector<std::int32_t>(2 * side),
          work = Array<quorin_complex>(100 * side), rwork = Array<float>(24 * side),
          iwork = std::vector<std::int32_t>(10 * side)]() mutable {
    const std::int32_t lwork = 100 * p.n, lrwork = 24 * p.n, liwork = 10 * p.n, unused = 0;
    const float zero = 0;
    std::int32_t found = 0, info = 0;
    heevr("V", "A", "L", &p.n, p.fresh(), &p.n, &zero, &zero, &unused, &unused, &zero, &found, w.data(), z.data(), &p.n,
          support.data(), work.data(), &lwork, rwork.data(), &lrwork, iwork.data(), &liwork, &info);
  };
}

// All eigenvalues and right vectors of a general matrix.
auto geev_call(const quorin_library& lapack, int n) {
  const auto side = static_cast<std::size_t>(n);
  return [geev = lapack.sgeev, p = Problem<float>(n), re = Array<float>(side), im = Array<float>(side),
          v = square_matrix<float>(n), work = Array<float>(100 * side)] {
    const std::int32_t lwork = 100 * p.n;
    std::int32_t info = 0;
    geev("N", "V", &p.n, p.fresh(), &p.n, re.data(), im.data(), v.data(), &p.n, v.data(), &p.n, work.data(), &lwork,
         &info);
  };
}

}  // namespace

void add_lapack_rows(Suite& suite) {
  for (const int threads : {1, 2}) {
    for (const int n : suite.sizes({100, 500, 1500}, {100, 500})) {
      const double cube = static_cast<double>(n) * n * n;
      const auto row = [&](const char* operation, double flops) {
        return Row{"lapack", operation, n, threads, flops, Unit::kFlop, Limit::kArithmetic};
      };
      const auto compare = [&](const char* operation, double flops, auto prepare) {
        suite.compare(
            row(operation, flops), [prepare, n](const Library& blas) { return prepare(blas, n); },
            [](const Library& blas) { return blas.has_lapack(); });
      };
      compare("sgetrf", 2.0 / 3 * cube, [](const quorin_library& l, int m) { return getrf_call<float>(l.sgetrf, m); });
      compare("cgetrf", 8.0 / 3 * cube,
              [](const quorin_library& l, int m) { return getrf_call<quorin_complex>(l.cgetrf, m); });
      compare("spotrf", 1.0 / 3 * cube, [](const quorin_library& l, int m) { return potrf_call<float>(l.spotrf, m); });
      compare("cpotrf", 4.0 / 3 * cube,
              [](const quorin_library& l, int m) { return potrf_call<quorin_complex>(l.cpotrf, m); });
      compare("sgeqrf", 4.0 / 3 * cube, [](const quorin_library& l, int m) { return geqrf_call<float>(l.sgeqrf, m); });
      compare("cgeqrf", 16.0 / 3 * cube,
              [](const quorin_library& l, int m) { return geqrf_call<quorin_complex>(l.cgeqrf, m); });
      using Complex = quorin_complex;
      using Lapack = const quorin_library&;
      compare("sgetri", 4.0 / 3 * cube, [](Lapack l, int m) { return getri_call<float>(l.sgetrf, l.sgetri, m); });
      compare("cgetri", 16.0 / 3 * cube, [](Lapack l, int m) { return getri_call<Complex>(l.cgetrf, l.cgetri, m); });
      compare("spotri", 2.0 / 3 * cube, [](Lapack l, int m) { return potri_call<float>(l.spotrf, l.spotri, m); });
      compare("cpotri", 8.0 / 3 * cube, [](Lapack l, int m) { return potri_call<Complex>(l.cpotrf, l.cpotri, m); });
      compare("strtri", 1.0 / 3 * cube, [](Lapack l, int m) { return trtri_call<float>(l.strtri, m); });
      compare("ctrtri", 4.0 / 3 * cube, [](Lapack l, int m) { return trtri_call<Complex>(l.ctrtri, m); });
      compare("ssytrf", 1.0 / 3 * cube, [](Lapack l, int m) { return sytrf_call<float>(l.ssytrf, m); });
      compare("csytrf", 4.0 / 3 * cube, [](Lapack l, int m) { return sytrf_call<Complex>(l.csytrf, m); });
      compare("chetrf", 4.0 / 3 * cube, [](Lapack l, int m) { return sytrf_call<Complex>(l.chetrf, m); });
      compare("ssyevr", 10.0 / 3 * cube, syevr_call);
      compare("cheevr", 40.0 / 3 * cube, heevr_call);
      compare("sgesdd", 20.0 / 3 * cube, gesdd_call);
      compare("sgeev", 25 * cube, geev_call);
    }
  }
}

}  // namespace quorin::bench
