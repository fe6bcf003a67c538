#include "exports/services.hpp"

#include <cstdint>

#include "base/argument_error.hpp"
#include "base/parallel.hpp"
#include "base/thread_settings.hpp"
#include "dense/dense.hpp"
#include "exports/entry.hpp"
#include "generated/services_constants.hpp"
#include "platform/platform.hpp"

namespace quorin::services {
namespace {

static_assert(static_cast<int>(base::Domain::kAll) == kDomainAll &&
              static_cast<int>(base::Domain::kBlas) == kDomainBlas &&
              static_cast<int>(base::Domain::kFft) == kDomainFft &&
              static_cast<int>(base::Domain::kVectorMath) == kDomainVectorMath &&
              static_cast<int>(base::Domain::kSparseDirect) == kDomainSparseDirect);

bool is_domain(int domain) { return domain >= 0 && domain < base::kDomainCount; }

}  // namespace

void set_num_threads(int n) noexcept {
  if (n > 0) base::set_thread_count(base::Domain::kAll, n);
}

int get_max_threads() noexcept { return base::thread_count(base::Domain::kAll); }

int domain_set_num_threads(int n, int domain) noexcept {
  if (n < 0 || !is_domain(domain)) return 0;
  base::set_thread_count(static_cast<base::Domain>(domain), n);
  return 1;
}

int domain_get_max_threads(int domain) noexcept {
  return base::thread_count(is_domain(domain) ? static_cast<base::Domain>(domain) : base::Domain::kAll);
}

void set_dynamic(int flag) noexcept { base::set_dynamic(flag != 0); }

int get_dynamic() noexcept { return base::dynamic() ? 1 : 0; }

void set_blocktime(int milliseconds) noexcept {
  base::set_block_time(milliseconds);
  base::apply_block_time();
  const platform::Module runtime = platform::find_loaded_module(platform::kOpenMpLibrary);
  if (runtime == nullptr) return;
  using SetBlockTime = void(int);
  if (auto* const set = reinterpret_cast<SetBlockTime*>(platform::find_symbol(runtime, "kmp_set_blocktime"))) {
    set(milliseconds);
  }
}

void free_buffers() noexcept { dense::release_buffers(); }

void set_text_output(base::TextOutputCallback callback) noexcept { base::set_text_output(callback); }

void xerbla(const char* srname, const int* info, int len) noexcept {
  if (info != nullptr) base::report_argument_error(srname, len, *info);
}

}  // namespace quorin::services

extern "C" {

// Deliberately silent: a host that wants reports asks for them through the callback, which this never calls.
std::int32_t quorin_taucs_printf(const char* format, ...) QUORIN_EXPORT(taucs_printf);
std::int32_t quorin_taucs_printf(const char*, ...) { return 0; }
}
