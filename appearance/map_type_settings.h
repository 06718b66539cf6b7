// What the map shows: its kind, fill, coastline and projection, and how these settings travel
// between the host and the map type dialog.
#ifndef ORRERYUI_APPEARANCE_MAP_TYPE_SETTINGS_H_
#define ORRERYUI_APPEARANCE_MAP_TYPE_SETTINGS_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Indices count from 0. One that its list doesn't hold is kept until the user picks another.
struct MapTypeSettings {
  int m_nPalette = 0;          // line in the list of palettes
  int m_nMapKind = 0;          // 1: topographic map 1:200000, 2: archipelago, 3: by prefecture
  int m_nTint = 0;             // 0: blank map, 1: hypsometric tint map
  int m_nMethod = 0;           // index of the fill method
  int m_nPrefProjection = 0;   // index of the projection of the prefecture map
  int m_nJapanProjection = 0;  // index of the projection of the archipelago map
  int m_nCoastTopo = 0;        // index of the coastline colour of map kind 1
  int m_nCoastPref = 0;        // index of the coastline colour of map kind 3
  int m_nCoastOnTint = 0;      // 1: a tint map has a coastline colour too
  CString m_strRegion;         // appearance/region_string.h
};

// Takes the host's numbers apart. `kind` is 10 * J + K: the archipelago projection as the host
// counts it, and the map kind. `fill` is 10000 * P + 100 * X + T: the prefecture projection, a
// number that isn't used, and the tint. `coast` is 10000 * C3 + 100 * C1 + M: the coastline colours
// of map kinds 3 and 1, and the fill method. Of a negative number all parts are negative or 0; one
// with more digits gives its first part all of them.
MapTypeSettings UnpackMapType(int kind, int fill, int coast);

// The archipelago projection as the host counts it: 2 in the place of index 1.
int HostProjection(int japan_projection);

// Whether the host has to draw its map anew. Coastline colours don't count.
bool MapTypeDiffers(const MapTypeSettings& one, const MapTypeSettings& other);

// The field that holds the coastline colour of this map; null if it has none.
int MapTypeSettings::*CoastlineOf(const MapTypeSettings& settings);

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_MAP_TYPE_SETTINGS_H_
