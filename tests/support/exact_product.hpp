// A matrix product that every order of summation computes exactly, big enough for five threads.
#pragma once

#include "quorin/loader.h"
#include "tests/support/standard.hpp"

namespace quorin::test {

// Pseudo-random whole numbers from -3 to 3, never the same in neighbouring rows or columns.
inline std::vector<float> whole_numbers(std::size_t count, std::uint32_t seed) {
  std::vector<float> numbers(count);
  for (float& number : numbers) {
    seed = seed * 1664525U + 1013904223U;
    number = static_cast<float>(static_cast<int>((seed >> 24) % 7) - 3);
  }
  return numbers;
}

// C <- A B for n-by-n matrices. The sums are at most 9 n, far below 2^24, so floats hold them exactly.
class ExactProduct {
 public:
  explicit ExactProduct(int n = 224)
      : n_(n), a_(whole_numbers(size(), 1)), b_(whole_numbers(size(), 2)), expected_(size()), c_(size(), -1.0F) {
    for (std::size_t j = 0; j < side(); ++j) {
      for (std::size_t k = 0; k < side(); ++k) {
        for (std::size_t i = 0; i < side(); ++i) {
          expected_[i + j * side()] += a_[i + k * side()] * b_[k + j * side()];
        }
      }
    }
  }

  bool is_solved_by(decltype(quorin_library::sgemm) product) {
    c_.assign(size(), -1.0F);
    const char no_transpose = 'N';
    const float alpha = 1, beta = 0;
    product(&no_transpose, &no_transpose, &n_, &n_, &n_, &alpha, a_.data(), &n_, b_.data(), &n_, &beta, c_.data(), &n_);
    return c_ == expected_;
  }

  bool is_untouched() const { return c_ == std::vector<float>(size(), -1.0F); }

 private:
  std::size_t side() const { return static_cast<std::size_t>(n_); }
  std::size_t size() const { return side() * side(); }

  std::int32_t n_;
  std::vector<float> a_, b_, expected_, c_;
};

}  // namespace quorin::test
