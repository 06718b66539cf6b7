// The library's C interface, on top of its public headers alone.
#include <orreryui/orreryui.h>

// The header is plain C and says nothing of symbols.
#pragma GCC visibility push(default)
#include <orreryui/orreryui_c.h>
#pragma GCC visibility pop

#include "c_interface/call_in_utf8.h"

using namespace orreryui;

void orreryui_free(char* result) { std::free(result); }

int orreryui_OnMapTypeSet(int palette, int kind, int fill, int coast, int coast_on_tint,
                          const char* folder, const char* region, char** result) {
  return AskForText(result, "", OnMapTypeSet, palette, kind, fill, coast, coast_on_tint, folder,
                    region);
}

int orreryui_OnMapPalleteSet(int selected, const char* editor, const char* folder, int sea_colour,
                             int lake_colour, int background_colour, char** result) {
  return AskForText(result, "", OnMapPalleteSet, selected, editor, folder, sea_colour, lake_colour,
                    background_colour);
}

int orreryui_OnLegendElevetion(int palette, const char* folder, int lake_colour) {
  return Show(OnLegendElevetion, palette, folder, lake_colour);
}

int orreryui_OnDLLAlbumRegist(int code, const char* longitude, const char* latitude,
                              const char* album_file, const char* album_number, char** result) {
  return AskForText(result, "4||||", OnDLLAlbumRegist, code, longitude, latitude, album_file,
                    album_number);
}

int orreryui_OnAlbumUpdate(int code, const char* state, const char* album_file, const char* place,
                           const char* item, const char* longitude, const char* latitude,
                           const char* editor, char** result) {
  return AskForText(result, "", OnAlbumUpdate, code, state, album_file, place, item, longitude,
                    latitude, editor);
}

int orreryui_OnDataSourceSet(int selected, const char* common_area, const char* folder,
                             char** result) {
  return AskForText(result, "", OnDataSourceSet, selected, common_area, folder);
}

int orreryui_OnRouteInformation(int kind, const char* display, const char* editor,
                                const char* folder, char** result) {
  return AskForText(result, "", OnRouteInformation, kind, display, editor, folder);
}

int orreryui_OnRouteRegistModule(int shape, int size, const char* folder, const char* text1,
                                 const char* text2, const char* mode, const char* caption1,
                                 const char* caption2, const char* longitude, const char* latitude,
                                 const char* centre_latitude, const char* centre_longitude,
                                 const char* list_display, const char* file_display,
                                 const char* list, char** result) {
  return AskForText(result, "cancel", OnRouteRegistModule, shape, size, folder, text1, text2, mode,
                    caption1, caption2, longitude, latitude, centre_latitude, centre_longitude,
                    list_display, file_display, list);
}

int orreryui_OnDlgMenuBarFileUpdate(const char* folder, const char* editor, int kind) {
  return AskForConsent(OnDlgMenuBarFileUpdate, folder, editor, kind);
}

int orreryui_OnDlgMenuBarSlideSet(const char* folder, const char* display, int interval,
                                  char** result) {
  return AskForText(result, "", OnDlgMenuBarSlideSet, folder, display, interval);
}

int orreryui_OnSlideSet(int content, int interval, int map_size, const char* memo,
                        const char* method, const char* remaining, const char* position_map,
                        const char* jpeg, char** result) {
  return AskForText(result, "", OnSlideSet, content, interval, map_size, memo, method, remaining,
                    position_map, jpeg);
}

int orreryui_OnTextDisplayDaialog(const char* file, const char* title1, const char* title2) {
  return Show(OnTextDisplayDaialog, file, title1, title2);
}

int orreryui_OnMemoDisplay(int mode, int left, const char* file, const char* text) {
  return Show(OnMemoDisplay, mode, left, file, text);
}

int orreryui_OnGnpfRetrieveSet(int view, int file_new, int file_format, int elevation, int kind,
                               int large, int middle, int small, int prefecture, const char* mesh,
                               const char* word, const char* texts, char** result) {
  return AskForText(result, "", OnGnpfRetrieveSet, view, file_new, file_format, elevation, kind,
                    large, middle, small, prefecture, mesh, word, texts);
}

int orreryui_OnRengeConfirm(const char* west, const char* north, const char* east,
                            const char* south) {
  return AskForConsent(OnRengeConfirm, west, north, east, south);
}
