#include "retrieval/conditions_page.h"

#include <iterator>

namespace orreryui {
namespace {

constexpr int kNoRow = -1;

bool IsPrefecture(int index) { return index >= 0 && index < std::ssize(kPrefectures); }

// The code of a small class by its name.
int SmallCode(const ClassWithSmall* large_or_middle, const CString& name) {
  if (!large_or_middle) return kNoSmallClass;
  for (const CodedName& small : large_or_middle->small) {
    if (name == small.name) return small.code;
  }
  return kNoSmallClass;
}

}  // namespace

void CDlgGnpfConditions::OnInitDialog() {
  FillList(controls_.admin, kPrefectures);
  if (IsPrefecture(m_nAdmin)) {
    SetCurSel(controls_.admin, m_nAdmin);
    TakePrefecture();
  }
  if (m_nLarge != -1) SetDlgItemText(controls_.large, m_strLarge);
  if (m_nSmall != -1) SetDlgItemText(controls_.small, m_strSmall);
  SetDlgItemText(controls_.mesh, m_strMesh);
  SetDlgItemText(controls_.word, m_strWord);
}

void CDlgGnpfConditions::OnSelectAdmin() {
  m_nAdmin = GetCurSel(controls_.admin);
  TakePrefecture();
}

void CDlgGnpfConditions::OnSelectSmall() {
  m_strSmall = GetLBText(controls_.small, GetCurSel(controls_.small));
  m_nSmall = SmallCode(ClassOfSmall(), m_strSmall);
  ShowCode(controls_.small_code, m_nSmall);
}

void CDlgGnpfConditions::OnLeaveMesh() { m_strMesh = GetDlgItemText(controls_.mesh); }

void CDlgGnpfConditions::OnLeaveAdmin() {
  if (m_nAdmin == -1) m_strAdminCode = GetDlgItemText(controls_.admin);
}

void CDlgGnpfConditions::OnLeaveWord() { m_strWord = GetDlgItemText(controls_.word); }

void CDlgGnpfConditions::OnClear() {
  m_nLarge = m_nSmall = m_nAdmin = -1;
  m_strMesh.Empty();
  m_strAdminCode.Empty();
  for (const int id : {controls_.mesh, controls_.admin, controls_.large, controls_.small}) {
    SetCurSel(id, kNoRow);
  }
  for (const int id : {controls_.large_code, controls_.small_code}) SetDlgItemText(id, "");
}

void CDlgGnpfConditions::TakeLarge(int code, const char* name) {
  m_nLarge = code;
  m_strLarge = name;
  m_nSmall = -1;
  ShowCode(controls_.large_code, code);
  SetDlgItemText(controls_.small_code, "");
}

void CDlgGnpfConditions::ListSmall() { FillList(controls_.small, ClassOfSmall()->small); }

void CDlgGnpfConditions::ShowCode(int id, int code) {
  CString text;
  text.Format("%2d", code);
  SetDlgItemText(id, text);
}

void CDlgGnpfConditions::TakePrefecture() {
  const CodedName& prefecture = kPrefectures[m_nAdmin];
  m_strAdminCode.Format("%d", prefecture.code);
  m_strAdminName = prefecture.name;
}

}  // namespace orreryui
