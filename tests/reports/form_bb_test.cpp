#include "reports_fixture.h"

#include <filesystem>
#include <fstream>

namespace levora::reports {
namespace {

TEST_F(ReportsTest, FormBBShowsTheReturnObjectByObject) {
    start();
    click_on_sheet("cmdformBA");
    form_ba::testing::type_complete_return(form_ba());
    form_ba().cmdPreview.click();
    EXPECT_EQ(filled(previewed()),
              "mskAY: 2014-2015\n"
              "txtName: ASHA M RAO & SONS\n"
              "mskPAN: AAAPL1234C\n"
              "txtAdress1: 12\n"
              "txtAdress2: Caf\u00E9 Tower\n"
              "chkIndividual: [x]\n"
              "txtAdress3: MG Road\n"
              "txtAdress4: Camp\n"
              "mskDOB: 31/05/1960\n"
              "txtCity: Pune\n"
              "cboState: MAHARASHTRA\n"
              "mskPin: 411001\n"
              "chkFemale: [x]\n"
              "mskPhone: 020 26100000\n"
              "mskMobileNo: 9800000001\n"
              "txtWard: W 1\n"
              "txtEmail: asha@rao.example\n"
              "chkCitizenYes: [x]\n"
              "cboReturnCode3: [x]\n"
              "txtReceiptNo: R/77\n"
              "mskOriFillDate: 15/07/2014\n"
              "mskValuationDate: 31/03/2014\n"
              "chkFirstReturnNo: [x]\n"
              "chkOrdinary: [x]\n"
              "ChkCapacityReprYes: [x]\n"
              "txtReprName: K Rao\n"
              "txtReprAddress: Nagpur\n"
              "mskReprPAN: AAAPK1234D\n"
              "cboApplicableSec: 21AA(1)\n"
              "chkAssessedToITYes: [x]\n"
              "txtAggImmovableProperty: 5200\n" // 5000 - 100 + 300
              "txtAggMovableProperty: 95\n"     // 40 - 15 + 70
              "txtAggrValOfJewellery: 850\n"    // 900 - 100 + 50
              "txtInducibleNetWealth: 50\n"     // 80 - 30
              "txtAggValueOfInterest: 50\n"     // 60 - 10
              "txtNETWEALTHInFigure: 6245\n"    //
              "txtNetWealthTax: 1500\n"         //
              "txtLateFilingInterest: 30\n"     //
              "txtTotalTaxAndInterest: 1530\n"  //
              "txtTaxInterestPaid: 1200.5\n"    // 1000.5 + 200
              "txtAmtPayable: 329.5\n"          //
              "txtRefundAmount: 0\n"            //
              "txtBankAccountNo: 77\n"
              "txtMICRCode: ABCD0123456\n"
              "chkSavings: [x]\n"
              "txtVerificationName: Asha Rao\n"
              "txtVerificationFather: K Rao\n"
              "mskVerificationPAN: AAAPL1234C\n"
              "mskVerificationValuationDate: 31/03/2014\n"
              "mskVerificationAY: 2014-2015\n"
              "txtVerificationCapacity: Self\n"
              "txtVerificationPlace: Pune\n"
              "mskVerificationDate: 20/08/2014\n"
              "txtOPR11: Farm\n"
              "txtOPR12: 10\n"
              "txtOPR21: 3C-Karad-Telangana-415110\n" // empty parts leave no dash, the country is passed over
              "txtOPR31: 44/2\n"
              "txtOPR71: Shop\n"
              "txtOPR72: 90\n"
              "txtOPR81: 12A-Mall-Ring Road-Camp-Pune-Maharashtra-411002\n"
              "txtOPR91: 9B\n"
              "txtMovTotalDeposit: 11\n"
              "txtMovAmtBondInvestment: 12\n"
              "txtMovAmtPostal: 13\n"
              "txtMovAmtFirm: 14\n"
              "txtMovAmtOther: 15\n"
              "txtTotalValOtherProperty: 165\n" // 65 and the costs of 100
              "txtTotalLiabilityOtherProp: 5\n"
              "txtNetAmtOthProperty: 160\n"
              "txtFooter: ASHA M RAO & SONS / A.Y-2014-2015\n");
}

TEST_F(ReportsTest, SchedulesTakeEmptyRowsTooButForOtherPersons) {
    start();
    click_on_sheet("cmdformBA");
    form_ba::testing::type_complete_return(form_ba());
    form_ba().cmdPreview.click();
    const document::Report& report = previewed();
    EXPECT_EQ(rows_of(report, "PaidDetails"), "0123456|15/07/2014|00123|1000.5|1200.5|-|-|-|-|-|-|-|-\n"
                                              "6543210|16/07/2014|7|200|1200.5|-|-|-|-|-|-|-|-\n"
                                              "||||1200.5|-|-|-|-|-|-|-|-\n"
                                              "||||1200.5|-|-|-|-|-|-|-|-\n");
    EXPECT_EQ(rows_of(report, "SchIP").substr(0, rows_of(report, "SchIP").find('\n')),
              "House|1TowerMG RoadCampPuneGOAINDIA411001|S1|5000|100|4900|V|R9|01/04/2014|5200|-|-|-");
    EXPECT_EQ(report.rows("SchIP").rows.size(), 5U);
    // The annexure stands in rows 1 and 2 alone, which the stones name.
    EXPECT_EQ(rows_of(report, "SchJE"), "Ring|Grams|12.50|11|Annexure 1|20|900|100|800|V2|R2|02/04/2014|850\n"
                                        "Chain|Carat|3|2|Annexure 2|6|50||50||||850\n"
                                        "||||-||||0||||850\n||||-||||0||||850\n");
    EXPECT_EQ(rows_of(report, "Annexure"), "Annexure 1|1|Opal|2.0|15|-|-|-|-|-|-|-|-\n"
                                           "Annexure 2|2|Ruby|1|6|-|-|-|-|-|-|-|-\n"
                                           "Annexure 1|1|Pearl|1|5|-|-|-|-|-|-|-|-\n");
    EXPECT_EQ(rows_of(report, "SchINW"), "Minor|Son|AAAPM1234C|80|30|50|50|-|-|-|-|-|-\n");
    EXPECT_FALSE(report.section_suppressed(10));
}

TEST_F(ReportsTest, PrintingAloneKeepsTheScheduleRowsOfTheLastPreview) {
    start();
    click_on_sheet("cmdformBA");
    form_ba().sprMovableProperty.type(2, 1, "700");
    form_ba().cmdPreview.click();
    form_ba().sprMovableProperty.type(2, 1, "900");
    form_ba().cmdPrint.click();
    desk.queue_printer();
    dialog().txtTopMargin.type("9");
    dialog().txtNoCopies.type("3");
    dialog().cmdPrint.click();
    ASSERT_EQ(printed.size(), 1U) << boxes();
    EXPECT_EQ(printed[0]->rows("SchMP").value(0, "Col2").text(), "700");
    EXPECT_EQ(printed[0]->text("txtAggMovableProperty"), "900");
    EXPECT_EQ(printed[0]->top_margin_twips, 0) << "the dialog's margins do not move the return";
    EXPECT_EQ(printed[0]->copies, 3);
    EXPECT_EQ(session().PreviewSource, 2);
}

TEST_F(ReportsTest, WithoutAnnexureRowsSectionTenIsNotPrinted) {
    start();
    click_on_sheet("cmdformBA");
    folder.run(Store::tax, "DELETE FROM TempPrint");
    form_ba().cmdPrint.click();
    desk.queue_printer();
    dialog().cmdPrint.click();
    ASSERT_EQ(printed.size(), 1U) << boxes();
    EXPECT_TRUE(printed[0]->section_suppressed(10));
    EXPECT_TRUE(printed[0]->suppressed("DetailSection8"));
}

TEST_F(ReportsTest, AMissingOrBrokenLayoutIsReportedAndEndsTheProcedure) {
    start();
    click_on_sheet("cmdformBA");
    std::filesystem::remove(folder.path() + "/Report"); // the link
    form_ba().cmdPreview.click();
    EXPECT_EQ(boxes(), "53 File not found: " + folder.path() + "/Report/FormBB.rpt");
    EXPECT_FALSE(session().screens.find("frmRepPreview"));

    std::filesystem::create_directory(folder.path() + "/Report");
    std::ofstream(folder.path() + "/Report/FormBB.rpt") << "<report name=\"FormBB\">\n";
    form_ba().cmdPrint.click();
    desk.queue_printer();
    dialog().cmdPrint.click();
    EXPECT_TRUE(boxes().starts_with("321 " + folder.path() + "/Report/FormBB.rpt, line "));
    EXPECT_FALSE(session().screens.find("frmPrint")) << "the dialog closes";
    EXPECT_EQ(logged(), "frmFormBA - cmdPreview_Click|frmPrint - cmdPrint_Click");
}

TEST_F(ReportsTest, AnObjectTakenOutOfTheLayoutIsNamed) {
    std::filesystem::remove(folder.path() + "/Report");
    std::filesystem::create_directory(folder.path() + "/Report");
    std::ofstream(folder.path() + "/Report/FormBB.rpt")
        << "<report name=\"FormBB\" body-x=\"0-9\" body-y=\"0-9\"><section name=\"Section1\" height=\"1\">"
           "<object name=\"mskAY\" x=\"0-1\" y=\"0-1\"/></section></report>";
    start();
    click_on_sheet("cmdformBA");
    form_ba().cmdPreview.click();
    EXPECT_EQ(boxes(), "9 The report FormBB has no text object \"txtName\".");
}

} // namespace
} // namespace levora::reports
