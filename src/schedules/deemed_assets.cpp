#include "schedules/deemed_assets.h"

#include "computation/hand_overs.h"
#include "schedules/asset_opening.h"
#include "schedules/asset_schedule.h"
#include "schedules/grid_keys.h"
#include "schedules/hand_over.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"

#include <array>
#include <string>
#include <vector>

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;
using widgets::CellDesign;

namespace {

std::vector<std::string> deemed_asset_names(std::string_view revocable) {
    return {"Transfered by one spouse to another",
            "held by minor child",
            "Transfered to a person or Association of person",
            std::string(revocable),
            "Transfered to son's wife",
            "Transfered to benefit of son's wife",
            "Interest of Partner",
            "Conversion of self accquired property into joint family Property",
            "Gifts by book entries",
            "Impartible Estate",
            "Property held by ameture of a housing Society",
            "Property held by a person in part performance"};
}

CellDesign deemed_asset_list() {
    return widgets::combo_cell(deemed_asset_names("transfered under revocable transfer"));
}
// Wanted: row 1 alone spells its fourth item so; rows are stored by these words.
CellDesign deemed_asset_list_of_row_1() {
    return widgets::combo_cell(deemed_asset_names("transferred under revocable transfers"));
}
CellDesign type_list() {
    return widgets::combo_cell({"Building", "Urban Land", "Car", "AirCraft", "Yachts", "Gold", "Silver",
                                "Furnitures with precious metal", "Interest in Firm or AOP",
                                "Residential House", "Others"});
}
CellDesign fifty_characters() {
    return widgets::text_cell(50);
}
CellDesign pan() {
    return widgets::mask_cell("UUUUU9999U");
}
// Amounts stay as they are entered: the sheet has no rounding here.
constexpr int unrounded = -1;
CellDesign amount() {
    return widgets::number_cell(-99999999, 99999999999, unrounded, true);
}
CellDesign debt() {
    return widgets::number_cell(-99999999, 999999999999, unrounded, true);
}
CellDesign details() {
    return widgets::button_cell("Details");
}
CellDesign plain() {
    return widgets::text_cell();
}

// clang-format off
constexpr std::array<ScheduleField, 9> fields{{
    {"Deemed Asset Details",     deemed_asset_list, Ground::plain, FieldStore::text, "DeemedAssetDetails", 30},
    {"Type of Asset",            type_list,         Ground::plain, FieldStore::text, "TypeOfAsset", 17},
    {"Name of the other person", fifty_characters,  Ground::plain, FieldStore::text, "NameofOtherPerson", 19},
    {"Relationship",             fifty_characters,  Ground::plain, FieldStore::text, "Relationship", 13},
    {"PAN of other person",      pan,               Ground::plain, FieldStore::text, "PANOther", 12},
    {"Amount",                   amount,            Ground::plain, FieldStore::amount, "DeemedAssetValue", 13},
    {"Details",                  details,           Ground::plain, FieldStore::nothing, "", 10},
    {"Debt Owed",                debt,              Ground::plain, FieldStore::amount, "DebtOwed", 13},
    {"Net Amount",               debt,              Ground::grey_and_locked, FieldStore::amount, "NetAmount", 13},
}};
// clang-format on

constexpr int last_button_row = 8;
static_assert(computation::deemed_to_sheet.from_column == DeemedColumn::net &&
              computation::deemed_to_sheet.from_row == DeemedRow::total);
// Where a click of Details is looked for; the buttons stand one column further right.
constexpr int column_of_clicks = DeemedColumn::amount;

} // namespace

frmDeemedAsset::frmDeemedAsset(session::Session& session)
    : Screen(session, "frmDeemedAsset", "Deemed Asset"),
      frDeemedAsset(*this, "frDeemedAsset", "Valuation of Deemed Asset"),
      sprDeemedAsset(*this, "sprDeemedAsset", static_cast<int>(fields.size()), DeemedRow::total,
                     "Valuation of Deemed Asset"),
      cmdDeemedAssetOk(*this, "cmdDeemedAssetOk", "&Ok"),
      cmdDeemedAssetCancel(*this, "cmdDeemedAssetCancel", "&Cancel") {
    design();
    connect();
}

void frmDeemedAsset::design() {
    design_columns(sprDeemedAsset, fields);
    sprDeemedAsset.design_cell(DeemedColumn::deemed_asset, 1, deemed_asset_list_of_row_1());
    for (int row = last_button_row + 1; row <= DeemedRow::total; ++row) {
        sprDeemedAsset.design_cell(DeemedColumn::details, row, plain());
        sprDeemedAsset.set_cell_backcolor(DeemedColumn::details, row, widgets::grey_rgb);
        sprDeemedAsset.set_cell_locked(DeemedColumn::details, row, true);
    }
    for (int column = 1; column <= sprDeemedAsset.columns(); ++column) {
        if (column < DeemedColumn::amount) sprDeemedAsset.design_cell(column, DeemedRow::total, plain());
        sprDeemedAsset.set_cell_backcolor(column, DeemedRow::total, widgets::grey_rgb);
        sprDeemedAsset.set_cell_locked(column, DeemedRow::total, true);
    }
    sprDeemedAsset.set_label(DeemedColumn::deemed_asset, DeemedRow::total, "Total");

    // Wanted: the total row has the floored difference of the two totals, not the sum of the rows'
    // net amounts, so that a debt above its asset still reduces the total.
    sprDeemedAsset.set_column_formula(DeemedColumn::net, {DeemedColumn::amount, DeemedColumn::debt},
                                      widgets::floored_difference_formula);
    for (const int column : {int{DeemedColumn::amount}, int{DeemedColumn::debt}})
        sprDeemedAsset.set_cell_formula(column, DeemedRow::total,
                                        {{column, 1, column, DeemedRow::last_asset}}, widgets::sum_formula);
}

void frmDeemedAsset::connect() {
    sprDeemedAsset.on_key_down = [this](std::string_view key) {
        return clear_or_insert_key(sprDeemedAsset, key);
    };
    sprDeemedAsset.on_button_click = [this](int column, int row) {
        sprDeemedAsset_ButtonClicked(column, row);
    };
    sprDeemedAsset.on_combo_select = [this](int, int row) { sprDeemedAsset_ComboSelChange(row); };
    cmdDeemedAssetOk.on_click = [this] { cmdDeemedAssetOk_Click(); };
    cmdDeemedAssetCancel.on_click = [this] { cmdDeemedAssetCancel_Click(); };
}

void frmDeemedAsset::Form_Load() {
    session::SkinButtons(*this);
    LoadDeemedAsset();
}

void frmDeemedAsset::sprDeemedAsset_ButtonClicked(int column, int row) {
    // Wanted: the Details buttons stand one column further right, so that no click gets past here and
    // the amount is typed by hand.
    if (column != column_of_clicks) return;
    session_.DeemedAssetFlag = true;
    session_.AssetRowName = sprDeemedAsset.text(DeemedColumn::type_of_asset, row);
    open_assets_for_row(session_, deemed_parent);
}

void frmDeemedAsset::sprDeemedAsset_ComboSelChange(int row) {
    // Wanted: the list has no such item; the amount would be that of another sheet then.
    if (sprDeemedAsset.text(DeemedColumn::type_of_asset, row) != "Others (Specify)") return;
    sprDeemedAsset.design_cell(DeemedColumn::amount, row, amount());
    sprDeemedAsset.set_cell_backcolor(DeemedColumn::amount, row, widgets::grey_rgb);
    sprDeemedAsset.set_cell_locked(DeemedColumn::amount, row, true);
}

void frmDeemedAsset::LoadDeemedAsset() {
    read_ = procedure(session_, "frmDeemedAsset - LoadDeemedAsset", [this](const Attempt& attempt) {
        RowSet records = open_rows(session_, attempt, "DeemedAssetDetails Where " + year_key(session_));
        // Wanted: a thirteenth record goes into the total row, whose figures stay its own.
        fill_rows(sprDeemedAsset, fields, records, RowGrowth::none);
    });
}

void frmDeemedAsset::SaveDeemedAsset() {
    procedure(session_, "frmDeemedAsset - SaveDeemedAsset", [this](const Attempt& attempt) {
        RowSet records = open_emptied(session_, attempt, "DeemedAssetDetails Where " + year_key(session_));
        // Wanted: by row numbers, also after a row was inserted; without an amount a row is dropped,
        // whatever its debt.
        store_rows(attempt, session_, records, sprDeemedAsset, fields,
                   {.last_row = DeemedRow::last_asset,
                    .kept = [this](int row) { return sprDeemedAsset.value(DeemedColumn::amount, row) != 0; },
                    .asset_type = {}});
    });
}

void frmDeemedAsset::cmdDeemedAssetOk_Click() {
    if (!read_ && !saves_over_unread(session_, "frmDeemedAsset - SaveDeemedAsset",
                                     {{"DeemedAssetDetails", year_key(session_)}},
                                     [this] { cmdDeemedAssetCancel_Click(); }))
        return;
    SaveDeemedAsset();
    session_.DeemedAssetFlag = false;
    // Wanted: row 13 also where the total row has moved down.
    hand_over(computation::deemed_to_sheet, *this, session_.screens.load("frmWealthMain"));
    leave_for_sheet(session_, *this);
}

void frmDeemedAsset::cmdDeemedAssetCancel_Click() {
    // Wanted: DeemedAssetFlag stays set; the next opening of the assets clears it.
    leave_for_sheet(session_, *this);
}

void frmDeemedAsset::Form_Unload() {
    // The close box leaves as Cancel does.
    show_hidden_sheet(session_);
}

} // namespace levora::schedules
