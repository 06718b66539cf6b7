#include "presentation/attached_text.h"

#include <string>
#include <string_view>
#include <utility>

#include "frame/line_file.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 3199;
constexpr std::size_t kPreviewLineLimit = 3198;
constexpr int kPreviewLines = 16;
constexpr std::string_view kMemoMark = "999";
constexpr std::string_view kHeadLine = "=====   =====";

// Joins lines to a text, by blocks: a CString for each line would cost more than reading it.
class TextBuilder {
 public:
  // False once the text is as long as it may get.
  bool Add(std::string_view line) {
    block_.append(line).append("\r\n");
    if (block_.size() >= kBlockSize) Flush();
    return text_.GetLength() < kMostBytes;
  }

  CString Take() {
    Flush();
    return std::move(text_);
  }

 private:
  static constexpr std::size_t kBlockSize = 65536;
  static constexpr int kMostBytes = 1 << 30;

  void Flush() {
    text_ += block_.c_str();
    block_.clear();
  }

  CString text_;
  std::string block_;
};

}  // namespace

CString ReadMainText(const CString& path) {
  TextBuilder text;
  LineReader reader(path, kLineLimit);
  std::string_view line;
  while (reader.ReadLine(line) && line != kMemoMark && text.Add(line)) {
  }
  return text.Take();
}

CString ReadMemo(const CString& path) {
  TextBuilder text;
  text.Add(kHeadLine);
  LineReader reader(path, kLineLimit);
  std::string_view line;
  while (reader.ReadLine(line) && line != kMemoMark) {
  }
  while (reader.ReadLine(line) && (line == kMemoMark || text.Add(line))) {
  }
  return text.Take();
}

CString ReadPreview(const CString& path) {
  TextBuilder text;
  text.Add(kHeadLine);
  LineReader reader(path, kPreviewLineLimit);
  std::string_view line;
  for (int count = 0; count < kPreviewLines && reader.ReadLine(line); ++count) text.Add(line);
  return text.Take();
}

}  // namespace orreryui
