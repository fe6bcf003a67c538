// Time of one value of a Bessel or Airy function at random arguments of each region of the methods, on the real axis
// against other libraries; of the slowest of many calls; and of a sequence.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "bench/bessel_peers.hpp"
#include "bench/suite.hpp"

namespace quorin::bench {
namespace {

using Complex = std::complex<double>;

// Orders and |z| of a row. The size that the row shows is the largest |z|.
struct Region {
  const char* orders;
  double least_order, largest_order;
  bool integer;
  double least_size;
  int largest_size;
};

struct Point {
  double order;
  Complex z;
};

// Random points of a region, the same in every run, on the positive real axis or in all directions.
std::vector<Point> points(const Region& r, bool on_axis) {
  constexpr int kPoints = 2000;
  std::mt19937_64 random(3);
  const auto uniform = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  std::vector<Point> result;
  for (int i = 0; i < kPoints; ++i) {
    const double order = uniform(r.least_order, r.largest_order), size = uniform(r.least_size, r.largest_size);
    const Complex z = on_axis ? Complex{size, 0.0} : std::polar(size, uniform(-3.14, 3.14));
    result.push_back({r.integer ? static_cast<double>(static_cast<int>(order)) : order, z});
  }
  return result;
}

// Goes round the points, one a call.
template <class Call>
auto at_points(std::vector<Point> where, Call call) {
  return [where = std::move(where), call, next = std::size_t{0}]() mutable {
    benchmark::DoNotOptimize(call(where[next].order, where[next].z));
    next = next + 1 < where.size() ? next + 1 : 0;
  };
}

// Random orders and arguments up to 1,000 next to zeros, where calls take longest: of J, Y and H beside the real axis
// and the curve like an eye whose corners are -nu and nu, of I and K a quarter turn from there.
std::vector<Point> points_beside_zeros(bool modified) {
  constexpr int kPoints = 20000;
  constexpr double kMost = 1000.0, kHalfHeight = 0.6627;  // of the eye
  std::mt19937_64 random(7);
  const auto uniform = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  std::vector<Point> result;
  while (result.size() < kPoints) {
    const double order = uniform(0.0, kMost), x = uniform(-1.0, 1.0), side = uniform(-1.0, 1.0) < 0.0 ? -1.0 : 1.0;
    const bool on_eye = result.size() % 2 == 0;
    const Complex z =
        on_eye ? Complex{order * x, side * (order * kHalfHeight * std::pow(1.0 - x * x, 0.75) + uniform(-1.5, 0.5))}
               : Complex{side * uniform(order, kMost), result.size() % 4 == 1 ? 0.0 : x};
    if (std::abs(z) <= kMost) result.push_back({order, modified ? Complex{-std::fabs(z.imag()), z.real()} : z});
  }
  return result;
}

// The one of the points at which the best of a few calls takes longest.
template <class Call>
Point slowest(const std::vector<Point>& where, Call call) {
  const auto time = [&call](const Point& p, int calls) {
    auto best = std::chrono::steady_clock::duration::max();
    for (int i = 0; i < calls; ++i) {
      const auto start = std::chrono::steady_clock::now();
      benchmark::DoNotOptimize(call(p.order, p.z));
      best = std::min(best, std::chrono::steady_clock::now() - start);
    }
    return best;
  };
  auto longest = std::chrono::steady_clock::duration::zero();
  Point result = where.front();
  for (const Point& p : where) {
    if (time(p, 1) <= longest) continue;
    if (const auto best = time(p, 20); best > longest) {
      longest = best;
      result = p;
    }
  }
  return result;
}

// One value, scaled unless `kode` is 1. J, I and K have one signature.
template <class Function>
auto value_of(Function* function, std::int32_t kode = 2) {
  return [function, kode](double order, Complex at) {
    const quorin_double_complex z{at.real(), at.imag()};
    const std::int32_t n = 1;
    quorin_double_complex value{};
    std::int32_t underflows = 0, error = 0;
    function(&z, &order, &kode, &n, &value, &underflows, &error);
    return value.re;
  };
}

auto value_of_y(const quorin_library& library) {
  return [y = library.CBESY](double order, Complex at) {
    const quorin_double_complex z{at.real(), at.imag()};
    const std::int32_t kode = 2, n = 1;
    quorin_double_complex value{}, work{};
    std::int32_t underflows = 0, error = 0;
    y(&z, &order, &kode, &n, &value, &underflows, &work, &error);
    return value.re;
  };
}

auto value_of_h(const quorin_library& library) {
  return [h = library.CBESH](double order, Complex at) {
    const quorin_double_complex z{at.real(), at.imag()};
    const std::int32_t kode = 2, kind = 1, n = 1;
    quorin_double_complex value{};
    std::int32_t underflows = 0, error = 0;
    h(&z, &order, &kode, &kind, &n, &value, &underflows, &error);
    return value.re;
  };
}

auto value_of_ai(const quorin_library& library) {
  return [ai = library.CAIRY](double, Complex at) {
    const quorin_double_complex z{at.real(), at.imag()};
    const std::int32_t id = 0, kode = 1;
    quorin_double_complex value{};
    std::int32_t underflows = 0, error = 0;
    ai(&z, &id, &kode, &value, &underflows, &error);
    return value.re;
  };
}

// A whole sequence of J in each call.
auto sequence_of_j(const quorin_library& library, Complex at, int n) {
  return [j = library.CBESJ, z = quorin_double_complex{at.real(), at.imag()},
          values = std::vector<quorin_double_complex>(static_cast<std::size_t>(n))]() mutable {
    const double order = 0.3;
    const std::int32_t kode = 2, count = static_cast<std::int32_t>(values.size());
    std::int32_t underflows = 0, error = 0;
    j(&z, &order, &kode, &count, values.data(), &underflows, &error);
    benchmark::DoNotOptimize(values.data());
  };
}

constexpr double kFlops = 5000;  // of a value

Row time_row(const std::string& operation, int size, double flops = kFlops) {
  return {"amos", operation, size, 1, flops, Unit::kTime};
}

// The slowest of many calls, which is looked for when the row is measured for the first time.
template <class Call>
void add_slowest_row(Suite& suite, const std::string& function, bool modified, Call call) {
  suite.measure(
      time_row(function + ", the slowest of 20000 random calls beside zeros, orders to 1000", 1000, 4 * kFlops),
      "quorin", [call, modified, found = std::make_shared<std::vector<Point>>()] {
        if (found->empty()) found->push_back(slowest(points_beside_zeros(modified), call));
        return at_points(*found, call);
      });
}

}  // namespace

void add_amos_rows(Suite& suite) {
  const quorin_library& library = suite.libraries().product;
  const std::vector<BesselPeer> peers = bessel_peers();
  const auto on_axis = [](auto function) {
    return [function](double order, Complex z) { return function(order, z.real()); };
  };
  const Region regions[] = {
      {"orders 0 to 2", 0, 2, false, 0.01, 2},
      {"orders 0 to 2", 0, 2, false, 2, 22},
      {"orders 0 to 2", 0, 2, false, 22, 1000},
      {"orders 2 to 80", 2, 80, false, 0.1, 80},
      {"orders 2 to 80", 2, 80, false, 80, 1000},
      {"orders 86 to 1000", 86, 1000, false, 1, 1000},
      {"order 0", 0, 0.5, true, 0.01, 20},
      {"order 0", 0, 0.5, true, 20, 1000},
      {"order 1", 1, 1.5, true, 0.01, 20},
      {"whole orders 2 to 80", 2, 81, true, 0.1, 80},
      {"whole orders 2 to 80", 2, 81, true, 80, 1000},
  };
  for (const Region& r : regions) {
    const std::vector<int> sizes = suite.sizes({r.largest_size}, {r.largest_size});
    if (sizes.empty()) continue;
    const auto row = [&](const char* function) {
      return time_row(std::string(function) + ", " + r.orders, r.largest_size);
    };
    const std::vector<Point> axis = points(r, true);
    suite.measure(row("CBESJ at random on the real axis"), "quorin",
                  [=] { return at_points(axis, value_of(library.CBESJ)); });
    suite.measure(row("CBESY at random on the real axis"), "quorin",
                  [=] { return at_points(axis, value_of_y(library)); });
    for (const BesselPeer& peer : peers) {
      suite.measure(row("CBESJ at random on the real axis"), peer.side,
                    [=, f = peer.j] { return at_points(axis, on_axis(f)); });
      suite.measure(row("CBESY at random on the real axis"), peer.side,
                    [=, f = peer.y] { return at_points(axis, on_axis(f)); });
    }
    // I without a scale, as the peers have it, as far as it fits a double.
    constexpr int kMostGrowth = 700;
    Region growing = r;
    growing.largest_size = std::min(r.largest_size, kMostGrowth);
    const std::vector<Point> growing_axis = points(growing, true);
    const Row i_row = time_row(std::string("CBESI at random on the real axis, ") + r.orders, growing.largest_size);
    suite.measure(i_row, "quorin", [=] { return at_points(growing_axis, value_of(library.CBESI, 1)); });
    for (const BesselPeer& peer : peers) {
      suite.measure(i_row, peer.side, [=, f = peer.i] { return at_points(growing_axis, on_axis(f)); });
    }
    if (r.integer) continue;
    const std::vector<Point> plane = points(r, false);
    suite.measure(row("CBESJ at random in the plane"), "quorin",
                  [=] { return at_points(plane, value_of(library.CBESJ)); });
    suite.measure(row("CBESY at random in the plane"), "quorin", [=] { return at_points(plane, value_of_y(library)); });
    suite.measure(row("CBESI at random in the plane"), "quorin",
                  [=] { return at_points(plane, value_of(library.CBESI)); });
    suite.measure(row("CBESK at random in the plane"), "quorin",
                  [=] { return at_points(plane, value_of(library.CBESK)); });
  }
  for (const auto& [low, high] : {std::pair{-60, -10}, {-10, -1}, {1, 10}, {10, 60}}) {
    const Row row = time_row("CAIRY at random on the real axis, from " + std::to_string(low), high);
    const std::vector<Point> axis = points({"", 0, 1, false, static_cast<double>(low), high}, true);
    suite.measure(row, "quorin", [=] { return at_points(axis, value_of_ai(library)); });
    for (const BesselPeer& peer : peers) {
      suite.measure(row, peer.side,
                    [=, f = peer.ai] { return at_points(axis, [f](double, Complex z) { return f(z.real()); }); });
    }
  }
  add_slowest_row(suite, "CBESH", false, value_of_h(library));
  add_slowest_row(suite, "CBESI", true, value_of(library.CBESI));
  add_slowest_row(suite, "CBESJ", false, value_of(library.CBESJ));
  add_slowest_row(suite, "CBESK", true, value_of(library.CBESK));
  add_slowest_row(suite, "CBESY", false, value_of_y(library));
  for (const int n : suite.sizes({100, 10000}, {100})) {
    const double flops = 500.0 * n;
    suite.measure(time_row("CBESJ, sequence of n orders on the real axis", n, flops), "quorin",
                  [&library, n] { return sequence_of_j(library, 10020.0, n); });
    suite.measure(time_row("CBESJ, sequence of n orders off the axis", n, flops), "quorin", [&library, n] {
      return sequence_of_j(library, {10020.0, 3000.0}, n);
    });
  }
}

}  // namespace quorin::bench
