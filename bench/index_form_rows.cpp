// What the index form adds to a call, and what a call costs at all: the same operation on the same elements, in the
// plain form, in the index form, and by the other BLAS.
#include <cstddef>

#include "bench/operands.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

constexpr int kOne = 1;
constexpr const char* kIndexSide = "index";

// Every array starts this many elements behind its base address.
constexpr int kIndex = 16;

template <class T>
Array<T> indexed_array(std::size_t length) {
  return Array<T>(length + kIndex);
}

auto plain_axpy(const Library& blas, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [axpy = blas.saxpy, n, x = indexed_array<float>(length), y = indexed_array<float>(length)] {
    const float a = 0x1p-10F;
    axpy(&n, &a, x.data() + kIndex, &kOne, y.data() + kIndex, &kOne);
  };
}

auto index_axpy(const quorin_library& library, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [axpy = library.saxpy_Idx, n, x = indexed_array<float>(length), y = indexed_array<float>(length)] {
    const float a = 0x1p-10F;
    axpy(&n, &a, x.data(), kIndex, &kOne, y.data(), kIndex, &kOne);
  };
}

auto plain_dot(const Library& blas, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [dot = blas.sdot, n, x = indexed_array<float>(length), y = indexed_array<float>(length)] {
    benchmark::DoNotOptimize(dot(&n, x.data() + kIndex, &kOne, y.data() + kIndex, &kOne));
  };
}

auto index_dot(const quorin_library& library, int n) {
  const auto length = static_cast<std::size_t>(n);
  return [dot = library.sdot_Idx, n, x = indexed_array<float>(length), y = indexed_array<float>(length)] {
    benchmark::DoNotOptimize(dot(&n, x.data(), kIndex, &kOne, y.data(), kIndex, &kOne));
  };
}

auto plain_gemm(const Library& blas, int n) {
  const auto size = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
  return [gemm = blas.sgemm, n, a = indexed_array<float>(size), b = indexed_array<float>(size),
          c = indexed_array<float>(size)] {
    const float one = 1, zero = 0;
    gemm("N", "N", &n, &n, &n, &one, a.data() + kIndex, &n, b.data() + kIndex, &n, &zero, c.data() + kIndex, &n);
  };
}

auto index_gemm(const quorin_library& library, int n) {
  const auto size = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
  return [gemm = library.sgemm_Idx, n, a = indexed_array<float>(size), b = indexed_array<float>(size),
          c = indexed_array<float>(size)] {
    const float one = 1, zero = 0;
    gemm("N", "N", &n, &n, &n, &one, a.data(), kIndex, &n, b.data(), kIndex, &n, &zero, c.data(), kIndex, &n);
  };
}

template <class Plain, class Indexed>
void add_row(Suite& suite, const char* operation, int n, double flops, Plain plain, Indexed indexed) {
  const Row row{"calls", operation, n, 1, flops};
  suite.compare(row, [n, plain](const Library& blas) { return plain(blas, n); });
  suite.measure(row, kIndexSide, [n, indexed, &library = suite.libraries().product] { return indexed(library, n); });
}

}  // namespace

void add_index_form_rows(Suite& suite) {
  for (const int n : {1, 1000}) {
    add_row(suite, "saxpy", n, 2.0 * n, plain_axpy, index_axpy);
    add_row(suite, "sdot", n, 2.0 * n, plain_dot, index_dot);
  }
  for (const int n : {1, 16}) add_row(suite, "sgemm", n, 2.0 * n * n * n, plain_gemm, index_gemm);
}

}  // namespace quorin::bench
