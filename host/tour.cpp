#include "host/tour.h"

#include <QDir>
#include <cstdio>
#include <vector>

#include "host/operation_table.h"
#include "host/sample_folder.h"
#include "host/visitor.h"

namespace orreryui::host {
namespace {

void PrintFields(const Operation& operation, const std::string& result) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::printf("    %s: %s (%s)\n", operation.fields[i].name.c_str(),
                ShownValue(operation, texts, i).c_str(), operation.fields[i].meaning.c_str());
  }
}

bool MakeVisit(const Operation& operation, const SampleFolder& data, const QString& pictures) {
  std::printf("%s: %s\n", operation.name.c_str(), operation.purpose.c_str());
  Visitor visitor(operation.steps, pictures);
  const Outcome outcome = operation.call(InOrder(operation, data.StartValues(operation)));
  std::printf("  result: %s\n", outcome.result.c_str());
  PrintFields(operation, outcome.result);
  for (const QString& picture : visitor.Pictures()) {
    std::printf("  picture: %s\n", qPrintable(picture));
  }
  QStringList failures = visitor.Failures();
  if (!outcome.error.empty()) failures += QString::fromStdString(outcome.error);
  const std::string expected = data.Filled(operation.expected_result);
  if (outcome.result != expected) {
    failures += QString::fromStdString("the result should be " + expected);
  }
  for (const QString& failure : failures) std::printf("  FAILED: %s\n", qPrintable(failure));
  return failures.isEmpty();
}

}  // namespace

bool MakeTour(const QString& folder) {
  const SampleFolder data;
  if (!QDir().mkpath(folder) || !data.IsComplete()) {
    std::printf(
        "FAILED: the folder of the pictures or the copy of the sample data can't be made\n");
    return false;
  }
  bool good = true;
  for (const Operation& operation : Operations()) {
    const QString pictures = QDir(folder).filePath(QString::fromStdString(operation.name));
    good = MakeVisit(operation, data, pictures) && good;
  }
  return good;
}

}  // namespace orreryui::host
