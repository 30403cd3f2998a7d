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
              "mskAY: 2014-2015\ntxtName: ASHA M RAO & SONS\nmskPAN: AAAPL1234C\ntxtAdress1: 12\n"
              "txtAdress2: Caf\u00E9 Tower\nchkIndividual: [x]\ntxtAdress3: MG Road\ntxtAdress4: Camp\n"
              "mskDOB: 31/05/1960\ntxtCity: Pune\ncboState: MAHARASHTRA\nmskPin: 411001\nchkFemale: [x]\n"
              "mskPhone: 020 26100000\nmskMobileNo: 9800000001\ntxtWard: W 1\n"
              "txtEmail: asha@rao.example\nchkCitizenYes: [x]\ncboReturnCode3: [x]\ntxtReceiptNo: R/77\n"
              "mskOriFillDate: 15/07/2014\nmskValuationDate: 31/03/2014\nchkFirstReturnNo: [x]\n"
              "chkOrdinary: [x]\nChkCapacityReprYes: [x]\ntxtReprName: K Rao\ntxtReprAddress: Nagpur\n"
              "mskReprPAN: AAAPK1234D\ncboApplicableSec: 21AA(1)\nchkAssessedToITYes: [x]\n"
              "txtAggImmovableProperty: 5200\n" // 5000 - 100 + 300
              "txtAggMovableProperty: 95\n"     // 40 - 15 + 70
              "txtAggrValOfJewellery: 850\n"    // 900 - 100 + 50
              "txtInducibleNetWealth: 50\n"     // 80 - 30
              "txtAggValueOfInterest: 50\n"     // 60 - 10
              "txtNETWEALTHInFigure: 6245\ntxtNetWealthTax: 1500\ntxtLateFilingInterest: 30\n"
              "txtTotalTaxAndInterest: 1530\ntxtTaxInterestPaid: 1200.5\n" // 1000.5 + 200
              "txtAmtPayable: 329.5\ntxtRefundAmount: 0\ntxtBankAccountNo: 77\ntxtMICRCode: ABCD0123456\n"
              "chkSavings: [x]\ntxtVerificationName: Asha Rao\ntxtVerificationFather: K Rao\n"
              "mskVerificationPAN: AAAPL1234C\nmskVerificationValuationDate: 31/03/2014\n"
              "mskVerificationAY: 2014-2015\ntxtVerificationCapacity: Self\ntxtVerificationPlace: Pune\n"
              "mskVerificationDate: 20/08/2014\ntxtOPR11: Farm\ntxtOPR12: 10\n"
              "txtOPR21: 3C-Karad-Telangana-415110\n" // empty parts leave no dash, the country is passed over
              "txtOPR31: 44\ntxtOPR71: Shop\ntxtOPR72: 90\n"
              "txtOPR81: 12A-Mall-Ring Road-Camp-Pune-Maharashtra-411002\ntxtOPR91: 9\n" // survey 44/2 and 9B
                                                                                         // as numbers
              "txtMovTotalDeposit: 11\ntxtMovAmtBondInvestment: 12\ntxtMovAmtPostal: 13\n"
              "txtMovAmtFirm: 14\ntxtMovAmtOther: 15\n"
              "txtTotalValOtherProperty: 165\n" // 65 and the costs of 100
              "txtTotalLiabilityOtherProp: 5\ntxtNetAmtOthProperty: 160\n"
              "txtFooter: ASHA M RAO & SONS / A.Y-2014-2015\n");

    // Schedules take empty rows too, but for the other persons.
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
    EXPECT_FALSE(printed[0]->section_suppressed(10));
    run(Store::tax, "DELETE FROM TempPrint");
    form_ba().cmdPrint.click();
    desk.queue_printer();
    dialog().cmdPrint.click();
    ASSERT_EQ(printed.size(), 2U) << boxes();
    EXPECT_TRUE(printed[1]->section_suppressed(10) && printed[1]->suppressed("DetailSection8"))
        << "no rows of an annexure";
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

} // namespace
} // namespace levora::reports
