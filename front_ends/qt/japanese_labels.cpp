#include "front_ends/qt/japanese_labels.h"

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
    {"QPlatformTheme", "OK", u"OK"},
    {"QPlatformTheme", "&Open", u"開く"},
    {"QPlatformTheme", "&Save", u"保存"},
    {"QPlatformTheme", "Cancel", u"キャンセル"},
    {"QPlatformTheme", "&Yes", u"はい"},
    {"QPlatformTheme", "&No", u"いいえ"},
};

}  // namespace

QString JapaneseLabels::translate(const char* context, const char* source, const char*, int) const {
  for (const Label& label : kLabels) {
    if (label.context == context && label.source == source) {
      return QString::fromUtf16(label.japanese);
    }
  }
  return {};
}

}  // namespace orreryui
