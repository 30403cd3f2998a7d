#pragma once

#include "widgets/grid.h"

#include <span>
#include <string_view>

// The grids of the return as data: what each column is called, what it takes and how it is computed.
// Loading, clearing, the XML document and the check go by these columns.
namespace levora::form_ba {

enum class ColumnKind {
    text,
    amount,      // a number as it was typed, in rupees; nothing is rounded
    item_number, // a whole number that points at a row of another grid
    bsr_code,    // seven digits
    pin_code,    // six digits
    pan,         // five letters, four digits, one letter
    date,
    details_button,
    asset_type,    // "Building", "Urban Land"
    movable_kind,  // a list that takes a free text too
    weight_unit,   //
    property_head, // the four heads of schedule OPR
    state,         // the list of cboState
    opr_state,     // schedule OPR's own list
    country,       // fixed "INDIA"
};

struct ReturnColumn {
    std::string_view header;
    ColumnKind kind = ColumnKind::text;
};

namespace btp_column {
enum { bsr_code = 1, deposit_date, challan_number, amount };
}
namespace immovable_column {
enum {
    asset_type = 1,
    description,
    flat,
    premises,
    road,
    area,
    town,
    state,
    country,
    pin_code,
    survey,
    value,
    debt,
    net,
    valuer_name,
    valuer_number,
    report_date
};
}
namespace movable_column {
enum { description = 1, value, debt, net };
}
namespace jewellery_column {
enum {
    description = 1,
    unit,
    gross_weight,
    net_weight,
    stones,
    stones_value,
    value,
    debt,
    net,
    valuer_name,
    valuer_number,
    report_date
};
}
namespace stone_column {
enum { item = 1, description, weight, value };
}
namespace other_person_column {
enum { name = 1, relationship, pan, value, debt, net };
}
namespace firm_column {
enum { name = 1, address, pan, partners, ratio, value, debt, net };
}
namespace exempt_column {
enum { description = 1, value, debt, reason };
}
namespace opr_column {
enum { head = 1, cost, description, flat, premises, road, area, town, state, country, pin_code, survey };
}

// The total row of sprInducibleNetWealth, by its number: rows 1 to 12 are entries.
constexpr int total_row = 13;

// A net amount that the grid keeps current: the difference of two columns of the same row.
struct NetFormula {
    int net = 0; // 0: the grid has none
    int value = 0;
    int debt = 0;
    int only_rows = 0;    // 0: every row, inserted and added ones too
    bool floored = false; // never below 0
};

struct ReturnGrid {
    std::string_view name;
    std::string_view heading; // as it stands above the grid
    int rows;                 // on opening
    std::span<const ReturnColumn> columns;
    NetFormula net;
};

extern const ReturnGrid schedule_btp;
extern const ReturnGrid immovable_property;
extern const ReturnGrid movable_property;
extern const ReturnGrid jewellery;
extern const ReturnGrid precious_stone;
extern const ReturnGrid inducible_net_wealth;
extern const ReturnGrid asset_interest;
extern const ReturnGrid assets_claimed_exempt;
extern const ReturnGrid schedule_opr;

// Gives a new grid of this table's counts its headers, kinds, formulas, locks and grounds.
void design_grid(widgets::Grid& grid, const ReturnGrid& table);
// Rows inserted by a person take over the locks of their place: gives the row those of an entry row.
void unlock_inserted_row(widgets::Grid& grid, const ReturnGrid& table, int row);

} // namespace levora::form_ba
