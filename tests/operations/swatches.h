// A look of a script at the swatches of a dialog.
#ifndef ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_
#define ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_

#include <cstdint>

#include "tests/support/play.h"

namespace orreryui {

using SwatchColour = std::optional<std::uint32_t>;

// The colours of the swatches in the order of `ids`.
inline ScriptFrontEnd::Action ShowsSwatches(std::vector<int> ids,
                                            std::vector<SwatchColour> colours) {
  return [=](ControlSession& session) -> std::string {
    for (std::size_t i = 0; i < ids.size(); ++i) {
      if (ControlOf(session, ids[i]).swatch.colour == colours[i]) continue;
      return "another colour in swatch " + std::to_string(ids[i]);
    }
    return "";
  };
}

// The numbers of the swatches, in the order of tabs, that `is_one`.
template <class IsOne>
ScriptFrontEnd::Action ShowsSuch(std::vector<int> ids, IsOne is_one) {
  return [=](ControlSession& session) -> std::string {
    std::vector<int> found;
    for (int i = 0; i < session.ControlCount(); ++i) {
      const ControlView view = session.Control(i);
      if (is_one(view.swatch)) found.push_back(view.id);
    }
    return found == ids ? "" : std::to_string(found.size()) + " swatches are such, or others";
  };
}

// Those that have a black frame.
inline ScriptFrontEnd::Action ShowsFramed(const std::vector<int>& ids) {
  return ShowsSuch(ids, [](const SwatchView& swatch) { return swatch.frame == 0u; });
}

// Those with this note.
inline ScriptFrontEnd::Action ShowsNoted(const std::vector<int>& ids, const std::string& note) {
  return ShowsSuch(ids, [note](const SwatchView& swatch) { return swatch.note == note; });
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_OPERATIONS_SWATCHES_H_
