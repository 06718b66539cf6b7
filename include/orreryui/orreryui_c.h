/* The operations of the library for C, and for all languages that call C. Texts are UTF-8.
 *
 * Each function here shows the dialog of the operation whose name follows "orreryui_", and takes
 * its arguments under their names: orreryui.h says what they mean, what the dialog does, and what
 * holds for all calls, such as the thread that they come from. A null pointer stands for the empty
 * text. Every function returns one of
 *
 *   ORRERYUI_OK             The user has decided. Where there is a `result`, it holds the text that
 *                           orreryui.h describes: numbers with a bar behind each, and texts.
 *   ORRERYUI_GIVEN_UP       The user gave up, no window could be shown, or another operation runs.
 *   ORRERYUI_OUT_OF_MEMORY  Memory ran out on the way into the operation or out of it. Data files
 *                           that the dialog has written stay written.
 *   a negative number -N    The Nth argument, counted from 1, isn't UTF-8 or has a character that
 *                           code page 932 lacks. No dialog was shown. Of several the first is told.
 *
 * An operation that runs out of memory itself is given up. `*result` is a text of the caller's,
 * which orreryui_free frees, and null unless the function returns ORRERYUI_OK. Bytes of a data file
 * that make no character of code page 932 are U+FFFD in it, which can't be passed in again. Where
 * `result` itself is null, the text is dropped.
 */
#ifndef ORRERYUI_ORRERYUI_C_H_
#define ORRERYUI_ORRERYUI_C_H_

#ifdef __cplusplus
extern "C" {
#endif

enum { ORRERYUI_OK = 0, ORRERYUI_GIVEN_UP = 1, ORRERYUI_OUT_OF_MEMORY = 2 };

/* Frees a result. A null pointer is none. */
void orreryui_free(char* result);

/* The kind of the map, its palette, projections and coastline colour, and the region of
 * prefectures. */
int orreryui_OnMapTypeSet(int palette, int kind, int fill, int coast, int coast_on_tint,
                          const char* folder, const char* region, char** result);

/* Choose, change, register and delete palettes. */
int orreryui_OnMapPalleteSet(int selected, const char* editor, const char* folder, int sea_colour,
                             int lake_colour, int background_colour, char** result);

/* The legend of the elevations. ORRERYUI_OK says nothing about whether it could be shown. */
int orreryui_OnLegendElevetion(int palette, const char* folder, int lake_colour);

/* A new album. ORRERYUI_GIVEN_UP also where `code` is 4 and the user ended the registration without
 * any text, which can't be told apart. */
int orreryui_OnDLLAlbumRegist(int code, const char* longitude, const char* latitude,
                              const char* album_file, const char* album_number, char** result);

/* Look through an album, change its point, edit its file. */
int orreryui_OnAlbumUpdate(int code, const char* state, const char* album_file, const char* place,
                           const char* item, const char* longitude, const char* latitude,
                           const char* editor, char** result);

/* Choose one of the host's data files. */
int orreryui_OnDataSourceSet(int selected, const char* common_area, const char* folder,
                             char** result);

/* Choose a stored route map or area map. ORRERYUI_OK also where the user chose none; the number in
 * the result is -1 then. */
int orreryui_OnRouteInformation(int kind, const char* display, const char* editor,
                                const char* folder, char** result);

/* The points of an album, a map or a list, which can be stored as a new map. The result is never
 * "cancel": that is ORRERYUI_GIVEN_UP. */
int orreryui_OnRouteRegistModule(int shape, int size, const char* folder, const char* text1,
                                 const char* text2, const char* mode, const char* caption1,
                                 const char* caption2, const char* longitude, const char* latitude,
                                 const char* centre_latitude, const char* centre_longitude,
                                 const char* list_display, const char* file_display,
                                 const char* list, char** result);

/* Add and change entries of the host's menus. ORRERYUI_OK where the operation returns 1; otherwise
 * ORRERYUI_GIVEN_UP, also after changes that are in the file. */
int orreryui_OnDlgMenuBarFileUpdate(const char* folder, const char* editor, int kind);

/* The menus that take part in a slide show. */
int orreryui_OnDlgMenuBarSlideSet(const char* folder, const char* display, int interval,
                                  char** result);

/* How a slide show of the registered points runs. */
int orreryui_OnSlideSet(int content, int interval, int map_size, const char* memo,
                        const char* method, const char* remaining, const char* position_map,
                        const char* jpeg, char** result);

/* A text file. ORRERYUI_OK says nothing about whether it could be shown. */
int orreryui_OnTextDisplayDaialog(const char* file, const char* title1, const char* title2);

/* A memo. ORRERYUI_OK says nothing about whether it could be shown. */
int orreryui_OnMemoDisplay(int mode, int left, const char* file, const char* text);

/* Set up a retrieval of place names or public facilities. */
int orreryui_OnGnpfRetrieveSet(int view, int file_new, int file_format, int elevation, int kind,
                               int large, int middle, int small, int prefecture, const char* mesh,
                               const char* word, const char* texts, char** result);

/* The corners of a range on the map. ORRERYUI_OK if the user wants the enlarged map of it, and
 * ORRERYUI_GIVEN_UP if the range is dropped. */
int orreryui_OnRengeConfirm(const char* west, const char* north, const char* east,
                            const char* south);

#ifdef __cplusplus
}
#endif

#endif /* ORRERYUI_ORRERYUI_C_H_ */
