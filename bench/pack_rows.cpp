// Packing against the loops that a host would write.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "bench/operands.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

// A vector, its packed elements, and n random choices: of an index each, and of half of the elements.
struct Operands {
  explicit Operands(int n)
      : length(static_cast<std::size_t>(n)), a(2 * length), y(2 * length), index(length), mask(length) {
    std::uint32_t state = 1;
    for (std::size_t j = 0; j < length; ++j) {
      state = state * 1664525 + 1013904223;
      index[j] = static_cast<int>(state % static_cast<std::uint32_t>(n));
      mask[j] = static_cast<int>(state >> 31);
    }
  }

  std::size_t length;
  std::size_t increment = 2;
  Array<float> a, y;
  std::vector<int> index, mask;
};

struct Loops {
  static void pack_increment(Operands& o) {
    benchmark::DoNotOptimize(o.increment);  // as unknown as it is to the library
    for (std::size_t j = 0; j < o.length; ++j) o.y[j] = o.a[o.increment * j];
  }
  static void pack_index(Operands& o) {
    for (std::size_t j = 0; j < o.length; ++j) o.y[j] = o.a[static_cast<std::size_t>(o.index[j])];
  }
  static void pack_mask(Operands& o) {
    std::size_t k = 0;
    for (std::size_t j = 0; j < o.length; ++j) {
      if (o.mask[j] != 0) o.y[k++] = o.a[j];
    }
  }
  static void unpack_mask(Operands& o) {
    std::size_t k = 0;
    for (std::size_t j = 0; j < o.length; ++j) {
      if (o.mask[j] != 0) o.y[j] = o.a[k++];
    }
  }
};

template <class Call, class Loop>
void add_rows(Suite& suite, const char* operation, int n, const Call& call, const Loop& loop) {
  const Row row{"pack", operation, n, 1, 4.0 * n, Unit::kTime};
  suite.measure(row, "quorin", [call, n] { return [call, n, o = Operands(n)] { call(&n, o); }; });
  suite.measure(row, "loop", [loop, n] {
    return [loop, o = Operands(n)]() mutable {
      loop(o);
      benchmark::ClobberMemory();
    };
  });
}

}  // namespace

void add_pack_rows(Suite& suite) {
  const quorin_library& library = suite.libraries().product;
  for (const int n : suite.sizes({100, 10'000, 1'000'000}, {100, 100'000})) {
    add_rows(
        suite, "vspacki", n,
        [&library](const int* length, const Operands& o) {
          constexpr int kTwo = 2;
          library.vspacki(length, o.a.data(), &kTwo, o.y.data());
        },
        Loops::pack_increment);
    add_rows(
        suite, "vspackv", n,
        [&library](const int* length, const Operands& o) {
          library.vspackv(length, o.a.data(), o.index.data(), o.y.data());
        },
        Loops::pack_index);
    add_rows(
        suite, "vspackm", n,
        [&library](const int* length, const Operands& o) {
          library.vspackm(length, o.a.data(), o.mask.data(), o.y.data());
        },
        Loops::pack_mask);
    add_rows(
        suite, "vsunpackm", n,
        [&library](const int* length, const Operands& o) {
          library.vsunpackm(length, o.a.data(), o.y.data(), o.mask.data());
        },
        Loops::unpack_mask);
  }
}

}  // namespace quorin::bench
