// The operations, one file each: what a host passes in and gets back, and the tour's visit.
#ifndef ORRERYUI_HOST_OPERATIONS_ALL_H_
#define ORRERYUI_HOST_OPERATIONS_ALL_H_

#include "host/operation.h"

namespace orreryui::host {

Operation MapTypeSet();
Operation MapPalleteSet();
Operation LegendElevetion();
Operation DataSourceSet();
Operation DllAlbumRegist();
Operation AlbumUpdate();
Operation RouteRegist();
Operation RouteInformation();
Operation MenuBarFileUpdate();
Operation MenuBarSlideSet();
Operation SlideSet();
Operation TextDisplay();
Operation MemoDisplay();
Operation GnpfRetrieveSet();
Operation RangeConfirm();

// In the order in which they are listed and visited.
inline constexpr Operation (*kAllOperations[])() = {
    MapTypeSet,  MapPalleteSet, LegendElevetion,  DataSourceSet,     DllAlbumRegist,
    AlbumUpdate, RouteRegist,   RouteInformation, MenuBarFileUpdate, MenuBarSlideSet,
    SlideSet,    TextDisplay,   MemoDisplay,      GnpfRetrieveSet,   RangeConfirm,
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_OPERATIONS_ALL_H_
