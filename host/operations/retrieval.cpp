#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/name_page.h"
#include "templates/result_file.h"
#include "templates/retrieval_sheet.h"

namespace orreryui::host {

using namespace retrieval_sheet;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kFileDialog = result_file::kTemplate.number;

constexpr int kRowOfNature = 2;
constexpr int kRowOfWaters = 1;
constexpr int kRowOfRivers = 1;
constexpr int kRowOfTokyo = 12;

// The places of fields in the result.
enum Place : std::size_t {
  kKind = 0,
  kLargeCode = 3,
  kSmallCode = 5,
  kPrefecture = 6,
  kLargeName = 11,
  kPrefectureName = 16
};

// The names that codes stand for. Those of facilities begin one place earlier.
std::string NameOfCode(const std::vector<std::string>& values, std::size_t place) {
  if (values[place] == "-1") return "";
  if (place == kPrefecture) return values[kPrefectureName];
  if (place < kLargeCode || place > kSmallCode) return "";
  const bool facilities = values[kKind] == "1";
  if (facilities && place == kLargeCode) return "公共施設";
  return values[kLargeName + place - kLargeCode - (facilities ? 1 : 0)];
}

}  // namespace

Operation GnpfRetrieveSet() {
  Operation operation;
  operation.name = "OnGnpfRetrieveSet";
  operation.purpose = "Set up a retrieval of place names or public facilities";
  operation.arguments = {
      {"RETRIEVAL-VIEW", "100 * character size + 10 * place-name display + the tab to open", "110"},
      {"FILE-NEW", "0 to add to the result file, 1 for a new one", "0"},
      {"FILE-FORMAT", "0 dat, 1 ymd, 2 csv", "0"},
      {"ELEVATION", "provisional elevation of the points", "-9999"},
      {"RETRIEVAL-KIND", "0 place names, 1 public facilities", "0"},
      {"LARGE", "code of the large class, -1 for none", "-1"},
      {"MIDDLE", "code of the middle class, or of the large one of facilities", "-1"},
      {"SMALL", "code of the small class", "-1"},
      {"PREFECTURE", "the prefecture's code less 1, -1 for none", "-1"},
      {"MESH", "standard-area mesh code", ""},
      {"WORD", "what a name must contain", ""},
      {"RETRIEVAL-TEXTS", "path of the result file and names of three classes", ""},
  };
  operation.fields = {
      {"kind", "0: place names, 1: public facilities", "RETRIEVAL-KIND"},
      {"new file", "0: add to the result file, 1: a new one", "FILE-NEW"},
      {"format", "0: dat, 1: ymd, 2: csv", "FILE-FORMAT"},
      {"large", "code of the large class, -1: any", "LARGE"},
      {"middle", "code of the middle class, or of the large one of facilities", "MIDDLE"},
      {"small", "code of the small class", "SMALL"},
      {"prefecture", "its code less 1, -1: any", "PREFECTURE"},
      {"place names", "0: hidden, 1: on the 1x1 map, 2: there and on the wide one, 3: enlarged map",
       "RETRIEVAL-VIEW", 10},
      {"character size", "0: small, 1: medium, 2: large", "RETRIEVAL-VIEW", 100},
      {"tab", "the one that was open", "RETRIEVAL-VIEW", 1},
      {"result file", "its path; empty: display only", "RETRIEVAL-TEXTS"},
      {"class name 1", "of the large class", "RETRIEVAL-TEXTS"},
      {"class name 2", "of the middle class, or of the small one of facilities", "RETRIEVAL-TEXTS"},
      {"class name 3", "of the small class of place names", "RETRIEVAL-TEXTS"},
      {"mesh", "standard-area mesh code", "MESH"},
      {"prefecture code", "or what was typed in its place"},
      {"prefecture name", "of the one that was picked"},
      {"word", "what a name must contain", "WORD"},
  };
  operation.explain = &NameOfCode;
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromCombo(name_page::kAdmin, kRowOfTokyo);
                        hand.PickFromCombo(name_page::kLarge, kRowOfNature);
                        hand.PickFromCombo(name_page::kMiddle, kRowOfWaters);
                        hand.PickFromCombo(name_page::kSmall, kRowOfRivers);
                        hand.Type(name_page::kWord, "川");
                        hand.TakePicture();
                        hand.PickTab(kTabs, 1);
                        hand.TakePicture();
                        hand.PickTab(kTabs, 2);
                        hand.TakePicture();
                        hand.PickTab(kTabs, 0);
                        hand.Click(kSave);
                      }},
                     {kFileDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.GiveUp();
                      }},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  operation.expected_result =
      "0|0|0|3|2|2|12|1|1|0||自然地名|湖沼･河川･湖･岸地形|河川･用水･運河||13|東京都|川";
  return Describe(&OnGnpfRetrieveSet, operation);
}

}  // namespace orreryui::host
