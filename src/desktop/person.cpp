#include "desktop/person.h"

#include "widgets/fields.h"
#include "widgets/grid.h"
#include "widgets/typed_control.h"

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
        return as<widgets::TextField>(control).text();
    case ControlKind::masked_field:
        return as<widgets::MaskedField>(control).text();
    case ControlKind::list_field:
        return as<widgets::ListField>(control).text();
    case ControlKind::tick_box:
        return as<widgets::TickBox>(control).ticked() ? "1" : "0";
    case ControlKind::grid: {
        const auto& grid = as<widgets::Grid>(control);
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
        return as<widgets::TextField>(control).type(text);
    case ControlKind::masked_field:
        return as<widgets::MaskedField>(control).type(text);
    case ControlKind::list_field:
        return replace_choice(as<widgets::ListField>(control), text);
    case ControlKind::tick_box:
        return as<widgets::TickBox>(control).click();
    case ControlKind::grid:
        return replace_cell(as<widgets::Grid>(control), column, row, text);
    default:
        return false;
    }
}

} // namespace levora::desktop
