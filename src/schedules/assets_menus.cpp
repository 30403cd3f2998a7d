#include "schedules/assets_screen.h"

namespace levora::schedules {

void frmImmovable::connect_menus() {
    for (widgets::Grid* by_column : {&immovable.sprImmovable, &jewellery.sprJewellary})
        by_column->on_right_click = [this] { return &mnuContextMenu; };
    for (widgets::Grid* by_row : {&urban_land.sprUrbanLand, &firm.sprAssetInterest})
        by_row->on_right_click = [this] { return &mnuConxtRow; };

    mnuAddColumn.on_click = [this] { mnuAddColumn_Click(); };
    mnuDeleteColumn.on_click = [this] { mnuDeleteColumn_Click(); };
}

} // namespace levora::schedules
