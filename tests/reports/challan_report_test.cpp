#include "reports_fixture.h"

namespace levora::reports {
namespace {

TEST_F(ReportsTest, TheChallanShowsTheScreenObjectByObject) {
    start();
    click_on_sheet("cmdChallan");
    challan::frmChallan282& on = challan();
    on.optWealthTax.click();
    on.optAdvTax.click();
    on.txtName.type("Asha Rao");
    on.txtPan.type("aaapr1234c");
    on.txtAddress1.type("12 MG Road");
    on.txtAddress2.type("Pondichéry");
    on.cboAssessmentYear.choose("2014-2015");
    on.mskChallanDate.type("15/09/2014");
    on.txtIncomeTax.type("1200000");
    on.txtInterest.type("34567");
    on.txtChequeNo.type("445566");
    on.mskChqDate.type("14/09/2014");
    on.cboDrawnOn.type("State Bank");
    on.cmdPreview.click();
    EXPECT_EQ(filled(previewed()),
              "tickWealthTax: [x]\ntxtAY: 2014-2015\ntxtFY: 2013-2014\ntxtPANDigits: AAAPR1234C\n"
              "txtPANBarCode: *AAAPR1234C*\ntxtPANUnderBar: AAAPR1234C\ntxtName1: ASHA RAO\n"
              "txtAddr1: 12 MG ROAD\ntxtAddr2: PONDICHÉRY\ntickAdvTax: [x]\ntxtAmtTax: 12,00,000\n"
              "txtAmtSurcharge: 0\ntxtAmtCess: 0\ntxtAmtInterest: 34,567\ntxtAmtPenalty: 0\n"
              "txtAmtOther: 0\ntxtAmtTotal: 12,34,567\ntxtLakhsA: Twelve\ntxtThousandsA: Thirty\n"
              "txtThousandsB: Four\ntxtHundreds: Five\ntxtTens: Six\ntxtUnits: Seven\ntxtChqNo: 445566\n"
              "txtChqDate: 14/09/2014\ntxtChqBank: State Bank\ntxtChallanDate: 15/09/2014\n"
              "txtFoilPAN: aaapr1234c\ntxtFoilName: ASHA RAO\ntxtFoilChqNo: 445566\n"
              "txtFoilTotal: 12,34,567\n"
              "txtFoilWords: Twelve Lakh Thirty Four Thousand Five Hundred Sixty Seven only\n"
              "txtFoilBank: State Bank\nlblTaxName: WEALTH TAX\ntxtPaymentName: Advance Tax\n"
              "txtFoilAY: 2014-2015\n");
    EXPECT_EQ(previewed().caption, "Challan 282 Preview - A.Y. 2014-2015 - Asha Rao");
    EXPECT_FALSE(on.busy());
}

TEST_F(ReportsTest, TheTotalInWordsOverItsBoxes) {
    struct Case {
        const char *why, *total, *boxes, *counterfoil;
    };
    constexpr Case cases[] = {
        {"nothing leaves the boxes as designed", "0", "||||||||", "Nil only"},
        {"below nothing too", "-5", "||||||||", "Nil only"},
        {"crores stay empty, lower places show dashes", "5000", "||--||Five||--|--|--",
         "Five Thousand  only"},
        {"two words over two objects", "450000021", "Forty|Five|--||--||--|Two|One",
         "Forty Five Crore Twenty One only"},
        {"a hundred crore has no word", "1000000000", "||--||--||--|--|--", " Crore  only"},
        {"tens and units are digits", "19", "||--||--||--|One|Nine", "Nineteen only"},
    };
    start();
    click_on_sheet("cmdChallan");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        challan().txtIncomeTax.type(each.total);
        challan().cmdPreview.click();
        std::string boxes;
        for (const char* object : {"txtCroresA", "txtCroresB", "txtLakhsA", "txtLakhsB", "txtThousandsA",
                                   "txtThousandsB", "txtHundreds", "txtTens", "txtUnits"})
            boxes +=
                (boxes.empty() && object == std::string("txtCroresA") ? "" : "|") + previewed().text(object);
        EXPECT_EQ(boxes, each.boxes);
        EXPECT_EQ(previewed().text("txtFoilWords"), each.counterfoil);
    }
}

TEST_F(ReportsTest, TheSecuritiesTransactionTaxHasATickAFinancialYearAndNoName) {
    settings.write(session::registry::levora_forms, "Challan282 Top Margin", "7.5");
    settings.write(session::registry::levora_forms, "Challan282 Left Margin", "x");
    start();
    click_on_sheet("cmdChallan");
    challan().optSecTranTax.click();
    challan().cboAssessmentYear.choose("2012-2013");
    challan().chkPANBarCode.click();
    challan().txtTotal.set_text("twelve"); // no whole number for the words: one blank, and the preview stands
    challan().cmdPreview.click();
    EXPECT_EQ(boxes() + "|" + logged(), "13 Type mismatch|Challan282 - secChallan282Data_Format");
    const document::Report& report = previewed();
    EXPECT_EQ(report.text("txtFoilWords") + "|" + report.text("txtFoilTotal"), "|twelve");
    EXPECT_EQ(report.text("tickSecTranTax"), document::tick);
    EXPECT_EQ(report.text("lblTaxName"), "");
    EXPECT_EQ(report.text("txtFoilFY") + "|" + report.text("txtFoilAY"), "2011-2012|");
    EXPECT_EQ(report.text("txtPANBarCode") + report.text("txtPANUnderBar"), "");
    EXPECT_EQ(report.text("txtChqDate"), "") << "an empty mask prints nothing";
    EXPECT_EQ(report.top_margin_twips, 425) << "425.25";
    EXPECT_EQ(report.left_margin_twips, 0);
    EXPECT_FALSE(report.suppressed("SecChallan282Form"));
}

} // namespace
} // namespace levora::reports
