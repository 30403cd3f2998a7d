#include "return/return_screen.h"

#include <initializer_list>

namespace levora::form_ba {

using widgets::as_it_is;
using widgets::Grid;
using widgets::Rule;
using widgets::TextField;
using widgets::Write;

namespace {

// Fields whose change, each of them, runs the same step.
void on_change(std::initializer_list<TextField*> fields, const std::function<void()>& step) {
    for (TextField* field : fields)
        field->on_change = step;
}

double costs_of_opr(const widgets::Form& form) {
    return static_cast<const frmFormBA&>(form).CostOfOtherProperties;
}

constexpr widgets::Reckoning other_properties{
    widgets::sum_of, "$1 plus $2 plus $3 plus $4 plus $5 plus $6 from the costs of Schedule OPR"};

// Where the words of the screen are the same for several fields, or too long.
struct Name {
    TextField frmFormBA::*field;
    std::string_view name;
};
constexpr Name names[] = {
    {&frmFormBA::txtAmtBTPTotal, "Total of tax and interest paid"},
    {&frmFormBA::txtAggregateImmovableProperty, "Total of the immovable property"},
    {&frmFormBA::TotalValMovableProp, "Total of the movable property"},
    {&frmFormBA::txtJewlNetAmtTotal, "Total of the jewellery"},
    {&frmFormBA::txtTotalInterestAmount, "Total of the interest in firms"},
    {&frmFormBA::txtAggValueOfInterest, "Aggregate value of interest in firms"},
    {&frmFormBA::txtMovTotalDeposit, "Deposits"},
    {&frmFormBA::txtMovAmtBondInvestment, "Bonds and shares"},
    {&frmFormBA::txtMovAmtPostal, "Postal savings and insurance"},
    {&frmFormBA::txtMovAmtFirm, "Loans and advances"},
    {&frmFormBA::txtMovAmtOther, "Other property"},
};

} // namespace

// Every step reads leading numbers and writes plain ones; nothing is rounded.
void frmFormBA::connect_chain() {
    add_totals();
    sprScheduleBTP.on_change = [this](int, int) { sprScheduleBTP_Change(); };
    sprImmovableProperty.on_change = [this](int, int) { sprImmovableProperty_Change(); };
    sprMovableProperty.on_change = [this](int, int) { sprMovableProperty_Change(); };
    sprJewellery.on_change = [this](int, int) { sprJewellery_Change(); };
    sprAssetInterest.on_change = [this](int, int) { sprAssetInterest_Change(); };
    sprInducibleNetWealth.on_change = [this](int, int) { sprInducibleNetWealth_Change(); };
    sprScheduleOPR.on_change = [this](int, int) { sprScheduleOPR_Change(); };

    const auto copy = [this](TextField& from, TextField& to, Write write) {
        const Rule& rule = rules.add({.target = to, .sources = {from}, .how = as_it_is, .write = write});
        on_change({&from}, [&rule] { rule.work_out(); });
    };
    copy(txtAmtBTPTotal, txtTaxInterestPaid, Write::figure);
    copy(txtAggregateImmovableProperty, txtAggImmovableProperty, Write::figure);
    copy(TotalValMovableProp, txtAggMovableProperty, Write::figure);
    copy(txtJewlNetAmtTotal, txtAggrValOfJewellery, Write::figure);
    copy(txtTotalInterestAmount, txtAggValueOfInterest, Write::text);

    // Schedule OPR does not enter the net wealth.
    const Rule& net_wealth = rules.add({txtNETWEALTHInFigure,
                                        {txtAggImmovableProperty, txtAggMovableProperty,
                                         txtAggrValOfJewellery, txtInducibleNetWealth, txtAggValueOfInterest},
                                        widgets::sum_formula});
    on_change({&txtAggImmovableProperty, &txtAggMovableProperty, &txtAggrValOfJewellery,
               &txtInducibleNetWealth, &txtAggValueOfInterest},
              [&net_wealth] { net_wealth.work_out(); });

    other_property_ = &rules.add({txtTotalValOtherProperty,
                                  {txtMovTotalDeposit,
                                   txtMovAmtBondInvestment,
                                   txtMovAmtPostal,
                                   txtMovAmtFirm,
                                   txtMovAmtOther,
                                   {sprScheduleOPR, costs_of_opr}},
                                  other_properties});
    on_change(
        {&txtMovTotalDeposit, &txtMovAmtBondInvestment, &txtMovAmtPostal, &txtMovAmtFirm, &txtMovAmtOther},
        [this] { other_property_->work_out(); });
    const Rule& net_other = rules.add({txtNetAmtOthProperty,
                                       {txtTotalValOtherProperty, txtTotalLiabilityOtherProp},
                                       widgets::difference_formula});
    on_change({&txtTotalValOtherProperty, &txtTotalLiabilityOtherProp},
              [&net_other] { net_other.work_out(); });

    const Rule& tax_and_interest =
        rules.add({txtTotalTaxAndInterest, {txtNetWealthTax, txtLateFilingInterest}, widgets::sum_formula});
    on_change({&txtNetWealthTax, &txtLateFilingInterest},
              [&tax_and_interest] { tax_and_interest.work_out(); });
    const Rule& payable = rules.add(
        {txtAmtPayable, {txtTotalTaxAndInterest, txtTaxInterestPaid}, widgets::floored_difference_formula});
    const Rule& refund = rules.add(
        {txtRefundAmount, {txtTaxInterestPaid, txtTotalTaxAndInterest}, widgets::floored_difference_formula});
    on_change({&txtTotalTaxAndInterest, &txtTaxInterestPaid}, [&payable, &refund] {
        // The one that is due first, the 0 behind it.
        const bool is_due = payable.figure() > 0;
        (is_due ? payable : refund).work_out();
        (is_due ? refund : payable).work_out();
    });
}

void frmFormBA::add_totals() {
    const auto total_of = [this](TextField& total, Grid& grid, int column) {
        return &rules.add({.target = total,
                           .sources = {column_of(grid, column)},
                           .how = widgets::running_sum,
                           .otherwise = "was typed or loaded, or waits for the next change of a row"});
    };
    btp_total_ = total_of(txtAmtBTPTotal, sprScheduleBTP, btp_column::amount);
    immovable_total_ = total_of(txtAggregateImmovableProperty, sprImmovableProperty, immovable_column::net);
    movable_total_ = total_of(TotalValMovableProp, sprMovableProperty, movable_column::net);
    jewellery_total_ = total_of(txtJewlNetAmtTotal, sprJewellery, jewellery_column::net);
    firms_total_ = total_of(txtTotalInterestAmount, sprAssetInterest, firm_column::net);
    other_persons_ = &rules.add({txtInducibleNetWealth,
                                 {widgets::cell(sprInducibleNetWealth, other_person_column::net, total_row)},
                                 as_it_is});
    for (const auto& [field, name] : names)
        rules.call(this->*field, name);
}

void frmFormBA::sprScheduleBTP_Change() {
    btp_total_->work_out_step_by_step();
}

void frmFormBA::sprImmovableProperty_Change() {
    immovable_total_->work_out_step_by_step();
}

void frmFormBA::sprMovableProperty_Change() {
    movable_total_->work_out_step_by_step();
}

void frmFormBA::sprJewellery_Change() {
    jewellery_total_->work_out_step_by_step();
}

void frmFormBA::sprAssetInterest_Change() {
    firms_total_->work_out_step_by_step();
}

void frmFormBA::sprInducibleNetWealth_Change() {
    other_persons_->work_out();
}

void frmFormBA::sprScheduleOPR_Change() {
    CostOfOtherProperties = 0;
    for (int row = 1; row <= sprScheduleOPR.data_rows(); ++row)
        CostOfOtherProperties += sprScheduleOPR.value(opr_column::cost, row);
    other_property_->work_out();
}

} // namespace levora::form_ba
