#pragma once

#include <span>
#include <string_view>

// The elements of the schedules, one table a grid, in the order of the document. The writer, the
// reader and the check walk these.
namespace levora::form_ba {

enum class CellFormat {
    text,
    trimmed,           // without blanks at either end
    amount,            // the leading number
    date,              // "yyyy-MM-dd"
    text_if_any,       // no element when the cell is empty
    date_if_any,       //
    text_unless_blank, // no element when the cell holds blanks only, or nothing
    date_unless_blank, //
    state_code,        // "01" to "36", "99"
    india,             // always "91"; the cell is not read
    asset_type,        // "Building" "B", anything else "U"
    movable_kind,      // "1" to "3", no element for any other text
    debt_of_movable,   // an amount, left out for one text of the description
};

struct CellElement {
    std::string_view name;
    int column; // of the grid; 0 for none
    CellFormat format = CellFormat::text;
};

struct ScheduleElements {
    std::string_view row;   // the element of one row
    std::string_view total; // written behind the rows; empty for none
    std::span<const CellElement> cells;
};

extern const ScheduleElements tax_payment;
extern const ScheduleElements sch_immovable_property;
extern const ScheduleElements sch_movable_property;
extern const ScheduleElements sch_jewellery;
extern const ScheduleElements sch_jewel_stones; // inside a row of sch_jewellery, before the column "value"
extern const ScheduleElements sch_wealth_other;
extern const ScheduleElements sch_firm_aop;
extern const ScheduleElements exempt_asset_detail;

// Schedule OPR: the row's element goes by the text of its first column.
struct PropertyHead {
    std::string_view text;    // of the list
    std::string_view element; // of the row
    std::string_view code;    // of FBAMain:ImmovablePropType
    std::string_view flag;    // "Y" or "N" behind the rows
};
extern const std::span<const PropertyHead> property_heads;
extern const std::span<const CellElement> property_cells;

// "Motor Cars" "1" and so on.
struct MovableKind {
    std::string_view text;
    std::string_view code;
};
extern const std::span<const MovableKind> movable_kinds;

} // namespace levora::form_ba
