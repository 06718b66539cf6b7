#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/data_source.h"

namespace orreryui::host {

using namespace data_source;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation DataSourceSet() {
  Operation operation;
  operation.name = "OnDataSourceSet";
  operation.purpose = "Choose, add and take off data files";
  operation.arguments = {
      {"SELECTED", "index of the entry chosen so far, 0 for the common area", "0"},
      {"COMMON-AREA", "\"on\" if the common area is shown as well, else \"off\"", "on"},
      {"FOLDER", "folder of BINDER.DAT, with its separator", std::string(kDataFolder) + "/"},
  };
  operation.fields = {
      {"selected", "index of the chosen entry", "SELECTED"},
      {"common area", "whether the common area is shown as well", "COMMON-AREA"},
      {"data file", "the chosen entry"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.Type(kNewFile, "江の島と湘南海岸");
                        hand.Click(kRegister);
                        hand.TakePicture();
                      }},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromCombo(kFiles, 2);
                        hand.Click(kUseCommonArea);
                        hand.TakePicture();
                      }},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  operation.expected_result = "2|off|箱根旧街道";
  return Describe(&OnDataSourceSet, operation);
}

}  // namespace orreryui::host
