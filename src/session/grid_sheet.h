#pragma once

#include "session/session_state.h"
#include "widgets/grid.h"

#include <string>

namespace levora::session {

enum class SheetUse { print, preview };

// The grid that the form's menus work on: its active control. Null when that is no grid.
widgets::Grid* active_grid(const widgets::Form& form);

// Sends the grid's cells to paper, or to the sheet preview frmSprPreview, with the header and footer set
// on it and the margins that every sheet has. False when that failed: the menus' handlers have no error
// report, so that no Failure, that of a cancelled printer above all, is told.
bool show_grid_sheet(Session& session, widgets::Grid& grid, SheetUse use);

// The title of a sheet of the computation: assessee, year and the grid's own title (its tag). "/n" is a
// new line of the printed header.
std::string sheet_title(std::string_view assessee, std::string_view year, const widgets::Grid& grid);

} // namespace levora::session
