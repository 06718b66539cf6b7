// The buttons of the region dialog as a map of Japan.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "templates/region.h"

namespace orreryui {
namespace {

using Border = std::pair<int, int>;  // of two prefectures, the smaller number first

// The land borders between the prefectures of Japan.
const std::set<Border> kBorders = {
    {2, 3},   {2, 5},   {3, 4},   {3, 5},   {4, 5},   {4, 6},   {4, 7},   {5, 6},   {6, 7},
    {6, 15},  {7, 8},   {7, 9},   {7, 10},  {7, 15},  {8, 9},   {8, 11},  {8, 12},  {9, 10},
    {9, 11},  {10, 11}, {10, 15}, {10, 20}, {11, 12}, {11, 13}, {11, 19}, {11, 20}, {12, 13},
    {13, 14}, {13, 19}, {14, 19}, {14, 22}, {15, 16}, {15, 20}, {16, 17}, {16, 20}, {16, 21},
    {17, 18}, {17, 21}, {18, 21}, {18, 25}, {18, 26}, {19, 20}, {19, 22}, {20, 21}, {20, 22},
    {20, 23}, {21, 23}, {21, 24}, {21, 25}, {22, 23}, {23, 24}, {24, 25}, {24, 26}, {24, 29},
    {24, 30}, {25, 26}, {26, 27}, {26, 28}, {26, 29}, {27, 28}, {27, 29}, {27, 30}, {28, 31},
    {28, 33}, {29, 30}, {31, 32}, {31, 33}, {31, 34}, {32, 34}, {32, 35}, {33, 34}, {34, 35},
    {36, 37}, {36, 38}, {36, 39}, {37, 38}, {38, 39}, {40, 41}, {40, 43}, {40, 44}, {41, 42},
    {43, 44}, {43, 45}, {43, 46}, {44, 45}, {45, 46}};

// Whether two rectangles that don't overlap have more than a corner in common.
bool ShareAnEdge(const DialogRect& a, const DialogRect& b) {
  const int across = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
  const int down = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
  return (across == 0 && down > 0) || (down == 0 && across > 0);
}

TEST(RegionMapTest, ButtonsTouchExactlyWherePrefecturesDo) {
  std::set<Border> found;
  for (std::size_t a = 1; a <= 47; ++a) {
    for (std::size_t b = a + 1; b <= 47; ++b) {
      if (ShareAnEdge(region::kTiles[a], region::kTiles[b])) found.emplace(a, b);
    }
  }
  EXPECT_EQ(found, kBorders);
}

}  // namespace
}  // namespace orreryui
