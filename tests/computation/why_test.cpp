#include "computation/sheet_fixture.h"
#include "widgets/explanation.h"

namespace levora::computation {

class WhyTest : public SheetTest {
protected:
    WhyTest() {
        EXPECT_TRUE(start());
        sheet().txtDeemedAssets.set_text("0");
        sheet().txtAssetsSec2ea.set_text("4512349");
        sheet().txtLessDebt.type("100000.25");
        sheet().mskDueDate.type("31/07/2014"); // filed 15/09/2014
        sheet().sprSATax.type(PrepaidColumn::amount, 1, "15000");
        sheet().sprSATax.type(PrepaidColumn::amount, 2, "5000");
    }
    static std::string why(const widgets::Control& control) { return explain(control).sentence; }
    // The places that the sentence names, and what brings them into view.
    static std::string ways(const widgets::Control& control) {
        std::string all;
        for (const widgets::Explanation::Way& way : explain(control).ways)
            all += (all.empty() ? "" : ", ") + way.screen + "." + way.control +
                   (way.row > 0 ? "(" + number_text(way.column) + "," + number_text(way.row) + ")" : "") +
                   (way.opener.control.empty() ? "" : " by " + way.opener.control);
        return all;
    }
};

TEST_F(WhyTest, TellsTheFiguresThatAFigureIsMadeOfAndTheWayToThem) {
    struct Case {
        const widgets::Control& control;
        const char *told, *ways;
    };
    const frmWealthMain& s = sheet();
    const Case cases[] = {
        {s.txtNetWealth,
         "Net Wealth 44,12,348.75 = Assets chargeable 45,12,349 less Debt 1,00,000.25 (never below 0)",
         "frmWealthMain.txtAssetsChargeableToWTax, frmWealthMain.txtLessDebt"},
        {s.txtWealthTaxLiability, "Tax on Net Wealth 14,123 = Taxable Wealth 14,12,300 (at 1 % (section 3))",
         "frmWealthMain.txtTaxableWealth"},
        {s.txtInterest,
         "Interest 282.46 = 1 % of Tax on Net Wealth 14,123 for 2 months, due 31/07/2014, "
         "filed 15/09/2014 (section 17B)",
         "frmWealthMain.txtWealthTaxLiability, frmWealthMain.mskDueDate by cmdInterest, "
         "frmWealthMain.mskRetDate by cmdInterest"},
        {s.txtPrepaidTax, "Prepaid Tax and Interest 20,000 = Amount 15,000 (row 1) plus 5,000 (row 2)",
         "frmWealthMain.sprSATax(6,1) by cmdSATaxPayable, frmWealthMain.sprSATax(6,2) by cmdSATaxPayable"},
        {s.txtBalanceTaxIntPayable,
         "Balance Payable 0 = Tax and Interest Payable 14,405.46 less Prepaid Tax and Interest 20,000 (never "
         "below 0)",
         "frmWealthMain.txtTaxIntPayable, frmWealthMain.txtPrepaidTax"},
        {s.txtTaxRefund,
         "Refund 5,594.54 = Prepaid Tax and Interest 20,000 less Tax and Interest Payable 14,405.46 (never "
         "below 0)",
         "frmWealthMain.txtPrepaidTax, frmWealthMain.txtTaxIntPayable"},
        {s.txtAssetsSec2ea, "Assets 45,12,349: the total of the assets screen",
         "frmImmovable.txtTotalNetAmount by cmdAssets"},
        {s.txtLessDebt, "Debt 1,00,000.25: typed here", ""},
        {s.mskDueDate, "", ""},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(why(each.control), each.told);
        EXPECT_EQ(ways(each.control), each.ways) << each.told;
    }
}

TEST_F(WhyTest, TellsAFigureThatIsNotTheRules) {
    sheet().txtTotalAssets.set_text("5000000"); // as a stored sheet may have it
    EXPECT_EQ(why(sheet().txtTotalAssets),
              "Total 50,00,000 was stored so; Assets 45,12,349 plus Deemed Assets 0 gives 45,12,349");
    sheet().txtInterest.type("99");
    EXPECT_EQ(
        why(sheet().txtInterest),
        "Interest 99 was typed or stored; 1 % of Tax on Net Wealth 19,000 for 2 months, due 31/07/2014, "
        "filed 15/09/2014 (section 17B) gives 380");
    sheet().txtLessDebt.set_text("1,00,000");
    EXPECT_EQ(why(sheet().txtNetWealth), "Net Wealth 49,99,999 = Assets chargeable 50,00,000 less Debt 1 of "
                                         "\"1,00,000\" (never below 0)");
    sheet().txtLessDebt.type("1e999");
    EXPECT_EQ(why(sheet().txtNetWealth), "Overflow");
    sheet().txtLessDebt.type("0");
    sheet().mskRetDate.type("31/07/2014");
    EXPECT_EQ(why(sheet().txtInterest), "Interest is empty: 1 % of Tax on Net Wealth 20,000 for 0 months, "
                                        "due 31/07/2014, filed 31/07/2014 (section 17B)");
}

} // namespace levora::computation
