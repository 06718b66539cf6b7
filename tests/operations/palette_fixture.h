// Two palettes in a folder, and the editor played on them.
#ifndef ORRERYUI_TESTS_OPERATIONS_PALETTE_FIXTURE_H_
#define ORRERYUI_TESTS_OPERATIONS_PALETTE_FIXTURE_H_

#include <orreryui/orreryui.h>
#include <cstdio>
#include <map>

#include "tests/operations/swatches.h"
#include "tests/support/play.h"

namespace orreryui {

class PaletteTest : public testing::Test {
 protected:
  using Colour = std::map<int, std::uint32_t>;  // by slot; slots that are missing are black

  static constexpr int kNames = 1029;
  static constexpr int kDelete = 1032;
  static constexpr int kEdit = 1111;
  static constexpr int kCheck = 1122;
  static constexpr int kNote = 1119;
  static constexpr int kLake = 0x030201;
  static constexpr int kBack = 0x060504;
  static constexpr char kList[] = "PLTTFILE.DAT";
  static constexpr char kAskOld[] = "配色を更新しますか！";
  static constexpr char kAskNew[] = "配色を登録しますか！";
  static constexpr char kAskUpdate[] = "現在選択中の配色を更新します！";
  static constexpr char kNew[] = "新規登録";
  static constexpr char kHint[] = "中間の標高を無視する時は黒色を指定してください！";

  const std::vector<int> kSlots = {1017, 1018, 1019, 1020, 1021, 1022, 1023,
                                   1024, 1025, 1026, 1030, 1118, 1013};
  const Colour kNatural = {{1, 0x0A0A0A}, {12, 0x0B0B0B}, {2, 0x040302}, {10, 0xFFFEFD}};
  const Colour kWinter = {{1, 0x141414}, {12, 0x151515}, {5, 0x00FF00}, {10, 0xFFFFFF}};

  PaletteTest() {
    folder.Write(kList, List(2));
    folder.Write("Orbis1.plt", Text(kNatural));
    folder.Write("Orbis2.plt", Text(kWinter));
    script.OpensDialog(177);
  }

  int Swatch(std::size_t slot) const { return kSlots[slot - 1]; }

  static std::string NameOf(int index) {
    if (index < 2) return index == 0 ? "自然" : "冬";
    return "name" + std::to_string(index);
  }
  static std::string List(int count) {
    std::string list;
    for (int i = 0; i < count; ++i) {
      list += FromUtf8(NameOf(i)).bytes + "$Orbis" + std::to_string(i + 1) + ".plt\r\n";
    }
    return list;
  }

  // What the swatches show, in the order of kSlots.
  static std::vector<SwatchColour> Colours(const Colour& colours) {
    std::vector<SwatchColour> all(13, 0u);
    for (const auto& [slot, colour] : colours) all[static_cast<std::size_t>(slot) - 1] = colour;
    all[10] = kLake;
    all[12] = kBack;
    return all;
  }

  // The rows of a palette file without captions, as another program might write them.
  static std::string Text(const Colour& colours) {
    static const std::map<int, int> kElevations = {{1, 0},    {12, 1},   {2, 100},  {3, 200},
                                                   {4, 500},  {5, 1000}, {6, 1500}, {7, 2000},
                                                   {8, 2500}, {9, 3000}, {10, 4000}};
    std::string text;
    for (const auto& [slot, colour] : colours) {
      char row[32];
      std::snprintf(row, sizeof row, "%4d %3d %3d %3d\n", kElevations.at(slot), colour & 255u,
                    colour >> 8 & 255u, colour >> 16 & 255u);
      text += row;
    }
    return text;
  }

  // The result in UTF-8.
  std::string Call(ScriptFrontEnd& visit, int selected, const char* editor = "") {
    return ToUtf8(Play(visit, [&] {
      return OnMapPalleteSet(selected, editor, folder.Argument(), 0x777777, kLake, kBack);
    }));
  }

  TestFolder folder;
  ScriptFrontEnd script;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_OPERATIONS_PALETTE_FIXTURE_H_
