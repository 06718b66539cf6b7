// A click in a dialog while calls of the file system fail.
#ifndef ORRERYUI_TESTS_SUPPORT_FAILING_DISK_H_
#define ORRERYUI_TESTS_SUPPORT_FAILING_DISK_H_

#include <tuple>
#include <utility>

#include "frame/file_changes.h"
#include "tests/support/each_fault.h"
#include "tests/support/play.h"

namespace orreryui {

// All that a click may change: the files, and what the controls show.
struct Scene {
  Files files;
  std::vector<std::tuple<std::string, std::vector<std::vector<std::string>>, int>> controls;

  bool operator==(const Scene&) const = default;
};

inline Scene Look(const TestFolder& folder, const ControlSession& session) {
  Scene scene = {folder.Content(), {}};
  // What is left of a second file goes with the next write.
  std::erase_if(scene.files, [](const auto& file) { return file.first.front() == '.'; });
  for (int i = 0; i < session.ControlCount(); ++i) {
    const ControlView view = session.Control(i);
    scene.controls.emplace_back(view.text, view.rows, view.selection);
  }
  return scene;
}

using Steps = std::function<void(ScriptFrontEnd&)>;

// What changes the list of a folder, and files that it names: `open` opens the dialog, `click` is
// what happens on the failing disk, `call` ends the dialog and calls the operation.
struct Change {
  const TestFolder& folder;
  const char* list;
  Steps open, click, call;
};

// The scenes before the click, and once the list has been opened again behind it.
inline std::pair<Scene, Scene> Play(const Change& change, FaultyFileSystem& files) {
  std::pair<Scene, Scene> scenes;
  std::optional<ScopedFileSystem> disk;
  ScriptFrontEnd visit;
  change.open(visit);
  visit.Does([&](ControlSession& session) {
    scenes.first = Look(change.folder, session);
    disk.emplace(files);
    return "";
  });
  change.click(visit);
  visit.Does([&](ControlSession& session) {
    disk.reset();
    FinishChanges(change.folder.PathOf(change.list).c_str());
    scenes.second = Look(change.folder, session);
    return "";
  });
  change.call(visit);
  return scenes;
}

// Each time the click has no effect at all, or the whole of it.
inline void PlayOnAFailingDisk(const Change& change) {
  const Files before = change.folder.Content();
  FaultyFileSystem sound;
  const Scene whole = Play(change, sound).second;
  int refusals = 0;
  ForEachFault([&](FaultyFileSystem& files) {
    change.folder.Lay(before);
    files.longest_read = 32;  // a list may break off in its middle
    const auto [old, scene] = Play(change, files);
    EXPECT_FALSE(old == whole);
    EXPECT_TRUE(scene == old || scene == whole);
    refusals += scene == old ? 1 : 0;
  });
  EXPECT_GT(refusals, 4);
  change.folder.Lay(before);
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_FAILING_DISK_H_
