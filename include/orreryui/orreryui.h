// The operations of the library: everything that a host calls.
//
// Each operation shows one modal dialog in Japanese, returns when the user has closed it, and keeps
// nothing until the next call but the data files. All calls that show a dialog come from one
// thread; in a program that has a QApplication, from the thread of that object.
//
// Strings are in code page 932 (Shift-JIS). The operation gets copies and returns a string that the
// caller owns. Where a result has several fields, a vertical bar stands between them: each number
// is decimal and ends in a bar, texts stand as they are, and nothing is escaped, so that a bar in a
// text moves the fields behind it. The empty string means that the user gave up, or that no window
// could be shown: no display, or no front end beside the library. Data files that the dialog had
// written before stay written.
//
// An operation returns what it returns when the user gives up, and throws nothing, also where
// memory, threads or file descriptors run out, where the program's QApplication quits, and at once
// where another operation still runs: in another thread, or in this one, from an event that the
// program gets meanwhile. A file that can't be written, a limit on its size included, is as it was
// before.
//
// What a program has to see to itself:
//
//   Other toolkits   The dialog stands before the active window if that is the program's, which is
//                    known on X11 alone, and keeps the input from the windows of Qt. A program that
//                    has windows of another toolkit disables them during a call.
//   The display      If it dies while a dialog is open, Qt ends the process.
//   The environment  While the first dialog of a program without a QApplication starts, LC_ALL and
//                    FC_LANG are set, DESKTOP_STARTUP_ID may be unset, and the locale and signal
//                    handlers may be others. All are put back before the dialog shows. Other
//                    threads had better not read or set environment or locale in that moment. Where
//                    there is a QApplication, nothing of this changes.
//
// Folders end in their separator, such as C:\MAP\ or /home/me/map/. Both separators are understood,
// a drive letter is dropped, and a name that doesn't exist as spelled is looked for without regard
// to case.
#ifndef ORRERYUI_ORRERYUI_H_
#define ORRERYUI_ORRERYUI_H_

#include <orreryui/cstring.h>

#define ORRERYUI_EXPORT __attribute__((visibility("default")))

namespace orreryui {
extern "C" {

#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"  // the names are undecorated, not C
#endif

// Lets the user choose what the map shows: its kind, blank or hypsometric tint map, palette, fill
// method, coastline colour and projections, and for the map by prefecture the region. The palettes
// are those listed in "PLTTFILE.DAT" in `folder`. No file is written. Indices count from 0, in the
// order of the dialog's lists; one that its list doesn't hold comes back unchanged if the user
// picks none. P becomes 1 where the user makes the map by prefecture a tint map with the button, or
// chooses a region for a tint map.
//
//   palette        the number of the palette: its line in the list, from 0
//   kind           10 * J + K. K is the kind of the map: 1 topographic map 1:200000, 2 archipelago,
//                  3 by prefecture. J is the projection of the archipelago: 0 Sanson, 2 Albers (1
//                  is understood as 2).
//   fill           10000 * P + T. P is the projection of the map by prefecture: 0 Sanson, 1
//                  equirectangular. T is 0 for a blank map and 1 for a tint map. The hundreds and
//                  thousands aren't used.
//   coast          10000 * C3 + 100 * C1 + M: the indices of the coastline colours of kinds 3 and 1
//                  and of the fill method
//   coast_on_tint  1: a tint map has a coastline colour too; otherwise a blank map alone has one
//   folder         the folder of the palettes, with its separator
//   region         one number for the whole of Japan and one for each prefecture, in the order of
//                  the codes of JIS X 0401: 1 for those that are chosen, 0 for the others, each
//                  with a bar behind it; then "1" if one alone is to be chosen, anything else if
//                  several may be
//
// Returns ten numbers and a text: 1 if something other than a coastline colour has changed, else
// -1; palette; K; T; M; 0; P; C1; C3; J; region. A region that the user chose ends in "1".
ORRERYUI_EXPORT CString OnMapTypeSet(int palette, int kind, int fill, int coast, int coast_on_tint,
                                     CString folder, CString region);

// Lets the user choose a palette of the relief map, change its colours, register, update or delete
// one, or open its file in a text editor. The palettes are listed in "PLTTFILE.DAT" in `folder`,
// and each has a text file there; what the user saves or deletes is on the disk at once. The list
// must exist for a palette to be registered, and its name and its file's name have 97 bytes at the
// most.
//
//   selected           the number of the palette chosen so far: its line in the list, from 0. Comes
//                      back unchanged if the list has no such line and the user picks none.
//   editor             the command of the text editor; a blank and the palette file's path go
//                      behind it. Nothing is started if all has more than 299 bytes.
//   folder             the folder of the palettes, with its separator
//   sea_colour         not used: the sea is part of the palette
//   lake_colour        the colours of lakes and of the map's background, 0x00BBGGRR
//   background_colour
//
// Returns the number of the chosen palette, and red, green and blue (0 to 255) of the sea, of the
// lakes and of the background: ten numbers. The sea is the palette's as it was when it was loaded,
// without what the user changed since.
ORRERYUI_EXPORT CString OnMapPalleteSet(int selected, CString editor, CString folder,
                                        int sea_colour, int lake_colour, int background_colour);

// Shows which colours the bands of elevation have in a palette of the relief map. Changes nothing.
//
//   palette      the number of the palette: its line in "PLTTFILE.DAT", from 0
//   folder       the folder of the list and the palette files, with its separator
//   lake_colour  the colour of lakes, 0x00BBGGRR
ORRERYUI_EXPORT void OnLegendElevetion(int palette, CString folder, int lake_colour);

// Lets the user make an album of a point on the map: name the point, and tie text files and
// pictures with short memos to it. Each of these is a line of the album file at once, and stays
// there when the user gives up. The first one makes the file, or takes the place of what it held;
// without any, no file is touched.
//
//   code                 comes back unchanged
//   longitude, latitude  of the point, as text; the user may change them
//   album_file           full path of the album file
//   album_number         is shown, and nothing else
//
// Returns code, longitude, latitude, and the point's name and item, or "4||||" unless the user
// ended the registration.
ORRERYUI_EXPORT CString OnDLLAlbumRegist(int code, CString longitude, CString latitude,
                                         CString album_file, CString album_number);

// Shows an album: the texts of its point, which the user may change, and its data, which the user
// may edit in an external text editor. The user may also ask for the album's deletion; no file is
// removed.
//
//   code                 a number of the host's. 0 means that changed texts aren't told apart from
//                        others; with -1, a user who gives up, or a window that can't be shown,
//                        can't be told from a deletion.
//   state                "new" makes the album file, or empties it; any other word reads it
//   album_file           full path of the album file
//   place, item          name and item of the album's point
//   longitude, latitude  of the point, as text
//   editor               the command that starts the editor; a blank and the path of the album
//                        file go behind it. Nothing is started if all has more than 299 bytes.
//
// Returns, by the user's decision:
//
//   to store the texts  code, 1 (2 if code is 0), and the point's place, latitude, longitude and
//                       item as the user left them, with a blank behind each
//   to end              0, 2, and the point as it came in
//   to delete           code and 3
//
// The empty string if the user gave up.
ORRERYUI_EXPORT CString OnAlbumUpdate(int code, CString state, CString album_file, CString place,
                                      CString item, CString longitude, CString latitude,
                                      CString editor);

// Lets the user choose the data file that the host works with, add a name to the list of data files
// ("BINDER.DAT" in `folder`), take a name off it, and say whether the common area is shown as well.
// No data file is created, opened or removed.
//
//   selected     index of the entry chosen so far: 0 for the common area, 1 and up for the lines of
//                the list. A negative index, or one beyond the list, means 0.
//   common_area  "on" if the common area is shown as well; comes back unchanged if the user leaves
//                its check box alone, else as "on" or "off"
//   folder       the folder of the list, with its separator
//
// Returns the index of the chosen entry, common_area, and the entry's text.
ORRERYUI_EXPORT CString OnDataSourceSet(int selected, CString common_area, CString folder);

// Lets the user choose one of the stored route maps or area maps, look at its points, edit its
// member file in an external text editor, rename or delete maps, and choose how they are to be
// displayed. What the user renames or deletes is on the disk at once, without the comments and
// empty lines that the list held, and a deletion removes the member file, which must lie in the
// folder of the maps. A name that a line of 199 bytes can't hold together with the path isn't
// taken, nor is one that begins with a semicolon. 512 maps are shown, and 99 points of each. An
// entry without a name shows as its path.
//
//   kind     0 for the route maps, listed in "RoutMstr.dat" in `folder`; any other number for the
//            area maps, listed in "AreaMstr.dat"
//   display  "AUTO" or "MANUAL": the display chosen so far, which comes back unchanged if the user
//            chooses none
//   editor   the command that starts the editor; a blank and the path of the member file go behind
//            it. Nothing is started if all has more than 299 bytes.
//   folder   the folder of the maps, with its separator
//
// Returns the map's number, which is that of its entry in the list from 0, its name, the path of
// its member file, and display. Without a map the number is -1, and name and path are empty. A map
// that was renamed or deleted after it had been chosen comes back as it was then.
ORRERYUI_EXPORT CString OnRouteInformation(int kind, CString display, CString editor,
                                           CString folder);

// Shows the points of an album, of a stored map or of a list of the host's, and lets the user
// choose how they are to be displayed. A list of the host's can be stored as a new map as well: as
// a member file of its own in `folder`, and an entry in the master list there, "RoutMstr.dat" for
// routes and "AreaMstr.dat" for areas. No other map is changed, and a map that was stored stays
// when the user gives up. A name that a line of 199 bytes can't hold together with the path isn't
// taken, nor is one that begins with a semicolon, nor a list with a point whose line is longer.
//
//   shape, size          of an area: 0 for a circle, any other number for a square; its diameter
//                        or side in km
//   folder               the folder of the maps, with its separator
//   text1, text2         not used
//   mode                 "RouteMap" or "AreaMap" for a list of the host's that makes up a route or
//                        an area. Any other text is the path of an album or of a member file, which
//                        shows as a route if it holds "RouteMap", or is "RETURN".
//   caption1, caption2   shown above the points; of a route caption1 alone, and for an area its
//                        size takes the place of caption2
//   longitude, latitude  not used: the coordinates shown are the selected point's
//   centre_latitude      of an area, for the title
//   centre_longitude
//   list_display         "AUTO" or "MANUAL": the display chosen so far, for a list of the host's,
//   file_display         and for a file
//   list                 of the host's: for each point the line that an album has for it, and a bar
//                        behind it; 999 and a bar end the list. 100 points are taken.
//
// Returns the display that the user chose; if the user chose none, the word that was passed in.
// "cancel" if the user gave up.
ORRERYUI_EXPORT CString OnRouteRegistModule(int shape, int size, CString folder, CString text1,
                                            CString text2, CString mode, CString caption1,
                                            CString caption2, CString longitude, CString latitude,
                                            CString centre_latitude, CString centre_longitude,
                                            CString list_display, CString file_display,
                                            CString list);

// Shows the entries of the host's menus, titles with the files that they open, and lets the user
// add entries, change them, or edit the file in an external text editor. What the user changes is
// in the file when another menu is shown, when the editor starts, or at the end; all else in the
// file stays as it is. The file must exist for that, and a menu has 35 entries at the most. A title
// and a file that a line of 199 bytes can't hold aren't taken. Pictures are chosen through
// OnPictureFileDialog of the library KOBALTFX ("libkobaltfx.so" where the system's loader finds it;
// no argument, returns a CString), else in a file chooser with a preview.
//
//   folder  the folder of the menu files, with its separator
//   editor  the command of the text editor; a blank and the file's path go behind it. Nothing is
//           started if all has more than 299 bytes.
//   kind    0 the five text menus, 1 the three picture menus, both in "SOURCE\MENUFILE.DAT"; 2 the
//           picture map, in "Guidemap\Guidemap.DAT". Any other number shows no dialog.
//
// Returns 1 if the user ended the dialog with OK and the file was written or the editor asked for;
// -1 otherwise, also if the user gave up after changes that are in the file.
ORRERYUI_EXPORT int OnDlgMenuBarFileUpdate(CString folder, CString editor, int kind);

// Lets the user choose which of the host's menus take part in a slide show, and how it goes on.
// Beside each menu stands how many files it has. Nothing is written.
//
//   folder    the folder of "SOURCE\MENUFILE.DAT", with its separator
//   display   "AUTO" or "MANUAL": whether the slides follow of themselves. Any other text shows as
//             manual, and comes back unless the user chooses.
//   interval  seconds between two slides
//
// Returns eleven numbers and a text: 1 or 0 for each of the five text menus and the three picture
// menus; 1 if the user chose all at once, else 0; 1 if any is chosen, else -1; the interval, which
// the user can't bring below 2; the display.
ORRERYUI_EXPORT CString OnDlgMenuBarSlideSet(CString folder, CString display, int interval);

// Lets the user set how the host runs a slide show of the registered points. Nothing is read or
// written. A value that isn't one of those named here comes back unless the user changes it.
//
//   content       1 texts, 2 pictures, 3 both
//   interval      seconds between two slides, which the user can't bring below 1
//   map_size      of the position map: 1 large, 2 small
//   memo          "ON" or "OFF", in upper case: whether a picture shows with its memo
//   method        "AUTO" or "MANUAL": whether the slides follow of themselves
//   remaining     "on" or "off", in lower case like those below: whether the seconds that remain
//                 are shown
//   position_map  "on" or "off": whether the map of the registered points is shown
//   jpeg          "on" or "off": "off" leaves out the JPG pictures
//
// Returns three numbers and five texts: the eight settings, in the order of the arguments.
ORRERYUI_EXPORT CString OnSlideSet(int content, int interval, int map_size, CString memo,
                                   CString method, CString remaining, CString position_map,
                                   CString jpeg);

// Shows the main text of a text file: its lines up to the first one that reads 999. The user may
// type into the text, but nothing is written. A file that can't be read shows as an empty one, and
// a line of more than 3198 bytes as several.
//
//   file            path of the text file, in code page 932
//   title1, title2  the caption, with a blank between them
ORRERYUI_EXPORT void OnTextDisplayDaialog(CString file, CString title1, CString title2);

// Shows a short text in a small window. The user may type into it, but nothing is written. A file
// that can't be read shows as an empty one.
//
//   mode  1: the memo of the file, that is its lines behind the first one that reads 999
//         2: a preview, its first 16 lines. In both a line of equal signs stands above.
//         any other number: `text`, and no file is read
//   left  left edge of the window on the screen, in pixels as windows are placed there; the window
//         then opens 560 pixels below the screen's upper edge, or higher if it wouldn't fit. 0 and
//         less leave the window where it opens of itself.
//   file  path of the text file, which is shown as well
//   text  the text to show if `mode` is neither 1 nor 2
ORRERYUI_EXPORT void OnMemoDisplay(int mode, int left, CString file, CString text);

// Lets the user set up a retrieval over the published place names or public facilities: conditions,
// the display of what is found, and a file for the results. Nothing is searched, no condition is
// checked and no file is written; all that is the host's. What is passed in is what an earlier call
// returned.
//
//   view         100 * character size + 10 * place-name display + the tab to open. Character size:
//                0 small, 1 medium, 2 large. Place-name display: 0 nowhere, 1 on the 1x1 map, 2 on
//                the 1x1 and the wide-area map, 3 on the enlarged map. Tabs: 0 place names, 1
//                public facilities, 2 display; any other opens tab 0.
//   file_new     0: results are added to the file, 1: the file is a new one
//   file_format  0: dat, 1: ymd, 2: csv
//   elevation    provisional elevation of the points, to be shown with the choice of the file
//   kind         what was searched for: 0 place names, 1 public facilities
//   large        the codes of the classes, -1 for none: the large, middle and small class of place
//   middle       names. For facilities `large` isn't read, and `middle` and `small` are their large
//   small        and small class.
//   prefecture   index of the prefecture, its code less 1; -1 for none
//   mesh         standard-area mesh code, as typed; empty for none
//   word         what a name must contain; empty for none
//   texts        the path of the result file, and three names of classes as fields 12 to 14 have
//                them, with a bar between each; or empty
//
// Codes, prefectures, displays, sizes and formats that mean nothing show nothing, and come back
// unchanged unless the user changes them. A path gets lower case, and an extension if it has none,
// once the user has looked for a file.
//
// Returns 18 fields, ten numbers and eight texts:
//
//    1      kind: that of the page of conditions that is open, or that the user opened last; `kind`
//           if the user opened none, and the display is open
//    2, 3   file_new and file_format
//    4 - 7  large (7 for facilities), middle, small and prefecture, as they are passed in. A small
//           class picked from the list of a class that isn't chosen any more is 60.
//    8 - 10 place-name display, character size and the tab that was open
//    11     path of the result file; empty if results are displayed only
//    12     names of the classes: large, middle and small; of facilities large and small, and
//    13     an empty text. Names stay where a code has become -1 because a class above it was
//    14     picked.
//    15     mesh
//    16, 17 code of the prefecture, or what was typed in its place, and the prefecture's name
//    18     word
//
// What was typed in the place of a prefecture isn't among the arguments of the next call. With a
// field 1 other than 0 and 1, fields 4 to 7, 12 to 15 and 18 are what was passed in.
ORRERYUI_EXPORT CString OnGnpfRetrieveSet(int view, int file_new, int file_format, int elevation,
                                          int kind, int large, int middle, int small,
                                          int prefecture, CString mesh, CString word,
                                          CString texts);

// Shows the corners of a range that the user drew on the map, and asks what to do with it. The
// texts are shown as they are, usually degrees with four decimals.
//
//   west, north  longitude and latitude of the north-west corner
//   east, south  longitude and latitude of the south-east corner
//
// Returns 1 if the user wants the enlarged map of the range, -1 if the range is dropped.
ORRERYUI_EXPORT int OnRengeConfirm(CString west, CString north, CString east, CString south);

#if defined(__clang__)
#pragma clang diagnostic pop
#endif

}  // extern "C"
}  // namespace orreryui

#endif  // ORRERYUI_ORRERYUI_H_
