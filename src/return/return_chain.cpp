#include "return/return_screen.h"

#include <initializer_list>

namespace levora::form_ba {

using widgets::Grid;
using widgets::TextField;

namespace {

// Fields whose change, each of them, runs the same step.
void on_change(std::initializer_list<TextField*> fields, const std::function<void()>& step) {
    for (TextField* field : fields)
        field->on_change = step;
}

// A total starts at "0" and grows row by row through its text, so what hangs on it follows each row.
void sum_into(TextField& total, const Grid& grid, int column) {
    total.set_text("0");
    const int last = grid.data_rows();
    for (int row = 1; row <= last; ++row)
        total.set_value(total.value() + grid.value(column, row));
}

} // namespace

// Every step reads leading numbers and writes plain ones; nothing is rounded.
void frmFormBA::connect_chain() {
    sprScheduleBTP.on_change = [this](int, int) { sprScheduleBTP_Change(); };
    sprImmovableProperty.on_change = [this](int, int) { sprImmovableProperty_Change(); };
    sprMovableProperty.on_change = [this](int, int) { sprMovableProperty_Change(); };
    sprJewellery.on_change = [this](int, int) { sprJewellery_Change(); };
    sprAssetInterest.on_change = [this](int, int) { sprAssetInterest_Change(); };
    sprInducibleNetWealth.on_change = [this](int, int) { sprInducibleNetWealth_Change(); };
    sprScheduleOPR.on_change = [this](int, int) { sprScheduleOPR_Change(); };

    on_change({&txtAmtBTPTotal}, [this] { txtTaxInterestPaid.set_value(txtAmtBTPTotal.value()); });
    on_change({&txtAggregateImmovableProperty},
              [this] { txtAggImmovableProperty.set_value(txtAggregateImmovableProperty.value()); });
    on_change({&TotalValMovableProp},
              [this] { txtAggMovableProperty.set_value(TotalValMovableProp.value()); });
    on_change({&txtJewlNetAmtTotal}, [this] { txtAggrValOfJewellery.set_value(txtJewlNetAmtTotal.value()); });
    on_change({&txtTotalInterestAmount},
              [this] { txtAggValueOfInterest.set_text(txtTotalInterestAmount.text()); });

    // Schedule OPR does not enter the net wealth.
    on_change({&txtAggImmovableProperty, &txtAggMovableProperty, &txtAggrValOfJewellery,
               &txtInducibleNetWealth, &txtAggValueOfInterest},
              [this] {
                  txtNETWEALTHInFigure.set_value(
                      txtAggImmovableProperty.value() + txtAggMovableProperty.value() +
                      txtAggrValOfJewellery.value() + txtInducibleNetWealth.value() +
                      txtAggValueOfInterest.value());
              });

    on_change(
        {&txtMovTotalDeposit, &txtMovAmtBondInvestment, &txtMovAmtPostal, &txtMovAmtFirm, &txtMovAmtOther},
        [this] { total_other_property(); });
    on_change({&txtTotalValOtherProperty, &txtTotalLiabilityOtherProp}, [this] {
        txtNetAmtOthProperty.set_value(txtTotalValOtherProperty.value() - txtTotalLiabilityOtherProp.value());
    });

    on_change({&txtNetWealthTax, &txtLateFilingInterest}, [this] {
        txtTotalTaxAndInterest.set_value(txtNetWealthTax.value() + txtLateFilingInterest.value());
    });
    on_change({&txtTotalTaxAndInterest, &txtTaxInterestPaid}, [this] {
        const double due = txtTotalTaxAndInterest.value() - txtTaxInterestPaid.value();
        if (due > 0) {
            txtAmtPayable.set_value(due);
            txtRefundAmount.set_text("0");
        } else {
            txtRefundAmount.set_value(txtTaxInterestPaid.value() - txtTotalTaxAndInterest.value());
            txtAmtPayable.set_text("0");
        }
    });
}

void frmFormBA::total_other_property() {
    txtTotalValOtherProperty.set_value(txtMovTotalDeposit.value() + txtMovAmtBondInvestment.value() +
                                       txtMovAmtPostal.value() + txtMovAmtFirm.value() +
                                       txtMovAmtOther.value() + CostOfOtherProperties);
}

void frmFormBA::sprScheduleBTP_Change() {
    sum_into(txtAmtBTPTotal, sprScheduleBTP, btp_column::amount);
}

void frmFormBA::sprImmovableProperty_Change() {
    sum_into(txtAggregateImmovableProperty, sprImmovableProperty, immovable_column::net);
}

void frmFormBA::sprMovableProperty_Change() {
    sum_into(TotalValMovableProp, sprMovableProperty, movable_column::net);
}

void frmFormBA::sprJewellery_Change() {
    sum_into(txtJewlNetAmtTotal, sprJewellery, jewellery_column::net);
}

void frmFormBA::sprAssetInterest_Change() {
    sum_into(txtTotalInterestAmount, sprAssetInterest, firm_column::net);
}

void frmFormBA::sprInducibleNetWealth_Change() {
    txtInducibleNetWealth.set_value(sprInducibleNetWealth.value(other_person_column::net, total_row));
}

void frmFormBA::sprScheduleOPR_Change() {
    CostOfOtherProperties = 0;
    for (int row = 1; row <= sprScheduleOPR.data_rows(); ++row)
        CostOfOtherProperties += sprScheduleOPR.value(opr_column::cost, row);
    total_other_property();
}

} // namespace levora::form_ba
