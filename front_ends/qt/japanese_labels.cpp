#include "front_ends/qt/japanese_labels.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>
#include <string_view>

namespace orreryui {
namespace {

struct Label {
  std::string_view context;
  std::string_view source;
  const char16_t* japanese;
};

constexpr Label kLabels[] = {
    {"QColorDialog", "Hu&e:", u"色相:"},
    {"QColorDialog", "&Sat:", u"彩度:"},
    {"QColorDialog", "&Val:", u"明度:"},
    {"QColorDialog", "&Red:", u"赤:"},
    {"QColorDialog", "&Green:", u"緑:"},
    {"QColorDialog", "Bl&ue:", u"青:"},
    {"QColorDialog", "A&lpha channel:", u"不透明度:"},
    {"QColorDialog", "&HTML:", u"HTML:"},
    {"QColorDialog", "&Basic colors", u"基本色"},
    {"QColorDialog", "&Custom colors", u"作成した色"},
    {"QColorDialog", "&Add to Custom Colors", u"作成した色に加える"},
    {"QColorDialog", "&Pick Screen Color", u"画面から色を取る"},
    {"QColorDialog", "Select Color", u"色の設定"},
    {"QColorDialog", "Cursor at %1, %2\nPress ESC to cancel", u"位置 %1, %2\nEscでやめます"},
    {"QFileDialog", "Look in:", u"場所:"},
    {"QFileDialog", "File &name:", u"ファイル名:"},
    {"QFileDialog", "Files of type:", u"ファイルの種類:"},
    {"QFileDialog", "Open", u"ファイルを開く"},
    {"QFileDialog", "&Open", u"開く"},
    {"QFileDialog", "Back", u"戻る"},
    {"QFileDialog", "Go back", u"前のフォルダーに戻る"},
    {"QFileDialog", "Forward", u"進む"},
    {"QFileDialog", "Go forward", u"次のフォルダーに進む"},
    {"QFileDialog", "Parent Directory", u"上のフォルダー"},
    {"QFileDialog", "Go to the parent directory", u"上のフォルダーに移る"},
    {"QFileDialog", "Create New Folder", u"新しいフォルダー"},
    {"QFileDialog", "Create a New Folder", u"新しいフォルダーを作る"},
    {"QFileDialog", "New Folder", u"新しいフォルダー"},
    {"QFileDialog", "&New Folder", u"新しいフォルダー"},
    {"QFileDialog", "List View", u"一覧"},
    {"QFileDialog", "Change to list view mode", u"名前だけを並べる"},
    {"QFileDialog", "Detail View", u"詳細"},
    {"QFileDialog", "Change to detail view mode", u"大きさや日時も並べる"},
    {"QFileDialog", "Sidebar", u"よく使う場所"},
    {"QFileDialog", "List of places and bookmarks", u"よく使う場所の一覧"},
    {"QFileDialog", "Recent Places", u"最近使った場所"},
    {"QFileDialog", "Remove", u"一覧から外す"},
    {"QFileDialog", "Files", u"ファイル"},
    {"QFileDialog", "All Files (*)", u"すべてのファイル (*)"},
    {"QFileDialog", "Show ", u"表示: "},
    {"QFileDialog", "Show &hidden files", u"隠しファイルも見せる"},
    {"QFileDialog", "&Rename", u"名前の変更"},
    {"QFileDialog", "&Delete", u"削除"},
    {"QFileDialog", "Delete", u"削除"},
    {"QFileDialog", "Are you sure you want to delete '%1'?", u"「%1」を削除しますか？"},
    {"QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?",
     u"「%1」は書き込みが禁じられています。\nそれでも削除しますか？"},
    {"QFileDialog", "Could not delete directory.", u"フォルダーを削除できませんでした。"},
    {"QFileSystemModel", "Name", u"名前"},
    {"QFileSystemModel", "Size", u"大きさ"},
    {"QFileSystemModel", "Type", u"種類"},
    {"QFileSystemModel", "Date Modified", u"更新日時"},
    {"QFileSystemModel", "Computer", u"コンピューター"},
    {"QAbstractFileIconProvider", "Drive", u"ドライブ"},
    {"QAbstractFileIconProvider", "Folder", u"フォルダー"},
    {"QAbstractSpinBox", "&Select All", u"すべて選択"},
    {"QAbstractSpinBox", "&Step up", u"増やす"},
    {"QAbstractSpinBox", "Step &down", u"減らす"},
    {"QLineEdit", "&Undo", u"元に戻す"},
    {"QLineEdit", "&Redo", u"やり直す"},
    {"QLineEdit", "Cu&t", u"切り取り"},
    {"QLineEdit", "&Copy", u"コピー"},
    {"QLineEdit", "&Paste", u"貼り付け"},
    {"QLineEdit", "Delete", u"削除"},
    {"QLineEdit", "Select All", u"すべて選択"},
    {"QWidgetTextControl", "&Undo", u"元に戻す"},
    {"QWidgetTextControl", "&Redo", u"やり直す"},
    {"QWidgetTextControl", "Cu&t", u"切り取り"},
    {"QWidgetTextControl", "&Copy", u"コピー"},
    {"QWidgetTextControl", "&Paste", u"貼り付け"},
    {"QWidgetTextControl", "Delete", u"削除"},
    {"QWidgetTextControl", "Select All", u"すべて選択"},
    {"QScrollBar", "Scroll here", u"ここまで移る"},
    {"QScrollBar", "Top", u"先頭"},
    {"QScrollBar", "Bottom", u"末尾"},
    {"QScrollBar", "Page up", u"1画面上へ"},
    {"QScrollBar", "Page down", u"1画面下へ"},
    {"QScrollBar", "Scroll up", u"上へ"},
    {"QScrollBar", "Scroll down", u"下へ"},
    {"QScrollBar", "Left edge", u"左端"},
    {"QScrollBar", "Right edge", u"右端"},
    {"QScrollBar", "Page left", u"1画面左へ"},
    {"QScrollBar", "Page right", u"1画面右へ"},
    {"QScrollBar", "Scroll left", u"左へ"},
    {"QScrollBar", "Scroll right", u"右へ"},
    {"QTabBar", "Scroll Left", u"左へ"},
    {"QTabBar", "Scroll Right", u"右へ"},
    {"QPlatformTheme", "OK", u"OK"},
    {"QPlatformTheme", "Open", u"開く"},
    {"QPlatformTheme", "Cancel", u"キャンセル"},
    {"QPlatformTheme", "&Yes", u"はい"},
    {"QPlatformTheme", "&No", u"いいえ"},
};

int scopes = 0;

class Labels : public QTranslator {
 public:
  // A translator that says it is empty is asked all the same, but joins without a word to the
  // windows of the application.
  bool isEmpty() const override { return true; }

  QString translate(const char* context, const char* source, const char*, int) const override {
    if (scopes == 0) return {};
    for (const Label& label : kLabels) {
      if (label.context == context && label.source == source) {
        return QString::fromUtf16(label.japanese);
      }
    }
    return {};
  }
};

// Installs the labels for good: to take them out would tell the windows.
void Install() {
  static auto& labels = *new Labels;
  static QPointer<QCoreApplication> application;
  if (application == QCoreApplication::instance()) return;
  application = QCoreApplication::instance();
  QCoreApplication::installTranslator(&labels);
}

}  // namespace

JapaneseLabels::JapaneseLabels() {
  Install();
  ++scopes;
}

JapaneseLabels::~JapaneseLabels() { --scopes; }

}  // namespace orreryui
