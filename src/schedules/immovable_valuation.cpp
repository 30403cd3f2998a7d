#include "schedules/immovable_valuation.h"

#include "schedules/property_grid.h"

#include <algorithm>
#include <array>

namespace levora::schedules {

namespace {

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

double not_below_zero(double amount) {
    return amount < 0 ? 0 : amount;
}

} // namespace

void value_property(widgets::Grid& sprImmovable, int column) {
    const auto held = [&](int row) { return sprImmovable.value(column, row); };
    // The next step reads the cell back: it holds the figure rounded to its decimals.
    const auto write = [&](int row, double figure) {
        sprImmovable.set_value(column, row, figure);
        return held(row);
    };
    using Row = PropertyRow;

    const double gross = write(Row::gross_rent, std::max(held(Row::annual_rent), held(Row::annual_value)));
    const double repairs = write(Row::repairs, gross * repairs_share);
    // Wanted: the net rent keeps its sign for the capitalisation, though its row shows no less than 0.
    const double net_rent = gross - held(Row::taxes) - repairs;
    write(Row::net_rent, not_below_zero(net_rent));

    const int tenure = sprImmovable.index(column, Row::constructed_on);
    const bool has_tenure = tenure >= 0 && tenure < static_cast<int>(tenures.size());
    double capitalised = 0; // without a tenure the row of the capitalised value stays as it is
    bool freehold = false;
    if (has_tenure) {
        const Tenure& chosen = tenures[static_cast<std::size_t>(tenure)];
        freehold = chosen.freehold;
        capitalised = write(Row::capitalised_value, net_rent * chosen.multiplier);
    }

    // Rule 3 of Schedule III: the cost, where it is higher than the capitalised value.
    const double higher = write(Row::higher_value, std::max(capitalised, held(Row::cost)));
    const double premium = held(Row::premium_rate) * higher / 100;
    write(Row::premium, premium);
    const double valuation = not_below_zero(premium + higher);
    write(Row::valuation, valuation);

    // Rule 7 of Schedule III: the unearned increase, but no more than half of the valuation.
    const double half = valuation / 2;
    write(Row::half_valuation, half);
    const double deduction = std::min(held(Row::unearned_increase), half);
    write(Row::deduction, deduction);
    const double net_valuation = write(Row::net_valuation, valuation - deduction);
    write(Row::net_value, not_below_zero(net_valuation - held(Row::debt_owed)));

    // Wanted: last. In the run in which a property turns freehold its deduction still follows the old
    // unearned increase; locking first would change the rows above a run too early.
    sprImmovable.set_cell_locked(column, Row::unearned_increase, freehold);
    sprImmovable.set_cell_backcolor(column, Row::unearned_increase, freehold ? widgets::grey_rgb : white_rgb);
    if (freehold) {
        write(Row::unearned_increase, 0);
        // Wanted: half of a freehold valuation shows as 0, though the valuation does not.
        write(Row::half_valuation, 0);
    }
}

} // namespace levora::schedules
