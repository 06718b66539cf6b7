#include "platform/dialogs/dialog.h"

#include <utility>

#include "platform/dialogs/front_end_loader.h"
#include "platform/dialogs/root_run.h"

namespace orreryui {
namespace {

bool HasRow(const Control& control, int row) {
  return row >= 0 && row < static_cast<int>(control.rows.size());
}

}  // namespace

void DataExchange::Text(int id, CString& field) {
  if (saves_) {
    field = dialog_.GetDlgItemText(id);
  } else {
    dialog_.SetDlgItemText(id, field);
  }
}

CDialog::CDialog(const DialogTemplate& dialog_template)
    : template_(dialog_template), model_(dialog_template) {}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
  FrontEnd* const front_end = CurrentFrontEnd();
  if (!front_end) return -1;
  ModalRun::RefreshInnermost();
  RootRun run(*this);
  return front_end->RunDialog(run) ? run.Result() : -1;
}

void CDialog::CreatePage(CDialog& sheet, int tab_control, int tab) {
  auto* const root = dynamic_cast<RootRun*>(sheet.run_);
  if (!root) return;
  page_run_ = std::make_unique<PageRun>(*this, *root, tab_control, tab);
  page_run_->Initialise();
}

void CDialog::OnOK() {
  UpdateData(true);
  EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

bool CDialog::OnMessage(int id, Event event) {
  if (event != Event::kClick) return false;
  if (id == IDOK) {
    OnOK();
  } else if (id == IDCANCEL) {
    OnCancel();
  } else {
    return false;
  }
  return true;
}

void CDialog::EndDialog(int code) {
  if (run_) run_->End(code);
}

void CDialog::UpdateData(bool saves) {
  DataExchange exchange(*this, saves);
  DoDataExchange(exchange);
}

const Control* CDialog::Find(int id) const {
  const int index = model_.IndexOf(id);
  return index < 0 ? nullptr : &model_.At(index);
}

Control* CDialog::Change(int id) {
  const int index = model_.IndexOf(id);
  return index < 0 ? nullptr : &model_.Change(index);
}

CString CDialog::GetDlgItemText(int id) const {
  const Control* control = Find(id);
  return control ? control->text : CString();
}

void CDialog::SetDlgItemText(int id, CString text) {
  if (Control* control = Change(id)) control->SetText(std::move(text));
}

void CDialog::SetDlgItemInt(int id, int value) {
  CString text;
  text.Format("%d", value);
  SetDlgItemText(id, text);
}

void CDialog::SetWindowText(const char* title) { model_.SetTitle(title); }

void CDialog::MoveWindow(int x, int y) { model_.MoveTo(x, y); }

void CDialog::SetFocus(int id) {
  const int index = model_.IndexOf(id);
  if (run_ && index >= 0 && model_.At(index).TakesFocus()) run_->MoveFocus(index);
}

void CDialog::ShowWindow(int id, bool shows) {
  if (Control* control = Change(id)) control->visible = shows;
}

void CDialog::EnableWindow(int id, bool enables) {
  if (Control* control = Change(id)) control->enabled = enables;
}

void CDialog::CheckRadioButton(int first, int last, int id) {
  for (int button = first; button <= last; ++button) CheckDlgButton(button, button == id);
}

void CDialog::CheckDlgButton(int id, bool checks) {
  if (Control* control = Change(id)) control->checked = checks;
}

bool CDialog::IsDlgButtonChecked(int id) const {
  const Control* control = Find(id);
  return control && control->checked;
}

void CDialog::ResetContent(int id) {
  Control* control = Change(id);
  if (!control) return;
  control->rows.clear();
  control->selection = -1;
  if (control->HasEditField()) control->SetText(CString());
}

void CDialog::AddString(int id, const char* text) {
  if (Control* control = Change(id)) control->rows.push_back({CString(text)});
}

int CDialog::GetCount(int id) const {
  const Control* control = Find(id);
  return control ? static_cast<int>(control->rows.size()) : 0;
}

int CDialog::GetCurSel(int id) const {
  const Control* control = Find(id);
  return control ? control->selection : -1;
}

void CDialog::SetCurSel(int id, int row) {
  Control* control = Change(id);
  if (!control) return;
  control->selection = HasRow(*control, row) ? row : -1;
  if (control->HasEditField()) control->SetText(GetLBText(id, row));
}

CString CDialog::GetLBText(int id, int row) const {
  const Control* control = Find(id);
  if (!control || !HasRow(*control, row)) return CString();
  return control->rows[static_cast<std::size_t>(row)].front();
}

void CDialog::InsertColumn(int id, const char* title, int width) {
  Control* control = Change(id);
  if (!control) return;
  control->column_titles.emplace_back(title);
  control->column_widths.push_back(width);
}

void CDialog::SetItemText(int id, int row, int column, const char* text) {
  Control* control = Change(id);
  if (!control || !HasRow(*control, row) || column < 0) return;
  std::vector<CString>& cells = control->rows[static_cast<std::size_t>(row)];
  const std::size_t place = static_cast<std::size_t>(column);
  if (cells.size() <= place) cells.resize(place + 1);
  cells[place] = text;
}

void CDialog::SetSwatch(int id, std::optional<std::uint32_t> colour, const char* note) {
  Control* control = Change(id);
  if (!control) return;
  control->swatch.colour = colour;
  control->swatch.note = note;
}

void CDialog::FrameSwatch(int id, std::optional<std::uint32_t> colour) {
  if (Control* control = Change(id)) control->swatch.frame = colour;
}

}  // namespace orreryui
