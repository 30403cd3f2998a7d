#include "schedules/assets_movable.h"

#include "schedules/assets_screen.h"
#include "schedules/grid_keys.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"

#include <array>

namespace levora::schedules {

using session::Attempt;
using session::RowSet;
using widgets::CellDesign;

namespace {

CellDesign label() {
    return widgets::text_cell();
}
CellDesign amount() {
    return widgets::number_cell(-9999999999, 99999999999, 0, true);
}
CellDesign total_amount() {
    return widgets::number_cell(-99999999, 99999999999, 0, true);
}

// clang-format off
constexpr std::array<ScheduleField, 4> fields{{
    {"Property Detail", label,  Ground::grey_and_locked, FieldStore::text, "MovableDesc", 34},
    {"Amount",          amount, Ground::plain,           FieldStore::amount, "MovableValue", 18},
    {"Debts Owed in Relation to the Asset", amount, Ground::plain, FieldStore::amount, "DebtOwed", 18},
    {"Net Amount",      amount, Ground::grey_and_locked, FieldStore::amount, "NetAmount", 18},
}};
// clang-format on

constexpr std::array<std::string_view, MovableRow::total> labels{
    "Motor Cars", "Yachts, AirCrafts and Boats etc.", "Cash-in-Hand", "Total Value of Movable Property"};

} // namespace

MovableSchedule::MovableSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame1(form, "Frame1"),
      sprMovableProp(form, "sprMovableProp", static_cast<int>(fields.size()), MovableRow::total,
                     "Movable Property") {
    design();
    sprMovableProp.on_change = [this](int column, int row) { sprMovableProp_Change(column, row); };
    sprMovableProp.on_key_down = [this](std::string_view key) {
        return clear_or_insert_key(sprMovableProp, key);
    };
}

void MovableSchedule::design() {
    sprMovableProp.tag = "Movable Property";
    design_columns(sprMovableProp, fields);
    for (int row = 1; const std::string_view each : labels)
        sprMovableProp.set_label(MovableColumn::description, row++, std::string(each));
    for (int column = MovableColumn::amount; column <= MovableColumn::net; ++column) {
        sprMovableProp.design_cell(column, MovableRow::total, total_amount());
        sprMovableProp.set_cell_formula(column, MovableRow::total,
                                        {{column, 1, column, MovableRow::last_item}}, widgets::sum_formula);
    }
    sprMovableProp.set_cell_locked(MovableColumn::amount, MovableRow::total, true);

    using widgets::same;
    // Wanted: rows by their numbers, also after a row was inserted: what stands in row 4 then takes the
    // sums of the rows above it.
    sums_ = &form_.rules.add(
        {{sprMovableProp, {MovableColumn::amount, MovableRow::total, MovableColumn::debt, MovableRow::total}},
         {{sprMovableProp, {same, 1, same, MovableRow::last_item}}},
         widgets::sum_formula});
    net_ = &form_.rules.add(
        {{sprMovableProp, {MovableColumn::net, 1, MovableColumn::net, widgets::last_of_grid}},
         {widgets::cell(sprMovableProp, MovableColumn::amount, same),
          widgets::cell(sprMovableProp, MovableColumn::debt, same)},
         widgets::difference_formula});
}

void MovableSchedule::sprMovableProp_Change(int column, int row) {
    if (column == MovableColumn::amount || column == MovableColumn::debt) {
        sums_->work_out(MovableColumn::amount, MovableRow::total);
        sums_->work_out(MovableColumn::debt, MovableRow::total);
        net_->work_out(MovableColumn::net, row);
    }
    if (!session_.BusinessAssetFlag && !session_.DeemedAssetFlag) form_.summary.movable->work_out();
}

void MovableSchedule::load(const Attempt& attempt) {
    sprMovableProp.clear_data({MovableColumn::amount, 1, MovableColumn::amount, MovableRow::total});
    RowSet records = open_rows(session_, attempt,
                               "[Movable Property Details] where " + asset_key(session_) + " Order by SrNo");
    for (; !records.eof(); records.move_next()) {
        const double row = records["SrNo"].number();
        if (row >= 1 && row < sprMovableProp.rows() + 1)
            fill_row(sprMovableProp, static_cast<int>(row), fields, records);
    }
}

void MovableSchedule::save(const Attempt& attempt) {
    RowSet records =
        open_emptied(session_, attempt, "[Movable Property Details] where " + asset_key(session_));
    const int last_item = sprMovableProp.rows() - 1; // the total row is always the last
    for (int row = 1; row <= last_item; ++row) {
        // Wanted: an item whose debt reaches its amount is not stored.
        if (sprMovableProp.value(MovableColumn::net, row) <= 0) continue;
        records.add_new();
        set_asset_key(records, session_);
        records.set("SrNo", row);
        store_fields(records, sprMovableProp, row, fields);
        attempt([&] { records.update(); });
    }
}

std::string MovableSchedule::value_for_parent() const {
    return number_text(sprMovableProp.value(MovableColumn::net, MovableRow::total));
}

} // namespace levora::schedules
