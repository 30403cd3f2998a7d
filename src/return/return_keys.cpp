#include "return/return_screen.h"

namespace levora::form_ba {

using widgets::Grid;

namespace {

// Which of the shared key rules a grid follows.
struct GridKeys {
    bool grows_past_last_cell = false;
    bool delete_clears = false;
    bool ctrl_insert_adds = false;
    bool pops_up_menu = true;
};

void add_row_at_end(Grid& grid) {
    grid.set_rows(grid.rows() + 1);
    grid.set_active(1, grid.rows());
}

// Enter moves on to another cell of the entry's road; false where the grid's own rule stands.
bool enter_in_immovable_property(Grid& grid) {
    const int column = grid.active_column();
    const int row = grid.active_row();
    if (column > immovable_column::road) return false;
    if (column < immovable_column::road)
        grid.set_active(column + 1, row);
    else if (row < grid.rows())
        grid.set_active(column, row + 1);
    return true;
}

bool enter_in_exempt_assets(Grid& grid) {
    const int row = grid.active_row();
    if (grid.active_column() == exempt_column::description)
        grid.set_active(exempt_column::value, row);
    else if (grid.active_column() != exempt_column::value)
        return false;
    else if (row < grid.rows())
        grid.set_active(exempt_column::description, row + 1);
    return true;
}

} // namespace

void frmFormBA::connect_grid_keys() {
    const auto connect = [this](Grid& grid, const ReturnGrid& table, GridKeys keys,
                                bool (*enter)(Grid&) = nullptr) {
        if (keys.grows_past_last_cell) grid.on_advance = [&grid] { add_row_at_end(grid); };
        if (keys.pops_up_menu) grid.on_right_click = [this] { return &mnuSpreadContext; };
        grid.on_key_down = [&grid, &table, keys, enter](std::string_view key) {
            const int column = grid.active_column();
            const int row = grid.active_row();
            if (key == "Delete" && keys.delete_clears) {
                if (grid.cell_locked(column, row)) return true;
                grid.clear_data(widgets::cell_at(column, row));
                grid.set_changed(true);
                return true;
            }
            if (key == "Ctrl+Insert" && keys.ctrl_insert_adds) {
                grid.insert_row(row, true);
                unlock_inserted_row(grid, table, row);
                return true;
            }
            return key == "Enter" && enter && enter(grid);
        };
    };

    connect(sprScheduleBTP, schedule_btp, {.grows_past_last_cell = true, .pops_up_menu = false});
    connect(sprImmovableProperty, immovable_property,
            {.grows_past_last_cell = true, .delete_clears = true, .ctrl_insert_adds = true},
            enter_in_immovable_property);
    connect(sprMovableProperty, movable_property, {.delete_clears = true});
    connect(sprJewellery, jewellery, {.grows_past_last_cell = true});
    connect(sprPreciousStone, precious_stone, {.grows_past_last_cell = true});
    // Wanted: totals go by the number of the total row, which a row inserted here moves on.
    connect(sprInducibleNetWealth, inducible_net_wealth, {.delete_clears = true, .ctrl_insert_adds = true});
    connect(sprAssetInterest, asset_interest,
            {.grows_past_last_cell = true, .delete_clears = true, .ctrl_insert_adds = true});
    connect(sprAssetsClaimedExempt, assets_claimed_exempt,
            {.grows_past_last_cell = true, .delete_clears = true, .ctrl_insert_adds = true},
            enter_in_exempt_assets);
    connect(sprScheduleOPR, schedule_opr, {.grows_past_last_cell = true});
}

} // namespace levora::form_ba
