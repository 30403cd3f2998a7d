#include "computation/sheet_rules.h"

#include "session/common_services.h"

#include <array>
#include <initializer_list>
#include <utility>

namespace levora::computation {

namespace {

using Sheet = frmWealthMain;

constexpr double tax_rate = 0.01; // section 3(2): 1 % of the excess over the exempted amount

double as_it_is(double figure, double) {
    return figure;
}
double sum(double first, double second) {
    return first + second;
}
double excess(double first, double second) {
    const double rest = first - second;
    return rest > 0 ? rest : 0;
}
double to_hundred(double figure, double) {
    return session::RoundToHundred(figure);
}
double tax_on(double figure, double) {
    return figure * tax_rate;
}
double to_whole(double figure, double) {
    return round_half_even(figure);
}

// clang-format off
constexpr SheetRule total_assets{
    &Sheet::txtTotalAssets, &Sheet::txtAssetsSec2ea, "plus", &Sheet::txtDeemedAssets, sum};
constexpr SheetRule chargeable_assets{
    .target = &Sheet::txtAssetsChargeableToWTax, .first = &Sheet::txtTotalAssets, .reckon = as_it_is,
    .remark = "exempted assets are reported only and not taken off"};
constexpr SheetRule net_wealth{
    &Sheet::txtNetWealth, &Sheet::txtAssetsChargeableToWTax, "less", &Sheet::txtLessDebt, excess,
    "never below 0"};
constexpr SheetRule rounded_wealth{
    .target = &Sheet::txtNetWealthRoundedOff, .first = &Sheet::txtNetWealth, .reckon = to_hundred,
    .remark = "to the nearest multiple of 100, a remainder of 50 upwards (section 44C)",
    .reading = Reading::whole_text};
constexpr SheetRule taxable_wealth{
    &Sheet::txtTaxableWealth, &Sheet::txtNetWealthRoundedOff, "less", &Sheet::txtExemptedAmount, excess,
    "never below 0"};
constexpr SheetRule wealth_tax{
    .target = &Sheet::txtWealthTaxLiability, .first = &Sheet::txtTaxableWealth, .reckon = tax_on,
    .remark = "at 1 % (section 3)"};
constexpr SheetRule tax_in_whole_rupees{
    .target = &Sheet::txtBalanceTaxIntPayable, .first = &Sheet::txtWealthTaxLiability, .reckon = to_whole,
    .remark = "to a whole rupee, halves to the even one"};
constexpr SheetRule tax_and_interest{
    &Sheet::txtTaxIntPayable, &Sheet::txtWealthTaxLiability, "plus", &Sheet::txtInterest, sum};
constexpr SheetRule balance{
    &Sheet::txtBalanceTaxIntPayable, &Sheet::txtTaxIntPayable, "less", &Sheet::txtPrepaidTax, excess,
    "never below 0"};
constexpr SheetRule refund{
    &Sheet::txtTaxRefund, &Sheet::txtPrepaidTax, "less", &Sheet::txtTaxIntPayable, excess,
    "never below 0"};

constexpr SheetRule all_rules[] = {
    total_assets, chargeable_assets, net_wealth, rounded_wealth, taxable_wealth, wealth_tax,
    tax_in_whole_rupees, tax_and_interest, balance, refund};

constexpr std::pair<SheetField, std::string_view> short_names[] = {
    {&Sheet::txtAssetsSec2ea,           "Assets"},
    {&Sheet::txtDeemedAssets,           "Deemed Assets"},
    {&Sheet::txtTotalAssets,            "Total"},
    {&Sheet::txtExemptedAssets,         "Exempted Assets"},
    {&Sheet::txtAssetsChargeableToWTax, "Assets chargeable"},
    {&Sheet::txtLessDebt,               "Debt"},
    {&Sheet::txtNetWealth,              "Net Wealth"},
    {&Sheet::txtNetWealthRoundedOff,    "Net Wealth rounded off"},
    {&Sheet::txtExemptedAmount,         "Exempted Amount"},
    {&Sheet::txtTaxableWealth,          "Taxable Wealth"},
    {&Sheet::txtWealthTaxLiability,     "Tax on Net Wealth"},
    {&Sheet::txtInterest,               "Interest"},
    {&Sheet::txtTaxIntPayable,          "Tax and Interest Payable"},
    {&Sheet::txtPrepaidTax,             "Prepaid Tax and Interest"},
    {&Sheet::txtBalanceTaxIntPayable,   "Balance Payable"},
    {&Sheet::txtTaxRefund,              "Refund"},
};
// clang-format on

double figure_of(const widgets::TextField& field, Reading reading) {
    return reading == Reading::whole_text ? to_double(field.text()) : field.value();
}

void on_change(std::initializer_list<widgets::TextField*> fields, const std::function<void()>& handler) {
    for (widgets::TextField* field : fields)
        field->on_change = handler;
}

} // namespace

std::span<const SheetRule> sheet_rules() {
    return all_rules;
}

std::string_view short_name(SheetField field) {
    for (const auto& [named, name] : short_names)
        if (named == field) return name;
    return {};
}

void frmWealthMain::work_out(const SheetRule& rule) {
    const double first = figure_of(this->*rule.first, rule.reading);
    const double second = rule.second ? figure_of(this->*rule.second, rule.reading) : 0;
    (this->*rule.target).set_value(rule.reckon(first, second));
}

void frmWealthMain::connect_chain() {
    on_change({&txtAssetsSec2ea, &txtDeemedAssets}, [this] { work_out(total_assets); });
    // Wanted: exempted assets are for reporting only; their change rewrites the same figure.
    on_change({&txtTotalAssets, &txtExemptedAssets}, [this] { work_out(chargeable_assets); });
    on_change({&txtAssetsChargeableToWTax, &txtLessDebt}, [this] { work_out(net_wealth); });
    on_change({&txtNetWealth}, [this] {
        if (!txtNetWealth.text().empty()) work_out(rounded_wealth);
    });
    on_change({&txtNetWealthRoundedOff, &txtExemptedAmount}, [this] { work_out(taxable_wealth); });
    on_change({&txtTaxableWealth}, [this] { work_out(wealth_tax); });
    on_change({&txtWealthTaxLiability}, [this] {
        // Wanted: the rounded balance stays on view where the last line leaves its text as it was.
        work_out(tax_in_whole_rupees);
        mskRetDate_Change();
        work_out(tax_and_interest);
    });
    on_change({&txtInterest}, [this] { work_out(tax_and_interest); });
    on_change({&txtTaxIntPayable, &txtPrepaidTax}, [this] {
        work_out(balance);
        work_out(refund);
    });
}

} // namespace levora::computation
