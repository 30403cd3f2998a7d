#pragma once

#include "session/common_services.h"
#include "session/data_store.h"
#include "session/session_state.h"
#include "widgets/grid.h"

#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace levora::schedules {

enum class Ground { plain, locked, grey, grey_and_locked };

enum class FieldStore {
    nothing, // comes back by recomputation, or is a button
    text,    // a Null loads as the empty text
    amount,  // the numeric value of the cell; a Null loads as 0
};

// One field of a schedule whose assets lie row by row: a column of its grid and of its table.
struct ScheduleField {
    std::string_view header;
    widgets::CellDesign (*design)();
    Ground ground;
    FieldStore store;
    std::string_view stored_as;
    double width = 12; // in characters
};
using ScheduleFields = std::span<const ScheduleField>;

// Gives the grid its columns, from 1 on in the order of the fields.
void design_columns(widgets::Grid& grid, ScheduleFields fields);

// One record into one row. Formula cells keep their own result.
void fill_row(widgets::Grid& grid, int row, ScheduleFields fields, const session::RowSet& record);

// What becomes of records that the grid has no row for.
enum class RowGrowth {
    as_needed, // the row count is raised
    none,      // they are passed over
};
// All records, one a row, from row 1 on. The grid is not cleared first.
void fill_rows(widgets::Grid& grid, ScheduleFields fields, session::RowSet& records, RowGrowth growth);

// One row into the new record that `record` is at.
void store_fields(session::RowSet& record, const widgets::Grid& grid, int row, ScheduleFields fields);

// One record for each row from 1 to the last row that is kept, under the assessee, the year and, where
// the table has one, the asset type. `records` is open for update.
struct StoredRows {
    int last_row;
    std::function<bool(int row)> kept;
    std::optional<int> asset_type;
};
void store_rows(const session::Attempt& attempt, const session::Session& session, session::RowSet& records,
                const widgets::Grid& grid, ScheduleFields fields, const StoredRows& rows);

} // namespace levora::schedules
