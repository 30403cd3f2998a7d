#include "schedules/assets_unbuilt_area.h"

#include "widgets/form.h"

#include <array>
#include <string>
#include <string_view>

namespace levora::schedules {

namespace {

struct IncreaseRow {
    enum : int {
        tenure_years = 1,
        interest_rate,
        lease_rent,
        land_value,
        expired_years,
        net_rent,
        capitalised_rent,
        unearned_increase,
        payable,
    };
};
constexpr std::array<std::string_view, 9> increase_labels{
    "Tenure of Lease (in years)",       "Rate of Annual Interest",    "Annual Lease Rent",
    "Valuation of Leasehold land",      "No. of expired Lease years", "Present NMR",
    "Capitalised Value of present NMR", "Unearned Increase",          "Amount Payable to The Government",
};
constexpr int label_column = 1;
constexpr int amount_column = 2;

// Years over rate, times rent.
double land_value(std::span<const double> years_rate_rent) {
    return years_rate_rent[0] / years_rate_rent[1] * years_rate_rent[2];
}
double capitalised_rent(std::span<const double> years_expired_rate_rent) {
    const double years_left = years_expired_rate_rent[0] - years_expired_rate_rent[1];
    return years_left / years_expired_rate_rent[2] * years_expired_rate_rent[3];
}
constexpr widgets::Reckoning land{land_value, "$1 divided by $2, times $3"};
constexpr widgets::Reckoning capitalised{capitalised_rent, "$1 less $2, divided by $3, times $4"};

} // namespace

UnearnedIncreasePanel::UnearnedIncreasePanel(widgets::Form& form)
    : frUnearnedIncrease(form, "frUnearnedIncrease", "Computaion of Unearned Increase"),
      sprUnearnedIncrease(form, "sprUnearnedIncrease", 2, static_cast<int>(increase_labels.size())),
      txtUnearnedIncrease(form, "txtUnearnedIncrease"),
      cmdUnearnIncreaseOk(form, "cmdUnearnIncreaseOk", "&Ok"),
      cmdUnearnIncreaseCancel(form, "cmdUnearnIncreaseCancel", "Ca&ncel") {
    frUnearnedIncrease.set_visible(false);
    widgets::Grid& grid = sprUnearnedIncrease;
    grid.set_header(label_column, "Details of Property built on Leasehold land");
    grid.set_header(amount_column, "Amount");
    grid.set_column_locked(label_column, true);
    grid.set_column_backcolor(label_column, widgets::grey_rgb);
    for (int row = 1; row <= grid.rows(); ++row)
        grid.set_label(label_column, row, std::string(increase_labels[static_cast<std::size_t>(row - 1)]));
    grid.design_column(amount_column, widgets::number_cell(-99999999.99, 99999999.99, 2, true));
    grid.set_cell_backcolor(amount_column, IncreaseRow::payable, widgets::grey_rgb);

    const auto amount = [](int row) { return widgets::cell_at(amount_column, row); };
    grid.set_cell_formula(amount_column, IncreaseRow::land_value,
                          {amount(IncreaseRow::tenure_years), amount(IncreaseRow::interest_rate),
                           amount(IncreaseRow::lease_rent)},
                          land);
    grid.set_cell_formula(amount_column, IncreaseRow::capitalised_rent,
                          {amount(IncreaseRow::tenure_years), amount(IncreaseRow::expired_years),
                           amount(IncreaseRow::interest_rate), amount(IncreaseRow::net_rent)},
                          capitalised);
    grid.set_cell_formula(amount_column, IncreaseRow::unearned_increase,
                          {amount(IncreaseRow::capitalised_rent), amount(IncreaseRow::land_value)},
                          widgets::difference_formula);
    for (const int row :
         {IncreaseRow::land_value, IncreaseRow::capitalised_rent, IncreaseRow::unearned_increase}) {
        grid.set_cell_locked(amount_column, row, true);
        grid.set_cell_backcolor(amount_column, row, widgets::grey_rgb);
    }

    form.rules.call_by_rows(grid);
    form.rules.tell({grid, widgets::cell_at(amount_column, IncreaseRow::payable)}, "typed here");

    cmdUnearnIncreaseOk.on_click = [this] { frUnearnedIncrease.set_visible(false); };
    cmdUnearnIncreaseCancel.on_click = [this] { frUnearnedIncrease.set_visible(false); };
}

} // namespace levora::schedules
