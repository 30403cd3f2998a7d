#include "return/form_ba_reader.h"

#include "return/schedule_elements.h"
#include "session/common_services.h"
#include "widgets/date_text.h"

#include <string>

namespace levora::form_ba {

using widgets::Grid;
using widgets::TextField;

namespace {

// A grid grows as soon as its last row is reached, so one empty row always follows.
void make_room(Grid& grid, int row) {
    if (row >= grid.rows()) grid.set_rows(row + 1);
}

void read_amount(Grid& grid, int column, int row, const std::string& text) {
    if (grid.cell_kind(column, row) == widgets::CellKind::number)
        grid.set_value(column, row, val(text));
    else
        grid.set_text(column, row, text);
}

void read_cell(Grid& grid, const CellElement& element, int row, const XmlNode& node) {
    using enum CellFormat;
    const auto get = [&](std::string_view otherwise) { return GetNodeText(node, element.name, otherwise); };
    const int column = element.column;
    switch (element.format) {
    case text:
    case trimmed:
    case text_if_any:
    case text_unless_blank:
        grid.set_text(column, row, get(""));
        break;
    case amount:
    case debt_of_movable:
        read_amount(grid, column, row, get("0"));
        break;
    case date:
    case date_if_any:
    case date_unless_blank:
        grid.set_text(column, row, as_day_month_year(get("")));
        break;
    case state_code:
        grid.set_text(column, row, session::CodeToState(get("")));
        break;
    case india: // the element is not read
        grid.set_text(column, row, "INDIA");
        break;
    case asset_type: {
        const std::string code = get("");
        if (code == "B") grid.set_text(column, row, "Building");
        if (code == "U") grid.set_text(column, row, "Urban Land");
        break;
    }
    case movable_kind: {
        const std::string code = get("");
        for (const MovableKind& each : movable_kinds)
            if (each.code == code) grid.set_text(column, row, each.text);
        break;
    }
    }
}

void read_row(Grid& grid, std::span<const CellElement> cells, int row, const XmlNode& node) {
    make_room(grid, row);
    for (const CellElement& each : cells)
        quietly([&] { read_cell(grid, each, row, node); });
}

// The rows of a grid; false when the document has none, which leaves grid and total as they were.
bool read_rows(Grid& grid, const ScheduleElements& elements, const XmlNode& form_ba) {
    const std::vector<XmlNode> nodes = form_ba.children(elements.row);
    if (nodes.empty()) return false;
    for (int row = 1; const XmlNode& each : nodes)
        read_row(grid, elements.cells, row++, each);
    return true;
}

void read_jewellery(frmFormBA& form, const XmlNode& form_ba, const XmlIndex& all) {
    const std::vector<XmlNode> nodes = form_ba.children(sch_jewellery.row);
    if (nodes.empty()) return;
    // Stones of all items share one grid: their rows are counted through the whole document.
    int stone_row = 1;
    for (int row = 1; const XmlNode& each : nodes) {
        read_row(form.sprJewellery, sch_jewellery.cells, row, each);
        for (const XmlNode& stone : each.children(sch_jewel_stones.row)) {
            read_row(form.sprPreciousStone, sch_jewel_stones.cells, stone_row, stone);
            form.sprPreciousStone.set_value(stone_column::item, stone_row++, row);
        }
        ++row;
    }
    form.txtJewlNetAmtTotal.set_text(all.text(sch_jewellery.total, "0"));
}

void read_firms(frmFormBA& form, const XmlNode& form_ba, const XmlIndex& all) {
    if (!read_rows(form.sprAssetInterest, sch_firm_aop, form_ba)) return;
    // Wanted: the address is not read, its column takes the account number as the next one does.
    for (int row = 1; const XmlNode& each : form_ba.children(sch_firm_aop.row))
        form.sprAssetInterest.set_text(firm_column::address, row++,
                                       GetNodeText(each, "FBAMain:PanOfFirm", ""));
    // Wanted: the writer spells this total otherwise, so it reads as "0" and the grid has the word.
    form.txtTotalInterestAmount.set_text(all.text("FBAMain:TotalValFirmAssetl", "0"));
    form.sprAssetInterest_Change();
}

// Rows come back head by head, whatever their order was.
void read_property_rows(Grid& grid, const XmlNode& schedule) {
    int row = 1;
    for (const PropertyHead& head : property_heads) {
        const bool agricultural = &head == &property_heads.front();
        for (const XmlNode& each : schedule.children(head.element)) {
            read_row(grid, property_cells, row, each);
            // Wanted: under the other three heads these pass through the reading of numbers: "12A" is 12.
            if (!agricultural)
                for (const CellElement& cell : property_cells)
                    if (cell.column == opr_column::flat || cell.column == opr_column::pin_code ||
                        cell.column == opr_column::survey)
                        grid.set_text(cell.column, row, number_text(val(GetNodeText(each, cell.name, "0"))));
            grid.set_text(opr_column::head, row++, head.text);
        }
    }
}

void read_other_properties(frmFormBA& form, const XmlNode& schedule) {
    const auto amount = [&schedule](std::string_view name, TextField& field) {
        field.set_value(val(GetNodeText(schedule, name, "0")));
    };
    read_property_rows(form.sprScheduleOPR, schedule);
    form.txtMovTotalDeposit.set_text(GetNodeText(schedule, "FBAMain:DepositBank", "0"));
    amount("FBAMain:InvestBond", form.txtMovAmtBondInvestment);
    amount("FBAMain:InvestNSS", form.txtMovAmtPostal);
    amount("FBAMain:TotalAmtLoanAdv", form.txtMovAmtFirm);
    amount("FBAMain:OtherPropClaim", form.txtMovAmtOther);
    amount("FBAMain:TotalVAlCostOthrProp", form.txtTotalValOtherProperty);
    amount("FBAMain:TotalLiabilityOtrProp", form.txtTotalLiabilityOtherProp);
    amount("FBAMain:NetAmtOtrProp", form.txtNetAmtOthProperty);
}

} // namespace

void read_schedules(frmFormBA& form, const XmlNode& form_ba, const XmlIndex& all) {
    const auto total = [&all](const ScheduleElements& elements, TextField& field) {
        field.set_text(all.text(elements.total, "0"));
    };
    if (read_rows(form.sprScheduleBTP, tax_payment, form_ba)) {
        total(tax_payment, form.txtAmtBTPTotal);
        form.sprScheduleBTP_Change();
    }
    if (read_rows(form.sprImmovableProperty, sch_immovable_property, form_ba)) {
        total(sch_immovable_property, form.txtAggregateImmovableProperty);
        form.sprImmovableProperty_Change();
    }
    if (read_rows(form.sprMovableProperty, sch_movable_property, form_ba)) {
        total(sch_movable_property, form.TotalValMovableProp);
        form.sprMovableProperty_Change();
    }
    read_jewellery(form, form_ba, all);
    read_rows(form.sprInducibleNetWealth, sch_wealth_other, form_ba);
    read_firms(form, form_ba, all);
    read_rows(form.sprAssetsClaimedExempt, exempt_asset_detail, form_ba);
    if (const auto schedule = form_ba.child("FBAMain:SchOtherProperties"))
        read_other_properties(form, *schedule);
}

} // namespace levora::form_ba
