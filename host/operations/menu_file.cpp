#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/menu_add.h"
#include "templates/menu_file.h"

namespace orreryui::host {

using namespace menu_file;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kAddDialog = menu_add::kTemplate.number;

// Behind the entries of the first sample menu.
constexpr int kAddRow = 2;

}  // namespace

Operation MenuBarFileUpdate() {
  Operation operation;
  operation.name = "OnDlgMenuBarFileUpdate";
  operation.purpose = "Add and change entries of the menus";
  operation.arguments = {
      {"MENU-FOLDER", "folder above the menu files, with its separator", kMenuFolder},
      {"EDITOR", "command of the text editor", "xdg-open"},
      {"MENU-KIND", "0 the text menus, 1 the picture menus, 2 the picture map", "0"},
  };
  operation.fields = {{"answer", "1: the menus are to be read anew"}};
  operation.result_unless_ok = "-1";
  operation.steps = {{kDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.OpenFromList(kEntries, kAddRow);
                      }},
                     {kAddDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.Type(menu_add::kTitle, "長谷寺");
                        hand.Type(menu_add::kFile, "album\\hase.txt");
                        hand.TakePicture();
                        hand.Click(IDOK);
                      }},
                     {kDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.PickFromCombo(kMenu, 1);
                        hand.OpenFromList(kEntries, 0);
                      }},
                     {kAddDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.Click(IDCANCEL);
                      }},
                     {kDialog, [](Hand& hand) {
                        hand.PickFromCombo(kMenu, 4);
                        hand.TakePicture();
                        hand.Click(IDOK);
                      }}};
  operation.expected_result = "1";
  return Describe(&OnDlgMenuBarFileUpdate, operation);
}

}  // namespace orreryui::host
