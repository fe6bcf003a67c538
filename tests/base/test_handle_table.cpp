// Many live handles at a time: each finds its own object, and what is no live handle of the table finds none.
#include "base/handle_table.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace quorin::base {
namespace {

struct Numbered : HandleNode {
  explicit Numbered(int given) : number(given) {}
  explicit operator bool() const { return number >= 0; }
  int number;
};

TEST(HandleTable, EachOfAThousandHandlesFindsItsOwn) {
  HandleTable<Numbered> table, other;
  std::vector<void*> handles(1000);
  const auto number_of = [&](void* handle) {
    const Numbered* const found = table.find(handle);
    return found == nullptr ? -1 : found->number;
  };
  for (int i = 0; i < 1000; ++i) handles[i] = table.create(i);
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(number_of(handles[i]), i);
    EXPECT_EQ(other.find(handles[i]), nullptr);
    EXPECT_FALSE(other.erase(handles[i]));
  }
  // Every second one goes, in any order; each of the others stays in its place.
  std::vector<int> order(500);
  for (int i = 0; i < 500; ++i) order[i] = 2 * i;
  std::shuffle(order.begin(), order.end(), std::mt19937(5));
  for (const int i : order) {
    EXPECT_TRUE(table.erase(handles[i]));
    EXPECT_FALSE(table.erase(handles[i]));
  }
  for (int i = 0; i < 1000; ++i) EXPECT_EQ(number_of(handles[i]), i % 2 == 0 ? -1 : i);
  // New objects get handles that nobody has had.
  for (int i = 0; i < 500; ++i) {
    void* const handle = table.create(1000 + i);
    EXPECT_EQ(std::count(handles.begin(), handles.end(), handle), 0);
    EXPECT_EQ(number_of(handle), 1000 + i);
    EXPECT_TRUE(table.erase(handle));
  }
  for (int i = 1; i < 1000; i += 2) EXPECT_TRUE(table.erase(handles[i]));
}

TEST(HandleTable, WhatIsNoHandleFindsNothing) {
  HandleTable<Numbered> table;
  void* const handle = table.create(1);
  const auto near = reinterpret_cast<std::uintptr_t>(handle);
  for (const std::uintptr_t wrong : {std::uintptr_t{0}, near - 1, near + 1, near - 128, near + 128, ~std::uintptr_t{0},
                                     reinterpret_cast<std::uintptr_t>(&table)}) {
    EXPECT_EQ(table.find(reinterpret_cast<void*>(wrong)), nullptr);
    EXPECT_FALSE(table.erase(reinterpret_cast<void*>(wrong)));
  }
  EXPECT_EQ(table.create(-1), nullptr) << "its parts found no memory";
  EXPECT_TRUE(table.erase(handle));
}

}  // namespace
}  // namespace quorin::base
