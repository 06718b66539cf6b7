// All templates, for whoever walks them.
#ifndef ORRERYUI_TEMPLATES_ALL_H_
#define ORRERYUI_TEMPLATES_ALL_H_

#include "templates/album_files.h"
#include "templates/album_regist.h"
#include "templates/album_update.h"
#include "templates/data_source.h"
#include "templates/display_page.h"
#include "templates/facility_page.h"
#include "templates/legend.h"
#include "templates/map_type.h"
#include "templates/memo.h"
#include "templates/menu_add.h"
#include "templates/menu_file.h"
#include "templates/menu_slide.h"
#include "templates/name_page.h"
#include "templates/palette.h"
#include "templates/range.h"
#include "templates/region.h"
#include "templates/result_file.h"
#include "templates/retrieval_sheet.h"
#include "templates/route_regist.h"
#include "templates/route_select.h"
#include "templates/route_update.h"
#include "templates/slide.h"
#include "templates/text_view.h"

namespace orreryui {

inline constexpr const DialogTemplate* kAllTemplates[] = {
    &album_files::kTemplate,  &album_regist::kTemplate, &album_update::kTemplate,
    &data_source::kTemplate,  &display_page::kTemplate, &facility_page::kTemplate,
    &legend::kTemplate,       &map_type::kTemplate,     &memo::kTemplate,
    &menu_add::kTemplate,     &menu_file::kTemplate,    &menu_slide::kTemplate,
    &name_page::kTemplate,    &palette::kTemplate,      &range::kTemplate,
    &region::kTemplate,       &result_file::kTemplate,  &retrieval_sheet::kTemplate,
    &route_regist::kTemplate, &route_select::kTemplate, &route_update::kTemplate,
    &slide::kTemplate,        &text_view::kTemplate,
};

}  // namespace orreryui

#endif  // ORRERYUI_TEMPLATES_ALL_H_
