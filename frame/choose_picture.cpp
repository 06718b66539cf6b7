#include "frame/choose_picture.h"

#include "frame/choose_open_file.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui {

CString ChoosePicture(const char* current) {
  return ChooseOpenFile("bmp", "*.bmp", "画像 files (*.bmp)|*.bmp"_sj, current);
}

}  // namespace orreryui
