#define QUORIN_LOADER_IMPLEMENTATION
#include "bench/libraries.hpp"

#include <stdexcept>

#include "platform/platform.hpp"

namespace quorin::bench {
namespace {

#if defined(_WIN32)
constexpr const char* kLapackPeerFile = "lapack_peer.dll";
#else
constexpr const char* kLapackPeerFile = "libopenblas.so.0";
#endif

template <class Function>
Function* find(platform::Module module, const std::string& name) {
  void* const address = module == nullptr ? nullptr : platform::find_symbol(module, name.c_str());
  return reinterpret_cast<Function*>(address);
}

// A peer is one DLL for BLAS and, on Windows, another for LAPACK, over the first. Their names end with an underscore.
struct Peer {
  platform::Module blas, lapack;

  static quorin_function find_routine(void* context, const char* name) {
    const auto& peer = *static_cast<const Peer*>(context);
    const std::string symbol = std::string(name) + '_';
    auto* const routine = find<void()>(peer.blas, symbol);
    return routine != nullptr ? routine : find<void()>(peer.lapack, symbol);
  }
};

// The peer's own words: version, build options and the kernel set that it has chosen.
std::string describe_openblas(platform::Module module) {
  auto* const get_config = find<const char*()>(module, "openblas_get_config");
  auto* const get_core_name = find<const char*()>(module, "openblas_get_corename");
  if (get_config == nullptr || get_core_name == nullptr) return "OpenBLAS";
  return std::string(get_config()) + ", " + get_core_name() + " kernels";
}

}  // namespace

Libraries load_libraries(const std::string& product_file, const std::string& peer_file) {
  Libraries libraries;
  Library& product = libraries.product;
  const int missing = quorin_load(product_file.c_str(), &product);
  if (missing < 0) throw std::runtime_error("cannot load " + product_file);
  if (missing > 0) throw std::runtime_error(product_file + " has no " + product.missing);
  product.name = "quorin";
  product.set_threads = product.sMKL_Set_Num_Threads;

  Peer modules{platform::open_module(peer_file.c_str()), nullptr};
  if (modules.blas == nullptr) return libraries;
  modules.lapack = platform::open_module(kLapackPeerFile);
  Library& peer = libraries.peer.emplace();
  quorin_bind(Peer::find_routine, &modules, &peer);
  peer.name = "openblas";
  peer.set_threads = find<void(int)>(modules.blas, "openblas_set_num_threads");
  if (peer.sgemm == nullptr || peer.set_threads == nullptr) throw std::runtime_error(peer_file + " is no OpenBLAS");
  libraries.peer_description = describe_openblas(modules.blas);
  return libraries;
}

}  // namespace quorin::bench
