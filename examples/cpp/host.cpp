// host FOLDER: asks for one of the data files that are listed in the folder, the first one being
// chosen so far, and says what the user decided. Ends with 1 if the user gave up, with 2 if it is
// called wrongly.
//
//   c++ -std=c++17 host.cpp -o host $(pkg-config --cflags --libs orreryui)
#include <orreryui/orreryui.h>
#include <orreryui/utf8.h>

#include <cstdio>
#include <string>

int main(int argc, char** argv) {
  using namespace orreryui;
  if (argc != 2) return 2;
  const Encoded folder = FromUtf8(std::string(argv[1]) + '/');
  if (!folder.refused.empty()) {
    std::fprintf(stderr, "A name in code page 932 can't have %s\n", folder.refused.c_str());
    return 2;
  }

  const CString result = OnDataSourceSet(1, "on", folder.bytes.c_str());
  if (result.IsEmpty()) {
    std::puts("The user gave up, or no window could be shown.");
    return 1;
  }

  // entry|common area|name, where the name may hold further bars
  const CString entry = result.Left(result.Find('|'));
  const CString rest = result.Mid(entry.GetLength() + 1);
  const CString common_area = rest.Left(rest.Find('|'));
  const CString name = rest.Mid(common_area.GetLength() + 1);
  std::printf("Entry %s, %s; common area: %s\n", ToUtf8(entry).c_str(), ToUtf8(name).c_str(),
              ToUtf8(common_area).c_str());
}
