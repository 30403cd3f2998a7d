#pragma once

#include <span>
#include <vector>

namespace levora::desktop {

// How wide a column of a grid may be, in pixels; least <= told <= most.
struct ColumnNeed {
    int least = 0; // nothing of a figure or of a word of the header is cut
    int told = 0;  // as the grid wants it
    int most = 0;  // wider would only be empty; equal to the others for a width set by hand
};

// The widths of columns that stand in `room` pixels: wider than told where room is left over, narrower
// where that alone spares the reader from scrolling; else as told.
std::vector<int> fit_columns(std::span<const ColumnNeed> columns, int room);

} // namespace levora::desktop
