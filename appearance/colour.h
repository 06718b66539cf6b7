// Colours as hosts, dialogs and their files hold them.
#ifndef ORRERYUI_APPEARANCE_COLOUR_H_
#define ORRERYUI_APPEARANCE_COLOUR_H_

#include <cstdint>

namespace orreryui {

using COLORREF = std::uint32_t;  // 0x00BBGGRR

inline constexpr COLORREF kBlack = 0x000000;

constexpr int Red(COLORREF colour) { return static_cast<int>(colour & 0xFF); }
constexpr int Green(COLORREF colour) { return static_cast<int>(colour >> 8 & 0xFF); }
constexpr int Blue(COLORREF colour) { return static_cast<int>(colour >> 16 & 0xFF); }

// Each part is from 0 to 255.
constexpr COLORREF ColourOf(int red, int green, int blue) {
  return static_cast<COLORREF>(red | green << 8 | blue << 16);
}

// The colour in an argument of a host; what stands above its 24 bits is dropped.
constexpr COLORREF ColourOfArgument(int argument) {
  return static_cast<COLORREF>(argument) & 0xFFFFFF;
}

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_COLOUR_H_
