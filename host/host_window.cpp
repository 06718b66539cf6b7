#include "host/host_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/operation_table.h"

namespace orreryui::host {
namespace {

QTableWidgetItem* Cell(const std::string& text) {
  auto* const item = new QTableWidgetItem(QString::fromStdString(text));
  item->setFlags(item->flags() & ~Qt::ItemIsEditable);
  return item;
}

}  // namespace

HostWindow::HostWindow()
    : operations_(new QListWidget),
      purpose_(new QLabel),
      arguments_(new QFormLayout),
      strip_(new PaletteStrip),
      raw_result_(new QLabel("Not called yet")),
      fields_(new QTableWidget(0, 3)) {
  setWindowTitle("ORRERYUI sample host");
  resize(900, 520);
  operations_->setObjectName("operations");
  operations_->setMaximumWidth(240);
  raw_result_->setObjectName("result");
  raw_result_->setTextFormat(Qt::PlainText);
  fields_->setObjectName("fields");
  fields_->setHorizontalHeaderLabels({"Field", "Value", "Meaning"});
  fields_->horizontalHeader()->setStretchLastSection(true);
  fields_->verticalHeader()->hide();
  auto* const call = new QPushButton("Call the operation");
  call->setObjectName("call");

  auto* const right = new QVBoxLayout;
  right->addWidget(purpose_);
  right->addLayout(arguments_);
  right->addWidget(strip_);
  right->addWidget(call, 0, Qt::AlignLeft);
  right->addWidget(raw_result_);
  right->addWidget(fields_);
  auto* const all = new QHBoxLayout(this);
  all->addWidget(operations_);
  all->addLayout(right, 1);

  for (const Operation& operation : Operations()) {
    operations_->addItem(QString::fromStdString(operation.name));
    kept_[operation.name] = data_.StartValues(operation);
  }
  connect(operations_, &QListWidget::currentRowChanged, this, &HostWindow::ShowChosen);
  connect(call, &QPushButton::clicked, this, &HostWindow::CallChosen);
  operations_->setCurrentRow(0);
}

const Operation& HostWindow::Chosen() const {
  return Operations().at(static_cast<std::size_t>(operations_->currentRow()));
}

void HostWindow::ShowChosen() {
  const Operation& operation = Chosen();
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
  ShowValues(kept_.at(operation.name));
  raw_result_->setText("Not called yet");
  fields_->setRowCount(0);
}

void HostWindow::CallChosen() {
  const Operation& operation = Chosen();
  std::vector<std::string>& values = kept_.at(operation.name);
  for (std::size_t i = 0; i < editors_.size(); ++i) {
    values[i] = editors_[i]->text().toStdString();
  }
  const Outcome outcome = operation.call(values);
  if (outcome.error.empty()) values = NextValues(operation, values, outcome.result);
  ShowValues(values);
  ShowResult(operation, outcome);
}

void HostWindow::ShowValues(const std::vector<std::string>& values) {
  for (std::size_t i = 0; i < editors_.size(); ++i) {
    editors_[i]->setText(QString::fromStdString(values[i]));
  }
  ShowPalette();
}

void HostWindow::ShowPalette() {
  const auto& palette = Chosen().palette;
  strip_->setVisible(palette.has_value());
  if (!palette) return;
  const auto text = [this](std::size_t argument) { return editors_[argument]->text(); };
  strip_->Show(text(palette->folder).toStdString(), text(palette->number).toInt());
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
    fields_->setItem(row, 1, Cell(texts[i]));
    fields_->setItem(row, 2, Cell(operation.fields[i].meaning));
  }
  fields_->resizeColumnToContents(1);
}

}  // namespace orreryui::host
