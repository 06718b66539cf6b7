// Attached text files of any bytes: the three texts that are read from one file fit together.
#include <algorithm>

#include "fuzz/input.h"
#include "fuzz/one_file.h"
#include "presentation/attached_text.h"

namespace {

using orreryui::CString;

constexpr std::string_view kHead = "=====   =====\r\n";

std::string_view Bytes(const CString& text) {
  return {text, static_cast<std::size_t>(text.GetLength())};
}

}  // namespace

void Check(std::string_view input) {
  orreryui::OneFile files(input);
  const orreryui::ScopedFileSystem scope(files);
  const CString main_text = orreryui::ReadMainText("a.txt");
  const CString memo_text = orreryui::ReadMemo("a.txt");
  const CString preview_text = orreryui::ReadPreview("a.txt");

  const std::string_view main = Bytes(main_text);
  Require(main.empty()
              ? input.empty() || Bytes(preview_text).starts_with("=====   =====\r\n999\r\n")
              : main.ends_with("\r\n"));
  Require(!main.starts_with("999\r\n") && main.find("\n999\r\n") == main.npos);
  const std::string_view memo = Bytes(memo_text);
  Require(memo.starts_with(kHead) && memo.ends_with("\r\n"));
  Require(memo.find("\n999\r\n") == memo.npos);
  const std::string_view preview = Bytes(preview_text);
  Require(preview.starts_with(kHead) && preview.ends_with("\r\n"));
  Require(std::ranges::count(preview, '\n') <= 17);
  // Without a line of more than 3197 bytes the preview is how the main text begins.
  if (input.size() < 3198 && memo == kHead && std::ranges::count(main, '\n') <= 16) {
    Require(preview.substr(kHead.size()).starts_with(main));
  }
}
