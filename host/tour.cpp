#include "host/tour.h"

#include <QDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "host/operation_table.h"
#include "host/sample_folder.h"
#include "host/visitor.h"

namespace orreryui::host {
namespace {

std::vector<Visit> Visits() {
  return {VisitMapTypeSet(),    VisitMapPalleteSet(),  VisitLegendElevetion(),
          VisitDataSourceSet(), VisitDllAlbumRegist(), VisitAlbumUpdate(),
          VisitTextDisplay(),   VisitMemoDisplay(),    VisitRangeConfirm()};
}

void PrintFields(const Operation& operation, const std::string& result) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::printf("    %s: %s (%s)\n", operation.fields[i].name.c_str(), texts[i].c_str(),
                operation.fields[i].meaning.c_str());
  }
}

bool MakeVisit(const Visit& visit, const Operation& operation, Values values,
               const QString& pictures) {
  std::printf("%s: %s\n", operation.name.c_str(), operation.purpose.c_str());
  Visitor visitor(visit, pictures);
  const Outcome outcome = operation.call(InOrder(operation, values));
  std::printf("  result: %s\n", outcome.result.c_str());
  PrintFields(operation, outcome.result);
  for (const QString& picture : visitor.Pictures()) {
    std::printf("  picture: %s\n", qPrintable(picture));
  }
  QStringList failures = visitor.Failures();
  if (!outcome.error.empty()) failures += QString::fromStdString(outcome.error);
  if (outcome.result != visit.expected_result) {
    failures += QString::fromStdString("the result should be " + visit.expected_result);
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
  const std::vector<Visit> visits = Visits();
  bool good = true;
  for (const Operation& operation : Operations()) {
    const auto visit = std::find_if(visits.begin(), visits.end(), [&](const Visit& one) {
      return one.operation == operation.name;
    });
    if (visit == visits.end()) {
      std::printf("%s\n  FAILED: the tour doesn't visit it\n", operation.name.c_str());
      good = false;
      continue;
    }
    const QString pictures = QDir(folder).filePath(QString::fromStdString(operation.name));
    good = MakeVisit(*visit, operation, data.StartValues(operation), pictures) && good;
  }
  return good;
}

}  // namespace orreryui::host
