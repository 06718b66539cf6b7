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
    {"QFileDialog", "Back", u"戻る"},
    {"QFileDialog", "Forward", u"進む"},
    {"QFileDialog", "Parent Directory", u"上のフォルダー"},
    {"QFileDialog", "Create New Folder", u"新しいフォルダー"},
    {"QFileDialog", "New Folder", u"新しいフォルダー"},
    {"QFileDialog", "&New Folder", u"新しいフォルダー"},
    {"QFileDialog", "List View", u"一覧"},
    {"QFileDialog", "Detail View", u"詳細"},
    {"QFileDialog", "All Files (*)", u"すべてのファイル (*)"},
    {"QFileDialog", "Directory:", u"フォルダー:"},
    {"QFileDialog", "Computer", u"コンピューター"},
    {"QFileDialog", "Sidebar", u"よく使う場所"},
    {"QFileDialog", "Files", u"ファイル"},
    {"QFileDialog", "&Rename", u"名前の変更"},
    {"QFileDialog", "&Delete", u"削除"},
    {"QFileDialog", "Show &hidden files", u"隠しファイルも見せる"},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
     u"%1\nファイルがありません。\nファイル名を確かめてください。"},
    {"QFileSystemModel", "Name", u"名前"},
    {"QFileSystemModel", "Size", u"大きさ"},
    {"QFileSystemModel", "Type", u"種類"},
    {"QFileSystemModel", "Kind", u"種類"},
    {"QFileSystemModel", "Date Modified", u"更新日時"},
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
    {"QPlatformTheme", "OK", u"OK"},
    {"QPlatformTheme", "&Open", u"開く"},
    {"QPlatformTheme", "&Save", u"保存"},
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
