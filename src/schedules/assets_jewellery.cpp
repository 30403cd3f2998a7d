#include "schedules/assets_jewellery.h"

#include "schedules/assets_screen.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"

#include <array>
#include <string>

namespace levora::schedules {

using session::Attempt;
using session::RowSet;
using session::Value;
using widgets::CellDesign;

namespace {

CellDesign description() {
    return widgets::text_cell(1000);
}
CellDesign unit_list() {
    return widgets::combo_cell({"Milligrams", "Grams", "Pound", "Kilograms", "Quintal", "Ton", "Carat"}, 0);
}
CellDesign weight() {
    return widgets::number_cell(0, 99999999.99, 2);
}
CellDesign details() {
    return widgets::button_cell(std::string(stones_caption));
}
CellDesign amount() {
    return widgets::number_cell(-9999999999999.99, 9999999999999.99, 2, true);
}
CellDesign valuer_name() {
    return widgets::text_cell(200);
}
CellDesign valuer_number() {
    return widgets::text_cell(100);
}
CellDesign report_date() {
    return widgets::date_cell({1990, 1, 1}, {2100, 12, 31});
}

// A row of sprJewellary is a field of an item. The texts of the values of stones and of the net amount
// are stored as they stand.
// clang-format off
constexpr std::array<ScheduleField, jewellery_rows> fields{{
    {"Description of item",               description,   Ground::plain, FieldStore::text, "ItemDesc"},
    {"Unit",                              unit_list,     Ground::plain, FieldStore::text, "Unit"},
    {"Gross Weight",                      weight,        Ground::plain, FieldStore::amount, "GrossWeight"},
    {"Net Weight of Precious Metal",      weight,        Ground::plain, FieldStore::amount, "NetWeight"},
    {"Description and Weight of Precious or Semi-Precious Stones", details, Ground::plain, FieldStore::text, "DescAndWeiOfPreAndSemiPreStones"},
    {"Value of each precious or semi precious stone total value of all such stones", amount, Ground::plain, FieldStore::text, "ValOfPreAndSemiPreStones"},
    {"Total value of jewellery as per Schedule III", amount, Ground::plain, FieldStore::amount, "TotalValOfJewellery"},
    {"Debt owed in relation to the jewellery", amount,   Ground::plain, FieldStore::amount, "DebtOwned"},
    {"Net amount (6-7)",                  amount,        Ground::grey,  FieldStore::text, "NetAmt"},
    {"Name of Registered Valuer",         valuer_name,   Ground::plain, FieldStore::text, "NameRegValuer"},
    {"Registration Number of Valuer",     valuer_number, Ground::plain, FieldStore::text, "RegNoValuer"},
    {"Date of Report by Valuer",          report_date,   Ground::plain, FieldStore::text, "DateofReportByValuer"},
}};
// clang-format on

constexpr int columns_at_first = 2; // the labels and one item
constexpr int label_column = 1;
constexpr double label_width = 62; // the longest label in full

const ScheduleField& field_of(int row) {
    return fields[static_cast<std::size_t>(row - 1)];
}

} // namespace

JewellerySchedule::JewellerySchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame_4(form, "Frame_4", "Schedule JE:- Jewellery , etc.referred"),
      cboNumberOfJewellery(form, "cboNumberOfJewellery", widgets::ListStyle::editable,
                           "Number Of Jewellery Items"),
      sprJewellary(form, "sprJewellary", columns_at_first, jewellery_rows,
                   "Schedule JE:- Jewellery , etc.referred"),
      txtAggNetAmt(form, "txtAggNetAmt", "Aggregate net amount of all jewellery, etc. from 8"),
      stones(form, session, *this) {
    design();
    add_rules();
    sprJewellary.on_change = [this](int column, int row) { sprJewellary_Change(column, row); };
    sprJewellary.on_button_click = [this](int column, int) { stones.open(column); };
}

void JewellerySchedule::design() {
    txtAggNetAmt.set_locked(true);
    sprJewellary.tag = "Jewellery";
    sprJewellary.set_header(label_column, "Description");
    sprJewellary.set_header(first_jewellery_column, "Jewellary 1");
    sprJewellary.set_column_width(label_column, label_width);
    sprJewellary.set_column_locked(label_column, true);
    sprJewellary.set_column_backcolor(label_column, widgets::grey_rgb);
    for (int row = 1; row <= jewellery_rows; ++row) {
        sprJewellary.set_label(label_column, row, std::string(field_of(row).header));
        sprJewellary.design_row(row, field_of(row).design(), first_jewellery_column);
        if (field_of(row).ground == Ground::grey)
            sprJewellary.set_cell_backcolor(first_jewellery_column, row, widgets::grey_rgb);
    }
}

void JewellerySchedule::add_rules() {
    using widgets::cell;
    using widgets::last_of_grid;
    using widgets::same;
    widgets::Rules& rules = form_.rules;
    const auto each_item = [this](int row) {
        return widgets::Rule::Target{sprJewellary, {first_jewellery_column, row, last_of_grid, row}};
    };
    net_ = &rules.add({.target = each_item(JewelleryRow::net),
                       .sources = {cell(sprJewellary, same, JewelleryRow::value),
                                   cell(sprJewellary, same, JewelleryRow::debt)},
                       .how = widgets::difference_formula,
                       .otherwise = "was typed or stored, or waits for the next change of value or debt"});
    total_ =
        &rules.add({txtAggNetAmt,
                    {row_of(sprJewellary, JewelleryRow::net, first_jewellery_column, widgets::last_used)},
                    widgets::running_sum});
    rules.tell(each_item(JewelleryRow::stones_value),
               "typed here, or the $1 that Details opens; for information only, in no total",
               {{stones.txtTotal, widgets::Reading::shown}});
    rules.call_by_rows(sprJewellary);
    rules.call(sprJewellary, "Value of the stones", 0, JewelleryRow::stones_value);
    rules.call(txtAggNetAmt, "Net amount of all jewellery");
    rules.call(stones.txtTotal, "total of the stones");
    rules.open_with({&stones.sprPreciousStone, &stones.txtTotal}, sprJewellary, JewelleryRow::stones);
}

void JewellerySchedule::sprJewellary_Change(int, int) {
    // Wanted: the active cell decides, not the one that changed; a figure that came with a load keeps
    // the net amount that was stored beside it.
    const int column = sprJewellary.active_column();
    const int row = sprJewellary.active_row();
    const bool on_item = column >= first_jewellery_column; // a label would be overwritten
    if (on_item && (row == JewelleryRow::value || row == JewelleryRow::debt))
        net_->work_out(column, JewelleryRow::net);
    txtAggNetAmt.set_text("0");
    total_->work_out();
}

void JewellerySchedule::load(const Attempt& attempt) {
    // Wanted: as many columns as the other grid has, less one; items past them stay until a record
    // takes their place.
    const int last_cleared = form_.immovable.sprImmovable.columns() - 1;
    sprJewellary.clear_data({first_jewellery_column, 1, last_cleared, sprJewellary.rows()});
    RowSet records =
        open_rows(session_, attempt, "[jewellery] where " + year_key(session_) + " Order By JwelleryNo");
    int column = first_jewellery_column;
    for (; !records.eof(); records.move_next()) {
        fill_item(column, records);
        // The count runs one ahead of the records, so that the next one finds its column.
        cboNumberOfJewellery.set_text(number_text(column));
        ++column;
    }
    cboNumberOfJewellery.set_text(number_text(column - first_jewellery_column));
    sprJewellary_Change(first_jewellery_column, 1);
}

void JewellerySchedule::fill_item(int column, const RowSet& record) {
    for (int row = 1; row <= jewellery_rows; ++row) {
        const std::string stored = record[field_of(row).stored_as].text();
        const bool no_stones = row == JewelleryRow::stones && stored == "0";
        sprJewellary.set_text(column, row, no_stones ? std::string(stones_caption) : stored);
    }
}

void JewellerySchedule::save(const Attempt& attempt) {
    RowSet records = open_emptied(session_, attempt, "[jewellery] where " + year_key(session_));
    const int last = sprJewellary.data_columns();
    for (int column = first_jewellery_column; column <= last; ++column) {
        // Wanted: an item is known by its description; one without is not stored, whatever its value.
        if (sprJewellary.text(column, JewelleryRow::description).empty()) continue;
        records.add_new();
        store_item(records, column);
        attempt([&] { records.update(); });
    }
}

void JewellerySchedule::store_item(RowSet& record, int column) const {
    record.set("AssesseeNo", session_.AssesseeNo);
    record.set("FY", session_.CurrentFY);
    record.set("JwelleryNo", column - 1);
    for (int row = 1; row <= jewellery_rows; ++row) {
        const ScheduleField& field = field_of(row);
        if (field.store == FieldStore::amount)
            record.set(field.stored_as, sprJewellary.value(column, row));
        else if (row == JewelleryRow::stones && sprJewellary.text(column, row) == stones_caption)
            record.set(field.stored_as, 0);
        else
            record.set(field.stored_as, sprJewellary.text(column, row));
    }
}

std::string JewellerySchedule::value_for_parent() const {
    return txtAggNetAmt.text();
}

} // namespace levora::schedules
