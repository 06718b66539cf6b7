#include "host/host_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdlib>
#include <span>

#include "host/operation_table.h"
#include "host/samples.h"

namespace orreryui::host {
namespace {

QTableWidgetItem* Cell(const std::string& text) {
  auto* const item = new QTableWidgetItem(QString::fromStdString(text));
  item->setFlags(item->flags() & ~Qt::ItemIsEditable);
  return item;
}

bool Takes(const Operation& operation, const std::string& argument) {
  return std::any_of(operation.arguments.begin(), operation.arguments.end(),
                     [&](const Argument& one) { return one.name == argument; });
}

bool GivesPoint(const Operation& operation, const std::string& result) {
  const auto given = std::span(operation.fields).first(FieldsOf(operation, result).size());
  return std::any_of(given.begin(), given.end(),
                     [](const Field& field) { return field.next_argument == "PLACE"; });
}

bool DeletesAlbum(const Operation& operation, const std::string& result) {
  if (!Takes(operation, "ALBUM")) return false;
  const std::vector<std::string> fields = FieldsOf(operation, result);
  return fields.size() == 2 && fields[1] == "3";
}

}  // namespace

HostWindow::HostWindow()
    : operations_(new QListWidget),
      points_(new PointList),
      purpose_(new QLabel),
      arguments_(new QFormLayout),
      strip_(new PaletteStrip),
      call_(new QPushButton("Call the operation")),
      raw_result_(new QLabel("Not called yet")),
      fields_(new QTableWidget(0, 3)) {
  setWindowTitle("ORRERYUI sample host");
  resize(900, 520);
  operations_->setObjectName("operations");
  raw_result_->setObjectName("result");
  raw_result_->setTextFormat(Qt::PlainText);
  fields_->setObjectName("fields");
  fields_->setHorizontalHeaderLabels({"Field", "Value", "Meaning"});
  fields_->horizontalHeader()->setStretchLastSection(true);
  fields_->verticalHeader()->hide();
  fields_->setTabKeyNavigation(false);
  call_->setObjectName("call");

  auto* const right = new QVBoxLayout;
  right->addWidget(purpose_);
  right->addLayout(arguments_);
  right->addWidget(strip_);
  right->addWidget(call_, 0, Qt::AlignLeft);
  right->addWidget(raw_result_);
  right->addWidget(fields_);
  auto* const left = new QVBoxLayout;
  left->addWidget(operations_, 2);
  left->addWidget(new QLabel("Registered points"));
  left->addWidget(points_, 1);
  auto* const all = new QHBoxLayout(this);
  all->addLayout(left, 1);
  all->addLayout(right, 3);

  for (const Operation& operation : Operations()) {
    operations_->addItem(QString::fromStdString(operation.name));
    kept_.merge(data_.StartValues(operation));
  }
  points_->Keep(kept_);
  connect(operations_, &QListWidget::currentRowChanged, this, &HostWindow::ShowChosen);
  // A list that gets the focus makes a row the current one without selecting it.
  connect(points_, &QListWidget::itemSelectionChanged, this, &HostWindow::TakePoint);
  connect(points_, &QListWidget::itemClicked, this, &HostWindow::TakePoint);
  connect(call_, &QPushButton::clicked, this, &HostWindow::CallChosen);
  operations_->setCurrentRow(0);
}

const Operation& HostWindow::Chosen() const {
  return Operations().at(static_cast<std::size_t>(operations_->currentRow()));
}

void HostWindow::ShowChosen() {
  const Operation& operation = Chosen();
  if (Takes(operation, "LIST")) kept_["LIST"] = data_.AlbumPoints();
  purpose_->setText(QString::fromStdString(operation.purpose));
  while (arguments_->rowCount() > 0) arguments_->removeRow(0);
  editors_.clear();
  for (const Argument& argument : operation.arguments) {
    auto* const editor = new QLineEdit;
    editor->setObjectName(QString::fromStdString(argument.name));
    editor->setToolTip(QString::fromStdString(argument.meaning));
    arguments_->addRow(QString::fromStdString(argument.meaning), editor);
    editors_.push_back(editor);
  }
  OrderTabs();
  ShowValues();
  raw_result_->setText("Not called yet");
  fields_->setRowCount(0);
}

void HostWindow::CallChosen() {
  const Operation& operation = Chosen();
  for (const QLineEdit* editor : editors_) {
    kept_[editor->objectName().toStdString()] = editor->text().toStdString();
  }
  const Outcome outcome = operation.call(InOrder(operation, kept_));
  if (outcome.error.empty()) {
    KeepResult(operation, outcome.result, kept_);
    if (GivesPoint(operation, outcome.result)) KeepPoint(operation);
    if (DeletesAlbum(operation, outcome.result)) points_->Drop(kept_["ALBUM"]);
  }
  ShowValues();
  ShowResult(operation, outcome);
}

void HostWindow::TakePoint() {
  const QModelIndexList chosen = points_->selectionModel()->selectedRows();
  if (chosen.isEmpty()) return;
  for (const auto& [name, value] : points_->Point(chosen.front().row())) kept_[name] = value;
  ShowValues();
}

void HostWindow::KeepPoint(const Operation& operation) {
  if (!Takes(operation, "NEW-ALBUM")) return points_->Keep(kept_);
  kept_["ALBUM"] = kept_["NEW-ALBUM"];
  points_->Keep(kept_);
  const std::string next = std::to_string(points_->count() + 1);
  kept_["NUMBER"] = next;
  kept_["NEW-ALBUM"] = data_.Filled(kAlbumFolder + "album" + next + ".alb");
}

void HostWindow::ShowValues() {
  for (QLineEdit* editor : editors_) {
    editor->setText(QString::fromStdString(kept_.at(editor->objectName().toStdString())));
  }
  ShowPalette();
}

void HostWindow::ShowPalette() {
  strip_->setVisible(Takes(Chosen(), "PALETTE"));
  strip_->Show(kept_.at("PALETTE-FOLDER"), std::atoi(kept_.at("PALETTE").c_str()));
}

void HostWindow::ShowResult(const Operation& operation, const Outcome& outcome) {
  raw_result_->setText(QString::fromStdString(
      outcome.error.empty() ? "Result: " + outcome.result : "Not called: " + outcome.error));
  const std::vector<std::string> texts =
      outcome.error.empty() ? FieldsOf(operation, outcome.result) : std::vector<std::string>();
  fields_->setRowCount(static_cast<int>(texts.size()));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const int row = static_cast<int>(i);
    fields_->setItem(row, 0, Cell(operation.fields[i].name));
    fields_->setItem(row, 1, Cell(ShownValue(operation, texts, i)));
    fields_->setItem(row, 2, Cell(operation.fields[i].meaning));
  }
  fields_->resizeColumnToContents(1);
  // A long value leaves room for its meaning.
  const int most = fields_->viewport()->width() * 2 / 5;
  fields_->setColumnWidth(1, std::min(fields_->columnWidth(1), most));
}

void HostWindow::OrderTabs() {
  QWidget* before = points_;
  for (QLineEdit* editor : editors_) {
    setTabOrder(before, editor);
    before = editor;
  }
  setTabOrder(before, call_);
  setTabOrder(call_, fields_);
}

}  // namespace orreryui::host
