#include "schedules/property_grid.h"

#include "schedules/places.h"

namespace levora::schedules {

using widgets::CellKind;

namespace {

std::vector<std::string> property_types() {
    return {"Residential House", "Commercial House", "Guest House"};
}
std::vector<std::string> property_cities() {
    return city_names(Raipur::listed);
}
std::vector<std::string> countries() {
    return {"INDIA"};
}

// The position chooses the multiplier of the net maintainable rent (rule 4 of Schedule III).
std::vector<std::string> tenures() {
    return {"Free hold land = (NMR X 12.5)",
            "Lease hold Land & Unexpired Lease period is 50 Yrs. or more = (NMR X 10)",
            "Lease hold Land & Unexpired Lease period is less than 50 Yrs.= (NMR X 8)"};
}

constexpr PropertyBounds amount{-99999999, 99999999999};
constexpr PropertyBounds ten_digits{-99999999, 9999999999};
constexpr PropertyBounds wide{-9999999999, 99999999999};
constexpr PropertyBounds thirteen_digits{-99999999, 9999999999999};

constexpr auto column = Recomputes::column;
constexpr auto total_only = Recomputes::total_only;
constexpr auto plain = Ground::plain;
constexpr auto grey = Ground::grey;
constexpr auto computed = Ground::grey_and_locked;
constexpr auto text = PropertyField::text;
constexpr auto number = PropertyField::number;
constexpr auto caption = PropertyField::caption;
constexpr auto none = PropertyField::none;

// clang-format off
constexpr std::array<PropertyItem, property_rows> items{{
    {"Type of Property",                     CellKind::combo,  plain, total_only, text, "TypeOfProperty", {}, {property_types, 0}},
    {"Flat / Door / Block",                  CellKind::text,   plain, total_only, text, "Flat"},
    {"Name of Premises",                     CellKind::text,   plain, total_only, text, "Premises"},
    {"Road/Street/Post Office",              CellKind::text,   plain, column, text, "Road"},
    {"Area/Locality",                        CellKind::text,   plain, column, text, "Area"},
    {"Town/City/District",                   CellKind::combo,  plain, column, text, "City", {}, {property_cities, 2}},
    {"State",                                CellKind::combo,  plain, column, text, "State", {}, {schedule_state_names, 0}},
    {"Country",                              CellKind::combo,  plain, column, text, "Country", {}, {countries, -1}},
    {"Pincode",                              CellKind::mask,   plain, column, text, "pincode"},
    {"Survey/Plot No",                       CellKind::text,   plain, column, text, "survey"},
    {"Annual Rent (Property Let out) ",      CellKind::button, plain, column, number, "AnnualRent"},
    {"Annual Value assessed by Local Authority", CellKind::number, plain, column, number, "AnnualValueByLocalAuthority", amount},
    {"Gross Maintainable Rent",              CellKind::number, computed, total_only, none, "", amount},
    {"Less: Total taxes levied by Local Authority", CellKind::number, plain, column, number, "TaxesPaid", amount},
    {"          15% of Gross  Maintainable Rent", CellKind::number, computed, column, none, "", amount},
    {"Net Maintainable Rent (NMR)",          CellKind::number, computed, total_only, none, "", amount},
    {"Property Constructed on",              CellKind::combo,  grey, column, text, "PropertyConstructedOn", {}, {tenures, 1}},
    {"Capitalised Value",                    CellKind::number, plain, total_only, number, "CapitalisedValue", ten_digits},
    {"Cost of Constrn./ Acquisition of house Property ", CellKind::number, plain, total_only, number, "CostOfAcquition", amount},
    {"Capitalised value of NMR",             CellKind::number, computed, total_only, none, "", amount},
    {"Premium to be added at the rate (%)",  CellKind::button, plain, total_only, caption, "PremiumAddedRate"},
    {"Premium Amount to be added",           CellKind::number, plain, total_only, number, "PremiumAmountAdded", ten_digits},
    {"Valuation of Property",                CellKind::number, computed, total_only, none, "", wide},
    {"Unearn Increase payable to the Govt. or any authority", CellKind::number, plain, total_only, number, "UnearnIncreasePayable", thirteen_digits},
    {"50% of Valuation of Property",         CellKind::number, computed, total_only, none, "", amount},
    {"Deduction of Unearn Increase. (Least of above 2)", CellKind::number, computed, total_only, none, "", amount},
    {"Net Valuation of Property",            CellKind::number, grey, total_only, number, "NetValueOfProperty", ten_digits},
    {"Debt Owed",                            CellKind::text,   plain, column, number, "DebtOwed"},
    {"Net Value",                            CellKind::number, grey, total_only, number, "NetValue", amount},
    {"Name of Registered Valuer",            CellKind::text,   plain, total_only, text, "NameRegValuer"},
    {"Registration No. of Valuer",           CellKind::text,   plain, total_only, text, "RegNoValuer"},
    {"Date of Report by Valuer",             CellKind::date,   plain, total_only, text, "DateofReportByValuer"},
}};
// clang-format on

struct LabelNote {
    int row;
    std::string_view text;
};
// Advice to the person; nothing checks these conditions.
constexpr std::array label_notes{
    LabelNote{PropertyRow::annual_value,
              "If the property is not letout the annual value shall be annual rent assessed by the Local "
              "Authority. And if there is no such Assessment the amount which the owner can reasonably be "
              "expected to receive had such property been let out."},
    LabelNote{PropertyRow::cost,
              "Do not enter the amount in case of following conditions. 1. House property is acquired "
              "before 31st March 1974 .  2. House property is exclusively used for own residential purpose "
              "through out the year. 3. Cost of acquition  doesn't exceed Rs. 50 ,000,00  if the house is "
              "situated at BCDM & Rs. 25,000,00 at any other place."},
    LabelNote{PropertyRow::unearned_increase,
              "Applicable only in case of property built on leasehold land. "},
};

constexpr double label_width = 50; // the longest label in full
constexpr int debt_characters = 60;
constexpr Date first_report{1990, 1, 1};
constexpr Date last_report{2100, 12, 31};

widgets::CellDesign design_of(const PropertyItem& item) {
    switch (item.kind) {
    case CellKind::number:
        return widgets::number_cell(item.bounds.min, item.bounds.max, 0, true);
    case CellKind::combo:
        return widgets::combo_cell(item.list.items(), item.list.selected);
    case CellKind::button:
        return widgets::button_cell(std::string(details_caption));
    case CellKind::mask:
        return widgets::mask_cell("999999");
    case CellKind::date:
        return widgets::date_cell(first_report, last_report);
    default:
        break;
    }
    const bool figure = item.field == PropertyField::number;
    widgets::CellDesign text = widgets::text_cell(figure ? debt_characters : 0);
    text.figure = figure;
    return text;
}

} // namespace

const std::array<PropertyItem, property_rows>& property_items() {
    return items;
}

void design_property_grid(widgets::Grid& sprImmovable) {
    sprImmovable.set_header(1, "Property Details");
    for (int column_number = first_property_column; column_number <= sprImmovable.columns(); ++column_number)
        sprImmovable.set_header(column_number, number_text(column_number - 1));
    sprImmovable.set_column_width(1, label_width);
    sprImmovable.set_column_locked(1, true);
    sprImmovable.set_column_backcolor(1, widgets::grey_rgb);

    for (int row = 1; row <= property_rows; ++row) {
        const PropertyItem& item = property_item(row);
        sprImmovable.set_label(1, row, std::string(item.label));
        sprImmovable.design_row(row, design_of(item), first_property_column);
        if (item.ground == Ground::plain) continue;
        for (int property = first_property_column; property <= sprImmovable.columns(); ++property) {
            sprImmovable.set_cell_backcolor(property, row, widgets::grey_rgb);
            sprImmovable.set_cell_locked(property, row, item.ground == Ground::grey_and_locked);
        }
    }
    for (const LabelNote& note : label_notes)
        sprImmovable.set_note(1, note.row, std::string(note.text));
}

} // namespace levora::schedules
