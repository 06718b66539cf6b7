// Hosts that load the library themselves, from a folder with or without its plug-in.
#include <dlfcn.h>

#include <filesystem>
#include <fstream>

#include "tests/promises/promise.h"

namespace orreryui {
namespace {

namespace fs = std::filesystem;

class Loading : public Promise {
 protected:
  // A folder with a copy of the library and nothing else.
  void SetUp() override {
    Promise::SetUp();
    folder_ = fs::path(testing::TempDir()) / ("orreryui-loading-" + std::to_string(getpid()));
    fs::create_directories(folder_ / "orreryui");
    fs::copy_file(ORRERYUI_LIBRARY, folder_ / "liborreryui.so");
  }

  void TearDown() override { fs::remove_all(folder_); }

  fs::path PlugIn() const { return folder_ / "orreryui" / "liborreryui-qt.so"; }

  // Loads the library, calls both operations, neither of which may show a dialog, and unloads it.
  static void ExpectNoDialogOf(const fs::path& library) {
    void* const module = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module, nullptr) << dlerror();
    auto* const confirm =
        reinterpret_cast<decltype(&OnRengeConfirm)>(dlsym(module, "OnRengeConfirm"));
    auto* const choose =
        reinterpret_cast<decltype(&OnDataSourceSet)>(dlsym(module, "OnDataSourceSet"));
    ASSERT_TRUE(confirm && choose);
    EXPECT_EQ(Confirm(confirm), -1);
    EXPECT_EQ(ChooseDataSource(choose), "");
    EXPECT_EQ(dlclose(module), 0);
  }

  fs::path folder_;
};

TEST_F(Loading, WithoutAPlugInThatCanBeLoaded) {
  UseOffscreen();
  ExpectNoDialogOf(folder_ / "liborreryui.so");
  std::ofstream(PlugIn()) << "this isn't a shared object";
  ExpectNoDialogOf(folder_ / "liborreryui.so");
}

TEST_F(Loading, ARefusingPlugInByARelativePathFromAFolderThatIsLeftBehind) {
  fs::copy_file(ORRERYUI_REFUSING_PLUG_IN, PlugIn());
  UseOffscreen();
  const fs::path home = fs::current_path();
  fs::current_path(folder_);
  void* const module = dlopen("./liborreryui.so", RTLD_NOW | RTLD_LOCAL);
  fs::current_path(home);
  ASSERT_NE(module, nullptr) << dlerror();
  ExpectNoDialogOf(folder_ / "liborreryui.so");
  EXPECT_NE(dlopen(PlugIn().c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr) << "it wasn't found";
}

TEST_F(Loading, AgainAndAgain) {
  const Holdings before = CurrentHoldings();
  for (int i = 0; i < 20; ++i) ExpectNoDialogOf(ORRERYUI_LIBRARY);
  EXPECT_EQ(before.open_files, CurrentHoldings().open_files);
}

}  // namespace
}  // namespace orreryui
