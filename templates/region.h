// Template 179: the region. The buttons of the prefectures are the tiles of a map of Japan.
#ifndef ORRERYUI_TEMPLATES_REGION_H_
#define ORRERYUI_TEMPLATES_REGION_H_

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::region {

inline constexpr int kWhole = 1484;
inline constexpr int kFirstPrefecture = 1485;  // in the order of JIS X 0401
inline constexpr int kLastPrefecture = 1531;
inline constexpr int kSeveralNote = 1683;
inline constexpr int kNote = 1684;

struct Prefecture {
  const char* name;
  const char* reading;
};

inline constexpr Prefecture kPrefectures[] = {
    {"北海道"_sj, "ほっかいどう"_sj}, {"青森"_sj, "あおもり"_sj},   {"岩手"_sj, "いわて"_sj},
    {"宮城"_sj, "みやぎ"_sj},         {"秋田"_sj, "あきた"_sj},     {"山形"_sj, "やまがた"_sj},
    {"福島"_sj, "ふくしま"_sj},       {"茨城"_sj, "いばらき"_sj},   {"栃木"_sj, "とちぎ"_sj},
    {"群馬"_sj, "ぐんま"_sj},         {"埼玉"_sj, "さいたま"_sj},   {"千葉"_sj, "ちば"_sj},
    {"東京"_sj, "とうきょう"_sj},     {"神奈川"_sj, "かながわ"_sj}, {"新潟"_sj, "にいがた"_sj},
    {"富山"_sj, "とやま"_sj},         {"石川"_sj, "いしかわ"_sj},   {"福井"_sj, "ふくい"_sj},
    {"山梨"_sj, "やまなし"_sj},       {"長野"_sj, "ながの"_sj},     {"岐阜"_sj, "ぎふ"_sj},
    {"静岡"_sj, "しずおか"_sj},       {"愛知"_sj, "あいち"_sj},     {"三重"_sj, "みえ"_sj},
    {"滋賀"_sj, "しが"_sj},           {"京都"_sj, "きょうと"_sj},   {"大阪"_sj, "おおさか"_sj},
    {"兵庫"_sj, "ひょうご"_sj},       {"奈良"_sj, "なら"_sj},       {"和歌山"_sj, "わかやま"_sj},
    {"鳥取"_sj, "とっとり"_sj},       {"島根"_sj, "しまね"_sj},     {"岡山"_sj, "おかやま"_sj},
    {"広島"_sj, "ひろしま"_sj},       {"山口"_sj, "やまぐち"_sj},   {"徳島"_sj, "とくしま"_sj},
    {"香川"_sj, "かがわ"_sj},         {"愛媛"_sj, "えひめ"_sj},     {"高知"_sj, "こうち"_sj},
    {"福岡"_sj, "ふくおか"_sj},       {"佐賀"_sj, "さが"_sj},       {"長崎"_sj, "ながさき"_sj},
    {"熊本"_sj, "くまもと"_sj},       {"大分"_sj, "おおいた"_sj},   {"宮崎"_sj, "みやざき"_sj},
    {"鹿児島"_sj, "かごしま"_sj},     {"沖縄"_sj, "おきなわ"_sj},
};

// The map: cells of two characters, the number of the prefecture that has the cell, or blanks for
// the sea. The cells of a prefecture fill a rectangle, and rectangles share an edge where the
// prefectures share a border.
inline constexpr std::string_view kMap[] = {
    // clang-format off
    "                                                0101010101",
    "                                                0101010101",
    "                                                0101010101",
    "                                                0101010101",
    "                                                          ",
    "                                                  02020202",
    "                                                  02020202",
    "                                                  05050303",
    "                                                  05050303",
    "                                                  05050404",
    "                                                  06060404",
    "                                  1717    1515151506060404",
    "                                  171716161515151507070707",
    "                                  171716162020101007070707",
    "                                  171721212020101009090808",
    "              32323231313128282626181821212020101009090808",
    "              32323231313128282626181821212020101009090808",
    "              35353434333328282626252521212020111111110808",
    "              35353434333328282626252521212020111111111212",
    "                          27272626242421212020191913131212",
    "  414140404444  38383737  27272929242423232020191913131212",
    "  414140404444  38383737  2727292924242323222222141414    ",
    "4242  43434444  38383636  3030303024242323222222141414    ",
    "4242  43434545  39393636  30303030                        ",
    "      43434545  3939                                      ",
    "    4646464545                                            ",
    "    464646                                                ",
    "                                                          ",
    "4747                                                      ",
    "4747                                                      ",
    // clang-format on
};

inline constexpr DialogRect kMapCell = {8, 8, 14, 8};  // the one in the north-west

// The tiles of the prefectures, by number, in dialog units; the first one is empty.
consteval std::array<DialogRect, 1 + std::size(kPrefectures)> MakeTiles() {
  std::array<DialogRect, 1 + std::size(kPrefectures)> tiles;
  for (int row = 0; row < static_cast<int>(std::size(kMap)); ++row) {
    std::string_view cells = kMap[row];
    for (int column = 0; !cells.empty(); ++column, cells.remove_prefix(2)) {
      if (cells[0] == ' ') continue;
      const int number = (cells[0] - '0') * 10 + (cells[1] - '0');
      DialogRect& tile = tiles[static_cast<std::size_t>(number)];
      if (tile.width == 0) tile = {column, row, 0, 0};
      tile.width = std::max(tile.width, column + 1 - tile.x);
      tile.height = row + 1 - tile.y;
    }
  }
  for (DialogRect& tile : tiles) {
    tile = {kMapCell.x + tile.x * kMapCell.width, kMapCell.y + tile.y * kMapCell.height,
            tile.width * kMapCell.width, tile.height * kMapCell.height};
  }
  return tiles;
}

inline constexpr auto kTiles = MakeTiles();

// What stands around the map: the whole in the empty north-west, the end in the south-east.
inline constexpr ControlTemplate kWholeControls[] = {
    {ControlKind::kPushLikeCheckBox, kWhole, "すべての都道府県"_sj, {8, 8, 96, 16}},
    {ControlKind::kStatic, kSeveralNote, "(複数選択可)"_sj, {112, 12, 60, 8}},
    {ControlKind::kStatic,
     kNote,
     "国土数値情報のうち全国版でダウンロードしたデータの一部は地域選択できません！"_sj,
     {8, 30, 320, 16}},
};
inline constexpr ControlTemplate kEndControls[] = {
    {ControlKind::kPushButton, IDOK, "OK", {290, 232, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {356, 232, 58, 16}},
};

consteval auto MakeControls() {
  std::array<ControlTemplate,
             std::size(kWholeControls) + std::size(kPrefectures) + std::size(kEndControls)>
      controls;
  auto next = std::ranges::copy(kWholeControls, controls.begin()).out;
  for (std::size_t i = 0; i < std::size(kPrefectures); ++i) {
    *next++ = {ControlKind::kPushLikeCheckBox, kFirstPrefecture + static_cast<int>(i),
               kPrefectures[i].name,           kTiles[i + 1],
               i == 0 ? kGroupStart : kPlain,  {},
               kPrefectures[i].reading};
  }
  std::ranges::copy(kEndControls, next);
  return controls;
}

inline constexpr auto kControls = MakeControls();

inline constexpr DialogTemplate kTemplate = {
    179,
    "  地域選択（国土数値情報データを表示する都道府県）"_sj,
    Placement::kOnPointer,
    0,
    0,
    422,
    256,
    kControls};

}  // namespace orreryui::region

#endif  // ORRERYUI_TEMPLATES_REGION_H_
