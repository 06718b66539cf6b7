// What several operations are passed at first.
#ifndef ORRERYUI_HOST_SAMPLES_H_
#define ORRERYUI_HOST_SAMPLES_H_

#include <string>

#include "host/operation.h"

namespace orreryui::host {

// Folders of the sample data, with their separators.
inline const std::string kPaletteFolder = std::string(kDataFolder) + "/palettes/";
inline const std::string kAlbumFolder = std::string(kDataFolder) + "/album/";
inline const std::string kMapFolder = std::string(kDataFolder) + "/maps/";
inline const std::string kMenuFolder = std::string(kDataFolder) + "/";

// Kamakura station.
inline constexpr char kStartLongitude[] = "139.5503";
inline constexpr char kStartLatitude[] = "35.3190";

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_SAMPLES_H_
