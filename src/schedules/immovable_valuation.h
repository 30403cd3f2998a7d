#pragma once

#include "widgets/grid.h"
#include "widgets/rules.h"

#include <vector>

namespace levora::schedules {

// Values properties by Part B of Schedule III: gross and net maintainable rent, capitalisation by tenure,
// the higher of that and the cost, premium for unbuilt area, deduction for unearned increase, debt.
// Rupees. The steps are rules of the form, for every property.
class PropertyValuation {
public:
    explicit PropertyValuation(widgets::Grid& sprImmovable);

    // Runs the steps for the property of one column. A step works with what the cells before it hold,
    // except where it is told to work with what a step gave before its cell rounded it. Writes cells
    // only; the total is the caller's.
    void value(int column) const;

private:
    widgets::Grid& sprImmovable_;
    std::vector<const widgets::Rule*> steps_;
    std::vector<const widgets::Rule*> freehold_steps_;
};

} // namespace levora::schedules
