#include "schedules/assets_immovable.h"

#include "schedules/assets_screen.h"
#include "schedules/grid_keys.h"
#include "schedules/property_grid.h"
#include "session/table_rows.h"

namespace levora::schedules {

using session::Attempt;
using session::RowSet;
using session::RowSetUse;
using session::Value;

namespace {
constexpr int columns_at_first = 4; // labels and three properties
} // namespace

ImmovableSchedule::ImmovableSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), FrameImmovable(form, "FrameImmovable"),
      cboNumberOfProperty(form, "cboNumberOfProperty", widgets::ListStyle::editable,
                          "Number of Residential/Commercial Property Owned"),
      sprImmovable(form, "sprImmovable", columns_at_first, property_rows),
      txtImmovableNetAmount(form, "txtImmovableNetAmount", "Net Amount"), valuation(sprImmovable),
      annual_rent(form, session, *this), unbuilt_area(form, session, *this), unearned_increase(form) {
    design_property_grid(sprImmovable);
    sprImmovable.tag = "Immovable Property";
    txtImmovableNetAmount.set_locked(true);
    add_rules();
    connect();
}

void ImmovableSchedule::add_rules() {
    using widgets::cell;
    using widgets::last_of_grid;
    using widgets::Reading;
    widgets::Rules& rules = form_.rules;
    // Wanted: hidden columns count too; leaving them out would lose what a smaller count only hides.
    total_ = &rules.add({txtImmovableNetAmount,
                         {row_of(sprImmovable, PropertyRow::net_value, first_property_column, last_of_grid)},
                         widgets::running_sum});
    const auto each_property = [this](int row) {
        return widgets::Rule::Target{sprImmovable, {first_property_column, row, last_of_grid, row}};
    };
    rules.tell(each_property(PropertyRow::annual_rent), "the $1 that this button opens",
               {{annual_rent.txtTotalAnnualRent, Reading::shown}});
    rules.tell(each_property(PropertyRow::premium_rate), "the $1 that this button opens",
               {cell(unbuilt_area.sprUnbuiltArea, plot_area_column, plot_premium_row, Reading::shown)});
    rules.call_by_rows(sprImmovable);
    rules.call(annual_rent.txtTotalAnnualRent, "total of the annual rent");
    rules.open_with({&annual_rent.sprAnnualRent, &annual_rent.txtTotalAnnualRent}, sprImmovable,
                    PropertyRow::annual_rent);
    rules.open_with({&unbuilt_area.sprUnbuiltArea}, sprImmovable, PropertyRow::premium_rate);
}

void ImmovableSchedule::connect() {
    sprImmovable.on_change = [this](int column, int row) { sprImmovable_Change(column, row); };
    sprImmovable.on_button_click = [this](int column, int row) {
        if (row == PropertyRow::annual_rent)
            annual_rent.open();
        else if (row == PropertyRow::premium_rate)
            unbuilt_area.open(column);
    };
    sprImmovable.on_combo_select = [this](int column, int row) {
        // Wanted: asks the row of the premises, a plain text, so that "Other" among the towns opens
        // nothing for typing.
        if (row == PropertyRow::premises)
            sprImmovable.set_combo_editable(column, row, sprImmovable.text(column, row) == "Other");
    };
    sprImmovable.on_key_down = [this](std::string_view key) { return sprImmovable_KeyDown(key); };
}

bool ImmovableSchedule::sprImmovable_KeyDown(std::string_view key) {
    const int column = sprImmovable.active_column();
    const int next_row = sprImmovable.active_row() + 1;
    if ((key == "Tab" || key == "Right") && column == cboNumberOfProperty.value() - 1 &&
        next_row <= sprImmovable.rows()) {
        sprImmovable.set_active(column, next_row);
        return true;
    }
    return clear_or_insert_key(sprImmovable, key);
}

void ImmovableSchedule::sprImmovable_Change(int column, int row) {
    // Wanted: a new cost, premium or unearned increase waits for the next change of a row that
    // recomputes, and is stored beside the old results.
    if (row >= 1 && row <= property_rows && property_item(row).recomputes == Recomputes::column)
        valuation.value(column);
    compute_total();
}

void ImmovableSchedule::compute_total() {
    txtImmovableNetAmount.set_text("0");
    total_->work_out();
    form_.summary.immovable->work_out();
}

void ImmovableSchedule::load(const Attempt& attempt) {
    sprImmovable.clear_data({first_property_column, 1, sprImmovable.columns() - 1, sprImmovable.rows()});
    RowSet rows =
        open_rows(session_, attempt,
                  "[Immovable Property Details] Where " + asset_key(session_) + " Order By PropertyNo");
    int column = first_property_column;
    for (; !rows.eof(); rows.move_next()) {
        fill_column(column, rows);
        sprImmovable_Change(column, PropertyRow::annual_rent);
        // The count runs one ahead of the records, so that the next one finds its column.
        cboNumberOfProperty.set_text(number_text(column));
        ++column;
    }
    cboNumberOfProperty.set_text(number_text(column - first_property_column));
    sprImmovable_Change(first_property_column, 1);
}

void ImmovableSchedule::fill_column(int column, const RowSet& record) {
    for (int row = 1; row <= property_rows; ++row) {
        const PropertyItem& item = property_item(row);
        if (item.field == PropertyField::none) continue;
        const Value& stored = record[item.stored_as];
        switch (item.field) {
        case PropertyField::number:
            if (stored.number() > 0) sprImmovable.set_text(column, row, number_text(stored.number()));
            break;
        case PropertyField::caption:
            sprImmovable.set_text(column, row,
                                  stored.is_null() ? std::string(details_caption) : stored.text());
            break;
        default:
            sprImmovable.set_text(column, row, stored.text());
            break;
        }
    }
}

void ImmovableSchedule::save(const Attempt& attempt) {
    session_.SqlText = "Delete From [Immovable Property Details] Where " + asset_key(session_);
    attempt([&] { session_.TaxDb.execute(session_.SqlText); });
    const double count = cboNumberOfProperty.value();
    if (count < 1) return;
    RowSet rows = open_rows(session_, attempt, "[Immovable Property Details] Where " + asset_key(session_),
                            RowSetUse::update);
    for (int column = first_property_column; column <= count + 1; ++column) {
        rows.add_new();
        set_asset_key(rows, session_);
        rows.set("PropertyNo", column - 1);
        for (int row = 1; row <= property_rows; ++row) {
            const PropertyItem& item = property_item(row);
            if (item.field == PropertyField::number)
                rows.set(item.stored_as, sprImmovable.value(column, row));
            else if (item.field != PropertyField::none)
                rows.set(item.stored_as, sprImmovable.text(column, row));
        }
        attempt([&] { rows.update(); });
    }
}

std::string ImmovableSchedule::value_for_parent() const {
    return txtImmovableNetAmount.text();
}

} // namespace levora::schedules
