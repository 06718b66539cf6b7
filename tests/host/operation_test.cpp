#include "host/operation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/call_texts.h"
#include "host/operation_table.h"

namespace orreryui::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

CString Join(int number, CString text) {
  CString result;
  result.Format("%d|%s", number, static_cast<const char*>(text));
  return result;
}

Operation Joining() {
  Operation operation;
  operation.name = "Join";
  operation.fields = {{"number", "", "NUMBER"}, {"text", ""}};
  return Describe(&Join, operation);
}

TEST(OperationTest, CallsInTheCodePageAndAnswersInUtf8) {
  const Outcome outcome = Joining().call({"-2147483648", "表示|ソ"});
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(outcome.result, "-2147483648|表示|ソ");
}

TEST(OperationTest, CutsResultsIntoFields) {
  Operation join = Joining();
  EXPECT_THAT(FieldsOf(join, "3|a|b"), ElementsAre("3", "a|b"));
  EXPECT_THAT(FieldsOf(join, "3|"), ElementsAre("3", ""));
  EXPECT_THAT(FieldsOf(join, "3"), ElementsAre("3", ""));
  EXPECT_THAT(FieldsOf(join, ""), IsEmpty());
  EXPECT_THAT(FieldsOf(join, "3|4|"), ElementsAre("3", "4|"));
  join.ends_in_number = true;
  EXPECT_THAT(FieldsOf(join, "3|4|"), ElementsAre("3", "4"));
}

TEST(OperationTest, WritesJson) {
  EXPECT_EQ(JsonOf(Joining(), "result", "3|a\\\"\r表"), R"({
  "operation": "Join",
  "ending": "result",
  "result": "3|a\\\"\u000d表",
  "fields": {
    "number": "3",
    "text": "a\\\"\u000d表"
  }
})");
}

TEST(OperationTest, KeepsWhatItHandsBack) {
  Operation join = Joining();
  Values kept = {{"NUMBER", "1"}, {"OTHER", "a"}};
  KeepResult(join, "", kept);
  EXPECT_THAT(kept, ElementsAre(Pair("NUMBER", "1"), Pair("OTHER", "a")));
  KeepResult(join, "3|b", kept);
  EXPECT_THAT(kept, ElementsAre(Pair("NUMBER", "3"), Pair("OTHER", "a")));
  // Two numbers that share an argument.
  join.fields = {{"tens", "", "NUMBER", 10}, {"ones", "", "NUMBER", 1}};
  KeepResult(join, "2|-3", kept);
  EXPECT_EQ(kept["NUMBER"], "17");
}

TEST(OperationTest, PassesARetrievalInAgainAndNamesItsClasses) {
  const Operation& retrieve = *FindOperation("OnGnpfRetrieveSet");
  const std::string result = "1|0|2|7|11|5|12|3|2|1|c:\\a.csv|国の機関|内閣法制局||53|13|東京都|局";
  Values kept = {{"ELEVATION", "-9999"}};
  KeepResult(retrieve, result, kept);
  EXPECT_THAT(InOrder(retrieve, kept),
              ElementsAre("231", "0", "2", "-9999", "1", "7", "11", "5", "12", "53", "局",
                          "c:\\a.csv|国の機関|内閣法制局|"));
  const auto shown = [&](std::size_t i) {
    return ShownValue(retrieve, FieldsOf(retrieve, result), i);
  };
  EXPECT_EQ(shown(3) + shown(4) + shown(5), "7 公共施設11 国の機関5 内閣法制局");
  EXPECT_EQ(shown(6) + shown(7), "12 東京都3");
}

TEST(OperationTest, CutsThePointOfAnAlbumAtItsCoordinates) {
  const Operation& update = *FindOperation("OnAlbumUpdate");
  const auto fields = [&](const char* result) { return FieldsOf(update, result); };
  EXPECT_THAT(fields("7|1|鎌倉駅 35.3190 139.5503 起点 "),
              ElementsAre("7", "1", "鎌倉駅", "35.3190", "139.5503", "起点"));
  EXPECT_THAT(fields("7|1|1 の 鳥居 35.3 139.6 3 つ ある "),
              ElementsAre("7", "1", "1 の 鳥居", "35.3", "139.6", "3 つ ある"));
  EXPECT_THAT(fields("0|2| 35.3 139.6  "), ElementsAre("0", "2", "", "35.3", "139.6", ""));
  for (const char* uncut : {"7|3|", "7|1|駅 35.3 139.6", "7|1|駅 北 東 起点 ", "7|1|駅 1 "}) {
    EXPECT_EQ(fields(uncut).size(), 2U) << uncut;
  }
}

}  // namespace
}  // namespace orreryui::host
