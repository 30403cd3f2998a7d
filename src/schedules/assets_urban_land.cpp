#include "schedules/assets_urban_land.h"

#include "schedules/assets_screen.h"
#include "schedules/grid_keys.h"
#include "schedules/places.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"

#include <array>

namespace levora::schedules {

using session::Attempt;
using session::RowSet;
using widgets::CellDesign;

namespace {

CellDesign fifty_characters() {
    return widgets::text_cell(50);
}
CellDesign any_text() {
    return widgets::text_cell();
}
CellDesign city_list() {
    return widgets::combo_cell(city_names(Raipur::left_out), 0);
}
CellDesign state_list() {
    return widgets::combo_cell(schedule_state_names(), 0);
}
CellDesign country_list() {
    return widgets::combo_cell({"INDIA"});
}
CellDesign pincode() {
    return widgets::mask_cell("999999");
}
CellDesign amount() {
    return widgets::number_cell(0, 999999999999, 0, true);
}
CellDesign report_date() {
    return widgets::date_cell({1900, 1, 1}, {2100, 12, 31});
}

// clang-format off
constexpr std::array<ScheduleField, 16> fields{{
    {"Urban Land (Description)", fifty_characters, Ground::plain, FieldStore::text, "UrbanLandDescription", 28},
    {"Flat / Door / Block",      fifty_characters, Ground::plain, FieldStore::text, "Flat", 18},
    {"Name of Premises",         any_text,     Ground::plain, FieldStore::text, "Premises", 20},
    {"Road / Street / Post Office", any_text,  Ground::plain, FieldStore::text, "Road", 24},
    {"Area / Locality",          any_text,     Ground::plain, FieldStore::text, "Area", 20},
    {"Town / City / District",   city_list,    Ground::plain, FieldStore::text, "City", 20},
    {"State",                    state_list,   Ground::plain, FieldStore::text, "State", 24},
    {"Country",                  country_list, Ground::plain, FieldStore::text, "Country", 10},
    {"Pin Code",                 pincode,      Ground::plain, FieldStore::text, "pincode", 10},
    {"Survey / Plot No.",        any_text,     Ground::plain, FieldStore::text, "survey", 16},
    {"Valuation (Rs.)",          amount,       Ground::plain, FieldStore::amount, "ValueOfUrbanLand", 16},
    {"Debts owed",               amount,       Ground::plain, FieldStore::amount, "DebtOwed", 16},
    {"Net Amount",               amount,       Ground::grey_and_locked, FieldStore::amount, "NetAmount", 16},
    {"Name of Registered Valuer", any_text,    Ground::plain, FieldStore::text, "NameRegValuer", 24},
    {"Registration No. of Valuer", any_text,   Ground::plain, FieldStore::text, "RegNoValuer", 22},
    {"Date of Report by Valuer", report_date,  Ground::plain, FieldStore::text, "DateofReportByValuer", 18},
}};
// clang-format on

constexpr int rows_at_first = 12;

} // namespace

UrbanLandSchedule::UrbanLandSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame3(form, "Frame3"),
      sprUrbanLand(form, "sprUrbanLand", static_cast<int>(fields.size()), rows_at_first, "Urban Land"),
      txtNetValuation(form, "txtNetValuation", "Valuation (Rs.)"),
      txtNetDebtsOwed(form, "txtNetDebtsOwed", "Debts owed"),
      txtNetAmount(form, "txtNetAmount", "Net Amount") {
    for (widgets::TextField* total : {&txtNetValuation, &txtNetDebtsOwed, &txtNetAmount})
        total->set_locked(true);
    sprUrbanLand.tag = "Urban Land";
    sprUrbanLand.set_header(0, "Sr. No.");
    design_columns(sprUrbanLand, fields);
    sprUrbanLand.set_column_formula(LandColumn::net, {LandColumn::valuation, LandColumn::debt},
                                    widgets::difference_formula);
    const auto total = [this](widgets::TextField& field, int column) {
        return &form_.rules.add({.target = field,
                                 .sources = {column_of(sprUrbanLand, column)},
                                 .how = widgets::sum_formula,
                                 .otherwise = "waits for the next change of a row"});
    };
    totals_ = {total(txtNetValuation, LandColumn::valuation), total(txtNetDebtsOwed, LandColumn::debt),
               total(txtNetAmount, LandColumn::net)};
    connect();
}

void UrbanLandSchedule::connect() {
    sprUrbanLand.on_change = [this](int column, int row) { sprUrbanLand_Change(column, row); };
    sprUrbanLand.on_key_down = [this](std::string_view key) { return sprUrbanLand_KeyDown(key); };
    sprUrbanLand.on_key_char = [this](char32_t character) { sprUrbanLand_KeyPress(character); };
    sprUrbanLand.on_advance = [this] {
        sprUrbanLand.set_rows(sprUrbanLand.rows() + 1);
        sprUrbanLand.set_active(1, sprUrbanLand.rows());
    };
}

void UrbanLandSchedule::sprUrbanLand_Change(int, int) {
    // Under the preview of its sheet the grid ends in a total row, which must not be summed.
    if (session_.SheetGridName == sprUrbanLand.name()) return;
    for (const widgets::Rule* total : totals_)
        total->work_out();
}

bool UrbanLandSchedule::sprUrbanLand_KeyDown(std::string_view key) {
    // Wanted: clears a locked cell too, on Escape even before the question about the row.
    if (key == "Delete" || key == "Escape")
        sprUrbanLand.clear_data(widgets::cell_at(sprUrbanLand.active_column(), sprUrbanLand.active_row()));
    return clear_or_insert_key(sprUrbanLand, key);
}

void UrbanLandSchedule::sprUrbanLand_KeyPress(char32_t character) {
    if (character != U'\x1b') return;
    const widgets::MessageBox question{.text = "Do you want to delete the Selected row(s) ?",
                                       .icon = widgets::Icon::question,
                                       .buttons = {widgets::Answer::yes, widgets::Answer::no}};
    if (!says_yes(session_.desk, question)) return;
    // Wanted: the emptied row stays, and the totals wait for the next change.
    const int row = sprUrbanLand.active_row();
    sprUrbanLand.clear_data({1, row, sprUrbanLand.columns(), row});
}

void UrbanLandSchedule::load(const Attempt& attempt) {
    sprUrbanLand.clear_data();
    RowSet records = open_rows(session_, attempt, "[Urban Land] Where " + asset_key(session_));
    fill_rows(sprUrbanLand, fields, records, RowGrowth::as_needed);
    sprUrbanLand_Change(LandColumn::premises, -1);
}

void UrbanLandSchedule::save(const Attempt& attempt) {
    RowSet records = open_emptied(session_, attempt, "[Urban Land] Where " + asset_key(session_));
    // Wanted: land whose debts reach its valuation is not stored; it adds no wealth.
    store_rows(attempt, session_, records, sprUrbanLand, fields,
               {.last_row = sprUrbanLand.data_rows(),
                .kept = [this](int row) { return sprUrbanLand.value(LandColumn::net, row) > 0; },
                .asset_type = session_.asset_type()});
}

std::string UrbanLandSchedule::value_for_parent() const {
    return number_text(txtNetAmount.value());
}

} // namespace levora::schedules
