#include "computation/sheet_fixture.h"

namespace levora::computation {

class SheetChainTest : public SheetTest {
protected:
    SheetChainTest() {
        EXPECT_TRUE(start());
        sheet().mskRetDate.set_text("30/09/2014"); // the due date: no interest
    }
};

TEST_F(SheetChainTest, RoundsToHundredAndTaxesTheExcess) {
    struct Case {
        const char *why, *assets, *deemed, *debt, *wealth, *rounded, *taxable, *tax;
    };
    constexpr Case cases[] = {
        {"the worked example", "4512349", "0", "100000.25", "4412348.75", "4412300", "1412300", "14123"},
        {"a remainder of 49 goes down", "3000049", "0", "0", "3000049", "3000000", "0", "0"},
        {"a remainder of 49.4 goes down", "3000049.4", "", "", "3000049.4", "3000000", "0", "0"},
        {"49.5 becomes 50 first", "3000049.5", "0", "", "3000049.5", "3000100", "100", "1"},
        {"50 goes up", "3000050", "0", "", "3000050", "3000100", "100", "1"},
        {"48.5 goes to the even 48", "3000048.5", "0", "", "3000048.5", "3000000", "0", "0"},
        {"exactly the exempted amount", "2999950", "0", "", "2999950", "3000000", "0", "0"},
        {"deemed assets count", "1000000", "2500000", "", "3500000", "3500000", "500000", "5000"},
        {"debt above assets", "4000000", "0", "5000000", "0", "0", "0", "0"},
        {"a comma ends a typed figure", "4000000", "0", "1,00,000", "3999999", "4000000", "1000000", "10000"},
        {"letters are no debt", "4000000", "0", "abc", "4000000", "4000000", "1000000", "10000"},
        {"a debt below 0 adds", "3999900", "0", "-100", "4000000", "4000000", "1000000", "10000"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        sheet().txtDeemedAssets.set_text(each.deemed);
        sheet().txtAssetsSec2ea.set_text(each.assets);
        EXPECT_TRUE(sheet().txtLessDebt.type(each.debt));
        EXPECT_EQ(sheet().txtNetWealth.text(), each.wealth);
        EXPECT_EQ(sheet().txtNetWealthRoundedOff.text(), each.rounded);
        EXPECT_EQ(sheet().txtTaxableWealth.text(), each.taxable);
        EXPECT_EQ(sheet().txtWealthTaxLiability.text(), each.tax);
    }
    sheet().txtExemptedAssets.set_text("500000");
    EXPECT_EQ(sheet().txtWealthTaxLiability.text(), "10000") << "exempted assets are for reporting only";
}

TEST_F(SheetChainTest, PrepaidTaxLeavesBalanceOrRefund) {
    sheet().txtAssetsSec2ea.set_text("3123450"); // rounds up to a tax of 1235
    EXPECT_EQ(balance_and_refund(), "1235/0");
    sheet().txtPrepaidTax.set_text("1000.5");
    EXPECT_EQ(balance_and_refund(), "234.5/0");
    sheet().txtPrepaidTax.set_text("1235");
    EXPECT_EQ(balance_and_refund(), "0/0");
    sheet().txtPrepaidTax.set_text("1300");
    EXPECT_EQ(balance_and_refund(), "0/65");
}

// A tax of 10 with a typed interest of 4 becomes a tax of 14 with none: the total stays 14, so that
// nothing settles the balance of 14 - 5 again.
TEST_F(SheetChainTest, WantedTheRoundedTaxStaysAsBalanceWhereTheTotalKeepsItsText) {
    sheet().txtAssetsSec2ea.set_text("3001000");
    EXPECT_TRUE(sheet().txtInterest.type("4"));
    sheet().txtPrepaidTax.set_text("5");
    EXPECT_EQ(balance_and_refund(), "9/0");
    sheet().txtAssetsSec2ea.set_text("3001400");
    EXPECT_EQ(sheet().txtTaxIntPayable.text(), "14");
    EXPECT_EQ(balance_and_refund(), "14/0");
    EXPECT_TRUE(sheet().txtInterest.type("0.5"));
    sheet().txtTaxableWealth.set_text("1450"); // a tax of 14.5
    EXPECT_EQ(balance_and_refund(), "14/0") << "halves go to the even rupee";
}

TEST_F(SheetChainTest, ComputedFieldsTakeNoTyping) {
    std::string open;
    for (widgets::Control* control : sheet().controls())
        if (auto* field = dynamic_cast<widgets::TextField*>(control); field && field->type("1"))
            open += field->name() + " ";
    EXPECT_EQ(open, "txtLessDebt txtInterest ");
}

TEST_F(SheetChainTest, FiguresThatAreNoneAreReported) {
    sheet().txtNetWealth.set_text("twelve");
    EXPECT_EQ(fresh.boxes(), "13 Type mismatch");
    EXPECT_EQ(fresh.logged(), "frmWealthMain - txtNetWealth_Change");
    sheet().txtNetWealth.set_text("");
    EXPECT_EQ(fresh.boxes(), "") << "an empty text is let pass";
    sheet().txtAssetsSec2ea.set_text(std::string(308, '9'));
    (void)fresh.boxes();
    sheet().txtDeemedAssets.set_text(std::string(308, '9'));
    EXPECT_EQ(fresh.boxes(), "6 Overflow");
}

} // namespace levora::computation
