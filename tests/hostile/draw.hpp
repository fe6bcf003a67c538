// Arguments for a call of any export, most of them plausible and some hostile: NaN, infinities, huge and subnormal
// numbers, counts of zero and less, indices that lead outside, null where the interface allows it. What a host must get
// right is right: lengths of arrays that the library cannot check, handles that are alive.
#pragma once

#include <initializer_list>
#include <list>
#include <regex>

#include "quorin/quorin.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/index_form.hpp"
#include "tests/support/temporary_file.hpp"
#include "tests/support/test.hpp"
#include "tests/support/watchdog.hpp"

namespace hostile {

enum class Direction { kIn, kOut, kInOut };

using quorin::test::base, quorin::test::Edge;
using quorin::test::GuardedPages;

// What host functions write, too.
template <class Random>
double special_number(Random& random) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double specials[] = {std::nan(""), kInfinity, -kInfinity, 3e38,  -3e38,  1e300, 1e-300, 5e-324, 1e-40,
                             -1e-42,       0.0,       -0.0,       1e-20, -1e20F, 1e9,   -1e-9,  4e9,    -1e308};
  return specials[random() % std::size(specials)];
}

// A sequence of calls of one family, which share what calls leave for others: handles, and the parameters of a run.
class Draw {
 public:
  Draw(std::string_view family, std::uint32_t seed, quorin::test::Watchdog& watchdog,
       quorin::test::CapturedOutput& output)
      : family_(family), seed_(seed), watchdog_(watchdog), output_(output), random_(seed) {
    n_ = 1 + below(12);
    m_ = family == "trust_region" ? n_ + below(4) : is_one_of(2) ? n_ : 1 + below(12);
    nz_ = 1 + below(40);
    if (family == "feast") nz_ = 2 * kLargest + below(30);
    if (family == "umfpack") nz_ = m_ * n_;
    if (family == "pardiso") draw_system();
  }
  Draw(const Draw&) = delete;
  Draw& operator=(const Draw&) = delete;
  ~Draw() {
    for (const Handle& handle : handles_) release(handle);
    release_solver(state_["pt"]);
  }

  // --- A call ---

  void begin(const char*, const char* routine) {
    routine_ = routine;
    used_ = 0;
    passed_ = nullptr;
    is_supplied_ = !is_one_of(8);
    is_indexed_ = is_one_of(2);
    arrays_.clear();
    matrices_.clear();
    slots_.clear();
    mode_ = below(8);
    is_gentle_ = is_one_of(2);
  }
  // Whether it is made by bases and indices.
  bool is_indexed() const { return is_indexed_; }
  void announce() {
    const std::string text = routine_ + ", seed " + std::to_string(seed_) + ", call " + std::to_string(++calls_);
    quorin::test::FaultReport::begin(text.c_str());
    watchdog_.begin(text);
  }
  void finish() {
    EXPECT_LE(watchdog_.end(), quorin::test::Watchdog::kMost) << routine_ << ", seed " << seed_;
    const std::string text = output_.take();
    printed_ += text.empty() ? 0 : 1;
    EXPECT_TRUE(std::regex_match(text, std::regex(documented_output())))
        << routine_ << ", seed " << seed_ << " prints: " << text;
    for (const Array& array : arrays_) {
      EXPECT_TRUE(array.pages->intact()) << routine_ << ", seed " << seed_ << ": writes beside " << array.name;
      if (array.direction == Direction::kIn) {
        const auto bytes = array.pages->bytes();
        EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), array.before.begin(), array.before.end()))
            << routine_ << ", seed " << seed_ << ": writes into " << array.name;
      } else if (is_state(array.name) && !(array.name == "pt" && is_spoilt_)) {
        const auto bytes = array.pages->bytes();
        state_[solver() + array.name].assign(bytes.begin(), bytes.end());
      } else if (array.name == "pt") {  // restored
        release_solver(array.pages->bytes());
      }
    }
    for (const Slot& slot : slots_) collect(slot);
    if (routine_ == "taucs_supernodal_factor_free" || routine_ == "taucs_multilu_factor_free") {
      const bool is_lu = routine_.find("multilu") != std::string::npos;
      forget([&](const Handle& handle) { return handle.value == passed_ && handle.is_lu() == is_lu; });
    }
  }

  // The calls that printed something.
  int printed() const { return printed_; }

  // --- Results ---

  void take(std::int32_t) {}
  void take(float) {}
  void take(double) {}
  void take(taucs_ccs_matrix* A) {
    if (A == nullptr) return;
    const int rows = std::max(A->m, A->n);
    ASSERT_GE(A->n, 0) << routine_;
    // A matrix that was created only has no content yet.
    const bool is_filled = routine_.find("create") == std::string::npos || routine_.find("amwb") != std::string::npos;
    for (int k = 0; is_filled && k < A->colptr[A->n]; ++k) {
      EXPECT_TRUE(A->rowind[k] >= 0 && A->rowind[k] < rows) << routine_ << ", seed " << seed_;
    }
    taucs_ccs_free(A);
  }
  void take(void* result) {
    if (routine_.find("_factor_") == std::string::npos) return std::free(result);
    if (result != nullptr) remember({"L", routine_, result});
  }

  // --- Scalars ---

  // `is_size`: arrays are as long as it says.
  template <class T>
  T scalar(std::string_view name, bool is_size, std::initializer_list<std::int64_t> options) {
    if constexpr (std::is_same_v<T, char>) {
      return is_one_of(8) ? static_cast<char>(random_()) : static_cast<char>(any_of(options));
    } else {
      const auto value = static_cast<T>(integer(name, is_size, options));
      if (name == "mtype") kind_ = value;
      if (name == "n" || name == "N") order_ = static_cast<int>(value);
      if (name == "nrhs") right_sides_ = std::max<T>(value, 0);
      return value;
    }
  }
  template <class T>
  T number() {
    return static_cast<T>(any_number());
  }

  // --- Arrays, and scalars that are passed by their address ---

  template <class T>
  T* place(std::string_view name, T value, Direction direction, bool is_nullable) {
    if (is_null(is_nullable)) return nullptr;
    T* const place = static_cast<T*>(allocate(name, sizeof(T), direction));
    *place = value;
    return settled<T>();
  }

  template <class T>
  T* array(std::string_view name, std::int64_t count, Direction direction, bool is_nullable, bool is_kept = false) {
    if (is_null(is_nullable)) return nullptr;
    // Without an array of imaginary parts both stand in one; and a run's parameters are there whatever else is wrong.
    if (std::is_same_v<T, float> && routine_.substr(0, 10) == "umfpack_zi" && name.size() == 2) count *= 2;
    if (name == "ipar" || name == "dpar") count = std::max<std::int64_t>(count, 128);
    const auto bytes = static_cast<std::size_t>(std::max<std::int64_t>(count, 0)) * sizeof(T);
    T* const data = static_cast<T*>(allocate(name, bytes, direction, is_kept));
    fill(name, data, bytes);
    return settled<T>();
  }

  // PARDISO's arrays of numbers, whose type the kind of matrix and iparm tell.
  template <class T>
  T* values(std::string_view name, Direction direction) {
    const bool is_real = kind_ == 1 || std::abs(kind_) == 2 || kind_ == 11;
    const std::int64_t parts = is_real ? 1 : 2, order = n_ * std::max(block_, 1);
    const std::int64_t entries = static_cast<std::int64_t>(columns_.size()) * std::max(block_, 1) * std::max(block_, 1);
    const std::int64_t vectors = order * std::max<std::int64_t>(right_sides_, schur_ != 0 && name == "x" ? order : 0);
    const std::int64_t count = parts * (name == "a" ? entries : name == "b" || name == "x" ? vectors : order);
    if (is_single_ && is_supplied_) return reinterpret_cast<T*>(array<float>(name, count, direction, true));
    double* const data = array<double>(name, count, direction, true);
    return reinterpret_cast<T*>(data);
  }

  // A product of two wrong numbers may be anything.
  std::int64_t at_least_0(std::int64_t count) const { return std::clamp<std::int64_t>(count, 0, 3000); }
  std::int64_t strided(std::int64_t count, std::int64_t stride) const {
    return count <= 0 ? 0 : (count - 1) * std::abs(stride) + 1;
  }

  // What no argument says.
  std::int64_t quantity(std::string_view name) const {
    const bool is_taucs = family_ == "taucs";
    if (name == "n" && is_taucs) return std::max(matrices_.empty() ? 0 : matrices_.back().n, 0);
    if (name == "m" && is_taucs) return std::max(matrices_.empty() ? 0 : matrices_.back().m, 0);
    if (name == "n" && family_ == "umfpack") return std::max(m_, n_);
    if (name == "n" || name == "n_col") return n_;
    if (name == "m" || name == "n_row") return m_;
    if (name == "nz") return nz_;
    if (name == "lnz" || name == "unz") return m_ * n_ + m_ + n_;
    if (name == "nfr" || name == "nchains") return n_;
    if (name == "restart") return std::clamp<std::int64_t>(saved_restart(), 0, 150);
    if (name == "W") return 10 * std::max(m_, n_);
    if (name == "vector") return 2 * (kLargest + 1) * kLargest;  // of vectors, too
    if (family_ == "pardiso" && name == "nnz") return static_cast<std::int64_t>(columns_.size());
    if (family_ == "feast") return nz_;
    if (name == "ia" || name == "iy") return kLargest - 1;  // the largest index
    ADD_FAILURE() << "an unknown quantity: " << name;
    return 0;
  }

  // --- Handles ---

  void* handle(const char* name) { return passed_ = any_handle(name); }
  void** handle_place(const char* name) { return add_slot(name, handle(name), false); }
  void** new_handle(const char* name) { return add_slot(name, nullptr, true); }

  // --- TAUCS ---

  taucs_ccs_matrix* matrix() {
    if (is_one_of(16)) return nullptr;
    constexpr int kStructures[] = {0,
                                   TAUCS_SYMMETRIC | TAUCS_LOWER,
                                   TAUCS_HERMITIAN | TAUCS_LOWER,
                                   TAUCS_LOWER,
                                   TAUCS_SYMMETRIC,
                                   TAUCS_SYMMETRIC | TAUCS_UPPER,
                                   TAUCS_TRIANGULAR | TAUCS_LOWER};
    // Products trust the record.
    is_sound_ = routine_.find("times_vec") != std::string::npos;
    const int n = below(kLargest), nz = n == 0 ? 0 : below(30);
    taucs_ccs_matrix A{};
    A.n = !is_sound_ && is_one_of(12) ? -below(3) : n;
    A.m = !is_sound_ && is_one_of(3) ? below(kLargest) : n;
    A.flags = (is_one_of(2) ? TAUCS_DOUBLE : TAUCS_DCOMPLEX) | kStructures[random_() % std::size(kStructures)];
    matrices_.push_back(A);  // its sizes are known from here on
    nz_ = nz;
    A.colptr = array<std::int32_t>("colptr", n + 1, Direction::kIn, false);
    A.rowind = array<std::int32_t>("rowind", nz, Direction::kInOut, false);
    A.values.d = array<double>("values", 2 * nz, Direction::kIn, false);
    matrices_.back() = A;
    is_sound_ = false;
    return place("A", A, Direction::kInOut, false);
  }
  taucs_ccs_matrix** new_matrix() { return reinterpret_cast<taucs_ccs_matrix**>(add_slot("matrix", nullptr, true)); }
  // A factor by columns, which is taken as it is.
  taucs_ccs_matrix* triangle() {
    taucs_ccs_matrix A{};
    A.n = A.m = below(kLargest);
    A.flags = (is_one_of(2) ? TAUCS_DOUBLE : TAUCS_DCOMPLEX) | TAUCS_TRIANGULAR | TAUCS_LOWER;
    matrices_.push_back(A);
    const int nz = std::max(0, 2 * A.n - 1);
    A.colptr = array<std::int32_t>("starts", A.n + 1, Direction::kIn, false);
    A.rowind = array<std::int32_t>("rows", nz, Direction::kIn, false);
    A.values.d = array<double>("values", 2 * nz, Direction::kIn, false);
    return place("L", A, Direction::kIn, false);
  }
  std::int32_t** new_array() { return reinterpret_cast<std::int32_t**>(add_slot("array", nullptr, true)); }

  // --- Texts, host functions ---

  const char* text(std::string_view name, std::initializer_list<const char*> options) {
    if (name == "filename") return file_.name();
    if (name == "dirname") return is_one_of(4) ? nullptr : is_one_of(4) ? "no/such/folder" : "";
    const std::vector<const char*> all =
        options.size() > 0 && !is_one_of(4)
            ? std::vector<const char*>(options)
            : std::vector{"SGEMM and more of it", "amdbar, md, none", "%s%n%s%n %d %f  "};
    return all[random_() % all.size()];
  }
  // The driver's options, some of them with a value, and the addresses that '#k' means: doubles, integers and texts.
  char** settings(std::initializer_list<const char*> keys) {
    const char* const answers[] = {"true", "true", "true",  "false", "#0",   "#1", "#7",
                                   "-1",   "nan",  "1e999", "0",     "tree", ""};
    constexpr std::size_t kMost = 6;
    settings_.clear();
    const auto count = static_cast<std::size_t>(below(kMost));
    for (std::size_t k = 0; k < count; ++k) {
      const std::string key = keys.begin()[random_() % keys.size()];
      const bool is_file = key == "taucs.ooc.basename";
      settings_.push_back(key + "=" + (is_file ? file_.name() : answers[random_() % std::size(answers)]));
    }
    for (const char* const way : {"taucs.factor.LLT=true", "taucs.factor.LU=true", "taucs.solve.cg=true"}) {
      if (is_one_of(3)) settings_.emplace_back(way);
    }
    if (is_one_of(4)) return nullptr;
    char** const all =
        array<char*>("options", static_cast<std::int64_t>(settings_.size()) + 1, Direction::kInOut, false);
    for (std::size_t k = 0; k < settings_.size(); ++k) all[k] = settings_[k].data();
    all[settings_.size()] = nullptr;
    return all;
  }
  void** setting_values() {
    static char number[16] = "metis";
    if (is_one_of(4)) return nullptr;
    const int count = below(3);
    void** const all = array<void*>("values", count + 1, Direction::kInOut, false);
    std::fill_n(all, count, static_cast<void*>(number));
    all[count] = nullptr;
    return all;
  }

  template <class Function>
  Function host_function() {
    if constexpr (std::is_invocable_v<Function, void*, void*, const void*>) {
      return is_one_of(3) ? nullptr : &write_anything;
    } else if constexpr (std::is_invocable_v<Function, const char*>) {
      return is_one_of(2) ? nullptr : +[](const char*) QUORIN_CALLBACK {};
    } else if constexpr (std::is_invocable_v<Function, std::int32_t*, std::int32_t*, float*, float*>) {
      return is_one_of(10) ? nullptr : &write_specials;
    } else {
      return is_one_of(10) ? nullptr : &write_specials_with_data;
    }
  }

 private:
  static constexpr int kLargest = 12;
  static constexpr std::size_t kArena = std::size_t{1} << 16;

  struct Array {
    std::string name;
    GuardedPages* pages;
    Direction direction;
    std::vector<unsigned char> before;
  };
  struct Slot {
    std::string name;
    void** place;
    void* before;
    bool is_new;
  };
  struct Handle {
    std::string name, maker;
    void* value;
    bool is_lu() const { return maker == "taucs_ccs_factor_lu"; }
  };
  // The driver's factor object, as its argument's text tells.
  struct FactorObject {
    std::int32_t n, flags, kind;
    std::int32_t *perm, *invperm;
    void* factor;
  };

  void* any_handle(const std::string& name) {
    const bool is_taucs = family_ == "taucs",
               knows_its_own = is_taucs || family_ == "jacobi" || family_ == "trust_region";
    constexpr int kOutOfCore = 4;
    std::vector<void*> alive;
    for (const Handle& handle : handles_) {
      const bool is_named = handle.name == name || (is_taucs && name == "factor" && handle.name == "L");
      if (is_named && (is_taucs || handle.maker.substr(0, 10) == routine_.substr(0, 10))) alive.push_back(handle.value);
      if (handle.name == "F" && name == "L") {
        const auto* const object = static_cast<const FactorObject*>(handle.value);
        if (object->kind == kOutOfCore && !frees()) alive.push_back(object->factor);
      }
    }
    if (is_one_of(10)) return nullptr;
    if (knows_its_own && !dead_.empty() && is_one_of(10)) return dead_[random_() % dead_.size()];
    if (alive.empty() || is_one_of(10)) {
      static std::uint64_t nothing[600];
      return nothing;
    }
    return alive[random_() % alive.size()];
  }
  bool frees() const { return routine_.find("_free") != std::string::npos; }
  void remember(const Handle& handle) {
    std::erase(dead_, handle.value);
    handles_.push_back(handle);
  }
  template <class Condition>
  void forget(const Condition& condition) {
    for (const Handle& handle : handles_) {
      if (condition(handle)) dead_.push_back(handle.value);
    }
    std::erase_if(handles_, condition);
  }

  int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  bool is_one_of(int count) { return below(count) == 0; }
  std::int64_t any_of(std::initializer_list<std::int64_t> options) {
    return options.size() == 0 ? 0 : options.begin()[random_() % options.size()];
  }
  // A matrix for PARDISO, the upper triangle or all of it, and what its handle is used for.
  void draw_system() {
    constexpr int kKinds[] = {1, 2, -2, 3, 4, -4, 6, 11, 13};
    host_kind_ = kKinds[random_() % std::size(kKinds)];
    is_single_ = is_one_of(2);
    is_zero_based_ = is_one_of(2);
    block_ = is_one_of(4) ? 1 + below(3) : 0;
    schur_ = block_ == 0 && is_one_of(4) ? 1 + below(2) : 0;
    const bool is_whole = host_kind_ == 1 || host_kind_ == 3 || host_kind_ > 6;
    std::vector<char> has(static_cast<std::size_t>(n_ * n_));
    for (int k = 0; k < n_ * n_; ++k) has[static_cast<std::size_t>(k)] = is_one_of(4);
    starts_ = {is_zero_based_ ? 0 : 1};
    for (int i = 0; i < n_; ++i) {
      for (int j = is_whole ? 0 : i; j < n_; ++j) {
        if (i == j || has[static_cast<std::size_t>(std::min(i, j) * n_ + std::max(i, j))] != 0)
          columns_.push_back(j + starts_[0]);
      }
      starts_.push_back(static_cast<std::int32_t>(columns_.size()) + starts_[0]);
    }
    nz_ = static_cast<std::int64_t>(columns_.size());
  }
  // What tells the lengths of arrays stays right, or asks for less.
  void fill_iparm(std::int32_t* iparm, int count) {
    if (count < 64) return;
    if (is_gentle_) {
      void* pt[QUORIN_PARDISO_HANDLE_WORDS];
      sPARDISOINIT(pt, &host_kind_, iparm);
    }
    const auto at = [&](int position) -> std::int32_t& { return iparm[position - 1]; };
    at(1) = is_supplied_ ? 1 : 0;
    if (!is_supplied_) return;
    at(28) = is_single_;
    at(35) = is_zero_based_;
    at(36) = schur_;
    at(37) = block_;
    if (is_one_of(4)) {
      const int position = 2 + below(63);
      constexpr std::int32_t kValues[] = {0, 1, 2, 3, 61, 62, -1, 2147483647, -2147483647 - 1};
      if (position < 35 || position > 37) at(position) = kValues[random_() % (is_gentle_ ? 3 : std::size(kValues))];
      at(28) = is_single_;
    } else if (!is_gentle_ && is_one_of(12)) {
      at(35 + below(3)) = is_one_of(2) ? -1 : -2147483647 - 1;
    }
  }
  // What checks every address.
  bool is_null(bool is_nullable) {
    const bool may_always = family_ == "jacobi" || family_ == "trust_region";
    if (family_ == "pardiso") return is_nullable && !is_gentle_ && is_one_of(12);
    return is_nullable ? is_one_of(4) : may_always && is_one_of(40);
  }

  std::int64_t integer(std::string_view name, bool is_size, std::initializer_list<std::int64_t> options) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    const bool is_hostile = !is_gentle_ && is_one_of(8);
    const bool is_creation =
        routine_.find("create") != std::string::npos || routine_.find("read_bin") != std::string::npos;
    const bool is_order =
        name == "n" || name == "m" || name == "n_row" || name == "n_col" || name == "count" || name == "nz";
    if (name == "flags") {
      return (is_one_of(2) ? TAUCS_DOUBLE : TAUCS_DCOMPLEX) | (is_one_of(3) ? TAUCS_SYMMETRIC : 0) |
             (is_one_of(4) ? TAUCS_HERMITIAN : 0);
    }
    if (name == "col_form" && m_ != n_) return 1;  // by rows the same arrays would be of other lengths
    if (name == "IFACT") return 1 + below(2);      // work arrays of an earlier call cannot be drawn
    if (name == "m0" && is_gentle_ && order_ > 0) return 1 + below(order_);
    if (name == "NELT" && is_gentle_) return order_ + below(3 * order_ + 1);
    if (name == "mtype" && !is_one_of(8)) return host_kind_;
    if (name == "maxfct" && is_gentle_) return 2;
    if ((name == "maxfct" || name == "mnum" || name == "nrhs") && is_gentle_) return 1 + below(2);
    // A run takes its order from ipar; it is told only where the run begins.
    if (family_ == "rci" && name == "n" && routine_.find("_INIT") == std::string::npos && routine_[2] != 'S') return n_;
    if (name.substr(0, 3) == "inc") return below(7) - 3;
    const bool is_leading = name.substr(0, 2) == "ld";
    if (is_size || is_leading || name == "nrhs" || (is_order && !is_creation)) {
      if (is_hostile) return is_one_of(2) ? -kMost - 1 : -below(3);
      if (is_leading) return is_one_of(4) ? below(kLargest) : kLargest + 1;
      if (name == "NSAVE" || name == "nrhs" || name == "maxfil") return below(5);
      if (is_order && has_handles()) return name == "m" || name == "n_row" ? m_ : name == "nz" ? nz_ : n_;
      return below(kLargest) + (is_one_of(5) ? 0 : 1);
    }
    if (is_hostile) {
      // Steps and iterations are done as asked for.
      const bool is_limit = name == "ITMAX" || name == "iter1" || name == "iter2" || name == "itermax";
      const std::int64_t values[] = {-kMost - 1, -1, 0, is_limit ? 50 : kMost, is_limit ? 30 : 1 << 20};
      return values[random_() % std::size(values)];
    }
    return options.size() > 0 ? any_of(options) : below(50);
  }
  bool has_handles() const {
    return family_ == "umfpack" || family_ == "jacobi" || family_ == "trust_region" || family_ == "rci" ||
           family_ == "pardiso";
  }

  double any_number() {
    std::uniform_real_distribution<double> uniform(-2, 2);
    const bool is_special = mode_ == 0 || (mode_ < 4 && is_one_of(6));
    return mode_ == 4 ? 1e-41 * uniform(random_) : is_special ? special_number(random_) : uniform(random_);
  }

  void* allocate(std::string_view name, std::size_t bytes, Direction direction, bool is_kept = false) {
    GuardedPages* pages = nullptr;
    if (is_kept) {
      pages = &kept_.emplace_back(kArena);
    } else {
      if (used_ == arenas().size()) arenas().emplace_back(kArena);
      pages = &*std::next(arenas().begin(), static_cast<std::ptrdiff_t>(used_++));
    }
    arrays_.push_back({std::string(name), pages, direction, {}});
    return pages->place(bytes, is_one_of(4) ? Edge::kFront : Edge::kBack);
  }
  template <class T>
  T* settled() {
    Array& array = arrays_.back();
    const auto bytes = array.pages->bytes();
    array.before.assign(bytes.begin(), bytes.end());
    return static_cast<T*>(array.pages->data());
  }
  static std::list<GuardedPages>& arenas() {
    static std::list<GuardedPages> all;
    return all;
  }

  template <class T>
  void fill(std::string_view name, T* data, std::size_t bytes) {
    if (is_state(name)) {
      const auto& saved = state_[solver() + std::string(name)];
      std::memset(data, 0, bytes);
      std::copy_n(saved.begin(), std::min(saved.size(), bytes), reinterpret_cast<unsigned char*>(data));
    }
    if constexpr (std::is_same_v<T, std::int32_t>) {
      fill_integers(name, data, static_cast<int>(bytes / sizeof(T)));
    } else if constexpr (std::is_same_v<T, char>) {
      std::memset(data, 'A', bytes);
    } else if constexpr (std::is_same_v<T, void*>) {
      if (!is_state(name)) std::memset(data, 0, bytes);
      is_spoilt_ = name == "pt" && is_one_of(20);
      if (is_spoilt_) data[below(2)] = &handles_;
    } else {
      using Part = std::conditional_t<std::is_same_v<T, float> || std::is_same_v<T, quorin_complex>, float, double>;
      auto* const parts = reinterpret_cast<Part*>(data);
      // Of the parameters of a run, some.
      for (std::size_t k = 0; k < bytes / sizeof(Part); ++k) {
        if (!is_state(name) || is_one_of(100)) parts[k] = static_cast<Part>(any_number());
      }
      for (std::size_t k = 0; name == "b" && family_ == "feast" && is_gentle_ && k < bytes / sizeof(Part); ++k) {
        parts[k] = std::is_same_v<T, quorin_complex> && k % 2 == 1 ? 0 : 1 + std::abs(parts[k]);
      }
      if (is_gentle_ && (name == "emin" || name == "emax")) parts[0] = name == "emin" ? Part{-3} : Part{3};
    }
  }

  void fill_integers(std::string_view name, std::int32_t* data, int count) {
    if (name == "ipar") {
      constexpr int kFirst = 4, kLast = 12;  // the others are sizes and positions
      for (int k = kFirst; k <= kLast && k < count; ++k) {
        if (is_one_of(12)) data[k] = below(3) - 1;
      }
    } else if (family_ == "pardiso" && (name == "ia" || name == "ja" || name == "perm" || name == "iparm")) {
      fill_pardiso(name, data, count);
    } else if (name == "starts") {
      for (int j = 0; j < count; ++j) data[j] = std::clamp(2 * j, 0, std::max(0, 2 * count - 3));
    } else if (name == "rows") {
      for (int k = 0; k < count; ++k) data[k] = (k + 1) / 2;
    } else if (name == "fpm") {
      if (count >= 128) feastinit_32f(data);
      if (is_gentle_ && count > 0) data[0] = below(2);  // prints
      constexpr std::int32_t kValues[] = {-1, 0, 1, 2, 3, 4, 8, 12, 100, 2147483647};
      for (int k = 0; k < 2 && is_one_of(2); ++k) {
        const int position = is_one_of(2) ? below(28) : below(count);
        if (position != 3) data[position] = kValues[random_() % std::size(kValues)];
      }
    } else if (name == "indx" || family_ == "pack") {  // not checked, as published
      for (int k = 0; k < count; ++k) data[k] = name == "indx" ? 1 + below(count) : below(kLargest);
    } else if (name == "Ap" || name == "ia" || name == "ib" || name == "colptr" ||
               (name == "JA" && !is_gentle_ && is_one_of(4))) {
      const int base = name == "ia" || name == "ib" || name == "JA" ? 1 : 0;
      fill_starts(data, count, base);
      for (int j = 0; j + 1 < count && name == "ib" && is_gentle_; ++j) data[j] = base + j;
    } else if (name == "Ti" || name == "Tj" || name == "Ai" || name == "ja" || name == "jb" || name == "IA" ||
               name == "JA" || name == "rowind" || name == "P" || name == "Q" || name == "Qinit" || name == "Perm" ||
               name == "perm" || name == "invperm" || name == "p") {
      const int base = name == "ja" || name == "jb" || name == "IA" || name == "JA" ? 1 : 0;
      const bool is_whole = name == "JA" && is_gentle_;  // no column is empty
      fill_indices(name, data, count, base, is_whole || is_one_of(2));
    } else {
      for (int k = 0; k < count; ++k) data[k] = below(5) - 1;
    }
  }
  void fill_pardiso(std::string_view name, std::int32_t* data, int count) {
    if (name == "iparm") return fill_iparm(data, count);
    if (name == "perm") {
      if (is_one_of(2)) return fill_indices(name, data, count, starts_[0], true);
      for (int k = 0; k < count; ++k) data[k] = below(2);
      return;
    }
    const std::vector<std::int32_t>& right = name == "ia" ? starts_ : columns_;
    std::copy_n(right.begin(), std::min<std::size_t>(right.size(), static_cast<std::size_t>(count)), data);
    if (!is_gentle_ && is_one_of(10) && count > 1) data[below(count - 1)] = stray_index();
  }
  // The last one is right: nobody can check it.
  void fill_starts(std::int32_t* starts, int count, int base) {
    if (count == 0) return;
    if (family_ == "umfpack" && is_gentle_) {  // all entries, column by column: what the family makes objects of
      for (int k = 0; k < count; ++k) starts[k] = k * m_;
      return;
    }
    for (int k = 0; k < count; ++k) starts[k] = base + below(static_cast<int>(nz_) + 1);
    std::sort(starts, starts + count);
    starts[0] = base;
    starts[count - 1] = static_cast<std::int32_t>(nz_) + base;
    if (is_sound_ || is_gentle_) return;
    if (is_one_of(3) && count > 2) starts[1 + below(count - 2)] = stray_index();
    if (is_one_of(20)) starts[0] = stray_index();
    starts[count - 1] = static_cast<std::int32_t>(nz_) + base;
  }
  void fill_indices(std::string_view name, std::int32_t* indices, int count, int base, bool is_ordered) {
    const int bound = std::max(1, is_sound_                                  ? matrices_.back().n
                                  : family_ == "umfpack" || family_ == "rci" ? n_
                                  : family_ == "feast" || family_ == "slap"  ? order_
                                                                             : count);
    if (family_ == "umfpack" && is_gentle_ && name == "Ai") {
      for (int k = 0; k < count; ++k) indices[k] = k % m_;
      return;
    }
    for (int k = 0; k < count; ++k) indices[k] = base + (is_ordered ? k % bound : below(bound));
    // A diagonal matrix, whose last column has its entry many times.
    for (int k = 0; k < count && name == "jb" && is_gentle_; ++k) indices[k] = base + std::min(k, bound - 1);
    if (!is_sound_ && !is_gentle_ && is_one_of(4) && count > 0) indices[below(count)] = stray_index();
  }
  std::int32_t stray_index() {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const std::int32_t values[] = {-1, 0, 1, 13, 1000, kMost, kMost - 1, -kMost - 1};
    return values[random_() % std::size(values)];
  }

  // What was passed in an array of integers, or its address, under that name.
  std::int32_t passed(std::string_view name, std::size_t place = 0) const {
    std::int32_t value = 0;
    for (const Array& array : arrays_) {
      if (array.name != name || array.before.size() < (place + 1) * sizeof value) continue;
      std::memcpy(&value, array.before.data() + place * sizeof value, sizeof value);
    }
    return value;
  }
  // What the interface has this call write to standard output: as a rule, nothing.
  std::string documented_output() const {
    std::string upper = routine_, lower = routine_;
    for (char& c : upper) c = static_cast<char>(std::toupper(c));
    for (char& c : lower) c = static_cast<char>(std::tolower(c));
    if (family_ == "blas" || family_ == "pack") {
      return "(\nIntel MKL ERROR: Parameter [0-9]+ was incorrect on entry to " + upper + "\\.\n)?";
    }
    if (routine_ == "XERBLA") return "(\nIntel MKL (INTERNAL )?ERROR: [^\n]*\n)?";
    constexpr std::int32_t kScreen = 6;
    if (family_ == "rci" && passed("ipar", 1) == kScreen && (passed("ipar", 5) != 0 || passed("ipar", 6) != 0)) {
      return "(" + lower + ": (error|warning)( -?[0-9]+)?: [^\n]+\n)*";
    }
    if (family_ == "feast" && passed("fpm") == 1) {
      return "(FEAST: n = [^\n]*\n([^\n]* by the signs of pivots\n)?loop  found [^\n]*\n( *[0-9]+ [^\n]*\n)*)?";
    }
    if (family_ == "pardiso" && passed("msglvl") == 1) return "(\nPARDISO, phase [^\n]*\n(  [^\n]*\n)+\n)?";
    return "";
  }

  // What a run keeps between its calls.
  bool is_state(std::string_view name) const {
    if (routine_ == "sPARDISO_HANDLE_RESTORE" || routine_ == "sPARDISOINIT") return false;  // overwrite handles
    return name == "pt" || name == "iparm" ||
           (family_ == "rci" && (name == "ipar" || name == "dpar" || name == "tmp") && routine_[2] != 'S');
  }
  std::string solver() const { return family_ == "rci" ? routine_.substr(0, routine_.find('_')) : ""; }
  std::int64_t saved_restart() const {
    constexpr std::size_t kRestart = 14 * sizeof(std::int32_t);
    const auto saved = state_.find(solver() + "ipar");
    if (saved == state_.end() || saved->second.size() < kRestart + 4) return n_;
    std::int32_t restart = 0;
    std::memcpy(&restart, saved->second.data() + kRestart, sizeof restart);
    return std::max<std::int64_t>(restart, n_);
  }

  void** add_slot(const char* name, void* value, bool is_new) {
    void** const place = static_cast<void**>(allocate(name, sizeof(void*), Direction::kInOut));
    *place = value;
    settled<void*>();
    slots_.push_back({name, place, value, is_new});
    return place;
  }
  void collect(const Slot& slot) {
    void* const after = *slot.place;
    if (slot.name == "matrix") {
      take(static_cast<taucs_ccs_matrix*>(after));
    } else if (slot.name == "array") {
      std::free(after);
    } else if (after != slot.before) {
      if (slot.before != nullptr) forget([&](const Handle& handle) { return handle.value == slot.before; });
      if (after != nullptr) remember({slot.name, routine_, after});
    }
  }
  static void release_solver(std::span<const unsigned char> handle) {
    void* pt[QUORIN_PARDISO_HANDLE_WORDS];
    if (handle.size() != sizeof pt) return;
    std::memcpy(pt, handle.data(), sizeof pt);
    const std::int32_t phase = QUORIN_PARDISO_FREE_ALL;
    std::int32_t error = 0;
    PARDISO(pt, nullptr, nullptr, nullptr, &phase, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
            nullptr, nullptr, nullptr, &error);
  }
  static void release(const Handle& handle) {
    void* value = handle.value;
    if (handle.name == "Symbolic") return umfpack_di_free_symbolic(&value);
    if (handle.name == "Numeric") return umfpack_di_free_numeric(&value);
    if (handle.name == "F") static_cast<void>(taucs_linsolve(nullptr, &value, 0, nullptr, nullptr, nullptr, nullptr));
    if (handle.is_lu()) return taucs_multilu_factor_free(value);
    if (handle.name == "L") return taucs_supernodal_factor_free(value);
    if (handle.maker == "sjacobi_init") sjacobi_delete(&value);
    if (handle.maker == "strnlsp_init") strnlsp_delete(&value);
    if (handle.maker == "strnlspbc_init") strnlspbc_delete(&value);
  }

  static void QUORIN_CDECL write_specials(std::int32_t* m, std::int32_t*, float*, float* f) {
    static std::minstd_rand random;
    for (int i = 0; i < *m; ++i) f[i] = static_cast<float>(special_number(random));
  }
  // One element: how many there are a preconditioner has to know.
  static std::int32_t QUORIN_CDECL write_anything(void*, void* x, const void*) {
    static std::minstd_rand random;
    if (random() % 4 == 0) *static_cast<double*>(x) = special_number(random);
    return random() % 16 == 0;
  }
  static void QUORIN_CDECL write_specials_with_data(std::int32_t* m, std::int32_t* n, float* x, float* f, void*) {
    write_specials(m, n, x, f);
  }

  std::string family_, routine_;
  std::uint32_t seed_;
  quorin::test::Watchdog& watchdog_;
  quorin::test::CapturedOutput& output_;
  std::mt19937 random_;
  bool is_indexed_ = false;
  bool is_gentle_ = false;  // a call without a hostile argument but numbers
  int order_ = 0;           // the last n
  int n_ = 1, m_ = 1, calls_ = 0, mode_ = 0, printed_ = 0;
  bool is_sound_ = false;
  // Of PARDISO: the system, and the present call.
  bool is_spoilt_ = false, is_single_ = false, is_zero_based_ = false, is_supplied_ = true;
  int host_kind_ = 11, kind_ = 11, block_ = 0, schur_ = 0;
  std::int64_t right_sides_ = 0;
  std::vector<std::int32_t> starts_, columns_;
  void* passed_ = nullptr;  // the last handle
  std::vector<void*> dead_;
  std::vector<std::string> settings_;
  std::int64_t nz_ = 1;
  std::size_t used_ = 0;
  std::vector<Array> arrays_;
  std::vector<Slot> slots_;
  std::vector<taucs_ccs_matrix> matrices_;
  std::list<GuardedPages> kept_;
  std::list<Handle> handles_;
  std::map<std::string, std::vector<unsigned char>> state_;
  quorin::test::TemporaryFile file_{"3 1 5\n1 2 nan\n-4 99999999 1e999\n"};
};

struct Call {
  const char* family;
  const char* routine;
  void (*call)(Draw& draw);
};

}  // namespace hostile
