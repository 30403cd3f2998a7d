#pragma once

#include "widgets/grid.h"

namespace levora::schedules {

// Values the property of one column of sprImmovable by Part B of Schedule III: gross and net
// maintainable rent, capitalisation by tenure, the higher of that and the cost, premium for unbuilt
// area, deduction for unearned increase, debt. Rupees. Each step works with what the cell before it
// holds, not with the figure that was written into it. Writes cells only; the total is the caller's.
void value_property(widgets::Grid& sprImmovable, int column);

} // namespace levora::schedules
