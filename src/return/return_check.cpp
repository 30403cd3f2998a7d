#include "return/return_check.h"

#include "widgets/value_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace levora::form_ba {

namespace {

// Plain names of fields whose label needs its surroundings to be understood.
struct PlainName {
    std::string_view field;
    std::string_view words;
};

constexpr std::array plain_names{
    PlainName{"txtName", "Surname"},
    PlainName{"txtVerificationName", "Verification: name"},
    PlainName{"txtVerificationFather", "Verification: son/ daughter of"},
    PlainName{"mskVerificationPAN", "Verification: permanent account number"},
    PlainName{"txtVerificationCapacity", "Verification: capacity"},
    PlainName{"txtVerificationPlace", "Verification: place"},
    PlainName{"mskVerificationDate", "Verification: date"},
    PlainName{"txtAmtBTPTotal", "Total of tax and interest paid"},
    PlainName{"txtAggregateImmovableProperty", "Total of immovable property"},
    PlainName{"TotalValMovableProp", "Total of movable property"},
    PlainName{"txtJewlNetAmtTotal", "Total of jewellery"},
    PlainName{"txtTotalInterestAmount", "Total of interest in firms"},
};

std::string plain_label(std::string_view label) {
    std::string text;
    for (const char each : label)
        if (each != '&' && each != '*') text += each;
    return std::string(trimmed(text));
}

} // namespace

Finding on_field(const widgets::Control& field, std::string what) {
    const auto* const named = std::find_if(plain_names.begin(), plain_names.end(),
                                           [&](const PlainName& each) { return each.field == field.name(); });
    return {named == plain_names.end() ? plain_label(field.label) : std::string(named->words),
            std::move(what), field.name()};
}

Finding on_cell(const widgets::Grid& grid, int column, int row, std::string what) {
    return {plain_label(grid.label) + ", row " + number_text(row) + ": " + plain_label(grid.header(column)),
            std::move(what), grid.name(), column, row};
}

std::vector<Finding> check_return(const frmFormBA& form, session::Session& session, const Schema& schema) {
    std::vector<Finding> findings = schema_findings(form, session, schema);
    for (Finding& each : plain_findings(form, session)) {
        // A choice that is missing is told once.
        const bool told = std::any_of(findings.begin(), findings.end(), [&each](const Finding& other) {
            return other.control == each.control && other.column == each.column && other.row == each.row;
        });
        if (!told) findings.push_back(std::move(each));
    }
    return findings;
}

} // namespace levora::form_ba
