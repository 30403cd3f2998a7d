#include "computation/why.h"

#include "computation/due_date.h"
#include "computation/sheet_rules.h"
#include "widgets/value_text.h"

#include <ranges>

namespace levora::computation {

namespace {

using Sheet = frmWealthMain;

struct Entry {
    SheetField field;
    std::string_view source;
};
// Figures that no rule of the sheet writes.
constexpr Entry entries[] = {
    {&Sheet::txtAssetsSec2ea, "the total of the assets screen"},
    {&Sheet::txtDeemedAssets, "the total of the deemed assets"},
    {&Sheet::txtExemptedAssets, "the total of the exempted assets, for reporting only"},
    {&Sheet::txtLessDebt, "typed here"},
    {&Sheet::txtExemptedAmount, "the same for every assessee and year (section 3)"},
    {&Sheet::txtPrepaidTax, "the amounts of the prepaid challans"},
};

std::string figure(const frmWealthMain& sheet, SheetField field) {
    return group_indian_text(number_text((sheet.*field).value()));
}

std::string named_figure(const frmWealthMain& sheet, SheetField field) {
    return std::string(short_name(field)) + " " + figure(sheet, field);
}

std::string in_brackets(std::string_view remark) {
    return remark.empty() ? std::string() : " (" + std::string(remark) + ")";
}

std::string result_of(const frmWealthMain& sheet, const SheetRule& rule) {
    const double first = (sheet.*rule.first).value();
    const double second = rule.second ? (sheet.*rule.second).value() : 0;
    return number_text(rule.reckon(first, second));
}

std::string sources_of(const frmWealthMain& sheet, const SheetRule& rule) {
    std::string text = named_figure(sheet, rule.first);
    if (rule.second) text += " " + std::string(rule.word) + " " + named_figure(sheet, rule.second);
    return text + in_brackets(rule.remark);
}

// Where several rules write a field, the lowest one that gives its figure holds.
std::string by_rules(const frmWealthMain& sheet, SheetField field) {
    const SheetRule* lowest = nullptr;
    for (const SheetRule& rule : std::views::reverse(sheet_rules())) {
        if (rule.target != field) continue;
        if (result_of(sheet, rule) == number_text((sheet.*field).value()))
            return named_figure(sheet, field) + " = " + sources_of(sheet, rule);
        if (!lowest) lowest = &rule;
    }
    return named_figure(sheet, field) + " was stored so; " + sources_of(sheet, *lowest) + " gives " +
           group_indian_text(result_of(sheet, *lowest));
}

std::string by_interest(const frmWealthMain& sheet) {
    const int months = months_late(sheet.mskDueDate.text(), sheet.mskRetDate.text());
    const std::string dates = "due " + sheet.mskDueDate.text() + ", filed " + sheet.mskRetDate.text();
    if (months == 0 && sheet.txtInterest.text().empty()) return "Interest: none, " + dates;
    const double interest = sheet.txtWealthTaxLiability.value() * interest_rate_per_month * months;
    const std::string rule = "1 % of " + named_figure(sheet, &Sheet::txtWealthTaxLiability) + " for " +
                             number_text(months) + (months == 1 ? " month, " : " months, ") + dates +
                             " (section 17B)";
    const std::string name = named_figure(sheet, &Sheet::txtInterest);
    for (const double told : {interest, round_half_even(interest)})
        if (number_text(told) == sheet.txtInterest.text()) return name + " = " + rule;
    return name + " was typed or stored; " + rule + " gives " +
           group_indian_text(number_text(round_half_even(interest)));
}

std::string explained(const frmWealthMain& sheet, const widgets::Control& control) {
    if (&control == &sheet.txtInterest) return by_interest(sheet);
    for (const Entry& entry : entries)
        if (&(sheet.*entry.field) == &control)
            return named_figure(sheet, entry.field) + ": " + std::string(entry.source);
    for (const SheetRule& rule : sheet_rules())
        if (&(sheet.*rule.target) == &control) return by_rules(sheet, rule.target);
    return {};
}

} // namespace

std::string explain(const frmWealthMain& sheet, const widgets::Control& control) {
    try {
        return explained(sheet, control);
    } catch (const Failure& overflow) {
        return overflow.what(); // a typed figure beyond what can be reckoned with
    }
}

} // namespace levora::computation
