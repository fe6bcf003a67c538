// A random call of a LAPACK routine whose arrays are exactly as long as published and lie flush against pages that
// cannot be accessed.
#pragma once

#include "tests/lapack/routines.hpp"
#include "tests/support/guarded_pages.hpp"
#include "tests/support/standard.hpp"

namespace quorin::test {

// What stands in the floating-point input.
enum class Content {
  kUsual,
  kNan,
  kInfinity,
  kHuge,
  kAllHuge,
  kAllSubnormal,
  kAllNan,
  kAllInfinity,
  kLarge,
  kSmall,
  kZero,
  kMixture,
  kAnyExponent
};
inline constexpr int kContents = 13;
inline constexpr std::int32_t kUntouched = -77777;

inline std::int32_t select_first_positive(const float* first, const void*, const void*) { return *first > 0 ? 1 : 0; }

class PagedCall {
 public:
  static constexpr int kLargest = 65;

  // Arenas for all arguments that any routine has, shared by consecutive calls.
  static std::vector<GuardedPages>& arenas() {
    static std::vector<GuardedPages> all;
    while (all.size() < 40) all.emplace_back(std::size_t{1} << 19);
    return all;
  }

  PagedCall(const Routine& routine, std::uint32_t seed, Content content)
      : routine_(routine), seed_(seed), random_(seed + 1), content_(content) {}

  // Draws sizes and options until the routine finds nothing wrong with them, and leading dimensions as small as it
  // takes. Returns false if it never does. `run` makes the call; it is refused in all calls but the last.
  template <class Run>
  bool settle(Run run) {
    for (draw_ = 0; draw_ < 40; ++draw_) {
      draw_scalars();
      for (int attempt = 0; attempt < 60; ++attempt) {
        place();
        run(*this);
        if (info() >= 0) return true;
        const std::size_t wrong = static_cast<std::size_t>(-info()) - 1;
        if (wrong >= routine_.arguments.size()) return false;
        const Argument& argument = routine_.arguments[wrong];
        if (std::string_view(argument.name).substr(0, 2) != "ld") break;
        int& dimension = values.*argument.member;
        const int sizes[] = {values.n,
                             values.m,
                             values.p,
                             values.k,
                             values.kd + 1,
                             values.kl + values.ku + 1,
                             2 * values.kl + values.ku + 1,
                             values.mm,
                             values.nru,
                             3 * kLargest};
        int next = 10 * kLargest;
        for (const int size : sizes) next = size > dimension ? std::min(next, size) : next;
        dimension = next;
      }
    }
    return false;
  }

  // Puts the arrays into memory, filled: with the same for the same sizes.
  void place() {
    for (std::size_t i = 0; i < routine_.arguments.size(); ++i) {
      const Argument& argument = routine_.arguments[i];
      if (argument.kind == Kind::kSelection) continue;
      data_random_.seed(64 * (seed_ + 1000 * draw_) + static_cast<std::uint32_t>(i) + 1);
      std::size_t elements = 1;
      Extent extent{1, 1};
      if (argument.is_array()) {
        extent = argument.shape != nullptr ? argument.shape(values) : Extent{argument.minimum(values), 1};
        if (extent.rows == -1 && std::string_view(argument.name).ends_with("work")) extent.rows = 1;  // for the answer
        elements =
            static_cast<std::size_t>(std::max(extent.rows, 0)) * static_cast<std::size_t>(std::max(extent.columns, 0));
      }
      const Edge edge = data_random_() % 4 == 0 ? Edge::kFront : Edge::kBack;
      void* const data = arenas()[i].place(elements * argument.element_size(), edge);
      if (argument.is_array()) {
        fill(argument, data, extent);
      } else if (argument.element == Element::kFloat) {
        const float value = scalar(argument);
        std::memcpy(data, &value, sizeof value);
      } else {
        std::int32_t value = std::string_view(argument.name) == "info" ? kUntouched : values.*argument.member;
        // A small letter is as good as a capital.
        if (argument.element == Element::kChar && seed_ % 2 != 0) value = std::tolower(value);
        std::memcpy(data, &value, argument.element_size());
      }
    }
  }

  // In the index form, each base lies another number of elements before its data.
  void run(bool indexed = false) {
    std::uintptr_t slots[kSlots] = {};
    std::size_t slot = 0;
    for (std::size_t i = 0; i < routine_.arguments.size(); ++i) {
      const Argument& argument = routine_.arguments[i];
      const std::uintptr_t index = indexed && argument.has_index() ? 3 + i : 0;
      slots[slot++] = argument.kind == Kind::kSelection
                          ? reinterpret_cast<std::uintptr_t>(&select_first_positive)
                          : reinterpret_cast<std::uintptr_t>(data(i)) - index * argument.element_size();
      if (index != 0) slots[slot++] = index;
    }
    call(indexed ? routine_.indexed : routine_.plain, slots);
  }

  // What the arguments hold.
  std::vector<std::vector<unsigned char>> contents() const {
    std::vector<std::vector<unsigned char>> all;
    for (std::size_t i = 0; i < routine_.arguments.size(); ++i) {
      const auto bytes = arenas()[i].bytes();
      all.emplace_back(bytes.begin(), bytes.end());
    }
    return all;
  }
  void* data(std::size_t argument) const { return arenas()[argument].data(); }
  int info() const {
    std::int32_t value = 0;
    std::memcpy(&value, data(routine_.arguments.size() - 1), sizeof value);
    return value;
  }
  // The argument whose surroundings were written, or null.
  const char* spoilt() const {
    for (std::size_t i = 0; i < routine_.arguments.size(); ++i) {
      if (routine_.arguments[i].kind != Kind::kSelection && !arenas()[i].intact()) return routine_.arguments[i].name;
    }
    return nullptr;
  }
  // -info of a call that finds this argument wrong.
  int position(std::string_view name) const {
    int position = 1;
    for (const Argument& argument : routine_.arguments) {
      if (argument.name == name) return position;
      ++position;
    }
    return 0;
  }
  std::string text() const {
    std::string all = routine_.name;
    for (const Argument& argument : routine_.arguments) {
      if (argument.is_array() || argument.member == nullptr || argument.direction != Direction::kIn) continue;
      const int value = values.*argument.member;
      all += std::string(" ") + argument.name + "=";
      all += argument.element == Element::kChar ? std::string(1, static_cast<char>(value)) : std::to_string(value);
    }
    return all + " content " + std::to_string(static_cast<int>(content_));
  }

  Values values;

 private:
  template <class Random>
  static int draw(Random& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
  }
  float uniform() { return static_cast<float>(data_random_() % 20001) / 10000.0F - 1.0F; }

  int draw_size() {
    constexpr int kSizes[] = {0, 1, 2, 3, 4, 5, 7, 8, 12, 16, 17, 26, 33, 40, 64, 65};
    return kSizes[random_() % 16];
  }

  bool has_output(std::string_view name) const {
    return std::ranges::any_of(routine_.arguments,
                               [&](const Argument& a) { return a.name == name && a.direction == Direction::kOut; });
  }

  void draw_scalars() {
    values = {};
    for (const Argument& argument : routine_.arguments) {
      if (argument.is_array() || argument.member == nullptr) continue;
      const std::string_view name = argument.name;
      int& value = values.*argument.member;
      if (!argument.options.empty()) {
        value = argument.options[random_() % argument.options.size()];
      } else if (argument.direction == Direction::kOut) {
        continue;  // m of the eigenvalue routines: n at most
      } else if (name.substr(0, 2) == "ld") {
        value = 1;
      } else if (name == "kl" || name == "ku" || name == "kd" || name == "ka" || name == "kb") {
        value = draw(random_, 0, 4);
      } else if (name == "nrhs") {
        value = draw(random_, 0, 9);
      } else {
        value = draw_size();
      }
    }
    const int n = values.n;
    // What must not exceed another size is drawn below it, not hoped for.
    const std::string_view name = routine_.name;
    if (name.substr(1, 2) == "or" || name.substr(1, 2) == "un") {
      if (name.substr(3) == "gqr") values.n = std::min(n, values.m), values.k = std::min(values.k, values.n);
      if (name.substr(3) == "glq") values.n = std::max(n, values.m), values.k = std::min(values.k, values.m);
      if (name.substr(3, 1) == "m" && name.substr(3) != "mbr") values.k = std::min({values.k, values.m, values.n});
      if (name.substr(3) == "gbr") values.m = values.n;
    }
    if (name.substr(1) == "gglse") values.p = std::min(values.p, n), values.m = std::max(values.m, n - values.p);
    if (name.substr(1) == "ggglm") values.m = std::min(values.m, n), values.p = std::max(values.p, n - values.m);
    if (name == "sstein" || name == "cstein") values.m = n;
    if (values.m == 0 && has_output("m")) values.m = n;
    values.ilo = 1;
    values.ihi = n;
    values.il = n == 0 ? 1 : draw(random_, 1, n);
    values.iu = n == 0 ? 0 : draw(random_, values.il, n);
    values.mm = std::max(n, values.mm);
    values.sdim = n / 2;
    // Lengths last: they depend on the rest.
    for (const Argument& argument : routine_.arguments) {
      if (argument.minimum != nullptr && !argument.is_array()) values.*argument.member = argument.minimum(values);
    }
  }

  float special(Content content) {
    const float infinity = std::numeric_limits<float>::infinity(), sign = data_random_() % 2 == 0 ? 1.0F : -1.0F;
    switch (content) {
      case Content::kNan:
      case Content::kAllNan:
        return std::numeric_limits<float>::quiet_NaN();
      case Content::kInfinity:
      case Content::kAllInfinity:
        return sign * infinity;
      case Content::kHuge:
      case Content::kAllHuge:
        return sign * 3e38F;
      case Content::kAllSubnormal:
        return 1e-40F * uniform();
      case Content::kLarge:
        return 1e20F * uniform();
      case Content::kSmall:
        return 1e-25F * uniform();
      case Content::kZero:
        return 0;
      case Content::kAnyExponent:
        return std::ldexp(uniform(), draw(data_random_, -149, 128));
      default:
        return special(static_cast<Content>(draw(data_random_, 1, 10)));
    }
  }
  static bool is_everywhere(Content content) { return content >= Content::kAllHuge && content != Content::kMixture; }

  float scalar(const Argument& argument) {
    const std::string_view name = argument.name;
    if (content_ != Content::kUsual && argument.direction == Direction::kIn && data_random_() % 8 == 0)
      return special(content_);
    return name == "vl" ? -1.0F : name == "vu" ? 2.0F : name == "anorm" ? 10.0F : name == "abstol" ? 0.0F : -1.0F;
  }

  void fill(const Argument& argument, void* data, Extent extent) {
    const std::string_view name = argument.name;
    if (argument.element == Element::kInt) {
      auto* const p = static_cast<std::int32_t*>(data);
      for (int i = 0; i < extent.rows * extent.columns; ++i) {
        p[i] = name == "iblock"                     ? 1
               : name == "isplit"                   ? extent.rows
               : name == "jpvt" || name == "select" ? draw(data_random_, 0, 1)
                                                    : i + 1;
      }
      const bool is_list = name == "ipiv" || name == "iblock" || name == "isplit";
      if (is_list && content_ == Content::kMixture && extent.rows > 0 && data_random_() % 3 == 0) {
        constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
        const std::int32_t strays[] = {0, -1, extent.rows + 1, -extent.rows, 1000, kMost, -kMost - 1};
        for (int k = draw(data_random_, 1, 3); k > 0; --k) {
          p[data_random_() % static_cast<unsigned>(extent.rows)] = strays[data_random_() % std::size(strays)];
        }
      }
      return;
    }
    auto* const p = static_cast<float*>(data);
    const int parts = argument.element == Element::kComplex ? 2 : 1;
    const bool is_input = argument.direction != Direction::kOut;
    const std::string_view routine(routine_.name + 1);
    const bool is_band = name == "ab" || name == "bb" || name == "afb";
    const bool is_hessenberg = name == "h";
    const bool is_triangular = name == "t" || (routine == "trsyl" && name != "c");
    const bool is_dominant = data_random_() % 2 == 0 || name == "b" || name == "bb";
    const bool is_ordered = extent.columns == 1 && name == "w";
    const int diagonal = routine.substr(0, 2) == "gb" ? values.kl + (name == "ab" && routine == "gbrfs" ? 0 : values.ku)
                         : values.uplo == 'U'         ? extent.rows - 1
                                                      : 0;
    std::size_t place = 0;
    for (int j = 0; j < extent.columns; ++j) {
      for (int i = 0; i < extent.rows; ++i) {
        for (int part = 0; part < parts; ++part, ++place) {
          float value = uniform();
          if (extent.columns > 1) {
            const bool is_diagonal = is_band ? i == diagonal : i == j;
            if (is_diagonal && is_dominant) value = part == 0 ? 70.0F + static_cast<float>(j) : 0.0F;
            if ((is_hessenberg || is_triangular) && i > j + 1) value = 0;
            if (is_triangular && i == j + 1 && (parts == 2 || j % 3 != 0)) value = 0;
          } else if (is_ordered) {
            value = static_cast<float>(i);
          } else if (name == "d" && is_dominant) {
            value += 3;
          }
          p[place] = value;
        }
      }
    }
    if (content_ == Content::kUsual || !is_input || place == 0) return;
    const bool is_shaped = is_hessenberg || is_triangular;
    if (is_everywhere(content_)) {
      if (data_random_() % 3 == 0) return;  // some arrays only
      for (std::size_t k = 0; k < place; ++k) {
        if (p[k] != 0 || !is_shaped) p[k] = special(content_);
      }
    } else {
      const int count = content_ == Content::kMixture ? draw(data_random_, 1, 9) : draw(data_random_, 0, 2);
      for (int k = 0; k < count; ++k) {
        float& victim = p[data_random_() % place];
        if (victim != 0 || !is_shaped) victim = special(content_);
      }
    }
  }

  const Routine& routine_;
  std::uint32_t seed_, draw_ = 0;
  std::mt19937 random_;           // of sizes and options
  std::minstd_rand data_random_;  // of an argument's content
  Content content_;
};

}  // namespace quorin::test
