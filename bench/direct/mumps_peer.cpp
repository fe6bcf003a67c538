#include "bench/direct/mumps_peer.hpp"

#include <stdexcept>

#if defined(QUORIN_HAS_MUMPS)
#include <dmumps_c.h>

#include <algorithm>
#include <string>
#include <vector>
#endif

namespace quorin::bench {

#if defined(QUORIN_HAS_MUMPS)

namespace {

enum Job { kEnd = -2, kBegin = -1, kAnalyze = 1, kFactorize = 2, kSolve = 3 };

}  // namespace

struct MumpsPeer::State {
  void run(Job job) {
    id.job = job;
    dmumps_c(&id);
    if (id.infog[0] < 0) throw std::runtime_error("MUMPS: " + std::to_string(id.infog[0]));
  }
  // A parameter by its published number.
  int& control(int number) { return id.icntl[number - 1]; }

  DMUMPS_STRUC_C id{};
  std::vector<int> rows, columns, places;
  std::vector<double> values, x;
};

bool MumpsPeer::is_there() { return true; }

MumpsPeer::MumpsPeer(const GivenSystem& system) : state_(std::make_unique<State>()) {
  constexpr int kWholeWorld = -987654;
  State& s = *state_;
  const auto n = static_cast<std::size_t>(system.n);
  s.values = system.matrix.re;
  s.places.resize(n);
  for (int k = 0; k < system.n; ++k) {
    s.places[system.permutation[k]] = k + 1;
    for (int i = system.matrix.starts[k]; i < system.matrix.starts[k + 1]; ++i) {
      s.rows.push_back(system.matrix.indices[i] + 1);
      s.columns.push_back(k + 1);
    }
  }
  s.id.comm_fortran = kWholeWorld;
  s.id.par = 1;
  s.id.sym = system.is_symmetric ? 2 : 0;
  s.run(kBegin);
  for (const int messages : {1, 2, 3, 4}) s.control(messages) = 0;
  s.control(6) = 0;     // no matching
  s.control(7) = 1;     // the ordering is given
  s.control(8) = 0;     // no scaling
  s.control(14) = 100;  // percent more memory than foreseen, for pivots that are delayed
  s.id.n = system.n;
  s.id.nz = static_cast<int>(s.values.size());
  s.id.irn = s.rows.data();
  s.id.jcn = s.columns.data();
  s.id.a = s.values.data();
  s.id.perm_in = s.places.data();
}

MumpsPeer::~MumpsPeer() {
  state_->id.job = kEnd;
  dmumps_c(&state_->id);
}

void MumpsPeer::analyze() { state_->run(kAnalyze); }
void MumpsPeer::factorize() { state_->run(kFactorize); }

const double* MumpsPeer::solve(int nrhs) {
  State& s = *state_;
  s.x.assign(static_cast<std::size_t>(s.id.n) * static_cast<std::size_t>(nrhs), 1.0);
  s.id.rhs = s.x.data();
  s.id.nrhs = nrhs;
  s.id.lrhs = s.id.n;
  s.run(kSolve);
  return s.x.data();
}

#else

struct MumpsPeer::State {};

bool MumpsPeer::is_there() { return false; }
MumpsPeer::MumpsPeer(const GivenSystem&) { throw std::logic_error("this program was built without MUMPS"); }
MumpsPeer::~MumpsPeer() = default;
void MumpsPeer::analyze() {}
void MumpsPeer::factorize() {}
const double* MumpsPeer::solve(int) { return nullptr; }

#endif

}  // namespace quorin::bench
