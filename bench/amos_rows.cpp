// Time of one value of a Bessel or Airy function by order and argument, that is, by region of the methods; on the real
// axis against other libraries.
#include <benchmark/benchmark.h>

#include <complex>
#include <cstdint>
#include <string>
#include <vector>

#include "bench/bessel_peers.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

using Complex = std::complex<double>;

// Arguments that differ a little from call to call.
class Arguments {
 public:
  explicit Arguments(double size) : size_(size) {}
  double next() {
    count_ = (count_ + 1) % 400;
    return size_ * (1 + 1e-5 * count_);
  }

 private:
  double size_;
  int count_ = 0;
};

quorin_double_complex on_ray(Complex direction, double size) {
  return {size * direction.real(), size * direction.imag()};
}

// CBESJ and CBESK on the ray through `direction`, scaled.
template <class Function>
auto sequence_call(Function* function, double order, double size, Complex direction) {
  return [=, arguments = Arguments(size)]() mutable {
    const quorin_double_complex z = on_ray(direction, arguments.next());
    const std::int32_t kode = 2, n = 1;
    quorin_double_complex value{};
    std::int32_t underflows = 0, error = 0;
    function(&z, &order, &kode, &n, &value, &underflows, &error);
    benchmark::DoNotOptimize(value);
  };
}

auto y_call(const quorin_library& library, double order, double size) {
  return [y = library.CBESY, order, arguments = Arguments(size)]() mutable {
    const quorin_double_complex z{arguments.next(), 0};
    const std::int32_t kode = 1, n = 1;
    quorin_double_complex value{}, work{};
    std::int32_t underflows = 0, error = 0;
    y(&z, &order, &kode, &n, &value, &underflows, &work, &error);
    benchmark::DoNotOptimize(value);
  };
}

auto airy_call(const quorin_library& library, double x) {
  return [ai = library.CAIRY, arguments = Arguments(x)]() mutable {
    const quorin_double_complex z{arguments.next(), 0};
    const std::int32_t id = 0, kode = 1;
    quorin_double_complex value{};
    std::int32_t underflows = 0, error = 0;
    ai(&z, &id, &kode, &value, &underflows, &error);
    benchmark::DoNotOptimize(value);
  };
}

auto peer_call(double (*function)(double, double), double order, double size) {
  return [=, arguments = Arguments(size)]() mutable { benchmark::DoNotOptimize(function(order, arguments.next())); };
}

auto peer_call(double (*function)(double), double x) {
  return [=, arguments = Arguments(x)]() mutable { benchmark::DoNotOptimize(function(arguments.next())); };
}

// An order, and the |z| at which it is measured: all within the range of doubles.
struct Order {
  double value;
  const char* text;
  std::vector<int> sizes, quick_sizes;
};

Row time_row(const std::string& operation, int size) {
  constexpr double kFlops = 5000;
  return {"amos", operation, size, 1, kFlops, Unit::kTime};
}

}  // namespace

void add_amos_rows(Suite& suite) {
  const quorin_library& library = suite.libraries().product;
  const std::vector<BesselPeer> peers = bessel_peers();
  // Each order with all sizes: series, continued fractions, large argument; recurrence; large order below, at and
  // beyond the turning point.
  const Order orders[] = {{0.3, "0.3", {1, 10, 60, 300, 900}, {1, 10, 300}},
                          {40.3, "40.3", {1, 10, 60, 300, 900}, {60}},
                          {300.3, "300.3", {150, 300, 900}, {150, 300}}};
  for (const auto& [order, text, full_sizes, quick_sizes] : orders) {
    const std::vector<int> sizes = suite.sizes(full_sizes, quick_sizes);
    const auto bessel_row = [text = text](const char* function, int size) {
      return time_row(std::string(function) + ", order " + text, size);
    };
    for (const int size : sizes) {
      const Row row = bessel_row("CBESJ on the real axis", size);
      suite.measure(row, "quorin",
                    [&library, order = order, size] { return sequence_call(library.CBESJ, order, size, 1.0); });
      for (const BesselPeer& peer : peers) {
        suite.measure(row, peer.side, [f = peer.j, order = order, size] { return peer_call(f, order, size); });
      }
    }
    for (const int size : sizes) {
      const Row row = bessel_row("CBESY on the real axis", size);
      suite.measure(row, "quorin", [&library, order = order, size] { return y_call(library, order, size); });
      for (const BesselPeer& peer : peers) {
        suite.measure(row, peer.side, [f = peer.y, order = order, size] { return peer_call(f, order, size); });
      }
    }
    const Complex oblique = std::polar(1.0, 0.5);
    for (const int size : sizes) {
      suite.measure(bessel_row("CBESJ off the axis", size), "quorin", [&library, order = order, size, oblique] {
        return sequence_call(library.CBESJ, order, size, oblique);
      });
    }
    for (const int size : sizes) {
      suite.measure(bessel_row("CBESK off the axis", size), "quorin", [&library, order = order, size, oblique] {
        return sequence_call(library.CBESK, order, size, oblique);
      });
    }
  }
  for (const int x : suite.sizes({-60, -5, 1, 4, 30}, {-60, -5, 4})) {
    const Row row = time_row("CAIRY on the real axis", x);
    suite.measure(row, "quorin", [&library, x] { return airy_call(library, x); });
    for (const BesselPeer& peer : peers) suite.measure(row, peer.side, [f = peer.ai, x] { return peer_call(f, x); });
  }
}

}  // namespace quorin::bench
