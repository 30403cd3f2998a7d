#pragma once

#include "paper/pages.h"

namespace levora::widgets {
class Grid;
}

namespace levora::paper {

// The printed sheet of a grid: its header, the cells up to the last that holds data, its footer. Columns
// are as wide as their longest text where the page allows; a sheet that is too wide lies down, and one
// that is wider still goes on over further pages. Column headers repeat on each page. The grid's margins
// are twips.
Pages pages_of_sheet(const widgets::Grid& grid);

} // namespace levora::paper
