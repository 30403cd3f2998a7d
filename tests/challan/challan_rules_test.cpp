#include "challan_fixture.h"

#include "session/common_services.h"

namespace levora::challan {
namespace {

TEST_F(ChallanTest, InstalmentFollowsDayAndMonthOfTheChallanDate) {
    struct Case {
        const char *why, *date, *instalment;
    };
    constexpr Case cases[] = {
        {"the financial year begins", "01/04/2014", "1"},
        {"last day of the first", "15/09/2014", "1"},
        {"first day of the second", "16/09/2014", "2"},
        {"last day of the second", "15/12/2014", "2"},
        {"first day of the third", "16/12/2014", "3"},
        {"over the new year", "01/01/2015", "3"},
        {"last day of the third", "15/03/2015", "3"},
        {"the rest of March", "16/03/2015", "4"},
        {"the year plays no part", "31/03/1999", "4"},
        {"a day that there is not", "31/04/2014", "0"},
        {"no date", "", "0"},
    };
    screen().optAdvTax.click();
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        screen().mskChallanDate.type(each.date);
        screen().mskChallanDate.leave();
        EXPECT_EQ(screen().txtInstallmentNo.text(), each.instalment);
    }
    screen().mskChallanDate.type("16/09/2014");
    screen().mskChallanDate.leave();
    EXPECT_EQ(screen().active_control(), &screen().txtInstallmentNo) << "the focus goes with the number";
    screen().optSATax.click();
    EXPECT_EQ(screen().txtInstallmentNo.text(), "");
    EXPECT_FALSE(screen().txtInstallmentNo.enabled());
    screen().mskChallanDate.leave();
    EXPECT_EQ(screen().txtInstallmentNo.text(), "") << "only advance tax has instalments";
    EXPECT_EQ(boxes(), "");
}

TEST_F(ChallanTest, CessIsWorkedOutAtThreeSitesThatDiffer) {
    struct Case {
        const char *why, *year, *tax, *surcharge, *after_tax, *after_surcharge, *after_year;
    };
    constexpr Case cases[] = {
        {"2 % at every site", "2007-2008", "1000", "100", "20", "22", "22"},
        {"3 % at every site", "2008-2009", "1000", "100", "30", "33", "33"},
        {"the year click does not round", "2008-2009", "1005", "0", "30", "30", "30.15"},
        {"halves go to the even neighbour", "2005-2006", "1025", "50", "20", "22", "21.5"},
        {"2009-2010 knows the tax alone", "2009-2010", "1000", "100", "30", "30", "30"},
        {"later years are typed by hand", "2010-2011", "1000", "100", "", "", ""},
        {"and so are earlier ones", "2004-2005", "1000", "100", "", "", ""},
    };
    EXPECT_EQ(screen().mskFinancialYear.text(), "2013-2014");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        frmChallan282& on = screen();
        on.cboAssessmentYear.choose(each.year);
        on.txtIncomeTax.type(each.tax);
        EXPECT_EQ(on.txtEducationCess.text(), each.after_tax);
        on.txtSurcharge.type(each.surcharge);
        EXPECT_EQ(on.txtEducationCess.text(), each.after_surcharge);
        on.cboAssessmentYear.choose(each.year);
        EXPECT_EQ(on.txtEducationCess.text(), each.after_year);
        desk.queue_answer(widgets::Answer::no);
        EXPECT_TRUE(close());
    }
}

TEST_F(ChallanTest, AmountsAreWholeRupeesOf32Bits) {
    frmChallan282& on = screen();
    on.txtIncomeTax.type("1.5");
    EXPECT_EQ(on.IncomeTaxAmount, 2);
    on.txtIncomeTax.type("2.5");
    EXPECT_EQ(on.IncomeTaxAmount, 2) << "halves go to the even neighbour";
    on.txtInterest.type("1234565");
    EXPECT_EQ(amounts(), "2.5   1234565   = 12,34,567");
    on.txtPenalty.type("1e3,");
    EXPECT_EQ(on.txtPenalty.text(), "13") << "the keyboard puts no letter and no comma in";

    on.txtOther.type("2147483648");
    EXPECT_EQ(boxes(), "Levora Wealth Tax - Error: 6 Overflow");
    EXPECT_EQ(on.OtherAmount, 0);
    on.txtOther.type("2147483647");
    EXPECT_EQ(boxes(), "Levora Wealth Tax - Error: 6 Overflow") << "the sum does not fit";
    EXPECT_EQ(on.txtTotal.text(), "12,34,580") << "a total that can't be had leaves the old one";
    on.txtOther.type("0");
    EXPECT_EQ(on.TotalAmount, 1234580);
}

TEST_F(ChallanTest, BanksAreListedAtEachVisitAndTheReceivingOneBringsItsCode) {
    frmChallan282& on = screen();
    on.cboDrawnOn.type("My bank");
    EXPECT_TRUE(on.cboPaymentBank.items().empty());
    for (int visit = 0; visit < 3; ++visit)
        on.cboDrawnOn.enter();
    EXPECT_EQ(on.cboDrawnOn.items(), (std::vector<std::string>{"First Bank", "Second Bank"}));
    EXPECT_EQ(on.cboDrawnOn.text(), "My bank");
    EXPECT_EQ(on.cboPaymentBank.items().size(), 6U) << "wanted: it grows with each visit";
    on.cboPaymentBank.choose("Second Bank");
    EXPECT_EQ(on.txtBSRCode.text(), "0220002");
    run(session::Store::assessee, "INSERT INTO AICustomisedItems (ItemGroup, Item, OtherInfo1, SrNo) "
                                  "VALUES ('Bank', 'Dena', '', 3), ('Other', 'X', '9', 4)");
    for (const char* bank : {"Unknown", "Dena", "X"}) { // none, without a code, and no bank
        on.cboPaymentBank.type(bank);
        EXPECT_EQ(on.txtBSRCode.text(), "0220002") << bank << " leaves the code";
    }
    on.cboPaymentBank.type("First Bank");
    EXPECT_EQ(on.txtBSRCode.text(), "0110001") << "typing looks it up too";
    on.cboPaymentBank.type("King's");
    const auto shown = desk.take_messages();
    ASSERT_EQ(shown.size(), 1U) << "an apostrophe ends in the error report";
    EXPECT_EQ(shown[0].box.title, "Levora Wealth Tax - Error");
}

TEST_F(ChallanTest, MarginsAreKeptAtOnceAndKeysStartTheCalculators) {
    screen().txtTopMargin.type("12");
    screen().UpDownITR1LM.up();
    screen().chkPANBarCode.click();
    close();
    EXPECT_EQ(screen().txtTopMargin.text() + " " + screen().txtLeftMargin.text(), "12 1");
    EXPECT_TRUE(screen().chkPANBarCode.ticked());

    settings.write(session::registry::shared, "LVCalc Path", session::Settings::Setting{"C:\\Tools"});
    EXPECT_TRUE(screen().press_key("Ctrl+Alt+C") && screen().press_key("Ctrl+Alt+T"));
    const auto started = desk.take_started();
    ASSERT_EQ(started.size(), 2U);
    EXPECT_EQ(started[0].line + "|" + started[1].line, "CALC.EXE|C:\\Tools\\Levora Calc.exe ");
    EXPECT_TRUE(screen().press_key("Ctrl+F5"));
    EXPECT_EQ(boxes(), "Levora Wealth Tax - Error: 91 Object variable or Wi") << "wanted: always a report";
    EXPECT_FALSE(screen().press_key("Enter"));
    screen().cboChallanList.enter();
    EXPECT_TRUE(screen().press_key("Enter") && screen().cboChallanList.dropped_down());
}

} // namespace
} // namespace levora::challan
