#include "schedules/schedule_field.h"

#include <algorithm>

namespace levora::schedules {

void design_columns(widgets::Grid& grid, ScheduleFields fields) {
    for (int column = 1; const ScheduleField& field : fields) {
        grid.set_header(column, std::string(field.header));
        grid.design_column(column, field.design());
        grid.set_column_width(column, field.width);
        const bool grey = field.ground == Ground::grey || field.ground == Ground::grey_and_locked;
        if (grey) grid.set_column_backcolor(column, widgets::grey_rgb);
        grid.set_column_locked(column,
                               field.ground == Ground::locked || field.ground == Ground::grey_and_locked);
        ++column;
    }
}

void fill_row(widgets::Grid& grid, int row, ScheduleFields fields, const session::RowSet& record) {
    for (int column = 1; const ScheduleField& field : fields) {
        if (field.store == FieldStore::text)
            grid.set_text(column, row, record[field.stored_as].text());
        else if (field.store == FieldStore::amount)
            grid.set_value(column, row, record[field.stored_as].number());
        ++column;
    }
}

void fill_rows(widgets::Grid& grid, ScheduleFields fields, session::RowSet& records, RowGrowth growth) {
    for (int row = 1; !records.eof(); records.move_next(), ++row) {
        if (row > grid.rows()) {
            if (growth == RowGrowth::none) return;
            grid.set_rows(row);
        }
        fill_row(grid, row, fields, records);
    }
}

void store_fields(session::RowSet& record, const widgets::Grid& grid, int row, ScheduleFields fields) {
    for (int column = 1; const ScheduleField& field : fields) {
        if (field.store == FieldStore::text)
            record.set(field.stored_as, grid.text(column, row));
        else if (field.store == FieldStore::amount)
            record.set(field.stored_as, grid.value(column, row));
        ++column;
    }
}

void store_rows(const session::Attempt& attempt, const session::Session& session, session::RowSet& records,
                const widgets::Grid& grid, ScheduleFields fields, const StoredRows& rows) {
    const int last = std::min(rows.last_row, grid.rows());
    for (int row = 1; row <= last; ++row) {
        if (rows.kept && !rows.kept(row)) continue;
        records.add_new();
        records.set("AssesseeNo", session.AssesseeNo);
        records.set("FY", session.CurrentFY);
        if (rows.asset_type) records.set("AssetType", *rows.asset_type);
        store_fields(records, grid, row, fields);
        attempt([&] { records.update(); });
    }
}

} // namespace levora::schedules
