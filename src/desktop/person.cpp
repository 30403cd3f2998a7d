#include "desktop/person.h"

#include "widgets/fields.h"
#include "widgets/grid.h"

namespace levora::desktop {

using widgets::CellKind;
using widgets::ControlKind;

namespace {

bool replace_cell(widgets::Grid& grid, int column, int row, const std::string& text) {
    switch (grid.cell_kind(column, row)) {
    case CellKind::check:
        return grid.check(column, row, text == "1");
    case CellKind::combo:
        if (!text.empty() && grid.choose(column, row, text)) return true;
        return grid.type(column, row, text);
    default:
        return grid.type(column, row, text);
    }
}

bool replace_choice(widgets::ListField& list, const std::string& text) {
    if (list.editable()) return list.type(text);
    return list.choose(text);
}

} // namespace

std::string text_at(const widgets::Control& control, int column, int row) {
    switch (control.kind()) {
    case ControlKind::text_field:
        return static_cast<const widgets::TextField&>(control).text();
    case ControlKind::masked_field:
        return static_cast<const widgets::MaskedField&>(control).text();
    case ControlKind::list_field:
        return static_cast<const widgets::ListField&>(control).text();
    case ControlKind::tick_box:
        return static_cast<const widgets::TickBox&>(control).ticked() ? "1" : "0";
    case ControlKind::grid: {
        const auto& grid = static_cast<const widgets::Grid&>(control);
        if (column > grid.columns() || row > grid.rows()) return {};
        return grid.text(column, row);
    }
    default:
        return {};
    }
}

bool replace_text(widgets::Control& control, int column, int row, const std::string& text) {
    switch (control.kind()) {
    case ControlKind::text_field:
        return static_cast<widgets::TextField&>(control).type(text);
    case ControlKind::masked_field:
        return static_cast<widgets::MaskedField&>(control).type(text);
    case ControlKind::list_field:
        return replace_choice(static_cast<widgets::ListField&>(control), text);
    case ControlKind::tick_box:
        return static_cast<widgets::TickBox&>(control).click();
    case ControlKind::grid:
        return replace_cell(static_cast<widgets::Grid&>(control), column, row, text);
    default:
        return false;
    }
}

} // namespace levora::desktop
