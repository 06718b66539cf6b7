#include "frame/choose_picture.h"

#include <optional>

#include "frame/choose_open_file.h"
#include "platform/strings/japanese_literal.h"
#include "platform/system/library.h"

namespace orreryui {
namespace {

using PictureFunction = CString();

// What the sibling library's chooser returns; nothing if there is none or it fails.
std::optional<CString> ChooseBySibling() {
  try {
    auto* const choose = reinterpret_cast<PictureFunction*>(
        LoadFunction(LibraryFileName("kobaltfx"), "OnPictureFileDialog"));
    if (choose) return choose();
  } catch (...) {
    // What went wrong in another's code can't be told; the user can still choose.
  }
  return std::nullopt;
}

}  // namespace

CString ChoosePicture(const char* current) {
  if (const auto chosen = ChooseBySibling()) return *chosen;
  constexpr auto kPictures =
      "画像 files (*.jpg;*.jpeg;*.gif;*.bmp;*.png)|*.jpg;*.jpeg;*.gif;*.bmp;*.png"_sj;
  return ChooseOpenFile("jpg", "", kPictures, current, true);
}

}  // namespace orreryui
