#include "albums/data_file_list.h"

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
  list.complete = !reader.Failed();
  return list;
}

bool AppendDataFileName(const CString& path, const CString& name) {
  return AppendLine(path, name, IfMissing::kCreate);
}

bool RewriteDataFileList(const CString& path, const DataFileList& list) {
  if (!list.complete) return false;
  std::string content;
  for (const CString& name : list.names) content.append(name).append("\r\n");
  return RewriteInPlace(path, content + list.rest);
}

}  // namespace orreryui
