#pragma once

#include "schedules/schedule_field.h"
#include "widgets/grid.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace levora::schedules {

// Rows of sprImmovable. Property number n stands in column n + 1; column 1 holds the labels.
struct PropertyRow {
    enum : int {
        type_of_property = 1,
        flat,
        premises,
        road,
        area,
        city,
        state,
        country,
        pincode,
        survey,
        annual_rent, // button; its caption holds the rent
        annual_value,
        gross_rent,
        taxes,
        repairs,
        net_rent,
        constructed_on,
        capitalised_value,
        cost,
        higher_value,
        premium_rate, // button; its caption holds the rate in per cent
        premium,
        valuation,
        unearned_increase,
        half_valuation,
        deduction,
        net_valuation,
        debt_owed,
        net_value,
        valuer_name,
        valuer_number,
        valuer_date,
    };
};
constexpr int property_rows = 32;
constexpr int first_property_column = 2;

// What a row takes when it is loaded, and what a save reads from it.
enum class PropertyField {
    none,    // not stored: comes back by recomputation
    text,    // text; a Null leaves the cell empty
    number,  // the leading number; loaded only when it is greater than 0
    caption, // the button's caption as text, "Details" for a Null
};

enum class Recomputes { total_only, column };

// The list of a row, and the item that is selected while the cell holds no data; -1 is none.
struct PropertyList {
    std::vector<std::string> (*items)();
    int selected;
};

struct PropertyBounds {
    double min;
    double max;
};

// One row of sprImmovable: what it is, how it is stored, and what an edit of it sets off.
struct PropertyItem {
    std::string_view label;
    widgets::CellKind kind;
    Ground ground;
    Recomputes recomputes;
    PropertyField field;
    std::string_view stored_as;
    PropertyBounds bounds{}; // of a number
    PropertyList list{};     // of a combo
};
const std::array<PropertyItem, property_rows>& property_items();
inline const PropertyItem& property_item(int row) {
    return property_items()[static_cast<std::size_t>(row - 1)];
}

constexpr std::string_view details_caption = "Details";
constexpr unsigned white_rgb = 0xFFFFFF; // the ground of a cell that is open to typing

// Gives the grid its 32 rows: labels, kinds, lists, locks, grounds and notes.
void design_property_grid(widgets::Grid& sprImmovable);

} // namespace levora::schedules
