#include "schedules/exempted_assets.h"

#include "computation/hand_overs.h"
#include "schedules/asset_schedule.h"
#include "schedules/grid_keys.h"
#include "schedules/hand_over.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"

#include <array>
#include <string>

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;
using widgets::CellDesign;

namespace {

CellDesign asset_list() {
    return widgets::combo_cell({"Property held under a trust", "Coparcenary interest in HUF",
                                "Residential building of Former Ruler", "Former Ruler's Jwellery",
                                "Assets belonging to Indian repatriates", "One house or a part of house",
                                "Other (Specify)"});
}
// Amounts stay as they are entered: the sheet has no rounding here.
constexpr int unrounded = -1;
CellDesign amount() {
    return widgets::number_cell(-99999999, 99999999999, unrounded, true);
}
CellDesign fifty_characters() {
    return widgets::text_cell(50);
}

// clang-format off
constexpr std::array<ScheduleField, 5> fields{{
    {"Asset Under Exemption", asset_list, Ground::grey, FieldStore::text, "ExemptedAssetDesc", 38},
    {"Amount",                amount,     Ground::plain, FieldStore::amount, "ExemptedAmount", 16},
    {"Debt owed in relation to the Asset", amount, Ground::plain, FieldStore::amount, "DebtOwed", 18},
    {"Net Amount",            amount,     Ground::grey_and_locked, FieldStore::amount, "NetAmount", 16},
    {"Reasons for the claim", fifty_characters, Ground::plain, FieldStore::text, "ResonsForClaim", 34},
}};
// clang-format on

constexpr int rows_at_first = 6;

// This screen's own wording of its rows, with the two blanks.
std::string exempted_key(const session::Session& session) {
    return "AssesseeNo = " + session.assessee_text() + "  And FY ='" + session.CurrentFY + "'";
}

} // namespace

frmAssetExempt::frmAssetExempt(session::Session& session)
    : Screen(session, "frmAssetExempt", "Asset Exempt"),
      frAssetExempt(*this, "frAssetExempt", "Asset Exemption"),
      sprAssetExempt(*this, "sprAssetExempt", static_cast<int>(fields.size()), rows_at_first,
                     "Asset Exemption"),
      lblNote(*this, "lblNote", "House is treated as exemption Whether it is self-Occupied or let out"),
      txtTotalAssetExempt(*this, "txtTotalAssetExempt", "Total"), cmdOK(*this, "cmdOK", "&Ok"),
      cmdCancel(*this, "cmdCancel", "&Cancel"), mnuSpread(*this, "mnuSpread", "Spread Menu"),
      mnuInsertRow(*this, "mnuInsertRow", "Insert Row(s)", mnuSpread),
      mnuDeleteRow(*this, "mnuDeleteRow", "Delete Row(s)", mnuSpread),
      mnuPreviewSheet(*this, "mnuPreviewSheet", "Preview Sheet", mnuSpread),
      mnuPrintSheet(*this, "mnuPrintSheet", "Print Sheet", mnuSpread) {
    design();
    connect_grid();
    connect_menu();
    cmdOK.on_click = [this] { cmdOK_Click(); };
    cmdCancel.on_click = [this] { leave_for_sheet(session_, *this); };
}

void frmAssetExempt::design() {
    txtTotalAssetExempt.set_locked(true);
    sprAssetExempt.tag = "Asset Exemption";
    design_columns(sprAssetExempt, fields);
    sprAssetExempt.set_column_formula(ExemptColumn::net, {ExemptColumn::amount, ExemptColumn::debt},
                                      widgets::difference_formula);
    total_ = &rules.add({.target = txtTotalAssetExempt,
                         .sources = {column_of(sprAssetExempt, ExemptColumn::net)},
                         .how = widgets::running_sum,
                         .otherwise = "waits for the next change of an amount"});
}

void frmAssetExempt::connect_grid() {
    sprAssetExempt.on_change = [this](int column, int) { sprAssetExempt_Change(column); };
    sprAssetExempt.on_key_down = [this](std::string_view key) {
        return clear_or_insert_key(sprAssetExempt, key);
    };
    sprAssetExempt.on_key_char = [this](char32_t character) { sprAssetExempt_KeyPress(character); };
    // The new row has the cells of the row before, its list too.
    sprAssetExempt.on_advance = [this] { sprAssetExempt.set_rows(sprAssetExempt.rows() + 1); };
    sprAssetExempt.on_right_click = [this] { return &mnuSpread; };
}

void frmAssetExempt::connect_menu() {
    // Wanted: the Insert key alone, which the grid answers with Ctrl only.
    mnuInsertRow.on_click = [this] { sprAssetExempt.press_key("Insert"); };
    mnuDeleteRow.on_click = [this] { sprAssetExempt.press_key("Escape"); };
    mnuPreviewSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::preview); };
    mnuPrintSheet.on_click = [this] { sheet_of_active_grid(session::SheetUse::print); };
}

void frmAssetExempt::Form_Load() {
    LoadExemptedAsset();
    session::SkinButtons(*this);
    mnuSpread.set_visible(false);
}

void frmAssetExempt::sprAssetExempt_Change(int column) {
    if (column < ExemptColumn::amount || column > ExemptColumn::net) return;
    total_->work_out();
}

void frmAssetExempt::sprAssetExempt_KeyPress(char32_t character) {
    const int row = sprAssetExempt.active_row();
    if (character == U'\x1b') {
        const widgets::MessageBox question{.text = "Do you want to delete the selected row(s) ?",
                                           .icon = widgets::Icon::question,
                                           .buttons = {widgets::Answer::yes, widgets::Answer::no}};
        // Wanted: the row is emptied and stays, so that the rows below keep their place.
        if (says_yes(session_.desk, question))
            sprAssetExempt.clear_data({1, row, sprAssetExempt.columns(), row});
    } else if (character == U'-') {
        // The row count stays, unless the last row's data would fall off.
        sprAssetExempt.insert_row(row, sprAssetExempt.row_has_data(sprAssetExempt.rows()));
    }
}

void frmAssetExempt::sheet_of_active_grid(session::SheetUse use) {
    // Wanted: the sheets of this screen carry no header.
    if (widgets::Grid* grid = session::active_grid(*this)) session::show_grid_sheet(session_, *grid, use);
}

void frmAssetExempt::LoadExemptedAsset() {
    read_ = procedure(session_, "frmAssetExempt - LoadExemptedAsset", [this](const Attempt& attempt) {
        sprAssetExempt.clear_data();
        RowSet records = open_rows(session_, attempt, "AssetUnderExemption Where " + exempted_key(session_));
        fill_rows(sprAssetExempt, fields, records, RowGrowth::as_needed);
        sprAssetExempt_Change(ExemptColumn::net);
    });
}

void frmAssetExempt::SaveExemptedAsset() {
    procedure(session_, "frmAssetExempt - SaveExemptedAsset", [this](const Attempt& attempt) {
        RowSet records =
            open_emptied(session_, attempt, "AssetUnderExemption Where " + exempted_key(session_));
        // Wanted: no row is skipped; a blank row between two others is stored as an empty record.
        store_rows(attempt, session_, records, sprAssetExempt, fields,
                   {.last_row = sprAssetExempt.data_rows(), .kept = {}, .asset_type = {}});
    });
}

void frmAssetExempt::cmdOK_Click() {
    if (!read_ && !saves_over_unread(session_, "frmAssetExempt - SaveExemptedAsset",
                                     {{"AssetUnderExemption", year_key(session_)}},
                                     [this] { leave_for_sheet(session_, *this); }))
        return;
    SaveExemptedAsset();
    hand_over(computation::exempted_to_sheet, *this, session_.screens.load("frmWealthMain"));
    leave_for_sheet(session_, *this);
}

void frmAssetExempt::Form_Unload() {
    // The close box leaves as Cancel does.
    show_hidden_sheet(session_);
}

} // namespace levora::schedules
