#include "bench/direct/cholmod_peer.hpp"

#include <stdexcept>

#if defined(QUORIN_HAS_CHOLMOD)
#include <cholmod.h>

#include <algorithm>
#include <cstddef>
#include <vector>
#endif

namespace quorin::bench {

#if defined(QUORIN_HAS_CHOLMOD)

struct CholmodPeer::State {
  cholmod_common common{};
  cholmod_sparse* matrix = nullptr;
  cholmod_factor* factor = nullptr;
  cholmod_dense* x = nullptr;
  std::vector<int> permutation;
};

bool CholmodPeer::is_there() { return true; }

CholmodPeer::CholmodPeer(const test::CompressedArrays& lower, int n, const int* permutation)
    : state_(std::make_unique<State>()) {
  State& s = *state_;
  cholmod_start(&s.common);
  s.common.nmethods = 1;
  s.common.method[0].ordering = CHOLMOD_GIVEN;
  s.common.postorder = 1;
  s.permutation.assign(permutation, permutation + n);
  const auto size = static_cast<std::size_t>(n);
  s.matrix = cholmod_allocate_sparse(size, size, lower.indices.size(), 1, 1, -1, CHOLMOD_REAL, &s.common);
  if (s.matrix == nullptr) throw std::runtime_error("CHOLMOD has no memory");
  std::copy(lower.starts.begin(), lower.starts.end(), static_cast<int*>(s.matrix->p));
  std::copy(lower.indices.begin(), lower.indices.end(), static_cast<int*>(s.matrix->i));
  std::copy(lower.re.begin(), lower.re.end(), static_cast<double*>(s.matrix->x));
}

CholmodPeer::~CholmodPeer() {
  cholmod_free_dense(&state_->x, &state_->common);
  cholmod_free_factor(&state_->factor, &state_->common);
  cholmod_free_sparse(&state_->matrix, &state_->common);
  cholmod_finish(&state_->common);
}

void CholmodPeer::analyze() {
  cholmod_free_factor(&state_->factor, &state_->common);
  state_->factor = cholmod_analyze_p(state_->matrix, state_->permutation.data(), nullptr, 0, &state_->common);
}

void CholmodPeer::factorize() {
  cholmod_factorize(state_->matrix, state_->factor, &state_->common);
  if (state_->common.status != CHOLMOD_OK) throw std::runtime_error("CHOLMOD fails");
}

const double* CholmodPeer::solve(int nrhs) {
  State& s = *state_;
  cholmod_dense* b = cholmod_ones(s.matrix->nrow, static_cast<std::size_t>(nrhs), CHOLMOD_REAL, &s.common);
  cholmod_free_dense(&s.x, &s.common);
  s.x = cholmod_solve(CHOLMOD_A, s.factor, b, &s.common);
  cholmod_free_dense(&b, &s.common);
  return static_cast<const double*>(s.x->x);
}

#else

struct CholmodPeer::State {};

bool CholmodPeer::is_there() { return false; }
CholmodPeer::CholmodPeer(const test::CompressedArrays&, int, const int*) {
  throw std::logic_error("this program was built without CHOLMOD");
}
CholmodPeer::~CholmodPeer() = default;
void CholmodPeer::analyze() {}
void CholmodPeer::factorize() {}
const double* CholmodPeer::solve(int) { return nullptr; }

#endif

}  // namespace quorin::bench
