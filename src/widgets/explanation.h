#pragma once

#include <string>
#include <vector>

namespace levora::widgets {

class Control;

// Where a figure comes from, in words and numbers, with the way to each of its sources.
struct Explanation {
    // By names: a screen may not be loaded yet. Cells from 1; 0 for a field.
    struct Way {
        std::string words; // "Debt 1,00,000.25"
        std::string screen, control;
        int column = 0;
        int row = 0;
        // The button, or the cell of a button, that brings it into view where it is not; empty for none.
        struct Opener {
            std::string screen, control;
            int column = 0;
            int row = 0;
        } opener = {};
    };

    std::string sentence; // empty for a place that nothing works out or tells of
    std::vector<Way> ways;
};

// Why a field, or a cell of a grid, shows what it shows: "Net Wealth 44,12,348.75 = Assets chargeable
// 45,12,349 less Debt 1,00,000.25 (never below 0)". Told from the rules that write it and from the grid's
// formulas. A figure that they do not give as it stands was typed or stored, or waits for a change: that is
// said, with what they would give.
Explanation explain(const Control& control, int column = 0, int row = 0);

} // namespace levora::widgets
