#include "challan_fixture.h"

namespace levora::challan {
namespace {

using session::Store;
using widgets::Answer;

TEST_F(ChallanTest, AddressIsThatOfTheOfficeOrTheResidenceWithAllSeparators) {
    run(Store::assessee,
        "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, PAN, Address1, Address2, Address3, City, Pin, "
        "State, ResCity) VALUES (17, 'A. Client', 'ABCPD1234E', '1', 'Mill Road', 'Fort', 'Pune', '411001', "
        "'MAHARASHTRA', 'Nagpur')");
    EXPECT_EQ(screen().txtName.text() + " " + screen().txtPan.text(), "A. Client ABCPD1234E");
    EXPECT_EQ(screen().txtAddress1.text() + "; " + screen().txtAddress2.text(),
              "1, Mill Road; Fort, Pune - 411001, MAHARASHTRA");
    close();
    session.UseResidentialAddress = true;
    EXPECT_EQ(screen().txtAddress1.text() + "; " + screen().txtAddress2.text(), ", ; , Nagpur - , ");
}

TEST_F(ChallanTest, ListShowsLatestYearFirstAndWithinItTheEarliestDate) {
    stored("2012-2013", "'2012-05-01'", "400", 5);
    stored("2014-2015", "'2014-09-15'", "300", 1234567);
    stored("2014-2015", "'2013-12-10'", "100", 200, "2");
    stored("2014-2015", "Null", "100", 0, "0");
    stored("2013-2014", "'2013-01-02'", "999", 1);
    run(Store::forms, "INSERT INTO Challan (AssesseeNo, AY, ChallanNo, Total) VALUES (17, '2014-2015', "
                      "'ITNS280', 9)");
    run(Store::forms, "INSERT INTO Challan (AssesseeNo, AY, ChallanNo, Total) VALUES (18, '2014-2015', "
                      "'ITNS282', 9)");
    EXPECT_EQ(list(), "2014-2015||Adv. Tax|0|4\n"
                      "2014-2015|10/12/2013|Adv. Tax (2)|200|3\n"
                      "2014-2015|15/09/2014|SA Tax|12,34,567|2\n"
                      "2013-2014|02/01/2013||1|5\n"
                      "2012-2013|01/05/2012|On Assessment|5|1\n");
}

TEST_F(ChallanTest, SavedChallanComesBackAsItWasAndWealthTaxAsSecuritiesTax) {
    frmChallan282& on = screen();
    on.optAdvTax.click();
    on.optWealthTax.click();
    on.cboAssessmentYear.choose("2008-2009");
    on.txtIncomeTax.type("1000");
    on.txtSurcharge.type("100");
    on.txtEducationCess.type("7");
    on.txtInterest.type("1");
    on.txtPenalty.type("2");
    on.txtOther.type("3");
    on.txtChequeNo.type("445566");
    on.mskChqDate.type("17/09/2014");
    on.cboDrawnOn.type("First Bank");
    on.mskDateOfPayment.type("18/09/2014");
    on.cboPaymentBank.type("Second Bank");
    on.txtBSRCode.type("99");
    on.txtChallanSrNo.type("00042");
    on.cmdSave.click();
    EXPECT_EQ(rows(Store::forms, "SELECT * FROM Challan"),
              "1|17|2008-2009|ITNS282|2014-09-16|0|100|2|0|1000|100|7|1|2|3|1113|445566|2014-09-17|First "
              "Bank|2014-09-18|Second Bank|99|00042");
    close();

    screen().cboChallanList.choose(0);
    EXPECT_EQ(screen().txtIncomeTax.text(), "") << "wanted: the first choice of the first row loads nothing";
    screen().cmdNew.click();
    screen().cboChallanList.choose(0);
    EXPECT_EQ(amounts(), "1000 100 7 1 2 3 = 1,113") << "the stored cess wins over the one worked out";
    EXPECT_EQ(screen().cboAssessmentYear.text() + " " + screen().mskChallanDate.text() + " " +
                  screen().mskChqDate.text() + " " + screen().mskDateOfPayment.text(),
              "2008-2009 16/09/2014 17/09/2014 18/09/2014");
    EXPECT_EQ(screen().txtChequeNo.text() + " " + screen().cboDrawnOn.text() + " " +
                  screen().cboPaymentBank.text() + " " + screen().txtBSRCode.text() + " " +
                  screen().txtChallanSrNo.text(),
              "445566 First Bank Second Bank 99 00042");
    EXPECT_TRUE(screen().optAdvTax.value());
    EXPECT_TRUE(screen().optSecTranTax.value()) << "wanted: both have code 0";
    EXPECT_FALSE(screen().optWealthTax.value());
}

TEST_F(ChallanTest, OverwritingMeansTheChallanOnTheScreen) {
    stored("2014-2015", "'2014-09-15'", "300", 100);
    stored("2014-2015", "'2014-09-20'", "300", 200);
    screen().cboChallanList.choose(1);
    screen().mskChallanDate.type("15/09/2014"); // the date of the other
    screen().txtIncomeTax.type("300");
    desk.queue_answer(Answer::yes);
    screen().cmdSave.click();
    EXPECT_EQ(boxes(), ": Overwrite the changes to");
    EXPECT_EQ(list(), "2014-2015|15/09/2014|SA Tax|100|1\n"
                      "2014-2015|15/09/2014|SA Tax|300|2\n");
    EXPECT_EQ(amounts(), "300 0 0 0 0 0 = 300");

    // After New it is still the one last loaded.
    screen().cmdNew.click();
    screen().mskChallanDate.type("15/09/2014");
    desk.queue_answer(Answer::yes);
    screen().cmdSave.click();
    EXPECT_EQ(list(), "2014-2015|15/09/2014|SA Tax|100|1\n"
                      "2014-2015|15/09/2014|SA Tax|0|2\n");
    screen().txtIncomeTax.type("300");

    // No adds, and so does a dismissed question.
    desk.queue_answer(Answer::no);
    screen().cmdSave.click();
    screen().cmdSave.click();
    EXPECT_EQ(rows(Store::forms, "SELECT ChallanID, Total FROM Challan ORDER BY ChallanID"),
              "1|100; 2|0; 3|300; 4|300");
    EXPECT_EQ(screen().cboChallanList.index(), 3);
}

TEST_F(ChallanTest, ChoosingAnotherRowAsksForTheUnsavedChallan) {
    stored("2014-2015", "'2014-09-15'", "300", 100);
    stored("2014-2015", "'2014-09-20'", "300", 200);
    screen().cboChallanList.choose(1);
    EXPECT_EQ(boxes(), "");

    screen().txtChequeNo.type("1");
    screen().cboChallanList.choose(0); // dismissed: Cancel
    EXPECT_EQ(boxes(), "Levora Forms - Challan: Save Changes made to New");
    EXPECT_EQ(screen().cboChallanList.index(), 1);
    EXPECT_EQ(screen().txtChequeNo.text(), "1");

    desk.queue_answer(Answer::no);
    screen().cboChallanList.choose(0);
    EXPECT_EQ(screen().txtIncomeTax.text() + screen().txtChequeNo.text(), "100");

    // Yes saves first: the row chosen is shown, the old one rewritten.
    screen().txtIncomeTax.type("150");
    desk.queue_answer(Answer::yes);
    desk.queue_answer(Answer::yes);
    desk.take_messages();
    screen().cboChallanList.choose(1);
    EXPECT_EQ(boxes(), "Levora Forms - Challan: Save Changes made to New; : Overwrite the changes to");
    EXPECT_EQ(list(), "2014-2015|15/09/2014|SA Tax|150|1\n2014-2015|20/09/2014|SA Tax|200|2\n");
    EXPECT_EQ(screen().txtIncomeTax.text(), "200");
}

TEST_F(ChallanTest, NewKeepsTheReceivingBankAndIsStoppedByCancel) {
    stored("2014-2015", "'2014-09-15'", "300", 100);
    stored("2014-2015", "'2014-09-20'", "400", 200);
    screen().cboChallanList.choose(1);
    screen().txtChallanSrNo.type("5");
    screen().mskChqDate.leave(); // leaving alone counts as a change
    screen().cmdNew.click();
    EXPECT_EQ(boxes(), "Levora Forms - Challan: Save Changes made to New");
    EXPECT_EQ(screen().txtIncomeTax.text(), "200") << "dismissed: the challan stays";
    desk.queue_answer(Answer::no);
    screen().cmdNew.click();
    EXPECT_EQ(amounts(), "      = ");
    EXPECT_EQ(screen().cboChallanList.index(), -1);
    EXPECT_TRUE(screen().optSATax.value());
    EXPECT_TRUE(screen().optGiftTax.value()) << "the tax carries over";
    EXPECT_EQ(screen().txtChallanSrNo.text(), "5");
    EXPECT_EQ(screen().mskChallanDate.text(), "16/09/2014");
}

TEST_F(ChallanTest, DeleteTakesTheChallanLastLoadedEvenFromABlankScreenAsWanted) {
    stored("2014-2015", "'2014-09-15'", "300", 100);
    stored("2014-2015", "'2014-09-20'", "300", 200);
    desk.queue_answer(Answer::yes);
    screen().cmdDelete1.click(); // nothing loaded yet
    screen().cboChallanList.choose(1);
    screen().cmdDelete1.click(); // dismissed: No
    EXPECT_EQ(boxes(), ": Delete Selected challan?; : Delete Selected challan?");
    EXPECT_EQ(screen().cboChallanList.count(), 2);
    screen().cmdNew.click();
    desk.queue_answer(Answer::yes);
    screen().cmdDelete1.click();
    EXPECT_EQ(rows(Store::forms, "SELECT ChallanID FROM Challan"), "1");
    EXPECT_EQ(screen().cboChallanList.count(), 2) << "no row was selected, so none goes";
    screen().cboChallanList.choose(0);
    desk.queue_answer(Answer::yes);
    screen().cmdDelete1.click();
    EXPECT_EQ(screen().cboChallanList.count(), 1);
    EXPECT_EQ(screen().cboChallanList.text(), "");
    EXPECT_EQ(amounts(), "      = ");
}

TEST_F(ChallanTest, AChallanThatCanNotBeStoredStaysOnTheScreen) {
    stored("2014-2015", "'2014-09-15'", "300", 100);
    stored("2014-2015", "'2014-09-20'", "300", 200);
    screen().cboChallanList.choose(1);
    screen().txtChequeNo.type("77");
    run(Store::forms, "ALTER TABLE Challan RENAME TO Away");
    desk.queue_answer(Answer::yes);
    screen().cboChallanList.choose(0); // the report is dismissed
    EXPECT_EQ(screen().txtChequeNo.text(), "77");
    desk.queue_answer(Answer::yes);
    EXPECT_FALSE(close());
    run(Store::forms, "ALTER TABLE Away RENAME TO Challan");
    desk.queue_answer(Answer::yes);
    desk.queue_answer(Answer::yes);
    EXPECT_TRUE(close());
    EXPECT_EQ(rows(Store::forms, "SELECT ChqNo FROM Challan WHERE ChallanID = 2"), "77");
}

TEST_F(ChallanTest, ClosingAsksOnlyForAChangedChallan) {
    EXPECT_TRUE(close());
    EXPECT_EQ(boxes(), "");
    screen().mskChallanDate.type("");
    screen().txtIncomeTax.type("5");
    EXPECT_FALSE(close());
    EXPECT_EQ(boxes(), "Levora Forms - Challan 282: Save Changes made to New");
    desk.queue_answer(Answer::yes); // without a date nothing asks about an overwriting
    EXPECT_TRUE(close());
    screen().txtIncomeTax.type("6");
    desk.queue_answer(Answer::no);
    EXPECT_TRUE(close());
    stored("2014-2015", "'2014-09-16'", "300", 100);
    desk.queue_answer(Answer::yes);
    screen().cmdSave.click(); // a new challan has no key to overwrite
    EXPECT_EQ(rows(Store::forms, "SELECT Total FROM Challan"), "5; 100; 0");
}

} // namespace
} // namespace levora::challan
