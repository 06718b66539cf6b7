#include "appearance/map_type_settings.h"

namespace orreryui {
namespace {

constexpr int kHostAlbers = 2;
constexpr int kAlbers = 1;

}  // namespace

MapTypeSettings UnpackMapType(int kind, int fill, int coast) {
  MapTypeSettings settings;
  settings.m_nMapKind = kind % 10;
  const int projection = kind / 10;
  settings.m_nJapanProjection = projection == kHostAlbers ? kAlbers : projection;
  settings.m_nPrefProjection = fill / 10000;
  settings.m_nTint = fill % 100;
  settings.m_nCoastPref = coast / 10000;
  settings.m_nCoastTopo = coast / 100 % 100;
  settings.m_nMethod = coast % 100;
  return settings;
}

int HostProjection(int japan_projection) {
  return japan_projection == kAlbers ? kHostAlbers : japan_projection;
}

bool MapTypeDiffers(const MapTypeSettings& one, const MapTypeSettings& other) {
  return one.m_nMapKind != other.m_nMapKind || one.m_nTint != other.m_nTint ||
         one.m_nPalette != other.m_nPalette || one.m_nMethod != other.m_nMethod ||
         one.m_nPrefProjection != other.m_nPrefProjection ||
         one.m_nJapanProjection != other.m_nJapanProjection || one.m_strRegion != other.m_strRegion;
}

int MapTypeSettings::*CoastlineOf(const MapTypeSettings& settings) {
  if (settings.m_nTint != 0 && settings.m_nCoastOnTint != 1) return nullptr;
  if (settings.m_nMapKind == 1) return &MapTypeSettings::m_nCoastTopo;
  if (settings.m_nMapKind == 3) return &MapTypeSettings::m_nCoastPref;
  return nullptr;
}

}  // namespace orreryui
