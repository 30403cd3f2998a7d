#pragma once

#include "computation/wealth_sheet.h"

#include <span>
#include <string_view>

namespace levora::computation {

using SheetField = widgets::TextField frmWealthMain::*;

// How a field's text becomes a figure: its leading number, or the whole text as a number, where any
// other text is a Failure 13.
enum class Reading { leading_number, whole_text };

// One line of the sheet: which field it writes, from which fields, and how, all in rupees. Both the
// chain and the explanation of a figure read it.
struct SheetRule {
    SheetField target = nullptr;
    SheetField first = nullptr;
    std::string_view word = {}; // between the two: "less", "plus"; empty when there is no second
    SheetField second = nullptr;
    double (*reckon)(double first, double second) = nullptr;
    std::string_view remark = {}; // what the figures alone do not tell
    Reading reading = Reading::leading_number;
};

// All rules from top to bottom of the sheet.
std::span<const SheetRule> sheet_rules();

// What a field is called in a sentence: "Net Wealth".
std::string_view short_name(SheetField field);

} // namespace levora::computation
