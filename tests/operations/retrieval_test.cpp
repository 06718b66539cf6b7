#include <gmock/gmock.h>
#include <orreryui/orreryui.h>

#include <climits>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include "tests/support/faulty_file_system.h"
#include "tests/support/play.h"
#include "tests/support/stopped_clock.h"

namespace orreryui {
namespace {

constexpr int kTabs = 1149, kDisplayOnly = 1152, kSave = 1153;
constexpr int kPanel = 175, kFacts = 1151, kAppend = 1154, kNew = 1155, kDat = 1156, kCsv = 1158;
constexpr int kMiddle = 1002, kLargeCode = 1010, kMiddleCode = 1011, kSmallCode = 1012;
constexpr int kFacilityLargeCode = 1015, kFacilitySmallCode = 1016;

// The controls that both pages of conditions have.
struct Page {
  int tab, mesh, admin, large, small, word, clear;
};
constexpr Page kNames = {0, 1007, 1005, 1001, 1003, 1004, 1032};
constexpr Page kFacilities = {1, 1019, 1020, 1017, 1018, 1022, 1021};

// What the host passes in, in UTF-8.
struct Given {
  int view = 110, file_new = 0, format = 0, elevation = -9999, kind = 0;
  int large = -1, middle = -1, small = -1, prefecture = -1;
  std::string mesh = "", word = "", texts = "";
};

using Fields = std::vector<std::string>;

Fields FieldsOf(const std::string& result) {
  Fields fields;
  std::istringstream rest(result + "|");
  for (std::string field; std::getline(rest, field, '|');) fields.push_back(field);
  return fields;
}

CString Bytes(const std::string& text) { return FromUtf8(text).bytes.c_str(); }

class RetrievalTest : public testing::Test {
 protected:
  std::string Call(const Given& g = {}) {
    return ToUtf8(Play(script, [&] {
      return OnGnpfRetrieveSet(g.view, g.file_new, g.format, g.elevation, g.kind, g.large, g.middle,
                               g.small, g.prefecture, Bytes(g.mesh), Bytes(g.word), Bytes(g.texts));
    }));
  }

  ScriptFrontEnd& Opens() { return (script = ScriptFrontEnd()).OpensDialog(170); }
  // What follows is done on the page of this tab.
  ScriptFrontEnd& OpensOn(int tab) { return Opens().OnPage(kTabs, tab); }
  std::string Search(const Given& given = {}) {
    script.OnSheet().Click(1);
    return Call(given);
  }

  ScriptFrontEnd script;
};

TEST_F(RetrievalTest, RiversOfAPrefecture) {
  Opens().ShowsTitle(" 数値地図25000(地名・公共施設)").OnPage(kTabs, 0);
  script.Pick(kNames.admin, 12).Shows(kNames.admin, "東京都");
  script.Pick(kNames.large, 2).Shows(kLargeCode, " 3").Shows(kMiddleCode, "");
  script.Pick(kMiddle, 1).Shows(kMiddleCode, " 2").Pick(kNames.small, 3).Shows(kSmallCode, " 5");
  script.Pick(kNames.small, 1).Shows(kSmallCode, " 2").Type(kNames.word, "川").Enter();
  EXPECT_EQ(Call(),
            "0|0|0|3|2|2|12|1|1|0||自然地名|湖沼･河川･湖･岸地形|河川･用水･運河||13|東京都|川");
}

TEST_F(RetrievalTest, APickEmptiesTheCodesBelowItAndLeavesTheirNames) {
  OpensOn(0).Pick(kNames.large, 2).Pick(kMiddle, 1).Pick(kNames.small, 4);
  script.Pick(kNames.large, 5).Shows(kLargeCode, " 7").Shows(kMiddleCode, "").Shows(kSmallCode, "");
  script.ShowsRows(kMiddle, {"建物"}).Shows(kNames.small, "河原･洲･瀬(陸部)");
  EXPECT_EQ(Search(), "0|0|0|7|-1|-1|-1|1|1|0||公共施設|湖沼･河川･湖･岸地形|河原･洲･瀬(陸部)||||");

  // A small class from the list of a class that isn't chosen any more.
  OpensOn(0).Pick(kNames.large, 2).Pick(kMiddle, 1).Pick(kNames.large, 5).Pick(kNames.small, 8);
  script.Shows(kSmallCode, "60").Pick(kMiddle, 0).Shows(kMiddleCode, " 3").Shows(kSmallCode, "");
  script.Pick(kNames.small, 8).Shows(kSmallCode, "14").Pick(kNames.large, 1).Pick(kMiddle, 2);
  script.ShowsRows(kNames.small, {}).Shows(kNames.small, "");
  EXPECT_EQ(Search(), "0|0|0|2|3|-1|-1|1|1|0||居住地名|個々の名称(字及び通称)|動植物園||||");

  OpensOn(1).Pick(kFacilities.large, 0).Shows(kFacilityLargeCode, "11");
  script.Pick(kFacilities.small, 5).Shows(kFacilitySmallCode, " 7").Pick(kFacilities.large, 4);
  script.Shows(kFacilitySmallCode, "").ShowsRows(kFacilities.small, {"消防本部", "消防署"});
  EXPECT_EQ(Search({.view = 1}), "1|0|0|7|15|-1|-1|0|0|1||消防署|総理府|||||");
}

TEST_F(RetrievalTest, ClearLeavesTheWordTheNamesAndTheLists) {
  const auto fill_and_clear = [&](const Page& page) {
    script.Type(page.mesh, "5339").Type(page.word, "ソ|").Pick(page.admin, 46).Click(page.clear);
    for (const int id : {page.mesh, page.admin, page.large, page.small}) script.Shows(id, "");
  };
  OpensOn(0).Pick(kNames.large, 5).Pick(kMiddle, 0).Pick(kNames.small, 9);
  fill_and_clear(kNames);
  for (const int id : {kLargeCode, kMiddleCode, kSmallCode, kMiddle}) script.Shows(id, "");
  script.Pick(kNames.small, 0).Shows(kSmallCode, "60").Pick(kMiddle, 0).Shows(kMiddleCode, " 3");
  EXPECT_EQ(Search(),
            "0|0|0|-1|3|-1|-1|1|1|0||公共施設|建物|山小屋･ヒュッテ･ロッヂ･避難小屋|||沖縄県|ソ|");

  OpensOn(1).Pick(kFacilities.large, 7).Pick(kFacilities.small, 1).Shows(kFacilitySmallCode, " 4");
  fill_and_clear(kFacilities);
  script.Shows(kFacilities.word, "ソ|").Pick(kFacilities.small, 1).Shows(kFacilitySmallCode, "60");
  EXPECT_EQ(Search({.view = 1}), "1|0|0|7|-1|60|-1|0|0|1||郵便局|簡易郵便局||||沖縄県|ソ|");
}

TEST_F(RetrievalTest, TypedTextsCountWhenTheFocusLeavesThem) {
  const std::string longest(10000, 'x');
  for (const Page& page : {kNames, kFacilities}) {
    OpensOn(page.tab).Type(page.word, longest).Type(page.mesh, "53|39").Type(page.admin, "ソ13");
    script.Type(page.large, page.tab == 0 ? "公共施設" : "国の機関").Type(page.small, "島");
    const std::string result = Search({.view = page.tab});
    EXPECT_TRUE(result.starts_with(page.tab == 0 ? "0|0|0|-1|-1|-1|" : "1|0|0|7|-1|-1|")) << result;
    EXPECT_TRUE(result.ends_with("||||53|39|ソ13||" + longest)) << page.tab;

    // What is typed behind a pick changes nothing.
    OpensOn(page.tab).Pick(page.admin, 0).Type(page.admin, "99").Focus(page.mesh);
    EXPECT_TRUE(Search({.view = page.tab}).ends_with("||||1|北海道|")) << page.tab;
  }
}

TEST_F(RetrievalTest, WhatIsPassedInComesBack) {
  const std::string longest(10000, 'y');
  const std::string most = "2147483647", least = "-2147483648", no_codes = "-1|-1|-1|-1|";
  const std::pair<Given, std::string> cases[] = {
      {{230, 1, 2, 5, 0, 3, 2, 5, 12, "53", "川", "c:\\a.csv|大|中|小"},
       "0|1|2|3|2|5|12|3|2|0|c:\\a.csv|大|中|小|53|13|東京都|川"},
      {{231, 1, 2, 5, 1, 3, 11, 5, 0, "53", "署", "p|大|小|x"},
       "1|1|2|7|11|5|0|3|2|1|p|大|小||53|1|北海道|署"},
      // On the page of the display the kind stays, even one that is none.
      {{2, 0, 0, 0, 1, -1, 18, 4, 46}, "1|0|0|7|18|4|46|0|0|2||||||47|沖縄県|"},
      {{12, 0, 0, 0, 9, 1, 2, 3, 4, "m", "w", "p|a|b|c|d"}, "9|0|0|1|2|3|4|1|0|2|p|a|b|c|d|m|||w"},
      // The page that is open has no conditions of the other kind.
      {{0, 0, 0, 0, 1, 1, 11, 3, 4, "m", "w", "p|a|b|c"}, "0|0|0|7|-1|-1|-1|0|0|0|p|||||||"},
      // Texts with fewer bars than three, or with more.
      {{.texts = "p"}, "0|0|0|" + no_codes + "1|1|0||||p||||"},
      {{.texts = "ソ|b"}, "0|0|0|" + no_codes + "1|1|0|ソ|||b||||"},
      {{.mesh = longest, .word = "ー|ポ", .texts = "|||a|b"},
       "0|0|0|" + no_codes + "1|1|0||||a|b|" + longest + "|||ー|ポ"},
      // Numbers that mean nothing.
      {{999, 2, 3, 0, 0, 6, 0, 60, 47}, "0|2|3|6|0|60|47|9|9|0||||||||"},
      {{-2, -1, -1, -1, 0, 0, 0, 0, -2}, "0|-1|-1|0|0|0|-2|0|0|0||||||||"},
      {{INT_MAX, INT_MAX, INT_MIN, INT_MAX, 0, INT_MAX, INT_MIN, 1, INT_MAX},
       "0|" + most + "|" + least + "|" + most + "|" + least + "|1|" + most +
           "|4|21474836|0||||||||"},
      {{INT_MIN, 0, 0, INT_MIN, INT_MIN, 1, 1, 1, 1},
       "0|0|0|" + no_codes + "-4|-21474836|0||||||||"},
      {{2, 0, 0, 0, INT_MAX, 1, 1, 1, INT_MIN}, most + "|0|0|1|1|1|" + least + "|0|0|2||||||||"},
  };
  for (const auto& [given, result] : cases) {
    Opens().ShowsCheck(kDisplayOnly, true).Click(1);
    EXPECT_EQ(Call(given), result);
  }
}

TEST_F(RetrievalTest, AnEarlierChoiceShowsItsNamesAsTexts) {
  OpensOn(0).Shows(kNames.large, "大").Shows(kMiddle, "中").Shows(kNames.small, "");
  script.Shows(kNames.mesh, "53").Shows(kNames.word, "川").ShowsSelection(kNames.admin, 1);
  script.Shows(kLargeCode, "").ShowsRows(kMiddle, {}).ShowsRows(kNames.small, {});
  script.OnPage(kTabs, 1).ShowsSelection(kFacilities.admin, -1).OnSheet().Escape();
  EXPECT_EQ(Call({100, 0, 0, 0, 0, 3, 2, -1, 1, "53", "川", "|大|中|小"}), "");
  OpensOn(1).Shows(kFacilities.large, "大").Shows(kFacilities.small, "小").OnSheet().Click(2);
  EXPECT_EQ(Call({101, 0, 0, 0, 1, 3, 11, 2, 47, "", "", "|大|小|x"}), "");
}

TEST_F(RetrievalTest, TheOpenPageDecidesTheKind) {
  // The tab that is opened, the kind, the tabs picked one after the other, the label of the
  // accepting button then, the kind and the tab of the result.
  const std::tuple<int, int, std::vector<int>, const char*, const char*> cases[] = {
      {0, 1, {2}, "OK", "12"},      {2, 5, {1}, "検索", "11"}, {0, 0, {1, 2}, "OK", "12"},
      {0, 1, {1, 0}, "検索", "00"}, {2, 1, {}, "OK", "12"},    {1, 0, {2, 0}, "検索", "00"},
  };
  for (const auto& [opened, kind, tabs, label, kind_and_tab] : cases) {
    Opens().ShowsRows(kTabs, {"地名", "公共施設", "表示方法"}).ShowsSelection(kTabs, opened);
    for (const int tab : tabs) script.Pick(kTabs, tab);
    script.Shows(1, label).Enter();
    const Fields fields = FieldsOf(Call({.view = opened, .kind = kind}));
    EXPECT_EQ(fields.at(0) + fields.at(9), kind_and_tab);
  }
}

TEST_F(RetrievalTest, TheDisplayHasAButtonForEachValue) {
  const int displays[] = {1028, 1030, 1029, 1031}, sizes[] = {1020, 1019, 1018};
  for (int value = 0; value <= 4; ++value) {
    OpensOn(2);
    for (int i = 0; i < 4; ++i) script.ShowsCheck(displays[i], i == value);
    for (int i = 0; i < 3; ++i) script.ShowsCheck(sizes[i], i == value);
    const int display = (value + 1) % 4, size = (value + 1) % 3;
    script.Click(displays[display]).Click(sizes[size]).ShowsCheck(displays[display], true);
    const Fields fields = FieldsOf(Search({.view = value * 110 + 2}));
    EXPECT_EQ(fields.at(7) + fields.at(8), std::to_string(display) + std::to_string(size));
  }
}

constexpr char kStart[] = "検索結果をファイルに保存。保存する場所、ファイル名を指定してください！";

class ResultFileTest : public RetrievalTest {
 protected:
  ScriptFrontEnd& OpensChooser() { return Opens().Click(kSave).OpensPanel(kPanel); }

  // The fields that the chooser decides: new file, format and path. @ stands for the folder.
  std::string Decided(const Given& given) {
    const Fields fields = FieldsOf(Call(given));
    const std::regex folder(R"(.*orreryui-\w+\\)");
    return fields.at(1) + fields.at(2) + " " + std::regex_replace(fields.at(10), folder, "@");
  }

  TestFolder folder_;
  StoppedClock clock_;
  ScopedClock scope_{clock_};
};

TEST_F(ResultFileTest, ASelectedFileIsAddedToInTheFormatOfItsName) {
  for (const char* folder : {"x.dat", "sub"}) create_directory(folder_.Path() / folder);
  // Its name, its size, what is passed in, the facts before the time, what is decided.
  const std::tuple<const char*, std::optional<std::size_t>, Given, std::string, const char*>
      cases[] = {
          {"A.CSV", 1500, {.file_new = 1}, "ファイルのサイズ=1.50Kb", "02 @a.csv"},
          {"b.ymd", 500, {.file_new = 1, .format = 2}, "ファイルのサイズ=0.50Kb", "01 @b.ymd"},
          {"b.ymd.csv", 0, {}, "ファイルのサイズ=0.00Kb", "02 @b.ymd.csv"},
          {"sub/表", 1234567, {.format = 1}, "ファイルのサイズ=1234.57Kb", "00 @sub\\表.dat"},
          {"x.dat/none", 1, {.format = 2}, "ファイルのサイズ=0.00Kb", "00 @x.dat\\none"},
          {"gone.csv", {}, {.file_new = 1, .format = 9}, kStart, "19 @gone.csv"},
          {"gone", {}, {.file_new = 7, .format = 9}, kStart, "79 @gone"},
          {"sub", {}, {.format = 1}, kStart, "01 @sub.ymd"},
      };
  const std::chrono::sys_seconds moment(std::chrono::seconds(clock_.now - 1728000));
  for (const auto& [name, size, given, facts, decided] : cases) {
    if (size) {
      folder_.Write(name, std::string(*size, 'x'));
      const auto time = std::filesystem::file_time_type::clock::from_sys(moment);
      last_write_time(folder_.Path() / name, time);
    }
    OpensChooser().Shows(kFacts, kStart).SelectsFile(folder_.PathOf(name));
    script.Shows(kFacts, facts + (size ? "Sun Dec  5 13:05:00 2004\n" : ""));
    script.ChangesFolder().Accepts().Click(1);
    EXPECT_EQ(Decided(given), decided) << name;
  }
}

TEST_F(ResultFileTest, AFileOfWhichNothingCanBeToldIsANewOne) {
  folder_.Write("a.csv", "x");
  int call = 0;
  std::set<std::string> outcomes;
  for (bool failed = true; failed;) {
    FaultyFileSystem files(++call);
    const ScopedFileSystem scope(files);
    std::string facts;
    OpensChooser().SelectsFile(folder_.PathOf("a.csv")).Does([&](ControlSession& panel) {
      facts = ControlOf(panel, kFacts).text;
      return "";
    });
    script.Accepts().Click(1);
    const std::string decided = Decided({});
    outcomes.insert(facts.substr(0, facts.find('=')) + decided);
    failed = files.Failed();
  }
  EXPECT_THAT(outcomes, testing::UnorderedElementsAre(
                            "ファイルのサイズ02 @a.csv", std::string(kStart) + "00 @a.csv",
                            "上記のファイルを作成して検索結果を保存します！10 @a.csv"));
}

TEST_F(ResultFileTest, ThePathIsTheSelectedOneElseTheTypedOneInLowerCase) {
  folder_.Write("B.ymd", "");
  const auto opens_and_types = [&](const std::string& name) -> ScriptFrontEnd& {
    return OpensChooser().TypesName(folder_.PathOf(name)).Accepts();
  };
  opens_and_types("New表.CSV").Click(1);
  EXPECT_EQ(Decided({.file_new = 1, .format = 1}), "11 @new表.csv");
  opens_and_types("New").ShowsCheck(kSave, true).Click(kSave).OpensPanel(kPanel).GivesUp().Click(1);
  EXPECT_EQ(Decided({.file_new = 1, .format = 1}), "11 @new.ymd");
  OpensChooser().SelectsFile(folder_.PathOf("B.ymd")).TypesName("/other").Accepts().Click(1);
  EXPECT_EQ(Decided({}), "01 @b.ymd");
  OpensChooser().SelectsFile(folder_.PathOf("B.ymd")).GivesUp().ShowsCheck(kSave, true).Click(1);
  EXPECT_EQ(Decided({.file_new = 1, .format = 2, .texts = "C:\\X|||"}), "12 c:\\x.csv");
  OpensChooser().GivesUp().Click(1);
  EXPECT_EQ(Decided({.format = 1}), "01 ");
  opens_and_types("a").Click(kDisplayOnly).Click(1);
  EXPECT_EQ(Decided({.texts = "b|||"}), "00 ");
  opens_and_types("a.csv").Escape();
  EXPECT_EQ(Call(), "");
}

TEST_F(ResultFileTest, ThePanelShowsTheFieldsAndLabelsTheAcceptingButton) {
  folder_.Write("a.dat", "");
  OpensChooser().ShowsCheck(kNew, true).ShowsAcceptLabel("OK").Shows(1161, "-2147483648");
  for (int id = kDat; id <= kCsv; ++id) script.ShowsCheck(id, false);
  script.Click(kCsv).ShowsCheck(kCsv, true).Click(kAppend).ShowsAcceptLabel("選択").Paint();
  script.ShowsCheck(kAppend, true).Click(kNew).Shows(kCsv, "公共施設ﾃｰﾌﾞﾙ形式(csv)");
  script.SelectsFile(folder_.PathOf("a.dat")).ShowsCheck(kAppend, true).ShowsCheck(kDat, true);
  script.ShowsAcceptLabel("OK").Click(kNew).Click(kDat + 1).Accepts().Click(kSave);
  script.OpensPanel(kPanel).ShowsAcceptLabel("OK").ShowsCheck(kDat + 1, true).GivesUp().Click(1);
  EXPECT_EQ(Decided({1, -1, 3, INT_MIN, 1}), "11 @a.dat");

  OpensChooser().ShowsAcceptLabel("選択").Shows(kCsv, "注記テーブル形式(csv)").GivesUp().Escape();
  EXPECT_EQ(Call(), "");
  const FileChooserRequest& request = script.LastFileRequest();
  std::string types;
  for (const FileFilter& type : request.filters) types += type.label + "|" + type.patterns[0] + "|";
  EXPECT_EQ(types, "すべて *.*|*|CSVﾌｧｲﾙ *.csv|*.csv|YMDﾌｧｲﾙ *.ymd|*.ymd|DATﾌｧｲﾙ *.dat|*.dat|");
  EXPECT_FALSE(request.must_exist);
}

TEST_F(RetrievalTest, WhatIsNotChangedComesBackThroughAThousandCalls) {
  std::mt19937 engine(20041225);
  const auto random = [&](unsigned count) { return static_cast<int>(engine() % count); };
  Fields before = FieldsOf("0|1|2|3|2|2|12|1|1|0|p.dat|大|中|小|53|13|東京都|川");
  for (int round = 0; round < 1000; ++round) {
    Opens();
    std::set<std::size_t> may_change;  // fields
    for (int visits = random(5); visits > 0; --visits) {
      const int tab = random(3);
      script.OnSheet().Pick(kTabs, tab).OnPage(kTabs, tab);
      may_change.insert(9);
      // The conditions of the other kind begin anew.
      const bool anew = tab != 2 && std::to_string(tab) != before[0];
      if (anew) may_change.insert({0, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16, 17});
      const Page& page = tab == 0 ? kNames : kFacilities;
      const std::pair<std::set<std::size_t>, std::function<void()>> acts[] = {
          {{6, 15, 16}, [&] { script.Pick(page.admin, random(47)); }},
          {{14}, [&] { script.Type(page.mesh, std::to_string(random(9999))); }},
          {{17}, [&] { script.Type(page.word, random(2) == 0 ? "ソ表" : ""); }},
          {{3, 4, 5, 11}, [&] { script.Pick(page.large, random(6)); }},
          {{3, 4, 5, 6, 14, 15, 16}, [&] { script.Click(page.clear); }},
          {{7}, [&] { script.Click(1028 + random(4)); }},
          {{8}, [&] { script.Click(1018 + random(3)); }}};
      const auto& [changes, act] = acts[tab == 2 ? 5 + random(2) : random(5)];
      act();
      may_change.insert(changes.begin(), changes.end());
    }
    const auto n = [&](std::size_t field) { return std::stoi(before[field]); };
    const std::string texts = before[10] + "|" + before[11] + "|" + before[12] + "|" + before[13];
    const Fields after = FieldsOf(Search({n(8) * 100 + n(7) * 10 + n(9), n(1), n(2), 0, n(0), n(3),
                                          n(4), n(5), n(6), before[14], before[17], texts}));
    if (before[6] == "-1") before[15] = before[16] = "";
    for (std::size_t field = 0; field < before.size(); ++field) {
      ASSERT_TRUE(may_change.contains(field) || after.at(field) == before[field]) << field;
    }
    before = after;
  }
}

}  // namespace
}  // namespace orreryui
