#include "bench/libraries.hpp"

#include <stdexcept>

#include "platform/platform.hpp"

namespace quorin::bench {
namespace {

// Finds functions of one library, whose names may have a suffix behind the routine's name.
class Symbols {
 public:
  Symbols(platform::Module module, std::string file, std::string suffix)
      : module_(module), file_(std::move(file)), suffix_(std::move(suffix)) {}

  template <class Function>
  void find(Function*& function, const std::string& name) const {
    find_exactly(function, name + suffix_);
  }

  template <class Function>
  void find_exactly(Function*& function, const std::string& name) const {
    function = reinterpret_cast<Function*>(platform::find_symbol(module_, name.c_str()));
    if (function == nullptr) throw std::runtime_error(file_ + " has no " + name);
  }

 private:
  platform::Module module_;
  std::string file_;
  std::string suffix_;
};

Blas find_blas(const Symbols& symbols, const std::string& name, const std::string& thread_setter) {
  Blas blas{};
  blas.name = name;
  symbols.find_exactly(blas.set_threads, thread_setter);
  symbols.find(blas.saxpy, "saxpy");
  symbols.find(blas.sdot, "sdot");
  symbols.find(blas.sgemv, "sgemv");
  symbols.find(blas.sgemm, "sgemm");
  symbols.find(blas.cgemm, "cgemm");
  symbols.find(blas.ssyrk, "ssyrk");
  symbols.find(blas.strsm, "strsm");
  return blas;
}

IndexForms find_index_forms(const Symbols& symbols) {
  IndexForms forms{};
  symbols.find(forms.saxpy, "saxpy_Idx");
  symbols.find(forms.sdot, "sdot_Idx");
  symbols.find(forms.sgemm, "sgemm_Idx");
  return forms;
}

VectorForms find_vector_forms(const Symbols& symbols) {
  VectorForms forms{};
  symbols.find(forms.sscal, "sscal");
  symbols.find(forms.isamax, "isamax");
  return forms;
}

Signal find_signal(const Symbols& symbols) {
  Signal signal{};
  symbols.find(signal.remez, "REMEZ");
  symbols.find(signal.toeplitz, "TSLS1");
  return signal;
}

Rci find_rci(const Symbols& symbols) {
  Rci rci{};
  symbols.find(rci.cg_init, "DCG_INIT");
  symbols.find(rci.cg, "DCG");
  symbols.find(rci.fgmres_init, "DFGMRES_INIT");
  symbols.find(rci.fgmres_check, "DFGMRES_CHECK");
  symbols.find(rci.fgmres, "DFGMRES");
  symbols.find(rci.ilu0, "DCSRILU0");
  symbols.find(rci.ilut, "DCSRILUT");
  return rci;
}

// The peer's own words: version, build options and the kernel set that it has chosen.
std::string describe_openblas(const Symbols& symbols) {
  const char* (*get_config)() = nullptr;
  const char* (*get_core_name)() = nullptr;
  symbols.find_exactly(get_config, "openblas_get_config");
  symbols.find_exactly(get_core_name, "openblas_get_corename");
  return std::string(get_config()) + ", " + get_core_name() + " kernels";
}

}  // namespace

Libraries load_libraries(const std::string& product_file, const std::string& peer_file) {
  const platform::Module product = platform::open_module(product_file.c_str());
  if (product == nullptr) throw std::runtime_error("cannot load " + product_file);
  const Symbols symbols(product, product_file, "");
  Libraries libraries{find_blas(symbols, "quorin", "sMKL_Set_Num_Threads"),
                      find_index_forms(symbols),
                      find_vector_forms(symbols),
                      find_signal(symbols),
                      find_rci(symbols),
                      std::nullopt,
                      {}};
  if (const platform::Module peer = platform::open_module(peer_file.c_str())) {
    const Symbols peer_symbols(peer, peer_file, "_");
    libraries.peer = find_blas(peer_symbols, "openblas", "openblas_set_num_threads");
    libraries.peer_description = describe_openblas(peer_symbols);
  }
  return libraries;
}

}  // namespace quorin::bench
