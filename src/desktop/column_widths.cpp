#include "desktop/column_widths.h"

#include <algorithm>
#include <numeric>

namespace levora::desktop {

namespace {

// Takes each width part of the way to its goal, so that all together change by `change` pixels.
void move_towards(std::vector<int>& widths, const std::vector<int>& goals, int change) {
    const int whole = std::reduce(goals.begin(), goals.end()) - std::reduce(widths.begin(), widths.end());
    if (whole == 0) return;
    long done = 0;
    long passed = 0;
    for (std::size_t at = 0; at < widths.size(); ++at) {
        passed += goals[at] - widths[at];
        // What is passed so far times the share, less what is done: roundings add up to nothing.
        const long due = passed * change / whole;
        widths[at] += static_cast<int>(due - done);
        done = due;
    }
}

} // namespace

std::vector<int> fit_columns(std::span<const ColumnNeed> columns, int room) {
    std::vector<int> widths;
    std::vector<int> least;
    std::vector<int> most;
    for (const ColumnNeed& column : columns) {
        widths.push_back(column.told);
        least.push_back(column.least);
        most.push_back(column.most);
    }
    const int told = std::reduce(widths.begin(), widths.end());
    if (told < room) {
        const int widest = std::reduce(most.begin(), most.end());
        move_towards(widths, most, std::min(room, widest) - told);
    } else if (told > room && std::reduce(least.begin(), least.end()) <= room) {
        move_towards(widths, least, room - told);
    }
    return widths;
}

} // namespace levora::desktop
