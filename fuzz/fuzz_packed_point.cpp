// Any line packs and any packed point unpacks. No byte of a line is lost on the way, and a line
// that holds no separator of the packed form comes back field by field.
#include <string>

#include "fuzz/input.h"
#include "points/packed_point.h"

namespace {

using orreryui::CString;
using orreryui::DataLine;

int Count(const CString& text, char byte) {
  int count = 0;
  for (int i = 0; i < text.GetLength(); ++i) count += text[i] == byte;
  return count;
}

// Whether each byte that isn't ASCII belongs to a whole character, so that none takes the separator
// behind it along.
bool IsWellFormed(const CString& text) {
  for (int i = 0; i < text.GetLength(); ++i) {
    const bool is_pair = orreryui::CharacterLength(text[i], text[i + 1]) == 2;
    if (orreryui::IsLeadByte(text[i]) && !is_pair) return false;
    i += is_pair;
  }
  return true;
}

CString Join(const DataLine& data, const CString& first_file, const CString& second_file) {
  const CString head =
      data.place + ' ' + data.latitude + ' ' + data.longitude + ' ' + data.item + ' ' + first_file;
  return second_file.IsEmpty() ? head : head + ' ' + second_file;
}

void CheckLine(const CString& line) {
  const CString packed = orreryui::PackPointLine(line);
  const DataLine data = orreryui::UnpackPoint(packed);
  const int blanks = Count(line, ' ');
  if (blanks >= 4) Require(packed.GetLength() == line.GetLength());
  const bool holds_separators = line.Find('#') >= 0 || line.Find('@') >= 0 || line.Find('$') >= 0;
  if (blanks < 4 || holds_separators || !IsWellFormed(line)) return;
  // Of an empty second file nothing is left but its blank.
  if (line[line.GetLength() - 1] == ' ') return;
  Require(Join(data, data.picture, data.text_file) == line ||
          Join(data, data.text_file, data.picture) == line);
}

}  // namespace

void Check(std::string_view input) {
  const CString text = std::string(input).c_str();
  CheckLine(text);
  orreryui::UnpackPoint(text);
  orreryui::PointLabel(text);
}
