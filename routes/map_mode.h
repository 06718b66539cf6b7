// The words by which hosts say what a list of points is.
#ifndef ORRERYUI_ROUTES_MAP_MODE_H_
#define ORRERYUI_ROUTES_MAP_MODE_H_

namespace orreryui {

inline constexpr char kRouteMode[] = "RouteMap";
inline constexpr char kAreaMode[] = "AreaMap";

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_MAP_MODE_H_
