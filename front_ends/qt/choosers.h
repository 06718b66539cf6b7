// The choosers of files and colours.
#ifndef ORRERYUI_FRONT_ENDS_QT_CHOOSERS_H_
#define ORRERYUI_FRONT_ENDS_QT_CHOOSERS_H_

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/front_end.h"

namespace orreryui {

// Nothing if the user gave up. `owner` may be null.
std::optional<std::string> AskFile(QWidget* owner, const FileChooserRequest& request);
std::optional<std::uint32_t> AskColour(QWidget* owner, std::uint32_t start);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_CHOOSERS_H_
