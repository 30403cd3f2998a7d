#include "return/return_screen.h"
#include "return/sheet_fields.h"
#include "session/data_store.h"

#include <span>
#include <string_view>

namespace levora::form_ba {

using session::RowSet;
using session::Value;
using widgets::Grid;

namespace {

// Which store column goes to which grid column.
struct Source {
    int column;
    std::string_view stored_as;
};

// A Null is an empty text, or 0 in a column of figures.
void put(Grid& grid, int column, int row, const Value& value) {
    if (grid.cell_kind(column, row) == widgets::CellKind::number && !value.is_text())
        grid.set_value(column, row, value.number());
    else
        grid.set_text(column, row, value.text());
}

void put_record(Grid& grid, int row, const RowSet& record, std::span<const Source> sources) {
    if (row > grid.rows()) grid.set_rows(row);
    for (const Source& each : sources)
        put(grid, each.column, row, record[each.stored_as]);
}

constexpr Source prepaid_sources[] = {
    {btp_column::bsr_code, "BSRCode"},
    {btp_column::deposit_date, "DateOfPayment"},
    {btp_column::challan_number, "ChallanSrNo"},
    {btp_column::amount, "Amount"},
};
constexpr Source property_sources[] = {
    {immovable_column::description, "TypeOfProperty"},
    {immovable_column::value, "NetValueOfProperty"},
    {immovable_column::debt, "DebtOwed"},
    {immovable_column::net, "NetValue"},
};
constexpr Source land_sources[] = {
    {immovable_column::description, "UrbanLandDescription"},
    {immovable_column::value, "ValueOfUrbanLand"},
    {immovable_column::debt, "DebtOwed"},
    {immovable_column::net, "NetAmount"},
};
constexpr Source place_and_valuer_sources[] = {
    {immovable_column::flat, "Flat"},
    {immovable_column::premises, "Premises"},
    {immovable_column::road, "Road"},
    {immovable_column::area, "Area"},
    {immovable_column::town, "City"},
    {immovable_column::state, "State"},
    {immovable_column::country, "Country"},
    {immovable_column::pin_code, "pincode"},
    {immovable_column::survey, "survey"},
    {immovable_column::valuer_name, "NameRegValuer"},
    {immovable_column::valuer_number, "RegNoValuer"},
    {immovable_column::report_date, "DateofReportByValuer"},
};
constexpr Source movable_sources[] = {
    {movable_column::value, "MovableValue"},
    {movable_column::debt, "DebtOwed"},
    {movable_column::net, "NetAmount"},
};
constexpr Source other_person_sources[] = {
    {other_person_column::name, "NameofOtherPerson"}, {other_person_column::relationship, "Relationship"},
    {other_person_column::pan, "PANOther"},           {other_person_column::value, "DeemedAssetValue"},
    {other_person_column::debt, "DebtOwed"},          {other_person_column::net, "NetAmount"},
};
constexpr Source firm_sources[] = {
    {firm_column::name, "NameAddressofFirm"}, {firm_column::address, "AddressofFirm"},
    {firm_column::pan, "PANOfFirm"},          {firm_column::partners, "NameOfPartner"},
    {firm_column::value, "ValueOfInterest"},  {firm_column::debt, "DebtOwed"},
    {firm_column::net, "NetAmount"},
};
constexpr Source jewellery_sources[] = {
    {jewellery_column::description, "ItemDesc"},
    {jewellery_column::unit, "Unit"},
    {jewellery_column::gross_weight, "GrossWeight"},
    {jewellery_column::net_weight, "NetWeight"},
    {jewellery_column::stones_value, "ValOfPreAndSemiPreStones"},
    {jewellery_column::value, "TotalValOfJewellery"},
    {jewellery_column::debt, "DebtOwned"},
    {jewellery_column::net, "NetAmt"},
    {jewellery_column::valuer_name, "NameRegValuer"},
    {jewellery_column::valuer_number, "RegNoValuer"},
    {jewellery_column::report_date, "DateofReportByValuer"},
};
constexpr Source stone_sources[] = {
    {stone_column::item, "JwelleryDetailNo"},
    {stone_column::description, "Description"},
    {stone_column::weight, "Weight"},
    {stone_column::value, "ValueOfStones"},
};
// The reason replaces the net amount, which stands there only until then.
constexpr Source exempt_sources[] = {
    {exempt_column::description, "ExemptedAssetDesc"},
    {exempt_column::value, "ExemptedAmount"},
    {exempt_column::debt, "DebtOwed"},
    {exempt_column::reason, "NetAmount"},
    {exempt_column::reason, "ResonsForClaim"},
};

// What of the computation stands in a column, where it was neither typed nor loaded since.
struct Filled {
    Grid frmFormBA::*grid;
    int column;
    widgets::HandOver from;
};
constexpr widgets::HandOver filled_from(std::string_view screen, std::string_view grid,
                                        std::string_view words, std::string_view opener) {
    return {screen, grid, 0, 0, "frmFormBA", {}, words, opener, "frmWealthMain"};
}
constexpr widgets::HandOver from_assets(std::string_view grid, std::string_view words) {
    return filled_from("frmImmovable", grid, words, "cmdAssets");
}
// clang-format off
constexpr Filled fills[] = {
    {&frmFormBA::sprScheduleBTP, btp_column::amount, filled_from("frmWealthMain", "sprSATax", "an amount of the prepaid taxes, unless typed or loaded here", "cmdSATaxPayable")},
    {&frmFormBA::sprImmovableProperty, immovable_column::value, from_assets("sprImmovable", "the net valuation of a house or the valuation of urban land, unless typed or loaded here")},
    {&frmFormBA::sprImmovableProperty, immovable_column::debt, from_assets("sprImmovable", "the debt owed on a house or on urban land, unless typed or loaded here")},
    {&frmFormBA::sprMovableProperty, movable_column::value, from_assets("sprMovableProp", "an amount of the movable property, unless typed or loaded here")},
    {&frmFormBA::sprMovableProperty, movable_column::debt, from_assets("sprMovableProp", "a debt of the movable property, unless typed or loaded here")},
    {&frmFormBA::sprJewellery, jewellery_column::stones_value, from_assets("sprJewellary", "the value of an item's stones, unless typed or loaded here")},
    {&frmFormBA::sprJewellery, jewellery_column::value, from_assets("sprJewellary", "the value of a jewellery item, unless typed or loaded here")},
    {&frmFormBA::sprJewellery, jewellery_column::debt, from_assets("sprJewellary", "the debt of a jewellery item, unless typed or loaded here")},
    {&frmFormBA::sprJewellery, jewellery_column::net, from_assets("sprJewellary", "the net amount of a jewellery item, unless typed or loaded here; only the opening rows work it out")},
    {&frmFormBA::sprPreciousStone, stone_column::value, from_assets("sprJewellary", "the value of a stone behind the item's Details, unless typed or loaded here")},
    {&frmFormBA::sprInducibleNetWealth, other_person_column::value, filled_from("frmDeemedAsset", "sprDeemedAsset", "an amount of the deemed assets, unless typed or loaded here", "cmdDeemedAssets")},
    {&frmFormBA::sprInducibleNetWealth, other_person_column::debt, filled_from("frmDeemedAsset", "sprDeemedAsset", "a debt of the deemed assets, unless typed or loaded here", "cmdDeemedAssets")},
    {&frmFormBA::sprAssetInterest, firm_column::ratio, from_assets("sprAssetInterest", "the ratio of a firm, a hundred times, unless typed or loaded here")},
    {&frmFormBA::sprAssetInterest, firm_column::value, from_assets("sprAssetInterest", "the value of the interest in a firm, unless typed or loaded here")},
    {&frmFormBA::sprAssetInterest, firm_column::debt, from_assets("sprAssetInterest", "the debt on the interest in a firm, unless typed or loaded here")},
    {&frmFormBA::sprAssetInterest, firm_column::net, from_assets("sprAssetInterest", "the net amount of a firm, unless typed or loaded here; only the opening rows work it out")},
    {&frmFormBA::sprAssetsClaimedExempt, exempt_column::value, filled_from("frmAssetExempt", "sprAssetExempt", "an amount of the exempted assets, unless typed or loaded here", "cmdExemptedAsset")},
    {&frmFormBA::sprAssetsClaimedExempt, exempt_column::debt, filled_from("frmAssetExempt", "sprAssetExempt", "a debt of the exempted assets, unless typed or loaded here", "cmdExemptedAsset")},
};
// clang-format on

struct FromSheet {
    widgets::TextField frmFormBA::*field;
    widgets::HandOver from;
};
constexpr FromSheet sheet_fills[] = {
    {&frmFormBA::txtNetWealthTax,
     {"frmWealthMain",
      "txtWealthTaxLiability",
      0,
      0,
      "frmFormBA",
      "txtNetWealthTax",
      "the tax on net wealth of the computation",
      {}}},
    {&frmFormBA::txtLateFilingInterest,
     {"frmWealthMain",
      "txtInterest",
      0,
      0,
      "frmFormBA",
      "txtLateFilingInterest",
      "the interest of the computation",
      {}}},
};

} // namespace

void frmFormBA::tell_fills() {
    for (const Filled& fill : fills)
        rules.tell({this->*fill.grid, {fill.column, 1, fill.column, widgets::last_of_grid}}, fill.from);
    for (const FromSheet& fill : sheet_fills)
        rules.tell(this->*fill.field, fill.from);
    rules.tell(txtReceiptNo, "open for typing in a revised return only");
}

void frmFormBA::FillFromSchedules() {
    fill_prepaid_taxes();
    fill_immovable_property();
    fill_movable_property();
    fill_other_persons();
    fill_firms();
    fill_jewellery();
    fill_exempt_assets();
    for (const FromSheet& fill : sheet_fills)
        (this->*fill.field).set_text(sheet_text(session_, fill.from.from_control).text());
}

void frmFormBA::fill_prepaid_taxes() {
    sprScheduleBTP.clear_data();
    session_.SqlText = "Select * From [PrePaidTaxes] where AssesseeNo = " + session_.assessee_text() +
                       " And FY ='" + session_.CurrentFY + "'";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    int row = 1;
    for (; !record.eof(); record.move_next(), ++row)
        put_record(sprScheduleBTP, row, record, prepaid_sources);
    // Meant after each row, of which only the last can be seen; without any row the total stays.
    if (row > 1) sprScheduleBTP_Change();
}

// Business assets are taken in, deemed assets are left out: they come with the other persons.
void frmFormBA::fill_immovable_property() {
    sprImmovableProperty.clear_data();
    int row = 1;
    const auto take = [this, &row](const char* asset_type, std::span<const Source> sources) {
        RowSet record = session_.TaxDb.open_rows(session_.SqlText);
        for (; !record.eof(); record.move_next(), ++row) {
            put_record(sprImmovableProperty, row, record, sources);
            put_record(sprImmovableProperty, row, record, place_and_valuer_sources);
            sprImmovableProperty.set_text(immovable_column::asset_type, row, asset_type);
        }
    };
    session_.SqlText =
        "Select * From [Immovable Property Details] where AssesseeNo = " + session_.assessee_text() +
        " And FY ='" + session_.CurrentFY + "' And AssetType <> 2";
    take("Building", property_sources);
    session_.SqlText = "Select * From [Urban Land] Where AssesseeNo = " + session_.assessee_text() +
                       " And FY = '" + session_.CurrentFY + "' And AssetType <> 2";
    take("Urban Land", land_sources);
    sprImmovableProperty_Change();
}

void frmFormBA::fill_movable_property() {
    sprMovableProperty.clear_data();
    session_.SqlText =
        "Select * From [Movable Property Details] where AssesseeNo = " + session_.assessee_text() +
        " And FY = '" + session_.CurrentFY + "' And AssetType <> 2 Order by SrNo";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    // The record names its row; one that does not lands on the row used last.
    for (int row = 1; !record.eof(); record.move_next()) {
        if (const double number = record["SrNo"].number(); number > 0) row = to_long(number);
        put_record(sprMovableProperty, row, record, movable_sources);
        const Value& description = record["MovableDesc"];
        sprMovableProperty.set_text(movable_column::description, row,
                                    description.is_null() ? " " : description.text());
    }
    sprMovableProperty_Change();
}

// A thirteenth person has taken the total row's name, which is no data; an inserted row has moved it.
void frmFormBA::clear_other_persons() {
    sprInducibleNetWealth.clear_data();
    for (int row = total_row; row <= sprInducibleNetWealth.rows(); ++row)
        if (sprInducibleNetWealth.cell_locked(other_person_column::name, row))
            sprInducibleNetWealth.set_label(other_person_column::name, row, "Total");
}

void frmFormBA::fill_other_persons() {
    clear_other_persons();
    session_.SqlText = "Select * From DeemedAssetDetails Where AssesseeNo = " + session_.assessee_text() +
                       " And FY = '" + session_.CurrentFY + "'";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    // Wanted: nothing stops at the total row; a thirteenth record is written over it.
    for (int row = 1; !record.eof(); record.move_next(), ++row)
        put_record(sprInducibleNetWealth, row, record, other_person_sources);
    sprInducibleNetWealth_Change();
}

void frmFormBA::fill_firms() {
    sprAssetInterest.clear_data();
    session_.SqlText = "Select * From [InterestInFirmOrAOP] where AssesseeNo =" + session_.assessee_text() +
                       " And FY = '" + session_.CurrentFY + "' And AssetType <> 2";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    for (int row = 1; !record.eof(); record.move_next(), ++row) {
        put_record(sprAssetInterest, row, record, firm_sources);
        // The table keeps a fraction, the grid a percentage.
        sprAssetInterest.set_value(firm_column::ratio, row, record["ProfitSharingRatio"].number() * 100);
    }
    sprAssetInterest_Change();
}

// Wanted: the change procedure is not run, so the total of the jewellery is the one from before.
void frmFormBA::fill_jewellery() {
    sprJewellery.clear_data();
    session_.SqlText = "Select * From [jewellery] where AssesseeNo =" + session_.assessee_text() +
                       " And FY = '" + session_.CurrentFY + "' ";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    for (int row = 1; !record.eof(); record.move_next(), ++row) {
        put_record(sprJewellery, row, record, jewellery_sources);
        const Value& stones = record["DescAndWeiOfPreAndSemiPreStones"];
        sprJewellery.set_text(jewellery_column::stones, row,
                              stones.number() == 0 ? "Details" : stones.text());
    }
    LoadPreciousStones();
}

void frmFormBA::LoadPreciousStones() {
    sprPreciousStone.clear_data();
    session_.SqlText = "Select * From [PreciousStones] where AssesseeNo = " + session_.assessee_text() +
                       " And FY ='" + session_.CurrentFY + "' Order By JwelleryDetailNo";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    for (int row = 1; !record.eof(); record.move_next(), ++row)
        put_record(sprPreciousStone, row, record, stone_sources);
}

void frmFormBA::fill_exempt_assets() {
    sprAssetsClaimedExempt.clear_data();
    session_.SqlText = "Select * From AssetUnderExemption Where AssesseeNo = " + session_.assessee_text() +
                       "  And FY ='" + session_.CurrentFY + "'";
    RowSet record = session_.TaxDb.open_rows(session_.SqlText);
    for (int row = 1; !record.eof(); record.move_next(), ++row)
        put_record(sprAssetsClaimedExempt, row, record, exempt_sources);
}

} // namespace levora::form_ba
