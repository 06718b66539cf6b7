// The tables of classes against a list that was written down apart from them: a line a class, with
// the codes of the levels above it.
#include "retrieval/classes.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

TEST(Classes, AreThoseOfTheList) {
  std::vector<std::string> table;
  // Returns the codes, for the lines of the classes below.
  const auto add = [&](const std::string& above, const auto& one) {
    const std::string codes = above + std::to_string(one.code);
    table.push_back(codes + "\t" + ToUtf8(one.name));
    return codes + ".";
  };
  const auto add_with_small = [&](const std::string& above, const ClassWithSmall& one) {
    const std::string codes = add(above, one);
    for (const CodedName& small : one.small) add(codes, small);
  };
  for (const PlaceClass& large : kPlaceClasses) {
    const std::string codes = add("name ", large);
    for (const ClassWithSmall& middle : large.middle) add_with_small(codes, middle);
  }
  for (const ClassWithSmall& large : kFacilityClasses) add_with_small("facility ", large);
  for (const CodedName& prefecture : kPrefectures) add("prefecture ", prefecture);
  std::vector<std::string> list;
  std::ifstream file(ORRERYUI_CLASSES);
  for (std::string line; std::getline(file, line);) list.push_back(line);
  EXPECT_EQ(table, list);
}

}  // namespace
}  // namespace orreryui
