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

TEST(VisitorTest, ReportsWhatCannotBeUsedOrReached) {
  QDialog dialog;
  dialog.setObjectName("7");
  QPushButton end(&dialog), disabled(&dialog);
  end.setObjectName("1");
  QObject::connect(&end, &QPushButton::clicked, &dialog, &QDialog::accept);
  disabled.setObjectName("2");
  disabled.setEnabled(false);
  const QTemporaryDir pictures;
  const auto use_what_is_not_there = [](Hand& hand) {
    hand.Click(2);
    hand.Type(3, "text");
    hand.PickFromCombo(1, 0);
    hand.Click(1);
  };
  const Visitor visitor({{7, &Hand::TakePicture}, {7, use_what_is_not_there}, {8, {}}},
                        pictures.filePath("picture"));
  dialog.exec();
  std::vector<std::string> failures;
  for (const QString& failure : visitor.Failures()) failures.push_back(failure.toStdString());
  EXPECT_THAT(failures, ElementsAre(HasSubstr("control 2"), HasSubstr("control 3"),
                                    HasSubstr("control 1"), HasSubstr("dialog 8")));
  EXPECT_TRUE(QFile::exists(pictures.filePath("picture-1.png")));
}

}  // namespace
}  // namespace orreryui::host
