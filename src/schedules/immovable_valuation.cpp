#include "schedules/immovable_valuation.h"

#include "schedules/property_grid.h"
#include "widgets/form.h"

#include <algorithm>
#include <array>
#include <span>

namespace levora::schedules {

using widgets::no_figure;
using widgets::Reading;
using widgets::Reckoning;
using widgets::Rule;

namespace {

using Inputs = std::span<const double>;
using Row = PropertyRow;

// Rule 5 of Schedule III: repairs are 15 % of the gross maintainable rent.
constexpr double repairs_share = 0.15;

// Rule 4 of Schedule III: what the net maintainable rent is multiplied by, by the position in the
// list of tenures.
struct Tenure {
    double multiplier;
    bool freehold;
};
constexpr std::array tenures{
    Tenure{12.5, true}, // freehold
    Tenure{10, false},  // leasehold, 50 years or more to run
    Tenure{8, false},   // leasehold, less than 50 years
};

const Tenure* tenure_at(double position) {
    if (position < 0 || position >= static_cast<double>(tenures.size())) return nullptr;
    return &tenures[static_cast<std::size_t>(position)];
}
bool is_freehold(double position) {
    const Tenure* tenure = tenure_at(position);
    return tenure != nullptr && tenure->freehold;
}

double not_below_zero(double amount) {
    return amount < 0 ? 0 : amount;
}
double higher_of(Inputs in) {
    return std::max(in[0], in[1]);
}
double lower_of(Inputs in) {
    return std::min(in[0], in[1]);
}
double repairs_of(Inputs gross) {
    return gross[0] * repairs_share;
}
double net_rent_of(Inputs gross_taxes_repairs) {
    return gross_taxes_repairs[0] - gross_taxes_repairs[1] - gross_taxes_repairs[2];
}
double net_rent_shown(Inputs gross_taxes_repairs) {
    return not_below_zero(net_rent_of(gross_taxes_repairs));
}
// Without a tenure the row of the capitalised value stays as it is.
double capitalised(Inputs gross_taxes_repairs_tenure) {
    const Tenure* tenure = tenure_at(gross_taxes_repairs_tenure[3]);
    return tenure ? net_rent_of(gross_taxes_repairs_tenure) * tenure->multiplier : no_figure;
}
double higher_value(Inputs capitalised_cost_tenure) {
    const double value = tenure_at(capitalised_cost_tenure[2]) ? capitalised_cost_tenure[0] : 0;
    return std::max(value, capitalised_cost_tenure[1]);
}
double premium_of(Inputs rate_and_value) {
    return rate_and_value[0] * rate_and_value[1] / 100;
}
double valuation_of(Inputs rate_and_value) {
    return not_below_zero(premium_of(rate_and_value) + rate_and_value[1]);
}
double half_of(Inputs in) {
    return in[0] / 2;
}
double nothing_on_freehold(Inputs tenure) {
    return is_freehold(tenure[0]) ? 0 : no_figure;
}

struct StepInput {
    enum How { held, position, unrounded }; // unrounded: as the step of that row gave it
    int row = 0;
    How how = held;
};
struct Step {
    int row;
    std::array<StepInput, 4> inputs; // those of a row 0 are none
    Reckoning how;
};
constexpr auto unrounded = StepInput::unrounded;
constexpr StepInput tenure{Row::constructed_on, StepInput::position};

// clang-format off
constexpr Step valuation_steps[] = {
    {Row::gross_rent, {{{Row::annual_rent}, {Row::annual_value}}},
     {higher_of, "the higher of $1 and $2", "rule 5 of Schedule III"}},
    {Row::repairs, {{{Row::gross_rent}}},
     {repairs_of, "15 % of $1", "for repairs, rule 5 of Schedule III"}},
    {Row::net_rent, {{{Row::gross_rent}, {Row::taxes}, {Row::repairs}}},
     {net_rent_shown, "$1 less $2 less $3", "never below 0"}},
    // Wanted: the net rent keeps its sign for the capitalisation, though its row shows no less than 0.
    {Row::capitalised_value, {{{Row::gross_rent}, {Row::taxes}, {Row::repairs}, tenure}},
     {capitalised, "$1 less $2 less $3, multiplied by $4", "rule 4 of Schedule III"}},
    {Row::higher_value, {{{Row::capitalised_value}, {Row::cost}, tenure}},
     {higher_value, "the higher of $1 and $2", "rule 3 of Schedule III; the cost alone without a tenure"}},
    {Row::premium, {{{Row::premium_rate}, {Row::higher_value}}},
     {premium_of, "$1 % of $2", "rule 6 of Schedule III"}},
    {Row::valuation, {{{Row::premium_rate}, {Row::higher_value}}},
     {valuation_of, "$2 plus $1 % of it", "never below 0"}},
    {Row::half_valuation, {{{Row::valuation, unrounded}}},
     {half_of, "half of $1"}},
    {Row::deduction, {{{Row::unearned_increase}, {Row::half_valuation, unrounded}}},
     {lower_of, "the lower of $1 and $2", "rule 7 of Schedule III"}},
    {Row::net_valuation, {{{Row::valuation, unrounded}, {Row::deduction, unrounded}}},
     widgets::difference_formula},
    {Row::net_value, {{{Row::net_valuation}, {Row::debt_owed}}},
     widgets::floored_difference_formula},
};
constexpr Step steps_of_freehold[] = {
    {Row::unearned_increase, {{tenure}}, {nothing_on_freehold, "none on $1"}},
    // Wanted: half of a freehold valuation shows as 0, though the valuation does not.
    {Row::half_valuation, {{tenure}}, {nothing_on_freehold, "none on $1"}},
};
// clang-format on

class Steps {
public:
    Steps(widgets::Grid& grid) : grid_(grid), rules_(grid.form().rules) {}

    std::vector<const Rule*> add(std::span<const Step> steps) {
        std::vector<const Rule*> added;
        for (const Step& step : steps) {
            std::vector<widgets::Source> sources;
            for (const StepInput& input : step.inputs)
                if (input.row != 0) sources.push_back(source_of(input, added));
            const widgets::CellRange cells{first_property_column, step.row, widgets::last_of_grid, step.row};
            added.push_back(
                &rules_.add({.target = {grid_, cells},
                             .sources = std::move(sources),
                             .how = step.how,
                             .otherwise = "was typed or stored, or waits for the next change of a row that "
                                          "values the property"}));
        }
        return added;
    }

private:
    widgets::Source source_of(const StepInput& input, const std::vector<const Rule*>& added) const {
        if (input.how == StepInput::unrounded)
            for (const Rule* rule : added)
                if (rule->target.cells.first_row == input.row) return {*rule};
        const bool position = input.how == StepInput::position;
        return widgets::cell(grid_, widgets::same, input.row, position ? Reading::position : Reading::number);
    }

    widgets::Grid& grid_;
    widgets::Rules& rules_;
};

} // namespace

PropertyValuation::PropertyValuation(widgets::Grid& sprImmovable) : sprImmovable_(sprImmovable) {
    Steps steps(sprImmovable);
    steps_ = steps.add(valuation_steps);
    sprImmovable.form().rules.tell(
        {sprImmovable,
         {first_property_column, Row::unearned_increase, widgets::last_of_grid, Row::unearned_increase}},
        "typed here");
    freehold_steps_ = steps.add(steps_of_freehold);
}

void PropertyValuation::value(int column) const {
    for (const Rule* step : steps_)
        step->work_out(column, step->target.cells.first_row);

    // Wanted: last. In the run in which a property turns freehold its deduction still follows the old
    // unearned increase; locking first would change the rows above a run too early.
    const bool freehold = is_freehold(sprImmovable_.index(column, Row::constructed_on));
    sprImmovable_.set_cell_locked(column, Row::unearned_increase, freehold);
    sprImmovable_.set_cell_backcolor(column, Row::unearned_increase,
                                     freehold ? widgets::grey_rgb : white_rgb);
    for (const Rule* step : freehold_steps_)
        step->work_out(column, step->target.cells.first_row);
}

} // namespace levora::schedules
