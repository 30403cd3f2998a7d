#include "computation/wealth_sheet.h"

#include <array>

namespace levora::computation {

namespace {

constexpr double largest_amount = 9999999999;
constexpr int amount_column = 6;

struct GridColumn {
    std::string_view header;
    widgets::CellKind kind;
    int max_chars;
    std::string_view stored_as;
};

constexpr std::array prepaid_columns{
    GridColumn{"Bank Name", widgets::CellKind::text, 30, "BankBranchName"},
    GridColumn{"Bank Branch", widgets::CellKind::text, 50, "BankBranch"},
    GridColumn{"BSR Code", widgets::CellKind::text, 7, "BSRCode"},
    GridColumn{"Date of Deposit", widgets::CellKind::date, 0, "DateOfPayment"},
    GridColumn{"Challan Sr. No.", widgets::CellKind::text, 5, "ChallanSrNo"},
    GridColumn{"Amount", widgets::CellKind::number, 0, "Amount"},
};

widgets::CellDesign design_of(const GridColumn& column) {
    switch (column.kind) {
    case widgets::CellKind::date:
        return widgets::date_cell({1, 1, 1}, {9999, 12, 31});
    case widgets::CellKind::number:
        return widgets::number_cell(0, largest_amount, 0);
    default:
        return widgets::text_cell(column.max_chars);
    }
}

} // namespace

// The points in which the two loads of the prepaid rows differ.
struct frmWealthMain::PrepaidLoading {
    bool grow_grid;
    bool dates_as_stored; // else day/month/year, and nothing for what is no date
};

void frmWealthMain::design_grids() {
    for (int column = 1; const GridColumn& each : prepaid_columns) {
        sprSATax.set_header(column, std::string(each.header));
        sprSATax.design_column(column++, design_of(each));
    }
    sprEnclosure.set_header(0, "Sr. No.");
    sprEnclosure.set_header(1, "Description ");
    sprEnclosure.set_header(2, "In Figures");
    sprEnclosure.design_column(1, widgets::text_cell(50));
    sprEnclosure.design_column(2, widgets::text_cell(10));
    sprEnclosure.set_column_width(1, 40);
}

void frmWealthMain::connect_grids() {
    sprSATax.on_change = [this](int column, int) { sprSATax_Change(column); };
    sprSATax.on_key_down = [this](std::string_view key) {
        if (key != "Delete" && key != "Escape") return false;
        sprSATax.clear_data(widgets::cell_at(sprSATax.active_column(), sprSATax.active_row()));
        return true;
    };
    sprEnclosure.on_advance = [this] {
        sprEnclosure.set_rows(sprEnclosure.rows() + 1);
        sprEnclosure.set_active(1, sprEnclosure.rows());
    };
    for (widgets::Grid* grid : {&sprSATax, &sprEnclosure}) {
        grid->on_key_char = [this, grid](char32_t character) { grid_key_char(*grid, character); };
        grid->on_right_click = [this] { return &mnuWealthTax; };
    }
    const auto send = [this](std::string_view key) {
        if (widgets::Grid* grid = session::active_grid(*this)) grid->press_key(key);
    };
    // Wanted: the Insert key makes no character, and the row insert listens for "-": no row is added.
    mnuAddrows.on_click = [send] { send("Insert"); };
    mnuDeleteRows.on_click = [send] { send("Escape"); };
}

void frmWealthMain::sprSATax_Change(int column) {
    if (column != amount_column) return;
    txtPrepaidTax.set_text("0");
    const int last = sprSATax.data_rows();
    for (int row = 1; row <= last; ++row)
        txtPrepaidTax.set_value(txtPrepaidTax.value() + sprSATax.value(amount_column, row));
}

void frmWealthMain::grid_key_char(widgets::Grid& grid, char32_t character) {
    if (character == U'-') {
        grid.insert_row(grid.active_row());
    } else if (character == U'\x1b' && grid.data_rows() > 0) {
        const widgets::MessageBox question{.text = "Do you want to delete the selected row(s) ?",
                                           .buttons = {widgets::Answer::yes, widgets::Answer::no}};
        if (says_yes(session_.desk, question)) grid.delete_rows(grid.active_row());
    }
}

void frmWealthMain::save_prepaid(const std::string& delete_statement) {
    session_.SqlText = delete_statement;
    session_.TaxDb.execute(session_.SqlText);
    session_.SqlText = "Select * From PrePaidTaxes where " + row_key();
    session::RowSet rows = session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update);
    const int last = sprSATax.data_rows();
    for (int row = 1; row <= last; ++row) { // blank rows in between are stored too
        rows.add_new();
        rows.set("AssesseeNo", session_.AssesseeNo);
        rows.set("FY", session_.CurrentFY);
        for (int column = 1; const GridColumn& each : prepaid_columns) {
            if (column == amount_column)
                rows.set(each.stored_as, sprSATax.value(column, row));
            else
                rows.set(each.stored_as, sprSATax.text(column, row));
            ++column;
        }
        rows.update();
    }
}

void frmWealthMain::SavePrepaidTaxes() {
    save_prepaid("Delete From PrePaidTaxes where AssesseeNo = " + session_.assessee_text() + " And FY = '" +
                 session_.CurrentFY + "'");
}

void frmWealthMain::SavePrepaidTaxesOnClose() {
    save_prepaid("Delete From [PrePaidTaxes] where AssesseeNo = " + session_.assessee_text() + " And FY ='" +
                 session_.CurrentFY + "'");
}

void frmWealthMain::load_prepaid(const PrepaidLoading& loading, session::RowSet rows) {
    // Wanted: the grid is not cleared first; rows that the store lacks stay as they are.
    for (int row = 1; !rows.eof(); ++row) {
        if (row > sprSATax.rows()) {
            if (!loading.grow_grid) break;
            sprSATax.set_rows(row);
        }
        for (int column = 1; const GridColumn& each : prepaid_columns) {
            const session::Value& stored = rows[each.stored_as];
            if (each.kind == widgets::CellKind::number)
                sprSATax.set_value(column, row, stored.number());
            else if (each.kind == widgets::CellKind::date && !loading.dates_as_stored)
                sprSATax.set_text(column, row, stored.day_month_year_or_empty());
            else
                sprSATax.set_text(column, row, stored.text());
            ++column;
        }
        rows.move_next();
    }
}

void frmWealthMain::LoadPrepaidTaxes() {
    session::procedure(
        session_, "frmWealthTaxMain - LoadPrepaidTaxes", [this](const session::Attempt& attempt) {
            session_.SqlText = "Select * From PrePaidTaxes where " + row_key();
            session::RowSet rows = attempt([&] { return session_.TaxDb.open_rows(session_.SqlText); });
            load_prepaid({.grow_grid = false, .dates_as_stored = false}, std::move(rows));
        });
}

void frmWealthMain::LoadPrepaidTaxesOnOpen() {
    session_.SqlText = "Select * From PrePaidTaxes where " + row_key();
    load_prepaid({.grow_grid = true, .dates_as_stored = true}, session_.TaxDb.open_rows(session_.SqlText));
}

} // namespace levora::computation
