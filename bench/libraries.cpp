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

// A function of a library; initialises pointers of any type.
class Found {
 public:
  explicit Found(void* address) : address_(address) {}
  template <class Function>
  operator Function*() const {
    return reinterpret_cast<Function*>(address_);
  }

 private:
  void* address_;
};

// The functions of one library, whose names may have a suffix behind the routine's name.
class Symbols {
 public:
  Symbols(platform::Module module, std::string file, std::string suffix)
      : module_(module), file_(std::move(file)), suffix_(std::move(suffix)) {}

  Found operator[](const std::string& routine) const { return exactly(routine + suffix_); }

  Found exactly(const std::string& name) const {
    void* const address = platform::find_symbol(module_, name.c_str());
    if (address == nullptr) throw std::runtime_error(file_ + " has no " + name);
    return Found(address);
  }

 private:
  platform::Module module_;
  std::string file_;
  std::string suffix_;
};

Lapack find_lapack(const Symbols& in) {
  return {.sgetrf = in["sgetrf"],
          .cgetrf = in["cgetrf"],
          .spotrf = in["spotrf"],
          .sgeqrf = in["sgeqrf"],
          .cgeqrf = in["cgeqrf"],
          .ssyevr = in["ssyevr"],
          .cheevr = in["cheevr"],
          .sgesdd = in["sgesdd"],
          .sgeev = in["sgeev"]};
}

Blas find_blas(const Symbols& in, const std::string& name, const std::string& thread_setter) {
  return {.name = name,
          .set_threads = in.exactly(thread_setter),
          .saxpy = in["saxpy"],
          .sdot = in["sdot"],
          .sgemv = in["sgemv"],
          .sgemm = in["sgemm"],
          .cgemm = in["cgemm"],
          .ssyrk = in["ssyrk"],
          .strsm = in["strsm"],
          .lapack = std::nullopt};
}

Rci find_rci(const Symbols& in) {
  return {.cg_init = in["DCG_INIT"],
          .cg = in["DCG"],
          .fgmres_init = in["DFGMRES_INIT"],
          .fgmres_check = in["DFGMRES_CHECK"],
          .fgmres = in["DFGMRES"],
          .ilu0 = in["DCSRILU0"],
          .ilut = in["DCSRILUT"]};
}

Umfpack find_umfpack(const Symbols& in) {
  return {.di_symbolic = in["umfpack_di_symbolic"],
          .di_numeric = in["umfpack_di_numeric"],
          .di_solve = in["umfpack_di_solve"],
          .zi_symbolic = in["umfpack_zi_symbolic"],
          .zi_numeric = in["umfpack_zi_numeric"],
          .zi_solve = in["umfpack_zi_solve"],
          .free_symbolic = in["umfpack_di_free_symbolic"],
          .free_numeric = in["umfpack_di_free_numeric"]};
}

Slap find_slap(const Symbols& in) {
  return {.to_columns = in["SS2Y"],
          .ssdcg = in["SSDCG"],
          .ssiccg = in["SSICCG"],
          .ssdcgn = in["SSDCGN"],
          .sslucn = in["SSLUCN"],
          .ssdbcg = in["SSDBCG"],
          .sslubc = in["SSLUBC"],
          .ssdcgs = in["SSDCGS"],
          .sslucs = in["SSLUCS"],
          .ssdgmr = in["SSDGMR"],
          .sslugm = in["SSLUGM"],
          .ssdomn = in["SSDOMN"],
          .ssluom = in["SSLUOM"],
          .ssjac = in["SSJAC"],
          .ssgs = in["SSGS"],
          .ssilur = in["SSILUR"]};
}

Libraries find_product(const Symbols& in) {
  return {.product = find_blas(in, "quorin", "sMKL_Set_Num_Threads"),
          .index_forms = {.saxpy = in["saxpy_Idx"], .sdot = in["sdot_Idx"], .sgemm = in["sgemm_Idx"]},
          .vector_forms = {.sscal = in["sscal"], .isamax = in["isamax"]},
          .signal = {.remez = in["REMEZ"], .toeplitz = in["TSLS1"]},
          .rci = find_rci(in),
          .amos = {.j = in["CBESJ"], .k = in["CBESK"], .y = in["CBESY"], .ai = in["CAIRY"]},
          .umfpack = find_umfpack(in),
          .pack = {.increment = in["vspacki"],
                   .index = in["vspackv"],
                   .mask = in["vspackm"],
                   .unpack_mask = in["vsunpackm"]},
          .slap = find_slap(in),
          .taucs = {.ccs_read_ccs = in["taucs_ccs_read_ccs"],
                    .ccs_read_ijv = in["taucs_ccs_read_ijv"],
                    .ccs_free = in["taucs_ccs_free"],
                    .ccs_order = in["taucs_ccs_order"]},
          .peer = std::nullopt,
          .peer_description = {}};
}

// The peer's own words: version, build options and the kernel set that it has chosen.
std::string describe_openblas(const Symbols& in) {
  const char* (*const get_config)() = in.exactly("openblas_get_config");
  const char* (*const get_core_name)() = in.exactly("openblas_get_corename");
  return std::string(get_config()) + ", " + get_core_name() + " kernels";
}

}  // namespace

Libraries load_libraries(const std::string& product_file, const std::string& peer_file) {
  const platform::Module product = platform::open_module(product_file.c_str());
  if (product == nullptr) throw std::runtime_error("cannot load " + product_file);
  const Symbols symbols(product, product_file, "");
  Libraries libraries = find_product(symbols);
  libraries.product.lapack = find_lapack(symbols);
  if (const platform::Module peer = platform::open_module(peer_file.c_str())) {
    const Symbols peer_symbols(peer, peer_file, "_");
    libraries.peer = find_blas(peer_symbols, "openblas", "openblas_set_num_threads");
    // On Windows the peer comes without LAPACK: another DLL has it, over the peer.
    if (const platform::Module lapack = platform::open_module(kLapackPeerFile)) {
      libraries.peer->lapack = find_lapack(Symbols(lapack, kLapackPeerFile, "_"));
    }
    libraries.peer_description = describe_openblas(peer_symbols);
  }
  return libraries;
}

}  // namespace quorin::bench
