#include "host/operation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/operation_table.h"

namespace orreryui::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

CString Join(int number, CString text) {
  CString result;
  result.Format("%d|%s", number, static_cast<const char*>(text));
  return result;
}

Operation Joining() {
  Operation operation;
  operation.name = "Join";
  operation.fields = {{"number", "", 0}, {"text", "", std::nullopt}};
  return Describe(&Join, operation);
}

TEST(OperationTest, CallsInTheCodePageAndAnswersInUtf8) {
  const Outcome outcome = Joining().call({"-2147483648", "表示|ソ"});
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(outcome.result, "-2147483648|表示|ソ");
}

TEST(OperationTest, RefusesWhatIsNoArgument) {
  const Operation join = Joining();
  for (const char* number : {"", " 1", "1 ", "0x1", "2147483648"}) {
    EXPECT_THAT(join.call({number, ""}).error, HasSubstr("argument 1")) << number;
  }
  EXPECT_THAT(join.call({"1", "é"}).error, HasSubstr("argument 2"));
  EXPECT_THAT(join.call({"x", "é"}).error, HasSubstr("argument 1"));
  EXPECT_THAT(join.call({"1"}).error, HasSubstr("takes 2"));
}

TEST(OperationTest, CutsResultsIntoFields) {
  const Operation join = Joining();
  EXPECT_THAT(FieldsOf(join, "3|a|b"), ElementsAre("3", "a|b"));
  EXPECT_THAT(FieldsOf(join, "3|"), ElementsAre("3", ""));
  EXPECT_THAT(FieldsOf(join, "3"), ElementsAre("3", ""));
  EXPECT_THAT(FieldsOf(join, ""), IsEmpty());
}

TEST(OperationTest, DropsTheBarBehindALastNumber) {
  Operation join = Joining();
  EXPECT_THAT(FieldsOf(join, "3|4|"), ElementsAre("3", "4|"));
  join.ends_in_number = true;
  EXPECT_THAT(FieldsOf(join, "3|4|"), ElementsAre("3", "4"));
  EXPECT_THAT(FieldsOf(join, ""), IsEmpty());
}

TEST(OperationTest, KeepsWhatItHandsBack) {
  EXPECT_THAT(NextValues(Joining(), {"1", "a"}, "3|b"), ElementsAre("3", "a"));
  EXPECT_THAT(NextValues(Joining(), {"1", "a"}, ""), ElementsAre("1", "a"));
}

TEST(OperationTest, KeepsNumbersThatShareAnArgument) {
  Operation join = Joining();
  join.fields = {{"tens", "", 0, 10}, {"ones", "", 0, 1}};
  EXPECT_THAT(NextValues(join, {"1", "a"}, "2|-3"), ElementsAre("17", "a"));
  EXPECT_THAT(NextValues(join, {"1", "a"}, ""), ElementsAre("1", "a"));
}

TEST(OperationTest, DescribesEveryArgumentOfTheOperations) {
  for (const Operation& operation : Operations()) {
    EXPECT_EQ(operation.arguments.size(), operation.argument_types.size()) << operation.name;
    for (const Field& field : operation.fields) {
      EXPECT_LT(field.next_argument.value_or(0), operation.arguments.size()) << operation.name;
    }
    EXPECT_EQ(FindOperation(operation.name), &operation);
  }
  EXPECT_EQ(FindOperation("OnNothing"), nullptr);
}

}  // namespace
}  // namespace orreryui::host
