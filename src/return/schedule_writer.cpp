#include "return/form_ba_writer.h"

#include "return/schedule_elements.h"
#include "session/common_services.h"
#include "widgets/date_text.h"

#include <algorithm>
#include <map>
#include <string>

namespace levora::form_ba {

using session::StateToCode;
using widgets::Grid;
using widgets::TextField;

namespace {

// Wanted: no item of the list reads so; only a free text leaves the debt out.
constexpr std::string_view cash_without_debt = "Cash in Hand u/s 2(ea)(vi)";

std::string amount_text(const Grid& grid, int column, int row) {
    return number_text(grid.value(column, row));
}

void write_cell(eReturn& xml, const Grid& grid, const CellElement& element, int row) {
    using enum CellFormat;
    if (element.format == india) {
        xml.WriteElement(element.name, "91");
        return;
    }
    const std::string& cell = grid.text(element.column, row);
    switch (element.format) {
    case text:
        xml.WriteElement(element.name, cell);
        break;
    case trimmed:
        xml.WriteElement(element.name, levora::trimmed(cell));
        break;
    case amount:
        xml.WriteElement(element.name, amount_text(grid, element.column, row));
        break;
    case date:
        xml.WriteElement(element.name, as_iso_date(cell));
        break;
    case text_if_any:
        if (!cell.empty()) xml.WriteElement(element.name, cell);
        break;
    case date_if_any:
        if (!cell.empty()) xml.WriteElement(element.name, as_iso_date(cell));
        break;
    case text_unless_blank:
        if (!levora::trimmed(cell).empty()) xml.WriteElement(element.name, cell);
        break;
    case date_unless_blank:
        if (!levora::trimmed(cell).empty()) xml.WriteElement(element.name, as_iso_date(cell));
        break;
    case state_code:
        xml.WriteElement(element.name, StateToCode(cell));
        break;
    case asset_type:
        xml.WriteElement(element.name, cell == "Building" ? "B" : "U");
        break;
    case movable_kind: {
        const auto kind = std::find_if(movable_kinds.begin(), movable_kinds.end(),
                                       [&](const MovableKind& each) { return each.text == cell; });
        if (kind != movable_kinds.end()) xml.WriteElement(element.name, kind->code);
        break;
    }
    case debt_of_movable:
        if (grid.text(movable_column::description, row) != cash_without_debt)
            xml.WriteElement(element.name, amount_text(grid, element.column, row));
        break;
    case india:
        break;
    }
}

void write_row(eReturn& xml, const Grid& grid, const ScheduleElements& elements, int row) {
    xml.OpenTag(elements.row);
    for (const CellElement& each : elements.cells)
        write_cell(xml, grid, each, row);
    xml.CloseTag();
}

void write_rows(eReturn& xml, const Grid& grid, const ScheduleElements& elements) {
    const int last = grid.data_rows();
    for (int row = 1; row <= last; ++row)
        write_row(xml, grid, elements, row);
}

// The rows of sprPreciousStone by the jewellery row that they name.
std::multimap<double, int> stones_by_item(const Grid& stones) {
    std::multimap<double, int> rows;
    for (int row = 1; row <= stones.data_rows(); ++row)
        rows.emplace(stones.value(stone_column::item, row), row);
    return rows;
}

void write_jewellery(eReturn& xml, const frmFormBA& form) {
    const std::multimap<double, int> stones = stones_by_item(form.sprPreciousStone);
    const int last = form.sprJewellery.data_rows();
    for (int row = 1; row <= last; ++row) {
        xml.OpenTag(sch_jewellery.row);
        for (const CellElement& each : sch_jewellery.cells) {
            if (each.column == jewellery_column::value) {
                const auto [first, behind] = stones.equal_range(row);
                for (auto stone = first; stone != behind; ++stone)
                    write_row(xml, form.sprPreciousStone, sch_jewel_stones, stone->second);
            }
            write_cell(xml, form.sprJewellery, each, row);
        }
        xml.CloseTag();
    }
    xml.WriteElement(sch_jewellery.total, number_text(form.txtJewlNetAmtTotal.value()));
}

void write_other_persons(eReturn& xml, const Grid& grid) {
    using namespace other_person_column;
    if (grid.value(net, total_row) <= 0) return;
    for (int row = 1; row < total_row; ++row)
        if (!grid.text(other_person_column::name, row).empty()) write_row(xml, grid, sch_wealth_other, row);
    xml.WriteElement(sch_wealth_other.total, amount_text(grid, net, total_row));
}

void write_property_rows(eReturn& xml, const Grid& grid) {
    const int last = grid.data_rows();
    for (int row = 1; row <= last; ++row) {
        const std::string& text = grid.text(opr_column::head, row);
        const auto head = std::find_if(property_heads.begin(), property_heads.end(),
                                       [&](const PropertyHead& each) { return each.text == text; });
        if (head != property_heads.end()) {
            xml.OpenTag(head->element);
            xml.WriteElement("FBAMain:ImmovablePropType", head->code);
        }
        for (const CellElement& each : property_cells)
            write_cell(xml, grid, each, row);
        // Wanted: a row without a head opened nothing, so this closes the element around it, and every
        // later end tag shifts by one level.
        xml.CloseTag();
    }
}

bool has_head(const Grid& grid, std::string_view head) {
    for (int row = 1; row <= grid.data_rows(); ++row)
        if (grid.text(opr_column::head, row) == head) return true;
    return false;
}

void write_other_properties(eReturn& xml, const frmFormBA& form) {
    const auto amount = [&xml](std::string_view tag, const TextField& field) {
        xml.WriteElement(tag, number_text(field.value()));
    };
    xml.OpenTag("FBAMain:SchOtherProperties");
    write_property_rows(xml, form.sprScheduleOPR);
    amount("FBAMain:DepositBank", form.txtMovTotalDeposit);
    amount("FBAMain:InvestBond", form.txtMovAmtBondInvestment);
    amount("FBAMain:InvestNSS", form.txtMovAmtPostal);
    amount("FBAMain:TotalAmtLoanAdv", form.txtMovAmtFirm);
    amount("FBAMain:OtherPropClaim", form.txtMovAmtOther);
    amount("FBAMain:TotalVAlCostOthrProp", form.txtTotalValOtherProperty);
    amount("FBAMain:TotalLiabilityOtrProp", form.txtTotalLiabilityOtherProp);
    amount("FBAMain:NetAmtOtrProp", form.txtNetAmtOthProperty);
    for (const PropertyHead& each : property_heads)
        xml.WriteElement(each.flag, has_head(form.sprScheduleOPR, each.text) ? "Y" : "N");
}

} // namespace

void write_schedules(eReturn& xml, const frmFormBA& form) {
    if (form.sprScheduleBTP.data_rows() > 0) {
        write_rows(xml, form.sprScheduleBTP, tax_payment);
        xml.WriteElement(tax_payment.total, number_text(form.txtAmtBTPTotal.value()));
    }
    write_rows(xml, form.sprImmovableProperty, sch_immovable_property);
    // Wanted: this total and that of the firms are written as the text that they are.
    xml.WriteElement(sch_immovable_property.total, form.txtAggregateImmovableProperty.text());
    if (form.sprMovableProperty.data_rows() > 0) {
        write_rows(xml, form.sprMovableProperty, sch_movable_property);
        xml.WriteElement(sch_movable_property.total, number_text(form.TotalValMovableProp.value()));
    }
    write_jewellery(xml, form);
    write_other_persons(xml, form.sprInducibleNetWealth);
    if (form.sprAssetInterest.data_rows() > 0) {
        write_rows(xml, form.sprAssetInterest, sch_firm_aop);
        xml.WriteElement(sch_firm_aop.total, form.txtTotalInterestAmount.text());
    }
    write_rows(xml, form.sprAssetsClaimedExempt, exempt_asset_detail);
    write_other_properties(xml, form);
}

} // namespace levora::form_ba
