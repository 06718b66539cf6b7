// Tests that play with every template.
#ifndef ORRERYUI_TESTS_SUPPORT_EACH_TEMPLATE_H_
#define ORRERYUI_TESTS_SUPPORT_EACH_TEMPLATE_H_

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "templates/all.h"

namespace orreryui {

inline void PrintTo(const DialogTemplate* shown, std::ostream* out) {
  *out << "template " << shown->number;
}

inline std::string NumberOf(const testing::TestParamInfo<const DialogTemplate*>& shown) {
  return std::to_string(shown.param->number);
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_EACH_TEMPLATE_H_
