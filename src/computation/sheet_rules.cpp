#include "computation/due_date.h"
#include "computation/hand_overs.h"
#include "computation/wealth_sheet.h"

#include "session/common_services.h"

#include <initializer_list>

namespace levora::computation {

using widgets::Reading;
using widgets::Reckoning;
using widgets::Rule;
using widgets::Write;

namespace {

using Inputs = std::span<const double>;

constexpr double tax_rate = 0.01; // section 3(2): 1 % of the excess over the exempted amount

double excess_of(Inputs in) {
    const double rest = in[0] - in[1];
    return rest > 0 ? rest : 0;
}
double to_hundred(Inputs in) {
    return session::RoundToHundred(in[0]);
}
double tax_on(Inputs in) {
    return in[0] * tax_rate;
}
double to_whole(Inputs in) {
    return round_half_even(in[0]);
}
double interest_of(Inputs tax_and_months) {
    const double months = tax_and_months[1];
    return months > 0 ? tax_and_months[0] * interest_rate_per_month * months : widgets::no_figure;
}
double rounded_interest_of(Inputs tax_and_months) {
    return round_half_even(interest_of(tax_and_months));
}

constexpr std::string_view interest_words = "1 % of $1 for $2, due $3, filed $4";

// clang-format off
constexpr Reckoning excess{excess_of, "$1 less $2", "never below 0"};
constexpr Reckoning not_reduced{widgets::first_of, "$1", "exempted assets are reported only and not taken off"};
constexpr Reckoning rounded_off{to_hundred, "$1", "to the nearest multiple of 100, a remainder of 50 upwards (section 44C)"};
constexpr Reckoning tax{tax_on, "$1", "at 1 % (section 3)"};
constexpr Reckoning whole_rupees{to_whole, "$1", "to a whole rupee, halves to the even one"};
constexpr Reckoning exact_interest{interest_of, interest_words, "section 17B"};
constexpr Reckoning rounded_interest{rounded_interest_of, interest_words, "section 17B"};
// clang-format on

double months_of_sheet(const widgets::Form& form) {
    const auto& sheet = static_cast<const frmWealthMain&>(form);
    return months_late(sheet.mskDueDate.text(), sheet.mskRetDate.text());
}

void on_change(std::initializer_list<widgets::TextField*> fields, const std::function<void()>& handler) {
    for (widgets::TextField* field : fields)
        field->on_change = handler;
}

} // namespace

void frmWealthMain::connect_chain() {
    const Rule& total = rules.add({txtTotalAssets, {txtAssetsSec2ea, txtDeemedAssets}, widgets::sum_formula});
    const Rule& chargeable = rules.add({txtAssetsChargeableToWTax, {txtTotalAssets}, not_reduced});
    const Rule& net = rules.add({txtNetWealth, {txtAssetsChargeableToWTax, txtLessDebt}, excess});
    const Rule& rounded =
        rules.add({txtNetWealthRoundedOff, {{txtNetWealth, Reading::whole_text}}, rounded_off});
    const Rule& taxable = rules.add({txtTaxableWealth, {txtNetWealthRoundedOff, txtExemptedAmount}, excess});
    const Rule& liability = rules.add({txtWealthTaxLiability, {txtTaxableWealth}, tax});
    const Rule& tax_alone = rules.add({txtBalanceTaxIntPayable, {txtWealthTaxLiability}, whole_rupees});
    const Rule& payable =
        rules.add({txtTaxIntPayable, {txtWealthTaxLiability, txtInterest}, widgets::sum_formula});
    const Rule& balance = rules.add({txtBalanceTaxIntPayable, {txtTaxIntPayable, txtPrepaidTax}, excess});
    const Rule& refund = rules.add({txtTaxRefund, {txtPrepaidTax, txtTaxIntPayable}, excess});

    on_change({&txtAssetsSec2ea, &txtDeemedAssets}, [&total] { total.work_out(); });
    // Wanted: exempted assets are for reporting only; their change rewrites the same figure.
    on_change({&txtTotalAssets, &txtExemptedAssets}, [&chargeable] { chargeable.work_out(); });
    on_change({&txtAssetsChargeableToWTax, &txtLessDebt}, [&net] { net.work_out(); });
    on_change({&txtNetWealth}, [this, &rounded] {
        if (!txtNetWealth.text().empty()) rounded.work_out();
    });
    on_change({&txtNetWealthRoundedOff, &txtExemptedAmount}, [&taxable] { taxable.work_out(); });
    on_change({&txtTaxableWealth}, [&liability] { liability.work_out(); });
    on_change({&txtWealthTaxLiability}, [this, &tax_alone, &payable] {
        // Wanted: the rounded balance stays on view where the last line leaves its text as it was.
        tax_alone.work_out();
        mskRetDate_Change();
        payable.work_out();
    });
    on_change({&txtInterest}, [&payable] { payable.work_out(); });
    on_change({&txtTaxIntPayable, &txtPrepaidTax}, [&balance, &refund] {
        balance.work_out();
        refund.work_out();
    });
}

void frmWealthMain::add_other_rules() {
    const std::vector<widgets::Source> interest_sources{txtWealthTaxLiability,
                                                        {mskDueDate, months_of_sheet, "month"},
                                                        {mskDueDate, Reading::shown},
                                                        {mskRetDate, Reading::shown}};
    interest_unrounded_ = &rules.add({txtInterest, interest_sources, exact_interest, Write::figure_or_empty});
    interest_rounded_ = &rules.add({txtInterest, interest_sources, rounded_interest, Write::figure_or_empty});
    prepaid_total_ = &rules.add({.target = txtPrepaidTax,
                                 .sources = {column_of(sprSATax, PrepaidColumn::amount)},
                                 .how = widgets::running_sum,
                                 .otherwise = "was stored so, or waits for the next amount typed"});

    rules.tell(txtAssetsSec2ea, assets_to_sheet);
    rules.tell(txtDeemedAssets, deemed_to_sheet);
    rules.tell(txtExemptedAssets, exempted_to_sheet);
    rules.tell(txtLessDebt, "typed here");
    rules.tell(txtExemptedAmount, "the same for every assessee and year (section 3)");
    rules.tell(txtAssesseeName, "as the assessee master has it");

    rules.call(txtAssetsChargeableToWTax, "Assets chargeable");
    rules.call(txtLessDebt, "Debt");
    rules.call(txtNetWealthRoundedOff, "Net Wealth rounded off");
    rules.call(txtWealthTaxLiability, "Tax on Net Wealth");
    rules.call(txtInterest, "Interest");
    rules.call(txtPrepaidTax, "Prepaid Tax and Interest");
    rules.call(txtBalanceTaxIntPayable, "Balance Payable");
    rules.call(txtTaxRefund, "Refund");

    rules.open_with({&chkAudited, &mskDueDate, &mskRetDate}, cmdInterest);
    rules.open_with({&sprSATax}, cmdSATaxPayable);
}

} // namespace levora::computation
