#include <orreryui/orreryui.h>
#include "tests/operations/swatches.h"
#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr char kList[] = "PLTTFILE.DAT";
constexpr std::uint32_t kLake = 0x123456;
const std::vector<int> kSwatches = {1109, 1100, 1101, 1102, 1103, 1104,
                                    1105, 1106, 1107, 1108, 1110};
// The sea, then 0 m to 4,000 m as level * 1, 0, 0.
constexpr char kThreeRows[] =
    ";comment\r\n   0   0   0 200\r\n   1   1   0   0\r\n4000 255   0   0    4,000m\r\n";
const std::vector<SwatchColour> kThreeRowColours = {0xC80000, 1,   6,   13,  33,   66,
                                                    100,      133, 166, 200, kLake};

class LegendTest : public testing::Test {
 protected:
  void Call(int palette, std::uint32_t lake, const char* name,
            const std::vector<SwatchColour>& colours) {
    ScriptFrontEnd script;
    script.OpensDialog(158).ShowsTitle("  凡例（標高の区分)").Shows(1121, name);
    script.Does(ShowsSwatches(kSwatches, colours)).Click(1);
    Play(script, [&] { OnLegendElevetion(palette, folder.Argument(), static_cast<int>(lake)); });
  }

  TestFolder folder;
  const std::vector<SwatchColour> empty = std::vector<SwatchColour>(11);
};

TEST_F(LegendTest, ShowsTheBandsBetweenTheRowsOfThePaletteAsItWasAtTheStart) {
  folder.Write(kList, std::string("x$none\r\n自然|色$Orbis2.plt\r\n"_sj));
  folder.Write("ORBIS2.PLT", kThreeRows);
  std::vector<SwatchColour> other_lake = kThreeRowColours;
  other_lake.back() = 0xFF0000;
  Call(1, 0xFFFF0000, "自然|色", other_lake);
  ScriptFrontEnd script;
  script.OpensDialog(158).Does(Silently([this] { folder.Write("ORBIS2.PLT", ""); }));
  script.Paint().Does(ShowsSwatches(kSwatches, kThreeRowColours)).Escape();
  Play(script, [&] { OnLegendElevetion(1, folder.Argument(), static_cast<int>(kLake)); });
}

TEST_F(LegendTest, WithoutAPaletteTheSwatchesAreEmpty) {
  std::vector<SwatchColour> lake_only = empty;
  lake_only.back() = kLake;
  Call(0, kLake, "", empty);
  folder.Write(kList, "a$none\r\n\r\nc$p\r\n");
  folder.Write("p", kThreeRows);
  Call(0, kLake, "a", lake_only);
  Call(1, kLake, "", empty);
  Call(2, kLake, "c", kThreeRowColours);
  Call(3, kLake, "", empty);
  Call(-1, kLake, "", empty);
  folder.Write(kList, "a$none\r\nc$p");
  Call(99, kLake, "c", kThreeRowColours);
}

}  // namespace
}  // namespace orreryui
