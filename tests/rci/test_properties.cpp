// What holds for every run: legal requests, a residual that is the true one, nothing touched outside the arrays, and no
// influence of one solve on another.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <memory>
#include <thread>

#include "tests/rci/rci_host.hpp"

namespace rci_test {
namespace {

// True when `text` begins with `first` and goes on with pieces from `cycle`, the last of which may break off.
bool is_sequence(const std::string& text, const std::string& first, const std::vector<std::string>& pieces) {
  if (!text.starts_with(first)) return first.starts_with(text);
  std::size_t at = first.size();
  while (at < text.size()) {
    const auto fits = std::find_if(pieces.begin(), pieces.end(),
                                   [&](const std::string& p) { return text.compare(at, p.size(), p) == 0; });
    if (fits == pieces.end()) {
      const std::string rest = text.substr(at);
      return std::any_of(pieces.begin(), pieces.end(), [&](const std::string& p) { return p.starts_with(rest); });
    }
    at += fits->size();
  }
  return true;
}

struct System {
  System(int n, bool symmetric, unsigned seed) : random(seed) {
    A = random_matrix(n, 4.0 / n, symmetric ? 1.0 : 0.7, symmetric, random);
    b = random_vector(n, random);
    start = random_vector(n, random);
    diagonal.resize(n);
    for (int i = 0; i < n; ++i) {
      for (int k = A.ia[i] - 1; k < A.ia[i + 1] - 1; ++k) {
        if (A.ja[k] == i + 1) diagonal[i] = A.a[k];
      }
    }
  }
  Preconditioner jacobi() const {
    return [this](int, const double* in, double* out) {
      for (int i = 0; i < A.n; ++i) out[i] = in[i] / diagonal[i];
    };
  }
  std::mt19937 random;
  Csr A;
  Vector b, start, diagonal;
};

TEST(Properties, Cg) {
  for (unsigned seed = 0; seed < 24; ++seed) {
    const System s(1 + static_cast<int>(seed) * 7, true, seed);
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1;
    CgHost host(s.A, s.b, s.start, preconditioned);
    host.precondition = s.jacobi();
    host.ipar[8] = 1;
    host.ipar[9] = tested ? 1 : 0;
    host.ipar[4] = 500;
    host.dpar[0] = 1e-24;
    ASSERT_EQ(host.check(), 0);
    double first = 0.0;
    std::string requests;
    while (host.step() > 0) {
      requests += static_cast<char>('0' + host.request);
      if (requests.size() > 1) {
        first = std::max(first, host.dpar[4]);
        EXPECT_NEAR(std::sqrt(host.dpar[4]), residual_norm(s.A, s.b.data(), host.x.data()), 1e-12 * std::sqrt(first));
      }
      host.serve();
    }
    EXPECT_EQ(host.request, 0);
    const std::string step = std::string(preconditioned ? "31" : "1") + (tested ? "2" : "");
    EXPECT_TRUE(is_sequence(requests, "1", {step})) << requests;
    EXPECT_LE(residual_norm(s.A, s.b.data(), host.x.data()), 1.1e-12 * std::sqrt(first));
    EXPECT_TRUE(host.intact());
    EXPECT_EQ(host.b, s.b);
  }
}

TEST(Properties, Fgmres) {
  for (unsigned seed = 0; seed < 24; ++seed) {
    const System s(1 + static_cast<int>(seed) * 7, false, seed);
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1, zero_tested = seed % 5 < 2;
    const int m = seed % 4 == 0 ? 0 : std::min(s.A.n, 4 + static_cast<int>(seed) % 5);
    FgmresHost host(s.A, s.b, s.start, m, preconditioned);
    // A preconditioner that changes from step to step.
    host.precondition = [&](int iteration, const double* in, double* out) {
      for (int i = 0; i < s.A.n; ++i) out[i] = in[i] / s.diagonal[i] * (1.0 + 0.3 * ((i + iteration) % 3));
    };
    host.ipar[4] = 500;
    host.ipar[8] = 1;
    host.ipar[9] = tested ? 1 : 0;
    host.ipar[11] = zero_tested ? 0 : 1;
    host.dpar[0] = 1e-11;
    host.dpar[7] = 0.0;
    ASSERT_EQ(host.check(), 0);
    std::string requests;
    double last = 1e300;
    while (host.step() > 0) {
      requests += static_cast<char>('0' + host.request);
      const double now = host.true_residual();
      if (requests.size() > 1) {
        EXPECT_NEAR(host.dpar[4], now, 1e-12 * host.dpar[2]);
        EXPECT_LE(now, last + 1e-12 * host.dpar[2]) << "minimal residuals do not grow";
        last = now;
      }
      if (!host.serve()) break;
    }
    EXPECT_GE(host.request, 0);
    const std::string step = std::string(preconditioned ? "31" : "1") + (tested ? "2" : "") + (zero_tested ? "4" : "");
    EXPECT_TRUE(is_sequence(requests, "1", {step, "1"})) << requests;
    EXPECT_EQ(host.get(), 0);
    EXPECT_LE(residual_norm(s.A, s.b.data(), host.x.data()), 1.1e-11 * host.dpar[2]);
    EXPECT_TRUE(host.intact());
    EXPECT_EQ(host.b, s.b);
    // Reserved entries, but for those that the documents give to the incomplete factorizations, keep the host's marks.
    for (std::size_t k = 23; k < 128; ++k) EXPECT_TRUE(k == 30 || host.ipar[k] == -77) << "ipar entry " << k;
    for (std::size_t k = 8; k < 128; ++k) EXPECT_TRUE(k == 30 || k == 31 || host.dpar[k] == -7.7) << "dpar entry " << k;
  }
}

// The requests are those of the right-hand sides alone, one run after the other, and so are the residuals.
TEST(Properties, CgMany) {
  for (unsigned seed = 0; seed < 12; ++seed) {
    const System s(1 + static_cast<int>(seed) * 9, true, seed);
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1;
    ManyHost many(s.A, joined(s.b, s.start), joined(s.start, s.b), preconditioned);
    CgHost first(s.A, s.b, s.start, preconditioned), second(s.A, s.start, s.b, preconditioned);
    const auto run = [&](auto& host) {
      host.precondition = s.jacobi();
      host.test_residual(1e-20);
      host.ipar[4] = 500;
      host.ipar[9] = tested ? 1 : 0;
      Record record = host.run();
      EXPECT_EQ(record.status, 0);
      EXPECT_TRUE(host.intact());
      return record;
    };
    const Record of_both = run(many), of_first = run(first), of_second = run(second);
    EXPECT_EQ(of_both.requests, of_first.requests + of_second.requests);
    EXPECT_EQ(of_both.residuals, joined(of_first.residuals, of_second.residuals));
    EXPECT_EQ(many.x, joined(first.x, second.x));
  }
}

// A solve that advances one call at a time.
template <class Host>
class Walker {
 public:
  Walker(const System& s, int m) : host_(make(s, m)) {
    host_->precondition = s.jacobi();
    host_->ipar[8] = 1;
    host_->ipar[4] = 300;
    host_->dpar[0] = 1e-9;
  }
  bool advance() {
    requests_ += static_cast<char>('0' + std::max(0, host_->step()));
    return host_->serve();
  }
  std::pair<Vector, std::string> finish() {
    if constexpr (std::is_same_v<Host, FgmresHost>) host_->get();
    return {host_->x, requests_};
  }

 private:
  static std::unique_ptr<Host> make(const System& s, int m) {
    if constexpr (std::is_same_v<Host, FgmresHost>) {
      return std::make_unique<Host>(s.A, s.b, s.start, m, m % 2 == 0);
    } else if constexpr (std::is_same_v<Host, ManyHost>) {
      return std::make_unique<Host>(s.A, joined(s.b, s.start), joined(s.start, s.b), m % 2 == 0);
    } else {
      return std::make_unique<Host>(s.A, s.b, s.start, m % 2 == 0);
    }
  }
  std::unique_ptr<Host> host_;
  std::string requests_;
};

template <class Host>
void interleaved_equals_separate(bool symmetric) {
  std::vector<std::unique_ptr<System>> systems;
  for (unsigned k = 0; k < 6; ++k)
    systems.push_back(std::make_unique<System>(30 + 11 * static_cast<int>(k), symmetric, 100 + k));
  const auto walkers = [&] {
    std::vector<Walker<Host>> all;
    all.reserve(systems.size());
    for (int k = 0; k < 6; ++k) all.emplace_back(*systems[k], 5 + k);
    return all;
  };
  std::vector<std::pair<Vector, std::string>> separate;
  for (Walker<Host>& w : walkers()) {
    while (w.advance()) {
    }
    separate.push_back(w.finish());
  }
  std::vector<Walker<Host>> in_turn = walkers();
  std::vector<char> busy(in_turn.size(), 1);
  while (std::count(busy.begin(), busy.end(), 1) > 0) {
    for (std::size_t k = 0; k < in_turn.size(); ++k) {
      if (busy[k] != 0) busy[k] = in_turn[k].advance() ? 1 : 0;
    }
  }
  std::vector<Walker<Host>> at_once = walkers();
  std::vector<std::thread> threads;
  threads.reserve(at_once.size());
  for (Walker<Host>& w : at_once) {
    threads.emplace_back([&w] {
      while (w.advance()) {
      }
    });
  }
  for (std::thread& t : threads) t.join();
  for (std::size_t k = 0; k < separate.size(); ++k) {
    EXPECT_EQ(in_turn[k].finish(), separate[k]) << k;
    EXPECT_EQ(at_once[k].finish(), separate[k]) << k;
  }
}

TEST(Properties, InterleavedSolvesEqualSeparateOnes) {
  interleaved_equals_separate<CgHost>(true);
  interleaved_equals_separate<ManyHost>(true);
  interleaved_equals_separate<FgmresHost>(false);
}

// Whatever a host does to the parameters on the way, a run stays within its arrays. Sizes of CG cannot be checked,
// those of FGMRES can. (The guard words and the sanitizers watch.)
TEST(Properties, CorruptedParameters) {
  std::mt19937 random(99);
  const int integers[] = {INT_MIN, -1, 0, 1, 2, 3, 7, 100, INT_MAX};
  const double reals[] = {std::nan(""), HUGE_VAL, -1.0, 0.0, 1e300, 1e-300};
  const auto pick = [&](const auto& values) { return values[random() % std::size(values)]; };
  const System s(6, true, 4);
  const auto corrupt = [&](auto& host, std::size_t first, std::size_t entries) {
    host.precondition = s.jacobi();
    for (auto calls = 1 + random() % 20; calls > 0; --calls) {
      host.step();
      if (!host.serve()) break;
    }
    if (random() % 3 != 0) host.ipar[first + random() % (entries - first)] = pick(integers);
    if (random() % 3 == 0) host.dpar[random() % 8] = pick(reals);
    host.ipar[5] = host.ipar[6] = 0;
    host.run(100);
    EXPECT_TRUE(host.intact());
  };
  for (int trial = 0; trial < 3000; ++trial) {
    CgHost cg(s.A, s.b, s.start, true);
    corrupt(cg, 1, 11);
    ManyHost many(s.A, joined(s.b, s.start), joined(s.start, s.b), true);
    corrupt(many, 1, 132);
    FgmresHost fgmres(s.A, s.b, s.start, 3, true);
    corrupt(fgmres, 0, 23);
    Vector out(s.b.size());
    fgmres.get(out);
    EXPECT_TRUE(fgmres.intact());
  }
}

// The index forms add 4 or 8 bytes per element, each array by its own kind.
TEST(IndexForms, ReachTheElements) {
  const System s(20, true, 5);
  const int n = s.A.n;
  CgHost plain(s.A, s.b, s.start, true);
  const int at = 3;
  const auto shifted = [&](const Vector& v) {
    Vector w(at, -1.0);
    w.insert(w.end(), v.begin(), v.end());
    return w;
  };
  Vector x = shifted(s.start), dpar(128 + at, -1.0), tmp(4 * n + at, -1.0);
  const Vector b = shifted(s.b);
  std::vector<int> ipar(128 + at, -1);
  int request = -1, count = -1;
  sDCG_INIT_Idx(&n, x.data(), at, b.data(), at, &request, ipar.data(), at, dpar.data(), at, tmp.data(), at);
  ipar[at + 8] = plain.ipar[8] = 1;
  ipar[at + 9] = plain.ipar[9] = 0;
  while (plain.step() == 1) {
    sDCG_Idx(&n, x.data(), at, b.data(), at, &request, ipar.data(), at, dpar.data(), at, tmp.data(), at);
    ASSERT_EQ(request, plain.request);
    plain.serve();
    s.A.multiply(tmp.data() + at, tmp.data() + at + n);
  }
  sDCG_GET_Idx(&n, x.data(), at, b.data(), at, &request, ipar.data(), at, dpar.data(), at, tmp.data(), at, &count);
  EXPECT_EQ(count, plain.itercount());
  EXPECT_EQ(x, shifted(plain.x));
  EXPECT_TRUE(std::all_of(tmp.begin(), tmp.begin() + at, [](double e) { return e == -1.0; }));

  // ILUT: three output arrays with indices of their own.
  const double tol = 1e-3;
  const int fill = 3;
  ipar.assign(128, 0);
  dpar.assign(128, 1.0);
  const std::size_t length = 7 * static_cast<std::size_t>(n);
  Vector values(length, -1.0), values_idx(length + 1, -1.0);
  std::vector<int> starts(n + 1), starts_idx(n + 3), columns(length, -1), columns_idx(length + 3, -1);
  int ierr = 7, ierr_idx = 7;
  DCSRILUT(&n, s.A.a.data(), s.A.ia.data(), s.A.ja.data(), values.data(), starts.data(), columns.data(), &tol, &fill,
           ipar.data(), dpar.data(), &ierr);
  sDCSRILUT_Idx(&n, s.A.a.data() - 1, 1, s.A.ia.data() - 2, 2, s.A.ja.data() - 3, 3, values_idx.data(), 1,
                starts_idx.data(), 2, columns_idx.data(), 3, &tol, &fill, ipar.data(), 0, dpar.data(), 0, &ierr_idx);
  EXPECT_EQ(ierr, 0);
  EXPECT_EQ(ierr_idx, 0);
  EXPECT_TRUE(std::equal(values.begin(), values.end(), values_idx.begin() + 1));
  EXPECT_TRUE(std::equal(starts.begin(), starts.end(), starts_idx.begin() + 2));
  EXPECT_TRUE(std::equal(columns.begin(), columns.end(), columns_idx.begin() + 3));
}

}  // namespace
}  // namespace rci_test
