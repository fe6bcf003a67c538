// Every routine of the LAPACK table, through both forms, driven by the table itself: the index form does in place what
// the plain form does and leaves alone what lies around its arrays; a wrong argument is found, and nothing is touched.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "quorin/lapack.h"
#include "tests/support/capture_output.hpp"

namespace {

enum class Kind { kScalar, kArray, kPlainArray, kPairedScalar, kSelection };
enum class Element { kChar, kInt, kFloat, kComplex };

struct Argument {
  const char* name;
  Kind kind;
  Element element;
  int rows, columns;
  bool is_output;
  int value;  // of a scalar

  bool is_array() const { return kind == Kind::kArray || kind == Kind::kPlainArray; }
  bool has_index() const { return kind == Kind::kArray || kind == Kind::kPairedScalar; }
  std::size_t element_size() const {
    constexpr std::size_t kSizes[] = {1, 4, 4, 8};
    return kSizes[static_cast<int>(element)];
  }
};

using Address = void (*)();

template <class Function>
Address address(Function* function) {
  return reinterpret_cast<Address>(function);
}

struct Routine {
  const char* name;
  Address plain, indexed;
  std::span<const Argument> arguments;
};

#include "calls.inc"

// Selects nothing; good for the published arguments of every selection function.
std::int32_t select_none(const void*, const void*, const void*) { return 0; }

constexpr std::size_t kGuard = 64;  // bytes
constexpr std::uint8_t kGuardByte = 0xA5;

// What a routine gets for one argument: guards around its elements.
class Memory {
 public:
  Memory(const Argument& argument, int position) : argument_(argument), position_(position) {
    bytes_.assign(2 * kGuard + size(), kGuardByte);
    if (argument.is_array()) {
      for (int j = 0; j < argument.columns; ++j) {
        for (int i = 0; i < argument.rows; ++i) fill(i, j);
      }
    } else if (argument.element == Element::kFloat) {
      put(0, static_cast<float>(argument.value));
    } else {
      std::memcpy(data(), &argument.value, size());
    }
  }

  // Elements by which an index form's base lies before the data: another number for each argument.
  std::int32_t index() const { return 3 + position_; }
  void* data() { return bytes_.data() + kGuard; }
  std::uintptr_t base() {
    const auto offset = static_cast<std::uintptr_t>(index()) * argument_.element_size();
    return reinterpret_cast<std::uintptr_t>(data()) - offset;
  }

  bool guards_hold() const {
    for (std::size_t i = 0; i < kGuard; ++i) {
      if (bytes_[i] != kGuardByte || bytes_[bytes_.size() - 1 - i] != kGuardByte) return false;
    }
    return true;
  }
  bool operator==(const Memory& other) const { return bytes_ == other.bytes_; }
  int integer() const {
    int value = 0;
    std::memcpy(&value, bytes_.data() + kGuard, sizeof value);
    return value;
  }
  void set_integer(int value) { std::memcpy(data(), &value, size() < 4 ? size() : 4); }

 private:
  std::size_t size() const {
    return argument_.element_size() * static_cast<std::size_t>(argument_.rows) *
           static_cast<std::size_t>(argument_.columns);
  }
  template <class T>
  void put(std::size_t place, T value) {
    std::memcpy(bytes_.data() + kGuard + place * sizeof value, &value, sizeof value);
  }
  // A matrix with a dominant real diagonal, in whatever form it is stored; a vector that grows; 1, 2, 3, ... as pivots;
  // ones as logicals.
  void fill(int i, int j) {
    const std::size_t place =
        static_cast<std::size_t>(j) * static_cast<std::size_t>(argument_.rows) + static_cast<std::size_t>(i);
    const std::string name = argument_.name;
    if (argument_.element == Element::kInt) {
      const bool is_flag = name == "select" || name == "iblock";
      const bool is_end = name == "isplit";
      put(place, is_flag ? 1 : is_end ? argument_.rows : i + 1);
      return;
    }
    const bool is_band = name == "ab" || name == "afb" || name == "bb";
    const bool is_diagonal = is_band ? i == 1 || i == 2 : i == j;
    float value = 0.01F * static_cast<float>((7 * i + 3 * j + i * j) % 11 + 1);
    if (argument_.columns == 1) {
      value += 0.5F * static_cast<float>(i + 1);
    } else if (is_diagonal) {
      value = 4.0F + static_cast<float>(j);
    }
    put(argument_.element == Element::kComplex ? 2 * place : place, value);
    if (argument_.element == Element::kComplex) put(2 * place + 1, 0.0F);
  }

  Argument argument_;
  int position_;
  std::vector<std::uint8_t> bytes_;
};

class Call {
 public:
  explicit Call(const Routine& routine) : routine_(routine) {
    for (const Argument& argument : routine.arguments) memory_.emplace_back(argument, static_cast<int>(memory_.size()));
  }

  // Arguments fill one slot each on both targets, and a callee does not look at further ones.
  void run(bool indexed) {
    std::uintptr_t slots[64] = {};
    std::size_t count = 0;
    for (std::size_t i = 0; i < memory_.size(); ++i) {
      const Argument& argument = routine_.arguments[i];
      const bool paired = indexed && argument.has_index();
      slots[count++] = argument.kind == Kind::kSelection ? reinterpret_cast<std::uintptr_t>(&select_none)
                       : paired                          ? memory_[i].base()
                                                         : reinterpret_cast<std::uintptr_t>(memory_[i].data());
      if (paired) slots[count++] = static_cast<std::uintptr_t>(memory_[i].index());
    }
    call(indexed ? routine_.indexed : routine_.plain, slots, std::make_index_sequence<64>{});
  }

  Memory& operator[](std::size_t i) { return memory_[i]; }
  int info() const { return memory_.back().integer(); }  // the last argument of every routine

 private:
  template <std::size_t... I>
  static void call(Address function, const std::uintptr_t (&slots)[64], std::index_sequence<I...>) {
    using Function = void (*)(std::remove_cvref_t<decltype(slots[I])>...);
    reinterpret_cast<Function>(function)(slots[I]...);
  }

  const Routine& routine_;
  std::vector<Memory> memory_;
};

TEST(EveryRoutine, WorksThroughIndicesAndStaysInItsArrays) {
  ASSERT_EQ(std::size(kRoutines), 159U);
  for (const Routine& routine : kRoutines) {
    SCOPED_TRACE(routine.name);
    Call untouched(routine), plain(routine), indexed(routine);
    plain.run(false);
    indexed.run(true);
    EXPECT_GE(plain.info(), 0);
    bool has_worked = false;
    for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
      SCOPED_TRACE(routine.arguments[i].name);
      EXPECT_TRUE(plain[i].guards_hold());
      EXPECT_TRUE(indexed[i] == plain[i]);
      const bool changed = !(plain[i] == untouched[i]);
      EXPECT_TRUE(routine.arguments[i].is_output || !changed);
      has_worked = has_worked || changed;
    }
    EXPECT_TRUE(has_worked);
  }
}

TEST(EveryRoutine, NeedsNoMoreWorkSpaceThanDocumented) {
  for (const Routine& routine : kLeastCalls) {
    SCOPED_TRACE(routine.name);
    Call call(routine);
    call.run(false);
    EXPECT_GE(call.info(), 0);
    for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
      EXPECT_TRUE(call[i].guards_hold()) << routine.arguments[i].name;
    }
  }
}

TEST(EveryRoutine, FindsAWrongArgumentAndTouchesNothing) {
  for (const Routine& routine : kRoutines) {
    // The first option, or the first dimension.
    std::size_t wrong = 0;
    while (routine.arguments[wrong].element != Element::kChar && wrong + 1 < routine.arguments.size()) ++wrong;
    if (routine.arguments[wrong].element != Element::kChar) wrong = 0;
    const int wrong_value = routine.arguments[wrong].element == Element::kChar ? '!' : -1;
    std::string upper = routine.name;
    for (char& c : upper) c = static_cast<char>(std::toupper(c));
    for (const bool indexed : {false, true}) {
      SCOPED_TRACE(testing::Message() << routine.name << (indexed ? "_Idx" : ""));
      Call untouched(routine), call(routine);
      untouched[wrong].set_integer(wrong_value);
      call[wrong].set_integer(wrong_value);
      const std::string text = quorin::test::captured([&] { call.run(indexed); });
      const int position = static_cast<int>(wrong) + 1;
      EXPECT_EQ(call.info(), -position);
      EXPECT_NE(text.find("Parameter " + std::to_string(position) + " was incorrect on entry to " + upper),
                std::string::npos)
          << text;
      for (std::size_t i = 0; i + 1 < routine.arguments.size(); ++i) {
        if (routine.arguments[i].name == std::string("ifail")) continue;  // sstein and cstein clear it first
        EXPECT_TRUE(call[i] == untouched[i]) << routine.arguments[i].name;
      }
    }
  }
}

}  // namespace
