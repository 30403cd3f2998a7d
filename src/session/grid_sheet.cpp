#include "session/grid_sheet.h"

#include "widgets/typed_control.h"

namespace levora::session {

namespace {
constexpr int sheet_margin = 200; // in the print unit of grids
}

widgets::Grid* active_grid(const widgets::Form& form) {
    return widgets::as_if<widgets::Grid>(form.active_control());
}

bool show_grid_sheet(Session& session, widgets::Grid& grid, SheetUse use) {
    grid.print_margin_left = sheet_margin;
    grid.print_margin_top = sheet_margin;
    try {
        if (use == SheetUse::print) {
            session.desk.print_sheet(grid);
        } else {
            session.desk.preview_sheet(grid);
            if (session.screens.defined("frmSprPreview")) session.screens.show("frmSprPreview");
        }
    } catch (const Failure&) {
        return false;
    }
    return true;
}

std::string sheet_title(std::string_view assessee, std::string_view year, const widgets::Grid& grid) {
    std::string title = "/n /n Assessee Name : ";
    title.append(assessee).append("/n /n A. Y.  : ").append(year).append("/n /n").append(grid.tag);
    return title + "/n";
}

} // namespace levora::session
