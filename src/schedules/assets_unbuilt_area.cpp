#include "schedules/assets_unbuilt_area.h"

#include "schedules/asset_schedule.h"
#include "schedules/assets_immovable.h"
#include "schedules/grid_keys.h"
#include "schedules/named_control.h"
#include "schedules/property_grid.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;

namespace {

struct AreaRow {
    enum : int {
        aggregate = 1,
        built_up,
        unbuilt,
        specified,
        excess,
        percentage,
        calculated,
        premium = plot_premium_row
    };
};
constexpr std::array<std::string_view, 8> area_labels{
    "Aggregate Area of plot ",
    "Builtup Area of plot  ",
    "Unbuilt Area of plot",
    "Specified Area of Property",
    "Excess of Unbuilt Area over Specified Area ",
    "Percentage of Excess of Unbuilt Area with Aggregrate Area",
    "Enter Calculated % of Excess of unbuilt area with Aggregrate",
    "Premium to be added @",
};
struct StoredArea {
    int row;
    std::string_view stored_as;
};
constexpr std::array stored_areas{
    StoredArea{AreaRow::aggregate, "AggregateAreaOfPlot"},
    StoredArea{AreaRow::built_up, "BuiltUpAreaOfPlot"},
    StoredArea{AreaRow::calculated, "CalculatedPercentage"},
};
constexpr int label_column = 1;
constexpr double label_width = 58; // the longest label in full
constexpr int area_column = plot_area_column;

// Rule 6 of Schedule III: the share of the plot that may lie open, by city.
constexpr std::array<std::string_view, 4> metropolitan_cities{"Mumbai", "Kolkata", "Delhi", "Chennai"};
constexpr std::array<std::string_view, 26> listed_cities{
    "Agra",      "Ahmedabad", "Allahabad",  "Amritsar",   "Bangaluru", "Bhopal",  "Cochin",
    "Hyderabad", "Indore",    "Jabalpur",   "Jamshedpur", "Kanpur",    "Lucknow", "Ludhiana",
    "Madurai",   "Nagpur",    "Patna",      "Pune",       "Salem",     "Solapur", "Srinagar",
    "Surat",     "Trichy",    "Trivendram", "Vadodara",   "Varanasi"};
constexpr double metropolitan_share = 0.6;
constexpr double listed_share = 0.65;
constexpr double other_share = 0.7;

double specified_share(std::string_view city) {
    if (std::ranges::find(metropolitan_cities, city) != metropolitan_cities.end()) return metropolitan_share;
    if (std::ranges::find(listed_cities, city) != listed_cities.end()) return listed_share;
    return other_share;
}

// Rule 6 of Schedule III: the premium by the excess in per cent of the plot; none above the last.
struct PremiumStep {
    double up_to_per_cent;
    double rate;
};
constexpr std::array premium_steps{PremiumStep{5, 0}, PremiumStep{10, 0.2}, PremiumStep{15, 0.3},
                                   PremiumStep{20, 0.4}};

double percentage_of(std::span<const double> excess_and_aggregate) {
    const double aggregate = excess_and_aggregate[1];
    return aggregate == 0 ? 0 : excess_and_aggregate[0] / aggregate * 100;
}
double specified_of(std::span<const double> aggregate_and_share) {
    return aggregate_and_share[0] * aggregate_and_share[1];
}
double premium_of(std::span<const double> percentage) {
    for (const PremiumStep& step : premium_steps)
        if (percentage[0] <= step.up_to_per_cent) return step.rate;
    return widgets::no_figure;
}

// clang-format off
constexpr widgets::Reckoning percentage{percentage_of, "$1 in per cent of $2"};
constexpr widgets::Reckoning specified{specified_of, "$2 times $1", "the share for the city named as premises, rule 6 of Schedule III"};
constexpr widgets::Reckoning premium{premium_of, "the premium for $1", "rule 6 of Schedule III, which has none above 20"};
// clang-format on

// Wanted: the city is what was typed as the name of the premises, not the choice of the town row;
// following that row would change the premium of stored plots.
double share_of_premises(const widgets::Form& form) {
    const widgets::Grid& properties = control_of<widgets::Grid>(form, "sprImmovable");
    return specified_share(properties.text(properties.active_column(), PropertyRow::premises));
}

} // namespace

UnbuiltAreaPanel::UnbuiltAreaPanel(widgets::Form& form, session::Session& session,
                                   ImmovableSchedule& immovable)
    : frUnbuiltArea(form, "frUnbuiltArea", "Computation of Unbuilt Area"),
      sprUnbuiltArea(form, "sprUnbuiltArea", 2, static_cast<int>(area_labels.size())),
      cmdUnbuiltAreaOk(form, "cmdUnbuiltAreaOk", "&Ok"),
      cmdUnbuiltAreaCancel(form, "cmdUnbuiltAreaCancel", "Ca&ncel"), session_(session),
      immovable_(immovable) {
    frUnbuiltArea.set_visible(false);
    design_grid();
    add_rules();
    connect();
}

void UnbuiltAreaPanel::design_grid() {
    sprUnbuiltArea.set_header(label_column, "Plot Area Details");
    sprUnbuiltArea.set_header(area_column, "Area");
    sprUnbuiltArea.set_column_width(label_column, label_width);
    sprUnbuiltArea.set_column_locked(label_column, true);
    sprUnbuiltArea.set_column_backcolor(label_column, widgets::grey_rgb);
    for (int row = 1; row <= sprUnbuiltArea.rows(); ++row)
        sprUnbuiltArea.set_label(label_column, row,
                                 std::string(area_labels[static_cast<std::size_t>(row - 1)]));
    sprUnbuiltArea.design_column(area_column, widgets::number_cell(-99999999, 9999999999, 2));
    sprUnbuiltArea.design_cell(area_column, AreaRow::premium, widgets::percent_cell(2));
    for (const int row :
         {AreaRow::unbuilt, AreaRow::specified, AreaRow::excess, AreaRow::percentage, AreaRow::premium}) {
        sprUnbuiltArea.set_cell_locked(area_column, row, true);
        sprUnbuiltArea.set_cell_backcolor(area_column, row, widgets::grey_rgb);
    }
    const auto area = [](int row) { return widgets::cell_at(area_column, row); };
    sprUnbuiltArea.set_cell_formula(area_column, AreaRow::unbuilt,
                                    {area(AreaRow::aggregate), area(AreaRow::built_up)},
                                    widgets::difference_formula);
    sprUnbuiltArea.set_cell_formula(area_column, AreaRow::excess,
                                    {area(AreaRow::unbuilt), area(AreaRow::specified)},
                                    widgets::floored_difference_formula);
    sprUnbuiltArea.set_cell_formula(area_column, AreaRow::percentage,
                                    {area(AreaRow::excess), area(AreaRow::aggregate)}, percentage);
}

void UnbuiltAreaPanel::add_rules() {
    const auto area = [this](int row) { return widgets::cell(sprUnbuiltArea, area_column, row); };
    const auto written = [this](int row) {
        return widgets::Rule::Target{sprUnbuiltArea, widgets::cell_at(area_column, row)};
    };
    widgets::Rules& rules = sprUnbuiltArea.form().rules;
    specified_ = &rules.add({written(AreaRow::specified),
                             {area(AreaRow::aggregate), {immovable_.sprImmovable, share_of_premises}},
                             specified});
    calculated_ = &rules.add({written(AreaRow::calculated), {area(AreaRow::percentage)}, widgets::as_it_is});
    premium_ = &rules.add({.target = written(AreaRow::premium),
                           .sources = {area(AreaRow::percentage)},
                           .how = premium,
                           .otherwise = "stands from before"});
    rules.call_by_rows(sprUnbuiltArea);
}

void UnbuiltAreaPanel::connect() {
    sprUnbuiltArea.on_change = [this](int column, int row) { sprUnbuiltArea_Change(column, row); };
    sprUnbuiltArea.on_key_down = [this](std::string_view key) {
        const int next_row = sprUnbuiltArea.active_row() + 1;
        if (key == "Tab" && next_row <= sprUnbuiltArea.rows()) {
            sprUnbuiltArea.set_active(sprUnbuiltArea.active_column(), next_row);
            return true;
        }
        return clear_or_insert_key(sprUnbuiltArea, key);
    };
    cmdUnbuiltAreaOk.on_click = [this] { cmdUnbuiltAreaOk_Click(); };
    cmdUnbuiltAreaCancel.on_click = [this] { frUnbuiltArea.set_visible(false); };
}

void UnbuiltAreaPanel::open(int column) {
    frUnbuiltArea.set_visible(true);
    frUnbuiltArea.bring_to_front();
    const std::string& city = immovable_.sprImmovable.text(column, PropertyRow::premises);
    std::string label = std::string(area_labels[AreaRow::specified - 1]) + " In " + city;
    if (city == "Other") label += "(City)";
    sprUnbuiltArea.set_label(label_column, AreaRow::specified, label);
    LoadUnbuiltArea();
}

void UnbuiltAreaPanel::sprUnbuiltArea_Change(int, int row) {
    if (row == AreaRow::aggregate) specified_->work_out(area_column, AreaRow::specified);
    calculated_->work_out(area_column, AreaRow::calculated);
    premium_->work_out(area_column, AreaRow::premium);
    // Wanted: above the last step the premium shown before stays; the law has no rate there.
}

void UnbuiltAreaPanel::cmdUnbuiltAreaOk_Click() {
    if (!read_ && !saves_over_unread(session_, "frmImmovable - SaveUnbuiltArea",
                                     {{"Unbuilt Area", property_key(session_, immovable_.active_property())}},
                                     [this] { frUnbuiltArea.set_visible(false); }))
        return;
    SaveUnbuiltArea();
    frUnbuiltArea.set_visible(false);
    widgets::Grid& properties = immovable_.sprImmovable;
    const int column = properties.active_column();
    const double rate = sprUnbuiltArea.value(area_column, AreaRow::premium) * 100;
    properties.set_text(column, PropertyRow::premium_rate, number_text(rate));
    const double higher = properties.value(column, PropertyRow::higher_value);
    properties.set_value(column, PropertyRow::premium, rate * higher / 100);
    // Wanted: the rows behind the valuation catch up at the next recomputation of the column.
    properties.set_value(column, PropertyRow::valuation, rate * higher / 100 + higher);
}

void UnbuiltAreaPanel::LoadUnbuiltArea() {
    read_ = procedure(session_, "frmImmovable - LoadUnbuiltArea", [this](const Attempt& attempt) {
        sprUnbuiltArea.clear_data();
        const RowSet rows =
            open_rows(session_, attempt,
                      "[Unbuilt Area] where " + property_key(session_, immovable_.active_property()));
        if (!rows.eof())
            for (const StoredArea& area : stored_areas)
                sprUnbuiltArea.set_value(area_column, area.row, rows[area.stored_as].number());
        sprUnbuiltArea_Change(area_column, AreaRow::aggregate);
    });
}

void UnbuiltAreaPanel::SaveUnbuiltArea() {
    procedure(session_, "frmImmovable - SaveUnbuiltArea", [this](const Attempt& attempt) {
        const int property_no = immovable_.active_property();
        RowSet rows =
            open_or_add(session_, attempt, "[Unbuilt Area] where " + property_key(session_, property_no));
        rows.set("PropertyNo", property_no);
        for (const StoredArea& area : stored_areas)
            rows.set(area.stored_as, sprUnbuiltArea.value(area_column, area.row));
        attempt([&] { rows.update(); });
    });
}

} // namespace levora::schedules
