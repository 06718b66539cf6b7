#include "albums/data_file_list.h"

#include "frame/entries.h"
#include "frame/line_file.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 99;

}  // namespace

DataFileList ReadDataFileList(const CString& path) {
  DataFileList list;
  LineReader reader(path, kLineLimit);
  CString line;
  while (list.names.size() < kMostDataFileNames && reader.ReadLine(line)) {
    if (!line.IsEmpty() && line[0] != ';') list.names.push_back(line);
  }
  if (list.names.size() == kMostDataFileNames) list.rest = reader.ReadRest();
  list.complete = reader.IsComplete();
  return list;
}

bool IsDataFileName(const CString& name) {
  return !name.IsEmpty() && name[0] != ';' && name.GetLength() < static_cast<int>(kLineLimit);
}

bool AppendDataFileName(const CString& path, const CString& name) {
  return AppendLine(path, name, IfMissing::kCreate);
}

bool RemoveDataFileName(const CString& path, const DataFileList& shown, std::size_t index) {
  DataFileList list = ReadDataFileList(path);
  const auto name = FindAgain(shown.names, index, list.names);
  if (!list.complete || name == list.names.end()) return false;
  list.names.erase(name);
  std::string content;
  for (const CString& kept : list.names) content.append(kept).append("\r\n");
  return RewriteInPlace(path, content + list.rest);
}

}  // namespace orreryui
