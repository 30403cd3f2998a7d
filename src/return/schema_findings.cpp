#include "return/return_check.h"

#include "return/form_ba_writer.h"
#include "return/schedule_elements.h"
#include "return/schema_check.h"
#include "return/windows_1252.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>

namespace levora::form_ba {

using widgets::Grid;

namespace {

// Which field an element of the general part comes from.
struct ElementField {
    std::string_view element;
    std::string_view field;
};

constexpr std::array element_fields{
    ElementField{"FBAMain:PAN", "mskPAN"},
    ElementField{"FBAMain:SurName", "txtName"},
    ElementField{"FormCommon:FlatDoorBuilding", "txtAddress1"},
    ElementField{"FormCommon:TownCityDistrict", "txtTown"},
    ElementField{"FormCommon:State", "cboState"},
    ElementField{"FormCommon:country", "cboCountry"},
    ElementField{"FormCommon:Pincode", "mskPin"},
    ElementField{"FBAMain:MobileNo", "mskMobileNo"},
    ElementField{"FBAMain:StdCode", "mskSTDCode"},
    ElementField{"FBAMain:PhoneNo", "mskPhone"},
    ElementField{"FBAMain:DateOfBirth", "mskDOB"},
    ElementField{"FBAMain:EmailId", "txtEmail"},
    ElementField{"FBAMain:RecieptNo", "txtReceiptNo"},
    ElementField{"FBAMain:RecieptDat", "mskOriFillDate"},
    ElementField{"FBAMain:ValuationDate", "mskValuationDate"},
    ElementField{"FBAMain:RaName", "txtReprName"},
    ElementField{"FBAMain:RaAddress", "txtReprAddress"},
    ElementField{"FBAMain:RaPanNo", "mskReprPAN"},
    ElementField{"FBAMain:RaApplicationSection", "cboApplicableSec"},
    ElementField{"FBAMain:IfscCode", "txtMICRCode"},
    ElementField{"FormCommon:StyledName", "txtVerificationName"},
    ElementField{"FormCommon:LandlordName", "txtVerificationFather"},
    ElementField{"FormCommon:AssesseePAN", "mskVerificationPAN"},
    ElementField{"FormCommon:verDesignation", "txtVerificationCapacity"},
    ElementField{"FormCommon:VerificationPlace", "txtVerificationPlace"},
    ElementField{"FormCommon:VerificationDate", "mskVerificationDate"},
    ElementField{"FBAMain:TotalValImmovableProp", "txtAggregateImmovableProperty"},
    ElementField{"FBAMain:TotalValFirmAssets", "txtTotalInterestAmount"},
};

// What a value should be, by the schema's own name for it.
struct TypeWords {
    std::string_view type;
    std::string_view words;
};

constexpr std::array type_words{
    TypeWords{"pan", "a permanent account number has five letters, four digits and one letter"},
    TypeWords{"pan_or_none", "a permanent account number has five letters, four digits and one letter"},
    TypeWords{"date", "this is no date (DD/MM/YYYY)"},
    TypeWords{"amount", "this is no number"},
    TypeWords{"amount_or_none", "this is no number"},
    TypeWords{"percentage", "this is no percentage between 0 and 100"},
    TypeWords{"state", "this is none of the states"},
    TypeWords{"country", "only India has a code in the file"},
    TypeWords{"pin", "a PIN has six digits"},
    TypeWords{"pin_or_none", "a PIN has six digits"},
    TypeWords{"bsr_code", "a BSR code has seven digits"},
    TypeWords{"challan_number", "a challan's serial number has one to five digits"},
    TypeWords{"mobile_or_none", "a mobile number has ten digits"},
    TypeWords{"phone", "only digits, blanks, +, - and / make a telephone number"},
    TypeWords{"email_or_none", "this is no e-mail address"},
    TypeWords{"ifsc_or_none", "an IFSC code has four letters, a 0 and six letters or digits"},
    TypeWords{"weight_unit", "this is none of the units"},
    TypeWords{"movable_kind", "this is none of the kinds of movable property"},
};

// Nothing but the open places of a mask.
bool is_blank(std::string_view value) {
    return value.find_first_not_of(" _/-") == std::string_view::npos;
}

std::string words_for(const SchemaFault& fault) {
    if (fault.element == "FormCommon:country") return std::string("only India has a code in the file");
    if (is_blank(fault.value)) return "is missing";
    const auto words = std::find_if(type_words.begin(), type_words.end(),
                                    [&](const TypeWords& each) { return each.type == fault.type; });
    const std::string quoted = "\"" + fault.value + "\": ";
    return quoted + std::string(words == type_words.end() ? "this can't stand here" : words->words);
}

struct ScheduleGrid {
    const ScheduleElements& elements;
    const Grid& grid;
};

int column_of(std::span<const CellElement> cells, std::string_view element) {
    for (const CellElement& each : cells)
        if (each.name == element) return each.column;
    return 0;
}

// The grid row behind the nth element: names may be missing in between, or other items' stones.
int row_of_other_person(const Grid& grid, int position) {
    for (int row = 1; row < total_row; ++row)
        if (!grid.text(other_person_column::name, row).empty() && --position == 0) return row;
    return 1;
}

int row_of_stone(const Grid& grid, int item, int position) {
    for (int row = 1; row <= grid.data_rows(); ++row)
        if (grid.value(stone_column::item, row) == item && --position == 0) return row;
    return 1;
}

int row_with_head(const Grid& grid, std::string_view head, int position) {
    for (int row = 1; row <= grid.data_rows(); ++row)
        if (grid.text(opr_column::head, row) == head && --position == 0) return row;
    return 1;
}

std::optional<Finding> cell_finding(const frmFormBA& form, const SchemaFault& fault) {
    const std::array grids{
        ScheduleGrid{tax_payment, form.sprScheduleBTP},
        ScheduleGrid{sch_immovable_property, form.sprImmovableProperty},
        ScheduleGrid{sch_movable_property, form.sprMovableProperty},
        ScheduleGrid{sch_jewellery, form.sprJewellery},
        ScheduleGrid{sch_jewel_stones, form.sprPreciousStone},
        ScheduleGrid{sch_wealth_other, form.sprInducibleNetWealth},
        ScheduleGrid{sch_firm_aop, form.sprAssetInterest},
        ScheduleGrid{exempt_asset_detail, form.sprAssetsClaimedExempt},
    };
    for (const ScheduleGrid& each : grids) {
        if (each.elements.row != fault.row_element) continue;
        const int column = column_of(each.elements.cells, fault.element);
        if (column == 0) return std::nullopt;
        int row = fault.row;
        if (&each.grid == &form.sprInducibleNetWealth) row = row_of_other_person(each.grid, row);
        if (&each.grid == &form.sprPreciousStone) row = row_of_stone(each.grid, fault.outer_row, row);
        return on_cell(each.grid, column, row, words_for(fault));
    }
    for (const PropertyHead& head : property_heads) {
        if (head.element != fault.row_element) continue;
        const int column = column_of(property_cells, fault.element);
        const int row = row_with_head(form.sprScheduleOPR, head.text, fault.row);
        return on_cell(form.sprScheduleOPR, std::max(column, 1), row, words_for(fault));
    }
    return std::nullopt;
}

Finding finding_of(const frmFormBA& form, const SchemaFault& fault) {
    if (std::optional<Finding> cell = cell_finding(form, fault)) return *cell;
    for (const ElementField& each : element_fields)
        if (each.element == fault.element)
            if (const widgets::Control* field = form.find(each.field))
                return on_field(*field, words_for(fault));
    return {fault.element,
            fault.type.empty() ? "the file has this in a place where it can't stand" : words_for(fault),
            {}};
}

// The document as it would be filed; the session's stack of open elements stays as it was.
std::string filed_document(const frmFormBA& form, session::Session& session) {
    const auto indent = session.XmlIndent;
    const auto stack = session.XmlTagStack;
    const auto top = session.XmlTagTop;
    session.XmlIndent = 0;
    session.XmlTagStack.clear();
    session.XmlTagTop = 0;
    std::string text;
    try {
        eReturn xml(session);
        write_document(xml, form, session);
        text = to_windows_1252(xml.text());
    } catch (const Failure&) {
        text.clear(); // rows without a head have closed more than was open
    }
    session.XmlIndent = indent;
    session.XmlTagStack = stack;
    session.XmlTagTop = top;
    return text;
}

} // namespace

std::vector<Finding> schema_findings(const frmFormBA& form, session::Session& session) {
    const std::optional<XmlDocument> document = XmlDocument::parse(filed_document(form, session));
    if (!document) return {}; // the plain findings name the "<" or the row that breaks it
    std::vector<Finding> findings;
    for (const SchemaFault& fault : check_against_schema(*document, session.program_folder))
        findings.push_back(finding_of(form, fault));
    return findings;
}

} // namespace levora::form_ba
