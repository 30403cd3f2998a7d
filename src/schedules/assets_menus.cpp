#include "schedules/assets_screen.h"

#include "session/grid_sheet.h"

#include <string_view>

namespace levora::schedules {

void frmImmovable::connect_menus() {
    for (widgets::Grid* by_column : {&immovable.sprImmovable, &jewellery.sprJewellary})
        by_column->on_right_click = [this] { return &mnuContextMenu; };
    for (widgets::Grid* by_row : {&urban_land.sprUrbanLand, &firm.sprAssetInterest})
        by_row->on_right_click = [this] { return &mnuConxtRow; };

    mnuAddColumn.on_click = [this] { mnuAddColumn_Click(); };
    mnuDeleteColumn.on_click = [this] { mnuDeleteColumn_Click(); };
    mnuInsertRow.on_click = [this] {
        // Wanted: the Insert key alone, which no grid of this screen answers without Ctrl.
        if (widgets::Grid* grid = session::active_grid(*this)) grid->press_key("Insert");
    };
    mnuDeleteRow.on_click = [this] {
        // Wanted: these five characters, not the Escape key; Escape would ask for the deletion of rows.
        if (widgets::Grid* grid = session::active_grid(*this))
            for (const char32_t character : std::u32string_view(U"(ESC)"))
                grid->type_character(character);
    };
    mnuPreview.on_click = [this] { sheet_of_active_grid(session::SheetUse::preview); };
    mnuPrint.on_click = [this] { sheet_of_active_grid(session::SheetUse::print); };
}

} // namespace levora::schedules
