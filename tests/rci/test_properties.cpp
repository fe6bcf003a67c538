// What holds for every run: legal requests, a residual that is the true one, nothing touched outside the arrays, and no
// influence of one solve on another.
#include <initializer_list>
#include <thread>

#include "tests/rci/rci_host.hpp"
#include "tests/support/test.hpp"

namespace rci_test {
namespace {

struct System {
  System(int n, bool symmetric, unsigned seed) {
    std::mt19937 random(seed);
    A = random_matrix(n, 4.0 / n, symmetric ? 1.0 : 0.7, symmetric, random);
    b = random_vector(n, random);
    start = random_vector(n, random);
  }
  Csr A;
  Vector b, start;
};

// Whether the requests are a product and then whole steps, the last of which may break off; of a run with restarts,
// there may be a further product before each step.
bool is_legal(std::string_view requests, std::string_view step, bool restarts) {
  if (!requests.starts_with('1')) return false;
  requests.remove_prefix(1);
  while (!step.starts_with(requests)) {
    const bool is_step = requests.starts_with(step);
    if (!is_step && !(restarts && requests.starts_with('1'))) return false;
    requests.remove_prefix(is_step ? step.size() : 1);
  }
  return true;
}

// A run that tests residuals itself, with a request for each letter of `step`. CG reports the squares of norms.
void expect_sound_run(Host& host, bool squares, double tolerance, const std::string& step) {
  const Vector b = host.b;
  const auto norm_of = [squares](double reported) { return squares ? std::sqrt(reported) : reported; };
  host.ipar[4] = 500;
  host.ipar[8] = 1;
  host.dpar[0] = squares ? tolerance * tolerance : tolerance;
  ASSERT_EQ(host.check(), 0);
  EXPECT_EQ(host.solution(), host.x);
  double largest = 0.0, last = 1e300;
  for (bool goes_on = host.advance(); goes_on && host.step() > 0; goes_on = host.serve()) {
    host.requests += static_cast<char>('0' + host.request);
    const double residual = norm_of(host.dpar[4]), true_residual = host.true_residual();
    largest = std::max(largest, residual);
    EXPECT_NEAR(residual, true_residual, 1e-12 * largest);
    if (squares) continue;
    EXPECT_LE(true_residual, last + 1e-12 * largest) << "minimal residuals do not grow";
    last = true_residual;
  }
  EXPECT_GE(host.request, 0);
  EXPECT_LE(host.true_residual(), 1.1 * tolerance * largest);
  EXPECT_TRUE(is_legal(host.requests, step, !squares)) << host.requests;
  EXPECT_TRUE(host.intact());
  EXPECT_EQ(host.b, b);
}

TEST(Properties, Cg) {
  for (int seed = 0; seed < 24; ++seed) {
    const System s(1 + seed * 7, true, static_cast<unsigned>(seed));
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1;
    CgHost host(s.A, s.b, s.start, preconditioned);
    host.precondition = jacobi(s.A);
    host.ipar[9] = tested ? 1 : 0;
    const std::string step = std::string(preconditioned ? "31" : "1") + (tested ? "2" : "");
    expect_sound_run(host, true, 1e-12, step);
    EXPECT_EQ(host.request, 0);
  }
}

TEST(Properties, Fgmres) {
  for (int seed = 0; seed < 24; ++seed) {
    const System s(1 + seed * 7, false, static_cast<unsigned>(seed));
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1, zero_tested = seed % 5 < 2;
    FgmresHost host(s.A, s.b, s.start, seed % 4 == 0 ? 0 : std::min(s.A.n, 4 + seed % 5), preconditioned);
    // A preconditioner that changes from step to step.
    host.precondition = [&s, M = jacobi(s.A)](int iteration, const double* in, double* out) {
      M(iteration, in, out);
      for (int i = 0; i < s.A.n; ++i) out[i] *= 1.0 + 0.3 * ((i + iteration) % 3);
    };
    host.ipar[9] = tested ? 1 : 0;
    host.ipar[11] = zero_tested ? 0 : 1;
    host.dpar[7] = 0.0;
    const std::string step = std::string(preconditioned ? "31" : "1") + (tested ? "2" : "") + (zero_tested ? "4" : "");
    expect_sound_run(host, false, 1e-11, step);
    // Into x once and no more; nowhere at all.
    EXPECT_EQ(host.get(), 0);
    const Vector once = host.x;
    EXPECT_EQ(host.get(), 0);
    EXPECT_EQ(host.x, once);
    EXPECT_LE(residual_norm(s.A, s.b.data(), once.data()), 1.1e-11 * host.dpar[2]);
    host.ipar[12] = -1;
    EXPECT_EQ(host.get(), 0);
    EXPECT_EQ(host.x, once);
    EXPECT_EQ(host.b, s.b);
    // Reserved entries, but for those that the documents give to the incomplete factorizations, keep the host's marks.
    for (std::size_t k = 23; k < 128; ++k) EXPECT_TRUE(k == 30 || host.ipar[k] == -77) << "ipar entry " << k;
    for (std::size_t k = 8; k < 128; ++k) EXPECT_TRUE(k == 30 || k == 31 || host.dpar[k] == -7.7) << "dpar entry " << k;
  }
}

// The requests are those of the right-hand sides alone, one run after the other, and so are the residuals.
TEST(Properties, CgMany) {
  for (int seed = 0; seed < 12; ++seed) {
    const System s(1 + seed * 9, true, static_cast<unsigned>(seed));
    const bool preconditioned = seed % 2 == 1, tested = seed % 3 == 1;
    ManyHost many(s.A, joined(s.b, s.start), joined(s.start, s.b), preconditioned);
    CgHost first(s.A, s.b, s.start, preconditioned), second(s.A, s.start, s.b, preconditioned);
    for (Host* const host : std::initializer_list<Host*>{&many, &first, &second}) {
      host->precondition = jacobi(s.A);
      host->test_residual(1e-20);
      host->ipar[4] = 500;
      host->ipar[9] = tested ? 1 : 0;
      EXPECT_EQ(host->run(), 0);
      EXPECT_TRUE(host->intact());
    }
    EXPECT_EQ(many.requests, first.requests + second.requests);
    EXPECT_EQ(many.residuals, joined(first.residuals, second.residuals));
    EXPECT_EQ(many.x, joined(first.x, second.x));
  }
}

// The host turns the preconditioner on, or off, on the way; FGMRES within a cycle, CG with a fresh direction.
TEST(Properties, PreconditionerSwitchedOnTheWay) {
  const System positive(40, true, 7), general(30, false, 5);
  for (const int first : {0, 1}) {
    CgHost cg(positive.A, positive.b, positive.start, true);
    FgmresHost fgmres(general.A, general.b, general.start, 20, true);
    cg.dpar[0] = 1e-20;
    fgmres.dpar[0] = 1e-8;
    for (Host* const host : std::initializer_list<Host*>{&cg, &fgmres}) {
      host->precondition = jacobi(host->A);
      host->ipar[4] = 200;
      host->ipar[8] = 1;
      host->ipar[10] = first;
      host->satisfied = [host, first] {
        if (host->ipar[3] == 3) host->ipar[10] = 1 - first;
        return false;
      };
      EXPECT_EQ(host->run(), 0);
      EXPECT_GT(host->ipar[3], 4) << "iterations enough to tell";
    }
    EXPECT_LT(cg.true_residual(), 1e-9 * norm(cg.b));
    EXPECT_NEAR(fgmres.true_residual(), fgmres.dpar[4], 1e-12);
  }
}

// Some solves with each method.
std::vector<std::unique_ptr<Host>> begin_solves(const std::vector<System>& positive,
                                                const std::vector<System>& general) {
  std::vector<std::unique_ptr<Host>> hosts;
  for (std::size_t k = 0; k < positive.size(); ++k) {
    const System &p = positive[k], &g = general[k];
    const bool preconditioned = k % 2 == 1;
    hosts.push_back(std::make_unique<CgHost>(p.A, p.b, p.start, preconditioned));
    hosts.push_back(std::make_unique<ManyHost>(p.A, joined(p.b, p.start), joined(p.start, p.b), preconditioned));
    hosts.push_back(std::make_unique<FgmresHost>(g.A, g.b, g.start, 5 + static_cast<int>(k), preconditioned));
  }
  for (const auto& host : hosts) {
    host->precondition = jacobi(host->A);
    host->ipar[8] = 1;
    host->ipar[4] = 300;
    host->dpar[0] = 1e-9;
  }
  return hosts;
}

// The arrays of a run serve for another when its stage is put back, and ipar(3) and (4) of one with several sides.
TEST(Properties, ASecondSolveEqualsTheFirst) {
  const std::vector<System> positive = {{30, true, 1}, {41, true, 2}}, general = {{30, false, 1}, {41, false, 2}};
  for (const auto& host : begin_solves(positive, general)) {
    const Vector start = host->x;
    host->run();
    const std::string requests = std::exchange(host->requests, "");
    const Vector residuals = std::exchange(host->residuals, {});
    host->x = start;
    host->ipar[2] = 1;
    if (dynamic_cast<ManyHost*>(host.get()) != nullptr) host->ipar[3] = 0;
    host->request = -1;
    host->advance();
    EXPECT_EQ(host->ipar[3], 0);
    EXPECT_EQ(host->dpar[5], 0.0);
    host->run();
    EXPECT_EQ(host->requests, requests);
    EXPECT_EQ(host->residuals, residuals);
  }
}

TEST(Properties, InterleavedSolvesEqualSeparateOnes) {
  std::vector<System> positive, general;
  for (unsigned k = 0; k < 6; ++k) {
    positive.emplace_back(30 + 11 * static_cast<int>(k), true, 100 + k);
    general.emplace_back(30 + 11 * static_cast<int>(k), false, 100 + k);
  }
  const auto separate = begin_solves(positive, general), in_turn = begin_solves(positive, general),
             at_once = begin_solves(positive, general);
  for (const auto& host : separate) host->run();
  std::vector<Host*> busy;
  busy.reserve(in_turn.size());
  for (const auto& host : in_turn) busy.push_back(host.get());
  while (!busy.empty()) std::erase_if(busy, [](Host* host) { return !host->advance(); });
  std::vector<std::thread> threads;
  threads.reserve(at_once.size());
  for (const auto& host : at_once) threads.emplace_back([&host] { host->run(); });
  for (std::thread& t : threads) t.join();
  for (std::size_t k = 0; k < separate.size(); ++k) {
    for (const auto* const other : {&in_turn[k], &at_once[k]}) {
      EXPECT_EQ((*other)->solution(), separate[k]->solution()) << k;
      EXPECT_EQ((*other)->requests, separate[k]->requests) << k;
    }
  }
}

}  // namespace
}  // namespace rci_test
