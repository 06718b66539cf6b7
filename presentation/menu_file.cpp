#include "presentation/menu_file.h"

#include <bitset>
#include <cstdlib>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "frame/line_file.h"
#include "frame/split.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 200;
constexpr std::size_t kCountedLineLimit = 150;
constexpr int kKeyLength = 3;
constexpr char kSeparator[] = "----------";

bool IsSkipped(const CString& line) { return line.IsEmpty() || line[0] == ';'; }

bool IsHead(const CString& line) { return line.Find("[M") >= 0; }

CString KeyOf(const CString& item) { return item.Left(item.Find('=') + 1); }

// Title and file of a text that isn't empty.
std::pair<CString, CString> SplitEntry(CString text, char separator) {
  if (text.Find(separator) < 0) return {kSeparator, ""};
  const CString title = TakeField(text, separator);
  return {title, text};
}

CString ItemBody(const CString& title, const CString& file) {
  if (title.Left(2) == "--") return title;
  return title.IsEmpty() && file.IsEmpty() ? CString() : title + '@' + file;
}

// The slot that an item line's key names, if there is one.
std::optional<std::size_t> SlotOf(const CString& item) {
  const int number = std::atoi(item.Left(2));
  if (number < 0 || number >= static_cast<int>(kMenuSlots)) return std::nullopt;
  return static_cast<std::size_t>(number);
}

CString GuidemapLine(const CString& title, const CString& file) { return title + ' ' + file; }

void EndLine(std::string& text) {
  if (!text.empty() && !text.ends_with('\n')) text += "\r\n";
}

// What a line is to a section: nothing, its head, the item line of a slot, one of a slot that had
// its line before, or one without a slot.
enum class Role { kNone, kHead, kItem, kDoubled, kWithoutSlot };

// A section of the file of the menus, while the lines of the file go by.
class Section {
 public:
  explicit Section(int number) : number_(number) {}

  // Takes the next line of the file.
  Role Take(const CString& line) {
    if (IsSkipped(line)) return Role::kNone;
    if (IsHead(line)) return TakeHead();
    if (!IsOpen() || line.Find('=') < 0) return Role::kNone;
    return TakeItem(line);
  }

  // Whether the next line may be one of its item lines.
  bool IsOpen() const { return inside_ && items_ < kMenuSlots; }

  Role TakeItem(const CString& line) {
    ++items_;
    const auto slot = SlotOf(line);
    if (!slot) return Role::kWithoutSlot;
    slot_ = *slot;
    const bool had = had_[slot_];
    had_.set(slot_);
    return had ? Role::kDoubled : Role::kItem;
  }

  // Of the last line, if that is an item line of a slot.
  std::size_t slot() const { return slot_; }

  bool HasHead() const { return heads_ > number_; }
  bool HasLine(std::size_t slot) const { return had_[slot]; }
  bool HasRoom(std::size_t lines) const { return items_ + lines <= kMenuSlots; }

 private:
  Role TakeHead() {
    inside_ = heads_++ == number_;
    return inside_ ? Role::kHead : Role::kNone;
  }

  const int number_;
  int heads_ = 0;
  bool inside_ = false;
  std::size_t items_ = 0;
  std::size_t slot_ = 0;
  std::bitset<kMenuSlots> had_;
};

// The file with the slots in their section.
class Rewrite {
 public:
  Rewrite(int section, const MenuTexts& titles, const MenuTexts& files)
      : section_(section), titles_(titles), files_(files) {}

  // Takes the next line of the file, with the bytes that it was read from.
  void Take(const CString& line, std::string_view bytes) {
    const bool continues_line = end_ == content_.size() && !content_.ends_with('\n');
    const Role role = IsOwnItem(line) ? section_.TakeItem(line) : section_.Take(line);
    if (role == Role::kItem) {
      TakeItem(KeyOf(line) + BodyOf(section_.slot()));
    } else if (role == Role::kWithoutSlot) {
      TakeItem(KeyOf(line));
    } else {
      content_ += bytes;
    }
    if (role != Role::kNone || continues_line) end_ = content_.size();
  }

  // Adds the lines that are lacking. False if the section can't hold them.
  bool Complete() {
    const std::string behind = content_.substr(end_);
    content_.resize(end_);
    std::size_t added = 0;
    for (std::size_t slot = 0; slot < kMenuSlots; ++slot) added += AddLacking(slot) ? 1 : 0;
    content_ += behind;
    return section_.HasHead() && section_.HasRoom(added);
  }

  const std::string& Content() const { return content_; }

 private:
  // Whether an entry of the slots looks like a head: the line that an earlier rewrite gave it.
  bool IsOwnItem(const CString& line) const {
    const auto slot = SlotOf(line);
    return section_.IsOpen() && IsHead(line) && slot && line == KeyOf(line) + BodyOf(*slot);
  }

  CString BodyOf(std::size_t slot) const { return ItemBody(titles_[slot], files_[slot]); }

  void TakeItem(const CString& line) { content_.append(line).append("\r\n"); }

  bool AddLacking(std::size_t slot) {
    const CString body = BodyOf(slot);
    if (section_.HasLine(slot) || body.IsEmpty()) return false;
    CString key;
    key.Format("%02d=", static_cast<int>(slot));
    EndLine(content_);
    TakeItem(key + body);
    return true;
  }

  Section section_;
  const MenuTexts& titles_;
  const MenuTexts& files_;
  std::string content_;
  std::size_t end_ = 0;  // of the section's head or item line that came last
};

std::string GuidemapText(const MenuTexts& titles, const MenuTexts& files) {
  std::string text;
  for (std::size_t slot = 0; slot < kMenuSlots; ++slot) {
    if (titles[slot].IsEmpty()) continue;
    text.append(GuidemapLine(titles[slot], files[slot])).append("\r\n");
  }
  return text;
}

bool Fits(const CString& line) { return line.GetLength() < static_cast<int>(kLineLimit); }

}  // namespace

CString MenuFilePath(const CString& folder) { return folder + "SOURCE\\MENUFILE.DAT"; }

CString GuidemapPath(const CString& folder) { return folder + "Guidemap\\Guidemap.DAT"; }

bool ReadMenuSection(const CString& folder, int section, MenuTexts& titles, MenuTexts& files) {
  titles = files = {};
  Section wanted(section);
  LineReader reader(MenuFilePath(folder), kLineLimit);
  CString line;
  while (reader.ReadLine(line)) {
    if (wanted.Take(line) != Role::kItem) continue;
    const CString body = line.Mid(KeyOf(line).GetLength());
    if (body.IsEmpty()) continue;
    std::tie(titles[wanted.slot()], files[wanted.slot()]) = SplitEntry(body, '@');
  }
  return reader.IsComplete();
}

bool WriteMenuSection(const CString& folder, int section, const MenuTexts& titles,
                      const MenuTexts& files) {
  Rewrite rewrite(section, titles, files);
  LineReader reader(MenuFilePath(folder), kLineLimit);
  CString line;
  while (reader.ReadLine(line)) rewrite.Take(line, reader.Bytes());
  return reader.IsComplete() && rewrite.Complete() &&
         ReplaceThroughNewFile(MenuFilePath(folder), folder + "SOURCE\\MENUFILE.NEW",
                               rewrite.Content());
}

bool ReadGuidemap(const CString& folder, MenuTexts& titles, MenuTexts& files) {
  titles = files = {};
  LineReader reader(GuidemapPath(folder), kLineLimit);
  CString line;
  for (std::size_t slot = 0; slot < kMenuSlots && reader.ReadLine(line);) {
    if (IsSkipped(line)) continue;
    std::tie(titles[slot], files[slot]) = SplitEntry(line, ' ');
    ++slot;
  }
  return reader.IsComplete();
}

bool WriteGuidemap(const CString& folder, const MenuTexts& titles, const MenuTexts& files) {
  LineReader reader(GuidemapPath(folder), kLineLimit);
  std::string content;
  CString line;
  for (std::size_t entries = 0; entries < kMenuSlots && reader.ReadLine(line);) {
    if (!IsSkipped(line)) {
      ++entries;
    } else if (entries == 0 && !line.IsEmpty()) {
      content += reader.Bytes();
    }
  }
  EndLine(content);
  content += GuidemapText(titles, files) + reader.ReadRest();
  return reader.IsComplete() &&
         ReplaceThroughNewFile(GuidemapPath(folder), folder + "Guidemap\\MENUFILE.NEW", content);
}

bool FitsInMenuSection(const CString& title, const CString& file) {
  return Fits("00=" + ItemBody(title, file));
}

bool FitsInGuidemap(const CString& title, const CString& file) {
  const CString line = GuidemapLine(title, file);
  return Fits(line) && line[0] != ';';
}

std::array<std::optional<int>, kMenus> CountMenuFiles(const CString& folder) {
  std::array<std::optional<int>, kMenus> counts;
  LineReader reader(MenuFilePath(folder), kCountedLineLimit);
  CString line;
  std::size_t heads = 0;
  int files = 0;
  while (reader.ReadLine(line)) {
    if (IsSkipped(line)) continue;
    if (IsHead(line)) {
      if (heads >= 1 && heads < kMenus) counts[heads - 1] = files;
      ++heads;
      files = 0;
    } else if (heads > 0 && line.Mid(kKeyLength).Find('@') >= 0) {
      ++files;
    }
  }
  counts.back() = files;
  return counts;
}

}  // namespace orreryui
