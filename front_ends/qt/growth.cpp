#include "front_ends/qt/growth.h"

#include <algorithm>

namespace orreryui {
namespace {

// The same across and down.
void Grow(int& begin, int& length, int grower_begin, int grower_end, int gain) {
  if (begin + length < grower_end) return;
  (begin <= grower_begin ? length : begin) += gain;
}

}  // namespace

DialogRect Grown(const DialogRect& place, const DialogRect& grower, QPoint gain) {
  DialogRect grown = place;
  Grow(grown.x, grown.width, grower.x, grower.x + grower.width, gain.x());
  Grow(grown.y, grown.height, grower.y, grower.y + grower.height, gain.y());
  return grown;
}

QPoint LeastGain(const DialogRect& grower) {
  constexpr int kLeastWidth = 120;
  constexpr int kLeastHeight = 40;
  return {std::min(0, kLeastWidth - grower.width), std::min(0, kLeastHeight - grower.height)};
}

}  // namespace orreryui
