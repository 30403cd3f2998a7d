#include "computation/wealth_sheet.h"
#include "session/common_services.h"

#include <array>
#include <string_view>

namespace levora::computation {

namespace {

constexpr double highest_amount = 9999999999;
constexpr int unrounded = -1; // an amount stays as it was paid, paise and all

struct PrepaidField {
    int column;
    const char* header;
    widgets::CellDesign cell;
    int width;
    std::string_view stored_as;
};

const std::array<PrepaidField, 6>& prepaid_fields() {
    static const std::array<PrepaidField, 6> fields{{
        // The column's name promises the branch too; it holds the bank alone.
        {PrepaidColumn::bank_name, "Bank Name", widgets::text_cell(30), 16, "BankBranchName"},
        {PrepaidColumn::bank_branch, "Bank Branch", widgets::text_cell(50), 14, "BankBranch"},
        {PrepaidColumn::bsr_code, "BSR Code", widgets::text_cell(7), 9, "BSRCode"},
        {PrepaidColumn::date_of_deposit, "Date of Deposit", widgets::date_cell({1, 1, 1}, {9999, 12, 31}), 14,
         "DateOfPayment"},
        {PrepaidColumn::challan_number, "Challan Sr. No.", widgets::text_cell(5), 14, "ChallanSrNo"},
        {PrepaidColumn::amount, "Amount", widgets::number_cell(0, highest_amount, unrounded, true), 14,
         "Amount"},
    }};
    return fields;
}

} // namespace

// In what the loading at the start and the loading of the opened panel differ.
struct frmWealthMain::PrepaidLoading {
    bool grow_grid;
    bool dates_checked; // a stored value that is no date is then left out
    bool amount_as_number;
};

void frmWealthMain::design_prepaid() {
    for (const PrepaidField& field : prepaid_fields()) {
        sprSATax.design_column(field.column, field.cell);
        sprSATax.set_header(field.column, field.header);
        sprSATax.set_column_width(field.column, field.width);
    }
}

void frmWealthMain::put_prepaid_row(const session::RowSet& rows, int row, const PrepaidLoading& how) {
    for (const PrepaidField& field : prepaid_fields()) {
        const session::Value& stored = rows[field.stored_as];
        if (field.column == PrepaidColumn::amount && how.amount_as_number)
            sprSATax.set_value(field.column, row, stored.number());
        else if (field.column == PrepaidColumn::amount)
            sprSATax.set_text(field.column, row, stored.is_null() ? "0" : stored.text());
        else if (field.column == PrepaidColumn::date_of_deposit && how.dates_checked)
            sprSATax.set_text(field.column, row, stored.day_month_year_or_empty());
        else
            sprSATax.set_text(field.column, row, stored.text());
    }
}

// Neither loading clears the grid first: rows beyond the stored ones stay.
template <class Step> void frmWealthMain::load_prepaid(const PrepaidLoading& how, const Step& step) {
    session_.SqlText = "Select * From PrePaidTaxes where " + row_key();
    session::RowSet rows = step([this] { return session_.TaxDb.open_rows(session_.SqlText); });
    for (int row = 1; !rows.eof(); ++row) {
        if (row > sprSATax.rows()) {
            if (!how.grow_grid) return;
            step([&] { sprSATax.set_rows(row); });
        }
        step([&] { put_prepaid_row(rows, row, how); });
        rows.move_next();
    }
}

void frmWealthMain::LoadPrepaidTaxes() {
    prepaid_read_ =
        session::procedure(session_, "frmWealthTaxMain - LoadPrepaidTaxes", [this](const auto& attempt) {
            load_prepaid({.grow_grid = false, .dates_checked = true, .amount_as_number = true}, attempt);
        });
}

void frmWealthMain::LoadPrepaidTaxesOnOpen() {
    load_prepaid({.grow_grid = true, .dates_checked = false, .amount_as_number = false},
                 [](const auto& statement) { return statement(); });
    prepaid_read_ = true;
}

void frmWealthMain::SavePrepaidTaxes() {
    save_prepaid("Delete From PrePaidTaxes where " + row_key(), RowSetAtEnd::dropped);
}

void frmWealthMain::SavePrepaidTaxesOnClose() {
    save_prepaid("Delete From [PrePaidTaxes] where AssesseeNo = " + session_.assessee_text() + " And FY ='" +
                     session_.CurrentFY + "'",
                 RowSetAtEnd::closed);
}

void frmWealthMain::save_prepaid(const std::string& deletion, RowSetAtEnd at_end) {
    if (!prepaid_read_ && !goes_on(ask_over_unread(session_, {{"PrePaidTaxes", row_key()}}))) return;
    session_.SqlText = deletion;
    session_.TaxDb.execute(session_.SqlText);
    session_.SqlText = "Select * From PrePaidTaxes where " + row_key();
    session::RowSet rows = session_.TaxDb.open_rows(session_.SqlText, session::RowSetUse::update);
    const int last = sprSATax.data_rows();
    for (int row = 1; row <= last; ++row) { // blank rows in between are stored too
        rows.add_new();
        rows.set("AssesseeNo", session_.AssesseeNo);
        rows.set("FY", session_.CurrentFY);
        for (const PrepaidField& field : prepaid_fields()) {
            if (field.column == PrepaidColumn::amount)
                rows.set(field.stored_as, sprSATax.value(field.column, row));
            else
                rows.set(field.stored_as, sprSATax.text(field.column, row));
        }
        rows.update();
    }
    if (at_end == RowSetAtEnd::closed) rows.close();
}

void frmWealthMain::delete_active_row(widgets::Grid& grid) {
    if (grid.data_rows() == 0 || grid.active_row() < 1) return;
    const widgets::MessageBox question{.text = "Do you want to delete the selected row(s) ?",
                                       .buttons = {widgets::Answer::yes, widgets::Answer::no}};
    // No total is worked out: that waits for the next amount typed.
    if (widgets::says_yes(session_.desk, question)) grid.delete_rows(grid.active_row());
}

void frmWealthMain::grid_character(widgets::Grid& grid, char32_t character) {
    constexpr char32_t escape = 27;
    if (character == escape) delete_active_row(grid);
    // The grid keeps its size; only where its last row would fall off with data in it does it grow.
    if (character == U'-') grid.insert_row(grid.active_row(), grid.row_has_data(grid.rows()));
}

void frmWealthMain::connect_grids() {
    design_prepaid();
    design_enclosures();

    sprSATax.on_change = [this](int column, int /*row*/) {
        // Balance and refund follow row by row.
        if (column == PrepaidColumn::amount) prepaid_total_->work_out_step_by_step();
    };
    sprSATax.on_key_down = [this](std::string_view key) {
        if (key != "Delete" && key != "Escape") return false;
        sprSATax.clear_data(widgets::cell_at(sprSATax.active_column(), sprSATax.active_row()));
        return true;
    };
    for (widgets::Grid* grid : {&sprSATax, &sprEnclosure}) {
        grid->on_key_char = [this, grid](char32_t character) { grid_character(*grid, character); };
        grid->on_right_click = [this] { return &mnuWealthTax; };
    }
    sprEnclosure.on_advance = [this] {
        sprEnclosure.set_rows(sprEnclosure.rows() + 1);
        sprEnclosure.set_active(EnclosureColumn::description, sprEnclosure.rows());
    };
}

} // namespace levora::computation
