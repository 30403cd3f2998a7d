#include "computation/sheet_fixture.h"

namespace levora::computation {

constexpr const char* stored_row =
    "INSERT INTO NetWealthComputation (AssesseeNo, FY, AssetsValue, DeemedAssetsValue, TotalAssetValue, "
    "ExemptedAssets, AssetChargeableWTax, LessDebt, NetWealth, RoundedNetWealth, TaxableWealth, "
    "TaxOnNetWealth, Audited, DueDate, ReturnDate, Interest, PrepainTaxInterest, BalanceTaxPayable, Refund) "
    "VALUES (17, '2014-2015', 1, 2, 3, 4, 5, Null, 7, 8, 9, 10, 0, '2014-07-30', '2014-12-05', 11.5, 12, "
    "13, 14)";

class SheetStoreTest : public SheetTest {
protected:
    SheetStoreTest() { EXPECT_TRUE(start()); }

    std::string figures() {
        std::string all;
        for (const widgets::TextField* field :
             {&sheet().txtAssetsSec2ea, &sheet().txtDeemedAssets, &sheet().txtTotalAssets,
              &sheet().txtExemptedAssets, &sheet().txtAssetsChargeableToWTax, &sheet().txtLessDebt,
              &sheet().txtNetWealth, &sheet().txtNetWealthRoundedOff, &sheet().txtTaxableWealth,
              &sheet().txtWealthTaxLiability, &sheet().txtInterest, &sheet().txtTaxIntPayable,
              &sheet().txtPrepaidTax, &sheet().txtBalanceTaxIntPayable, &sheet().txtTaxRefund})
            all += field->text() + "|";
        return all;
    }
};

TEST_F(SheetStoreTest, FirstUseStartsAuditedAndFiledToday) {
    EXPECT_EQ(sheet().chkAudited.value(), 1);
    EXPECT_EQ(sheet().mskDueDate.text(), "30/09/2014");
    EXPECT_EQ(sheet().mskRetDate.text(), "15/09/2014");
    EXPECT_EQ(sheet().txtAssetsSec2ea.text() + sheet().txtLessDebt.text() + sheet().txtNetWealth.text(), "");
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT * FROM NetWealthComputation"), "");
}

TEST_F(SheetStoreTest, StoredFiguresStandAtTheEndWhateverTheChainMakesOfThem) {
    fresh.run(Store::tax, stored_row);
    EXPECT_TRUE(start());
    EXPECT_EQ(figures(), "1|2|3|4|5|0|7|8|9|10|11.5|21.5|12|13|14|") << "a Null debt is 0";
    EXPECT_EQ(sheet().chkAudited.value(), 0);
    EXPECT_EQ(sheet().mskDueDate.text(), "30/07/2014");
    EXPECT_EQ(sheet().mskRetDate.text(), "05/12/2014");
}

TEST_F(SheetStoreTest, SaveAddsOneRowAndUpdatesItFromThenOn) {
    fresh.run(Store::tax, "INSERT INTO NetWealthComputation (AssesseeNo, FY, LessDebt) "
                          "VALUES (18, '2014-2015', 99)");
    sheet().txtAssetsSec2ea.set_text("4512349");
    sheet().txtLessDebt.type("1e2 rupees");
    EXPECT_TRUE(sheet().cmdSave1.click());
    sheet().txtLessDebt.type("100000.25");
    EXPECT_TRUE(sheet().cmdSave1.click());
    EXPECT_EQ(fresh.boxes(), "");
    EXPECT_EQ(fresh.rows(Store::tax,
                         "SELECT AssesseeNo, FY, AssetsValue, DeemedAssetsValue, LessDebt, NetWealth, "
                         "RoundedNetWealth, TaxOnNetWealth, Audited, DueDate, ReturnDate, Interest, "
                         "BalanceTaxPayable, Refund FROM NetWealthComputation ORDER BY AssesseeNo"),
              "17|2014-2015|4512349|0|100000.25|4412348.75|4412300|14123|1|2014-09-30|2014-09-15|0|14123|0; "
              "18|2014-2015|Null|Null|99|Null|Null|Null|Null|Null|Null|Null|Null|Null");
}

TEST_F(SheetStoreTest, TheCloseBoxSavesNothingAndClosesTwoConnections) {
    sheet().txtLessDebt.type("222");
    EXPECT_TRUE(fresh.session().screens.close("frmWealthMain"));
    EXPECT_TRUE(fresh.session().screens.ended());
    EXPECT_FALSE(fresh.session().AssesseeDb.is_open() || fresh.session().TaxDb.is_open());
    EXPECT_TRUE(fresh.session().ITDb.is_open() && fresh.session().FormsDb.is_open());
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT * FROM NetWealthComputation"), "");
}

TEST_F(SheetStoreTest, ADateThatIsNoneKeepsTheRowFromTheStoreAndExitGoesOn) {
    sheet().mskDueDate.type("3009");
    sheet().sprSATax.type(PrepaidColumn::amount, 1, "500");
    EXPECT_TRUE(sheet().cmdMainExit.click());
    EXPECT_EQ(fresh.boxes(), "13 column \"DueDate\": not a date: \"30/09/____\"");
    EXPECT_EQ(fresh.logged(), "frmWealthMain - SaveWealthTaxComputation");
    EXPECT_TRUE(fresh.session().screens.ended());
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT * FROM NetWealthComputation"), "");
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT Amount FROM PrePaidTaxes"), "500");
}

TEST_F(SheetStoreTest, ASaveThatARowBreaksOffLeavesTheRowsAsFarAsTheyWent) {
    for (int row = 1; row <= 4; ++row)
        sheet().sprSATax.type(PrepaidColumn::amount, row, std::to_string(10 + row));
    fresh.run(Store::tax, "CREATE TRIGGER no_13 BEFORE INSERT ON PrePaidTaxes WHEN NEW.Amount = 13 "
                          "BEGIN SELECT RAISE(ABORT, 'no thirteen'); END");
    sheet().cmdSave1.click();
    EXPECT_NE(fresh.boxes().find("no thirteen"), std::string::npos);
    EXPECT_EQ(fresh.rows(Store::tax, "SELECT Amount FROM PrePaidTaxes"), "11; 12");
}

TEST_F(SheetStoreTest, AYearPickedAgainLosesWhatWasNotSaved) {
    sheet().txtAssetsSec2ea.set_text("4512349");
    sheet().sprEnclosure.type(1, 1, "Report");
    sheet().mskDueDate.type("01/08/2014");
    EXPECT_TRUE(sheet().cboFY.choose(0));
    EXPECT_EQ(sheet().txtAssetsSec2ea.text(), "");
    EXPECT_EQ(data_of(sheet().sprEnclosure), "");
    EXPECT_EQ(sheet().txtExemptedAmount.text(), "3000000");
    EXPECT_EQ(sheet().mskDueDate.text(), "01/08/2014") << "the tick stayed: only a year table would tell";
}

} // namespace levora::computation
