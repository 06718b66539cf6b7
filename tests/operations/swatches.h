// A look of a script at the swatches of a dialog.
#ifndef ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_
#define ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_

#include <cstdint>
#include <cstdio>

#include "tests/support/play.h"

namespace orreryui {

using SwatchColour = std::optional<std::uint32_t>;

// The colours of the swatches in the order of `ids`.
inline ScriptFrontEnd::Action ShowsSwatches(std::vector<int> ids,
                                            std::vector<SwatchColour> colours) {
  const auto name = [](SwatchColour colour) -> std::string {
    if (!colour) return "empty ";
    char text[16];
    std::snprintf(text, sizeof text, "%06X ", static_cast<unsigned>(*colour));
    return text;
  };
  return [=](ControlSession& session) -> std::string {
    std::string found;
    std::string expected;
    for (const SwatchColour& colour : colours) expected += name(colour);
    for (const int id : ids) found += name(ControlOf(session, id).swatch.colour);
    return found == expected ? "" : "swatches " + found + "not " + expected;
  };
}

// The numbers of the swatches that have a black frame.
inline ScriptFrontEnd::Action ShowsFramed(std::vector<int> ids) {
  return [=](ControlSession& session) -> std::string {
    std::vector<int> found;
    for (int i = 0; i < session.ControlCount(); ++i) {
      const ControlView view = session.Control(i);
      if (view.swatch.frame == 0u) found.push_back(view.id);
    }
    return found == ids ? "" : std::to_string(found.size()) + " swatches are framed, or others";
  };
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_
