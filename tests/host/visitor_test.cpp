#include "host/visitor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTemporaryDir>

namespace orreryui::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// A dialog 7 with a button 1 that ends it and a disabled button 2.
class VisitorTest : public testing::Test {
 protected:
  VisitorTest() {
    dialog_.setObjectName("7");
    end_.setObjectName("1");
    disabled_.setObjectName("2");
    disabled_.setEnabled(false);
    QObject::connect(&end_, &QPushButton::clicked, &dialog_, &QDialog::accept);
  }

  std::vector<std::string> FailuresOf(const std::vector<Step>& steps) {
    const Visitor visitor(steps, pictures_.filePath("picture"));
    dialog_.exec();
    std::vector<std::string> failures;
    for (const QString& failure : visitor.Failures()) failures.push_back(failure.toStdString());
    return failures;
  }

  static void End(Hand& hand) { hand.Click(1); }

  QTemporaryDir pictures_;
  QDialog dialog_;
  QPushButton end_{&dialog_};
  QPushButton disabled_{&dialog_};
};

TEST_F(VisitorTest, ReportsWhatCannotBeUsedOrReached) {
  const auto use_what_is_not_there = [](Hand& hand) {
    hand.Click(2);
    hand.Type(3, "text");
    hand.PickFromCombo(1, 0);
    End(hand);
  };
  EXPECT_THAT(FailuresOf({{7, &Hand::TakePicture}, {7, use_what_is_not_there}, {8, End}}),
              ElementsAre(HasSubstr("control 2"), HasSubstr("control 3"), HasSubstr("control 1"),
                          HasSubstr("dialog 8")));
  EXPECT_TRUE(QFile::exists(pictures_.filePath("picture-1.png")));
}

}  // namespace
}  // namespace orreryui::host
