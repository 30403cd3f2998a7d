#include "computation/wealth_sheet.h"

#include <array>

namespace levora::computation {

namespace {
constexpr std::array<std::string_view, 2> enclosure_columns{"Description", "Figure"};
} // namespace

void frmWealthMain::load_enclosures(const session::Attempt& attempt) {
    sprEnclosure.clear_data();
    session_.SqlText = "Select * From Enclosure Where " + row_key();
    session::RowSet rows =
        attempt([&] { return session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update); });
    for (int row = 1; !rows.eof(); ++row) {
        if (row > sprEnclosure.rows()) sprEnclosure.set_rows(row);
        for (int column = 1; const std::string_view stored : enclosure_columns)
            attempt([&] { sprEnclosure.set_text(column++, row, rows[stored].text()); });
        rows.move_next();
    }
}

void frmWealthMain::save_enclosures(const session::Attempt& attempt) {
    session_.SqlText = "Delete From Enclosure Where " + row_key();
    attempt([&] { return session_.TaxDb.execute(session_.SqlText); });
    session_.SqlText = "Select * From Enclosure Where " + row_key();
    session::RowSet rows =
        attempt([&] { return session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update); });
    const int last = sprEnclosure.data_rows();
    for (int row = 1; row <= last; ++row) {
        attempt([&] { rows.add_new(); });
        attempt([&] { rows.set("AssesseeNo", session_.AssesseeNo); });
        attempt([&] { rows.set("FY", session_.CurrentFY); });
        for (int column = 1; const std::string_view stored : enclosure_columns) {
            attempt([&] { rows.set(stored, sprEnclosure.text(column, row)); });
            ++column;
        }
        attempt([&] { rows.update(); });
        // Wanted: the row set is closed inside the loop. One enclosure is stored; a second one fails on
        // the closed row set and is reported.
        rows.close();
    }
}

} // namespace levora::computation
