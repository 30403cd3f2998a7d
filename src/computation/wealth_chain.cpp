#include "computation/wealth_sheet.h"

namespace levora::computation {

namespace {

constexpr double tax_rate = 0.01; // 1 % on the net wealth above the exempted amount

double as_it_is(double sum) {
    return sum;
}
double not_below_nought(double sum) {
    return sum < 0 ? 0 : sum;
}
double tax_of(double taxable) {
    return taxable * tax_rate;
}

using Sheet = frmWealthMain;

} // namespace

std::span<const SheetLink> sheet_links() {
    static const std::vector<SheetLink> links{
        {&Sheet::txtTotalAssets, {{&Sheet::txtAssetsSec2ea, 1}, {&Sheet::txtDeemedAssets, 1}}, as_it_is, ""},
        // Wanted: the exempted assets are not taken off; they are for reporting only.
        {&Sheet::txtAssetsChargeableToWTax, {{&Sheet::txtTotalAssets, 1}}, as_it_is, ""},
        {&Sheet::txtNetWealth,
         {{&Sheet::txtAssetsChargeableToWTax, 1}, {&Sheet::txtLessDebt, -1}},
         not_below_nought,
         "not below 0"},
        {&Sheet::txtNetWealthRoundedOff,
         {{&Sheet::txtNetWealth, 1}},
         session::RoundToHundred,
         "rounded to the nearest hundred (Sec. 44C)"},
        {&Sheet::txtTaxableWealth,
         {{&Sheet::txtNetWealthRoundedOff, 1}, {&Sheet::txtExemptedAmount, -1}},
         not_below_nought,
         "not below 0"},
        {&Sheet::txtWealthTaxLiability, {{&Sheet::txtTaxableWealth, 1}}, tax_of, "1 % of it"},
        {&Sheet::txtTaxIntPayable,
         {{&Sheet::txtWealthTaxLiability, 1}, {&Sheet::txtInterest, 1}},
         as_it_is,
         ""},
        {&Sheet::txtBalanceTaxIntPayable,
         {{&Sheet::txtTaxIntPayable, 1}, {&Sheet::txtPrepaidTax, -1}},
         not_below_nought,
         "not below 0"},
        {&Sheet::txtTaxRefund,
         {{&Sheet::txtPrepaidTax, 1}, {&Sheet::txtTaxIntPayable, -1}},
         not_below_nought,
         "not below 0"},
    };
    return links;
}

void frmWealthMain::follow(widgets::TextField frmWealthMain::*target) {
    for (const SheetLink& link : sheet_links()) {
        if (link.target != target) continue;
        double sum = 0;
        for (const SheetTerm& term : link.sources) {
            const double value = (this->*term.field).value();
            sum = term.sign < 0 ? sum - value : sum + value;
        }
        (this->*target).set_value(link.shape(sum));
        return;
    }
}

void frmWealthMain::connect_chain() {
    const auto on_change = [](std::initializer_list<widgets::TextField*> fields,
                              const std::function<void()>& handler) {
        for (widgets::TextField* field : fields)
            field->on_change = handler;
    };
    on_change({&txtAssetsSec2ea, &txtDeemedAssets}, [this] { follow(&Sheet::txtTotalAssets); });
    on_change({&txtTotalAssets, &txtExemptedAssets}, [this] { follow(&Sheet::txtAssetsChargeableToWTax); });
    on_change({&txtAssetsChargeableToWTax, &txtLessDebt}, [this] { follow(&Sheet::txtNetWealth); });
    on_change({&txtNetWealth}, [this] { txtNetWealth_Change(); });
    on_change({&txtNetWealthRoundedOff, &txtExemptedAmount}, [this] { follow(&Sheet::txtTaxableWealth); });
    on_change({&txtTaxableWealth}, [this] { follow(&Sheet::txtWealthTaxLiability); });
    on_change({&txtWealthTaxLiability}, [this] { txtWealthTaxLiability_Change(); });
    on_change({&txtInterest}, [this] { follow(&Sheet::txtTaxIntPayable); });
    on_change({&txtTaxIntPayable, &txtPrepaidTax}, [this] { settle_balance(); });
}

void frmWealthMain::txtNetWealth_Change() {
    if (txtNetWealth.text().empty()) return;
    (void)to_double(txtNetWealth.text()); // strict: a stored text that is no number is told
    follow(&Sheet::txtNetWealthRoundedOff);
}

void frmWealthMain::txtWealthTaxLiability_Change() {
    // Wanted: this balance stays on view only where the total below keeps its text.
    txtBalanceTaxIntPayable.set_value(round_half_even(txtWealthTaxLiability.value()));
    mskRetDate_Change();
    follow(&Sheet::txtTaxIntPayable);
}

void frmWealthMain::settle_balance() {
    if (txtTaxIntPayable.value() - txtPrepaidTax.value() > 0) {
        follow(&Sheet::txtBalanceTaxIntPayable);
        txtTaxRefund.set_text("0");
    } else {
        follow(&Sheet::txtTaxRefund);
        txtBalanceTaxIntPayable.set_text("0");
    }
}

} // namespace levora::computation
