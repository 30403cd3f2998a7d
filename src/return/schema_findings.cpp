#include "return/return_check.h"

#include "return/form_ba_writer.h"
#include "return/schedule_elements.h"
#include "return/schema_check.h"
#include "return/windows_1252.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace levora::form_ba {

using widgets::Grid;

namespace {

constexpr std::string_view pan_words =
    "a permanent account number has five letters, four digits and one letter";
constexpr std::string_view date_words = "this is no date (DD/MM/YYYY)";
constexpr std::string_view number_words = "this is no number";
constexpr std::string_view pin_words = "a PIN has six digits";
constexpr std::string_view phone_words = "only digits, blanks, +, - and / make a telephone number";

// Which field an element of the general part comes from, and what its value should be. What the schema
// only asks to be there needs no words.
struct ElementField {
    std::string_view element;
    std::string_view field;
    std::string_view words = {};
};

constexpr std::array element_fields{
    ElementField{"FBAMain:PAN", "mskPAN", pan_words},
    ElementField{"FBAMain:SurName", "txtName"},
    ElementField{"FormCommon:FlatDoorBuilding", "txtAddress1"},
    ElementField{"FormCommon:TownCityDistrict", "txtTown"},
    ElementField{"FormCommon:State", "cboState"},
    ElementField{"FormCommon:country", "cboCountry", "only India has a code in the file"},
    ElementField{"FormCommon:Pincode", "mskPin", pin_words},
    ElementField{"FBAMain:MobileNo", "mskMobileNo", "a mobile number has ten digits"},
    ElementField{"FBAMain:StdCode", "mskSTDCode", phone_words},
    ElementField{"FBAMain:PhoneNo", "mskPhone", phone_words},
    ElementField{"FBAMain:DateOfBirth", "mskDOB", date_words},
    ElementField{"FBAMain:EmailId", "txtEmail", "this is no e-mail address"},
    ElementField{"FBAMain:RecieptNo", "txtReceiptNo"},
    ElementField{"FBAMain:RecieptDat", "mskOriFillDate", date_words},
    ElementField{"FBAMain:ValuationDate", "mskValuationDate", date_words},
    ElementField{"FBAMain:RaName", "txtReprName"},
    ElementField{"FBAMain:RaAddress", "txtReprAddress"},
    ElementField{"FBAMain:RaPanNo", "mskReprPAN", pan_words},
    ElementField{"FBAMain:RaApplicationSection", "cboApplicableSec"},
    ElementField{"FBAMain:IfscCode", "txtMICRCode",
                 "an IFSC code has four letters, a 0 and six letters or digits"},
    ElementField{"FormCommon:StyledName", "txtVerificationName"},
    ElementField{"FormCommon:LandlordName", "txtVerificationFather"},
    ElementField{"FormCommon:AssesseePAN", "mskVerificationPAN", pan_words},
    ElementField{"FormCommon:verDesignation", "txtVerificationCapacity"},
    ElementField{"FormCommon:VerificationPlace", "txtVerificationPlace"},
    ElementField{"FormCommon:VerificationDate", "mskVerificationDate", date_words},
    ElementField{"FBAMain:TotalValImmovableProp", "txtAggregateImmovableProperty", number_words},
    ElementField{"FBAMain:TotalValFirmAssets", "txtTotalInterestAmount", number_words},
};

// The same for elements of the schedules whose column takes more than the file does.
struct ElementWords {
    std::string_view element;
    std::string_view words;
};

constexpr std::array schedule_words{
    ElementWords{"FBAMain:ChallanNo", "a challan's serial number has one to five digits and is not 0"},
    ElementWords{"FBAMain:ProfitSharingRatio", "this is no percentage between 0 and 100"},
    ElementWords{"FBAMain:GrossWeight", number_words},
    ElementWords{"FBAMain:NetWeight", number_words},
};

std::string_view words_of(ColumnKind kind) {
    switch (kind) {
    case ColumnKind::pan:
        return pan_words;
    case ColumnKind::date:
        return date_words;
    case ColumnKind::pin_code:
        return pin_words;
    case ColumnKind::bsr_code:
        return "a BSR code has seven digits";
    case ColumnKind::amount:
        return number_words;
    default:
        return {};
    }
}

// Nothing but the open places of a mask.
bool is_blank(std::string_view value) {
    return value.find_first_not_of(" _/-") == std::string_view::npos;
}

std::string told(const SchemaFault& fault, std::string_view words) {
    if (is_blank(fault.value) && fault.element != "FormCommon:country") return "is missing";
    return "\"" + fault.value + "\": " + std::string(words.empty() ? "this can't stand here" : words);
}

struct ScheduleGrid {
    const ScheduleElements& elements;
    const Grid& grid;
    const ReturnGrid& table;
};

std::string words_for_cell(const SchemaFault& fault, const ReturnGrid& table, int column) {
    for (const ElementWords& each : schedule_words)
        if (each.element == fault.element) return told(fault, each.words);
    return told(fault, words_of(table.columns[static_cast<std::size_t>(column - 1)].kind));
}

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
        ScheduleGrid{tax_payment, form.sprScheduleBTP, schedule_btp},
        ScheduleGrid{sch_immovable_property, form.sprImmovableProperty, immovable_property},
        ScheduleGrid{sch_movable_property, form.sprMovableProperty, movable_property},
        ScheduleGrid{sch_jewellery, form.sprJewellery, jewellery},
        ScheduleGrid{sch_jewel_stones, form.sprPreciousStone, precious_stone},
        ScheduleGrid{sch_wealth_other, form.sprInducibleNetWealth, inducible_net_wealth},
        ScheduleGrid{sch_firm_aop, form.sprAssetInterest, asset_interest},
        ScheduleGrid{exempt_asset_detail, form.sprAssetsClaimedExempt, assets_claimed_exempt},
    };
    for (const ScheduleGrid& each : grids) {
        if (each.elements.row != fault.row_element) continue;
        const int column = column_of(each.elements.cells, fault.element);
        if (column == 0) return std::nullopt;
        int row = fault.row;
        if (&each.grid == &form.sprInducibleNetWealth) row = row_of_other_person(each.grid, row);
        if (&each.grid == &form.sprPreciousStone) row = row_of_stone(each.grid, fault.outer_row, row);
        return on_cell(each.grid, column, row, words_for_cell(fault, each.table, column));
    }
    for (const PropertyHead& head : property_heads) {
        if (head.element != fault.row_element) continue;
        const int column = std::max(column_of(property_cells, fault.element), 1);
        const int row = row_with_head(form.sprScheduleOPR, head.text, fault.row);
        return on_cell(form.sprScheduleOPR, column, row, words_for_cell(fault, schedule_opr, column));
    }
    return std::nullopt;
}

Finding finding_of(const frmFormBA& form, const SchemaFault& fault) {
    if (fault.misplaced) return {fault.element, "the file has this in a place where it can't stand", {}};
    if (std::optional<Finding> cell = cell_finding(form, fault)) return *cell;
    for (const ElementField& each : element_fields)
        if (each.element == fault.element)
            if (const widgets::Control* field = form.find(each.field))
                return on_field(*field, told(fault, each.words));
    return {fault.element, told(fault, {}), {}};
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

std::vector<Finding> schema_findings(const frmFormBA& form, session::Session& session, const Schema& schema) {
    const std::optional<XmlDocument> document = XmlDocument::parse(filed_document(form, session));
    if (!document) return {}; // the plain findings name the "<" or the row that breaks it
    std::vector<Finding> findings;
    for (const SchemaFault& fault : schema.faults_of(*document))
        findings.push_back(finding_of(form, fault));
    return findings;
}

} // namespace levora::form_ba
