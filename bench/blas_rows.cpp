// BLAS on square matrices and contiguous vectors, beside another BLAS.
#include <complex>
#include <cstddef>
#include <type_traits>

#include "bench/limits.hpp"
#include "bench/operands.hpp"
#include "bench/suite.hpp"
#include "dense/blocked.hpp"

namespace quorin::bench {
namespace {

constexpr int kOne = 1;

// C <- A B
template <class T, class Gemm>
auto gemm_call(Gemm* gemm, int n) {
  return [gemm, n, a = square_matrix<T>(n), b = square_matrix<T>(n), c = square_matrix<T>(n)] {
    T one{}, zero{};
    if constexpr (std::is_same_v<T, float>) {
      one = 1;
    } else {
      one.re = 1;
    }
    gemm("N", "N", &n, &n, &n, &one, a.data(), &n, b.data(), &n, &zero, c.data(), &n);
  };
}

// C <- A A^T, one triangle
auto syrk_call(const Library& blas, int n) {
  return [syrk = blas.ssyrk, n, a = square_matrix<float>(n), c = square_matrix<float>(n)] {
    const float one = 1, zero = 0;
    syrk("L", "N", &n, &n, &one, a.data(), &n, &zero, c.data(), &n);
  };
}

// C <- A B, A symmetric
auto symm_call(const Library& blas, int n) {
  return [symm = blas.ssymm, n, a = square_matrix<float>(n), b = square_matrix<float>(n), c = square_matrix<float>(n)] {
    const float one = 1, zero = 0;
    symm("L", "L", &n, &n, &one, a.data(), &n, b.data(), &n, &zero, c.data(), &n);
  };
}

// A lower triangular matrix that is its own inverse, [I 0; C -I], so that solving with it again and again lets nothing
// grow or vanish. C is small, to keep rounding errors from growing either.
Array<float> triangular_involution(int n) {
  auto a = square_matrix<float>(n);
  const int half = n / 2;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      float& element = a[static_cast<std::size_t>(j) * static_cast<std::size_t>(n) + static_cast<std::size_t>(i)];
      if (i == j) {
        element = i < half ? 1.0F : -1.0F;
      } else {
        element = i >= half && j < half ? element / static_cast<float>(n) : 0.0F;
      }
    }
  }
  return a;
}

// B <- A^-1 B or A B
template <class Routine>
auto triangular_call(Routine* routine, int n) {
  return [routine, n, a = triangular_involution(n), b = square_matrix<float>(n)] {
    const float one = 1;
    routine("L", "L", "N", "N", &n, &n, &one, a.data(), &n, b.data(), &n);
  };
}

// y <- A x
auto gemv_call(const Library& blas, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [gemv = blas.sgemv, n, a = square_matrix<float>(n), x = Array<float>(length), y = Array<float>(length)] {
    const float one = 1, zero = 0;
    gemv("N", &n, &n, &one, a.data(), &n, x.data(), &kOne, &zero, y.data(), &kOne);
  };
}

auto dot_call(const Library& blas, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [dot = blas.sdot, n, x = Array<float>(length), y = Array<float>(length)] {
    benchmark::DoNotOptimize(dot(&n, x.data(), &kOne, y.data(), &kOne));
  };
}

Row arithmetic_row(const char* operation, int n, int threads, double flops) {
  return {"blas", operation, n, threads, flops, Unit::kFlop, Limit::kArithmetic};
}

Row reading_row(const char* operation, int n, int threads, double floats) {
  return {"blas", operation, n, threads, floats * sizeof(float), Unit::kByte, Limit::kReading};
}

// C <- A B in double precision, which the library exports no BLAS for, but computes with itself.
template <class T>
auto engine_call(int n, int threads) {
  return [n, threads, a = square_matrix<T>(n), b = square_matrix<T>(n), c = square_matrix<T>(n)] {
    const dense::KernelBuffer buffers(threads);
    dense::blocked::gemm('N', 'N', n, n, n, T{1}, a.data(), n, b.data(), n, T{0}, c.data(), n, threads);
  };
}

// The peer has no doubles.
template <class T>
void add_engine_row(Suite& suite, const char* operation, int n, int threads, double flops) {
  const Row row{"blas", operation, n, threads, flops, Unit::kFlop, Limit::kDoubleArithmetic};
  suite.measure(row, "quorin", [n, threads] { return engine_call<T>(n, threads); });
  suite.add_limit(row);
}

// Our library on two threads, beside itself on one: prepare(product, threads) makes the operands and returns the call.
template <class Prepare>
void add_thread_row(Suite& suite, const char* operation, int n, double flops, Prepare prepare) {
  const Row row{"threads", operation, n, 2, flops};
  for (const int threads : {2, 1}) {
    suite.measure(row, threads == 2 ? "quorin" : "one-thread",
                  [&product = suite.libraries().product, prepare, threads] {
                    product.set_threads(threads);
                    return prepare(product, threads);
                  });
  }
}

// A loop of the host's own, with SSE's instructions, after a call of sgemm and where there was none: a library that
// leaves wide registers in use makes it slower.
void add_host_loop_row(Suite& suite, int n) {
  constexpr int kRounds = 1 << 12;
  const Row row{"host-loop", "sse-loop", n, 1, sse_arithmetic_flops(kRounds)};
  const auto loop = [] { sse_arithmetic(kRounds); };
  suite.compare(row, [n, loop](const Library& blas) {
    gemm_call<float>(blas.sgemm, n)();
    return loop;
  });
  suite.measure(row, "no-call", [loop] {
    const LeaveWideRegisters as_at_the_start;
    return loop;
  });
}

}  // namespace

void add_blas_rows(Suite& suite) {
  const std::vector<int> orders =
      suite.sizes({16, 32, 50, 64, 100, 128, 256, 333, 512, 1000, 1024, 2048}, {16, 64, 256, 1000});
  std::vector<int> lengths = orders;
  lengths.push_back(1'000'000);
  for (const int threads : {1, 2}) {
    for (const int n : orders) {
      const double cube = static_cast<double>(n) * n * n;
      suite.compare(arithmetic_row("sgemm", n, threads, 2 * cube),
                    [n](const Library& blas) { return gemm_call<float>(blas.sgemm, n); });
      suite.compare(arithmetic_row("cgemm", n, threads, 8 * cube),
                    [n](const Library& blas) { return gemm_call<quorin_complex>(blas.cgemm, n); });
      suite.compare(arithmetic_row("strsm", n, threads, cube),
                    [n](const Library& blas) { return triangular_call(blas.strsm, n); });
      suite.compare(arithmetic_row("strmm", n, threads, cube),
                    [n](const Library& blas) { return triangular_call(blas.strmm, n); });
      suite.compare(arithmetic_row("ssymm", n, threads, 2 * cube),
                    [n](const Library& blas) { return symm_call(blas, n); });
      suite.compare(arithmetic_row("ssyrk", n, threads, cube), [n](const Library& blas) { return syrk_call(blas, n); });
      add_engine_row<double>(suite, "dgemm", n, threads, 2 * cube);
      add_engine_row<std::complex<double>>(suite, "zgemm", n, threads, 8 * cube);
      suite.compare(reading_row("sgemv", n, threads, static_cast<double>(n) * n),
                    [n](const Library& blas) { return gemv_call(blas, n); });
    }
    for (const int n : lengths) {
      suite.compare(reading_row("sdot", n, threads, 2.0 * n), [n](const Library& blas) { return dot_call(blas, n); });
    }
  }
  for (const int n : orders) {
    const double cube = static_cast<double>(n) * n * n;
    const auto add = [&](const char* operation, double flops, auto prepare) {
      add_thread_row(suite, operation, n, flops,
                     [n, prepare](const Library& blas, int threads) { return prepare(blas, n, threads); });
    };
    add("sgemm", 2 * cube, [](const Library& blas, int m, int) { return gemm_call<float>(blas.sgemm, m); });
    add("cgemm", 8 * cube, [](const Library& blas, int m, int) { return gemm_call<quorin_complex>(blas.cgemm, m); });
    add("dgemm", 2 * cube, [](const Library&, int m, int threads) { return engine_call<double>(m, threads); });
    add("zgemm", 8 * cube,
        [](const Library&, int m, int threads) { return engine_call<std::complex<double>>(m, threads); });
    add("strsm", cube, [](const Library& blas, int m, int) { return triangular_call(blas.strsm, m); });
    add("strmm", cube, [](const Library& blas, int m, int) { return triangular_call(blas.strmm, m); });
    add("ssyrk", cube, [](const Library& blas, int m, int) { return syrk_call(blas, m); });
    add("ssymm", 2 * cube, [](const Library& blas, int m, int) { return symm_call(blas, m); });
  }
  for (const int n : suite.sizes({8, 20, 256}, {8, 256})) add_host_loop_row(suite, n);
}

}  // namespace quorin::bench
