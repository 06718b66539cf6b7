#include "routes/master_list.h"

#include "frame/entries.h"
#include "frame/line_file.h"
#include "frame/split.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 200;

MasterList ReadAsItStands(const CString& path) {
  LineReader reader(path, kLineLimit);
  MasterList list;
  CString line;
  while (list.entries.size() < kMostMaps && reader.ReadLine(line)) {
    if (!line.IsEmpty() && line[0] != ';') list.entries.push_back(line);
  }
  list.rest = reader.ReadRest();
  list.opened = reader.IsOpen();
  list.complete = reader.IsComplete();
  return list;
}

}  // namespace

CString MasterListPath(const CString& folder, MapKind kind) {
  return folder + (kind == MapKind::kRoute ? "RoutMstr.dat" : "AreaMstr.dat");
}

MasterList ReadMasterList(const CString& path) {
  const bool finished = FinishChanges(path);
  MasterList list = ReadAsItStands(path);
  list.complete = list.complete && finished;
  return list;
}

MasterList ReadMasterList(const FileChanges&, const CString& path) { return ReadAsItStands(path); }

MasterEntry SplitMasterEntry(const CString& line) {
  CString path = line;
  const CString name = TakeField(path, '@');
  return {name, path};
}

CString JoinMasterEntry(const MasterEntry& entry) { return entry.name + '@' + entry.path; }

CString MasterEntryLabel(const CString& entry) { return TextBefore(entry, '@'); }

bool IsMasterEntry(const MasterEntry& entry) {
  const CString line = JoinMasterEntry(entry);
  const int at = line.Find('@');
  return line[0] != ';' && line.GetLength() < static_cast<int>(kLineLimit) && at >= 0 &&
         at <= entry.name.GetLength() && FirstLine(line) == line;
}

bool AppendMasterEntry(FileChanges& changes, const CString& path, const MasterEntry& entry) {
  LineReader reader(path, kLineLimit);
  std::string content = reader.ReadRest();
  if (!reader.IsComplete() || !IsMasterEntry(entry)) return false;
  if (!content.empty() && !content.ends_with('\n')) content += "\r\n";
  return changes.Commit(content + std::string(JoinMasterEntry(entry)) + "\r\n");
}

bool RewriteMasterList(FileChanges& changes, const MasterList& list,
                       std::optional<std::size_t> left_out) {
  std::string content;
  for (std::size_t i = 0; i < list.entries.size(); ++i) {
    if (i != left_out) content.append(list.entries[i]).append("\r\n");
  }
  return changes.Commit(content + list.rest);
}

}  // namespace orreryui
