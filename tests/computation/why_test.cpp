#include "computation/why.h"

#include "computation/sheet_fixture.h"

namespace levora::computation {

class WhyTest : public SheetTest {
protected:
    WhyTest() {
        EXPECT_TRUE(start());
        sheet().txtDeemedAssets.set_text("0");
        sheet().txtAssetsSec2ea.set_text("4512349");
        sheet().txtLessDebt.type("100000.25");
        sheet().mskDueDate.type("31/07/2014"); // filed 15/09/2014
        sheet().txtPrepaidTax.set_text("20000");
    }
};

TEST_F(WhyTest, TellsTheFiguresThatAFigureIsMadeOf) {
    struct Case {
        const widgets::Control& control;
        const char* told;
    };
    const frmWealthMain& s = sheet();
    const Case cases[] = {
        {s.txtNetWealth,
         "Net Wealth 44,12,348.75 = Assets chargeable 45,12,349 less Debt 1,00,000.25 (never below 0)"},
        {s.txtWealthTaxLiability, "Tax on Net Wealth 14,123 = Taxable Wealth 14,12,300 (at 1 % (section 3))"},
        {s.txtInterest, "Interest 282.46 = 1 % of Tax on Net Wealth 14,123 for 2 months, due 31/07/2014, "
                        "filed 15/09/2014 (section 17B)"},
        {s.txtBalanceTaxIntPayable, "Balance Payable 0 = Tax and Interest Payable 14,405.46 less Prepaid Tax "
                                    "and Interest 20,000 (never below 0)"},
        {s.txtTaxRefund, "Refund 5,594.54 = Prepaid Tax and Interest 20,000 less Tax and Interest Payable "
                         "14,405.46 (never below 0)"},
        {s.txtLessDebt, "Debt 1,00,000.25: typed here"},
        {s.txtAssesseeName, ""},
        {s.mskDueDate, ""},
    };
    for (const Case& each : cases)
        EXPECT_EQ(explain(s, each.control), each.told);
}

TEST_F(WhyTest, TellsAFigureThatIsNotTheRules) {
    sheet().txtTotalAssets.set_text("5000000"); // as a stored sheet may have it
    EXPECT_EQ(explain(sheet(), sheet().txtTotalAssets),
              "Total 50,00,000 was stored so; Assets 45,12,349 plus Deemed Assets 0 gives 45,12,349");
    sheet().txtInterest.type("99");
    EXPECT_EQ(
        explain(sheet(), sheet().txtInterest),
        "Interest 99 was typed or stored; 1 % of Tax on Net Wealth 19,000 for 2 months, due 31/07/2014, "
        "filed 15/09/2014 (section 17B) gives 380");
    sheet().txtLessDebt.type("1e999");
    EXPECT_EQ(explain(sheet(), sheet().txtNetWealth), "Overflow");
    sheet().txtLessDebt.type("0");
    sheet().mskRetDate.type("31/07/2014");
    EXPECT_EQ(explain(sheet(), sheet().txtInterest), "Interest: none, due 31/07/2014, filed 31/07/2014");
}

} // namespace levora::computation
