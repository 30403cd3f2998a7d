#include "schedules/grid_keys.h"

namespace levora::schedules {

bool clear_or_insert_key(widgets::Grid& grid, std::string_view key) {
    const int column = grid.active_column();
    const int row = grid.active_row();
    if (key == "Delete") {
        if (!grid.cell_locked(column, row) && !grid.edit_mode()) {
            grid.clear_data(widgets::cell_at(column, row));
            grid.set_changed(true);
        }
        return true;
    }
    if (key == "Ctrl+Insert") {
        grid.insert_row(row, true);
        return true;
    }
    return false;
}

} // namespace levora::schedules
