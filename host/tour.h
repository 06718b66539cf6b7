// The tour: visits every operation that stands, by itself.
#ifndef ORRERYUI_HOST_TOUR_H_
#define ORRERYUI_HOST_TOUR_H_

#include <QString>

namespace orreryui::host {

// Prints what each visit did and what came back, and leaves the pictures in `folder`, which is made
// if it doesn't exist. Needs an application. Returns whether all visits went as they should.
bool MakeTour(const QString& folder);

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_TOUR_H_
