#include "schedules/assets_screen.h"

#include "schedules/named_control.h"
#include "session/grid_sheet.h"

#include <string>

namespace levora::schedules {

using session::SheetUse;

namespace {

constexpr int sheet_bottom_margin = 200; // as the other margins of a sheet
constexpr std::string_view grid_with_total_row = "sprUrbanLand";

// Assessee and year as the sheet of the computation shows them.
std::string title_of(session::Session& session, const widgets::Grid& grid) {
    widgets::Form& sheet = session.screens.load("frmWealthMain");
    return session::sheet_title(control_of<widgets::TextField>(sheet, "txtAssesseeName").text(),
                                control_of<widgets::ListField>(sheet, "cboFY").text(), grid);
}

} // namespace

void frmImmovable::sheet_of_active_grid(SheetUse use) {
    widgets::Grid* grid = session::active_grid(*this);
    if (grid == nullptr) return;
    const bool with_total_row = grid->name() == grid_with_total_row;
    if (with_total_row) add_sheet_total_row();
    // Wanted: only the preview carries the title.
    grid->print_header = use == SheetUse::preview ? title_of(session_, *grid) : std::string();
    if (use == SheetUse::preview) grid->print_margin_bottom = sheet_bottom_margin;
    const bool shown = session::show_grid_sheet(session_, *grid, use);
    // Under a preview the row stays until that is closed.
    if (with_total_row && (use == SheetUse::print || !shown)) remove_sheet_total_row();
}

void frmImmovable::add_sheet_total_row() {
    if (session_.SheetGridName == grid_with_total_row) return; // it stands already, under a preview
    widgets::Grid& land = urban_land.sprUrbanLand;
    session_.SheetGridName = land.name();
    session_.SheetRowCount = to_integer(land.rows());
    land.set_rows(land.rows() + 1);
    const int row = land.rows();
    land.set_text(1, row, "Total");
    // Wanted: these columns, though the amounts stand further right in the grid.
    land.set_value(3, row, urban_land.txtNetValuation.value());
    land.set_value(4, row, urban_land.txtNetDebtsOwed.value());
    land.set_value(5, row, urban_land.txtNetAmount.value());
}

void frmImmovable::remove_sheet_total_row() {
    if (session_.SheetGridName != grid_with_total_row) return;
    urban_land.sprUrbanLand.set_rows(urban_land.sprUrbanLand.rows() - 1);
    session_.SheetGridName.clear();
}

void frmImmovable::Form_Unload() {
    // The row goes with its grid; left on, the name would keep the next grid from recomputing.
    if (session_.SheetGridName == grid_with_total_row) session_.SheetGridName.clear();
}

} // namespace levora::schedules
