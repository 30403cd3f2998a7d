#include "schedules/assets_annual_rent.h"

#include "schedules/asset_schedule.h"
#include "schedules/assets_immovable.h"
#include "schedules/grid_keys.h"
#include "schedules/property_grid.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"
#include "widgets/form.h"

#include <array>
#include <string>
#include <vector>

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;

namespace {

struct RentRow {
    enum : int { rent = 1, taxes, repairs, deposit, months, interest, premium, benefit };
};
constexpr int rent_rows = 8;

struct RentItem {
    std::string_view label;
    std::string_view stored_as; // empty: not stored as an amount
    std::string_view note;
};
// clang-format off
constexpr std::array<RentItem, rent_rows> rent_items{{
    {"Annual Rent Recierved or Recievable", "RecievableRent", ""},
    {"Amount of Taxes borne by  the tenant if any", "TaxesBorneByTenant", ""},
    {"Repairs borne by the tenant", "",
     "Where repairs are borne by the tenant, 1/9th of the actual rent shall be added."},
    {"Deposit accepted if any", "DepositAccepted",
     "Where any deposit is accepted (not being advance payment towords rent for a period of 3 months or "
     "less), actual rent shall be increase 15%  p.a. of deposit outstanding for the number of months"},
    {"Deposit held for number of months", "", ""},
    {"Amount @ 15% p.a. of deposit", "", ""},
    {"Premium recieved in case of Lease of Property  ", "RecievedAMTforLeaseProperty", ""},
    {"Any benefit or perquisite derives from tenant to owner  ", "BenefitFromTenantToOwner",
     "if any benefit or perquisite derived as consideration"},
}};
// clang-format on

constexpr int label_column = 1;
constexpr double label_width = 54; // the longest label in full
constexpr int amount_column = 2;
constexpr int two_months = 1; // position in the list

// Rule 5 of Schedule III: what repairs borne by the tenant and a deposit add to the rent.
constexpr double repairs_divisor = 9;
constexpr double deposit_rate = 0.15;
constexpr double months_of_year = 12;

double repairs_of(std::span<const double> rent_and_borne) {
    const double rent = round_half_even(rent_and_borne[0]);
    const bool borne_by_tenant = rent_and_borne[1] == 1;
    return borne_by_tenant ? round_half_even(rent / repairs_divisor) : 0;
}
double interest_of(std::span<const double> deposit_and_months) {
    const double deposit = round_half_even(deposit_and_months[0]);
    const double months = round_half_even(deposit_and_months[1]);
    return months > 0 ? round_half_even(deposit * deposit_rate / months_of_year * months) : 0;
}
constexpr widgets::Reckoning repairs{repairs_of, "one ninth of $1, $2", "rule 5 of Schedule III"};
constexpr widgets::Reckoning interest{interest_of, "15 % a year of $1 for $2", "rule 5 of Schedule III"};

std::vector<std::string> month_counts() {
    std::vector<std::string> counts;
    for (int months = 1; months <= 12; ++months)
        counts.push_back(number_text(months));
    return counts;
}

} // namespace

AnnualRentPanel::AnnualRentPanel(widgets::Form& form, session::Session& session, ImmovableSchedule& immovable)
    : frAnnualRent(form, "frAnnualRent", "Computation of Annual Rent"),
      sprAnnualRent(form, "sprAnnualRent", 2, rent_rows), txtTotalAnnualRent(form, "txtTotalAnnualRent"),
      cmdOKAnnualRent(form, "cmdOKAnnualRent", "&Ok"),
      cmdCancelAnnualRent(form, "cmdCancelAnnualRent", "Ca&ncel"), session_(session), immovable_(immovable) {
    frAnnualRent.set_visible(false);
    txtTotalAnnualRent.set_locked(true);
    design_grid();
    add_rules();
    connect();
}

void AnnualRentPanel::design_grid() {
    sprAnnualRent.set_header(label_column, "Details of Annual Rent");
    sprAnnualRent.set_header(amount_column, "Amount");
    sprAnnualRent.set_column_width(label_column, label_width);
    sprAnnualRent.set_column_locked(label_column, true);
    sprAnnualRent.set_column_backcolor(label_column, widgets::grey_rgb);
    sprAnnualRent.design_column(amount_column, widgets::number_cell(-99999999, 9999999999, 0, true));
    for (int row = 1; row <= rent_rows; ++row) {
        const RentItem& item = rent_items[static_cast<std::size_t>(row - 1)];
        if (row != RentRow::repairs) sprAnnualRent.set_label(label_column, row, std::string(item.label));
        if (!item.note.empty()) sprAnnualRent.set_note(label_column, row, std::string(item.note));
    }
    sprAnnualRent.design_cell(label_column, RentRow::repairs,
                              widgets::check_cell(std::string(rent_items[RentRow::repairs - 1].label)));
    sprAnnualRent.set_cell_locked(label_column, RentRow::repairs, false);
    sprAnnualRent.set_cell_backcolor(label_column, RentRow::repairs, white_rgb);
    sprAnnualRent.design_cell(amount_column, RentRow::months,
                              widgets::combo_cell(month_counts(), two_months));
    sprAnnualRent.set_cell_locked(amount_column, RentRow::interest, true);
    sprAnnualRent.set_cell_backcolor(amount_column, RentRow::interest, widgets::grey_rgb);
}

void AnnualRentPanel::add_rules() {
    const auto amount = [this](int row) { return widgets::cell(sprAnnualRent, amount_column, row); };
    const auto written = [this](int row) {
        return widgets::Rule::Target{sprAnnualRent, widgets::cell_at(amount_column, row)};
    };
    widgets::Rules& rules = sprAnnualRent.form().rules;
    repairs_ =
        &rules.add({written(RentRow::repairs),
                    {amount(RentRow::rent), widgets::cell(sprAnnualRent, label_column, RentRow::repairs)},
                    repairs});
    interest_ = &rules.add(
        {written(RentRow::interest), {amount(RentRow::deposit), amount(RentRow::months)}, interest});
    // Wanted: deposit and months are left out by their row numbers, so that a row inserted above them
    // shifts what is left out.
    total_ =
        &rules.add({txtTotalAnnualRent,
                    {{sprAnnualRent, {amount_column, RentRow::rent, amount_column, RentRow::repairs}},
                     {sprAnnualRent, {amount_column, RentRow::interest, amount_column, widgets::last_used}}},
                    widgets::running_sum});
    rules.call_by_rows(sprAnnualRent);
    rules.call(sprAnnualRent, rent_items[RentRow::repairs - 1].label, 0, RentRow::repairs);
}

void AnnualRentPanel::connect() {
    sprAnnualRent.on_change = [this](int column, int row) { sprAnnualRent_Change(column, row); };
    sprAnnualRent.on_key_down = [this](std::string_view key) {
        return clear_or_insert_key(sprAnnualRent, key);
    };
    cmdOKAnnualRent.on_click = [this] { cmdOKAnnualRent_Click(); };
    cmdCancelAnnualRent.on_click = [this] { frAnnualRent.set_visible(false); };
}

void AnnualRentPanel::open() {
    frAnnualRent.set_visible(true);
    frAnnualRent.bring_to_front();
    LoadAnnualRent();
}

void AnnualRentPanel::sprAnnualRent_Change(int, int row) {
    if (row == RentRow::rent || row == RentRow::repairs) repairs_->work_out(amount_column, RentRow::repairs);
    if (row == RentRow::deposit || row == RentRow::months)
        interest_->work_out(amount_column, RentRow::interest);
    total_->work_out();
}

void AnnualRentPanel::cmdOKAnnualRent_Click() {
    if (!read_ && !saves_over_unread(session_, "frmImmovable - SaveAnnualRent",
                                     {{"Annual Rent", property_key(session_, immovable_.active_property())}},
                                     [this] { frAnnualRent.set_visible(false); }))
        return;
    SaveAnnualRent();
    frAnnualRent.set_visible(false);
    const int column = immovable_.sprImmovable.active_column();
    immovable_.sprImmovable.set_text(column, PropertyRow::annual_rent, txtTotalAnnualRent.text());
    immovable_.sprImmovable_Change(column, PropertyRow::survey);
}

void AnnualRentPanel::LoadAnnualRent() {
    read_ = procedure(session_, "frmImmovable - LoadAnnualRent", [this](const Attempt& attempt) {
        const RowSet rows = open_rows(
            session_, attempt, "[Annual Rent] Where " + property_key(session_, immovable_.active_property()));
        // Wanted: the grid is not cleared. A property without a row takes the figures of the property
        // shown last; clearing would lose the figures that a person copies from one to the next.
        if (!rows.eof()) {
            for (int row = 1; row <= rent_rows; ++row) {
                const RentItem& item = rent_items[static_cast<std::size_t>(row - 1)];
                if (!item.stored_as.empty())
                    sprAnnualRent.set_value(amount_column, row, rows[item.stored_as].number());
            }
            const bool borne_by_tenant = rows["RepairByTenant"].number() == 1;
            sprAnnualRent.set_text(label_column, RentRow::repairs, borne_by_tenant ? "1" : "0");
            sprAnnualRent.set_text(amount_column, RentRow::months, rows["AmtDepositedformonths"].text());
        }
        sprAnnualRent_Change(amount_column, RentRow::rent);
        sprAnnualRent_Change(amount_column, RentRow::deposit);
    });
}

void AnnualRentPanel::SaveAnnualRent() {
    procedure(session_, "frmImmovable - SaveAnnualRent", [this](const Attempt& attempt) {
        const int property_no = immovable_.active_property();
        RowSet rows =
            open_or_add(session_, attempt, "[Annual Rent] Where " + property_key(session_, property_no));
        rows.set("PropertyNo", property_no);
        for (int row = 1; row <= rent_rows; ++row) {
            const RentItem& item = rent_items[static_cast<std::size_t>(row - 1)];
            if (!item.stored_as.empty()) rows.set(item.stored_as, sprAnnualRent.value(amount_column, row));
        }
        rows.set("RepairByTenant", sprAnnualRent.text(label_column, RentRow::repairs) == "1" ? 1 : 0);
        rows.set("AmtDepositedformonths", sprAnnualRent.value(amount_column, RentRow::months));
        attempt([&] { rows.update(); });
    });
}

} // namespace levora::schedules
