#include "platform/system/path.h"

#include <orreryui/cstring.h>

#include <algorithm>
#include <vector>

#include "platform/strings/code_page_932.h"
#include "platform/system/file_system.h"

namespace orreryui {
namespace {

std::size_t CharacterAt(std::string_view text, std::size_t position) {
  const char next = position + 1 < text.size() ? text[position + 1] : '\0';
  return static_cast<std::size_t>(CharacterLength(text[position], next));
}

bool IsSeparator(char byte) { return byte == '\\' || byte == '/'; }

bool HasDrive(std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return false;
  return (path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z');
}

std::vector<std::string_view> SplitNames(std::string_view path) {
  std::vector<std::string_view> names;
  std::size_t begin = 0;
  for (std::size_t i = 0; i <= path.size(); i += i < path.size() ? CharacterAt(path, i) : 1) {
    if (i < path.size() && !IsSeparator(path[i])) continue;
    if (i > begin) names.push_back(path.substr(begin, i - begin));
    begin = i + 1;
  }
  return names;
}

// Makes the ASCII and full-width letters of a text in code page 932 small.
std::string Fold(std::string_view bytes) {
  constexpr char kLead = '\x82';
  std::string folded(bytes);
  for (std::size_t i = 0; i < folded.size(); i += CharacterAt(folded, i)) {
    char& first = folded[i];
    if (first >= 'A' && first <= 'Z') first = static_cast<char>(first - 'A' + 'a');
    if (first != kLead || CharacterAt(folded, i) != 2) continue;
    char& second = folded[i + 1];
    // Capitals are 8260 to 8279, small letters 8281 to 829A.
    if (second >= '\x60' && second <= '\x79') second = static_cast<char>(second + 0x21);
  }
  return folded;
}

// One name of a path, in the two ways in which a disk may have it.
class Name {
 public:
  explicit Name(std::string_view bytes) : raw_(bytes), utf8_(ToUtf8(bytes)) {
    // Bytes that make no character can't be told in UTF-8.
    if (!FromUtf8(utf8_).refused.empty()) utf8_ = raw_;
  }

  const std::string& Spelled() const { return utf8_; }
  const std::string& Raw() const { return raw_; }

  // The first of the names, in byte order, that differs only by case, or the empty string. UTF-8
  // comes before the bytes of the code page.
  std::string FindAmong(const std::vector<std::string>& names) const {
    const std::string folded = Fold(raw_);
    const std::string folded_utf8 = Fold(FromUtf8(utf8_).bytes);
    std::string found;
    std::string found_raw;
    for (const std::string& name : names) {
      if (IsLessOrFirst(name, found) && MatchesUtf8(name, folded_utf8)) found = name;
      if (IsLessOrFirst(name, found_raw) && MatchesRaw(name, folded)) found_raw = name;
    }
    return found.empty() ? found_raw : found;
  }

 private:
  static bool IsLessOrFirst(const std::string& name, const std::string& found) {
    return found.empty() || name < found;
  }
  // False for most names of a folder, at no cost: no character gets longer by its encoding.
  static bool MayMatch(const std::string& name, const std::string& folded) {
    const std::string first = Fold(name.substr(0, 1));
    return name.size() >= folded.size() && (first >= "\x80" || first[0] == folded[0]);
  }
  static bool MatchesRaw(const std::string& name, const std::string& folded) {
    return MayMatch(name, folded) && Fold(name) == folded;
  }
  static bool MatchesUtf8(const std::string& name, const std::string& folded) {
    if (!MayMatch(name, folded)) return false;
    const Encoded encoded = FromUtf8(name);
    return encoded.refused.empty() && Fold(encoded.bytes) == folded;
  }

  std::string raw_;
  std::string utf8_;
};

std::string Below(const std::string& folder, const std::string& name) {
  const bool glue = !folder.empty() && folder.back() != '/';
  return glue ? folder + '/' + name : folder + name;
}

bool Exists(const std::string& path) { return CurrentFileSystem().Stat(path).has_value(); }

ListedOnce* outermost = nullptr;

struct Found {
  std::string native;
  bool sure = true;  // false: a folder that may hold the name couldn't be read
};

// Goes down from folder to folder, as far as there are any.
Found FindBelow(std::string native, const std::vector<Name>& names) {
  bool found = true;
  bool sure = true;
  for (const Name& name : names) {
    std::string next = Below(native, name.Spelled());
    if (found && !Exists(next)) {
      std::string other = name.Raw();
      if (!Exists(Below(native, other))) {
        const auto there = ListedOnce::NamesIn(native.empty() ? "." : native);
        sure = there != nullptr;
        other = sure ? name.FindAmong(*there) : std::string();
      }
      found = !other.empty() && Exists(Below(native, other));
      if (found) next = Below(native, other);
    }
    native = std::move(next);
  }
  return {native, sure};
}

Found Find(std::string_view path) {
  if (HasDrive(path)) path.remove_prefix(2);
  const std::string root(!path.empty() && IsSeparator(path[0]) ? 1 : 0, '/');
  std::vector<Name> names;
  std::string spelled = root;
  for (const std::string_view bytes : SplitNames(path)) {
    spelled = Below(spelled, names.emplace_back(bytes).Spelled());
  }
  return Exists(spelled) ? Found{spelled} : FindBelow(root, names);
}

}  // namespace

std::string NameToCreate(std::string_view path) {
  if (HasDrive(path)) path.remove_prefix(2);
  const auto names = SplitNames(path);
  return names.empty() ? std::string() : Name(names.back()).Spelled();
}

ListedOnce::ListedOnce() {
  if (!outermost) outermost = this;
}

ListedOnce::~ListedOnce() {
  if (outermost == this) outermost = nullptr;
}

ListedOnce::Names ListedOnce::NamesIn(const std::string& folder) {
  if (outermost && outermost->listed_.contains(folder)) return outermost->listed_.at(folder);
  auto listed = CurrentFileSystem().List(folder);
  if (!listed) return nullptr;
  auto names = std::make_shared<const std::vector<std::string>>(std::move(*listed));
  if (outermost) outermost->listed_.emplace(folder, names);
  return names;
}

std::string NativePath(std::string_view path) { return Find(path).native; }

bool IsMissing(std::string_view path) {
  const Found found = Find(path);
  return found.sure && CurrentFileSystem().IsMissing(found.native);
}

bool Exists(const char* path) { return CurrentFileSystem().Stat(NativePath(path)).has_value(); }

bool LeadsOut(const char* path) {
  if (HasDrive(path) || IsSeparator(path[0])) return true;
  const auto names = SplitNames(path);
  return std::find(names.begin(), names.end(), "..") != names.end();
}

std::string RefusedInPath(const std::string& native) {
  for (const char* const reserved : {"\\", "|"}) {
    if (native.find(reserved) != std::string::npos) return reserved;
  }
  return FromUtf8(native).refused;
}

std::optional<std::string> PathFromNative(const std::string& native) {
  if (!RefusedInPath(native).empty()) return std::nullopt;
  std::string path = native;
  std::replace(path.begin(), path.end(), '/', '\\');
  return FromUtf8(path).bytes;
}

}  // namespace orreryui
