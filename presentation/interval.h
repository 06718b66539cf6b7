// The seconds between two slides, as the buttons beside them change them.
#ifndef ORRERYUI_PRESENTATION_INTERVAL_H_
#define ORRERYUI_PRESENTATION_INTERVAL_H_

#include <algorithm>
#include <limits>

namespace orreryui {

// One second more, as far as an int goes.
constexpr int Longer(int interval) {
  return std::min(interval, std::numeric_limits<int>::max() - 1) + 1;
}

// One second less, but no less than `lowest`.
constexpr int Shorter(int interval, int lowest) { return std::max(interval, lowest + 1) - 1; }

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_INTERVAL_H_
