// Every routine of the BLAS table, driven by the table itself, against the reference BLAS: all options in both cases,
// all kinds of strides, leading dimensions larger than minimal, factors of 0 and 1, sizes around those of the kernels'
// blocks. Each array ends, or begins, at a page that cannot be accessed; gaps between the elements hold NaN and must
// keep it. The index form gives the plain form's bits, whatever the alignment of the stack.
#include "quorin/blas.h"
#include "quorin/services.h"
#include "tests/support/capture_output.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/stack_skew.hpp"
#include "tests/support/test.hpp"

namespace {

using quorin::test::Edge, quorin::test::FaultReport, quorin::test::GuardedPages;
using Address = void (*)();

// Sums of up to 70 products of numbers below 2.
constexpr float kTolerance = 700 * 6e-8F;

constexpr std::size_t kSlots = 24;  // of a call, at most

enum class Element { kChar, kInt, kFloat, kComplex };
enum class Form { kScalar, kVector, kMatrix, kSpread, kFive };

// The value of an integer argument; of another one if an option says T, C or R.
struct Dimension {
  int first, other, option;
};

struct Argument {  // NOLINT(clang-analyzer-optin.performance.Padding): in the order of the generated rows
  std::string_view name;
  Element element;
  Form form;
  Dimension rows, columns;
  int step;  // which argument is the stride or the leading dimension, or -1
  std::string_view options;
  bool has_index, is_read, is_written;

  std::size_t floats() const { return element == Element::kComplex ? 2 : 1; }
  std::size_t element_size() const { return element == Element::kChar ? 1 : 4 * floats(); }
};

struct Routine {
  std::string_view name;
  Address plain, indexed, reference;
  Element result;  // kChar if there is none
  std::span<const Argument> arguments;

  bool takes(std::size_t option, char letter) const {
    return arguments[option].options.find(static_cast<char>(std::toupper(static_cast<unsigned char>(letter)))) !=
           std::string_view::npos;
  }
  bool has(std::string_view argument) const {
    for (const Argument& a : arguments) {
      if (a.name == argument) return true;
    }
    return false;
  }
};

template <class Function>
Address address(Function* function) {
  return reinterpret_cast<Address>(function);
}

}  // namespace

#include "calls.inc"

namespace {

struct Setting {
  std::string options;  // a capital for each
  int m, n, k, incx, incy, factors;
  Edge edge;
};

float number(std::size_t argument, std::size_t place) {
  const std::size_t mixed = (place * 2654435761U + argument * 40503U + 12345U) ^ (place << 7U);
  return static_cast<float>(mixed % 2003) / 1001.0F - 1.0F;
}

struct Result {
  std::int32_t integer = 0;
  float real = 0, imaginary = 0;
  bool operator==(const Result&) const = default;
};

// A call with memory of its own.
class Call {
 public:
  Call(const Routine& routine, std::size_t bytes) : routine_(routine) {
    for (const Argument& argument : routine.arguments)
      memory_.emplace_back(argument.form == Form::kMatrix ? bytes : std::min(bytes, std::size_t{64} << 10));
  }

  // Scalars first, in their own order: what an array holds depends on them.
  void set(const Setting& setting, bool lower_case) {
    setting_ = setting;
    std::size_t option = 0;
    for (const Form form : {Form::kScalar, Form::kFive, Form::kVector, Form::kMatrix, Form::kSpread}) {
      for (std::size_t i = 0; i < memory_.size(); ++i) {
        const Argument& argument = routine_.arguments[i];
        if (argument.form != form) continue;
        memory_[i].place(count(i) * argument.element_size(), setting.edge);
        if (argument.element == Element::kChar) {
          const char letter = setting.options[option++];
          *static_cast<char*>(memory_[i].data()) = lower_case ? static_cast<char>(std::tolower(letter)) : letter;
        } else if (argument.element == Element::kInt) {
          fill_integers(i);
        } else {
          fill(i);
        }
      }
    }
  }

  Result run(Address function, bool indexed, bool is_reference) {
    std::array<std::uintptr_t, kSlots> slots{};
    std::size_t used = 0;
    Result result;
    const bool is_stored = routine_.result == Element::kComplex && !is_reference;
    if (is_stored) slots[used++] = reinterpret_cast<std::uintptr_t>(&result.real);
    for (std::size_t i = 0; i < memory_.size(); ++i) {
      auto data = reinterpret_cast<std::uintptr_t>(memory_[i].data());
      const Argument& argument = routine_.arguments[i];
      const std::size_t index = indexed && argument.has_index ? 3 + i : 0;
      slots[used++] = data - index * argument.element_size();
      if (index != 0) slots[used++] = index;
    }
    if (routine_.result == Element::kInt) {
      result.integer = call<std::int32_t>(function, slots, used);
    } else if (routine_.result == Element::kFloat) {
      result.real = call<float>(function, slots, used);
    } else if (routine_.result == Element::kComplex && is_reference) {
      const auto value = call_plainly<__complex__ float>(function, slots, std::make_index_sequence<kSlots>{});
      result.real = __real__ value;
      result.imaginary = __imag__ value;
    } else {
      call<std::int32_t>(function, slots, used);
    }
    return result;
  }

  void put(std::size_t option, char letter) { *static_cast<char*>(memory_[option].data()) = letter; }

  bool intact() const {
    for (const GuardedPages& memory : memory_) {
      if (!memory.intact()) return false;
    }
    return true;
  }
  bool same_bits(const Call& other, std::size_t i) const {
    return std::memcmp(memory_[i].data(), other.memory_[i].data(), count(i) * routine_.arguments[i].element_size()) ==
           0;
  }
  // Elements within rounding, gaps bit for bit.
  bool is_close(const Call& reference, std::size_t i) const {
    const std::size_t floats = routine_.arguments[i].floats();
    for (std::size_t place = 0; place < count(i) * floats; ++place) {
      const float found = value(i, place), expected = reference.value(i, place);
      if (std::bit_cast<std::uint32_t>(found) == std::bit_cast<std::uint32_t>(expected)) continue;
      if (!is_element(i, place / floats)) return false;
      if (std::isnan(found) && std::isnan(expected)) continue;
      if (!(std::fabs(found - expected) <= kTolerance * (1 + std::fabs(expected)))) return false;
    }
    return true;
  }

 private:
  using Slots = std::array<std::uintptr_t, kSlots>;

  template <class Value, std::size_t... I>
  static Value call_plainly(Address function, const Slots& slots, std::index_sequence<I...>) {
    using Function = Value (*)(std::remove_cvref_t<decltype(slots[I])>...);
    return reinterpret_cast<Function>(function)(slots[I]...);
  }
  // On 32-bit targets from every alignment of the stack, each time another.
  template <class Value>
  static Value call(Address function, const Slots& slots, [[maybe_unused]] std::size_t used) {
#if defined(__i386__)
    static std::uint32_t calls = 0;
    const auto count = static_cast<std::uint32_t>(used), residue = 4 * (++calls % 4);
    if constexpr (std::is_same_v<Value, float>) {
      return call_with_stack_for_float(function, slots.data(), count, residue);
    } else {
      return call_with_stack(function, slots.data(), count, residue);
    }
#else
    return call_plainly<Value>(function, slots, std::make_index_sequence<kSlots>{});
#endif
  }

  int integer(int place) const {
    return *static_cast<const std::int32_t*>(memory_[static_cast<std::size_t>(place)].data());
  }
  float value(std::size_t i, std::size_t place) const { return static_cast<const float*>(memory_[i].data())[place]; }

  int dimension(const Dimension& d) const {
    if (d.first < 0) return 1;
    bool is_other = false;
    if (d.option >= 0) {
      const auto letter = *static_cast<const unsigned char*>(memory_[static_cast<std::size_t>(d.option)].data());
      is_other = std::string_view("TCR").find(static_cast<char>(std::toupper(letter))) != std::string_view::npos;
    }
    return integer(is_other ? d.other : d.first);
  }
  int step(std::size_t i) const {
    const int place = routine_.arguments[i].step;
    return place < 0 ? 1 : std::abs(integer(place));
  }

  // Elements from the first to the last one of an array.
  std::size_t count(std::size_t i) const {
    const Argument& argument = routine_.arguments[i];
    if (argument.form == Form::kScalar) return 1;
    if (argument.form == Form::kFive) return 5;
    const std::ptrdiff_t rows = dimension(argument.rows), columns = dimension(argument.columns);
    if (rows <= 0 || columns <= 0) return 0;
    if (argument.form == Form::kMatrix) return static_cast<std::size_t>((columns - 1) * step(i) + rows);
    return static_cast<std::size_t>((rows - 1) * (argument.form == Form::kSpread ? 2 : step(i)) + 1);
  }

  bool is_element(std::size_t i, std::size_t place) const {
    const Argument& argument = routine_.arguments[i];
    if (argument.form == Form::kMatrix) {
      return static_cast<int>(place % static_cast<std::size_t>(step(i))) < dimension(argument.rows);
    }
    return argument.form != Form::kVector || step(i) == 0 || place % static_cast<std::size_t>(step(i)) == 0;
  }

  void fill_integers(std::size_t i) {
    const Argument& argument = routine_.arguments[i];
    auto* const data = static_cast<std::int32_t*>(memory_[i].data());
    if (argument.form == Form::kVector) {  // positions without repetition, the last one first
      const int nz = dimension(argument.rows);
      for (int e = 0; e < nz; ++e) data[e] = 2 * (nz - e) - 1;
      return;
    }
    const std::string_view name = argument.name;
    if (name.starts_with("ld")) {
      for (const Argument& matrix : routine_.arguments) {
        if (matrix.step == static_cast<int>(i)) *data = dimension(matrix.rows) + 3;
      }
    } else {
      *data = name == "m"      ? setting_.m
              : name == "k"    ? setting_.k
              : name == "incx" ? setting_.incx
              : name == "incy" ? setting_.incy
                               : setting_.n;
    }
  }

  void fill(std::size_t i) {
    const Argument& argument = routine_.arguments[i];
    const std::size_t floats = argument.floats();
    auto* const data = static_cast<float*>(memory_[i].data());
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    if (argument.form == Form::kScalar) {
      const float factor = argument.name == "beta"    ? beta()
                           : argument.name == "alpha" ? alpha()
                                                      : 0.7F + 0.1F * static_cast<float>(i);
      data[0] = factor;
      if (floats == 2) data[1] = factor == 0 || factor == 1 ? 0 : 0.4F - factor;
      return;
    }
    if (argument.form == Form::kFive) {
      const std::array<float, 5> rotation{static_cast<float>(setting_.factors - 1), 0.5F, -0.4F, 0.3F, 0.8F};
      std::memcpy(data, rotation.data(), sizeof rotation);
      return;
    }
    // What is not read may be NaN: inputs of a product with alpha = 0, results with beta = 0.
    const bool is_read = argument.is_read && (argument.is_written ? !(routine_.has("beta") && beta() == 0)
                                                                  : !(routine_.has("alpha") && alpha() == 0));
    for (std::size_t place = 0; place < count(i) * floats; ++place) {
      const std::size_t e = place / floats;
      float x = number(i, place);
      if (argument.name == "a" && argument.form == Form::kMatrix) {  // good for solving, too
        const auto lead = static_cast<std::size_t>(step(i));
        x = 0.1F * x + (e % lead == e / lead && place % floats == 0 ? 2.0F : 0.0F);
      }
      data[place] = is_read && is_element(i, e) ? x : kNaN;
    }
  }
  float alpha() const { return setting_.factors == 2 ? 0.0F : setting_.factors == 1 ? 1.0F : 0.7F; }
  float beta() const { return setting_.factors == 2 ? 1.0F : setting_.factors == 1 ? 0.0F : -0.3F; }

  const Routine& routine_;
  Setting setting_;
  std::vector<GuardedPages> memory_;
};

std::vector<std::string> all_options(const Routine& routine) {
  std::vector<std::string> all{""};
  for (const Argument& argument : routine.arguments) {
    if (argument.element != Element::kChar) continue;
    std::vector<std::string> longer;
    for (const std::string& options : all) {
      for (const char option : argument.options) longer.push_back(options + option);
    }
    all = std::move(longer);
  }
  return all;
}

struct Size {
  int m, n, k;
};

struct Strides {
  int x, y;
};

class EveryRoutine {
 public:
  // For arrays of up to `bytes`.
  EveryRoutine(const Routine& routine, std::size_t bytes)
      : routine_(routine), plain_(routine, bytes), indexed_(routine, bytes), reference_(routine, bytes) {}

  // All options with all sizes, strides and, the first `factors` factors, at both ends of the pages.
  void check(std::span<const Size> sizes, std::span<const Strides> strides, int factors) {
    const bool has_factors = routine_.has("alpha") || routine_.has("param");
    for (const std::string& options : all_options(routine_)) {
      for (const Size& size : sizes) {
        for (const Strides& each : strides) {
          for (int k = 0; k < (has_factors ? factors : 1) && takes(each); ++k) {
            check({options, size.m, size.n, size.k, each.x, each.y, k, Edge::kFront});
            check({options, size.m, size.n, size.k, each.x, each.y, k, Edge::kBack});
            if (testing::Test::HasFailure()) return;
          }
        }
      }
    }
  }

 private:
  // What has no stride takes 1 only, what has a matrix takes none of 0.
  bool takes(const Strides& strides) const {
    const bool has_matrix = routine_.has("lda");
    return (routine_.has("incx") || strides.x == 1) && (routine_.has("incy") || strides.y == 1) &&
           !(has_matrix && (strides.x == 0 || strides.y == 0));
  }

  void check(const Setting& s) {
    const std::string text = std::string(routine_.name) + ' ' + s.options + " m n k " + std::to_string(s.m) + ' ' +
                             std::to_string(s.n) + ' ' + std::to_string(s.k) + " incx incy " + std::to_string(s.incx) +
                             ' ' + std::to_string(s.incy) + " factors " + std::to_string(s.factors) +
                             (s.edge == Edge::kBack ? " back" : " front");
    SCOPED_TRACE(text);
    FaultReport::begin(text.c_str());
    plain_.set(s, s.edge == Edge::kFront);
    indexed_.set(s, s.edge == Edge::kBack);
    const Result plain = plain_.run(routine_.plain, false, false);
    const Result indexed = indexed_.run(routine_.indexed, true, false);
    EXPECT_TRUE(plain == indexed);
    EXPECT_TRUE(plain_.intact());
    EXPECT_TRUE(indexed_.intact());
    reference_.set(s, false);
    if (routine_.reference != nullptr) {
      const Result reference = reference_.run(routine_.reference, false, true);
      EXPECT_EQ(plain.integer, reference.integer);
      EXPECT_NEAR(plain.real, reference.real, kTolerance * (1 + std::fabs(reference.real)));
      EXPECT_NEAR(plain.imaginary, reference.imaginary, kTolerance * (1 + std::fabs(reference.imaginary)));
    }
    for (std::size_t i = 0; i < routine_.arguments.size(); ++i) {
      const Argument& argument = routine_.arguments[i];
      if (argument.element == Element::kChar) continue;
      EXPECT_TRUE(plain_.same_bits(indexed_, i)) << argument.name;
      if (!argument.is_written) {
        EXPECT_TRUE(plain_.same_bits(reference_, i)) << argument.name;
      } else if (routine_.reference != nullptr) {
        EXPECT_TRUE(plain_.is_close(reference_, i)) << argument.name;
      }
    }
  }

  const Routine& routine_;
  Call plain_, indexed_, reference_;
};

class Blas : public testing::TestWithParam<const Routine*> {};

TEST_P(Blas, DoesWhatTheReferenceDoesAndStaysInItsArrays) {
  constexpr Size kSizes[] = {{1, 1, 1},    {2, 3, 4},    {5, 8, 3}, {9, 4, 16}, {16, 17, 18},
                             {37, 34, 35}, {70, 66, 68}, {0, 3, 2}, {3, 0, 2},  {3, 2, 0}};
  std::vector<Strides> strides;
  for (const int x : {1, 2, -1, -3, 0}) {
    for (const int y : {1, 3, -1, -2, 0}) strides.push_back({x, y});
  }
  EveryRoutine(*GetParam(), std::size_t{64} << 10).check(kSizes, strides, 3);
}

// Each letter but those that the interface names, in either case, is refused by the option's position, and nothing is
// touched.
TEST_P(Blas, RefusesEveryOtherLetter) {
  const Routine& routine = *GetParam();
  const std::string options = all_options(routine).front();
  if (options.empty()) GTEST_SKIP() << "has no options";
  std::string name(routine.name);
  for (char& c : name) c = static_cast<char>(std::toupper(c));
  Call plain(routine, 4096), before(routine, 4096);
  for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
    if (routine.arguments[i].element != Element::kChar) continue;
    const std::string expected =
        "\nIntel MKL ERROR: Parameter " + std::to_string(i + 1) + " was incorrect on entry to " + name + ".\n";
    for (Call* const call : {&plain, &before}) call->set({options, 5, 5, 5, 1, 1, 0, Edge::kBack}, false);
    int refused = 0, letters = 0;
    const std::string text = quorin::test::captured([&] {
      for (int letter = 0; letter < 256; ++letter) {
        const auto option = static_cast<char>(letter);
        if (routine.takes(i, option)) continue;
        plain.put(i, option);
        plain.run(letter % 2 == 0 ? routine.plain : routine.indexed, letter % 2 != 0, false);
        ++letters;
      }
    });
    for (std::size_t at = 0; text.compare(at, expected.size(), expected) == 0; at += expected.size()) ++refused;
    EXPECT_EQ(refused, letters) << text.substr(0, 200);
    for (std::size_t k = 0; k < routine.arguments.size(); ++k) {
      EXPECT_TRUE(routine.arguments[k].element == Element::kChar || plain.same_bits(before, k)) << k;
    }
  }
}

// At sizes that are cut into parts, wider than high and higher than wide, and with strided vectors that are copied in
// several.
TEST_P(Blas, DoesTheSameOnSeveralThreads) {
  const Routine& routine = *GetParam();
  if (!routine.has("lda")) GTEST_SKIP() << "runs on one thread";
  constexpr Size kProducts[] = {{203, 150, 117}}, kMatrices[] = {{2100, 450, 0}, {400, 530, 0}};
  constexpr Strides kStrides[] = {{1, 1}, {2, -3}, {-2, 1}};
  const bool has_vectors = routine.has("incx");
  EveryRoutine calls(routine, std::size_t{has_vectors ? 8U : 1U} << 20);
  sMKL_Set_Dynamic(0);
  for (const int threads : {2, 3, 7}) {
    sMKL_Set_Num_Threads(threads);
    calls.check(has_vectors ? std::span<const Size>(kMatrices) : kProducts, kStrides, 1);
  }
  sMKL_Set_Dynamic(1);
}

std::vector<const Routine*> routines() {
  std::vector<const Routine*> all;
  for (const Routine& routine : kRoutines) all.push_back(&routine);
  return all;
}

INSTANTIATE_TEST_SUITE_P(Every, Blas, testing::ValuesIn(routines()),
                         [](const auto& routine) { return std::string(routine.param->name); });

}  // namespace
