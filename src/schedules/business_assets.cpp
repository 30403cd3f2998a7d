#include "schedules/business_assets.h"

#include "schedules/asset_opening.h"
#include "schedules/asset_schedule.h"
#include "schedules/grid_keys.h"
#include "schedules/hand_over.h"
#include "schedules/named_control.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"

#include <array>

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;
using widgets::CellDesign;

namespace {

CellDesign asset_list() {
    return widgets::combo_cell({"Building", "Urban Land", "Car", "AirCraft", "Yachts", "Gold", "Silver",
                                "Furnitures with precious metal", "Interest in Firm or AOP", "Jewellery",
                                "Residential House", "Others"});
}
// Rounding would move the limit of 120 %.
constexpr int unrounded = -1;
CellDesign amount() {
    return widgets::number_cell(-99999999, 99999999999, unrounded, true);
}
CellDesign details() {
    return widgets::button_cell("Details");
}

// clang-format off
constexpr std::array<ScheduleField, 7> fields{{
    {"Assets",               asset_list, Ground::plain, FieldStore::text, "AssetName", 28},
    {"Balance sheet Amount", amount,     Ground::plain, FieldStore::amount, "BalanceSheetAmount", 18},
    {"20% of (2)",           amount,     Ground::grey_and_locked, FieldStore::nothing, "", 14},
    {"(2) + (3)",            amount,     Ground::grey_and_locked, FieldStore::nothing, "", 16},
    {"Individual Asset Value as per Schedule III", amount, Ground::plain, FieldStore::amount, "IndividualAssetValuaton", 18},
    {"Details",              details,    Ground::plain, FieldStore::nothing, "", 10},
    {"Value to be taken for Wealth Tax purpose", amount, Ground::grey_and_locked, FieldStore::amount, "ValueTobeTaken", 18},
}};
// clang-format on

constexpr int rows_at_first = 20;
// Rows whose individual value is locked until one arrives, from the assets screen or the store.
constexpr int first_waiting_row = 2;
constexpr int last_waiting_row = 11;

constexpr int business_asset_type = 1;

// Schedule III, Part D: the excess over the balance sheet that must be passed.
double fifth_of(std::span<const double> balance_sheet) {
    constexpr double excess = 0.2;
    return balance_sheet[0] * excess;
}
double value_taken(std::span<const double> individual_limit_sheet) {
    const double individual = individual_limit_sheet[0];
    const double limit = individual_limit_sheet[1];
    const double balance_sheet = individual_limit_sheet[2];
    return individual > limit ? individual : balance_sheet;
}
constexpr widgets::Reckoning fifth{fifth_of, "20 % of $1"};
constexpr widgets::Reckoning taken{value_taken, "$1 where that is above $2, else $3",
                                   "Part D of Schedule III"};

} // namespace

frmBusinessAssets::frmBusinessAssets(session::Session& session)
    : Screen(session, "frmBusinessAssets", "Business Assets"),
      frBusinessAssets(*this, "frBusinessAssets", "VALUATION OF ASSETS OF BUSINESS [Part D Schedule III]"),
      sprAssetOfBusiness(*this, "sprAssetOfBusiness", static_cast<int>(fields.size()), rows_at_first,
                         "VALUATION OF ASSETS OF BUSINESS [Part D Schedule III]"),
      txtTotalBusinessAsset(*this, "txtTotalBusinessAsset", "Value of Busines Asset"),
      cmdBusinessAssetSave(*this, "cmdBusinessAssetSave", "&Ok"), cmdCancel(*this, "cmdCancel", "&Cancel") {
    txtTotalBusinessAsset.set_locked(true);
    txtTotalBusinessAsset.set_text("0");
    design();
    connect();
}

void frmBusinessAssets::design() {
    design_columns(sprAssetOfBusiness, fields);
    // Row 1 is like the others: column numbers in it would go with the clearing of every load.
    for (int row = first_waiting_row; row <= last_waiting_row; ++row)
        sprAssetOfBusiness.set_cell_locked(BusinessColumn::individual, row, true);
    sprAssetOfBusiness.set_column_formula(BusinessColumn::fifth, {BusinessColumn::balance_sheet}, fifth);
    sprAssetOfBusiness.set_column_formula(BusinessColumn::with_fifth,
                                          {BusinessColumn::balance_sheet, BusinessColumn::fifth},
                                          widgets::sum_formula);
    sprAssetOfBusiness.set_column_formula(
        BusinessColumn::taken,
        {BusinessColumn::individual, BusinessColumn::with_fifth, BusinessColumn::balance_sheet}, taken);

    total_ = &rules.add({.target = txtTotalBusinessAsset,
                         .sources = {column_of(sprAssetOfBusiness, BusinessColumn::taken)},
                         .how = widgets::running_sum,
                         .otherwise = "waits for the next change of a row"});
    rules.tell({sprAssetOfBusiness,
                {BusinessColumn::individual, 1, BusinessColumn::individual, widgets::last_of_grid}},
               "typed here, or the net amount of the schedule that Details opens");
    rules.call(sprAssetOfBusiness, "20 % of Balance sheet Amount", BusinessColumn::fifth);
    rules.call(sprAssetOfBusiness, "120 % of Balance sheet Amount", BusinessColumn::with_fifth);
}

void frmBusinessAssets::connect() {
    // Wanted: a value that the assets screen hands over is no change; the total waits for the next one.
    sprAssetOfBusiness.on_change = [this](int, int) { total_->work_out(); };
    sprAssetOfBusiness.on_key_down = [this](std::string_view key) {
        return clear_or_insert_key(sprAssetOfBusiness, key);
    };
    sprAssetOfBusiness.on_button_click = [this](int column, int row) {
        if (column == BusinessColumn::details) sprAssetOfBusiness_ButtonClicked(row);
    };
    cmdBusinessAssetSave.on_click = [this] { cmdBusinessAssetSave_Click(); };
    cmdCancel.on_click = [this] { cmdCancel_Click(); };
}

void frmBusinessAssets::Form_Load() {
    session::SkinButtons(*this);
    LoadBusinessassets();
}

void frmBusinessAssets::sprAssetOfBusiness_ButtonClicked(int row) {
    session_.BusinessAssetFlag = true;
    session_.AssetRowName = sprAssetOfBusiness.text(BusinessColumn::asset, row);
    open_assets_for_row(session_, business_parent);
}

void frmBusinessAssets::LoadBusinessassets() {
    read_ = procedure(session_, "frmBusinessAssets - LoadBusinessassets", [this](const Attempt& attempt) {
        sprAssetOfBusiness.clear_data();
        RowSet records = open_rows(session_, attempt, "BusinessAsset Where " + year_key(session_));
        fill_rows(sprAssetOfBusiness, fields, records, RowGrowth::as_needed);
        for (int row = first_waiting_row; row <= last_waiting_row; ++row)
            if (sprAssetOfBusiness.value(BusinessColumn::individual, row) != 0)
                sprAssetOfBusiness.set_cell_locked(BusinessColumn::individual, row, false);
        total_->work_out();
    });
}

void frmBusinessAssets::SaveBusinessAsset() {
    procedure(session_, "frmBusinessAssets - SaveBusinessAsset", [this](const Attempt& attempt) {
        RowSet records = open_emptied(session_, attempt, "BusinessAsset Where " + year_key(session_));
        store_rows(
            attempt, session_, records, sprAssetOfBusiness, fields,
            {.last_row = sprAssetOfBusiness.data_rows(),
             .kept = [this](int row) { return sprAssetOfBusiness.value(BusinessColumn::taken, row) != 0; },
             .asset_type = business_asset_type});
    });
}

void frmBusinessAssets::cmdBusinessAssetSave_Click() {
    if (!read_) {
        if (!saves_over_unread(session_, "frmBusinessAssets - SaveBusinessAsset",
                               {{"BusinessAsset", year_key(session_)}}, [this] { cmdCancel_Click(); }))
            return;
        read_ = true; // this screen stays loaded
    }
    SaveBusinessAsset();
    session_.BusinessAssetFlag = false;
    show_assets_afresh(session_);
    widgets::Form& assets = session_.screens.load("frmImmovable");
    control_of<widgets::Frame>(assets, "frWTDetails").set_visible(true);
    hand_over(business_to_assets, *this, assets);
    session_.screens.unload(name());
}

void frmBusinessAssets::Form_Unload() {
    // The close box leaves as Cancel does, unless the assets are on view already.
    const widgets::Form* assets = session_.screens.find("frmImmovable");
    if (assets == nullptr || !assets->visible()) cmdCancel_Click();
}

void frmBusinessAssets::cmdCancel_Click() {
    // Wanted: this screen stays loaded, so that its rows are there when it comes up again.
    session_.BusinessAssetFlag = false;
    show_assets_afresh(session_);
}

} // namespace levora::schedules
