#include "return_fixture.h"

namespace levora::form_ba::testing {
namespace {

TEST_F(ReturnTest, GridsFeedTheNetWealthAndTheTax) {
    frmFormBA& f = form();
    f.sprImmovableProperty.type(immovable_column::value, 1, "1000.5");
    f.sprImmovableProperty.type(immovable_column::debt, 1, "200");
    f.sprMovableProperty.type(movable_column::value, 3, "50");
    f.sprJewellery.type(jewellery_column::value, 2, "70");
    f.sprAssetInterest.type(firm_column::value, 5, "30");
    f.sprInducibleNetWealth.type(other_person_column::value, 1, "500");
    f.sprInducibleNetWealth.type(other_person_column::debt, 2, "100");
    // 800.5 + 50 + 70 + 30 + (500 - 100)
    EXPECT_EQ(f.txtNETWEALTHInFigure.text(), "1350.5");
    f.txtMovTotalDeposit.type("100");
    f.txtMovAmtOther.type("1,000"); // a comma ends the number
    f.sprScheduleOPR.type(opr_column::cost, 1, "40");
    f.sprScheduleOPR.type(opr_column::cost, 3, "2");
    f.txtTotalLiabilityOtherProp.type("43.5");
    EXPECT_EQ(f.txtTotalValOtherProperty.text() + " " + f.txtNetAmtOthProperty.text(), "143 99.5");
    EXPECT_EQ(f.txtNETWEALTHInFigure.text(), "1350.5") << "other property stays out of it";
    f.txtNetWealthTax.type("abc1,000-x"); // only digits, point and minus pass: "1000-"
    f.txtLateFilingInterest.type("20");
    f.sprScheduleBTP.type(btp_column::amount, 2, "1020");
    EXPECT_EQ(f.txtNetWealthTax.text() + " " + f.txtTotalTaxAndInterest.text() + " " +
                  f.txtTaxInterestPaid.text() + " " + f.txtAmtPayable.text() + " " + f.txtRefundAmount.text(),
              "1000- 1020 1020 0 0");
    f.sprScheduleBTP.type(btp_column::amount, 4, "5");
    EXPECT_EQ(f.txtAmtPayable.text() + " " + f.txtRefundAmount.text(), "0 5");
}

TEST_F(ReturnTest, DebtAboveValueCountsInTheTotalRowOnly) {
    frmFormBA& f = form();
    auto& grid = f.sprInducibleNetWealth;
    grid.type(other_person_column::value, 1, "100");
    grid.type(other_person_column::debt, 1, "130");
    grid.type(other_person_column::value, 2, "50");
    EXPECT_EQ(grid.text(other_person_column::net, 1), "0");
    EXPECT_EQ(cells(grid, total_row).substr(cells(grid, 12).size()), "Total|||150|130|20\n");
    EXPECT_EQ(f.txtInducibleNetWealth.text(), "20");
    EXPECT_FALSE(grid.type(other_person_column::value, total_row, "7")); // the total row is locked
}

TEST_F(ReturnTest, WantedNetAmountsOfAddedRowsAreTyped) {
    auto& grid = form().sprAssetInterest;
    grid.set_active(firm_column::net, 5);
    grid.advance();
    EXPECT_EQ(grid.rows(), 6);
    EXPECT_EQ(grid.active_column(), 1);
    EXPECT_EQ(grid.active_row(), 6);
    grid.type(firm_column::value, 6, "900");
    EXPECT_EQ(grid.text(firm_column::net, 6), "");
    grid.type(firm_column::net, 6, "800");
    EXPECT_EQ(form().txtTotalInterestAmount.text(), "800");
    grid.set_active(1, 2);
    grid.press_key("Ctrl+Insert"); // an inserted row has no formula, and no lock either
    EXPECT_TRUE(grid.type(firm_column::net, 2, "5"));
    EXPECT_EQ(form().txtTotalInterestAmount.text(), "805");
}

struct KeyCase {
    const char *why, *grid;
    int column, row;
    const char* key;
    int then_column, then_row, then_rows;
};
constexpr KeyCase key_cases[] = {
    {"Enter walks the first columns of a property", "sprImmovableProperty", 4, 2, "Enter", 5, 2, 5},
    {"and goes down in the fifth", "sprImmovableProperty", 5, 2, "Enter", 5, 3, 5},
    {"Enter goes from description to value", "sprAssetsClaimedExempt", 1, 1, "Enter", 2, 1, 5},
    {"and from value to the next row", "sprAssetsClaimedExempt", 2, 1, "Enter", 1, 2, 5},
    {"a row can be put in", "sprImmovableProperty", 3, 2, "Ctrl+Insert", 3, 2, 6},
    {"not among movables", "sprMovableProperty", 1, 1, "Ctrl+Insert", 1, 1, 3},
    {"not among jewellery", "sprJewellery", 1, 1, "Ctrl+Insert", 1, 1, 4},
    {"the last cell leads to a new row", "sprScheduleOPR", 12, 5, "Tab", 1, 6, 6},
    {"but not among movables", "sprMovableProperty", 4, 3, "Tab", 4, 3, 3},
    {"nor among other persons", "sprInducibleNetWealth", 6, 13, "Tab", 6, 13, 13},
};

TEST_F(ReturnTest, GridKeys) {
    for (const KeyCase& each : key_cases) {
        SCOPED_TRACE(each.why);
        restart();
        auto& grid = dynamic_cast<widgets::Grid&>(*form().find(each.grid));
        grid.set_active(each.column, each.row);
        grid.press_key(each.key);
        EXPECT_EQ(grid.active_column(), each.then_column);
        EXPECT_EQ(grid.active_row(), each.then_row);
        EXPECT_EQ(grid.rows(), each.then_rows);
    }
}

TEST_F(ReturnTest, DeleteClearsAnOpenCellAndLeavesTheTotal) {
    frmFormBA& f = form();
    f.sprMovableProperty.type(movable_column::value, 1, "90");
    f.sprMovableProperty.set_changed(false);
    f.sprMovableProperty.press_key("Delete");
    EXPECT_EQ(f.sprMovableProperty.text(movable_column::value, 1), "");
    EXPECT_TRUE(f.sprMovableProperty.changed());
    EXPECT_EQ(f.TotalValMovableProp.text(), "90"); // a cell cleared by a key tells nobody
    f.sprJewellery.type(jewellery_column::description, 1, "Ring");
    f.sprJewellery.press_key("Delete"); // no rule of this grid
    EXPECT_EQ(f.sprJewellery.text(jewellery_column::description, 1), "Ring");
}

TEST_F(ReturnTest, WantedOnlyTheFirstNumberMaskKeepsTheFocus) {
    frmFormBA& f = form();
    for (const char* number : {"abcd", "aaapl1234c", ""}) {
        f.mskPAN.type(number);
        EXPECT_EQ(f.mskPAN.leave(), std::string(number) != "abcd");
    }
    f.mskReprPAN.type("abcd");
    EXPECT_TRUE(f.mskReprPAN.leave());
}

TEST_F(ReturnTest, FirstReturnHasOneAnswerAndAnOriginalOneNoReceipt) {
    frmFormBA& f = form();
    f.chkFirstReturnYes.click();
    f.chkFirstReturnNo.click();
    EXPECT_FALSE(f.chkFirstReturnYes.ticked());
    f.chkFirstReturnNo.click(); // brings nothing back
    EXPECT_FALSE(f.chkFirstReturnYes.ticked() || f.chkFirstReturnNo.ticked());
    f.cboReturnType.choose("Revised");
    EXPECT_TRUE(f.txtReceiptNo.type("R1") && f.mskOriFillDate.enabled());
    f.cboReturnType.choose("Original");
    EXPECT_FALSE(f.txtReceiptNo.type("R2") || f.mskOriFillDate.enabled());
    EXPECT_EQ(f.mskOriFillDate.backcolor(), f.txtReceiptNo.backcolor());
}

struct LateCase {
    const char *why, *filed, *start_year;
    int months;
    float rate;
};
constexpr LateCase late_cases[] = {
    {"on the valuation date", "15/03/2014", "2014", 0, 1.0F},
    {"later in the same month", "16/03/2014", "2014", 1, 1.0F},
    {"a later month counts back to nothing", "16/05/2014", "2014", 0, 1.0F},
    {"the older rate", "16/03/2014", "2002", 1, 1.25F},
};

TEST_F(ReturnTest, MonthsLateOfTheOriginalReturn) {
    frmFormBA& f = form();
    f.cboReturnType.choose("Revised");
    f.mskValuationDate.type("15/03/2014");
    for (const LateCase& each : late_cases) {
        SCOPED_TRACE(each.why);
        session_->OriFillMonthsLate = 7;
        session_->AYStartYear = each.start_year;
        f.mskOriFillDate.type(each.filed);
        f.mskOriFillDate.leave();
        EXPECT_EQ(session_->OriFillMonthsLate, each.months);
        EXPECT_EQ(session_->OriFillInterestRate, each.rate);
    }
    f.mskOriFillDate.type("31/02/2014"); // no date: the figures stay
    session_->OriFillMonthsLate = 7;
    f.mskOriFillDate.leave();
    EXPECT_EQ(session_->OriFillMonthsLate, 7);
}

TEST_F(ReturnTest, SheetOfAGridHasHeaderFooterAndFittedColumns) {
    frmFormBA& f = form();
    f.txtFirstName.set_text("Asha");
    f.txtName.set_text("Rao");
    f.sprMovableProperty.type(movable_column::description, 1, "A description longer than its header");
    f.sprMovableProperty.type(movable_column::value, 1, "90");
    ASSERT_EQ(f.sprMovableProperty.right_click(), &f.mnuSpreadContext);
    f.mnuPrintSheet.click();
    const auto sheets = desk_.take_sheets();
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_EQ(sheets[0].header,
              "/n /n Assessee Name : Asha  Rao/n /n A. Y.  : 2014-2015/n /n Wealth Tax : Form "
              "BB/n /n/n/n SCHEDULE- MP Movable Property (Oter than jewellery)/n  /n");
    EXPECT_EQ(sheets[0].footer, "/fz\"9\"/fb1/rTotal: 90");
    EXPECT_EQ(sheets[0].margin_left, 200);
    EXPECT_FALSE(sheets[0].preview);
    EXPECT_EQ(f.sprMovableProperty.column_width(movable_column::description), 36);
    EXPECT_EQ(f.sprScheduleBTP.right_click(), nullptr);

    // Wanted: that of the other persons comes only without a total.
    for (const char* amount : {"", "1"}) {
        f.sprInducibleNetWealth.type(other_person_column::value, 1, amount);
        f.sprInducibleNetWealth.right_click();
        f.mnuPreviewSheet.click();
        EXPECT_EQ(desk_.take_sheets().size(), *amount ? 0U : 1U);
    }
    EXPECT_EQ(message(), "");
}

} // namespace
} // namespace levora::form_ba::testing
