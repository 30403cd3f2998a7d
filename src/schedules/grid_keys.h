#pragma once

#include "widgets/grid.h"

#include <string_view>

namespace levora::schedules {

// The two keys that every schedule grid answers. Delete clears an unlocked cell outside edit mode,
// data only, and marks the grid as changed; no change is raised, so totals wait. Ctrl+Insert adds a
// row to the grid and inserts it above the active one. True when it was one of them.
bool clear_or_insert_key(widgets::Grid& grid, std::string_view key);

} // namespace levora::schedules
