// A set of column numbers from which the least is taken first: the pattern of a row that fills in while it is
// eliminated.
#pragma once

#include <bit>
#include <cstddef>
#include <limits>

namespace quorin::rci {

// A tree of bits: a bit of one level tells whether a word of the level below holds any. Inserting and taking out cost
// one word per level, at most seven, so a row costs time proportional to its fill.
class ColumnSet {
 public:
  using Word = std::size_t;

  // Words of storage for columns 0...n-1.
  static std::size_t words(std::size_t n) {
    std::size_t total = 0;
    do {
      n = words_of_level(n);
      total += n;
    } while (n > 1);
    return total;
  }

  // `storage` has words(n) words, all zero.
  ColumnSet(std::size_t n, Word* storage) {
    do {
      n = words_of_level(n);
      level_[height_++] = storage;
      storage += n;
    } while (n > 1);
  }

  bool empty() const { return *level_[height_ - 1] == 0; }

  void insert(int column) {
    auto index = static_cast<std::size_t>(column);
    for (int i = 0; i < height_; ++i, index /= kBits) {
      Word& word = level_[i][index / kBits];
      const Word old = word;
      word |= bit(index);
      if (old != 0) return;
    }
  }

  int first() const {
    std::size_t index = 0;
    for (int i = height_ - 1; i >= 0; --i) {
      index = index * kBits + static_cast<std::size_t>(std::countr_zero(level_[i][index]));
    }
    return static_cast<int>(index);
  }

  void remove(int column) {
    auto index = static_cast<std::size_t>(column);
    for (int i = 0; i < height_; ++i, index /= kBits) {
      Word& word = level_[i][index / kBits];
      word &= ~bit(index);
      if (word != 0) return;
    }
  }

 private:
  static constexpr std::size_t kBits = std::numeric_limits<Word>::digits;
  static constexpr int kMaxHeight = 7;  // 32^7 > 2^31

  static std::size_t words_of_level(std::size_t n) { return (n + kBits - 1) / kBits; }
  static Word bit(std::size_t index) { return Word{1} << (index % kBits); }

  Word* level_[kMaxHeight] = {};
  int height_ = 0;
};

}  // namespace quorin::rci
