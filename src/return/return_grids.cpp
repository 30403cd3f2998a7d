#include "return/return_grids.h"

#include "session/common_services.h"

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace levora::form_ba {

namespace {

using enum ColumnKind;

constexpr std::array btp_columns{
    ReturnColumn{"BSR Code", bsr_code},
    ReturnColumn{"Date of Deposit  (DD/MM/YYYY)", date},
    ReturnColumn{"Serial No. of Challan", text},
    ReturnColumn{"Amount", amount},
};

constexpr std::array immovable_columns{
    ReturnColumn{"Types of Assets", asset_type},
    ReturnColumn{"Description", text},
    ReturnColumn{"Flat/Door/Block No", text},
    ReturnColumn{"Name of Premises/ Building/ Village", text},
    ReturnColumn{"Road/Street/Post Office", text},
    ReturnColumn{"Area / Locality", text},
    ReturnColumn{"Town/ City/ District", text},
    ReturnColumn{"State", state},
    ReturnColumn{"Country", country},
    ReturnColumn{"PinCode", pin_code},
    ReturnColumn{"Survey/ Plot No. of Land", text},
    ReturnColumn{"Value As Per Schedule III", amount},
    ReturnColumn{"Debt Owed in Relation To Assets", amount},
    ReturnColumn{"Net Amount (c-d)", amount},
    ReturnColumn{"Name of Registered Valuer", text},
    ReturnColumn{"Registration No. of Valuer", text},
    ReturnColumn{"Date of Report By Valuer", date},
};

constexpr std::array movable_columns{
    ReturnColumn{"Description", movable_kind},
    ReturnColumn{"Value as per Schedule III", amount},
    ReturnColumn{"Debts owed in relation to the asset", amount},
    ReturnColumn{"Net Amount", amount},
};

constexpr std::array jewellery_columns{
    ReturnColumn{"Description of Item", text},
    ReturnColumn{"Unit", weight_unit},
    ReturnColumn{"Gross Weight", text},
    ReturnColumn{"Net weight of precious metal", text},
    ReturnColumn{"Description and Weight of precious and semi-precious stone", details_button},
    ReturnColumn{
        "Total Value of each precious stone and semi-precious stone and total value of all such stone",
        amount},
    ReturnColumn{"Total Value of jewellery as per Schedule III", amount},
    ReturnColumn{"Debt owed in relation to jewellery", amount},
    ReturnColumn{"Net Amount", amount},
    ReturnColumn{"Name of Registered Valuer", text},
    ReturnColumn{"Registration No of Valuer", text},
    ReturnColumn{"Date of Report by valuer", date},
};

constexpr std::array stone_columns{
    ReturnColumn{"Item No", item_number},
    ReturnColumn{"Description of precious or semi-precious stones", text},
    ReturnColumn{"Weight of precious or semi-precious stones", text},
    ReturnColumn{"Value of precious or semi-precious stone", amount},
};

constexpr std::array other_person_columns{
    ReturnColumn{"Name of the other person", text},
    ReturnColumn{"Relationship", text},
    ReturnColumn{"PAN of Person", pan},
    ReturnColumn{"Aggregate Value of All Asset", amount},
    ReturnColumn{"Debt Owed", amount},
    ReturnColumn{"Net Amount", amount},
};

constexpr std::array firm_columns{
    ReturnColumn{"Name(s) of Firm / AOP", text},
    ReturnColumn{"Firm / AOP Address", text},
    ReturnColumn{"PAN of Firm/AOP", pan},
    ReturnColumn{"Name of other partners / members", text},
    ReturnColumn{"Assessees Profit Sharing Ratio", amount}, // a percentage: 33.33
    ReturnColumn{"Value of the Assessee's Interest in the Assets of Firm / AOP as per Schedule-III", amount},
    ReturnColumn{"Debts owed in relation to such Interest", amount},
    ReturnColumn{"Net Amount  [ (d) - (e) ]", amount},
};

constexpr std::array exempt_columns{
    ReturnColumn{"Description of Assets", text},
    ReturnColumn{"Value", amount},
    ReturnColumn{"Debt Owed in Relation To Assets", amount},
    ReturnColumn{"Reason For the Claim", text},
};

constexpr std::array opr_columns{
    ReturnColumn{"Property Head", property_head},
    ReturnColumn{"Cost", amount},
    ReturnColumn{"Description", text},
    ReturnColumn{"Flat/Door/Block No", text},
    ReturnColumn{"Name of Premises/ Building", text},
    ReturnColumn{"Road/ Street/ Office", text},
    ReturnColumn{"Area/ Locality", text},
    ReturnColumn{"Town/ City/ District", text},
    ReturnColumn{"State", opr_state},
    ReturnColumn{"Country", country},
    ReturnColumn{"PinCode", pin_code},
    ReturnColumn{"Survey/ Plot No. of Land", text},
};

// Wanted: entries with a trailing blank. They are second names of states that the code table knows
// under another spelling, and have no code of their own with or without the blank.
const std::vector<std::string> opr_states{"Andhra Pradesh",
                                          "Arunachal Pradesh",
                                          "Assam",
                                          "Bihar",
                                          "Chhatishgarh",
                                          "Goa",
                                          "Gujarat",
                                          "Haryana",
                                          "Himachal Pradesh",
                                          "Jammu and Kashmir",
                                          "Jharkhand",
                                          "Karnataka",
                                          "Kerala",
                                          "Madhya Pradesh",
                                          "Maharashtra",
                                          "Manipur",
                                          "Meghalaya",
                                          "Mizoram",
                                          "Nagaland",
                                          "Odisha ",
                                          "Orissa",
                                          "Punjab",
                                          "Rajasthan",
                                          "Sikkim",
                                          "Tamilnadu",
                                          "Telangana",
                                          "Tripura",
                                          "Uttar Pradesh",
                                          "Uttarakhand ",
                                          "Uttaranchal",
                                          "West Bengal",
                                          "Andaman and Nicobar Islands",
                                          "Chandigarh",
                                          "Dadra and Nagar Haveli",
                                          "Daman and Diu",
                                          "Delhi",
                                          "Lakhswadeep",
                                          "Lakshadweep ",
                                          "Pondicherry",
                                          "Puducherry ",
                                          "Others"};

widgets::CellDesign design_of(ColumnKind kind) {
    using namespace widgets;
    constexpr Date first_report{1900, 1, 1};
    constexpr Date last_report{2100, 12, 31};
    switch (kind) {
    case text:
        return text_cell();
    case amount:
    case item_number:
        return number_cell(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max(), -1,
                           kind == amount);
    case bsr_code:
        return mask_cell("9999999");
    case pin_code:
        return mask_cell("999999");
    case pan:
        return mask_cell("UUUUU9999U");
    case date:
        return date_cell(first_report, last_report);
    case details_button:
        return button_cell("Details");
    case asset_type:
        return combo_cell({"Building", "Urban Land"});
    case movable_kind: {
        CellDesign design = combo_cell({"Motor Cars", "Yachts, AirCrafts and Boats etc.", "Cash-in-Hand"});
        design.editable = true;
        return design;
    }
    case weight_unit:
        return combo_cell({"Milligrams", "Grams", "Pound", "Kilograms", "Quintal", "Ton", "Carat"});
    case property_head:
        return combo_cell(
            {"AgriculturalLand", "Non-AgriculturalLand", "CommercialBuilding", "ResidentialBuilding"});
    case state:
        return combo_cell(session::state_names());
    case opr_state:
        return combo_cell(opr_states);
    case country:
        return combo_cell({"INDIA"}, 0);
    }
    return text_cell();
}

double width_of(ColumnKind kind) {
    switch (kind) {
    case text:
    case state:
    case opr_state:
    case movable_kind:
    case property_head:
        return 22;
    case amount:
        return 15;
    case country:
    case pin_code:
    case item_number:
        return 8;
    default:
        return 13;
    }
}

// Computed cells can't be typed in and are grey.
void set_computed(widgets::Grid& grid, int column, int row, bool computed) {
    grid.set_cell_locked(column, row, computed);
    grid.set_cell_backcolor(column, row, computed ? widgets::Color(widgets::grey_rgb) : widgets::Color());
}

void design_net_formula(widgets::Grid& grid, const NetFormula& formula) {
    if (formula.net == 0) return;
    grid.set_column_formula(formula.net, {formula.value, formula.debt},
                            formula.floored ? widgets::floored_difference_formula
                                            : widgets::difference_formula,
                            formula.only_rows);
    if (formula.only_rows == 0) {
        grid.set_column_locked(formula.net, true);
        grid.set_column_backcolor(formula.net, widgets::grey_rgb);
    }
    for (int row = 1; row <= formula.only_rows; ++row)
        set_computed(grid, formula.net, row, true);
}

} // namespace

const ReturnGrid schedule_btp{
    "sprScheduleBTP", "PART B-TP Detais of Tax and Interest paid", 4, btp_columns, {}};
const ReturnGrid immovable_property{
    "sprImmovableProperty",
    "SCHEDULE- IP Immovale Property",
    5,
    immovable_columns,
    {.net = immovable_column::net, .value = immovable_column::value, .debt = immovable_column::debt}};
const ReturnGrid movable_property{
    "sprMovableProperty",
    "SCHEDULE- MP Movable Property (Oter than jewellery)",
    3,
    movable_columns,
    {.net = movable_column::net, .value = movable_column::value, .debt = movable_column::debt}};
// Wanted: the net amount of jewellery and firms has its formula in the opening rows only; in rows
// added later it is typed.
const ReturnGrid jewellery{"sprJewellery",
                           "SCHEDULE JE (Jewellery etc. referred n Sec S2)",
                           4,
                           jewellery_columns,
                           {.net = jewellery_column::net,
                            .value = jewellery_column::value,
                            .debt = jewellery_column::debt,
                            .only_rows = 4}};
const ReturnGrid precious_stone{
    "sprPreciousStone", "Description of Precious and Semi-precious Stones", 3, stone_columns, {}};
const ReturnGrid inducible_net_wealth{"sprInducibleNetWealth",
                                      "SCHEDULE-INW (Includible net wealth on other person)",
                                      total_row,
                                      other_person_columns,
                                      {.net = other_person_column::net,
                                       .value = other_person_column::value,
                                       .debt = other_person_column::debt,
                                       .floored = true}};
const ReturnGrid asset_interest{
    "sprAssetInterest",
    "SCHEDULE-IFA (Interest held in Asset of firm or Association of Person)",
    5,
    firm_columns,
    {.net = firm_column::net, .value = firm_column::value, .debt = firm_column::debt, .only_rows = 5}};
const ReturnGrid assets_claimed_exempt{
    "sprAssetsClaimedExempt",
    "SCHEDULE-ACE (Assets referred to in section 2(ea) which are claimed as exempt u/s 5)",
    5,
    exempt_columns,
    {}};
const ReturnGrid schedule_opr{
    "sprScheduleOPR", "Schedule OPR :- ( To be filled up by individual or HUF only))", 5, opr_columns, {}};

void design_grid(widgets::Grid& grid, const ReturnGrid& table) {
    for (int column = 1; const ReturnColumn& each : table.columns) {
        grid.set_header(column, std::string(each.header));
        grid.design_column(column, design_of(each.kind));
        grid.set_column_width(column, width_of(each.kind));
        ++column;
    }
    design_net_formula(grid, table.net);
}

void unlock_inserted_row(widgets::Grid& grid, const ReturnGrid& table, int row) {
    for (int column = 1; column <= grid.columns(); ++column) {
        const bool computed = column == table.net.net && table.net.only_rows == 0;
        set_computed(grid, column, row, computed);
    }
}

} // namespace levora::form_ba
