#include "host/visitor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

namespace orreryui::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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

TEST_F(VisitorTest, PlaysTheStepsInOrder) {
  EXPECT_THAT(FailuresOf({{7, &Hand::TakePicture}, {7, &Hand::TakePicture}, {7, End}}), IsEmpty());
  EXPECT_TRUE(QFile::exists(pictures_.filePath("picture-1.png")));
  EXPECT_TRUE(QFile::exists(pictures_.filePath("picture-2.png")));
}

TEST_F(VisitorTest, PicksRowsOfAListAndOfAListInsideAControl) {
  QWidget frame(&dialog_);
  frame.setObjectName("3");
  QListWidget inner(&frame);
  QListWidget outer(&dialog_);
  outer.setObjectName("4");
  for (QListWidget* list : {&inner, &outer}) list->addItems({"a", "b", "c"});
  const auto pick = [](Hand& hand) {
    hand.PickFromList(3, 1);
    hand.PickFromList(4, 2);
    hand.PickFromList(4, 3);
    End(hand);
  };
  EXPECT_THAT(FailuresOf({{7, pick}}), ElementsAre(HasSubstr("no row 3")));
  EXPECT_EQ(inner.currentRow(), 1);
  EXPECT_EQ(outer.currentRow(), 2);
}

TEST_F(VisitorTest, ReportsWhatCannotBeUsed) {
  const auto use_what_is_not_there = [](Hand& hand) {
    hand.Click(2);
    hand.Type(3, "text");
    hand.PickFromCombo(1, 0);
    End(hand);
  };
  EXPECT_THAT(FailuresOf({{7, use_what_is_not_there}}),
              ElementsAre(HasSubstr("control 2"), HasSubstr("control 3"), HasSubstr("control 1")));
}

TEST_F(VisitorTest, ReportsStepsThatWereNotReached) {
  EXPECT_THAT(FailuresOf({{7, End}, {8, End}}), ElementsAre(HasSubstr("dialog 8")));
}

}  // namespace
}  // namespace orreryui::host
