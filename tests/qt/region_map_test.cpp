// The map of prefectures by keyboard and input method.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>

#include "platform/dialogs/dialog.h"
#include "platform/dialogs/front_end_loader.h"
#include "templates/region.h"
#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

// With one prefecture, Tokyo, switched on at the start.
class Region : public CDialog {
 public:
  Region() : CDialog(region::kTemplate) {}

 private:
  void OnInitDialog() override { CheckDlgButton(region::kFirstPrefecture + 12, true); }
};

TEST(MapOfPrefectures, IsOneTabStopWhoseArrowsGoToNeighboursAndWhereTypingGoesToNames) {
  struct Step {
    int key;
    const char* text;  // one letter typed, more from an input method
    const char* reached;
  };
  // clang-format off
  const Step steps[] = {
      {Qt::Key_Tab, "", "東京"},     {Qt::Key_Left, "", "山梨"},       {Qt::Key_Up, "", "埼玉"},
      {Qt::Key_Right, "", "千葉"},   {Qt::Key_Down, "", "神奈川"},     {Qt::Key_Down, "", "神奈川"},
      {Qt::Key_Tab, "", "OK"},       {Qt::Key_Backtab, "", "神奈川"},  {0, "とう", "東京"},
      {0, "鹿", "鹿児島"},           {Qt::Key_Down, "", "沖縄"},       {Qt::Key_Up, "", "鹿児島"},
      {0, "ヤマ", "山形"},           {0, "や", "山梨"},                {0, "ま", "山梨"},
      {0, "ぐ", "山口"},             {0, "ﾄﾁ", "栃木"},                {0, "x", "栃木"},
      {0, "東", "東京"}};
  // clang-format on
  QApplication::setKeyboardInputInterval(60'000);
  ThenInFront([&](QWidget& dialog) {
    for (const auto& [key, text, reached] : steps) {
      QInputMethodEvent commit;
      commit.setCommitString(text);
      if (commit.commitString().size() > 1) {
        QApplication::sendEvent(dialog.focusWidget(), &commit);
      } else {
        QTest::sendKeyEvent(QTest::Click, dialog.focusWidget(), Qt::Key(key), QString(text), {});
      }
      EXPECT_EQ(dialog.focusWidget()->accessibleName().toStdString(), reached);
    }
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  const ScopedFrontEnd screen(LoadFrontEnd());
  EXPECT_EQ(Region().DoModal(), IDCANCEL);
}

}  // namespace
}  // namespace orreryui
