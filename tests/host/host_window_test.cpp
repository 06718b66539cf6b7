#include "host/host_window.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "host/visitor.h"
#include "templates/album_regist.h"
#include "templates/album_update.h"
#include "templates/data_source.h"
#include "templates/legend.h"
#include "templates/map_type.h"
#include "templates/palette.h"
#include "templates/route_select.h"

namespace orreryui::host {
namespace {

class HostWindowTest : public testing::Test {
 protected:
  void Choose(const char* operation) {
    auto* const list = window_.findChild<QListWidget*>("operations");
    list->setCurrentItem(list->findItems(operation, Qt::MatchExactly).at(0));
  }

  // Presses the button of the window and plays the visit in what opens.
  void CallAndPlay(const std::vector<Step>& steps) {
    const Visitor visitor(steps, "");
    window_.findChild<QPushButton*>("call")->click();
    EXPECT_EQ(visitor.Failures().join('\n').toStdString(), "");
  }

  QLineEdit& Editor(const char* argument) { return *window_.findChild<QLineEdit*>(argument); }

  std::string FieldValue(int row) {
    const auto* const item = window_.findChild<QTableWidget*>("fields")->item(row, 1);
    return item ? item->text().toStdString() : "";
  }

  HostWindow window_;
};

TEST_F(HostWindowTest, PassesInWhatTheLastCallHandedBack) {
  Choose("OnDataSourceSet");
  const auto toggle_and_pick = [](Hand& hand) {
    hand.Click(data_source::kUseCommonArea);
    hand.PickFromCombo(data_source::kFiles, 1);
    hand.Click(IDOK);
  };
  CallAndPlay({{data_source::kTemplate.number, toggle_and_pick}});
  EXPECT_EQ(FieldValue(0), "1");
  EXPECT_EQ(FieldValue(2), "鎌倉の寺社");
  EXPECT_EQ(Editor("SELECTED").text(), "1");
  EXPECT_EQ(Editor("COMMON-AREA").text(), "off");

  Choose("OnRouteInformation");
  const auto pick_map = [](Hand& hand) {
    hand.PickFromList(route_select::kMaps, 0);
    hand.Click(IDOK);
  };
  CallAndPlay({{route_select::kTemplate.number, pick_map}});
  const std::string member_file = FieldValue(2);
  Choose("OnRouteRegistModule");
  EXPECT_NE(member_file, "");
  EXPECT_EQ(Editor("LIST-MODE").text().toStdString(), member_file);
  EXPECT_TRUE(Editor("LIST").text().startsWith("高徳院 35.3168 139.5357 鎌倉大仏 "));
  EXPECT_TRUE(Editor("LIST").text().endsWith("|999|"));
}

// The colour of the strip at a level, from its column in the middle of the level.
QColor ColourAt(PaletteStrip& strip, int level) {
  strip.resize(PaletteStrip::kLevels * 3, strip.height());
  const QRect bar = strip.Bar();
  const int column = bar.left() + (2 * level + 1) * bar.width() / (2 * PaletteStrip::kLevels);
  return strip.grab().toImage().pixelColor(column, bar.center().y());
}

TEST_F(HostWindowTest, ShowsTheChosenPaletteOverTheElevations) {
  auto& strip = *window_.findChild<PaletteStrip*>("palette");
  Choose("OnRengeConfirm");
  EXPECT_TRUE(strip.isHidden());

  Choose("OnMapPalleteSet");
  EXPECT_FALSE(strip.isHidden());
  EXPECT_EQ(strip.accessibleName().toStdString(), "Palette 自然な起伏");
  const auto pick = [](Hand& hand) {
    hand.PickFromList(palette::kNames, 4);
    hand.Click(IDOK);
  };
  CallAndPlay({{palette::kTemplate.number, pick}});
  EXPECT_EQ(strip.accessibleName().toStdString(), "Palette 白黒（濃淡）");
  const QColor sea(std::stoi(FieldValue(1)), std::stoi(FieldValue(2)), std::stoi(FieldValue(3)));
  EXPECT_EQ(ColourAt(strip, 0), sea);
  // Between the rows for 1,000 m and 1,500 m.
  EXPECT_EQ(ColourAt(strip, 80), QColor(140, 140, 140));

  Choose("OnLegendElevetion");
  EXPECT_EQ(Editor("PALETTE").text(), "4");
  EXPECT_EQ(strip.accessibleName().toStdString(), "Palette 白黒（濃淡）");

  Editor("PALETTE").setText("99");
  CallAndPlay({{legend::kTemplate.number, [](Hand& hand) { hand.Click(IDOK); }}});
  EXPECT_EQ(strip.accessibleName(), "No palette");
}

TEST_F(HostWindowTest, KeepsThePointOfEachAlbum) {
  const auto& points = *window_.findChild<PointList*>("points");
  Choose("OnDLLAlbumRegist");
  const auto name_the_point = [](Hand& hand) {
    hand.Type(album_regist::kPlace, "由比ヶ浜");
    hand.Type(album_regist::kItem, "海岸");
    hand.Click(IDOK);
  };
  Editor("LATITUDE").setText("35.3081");
  CallAndPlay({{album_regist::kTemplate.number, name_the_point}});
  ASSERT_EQ(points.count(), 2);
  EXPECT_EQ(points.item(1)->text().toStdString(), "由比ヶ浜, 海岸");
  EXPECT_EQ(Editor("NUMBER").text(), "3");

  Choose("OnAlbumUpdate");
  EXPECT_EQ(Editor("PLACE").text().toStdString(), "由比ヶ浜");
  EXPECT_EQ(Editor("LATITUDE").text(), "35.3081");
  EXPECT_TRUE(Editor("ALBUM").text().endsWith("album2.alb"));
  const auto rename = [](Hand& hand) {
    hand.Type(album_update::kPlace, "材木座");
    hand.Click(IDOK);
  };
  CallAndPlay({{album_update::kTemplate.number, rename}});
  ASSERT_EQ(points.count(), 2);
  EXPECT_EQ(points.item(1)->text().toStdString(), "材木座, 海岸");

  auto* const list = window_.findChild<PointList*>("points");
  list->setCurrentRow(0);
  CallAndPlay({{album_update::kTemplate.number,
                [](Hand& hand) { hand.Click(album_update::kDeleteAlbum); }}});
  ASSERT_EQ(points.count(), 1) << "a deleted album has no point";
  EXPECT_EQ(Editor("PLACE").text().toStdString(), "材木座");
}

}  // namespace
}  // namespace orreryui::host
