// A copy of the sample data that a run of the sample host may change.
#ifndef ORRERYUI_HOST_SAMPLE_FOLDER_H_
#define ORRERYUI_HOST_SAMPLE_FOLDER_H_

#include <QTemporaryDir>
#include <string>

#include "host/operation.h"

namespace orreryui::host {

// Lives as long as its folder. The original lies where the build and the installation put it: in
// share/ beside the folder of the program.
class SampleFolder {
 public:
  SampleFolder();

  // Whether the copy could be made.
  bool IsComplete() const { return complete_; }

  // The data lines of all albums as they stand now, in the order of the albums' names: a bar behind
  // each, and behind the last one the end of the list.
  std::string AlbumPoints() const;

  // The text with the copy's folder in the place of kDataFolder, and the points in that of
  // kAlbumPoints.
  std::string Filled(const std::string& text) const;

  // What the operation is passed at first.
  Values StartValues(const Operation& operation) const;

 private:
  QTemporaryDir folder_;
  bool complete_ = false;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_SAMPLE_FOLDER_H_
