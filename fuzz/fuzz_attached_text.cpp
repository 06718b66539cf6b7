// Attached text files of any bytes: the three texts that are read from one file fit together.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "presentation/attached_text.h"

namespace {

using orreryui::CString;

constexpr std::string_view kHead = "=====   =====\r\n";

void Require(bool holds) {
  if (!holds) std::abort();
}

std::string_view Bytes(const CString& text) {
  return {text, static_cast<std::size_t>(text.GetLength())};
}

std::size_t CountLines(std::string_view text) {
  std::size_t lines = 0;
  for (const char byte : text) lines += byte == '\n' ? 1 : 0;
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const int file = memfd_create("text", 0);
  Require(file >= 0 && write(file, data, size) == static_cast<ssize_t>(size));
  const CString path = ("/proc/self/fd/" + std::to_string(file)).c_str();
  const CString main_text = orreryui::ReadMainText(path);
  const CString memo_text = orreryui::ReadMemo(path);
  const CString preview_text = orreryui::ReadPreview(path);
  close(file);

  const std::string_view main = Bytes(main_text);
  Require(main.empty() ? size == 0 || Bytes(preview_text).starts_with("=====   =====\r\n999\r\n")
                       : main.ends_with("\r\n"));
  Require(!main.starts_with("999\r\n") && main.find("\n999\r\n") == main.npos);
  const std::string_view memo = Bytes(memo_text);
  Require(memo.starts_with(kHead) && memo.ends_with("\r\n"));
  Require(memo.find("\n999\r\n") == memo.npos);
  const std::string_view preview = Bytes(preview_text);
  Require(preview.starts_with(kHead) && preview.ends_with("\r\n"));
  Require(CountLines(preview) <= 17);
  // Without a line of more than 3197 bytes the preview is how the main text begins.
  if (size < 3198 && memo == kHead && CountLines(main) <= 16) {
    Require(preview.substr(kHead.size()).starts_with(main));
  }
  return 0;
}
