#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <climits>
#include <new>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

using testing::ElementsAre;

class Window : public OnScreen {};

TEST_F(Window, IsNamedTitledAndOfFixedSizeAndShowsTheFocusThatAHandlerSets) {
  session.layout.title = "  凡例";
  for (int id : {1, 2}) session.Add(ControlKind::kEdit, id);
  Run([&](QDialog& window) {
    EXPECT_EQ(window.objectName(), "700");
    EXPECT_EQ(window.windowTitle(), "  凡例");
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(session.paints, 1);
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose));
    EXPECT_TRUE(ControlWidget<QLineEdit>(window, 1).hasFocus());
    session.layout.title = "標高";
    session.layout.focus = 2;
    session.window->RefreshLayout();
    EXPECT_EQ(window.windowTitle(), "標高");
    EXPECT_TRUE(ControlWidget<QLineEdit>(window, 2).hasFocus());
    session.Change(2, [](ControlView& view) { view.enabled = false; });
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST_F(Window, EnterEscAndCloseBecomeGesturesAndTheButtonThatEnterPressesStandsOut) {
  session.Add(ControlKind::kPushButton, 1, "OK").is_default = true;
  session.Add(ControlKind::kPushButton, 2, "他");
  session.Add(ControlKind::kEdit, 3);
  session.layout.focus = 3;
  Run([&](QDialog& window) {
    const auto& button = ControlWidget<QPushButton>(window, 1);
    auto& other = ControlWidget<QPushButton>(window, 2);
    EXPECT_TRUE(button.isDefault());
    other.setFocus();
    EXPECT_TRUE(other.isDefault());
    EXPECT_FALSE(button.isDefault());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
      QTest::keyClick(&other, key);
    }
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(session.Take(), ElementsAre("focus 2", "enter", "enter", "escape", "escape"));
    session.Change(1, [](ControlView& view) { view.text = "終"; });
    EXPECT_TRUE(other.isDefault());
    ControlWidget<QLineEdit>(window, 3).setFocus();
    EXPECT_TRUE(button.isDefault());
    EXPECT_FALSE(other.isDefault());
  });
}

TEST_F(Window, NothingFollowsTheEndOrAGestureThatThrows) {
  for (const bool throws : {false, true}) {
    session = {};
    session.Add(ControlKind::kPushButton, 1, "OK");
    session.handler = [&](const std::string& gesture) {
      session.ended = gesture == "click 1";
      if (session.ended && throws) throw std::bad_alloc();
    };
    RunAt<QPushButton>(1, [&](QPushButton& button) {
      QTest::mouseClick(&button, Qt::LeftButton);
      QTest::mouseClick(&button, Qt::LeftButton);
      QTest::keyClick(button.window(), Qt::Key_Escape);
      EXPECT_THAT(session.Take(), ElementsAre("click 1"));
    });
  }
  session.on_start = [&] { session.ended = true; };
  EXPECT_TRUE(LoadFrontEnd()->RunDialog(session));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Window, EndsWhenTheHostQuitsWhateverIsOpenAboveIt) {
  FakeSession inner;
  inner.handler = [&](const std::string& gesture) { inner.ended = gesture == "escape"; };
  FrontEnd& front_end = *LoadFrontEnd();
  const std::function<void()> opened[] = {
      [] {},
      [&] {
        inner.ended = false;
        front_end.RunDialog(inner);
      },
      [&] { EXPECT_EQ(front_end.ShowMessage("?"), MessageBoxAnswer::kCancel); },
      [&] { EXPECT_EQ(front_end.ChooseFile({}), std::nullopt); },
      [&] { EXPECT_EQ(front_end.ChooseColour(0), std::nullopt); },
      [&] { front_end.WaitUntil([] { return false; }); },
  };
  const std::pair<void (*)(), int> ways[] = {{[] { QCoreApplication::exit(3); }, 3},
                                             {[] { QCoreApplication::quit(); }, 0}};
  for (const auto& open : opened) {
    for (const auto& [quit, code] : ways) {
      session = {};
      session.Add(ControlKind::kPushButton, 1, "開く");
      bool covered = false;
      session.handler = [&](const std::string& gesture) {
        session.ended = gesture == "escape" && !covered;
        if (gesture != "click 1") return;
        covered = true;
        open();
        covered = false;
      };
      QTimer::singleShot(0, [&, quit = quit] {
        ThenInFront([&, quit](QWidget& window) {
          QTimer::singleShot(0, quit);
          QTest::mouseClick(&ControlWidget<QPushButton>(window, 1), Qt::LeftButton);
        });
        front_end.RunDialog(session);
      });
      EXPECT_EQ(QCoreApplication::exec(), code);
      EXPECT_TRUE(session.ended);
      EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    }
  }
}

// The lightness of the darkest pixel where the button is.
int Darkest(const QWidget& button) {
  const QImage picture = button.window()->grab(button.geometry()).toImage();
  int darkest = 255;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      darkest = std::min(darkest, picture.pixelColor(x, y).lightness());
    }
  }
  return darkest;
}

TEST_F(Window, WaitingTakesNoInputAndPaintsInGrey) {
  class Painted : public QObject {
   public:
    int times = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      times += event->type() == QEvent::Paint;
      return false;
    }
  };
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.Add(ControlKind::kEdit, 2);
  session.Add(ControlKind::kStatic, 3, "前");
  Run([&](QDialog& window) {
    Painted painted;
    ControlWidget<QLabel>(window, 3).installEventFilter(&painted);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const int clear = Darkest(ControlWidget<QPushButton>(window, 1));
    painted.times = 0;
    int asked = 0;
    LoadFrontEnd()->WaitUntil([&] {
      if (++asked == 2) {
        QTest::mouseClick(&ControlWidget<QPushButton>(window, 1), Qt::LeftButton);
        QTest::keyClicks(&ControlWidget<QLineEdit>(window, 2), "a");
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.close());
        session.Change(3, [](ControlView& view) { view.text = "後"; });
        EXPECT_GT(Darkest(ControlWidget<QPushButton>(window, 1)), clear + 60) << "greyed";
      }
      return asked > 2 && painted.times > 0;
    });
    EXPECT_THAT(session.Take(), ElementsAre());
    EXPECT_EQ(Darkest(ControlWidget<QPushButton>(window, 1)), clear);
    QTest::keyClicks(&ControlWidget<QLineEdit>(window, 2), "b");
    EXPECT_EQ(session.At(2).text, "b");
  });
}

TEST_F(Window, OpensAtItsPlaceWhateverDialogItOpensFrom) {
  FakeSession at_pixel, at_position;
  at_pixel.layout = {700, "", Placement::kAtPixel, 30, 70, 200, 150};
  at_position.layout = {700, "", Placement::kAtPosition, 10, 20, 200, 150};
  at_position.Add(ControlKind::kPushButton, 1, "開く");
  at_position.handler = [&](const std::string& gesture) {
    if (gesture != "click 1") return;
    FakeSession nested;
    nested.layout = at_position.layout;
    nested.layout.number = 701;
    RunWithUser(nested, [](QDialog& window) {
      EXPECT_EQ(window.objectName(), "701");
      EXPECT_EQ(window.parentWidget()->window()->objectName(), "700");
      EXPECT_EQ(window.pos(), window.parentWidget()->window()->pos());
    });
  };
  RunWithUser(at_pixel, [](QDialog& window) { EXPECT_EQ(window.pos(), QPoint(30, 70)); });
  RunWithUser(at_position, [](QDialog& window) {
    EXPECT_GT(window.pos().x(), 10);
    EXPECT_LT(window.pos().x(), window.pos().y());
    QTest::mouseClick(&ControlWidget<QPushButton>(window, 1), Qt::LeftButton);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
  });
}

TEST_F(Window, StaysOnTheScreenAndAlsoWhenItGrows) {
  for (const auto& [x, y] : {std::pair(100000, -100000), {INT_MAX, INT_MIN}, {INT_MIN, INT_MAX}}) {
    session = {};
    session.Add(ControlKind::kStatic, 1, "短", 8).place.width = 60;
    session.layout = {700, "", Placement::kAtPixel, x, y, 70, 20};
    Run([&, x = x](QDialog& window) {
      const QRect screen = window.screen()->availableGeometry();
      EXPECT_TRUE(screen.contains(window.geometry())) << x;
      const int before = window.width();
      session.Change(1, [](ControlView& view) { view.text = "すこし長い文字列がここに入る"; });
      EXPECT_GT(window.width(), before);
      EXPECT_TRUE(screen.contains(window.geometry())) << x;
    });
  }
}

}  // namespace
}  // namespace orreryui
